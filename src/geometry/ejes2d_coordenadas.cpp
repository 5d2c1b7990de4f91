#define VN_MODULO "ejes2d (NUCLEOS.DLL)"
// Points, vectors and lines from global to local and back.
#include "geometry/ejes2d_coordenadas.h"
#include "foundation/listas/arr.h"
#include "foundation/numeros/afin.hpp"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/logico_int.h"
#include "geometry/ejes2d_priv.h"
#include <cmath>

using namespace vn;

#define MARCO_UV                                                                                                       \
    marco {                                                                                                            \
        {}, {Ux, Uy, Uz}, { Vx, Vy, Vz }                                                                               \
    }

namespace {

// The text of the report names the components of the normal, whatever they are called here.
void comprueba_en_plano(double x, double y, double z, Punto3D w, double precision) {
    AFIRMA_TEXTO(std::fabs(x * w.x + y * w.y + z * w.z) < precision,
                 "vnstdc_fabs(x * Wx + y * Wy + z * Wz) < precision");
}

} // namespace

Punto2D vn::a_local_en_plano(const marco &m, Punto3D w, Punto3D p, double precision) {
    const Punto3D d = p - m.o;
    comprueba_en_plano(d.x, d.y, d.z, w, precision);
    return m.vector_a_local(d);
}

// ---------------------------------------------------------------- points

void ejes2d_coordenada_2D_a_3D(VN_EJES, double x, double y, double *coord_x_3D, double *coord_y_3D,
                               double *coord_z_3D) {
    if (EXIGE(coord_x_3D, coord_y_3D)) numeros::da(coord_x_3D, coord_y_3D, coord_z_3D, MARCO.a_global(Punto2D{x, y}));
}

void ejes2d_coordenada_2D_a_3D_punto_poligono(VN_EJES, const arrPunto2D *puntos, uint32_t indice, double *coord_x_3D,
                                              double *coord_y_3D, double *coord_z_3D) {
    if (!EXIGE(puntos, coord_x_3D, coord_y_3D)) return;
    // A bad index gives zeros and not what the outputs had, which may be nothing.
    const bool hay = AFIRMA_TEXTO(indice < arr_NumElemsPunto2D(puntos), "indice < num_puntos");
    numeros::da(coord_x_3D, coord_y_3D, coord_z_3D,
                hay ? MARCO.a_global(arr_GetBufferConstPunto2D(puntos)[indice]) : Punto3D{});
}

void ejes2d_coordenadas_3D_a_2D(VN_EJES, double x, double y, double z, double precision, double *coord_x_2D,
                                double *coord_y_2D) {
    if (!EXIGE(coord_x_2D, coord_y_2D)) return;
    numeros::da(coord_x_2D, coord_y_2D, a_local_en_plano(MARCO, normal_de(MARCO), {x, y, z}, precision));
}

void ejes2d_coordenadas_3D_a_2D_fuera_de_precision(VN_EJES, double x, double y, double z, double precision,
                                                   double *coord_x_2D, double *coord_y_2D, vnbool *fuera_de_precision) {
    if (fuera_de_precision != nullptr) *fuera_de_precision = FALSO;
    if (!EXIGE(coord_x_2D, coord_y_2D)) return;
    const Punto3D d = Punto3D{x, y, z} - Punto3D{Xo, Yo, Zo};
    numeros::da(coord_x_2D, coord_y_2D, MARCO.vector_a_local(d));
    // Written so that what is no number is outside.
    const bool dentro = std::fabs(numeros::escalar(d, normal_de(MARCO))) < precision;
    if (fuera_de_precision != nullptr) *fuera_de_precision = logico(!dentro);
}

void ejes2d_coordenadas_3D_proyectado_a_2D(VN_EJES, double x, double y, double z, double *coord_x_2D,
                                           double *coord_y_2D) {
    if (EXIGE(coord_x_2D, coord_y_2D)) numeros::da(coord_x_2D, coord_y_2D, MARCO.a_local({x, y, z}));
}

