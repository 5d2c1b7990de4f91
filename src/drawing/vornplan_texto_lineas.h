/* Texts of several lines, in tables, and with lines along them. What the arguments are: vornplan_texto.h. */
#ifndef VN_VORNPLAN_TEXTO_LINEAS_H
#define VN_VORNPLAN_TEXTO_LINEAS_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** Draws a text in lines no longer than `max_longitud`, cut at blanks and at each "\P" (backslash, P). Line after line
    goes down along y, whatever the direction; the first is at the anchor, lower by all lines for codes 1 to 3 and by
    half of them for 4 to 6. If one word alone is longer, nothing is drawn. Codes are those of a box, others are
    reported. While the environment variable TEXTOS_MULTILINEA_VORNPLAN is defined, the blank between two words belongs
    to the second and none ends a line. */
void vplan_escr_texto_en_multiples_lineas_u(salida_t *salida, const vnwchar *texto, double x, double y,
                                            VN_RANGO(1, 15) uint8_t justificacion, double alto, double ancho,
                                            double max_longitud, double coseno, double seno);
void vplan_escr_texto_en_multiples_lineas3D_u(salida_t *salida, const vnwchar *texto, double x, double y, double z,
                                              VN_RANGO(1, 15) uint8_t justificacion, double alto, double ancho,
                                              double max_longitud, double coseno, double seno);
/** A text that may hold masks in brackets, which the device replaces: the device measures it then, and with estilo -1.
    Brackets that do not pair, and an empty text, are reported: nothing is drawn. The second is turned the right way up
    before the coordinates of the output too. */
void vplan_escr_texto_tabla_u(salida_t *salida, const vnwchar *texto, double x, double y,
                              VN_RANGO(0, 18) uint8_t justificacion, double alto, double ancho, double coseno,
                              double seno, int32_t estilo);
void vplan_escr_texto_u_tabla_con_orientacion_correcta_para_texto(salida_t *salida, const vnwchar *texto, double x,
                                                                  double y, VN_RANGO(0, 18) uint8_t justificacion,
                                                                  double alto, double ancho, double coseno, double seno,
                                                                  int32_t estilo);
/** Draws a text of a length, and lines of that length along its top and its bottom; for -1 of the one it is measured to
    have with estilo 0. A code that has no box is reported, and has no lines. */
void vplan_escr_texto_con_longit_con_lineas_u(salida_t *salida, const vnwchar *texto, double x, double y,
                                              VN_RANGO(1, 15) uint8_t justificacion, double alto, double ancho,
                                              double coseno, double seno, double longitud, vnbool linea_superior,
                                              vnbool linea_inferior);

VN_C_FIN

#endif
