#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/msglocal.h"
#include "plataforma/proceso.h"
#include "prueba.h"
#include "units/convers.h"
#include "units/vornconf.h"
#include <algorithm>
#include <atomic>
#include <cfloat>
#include <chrono>
#include <cmath>
#include <map>
#include <set>
#include <thread>

namespace {

using vn::INF, vn::NAN_;

void pon_sistema(uint32_t sistema, uint32_t energia) {
    vornconf_Internacional_set_sistema_unidades(sistema);
    vornconf_Internacional_set_sistema_unidades_energia(energia);
}
// The system of units while it lives.
auto en_sistema(uint32_t sistema, uint32_t energia = VORNNORM_UNIDAD_ENERGIA_JULIO) {
    const uint32_t s = vornconf_Internacional_sistema_unidades(), e = vornconf_Internacional_sistema_unidades_energia();
    pon_sistema(sistema, energia);
    return vn::al_final([=] { pon_sistema(s, e); });
}
constexpr uint32_t MKS = VORNCONF_SU_MKS, SI = VORNCONF_SU_INTERNACIONAL, IMPERIAL = VORNCONF_SU_IMPERIAL;

// ---------------------------------------------------------------- what a unit is, out of its text

// Each word of a unit text in SI units, by the definitions; a kilogram and a pound are weights here, of 9.81 m/s².
double palabra_en_si(const std::u16string &palabra) {
    constexpr double G = 9.81, LB = 0.45359237 * G, IN = 0.0254, FT = 0.3048;
    // clang-format off
    static const std::map<std::u16string, double> PALABRAS = {
        {u"m", 1}, {u"cm", 0.01}, {u"mm", 0.001}, {u"dm", 0.1}, {u"km", 1000}, {u"in", IN}, {u"ft", FT},
        {u"yd", 3 * FT}, {u"N", 1}, {u"kN", 1000}, {u"kg", G}, {u"kp", G}, {u"t", 1000 * G}, {u"Tn", 1000 * G},
        {u"Mp", 1000 * G}, {u"mTn", 1000 * G}, {u"lb", LB}, {u"lbs", LB}, {u"psi", LB / (IN * IN)},
        {u"psf", LB / (FT * FT)}, {u"pcf", LB / (FT * FT * FT)}, {u"Pa", 1}, {u"kPa", 1e3}, {u"MPa", 1e6},
        {u"GPa", 1e9}, {u"bar", 1e5}, {u"mbar", 100}, {u"m.c.a.", 1000 * G}, {u"mm.c.a.", G}, {u"s", 1}, {u"min", 60},
        {u"h", 3600}, {u"l", 0.001}, {u"CFM", FT * FT * FT / 60}, {u"gpm", 0.003785411784 / 60}, {u"J", 1},
        {u"Jul", 1}, {u"MJ", 1e6}, {u"W", 1}, {u"kW", 1000}, {u"Wh", 3600}, {u"kWh", 3.6e6}, {u"cal", 4.1868},
        {u"kcal", 4186.8}, {u"Btu", 1055.05585262}, {u"K", 1}, {u"mK", 1}, {u"°C", 1}, {u"°F", 5. / 9}, {u"rad", 1},
        {u"mRad", 0.001}, {u"grados", 3.14159265358979324 / 180}, {u"%", 0.01}, {u"%%", 0.01}, {u"x10-6", 1e-6},
        {u"A", 1}, {u"kA", 1000}, {u"mA", 0.001}, {u"V", 1}, {u"VA", 1}, {u"kVA", 1000}, {u"MVA", 1e6}, {u"Ohm", 1},
        {u"mOhm", 0.001}, {u"dB", 1}, {u"dBA", 1}, {u"oct", 1}, {u"dBµV", 1}, {u"dBW", 1}, {u"tanto", 1}, {u"por", 1},
        {u"uno", 1}, {u"cien", 0.01}, {u"Grados", 1}, {u"Centigrados", 1},
    };
    // clang-format on
    const auto p = PALABRAS.find(palabra);
    if (p != PALABRAS.end()) return p->second;
    const std::u16string menos = palabra.substr(0, palabra.size() - 1);
    switch (palabra.back()) {
    case u'.': return menos.empty() ? 1 : palabra_en_si(menos);
    case u'²': return std::pow(palabra_en_si(menos), 2);
    case u'³': return std::pow(palabra_en_si(menos), 3);
    case u'4': return std::pow(palabra_en_si(menos), 4);
    case u'6': return std::pow(palabra_en_si(menos), 6);
    case u'1': return 1 / palabra_en_si(menos.substr(0, menos.size() - 1)); // m-1
    default: ADD_FAILURE() << "unknown unit"; return NAN_;
    }
}

// A unit text in SI units: words joined by dots, blanks and brackets; all that follows the first bar divides.
double unidad_en_si(const std::u16string &texto) {
    double n = 1, d = 1;
    double *donde = &n;
    std::u16string palabra;
    for (const char16_t c : texto + u' ') {
        const bool separa = c == u' ' || c == u'·' || c == u'(' || c == u')' || c == u'/';
        if ((separa || c == u'°') && !palabra.empty()) *donde *= palabra_en_si(palabra), palabra.clear();
        if (!separa) palabra += c;
        if ((c == u'²' || c == u'³') && !palabra.empty()) *donde *= palabra_en_si(palabra), palabra.clear();
        if (c == u'/') donde = &d;
    }
    return n / d;
}

const struct {
    uint32_t tipo;
    std::u16string interna;
} FILAS[] = {
#define X(tipo, nombre, interna, ...) {nombre, u##interna},
#include "units/convers_tabla.inl"
#undef X
};

// The rows whose figure is not exactly that of its units, and by how much of it: rounded figures that stay as they are,
// and three whose area went the other way, which stay too.
constexpr double PIE_CUADRADO = 0.09290304;
const struct {
    std::vector<uint32_t> tipos, sistemas;
    double desvio;
} DESVIOS[] = {
    {{CNV_ANGULO}, {MKS, SI, IMPERIAL}, 8.498e-9},
    {{CNV_PODER_CALORIFICO, CNV_ENERGIA_KWH, CNV_ENERGIA_SUPERFICIAL_KWH},
     {MKS, SI, IMPERIAL},
     1.8e-4}, // 860 kcal a kWh
    {{CNV_RESISTENCIA_TERMICA}, {MKS}, -1.8e-4},
    {{CNV_RESISTENCIA_TERMICA}, {IMPERIAL}, 1.043e-6},
    {{CNV_CAUDAL_AIRE, CNV_CAUDAL_L_S, CNV_CAUDAL_L_MIN, CNV_CAUDAL_L_H, CNV_CAUDAL_EN_L_S}, {IMPERIAL}, 9.391e-7},
    {{CNV_CAUDAL_EN_M3_H}, {IMPERIAL}, 3.62e-8},
    {{CNV_DENSIDAD_DESCARGA}, {IMPERIAL}, -4.09e-6},
    {{CNV_CARGA_KG_M2}, {IMPERIAL}, -2.13e-7},
    {{CNV_TRANSMITANCIA, CNV_TRANSMITANCIA_EN_KCAL}, {IMPERIAL}, 6.007e-8},
    {{CNV_CONDUCTIVIDAD, CNV_CONDUCTIVIDAD_EN_KCAL}, {IMPERIAL}, -7.721e-8},
    // Pounds under standard gravity, not of 9.81.
    {{CNV_PERDIDA_CARGA, CNV_PERDIDA_CARGA_LINEAL, CNV_PRESION_KPA, CNV_PRESION_BAR, CNV_PERDIDA_CARGA_LINEAL_MBAR},
     {IMPERIAL},
     3.415e-4},
    {{CNV_PERDIDA_EN_KCAL, CNV_PERDIDA_TERMICA}, {IMPERIAL}, PIE_CUADRADO *PIE_CUADRADO - 1},
    {{CNV_CAUDAL_SUPERFICIAL_EN_L_S}, {IMPERIAL}, 1 / (PIE_CUADRADO * PIE_CUADRADO) - 1},
};

double desvio_de(uint32_t tipo, uint32_t sistema) {
    for (const auto &d : DESVIOS)
        if (std::find(d.tipos.begin(), d.tipos.end(), tipo) != d.tipos.end() &&
            std::find(d.sistemas.begin(), d.sistemas.end(), sistema) != d.sistemas.end())
            return d.desvio;
    return 0;
}

// How many blocks of the tracked heap `f` asks for.
int reservas(const std::function<void()> &f) {
    int n = 0;
    vornspy_instala_permiso([](size_t, void *m) { return ++*static_cast<int *>(m), CIERTO; }, &n);
    f();
    vornspy_instala_permiso(nullptr, nullptr);
    return n;
}

using vn::toma;

} // namespace

