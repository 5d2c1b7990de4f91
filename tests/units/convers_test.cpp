#include "filas.h"
#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/msglocal.h"
#include "plataforma/proceso.h"
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

using std::string;
using vn::INF, vn::NAN_, vn::toma, vn::utf8_de;
using ancha = std::basic_string<vnwchar>;

template <class... T> auto datos(const char *seccion) { return vn::filas<T...>("units/convers.tsv", seccion); }

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

double valor_de_unidad(const ancha &texto);

// A word of a unit text in units of the definitions.
double valor_de_palabra(const ancha &palabra) {
    static const auto PALABRAS = datos<ancha, ancha, double>("palabras");
    for (const auto &[definida, unidad, cuantas] : PALABRAS)
        if (definida == palabra) return cuantas * valor_de_unidad(unidad);
    ADD_FAILURE() << "unknown unit " << utf8_de(palabra.c_str());
    return NAN_;
}

// A unit text: words joined by dots, blanks and brackets; all that follows the first bar divides.
double valor_de_unidad(const ancha &texto) {
    double n = 1, d = 1, *donde = &n;
    ancha palabra;
    for (const vnwchar c : texto + VNU(' ')) {
        const bool separa = c == u' ' || c == u'·' || c == u'(' || c == u')' || c == u'/';
        const int exponente = c == u'²' ? 2 : c == u'³' ? 3 : 1;
        if ((separa || exponente > 1 || c == u'°') && !palabra.empty())
            *donde *= std::pow(valor_de_palabra(palabra), exponente), palabra.clear();
        if (!separa && exponente == 1) palabra += c;
        if (c == u'/') donde = &d;
    }
    return n / d;
}

const struct {
    uint32_t tipo;
    const char *nombre;
    ancha interna;
} FILAS[] = {
#define X(tipo, nombre, interna, ...) {nombre, #nombre, VNU(interna)},
#include "units/convers_tabla.inl"
#undef X
};

double desvio_de(const std::string &tipo, uint32_t sistema) {
    static const auto DESVIOS = datos<string, string, double>("desvios");
    for (const auto &[suyo, sistemas, desvio] : DESVIOS)
        if (suyo == tipo && sistemas.find(std::to_string(sistema)) != sistemas.npos) return desvio;
    return 0;
}

} // namespace

