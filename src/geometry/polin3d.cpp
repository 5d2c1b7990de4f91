#define VN_MODULO "polin3d (NUCLEOS.DLL)"
// Circles, arcs and fillets as points; lists of points.
#include "geometry/polin3d.h"
#include "foundation/listas/arr_int.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "geometry/polin3d_priv.h"
#include <algorithm>
#include <cmath>
#include <limits>
#include <span>

using namespace vn;

namespace {

// From this index on, the nearest point counts as not found.
constexpr uint32_t LIMITE_INDICE_VERTICE = 0xFFFF;

// New array with the point that `f` makes of each number from 0.
template <class F> arrPunto3D *nueva(uint32_t n, F &&f) {
    arrPunto3D *a = arr_CreaPunto3D(n);
    if (a == nullptr) return nullptr;
    Punto3D *p = arr_GetBufferPunto3D(a);
    for (uint32_t i = 0; i < n; ++i) p[i] = f(i);
    return a;
}

// Ends of a fillet against an end of the polyline: false if it overruns. `hacia` is the direction from the corner.
bool ajusta_extremo(std::vector<Punto3D> &puntos, bool es_ultimo, Punto3D extremo, Punto3D hacia, bool mantiene) {
    const auto p = es_ultimo ? puntos.end() - 1 : puntos.begin();
    if (distancia(*p, extremo) > PRECISION_EXTREMO) return numeros::escalar(direccion(*p, extremo), hacia) > 0.;
    if (mantiene) *p = extremo;
    else puntos.erase(p);
    return true;
}

} // namespace

arrPunto3D *vn::array_de(const std::vector<Punto3D> &puntos) {
    return nueva(static_cast<uint32_t>(puntos.size()), [&](uint32_t i) { return puntos[i]; });
}

double vn::distancia(Punto3D a, Punto3D b) { return mt_distancia_3D(a.x, a.y, a.z, b.x, b.y, b.z); }

bool vn::cerca(Punto3D a, Punto3D b, double precision) {
    return std::fabs(a.x - b.x) < precision && std::fabs(a.y - b.y) < precision && std::fabs(a.z - b.z) < precision;
}

Punto3D vn::direccion(Punto3D a, Punto3D b) {
    Punto3D u;
    mt_vector_director_de_dos_puntos_3D(a.x, a.y, a.z, b.x, b.y, b.z, &u.x, &u.y, &u.z);
    return u;
}

bool vn::ejes_de_tres(Punto3D o, Punto3D a, Punto3D b, Punto3D &x, Punto3D &y, Punto3D &z) {
    return mt_calcular_ejes_3D_dados_3_puntos(o.x, o.y, o.z, a.x, a.y, a.z, b.x, b.y, b.z, &x.x, &x.y, &x.z, &y.x, &y.y,
                                              &y.z, &z.x, &z.y, &z.z) == CIERTO;
}

double vn::angulo_entre(Punto3D u1, Punto3D u2) {
    return std::acos(prec_redondea_decimales(numeros::escalar(u1, u2), PASO_COSENO));
}

