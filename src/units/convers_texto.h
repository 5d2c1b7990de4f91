/* Values with their unit: as they are typed in, and as texts.

   The text family: `valor`, internal units, as it is shown. An imperial length comes out in feet and inches, without
   decimals and unit. "%g" where no decimals are told; `n_decimales` from a million on are a million. */
#ifndef VN_CONVERS_TEXTO_H
#define VN_CONVERS_TEXTO_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** The number that a text in the type's entry format is, in the unit shown: not converted. As
    vornnum_dameNumeroDeCadena: a text that is no number is FALSO and 0. */
vnbool convers_dameNumeroDeCadena(const char *cadena, VN_SALIDA double *valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnbool convers_dameNumeroDeCadena_u(const vnwchar *cadena, VN_SALIDA double *valor,
                                    VN_RANGO(0, 145) uint32_t tipovalor);
vnbool convers_dameNumeroDeCadenaConDecimales(const char *cadena, VN_SALIDA double *valor, char sep_millares,
                                              char sep_decimales, VN_RANGO(0, 145) uint32_t tipovalor);
vnbool convers_dameNumeroDeCadenaConDecimales_u(const vnwchar *cadena, VN_SALIDA double *valor, vnwchar sep_millares,
                                                vnwchar sep_decimales, VN_RANGO(0, 145) uint32_t tipovalor);
/** The text, in the type's entry format, of a value that already is in the unit shown. As vornnum_double_a_cadena. */
char *convers_double_a_cadena(double valor, char sep_millares, char sep_decimales, VN_RANGO(-1, 9) int32_t decimales,
                              VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_double_a_cadena_u(double valor, vnwchar sep_millares, vnwchar sep_decimales,
                                   VN_RANGO(-1, 9) int32_t decimales, VN_RANGO(0, 145) uint32_t tipovalor);

/** New text of the number alone. */
char *convers_texto(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_u(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
char *convers_texto_un_decimal(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_un_decimal_u(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
char *convers_texto_dos_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_dos_decimales_u(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
char *convers_texto_tres_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_tres_decimales_u(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
char *convers_texto_sin_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_sin_decimales_u(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
char *convers_texto_n_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor, uint32_t n_decimales);
vnwchar *convers_texto_n_decimales_u(double valor, VN_RANGO(0, 145) uint32_t tipovalor, uint32_t n_decimales);

/** New text of the number rounded to so many decimals, and then "%g". */
char *convers_texto_max_n_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor,
                                    VN_RANGO(0, 255) uint32_t n_decimales);
vnwchar *convers_texto_max_n_decimales_u(double valor, VN_RANGO(0, 145) uint32_t tipovalor,
                                         VN_RANGO(0, 255) uint32_t n_decimales);

/** New text: number, blank, unit. */
vnwchar *convers_texto_con_unidades(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_unidades_un_decimal(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_unidades_dos_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_unidades_tres_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_unidades_sin_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_unidades_n_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor,
                                                uint32_t n_decimales);
vnwchar *convers_texto_con_unidades_max_n_decimales(double valor, VN_RANGO(0, 145) uint32_t tipovalor,
                                                    VN_RANGO(0, 255) uint32_t n_decimales);

/** New text: heading, colon, blank, number, blank, unit; heading, colon, blank, feet and inches. */
vnwchar *convers_texto_con_cabecera_y_unidades(const vnwchar *cabecera, double valor,
                                               VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_cabecera_y_unidades_un_decimal(const vnwchar *cabecera, double valor,
                                                          VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_cabecera_y_unidades_dos_decimales(const vnwchar *cabecera, double valor,
                                                             VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_cabecera_y_unidades_tres_decimales(const vnwchar *cabecera, double valor,
                                                              VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_cabecera_y_unidades_cuatro_decimales(const vnwchar *cabecera, double valor,
                                                                VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_cabecera_y_unidades_seis_decimales(const vnwchar *cabecera, double valor,
                                                              VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_cabecera_y_unidades_sin_decimales(const vnwchar *cabecera, double valor,
                                                             VN_RANGO(0, 145) uint32_t tipovalor);
vnwchar *convers_texto_con_cabecera_y_unidades_n_decimales(const vnwchar *cabecera, double valor,
                                                           VN_RANGO(0, 145) uint32_t tipovalor, uint32_t n_decimales);
vnwchar *convers_texto_con_cabecera_y_unidades_max_tres_decimales(const vnwchar *cabecera, double valor,
                                                                  VN_RANGO(0, 145) uint32_t tipovalor);

/** The general form: the value rounded to `decimales`, shown with just as many or, with `es_maximo`, as "%g"; with or
    without the unit; with the heading if there is one. */
vnwchar *convers_texto_ex(VN_OPC const vnwchar *cabecera, double valor, VN_RANGO(0, 145) uint32_t tipovalor,
                          VN_RANGO(0, 255) uint32_t decimales, vnbool es_maximo, vnbool con_unidades);

VN_C_FIN

#endif
