#define VN_MODULO "vorntime (NUCLEOS.DLL)"
#include "time/vorntime.h"
#include "foundation/listas/arr.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/calendario_int.h"
#include "foundation/suelo/logico_int.h"
#include "persistence/vornsave.h"
#include "time/vorntime_priv.h"
#include <algorithm>
#include <chrono>
#include <ctime>
#include <thread>

using namespace vn;

namespace {

// Reports each field out of its range.
// The names of the parameter and its fields are those of the reports.
bool comprueba(const struct tmtime *tmtime) {
    if (!AFIRMA_NO_NULO(tmtime)) return false;
    // All the fields are looked at, so that each has its own report.
    bool bien = AFIRMA(tmtime->tm_sec >= 0 && tmtime->tm_sec <= 59);
    bien &= AFIRMA(tmtime->tm_min >= 0 && tmtime->tm_min <= 59);
    bien &= AFIRMA(tmtime->tm_hour >= 0 && tmtime->tm_hour <= 23);
    bien &= AFIRMA(tmtime->tm_mday >= 1 && tmtime->tm_mday <= 31);
    bien &= AFIRMA(tmtime->tm_mon >= 0 && tmtime->tm_mon <= 11);
    bien &= AFIRMA(tmtime->tm_wday >= 0 && tmtime->tm_wday <= 6);
    bien &= AFIRMA(tmtime->tm_yday >= 0 && tmtime->tm_yday <= 365);
    return bien;
}

// The fields in the order of a file.
constexpr int32_t tmtime::*CAMPOS[] = {&tmtime::tm_sec,  &tmtime::tm_min,  &tmtime::tm_hour,
                                       &tmtime::tm_mday, &tmtime::tm_mon,  &tmtime::tm_year,
                                       &tmtime::tm_wday, &tmtime::tm_yday, &tmtime::tm_isdst};
// From the field that weighs most in a comparison to the one that weighs least.
constexpr int32_t tmtime::*ORDEN[] = {&tmtime::tm_year, &tmtime::tm_mon, &tmtime::tm_mday,
                                      &tmtime::tm_hour, &tmtime::tm_min, &tmtime::tm_sec};

// False, with the start of 1970, where the platform cannot tell the time.
bool lee_hora_local(tmtime &fecha) {
    fecha = INICIO_1970;
    const int64_t t = vnstdc__time64(nullptr);
    const std::tm *hoy = vnstdc__localtime64(&t);
    if (!AFIRMA_TEXTO(hoy != nullptr, "hoy != NULL")) return false;
    // A clock that tells leap seconds has a 60th one.
    fecha = {std::min(hoy->tm_sec, 59),
             hoy->tm_min,
             hoy->tm_hour,
             hoy->tm_mday,
             hoy->tm_mon,
             hoy->tm_year,
             hoy->tm_wday,
             hoy->tm_yday,
             hoy->tm_isdst};
    return true;
}

} // namespace

namespace vn {

tmtime_propio nuevo_tmtime(const tmtime &valor) {
    tmtime_propio fecha(static_cast<tmtime *>(vornspy_malloc(sizeof(tmtime))));
    *fecha = valor;
    return fecha;
}

void pon_dias(tmtime &fecha) {
    const int64_t anyo = int64_t{fecha.tm_year} + 1900;
    const int64_t dias = dias_de(anyo, static_cast<uint32_t>(fecha.tm_mon), fecha.tm_mday);
    fecha.tm_wday = semana_de(dias);
    fecha.tm_yday = static_cast<int32_t>(dias - dias_hasta_anyo(anyo));
}

} // namespace vn

tmtime *vtm_crea(int32_t hora, int32_t minuto, int32_t segundo, int32_t dia, int32_t mes, int32_t anyo) {
    // The least number of 32 bits has none before it: no month, and a year that wraps to a far one.
    const auto menos = [](int32_t x, uint32_t y) { return static_cast<int32_t>(static_cast<uint32_t>(x) - y); };
    tmtime_propio fecha = nuevo_tmtime({segundo, minuto, hora, dia, menos(mes, 1), menos(anyo, 1900), 0, 0, 0});
    // The days are counted before the check, which looks at them too.
    if (mes_posible(*fecha)) pon_dias(*fecha);
    if (!comprueba(fecha.get())) *fecha = INICIO_1970;
    return fecha.release();
}

