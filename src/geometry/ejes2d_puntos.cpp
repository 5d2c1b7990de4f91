#define VN_MODULO "ejes2d (NUCLEOS.DLL)"
// Axes out of a list of points.
#include "geometry/ejes2d_puntos.h"
#include "foundation/listas/arr_int.h"
#include "foundation/numeros/mt.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "geometry/ejes2d_priv.h"
#include <algorithm>
#include <cfloat>
#include <cmath>
#include <cstring>
#include <limits>
#include <span>
#include <vector>

using namespace vn;

namespace {

using puntos_t = std::span<const Punto3D>;

constexpr uint32_t SIN_PUNTO = 0xFFFFFFFF;
// Branching of the tree of blocks: points per leaf, blocks per node.
constexpr uint32_t RAMAS = 16;
// What rounding may add to a distance to a line, in the largest coordinate of all that take part.
constexpr double REDONDEO = 64. * DBL_EPSILON;

bool apartados(Punto3D a, Punto3D b, double precision) {
    return std::fabs(a.x - b.x) > precision || std::fabs(a.y - b.y) > precision || std::fabs(a.z - b.z) > precision;
}

// Whether they do not coincide: unlike the former, what is just at the tolerance counts. Only finite points are
// distinct.
bool distintos(Punto3D a, Punto3D b, double precision) {
    const Punto3D d = a - b;
    return numeros::es_finito(d) &&
           (std::fabs(d.x) >= precision || std::fabs(d.y) >= precision || std::fabs(d.z) >= precision);
}

// The line of two points, whose feet are those of mt_proyecta_punto_sobre_recta_3D, bit for bit.
struct recta {
    Punto3D o, u;
    bool hay; // two points that are one have no line

    recta(Punto3D p1, Punto3D p2, double precision) : o(p1), u(p2 - p1) {
        hay = distintos(p1, p2, precision) && mt_pasar_a_unitario_3D(&u.x, &u.y, &u.z) == CIERTO;
    }
    // The greatest coordinate of the way from the foot of a point.
    double desvio(Punto3D p) const {
        const Punto3D d = p - o;
        return numeros::mayor_coordenada(d - numeros::escalar(d, u) * u);
    }
    // Whether a point is off the line, by its foot.
    bool deja_fuera(Punto3D p, double precision) const {
        return hay && distintos(p, o + numeros::escalar(p - o, u) * u, precision);
    }
};

// What is known of consecutive points: their box, and a segment that none of them is farther from than `lejos`. How far
// a point is from a line, along each axis, or from a plane is greatest at an end of a segment, so two figures bound
// those of all the points.
struct bloque {
    static constexpr double INF = std::numeric_limits<double>::infinity();
    Punto3D minimo{INF, INF, INF}, maximo{-INF, -INF, -INF}, a, b;
    double lejos = 0.;

    explicit bloque(puntos_t p) : a(mas_lejano(p, p[0])), b(mas_lejano(p, a)) {
        const Punto3D ab = b - a;
        const double ab2 = numeros::cuadrado(ab);
        for (const Punto3D &q : p) {
            minimo = {std::min(minimo.x, q.x), std::min(minimo.y, q.y), std::min(minimo.z, q.z)};
            maximo = {std::max(maximo.x, q.x), std::max(maximo.y, q.y), std::max(maximo.z, q.z)};
            const double t = ab2 > 0. ? std::clamp(numeros::escalar(q - a, ab) / ab2, 0., 1.) : 0.;
            lejos = std::max(lejos, numeros::modulo(q - (a + t * ab)));
        }
    }

    static Punto3D mas_lejano(puntos_t p, Punto3D de) {
        Punto3D r = de;
        for (const Punto3D &q : p)
            if (numeros::cuadrado(q - de) > numeros::cuadrado(r - de)) r = q;
        return r;
    }