// Every figure of the table is what its two unit texts say, forth and back, in the three systems and energy units.
PRUEBA(convers, cada_fila_convierte_lo_que_dicen_sus_unidades) {
    ASSERT_EQ(std::size(FILAS), 145u);
    for (const uint32_t sistema : {MKS, SI, IMPERIAL})
        for (uint32_t energia = 0; energia < 3; ++energia) {
            const auto puesto = en_sistema(sistema, energia);
            for (const auto &f : FILAS) {
                SCOPED_TRACE(testing::Message() << f.nombre << " in system " << sistema << ", energy " << energia);
                const double sumando = cnv_convierte(CNV_A_MOSTRADO, f.tipo, 0.);
                const double coef = cnv_convierte(CNV_A_MOSTRADO, f.tipo, 1.) - sumando;
                const double esperado = valor_de_unidad(f.interna) / valor_de_unidad(cnv_strextunids(f.tipo));
                const double desvio = desvio_de(f.nombre, sistema);
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
        EXPECT_EQ(utf8_de(cnv_strextunids(110)) + "|" + utf8_de(cnv_strextunids(113)), "kcal/h|kcal/(h·m²·K)");
        EXPECT_EQ(convers_formato_entrada(13), 0);
        EXPECT_EQ(convers_precision_num_decimales_segun_sistema_uds(0.01, 13), 0u);
    }
    const auto puesto = en_sistema(IMPERIAL);
    EXPECT_EQ(muestra(12, 1.), 204.81614345076477); // not the figure for calculation
    EXPECT_EQ(utf8_de(cnv_strextunids(60)) + "|" + utf8_de(cnv_strextunids(62)), "%|%%");
    EXPECT_EQ(muestra(CNV_NO_CONVERSION, 7.25) + cnv_convierte(2, CNV_NO_CONVERSION, 7.25), 14.5);
    EXPECT_EQ(utf8_de(cnv_strextunids(CNV_NO_CONVERSION)), "");
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
    for (const auto &[prec, esperada, decimales] : datos<double, double, uint32_t>("precision")) {
        EXPECT_EQ(convers_precision_segun_sistema_uds(prec, CNV_METROS), esperada) << prec;
        EXPECT_EQ(convers_precision_num_decimales_segun_sistema_uds(prec, CNV_METROS), decimales) << prec;
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
    const auto paso = convers_valor_redondeado_por_exceso;
    const auto metrico = en_sistema(MKS);
    for (const auto &[limite, debajo, encima] : datos<double, double, double>("pasos")) {
        EXPECT_EQ(paso(1e-5, limite, CNV_METROS), debajo) << limite;
        EXPECT_EQ(paso(1e-5, std::nextafter(limite, 1e9), CNV_METROS), encima) << limite;
    }
    // Feet and inches: by 6 and its tens where the others go by 5.
    for (const auto &[sistema, tipo, prec, esperado] : datos<uint32_t, uint32_t, double, double>("pasos_sueltos")) {
        const auto puesto = en_sistema(sistema);
        const double unidad = sistema == IMPERIAL ? 0.0254 : 1, tolerancia = sistema == IMPERIAL ? 1e-9 : 1e-15;
        EXPECT_NEAR(paso(1e-5, prec * unidad, tipo) / unidad, esperado, tolerancia) << prec;
    }
}

PRUEBA(convers, el_redondeo_va_hacia_donde_dice_su_nombre) {
    const auto puesto = en_sistema(MKS);
    const auto cerca = convers_valor_redondeado_al_mas_cercano;
    const std::map<string, double (*)(double, double, uint32_t)> MANERAS{
        {"cerca", cerca},
        {"abajo", convers_valor_redondeado_por_defecto},
        {"arriba", convers_valor_redondeado_por_exceso}};
    for (const auto &[x, manera, prec, tipo, esperado] : datos<double, string, double, uint32_t, double>("redondeos"))
        EXPECT_EQ(MANERAS.at(manera)(x, prec, tipo), esperado) << x << " " << manera << " " << prec;
    EXPECT_TRUE(std::isnan(cerca(NAN_, 1., CNV_METROS)));
    EXPECT_EQ(ESPERA_INFORME("valor_max_redondeo > 0.", cerca(1.5, NAN_, CNV_METROS)), 1.5);
    EXPECT_EQ(ESPERA_INFORME("i < num_decimales_max", cerca(1.5, 1.5e-12, CNV_METROS)), 1.5);
    EXPECT_EQ(ESPERA_INFORME("(convers) != NULL", cerca(1.5, 1., 146)), 1.5);
}

PRUEBA(convers, el_valor_adaptado_es_redondo_en_la_unidad_que_se_ve) {
    for (const auto &[sistema, tipo, mostrado, esperado] : datos<uint32_t, uint32_t, double, double>("adaptados")) {
        const auto puesto = en_sistema(sistema);
        const double adaptado = convers_valor_adaptado_a_unidades(cnv_convierte(CNV_A_INTERNO, tipo, mostrado), tipo);
        EXPECT_NEAR(cnv_convierte(CNV_A_MOSTRADO, tipo, adaptado), esperado, esperado * 1e-14)
            << tipo << ": " << mostrado;
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
    } formas[] = {
#define FORMA(x)                                                                                                       \
    convers_texto##x, convers_texto##x##_u, convers_texto_con_unidades##x, convers_texto_con_cabecera_y_unidades##x
        {FORMA(), "1234.57"},
        {FORMA(_sin_decimales), "1235"},
        {FORMA(_un_decimal), "1234.6"},
        {FORMA(_dos_decimales), "1234.57"},
        {FORMA(_tres_decimales), "1234.568"},
#undef FORMA
        {nullptr, nullptr, nullptr, convers_texto_con_cabecera_y_unidades_cuatro_decimales, "1234.5679"},
        {nullptr, nullptr, nullptr, convers_texto_con_cabecera_y_unidades_seis_decimales, "1234.567890"},
        {nullptr, nullptr, nullptr, convers_texto_con_cabecera_y_unidades_max_tres_decimales, "1234.57"}};
    for (const auto &f : formas) {
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
    for (const auto &[sistema, cabecera, x, tipo, decimales, es_maximo, con_unidades, texto] :
         datos<uint32_t, vn::nulable_ancho, double, uint32_t, uint32_t, vnbool, vnbool, string>("general")) {
        const auto puesto = en_sistema(sistema);
        EXPECT_EQ(toma(convers_texto_ex(cabecera.c_str(), x, tipo, decimales, es_maximo, con_unidades)), texto);
    }
    for (const uint32_t decimales : {256u, 4294967295u}) {
        EXPECT_EQ(ESPERA_INFORME("decimales < 256", convers_texto_ex(nullptr, 1, 70, decimales, CIERTO, CIERTO)),
                  nullptr);
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
    const auto uno = [](const std::function<void()> &f) { return vn::atrapado(f, 1) && !vn::atrapado(f, 0); };
    for (const uint32_t sistema : {MKS, SI, IMPERIAL}) {
        const auto puesto = en_sistema(sistema);
        cnv_strextunids(0);
        for (uint32_t t = 0; t <= CNV_NO_CONVERSION; ++t) {
            SCOPED_TRACE(t);
            EXPECT_TRUE(vn::atrapado([t] { cnv_convierte(1, t, cnv_convierte(0, t, 7.)), cnv_strextunids(t); }, 0));
            EXPECT_TRUE(vn::atrapado([t] { convers_valor_adaptado_a_unidades(7., t); }, 0));
            EXPECT_TRUE(uno([t] { toma(convers_texto(7., t)); }));
            EXPECT_TRUE(uno([t] { toma(convers_texto_con_cabecera_y_unidades(VNU("Nº"), 7., t)); }));
            EXPECT_TRUE(uno([t] { toma(convers_texto_ex(VNU("Nº"), 7., t, 2, CIERTO, CIERTO)); }));
        }
    }
}

// ---------------------------------------------------------------- the table's life

PRUEBA(convers, los_textos_son_del_idioma_del_primer_uso) {
    const auto puesto = en_sistema(MKS);
    for (const auto &[idioma, tension, grados, agua, fuerza] : datos<int, string, string, string, string>("idiomas")) {
        SCOPED_TRACE(idioma);
        vnatexit_ejecuta();
        msidioma_establece_idioma(idioma);
        cnv_convierte(CNV_A_MOSTRADO, 0, 1.);
        msidioma_establece_idioma(idioma == 8 ? 0 : 8); // too late for the table, not for the units by name
        EXPECT_EQ(utf8_de(cnv_strextunids(5)), tension);
        EXPECT_EQ(utf8_de(cnv_strextunids(15)), grados);
        EXPECT_EQ(utf8_de(cnv_strextunids(42)), agua);
        EXPECT_EQ(utf8_de(cnv_strextunids(1)), fuerza);
        const std::string rigidez = utf8_de(cnv_strextunids(68)); // the same tonne, unless it is the megapond
        EXPECT_TRUE(rigidez == "Mp·m²" || rigidez.starts_with(fuerza + "·")) << rigidez;
        EXPECT_EQ(utf8_de(convers_texto_kp_cm2()), idioma == 8 ? "kp/cm²" : "kgf/cm²");
    }
    msidioma_establece_idioma(18);
    EXPECT_EQ(utf8_de(convers_texto_W_m2K()) + " " + utf8_de(convers_texto_kWh()), "Вт/(м²·К) кВт·ч");
    EXPECT_EQ(utf8_de(convers_texto_grado_centigrado()) + utf8_de(convers_texto_porcentaje()), "°C%");
}

// A text is of one moment: what is changed meanwhile by another thread never mixes two systems.
PRUEBA(convers, un_texto_es_de_un_momento) {
    const auto antes = en_sistema(MKS);
    std::atomic<bool> basta{false};
    std::thread otra([&] {
        while (!basta)
            for (const uint32_t sistema : {IMPERIAL, MKS}) vornconf_Internacional_set_sistema_unidades(sistema);
    });
    std::set<string> vistos;
    for (const auto fin = std::chrono::steady_clock::now() + std::chrono::milliseconds(300);
         std::chrono::steady_clock::now() < fin;) {
        vistos.insert(toma(convers_texto_con_unidades_dos_decimales(1, 1)));
        vistos.insert(toma(convers_texto_con_cabecera_y_unidades(VNU("F"), 1, 1)));
        vistos.insert(toma(convers_texto_ex(nullptr, 1, 1, 1, FALSO, CIERTO)));
    }
    basta = true;
    otra.join();
    const std::set<string> posibles = {"1.00 t", "2204.62 lbs", "F: 1 t", "F: 2204.62 lbs", "1.0 t", "2204.6 lbs"};
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