// Every figure of the table is what its two unit texts say, forth and back, in the three systems and energy units.
PRUEBA(convers, cada_fila_convierte_lo_que_dicen_sus_unidades) {
    ASSERT_EQ(std::size(FILAS), 145u);
    for (const uint32_t sistema : {MKS, SI, IMPERIAL})
        for (uint32_t energia = 0; energia < 3; ++energia) {
            const auto puesto = en_sistema(sistema, energia);
            for (const auto &f : FILAS) {
                SCOPED_TRACE(testing::Message()
                             << "type " << f.tipo << " in system " << sistema << ", energy " << energia);
                const double sumando = cnv_convierte(CNV_A_MOSTRADO, f.tipo, 0.);
                const double coef = cnv_convierte(CNV_A_MOSTRADO, f.tipo, 1.) - sumando;
                const double esperado = unidad_en_si(f.interna) / unidad_en_si(vn::u16_de(cnv_strextunids(f.tipo)));
                const double desvio = desvio_de(f.tipo, sistema);
                EXPECT_NEAR(coef / esperado - 1, desvio, 1e-9 + 1e-3 * std::fabs(desvio));
                EXPECT_EQ(sumando, f.tipo == CNV_TEMPERATURA && sistema == IMPERIAL ? 32. : 0.);
                for (const double x : {-273.15, 1e-9, 0.1, 1234.5678, 7e12, -1e290})
                    EXPECT_NEAR(cnv_convierte(CNV_A_INTERNO, f.tipo, cnv_convierte(CNV_A_MOSTRADO, f.tipo, x)) / x, 1.,
                                sumando == 0. ? 4e-16 : 1e-5);
                for (const double x : {INF, -INF, NAN_, 5e-324, DBL_MAX}) {
                    const double y = cnv_convierte(CNV_A_INTERNO, f.tipo, cnv_convierte(CNV_A_MOSTRADO, f.tipo, x));
                    EXPECT_TRUE(std::isnan(x) ? std::isnan(y) : std::isinf(x) ? y == x : !std::isnan(y)) << x;
                }
                double factor = 0, suma = NAN_;
                vnbool detras = 2;
                const vnwchar *texto = nullptr;
                convers_valores_para_vnudcuso(f.tipo, &factor, &suma, &detras, &texto);
                EXPECT_DOUBLE_EQ((cnv_convierte(CNV_A_MOSTRADO, f.tipo, 20.) + suma) * factor, 20.);
                EXPECT_EQ(detras, convers_formato_entrada(f.tipo) == 0);
                EXPECT_EQ(texto, cnv_strextunids(f.tipo));
            }
        }
}

