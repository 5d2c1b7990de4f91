#include "drawing/tipolin.h"
#include "foundation/listas/arr_int.h"
#include "foundation/suelo/dueno.hpp"
#include "propiedades.h"
#include <algorithm>
#include <bitset>
#include <cctype>
#include <cmath>
#include <span>

using namespace vn;

namespace {

using doubles = dueno<arr_DestruyeDouble>;
using linea = dueno<tipolin_destruye>;

std::vector<double> valores(const arrDouble *a) {
    const auto t = listas::tramo(a);
    return {t.begin(), t.end()};
}
std::vector<double> toma(arrDouble *a) { return valores(doubles(a).get()); }

linea crea(const std::vector<double> &patron) {
    const doubles a(arr_CreaDouble(static_cast<uint32_t>(patron.size())));
    std::ranges::copy(patron, listas::tramo(a.get()).begin());
    return linea(tipolin_crea(VNU("Eje"), VNU("__ _ __"), a.get()));
}
int estilo(const std::vector<double> &patron) { return tipolin_dame_estilo_aproximado(crea(patron).get()); }

// By bits one by one, turned one by one.
int estilo_lento(const std::vector<double> &patron) {
    static const char *const ESTILOS[] = {"1111111111111111", "1110010011100100", "1100110011001100",
                                          "1000100010001000", "1110111011101110", "1111001010011111",
                                          "1111011011110110", "0000000100000001"};
    double total = 0.;
    for (const double e : patron) total += std::fabs(e);
    std::string bits; // the lowest first
    for (const double e : patron)
        for (double n = std::floor(16. * std::fabs(e) / total + 0.5); n > 0.; --n) bits += e > 0. ? '1' : '0';
    bits.resize(16, '0');
    std::ranges::reverse(bits);
    size_t menos = 99;
    int mejor = -1;
    for (int i = 0; i < 8; ++i) {
        std::string girado = ESTILOS[i];
        for (int giro = 0; giro < 16; ++giro) {
            const size_t distintos = (std::bitset<16>(bits) ^ std::bitset<16>(girado)).count();
            if (distintos < menos) menos = distintos, mejor = i;
            std::rotate(girado.begin(), girado.begin() + 1, girado.end());
        }
    }
    return mejor;
}

} // namespace

PRUEBA(tipolin, estilo_que_mas_se_parece) {
    const struct {
        std::vector<double> patron;
        int estilo;
    } casos[] = {
        {{}, 0},
        {{0., 0.}, 0},
        {{5e-7, -5e-7}, 0}, // no length
        {{5e-7, -5.1e-7}, 5},
        {{3.}, 0},
        {{NAN_, 1.}, 0},
        {{1e308, 1e308}, 0},
        {{2., -2., 2., -2., 2., -2., 2., -2.}, 2}, // the very stipple
        {{1., -3., 1., -3., 1., -3., 1., -3.}, 3},
        {{-2., 3., -1., 3., -1., 3., -1., 2.}, 4},
        {{1., -7., 1., -7.}, 7},
        {{0.1125, -0.1125}, 5},
        {std::vector<double>(1000, 1.), 7}, // elements of less than half a bit
    };
    for (const auto &f : casos) EXPECT_EQ(estilo(f.patron), f.estilo) << testing::PrintToString(f.patron);
    for (uint8_t i = 1; i < 11; ++i)
        if (i != 8) {
            const auto patron = toma(tipolin_dame_patron_aproximado(i));
            EXPECT_EQ(estilo(patron), estilo_lento(patron)) << int{i};
        }
    azar a(5);
    for (int caso = 0; caso < 2000; ++caso) {
        std::vector<double> patron(1 + a.entero(40));
        patron[0] = 1e-3;
        for (double &e : std::span(patron).subspan(1))
            e = a.entero(4) == 0 ? 0. : a.entre(-1., 1.) * (caso % 2 == 0 ? 1e-3 : 50.);
        ASSERT_EQ(estilo(patron), estilo_lento(patron)) << testing::PrintToString(patron);
    }
}

PRUEBA(tipolin, lo_que_guarda_de_cada_una) {
    const linea l = crea({0.5, -0.25, 0., -0.25});
    EXPECT_EQ(valores(tipolin_dame_patron_const(l.get())), (std::vector{0.5, -0.25, 0., -0.25}));
    EXPECT_EQ(tipolin_compara_nombre(l.get(), VNU("Eje")), CIERTO);
    EXPECT_EQ(tipolin_compara_nombre(l.get(), VNU("EJE")), FALSO);
}

PRUEBA(tipolin, las_de_la_biblioteca_por_numero_y_por_nombre) {
    for (uint8_t i = 0; i < 11; ++i) {
        SCOPED_TRACE(int{i});
        std::string nombre = utf8_de(tipolin_dame_nombre_tipo_vorn_linea(i));
        for (char &c : nombre) c = static_cast<char>(std::tolower(c));
        uint8_t primera = 99;
        ASSERT_EQ(tipolin_es_tipo_linea_vorn(ancho(nombre).c_str(), &primera), CIERTO);
        EXPECT_EQ(primera, i == 6 ? 1 : i == 7 ? 3 : i == 8 ? 0 : i);
        const auto pixeles = toma(tipolin_dame_patron_aproximado_px_glsl(i));
        if (i == 8) continue;
        const auto modelo = toma(tipolin_dame_patron_aproximado(i));
        EXPECT_EQ(modelo, toma(tipolin_dame_patron_aproximado(primera)));
        ASSERT_EQ(modelo.size(), pixeles.size());
        for (size_t k = 0; k < modelo.size(); ++k) { // drawn and free by turns; a point has a length in pixels only
            EXPECT_TRUE(k % 2 == 0 ? modelo[k] >= 0. : modelo[k] < 0.);
            EXPECT_GT(pixeles[k], 0.);
        }
    }
    EXPECT_EQ(toma(tipolin_dame_patron_aproximado(1)), (std::vector{0.2025, -0.105, 0., -0.105}));
    EXPECT_EQ(toma(tipolin_dame_patron_aproximado(9)).size(), 8u);
    EXPECT_EQ(toma(tipolin_dame_patron_aproximado_px_glsl(5)), (std::vector{18., 6., 9., 6., 9., 6.}));
    EXPECT_EQ(toma(tipolin_dame_patron_aproximado_px_glsl(8)), std::vector<double>{});
    EXPECT_EQ(tipolin_es_tipo_linea_vorn(VNU("VORN_"), nullptr), FALSO);
    EXPECT_EQ(toma_informes().size(), 0u);
    EXPECT_EQ(tipolin_dame_patron_aproximado(8), nullptr);
    EXPECT_EQ(tipolin_dame_patron_aproximado(11), nullptr);
    EXPECT_EQ(tipolin_dame_patron_aproximado_px_glsl(11), nullptr);
    EXPECT_EQ(tipolin_dame_nombre_tipo_vorn_linea(255), nullptr);
    EXPECT_EQ(toma_informes().size(), 4u);
}
