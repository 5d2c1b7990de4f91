#define VN_MODULO "poligono (NUCLEOS.DLL)"
#include "geometry/poligono.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/vornspy.h"
#include <algorithm>
#include <cmath>
#include <cstdlib>

using namespace vn::numeros;

namespace {

using vertice = poligono_vertice_t;

// Cross product beyond which a point is beside an edge; what is less is rounding, as the coordinates are
// whole.
constexpr double TOLERANCIA_LADO = 1e-07;
// Inner angles are looked at to four decimals, so that almost flat corners go.
constexpr double DECIMALES_ANGULO = 10000.0;
// What a straight angle may miss of the half turn: rounded below 0 and brought up by a turn, it is 3.141585.
constexpr double TOLERANCIA_LLANO = 1e-5;
// How far below the bounds the ray of the inside test ends.
constexpr double BAJO_EL_POLIGONO = 1000.;
constexpr int MAXIMO_VUELTAS = 100;

// Differences of coordinates need more than 32 bits.
Punto2D desde(const vertice &a, const vertice &b) {
    return {static_cast<double>(b.x) - a.x, static_cast<double>(b.y) - a.y};
}

// Where a point is from an edge.
enum class lado_t { antes = 0, despues = 1, entre = 2, izquierda = 3, derecha = 4 };

lado_t lado(const vertice &a, const vertice &b, const vertice &p) {
    const Punto2D arista = desde(a, b), al_punto = desde(a, p);
    const double c = vectorial(arista, al_punto);
    if (c > TOLERANCIA_LADO) return lado_t::izquierda;
    if (c < -TOLERANCIA_LADO) return lado_t::derecha;
    if (escalar(arista, al_punto) < 0.) return lado_t::antes;
    return escalar(arista, desde(b, p)) >= 0. ? lado_t::despues : lado_t::entre;
}

bool iguales(const vertice &a, const vertice &b) { return a.x == b.x && a.y == b.y; }

int32_t siguiente(const poligono_t *pol, int32_t i) { return i + 1 < pol->numVertices ? i + 1 : 0; }
int32_t anterior(const poligono_t *pol, int32_t i) { return i > 0 ? i - 1 : pol->numVertices - 1; }

// ---------------------------------------------------------------- the block

void redimensiona(poligono_t *pol, int32_t n) {
    pol->vertice = static_cast<vertice *>(vornspy_realloc(pol->vertice, static_cast<size_t>(n) * sizeof(vertice)));
    pol->numVertices = n;
}

void inserta(poligono_t *pol, int32_t i, const vertice &v) {
    redimensiona(pol, pol->numVertices + 1);
    std::move_backward(pol->vertice + i, pol->vertice + pol->numVertices - 1, pol->vertice + pol->numVertices);
    pol->vertice[i] = v;
    poligono_maximiza_pol(v.x, v.y, pol);
}

void reemplaza(poligono_t *pol, int32_t i, const vertice &v) {
    pol->vertice[i] = v;
    poligono_maximiza_pol(v.x, v.y, pol);
}

void quita(poligono_t *pol, int32_t i) {
    if (!AFIRMA(i >= 0 && i < pol->numVertices) || !AFIRMA(pol->numVertices > 3)) return;
    std::move(pol->vertice + i + 1, pol->vertice + pol->numVertices, pol->vertice + i);
    redimensiona(pol, pol->numVertices - 1);
}

// ---------------------------------------------------------------- pruning

bool es_esquina_de_los_limites(const poligono_t *pol, const vertice &v) {
    return (v.x == pol->xmin || v.x == pol->xmax) && (v.y == pol->ymin || v.y == pol->ymax);
}

// Whether the outline turns right or runs straight on at a vertex; not at a needle, where it runs back on itself.
bool sobra_sin_duda(const poligono_t *pol, int32_t i) {
    if (!(pol->numVertices > 3)) return false;
    const vertice *v = pol->vertice;
    const lado_t donde = lado(v[anterior(pol, i)], v[i], v[siguiente(pol, i)]);
    return donde == lado_t::derecha || donde == lado_t::despues;
}

bool se_puede_quitar(const poligono_t *pol, int32_t i) {
    if (!(pol->numVertices > 3)) return false;
    const vertice &v = pol->vertice[i], &antes = pol->vertice[anterior(pol, i)],
                  &despues = pol->vertice[siguiente(pol, i)];
    if (iguales(v, antes) || iguales(v, despues)) return true;
    if (es_esquina_de_los_limites(pol, v)) return false;
    double angulo = mt_angulo(v.x, v.y, antes.x, antes.y) - mt_angulo(v.x, v.y, despues.x, despues.y);
    angulo = std::floor(angulo * DECIMALES_ANGULO + 0.5) / DECIMALES_ANGULO;
    return mt_filtra_angulo_mayor_que_cero(angulo) >= MEDIA_VUELTA - TOLERANCIA_LLANO;
}

// Takes the vertices for which `sobra` holds, from `vertizq` backwards and from `vertder` onwards.
void poda_los_que(bool (*sobra)(const poligono_t *, int32_t), poligono_t *pol, int32_t &vertizq, int32_t &vertder) {
    while (sobra(pol, vertizq)) {
        if (!AFIRMA(vertizq != vertder)) return;
        quita(pol, vertizq);
        if (vertder > vertizq) --vertder;
        vertizq = vertizq > 0 ? vertizq - 1 : pol->numVertices - 1;
    }
    while (sobra(pol, vertder)) {
        quita(pol, vertder);
        if (vertizq > vertder) --vertizq;
        vertder %= pol->numVertices;
    }
}

void poda(poligono_t *pol, int32_t vertizq, int32_t vertder) {
    // First those that are inside beyond doubt: the rounded angle of a needle is 0 on either side of the full
    // turn, and an almost flat corner that went before them could leave three points that run clockwise.
    poda_los_que(sobra_sin_duda, pol, vertizq, vertder);
    poda_los_que(se_puede_quitar, pol, vertizq, vertder);
}

// ---------------------------------------------------------------- inside

mt_segmento_t segmento(double x1, double y1, double x2, double y2) { return {x1, y1, x2, y2, 0, 0., 0., 0., 0.}; }

struct corte_de_rayo {
    bool en_el_borde;
    int medios; // half crossings
};

// One edge against the ray that goes down from the point.
corte_de_rayo corta_rayo(mt_segmento_t &seg1, const vertice &v1, const vertice &v2) {
    mt_segmento_t seg2 = segmento(v1.x, v1.y, v2.x, v2.y);
    mt_calcula_inter_segmentos(&seg1, &seg2);
    const auto es = [](double x, double y, double xe, double ye) { return x == xe && y == ye; };
    const bool corte1 = es(seg1.x3, seg1.y3, seg1.x1, seg1.y1), corte2 = es(seg1.x4, seg1.y4, seg1.x1, seg1.y1);
    if (seg1.numcortes == 0) {
        if (seg2.numcortes != 1) {
            AFIRMA(seg2.numcortes == 0);
            return {false, 0};
        }
        AFIRMA(seg2.x3 == seg1.x1);
        AFIRMA(seg2.y3 == seg1.y1);
        return {true, 0};
    }
    if (seg1.numcortes == 2) return {corte1 || corte2, 0};
    if (corte1) return {true, 0};
    const bool primero = es(seg1.x3, seg1.y3, seg2.x1, seg2.y1), segundo = es(seg1.x3, seg1.y3, seg2.x2, seg2.y2);
    if (!primero && !segundo) return {false, 2};
    if (seg2.x1 != seg2.x2) return {false, seg2.x2 > seg2.x1 ? 1 : -1};
    if (primero) AFIRMA(seg2.y2 > seg1.y1);
    else AFIRMA(seg2.y1 > seg1.y1);
    return {true, 0};
}

bool poligono_punto_dentro(const poligono_t *pol, const vertice &p) {
    if (p.x < pol->xmin || p.x > pol->xmax || p.y < pol->ymin || p.y > pol->ymax) return false;
    const vertice *v = pol->vertice, *fin = v + pol->numVertices;
    if (std::any_of(v, fin, [&p](const vertice &q) { return iguales(p, q); })) return true;
    mt_segmento_t seg1 = segmento(p.x, p.y, p.x, static_cast<double>(pol->ymin) - BAJO_EL_POLIGONO);
    int numcortes_abajo = 0;
    for (const vertice *a = fin - 1, *b = v; b != fin; a = b++) {
        // An edge to one side of the ray, or wholly above it, has no cut.
        if ((a->x < p.x && b->x < p.x) || (a->x > p.x && b->x > p.x) || (a->y > p.y && b->y > p.y)) continue;
        const corte_de_rayo c = corta_rayo(seg1, *a, *b);
        if (c.en_el_borde) return true;
        numcortes_abajo += c.medios;
    }
    while (numcortes_abajo < 0) numcortes_abajo += 4;
    AFIRMA(numcortes_abajo % 2 == 0);
    return numcortes_abajo / 2 % 2 == 1;
}

// ---------------------------------------------------------------- the edge that takes a point

// The first edge that cuts the segment from the point to vertex t, of those that do not end there: its first
// vertex, or -1.
int32_t arista_que_tapa(const poligono_t *pol, const vertice &p, int32_t t) {
    const vertice &vt = pol->vertice[t];
    const int32_t t_mas_1 = siguiente(pol, t);
    const int32_t xmin = std::min(p.x, vt.x), xmax = std::max(p.x, vt.x), ymin = std::min(p.y, vt.y),
                  ymax = std::max(p.y, vt.y);
    for (int32_t k = 0, k_menos_1 = pol->numVertices - 1; k < pol->numVertices; k_menos_1 = k++) {
        if (k == t || k == t_mas_1) continue;
        const vertice &a = pol->vertice[k_menos_1], &b = pol->vertice[k];
        // Boxes apart: no cut.
        if ((a.x < xmin && b.x < xmin) || (a.x > xmax && b.x > xmax) || (a.y < ymin && b.y < ymin) ||
            (a.y > ymax && b.y > ymax))
            continue;
        mt_segmento_t seg1 = segmento(p.x, p.y, vt.x, vt.y), seg2 = segmento(a.x, a.y, b.x, b.y);
        mt_calcula_inter_segmentos(&seg1, &seg2);
        if (seg1.numcortes > 0) return k_menos_1;
    }
    return -1;
}

int32_t vertice_mas_cercano(const poligono_t *pol, const vertice &p) {
    const auto manhattan = [&p](const vertice &v) {
        return std::abs(int64_t{v.x} - p.x) + std::abs(int64_t{v.y} - p.y);
    };
    int32_t mejor = 0;
    int64_t distancia = manhattan(pol->vertice[0]);
    for (int32_t i = 1; i < pol->numVertices; ++i)
        if (const int64_t d = manhattan(pol->vertice[i]); d < distancia) {
            distancia = d;
            mejor = i;
        }
    return mejor;
}

// The edge i -> i + 1 that the point, which is outside, is to be put into.
int32_t arista_para(const poligono_t *pol, const vertice &p) {
    int32_t i = vertice_mas_cercano(pol, p);
    for (int vueltas = 0; AFIRMA_TEXTO(vueltas < MAXIMO_VUELTAS, "vueltas < 100"); ++vueltas) {
        const int32_t j = siguiente(pol, i);
        int32_t tapa = arista_que_tapa(pol, p, i);
        if (tapa < 0) tapa = arista_que_tapa(pol, p, j);
        if (tapa >= 0) i = tapa;
        else if (lado(pol->vertice[i], pol->vertice[j], p) == lado_t::izquierda) i = anterior(pol, i);
        else return i;
    }
    // After the report: any edge that has the point outside keeps the polygon convex.
    for (int32_t k = 0; k < pol->numVertices; ++k)
        if (lado(pol->vertice[k], pol->vertice[siguiente(pol, k)], p) == lado_t::derecha) return k;
    return i;
}

// ---------------------------------------------------------------- the quick road

// Up to this area of the bounds a cross product of differences of coordinates is a whole number that a double holds, so
// that `lado` is exact too and the polygon strictly convex.
constexpr double AREA_EXACTA = 0x1p+53;
constexpr int32_t NINGUNA = -1;

int64_t giro(const vertice &a, const vertice &b, const vertice &p) {
    return (int64_t{b.x} - a.x) * (int64_t{p.y} - a.y) - (int64_t{b.y} - a.y) * (int64_t{p.x} - a.x);
}

// The first vertex of an edge that has the point outside, by bisection of the fan of vertex 0; NINGUNA if no edge has.
int32_t arista_visible(const poligono_t *pol, const vertice &p) {
    const vertice *v = pol->vertice;
    const int32_t n = pol->numVertices;
    if (giro(v[0], v[1], p) < 0) return 0;
    if (giro(v[n - 1], v[0], p) < 0) return n - 1;
    int32_t k = 1;
    for (int32_t hasta = n - 1; hasta - k > 1;) {
        const int32_t m = k + (hasta - k) / 2;
        (giro(v[0], v[m], p) >= 0 ? k : hasta) = m;
    }
    return giro(v[k], v[k + 1], p) < 0 ? k : NINGUNA;
}

// Adds the point as the search over all vertices would, in a time that does not grow with their number but for the move
// of the block. False, and nothing done, where that search has to be made: figures that it rounds, and a point that
// sees vertex 0, about which the edge that the search takes decides where the array begins.
bool anade_deprisa(poligono_t *pol, const vertice &p) {
    const double ancho = double(std::max(pol->xmax, p.x)) - std::min(pol->xmin, p.x),
                 alto = double(std::max(pol->ymax, p.y)) - std::min(pol->ymin, p.y);
    if (!(ancho * alto <= AREA_EXACTA)) return false;
    const int32_t visible = arista_visible(pol, p);
    if (visible == NINGUNA) return p.x >= pol->xmin && p.x <= pol->xmax && p.y >= pol->ymin && p.y <= pol->ymax;
    // The two tangents: all between them goes, what lies on the line of an edge included.
    const vertice *v = pol->vertice;
    int32_t t1 = visible, t2 = visible + 1;
    while (t1 > 0 && giro(v[t1 - 1], v[t1], p) <= 0) --t1;
    while (t2 + 1 < pol->numVertices && giro(v[t2], v[t2 + 1], p) <= 0) ++t2;
    if (t1 == 0 || t2 >= pol->numVertices - 1) return false;
    if (t2 == t1 + 1) {
        inserta(pol, t2, p);
    } else {
        reemplaza(pol, t1 + 1, p);
        std::move(v + t2, v + pol->numVertices, pol->vertice + t1 + 2);
        redimensiona(pol, pol->numVertices - (t2 - t1 - 2));
    }
    t2 = t1 + 2;
    poda_los_que(se_puede_quitar, pol, t1, t2);
    return true;
}

void anade_fuera(poligono_t *pol, const vertice &p) {
    AFIRMA(pol->numVertices > 2);
    const int32_t i = arista_para(pol, p), j = siguiente(pol, i);
    const vertice &vi = pol->vertice[i], &vj = pol->vertice[j];
    const bool vertical = vi.x == vj.x && p.x == vi.x, horizontal = vi.y == vj.y && p.y == vi.y;
    if (!vertical && !horizontal) {
        inserta(pol, i + 1, p);
        poda(pol, i, (i + 2) % pol->numVertices);
        return;
    }
    // On the line of the edge: beyond one of its ends, which it takes the place of.
    const lado_t donde = lado(vi, vj, p);
    if (donde == lado_t::entre) return;
    const int32_t extremo = donde == lado_t::antes ? i : j;
    reemplaza(pol, extremo, p);
    poda(pol, anterior(pol, extremo), siguiente(pol, extremo));
}

} // namespace