PRUEBA(convers, lo_que_se_dice_de_tipos_sueltos) {
    const auto muestra = [](uint32_t tipo, double x) { return cnv_convierte(CNV_A_MOSTRADO, tipo, x); };
    {
        const auto puesto = en_sistema(SI, VORNNORM_UNIDAD_ENERGIA_KCAL);
        EXPECT_EQ(muestra(110, 2000.), 2000. * (0.001 * (1000 * 0.859845227859)));
        EXPECT_EQ(vn::utf8_de(cnv_strextunids(110)) + "|" + vn::utf8_de(cnv_strextunids(113)), "kcal/h|kcal/(h·m²·K)");
        EXPECT_EQ(convers_formato_entrada(13), 0);
        EXPECT_EQ(convers_precision_num_decimales_segun_sistema_uds(0.01, 13), 0u);
    }
    const auto puesto = en_sistema(IMPERIAL);
    EXPECT_EQ(cnv_convierte(CNV_A_INTERNO, 16, 212.), 100.);
    EXPECT_EQ(muestra(12, 1.), 204.81614345076477); // not the figure for calculation
    EXPECT_EQ(vn::utf8_de(cnv_strextunids(60)) + "|" + vn::utf8_de(cnv_strextunids(62)), "%|%%");
    EXPECT_EQ(vn::utf8_de(cnv_strextunids(22)), "rad");
    EXPECT_EQ(muestra(CNV_NO_CONVERSION, 7.25) + cnv_convierte(2, CNV_NO_CONVERSION, 7.25), 14.5);
    EXPECT_EQ(vn::utf8_de(cnv_strextunids(CNV_NO_CONVERSION)), "");
    for (const int32_t sentido : {-1, 2}) EXPECT_EQ(ESPERA_INFORME("", cnv_convierte(sentido, 1, 7.25)), 0.);
    // Lengths in feet and inches, and the greatest denominator of their fractions.
    std::string formatos[4];
    for (uint32_t t = 0; t < CNV_NO_CONVERSION; ++t) {
        formatos[convers_formato_entrada(t)] += std::to_string(t) + " ";
        EXPECT_EQ(convers_divisor_maximo_pulgadas(t), t == 116 || t == 117 ? 16u : 32u);
    }
    EXPECT_EQ(formatos[1], "18 20 21 83 ");
    EXPECT_EQ(formatos[2], "13 14 17 19 26 ");
    EXPECT_EQ(formatos[3], "11 57 116 117 ");
    EXPECT_EQ(convers_divisor_maximo_pulgadas(CNV_NO_CONVERSION) + convers_formato_entrada(CNV_NO_CONVERSION), 0u);
}

