#define VN_MODULO "vnregional_test"
#include "foundation/sistema/vnregional.h"
#include "plataforma/proceso.h"
#include "plataforma/regional.h"
#include "texto_ancho.h"
#include <array>
#include <chrono>
#include <thread>

using vn::ancho;
using vn::toma;

namespace {

std::string fecha(int32_t dia, int32_t mes, int32_t anyo, const char *modelo) {
    return toma(vnregional_fecha_u(dia, mes, anyo, ancho(modelo).c_str(), FALSO));
}
std::string numero(const char *texto, uint32_t maximo = 50) {
    return toma(vnregional_numero_u(ancho(texto).c_str(), maximo));
}
std::string decimal() { return toma(vnregional_dato_u(VNREGIONAL_SEPARADOR_DECIMAL)); }

// A region of the process, until the test ends.
void en_region(const char *nombre) { EXPECT_EQ(vnregional_establece(nombre), CIERTO) << nombre; }

} // namespace

PRUEBA(vnregional, los_modelos_de_fecha) {
    const struct {
        const char *region, *modelo, *texto;
    } filas[] = {
        {"es-ES", "dd/MM/yyyy", "05/03/2024"},
        {"es-ES", "d-M-yy y yyyyy", "5-3-24 24 2024"},
        {"es-ES", "dddd, d 'de' MMMM", "martes, 5 de marzo"},
        {"es-ES", "'a''b' d 'sin cerrar MM", "a'b 5 sin cerrar MM"},
        {"en-US", "MMM d HH:mm tt", "Mar 5 HH:mm tt"}, // of a time: text here
        {"en-US", "MMMMM ddddd", "March Tuesday"},
        {"de-DE", "dddd, dd. MMMM yyyy gg", "Dienstag, 05. März 2024 n. Chr."},
        // The month beside a day of it, and alone.
        {"ca-ES", "d MMMM", "5 de març"},
        {"ca-ES", "MMMM 'de' yyyy", "març de 2024"},
        {"pl-PL", "d MMMM|MMM", "5 marca|mar"},
        {"ru-RU", "dddd MMMM", "вторник март"},
    };
    for (const auto &f : filas) {
        en_region(f.region);
        EXPECT_EQ(fecha(5, 3, 2024, f.modelo), f.texto) << f.region << " " << f.modelo;
    }
    for (const auto &[dia, mes, anyo] : {std::array{29, 2, 2023},
                                         {29, 2, 1900},
                                         {0, 1, 2000},
                                         {31, 4, 2000},
                                         {1, 13, 2000},
                                         {1, 0, 2000},
                                         {1, 1, 1600},
                                         {1, 1, 10000},
                                         {-1, 1, 2000}})
        EXPECT_EQ(fecha(dia, mes, anyo, "d"), "(null)") << dia << " " << mes << " " << anyo;
    EXPECT_EQ(fecha(29, 2, 2000, "d"), "29");
}

// The name of a day by itself and in the date of a region; a region of another calendar.
PRUEBA(vnregional, los_nombres_solos_y_en_una_fecha) {
    if (vn::EN_WINDOWS) return; // whose tables have one form, and the system's own calendar
    const auto miercoles = [] { return toma(vnregional_dato_u(VNREGIONAL_NOMBRE_DIA + 2)); };
    en_region("fi-FI");
    EXPECT_EQ(miercoles(), "keskiviikko");
    EXPECT_EQ(toma(vnregional_fecha_u(4, 3, 2026, nullptr, CIERTO)).substr(0, 12), "keskiviikko ");
    en_region("gl-ES");
    EXPECT_EQ(miercoles() + fecha(4, 3, 2026, " dddd"), "Mércores mércores");
    for (const auto &[region, larga] :
         {std::pair{"fa-IR", "پنجشنبه 5 مارس 2026"}, {"th-TH", "วันพฤหัสบดีที่ 5 มีนาคม ค.ศ. 2026"}}) {
        en_region(region);
        EXPECT_EQ(toma(vnregional_fecha_u(5, 3, 2026, nullptr, CIERTO)), larga);
    }
}

PRUEBA(vnregional, el_dia_de_la_semana_de_toda_fecha) {
    using namespace std::chrono;
    en_region("en-US");
    constexpr const char *NOMBRES[] = {"Sunday", "Monday", "Tuesday", "Wednesday", "Thursday", "Friday", "Saturday"};
    for (sys_days d = year(1601) / 1 / 1; d < year(10000) / 1 / 1; d += days(41)) {
        const year_month_day f = d;
        ASSERT_EQ(fecha(static_cast<int32_t>(unsigned{f.day()}), static_cast<int32_t>(unsigned{f.month()}),
                        int{f.year()}, "dddd"),
                  NOMBRES[weekday(d).c_encoding()])
            << int{f.year()};
    }
}

