/* Number text: doubles to text and text to doubles, with a period for files, with the separators of the region for
   screens, and in feet and inches. Nothing depends on the C locale.

   Separators are single characters of the text's width, ANSI or wide; a `sep_millares` of 0 groups nothing. `decimales`
   is the number of decimals, or -1 for as many as the number has. Texts that are returned are new blocks of the tracked
   heap, freed with vornstr_destruye or widestr_destruye, shorter than TAM_BUFFER_NUM; null after a report. Not-a-number
   prints "nan", an infinity "inf" or "-inf", without separators. */
#ifndef VN_VORNNUM_H
#define VN_VORNNUM_H

#include "../foundation/suelo/tipos.h"

/** Room that holds any formatted number and its end. */
#define TAM_BUFFER_NUM 64
/** What the value behind a text is, and how it is shown. */
#define VORNNUM_FORMATO_NUMERO 0        /* a number */
#define VORNNUM_FORMATO_PIES 1          /* feet, shown as feet and inches */
#define VORNNUM_FORMATO_PULGADAS 2      /* inches, shown as feet and inches */
#define VORNNUM_FORMATO_SOLO_PULGADAS 3 /* inches, shown as inches */

VN_C_INICIO

/** Whether the text is a whole number: blanks (the space alone), a sign or none, digits, blanks. */
vnbool num_EsNumeroEntero(const char *cadena);
vnbool num_EsNumeroEntero_u(const vnwchar *cadena);
/** The same. On purpose the separator is not accepted: a whole number has no thousands. */
vnbool num_EsNumeroEnteroWindows(const char *cadena, char sep_millares);
vnbool num_EsNumeroEnteroWindows_u(const vnwchar *cadena, vnwchar sep_millares);
/** Whether the text is a real number: blanks, a sign or none, digits, a period and decimals, "e" and an exponent of a
    sign and any number of digits (none too), blanks. A digit must stand before the exponent. */
vnbool num_EsNumeroReal(const char *cadena);
vnbool num_EsNumeroReal_u(const vnwchar *cadena);
/** The same with other separators. `sep_millares` may stand anywhere among the digits before the decimals, any number
    of times, and counts as a digit. A `sep_decimales` of 0 is reported, and FALSO. */
vnbool num_EsNumeroRealWindows(const char *cadena, char sep_millares, char sep_decimales);
vnbool num_EsNumeroRealWindows_u(const vnwchar *cadena, vnwchar sep_millares, vnwchar sep_decimales);

/** The number that the text is, in `*valor`: a real number as above, or, with a format of feet or inches, a text such
    as `5'-3 1/2"`, `3/4"`, `-7 1/8` or `6'` (feet for VORNNUM_FORMATO_PIES, else inches). An empty text is 0. Any other
    text, and a number that no double holds, is FALSO and 0, without a report. */
vnbool vornnum_dameNumeroDeCadena(const char *cadena, VN_SALIDA double *valor, VN_RANGO(0, 3) int32_t formato);
vnbool vornnum_dameNumeroDeCadena_u(const vnwchar *cadena, VN_SALIDA double *valor, VN_RANGO(0, 3) int32_t formato);
/** The same with other separators. A `sep_decimales` of 0 is reported. */
vnbool vornnum_dameNumeroDeCadenaConDecimales(const char *cadena, VN_SALIDA double *valor, char sep_millares,
                                              char sep_decimales, VN_RANGO(0, 3) int32_t formato);
vnbool vornnum_dameNumeroDeCadenaConDecimales_u(const vnwchar *cadena, VN_SALIDA double *valor, vnwchar sep_millares,
                                                vnwchar sep_decimales, VN_RANGO(0, 3) int32_t formato);
/** The number that the text begins with, with a period, whatever follows it; 0 if there is none. */
double vornnum_wtof(const vnwchar *cadena);
/** The number that the hexadecimal digits at the beginning of the text make, modulo 2 to the 32; 0 if there
    are none. */
uint32_t num_string_hex_a_ulong(const char *cadena);
uint32_t num_string_hex_a_ulong_u(const vnwchar *cadena);

