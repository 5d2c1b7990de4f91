#define VN_MODULO "operaciones_fichero (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/operaciones_fichero.h"
#include "foundation/platform/fichero.h"
#include "foundation/suelo/operaciones_fichero_int.h"
#include <memory>

namespace {

// The table in force: the platform's until a host installs another.
vnoperaciones_fichero las_actuales = vn::plat::operaciones_de_fichero;

// The entries of a table, for what is done to each.
template <typename F> void con_cada_entrada(vnoperaciones_fichero &a, const vnoperaciones_fichero &b, F f) {
    f(a.abre, b.abre);
    f(a.lee, b.lee);
    f(a.escribe, b.escribe);
    f(a.vuelca, b.vuelca);
    f(a.trunca, b.trunca);
    f(a.estado_abierto, b.estado_abierto);
    f(a.bloquea, b.bloquea);
    f(a.desbloquea, b.desbloquea);
    f(a.cierra, b.cierra);
    f(a.estado, b.estado);
    f(a.resuelve, b.resuelve);
    f(a.enlaza, b.enlaza);
    f(a.renombra, b.renombra);
    f(a.renombra_abierto, b.renombra_abierto);
    f(a.es_su_nombre, b.es_su_nombre);
    f(a.borra, b.borra);
    f(a.retira, b.retira);
    f(a.copia_permisos, b.copia_permisos);
    f(a.vuelca_directorio, b.vuelca_directorio);
    f(a.espera, b.espera);
}
static_assert(sizeof(vnoperaciones_fichero) == 20 * sizeof(void *), "an entry is missing above");

} // namespace

namespace vn::inline suelo {

const vnoperaciones_fichero &operaciones() { return las_actuales; }

vnerror_fichero escribe_todo(vnid_fichero id, int64_t posicion, const void *origen, size_t n) {
    const auto *p = static_cast<const unsigned char *>(origen);
    // A write may be partial: the rest goes in another call.
    while (n > 0) {
        size_t k = 0;
        const vnerror_fichero e = con_paciencia(UNA_VEZ, [&] { return operaciones().escribe(id, posicion, p, n, &k); });
        if (e != VN_FICH_BIEN) return e;
        // An installed table may answer anything: no progress would never end, too much would run off the block.
        if (k == 0 || k > n) return VN_FICH_ES;
        p += k;
        n -= k;
        // A position below zero is the end of the file, which moves by itself.
        if (posicion >= 0) posicion += static_cast<int64_t>(k);
    }
    return VN_FICH_BIEN;
}

vnerror_fichero lee_todo(vnid_fichero id, int64_t posicion, void *destino, size_t n, size_t *leidos) {
    auto *p = static_cast<unsigned char *>(destino);
    *leidos = 0;
    while (*leidos < n) {
        size_t k = 0;
        const vnerror_fichero e = con_paciencia(UNA_VEZ, [&] {
            return operaciones().lee(id, posicion + static_cast<int64_t>(*leidos), p + *leidos, n - *leidos, &k);
        });
        if (e != VN_FICH_BIEN) return e;
        // No bytes are the end of the file; an impossible count from an installed table ends the reading too.
        if (k == 0 || k > n - *leidos) return VN_FICH_BIEN;
        *leidos += k;
    }
    return VN_FICH_BIEN;
}

vnerror_fichero copia_contenido(const vnwchar *origen, vnid_fichero destino) {
    // Large pieces need few calls, and a bounded piece lets a file of any size through.
    constexpr size_t TROZO = 256 * 1024;
    const auto trozo = std::make_unique_for_overwrite<unsigned char[]>(TROZO);
    vnid_fichero de = VN_FICHERO_NINGUNO;
    vnerror_fichero e = con_paciencia(UN_SEGUNDO, [&] { return operaciones().abre(origen, VN_ABRE_LECTURA, &de); });
    if (e != VN_FICH_BIEN) return e;
    size_t k = TROZO;
    // A piece that is not full is the last one.
    for (int64_t posicion = 0; e == VN_FICH_BIEN && k == TROZO; posicion += static_cast<int64_t>(k)) {
        e = lee_todo(de, posicion, trozo.get(), TROZO, &k);
        if (e == VN_FICH_BIEN) e = escribe_todo(destino, posicion, trozo.get(), k);
    }
    operaciones().cierra(de);
    return e;
}

} // namespace vn::suelo

const vnoperaciones_fichero *operaciones_fichero_del_sistema(void) { return &vn::plat::operaciones_de_fichero; }
const vnoperaciones_fichero *operaciones_fichero_actuales(void) { return &las_actuales; }

void operaciones_fichero_instala(const vnoperaciones_fichero *tabla) {
    // Entries that the host leaves null stay the system's.
    vnoperaciones_fichero nueva = vn::plat::operaciones_de_fichero;
    if (tabla != nullptr)
        con_cada_entrada(nueva, *tabla, [](auto &mia, auto suya) {
            if (suya != nullptr) mia = suya;
        });
    las_actuales = nueva;
}