PRUEBA(vnregional, las_horas) {
    const struct {
        const char *region;
        int32_t hora, minuto, segundo;
        const char *con, *sin;
    } filas[] = {
        {"en-US", 0, 0, 0, "12:00:00 AM", "12:00 AM"},     {"en-US", 12, 59, 9, "12:59:09 PM", "12:59 PM"},
        {"en-US", 13, 4, 5, "1:04:05 PM", "1:04 PM"},      {"de-DE", 0, 4, 59, "00:04:59", "00:04"},
        {"fr-CA", 9, 4, 5, "09 h 04 min 05 s", "09 h 04"}, {"fi-FI", 9, 4, 5, "9.04.05", "9.04"},
        {"fr-FR", 24, 0, 0, "(null)", "(null)"},           {"fr-FR", 0, 60, 0, "(null)", "(null)"},
        {"fr-FR", 0, 0, -1, "(null)", "(null)"},
    };
    for (const auto &f : filas) {
        en_region(f.region);
        EXPECT_EQ(toma(vnregional_hora_u(f.hora, f.minuto, f.segundo, CIERTO)), f.con);
        EXPECT_EQ(toma(vnregional_hora_u(f.hora, f.minuto, f.segundo, FALSO)), f.sin);
    }
}

PRUEBA(vnregional, los_numeros) {
    const struct {
        const char *region, *numero, *texto;
    } filas[] = {
        {"es-ES", "1234.5", "1.234,50"},
        {"es-ES", "-1234567.895", "-1.234.567,90"},
        {"es-ES", "999999.995", "1.000.000,00"},
        {"es-ES", "999.994999", "999,99"},
        {"es-ES", "0", "0,00"},
        {"es-ES", "-0.001", "-0,00"},
        {"es-ES", "000123", "123,00"},
        {"es-ES", ".5", "0,50"},
        {"es-ES", "-9.995", "-10,00"},
        {"hi-IN", "12345678", "1,23,45,678.00"},
        {"de-CH", "1234", "1’234.00"},
        {"fr-FR", "1234567", "1\u00A0234\u00A0567,00"},
        {"sv-SE", "-1234", "-1\u00A0234,00"}, // the sign and the blank of the ANSI pages
    };
    for (const auto &f : filas) {
        en_region(f.region);
        EXPECT_EQ(numero(f.numero), f.texto) << f.region << " " << f.numero;
    }
    en_region("en-US");
    for (const char *no : {"", "-", ".", "1e5", "nan", "1.2.3", "+1", " 1"}) EXPECT_EQ(numero(no), "(null)") << no;
    EXPECT_EQ(numero("1234", 9), "1,234.00");
    EXPECT_EQ(numero("1234", 8), "(null)");
}

PRUEBA(vnregional, la_del_usuario_se_sigue_aunque_cambie) {
    vnwchar d = 0, m = 0;
    {
        const vn::region_del_usuario antes("en-US", "en-US");
        vnregional_establece(nullptr);
        EXPECT_EQ(decimal(), ".");
    }
    const vn::region_del_usuario ahora("de-DE", "en-GB");
    vnregional_establece(nullptr);
    EXPECT_EQ(decimal(), ",");
    EXPECT_EQ(numero("1234.5"), "1.234,50");
    EXPECT_EQ(toma(vnregional_fecha_u(24, 12, 2023, nullptr, FALSO)), "24/12/2023");
    vnregional_separadores(&d, &m);
    EXPECT_TRUE(d == VNU(',') && m == VNU('.'));
    // A region of the process goes before the user's, without the user's own changes, until it is taken back.
    en_region("en-US");
    EXPECT_EQ(decimal(), ".");
    EXPECT_EQ(vnregional_establece("no es una region"), FALSO);
    EXPECT_EQ(vnregional_establece(""), FALSO);
    vnregional_separadores(&d, &m);
    EXPECT_TRUE(d == VNU('.') && m == VNU(','));
    vnregional_establece(nullptr);
    EXPECT_EQ(decimal(), ",");
    // A change that nobody tells is seen, within a second, by both readers.
    const vn::region_del_usuario otra("en-GB", "en-GB");
    const auto antes = std::chrono::steady_clock::now();
    do {
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
        vnregional_separadores(&d, &m);
    } while (d == VNU(',') && std::chrono::steady_clock::now() - antes < std::chrono::seconds(10));
    EXPECT_LT(std::chrono::duration<double>(std::chrono::steady_clock::now() - antes).count(), 1.0);
    EXPECT_EQ(decimal(), ".");
}