/** New text of a number. With a number of decimals: rounded to them as prec_redondea_numero_decimales does (halves
    away from zero, by the digits that tell a double: 0.125 gives 0.13), and cut to fewer decimals from a million on,
    so that no more than 15 or 16 digits are shown. (Of the texts of value types, convers_texto_dos_decimales and
    _n_decimales go by the binary value instead: 0.12.) A number beyond 1e15 / 10^decimales or below 10^-decimales is
    first rounded to one decimal more and, if it is still there, what was rounded comes out in the scientific form,
    "1.25e+16", as it does when `cientifica` asks for it: of a small number only what stands in those decimals is
    shown, 0.0014999 with two as "1.00e-03" and 0.0004 as "0.00e+00". The scientific form of wide text has one
    decimal more than that of ANSI text. With -1 decimals: as many as are sure, 15 at most, without the zeros at the
    end; scientific, with all its zeros, from 1e15 on and below 1e-14. The separators must differ, and
    `sep_decimales` not be 0. */
char *num_double_a_string(double valor, char sep_millares, char sep_decimales, vnbool cientifica,
                          VN_RANGO(-1, 9) int32_t decimales);
vnwchar *num_double_a_string_u(double valor, vnwchar sep_millares, vnwchar sep_decimales, vnbool cientifica,
                               VN_RANGO(-1, 9) int32_t decimales);
/** New text of a number (as num_double_a_string, without `cientifica`), or, by `formato`, of a length in feet and
    inches, such as `5'-3 1/2"`; separators and decimals mean nothing then. The fraction is the nearest one with
    `denominador` or what halving it gives, the smallest that is as near; a denominator of 1 drops it. A length that has
    a fraction needs a denominator above 0. Feet (or inches alone) beyond 1e15 have no inches to show and come out as a
    number in the scientific form before the mark; what is not finite, without a mark. */
char *vornnum_double_a_cadena(double valor, char sep_millares, char sep_decimales, int32_t decimales,
                              VN_RANGO(0, 3) int32_t formato, uint32_t denominador);
vnwchar *vornnum_double_a_cadena_u(double valor, vnwchar sep_millares, vnwchar sep_decimales, int32_t decimales,
                                   VN_RANGO(0, 3) int32_t formato, uint32_t denominador);
/** New text with all significant decimals and a period, the last character if there are no decimals: "2.". */
char *vornnum_double_a_cadena_printf_todos_decimales(double valor);
vnwchar *vornnum_double_a_cadena_printf_todos_decimales_u(double valor);

/** New text with the separators of the region (vnregional.h). Where both are one character, thousands are not grouped.
    In ANSI text, one that the page does not have becomes a full stop, that of thousands nothing. */
char *vornnum_double_a_string_con_formato_windows(double valor, VN_RANGO(-1, 9) int32_t decimales);
vnwchar *vornnum_double_a_string_con_formato_windows_u(double valor, VN_RANGO(-1, 9) int32_t decimales);
/** The same filled with blanks to a column: at least `relleno_izquierda` characters before the decimal separator and
    `relleno_derecha` from it on. A text that does not fit TAM_BUFFER_NUM is reported, and null. */
vnwchar *vornnum_double_a_string_con_formato_windows_ex_u(double valor, VN_RANGO(-1, 9) int32_t decimales,
                                                          uint16_t relleno_izquierda, uint16_t relleno_derecha);
/** New text with the decimal separator of the region and no thousands. */
char *vornnum_double_a_string_con_formato_windows_solo_separador_decimales(double valor,
                                                                           VN_RANGO(-1, 9) int32_t decimales);

/** New text of a whole number. */
char *num_long_a_string(int32_t valor, char sep_millares);
vnwchar *num_long_a_string_u(int32_t valor, vnwchar sep_millares);
char *num_ulong_a_string(uint32_t valor, char sep_millares);
vnwchar *num_ulong_a_string_u(uint32_t valor, vnwchar sep_millares);

/** New text: the roman numeral of a number from 1 to 99. */
char *vornnum_convierte_a_numero_romano(VN_RANGO(1, 99) int32_t valor);
vnwchar *vornnum_convierte_a_numero_romano_u(VN_RANGO(1, 99) int32_t valor);

/** Width in characters of a field for numbers from `minimo` to `maximo`, told to `precision` (which must be above
    5e-10 for VORNNUM_FORMATO_NUMERO; values and precision in the unit of the format). What is not finite is reported,
    and 0. */
uint16_t vornnum_numero_digitos(double minimo, double maximo, double precision, uint32_t denominador,
                                VN_RANGO(0, 3) int32_t formato);

VN_C_FIN

#endif
