#include "geometria.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <map>
#include <nucleos/foundation/numeros/mt.h>
#include <nucleos/foundation/numeros/vnmath.h>
#include <nucleos/geometry/poligono.h>
#include <nucleos/geometry/punto.h>
#include <numbers>
#include <numeric>
#include <optional>
#include <tuple>

namespace obra {
namespace {

constexpr double VUELTA = 2 * std::numbers::pi;
constexpr uint32_t LADOS_DE_VUELTA = 64;
// Two ends are one within this, and boxes further apart than this hold nothing that meets; metres.
constexpr double PASO_DE_EXTREMOS = 1e-5, MARGEN_DE_CAJA = 1e-4;

struct tramo {
    Punto2D a, b;
};
using tramos = std::vector<tramo>;

// A stored drawing may hold anything: what is no place takes no part.
bool es_finito(const Punto2D &p) { return std::fabs(p.x) < 1e100 && std::fabs(p.y) < 1e100; }
Punto2D por(const Punto2D &p, double escala) { return {p.x * escala, p.y * escala}; }

// From its first angle counter-clockwise to its last, above 0; equal angles are a full turn.
double barrido_de(double desde, double hasta) {
    const double b = p_filtra_angulo(hasta - desde);
    return b > 0 ? b : VUELTA;
}

// Calls con_recta(a, b) or con_arco(arc) with each piece of a polyline.
template <class R, class A> void cada_tramo(const polilinea &p, R &&con_recta, A &&con_arco) {
    const size_t n = p.vertices.size();
    for (size_t i = 0; i + 1 < n + (p.cerrada && n > 1 ? 1 : 0); ++i) {
        const Punto2D &a = p.vertices[i], &b = p.vertices[(i + 1) % n];
        const double curvatura = i < p.curvaturas.size() ? p.curvaturas[i] : 0;
        if (curvatura == 0 || !std::isfinite(curvatura)) con_recta(a, b);
        else con_arco(arco_de(a, b, curvatura));
    }
}

// ---------------------------------------------------------------- outlines that close

// Rings of pieces end to end: where every end is that of exactly two pieces. One drawn twice counts once.
class anillos {
  public:
    // `medio` and `giro` tell pieces with the same ends apart: the middle, or the centre, and how it turns.
    void anade(const Punto2D &a, const Punto2D &b, const Punto2D &medio, double giro) {
        const size_t cual = cuantas_++;
        if (!es_finito(a) || !es_finito(b) || !es_finito(medio) || !std::isfinite(giro)) return;
        if (p_igual(&a, &b) == CIERTO) return;
        const size_t i = nudo_en(a), j = nudo_en(b);
        piezas_.push_back({{std::min(i, j), std::max(i, j), medio.x, medio.y, i < j ? giro : -giro}, cual, i > j});
    }

    std::vector<anillo> todos() {
        std::sort(piezas_.begin(), piezas_.end(),
                  [](const pieza &p, const pieza &q) { return std::tie(p.clave, p.cual) < std::tie(q.clave, q.cual); });
        piezas_.erase(std::unique(piezas_.begin(), piezas_.end(),
                                  [](const pieza &p, const pieza &q) { return p.clave == q.clave; }),
                      piezas_.end());
        std::vector<size_t> grado(nudos_.size()), grupo(nudos_.size());
        std::iota(grupo.begin(), grupo.end(), size_t{0});
        const auto raiz = [&grupo](size_t i) {
            while (grupo[i] != i) i = grupo[i] = grupo[grupo[i]];
            return i;
        };
        std::vector<std::array<size_t, 2>> llegan(nudos_.size()); // the first two pieces of each end
        for (size_t k = 0; k < piezas_.size(); ++k) {
            const auto [i, j, x, y, giro] = piezas_[k].clave;
            for (const size_t n : {i, j}) {
                if (grado[n] < 2) llegan[n][grado[n]] = k;
                ++grado[n];
            }
            grupo[raiz(i)] = raiz(j);
        }
        std::vector<bool> abierto(nudos_.size());
        for (size_t i = 0; i < nudos_.size(); ++i)
            if (grado[i] != 2) abierto[raiz(i)] = true;
        std::vector<anillo> v;
        for (size_t i = 0; i < nudos_.size(); ++i)
            if (grupo[i] == i && !abierto[i]) v.push_back(desde(i, llegan));
        return v;
    }

