// Against outlines, crossings and clips made by others, and the answers that came with them.
#include "envolvente.h"
#include "espacio.h"
#include "geometry/ejes2d.h"
#include "geometry/polin3d.h"
#include "geometry/punto.h"
#include "geometry/rectng.h"
#include <algorithm>
#include <map>

using namespace espacio;
using envolvente::poligono, envolvente::puntos_t;

namespace {

// The points of a list of coordinates, in whole numbers.
puntos_t redondos(const std::vector<double> &v, double escala) {
    const auto entero = [escala](double x) { return static_cast<int32_t>(std::lround(x * escala)); };
    puntos_t r;
    for (size_t i = 0; i + 1 < v.size(); i += 2) r.push_back({entero(v[i]), entero(v[i + 1])});
    return r;
}

} // namespace

// Borders in ten-millionths of a degree: a hull has their area, where corners that hardly bend may go, and their points
// inside. Laid on planes of space, the axes turn as most of their corners do.
PRUEBA(ajenos, las_fronteras_tienen_su_envolvente_y_giran_como_la_mayoria_de_sus_esquinas) {
    std::map<std::string, std::vector<double>> dentro;
    for (const auto &f : vn::tabla("C_polygons/borders_points.tsv")) {
        auto &lista = dentro[f[0] + "/" + f[1]];
        if (f[4] == "in") lista.insert(lista.end(), {std::stod(f[2]), std::stod(f[3])});
    }
    vn::azar a(61);
    int paises = 0, exactas = 0, vueltas = 0;
    for (const auto &f : vn::tabla("C_polygons/borders.tsv")) {
        SCOPED_TRACE(f[1]);
        const auto v = vn::los_numeros(f[13].substr(0, f[13].find(')')));
        poligono e(redondos(v, 1e7));
        const puntos_t antes = e.todos();
        int64_t doble = 0;
        for (size_t i = 2; i < antes.size(); ++i) doble += envolvente::cruz<int64_t>(antes[0], antes[i - 1], antes[i]);
        EXPECT_NEAR(static_cast<double>(doble) / 2e14 / std::stod(f[9]), 1., 1e-7);
        EXPECT_LE(e.numVertices, std::stoi(f[8]));
        EXPECT_GE(e.numVertices, std::stoi(f[8]) - 2);
        exactas += e.numVertices == std::stoi(f[8]);
        ++paises;
        e.anade(redondos(dentro[f[0] + "/" + f[2]], 1e7));
        EXPECT_EQ(e.todos(), antes);

        std::vector<vec> anillo;
        for (size_t i = 0; i + 1 < v.size(); i += 2) anillo.push_back({v[i], v[i + 1], 0});
        for (const bool del_reves : {false, true}) {
            if (del_reves) std::reverse(anillo.begin(), anillo.end());
            const marco m = marco_al_azar(a, 1000.);
            std::vector<vec> lista;
            for (const vec &p : anillo) lista.push_back(m.punto(p.x, p.y));
            int izquierda = 0;
            for (size_t i = 0, n = anillo.size(); i < n; ++i) {
                const double c = cruz(anillo[i] - anillo[(i + n - 1) % n], anillo[(i + 1) % n] - anillo[i]).z;
                izquierda += (c > 1e-8) - (c < -1e-8);
            }
            if (std::abs(izquierda) < 3) continue; // a corner by the limit could turn it
            marco r;
            ASSERT_EQ(ejes2d_punto3D_forman_ejes(puntos(lista), A_EJ(r)), CIERTO);
            EXPECT_EQ(por(r.w(), m.w()) > 0., izquierda > 0);
            const double perimetro = std::stod(f[10]), hay = Pln3D_Longitud(puntos(lista));
            EXPECT_TRUE(f[3] != "1" || std::fabs(hay - perimetro) < 1e-6 * perimetro) << hay; // no holes
            ++vueltas;
        }
    }
    EXPECT_EQ(paises, 30);
    EXPECT_GE(exactas, 25);
    EXPECT_GT(vueltas, 40);
}

