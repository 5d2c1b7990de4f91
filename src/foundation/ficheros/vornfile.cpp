#define VN_MODULO "vornfile (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/vornfile.h"
#include "foundation/ficheros/guardado_priv.h"
#include "foundation/ficheros/lc_fichero_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <utility>

namespace vn::ficheros {
namespace {

vnbool informado(vnerror_fichero e, const vnwchar *destino) {
    if (e == VN_FICH_BIEN) return CIERTO;
    informa_que_no_se_escribe(destino, anota_error(e));
    return FALSO;
}

// The temporary stands beside its file: a separator in its name would put it elsewhere.
bool es_sufijo(const vnwchar *texto) {
    return *texto != 0 && cadena_ancha(texto).find_first_of(VNU("/\\")) == cadena_ancha::npos;
}

vnfichero *abre(const vnwchar *nombre, const guardado::manera &como) {
    vnerror_fichero e = VN_FICH_BIEN;
    if (auto g = guardado::abre(nombre, como, &e)) return flujo_de(std::move(g), VN_AQUI);
    informa_con_motivo(VNU("f_lc_fopen"), VN_AQUI, nombre, anota_error(e));
    return nullptr;
}

} // namespace
} // namespace vn::ficheros

using namespace vn;
using namespace vn::ficheros;

vnbool vornfile_hacer_definitivo_fichero_temporal_y_hacer_copia_seguridad_u(const vnwchar *destino,
                                                                            const vnwchar *temporal) {
    if (!EXIGE(destino, temporal)) return FALSO;
    vnerror_fichero e = VN_FICH_BIEN;
    // A temporary that cannot take the file's place does not stay beside it.
    if (const auto g = guardado::adopta(destino, temporal, &e)) e = g->confirma();
    else operaciones().retira(temporal);
    return informado(e, destino);
}

vnfichero *vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(const vnwchar *nombre) {
    return AFIRMA_NO_NULO(nombre) ? abre(nombre, {}) : nullptr;
}

vnfichero *vornfile_abrir_fichero_escritura_con_temporal_u(const vnwchar *nombre, const vnwchar *sufijo,
                                                           vnbool con_copia) {
    if (!EXIGE(nombre, sufijo) || !AFIRMA_LOGICO(con_copia)) return nullptr;
    if (!AFIRMA_TEXTO(es_sufijo(sufijo), "sufijo de un nombre")) return nullptr;
    return abre(nombre, {.sufijo = sufijo, .con_copia = con_copia == CIERTO});
}

vnbool vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(vnfichero *f, const vnwchar *nombre) {
    flujo_abierto mio(f); // closed, whatever comes
    if (!EXIGE(f, nombre)) return FALSO;
    // Another stream, or another name: nothing of anybody's is renamed or removed.
    if (!AFIRMA_TEXTO(f->guardado != nullptr, "abierto para hacerse definitivo al cerrar")) return FALSO;
    if (!AFIRMA_TEXTO(f->guardado->es_de(nombre), "nombre con el que se ha abierto")) return FALSO;
    const auto g = toma_guardado(*f);
    // One report to a failure, whoever was first to tell it.
    const bool ya_informado = f->informado;
    if (!f->fallo_escritura) return informado(g->confirma(), nombre);
    g->abandona();
    anota_error(motivo_de_escritura(*f));
    if (!ya_informado) informa_que_no_se_escribe(nombre, motivo_de_escritura(*f));
    return FALSO;
}

vnbool vornfile_abandonar_fichero_escritura(vnfichero *f) {
    flujo_abierto mio(f); // closed, whatever comes
    if (!AFIRMA_NO_NULO(f)) return FALSO;
    if (!AFIRMA_TEXTO(f->guardado != nullptr, "abierto para hacerse definitivo al cerrar")) return FALSO;
    situa(*f, posicion(*f)); // what waits in the buffer is for nobody
    toma_guardado(*f)->abandona();
    return CIERTO;
}

vnbool vf_copyfile_seguro_u(const vnwchar *origen, const vnwchar *destino) {
    if (!EXIGE(origen, destino)) return FALSO;
    vnerror_fichero e = VN_FICH_BIEN;
    if (const auto g = guardado::abre(destino, {.con_copia = false, .derechos = origen}, &e)) {
        e = copia_contenido(origen, g->id());
        if (e == VN_FICH_BIEN) e = g->confirma();
    }
    if (e != VN_FICH_BIEN) anota_error(e);
    return logico(e == VN_FICH_BIEN);
}

vnbool vf_appendfile_u(const vnwchar *origen, const vnwchar *destino) {
    if (!EXIGE(origen, destino)) return FALSO;
    flujo_abierto de(f_lc_fopen_u(origen, VNU("rb"), VN_AQUI));
    if (de == nullptr) return FALSO;
    flujo_abierto a(f_lc_fopen_u(destino, VNU("ab"), VN_AQUI));
    if (a == nullptr) return FALSO;
    // Only what is there now: the two may be the same file.
    constexpr int64_t TROZO = 16 * 1024;
    unsigned char trozo[TROZO];
    int64_t falta = lc_tamanyo_fichero_i64(de.get());
    while (falta > 0) {
        const auto n = static_cast<size_t>(falta < TROZO ? falta : TROZO);
        if (f_lc_fread(trozo, 1, n, de.get(), VN_AQUI) != n || f_lc_fwrite(trozo, 1, n, a.get(), VN_AQUI) != n)
            return FALSO;
        falta -= static_cast<int64_t>(n);
    }
    return lc_fclose(a.release());
}
