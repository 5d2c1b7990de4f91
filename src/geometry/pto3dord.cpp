#define VN_MODULO "pto3dord (NUCLEOS.DLL)"
#include "geometry/pto3dord.h"
#include "foundation/listas/apunorde.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/propio_int.h"

struct pto3dord {
    apunorde *puntos;
};

namespace {

// The grid that every coordinate is brought to before it is stored or looked for, in metres.
constexpr double PASO = 1e-5;
// Coordinates that differ by no more are one in the order: less than the grid, so that the order is one.
constexpr double MISMA_COORDENADA = 1e-6;

int compara(const Punto3D *p, const Punto3D *q, void *) {
    const int x = vornmath_compara_doubles(p->x, q->x, MISMA_COORDENADA);
    if (x != 0) return x;
    const int y = vornmath_compara_doubles(p->y, q->y, MISMA_COORDENADA);
    return y != 0 ? y : vornmath_compara_doubles(p->z, q->z, MISMA_COORDENADA);
}

void destruye(Punto3D **p) { vornspy_free_pp(p, sizeof(Punto3D)); }

Punto3D en_la_rejilla(double x, double y, double z) {
    return {prec_redondea_decimales(x, PASO), prec_redondea_decimales(y, PASO), prec_redondea_decimales(z, PASO)};
}

} // namespace

pto3dord *pto3dord_crea_vacio(void) {
    vn::propio<pto3dord> nuevo(static_cast<pto3dord *>(vornspy_malloc(sizeof(pto3dord))));
    nuevo->puntos = apunorde_crea(Punto3D, void, compara, nullptr, destruye);
    return nuevo.release();
}

void pto3dord_destruye(pto3dord **puntos_ordenados) {
    if (!EXIGE(puntos_ordenados, *puntos_ordenados)) return;
    apunorde_destruye(&(*puntos_ordenados)->puntos, Punto3D);
    vornspy_free_pp(puntos_ordenados, sizeof(pto3dord));
}

void pto3dord_append_punto_si_no_esta_repetido(pto3dord *puntos_ordenados, double x, double y, double z) {
    if (!AFIRMA_NO_NULO(puntos_ordenados)) return;
    const Punto3D punto = en_la_rejilla(x, y, z);
    // Asked for before it is made: most points of a mesh are repeated.
    if (apunorde_existe_elemento(puntos_ordenados->puntos, &punto, Punto3D, nullptr) == CIERTO) return;
    auto *nuevo = static_cast<Punto3D *>(vornspy_malloc(sizeof(Punto3D)));
    *nuevo = punto;
    apunorde_inserta_original(puntos_ordenados->puntos, nuevo, Punto3D, nullptr);
}

uint32_t pto3dord_ind_punto(const pto3dord *puntos_ordenados, double x, double y, double z) {
    if (!AFIRMA_NO_NULO(puntos_ordenados)) return 0;
    // By the grid that it was stored with: a point is looked for where its cell is, not where it lies itself.
    const Punto3D punto = en_la_rejilla(x, y, z);
    uint32_t indice = 0;
    const vnbool existe = apunorde_existe_elemento(puntos_ordenados->puntos, &punto, Punto3D, &indice);
    return AFIRMA(existe == CIERTO) ? indice : 0;
}

arrPunto3D *pto3dord_puntos(const pto3dord *puntos_ordenados) {
    if (!AFIRMA_NO_NULO(puntos_ordenados)) return nullptr;
    const uint32_t n = apunorde_numelems(puntos_ordenados->puntos, Punto3D);
    arrPunto3D *puntos = arr_CreaPunto3D(n);
    if (puntos == nullptr) return nullptr;
    Punto3D *p = arr_GetBufferPunto3D(puntos);
    for (uint32_t i = 0; i < n; ++i) p[i] = *apunorde_get(puntos_ordenados->puntos, i, Punto3D);
    return puntos;
}
