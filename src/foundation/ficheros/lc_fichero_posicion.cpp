#define VN_MODULO "lc_fichero (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/lc_fichero_posicion.h"
#include "foundation/ficheros/lc_fichero_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <algorithm>

namespace vn::ficheros {

int64_t tamanyo_actual(vnfichero &f) {
    vnestado_fichero estado;
    // Asked anew: another stream may have changed the file. What waits in the buffer counts as written.
    if (operaciones().estado_abierto(f.id, &estado) == VN_FICH_BIEN) f.tamanyo = static_cast<int64_t>(estado.tamanyo);
    if (f.estado == vnfichero::ESCRIBIENDO) f.tamanyo = std::max(f.tamanyo, f.base + ocupado(f));
    return f.tamanyo;
}

namespace {

bool mueve(vnfichero &f, int64_t destino) {
    // Inside the buffer only the window moves. What is appended goes to the end, wherever the position is.
    if (f.estado != vnfichero::NADA && destino >= f.base && destino <= f.base + ocupado(f) &&
        !(f.anade && f.estado == vnfichero::ESCRIBIENDO)) {
        // What was written so far stays in the buffer when the position goes back.
        f.fin = f.buffer + ocupado(f);
        f.v.pos = f.buffer + (destino - f.base);
        if (f.estado == vnfichero::LEYENDO) abre_ventana_de_lectura(f);
        return true;
    }
    if (!f.con_posicion || !vacia_informando(f)) return false;
    situa(f, destino);
    // After a jump a few values are read more often than a whole buffer.
    f.lectura_siguiente = PRIMERA_LECTURA;
    return true;
}

bool mueve_desde(vnfichero &f, int64_t posicion_pedida, int origen) {
    const int64_t desde = origen == VN_DESDE_EL_PRINCIPIO  ? 0
                          : origen == VN_DESDE_LA_POSICION ? posicion(f)
                                                           : tamanyo_actual(f);
    int64_t destino = 0;
    // Before the start, or beyond what 64 bits count: refused, and nothing has moved.
    if (__builtin_add_overflow(desde, posicion_pedida, &destino) || destino < 0) return false;
    if (!mueve(f, destino)) return false;
    f.al_final = false;
    return true;
}

} // namespace
} // namespace vn::ficheros

using namespace vn;
using namespace vn::ficheros;

vnbool f_lc_feof(const vnfichero *f) { return logico(AFIRMA_NO_NULO(f) && f->al_final); }
vnbool f_lc_ferror(const vnfichero *f) {
    return logico(AFIRMA_NO_NULO(f) && (f->fallo_lectura || f->fallo_escritura || f->sin_sentido));
}
vnbool lc_ha_fallado(const vnfichero *f) { return f_lc_ferror(f); }

void lc_borra_error(vnfichero *f) {
    if (AFIRMA_NO_NULO(f)) f->al_final = f->fallo_lectura = false;
}

int64_t vornio_ftell_i64(const vnfichero *f) { return AFIRMA_NO_NULO(f) ? posicion(*f) : -1; }
int64_t vio_telli64(const vnfichero *f) { return vornio_ftell_i64(f); }

int32_t lc_ftell(const vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return -1;
    const int64_t aqui = posicion(*f);
    return AFIRMA_TEXTO(aqui <= INT32_MAX, "posicion <= LONG_MAX") ? static_cast<int32_t>(aqui) : -1;
}

vnbool vornio_fseek_i64(vnfichero *f, int64_t posicion, int origen) {
    if (!AFIRMA_NO_NULO(f) || !AFIRMA(origen >= VN_DESDE_EL_PRINCIPIO && origen <= VN_DESDE_EL_FINAL)) return FALSO;
    return logico(mueve_desde(*f, posicion, origen));
}

vnbool lc_fseek(vnfichero *f, int32_t posicion, int origen) { return vornio_fseek_i64(f, posicion, origen); }

int64_t lc_tamanyo_fichero_i64(vnfichero *f) { return AFIRMA_NO_NULO(f) ? tamanyo_actual(*f) : 0; }
double lc_tamanyo_fichero(vnfichero *f) { return static_cast<double>(lc_tamanyo_fichero_i64(f)); }