bool vn::hay_acuerdo(Punto3D p1, Punto3D p2, Punto3D p3, const barra &b, bool mantiene_extremos, acuerdo &a) {
    a.puntos.clear();
    a.hay_centro = false;
    // Directions from the corner: their angle is that between the segments, a half turn when they go straight on.
    const Punto3D u1 = direccion(p2, p1), u2 = direccion(p2, p3);
    // A bar does not bend within its own thickness.
    if (!(distancia(p2, p1) > b.diametro / 2.0) || !(distancia(p2, p3) > b.diametro / 2.0)) return false;
    double angulo_segmentos = angulo_entre(u1, u2);
    if (!(angulo_segmentos > ANGULO_SIN_ACUERDO) || !(std::fabs(angulo_segmentos - numeros::PI) > ANGULO_SIN_ACUERDO))
        return false;

    Punto3D u, v, w;
    if (!ejes_de_tres(p2, p1, p3, u, v, w)) return false;
    // The fillet turns to the side of the third point.
    if (numeros::escalar(v, u2) < 0.) angulo_segmentos = -angulo_segmentos;
    if (!AFIRMA(angulo_segmentos > -numeros::PI) || !AFIRMA(angulo_segmentos < numeros::PI)) return false;
    const double num_grados_dibujo_doblado = b.num_grados_dibujo_doblado;
    if (!AFIRMA(num_grados_dibujo_doblado > 0.)) return false;

    // The arc turns by what the segments miss of the half turn; its centre is on the bisector, as far from both of
    // them as the radius.
    const double barrido = std::copysign(numeros::PI - std::fabs(angulo_segmentos), angulo_segmentos);
    a.centro = p2 + (b.radio_eje / std::tan(std::fabs(angulo_segmentos) * 0.5)) * u + b.radio_eje * v;
    if (!numeros::es_finito(a.centro)) return false;
    a.hay_centro = true;

    // Whole steps, none longer than was asked for.
    const double pasos = std::ceil(std::fabs(barrido) / (num_grados_dibujo_doblado * numeros::RADIANES_POR_GRADO));
    if (!AFIRMA_TEXTO(pasos + 1. > 1., "num_puntos > 1") ||
        !AFIRMA_TEXTO(pasos <= MAXIMO_PASOS, "num_puntos <= MAXIMO_PUNTOS"))
        return false;
    a.puntos.reserve(static_cast<size_t>(pasos) + 1);
    for (double i = 0.; i <= pasos; ++i) {
        const double angulo = i * barrido / pasos;
        a.puntos.push_back(a.centro - b.radio_eje * (std::cos(angulo) * v + std::sin(angulo) * u));
    }
    return ajusta_extremo(a.puntos, true, p3, u2, mantiene_extremos) &&
           ajusta_extremo(a.puntos, false, p1, u1, mantiene_extremos);
}

arrPunto3D *Pln3D_puntos_circulo(double Xo, double Yo, double Zo, double Ux, double Uy, double Uz, double Vx, double Vy,
                                 double Vz, double diametro, uint16_t num_puntos_circulo) {
    if (!AFIRMA(num_puntos_circulo > 3)) return nullptr;
    const Punto3D o{Xo, Yo, Zo}, u{Ux, Uy, Uz}, v{Vx, Vy, Vz};
    const double radio = diametro / 2., paso = 2. * numeros::PI / num_puntos_circulo;
    return nueva(num_puntos_circulo,
                 [&](uint32_t i) { return o + radio * (std::cos(i * paso) * u + std::sin(i * paso) * v); });
}

arrPunto3D *Pln3D_puntos_arco(double x_centro, double y_centro, double z_centro, double x_ini, double y_ini,
                              double z_ini, double x_fin, double y_fin, double z_fin, double Ux, double Uy, double Uz,
                              double Vx, double Vy, double Vz, double diametro, uint16_t num_puntos_arco,
                              vnbool arco_complementario) {
    if (!AFIRMA(num_puntos_arco > 3) || !AFIRMA_LOGICO(arco_complementario)) return nullptr;
    const Punto3D centro{x_centro, y_centro, z_centro};
    const Punto3D a = direccion(centro, {x_ini, y_ini, z_ini}), b = direccion(centro, {x_fin, y_fin, z_fin});
    const Punto3D w = numeros::vectorial({Ux, Uy, Uz}, {Vx, Vy, Vz});
    // The ends tell the plane of the arc, unless it is a half circle; then the axes that are given do.
    double angulo = angulo_entre(a, b);
    Punto3D w1 = w;
    if (std::fabs(angulo - numeros::PI) >= MARGEN_MEDIA_VUELTA) {
        w1 = numeros::vectorial(a, b);
        mt_pasar_a_unitario_3D(&w1.x, &w1.y, &w1.z);
        AFIRMA_TEXTO(std::fabs(std::fabs(numeros::escalar(w, w1)) - 1.) < MARGEN_MISMO_PLANO_ARCO,
                     "vnstdc_fabs(vnstdc_fabs(mt_producto_escalar(Wx, Wy, Wz, Wx1, Wy1, Wz1)) - 1.) < .000001");
    }
    // Square to the first radius, toward where the arc goes; the complementary arc runs the other way.
    const Punto3D perpendicular = -numeros::vectorial(a, w1);
    if (arco_complementario == CIERTO) angulo -= 2. * numeros::PI;
    const double radio = diametro / 2., paso = angulo / (num_puntos_arco - 1);
    return nueva(num_puntos_arco, [&](uint32_t i) {
        return centro + radio * (std::cos(i * paso) * a + std::sin(i * paso) * perpendicular);
    });
}

