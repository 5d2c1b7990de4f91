#define VN_MODULO "vorntime (NUCLEOS.DLL)"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/cad.h"
#include "time/sysdata.h"
#include "time/vorntime_priv.h"

using namespace vn;

namespace {

using ansi_propio = propio<char>;

// Over 64 bits: the fields of a record may be any numbers.
int32_t anyo_entero(const tmtime &f) { return static_cast<int32_t>(int64_t{f.tm_year} + 1900); }
int32_t mes_desde_1(const tmtime &f) { return static_cast<int32_t>(int64_t{f.tm_mon} + 1); }

// A null model stands for the region's own short date.
char *fecha_regional(const tmtime &f, const char *modelo) {
    return sysdata_fecha(f.tm_mday, mes_desde_1(f), anyo_entero(f), f.tm_wday, modelo, FALSO);
}

char *fecha_y_hora(const char *cabecera, const tmtime *fecha_tm, vnbool con_segundos) {
    if (!AFIRMA_NO_NULO(fecha_tm)) return nullptr;
    const ansi_propio fecha(fecha_regional(*fecha_tm, nullptr));
    const ansi_propio hora(sysdata_hora(fecha_tm->tm_sec, fecha_tm->tm_min, fecha_tm->tm_hour, con_segundos));
    return cabecera != nullptr ? cad_formatea("%s %s %s", cabecera, fecha.get(), hora.get())
                               : cad_formatea("%s %s", fecha.get(), hora.get());
}

} // namespace

char *vtm_formatea_fecha_ddmmaa_con_separador_sistema(const tmtime *fecha) {
    if (!AFIRMA_TEXTO(fecha != nullptr, "(fecha_tm) != NULL")) return nullptr;
    const ansi_propio separador(sysdata_separador_fechas());
    // The last two digits of the year, of one before 1900 too.
    return cad_formatea("%02d%s%02d%s%02d", fecha->tm_mday, separador.get(), mes_desde_1(*fecha), separador.get(),
                        (fecha->tm_year % 100 + 100) % 100);
}

char *vtm_formatea_fecha_corta(const tmtime *fecha) {
    return AFIRMA_TEXTO(fecha != nullptr, "(fecha_tm) != NULL") ? fecha_regional(*fecha, nullptr) : nullptr;
}

char *vtm_formatea_fecha_segun_modelo(const tmtime *fecha, const char *modelo) {
    if (!AFIRMA_TEXTO(fecha != nullptr, "(fecha_tm) != NULL") || !AFIRMA_NO_NULO(modelo)) return nullptr;
    return fecha_regional(*fecha, modelo);
}

char *vtm_formatea_hora(const tmtime *fecha, vnbool con_segundos) {
    if (!AFIRMA_TEXTO(fecha != nullptr, "(fecha_tm) != NULL") || !AFIRMA_LOGICO(con_segundos)) return nullptr;
    return sysdata_hora(fecha->tm_sec, fecha->tm_min, fecha->tm_hour, con_segundos);
}

char *vtm_formatea_fecha_y_hora(const char *cabecera, const tmtime *fecha) {
    return fecha_y_hora(cabecera, fecha, CIERTO);
}

char *vtm_formatea_fecha_y_hora_sin_segundos(const char *cabecera, const tmtime *fecha) {
    return fecha_y_hora(cabecera, fecha, FALSO);
}

char *vorntime_dame_cadena_formato_fecha(vnbool con_hora) {
    if (!AFIRMA_LOGICO(con_hora)) return nullptr;
    // The letters of a date model, between the separators of the region.
    const ansi_propio fechas(sysdata_separador_fechas());
    if (con_hora == FALSO) return cad_formatea("dd%sMM%syyyy", fechas.get(), fechas.get());
    const ansi_propio horas(sysdata_separador_horas());
    return cad_formatea("dd%sMM%syyyy HH%smm%sss", fechas.get(), fechas.get(), horas.get(), horas.get());
}
