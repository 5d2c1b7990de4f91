/* Regional data, and the names of the machine and of its user: the library's one door to what the user set in the
   system.

   Windows' regional settings; elsewhere those of the environment (LC_ALL, or LC_NUMERIC for numbers and LC_TIME for the
   rest, or LANG), as the tables of Unicode have them, as pictures in the letters of Windows; what a region's picture is
   may differ between the two (d/M/yyyy, dd/MM/yyyy). Dates are Gregorian in every region. What is set while the program
   runs is seen half a second later at most; another region than the user's can be set in
   foundation/sistema/vnregional.h. A narrow or thin blank that does not break comes as the plain one (U+00A0), a minus
   sign of its own (U+2212) as '-', on every platform: one character of the ANSI pages each.

   Results are new texts, the caller's. ANSI ones are in the active ANSI page. */
#ifndef VN_SYSDATA_H
#define VN_SYSDATA_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** The separator of the items of a list, of decimals, of thousands (empty if there is none), of dates and of times. */
char *sysdata_separador_campos(void);
char *sysdata_separador_decimal(void);
char *sysdata_separador_millares(void);
char *sysdata_separador_fechas(void);
char *sysdata_separador_horas(void);
vnwchar *sysdata_separador_campos_u(void);
vnwchar *sysdata_separador_decimal_u(void);
vnwchar *sysdata_separador_millares_u(void);
vnwchar *sysdata_separador_fechas_u(void);
vnwchar *sysdata_separador_horas_u(void);

/** Order of a short date: 0 month, day, year; 1 day, month, year; 2 year, month, day. */
int32_t sysdata_orden_fecha(void);
/** 0: hours from 1 to 12, with morning and afternoon; 1: from 0 to 23. */
int32_t sysdata_modo_horario(void);

/** Text of a date: day of the month, month from 1, year; the day of the week is found from these, whatever
    `dia_semana` says. `modelo`, if not null, is a picture of d, dd (day), ddd, dddd (name of the day), M, MM, MMM,
    MMMM, y, yy, yyyy, gg (era) and text, in single quotes where it has such letters; if null, the user's short or,
    `larga`, long date. A year of 1900 or less gives an empty text; what is no date is reported as "tamanyo_cadena != 0"
    and gives an empty text. */
char *sysdata_fecha(int32_t dia, int32_t mes, int32_t anyo, int32_t dia_semana, VN_OPC const char *modelo,
                    vnbool larga);
vnwchar *sysdata_fecha_u(int32_t dia, int32_t mes, int32_t anyo, int32_t dia_semana, VN_OPC const vnwchar *modelo,
                         vnbool larga);
/** Text of a time of day, 0 to 59, 0 to 59, 0 to 23; another is reported as "tamanyo_cadena != 0" and gives an
    empty text. */
char *sysdata_hora(int32_t segundo, int32_t minuto, int32_t hora, vnbool con_segundos);
vnwchar *sysdata_hora_u(int32_t segundo, int32_t minuto, int32_t hora, vnbool con_segundos);

/** Text of a number with the user's separators, sign and number of decimals (two as a rule): `decimales` only says at
    which decimal the number is rounded before. A text of 50 characters or more, and what is no number, comes plain, as
    "%.*f" writes it. */
vnwchar *sysdata_formateaNumero_u(double valor, int32_t decimales);

/** Name of a day of the week as it stands alone (where the system tells that form from the other), 0 Sunday to 6
    Saturday, whole or abbreviated; another is reported as "dia < 7" and gives null. */
char *sysdata_nombre_dia(VN_RANGO(0, 6) uint32_t dia);
char *sysdata_nombre_dia_abreviado(VN_RANGO(0, 6) uint32_t dia);

/** Milliseconds since the machine was started, which begin again after 49 days. */
uint32_t sysdata_milisegundos_transcurridos(void);
/** What the user's desktop calls this machine; elsewhere than on Windows the machine's name, unless the registry
    (vornreg.h) says another. One that cannot be read is reported as "obtenido_nombre_MiPC == CIERTO" and gives null. */
char *sysdata_nombre_MiPC(void);
/** The name of the machine, without its domain, at most 30 characters, in capitals; empty if it has none. */
char *sysdata_nombre_maquina(void);
vnwchar *sysdata_nombre_maquina_u(void);
/** The name of the user in capitals; "USUARIO" if it cannot be read or has more than 62 characters. */
vnwchar *sysdata_nombre_usuario_actual_u(void);

VN_C_FIN

#endif