PRUEBA(convers, la_precision_es_la_potencia_de_diez_mas_proxima) {
    const auto puesto = en_sistema(MKS);
    constexpr double RAIZ = 3.1622776601683795; // of ten, and just above
    const struct {
        double prec, esperada;
        uint32_t decimales;
    } filas[] = {
        {1., 1., 0},
        {0.01, 0.01, 2},
        {0.03, 0.01, 2},
        {0.3, 0.1, 1},
        {0.32, 1., 0},
        {1e-12, 1e-12, 12},
        {5e-324, 1e-323, 323},
        {DBL_MAX, 1e308, 0},
        {INF, 1e308, 0},
        {1e22, 1e22, 0},
        {0.001, 0.001, 3},
        {RAIZ, 10., 0},
        {RAIZ * 1e-5, 1e-4, 4},
        {std::nextafter(RAIZ, 0.), 1., 0},
    };
    for (const auto &f : filas) {
        EXPECT_EQ(convers_precision_segun_sistema_uds(f.prec, CNV_METROS), f.esperada) << f.prec;
        EXPECT_EQ(convers_precision_num_decimales_segun_sistema_uds(f.prec, CNV_METROS), f.decimales) << f.prec;
    }
    // With any number of digits, after one that has them all.
    for (const double x : {2.1e-5, 2.12e-5, 2.123e-5, 2.1234e-5, 2.12345e-5, 2.123456e-5, 2.1234567e-5, 2.12345678e-5,
                           2.123456789e-5, 2.1234567891e-5, 2.12345678912e-5, 2.123456789123e-5, 2.1234567891234e-5}) {
        EXPECT_EQ(convers_precision_num_decimales_segun_sistema_uds(1.0123456789012345e-7, CNV_METROS), 7u);
        EXPECT_EQ(convers_precision_num_decimales_segun_sistema_uds(x, CNV_METROS), 5u) << x;
    }
    // A precision that is given as a system shows it.
    EXPECT_EQ(convers_precision_segun_sistema_uds_dado_prec_y_sistema(1., 2, 13), 1.);                // an inch, in cm
    EXPECT_EQ(convers_precision_num_decimales_segun_sistema_uds_dado_prec_y_sistema(1e-6, 1, 0), 2u); // a kPa
    const auto en_kcal = convers_precision_segun_sistema_uds_energia_dado_prec_y_sistema;
    EXPECT_EQ(en_kcal(1., 1, 1, 110), 1.); // shown in kcal/h
    EXPECT_EQ(en_kcal(1., 1, 0, 110), 1000.);
    EXPECT_EQ(en_kcal(1., 0, 1, 110), 1.);
    // 0.1 Btu/h are 0.025 kcal/h.
    EXPECT_EQ(convers_precision_num_decimales_segun_sistema_uds_energia_dado_prec_y_sistema(0.1, 1, 2, 110), 2u);
    for (const double mala : {0., -1., NAN_, -INF})
        EXPECT_EQ(ESPERA_INFORME("prec_deseada_uds_internas > 0.", convers_precision_segun_sistema_uds(mala, 13)), 0.);
    EXPECT_EQ(ESPERA_INFORME("prec_uds_salida > 0.", convers_precision_num_decimales_segun_sistema_uds(5e-324, 8)), 0u);
    EXPECT_EQ(ESPERA_INFORME("tipovalor != CNV_NO_CONVERSION", convers_precision_segun_sistema_uds(1., 145)), 0.);
}

// The step that a precision brings about is what next to nothing is rounded up to.
PRUEBA(convers, el_paso_de_redondeo_cambia_justo_en_sus_limites) {
    const auto paso = [](double prec, uint32_t tipo) {
        return cnv_convierte(CNV_A_MOSTRADO, tipo, convers_valor_redondeado_por_exceso(1e-5, prec, tipo));
    };
    const struct {
        double limite, debajo, encima;
    } filas[] = {
        {90000, 10000, 100000}, {9000, 1000, 10000}, {900, 500, 1000}, {450, 100, 500}, {90, 50, 100},
        {45, 10, 50},           {9, 5, 10},          {4.5, 1, 5},      {0.9, 0.75, 1},
    };
    const auto metrico = en_sistema(MKS);
    for (const auto &f : filas) {
        EXPECT_EQ(paso(f.limite, CNV_METROS), f.debajo) << f.limite;
        EXPECT_EQ(paso(std::nextafter(f.limite, 1e9), CNV_METROS), f.encima) << f.limite;
    }
    for (const auto &[p, esperado] :
         {std::pair{0.3, 0.25}, {0.04, 0.025}, {0.24, 0.225}, {0.0025, 0.0025}, {0.6, 0.5}, {2.2e-4, 2e-4}})
        EXPECT_NEAR(paso(p, CNV_METROS), esperado, 1e-15) << p;
    // Feet and inches: by 6 and its tens where the others go by 5.
    const auto imperial = en_sistema(IMPERIAL);
    const auto pulgadas = [](double prec, uint32_t tipo) {
        return convers_valor_redondeado_por_exceso(1e-5, prec * 0.0254, tipo) / 0.0254;
    };
    for (const auto &[p, esperado] :
         {std::pair{5.3, 1.}, {5.5, 6.}, {8.9, 6.}, {53., 10.}, {55., 60.}, {539., 100.}, {541., 600.}})
        EXPECT_NEAR(pulgadas(p, CNV_LONGITUD), esperado, 1e-9) << p;
    EXPECT_NEAR(pulgadas(5.3, CNV_LONGITUD_CM), 5., 1e-9);
}

