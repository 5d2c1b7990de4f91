/* Values with their unit: a value is kept in one internal unit and shown in that of the system of units in force
   (vornconf.h). A value type says what a number means; its row of the table tells what is shown for it in each system.

   Texts that are returned are new blocks of the tracked heap, freed with vornstr_destruye (ANSI) or widestr_destruye
   (wide), one allocation each; unit texts belong to the table and are not freed. Numbers have a period, whatever the
   region; not-a-number shows as "nan", an infinity as "inf". A type beyond CNV_NO_CONVERSION is reported: 0, an empty
   unit text, a null text, or, where a value is rounded, the value as it came.

   Unit texts are those of the language that was active at the first query, until the exit list runs (vnatexit_ejecuta):
   a host that changes the language runs it first. Threads: any, the first query included; each operation looks once at
   its type, the system and the unit, so that a change by another thread is seen whole or not at all. */
#ifndef VN_CONVERS_H
#define VN_CONVERS_H

#include "../foundation/suelo/tipos.h"

/** Value types; the table says what each is. CNV_NO_CONVERSION: a plain number, no unit. In the imperial system types
    73, 74 and 115 have the figures of the family's files, which are not the physical ones: what 73 and 74 show is
    0.00863 of the true figure, what 115 shows 115.9 times it, and what is typed in errs the other way. */
enum {
#define X(tipo, nombre, ...) nombre = tipo,
#include "convers_tabla.inl"
#undef X
    CNV_NO_CONVERSION = 145
};

/** Directions of cnv_convierte. */
#define CNV_A_INTERNO 0
#define CNV_A_MOSTRADO 1

VN_C_INICIO

/** `valor` from its internal unit to the one shown (CNV_A_MOSTRADO: valor * multiplier + addend) or back
    (CNV_A_INTERNO: (valor - addend) / multiplier). Another direction is reported, and 0; with CNV_NO_CONVERSION there
    is none to tell. */
double cnv_convierte(VN_RANGO(0, 1) int32_t sentido, VN_RANGO(0, 145) uint32_t tipovalor, double valor);
/** The text of the unit shown, in the language that was active when the table was first used (as in every text of this
    header: for those of another the host runs the exit registry, vnatexit_ejecuta, and asks anew); empty for
    CNV_NO_CONVERSION. Good until then. */
const vnwchar *cnv_strextunids(VN_RANGO(0, 145) uint32_t tipovalor);
/** How a value of the type is typed in and shown: VORNNUM_FORMATO_* (vornnum.h), 0 but for lengths of the
    imperial system. */
int32_t convers_formato_entrada(VN_RANGO(0, 145) uint32_t tipovalor);
/** Whether that is in feet and inches. */
vnbool convers_es_longitud_en_sistema_imperial(VN_RANGO(0, 145) uint32_t tipovalor);
/** Greatest denominator of an inch fraction of the type; 0 for CNV_NO_CONVERSION. */
uint32_t convers_divisor_maximo_pulgadas(VN_RANGO(0, 145) uint32_t tipovalor);
/** From now on no length is in feet and inches, not even in the imperial system. Cannot be undone. */
void convers_set_es_uso_residual_en_programas_con_unidades_configurables(void);
/** What brings a value of the unit shown to the internal one, (value + sumando) * factor, whether the unit's text goes
    after the value (FALSO for feet and inches), and that text, borrowed. Nothing is stored after a report. */
void convers_valores_para_vnudcuso(VN_RANGO(0, 145) uint32_t tipovalor,
                                   VN_SALIDA double *factor_conversion_a_unidades_internas,
                                   VN_SALIDA double *sumando_conversion_a_unidades_internas,
                                   VN_SALIDA vnbool *es_correcto_texto_de_unidades_despues_de_valor,
                                   VN_SALIDA const vnwchar **texto_unidades);

