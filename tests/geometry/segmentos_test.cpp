// Crossings and clips of other programs' hardest cases, with their exact answers.
#include "foundation/numeros/mt.h"
#include "geometry/punto.h"
#include "geometry/rectng.h"
#include "propiedades.h"
#include "prueba.h"
#include <set>

namespace {

// Both exact segments' cuts against those told; "cross" is a point inside both, "touch" an end of one on the other,
// "overlap" a piece in common.
void corta_exactamente(const double (&v)[8], const std::string &relacion, const std::string *dados) {
    mt_segmento_t a{v[0], v[1], v[2], v[3], 0, 0., 0., 0., 0.}, b{v[4], v[5], v[6], v[7], 0, 0., 0., 0., 0.};
    mt_calcula_inter_segmentos(&a, &b);
    std::set<std::pair<double, double>> vistos, esperados;
    for (const mt_segmento_t *s : {&a, &b}) {
        if (s->numcortes > 0) vistos.insert({s->x3, s->y3});
        if (s->numcortes > 1) vistos.insert({s->x4, s->y4});
    }
    for (const size_t k : {0u, 2u}) {
        if (dados[k].empty()) continue;
        const double x = std::stod(dados[k]), y = std::stod(dados[k + 1]);
        if (relacion == "cross") { // the same in both, or the end of one on the other
            ASSERT_EQ(vistos.size(), 1u);
            EXPECT_TRUE(vn::cerca(vistos.begin()->first, x, 1 + std::fabs(x)) &&
                        vn::cerca(vistos.begin()->second, y, 1 + std::fabs(y)));
            return;
        }
        const auto es_extremo = [&](const mt_segmento_t &s) {
            return (s.x1 == x && s.y1 == y) || (s.x2 == x && s.y2 == y);
        };
        if (!(es_extremo(a) && es_extremo(b))) esperados.insert({x, y}); // ends of both cut none
    }
    EXPECT_EQ(vistos, esperados);
}

} // namespace

PRUEBA(segmentos, los_pares_dificiles_cruzan_donde_deben) {
    int filas = 0, cruces = 0;
    for (const auto &f : vn::tabla("C_polygons/segment_pairs.tsv")) {
        double v[8];
        for (size_t i = 0; i < 8; ++i) v[i] = std::stod(f[i + 1]);
        const Punto2D p1 = {v[0], v[1]}, q1 = {v[2], v[3]}, p2 = {v[4], v[5]}, q2 = {v[6], v[7]};
        SCOPED_TRACE(testing::Message() << f[0] << " row " << ++filas << ": " << f[9]);
        corta_exactamente(v, f[9], &f[10]);
        Punto2D *r = p_cortan(&p1, &q1, &p2, &q2);
        const bool comun = p_igual(&p1, &p2) || p_igual(&p1, &q2) || p_igual(&q1, &p2) || p_igual(&q1, &q2);
        // Pieces that overlap cross only at an end that both have.
        const bool esperado = f[9] == "none" ? false : f[9] == "overlap" ? comun : true;
        EXPECT_EQ(r != nullptr, esperado);
        if (f[9] == "overlap") {
            EXPECT_TRUE(p_segmentos_se_solapan(&p1, &q1, &p2, &q2));
        }
        if (r == nullptr) continue;
        ++cruces;
        EXPECT_TRUE(p_contenido(r, &p1, &q1) && p_contenido(r, &p2, &q2));
        // Where it is on the first of two that are nearly parallel, rounding has a say.
        const double den = std::fabs((v[0] - v[2]) * (v[7] - v[5]) - (v[1] - v[3]) * (v[6] - v[4]));
        const double mal = den == 0 ? 0 : p_modulo2(&p1, &q1) * p_modulo2(&p1, &q1) * p_modulo2(&p2, &q2) / den;
        const Punto2D exacto = {std::stod(f[10]), std::stod(f[11])};
        if (f[9] != "overlap") {
            EXPECT_LT(p_modulo2(r, &exacto), 5e-5 + 1e-15 * mal) << r->x << " " << r->y;
        }
        vornspy_free_pp(&r, sizeof(Punto2D));
    }
    EXPECT_EQ(filas, 37);
    EXPECT_GE(cruces, 15);
}

PRUEBA(segmentos, los_recortes_dejan_lo_que_se_ve) {
    int filas = 0;
    for (const auto &f : vn::tabla("C_polygons/clip_segments.tsv")) {
        double v[8], r[4] = {}, a[4] = {};
        for (size_t i = 0; i < 8; ++i) v[i] = std::stod(f[i + 1]);
        SCOPED_TRACE(testing::Message() << f[0] << " row " << ++filas << ": " << f[9]);
        const vnbool visto =
            rec_clip_linea_liang_barsky(v[0], v[1], v[2], v[3], v[4], v[5], v[6], v[7], &r[0], &r[1], &r[2], &r[3]);
        rectangulo_t *rec = rec_CreaDefinido(v[0], v[1], v[2], v[3]);
        const vnbool antes = rec_ClipSegmentoAntiguo(rec, v[4], v[5], v[6], v[7], &a[0], &a[1], &a[2], &a[3]);
        rec_Destruye(&rec);
        EXPECT_EQ(visto == CIERTO, f[9] != "no");
        EXPECT_EQ(antes, visto);
        if (f[9] == "no") continue;
        for (size_t i = 0; i < 4; ++i) {
            EXPECT_TRUE(vn::cerca(r[i], std::stod(f[10 + i]), 1 + std::fabs(r[i])));
            // The tolerant one leaves what runs along a side, and the far end of what begins on one and goes out.
            const bool por_un_lado = v[4] == v[6] && (v[4] == v[0] || v[4] == v[2]);
            EXPECT_TRUE(
                vn::cerca(a[i], por_un_lado || (f[9] == "point" && i > 1) ? v[4 + i] : r[i], 1 + std::fabs(r[i])));
        }
    }
    EXPECT_GE(filas, 80);
}
