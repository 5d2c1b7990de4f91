// Against outlines and answers made by others: hulls of real points and of borders of countries.
#include "envolvente.h"
#include "propiedades.h"
#include "prueba.h"
#include <map>

using namespace envolvente;

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

punto redondo(double x, double y, double escala) {
    return {static_cast<int32_t>(std::lround(x * escala)), static_cast<int32_t>(std::lround(y * escala))};
}

puntos_t redondos(const std::vector<double> &v, double escala) {
    puntos_t r;
    for (size_t i = 0; i + 1 < v.size(); i += 2) r.push_back(redondo(v[i], v[i + 1], escala));
    return r;
}

double area(const puntos_t &v) {
    double doble = 0.;
    for (size_t i = 0; i < v.size(); ++i) {
        const punto &a = v[i], &b = v[(i + 1) % v.size()];
        doble += static_cast<double>(a.x) * b.y - static_cast<double>(b.x) * a.y;
    }
    return doble / 2.;
}

} // namespace

PRUEBA(contornos, la_envolvente_de_mil_puntos_reales_tiene_sus_once_vertices) {
    const std::vector<double> v = numeros(vn::lee_fichero(vn::dato("C_polygons/hull_points_1k.json")));
    ASSERT_EQ(v.size(), 2000u);
    puntos_t esperados;
    for (const auto &f : vn::tabla("C_polygons/hull_points_1k_expected.tsv"))
        esperados.push_back(redondo(numero(f[1]), numero(f[2]), 1e6)); // six decimals
    EXPECT_EQ(poligono(redondos(v, 1e6)).todos(), esperados);
}

// Degrees in ten-millionths. Corners that hardly bend may go, which the area does not notice.
PRUEBA(contornos, la_envolvente_de_un_pais_tiene_su_area_y_sus_puntos_interiores) {
    std::map<std::string, puntos_t> dentro;
    for (const auto &f : vn::tabla("C_polygons/borders_points.tsv"))
        if (f[4] == "in") dentro[f[0] + "/" + f[1]].push_back(redondo(numero(f[2]), numero(f[3]), 1e7));
    int paises = 0, exactas = 0;
    for (const auto &f : vn::tabla("C_polygons/borders.tsv")) {
        SCOPED_TRACE(f[1]);
        const std::string &wkt = f[13];
        poligono e(redondos(numeros(wkt.substr(0, wkt.find(')'))), 1e7));
        const puntos_t antes = e.todos();
        EXPECT_NEAR(area(antes) / 1e14 / numero(f[9]), 1., 1e-7);
        EXPECT_LE(e.numVertices, numero(f[8]));
        EXPECT_GE(e.numVertices, numero(f[8]) - 2);
        exactas += e.numVertices == numero(f[8]);
        ++paises;
        e.anade(dentro[f[0] + "/" + f[2]]);
        EXPECT_EQ(e.todos(), antes);
    }
    EXPECT_EQ(paises, 30);
    EXPECT_GE(exactas, 25);
}