PRUEBA(ajenos, los_pares_dificiles_cruzan_donde_deben) {
    int filas = 0, cruces = 0;
    for (const auto &f : vn::tabla("C_polygons/segment_pairs.tsv")) {
        double v[8];
        for (size_t i = 0; i < 8; ++i) v[i] = std::stod(f[i + 1]);
        const Punto2D p1 = {v[0], v[1]}, q1 = {v[2], v[3]}, p2 = {v[4], v[5]}, q2 = {v[6], v[7]};
        SCOPED_TRACE(testing::Message() << f[0] << " row " << ++filas << ": " << f[9]);
        Punto2D *r = p_cortan(&p1, &q1, &p2, &q2);
        // Pieces that overlap cross only at an end that both have.
        const bool comun = p_igual(&p1, &p2) || p_igual(&p1, &q2) || p_igual(&q1, &p2) || p_igual(&q1, &q2);
        const bool encima = f[9] == "overlap";
        EXPECT_EQ(r != nullptr, encima ? comun : f[9] != "none");
        EXPECT_TRUE(!encima || p_segmentos_se_solapan(&p1, &q1, &p2, &q2));
        if (r == nullptr) continue;
        ++cruces;
        EXPECT_TRUE(p_contenido(r, &p1, &q1) && p_contenido(r, &p2, &q2));
        // Where it is on the first of two that are nearly parallel, rounding has a say.
        const double den = std::fabs((v[0] - v[2]) * (v[7] - v[5]) - (v[1] - v[3]) * (v[6] - v[4]));
        const double mal = den == 0 ? 0 : p_modulo2(&p1, &q1) * p_modulo2(&p1, &q1) * p_modulo2(&p2, &q2) / den;
        const Punto2D exacto = {std::stod(f[10]), std::stod(f[11])};
        EXPECT_TRUE(encima || p_modulo2(r, &exacto) < 5e-5 + 1e-15 * mal) << r->x << " " << r->y;
        vornspy_free_pp(&r, sizeof(Punto2D));
    }
    EXPECT_EQ(filas, 37);
    EXPECT_GE(cruces, 15);
}

PRUEBA(ajenos, los_recortes_dejan_lo_que_se_ve) {
    int filas = 0;
    for (const auto &f : vn::tabla("C_polygons/clip_segments.tsv")) {
        double v[8], r[4] = {}, a[4] = {};
        for (size_t i = 0; i < 8; ++i) v[i] = std::stod(f[i + 1]);
        SCOPED_TRACE(testing::Message() << f[0] << " row " << ++filas << ": " << f[9]);
        const vnbool visto =
            rec_clip_linea_liang_barsky(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], &r[0], &r[1], &r[2], &r[3]);
        const vn::dueno<rec_Destruye> rec(rec_CreaDefinido(v[0], v[1], v[2], v[3]));
        EXPECT_EQ(rec_ClipSegmentoAntiguo(rec.get(), v[4], v[5], v[6], v[7], &a[0], &a[1], &a[2], &a[3]), visto);
        EXPECT_EQ(visto == CIERTO, f[9] != "no");
        if (f[9] == "no") continue;
        for (size_t i = 0; i < 4; ++i) {
            EXPECT_TRUE(vn::cerca(r[i], std::stod(f[10 + i]), 1 + std::fabs(r[i])));
            // The tolerant one leaves what runs along a side, and the far end of what begins on one and goes out.
            const bool entero = (v[4] == v[6] && (v[4] == v[0] || v[4] == v[2])) || (f[9] == "point" && i > 1);
            EXPECT_TRUE(vn::cerca(a[i], entero ? v[4 + i] : r[i], 1 + std::fabs(r[i])));
        }
    }
    EXPECT_GE(filas, 80);
}
