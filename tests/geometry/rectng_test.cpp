#include "exacto.h"
#include "foundation/suelo/dueno.hpp"
#include "geometry/rectng.h"
#include <algorithm>
#include <array>
#include <cfloat>

namespace {

using vn::ante, vn::filas, vn::INF, vn::NAN_;
using texto = std::string;

void destruye(arrPuntero **a) { arr_DestruyeEstructurasST(a, rectangulo_t, rec_Destruye); }
using rectangulo = vn::dueno<rec_Destruye>;
using rectangulos = vn::dueno<destruye>;
using limites = std::array<double, 4>;

rectangulo_t de(const limites &l) { return {l[0], l[1], l[2], l[3], CIERTO}; }
limites limites_de(const rectangulo_t &r) { return {r.xmin, r.ymin, r.xmax, r.ymax}; }
limites limites_de(const texto &t) {
    const auto v = vn::los_numeros(t);
    return {v.at(0), v.at(1), v.at(2), v.at(3)};
}
void anade(const rectangulos &a, const limites &l) {
    arr_AppendPunteroST(a.get(), rec_CreaDefinido(l[0], l[1], l[2], l[3]), rectangulo_t);
}
// From a text: four numbers each.
rectangulos tiras(const texto &t) {
    rectangulos a(arr_CreaPunteroST(0, rectangulo_t));
    const auto v = vn::los_numeros(t);
    for (size_t i = 0; i < v.size(); i += 4) anade(a, {v.at(i), v.at(i + 1), v.at(i + 2), v.at(i + 3)});
    return a;
}
std::vector<limites> todas(const rectangulos &a) {
    std::vector<limites> v;
    for (uint32_t i = 0; i < arr_NumElemsPunteroST(a.get(), rectangulo_t); ++i)
        v.push_back(limites_de(*arr_GetPunteroST(a.get(), i, rectangulo_t)));
    return v;
}
std::vector<limites> alargadas(const rectangulos &a, double cuanto) {
    rec_Incrementa_longitudes_sin_solapes(a.get(), cuanto);
    return todas(a);
}
std::vector<limites> condensadas(const rectangulos &a, double tolerancia) {
    return todas(rectangulos(rec_Rectangulos_contiguos_condensados(a.get(), tolerancia)));
}
// A strip along an axis, on a grid.
limites una_tira(vn::azar &z, uint32_t lado) {
    const double x = z.entero(lado), y = z.entero(lado), largo = 2. + z.entero(7);
    return z.moneda() ? limites{x, y, x + largo, y + 1} : limites{x, y, x + 1, y + largo};
}

// Either clip: whether something is inside, and the ends.
struct recorte {
    bool dentro;
    limites extremos;
    bool operator==(const recorte &) const = default;
};
template <auto CLIP> recorte recorta(const rectangulo_t &r, const limites &s) {
    limites e = s;
    const vnbool dentro = CLIP(&r, s[0], s[1], s[2], s[3], &e[0], &e[1], &e[2], &e[3]);
    return {dentro == CIERTO, e};
}
constexpr auto exacto_ = recorta<rec_ClipSegmento>, antiguo = recorta<rec_ClipSegmentoAntiguo>;

} // namespace