  private:
    struct pieza {
        std::tuple<size_t, size_t, double, double, double> clave; // both ends, the lower first, and what tells it apart
        size_t cual;
        bool al_reves; // it was added from the higher end
    };

    // From piece to piece, until the first comes again.
    anillo desde(size_t nudo, const std::vector<std::array<size_t, 2>> &llegan) const {
        anillo a;
        const size_t primera = llegan[nudo][0];
        size_t k = primera;
        do {
            const size_t i = std::get<0>(piezas_[k].clave), j = std::get<1>(piezas_[k].clave);
            const bool baja = nudo == j;
            a.push_back({piezas_[k].cual, baja != piezas_[k].al_reves});
            nudo = baja ? i : j;
            k = llegan[nudo][0] == k ? llegan[nudo][1] : llegan[nudo][0];
        } while (k != primera);
        return a;
    }

    // The first one that is near enough, or a new one. Near ones stand in the same square of a grid or in one beside
    // it.
    size_t nudo_en(const Punto2D &p) {
        const double x = std::floor(p.x / PASO_DE_EXTREMOS), y = std::floor(p.y / PASO_DE_EXTREMOS);
        for (const double i : {x - 1, x, x + 1})
            for (auto n = cuadros_.lower_bound({i, y - 1}); n != cuadros_.end() && n->first <= std::pair{i, y + 1}; ++n)
                if (std::hypot(nudos_[n->second].x - p.x, nudos_[n->second].y - p.y) <= PASO_DE_EXTREMOS)
                    return n->second;
        cuadros_.emplace(std::pair{x, y}, nudos_.size());
        nudos_.push_back(p);
        return nudos_.size() - 1;
    }

