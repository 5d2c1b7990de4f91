#define VN_MODULO "polin3d (NUCLEOS.DLL)"
// One section of a bent polyline, into every result that is asked for.
#include "foundation/suelo/afirma_int.h"
#include "geometry/ejes2d.h"
#include "geometry/polin3d.h"
#include "geometry/polin3d_priv.h"

namespace vn {
namespace {

// Adds the element that `crea` makes. Its place in the array comes first, so that it always has an owner.
template <class F> void anade(arrPuntero *a, F &&crea) {
    arr_AppendPunteroConTipo(a, nullptr);
    arr_SetPunteroConTipo(a, arr_NumElemsPuntero(a) - 1, crea());
}

} // namespace

void emite_seccion(Punto3D origen, Punto3D u, Punto3D v, bool V_vertical, double diametro, uint16_t num_puntos_circulo,
                   const salidas_seccion &salidas, Punto3D *Xo_ult_cir) {
    if (!AFIRMA_NO_NULO(Xo_ult_cir)) return;
    *Xo_ult_cir = origen;
    if (V_vertical) {
        const Punto3D w = numeros::vectorial(u, v);
        ejes2d_ejes_con_V_vertical_usando_referencia_ecuacion_plano(w.x, w.y, w.z, &u.x, &u.y, &u.z, &v.x, &v.y, &v.z);
    }
    if (salidas.contornos != nullptr)
        anade(salidas.contornos, [&] {
            return Pln3D_puntos_circulo(origen.x, origen.y, origen.z, u.x, u.y, u.z, v.x, v.y, v.z, diametro,
                                        num_puntos_circulo);
        });
    if (salidas.centros != nullptr) arr_AppendPunto3D(salidas.centros, origen.x, origen.y, origen.z);
    if (salidas.ejes != nullptr)
        anade(salidas.ejes, [&] { return ejes2d_crea(origen.x, origen.y, origen.z, u.x, u.y, u.z, v.x, v.y, v.z); });
}

} // namespace vn
