/* The save protocol: arrays and ordered sets of texts. vornsave.h tells what holds for all. */
#ifndef VN_VORNSAVE_TEXTOS_H
#define VN_VORNSAVE_TEXTOS_H

#include "vornsave_tipos.h"

VN_C_INICIO

/** Arrays of texts without null elements. On a text stream ANSI texts come back up to 255 characters long, and wide
    ones cannot be read: that is reported with an empty expression, and null comes back. */
void vornsave_graba_arr_cadenas(const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas(vornsave *vornsave_datos);
void vornsave_salta_arr_cadena(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_unicode(const arrCADENA_u *array, vornsave *vornsave_datos);
arrCADENA_u *vornsave_lee_arr_cadenas_unicode(vornsave *vornsave_datos);
void vornsave_salta_arr_cadena_unicode(vornsave *vornsave_datos);
/** ANSI texts read as OEM ones unless `version` > `version_ascii`; on a binary stream in the form with null elements.
    ANSI texts read as wide ones. */
arrCADENA *vornsave_lee_arr_cadenas_ANSI_ASCII(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii);
arrCADENA_u *vornsave_lee_arr_cadenas_ansi_unicode(vornsave *vornsave_datos);
/** Arrays of texts whose null elements survive on a binary stream. */
void vornsave_graba_arr_cadenas_segun_tipo(const arrCADENA *array, vornsave *vornsave_datos);
arrCADENA *vornsave_lee_arr_cadenas_segun_tipo(vornsave *vornsave_datos);
void vornsave_graba_arr_cadenas_segun_tipo_unicode(const arrCADENA_u *array, vornsave *vornsave_datos);
arrCADENA_u *vornsave_lee_arr_cadenas_segun_tipo_unicode(vornsave *vornsave_datos);
/** Ordered sets of texts. With a function, the texts go through it instead of the destination's form. */
void vornsave_graba_acadorde(const acadorde *array, vornsave *vornsave_datos);
acadorde *vornsave_lee_acadorde(vornsave *vornsave_datos);
void vornsave_graba_acadordeu(const acadordeu *array, vornsave *vornsave_datos);
acadordeu *vornsave_lee_acadordeu(vornsave *vornsave_datos);
void vornsave_graba_acadorde_con_funcion(const acadorde *array, vnfunc_graba_texto funcion, vornsave *vornsave_datos);
acadorde *vornsave_lee_acadorde_con_funcion(vornsave *vornsave_datos, vnfunc_lee_texto funcion);

VN_C_FIN

#endif