    std::vector<pieza> piezas_;
    size_t cuantas_ = 0;
    std::vector<Punto2D> nudos_;
    std::multimap<std::pair<double, double>, size_t> cuadros_;
};

Punto2D medio_de(const Punto2D &a, const Punto2D &b) { return {(a.x + b.x) / 2, (a.y + b.y) / 2}; }

bool cierra(const polilinea &p, double metros) {
    if (p.vertices.size() < 2) return false;
    const Punto2D primero = por(p.vertices.front(), metros), ultimo = por(p.vertices.back(), metros);
    return p.cerrada || (p.vertices.size() > 2 && p_igual(&primero, &ultimo) == CIERTO);
}

} // namespace

std::vector<anillo> anillos_de(const capa &c, double metros) {
    anillos sueltas;
    for (const linea &l : c.lineas) sueltas.anade(por(l.a, metros), por(l.b, metros), medio_de(l.a, l.b), 0);
    for (const arco &a : c.arcos) {
        const auto en = [&](double t) {
            return por({a.centro.x + a.radio * std::cos(t), a.centro.y + a.radio * std::sin(t)}, metros);
        };
        sueltas.anade(en(a.desde), en(a.hasta), a.centro, barrido_de(a.desde, a.hasta));
    }
    const Punto2D ninguno{NAN, NAN};
    for (const polilinea &p : c.polilineas)
        if (p.vertices.size() < 2 || cierra(p, metros)) sueltas.anade(ninguno, ninguno, ninguno, 0);
        else
            sueltas.anade(por(p.vertices.front(), metros), por(p.vertices.back(), metros),
                          medio_de(p.vertices[p.vertices.size() / 2], p.vertices[(p.vertices.size() - 1) / 2]),
                          std::accumulate(p.curvaturas.begin(), p.curvaturas.end(), 0.));
    return sueltas.todos();
}

namespace {

size_t contornos_de(const capa &c, double metros) {
    size_t n = c.circulos.size() + anillos_de(c, metros).size();
    for (const elipse &e : c.elipses) n += SON_IGUALES(barrido_de(e.desde, e.hasta), VUELTA) == CIERTO;
    for (const polilinea &p : c.polilineas) n += cierra(p, metros);
    return n;
}

// ---------------------------------------------------------------- crossings

// Whether a segment lies wholly on one side of the line of another, further from it than the margin.
bool a_un_lado(const tramo &de, const tramo &otro) {
    const double dx = de.b.x - de.a.x, dy = de.b.y - de.a.y;
    const double margen = MARGEN_DE_CAJA * (std::fabs(dx) + std::fabs(dy));
    const double va = dx * (otro.a.y - de.a.y) - dy * (otro.a.x - de.a.x),
                 vb = dx * (otro.b.y - de.a.y) - dy * (otro.b.x - de.a.x);
    return (va > margen && vb > margen) || (va < -margen && vb < -margen);
}

bool es_extremo(const Punto2D &p, const tramo &t) { return p_igual(&p, &t.a) == CIERTO || p_igual(&p, &t.b) == CIERTO; }

// Where two segments meet, unless it is at an end of both.
std::optional<Punto2D> cruce_de(const tramo &s, const tramo &t) {
    if (a_un_lado(s, t) || a_un_lado(t, s)) return {};
    Punto2D *r = p_cortan(&s.a, &s.b, &t.a, &t.b);
    if (r == nullptr) return {};
    const Punto2D p = *r;
    vornspy_free_pp(&r, sizeof(Punto2D));
    return es_extremo(p, s) && es_extremo(p, t) ? std::optional<Punto2D>() : p;
}

// The crossings of segments, by halving the plane as long as that leaves fewer pairs to look at. A crossing counts
// where its point lies: each place belongs to one part.
class cruces {
  public:
    explicit cruces(tramos todos) : todos_(std::move(todos)) {
        // One drawn twice counts once; one of no length is none.
        std::erase_if(todos_, [](const tramo &t) { return p_igual(&t.a, &t.b) == CIERTO; });
        const auto clave = [](const tramo &t) { return std::tuple(t.a.x, t.a.y, t.b.x, t.b.y); };
        for (tramo &t : todos_)
            if (clave({t.b, t.a}) < clave(t)) std::swap(t.a, t.b);
        const auto antes = [&](const tramo &s, const tramo &t) { return clave(s) < clave(t); };
        const auto el_mismo = [&](const tramo &s, const tramo &t) { return clave(s) == clave(t); };
        std::sort(todos_.begin(), todos_.end(), antes);
        todos_.erase(std::unique(todos_.begin(), todos_.end(), el_mismo), todos_.end());
        quedan_ = MINIMO_DE_PAREJAS + PAREJAS_POR_TRAMO * todos_.size();
        std::vector<pieza> piezas;
        for (uint32_t i = 0; i < todos_.size(); ++i)
            piezas.push_back({{todos_[i].a.x, todos_[i].a.y}, {todos_[i].b.x, todos_[i].b.y}, i});
        constexpr double INF = std::numeric_limits<double>::infinity();
        busca(std::move(piezas), {{-INF, -INF}, {INF, INF}}, MAXIMO_DE_PARTICIONES);
    }

    size_t cuantos() const { return cuantos_; }
    bool todos() const { return quedan_ > 0 && cuantos_ < MAXIMO_DE_CRUCES; }

  private:
    // What is asked about at the most: beyond it the crossings are that many or more.
    static constexpr size_t MAXIMO_DE_CRUCES = 1'000'000, MINIMO_DE_PAREJAS = 4'000'000, PAREJAS_POR_TRAMO = 1000;
    static constexpr size_t POCAS = 16;
    static constexpr int MAXIMO_DE_PARTICIONES = 100;

    // The part of a segment in a zone; its coordinates by number.
    struct pieza {
        double a[2], b[2];
        uint32_t de;
        double minimo(int eje) const { return std::min(a[eje], b[eje]); }
        double maximo(int eje) const { return std::max(a[eje], b[eje]); }
        // Without what lies beyond `hasta`, which is a higher or a lower coordinate.
        pieza cortada(int eje, double hasta, bool mayor) const {
            pieza p = *this;
            const double t = (hasta - a[eje]) / (b[eje] - a[eje]);
            if (!(t > 0 && t < 1)) return p;
            double *fuera = (a[eje] > hasta) == mayor ? p.a : p.b;
            fuera[1 - eje] = a[1 - eje] + (b[1 - eje] - a[1 - eje]) * t;
            fuera[eje] = hasta;
            return p;
        }
    };
    struct zona {
        double desde[2], hasta[2];
    };

