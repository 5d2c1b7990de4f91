/* Texts of drawing frames that are filled in when they are drawn: names of a table of texts, by families if need be,
   and masks in brackets. */
#ifndef VN_VORNPLAN_TEXTO_VARIABLE_H
#define VN_VORNPLAN_TEXTO_VARIABLE_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

#define VPLAN_SIN_TEXTO 0xFFFF

/** A name of a table of texts: which of them it stands for, VPLAN_SIN_TEXTO for none. All is owned, on the tracked
    heap. */
typedef struct textoVar_indice {
    vnwchar *nombre;
    vnbool por_familia;
    uint16_t ind;              /**< when not by family */
    uint16_t *ind_por_familia; /**< one for each family; null when not by family */
} textoVar_indice;
/** A table of texts. */
typedef struct textoVar {
    int32_t numFamilias; /**< 0 or negative: none */
    uint32_t numTextos;
    vnwchar **texto;
    uint32_t numIndices;
    textoVar_indice *indiceTexto;
} textoVar;
/** The values that masks ask for. */
typedef struct totales {
    int32_t numTotales;
    double *total;
} totales;

/** The text to draw for `texto`, new and the caller's. Lengths are by the default font at height `alto`.
    - "@name", with a table: the text of that name, of the family `familiaTotal` (from 1) where it is by family; then
      `*longitud` is its length. A name that is VPLAN_SIN_TEXTO, or that the table has no families for, is one blank of
      length 0; of a family that is not there, an empty text; one that is not in the table, `texto` as it is. For
      `familiaTotal` -1 a name by family gives itself, without the "@". 0 is reported. Names are found without regard to
      case.
    - Else, for `*longitud` -1, with each mask replaced, and `*longitud` is the length of the whole: "[7]" by 7 +
      `numero`; "[E2M%.1f m]" by the total number 2, from 0, in the format behind the M (without `tabla_totales`, by 0).
      The format is text with one conversion of a number, % flags width precision and e, f or g, of at most 99 each;
      "%%" is a percent sign; any other conversion is reported and stands as it is written.
    - Else a copy; `*longitud` is its length, at least 0.
    After a report, but for that one, a copy of `texto`, and `*longitud` is left; null for null arguments. */
vnwchar *vplan_dame_texto_var(const vnwchar *texto, int32_t familiaTotal, VN_OPC const textoVar *tabla_textos,
                              VN_OPC const totales *tabla_totales, int32_t estilo, double alto, int32_t numero,
                              double *longitud);
/** Frees what a table, or a list of values, holds, and leaves it empty. */
void vplan_libera_textos_var(textoVar *tabla_textos);
void vplan_libera_totales(totales *tabla_totales);

VN_C_FIN

#endif
