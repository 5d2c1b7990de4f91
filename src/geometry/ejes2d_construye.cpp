#define VN_MODULO "ejes2d (NUCLEOS.DLL)"
// Axes out of points, vectors and angles; the equation of their plane.
#include "geometry/ejes2d_construye.h"
#include "foundation/numeros/mt.h"
#include "foundation/suelo/afirma_int.h"
#include "geometry/ejes2d_priv.h"
#include "geometry/ejes2d_puntos.h"
#include <cmath>

using namespace vn;

namespace {

// A plane by its unit normal: what is left of its equation at a point is the distance.
struct ecuacion {
    Punto3D n;
    double d;

    double distancia(Punto3D p) const { return n.x * p.x + n.y * p.y + n.z * p.z + d; }
};

ecuacion ecuacion_de(const marco &m) {
    const Punto3D w = normal_de(m);
    return {w, -numeros::escalar(w, m.o)};
}

void da(double *A, double *B, double *C, double *D, const ecuacion &e) {
    vn::numeros::da(A, B, C, e.n);
    if (D != nullptr) *D = e.d;
}

// Where no axes follow, the global ones at the first point.
marco marco_de_tres_puntos(Punto3D p1, Punto3D p2, Punto3D p3) {
    marco m;
    m.o = p1;
    mt_calcular_ejes_3D_dados_3_puntos(p1.x, p1.y, p1.z, p2.x, p2.y, p2.z, p3.x, p3.y, p3.z, &m.u.x, &m.u.y, &m.u.z,
                                       &m.v.x, &m.v.y, &m.v.z, nullptr, nullptr, nullptr);
    return m;
}

// The horizontal vector square to `w`, as drawing exchange chooses the x axis of a plane from its normal
// (arbitrary-axis rule), with this module's own tolerance.
Punto3D horizontal_de(Punto3D w) {
    if (std::fabs(w.x) < PRECISION_VERTICAL && std::fabs(w.y) < PRECISION_VERTICAL)
        return {w.z > 0. ? 1. : -1., 0., 0.};
    Punto3D u{-w.y, w.x, 0.};
    mt_pasar_a_unitario_2D(&u.x, &u.y);
    return u;
}

// A direction in degrees brought between 0 and a turn; one of at most half a turn either way, so a step is enough.
double angulo_de_giro(double radianes) {
    double g = -radianes * 180.0 / numeros::PI;
    while (g < -MARGEN_ANGULO_NEGATIVO) g += 360.;
    while (g > ANGULO_MAXIMO) g -= 360.;
    return g;
}

} // namespace

// ---------------------------------------------------------------- out of points

void ejes2d_ejes_con_dos_puntos(double x1, double y1, double z1, double x2, double y2, double z2,
                                VN_EJES_ORIGEN_SALIDA_OPC, VN_EJES_UV_SALIDA) {
    if (!EXIGE(Ux, Uy, Uz, Vx, Vy, Vz)) return;
    marco m{{x1, y1, z1}, {}, {}};
    // Two points that are one have no direction; the global x axis serves.
    if (mt_vector_director_de_dos_puntos_3D(x1, y1, z1, x2, y2, z2, &m.u.x, &m.u.y, &m.u.z) != CIERTO)
        m.u = {1., 0., 0.};
    mt_calcular_ejes_segun_vector_x_local(m.u.x, m.u.y, m.u.z, &m.v.x, &m.v.y, &m.v.z, nullptr, nullptr, nullptr);
    A_SALIDAS(m);
}

void ejes2d_ejes_con_tres_puntos(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                                 double z3, VN_EJES_SALIDA_OPC) {
    A_SALIDAS(marco_de_tres_puntos({x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3}));
}

void ejes2d_ejes_de_una_cara(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                             double z3, double x4, double y4, double z4, VN_EJES_SALIDA_OPC) {
    const Punto3D p1{x1, y1, z1}, p2{x2, y2, z2}, p3{x3, y3, z3}, p4{x4, y4, z4};
    // The corners beside the first one tell the axes; the opposite one is only checked.
    marco m = marco_de_tres_puntos(p1, p2, p4);
    const double prod_escalar_pto_esta_en_plano = numeros::escalar(p3 - p1, numeros::vectorial(m.u, m.v));
    AFIRMA_TEXTO(std::fabs(prod_escalar_pto_esta_en_plano) < i_PRECISION_PUNTO_PERTENECE_PLANO,
                 "vnstdc_fabs(prod_escalar_pto_esta_en_plano) < i_PRECISION_PUNTO_PERTENECE_PLANO");
    m.o = (p1 + p2 + p3 + p4) / 4.;
    A_SALIDAS(m);
}

// ---------------------------------------------------------------- out of a plane or a vector

