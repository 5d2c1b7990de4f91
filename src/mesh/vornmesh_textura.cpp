#define VN_MODULO "vornmesh (NUCLEOS.DLL)"
#include "mesh/vornmesh_textura.h"
#include "geometry/ejes2d_construye.h"
#include "mesh/vornmesh_int.h"

using namespace vn;

arrPunto3D *vornmesh_genera_vectores_tangentes(const arrPunto3D *normales) {
    if (!AFIRMA_NO_NULO(normales)) return nullptr;
    puntos3D_propios tangentes(arr_CopiaPunto3D(normales));
    for (Punto3D &p : listas::tramo(tangentes.get())) {
        const Punto3D n = p;
        ejes2d_ejes_horizontales_a_partir_de_normal_del_plano(n.x, n.y, n.z, &p.x, &p.y, &p.z, nullptr, nullptr,
                                                              nullptr);
    }
    return tangentes.release();
}