PRUEBA(rectng, un_rectangulo_crece_desde_nada_y_vuelve_a_nada) {
    const rectangulo r(rec_Crea()), nada(rec_Copia(r.get()));
    EXPECT_EQ(limites_de(*nada), (limites{DBL_MAX, DBL_MAX, -DBL_MAX, -DBL_MAX}));
    ESPERA_INFORME("rec->calculados", rec_MaximizaY(r.get(), 1));
    ESPERA_INFORME("rec2->calculados", rec_MaximizaRect(r.get(), nada.get()));
    rec_MaximizaPunto(r.get(), 3, NAN_);
    EXPECT_EQ(rec_Inicializado(r.get()), FALSO);
    rec_MaximizaPunto(r.get(), 3, 4);
    EXPECT_EQ(limites_de(*r), (limites{3, 4, 3, 4}));
    EXPECT_EQ((rec_RectanguloVertical(r.get())), FALSO); // a fault, twice
    vn::espera_informes({"ancho > 0.", "alto > 0."}, __FILE__, __LINE__);
    rec_MaximizaPunto(r.get(), 1, 9);
    rec_MaximizaY(r.get(), -2);
    const rectangulo_t otro = de({0, 0, 2, 2}), lejos = de({50, 50, 60, 60}), casi = de({2 + 5e-7, 0, 3, 2});
    rec_MaximizaRect(r.get(), &otro);
    EXPECT_EQ(limites_de(*r), (limites{0, -2, 3, 9}));
    rec_IncrementaAnchos(r.get(), .5);
    rec_Mover(r.get(), 1, 1);
    EXPECT_EQ(limites_de(*r), (limites{.5, -1.5, 4.5, 10.5}));
    rec_RecortaRect(r.get(), &otro);
    EXPECT_EQ(limites_de(*r), (limites{.5, 0, 2, 2}));
    // Apart by less than the tolerance of the overlap: the cut is exact and says so.
    ESPERA_INFORME("rec1->xmin <= rec1->xmax && rec1->ymin <= rec1->ymax", rec_RecortaRect(r.get(), &casi));
    rec_RecortaRect(r.get(), &lejos);
    EXPECT_EQ(limites_de(*r), limites_de(*nada));
    EXPECT_EQ(rec_ClipPunto(nada.get(), 0, 0) + rec_ClipX(nada.get(), 0) + rec_ClipRectangulo(nada.get(), &otro) +
                  rec_ClipPunto_ConPrecision(nada.get(), 0, 0, INF),
              0);
    EXPECT_EQ(rec_RelacionaRectangulos(&otro, &otro), 2u);
}

PRUEBA(rectng, lo_mal_definido_se_informa_y_se_hace) {
    EXPECT_EQ(limites_de(*rectangulo(ESPERA_INFORME("ancho >0. && alto > 0.", rec_CreaDefinido(0, 0, 0, 1)))),
              (limites{0, 0, 0, 1}));
    rectangulo_t r = de({0, 0, 1, 1});
    ESPERA_INFORME("ex >= ox && ey >= oy", rec_Set(&r, 0, 0, -1, 5));
    EXPECT_EQ(r.xmax, -1);
    rec_Set(&r, 1, 1, 1, 1);
    EXPECT_EQ((rec_DistanciaPuntoARectangulo(&r, 4, 5)), 5);
    vn::espera_informes({"min < max", "min < max"}, __FILE__, __LINE__);
    ESPERA_INFORME("incremento_a_cada_lado >= 0.", rec_IncrementaAnchos(&r, -1));
    r.calculados = FALSO;
    EXPECT_EQ(ESPERA_INFORME("rec->calculados", rec_Ancho(&r)), -2);
    ESPERA_INFORME("num_rectangulos > 0", rec_Incrementa_longitudes_sin_solapes(tiras("").get(), 1));
}

