#include "foundation/platform/hora.h"
#include "foundation/suelo/calendario_int.h"
#include <windows.h>

namespace vn::plat {

namespace {

// Seconds between 1601, where the system's times begin, and 1970.
constexpr int64_t DESDE_1601 = 11644473600;

// The C library tells the years 1970 to 3000; the system, from 1601 on.
constexpr int64_t PRIMERO_DE_LA_BIBLIOTECA = 0, ULTIMO_DE_LA_BIBLIOTECA = 32535215999;
constexpr int64_t ULTIMO_DEL_SISTEMA = 253402300799; // the year 9999

// Steps of 100 ns since 1601.
int64_t pasos(const FILETIME &t) {
    return static_cast<int64_t>(static_cast<uint64_t>(t.dwHighDateTime) << 32 | t.dwLowDateTime);
}

// Whether a local time lies so far from the universal one as summer time does.
bool es_verano(const FILETIME &utc, const SYSTEMTIME &local) {
    TIME_ZONE_INFORMATION zona{};
    FILETIME aqui{};
    if (GetTimeZoneInformation(&zona) == TIME_ZONE_ID_INVALID || zona.DaylightDate.wMonth == 0 ||
        zona.DaylightBias == zona.StandardBias || !SystemTimeToFileTime(&local, &aqui))
        return false;
    return (pasos(aqui) - pasos(utc)) / 10000000 == -60 * static_cast<int64_t>(zona.Bias + zona.DaylightBias);
}

bool hora_del_sistema(int64_t segundos, std::tm &t) {
    if (segundos < -DESDE_1601 || segundos > ULTIMO_DEL_SISTEMA) return false;
    const ULARGE_INTEGER grano{.QuadPart = static_cast<ULONGLONG>(segundos + DESDE_1601) * 10000000u};
    const FILETIME fichero{grano.LowPart, grano.HighPart};
    SYSTEMTIME utc, local;
    if (!FileTimeToSystemTime(&fichero, &utc) || !SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local)) return false;
    t = {};
    t.tm_sec = local.wSecond;
    t.tm_min = local.wMinute;
    t.tm_hour = local.wHour;
    t.tm_mday = local.wDay;
    t.tm_mon = local.wMonth - 1;
    t.tm_year = local.wYear - 1900;
    t.tm_wday = local.wDayOfWeek;
    t.tm_yday = DIAS_ANTES[es_bisiesto(local.wYear)][t.tm_mon] + t.tm_mday - 1;
    t.tm_isdst = es_verano(fichero, local) ? 1 : 0;
    return true;
}

} // namespace

bool hora_local(int64_t segundos, std::tm &t) {
    if (segundos < PRIMERO_DE_LA_BIBLIOTECA || segundos > ULTIMO_DE_LA_BIBLIOTECA) return hora_del_sistema(segundos, t);
    return _localtime64_s(&t, &segundos) == 0;
}

} // namespace vn::plat
