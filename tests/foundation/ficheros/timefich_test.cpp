#define VN_MODULO "timefich_test"
#include "foundation/ficheros/timefich.h"
#include "texto_ancho.h"
#include <array>
#include <bit>
#include <ctime>

static std::array<int32_t, 9> campos(int64_t segundos, vnbool local) {
    timefich_fecha fecha;
    timefich_convertir_fecha(segundos, local, &fecha);
    return std::bit_cast<std::array<int32_t, 9>>(fecha);
}

PRUEBA(timefich, un_momento_se_descompone) {
    const std::pair<int64_t, std::array<int32_t, 9>> filas[] = {
        {0, {1970, 1, 1, 0, 0, 0, 4, 0, 0}},
        {-1, {1969, 12, 31, 23, 59, 59, 3, 364, 0}},
        {951782400 + 86399, {2000, 2, 29, 23, 59, 59, 2, 59, 0}},
        {4107542400, {2100, 3, 1, 0, 0, 0, 1, 59, 0}}, // not a leap year
        {1735603200, {2024, 12, 31, 0, 0, 0, 2, 365, 0}},
        {-62135596800, {1, 1, 1, 0, 0, 0, 1, 0, 0}},
        {253402300799, {9999, 12, 31, 23, 59, 59, 5, 364, 0}},
    };
    for (const auto &[segundos, fecha] : filas) EXPECT_EQ(campos(segundos, FALSO), fecha) << segundos;
    // Local time is what the C library of the platform says of it, in winter and in summer.
    for (const time_t t : {time_t{1705300000}, time_t{1720900000}}) {
        const std::tm d = *std::localtime(&t);
        EXPECT_EQ(campos(t, CIERTO), (std::array{d.tm_year + 1900, d.tm_mon + 1, d.tm_mday, d.tm_hour, d.tm_min,
                                                 d.tm_sec, d.tm_wday, d.tm_yday, d.tm_isdst}));
    }
    EXPECT_EQ(ESPERA_INFORME("fecha_UTC >= PRIMER_SEGUNDO && fecha_UTC <= ULTIMO_SEGUNDO", campos(INT64_MAX, FALSO))[0],
              0);
}

PRUEBA(timefich, la_fecha_de_un_fichero) {
    const std::string nombre = directorio() + "/f";
    vn::graba_fichero(nombre, "x");
    int64_t fecha = 0, antes = 0;
    EXPECT_EQ(timefich_obtener_fecha_fichero_existente_UTC(nombre.c_str(), &fecha), CIERTO);
    EXPECT_NEAR(static_cast<double>(fecha), static_cast<double>(std::time(nullptr)), 60);
    std::filesystem::last_write_time(nombre, std::filesystem::last_write_time(nombre) - std::chrono::hours(1000));
    EXPECT_EQ(timefich_obtener_fecha_fichero_existente_UTC(nombre.c_str(), &antes), CIERTO);
    EXPECT_EQ(fecha - antes, 3600000);
    for (const std::string &no : {directorio(), nombre + "2"})
        ESPERA_INFORME("existe", timefich_obtener_fecha_fichero_existente_UTC(no.c_str(), &fecha));
    EXPECT_EQ(fecha, 0);
}
