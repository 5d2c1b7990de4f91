#define VN_MODULO "fichmem (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/fichmem.h"
#include "foundation/ficheros/guardado_priv.h"
#include "foundation/ficheros/lc_fichero_int.h"
#include "foundation/ficheros/temporal_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/vornspy.h"
#include <algorithm>
#include <cstring>
#include <utility>

namespace {

using propio = vn::dueno<fichmem_destruye>;

propio vacio() {
    propio m(static_cast<fichmem *>(vornspy_malloc(sizeof(fichmem))));
    *m = {};
    return m;
}

// The length is kept in 32 bits; the room has one byte more, by which the end is met.
constexpr size_t PRIMER_SITIO = 64 * 1024, SITIO_MAXIMO = size_t{UINT32_MAX} + 1;

// Room for so many bytes, the first `n` of which are there; false if there is none.
bool crece(fichmem &m, size_t sitio, size_t n) {
    auto *mas = static_cast<unsigned char *>(vornspy_reserva_seguro(sitio, 1, FALSO, VN_AQUI));
    if (mas == nullptr) return false;
    if (m.datos != nullptr) {
        std::memcpy(mas, m.datos, n);
        vornspy_free_pp(&m.datos, 1);
    }
    m.datos = mas;
    return true;
}

// A pipe has no size, and some files of the system say 0: the size that is told is where reading begins, not where it
// ends. One byte more than it meets the end.
bool lee_hasta_el_final(fichmem &m, vnfichero *f) {
    size_t n = 0, sitio = static_cast<size_t>(lc_bytes_restantes(f)) + 1;
    while (sitio <= SITIO_MAXIMO && crece(m, sitio, n)) {
        n += f_lc_fread_sin_error(m.datos + n, 1, sitio - n, f);
        if (n < sitio) {
            m.longitud = static_cast<uint32_t>(n);
            return f_lc_ferror(f) == FALSO;
        }
        if (sitio == SITIO_MAXIMO) break;
        // Doubled, so that the copies stay in proportion to what is read.
        sitio = std::max(std::min(2 * sitio, SITIO_MAXIMO), PRIMER_SITIO);
    }
    return false;
}

} // namespace

fichmem *fichmem_crea32(const void *datos, uint32_t longitud) {
    // Bytes that are not there make an empty file, which the caller can go on with.
    if (!AFIRMA(datos != nullptr || longitud == 0)) longitud = 0;
    propio m = vacio();
    if (longitud == 0) return m.release();
    m->datos = static_cast<unsigned char *>(vornspy_malloc(longitud));
    m->longitud = longitud;
    std::memcpy(m->datos, datos, longitud);
    return m.release();
}

fichmem *fichmem_crea_original32(unsigned char **datos, uint32_t longitud) {
    if (!AFIRMA_NO_NULO(datos)) return nullptr;
    if (!AFIRMA(*datos != nullptr || longitud == 0)) longitud = 0;
    propio m = vacio();
    // The caller's pointer is emptied, so that the bytes have one owner.
    m->datos = std::exchange(*datos, nullptr);
    m->longitud = longitud;
    return m.release();
}

fichmem *fichmem_crea_desde_cadena(const char *texto) {
    if (!AFIRMA_NO_NULO(texto)) return nullptr;
    const size_t n = std::strlen(texto);
    if (!AFIRMA(n <= UINT32_MAX)) return nullptr;
    return fichmem_crea32(texto, static_cast<uint32_t>(n));
}

fichmem *fichmem_copia(const fichmem *m) { return AFIRMA_NO_NULO(m) ? fichmem_crea32(m->datos, m->longitud) : nullptr; }

char *fichmem_copia_contenido_como_cadena(const fichmem *m) {
    if (!AFIRMA_NO_NULO(m)) return nullptr;
    // The text ends at the first zero, if there is one.
    const void *fin = m->longitud == 0 ? nullptr : std::memchr(m->datos, 0, m->longitud);
    const size_t n =
        fin == nullptr ? m->longitud : static_cast<size_t>(static_cast<const unsigned char *>(fin) - m->datos);
    auto *texto = static_cast<char *>(vornspy_malloc(n + 1));
    if (n > 0) std::memcpy(texto, m->datos, n);
    texto[n] = '\0';
    return texto;
}

void fichmem_destruye(fichmem **m) {
    if (!EXIGE(m, *m)) return;
    if ((*m)->datos != nullptr) vornspy_free_pp(&(*m)->datos, 1);
    vornspy_free_pp(m, sizeof(fichmem));
}

vnbool fichmem_graba_unicode(const fichmem *m, const vnwchar *nombre) {
    if (!EXIGE(m, nombre)) return FALSO;
    vn::ficheros::temporal f(
        vornfile_abrir_fichero_escritura_con_temporal_u(nombre, vn::ficheros::SUFIJO_TEMPORAL, FALSO));
    if (f == nullptr) return FALSO;
    f_lc_fwrite(m->datos, 1, m->longitud, f.get(), VN_AQUI);
    return vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f.release(), nombre);
}

fichmem *fichmem_lee_unicode(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    vn::ficheros::flujo_abierto f(f_lc_fopen_u(nombre, VNU("rb"), VN_AQUI));
    if (f == nullptr) return nullptr;
    propio m = vacio();
    if (!lee_hasta_el_final(*m, f.get())) {
        lc_error_leyendo_fichero(f.get());
        return nullptr;
    }
    // An empty file has no block.
    if (m->longitud == 0) vornspy_free_pp(&m->datos, 1);
    return m.release();
}
