// A whole project file saved under every failure and killed at every operation: what is left is the old file or the new
// one, and what the close says is true.
#include "fallos.h"
#include "foundation/listas/arr.h"
#include "persistence/vornbin.h"
#include "prueba.h"

namespace {

// More than the stream's buffer holds, so that there are writes before the close.
bool graba_datos_y_cierra(vnfichero *f, const vnwchar *nombre, int edicion) {
    if (f == nullptr) return false;
    for (int i = 0; i < 20000; ++i) bin_graba_double(edicion + i * 0.5, f);
    bin_graba_cadena_unicode(VNU("final de la obra"), f);
    return vornbin_cierra_fichero_abierto_para_escritura_u(f, nombre, nullptr) == CIERTO;
}

} // namespace

// Header with a named field, which each save carries over or gives anew, and prologue.
GUARDADO(obra_completa) {
    const auto nombre = vn::ancho(fichero);
    arrCADENA_u *nombres = arr_CreaCADENA_u(0), *valores = arr_CreaCADENA_u(0);
    arr_AppendCADENA_u(nombres, VNU("edición"));
    arr_AppendCADENA_u(valores, std::basic_string<vnwchar>(static_cast<size_t>(edicion + 1), 'I').c_str());
    vnfichero *f = vornbin_abre_fichero_para_escritura_con_version_descripcion_y_campos_u(
        nombre.c_str(), static_cast<uint16_t>(edicion), "OBRA", VNU("Título"), nombres, valores, nullptr);
    arr_DestruyeCADENA_u(&nombres);
    arr_DestruyeCADENA_u(&valores);
    return graba_datos_y_cierra(f, nombre.c_str(), edicion);
}

// A sample that is saved over stays one: its close opens the temporary once more.
GUARDADO(ejemplo) {
    const auto nombre = vn::ancho(fichero);
    vornbin_establece_directorio_ejemplos_u(nombre.substr(0, 3).c_str());
    vnfichero *f = vornbin_abre_basico_fichero_para_escritura(fichero.c_str());
    if (f != nullptr) bin_graba_buffer("\2\1\10\0WENK-9-a\1", 13, f);
    const bool guardado = graba_datos_y_cierra(f, nombre.c_str(), edicion);
    vornbin_establece_directorio_ejemplos_u(nullptr);
    return guardado;
}

PRUEBA(guardado, una_obra_completa_es_la_de_antes_o_la_nueva) { vn::comprueba_guardado("obra_completa"); }

PRUEBA(guardado, un_ejemplo_es_el_de_antes_o_el_nuevo) { vn::comprueba_guardado("ejemplo"); }
