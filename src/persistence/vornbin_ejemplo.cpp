#define VN_MODULO "vornbin (NUCLEOS.DLL)"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/widestr.h"
#include "persistence/vornbin_cabecera_priv.h"
#include <algorithm>

namespace vn {
namespace {

texto_u directorio_ejemplos;

// Without lists the mask is all that changes: written in place.
bool marca_en_su_sitio(const vnwchar *nomfich) {
    fichero f(f_lc_fopen_u(nomfich, VNU("rb+"), VN_AQUI));
    if (f == nullptr) return false;
    graba_mascara_de_ejemplo(f.get());
    return lc_vuelca_a_disco(f.get()) == CIERTO && lc_fclose(f.release()) == CIERTO;
}

// The rest of `origen`, from its position to its end.
bool copia_resto(vnfichero *origen, vnfichero *destino) {
    unsigned char trozo[1024];
    const int64_t len = lc_tamanyo_fichero_i64(origen);
    int64_t pos = vornio_ftell_i64(origen);
    if (!AFIRMA(len >= pos)) return false;
    while (pos < len) {
        const auto n = static_cast<size_t>(std::min<int64_t>(len - pos, sizeof trozo));
        if (f_lc_fread(trozo, 1, n, origen, VN_AQUI) != n || f_lc_fwrite(trozo, 1, n, destino, VN_AQUI) != n)
            return false;
        pos += static_cast<int64_t>(n);
    }
    return true;
}

// The file as a sample, its texts blanked, into another; the position in both is told to stay the same.
bool graba_copia_de_ejemplo(vnfichero *origen, cabecera *c, vnfichero *destino) {
    c->listas.blanquea();
    c->es_ejemplo = true;
    graba_cabecera_copiada(destino, *c);
    const int64_t pos_cabecera_target = vornio_ftell_i64(destino);
    const int64_t pos_cabecera_source = vornio_ftell_i64(origen);
    if (!AFIRMA(pos_cabecera_target == pos_cabecera_source) || !copia_resto(origen, destino)) return false;
    const int64_t longitud1 = lc_tamanyo_fichero_i64(origen);
    const int64_t longitud2 = lc_tamanyo_fichero_i64(destino);
    return AFIRMA(longitud1 == longitud2);
}

// No safety copy: it would keep the texts that are blanked.
bool marca_con_listas(fichero origen, cabecera *c, const vnwchar *nomfich) {
    ficheros::temporal destino(vornfile_abrir_fichero_escritura_con_temporal_u(nomfich, VNU(".TM@"), FALSO));
    if (destino == nullptr || !graba_copia_de_ejemplo(origen.get(), c, destino.get())) return false;
    origen.reset();
    return vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(destino.release(), nomfich) == CIERTO;
}

} // namespace

bool esta_en_directorio_ejemplos(const vnwchar *ruta) {
    return !directorio_ejemplos.empty() &&
           widestr_es_subcadena_inicial_may_o_min(ruta, directorio_ejemplos.c_str()) == CIERTO;
}

} // namespace vn

void vornbin_establece_directorio_ejemplos_u(const vnwchar *directorio) {
    vn::directorio_ejemplos = directorio != nullptr ? directorio : VNU("");
}

vnbool vornbin_es_directorio_ejemplos(const char *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return FALSO;
    return vn::esta_en_directorio_ejemplos(vn::ancho_opcional(ruta).get());
}

vnbool vornbin_marca_fichero_ejemplo_u(const vnwchar *nomfich) {
    if (!AFIRMA_NO_NULO(nomfich)) return FALSO;
    // The temporary of a save is held meanwhile, and goes in the end: no save comes in between, and what one that died
    // has left, which has the texts that are blanked here, is no more.
    const vn::ficheros::temporal turno(vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(nomfich));
    if (turno == nullptr) return FALSO;
    vn::fichero f = vn::abre_para_leer(nomfich);
    if (f == nullptr) return FALSO;
    vn::cabecera c = vn::lee_cabecera(f.get());
    const vnbool hay_cabecera = vn::logico(c.hay);
    if (!AFIRMA(hay_cabecera == CIERTO)) return FALSO;
    if (c.truncada) {
        lc_error_leyendo_fichero(f.get());
        return FALSO;
    }
    if (c.con_listas) return vn::logico(vn::marca_con_listas(std::move(f), &c, nomfich));
    f.reset();
    return vn::logico(vn::marca_en_su_sitio(nomfich));
}
