#include "environment/ultfichsel.h"
#include "fallos.h"
#include "foundation/listas/arr.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/suelo/dueno.hpp"
#include "prueba.h"

namespace {

// The user's configuration, in the directory of the test; the path of the module's file in it, UTF-8.
std::string prepara() {
    fichconf_establece_directorio_base(vn::ancho(vn::Prueba::directorio()).c_str());
    return vn::toma(fichconf_dame_ruta_fichero_en_directorio_configuracion(VNU("pnlselfic.cfg")));
}

using lista = vn::dueno<ultfichsel_destruye>;
lista lee() { return lista(ultfichsel_lee_todos_los_ultimos_ficheros_seleccionados()); }

void registra(const lista &l, const char *clave, const char *raiz, const char *nombre) {
    ultfichsel_registra_nombre_fichero(l.get(), clave, vn::ancho(raiz).c_str(), vn::ancho(nombre).c_str());
}

std::string ultimo(const lista &l, const char *clave, const char *raiz) {
    vnwchar *nombre = nullptr;
    const bool existe =
        ultfichsel_ultimo_fichero_seleccionado_si_existe(l.get(), clave, vn::ancho(raiz).c_str(), &nombre) == CIERTO;
    EXPECT_EQ(existe, nombre != nullptr);
    return existe ? vn::toma(nombre) : "-";
}

} // namespace

PRUEBA(ultfichsel, lo_registrado_se_guarda_y_sigue_a_la_obra_que_se_mueve) {
    prepara();
    lista l = lee();
    EXPECT_EQ(arr_NumElemsPuntero(l.get()), 0u);
    registra(l, "plano", "C:\\Obra", "C:\\Obra\\p.dxf");
    registra(l, "n\xF1", "", "D:\\日\\x.ifc");
    registra(l, "plano", "C:\\Obra", "C:\\Obra\\otro\\q.dxf");
    ultfichsel_graba_todos_los_ultimos_ficheros_seleccionados(l.get());
    l = lee();
    EXPECT_EQ(arr_NumElemsPuntero(l.get()), 2u);
    EXPECT_EQ(ultimo(l, "plano", "c:\\obra"), "C:\\Obra\\otro\\q.dxf"); // the same root
    EXPECT_EQ(ultimo(l, "plano", "E:\\Nueva"), "E:\\Nueva\\otro\\q.dxf");
    EXPECT_EQ(ultimo(l, "plano", ""), "C:\\Obra\\otro\\q.dxf");
    EXPECT_EQ(ultimo(l, "n\xF1", "E:\\Nueva"), "D:\\日\\x.ifc");
    EXPECT_EQ(ultimo(l, "PLANO", ""), "-");
}

PRUEBA(ultfichsel, las_versiones_antiguas_se_leen_y_lo_danyado_se_descarta) {
    const std::string fichero = prepara();
    lista l = lee();
    registra(l, "k", "r", "n");
    ultfichsel_graba_todos_los_ultimos_ficheros_seleccionados(l.get());
    const std::string actual = vn::lee_fichero(fichero);
    // Of the stored form: a count, then per record its version and the key with its length.
    const std::string clave = actual.substr(5, actual.find('k') - 5 + 1);
    const auto ansi = [&](char c) { return clave.substr(0, clave.size() - 1) + c; };
    const std::string cuenta = actual.substr(0, 4), anchos = actual.substr(5 + clave.size());
    const std::pair<std::string, std::string> filas[] = {
        {cuenta + '\0' + clave + ansi('n'), "n"},
        {cuenta + '\1' + clave + ansi('r') + ansi('n'), "n"},
        {cuenta + '\2' + clave + ansi('r') + anchos.substr(anchos.size() / 2), "n"},
        {actual, "n"},
        {actual.substr(0, actual.size() - 1), "-"},
        {std::string("\xFF\xFF\xFF\xFF\3", 5), "-"},
        {"", "-"}};
    for (const auto &[contenido, obtenido] : filas) {
        vn::graba_fichero(fichero, contenido);
        EXPECT_EQ(ultimo(lee(), "k", ""), obtenido) << contenido.size();
    }
    vn::graba_fichero(fichero, cuenta + '\4' + actual.substr(5));
    l = ESPERA_INFORME("version <= i_VERSION_FICHERO", lee());
    EXPECT_EQ(arr_NumElemsPuntero(l.get()), 0u);
}

GUARDADO(ultimos_ficheros) {
    fichconf_establece_directorio_base(vn::ancho(fichero.substr(0, fichero.rfind("/VORN/"))).c_str());
    lista l = lee();
    const std::string nombre(7000, static_cast<char>('0' + edicion));
    registra(l, "k", "", nombre.c_str());
    ultfichsel_graba_todos_los_ultimos_ficheros_seleccionados(l.get());
    return vn::existe(fichero) &&
           vn::lee_fichero(fichero).find(nombre.substr(0, 1) + '\0' + nombre.substr(0, 1)) != std::string::npos;
}

PRUEBA(ultfichsel, cada_fallo_al_grabarlos) {
    vn::comprueba_guardado(
        "ultimos_ficheros",
        {.carpeta = "VORN", .fichero = "pnlselfic.cfg", .informa = false, .muere = false, .dice = false});
}
