#include "geometria.h"
#include "foundation/mt.h"
#include "foundation/vnmath.h"
#include "geometry/poligono.h"
#include "geometry/punto.h"
#include <algorithm>
#include <cmath>
#include <numeric>

namespace obra {
namespace {

constexpr double VUELTA = 2 * 3.141592653589793;
constexpr uint32_t LADOS_DE_VUELTA = 64;
// Two ends are one within this, and boxes further apart than this hold nothing that meets; metres.
constexpr double PASO_DE_EXTREMOS = 1e-5, MARGEN_DE_CAJA = 1e-4;

struct tramo {
    Punto2D a, b;
};
using tramos = std::vector<tramo>;

// A stored drawing may hold anything: what is no place takes no part.
bool es_finito(const Punto2D &p) { return std::isfinite(p.x) && std::isfinite(p.y); }
Punto2D por(const Punto2D &p, double escala) { return {p.x * escala, p.y * escala}; }

// From its first angle counter-clockwise to its last, above 0; equal angles are a full turn.
double barrido_de(double desde, double hasta) {
    const double b = p_filtra_angulo(hasta - desde);
    return b > 0 ? b : VUELTA;
}

// Calls con_recta(a, b) or con_arco(arc) with each piece of a polyline.
template <class R, class A>
void cada_tramo(const polilinea &p, R &&con_recta, A &&con_arco) {
    const size_t n = p.vertices.size();
    for (size_t i = 0; i + 1 < n + (p.cerrada && n > 1 ? 1 : 0); ++i) {
        const Punto2D &a = p.vertices[i], &b = p.vertices[(i + 1) % n];
        const double curvatura = i < p.curvaturas.size() ? p.curvaturas[i] : 0;
        if (curvatura == 0 || !std::isfinite(curvatura))
            con_recta(a, b);
        else
            con_arco(arco_de(a, b, curvatura));
    }
}

// ---------------------------------------------------------------- outlines that close

// Rings of pieces end to end: where every end is that of exactly two pieces.
class anillos {
  public:
    void anade(const Punto2D &a, const Punto2D &b) {
        if (!es_finito(a) || !es_finito(b) || p_igual(&a, &b) == CIERTO) return;
        piezas_.push_back({redondeado(a), redondeado(b)});
    }

    size_t cuenta() const {
        std::vector<Punto2D> nudos;
        for (const tramo &t : piezas_) nudos.insert(nudos.end(), {t.a, t.b});
        std::sort(nudos.begin(), nudos.end(), antes);
        nudos.erase(
            std::unique(nudos.begin(), nudos.end(), [](const Punto2D &p, const Punto2D &q) { return !antes(p, q); }),
            nudos.end());
        std::vector<size_t> grado(nudos.size()), grupo(nudos.size());
        std::iota(grupo.begin(), grupo.end(), size_t{0});
        const auto raiz = [&grupo](size_t i) {
            while (grupo[i] != i) i = grupo[i] = grupo[grupo[i]];
            return i;
        };
        for (const tramo &t : piezas_) {
            size_t nudo[2];
            for (const auto &[p, i] : {std::pair{t.a, 0}, std::pair{t.b, 1}}) {
                nudo[i] = static_cast<size_t>(std::lower_bound(nudos.begin(), nudos.end(), p, antes) - nudos.begin());
                ++grado[nudo[i]];
            }
            grupo[raiz(nudo[0])] = raiz(nudo[1]);
        }
        std::vector<bool> abierto(nudos.size());
        for (size_t i = 0; i < nudos.size(); ++i)
            if (grado[i] != 2) abierto[raiz(i)] = true;
        size_t n = 0;
        for (size_t i = 0; i < nudos.size(); ++i) n += grupo[i] == i && !abierto[i];
        return n;
    }

  private:
    static Punto2D redondeado(const Punto2D &p) {
        return {prec_redondea_decimales(p.x, PASO_DE_EXTREMOS), prec_redondea_decimales(p.y, PASO_DE_EXTREMOS)};
    }
    static bool antes(const Punto2D &p, const Punto2D &q) { return p.x < q.x || (p.x == q.x && p.y < q.y); }

