/* Values with their unit: the value types, what is shown for each, values brought from one to the other. */
#ifndef VN_CONVERS_VALOR_H
#define VN_CONVERS_VALOR_H

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

VN_C_FIN

#endif