void ejes2d_coordenadas_3D_proyectado_a_3D(VN_EJES, double x, double y, double z, double *coord_x_3D,
                                           double *coord_y_3D, double *coord_z_3D) {
    if (!EXIGE(coord_x_3D, coord_y_3D, coord_z_3D)) return;
    numeros::da(coord_x_3D, coord_y_3D, coord_z_3D, MARCO.a_global(MARCO.a_local({x, y, z})));
}

void ejes2d_coordenada_3D_local_a_global(VN_EJES, double x, double y, double z, double *coord_x_3D, double *coord_y_3D,
                                         double *coord_z_3D) {
    if (!EXIGE(coord_x_3D, coord_y_3D, coord_z_3D)) return;
    numeros::da(coord_x_3D, coord_y_3D, coord_z_3D, MARCO.a_global(Punto3D{x, y, z}, normal_de(MARCO)));
}

void ejes2d_cambio_sistema_coordenadas(VN_EJES, double x, double y, double z, double *coord_x_3D, double *coord_y_3D,
                                       double *coord_z_3D) {
    if (!EXIGE(coord_x_3D, coord_y_3D, coord_z_3D)) return;
    // The third axis is the product as it comes: a frame that is not orthonormal gives its own figures, unreported.
    const marco m = MARCO;
    numeros::da(coord_x_3D, coord_y_3D, coord_z_3D,
                m.vector_a_local(Punto3D{x, y, z} - m.o, numeros::vectorial(m.u, m.v)));
}

void ejes2d_transforma_de_3D_a_2D_pantalla(VN_EJES, double x, double y, double z, double *coord_x_2D,
                                           double *coord_y_2D) {
    // The screen has no depth; the parameter is there for the signature of a whole frame.
    static_cast<void>(Zo);
    if (!EXIGE(coord_x_2D, coord_y_2D)) return;
    const Punto2D p = MARCO_UV.vector_a_local({x, y, z});
    numeros::da(coord_x_2D, coord_y_2D, {p.x + Xo, p.y + Yo});
}

void ejes2d_coordenada_2D_a_3D_pantalla(VN_EJES, double x, double y, double *coord_x_3D, double *coord_y_3D,
                                        double *coord_z_3D) {
    if (!EXIGE(coord_x_3D, coord_y_3D, coord_z_3D)) return;
    const Punto3D w = numeros::vectorial({Ux, Uy, Uz}, {Vx, Vy, Vz});
    // By the inverse of the matrix and not by its transpose: the frame of a screen may have scales.
    const auto directa = matriz4{{{Ux, Uy, Uz, Xo}, {Vx, Vy, Vz, Yo}, {w.x, w.y, w.z, Zo}, {0., 0., 0., 1.}}}.a_vmatr();
    if (directa == nullptr) return;
    const dueno<vmatr_destruir_matriz> inversa(vmatr_matriz_inversa(directa.get()));
    // A matrix without inverse has been reported, and gives zeros.
    Punto3D p{};
    if (inversa != nullptr) {
        const auto m = matriz4::de_vmatr(inversa.get());
        p = x * m.columna(0) + y * m.columna(1) + m.columna(3);
    }
    numeros::da(coord_x_3D, coord_y_3D, coord_z_3D, p);
}

void ejes2d_cambia_de_un_sistema_coordenadas_a_otro(VN_EJES_DE(1), VN_EJES_DE(2), double x, double y, double precision,
                                                    double *coord_x_2D, double *coord_y_2D) {
    if (!EXIGE(coord_x_2D, coord_y_2D)) return;
    const marco m = MARCO_DE(2);
    numeros::da(coord_x_2D, coord_y_2D,
                a_local_en_plano(m, normal_de(m), MARCO_DE(1).a_global(Punto2D{x, y}), precision));
}

void ejes2d_cambia_de_un_sistema_coordenadas_a_otro_proyectando(VN_EJES_DE(1), VN_EJES_DE(2), double x, double y,
                                                                double *coord_x_2D, double *coord_y_2D) {
    if (!EXIGE(coord_x_2D, coord_y_2D)) return;
    numeros::da(coord_x_2D, coord_y_2D, MARCO_DE(2).a_local(MARCO_DE(1).a_global(Punto2D{x, y})));
}