PRUEBA(rectng, cada_tolerancia_tiene_su_limite_y_su_sentido) {
    const rectangulo_t r = de({0, 0, 10, 10});
    rectangulo_t otro;
    const auto tmp = [&otro](double ox, double oy, double ex, double ey) { return &(otro = {ox, oy, ex, ey, CIERTO}); };
    const auto callado = [] { return vn::Prueba::toma_informes().empty(); };
    HASTA(-1e-6, -1, rec_ClipX(&r, d) == CIERTO);
    HASTA(-1e-6, -1, rec_ClipPunto(&r, 5, d) == CIERTO && rec_ClipPunto(&r, d, 5) == CIERTO);
    HASTA(-.25, -1, rec_ClipPunto_ConPrecision(&r, 5, d, .25) == CIERTO);
    HASTA(.25, 1, rectng_punto_esta_en_borde_con_precision(&r, d, 5, .25) == CIERTO);
    HASTA(-.25, -1, rectng_punto_esta_en_borde_con_precision(&r, d, 5, .25) == CIERTO);
    HASTA(-1e-6, -1, rec_ClipRectangulo(&r, tmp(-5, 0, d, 1)) && rec_ClipRectangulo(tmp(0, -5, 1, d), &r));
    HASTA(-1e-6, -1, rec_RelacionaRectangulos(&r, tmp(d, 1, 5, 5)) == 2); // inside
    HASTA(0, -1, rec_ExisteSolapeConLimites(&r, d, 5, -3, 7) == CIERTO);  // exactly
    HASTA(-.5, -1, rec_ExisteSolapeConSegmento(&r, d, 5, -3, 7, .5) == CIERTO);
    HASTA(.5, 1, rec_RectanguloCentradoOrigen(tmp(d, -1, d, 1), .5) == CIERTO);
    HASTA(ante(1 + .0001), 2, rectangulo(rec_CreaHorizontal(0, 0, 1, d)) && callado()); // higher than wide, by little
    HASTA(ante(1 + .0001), 2, rectangulo(rec_CreaVertical(0, 0, d, 1)) && callado());
    const auto hueco = [](double x) {
        const rectangulos a = tiras("-9 0 0 1");
        anade(a, {x, 0, 9, 1});
        return alargadas(a, .5)[0][2];
    };
    HASTA(1e-7, 1, hueco(d) == 0); // a room of so much is none
    double v;
    HASTA(ante(.50001), 1, (rectng_AnchosDesdePuntoFijo(1, 1, d, 0, 1, &v, &v, &v, &v), callado()));
    HASTA(10 + 1e-6, 11, antiguo(r, {5, 5, d, 5}).extremos[2] == d);
    HASTA(-1e-6, -1, antiguo(r, {d, -5, d, 15}).dentro); // along a side
    EXPECT_EQ(rec_RectanguloVertical(&r), FALSO);        // a square
    EXPECT_EQ(rec_ClipPunto(&r, NAN_, 5) + rec_ClipPunto_ConPrecision(&r, 5, NAN_, 1) +
                  rec_ExisteSolapeConLimites(&r, NAN_, 1, 2, 3),
              0);
}

PRUEBA(rectng, los_recortes_en_los_lados_y_con_numeros_extremos) {
    const rectangulo_t r = de({0, 0, 10, 10});
    for (const auto &[segmento, hay, queda, hay_antiguo, queda_antiguo] :
         filas<texto, int, texto, int, texto>("geometry/rectng.tsv", "recortes")) {
        const limites s = limites_de(segmento);
        EXPECT_EQ(exacto_(r, s), (recorte{hay == 1, limites_de(queda)})) << segmento;
        EXPECT_EQ(antiguo(r, s), (recorte{hay_antiguo == 1, limites_de(queda_antiguo)})) << segmento;
    }
    rectangulo_t sin_nada = r;
    sin_nada.calculados = FALSO;
    EXPECT_TRUE(exacto_(sin_nada, {1, 1, 2, 2}).dentro); // does not look
    EXPECT_FALSE(antiguo(sin_nada, {1, 1, 2, 2}).dentro);
    EXPECT_EQ(rec_ClipSegmentoAntiguo(&r, 5, 5, 50, 5, nullptr, nullptr, nullptr, nullptr), CIERTO);
    double ox2 = 0;
    EXPECT_TRUE(rec_ClipSegmentoAntiguo(&r, 5, 5, 15, 10, nullptr, nullptr, &ox2, nullptr) == CIERTO && ox2 == 10);
    for (const double raro : {NAN_, INF, -INF, 1e308})
        for (size_t i = 0; i < 8; ++i) {
            double v[8] = {0, 0, 10, 10, -5, 3, 15, 4};
            v[i] = raro;
            const recorte c = exacto_(de({v[0], v[1], v[2], v[3]}), {v[4], v[5], v[6], v[7]});
            antiguo(de({v[0], v[1], v[2], v[3]}), {v[4], v[5], v[6], v[7]});
            EXPECT_FALSE(c.dentro && std::isnan(raro)) << i;
            for (const double x : c.extremos) EXPECT_TRUE(!c.dentro || std::isfinite(x)) << i << " " << raro;
        }
    EXPECT_FALSE(exacto_(r, {-1e308, 5, 1e308, 5}).dentro); // longer than all numbers
}