PRUEBA(convers, el_redondeo_va_hacia_donde_dice_su_nombre) {
    const auto puesto = en_sistema(MKS);
    const auto cerca = convers_valor_redondeado_al_mas_cercano;
    const auto abajo = convers_valor_redondeado_por_defecto;
    const auto arriba = convers_valor_redondeado_por_exceso;
    EXPECT_EQ(cerca(12.5, 5., CNV_METROS), 15.);
    EXPECT_EQ(cerca(-12.5, 5., CNV_METROS), -10.);
    EXPECT_EQ(abajo(14.99, 5., CNV_METROS), 10.);
    EXPECT_EQ(abajo(-0.01, 5., CNV_METROS), -5.);
    EXPECT_EQ(arriba(10.01, 5., CNV_METROS), 15.);
    EXPECT_EQ(arriba(15., 5., CNV_METROS) + abajo(15., 5., CNV_METROS), 30.);
    EXPECT_EQ(cerca(1.23456, 0.05, CNV_LONGITUD), 1.25); // in metres or feet: by centimetres
    EXPECT_EQ(cerca(1.23456, 0.25, CNV_NO_CONVERSION), 1.25);
    // Nothing to round to: next to no step, a number of steps beyond 32 bits, no number.
    for (const double x : {1.23456, -7e300, DBL_MAX, INF, -INF}) EXPECT_EQ(cerca(x, 1e-7, CNV_METROS), x) << x;
    EXPECT_EQ(abajo(2147483647.5, 1., CNV_METROS), 2147483647.);
    EXPECT_EQ(arriba(2147483647.5, 1., CNV_METROS), 2147483647.5);
    EXPECT_EQ(cerca(DBL_MAX, 1., CNV_LONGITUD_CM), DBL_MAX);
    EXPECT_TRUE(std::isnan(cerca(NAN_, 1., CNV_METROS)));
    EXPECT_EQ(cerca(1.5, -1., CNV_METROS), 1.5);
    EXPECT_EQ(cerca(1234567., INF, CNV_METROS), 1200000.);
    EXPECT_EQ(ESPERA_INFORME("valor_max_redondeo > 0.", cerca(1.5, NAN_, CNV_METROS)), 1.5);
    EXPECT_EQ(ESPERA_INFORME("i < num_decimales_max", cerca(1.5, 1.5e-12, CNV_METROS)), 1.5);
    EXPECT_EQ(ESPERA_INFORME("(convers) != NULL", cerca(1.5, 1., 146)), 1.5);
}

PRUEBA(convers, el_valor_adaptado_es_redondo_en_la_unidad_que_se_ve) {
    const struct {
        uint32_t sistema, tipo;
        double mostrado, esperado;
    } filas[] = {
        {SI, 1, 1234., 1200.},            // 0.2: a step of 100
        {SI, 0, 39.9, 39.},               // 0.1: by 1, downwards
        {IMPERIAL, 1, 2204.62262, 2200.}, // 0.2: 441, a step of 100
        {IMPERIAL, 13, 39.37, 39.},       // 3.9 inches: by 1
        {IMPERIAL, 13, 70., 72.},         // 7 inches: by 6
        {IMPERIAL, 11, 11.2, 12.},        // upwards
        {IMPERIAL, 19, 11.9, 11.},        // downwards
        {IMPERIAL, 24, 1.01e-5, 1.01e-5}, // a step next to nothing
        {SI, 13, 123.4, 123.4},           // what the M.K.S. shows is as good
        {SI, 37, 123.4, 123.4},           // no precision of its own
        {IMPERIAL, 33, 1.2345, 1.2345},
    };
    for (const auto &f : filas) {
        const auto puesto = en_sistema(f.sistema);
        const double valor = cnv_convierte(CNV_A_INTERNO, f.tipo, f.mostrado);
        EXPECT_NEAR(cnv_convierte(CNV_A_MOSTRADO, f.tipo, convers_valor_adaptado_a_unidades(valor, f.tipo)), f.esperado,
                    f.esperado * 1e-14)
            << "type " << f.tipo << ", " << f.mostrado;
    }
    const auto puesto = en_sistema(IMPERIAL);
    for (const double x : {2e12, 1e12, -1e12, INF, NAN_, 0.}) {
        const double y = convers_valor_adaptado_a_unidades(x, 1);
        EXPECT_TRUE(std::isnan(x) ? std::isnan(y) : y == x) << x;
    }
    EXPECT_NE(convers_valor_adaptado_a_unidades(std::nextafter(1e12, 0.), 70), 0.);
    EXPECT_EQ(convers_valor_adaptado_a_unidades(123.4, CNV_NO_CONVERSION), 123.4);
    EXPECT_EQ(convers_valor_adaptado_a_unidades(5e5, 34), 5e5); // too many steps
}

// ---------------------------------------------------------------- texts

