#include "filas.h"
#include "foundation/sistema/vnregional.h"
#include "foundation/suelo/operaciones_fichero.h"
#include "foundation/texto/unicode.h"
#include "plataforma/proceso.h"
#include "time/sysdata.h"
#include <cfloat>
#include <set>

using vn::toma;

namespace {

// ANSI text as UTF-8.
std::string ansi(char *texto) { return toma(unicode_convierte_ANSI_a_UNICODE(toma(texto).c_str())); }

} // namespace

PRUEBA(sysdata, cada_region_con_lo_suyo) {
    using std::string;
    for (const auto &[region, campos, decimal, millares, fechas, horas, orden, modo, corta, larga, hora, sin_segundos,
                      lunes, sabado, numero] :
         vn::filas<string, string, string, string, string, string, int, int, string, string, string, string, string,
                   string, string>("time/sysdata.tsv", "regiones")) {
        SCOPED_TRACE(region);
        ASSERT_EQ(vnregional_establece(region.c_str()), CIERTO);
        const auto son = [](char *a, vnwchar *u, const string &texto) {
            EXPECT_EQ(ansi(a), texto);
            EXPECT_EQ(toma(u), texto);
        };
        son(sysdata_separador_campos(), sysdata_separador_campos_u(), campos);
        son(sysdata_separador_decimal(), sysdata_separador_decimal_u(), decimal);
        son(sysdata_separador_millares(), sysdata_separador_millares_u(), millares);
        son(sysdata_separador_fechas(), sysdata_separador_fechas_u(), fechas);
        son(sysdata_separador_horas(), sysdata_separador_horas_u(), horas);
        EXPECT_EQ(sysdata_orden_fecha(), orden);
        EXPECT_EQ(sysdata_modo_horario(), modo);
        EXPECT_EQ(toma(sysdata_fecha_u(24, 12, 2023, 3, nullptr, FALSO)), corta); // whatever the day of the week says
        EXPECT_EQ(toma(sysdata_fecha_u(24, 12, 2023, 0, nullptr, CIERTO)), larga);
        EXPECT_EQ(toma(sysdata_fecha_u(24, 12, 2023, 0, VNU("yyyy.MM.dd"), CIERTO)), "2023.12.24");
        EXPECT_EQ(ansi(sysdata_fecha(24, 12, 2023, 0, nullptr, FALSO)), corta);
        EXPECT_EQ(toma(sysdata_hora_u(5, 4, 15, CIERTO)), hora);
        EXPECT_EQ(ansi(sysdata_hora(5, 4, 15, FALSO)), sin_segundos);
        EXPECT_EQ(ansi(sysdata_nombre_dia(1)), lunes);
        EXPECT_EQ(ansi(sysdata_nombre_dia(6)), sabado);
        EXPECT_EQ(toma(sysdata_formateaNumero_u(-1234567.895001, 3)), numero);
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
    for (const auto &[valor, decimales, texto] : vn::filas<double, int32_t, std::string>("time/sysdata.tsv", "numeros"))
        EXPECT_EQ(toma(sysdata_formateaNumero_u(valor, decimales)), texto) << valor;
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
