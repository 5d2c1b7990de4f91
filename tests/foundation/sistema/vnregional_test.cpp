#define VN_MODULO "vnregional_test"
#include "filas.h"
#include "foundation/sistema/vnregional.h"
#include "plataforma/proceso.h"
#include "plataforma/regional.h"
#include "texto_ancho.h"
#include <chrono>
#include <thread>

using vn::ancho;
using vn::toma;

namespace {

const std::string DATOS = "foundation/vnregional.tsv";

std::string fecha(int32_t dia, int32_t mes, int32_t anyo, const std::string &modelo) {
    return toma(vnregional_fecha_u(dia, mes, anyo, ancho(modelo).c_str(), FALSO));
}
std::string separadores() {
    vnwchar s[3] = {};
    vnregional_separadores(&s[0], &s[1]);
    return vn::utf8_de(s);
}
std::string decimal() { return toma(vnregional_dato_u(VNREGIONAL_SEPARADOR_DECIMAL)); }

// A region of the process, until the test ends.
void en_region(const std::string &nombre) { EXPECT_EQ(vnregional_establece(nombre.c_str()), CIERTO) << nombre; }

} // namespace

PRUEBA(vnregional, los_modelos_de_fecha) {
    for (const auto &[region, dia, mes, anyo, modelo, texto] :
         vn::filas<std::string, int, int, int, std::string, std::string>(DATOS, "fechas")) {
        en_region(region);
        EXPECT_EQ(fecha(dia, mes, anyo, modelo), texto)
            << region << " " << dia << " " << mes << " " << anyo << " " << modelo;
    }
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
        const auto dia = static_cast<int32_t>(unsigned{f.day()}), mes = static_cast<int32_t>(unsigned{f.month()});
        ASSERT_EQ(fecha(dia, mes, int{f.year()}, "dddd"), NOMBRES[weekday(d).c_encoding()]) << int{f.year()};
    }
}

PRUEBA(vnregional, las_horas) {
    for (const auto &[region, hora, minuto, segundo, con, sin] :
         vn::filas<std::string, int, int, int, std::string, std::string>(DATOS, "horas")) {
        en_region(region);
        EXPECT_EQ(toma(vnregional_hora_u(hora, minuto, segundo, CIERTO)), con);
        EXPECT_EQ(toma(vnregional_hora_u(hora, minuto, segundo, FALSO)), sin) << con;
    }
}

PRUEBA(vnregional, los_numeros) {
    for (const auto &[region, n, maximo, texto] :
         vn::filas<std::string, std::string, uint32_t, std::string>(DATOS, "numeros")) {
        en_region(region);
        EXPECT_EQ(toma(vnregional_numero_u(ancho(n).c_str(), maximo)), texto) << region << " " << n;
    }
}

PRUEBA(vnregional, la_del_usuario_se_sigue_aunque_cambie) {
    using reloj = std::chrono::steady_clock;
    {
        const vn::region_del_usuario antes("en-US", "en-US");
        vnregional_establece(nullptr);
        EXPECT_EQ(decimal(), ".");
    }
    const vn::region_del_usuario ahora("de-DE", "en-GB");
    vnregional_establece(nullptr);
    EXPECT_EQ(decimal() + separadores(), ",,.");
    EXPECT_EQ(toma(vnregional_numero_u(VNU("1234.5"), 50)), "1.234,50");
    EXPECT_EQ(toma(vnregional_fecha_u(24, 12, 2023, nullptr, FALSO)), "24/12/2023");
    // A region of the process goes before the user's, without the user's own changes, until it is taken back.
    en_region("en-US");
    for (const char *no : {"no es una region", ""}) EXPECT_EQ(vnregional_establece(no), FALSO);
    EXPECT_EQ(decimal() + separadores(), "..,");
    vnregional_establece(nullptr);
    EXPECT_EQ(decimal(), ",");
    // A change that nobody tells is seen, within a second, by both readers.
    const vn::region_del_usuario otra("en-GB", "en-GB");
    const auto antes = reloj::now();
    do std::this_thread::sleep_for(std::chrono::milliseconds(20));
    while (separadores() == ",." && reloj::now() - antes < std::chrono::seconds(10));
    EXPECT_LT(std::chrono::duration<double>(reloj::now() - antes).count(), 1.0);
    EXPECT_EQ(decimal(), ".");
}