    tramos piezas_;
};

size_t contornos_de(const capa &c, double metros) {
    size_t n = c.circulos.size();
    anillos sueltas;
    for (const linea &l : c.lineas) sueltas.anade(por(l.a, metros), por(l.b, metros));
    for (const arco &a : c.arcos) {
        const auto en = [&](double t) {
            return por({a.centro.x + a.radio * std::cos(t), a.centro.y + a.radio * std::sin(t)}, metros);
        };
        sueltas.anade(en(a.desde), en(a.hasta));
    }
    for (const elipse &e : c.elipses) n += SON_IGUALES(barrido_de(e.desde, e.hasta), VUELTA) == CIERTO;
    for (const polilinea &p : c.polilineas) {
        if (p.vertices.size() < 2) continue;
        const Punto2D primero = por(p.vertices.front(), metros), ultimo = por(p.vertices.back(), metros);
        if (p.cerrada || (p.vertices.size() > 2 && p_igual(&primero, &ultimo) == CIERTO))
            ++n;
        else
            sueltas.anade(primero, ultimo);
    }
    return n + sueltas.cuenta();
}

// ---------------------------------------------------------------- crossings

struct caja {
    double xmin, ymin, xmax, ymax;
    const tramo *de;
};

// Whether a segment lies wholly on one side of the line of another, further from it than the margin.
bool a_un_lado(const tramo &de, const tramo &otro) {
    const double dx = de.b.x - de.a.x, dy = de.b.y - de.a.y;
    const double margen = MARGEN_DE_CAJA * (std::fabs(dx) + std::fabs(dy));
    const double va = dx * (otro.a.y - de.a.y) - dy * (otro.a.x - de.a.x),
                 vb = dx * (otro.b.y - de.a.y) - dy * (otro.b.x - de.a.x);
    return (va > margen && vb > margen) || (va < -margen && vb < -margen);
}

bool es_extremo(const Punto2D &p, const tramo &t) { return p_igual(&p, &t.a) == CIERTO || p_igual(&p, &t.b) == CIERTO; }

bool se_cruzan(const tramo &s, const tramo &t) {
    if (a_un_lado(s, t) || a_un_lado(t, s)) return false;
    Punto2D *r = p_cortan(&s.a, &s.b, &t.a, &t.b);
    if (r == nullptr) return false;
    const bool solo_se_tocan = es_extremo(*r, s) && es_extremo(*r, t);
    vornspy_free_pp(&r, sizeof(Punto2D));
    return !solo_se_tocan;
}

// By a sweep from left to right: each segment meets those whose boxes the sweep line still crosses, and only pairs
// whose boxes touch are asked about.
size_t cruces_de(const tramos &todos) {
    std::vector<caja> cajas;
    for (const tramo &t : todos)
        cajas.push_back(
            {std::min(t.a.x, t.b.x), std::min(t.a.y, t.b.y), std::max(t.a.x, t.b.x), std::max(t.a.y, t.b.y), &t});
    std::sort(cajas.begin(), cajas.end(), [](const caja &p, const caja &q) { return p.xmin < q.xmin; });
    std::vector<caja> vivas;
    size_t n = 0;
    for (const caja &c : cajas) {
        std::erase_if(vivas, [&](const caja &v) { return v.xmax < c.xmin - MARGEN_DE_CAJA; });
        for (const caja &v : vivas)
            if (v.ymin <= c.ymax + MARGEN_DE_CAJA && c.ymin <= v.ymax + MARGEN_DE_CAJA) n += se_cruzan(*v.de, *c.de);
        vivas.push_back(c);
    }
    return n;
}

// ---------------------------------------------------------------- points of the curves

void anade_puntos(arrPunto2D *puntos, const arco &a) {
    arr_AnyadirArcoPunto2D(puntos, a.centro.x, a.centro.y, a.radio, a.desde, a.desde + barrido_de(a.desde, a.hasta),
                           LADOS_DE_VUELTA);
}

void anade_puntos(arrPunto2D *puntos, const capa &c) {
    for (const linea &l : c.lineas) arr_AppendPunto2D(puntos, l.a.x, l.a.y), arr_AppendPunto2D(puntos, l.b.x, l.b.y);
    for (const circulo &k : c.circulos)
        arr_AnyadirCirculoPunto2D(puntos, k.centro.x, k.centro.y, k.radio, LADOS_DE_VUELTA);
    for (const arco &a : c.arcos) anade_puntos(puntos, a);
    for (const elipse &e : c.elipses) {
        const double eje = mt_distancia(0, 0, e.eje.x, e.eje.y);
        arr_AnyadirArcoElipsePunto2D(puntos, e.centro.x, e.centro.y, eje, eje * e.razon, e.desde,
                                     e.desde + barrido_de(e.desde, e.hasta), mt_angulo(0, 0, e.eje.x, e.eje.y),
                                     LADOS_DE_VUELTA);
    }
    for (const polilinea &p : c.polilineas) {
        for (const Punto2D &v : p.vertices) arr_AppendPunto2D(puntos, v.x, v.y);
        cada_tramo(
            p, [](const Punto2D &, const Punto2D &) {}, [&](const arco &a) { anade_puntos(puntos, a); });
    }
}

} // namespace

geometria_capa geometria_de(const capa &c, double metros_por_unidad) {
    geometria_capa g;
    g.contornos = contornos_de(c, metros_por_unidad);
    tramos rectos;
    const auto anade = [&](const Punto2D &a, const Punto2D &b) {
        const tramo t = {por(a, metros_por_unidad), por(b, metros_por_unidad)};
        if (es_finito(t.a) && es_finito(t.b)) rectos.push_back(t);
    };
    for (const linea &l : c.lineas) anade(l.a, l.b);
    double arcos = 0;
    const auto mide = [&arcos](const arco &a) { arcos += a.radio * barrido_de(a.desde, a.hasta); };
    for (const arco &a : c.arcos) mide(a);
    for (const polilinea &p : c.polilineas) cada_tramo(p, anade, mide);
    g.cruces = cruces_de(rectos);
    g.longitud_arcos = arcos * metros_por_unidad;
    return g;
}

dueno_rectangulo rectangulo_de(const plano &p) {
    dueno_rectangulo r(rec_Crea());
    for (const capa &c : p.capas)
        if (const extension e = extension_de(c); e.hay) {
            rec_MaximizaPunto(r.get(), e.xmin * p.metros_por_unidad, e.ymin * p.metros_por_unidad);
            rec_MaximizaPunto(r.get(), e.xmax * p.metros_por_unidad, e.ymax * p.metros_por_unidad);
        }
    return r;
}

envolvente envolvente_de(const plano &p) {
    const dueno_puntos puntos(arr_CreaPunto2D(0));
    for (const capa &c : p.capas) anade_puntos(puntos.get(), c);
    envolvente e;
    const uint32_t n = arr_NumElemsPunto2D(puntos.get());
    if (n == 0) return e;
    double xmin = 0, ymin = 0, xmax = 0, ymax = 0;
    arr_GetMinimaxPunto2D(puntos.get(), &xmin, &ymin, &xmax, &ymax);
    const double lado = std::max(xmax - xmin, ymax - ymin);
    if (!(lado > 0) || !std::isfinite(lado)) return e;
    // A decimal step, so that drawn measures stay what they are: 1,000,000 to 10,000,000 steps a side.
    const double paso = std::pow(10, std::ceil(std::log10(lado)) - 7);
    poligono_t casco;
    poligono_crea_pol(&casco);
    const Punto2D *v = arr_GetBufferConstPunto2D(puntos.get());
    for (uint32_t i = 0; i < n; ++i)
        if (std::isfinite(v[i].x) && std::isfinite(v[i].y))
            poligono_anade_punto_a_poligono_convexo(&casco, roundtol((v[i].x - xmin) / paso),
                                                    roundtol((v[i].y - ymin) / paso));
    e.vertices = static_cast<size_t>(casco.numVertices);
    int64_t doble = 0; // twice the area
    for (size_t i = 0; i < e.vertices; ++i) {
        const poligono_vertice_t &a = casco.vertice[i], &b = casco.vertice[(i + 1) % e.vertices];
        doble += int64_t{a.x} * b.y - int64_t{b.x} * a.y;
    }
    e.area = static_cast<double>(doble) / 2 * paso * paso * p.metros_por_unidad * p.metros_por_unidad;
    poligono_destruye_pol(&casco);
    return e;
}

} // namespace obra
