#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_curvas.h"
#include "drawing/trazado_priv.h"
#include "drawing/vornplan_lineas.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/sistema/vnstdc.h"
#include <cfloat>
#include <cmath>

using namespace vn;
using namespace vn::numeros;
using vn::listas::tramo;
using D = dispositivo;

namespace {

// Two radii of one circle, two depths of one plane.
constexpr double MISMO_RADIO = 1e-05, MISMO_PLANO = 1e-05;
// Two ends of an arc that are one, in plan.
constexpr double MISMO_EXTREMO = 1e-05;
// What a sweep may lack of a whole turn, radians.
constexpr double MARGEN_VUELTA = 1e-06;
// To what the unit radii are rounded that decide whether an arc is mirrored.
constexpr double PASO_BISECTRIZ = 1e-10;
// By how much the squares of two radii may differ in a circle.
constexpr double MARGEN_CUADRADOS = 1e-06;
// Points of half a turn of a washer, of a full turn as the arrays count them.
constexpr uint32_t PUNTOS_ARANDELA = 36;

Punto2D planta(Punto3D p) { return {p.x, p.y}; }

// The way of what no device draws as it is: points of the plane, at a depth.
void dibuja_poligonal(salida_t *salida, const puntos2D &puntos, double z, vnbool relleno) {
    const puntos3D p = sube({}, puntos.get(), z);
    if (p == nullptr) return; // for want of memory, which was reported
    if (relleno != FALSO) vplan_escr_poligono3D_relleno(salida, p.get());
    else vplan_escr_polilinea3D(salida, p.get());
}

void dibuja_poligonal_elipse(salida_t *salida, Punto3D centro, double ra, double rb, double desde, double hasta,
                             double angulo, vnbool relleno) {
    const puntos2D p(arr_CreaPunto2D(0));
    arr_AnyadirArcoElipsePunto2D(p.get(), centro.x, centro.y, ra, rb, desde, hasta, angulo, PUNTOS_CIRCULO);
    dibuja_poligonal(salida, p, centro.z, relleno);
}

void dibuja_elipse(salida_t *salida, Punto3D centro, double ra, double rb, double angulo, vnbool relleno) {
    const camino c = busca<&D::func_Elipse, &D::func_Elipse3D>(salida);
    if (c.donde == nullptr) return dibuja_poligonal_elipse(salida, centro, ra, rb, 0., VUELTA, angulo, relleno);
    double x, y, z, a, b;
    transforma_elipse(*c.sistema, centro, ra, rb, &x, &y, &z, &a, &b);
    // By the system of the output that is called, not by the chain's.
    const double giro = transforma_angulo(*salida->sistema_coordenadas_actual, angulo);
    if (tiene<&D::func_Elipse>(c.donde)) llama<&D::func_Elipse>(c.donde, x, y, a, b, giro, relleno);
    else llama<&D::func_Elipse3D>(c.donde, x, y, z, a, b, giro, relleno);
}

void dibuja_circulo(salida_t *salida, Punto3D centro, double radio, vnbool relleno) {
    const camino c = busca<&D::func_DrawCirculo, &D::func_DrawCirculo3D>(salida);
    if (c.donde == nullptr || !mantiene_planta(*c.sistema)) {
        const puntos2D p(arr_CreaPunto2D(0));
        arr_AnyadirCirculoPunto2D(p.get(), centro.x, centro.y, radio, PUNTOS_CIRCULO);
        if (const auto puntos = tramo(p.get()); !puntos.empty())
            arr_AppendPunto2D(p.get(), puntos.front().x, puntos.front().y);
        return dibuja_poligonal(salida, p, centro.z, relleno);
    }
    double x, y, z, a, b;
    transforma_elipse(*c.sistema, centro, radio, radio, &x, &y, &z, &a, &b);
    if (vnstdc_fabs(a - b) >= MISMO_RADIO) return dibuja_elipse(salida, centro, radio, radio, 0., relleno);
    if (tiene<&D::func_DrawCirculo>(c.donde)) llama<&D::func_DrawCirculo>(c.donde, x, y, b, relleno);
    else llama<&D::func_DrawCirculo3D>(c.donde, x, y, z, b, relleno);
}

void dibuja_arco_elipse(salida_t *salida, Punto3D centro, double ra, double rb, double desde, double hasta,
                        double angulo, vnbool relleno) {
    const camino c = busca<&D::func_ArcoElipse, &D::func_ArcoElipse3D>(salida);
    if (c.donde == nullptr || deforma_circulos(*c.sistema))
        return dibuja_poligonal_elipse(salida, centro, ra, rb, desde, hasta, angulo, relleno);
    double x, y, z, a, b;
    transforma_elipse(*c.sistema, centro, ra, rb, &x, &y, &z, &a, &b);
    const double giro = transforma_angulo(*c.sistema, 0.) + angulo;
    if (tiene<&D::func_ArcoElipse>(c.donde))
        llama<&D::func_ArcoElipse>(c.donde, x, y, a, b, desde, hasta, giro, relleno);
    else llama<&D::func_ArcoElipse3D>(c.donde, x, y, z, a, b, desde, hasta, giro, relleno);
}

// Whether the system turns the plane over, by an arc's bisector: the sides on which it lies of the first radius.
bool refleja(const sistema_coordenadas &s, Punto3D centro, Punto3D p, Punto3D q) {
    const auto redondeado = [](double v) { return prec_redondea_decimales(v, PASO_BISECTRIZ); };
    Punto2D u = planta(p - centro), v = planta(q - centro), b{};
    if (!unitario(u) || !unitario(v)) return false;
    mt_bisectriz(redondeado(u.x), redondeado(u.y), redondeado(v.x), redondeado(v.y), &b.x, &b.y);
    // Of half a turn, or of none, there is none.
    if (vectorial(u, b) == 0.) b = perpendicular(u);
    const Punto2D u_pasado = planta(transforma_vector(s, {u.x, u.y, 0.})),
                  b_pasada = planta(transforma_vector(s, {b.x, b.y, 0.}));
    return mt_producto_vectorial_plano(u.x, u.y, b.x, b.y) *
               mt_producto_vectorial_plano(u_pasado.x, u_pasado.y, b_pasada.x, b_pasada.y) <
           0.;
}

// Whether circles become ellipses: neither a similarity nor one that mirrors, which only exchanges an arc's ends.
bool deforma_arcos(const sistema_coordenadas &s) {
    sistema_coordenadas reflejado = s;
    for (double &v : reflejado.m.m[0]) v = -v;
    return deforma_circulos(s) && deforma_circulos(reflejado);
}

// What rounding of the coordinates can make the squares of two equal radii differ by.
double margen_de_cuadrados(Punto2D centro, Punto2D a, Punto2D b) {
    const double coordenada = std::max({mayor_coordenada(centro), mayor_coordenada(a), mayor_coordenada(b)});
    return std::max(MARGEN_CUADRADOS, 16. * DBL_EPSILON * coordenada * (modulo(a - centro) + modulo(b - centro)));
}

// From the first angle to the second, which is not below it: arcs run counter-clockwise.
double hasta_de(double desde, double hasta) { return hasta < desde ? hasta + VUELTA : hasta; }

void dibuja_poligonal_arco(salida_t *salida, Punto3D centro, Punto3D p, Punto3D q, vnbool relleno) {
    const double zc = centro.z, z1 = p.z, z2 = q.z;
    AFIRMA(vnstdc_fabs(zc - z1) < 0.00001);
    AFIRMA(vnstdc_fabs(z1 - z2) < 0.00001);
    AFIRMA(vnstdc_fabs(zc - z2) < 0.00001);
    const double desde = mt_angulo(centro.x, centro.y, p.x, p.y), hasta = mt_angulo(centro.x, centro.y, q.x, q.y);
    const puntos2D puntos(arr_CreaPunto2D(0));
    arr_AnyadirArcoPunto2D(puntos.get(), centro.x, centro.y, modulo(planta(p - centro)), desde, hasta_de(desde, hasta),
                           PUNTOS_CIRCULO);
    dibuja_poligonal(salida, puntos, zc, relleno);
}

void dibuja_arco(salida_t *salida, Punto3D centro, Punto3D p, Punto3D q, vnbool relleno) {
    const camino c = busca<&D::func_DrawArco, &D::func_DrawArco3D>(salida);
    if (c.donde == nullptr || !mantiene_planta(*c.sistema)) return dibuja_poligonal_arco(salida, centro, p, q, relleno);
    const sistema_coordenadas &s = *c.sistema;
    const Punto3D o = transforma_punto(s, centro);
    Punto3D a = transforma_punto(s, p), b = transforma_punto(s, q);
    if (vnstdc_fabs(o.z - a.z) >= MISMO_PLANO || vnstdc_fabs(o.z - b.z) >= MISMO_PLANO)
        return dibuja_poligonal_arco(salida, centro, p, q, relleno);
    if (mt_distancia(a.x, a.y, b.x, b.y) < MISMO_EXTREMO) return vplan_escr_punto3D(salida, p.x, p.y, p.z);
    if (refleja(s, centro, p, q)) std::swap(a, b);
    const double ra = cuadrado(planta(a - o)), rb = cuadrado(planta(b - o));
    if (deforma_arcos(s) || vnstdc_fabs(ra - rb) >= margen_de_cuadrados(planta(o), planta(a), planta(b))) {
        const double desde = mt_angulo(centro.x, centro.y, p.x, p.y), hasta = mt_angulo(centro.x, centro.y, q.x, q.y);
        return dibuja_arco_elipse(salida, centro, modulo(p - centro), modulo(q - centro), desde, hasta_de(desde, hasta),
                                  0., relleno);
    }
    if (tiene<&D::func_DrawArco>(c.donde)) llama<&D::func_DrawArco>(c.donde, o.x, o.y, a.x, a.y, b.x, b.y, relleno);
    else llama<&D::func_DrawArco3D>(c.donde, o.x, o.y, o.z, a.x, a.y, a.z, b.x, b.y, b.z, relleno);
}

} // namespace

