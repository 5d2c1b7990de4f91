#define VN_MODULO "vornmesh (NUCLEOS.DLL)"
#include "mesh/vornmesh_genera.h"
#include "mesh/vornmesh_monta_priv.h"

// Plane faces of contours, loose triangles.
using namespace vn;

namespace {

// The normal of the first contour, upwards if there is none.
Punto3D normal_del_primero(const arrPuntero *contornos) {
    const uint32_t num = arr_NumElemsPuntero(contornos);
    if (!AFIRMA(num > 0)) return HACIA_ARRIBA;
    const auto *primero = arr_GetPunteroST(contornos, 0, const arrPunto3D);
    return primero != nullptr ? normal_de_contorno(primero) : HACIA_ARRIBA;
}

mesh *compacta(const contornos_t &c, bool con_texturas, bool invertidas = false) {
    malla_compacta malla;
    malla.contornos(c, true, invertidas);
    return malla.termina(con_texturas).release();
}

mesh *con_normal(const arrPuntero *contornos, Punto3D normal, bool invertidas) {
    if (!AFIRMA_NO_NULO(contornos)) return nullptr;
    contornos_t c;
    c.anade(contornos, normal);
    return compacta(c, false, invertidas);
}

} // namespace

mesh *vornmesh_genera_contorno(const arrPuntero *contornos) {
    if (!AFIRMA_NO_NULO(contornos)) return nullptr;
    return con_normal(contornos, normal_del_primero(contornos), false);
}

mesh *vornmesh_genera_contorno_con_normal(const arrPuntero *contornos, double Nx, double Ny, double Nz) {
    return con_normal(contornos, {Nx, Ny, Nz}, false);
}

mesh *vornmesh_genera_contorno_invertido_con_normal(const arrPuntero *contornos, double Nx, double Ny, double Nz) {
    return con_normal(contornos, {Nx, Ny, Nz}, true);
}

mesh *vornmesh_genera_contorno_ex(const arrPuntero *contornos, const arrPuntero *normales_vertices_contornos_opc,
                                  const arrPuntero *coord_texturas_opc) {
    if (!AFIRMA_NO_NULO(contornos)) return nullptr;
    const Punto3D comun = normales_vertices_contornos_opc == nullptr ? normal_del_primero(contornos) : Punto3D{};
    contornos_t c;
    c.anade(contornos, comun, normales_vertices_contornos_opc, coord_texturas_opc);
    return compacta(c, true);
}

mesh *vornmesh_genera_contorno_con_coords_textura(const arrPuntero *contornos, const arrPuntero *coord_texturas,
                                                  double Nx, double Ny, double Nz) {
    if (!EXIGE(contornos, coord_texturas)) return nullptr;
    contornos_t c;
    c.anade(contornos, {Nx, Ny, Nz}, nullptr, coord_texturas);
    return compacta(c, true);
}

mesh *vornmesh_genera_contorno_con_normal_sin_compactar_vertices(const arrPuntero *contornos, double Nx, double Ny,
                                                                 double Nz) {
    if (!AFIRMA_NO_NULO(contornos)) return nullptr;
    contornos_t c;
    c.anade(contornos, {Nx, Ny, Nz});
    malla_suelta malla;
    malla.contornos(c);
    return malla.termina().release();
}

mesh *vornmesh_genera_a_partir_de_vertices_triangulos(const arrPunto3D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return nullptr;
    const auto p = puntos_de(puntos);
    const size_t num_vertices = p.size();
    AFIRMA(num_vertices % 3 == 0);
    malla_suelta malla;
    malla.reserva(num_vertices);
    for (size_t i = 0; i + 2 < num_vertices; i += 3) {
        const Punto3D n = normal_plana(p[i], p[i + 1], p[i + 2]);
        const uint32_t a = malla.vertice({p[i], n});
        malla.vertice({p[i + 1], n});
        malla.vertice({p[i + 2], n});
        malla.caras.triangulo(a, a + 1, a + 2);
    }
    return malla.termina().release();
}