PRUEBA(convers, cada_texto_tiene_su_formato_en_los_dos_anchos) {
    const auto puesto = en_sistema(SI);
    const double kN = 1234.56789 / 9.81; // a force
    const struct {
        char *(*texto)(double, uint32_t);
        vnwchar *(*ancho)(double, uint32_t);
        vnwchar *(*con_unidades)(double, uint32_t);
        vnwchar *(*con_cabecera)(const vnwchar *, double, uint32_t);
        std::string esperado;
    } filas[] = {
        {convers_texto, convers_texto_u, convers_texto_con_unidades, convers_texto_con_cabecera_y_unidades, "1234.57"},
        {convers_texto_sin_decimales, convers_texto_sin_decimales_u, convers_texto_con_unidades_sin_decimales,
         convers_texto_con_cabecera_y_unidades_sin_decimales, "1235"},
        {convers_texto_un_decimal, convers_texto_un_decimal_u, convers_texto_con_unidades_un_decimal,
         convers_texto_con_cabecera_y_unidades_un_decimal, "1234.6"},
        {convers_texto_dos_decimales, convers_texto_dos_decimales_u, convers_texto_con_unidades_dos_decimales,
         convers_texto_con_cabecera_y_unidades_dos_decimales, "1234.57"},
        {convers_texto_tres_decimales, convers_texto_tres_decimales_u, convers_texto_con_unidades_tres_decimales,
         convers_texto_con_cabecera_y_unidades_tres_decimales, "1234.568"},
        {nullptr, nullptr, nullptr, convers_texto_con_cabecera_y_unidades_cuatro_decimales, "1234.5679"},
        {nullptr, nullptr, nullptr, convers_texto_con_cabecera_y_unidades_seis_decimales, "1234.567890"},
        {nullptr, nullptr, nullptr, convers_texto_con_cabecera_y_unidades_max_tres_decimales, "1234.57"},
    };
    for (const auto &f : filas) {
        if (f.texto != nullptr) {
            EXPECT_EQ(toma(f.texto(kN, 1)) + "|" + toma(f.ancho(kN, 1)), f.esperado + "|" + f.esperado);
            EXPECT_EQ(toma(f.con_unidades(kN, 1)), f.esperado + " kN");
        }
        EXPECT_EQ(toma(f.con_cabecera(VNU("Nº 1"), kN, 1)), "Nº 1: " + f.esperado + " kN");
    }
    const double m = 1.23456; // metres
    EXPECT_EQ(toma(convers_texto_n_decimales(m, 70, 4)) + toma(convers_texto_n_decimales_u(m, 70, 0)), "1.23461");
    EXPECT_EQ(toma(convers_texto_con_unidades_n_decimales(m, 70, 1)), "1.2 m");
    EXPECT_EQ(toma(convers_texto_con_cabecera_y_unidades_n_decimales(VNU("L"), m, 70, 5)), "L: 1.23456 m");
    EXPECT_EQ(toma(convers_texto_max_n_decimales(1.2, 70, 3)) + toma(convers_texto_max_n_decimales_u(m, 70, 3)),
              "1.21.235");
    EXPECT_EQ(toma(convers_texto_con_unidades_max_n_decimales(m, 70, 2)), "1.23 m");
    EXPECT_EQ(toma(convers_texto_con_cabecera_y_unidades_max_tres_decimales(VNU("%s"), 2., 70)), "%s: 2 m");
    EXPECT_EQ(toma(convers_texto_con_unidades(NAN_, 70)) + toma(convers_texto_dos_decimales(-INF, 13)), "nan m-inf");
    EXPECT_EQ(toma(convers_texto_con_unidades(2., CNV_NO_CONVERSION)), "2 ");
}

PRUEBA(convers, la_forma_general_pone_y_quita_cabecera_unidad_y_ceros) {
    const auto puesto = en_sistema(MKS);
    const vnwchar *const L = VNU("L");
    EXPECT_EQ(toma(convers_texto_ex(L, 1.5, 70, 3, CIERTO, CIERTO)), "L: 1.5 m");
    EXPECT_EQ(toma(convers_texto_ex(L, 1.5, 70, 3, FALSO, CIERTO)), "L: 1.500 m");
    EXPECT_EQ(toma(convers_texto_ex(nullptr, 1.5, 70, 3, FALSO, FALSO)), "1.500");
    EXPECT_EQ(toma(convers_texto_ex(nullptr, 1.23456, 70, 3, CIERTO, FALSO)), "1.235");
    EXPECT_EQ(toma(convers_texto_ex(L, 1.5, CNV_NO_CONVERSION, 0, FALSO, CIERTO)), "L: 2");
    EXPECT_EQ(toma(convers_texto_ex(nullptr, 0.125, 70, 2, FALSO, CIERTO)), "0.13 m"); // rounded first, halves away
    for (const uint32_t decimales : {256u, 4294967295u}) {
        EXPECT_EQ(ESPERA_INFORME("decimales < 256", convers_texto_ex(L, 1.5, 70, decimales, CIERTO, CIERTO)), nullptr);
        EXPECT_EQ(ESPERA_INFORME("decimales < 256", convers_texto_max_n_decimales(1.5, 70, decimales)), nullptr);
    }
    EXPECT_EQ(toma(convers_texto_max_n_decimales(1.5, 70, 255)), "1.5");
}

