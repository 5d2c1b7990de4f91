#define VN_MODULO "sysdata_test"
#include "foundation/sistema/vnregional.h"
#include "foundation/suelo/operaciones_fichero.h"
#include "foundation/texto/unicode.h"
#include "plataforma/proceso.h"
#include "prueba.h"
#include "time/sysdata.h"
#include <cfloat>
#include <cmath>
#include <set>

using vn::toma;

namespace {

struct fila {
    const char *region;
    const char *campos, *decimal, *millares, *fechas, *horas;
    int32_t orden, modo;
    const char *corta, *larga, *hora, *sin_segundos, *lunes, *sabado, *numero;
};
// A date whose day and month have two digits, and a time whose hour has.
constexpr fila FILAS[] = {
    {"es-ES", ";", ",", ".", "/", ":", 1, 1, "24/12/2023", "domingo, 24 de diciembre de 2023", "15:04:05", "15:04",
     "lunes", "sábado", "-1.234.567,90"},
    {"en-US", ",", ".", ",", "/", ":", 0, 0, "12/24/2023", "Sunday, December 24, 2023", "3:04:05 PM", "3:04 PM",
     "Monday", "Saturday", "-1,234,567.90"},
    {"en-GB", ",", ".", ",", "/", ":", 1, 1, "24/12/2023", "Sunday, 24 December 2023", "15:04:05", "15:04", "Monday",
     "Saturday", "-1,234,567.90"},
    {"de-DE", ";", ",", ".", ".", ":", 1, 1, "24.12.2023", "Sonntag, 24. Dezember 2023", "15:04:05", "15:04", "Montag",
     "Samstag", "-1.234.567,90"},
    {"fr-FR", ";", ",", "\u00A0", "/", ":", 1, 1, "24/12/2023", "dimanche 24 décembre 2023", "15:04:05", "15:04",
     "lundi", "samedi", "-1\u00A0234\u00A0567,90"},
    {"pt-PT", ";", ",", "\u00A0", "/", ":", 1, 1, "24/12/2023", "domingo, 24 de dezembro de 2023", "15:04:05", "15:04",
     "segunda-feira", "sábado", "-1\u00A0234\u00A0567,90"},
    {"pt-BR", ";", ",", ".", "/", ":", 1, 1, "24/12/2023", "domingo, 24 de dezembro de 2023", "15:04:05", "15:04",
     "segunda-feira", "sábado", "-1.234.567,90"},
    {"ca-ES", ";", ",", ".", "/", ":", 1, 1, "24/12/2023", "diumenge, 24 de desembre de 2023", "15:04:05", "15:04",
     "dilluns", "dissabte", "-1.234.567,90"},
    {"it-IT", ";", ",", ".", "/", ":", 1, 1, "24/12/2023", "domenica 24 dicembre 2023", "15:04:05", "15:04", "lunedì",
     "sabato", "-1.234.567,90"},
    {"ja-JP", ",", ".", ",", "/", ":", 2, 1, "2023/12/24", "2023年12月24日日曜日", "15:04:05", "15:04", "???", "???",
     "-1,234,567.90"},
};

// ANSI text as UTF-8.
std::string ansi(char *texto) { return toma(unicode_convierte_ANSI_a_UNICODE(toma(texto).c_str())); }

} // namespace

PRUEBA(sysdata, cada_region_con_lo_suyo) {
    for (const fila &f : FILAS) {
        SCOPED_TRACE(f.region);
        ASSERT_EQ(vnregional_establece(f.region), CIERTO);
        const struct {
            char *(*a)(void);
            vnwchar *(*u)(void);
            const char *texto;
        } separadores[] = {
            {sysdata_separador_campos, sysdata_separador_campos_u, f.campos},
            {sysdata_separador_decimal, sysdata_separador_decimal_u, f.decimal},
            {sysdata_separador_millares, sysdata_separador_millares_u, f.millares},
            {sysdata_separador_fechas, sysdata_separador_fechas_u, f.fechas},
            {sysdata_separador_horas, sysdata_separador_horas_u, f.horas},
        };
        for (const auto &s : separadores) {
            EXPECT_EQ(ansi(s.a()), s.texto);
            EXPECT_EQ(toma(s.u()), s.texto);
        }
        EXPECT_EQ(sysdata_orden_fecha(), f.orden);
        EXPECT_EQ(sysdata_modo_horario(), f.modo);
        EXPECT_EQ(toma(sysdata_fecha_u(24, 12, 2023, 3, nullptr, FALSO)), f.corta); // whatever the day of the week says
        EXPECT_EQ(toma(sysdata_fecha_u(24, 12, 2023, 0, nullptr, CIERTO)), f.larga);
        EXPECT_EQ(toma(sysdata_fecha_u(24, 12, 2023, 0, VNU("yyyy.MM.dd"), CIERTO)), "2023.12.24");
        EXPECT_EQ(ansi(sysdata_fecha(24, 12, 2023, 0, nullptr, FALSO)), f.corta);
        EXPECT_EQ(toma(sysdata_hora_u(5, 4, 15, CIERTO)), f.hora);
        EXPECT_EQ(ansi(sysdata_hora(5, 4, 15, FALSO)), f.sin_segundos);
        EXPECT_EQ(ansi(sysdata_nombre_dia(1)), f.lunes);
        EXPECT_EQ(ansi(sysdata_nombre_dia(6)), f.sabado);
        EXPECT_EQ(toma(sysdata_formateaNumero_u(-1234567.895001, 3)), f.numero);
    }
}

