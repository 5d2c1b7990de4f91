#include "envolvente.h"
#include "foundation/numeros/mt.h"
#include "propiedades.h"

using envolvente::poligono, envolvente::punto, envolvente::puntos_t;
using vn::azar;

namespace {

__extension__ using largo = __int128;
constexpr auto cruz = envolvente::cruz<largo>;
constexpr auto cadena = envolvente::cadena<largo>;

// Whether every corner of a convex outline bends by more than a ten-thousandth of a radian: those that bend less may
// go.
bool sin_esquinas_llanas(const puntos_t &h) {
    const size_t n = h.size();
    for (size_t i = 0; n > 2 && i < n; ++i) {
        const punto &a = h[(i + n - 1) % n], &b = h[i], &c = h[(i + 1) % n];
        const double l = mt_distancia(a.x, a.y, b.x, b.y) * mt_distancia(b.x, b.y, c.x, c.y);
        if (static_cast<double>(cruz(a, b, c)) < 1.2e-4 * l) return false;
    }
    return true;
}

// How far outside an outline a point is; 0 inside, on it, and where there is no outline.
double fuera(const puntos_t &h, const punto &p) {
    double d = 0.;
    for (size_t i = 0; h.size() > 2 && i < h.size(); ++i) {
        const punto &a = h[i], &b = h[(i + 1) % h.size()];
        d = std::max(d, -static_cast<double>(cruz(a, b, p)) / mt_distancia(a.x, a.y, b.x, b.y));
    }
    return d;
}

puntos_t nube(azar &a, size_t n, int forma, int32_t r, const punto &o = {0, 0}) {
    puntos_t v(n);
    for (punto &p : v) {
        const auto u = [&] { return static_cast<int32_t>(a.entero_entre(-int64_t{r} - (r == INT32_MAX), r)); };
        p = {u(), u()};
        if (forma == 1) { // on a circle, without the platform's functions
            const double t = a.entre(-1., 1.), k = (a.moneda() ? r : -r) / (1. + t * t), x = k * (1. - t * t),
                         y = k * 2. * t;
            p = a.moneda() ? punto{static_cast<int32_t>(x), static_cast<int32_t>(y)}
                           : punto{static_cast<int32_t>(y), static_cast<int32_t>(x)};
        }
        if (forma == 2)
            p.y = static_cast<int32_t>(int64_t{p.x} * 3 / 7) + static_cast<int32_t>(a.entero(5)); // almost a line
        if (forma == 3) p.y = static_cast<int32_t>(a.entero(3));                                  // three lines
        if (forma == 4) p = {p.x - p.x % (r / 2 + 1), p.y - p.y % (r / 2 + 1)}; // a few places, again and again
        p = {p.x + o.x, p.y + o.y};
    }
    return v;
}

} // namespace

PRUEBA(poligono, lo_que_no_tiene_puntos_y_las_esquinas_del_rango) {
    constexpr int32_t MIN = INT32_MIN, MAX = INT32_MAX;
    EXPECT_EQ(poligono({{MIN, MIN}, {MAX, MAX}, {MIN, MAX}, {MAX, MIN}, {0, 0}}).todos(),
              (puntos_t{{MIN, MIN}, {MAX, MIN}, {MAX, MAX}, {MIN, MAX}}));
    poligono p({});
    EXPECT_TRUE(p.vertice == nullptr && p.xmin == MAX && p.xmax == MIN && p.ymin == MAX && p.ymax == MIN);
    poligono_maximiza_pol(5, -7, &p);
    EXPECT_TRUE(p.xmin == 5 && p.xmax == 5 && p.ymin == -7 && p.ymax == -7 && p.numVertices == 0);
    for (const int32_t n : {2, -1}) {
        poligono_t malo{n, nullptr, 0, 0, 0, 0};
        ESPERA_INFORME("pol->numVertices == 0 || pol->vertice != NULL",
                       poligono_anade_punto_a_poligono_convexo(&malo, 1, 1));
        EXPECT_EQ(malo.numVertices, n);
    }
}

// One point after another, from the first on: repeated ones, lines and places about each corner and side are in the
// narrow clouds.
PRUEBA(poligono, la_envolvente_tiene_todos_los_puntos_y_es_la_de_la_cadena) {
    azar a(41);
    vn::huella h;
    int exactas = 0, total = 0;
    for (const int32_t r : {6, 100, 30000, 1000000, INT32_MAX})
        for (int forma = 0; forma < 5; ++forma)
            for (int caso = 0; caso < 120; ++caso) {
                SCOPED_TRACE(testing::Message() << r << " " << forma << " " << caso);
                const vn::lugar l = vn::lugar_de(r <= 1000000 ? caso : 0);
                const uint32_t n = caso % 20 == 0 ? 2000 : caso % 2 == 0 && r <= 100 ? 12 : 150;
                const puntos_t puntos =
                    nube(a, 1 + a.entero(n), forma, r, {static_cast<int32_t>(l.x), static_cast<int32_t>(l.y)});
                const poligono p(puntos);
                const puntos_t v = p.todos(), c = cadena(puntos);
                for (size_t i = 0; v.size() > 2 && i < v.size(); ++i)
                    ASSERT_GT(cruz(v[i], v[(i + 1) % v.size()], v[(i + 2) % v.size()]), 0);
                const bool exacta = sin_esquinas_llanas(c);
                ASSERT_TRUE(!exacta || v == c);
                exactas += exacta;
                ++total;
                for (const punto &q : puntos) {
                    ASSERT_LE(fuera(v, q), 1e-4 * r);
                    ASSERT_TRUE(q.x >= p.xmin && q.x <= p.xmax && q.y >= p.ymin && q.y <= p.ymax);
                }
                h << p.numVertices << p.xmin << p.ymax;
                for (int32_t i = 0; i < p.numVertices; ++i)
                    h << p.vertice[i].x << p.vertice[i].y; // from where the first stands
            }
    EXPECT_GT(exactas, total / 2);
    EXPECT_EQ(h(), 3346193932231540723u);
}

// The angle of a corner is looked at to four decimals when its neighbour comes: 3.1415 stays and 3.1416 goes, on every
// side of the polygon. With three vertices none goes, nor does one at a corner of the bounds.
PRUEBA(poligono, una_esquina_casi_llana_se_quita_desde_el_cuarto_vertice) {
    for (int giro = 0; giro < 4; ++giro) {
        const auto girada = [giro](punto p) {
            for (int i = 0; i < giro; ++i) p = {-p.y, p.x};
            return p;
        };
        // The top, above a base of 200,000, bends by twice its height in hundred-thousandths.
        const auto con_cima = [&](int32_t alto) {
            return poligono({girada({-100000, 0}), girada({0, -100000}), girada({0, alto}), girada({100000, 0})})
                .numVertices;
        };
        EXPECT_TRUE(con_cima(3) == 4 && con_cima(2) == 3 && con_cima(0) == 3) << giro; // 3.14153, 3.14155
    }
    EXPECT_EQ(poligono({{-100000, 0}, {100000, 0}, {0, 1}}).numVertices, 3);
    EXPECT_EQ(poligono({{0, 100000}, {0, 0}, {100000, 100000}, {100000, 1}}).numVertices, 4);
}