// ---------------------------------------------------------------- vectors

void ejes2d_vector_2D_a_3D(VN_EJES_UV, double vx, double vy, double *vx_3D, double *vy_3D, double *vz_3D) {
    if (EXIGE(vx_3D, vy_3D, vz_3D)) numeros::da(vx_3D, vy_3D, vz_3D, MARCO_UV.vector_a_global({vx, vy}));
}

void ejes2d_vector_3D_a_2D(VN_EJES_UV, double vx, double vy, double vz, double *vx_2D, double *vy_2D) {
    ejes2d_vector_3D_a_2D_con_precision(Ux, Uy, Uz, Vx, Vy, Vz, vx, vy, vz, PRECISION_VECTOR_EN_PLANO, vx_2D, vy_2D);
}

void ejes2d_vector_3D_a_2D_con_precision(VN_EJES_UV, double vx, double vy, double vz, double precision, double *vx_2D,
                                         double *vy_2D) {
    if (!EXIGE(vx_2D, vy_2D)) return;
    comprueba_en_plano(vx, vy, vz, normal_de(MARCO_UV), precision);
    numeros::da(vx_2D, vy_2D, MARCO_UV.vector_a_local({vx, vy, vz}));
}

void ejes2d_vector_3D_proyectado_a_2D(VN_EJES_UV, double vx, double vy, double vz, double *vx_2D, double *vy_2D) {
    if (EXIGE(vx_2D, vy_2D)) numeros::da(vx_2D, vy_2D, MARCO_UV.vector_a_local({vx, vy, vz}));
}

void ejes2d_vector_3D_proyectado_a_3D(VN_EJES_UV, double vx, double vy, double vz, double *vx_3D, double *vy_3D,
                                      double *vz_3D) {
    if (!EXIGE(vx_3D, vy_3D, vz_3D)) return;
    numeros::da(vx_3D, vy_3D, vz_3D, MARCO_UV.vector_a_global(MARCO_UV.vector_a_local({vx, vy, vz})));
}

void ejes2d_vector_3D_local_a_global(VN_EJES_UV, double vx, double vy, double vz, double *vx_3D, double *vy_3D,
                                     double *vz_3D) {
    if (!EXIGE(vx_3D, vy_3D, vz_3D)) return;
    const marco m = MARCO_UV;
    numeros::da(vx_3D, vy_3D, vz_3D, vx * m.u + vy * m.v + vz * normal_de(m));
}

void ejes2d_vector_3D_global_a_local(VN_EJES_UV, double vx, double vy, double vz, double *vx_3D, double *vy_3D,
                                     double *vz_3D) {
    if (!EXIGE(vx_3D, vy_3D, vz_3D)) return;
    numeros::da(vx_3D, vy_3D, vz_3D, MARCO_UV.vector_a_local({vx, vy, vz}, normal_de(MARCO_UV)));
}

// ---------------------------------------------------------------- lines

void ejes2d_recta_3D_a_2D(VN_EJES, double Xo_recta_3D, double Yo_recta_3D, double Zo_recta_3D, double Ux_recta_3D,
                          double Uy_recta_3D, double Uz_recta_3D, double precision, double *Xo_recta_2D,
                          double *Yo_recta_2D, double *Ux_recta_2D, double *Uy_recta_2D) {
    if (!EXIGE(Xo_recta_2D, Yo_recta_2D, Ux_recta_2D, Uy_recta_2D)) return;
    const marco m = MARCO;
    const Punto3D w = normal_de(m), u{Ux_recta_3D, Uy_recta_3D, Uz_recta_3D};
    numeros::da(Xo_recta_2D, Yo_recta_2D, a_local_en_plano(m, w, {Xo_recta_3D, Yo_recta_3D, Zo_recta_3D}, precision));
    AFIRMA_TEXTO(std::fabs(numeros::escalar(u, w)) < precision,
                 "vnstdc_fabs(Ux_recta_3D * Wx + Uy_recta_3D * Wy + Uz_recta_3D * Wz) < precision");
    numeros::da(Ux_recta_2D, Uy_recta_2D, m.vector_a_local(u));
}