// ---------------------------------------------------------------- circles

void vplan_escr_circulo(salida_t *salida, double xc, double yc, double radio) {
    if (es_valida(salida)) dibuja_circulo(salida, {xc, yc, z_del_plano(*salida)}, radio, FALSO);
}
void vplan_escr_circulo_relleno(salida_t *salida, double xc, double yc, double radio) {
    if (es_valida(salida))
        dibuja_circulo(salida, {xc, yc, z_del_plano(*salida)}, radio, relleno_si_no_bloqueado(CIERTO, salida));
}
void vplan_escr_circulo3D(salida_t *salida, double xc, double yc, double zc, double radio) {
    if (es_valida(salida)) dibuja_circulo(salida, {xc, yc, zc}, radio, FALSO);
}
void vplan_escr_circulo_relleno3D(salida_t *salida, double xc, double yc, double zc, double radio) {
    if (es_valida(salida)) dibuja_circulo(salida, {xc, yc, zc}, radio, relleno_si_no_bloqueado(CIERTO, salida));
}

// ---------------------------------------------------------------- arcs

void vplan_escr_arco_elipse3D(salida_t *salida, double xc, double yc, double zc, double ra, double rb,
                              double angulo_inicial, double angulo_final, double angulo, vnbool relleno) {
    if (!es_valida(salida) || !AFIRMA_LOGICO(relleno)) return;
    const vnbool con_relleno = relleno_si_no_bloqueado(relleno, salida);
    const double resto = vnstdc_fmod(vnstdc_fabs(angulo_final - angulo_inicial), VUELTA);
    if (resto < MARGEN_VUELTA || VUELTA - resto < MARGEN_VUELTA)
        dibuja_elipse(salida, {xc, yc, zc}, ra, rb, angulo, con_relleno);
    else dibuja_arco_elipse(salida, {xc, yc, zc}, ra, rb, angulo_inicial, angulo_final, angulo, con_relleno);
}
void vplan_escr_arco_elipse(salida_t *salida, double xc, double yc, double ra, double rb, double angulo_inicial,
                            double angulo_final, double angulo, vnbool relleno) {
    if (es_valida(salida))
        vplan_escr_arco_elipse3D(salida, xc, yc, z_del_plano(*salida), ra, rb, angulo_inicial, angulo_final, angulo,
                                 relleno);
}