PRUEBA(sysdata, fechas_y_horas_en_sus_limites) {
    ASSERT_EQ(vnregional_establece("es-ES"), CIERTO);
    EXPECT_EQ(toma(sysdata_fecha(31, 12, 1900, 1, "d", FALSO)), "");
    EXPECT_EQ(toma(sysdata_fecha_u(31, 12, -5, 1, nullptr, FALSO)), "");
    EXPECT_EQ(toma(sysdata_fecha(1, 1, 1901, 2, "dddd d-M-yyyy", FALSO)), "martes 1-1-1901");
    EXPECT_EQ(toma(sysdata_fecha(1, 1, 1901, 2, "", FALSO)), "");
    EXPECT_EQ(ansi(sysdata_fecha(24, 12, 2022, 0, "dddd 'd\355a' d", FALSO)), "sábado día 24");
    EXPECT_EQ(toma(ESPERA_INFORME("tamanyo_cadena != 0", sysdata_fecha(30, 2, 2024, 0, nullptr, FALSO))), "");
    EXPECT_EQ(toma(ESPERA_INFORME("tamanyo_cadena != 0", sysdata_hora_u(0, 0, 24, FALSO))), "");
    std::set<std::string> dias;
    for (uint32_t i = 0; i < 7; ++i) dias.insert(toma(sysdata_nombre_dia_abreviado(i)));
    EXPECT_EQ(dias.size(), 7u);
    ASSERT_EQ(vnregional_establece("en-US"), CIERTO);
    EXPECT_EQ(toma(sysdata_nombre_dia_abreviado(0)) + toma(sysdata_nombre_dia_abreviado(3)), "SunWed");
}

PRUEBA(sysdata, numeros_que_no_caben_o_no_lo_son_salen_llanos) {
    ASSERT_EQ(vnregional_establece("en-US"), CIERTO);
    const struct {
        double valor;
        int32_t decimales;
        const char *texto;
    } filas[] = {
        {1234.5, 0, "1,234.00"}, // to the even one, as the plain text does
        {1235.5, 0, "1,236.00"},  {0.125, 2, "0.12"},     {-0.125, 3, "-0.13"}, {1e15, 1, "1,000,000,000,000,000.00"},
        {std::nan(""), 2, "nan"}, {-HUGE_VAL, 2, "-inf"}, {5e-324, 6, "0.00"},  {2.5, 40, "2.50"},
    };
    for (const auto &f : filas) EXPECT_EQ(toma(sysdata_formateaNumero_u(f.valor, f.decimales)), f.texto) << f.valor;
    // The last that fits has 49 characters: 35 digits, 11 commas and the decimals.
    const std::string cabe = toma(sysdata_formateaNumero_u(1e35, 0)), no_cabe = toma(sysdata_formateaNumero_u(4e35, 0));
    EXPECT_EQ(cabe.size(), 49u) << cabe;
    EXPECT_EQ(no_cabe.size(), 36u) << no_cabe;
    EXPECT_EQ(toma(sysdata_formateaNumero_u(-DBL_MAX, 3)).size(), 1u + 309 + 4);
}

HIJO(dice_su_usuario) {
    if (!vn::se_queda_sin_usuario()) return 2;
    return toma(sysdata_nombre_usuario_actual_u()) == "USUARIO" ? 0 : 1;
}

PRUEBA(sysdata, la_maquina_y_su_usuario) {
    vn::proceso sin_nombre("dice_su_usuario", {});
    EXPECT_NE(sin_nombre.espera(30000).value_or(1), 1); // 2: only root becomes another, and not on Windows
    const std::string maquina = toma(sysdata_nombre_maquina_u());
    EXPECT_TRUE(!maquina.empty() && maquina.size() <= 30 && maquina.find('.') == std::string::npos) << maquina;
    EXPECT_EQ(maquina.find_first_of("abcdefghijklmnopqrstuvwxyz"), std::string::npos);
    EXPECT_EQ(toma(sysdata_nombre_maquina()), maquina);
    const std::string usuario = toma(sysdata_nombre_usuario_actual_u());
    EXPECT_FALSE(usuario.empty());
    EXPECT_EQ(usuario.find_first_of("abcdefghijklmnopqrstuvwxyz"), std::string::npos);
    EXPECT_NE(toma(sysdata_nombre_MiPC()), "(null)");
    const uint32_t antes = sysdata_milisegundos_transcurridos();
    operaciones_fichero_del_sistema()->espera(120);
    const uint32_t pasados = sysdata_milisegundos_transcurridos() - antes;
    EXPECT_TRUE(pasados >= 100 && pasados < 10000) << pasados;
}