    // Rounding is monotonic, so the box says exactly what its points would.
    bool ninguno_apartado(Punto3D p1, double precision) const {
        return !apartados(p1, minimo, precision) && !apartados(p1, maximo, precision);
    }
    bool todos_alineados(const recta &r, double precision) const {
        return std::max(r.desvio(a), r.desvio(b)) + dudoso(r.o) < precision;
    }
    bool todos_en_plano(Punto3D o, Punto3D w, double precision) const {
        return std::max(std::fabs(numeros::escalar(a - o, w)), std::fabs(numeros::escalar(b - o, w))) + dudoso(o) <=
               precision;
    }
    // What a point may have more than both ends.
    double dudoso(Punto3D o) const {
        return lejos + REDONDEO * std::max({numeros::mayor_coordenada(o), numeros::mayor_coordenada(minimo),
                                            numeros::mayor_coordenada(maximo)});
    }
};

struct terna {
    Punto3D p1, p2, p3;
};

// The search for three points that span a plane, from any start around the ring. A start takes time in proportion to
// the points, and a list on which all of them fail could take its square: once there are blocks, of every size, what
// cannot serve is stepped over in steps that are few whatever the number of points.
class buscador {
  public:
    buscador(puntos_t puntos, double precision) : p_(puntos), precision_(precision) {}

    void prepara_bloques() {
        if (!niveles_.empty()) return;
        for (size_t tamano = RAMAS; tamano <= p_.size(); tamano *= RAMAS) {
            std::vector<bloque> &nivel = niveles_.emplace_back();
            nivel.reserve(p_.size() / tamano);
            for (size_t i = 0; i + tamano <= p_.size(); i += tamano) nivel.emplace_back(p_.subspan(i, tamano));
        }
    }

    bool busca(uint32_t inicio, terna &t) const {
        const auto n = static_cast<uint32_t>(p_.size());
        if (n < 3) return false;
        t.p1 = p_[inicio];
        const uint32_t k2 = primero(
            inicio, 1, [&](uint32_t i) { return apartados(t.p1, p_[i], precision_); },
            [&](const bloque &b) { return b.ninguno_apartado(t.p1, precision_); });
        if (k2 == n) return false;
        t.p2 = p_[lugar(inicio, k2)];
        const recta r(t.p1, t.p2, precision_);
        if (!r.hay) return false;
        const uint32_t k3 = primero(
            inicio, k2, [&](uint32_t i) { return r.deja_fuera(p_[i], precision_); },
            [&](const bloque &b) { return b.todos_alineados(r, precision_); });
        if (k3 == n) return false;
        t.p3 = p_[lugar(inicio, k3)];
        return true;
    }

    // The first point off the plane from the one given on around the ring; SIN_PUNTO if none is.
    uint32_t fuera_del_plano(uint32_t desde, Punto3D o, Punto3D w, double precision) const {
        const uint32_t k = primero(
            desde, 0, [&](uint32_t i) { return !(std::fabs(numeros::escalar(p_[i] - o, w)) <= precision); },
            [&](const bloque &b) { return b.todos_en_plano(o, w, precision); });
        return k < p_.size() ? lugar(desde, k) : SIN_PUNTO;
    }

  private:
    uint32_t lugar(uint32_t inicio, uint32_t k) const {
        const uint64_t i = uint64_t{inicio} + k;
        return static_cast<uint32_t>(i < p_.size() ? i : i - p_.size());
    }

    // The first k, from the one given up to the number of points, for which the point that is k after the start is the
    // one looked for; the number of points if none is.
    template <class Es, class Ninguno> uint32_t primero(uint32_t inicio, uint32_t k, Es &&es, Ninguno &&ninguno) const {
        const auto n = static_cast<uint32_t>(p_.size());
        while (k < n) {
            const uint32_t i = lugar(inicio, k);
            // The largest block that begins here and can be stepped over; where a smaller one cannot, none can. The
            // last one may reach past the end of the ring, over points that have been looked at.
            size_t paso = 0, tamano = RAMAS;
            for (auto nivel = niveles_.begin(); nivel != niveles_.end() && i % tamano == 0; ++nivel, tamano *= RAMAS) {
                if (i / tamano >= nivel->size() || !ninguno((*nivel)[i / tamano])) break;
                paso = tamano;
            }
            if (paso == 0 && es(i)) return k;
            k += static_cast<uint32_t>(paso > 0 ? paso : 1);
        }
        return n;
    }