void poligono_crea_pol(poligono_t *pol) {
    if (AFIRMA_TEXTO(pol != nullptr, "pol != NULL")) *pol = {0, nullptr, INT32_MAX, INT32_MIN, INT32_MAX, INT32_MIN};
}

void poligono_destruye_pol(poligono_t *pol) {
    if (!AFIRMA_TEXTO(pol != nullptr, "pol != NULL")) return;
    if (pol->vertice != nullptr) vornspy_free_pp(&pol->vertice, sizeof(vertice));
    poligono_crea_pol(pol);
}

void poligono_maximiza_pol(int32_t x, int32_t y, poligono_t *pol) {
    if (!AFIRMA_TEXTO(pol != nullptr, "pol != NULL")) return;
    pol->xmin = std::min(pol->xmin, x);
    pol->xmax = std::max(pol->xmax, x);
    pol->ymin = std::min(pol->ymin, y);
    pol->ymax = std::max(pol->ymax, y);
}

void poligono_anade_punto_a_poligono_convexo(poligono_t *pol, int32_t x, int32_t y) {
    if (!AFIRMA_TEXTO(pol != nullptr, "pol != NULL") ||
        !AFIRMA_TEXTO(pol->numVertices >= 0 && (pol->numVertices == 0) == (pol->vertice == nullptr),
                      "pol->numVertices == 0 || pol->vertice != NULL"))
        return;
    const vertice p{x, y};
    switch (pol->numVertices) {
    case 0: inserta(pol, 0, p); return;
    case 1:
        if (!iguales(p, pol->vertice[0])) inserta(pol, 1, p);
        return;
    case 2:
        switch (lado(pol->vertice[0], pol->vertice[1], p)) {
        case lado_t::antes: reemplaza(pol, 0, p); return;
        case lado_t::despues: reemplaza(pol, 1, p); return;
        case lado_t::entre: return;
        case lado_t::izquierda: inserta(pol, 2, p); return;
        case lado_t::derecha: inserta(pol, 1, p); return;
        default: AFIRMA_DEFECTO(); return;
        }
    default:
        if (!anade_deprisa(pol, p) && !poligono_punto_dentro(pol, p)) anade_fuera(pol, p);
    }
}
