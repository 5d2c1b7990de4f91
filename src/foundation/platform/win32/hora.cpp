#include "foundation/platform/hora.h"
#include <windows.h>

namespace vn::plat {

namespace {

// Seconds between 1601, where the system's times begin, and 1970.
constexpr int64_t DESDE_1601 = 11644473600;
constexpr int ANTES_DEL_MES[] = {0, 31, 59, 90, 120, 151, 181, 212, 243, 273, 304, 334};

// The C library tells no time before 1970; the system does.
bool hora_antigua(int64_t segundos, std::tm &t) {
    if (segundos < -DESDE_1601) return false;
    const ULARGE_INTEGER grano{.QuadPart = static_cast<ULONGLONG>(segundos + DESDE_1601) * 10000000u};
    const FILETIME fichero{grano.LowPart, grano.HighPart};
    SYSTEMTIME utc, local;
    if (!FileTimeToSystemTime(&fichero, &utc) || !SystemTimeToTzSpecificLocalTime(nullptr, &utc, &local)) return false;
    const bool bisiesto = local.wYear % 4 == 0 && (local.wYear % 100 != 0 || local.wYear % 400 == 0);
    t = {};
    t.tm_sec = local.wSecond;
    t.tm_min = local.wMinute;
    t.tm_hour = local.wHour;
    t.tm_mday = local.wDay;
    t.tm_mon = local.wMonth - 1;
    t.tm_year = local.wYear - 1900;
    t.tm_wday = local.wDayOfWeek;
    t.tm_yday = ANTES_DEL_MES[t.tm_mon] + t.tm_mday - 1 + (bisiesto && t.tm_mon > 1);
    return true;
}

} // namespace

bool hora_local(int64_t segundos, std::tm &t) {
    return segundos < 0 ? hora_antigua(segundos, t) : _localtime64_s(&t, &segundos) == 0;
}

} // namespace vn::plat
