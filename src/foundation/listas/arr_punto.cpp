#define VN_MODULO "arr (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/arr_punto.h"
#include "foundation/listas/arreglo_int.h"
#include "foundation/suelo/logico_int.h"
#include <cmath>

// The operations that the families of points share, one expansion a family; arr_punto.h spells their names.
#define COMUN(S)                                                                                                       \
    struct arr##S : vn::listas::arreglo<S> {};                                                                         \
    arr##S *arr_Crea##S(uint32_t n) { return vn::listas::crea<arr##S>(n); }                                            \
    uint32_t arr_NumElems##S(const arr##S *a) { return vn::listas::numelems(a); }                                      \
    const S *arr_GetBufferConst##S(const arr##S *a) { return vn::listas::bloque_de(a); }
#define DE_PUNTOS(S)                                                                                                   \
    void arr_Destruye##S(arr##S **a) { vn::listas::toma(a); }                                                          \
    arr##S *arr_Copia##S(const arr##S *a) { return vn::listas::copia(a); }                                             \
    void arr_Borrar##S(arr##S *a, uint32_t i) { vn::listas::borra(a, i); }                                             \
    void arr_Concatena##S(arr##S *a, const arr##S *b) { vn::listas::concatena(a, b); }                                 \
    S *arr_GetBuffer##S(arr##S *a) { return vn::listas::bloque_de(a); }

COMUN(Punto2D)
COMUN(Punto3D)
COMUN(Punto2DXPriv)
DE_PUNTOS(Punto2D)
DE_PUNTOS(Punto3D)

namespace {

bool cerca(double a, double b, double tolerancia) { return std::fabs(a - b) <= tolerancia; }

} // namespace

void arr_DestruyePunto2DXPriv(arrPunto2DXPriv **a, vnfunc_destruye destructor) {
    const auto propio = vn::listas::toma(a);
    // Without a destructor, what the points lead to stays the host's.
    if (propio == nullptr || destructor == nullptr) return;
    for (uint32_t i = 0; i < propio->num; ++i)
        if (propio->datos[i].priv != nullptr) destructor(&propio->datos[i].priv);
}

void arr_GetPunto2D(const arrPunto2D *a, uint32_t i, double *x, double *y) {
    const Punto2D p = vn::listas::elemento(a, i);
    if (!EXIGE(x, y)) return;
    *x = p.x;
    *y = p.y;
}

void arr_GetPunto3D(const arrPunto3D *a, uint32_t i, double *x, double *y, double *z) {
    const Punto3D p = vn::listas::elemento(a, i);
    if (!EXIGE(x, y, z)) return;
    *x = p.x;
    *y = p.y;
    *z = p.z;
}

void arr_GetPunto2DXPriv(const arrPunto2DXPriv *a, uint32_t i, double *x, double *y, void **priv) {
    const Punto2DXPriv p = vn::listas::elemento(a, i);
    if (!EXIGE(x, y)) return;
    *x = p.x;
    *y = p.y;
    if (priv != nullptr) *priv = p.priv;
}

void arr_SetPunto2D(arrPunto2D *a, uint32_t i, double x, double y) { vn::listas::pon(a, i, {x, y}); }

void arr_SetPunto3D(arrPunto3D *a, uint32_t i, double x, double y, double z) { vn::listas::pon(a, i, {x, y, z}); }

void arr_SetPunto2DXPriv(arrPunto2DXPriv *a, uint32_t i, double x, double y, void *priv) {
    vn::listas::pon(a, i, {x, y, priv});
}

void arr_AppendPunto2D(arrPunto2D *a, double x, double y) { vn::listas::anade(a, {x, y}); }

void arr_AppendPunto3D(arrPunto3D *a, double x, double y, double z) { vn::listas::anade(a, {x, y, z}); }

void arr_AppendPunto2DXPriv(arrPunto2DXPriv *a, double x, double y, void *priv) { vn::listas::anade(a, {x, y, priv}); }

void arr_InvertirPunto3D(arrPunto3D *a) {
    if (AFIRMA_NO_NULO(a)) std::reverse(a->datos, a->datos + a->num);
}

vnbool arr_SonIgualesPunto3DConTolerancia(const arrPunto3D *a, const arrPunto3D *b, double tolerancia) {
    if (!EXIGE(a, b) || a->num != b->num) return FALSO;
    const bool todos =
        std::equal(a->datos, a->datos + a->num, b->datos, [tolerancia](const Punto3D &p, const Punto3D &q) {
            return cerca(p.x, q.x, tolerancia) && cerca(p.y, q.y, tolerancia) && cerca(p.z, q.z, tolerancia);
        });
    return vn::logico(todos);
}

vnbool arr_ExistePunto2D(const arrPunto2D *a, double x, double y, double tolerancia, uint32_t *pos) {
    if (!AFIRMA_NO_NULO(a)) return FALSO;
    return vn::listas::existe(a, pos, 0,
                              [=](const Punto2D &p) { return cerca(p.x, x, tolerancia) && cerca(p.y, y, tolerancia); });
}