uint32_t vdir_longitud_fichero_puntero(vnfichero *f) {
    const int64_t longitud = lc_tamanyo_fichero_i64(f);
    return AFIRMA_TEXTO(longitud <= UINT32_MAX, "longitud <= ULONG_MAX") ? static_cast<uint32_t>(longitud) : UINT32_MAX;
}

int64_t lc_bytes_restantes(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return 0;
    // A pipe does not tell its size: only what has been read already is sure.
    if (!f->con_posicion) return f->estado == vnfichero::LEYENDO ? f->fin - f->v.pos : 0;
    return std::max<int64_t>(tamanyo_actual(*f) - posicion(*f), 0);
}

vnbool lc_quedan(vnfichero *f, uint64_t numero, uint64_t tamanyo) {
    uint64_t bytes = 0;
    if (!AFIRMA_NO_NULO(f) || __builtin_mul_overflow(numero, tamanyo, &bytes) || bytes > INT64_MAX) return FALSO;
    const auto necesita = static_cast<int64_t>(bytes);
    // The usual answer, out of the buffer.
    if (f->estado == vnfichero::LEYENDO && necesita <= f->fin - f->v.pos) return CIERTO;
    // What only reads asks the system again only when the size that was seen would not do.
    if (!f->escribe && f->con_posicion && necesita <= f->tamanyo - posicion(*f)) return CIERTO;
    return logico(necesita <= lc_bytes_restantes(f));
}

vnbool lc_fflush(vnfichero *f) { return logico(AFIRMA_NO_NULO(f) && vacia_informando(*f)); }

vnbool lc_vuelca_a_disco(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f) || !vacia_informando(*f)) return FALSO;
    const vnerror_fichero e = operaciones().vuelca(f->id);
    if (e == VN_FICH_BIEN) return CIERTO;
    anota_error(*f, e);
    informa_escritura(*f, VN_AQUI);
    return FALSO;
}

vnbool lc_trunca(vnfichero *f, int64_t tamanyo) {
    if (!AFIRMA_NO_NULO(f) || !AFIRMA(tamanyo >= 0) || !vacia_informando(*f)) return FALSO;
    // What waited is written; what was read ahead is dropped after the cut, since it may be gone.
    if (!f->escribe || operaciones().trunca(f->id, tamanyo) != VN_FICH_BIEN) return FALSO;
    situa(*f, posicion(*f));
    f->tamanyo = tamanyo;
    return CIERTO;
}

const vnwchar *lc_nombre_fichero(const vnfichero *f) { return AFIRMA_NO_NULO(f) ? f->nombre : nullptr; }

vnbool lc_bloquea_zona_fichero(vnfichero *f, int64_t inicio, uint32_t tamanyo, uint32_t modo) {
    if (!AFIRMA_NO_NULO(f) || !AFIRMA(inicio >= 0) || !AFIRMA(tamanyo > 0)) return FALSO;
    if (!AFIRMA((modo & ~(VN_ZONA_COMPARTIDA | VN_ZONA_ESPERA)) == 0)) return FALSO;
    // The end of the zone must be a position too. What waits to be written belongs before the lock.
    if (inicio > INT64_MAX - tamanyo || !vacia_informando(*f)) return FALSO;
    const vnerror_fichero e =
        con_paciencia(UNA_VEZ, [&] { return operaciones().bloquea(f->id, inicio, tamanyo, modo); });
    if (e != VN_FICH_BIEN) return FALSO;
    // Bytes that were read ahead may have changed before the zone was locked.
    situa(*f, posicion(*f));
    return CIERTO;
}

vnbool lc_desbloquea_zona_fichero(vnfichero *f, int64_t inicio, uint32_t tamanyo) {
    if (!AFIRMA_NO_NULO(f) || !AFIRMA(inicio >= 0) || !AFIRMA(tamanyo > 0)) return FALSO;
    if (inicio > INT64_MAX - tamanyo) return FALSO;
    // The zone is given back even if what was to be in it could not be written.
    const bool escrito = vacia(*f);
    const bool libre = operaciones().desbloquea(f->id, inicio, tamanyo) == VN_FICH_BIEN;
    if (!escrito) informa_escritura(*f, VN_AQUI);
    return logico(escrito && libre);
}