// Whatever the member, an imperial length is feet and inches: no decimals, no unit.
PRUEBA(convers, una_longitud_imperial_va_en_pies_y_pulgadas) {
    const auto puesto = en_sistema(IMPERIAL);
    const double m = 5 * 0.3048 + 3.5 * 0.0254;
    const std::string texto = "5'-3 1/2\"";
    EXPECT_EQ(toma(convers_texto(m, 18)), texto);
    EXPECT_EQ(toma(convers_texto_tres_decimales_u(m, 13)), texto);
    EXPECT_EQ(toma(convers_texto_max_n_decimales_u(m, 13, 1)), texto);
    EXPECT_EQ(toma(convers_texto_con_unidades_n_decimales(m, 83, 5)), texto);
    EXPECT_EQ(toma(convers_texto_con_cabecera_y_unidades_dos_decimales(VNU("Luz"), m, 17)), "Luz: " + texto);
    EXPECT_EQ(toma(convers_texto_ex(VNU("Luz"), m, 20, 2, FALSO, CIERTO)), "Luz: " + texto);
    EXPECT_EQ(toma(convers_texto_ex(nullptr, m, 20, 2, FALSO, CIERTO)), texto);
    EXPECT_EQ(toma(convers_texto_con_unidades(m, 11)), "63 1/2\"");
    EXPECT_EQ(toma(convers_texto(63.53125 * 0.0254, 57)), "63 17/32\"");
    EXPECT_EQ(toma(convers_texto(63.53125 * 0.0254, 117)), "63 1/2\""); // sixteenths at most
    EXPECT_EQ(toma(convers_texto_con_unidades_dos_decimales(m, 70)), "1.61 m");
    EXPECT_EQ(toma(convers_texto_con_unidades_dos_decimales(1., CNV_FLECHA)), "39.37 in");
    EXPECT_EQ(toma(convers_texto_u(INF, 13)), "inf");
    // Typed in and shown without a conversion: 5.29 feet.
    double valor = 0;
    EXPECT_EQ(convers_dameNumeroDeCadena("5'-3 1/2\"", &valor, 18), CIERTO);
    EXPECT_DOUBLE_EQ(valor, 63.5 / 12);
    EXPECT_EQ(convers_dameNumeroDeCadenaConDecimales_u(VNU("63 1/2\""), &valor, VNU('.'), VNU(','), 13), CIERTO);
    EXPECT_EQ(valor, 63.5);
    EXPECT_EQ(toma(convers_double_a_cadena(63.5, '.', ',', 2, 13)), texto);
    EXPECT_EQ(toma(convers_double_a_cadena_u(63.5, VNU('.'), VNU(','), 2, 70)), "63,50");
    EXPECT_EQ(convers_dameNumeroDeCadena_u(VNU("5'"), &valor, 70), FALSO);
    EXPECT_EQ(convers_dameNumeroDeCadenaConDecimales("1.234,5", &valor, '.', ',', CNV_NO_CONVERSION), CIERTO);
    EXPECT_EQ(valor, 1234.5);
}

PRUEBA(convers, una_conversion_no_reserva_memoria_y_un_texto_un_bloque) {
    for (const uint32_t sistema : {MKS, SI, IMPERIAL}) {
        const auto puesto = en_sistema(sistema);
        cnv_strextunids(0);
        for (uint32_t t = 0; t <= CNV_NO_CONVERSION; ++t) {
            SCOPED_TRACE(t);
            EXPECT_EQ(reservas([t] { cnv_convierte(1, t, cnv_convierte(0, t, 7.)), cnv_strextunids(t); }), 0);
            EXPECT_EQ(reservas([t] { convers_valor_adaptado_a_unidades(7., t); }), 0);
            EXPECT_EQ(reservas([t] { toma(convers_texto(7., t)); }), 1);
            EXPECT_EQ(reservas([t] { toma(convers_texto_con_cabecera_y_unidades(VNU("Nº"), 7., t)); }), 1);
            EXPECT_EQ(reservas([t] { toma(convers_texto_ex(VNU("Nº"), 7., t, 2, CIERTO, CIERTO)); }), 1);
        }
    }
}

// ---------------------------------------------------------------- the table's life