/** The power of ten nearest, on the logarithmic scale, to the precision `prec`, internal units, as it is shown; how
    many decimals it has. A precision that is not above zero, before or after it is converted, is reported, and 0. */
double convers_precision_segun_sistema_uds(double prec, VN_RANGO(0, 144) uint32_t tipovalor);
uint32_t convers_precision_num_decimales_segun_sistema_uds(double prec, VN_RANGO(0, 144) uint32_t tipovalor);
/** The same where `prec` is given as shown in a system, which here is 0 M.K.S., 1 S.I. or 2 imperial, with an energy
    unit (VORNNORM_UNIDAD_ENERGIA_*; joule where none is given) that only counts in the S.I. */
double convers_precision_segun_sistema_uds_dado_prec_y_sistema(double prec, VN_RANGO(0, 2) uint32_t sistema,
                                                               VN_RANGO(0, 144) uint32_t tipovalor);
uint32_t convers_precision_num_decimales_segun_sistema_uds_dado_prec_y_sistema(double prec,
                                                                               VN_RANGO(0, 2) uint32_t sistema,
                                                                               VN_RANGO(0, 144) uint32_t tipovalor);
double convers_precision_segun_sistema_uds_energia_dado_prec_y_sistema(double prec, VN_RANGO(0, 2) uint32_t sistema,
                                                                       VN_RANGO(0, 2) uint32_t energia,
                                                                       VN_RANGO(0, 144) uint32_t tipovalor);
uint32_t convers_precision_num_decimales_segun_sistema_uds_energia_dado_prec_y_sistema(
    double prec, VN_RANGO(0, 2) uint32_t sistema, VN_RANGO(0, 2) uint32_t energia, VN_RANGO(0, 144) uint32_t tipovalor);

/** `valor`, internal units, rounded to a round step of the unit shown, the one that suits the precision `prec`,
    internal units: 1, 5, 10, 50, 100, 500, 1000, 10000 or 100000, a multiple of 0.25, 0.025... below 1, and 6 or 60
    inches for feet and inches. As it came when the step would be below 0.000001, when `valor` is not finite and when it
    is beyond 2^31 steps. */
double convers_valor_redondeado_al_mas_cercano(double valor, double prec, VN_RANGO(0, 145) uint32_t tipovalor);
double convers_valor_redondeado_por_defecto(double valor, double prec, VN_RANGO(0, 145) uint32_t tipovalor);
double convers_valor_redondeado_por_exceso(double valor, double prec, VN_RANGO(0, 145) uint32_t tipovalor);
/** `valor`, internal units, adapted to a round figure of the unit shown, as near as the type's relative precision asks;
    as it came from 1e12 on, and where the M.K.S. figure is as good. */
double convers_valor_adaptado_a_unidades(double valor, VN_RANGO(0, 145) uint32_t tipovalor);

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

/* The text family: `valor`, internal units, as it is shown. An imperial length comes out in feet and inches, without
   decimals and unit. "%g" where no decimals are told; `n_decimales` from a million on are a million. */

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

/** The text of a unit in the active language. Not to be freed. */
const vnwchar *convers_texto_kp_cm2(void);
const vnwchar *convers_texto_MPa(void);
const vnwchar *convers_texto_W_K(void);
const vnwchar *convers_texto_W_m2K(void);
const vnwchar *convers_texto_grado_centigrado(void);
const vnwchar *convers_texto_kW(void);
const vnwchar *convers_texto_kWh(void);
const vnwchar *convers_texto_kg(void);
const vnwchar *convers_texto_kg_m2(void);
const vnwchar *convers_texto_l(void);
const vnwchar *convers_texto_m(void);
const vnwchar *convers_texto_m2(void);
const vnwchar *convers_texto_m3(void);
const vnwchar *convers_texto_m3_h(void);
const vnwchar *convers_texto_mm(void);
const vnwchar *convers_texto_mm2(void);
const vnwchar *convers_texto_porcentaje(void);

VN_C_FIN

#endif
