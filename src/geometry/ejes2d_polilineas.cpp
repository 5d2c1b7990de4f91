#define VN_MODULO "ejes2d (NUCLEOS.DLL)"
// Whole polylines from global to local and back.
#include "geometry/ejes2d_polilineas.h"
#include "foundation/listas/arr_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "geometry/ejes2d_priv.h"
#include <algorithm>
#include <cmath>
#include <span>

using namespace vn;

namespace {

template <class T> struct familia;
template <> struct familia<Punto2D> {
    using array = arrPunto2D;
    static constexpr auto crea = arr_CreaPunto2D;
    using propio = dueno<arr_DestruyePunto2D>;
    static constexpr auto bloque = arr_GetBufferPunto2D;
};
template <> struct familia<Punto3D> {
    using array = arrPunto3D;
    static constexpr auto crea = arr_CreaPunto3D;
    using propio = dueno<arr_DestruyePunto3D>;
    static constexpr auto bloque = arr_GetBufferPunto3D;
};

// New array with what `f` makes of each point.
template <class T, class Origen, class F> typename familia<T>::array *nueva(std::span<const Origen> puntos, F &&f) {
    // Owned meanwhile: what is done to a point may report.
    typename familia<T>::propio a(familia<T>::crea(static_cast<uint32_t>(puntos.size())));
    if (a == nullptr) return nullptr;
    T *destino = familia<T>::bloque(a.get());
    for (const Origen &p : puntos) *destino++ = f(p);
    return a.release();
}

// The same for points that stay in their array.
template <class F> void en_su_sitio(arrPunto3D *polilinea, F &&f) {
    for (Punto3D &p : listas::tramo(polilinea)) p = f(p);
}

// The normal is found, and checked, once for all points; a frame that is not orthonormal is reported once.
auto local_a_global(const marco &m) {
    return [m, w = normal_de(m)](Punto3D p) { return m.a_global(p, w); };
}
// The third coordinate is along the product as it comes, as in the coordinates of one point.
auto global_a_local(const marco &m) {
    return [m, w = numeros::vectorial(m.u, m.v)](Punto3D p) { return m.vector_a_local(p - m.o, w); };
}

} // namespace

arrPunto3D *ejes2d_polilinea2D_a_3D(VN_EJES, const arrPunto2D *polilinea) {
    if (!AFIRMA_NO_NULO(polilinea)) return nullptr;
    return nueva<Punto3D>(listas::tramo(polilinea), [m = MARCO](Punto2D p) { return m.a_global(p); });
}

arrPunto2D *ejes2d_polilinea3D_a_2D(VN_EJES, const arrPunto3D *polilinea, double precision) {
    if (!AFIRMA_NO_NULO(polilinea)) return nullptr;
    return nueva<Punto2D>(listas::tramo(polilinea), [m = MARCO, w = normal_de(MARCO), precision](Punto3D p) {
        return a_local_en_plano(m, w, p, precision);
    });
}

arrPunto2D *ejes2d_polilinea3D_proyectada_a_2D(VN_EJES, const arrPunto3D *polilinea) {
    if (!AFIRMA_NO_NULO(polilinea)) return nullptr;
    return nueva<Punto2D>(listas::tramo(polilinea), [m = MARCO](Punto3D p) { return m.a_local(p); });
}

void ejes2d_transforma_polilinea3D(VN_EJES, arrPunto3D *polilinea) {
    if (AFIRMA_NO_NULO(polilinea)) en_su_sitio(polilinea, local_a_global(MARCO));
}

arrPunto3D *ejes2d_polilinea3D_transformada(VN_EJES, const arrPunto3D *polilinea) {
    return AFIRMA_NO_NULO(polilinea) ? nueva<Punto3D>(listas::tramo(polilinea), local_a_global(MARCO)) : nullptr;
}

void ejes2d_polilinea3D_transforma_a_locales(VN_EJES, arrPunto3D *polilinea) {
    if (AFIRMA_NO_NULO(polilinea)) en_su_sitio(polilinea, global_a_local(MARCO));
}

arrPunto3D *ejes2d_polilinea3D_transformada_a_locales(VN_EJES, const arrPunto3D *polilinea) {
    return AFIRMA_NO_NULO(polilinea) ? nueva<Punto3D>(listas::tramo(polilinea), global_a_local(MARCO)) : nullptr;
}

arrPunto2D *ejes2d_crea_puntos2d_cambiado_a_sistema_coordenadas_destino(const arrPunto2D *puntos, VN_EJES_DE(_origen),
                                                                        VN_EJES_DE(_destino), double precision,
                                                                        vnbool *fuera_de_precision) {
    if (fuera_de_precision != nullptr) *fuera_de_precision = FALSO;
    if (!AFIRMA_NO_NULO(puntos)) return nullptr;
    const marco origen = MARCO_DE(_origen), destino = MARCO_DE(_destino);
    const Punto3D w = normal_de(destino);
    // Seen from behind, a contour runs the other way round.
    const bool mismo_sentido = numeros::escalar(normal_de(origen), w) > MARGEN_MISMA_ORIENTACION;
    arrPunto2D *resultado = nueva<Punto2D>(listas::tramo(puntos), [&](Punto2D p) {
        const Punto3D d = origen.a_global(p) - destino.o;
        if (fuera_de_precision != nullptr && !(std::fabs(numeros::escalar(d, w)) < precision))
            *fuera_de_precision = CIERTO;
        return destino.vector_a_local(d);
    });
    if (resultado != nullptr && !mismo_sentido) std::ranges::reverse(listas::tramo(resultado));
    return resultado;
}
