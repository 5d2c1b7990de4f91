// Against outlines and answers made by others: exact cuts of segments, hulls of real points and of borders of
// countries.
#include "foundation/mt.h"
#include "geometry/poligono.h"
#include "propiedades.h"
#include "prueba.h"
#include <algorithm>
#include <map>
#include <set>

namespace {

double numero(const std::string &s) { return std::strtod(s.c_str(), nullptr); }

// The numbers of a text, in order, whatever stands between them.
std::vector<double> numeros(const std::string &s) {
    std::vector<double> v;
    for (const char *p = s.c_str(); *p != '\0';) {
        char *fin;
        const double x = std::strtod(p, &fin);
        if (fin != p) v.push_back(x);
        p = fin != p ? fin : p + 1;
    }
    return v;
}

using punto = std::pair<int32_t, int32_t>;
using par = std::set<std::pair<double, double>>;

struct envolvente : poligono_t {
    envolvente() { poligono_crea_pol(this); }
    ~envolvente() { poligono_destruye_pol(this); }
    envolvente(const envolvente &) = delete;
    envolvente &operator=(const envolvente &) = delete;
    void anade(double x, double y) {
        poligono_anade_punto_a_poligono_convexo(this, static_cast<int32_t>(std::lround(x)),
                                                static_cast<int32_t>(std::lround(y)));
    }
    double area() const {
        double doble = 0.;
        for (int32_t i = 0; i < numVertices; ++i) {
            const auto &a = vertice[i], &b = vertice[i + 1 < numVertices ? i + 1 : 0];
            doble += static_cast<double>(a.x) * b.y - static_cast<double>(b.x) * a.y;
        }
        return doble / 2.;
    }
    std::vector<punto> vertices() const {
        std::vector<punto> v;
        for (int32_t i = 0; i < numVertices; ++i) v.emplace_back(vertice[i].x, vertice[i].y);
        std::rotate(v.begin(), std::min_element(v.begin(), v.end()), v.end());
        return v;
    }
};

} // namespace

// "cross" is a point inside both, "touch" an end of one on the other, "overlap" a piece in common.
PRUEBA(contornos, los_cortes_de_segmentos_dificiles_son_los_exactos) {
    int filas = 0;
    for (const auto &f : vn::tabla("C_polygons/segment_pairs.tsv")) {
        double c[12] = {};
        for (size_t i = 0; i < 8; ++i) c[i] = numero(f[i + 1]);
        for (size_t i = 8; i < 12; ++i) c[i] = numero(f[i + 2]);
        mt_segmento_t a{c[0], c[1], c[2], c[3], 0, 0., 0., 0., 0.}, b{c[4], c[5], c[6], c[7], 0, 0., 0., 0., 0.};
        mt_calcula_inter_segmentos(&a, &b);
        const std::string &relacion = f[9];
        SCOPED_TRACE(testing::Message() << ++filas << " " << relacion << " " << a.numcortes << " " << b.numcortes);
        par vistos;
        for (const mt_segmento_t *s : {&a, &b}) {
            if (s->numcortes > 0) vistos.insert({s->x3, s->y3});
            if (s->numcortes > 1) vistos.insert({s->x4, s->y4});
        }
        if (relacion == "cross") { // the same in both, or the end of one on the other
            ASSERT_EQ(vistos.size(), 1u);
            EXPECT_TRUE(vn::cerca(vistos.begin()->first, c[8], 1e10) && vn::cerca(vistos.begin()->second, c[9], 1e10));
            continue;
        }
        // The points told, but for those that are ends of both.
        par esperados;
        for (const size_t k : {8u, 10u}) {
            const auto es_extremo = [&](const mt_segmento_t &s) {
                return (s.x1 == c[k] && s.y1 == c[k + 1]) || (s.x2 == c[k] && s.y2 == c[k + 1]);
            };
            if (!f[k + 2].empty() && !(es_extremo(a) && es_extremo(b))) esperados.insert({c[k], c[k + 1]});
        }
        EXPECT_EQ(vistos, esperados);
    }
    EXPECT_EQ(filas, 37);
}

PRUEBA(contornos, la_envolvente_de_mil_puntos_reales_tiene_sus_once_vertices) {
    const std::vector<double> v = numeros(vn::lee_fichero(vn::dato("C_polygons/hull_points_1k.json")));
    ASSERT_EQ(v.size(), 2000u);
    envolvente e;
    for (size_t i = 0; i < v.size(); i += 2) e.anade(v[i] * 1e6, v[i + 1] * 1e6); // six decimals
    std::vector<punto> esperados;
    for (const auto &f : vn::tabla("C_polygons/hull_points_1k_expected.tsv"))
        esperados.emplace_back(std::lround(numero(f[1]) * 1e6), std::lround(numero(f[2]) * 1e6));
    EXPECT_EQ(e.vertices(), esperados);
}

// Degrees in ten-millionths. Corners that hardly bend may go, which the area does not notice.
PRUEBA(contornos, la_envolvente_de_un_pais_tiene_su_area_y_sus_puntos_interiores) {
    std::map<std::string, std::vector<punto>> dentro;
    for (const auto &f : vn::tabla("C_polygons/borders_points.tsv"))
        if (f[4] == "in")
            dentro[f[0] + "/" + f[1]].emplace_back(std::lround(numero(f[2]) * 1e7),
                                                   std::lround(numero(f[3]) * 1e7));
    int paises = 0, exactas = 0;
    for (const auto &f : vn::tabla("C_polygons/borders.tsv")) {
        SCOPED_TRACE(f[1]);
        const std::string &wkt = f[13];
        const std::vector<double> v = numeros(wkt.substr(0, wkt.find(')')));
        envolvente e;
        for (size_t i = 0; i + 1 < v.size(); i += 2) e.anade(v[i] * 1e7, v[i + 1] * 1e7);
        EXPECT_NEAR(e.area() / 1e14 / numero(f[9]), 1., 1e-7);
        EXPECT_LE(e.numVertices, numero(f[8]));
        EXPECT_GE(e.numVertices, numero(f[8]) - 2);
        exactas += e.numVertices == numero(f[8]);
        ++paises;
        const std::vector<punto> antes = e.vertices();
        for (const punto &p : dentro[f[0] + "/" + f[2]]) e.anade(p.first, p.second);
        EXPECT_EQ(e.vertices(), antes);
    }
    EXPECT_EQ(paises, 30);
    EXPECT_GE(exactas, 25);
}
