// Against outlines and answers made by others: hulls of real points and of borders of countries.
#include "geometry/poligono.h"
#include "propiedades.h"
#include "prueba.h"
#include <algorithm>
#include <map>

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