void vplan_escr_arco(salida_t *salida, double xc, double yc, double x1, double y1, double x2, double y2) {
    if (!es_valida(salida)) return;
    const double z = z_del_plano(*salida);
    dibuja_arco(salida, {xc, yc, z}, {x1, y1, z}, {x2, y2, z}, FALSO);
}
void vplan_escr_arco_con_sentido(salida_t *salida, double xc, double yc, double x1, double y1, double x2, double y2,
                                 vnbool horario) {
    if (!es_valida(salida) || !AFIRMA_LOGICO(horario)) return;
    if (horario == CIERTO) vplan_escr_arco(salida, xc, yc, x2, y2, x1, y1);
    else vplan_escr_arco(salida, xc, yc, x1, y1, x2, y2);
}
void vplan_escr_arco_relleno(salida_t *salida, double xc, double yc, double x1, double y1, double x2, double y2) {
    if (!es_valida(salida)) return;
    const double z = z_del_plano(*salida);
    vplan_escr_arco_relleno3D(salida, xc, yc, z, x1, y1, z, x2, y2, z);
}
void vplan_escr_arco_relleno3D(salida_t *salida, double xc, double yc, double zc, double x1, double y1, double z1,
                               double x2, double y2, double z2) {
    if (es_valida(salida))
        dibuja_arco(salida, {xc, yc, zc}, {x1, y1, z1}, {x2, y2, z2}, relleno_si_no_bloqueado(CIERTO, salida));
}