    tramos todos_;
    size_t cuantos_ = 0, quedan_;

    void busca(std::vector<pieza> piezas, const zona &z, int nivel) {
        const double todas = static_cast<double>(piezas.size()) * static_cast<double>(piezas.size());
        double mejor = 0.8 * todas, corte = 0;
        int eje = -1;
        for (int k = 0; k < 2 && piezas.size() > POCAS && nivel > 0; ++k) {
            double desde = piezas[0].a[k], hasta = desde, abajo = 0, arriba = 0;
            for (const pieza &p : piezas) desde = std::min(desde, p.minimo(k)), hasta = std::max(hasta, p.maximo(k));
            const double medio = desde + (hasta - desde) / 2;
            for (const pieza &p : piezas) {
                abajo += p.minimo(k) <= medio + MARGEN_DE_CAJA;
                arriba += p.maximo(k) >= medio - MARGEN_DE_CAJA;
            }
            const double parejas = abajo * abajo + arriba * arriba;
            if (parejas < mejor) mejor = parejas, eje = k, corte = medio;
        }
        if (eje < 0) return compara(piezas, z);
        std::vector<pieza> abajo, arriba;
        for (const pieza &p : piezas) {
            if (p.minimo(eje) <= corte + MARGEN_DE_CAJA) abajo.push_back(p.cortada(eje, corte + MARGEN_DE_CAJA, true));
            if (p.maximo(eje) >= corte - MARGEN_DE_CAJA)
                arriba.push_back(p.cortada(eje, corte - MARGEN_DE_CAJA, false));
        }
        piezas = {};
        zona de_abajo = z, de_arriba = z;
        de_abajo.hasta[eje] = de_arriba.desde[eje] = corte;
        busca(std::move(abajo), de_abajo, nivel - 1);
        busca(std::move(arriba), de_arriba, nivel - 1);
    }

    // By a sweep across the longest one, so that those along it are soon behind.
    void compara(const std::vector<pieza> &piezas, const zona &z) {
        const auto largo = [](const pieza &p) { return std::hypot(p.b[0] - p.a[0], p.b[1] - p.a[1]); };
        const auto mayor = std::max_element(piezas.begin(), piezas.end(),
                                            [&](const pieza &p, const pieza &q) { return largo(p) < largo(q); });
        if (mayor == piezas.end()) return;
        const double n = std::max(largo(*mayor), MARGEN_DE_CAJA);
        const double ux = (mayor->a[1] - mayor->b[1]) / n, uy = (mayor->b[0] - mayor->a[0]) / n;
        struct banda {
            double desde, hasta;
            uint32_t de;
        };
        std::vector<banda> bandas;
        for (const pieza &p : piezas) {
            const double a = ux * p.a[0] + uy * p.a[1], b = ux * p.b[0] + uy * p.b[1];
            bandas.push_back({std::min(a, b), std::max(a, b), p.de});
        }
        std::sort(bandas.begin(), bandas.end(), [](const banda &p, const banda &q) { return p.desde < q.desde; });
        for (auto i = bandas.begin(); i != bandas.end(); ++i)
            for (auto j = i + 1; j != bandas.end() && j->desde <= i->hasta + MARGEN_DE_CAJA; ++j) {
                if (!todos()) return;
                --quedan_;
                const auto p = cruce_de(todos_[std::min(i->de, j->de)], todos_[std::max(i->de, j->de)]);
                if (p && z.desde[0] <= p->x && p->x < z.hasta[0] && z.desde[1] <= p->y && p->y < z.hasta[1]) ++cuantos_;
            }
    }
};

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
    const cruces hallados(std::move(rectos));
    g.cruces = hallados.cuantos();
    g.hay_mas_cruces = !hallados.todos();
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
