#define VN_MODULO "timefich (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/timefich.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/platform/hora.h"
#include "foundation/suelo/afirma_int.h"
#include <chrono>

namespace {

constexpr int64_t PRIMER_SEGUNDO = -62135596800, ULTIMO_SEGUNDO = 253402300799; // years 1 to 9999

timefich_fecha descompone_fecha(int64_t segundos) {
    using namespace std::chrono;
    const sys_seconds t{seconds(segundos)};
    const sys_days dia = floor<days>(t);
    const year_month_day f{dia};
    const hh_mm_ss h{t - dia};
    // Months and days of the month count from one, days of the week and of the year from zero; UTC has no summer time.
    return {static_cast<int>(f.year()),
            static_cast<int32_t>(static_cast<unsigned>(f.month())),
            static_cast<int32_t>(static_cast<unsigned>(f.day())),
            static_cast<int32_t>(h.hours().count()),
            static_cast<int32_t>(h.minutes().count()),
            static_cast<int32_t>(h.seconds().count()),
            static_cast<int32_t>(weekday(dia).c_encoding()),
            static_cast<int32_t>((dia - sys_days(f.year() / January / 1)).count()),
            0};
}

} // namespace

vnbool timefich_obtener_fecha_fichero_existente_UTC_UNICODE(const vnwchar *nombre, int64_t *fecha_UTC) {
    if (fecha_UTC != nullptr) *fecha_UTC = 0;
    if (!EXIGE(nombre, fecha_UTC)) return FALSO;
    vn::plat::ficha f;
    // The date is that of a file: a directory counts as none.
    const bool existe = vn::plat::consulta(nombre, f) && !f.es_directorio;
    if (!AFIRMA_DE_FICHERO(existe, nombre)) return FALSO;
    *fecha_UTC = f.fecha;
    return CIERTO;
}

vnbool timefich_obtener_fecha_fichero_existente_UTC(const char *nombre, int64_t *fecha_UTC) {
    if (fecha_UTC != nullptr) *fecha_UTC = 0;
    if (!EXIGE(nombre, fecha_UTC)) return FALSO;
    return timefich_obtener_fecha_fichero_existente_UTC_UNICODE(vn::ficheros::de_ansi(nombre).c_str(), fecha_UTC);
}

void timefich_convertir_fecha(int64_t fecha_UTC, vnbool hora_local, timefich_fecha *fecha) {
    if (fecha != nullptr) *fecha = {};
    if (!AFIRMA(fecha_UTC >= PRIMER_SEGUNDO && fecha_UTC <= ULTIMO_SEGUNDO) || !AFIRMA_LOGICO(hora_local)) return;
    if (!AFIRMA_NO_NULO(fecha)) return;
    std::tm t{};
    // Where the platform cannot tell the local time, the date is that of UTC.
    if (hora_local == CIERTO && vn::plat::hora_local(fecha_UTC, t))
        *fecha = {t.tm_year + 1900, t.tm_mon + 1,          t.tm_mday, t.tm_hour, t.tm_min, t.tm_sec, t.tm_wday,
                  t.tm_yday,        t.tm_isdst > 0 ? 1 : 0};
    else *fecha = descompone_fecha(fecha_UTC);
}