vnbool Pln3D_se_genera_puntos_acuerdo_entre_tres_puntos(double x1, double y1, double z1, double x2, double y2,
                                                        double z2, double x3, double y3, double z3, double diametro,
                                                        double radio, double num_grados_dibujo_doblado,
                                                        vnbool mantiene_extremos, arrPunto3D **puntos_acuerdo,
                                                        double *x_centro, double *y_centro, double *z_centro) {
    if (!AFIRMA_LOGICO(mantiene_extremos) || !AFIRMA_NO_NULO(puntos_acuerdo)) return FALSO;
    *puntos_acuerdo = nullptr;
    acuerdo a;
    const bool hay = hay_acuerdo({x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3}, {diametro, radio, num_grados_dibujo_doblado},
                                 mantiene_extremos == CIERTO, a);
    if (a.hay_centro) numeros::da(x_centro, y_centro, z_centro, a.centro);
    if (hay) *puntos_acuerdo = array_de(a.puntos);
    return logico(*puntos_acuerdo != nullptr);
}

vnbool Pln3D_poligono_plano_es_convexo(const arrPunto3D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    const std::span<const Punto3D> p = listas::tramo(puntos);
    if (!AFIRMA_TEXTO(p.size() >= 3, "num_puntos >= 3")) return FALSO;
    // The first corner that turns tells the normal; every other one must turn the same way about it.
    bool ya_se_tiene_W_con_que_comparar = false;
    Punto3D w{}, llega{};
    // One edge more than there are: the last one turns into the first.
    for (size_t i = 1; i <= p.size() + 1; ++i) {
        const Punto3D sale = direccion(p[(i - 1) % p.size()], p[i % p.size()]);
        if (numeros::escalar(sale, sale) == 0.) continue; // a repeated point
        const bool gira =
            numeros::escalar(llega, llega) != 0. && !(std::fabs(numeros::escalar(llega, sale) - 1.) <= MARGEN_SIN_GIRO);
        Punto3D w1 = numeros::vectorial(llega, sale);
        llega = sale;
        if (!gira) continue;
        const bool hay_normal = mt_pasar_a_unitario_3D(&w1.x, &w1.y, &w1.z) == CIERTO;
        if (hay_normal && !ya_se_tiene_W_con_que_comparar) {
            w = w1;
            ya_se_tiene_W_con_que_comparar = true;
            continue;
        }
        const double prod_escalar_poligono_es_plano = hay_normal ? numeros::escalar(w, w1) : 0.;
        AFIRMA_TEXTO(std::fabs(std::fabs(prod_escalar_poligono_es_plano) - 1.) < MARGEN_MISMO_PLANO_POLIGONO,
                     "vnstdc_fabs(vnstdc_fabs(prod_escalar_poligono_es_plano) - 1.) < .00001");
        if (prod_escalar_poligono_es_plano < 0.) return FALSO;
    }
    return logico(AFIRMA_TEXTO(ya_se_tiene_W_con_que_comparar, "ya_se_tiene_W_con_que_comparar == CIERTO"));
}

void Pln3D_GetVerticeMasProximo(const arrPunto3D *puntos, double x, double y, double z, double *x_vertice,
                                double *y_vertice, double *z_vertice) {
    if (!EXIGE(puntos, x_vertice, y_vertice, z_vertice)) return;
    const std::span<const Punto3D> p = listas::tramo(puntos);
    // A distance that is not a number is never the nearest.
    size_t mas_proximo = p.size();
    double minima = std::numeric_limits<double>::infinity();
    for (size_t i = 0; i < p.size(); ++i) {
        const double d = distancia(p[i], {x, y, z});
        if (!(d < minima)) continue;
        minima = d;
        mas_proximo = i;
    }
    if (mas_proximo < std::min<size_t>(p.size(), LIMITE_INDICE_VERTICE))
        numeros::da(x_vertice, y_vertice, z_vertice, p[mas_proximo]);
}

double Pln3D_Longitud(const arrPunto3D *puntos) {
    if (!AFIRMA_NO_NULO(puntos)) return 0.0;
    const std::span<const Punto3D> p = listas::tramo(puntos);
    double longitud = 0.0;
    for (size_t i = 1; i < p.size(); ++i) longitud += distancia(p[i - 1], p[i]);
    return longitud;
}