tmtime *vtm_copia_tm(const tmtime *datos_a_copiar) {
    return AFIRMA_NO_NULO(datos_a_copiar) ? nuevo_tmtime(*datos_a_copiar).release() : nullptr;
}

void vtm_destruye(tmtime **fecha) {
    if (EXIGE(fecha, *fecha)) vornspy_free_pp(fecha, sizeof(tmtime));
}

void vtm_libera_tm_arr(arrPuntero **arr) { arr_DestruyeEstructurasST(arr, tmtime, vtm_destruye); }

void vtm_inicializa_fecha(tmtime *fecha) {
    if (AFIRMA_NO_NULO(fecha)) *fecha = INICIO_1970;
}

void vtm_fecha_actual(tmtime *fecha) {
    if (AFIRMA_NO_NULO(fecha)) lee_hora_local(*fecha);
}

void vorntime_ajusta_fecha_valida(tmtime *fecha) {
    if (!AFIRMA_NO_NULO(fecha)) return;
    if (mes_posible(*fecha)) pon_dias(*fecha);
    else AFIRMA_DEFECTO();
}

void vorntime_obtener_dia_mes_anyo(const tmtime *fecha, int32_t *dia, int32_t *mes, int32_t *anyo) {
    if (!EXIGE(fecha, dia, mes, anyo)) return;
    *dia = fecha->tm_mday;
    *mes = static_cast<int32_t>(int64_t{fecha->tm_mon} + 1);
    *anyo = static_cast<int32_t>(int64_t{fecha->tm_year} + 1900);
}

void vtm_graba_hora_y_fecha(const tmtime *fecha, vornsave *vornsave_datos) {
    // What follows in the file keeps its place: a bad record goes as a good one.
    const tmtime &que = comprueba(fecha) ? *fecha : INICIO_1970;
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    for (const auto campo : CAMPOS) vornsave_graba_short(static_cast<int16_t>(que.*campo), vornsave_datos);
}

tmtime *vtm_lee_hora_y_fecha(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return nullptr;
    tmtime_propio fecha = nuevo_tmtime(INICIO_1970);
    // All fields are taken before any is judged, for the same reason.
    for (const auto campo : CAMPOS) (*fecha).*campo = vornsave_lee_short(vornsave_datos);
    if (!comprueba(fecha.get())) *fecha = INICIO_1970;
    return fecha.release();
}

int vtm_compara_fechas_mayor_menor(const tmtime *a, const tmtime *b) {
    if (!EXIGE(a, b)) return 0;
    for (const auto campo : ORDEN)
        if (a->*campo != b->*campo) return a->*campo < b->*campo ? -1 : 1;
    return 0;
}

int vtm_compara_fechas(const tmtime *a, const tmtime *b) { return vtm_compara_fechas_mayor_menor(a, b); }

vnbool vtm_fechas_iguales(const tmtime *a, const tmtime *b) {
    if (!EXIGE(a, b)) return FALSO;
    return logico(vtm_compara_fechas_mayor_menor(a, b) == 0);
}

int64_t vorntime_ahora_UTC(void) { return vnstdc__time64(nullptr); }

uint32_t vorntime_ahora_ULong(void) {
    tmtime fecha;
    return lee_hora_local(fecha) ? static_cast<uint32_t>(vtm_convierte_fecha_a_time_t(&fecha)) : 0;
}

uint32_t vorntime_ahora(void) { return vorntime_ahora_ULong(); }

void vtm_delay(uint32_t segundos) {
    if (AFIRMA(segundos < 900)) std::this_thread::sleep_for(std::chrono::seconds(segundos));
}