void ejes2d_ejes_con_V_vertical_usando_referencia_ecuacion_plano(double A, double B, double C, VN_EJES_UV_SALIDA) {
    if (!EXIGE(Ux, Uy, Uz, Vx, Vy, Vz)) return;
    const Punto3D v{0., 0., 1.};
    // A horizontal plane has no such U: it is reported, and gives its zeros.
    Punto3D u = numeros::vectorial(v, {A, B, C});
    const vnbool es_plano_vertical = mt_pasar_a_unitario_3D(&u.x, &u.y, &u.z);
    AFIRMA(es_plano_vertical == CIERTO);
    vn::numeros::da(Ux, Uy, Uz, u);
    vn::numeros::da(Vx, Vy, Vz, v);
}

void ejes2d_ejes_para_proyectar_en_vertical_sobre_plano_ABCD(double A, double B, double C, double D,
                                                             VN_EJES_SALIDA_OPC) {
    const Punto3D n{A, B, C};
    comprueba_unitario(n);
    // The foot of the global origin, and V for a plane that stands upright.
    marco m{-D * n, {}, {0., 0., 1.}};
    // The vertical over (1, 0) meets the parallel plane through the origin at the direction that looks like x from
    // above.
    if (mt_existe_interseccion_recta_con_plano(1., 0., 0., 0., 0., 1., A, B, C, 0., &m.u.x, &m.u.y, &m.u.z) == CIERTO) {
        mt_pasar_a_unitario_3D(&m.u.x, &m.u.y, &m.u.z);
        m.v = numeros::vectorial(n, m.u);
    } else {
        m.u = numeros::vectorial(m.v, n);
    }
    A_SALIDAS(m);
}

void ejes2d_ejes_horizontales_dado_Ux_Uy(double x, double y, VN_EJES_UV_SALIDA) {
    if (!EXIGE(Ux, Uy, Uz, Vx, Vy, Vz)) return;
    vn::numeros::da(Ux, Uy, Uz, {x, y, 0.});
    vn::numeros::da(Vx, Vy, Vz, {-y, x, 0.});
}

void ejes2d_ejes_horizontales_dado_angulo_rad(double angulo_rad, VN_EJES_UV_SALIDA) {
    ejes2d_ejes_horizontales_dado_Ux_Uy(std::cos(angulo_rad), std::sin(angulo_rad), Ux, Uy, Uz, Vx, Vy, Vz);
}

void ejes2d_ejes_horizontales_a_partir_de_normal_del_plano(double Wx, double Wy, double Wz, VN_EJES_UV_SALIDA_OPC) {
    const Punto3D w{Wx, Wy, Wz};
    comprueba_unitario(w);
    const Punto3D u = horizontal_de(w);
    vn::numeros::da(Ux, Uy, Uz, u);
    vn::numeros::da(Vx, Vy, Vz, numeros::vectorial(w, u));
}

void ejes2d_ejes_horizontales_a_partir_de_ecuacion_del_plano(double A, double B, double C, double D,
                                                             VN_EJES_SALIDA_OPC) {
    ejes2d_ejes_horizontales_a_partir_de_normal_del_plano(A, B, C, Ux, Uy, Uz, Vx, Vy, Vz);
    vn::numeros::da(Xo, Yo, Zo, -D * Punto3D{A, B, C});
}

void ejes2d_eje_V_horizontal_a_partir_del_vector_U(double Ux, double Uy, double Uz, double *Vx, double *Vy,
                                                   double *Vz) {
    vn::numeros::da(Vx, Vy, Vz, horizontal_de({Ux, Uy, Uz}));
}

// ---------------------------------------------------------------- angles of turn

void ejes2d_ejes_de_angulos_giro_3d(double giro_x, double giro_y, double giro_z, VN_EJES_UV_SALIDA) {
    if (!EXIGE(Ux, Uy, Uz, Vx, Vy, Vz)) return;
    const double x = -giro_x * numeros::PI / 180.0, y = -giro_y * numeros::PI / 180.0,
                 z = -giro_z * numeros::PI / 180.0;
    const double cx = std::cos(x), sx = std::sin(x), cy = std::cos(y), sy = std::sin(y), cz = std::cos(z),
                 sz = std::sin(z);
    // The first two rows of X (Y Z), multiplied out.
    vn::numeros::da(Ux, Uy, Uz, {cy * cz, -(cy * sz), sy});
    vn::numeros::da(Vx, Vy, Vz, {cx * sz + sx * (sy * cz), cx * cz - sx * (sy * sz), -(sx * cy)});
}

void ejes2d_angulos_giro_3d_de_ejes(VN_EJES_UV, double *giro_x, double *giro_y, double *giro_z) {
    if (!EXIGE(giro_x, giro_y, giro_z)) return;
    const Punto3D w = normal_de({Ux, Uy, Uz}, {Vx, Vy, Vz});
    Punto3D g;
    // Where U is vertical, turns about x and z are one turn: all of it is told as one about x. Beyond 1 by rounding
    // the arc sine has no value either.
    if (Uz >= 1.) g = {std::atan2(Vx, Vy), numeros::PI / 2., 0.};
    else if (Uz <= -1.) g = {-std::atan2(Vx, Vy), -numeros::PI / 2., 0.};
    else g = {std::atan2(-Vz, w.z), std::asin(Uz), std::atan2(-Uy, Ux)};
    vn::numeros::da(giro_x, giro_y, giro_z, {angulo_de_giro(g.x), angulo_de_giro(g.y), angulo_de_giro(g.z)});
}