// Against whole coordinates: the clips accept what has points inside and nothing that is apart, what is inside comes
// back bit for bit, and the ends lie on the segment and on the sides.
PRUEBA(rectng, los_recortes_son_los_exactos) {
    vn::azar z(51);
    vn::huella bits;
    int dentro = 0, cortados = 0;
    for (int i = 0; i < 50000; ++i) {
        // Sides on even coordinates, ends on odd ones: none runs along a side.
        const vn::lugar l = vn::lugar_de(i);
        const exacto::punto o2 = {static_cast<int64_t>(l.x), static_cast<int64_t>(l.y)};
        const exacto::punto bajo = {o2.x + 2 * z.entero_entre(-5, 4), o2.y + 2 * z.entero_entre(-5, 4)};
        const exacto::punto alto = {bajo.x + 2 * z.entero_entre(1, 5), bajo.y + 2 * z.entero_entre(1, 5)};
        const exacto::punto p = exacto::un_punto(z, 9), q = exacto::un_punto(z, 9);
        const exacto::segmento s = {{o2.x + 2 * p.x + 1, o2.y + 2 * p.y + 1}, {o2.x + 2 * q.x + 1, o2.y + 2 * q.y + 1}};
        const Punto2D a = s.a, b = s.b, o = bajo, e = alto;
        const rectangulo_t r = de({o.x, o.y, e.x, e.y});
        const limites entero = {a.x, a.y, b.x, b.y};
        const recorte c = exacto_(r, entero), c_antiguo = antiguo(r, entero);
        const auto como = exacto::frente_a(s, bajo, alto);
        const bool debe = como == exacto::caja::dentro;
        ASSERT_TRUE(como == exacto::caja::toca || (c.dentro == debe && c_antiguo.dentro == debe)) << i;
        if (!c.dentro) continue;
        ++dentro;
        const bool dentro_a = rec_ClipPunto(&r, a.x, a.y), dentro_b = rec_ClipPunto(&r, b.x, b.y);
        ASSERT_TRUE(!dentro_a || !dentro_b || c.extremos == entero) << i;
        for (const size_t k : {0u, 2u}) {
            const double x = c.extremos[k], y = c.extremos[k + 1];
            bits << x << y;
            const auto iguales = [&](const limites &v) {
                return vn::cerca(v[k], x, l.escala(100)) && vn::cerca(v[k + 1], y, l.escala(100));
            };
            const bool queda = k == 0 ? dentro_a : dentro_b;
            ASSERT_TRUE((!debe || iguales(c_antiguo.extremos)) && (!queda || iguales(entero))) << i;
            if (queda) continue;
            ++cortados;
            ASSERT_TRUE(vn::cerca((x - a.x) * (b.y - a.y), (y - a.y) * (b.x - a.x), l.escala(4000) * 4)) << i;
            ASSERT_EQ(rectng_punto_esta_en_borde_con_precision(&r, x, y, l.escala(1.) * 1e-12), CIERTO) << i;
        }
    }
    EXPECT_GT(dentro, 5000);
    EXPECT_GT(cortados, 5000);
    EXPECT_EQ(bits(), 1732832937341063034u);
}