    puntos_t p_;
    double precision_;
    std::vector<std::vector<bloque>> niveles_; // from the smallest block
};

bool ejes_de(const terna &t, marco &m, Punto3D &w) {
    m.o = t.p1;
    return mt_calcular_ejes_3D_dados_3_puntos(t.p1.x, t.p1.y, t.p1.z, t.p2.x, t.p2.y, t.p2.z, t.p3.x, t.p3.y, t.p3.z,
                                              &m.u.x, &m.u.y, &m.u.z, &m.v.x, &m.v.y, &m.v.z, &w.x, &w.y,
                                              &w.z) == CIERTO;
}

struct recorrido {
    uint32_t falla = SIN_PUNTO; // the first point off the plane
    double distancia = 0.;      // how far it is
    int64_t votos = 0;          // corners to the left less corners to the right
    Punto3D suma{};
};

// One pass over the closed polygon: each point against the plane, the vote of its corner, the sum for the mean.
recorrido recorre(puntos_t p, Punto3D o, Punto3D w, double precision_plano) {
    recorrido r;
    Punto3D llega = p[0] - p[p.size() - 1];
    for (size_t j = 0; j < p.size(); ++j) {
        const double d = numeros::escalar(p[j] - o, w);
        if (!(std::fabs(d) <= precision_plano)) {
            r.falla = static_cast<uint32_t>(j);
            r.distancia = std::fabs(d);
            return r;
        }
        const Punto3D sale = p[j + 1 < p.size() ? j + 1 : 0] - p[j];
        const double c = numeros::escalar(numeros::vectorial(llega, sale), w);
        r.votos += (c > GIRO_SIN_SENTIDO) - (c < -GIRO_SIN_SENTIDO);
        r.suma = r.suma + p[j];
        llega = sale;
    }
    return r;
}

struct tolerancias {
    double puntos = PRECISION_PUNTOS, plano = PRECISION_PLANO;
};

// Whether the points form axes, and which. `culpable` is the point to blame, as ejes2d.h says.
bool forman_ejes(puntos_t p, tolerancias prec, bool comprueba_no_forma_eje, marco &m, uint32_t &culpable) {
    culpable = SIN_PUNTO;
    buscador b(p, prec.puntos);
    uint32_t testigo = 0, culpable_del_primero = SIN_PUNTO;
    for (uint32_t s = 0; s < p.size(); ++s) {
        // What has failed from a point fails from its twin.
        if (s > 0 && std::memcmp(&p[s], &p[s - 1], sizeof p[s]) == 0) continue;
        if (s > 0) b.prepara_bloques();
        terna t;
        Punto3D w;
        if (!b.busca(s, t) || !ejes_de(t, m, w)) continue;
        // After the first start it does not matter which point is off the plane, and the one that another plane failed
        // at, or one near it, is likely to be off this one too. What is no number may be stepped over, to be found by
        // the whole pass.
        if (s > 0)
            if (const uint32_t j = b.fuera_del_plano(testigo, t.p1, w, prec.plano); j != SIN_PUNTO) {
                testigo = j;
                continue;
            }
        const recorrido r = recorre(p, t.p1, w, prec.plano);
        if (r.falla == SIN_PUNTO) {
            if (r.votos < 0) m.u = -m.u;
            m.o = r.suma / static_cast<double>(p.size());
            culpable = culpable_del_primero;
            return true;
        }
        testigo = r.falla;
        if (s == 0 && comprueba_no_forma_eje) {
            culpable_del_primero = r.falla;
            if (r.distancia > FACTOR_SIN_REMEDIO * prec.plano) {
                culpable = r.falla;
                return false;
            }
        }
    }
    return false;
}

vnbool forman_ejes(const arrPunto3D *puntos, tolerancias prec, vnbool comprueba_no_forma_eje, VN_EJES_SALIDA_OPC,
                   uint32_t *ind_punto_no_forma_eje) {
    if (ind_punto_no_forma_eje != nullptr) *ind_punto_no_forma_eje = SIN_PUNTO;
    if (!AFIRMA_NO_NULO(puntos) || !AFIRMA_LOGICO(comprueba_no_forma_eje)) return FALSO;
    marco m;
    uint32_t culpable;
    const bool forman = forman_ejes(listas::tramo(puntos), prec, comprueba_no_forma_eje == CIERTO, m, culpable);
    if (ind_punto_no_forma_eje != nullptr) *ind_punto_no_forma_eje = culpable;
    if (!forman) return FALSO;
    A_SALIDAS(m);
    return CIERTO;
}

void crea_a_partir_de_puntos(const arrPunto3D *puntos, tolerancias prec, VN_EJES_SALIDA_OPC) {
    A_SALIDAS(marco{});
    if (!AFIRMA_NO_NULO(puntos)) return;
    const vnbool forman_ejes = ::forman_ejes(puntos, prec, CIERTO, LOS_EJES, nullptr);
    AFIRMA(forman_ejes == CIERTO);
}

} // namespace