// ---------------------------------------------------------------- equation of the plane

void ejes2d_vector_director_plano(VN_EJES_UV, double *Wx, double *Wy, double *Wz) {
    if (EXIGE(Wx, Wy, Wz)) vn::numeros::da(Wx, Wy, Wz, normal_de({Ux, Uy, Uz}, {Vx, Vy, Vz}));
}

void ejes2d_ecuacion_del_plano(VN_EJES, double *A, double *B, double *C, double *D) {
    if (EXIGE(A, B, C)) da(A, B, C, D, ecuacion_de(MARCO));
}

void ejes2d_ecuacion_del_plano_desplazado_en_z_local(VN_EJES, double desplazamiento_z_local, double *A, double *B,
                                                     double *C, double *D) {
    if (!EXIGE(A, B, C)) return;
    const Punto3D w = normal_de({Ux, Uy, Uz}, {Vx, Vy, Vz});
    da(A, B, C, D, {w, -numeros::escalar(w, Punto3D{Xo, Yo, Zo} + desplazamiento_z_local * w)});
}

void ejes2d_ecuacion_del_plano_a_partir_de_puntos3D(const arrPunto3D *puntos, double *A, double *B, double *C,
                                                    double *D) {
    if (!EXIGE(puntos, A, B, C)) return;
    marco m{};
    ejes2d_crea_a_partir_de_puntos3D(puntos, &m.o.x, &m.o.y, &m.o.z, &m.u.x, &m.u.y, &m.u.z, &m.v.x, &m.v.y, &m.v.z);
    // After its report the search leaves zeros, whose normal would be reported once more.
    const bool hay = m.u.x != 0. || m.u.y != 0. || m.u.z != 0.;
    da(A, B, C, D, hay ? ecuacion_de(m) : ecuacion{});
}

void ejes2d_ecuacion_del_plano_dado_tres_puntos(double x1, double y1, double z1, double x2, double y2, double z2,
                                                double x3, double y3, double z3, double *A, double *B, double *C,
                                                double *D) {
    if (EXIGE(A, B, C)) da(A, B, C, D, ecuacion_de(marco_de_tres_puntos({x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3})));
}

double ejes2d_distancia_con_signo_punto_a_plano(VN_EJES, double x, double y, double z) {
    return ecuacion_de(MARCO).distancia({x, y, z});
}

// ---------------------------------------------------------------- the origin moved

void ejes2d_posiciona_ejes_en_origen_cero_global_proyectado_sobre_el_plano(double *Xo, double *Yo, double *Zo,
                                                                           VN_EJES_UV) {
    if (!EXIGE(Xo, Yo, Zo)) return;
    const ecuacion e = ecuacion_de({{*Xo, *Yo, *Zo}, {Ux, Uy, Uz}, {Vx, Vy, Vz}});
    Punto3D o;
    // Along its own normal a line always meets the plane.
    const vnbool existe = mt_existe_interseccion_recta_con_plano(0., 0., 0., e.n.x, e.n.y, e.n.z, e.n.x, e.n.y, e.n.z,
                                                                 e.d, &o.x, &o.y, &o.z);
    if (!AFIRMA(existe == CIERTO)) return;
    // A foot that is the global origin but for rounding is that origin.
    for (double *c : {&o.x, &o.y, &o.z})
        if (std::fabs(*c) < PRECISION_ORIGEN_CERO) *c = 0.;
    vn::numeros::da(Xo, Yo, Zo, o);
}

void ejes2d_desplaza_ejes(double *Xo, double *Yo, double *Zo, VN_EJES_UV, double desplazamiento) {
    if (!EXIGE(Xo, Yo, Zo)) return;
    ejes2d_desplaza_ejes_ex(*Xo, *Yo, *Zo, Ux, Uy, Uz, Vx, Vy, Vz, desplazamiento, Xo, Yo, Zo);
}

void ejes2d_desplaza_ejes_ex(VN_EJES, double desplazamiento, double *Xo_desplazado, double *Yo_desplazado,
                             double *Zo_desplazado) {
    if (!EXIGE(Xo_desplazado, Yo_desplazado, Zo_desplazado)) return;
    const Punto3D w = normal_de({Ux, Uy, Uz}, {Vx, Vy, Vz});
    vn::numeros::da(Xo_desplazado, Yo_desplazado, Zo_desplazado, Punto3D{Xo, Yo, Zo} + desplazamiento * w);
}