PRUEBA(rectng, las_tiras_se_alargan_hasta_la_que_estorba) {
    for (const auto &[cuanto, entran, salen] : filas<double, texto, texto>("geometry/rectng.tsv", "alargadas"))
        EXPECT_EQ(alargadas(tiras(entran), cuanto), todas(tiras(salen)));
    const rectangulos a = tiras("6 1 7 9, 0 0 5 1");
    rec_TraladaRectangulos(a.get(), 1, 2);
    EXPECT_EQ(limites_de(*rectangulo(rec_Envolvente(a.get()))), (limites{1, 2, 8, 11}));
    // Strips that are apart stay apart, none shrinks, and none grows by more than it may.
    vn::azar z(52);
    const auto se_pisan = [](const limites &p, const limites &q) {
        return p[0] < q[2] && q[0] < p[2] && p[1] < q[3] && q[1] < p[3];
    };
    int crecidas = 0;
    for (int i = 0; i < 2000; ++i) {
        const rectangulos b = tiras("");
        for (int n = 0; n < 40; ++n) {
            const limites t = una_tira(z, 30);
            const auto hay = todas(b);
            if (std::none_of(hay.begin(), hay.end(), [&](const limites &q) { return se_pisan(t, q); })) anade(b, t);
        }
        const auto antes = todas(b);
        rec_Incrementa_longitudes_sin_solapes(b.get(), 1.5);
        const auto despues = todas(b);
        for (size_t p = 0; p < despues.size(); ++p) {
            for (size_t k = 0; k < 4; ++k) {
                const double crece = k < 2 ? antes[p][k] - despues[p][k] : despues[p][k] - antes[p][k];
                ASSERT_TRUE(0 <= crece && crece <= 1.5);
                crecidas += crece > 0;
            }
            for (size_t q = 0; q < p; ++q)
                ASSERT_FALSE(se_pisan(despues[p], despues[q])) << i << ": " << q << ", " << p;
        }
    }
    EXPECT_GT(crecidas, 10000);
}

PRUEBA(rectng, las_tiras_contiguas_se_condensan) {
    for (const auto &[tolerancia, entran, salen] : filas<double, texto, texto>("geometry/rectng.tsv", "condensadas"))
        EXPECT_EQ(condensadas(tiras(entran), tolerancia), todas(tiras(salen)));
    ESPERA_INFORME("tolerancia >= 0.", condensadas(tiras("0 0 9 1, 0 1 9 2"), -1));
    // Every strip lies in what stands for it.
    vn::azar z(53);
    for (int i = 0; i < 2000; ++i) {
        const rectangulos b = tiras("");
        for (int n = 0; n < 25; ++n) anade(b, una_tira(z, 12));
        const auto salen = condensadas(b, 0);
        for (const limites &t : todas(b))
            ASSERT_TRUE(std::any_of(salen.begin(), salen.end(), [&](const limites &q) {
                return q[0] <= t[0] && q[1] <= t[1] && t[2] <= q[2] && t[3] <= q[3];
            })) << i;
    }
}

PRUEBA(rectng, las_nueve_posiciones_de_una_seccion) {
    EXPECT_EQ(rectng_calculaPosicionMasCercana(0, 0, 0), 4u); // 0 is not below +0
    EXPECT_EQ(rectng_calculaPosicionMasCercana(NAN_, -2, 1), 5u);
    const limites inicial_final[] = {{2.5, 1.75, 1.5, .25}, {0, 0, 4, 2},     {4, 0, 0, 2},
                                     {0, 2, 4, 0},          {4, 2, 0, 0},     {2.5, 0, 1.5, 2},
                                     {4, 1.75, 0, .25},     {2.5, 2, 1.5, 0}, {0, 1.75, 4, .25}};
    for (uint32_t p = 0; p < 9; ++p) {
        double x, y;
        rectng_calcula_coordenadas_posicion(p, 1, 2, 3, 4, &x, &y);
        EXPECT_EQ(rectng_calculaPosicionMasCercana(x, y, .5), p); // one is the other's inverse
        limites v = {};
        rectng_AnchosDesdePuntoFijo(4, 2, .5, .75, p, &v[0], &v[1], &v[2], &v[3]);
        EXPECT_EQ(v, inicial_final[p]) << p;
    }
}