vnbool ejes2d_punto3D_forman_ejes(const arrPunto3D *puntos, VN_EJES_SALIDA_OPC) {
    return forman_ejes(puntos, {}, CIERTO, LOS_EJES, nullptr);
}

vnbool ejes2d_punto3D_forman_ejes_con_precision(const arrPunto3D *puntos, double precision_plano, VN_EJES_SALIDA_OPC) {
    return forman_ejes(puntos, {.plano = precision_plano}, CIERTO, LOS_EJES, nullptr);
}

vnbool ejes2d_punto3D_forman_ejes_con_ind_punto_no_forma_eje(const arrPunto3D *puntos, VN_EJES_SALIDA_OPC,
                                                             uint32_t *ind_punto_no_forma_eje) {
    return forman_ejes(puntos, {}, CIERTO, LOS_EJES, ind_punto_no_forma_eje);
}

vnbool ejes2d_punto3D_forman_ejes_con_precision_ex(const arrPunto3D *puntos, double precision_puntos,
                                                   double precision_plano, VN_EJES_SALIDA_OPC,
                                                   uint32_t *ind_punto_no_forma_eje) {
    return forman_ejes(puntos, {precision_puntos, precision_plano}, CIERTO, LOS_EJES, ind_punto_no_forma_eje);
}

vnbool ejes2d_punto3D_forman_ejes_con_precision_ex2(const arrPunto3D *puntos, double precision_puntos,
                                                    double precision_plano, vnbool comprueba_no_forma_eje,
                                                    VN_EJES_SALIDA_OPC, uint32_t *ind_punto_no_forma_eje) {
    return forman_ejes(puntos, {precision_puntos, precision_plano}, comprueba_no_forma_eje, Xo, Yo, Zo, Ux, Uy, Uz, Vx,
                       Vy, Vz, ind_punto_no_forma_eje);
}

void ejes2d_crea_a_partir_de_puntos3D(const arrPunto3D *puntos, VN_EJES_SALIDA_OPC) {
    crea_a_partir_de_puntos(puntos, {}, LOS_EJES);
}

void ejes2d_crea_a_partir_de_puntos3D_con_precision(const arrPunto3D *puntos, double precision_plano,
                                                    VN_EJES_SALIDA_OPC) {
    crea_a_partir_de_puntos(puntos, {.plano = precision_plano}, LOS_EJES);
}

vnbool ejes2d_punto3D_forman_ejes_solo_mirando_3_puntos_no_lineales(const arrPunto3D *puntos, double precision,
                                                                    VN_EJES_SALIDA_OPC) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    terna t;
    marco m;
    Punto3D w;
    if (!buscador(listas::tramo(puntos), precision).busca(0, t) || !ejes_de(t, m, w)) return FALSO;
    A_SALIDAS(m);
    return CIERTO;
}

vnbool ejes2d_existen_tres_puntos_no_lineales(const arrPunto3D *puntos) {
    return ejes2d_existen_tres_puntos_no_lineales_con_precision(puntos, PRECISION_PUNTOS);
}

vnbool ejes2d_existen_tres_puntos_no_lineales_con_precision(const arrPunto3D *puntos, double precision) {
    if (!AFIRMA_NO_NULO(puntos)) return FALSO;
    terna t;
    return logico(buscador(listas::tramo(puntos), precision).busca(0, t));
}

vnbool ejes2d_tres_puntos_forman_ejes(double x1, double y1, double z1, double x2, double y2, double z2, double x3,
                                      double y3, double z3) {
    const recta r({x1, y1, z1}, {x2, y2, z2}, PRECISION_PUNTOS);
    return logico(r.deja_fuera({x3, y3, z3}, PRECISION_PUNTOS));
}
