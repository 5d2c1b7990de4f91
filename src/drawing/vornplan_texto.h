/* Texts through an output. Position, size, direction and length go through its coordinates separately, so that a text
   stays a text; one that would be read upside down is turned by half a turn in its place.

   A text has an anchor; `justificacion`, which point of its box that is (vornplan_caja_texto.h); `alto`, its height;
   `ancho`, the size of a character along the line; a direction, cosine and sine; `estilo`, the device's own. The forms
   without _u take text of the active ANSI page. While texts are locked nothing is drawn. A length of -1 is measured by
   the device. */
#ifndef VN_VORNPLAN_TEXTO_H
#define VN_VORNPLAN_TEXTO_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** Draws a text, measured in its own units first; a height or width that cannot be measured is left to the device. */
void vplan_escr_texto(salida_t *salida, const char *texto, double x, double y, VN_RANGO(0, 18) uint8_t justificacion,
                      double alto, double ancho, double coseno, double seno, int32_t estilo);
void vplan_escr_texto_u(salida_t *salida, const vnwchar *texto, double x, double y,
                        VN_RANGO(0, 18) uint8_t justificacion, double alto, double ancho, double coseno, double seno,
                        int32_t estilo);
/** The same at a depth. A height or width that cannot be measured is reported (vplan_longitud_texto_u): nothing is
    drawn then. */
void vplan_escr_texto3D(salida_t *salida, const char *texto, double x, double y, double z,
                        VN_RANGO(0, 18) uint8_t justificacion, double alto, double ancho, double coseno, double seno,
                        int32_t estilo);
void vplan_escr_texto3D_u(salida_t *salida, const vnwchar *texto, double x, double y, double z,
                          VN_RANGO(0, 18) uint8_t justificacion, double alto, double ancho, double coseno, double seno,
                          int32_t estilo);
/** Of a length that is known. */
void vplan_escr_texto_con_longit_u(salida_t *salida, const vnwchar *texto, double x, double y,
                                   VN_RANGO(0, 18) uint8_t justificacion, double alto, double ancho, double coseno,
                                   double seno, double longitud);
void vplan_escr_texto_con_longit3D_u(salida_t *salida, const vnwchar *texto, double x, double y, double z,
                                     VN_RANGO(0, 18) uint8_t justificacion, double alto, double ancho, double coseno,
                                     double seno, double longitud);
/** Moved away from its anchor by `desplazamiento`, as vornplan_desplazamientos_x_y_segun_justificacion says. */
void vplan_escr_texto_con_desplazamiento_u(salida_t *salida, const vnwchar *texto, double x, double y,
                                           VN_RANGO(0, 18) uint8_t justificacion, double alto, double ancho,
                                           double coseno, double seno, int32_t estilo, double desplazamiento);
/** Turned the right way up before the coordinates of the output too, which turn it again if they make it so. */
void vplan_escr_texto_con_orientacion_correcta(salida_t *salida, const char *texto, double x, double y,
                                               VN_RANGO(0, 18) uint8_t justificacion, double alto, double ancho,
                                               double coseno, double seno, int32_t estilo);
void vplan_escr_texto_con_orientacion_correcta_u(salida_t *salida, const vnwchar *texto, double x, double y,
                                                 VN_RANGO(0, 18) uint8_t justificacion, double alto, double ancho,
                                                 double coseno, double seno, int32_t estilo);
/** The same of a height in pixels. A device that draws such texts receives all as it is given; elsewhere height and
    width are those of so many visible points, and `longitud` is not looked at. */
void vplan_escr_texto_con_alto_en_pixeles_con_orientacion_correcta_u(salida_t *salida, const vnwchar *texto, double x,
                                                                     double y, uint8_t justificacion,
                                                                     double alto_pixeles, double coseno, double seno,
                                                                     double longitud, VN_RANGO(0, 254) uint32_t estilo);

/** The upright rule: a direction beyond 95 degrees either way is turned by half a turn, and the code of justification
    goes to the opposite one (below 10 to 10 less it, from there on to 19 less it). The first answers whether the text
    stays as it is, the second its code; both give the direction. A code above 18 is reported: the text stays. */
vnbool vplan_orientacion_correcta_para_texto(VN_RANGO(0, 18) uint8_t justificacion, double coseno, double seno,
                                             VN_SALIDA double *cose_correcto, VN_SALIDA double *seno_correcto);
uint8_t vplan_justificacion_correcta_para_texto(VN_RANGO(0, 18) uint8_t justificacion, double coseno, double seno,
                                                VN_SALIDA double *cose_correcto, VN_SALIDA double *seno_correcto);
/** Whether the upright rule turns any text, in the whole process; from the start it does. `anterior` receives the value
    until now. */
void vornplan_set_permitir_orientacion_correcta_textos(vnbool permitir, VN_SALIDA_OPC vnbool *anterior);

/** By how much a text of that code moves to be `desplazamiento` away from its anchor, along it and across. A code that
    is none is reported: by nothing. */
void vornplan_desplazamientos_x_y_segun_justificacion(VN_RANGO(1, 15) uint8_t justificacion, double desplazamiento,
                                                      double coseno, double seno, VN_SALIDA double *desplazamiento_x,
                                                      VN_SALIDA double *desplazamiento_y);

VN_C_FIN

#endif