PRUEBA(convers, los_textos_son_del_idioma_del_primer_uso) {
    const auto puesto = en_sistema(MKS);
    const struct {
        int idioma;
        const char *tension, *grados, *agua, *fuerza;
    } filas[] = {
        {0, "kp/cm²", "grados", "m.c.a.", "t"},       {1, "kgf/cm²", "degrés", "m.c.e.", "t"},
        {2, "kgf/cm²", "graus", "m.c.a.", "tf"},      {3, "kp/cm²", "graus", "m.c.a.", "t"},
        {4, "kgf/cm²", "gradi", "m.c.a.", "t"},       {6, "kg/cm²", "grados", "m.c.a.", "t"},
        {8, "kgf/cm²", "degrees", "mH2O", "t"},       {13, "kp/cm²", "Grad", "mWS", "t"},
        {14, "kp/cm²", "grados", "m.c.a.", "t"},      {25, "kgf/cm²", "degrees", "mH2O", "t"},
        {18, "кгс/см²", "град.", "м вод. ст.", "тс"}, {39, "kgf/cm²", "度", "mAq", "tf"},
        {10, "кгс/см²", "градуса", "м в. ст.", "тс"},
    };
    for (const auto &f : filas) {
        SCOPED_TRACE(f.idioma);
        vnatexit_ejecuta();
        msidioma_establece_idioma(f.idioma);
        cnv_convierte(CNV_A_MOSTRADO, 0, 1.);
        msidioma_establece_idioma(f.idioma == 8 ? 0 : 8); // too late for the table, not for the units by name
        EXPECT_EQ(vn::utf8_de(cnv_strextunids(5)), f.tension);
        EXPECT_EQ(vn::utf8_de(cnv_strextunids(15)), f.grados);
        EXPECT_EQ(vn::utf8_de(cnv_strextunids(42)), f.agua);
        EXPECT_EQ(vn::utf8_de(cnv_strextunids(1)), f.fuerza);
        const std::string rigidez = vn::utf8_de(cnv_strextunids(68)); // the same tonne, unless it is the megapond
        EXPECT_TRUE(rigidez == "Mp·m²" || rigidez.starts_with(std::string(f.fuerza) + "·")) << rigidez;
        EXPECT_EQ(vn::utf8_de(convers_texto_kp_cm2()), f.idioma == 8 ? "kp/cm²" : "kgf/cm²");
    }
    msidioma_establece_idioma(18);
    EXPECT_EQ(vn::utf8_de(convers_texto_W_m2K()) + " " + vn::utf8_de(convers_texto_kWh()), "Вт/(м²·К) кВт·ч");
    EXPECT_EQ(vn::utf8_de(convers_texto_grado_centigrado()) + vn::utf8_de(convers_texto_porcentaje()), "°C%");
}

// A text is of one moment: what is changed meanwhile by another thread never mixes two systems.
PRUEBA(convers, un_texto_es_de_un_momento) {
    const auto antes = en_sistema(MKS);
    std::atomic<bool> basta{false};
    std::thread otra([&] {
        while (!basta)
            for (const uint32_t sistema : {IMPERIAL, MKS}) vornconf_Internacional_set_sistema_unidades(sistema);
    });
    std::set<std::string> vistos;
    for (const auto fin = std::chrono::steady_clock::now() + std::chrono::milliseconds(300);
         std::chrono::steady_clock::now() < fin;) {
        vistos.insert(toma(convers_texto_con_unidades_dos_decimales(1, 1)));
        vistos.insert(toma(convers_texto_con_cabecera_y_unidades(VNU("F"), 1, 1)));
        vistos.insert(toma(convers_texto_ex(nullptr, 1, 1, 1, FALSO, CIERTO)));
    }
    basta = true;
    otra.join();
    const std::set<std::string> posibles = {"1.00 t", "2204.62 lbs", "F: 1 t", "F: 2204.62 lbs", "1.0 t", "2204.6 lbs"};
    EXPECT_TRUE(std::ranges::includes(posibles, vistos)) << testing::PrintToString(vistos);
}

PRUEBA(convers, sin_memoria_para_los_textos_no_hay_texto) {
    vnatexit_ejecuta();
    EXPECT_FALSE(vn::atrapado([] { cnv_strextunids(113); }, 0));
    EXPECT_NE(cnv_strextunids(113), nullptr);
}

HIJO(convers_uso_residual) {
    const auto puesto = en_sistema(IMPERIAL);
    if (convers_es_longitud_en_sistema_imperial(13) != CIERTO) return 1;
    convers_set_es_uso_residual_en_programas_con_unidades_configurables();
    if (convers_es_longitud_en_sistema_imperial(13) != FALSO || convers_formato_entrada(116) != 0) return 2;
    if (toma(convers_texto_con_unidades_dos_decimales(0.0254, 13)) != "1.00 in") return 3;
    // And so the step is by 5 again: 5.5 inches.
    const double paso = convers_valor_redondeado_por_exceso(1e-5, 5.5 * 0.0254, CNV_LONGITUD) / 0.0254;
    return std::fabs(paso - 5.) < 1e-9 ? 0 : 4;
}

PRUEBA(convers, el_uso_residual_quita_pies_y_pulgadas_para_siempre) {
    vn::proceso hijo("convers_uso_residual", {});
    EXPECT_EQ(hijo.espera(30000), 0);
}