// ---------------------------------------------------------------- the washer

namespace {

// Outer half, inner half back, and the same of the other half: a polygon that leaves the hole out.
puntos2D poligono_de_arandela(Punto2D c, double radio_menor, double radio_mayor) {
    puntos2D p(arr_CreaPunto2D(0));
    for (const double desde : {0., MEDIA_VUELTA}) {
        const double hasta = desde + MEDIA_VUELTA;
        arr_AnyadirArcoPunto2D(p.get(), c.x, c.y, radio_mayor, desde, hasta, 2 * PUNTOS_ARANDELA);
        arr_AnyadirArcoPunto2D(p.get(), c.x, c.y, radio_menor, hasta, desde, 2 * PUNTOS_ARANDELA);
    }
    return p;
}

} // namespace

void vplan_escr_arandela(salida_t *salida, double xc, double yc, double radio_menor, double radio_mayor) {
    if (!es_valida(salida)) return;
    if (!AFIRMA(radio_menor > 0. && radio_mayor > 0.) || !AFIRMA(radio_menor < radio_mayor)) return;
    // Through the system of this output alone.
    const sistema_coordenadas &s = *salida->sistema_coordenadas_actual;
    double x1, y1, x2, y2, z, ra_menor, rb_menor, ra_mayor, rb_mayor;
    const Punto3D centro{xc, yc, z_del_plano(*salida)};
    transforma_elipse(s, centro, radio_menor, radio_menor, &x1, &y1, &z, &ra_menor, &rb_menor);
    transforma_elipse(s, centro, radio_mayor, radio_mayor, &x2, &y2, &z, &ra_mayor, &rb_mayor);
    AFIRMA(mt_puntos2D_iguales_con_tolerancia(x1, y1, x2, y2, 0.000001) == CIERTO);
    salida_t *const donde = implementa<&D::func_DrawArandela>(salida);
    if (donde == nullptr || vnstdc_fabs(ra_menor - rb_menor) >= MISMO_RADIO)
        return vplan_escr_poligono_relleno(salida, poligono_de_arandela({xc, yc}, radio_menor, radio_mayor).get());
    AFIRMA(vnstdc_fabs(ra_mayor - rb_mayor) < 0.00001);
    if (vnstdc_fabs(ra_mayor - ra_menor) >= MISMO_RADIO) return vplan_escr_circulo(salida, xc, yc, radio_menor);
    llama<&D::func_DrawArandela>(donde, x1, y1, ra_menor, ra_mayor);
}
