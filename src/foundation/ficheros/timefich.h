/* Dates of files. */
#ifndef VN_TIMEFICH_H
#define VN_TIMEFICH_H

#include "../suelo/tipos.h"

/** A moment, taken apart. */
typedef struct timefich_fecha {
    int32_t anyo, mes, dia;        /**< the year itself; 1 to 12; 1 to 31 */
    int32_t hora, minuto, segundo; /**< 0 to 23; 0 to 59; 0 to 59 */
    int32_t dia_semana, dia_anyo;  /**< 0 Sunday to 6; 0 to 365 */
    int32_t horario_de_verano;     /**< 1 when it is in force, 0 when not */
} timefich_fecha;

VN_C_INICIO

/** When the file was last changed: seconds since 1970-01-01 00:00 UTC. A file that is not there is reported; then
    FALSO, and 0 in `fecha_UTC`. The name without _UNICODE is ANSI. */
vnbool timefich_obtener_fecha_fichero_existente_UTC_UNICODE(const vnwchar *nombre, VN_SALIDA int64_t *fecha_UTC);
vnbool timefich_obtener_fecha_fichero_existente_UTC(const char *nombre, VN_SALIDA int64_t *fecha_UTC);
/** Takes a moment apart, in local time if `hora_local`, else in UTC. Outside the years 1 to 9999 it is reported, and
    `fecha` is all zero. */
void timefich_convertir_fecha(VN_RANGO(-62135596800, 253402300799) int64_t fecha_UTC, vnbool hora_local,
                              VN_SALIDA timefich_fecha *fecha);

VN_C_FIN

#endif
