/* How long a text is when it is drawn through an output, in the caller's units. Where a device of the chain measures,
   it does; elsewhere, and without an output, the default font of the machine (textowin.h), where `ancho` plays no part.
   Lengths are 0 after a report. The forms without _u take text of the active ANSI page. */
#ifndef VN_VORNPLAN_TEXTO_LONGITUD_H
#define VN_VORNPLAN_TEXTO_LONGITUD_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** Of a whole text; an empty one is 0. Height and width are above 1e-50, the height below 1e50: else reported. */
void vplan_longitud_texto(VN_OPC salida_t *salida, const char *texto, double alto, double ancho, int32_t estilo,
                          VN_SALIDA double *longitud);
void vplan_longitud_texto_u(VN_OPC salida_t *salida, const vnwchar *texto, double alto, double ancho, int32_t estilo,
                            VN_SALIDA double *longitud);
/** Of the characters `primero` to `ultimo`, both included; what lies past the end counts nothing. In ANSI text they
    count bytes. Heights and widths of any size. */
void vplan_longitud_trozo_texto(VN_OPC salida_t *salida, const char *texto, uint32_t primero, uint32_t ultimo,
                                double alto, double ancho, int32_t estilo, VN_SALIDA double *longitud);
void vplan_longitud_trozo_texto_u(VN_OPC salida_t *salida, const vnwchar *texto, uint32_t primero, uint32_t ultimo,
                                  double alto, double ancho, int32_t estilo, VN_SALIDA double *longitud);
/** Of the longest number of so many equal digits, from 0 to 8. */
void vplan_longitud_numerica(VN_OPC salida_t *salida, VN_RANGO(1, 199) uint32_t numdigitos, double alto, double ancho,
                             int32_t estilo, VN_SALIDA double *longitud);
/** Of what stands before the decimal point of a number, and from the point on; 0 for what is not there. Two points are
    reported. */
void vplan_longitudes_texto_numerico_u(VN_OPC salida_t *salida, const vnwchar *texto, double alto, double ancho,
                                       int32_t estilo, VN_SALIDA_OPC double *longitud_entera,
                                       VN_SALIDA_OPC double *longitud_decimal);
/** Length and height of a frame around a text: a box around a long one, a circle around a short one. */
void vplan_longitud_texto_rodeado_u(VN_OPC salida_t *salida, const vnwchar *texto, double alto, double ancho,
                                    int32_t estilo, VN_SALIDA double *longitud, VN_SALIDA double *altura);
/** What a height becomes through the whole chain as texts go through it. */
double vplan_proyecta_alto_2d(salida_t *salida, double alto);

VN_C_FIN

#endif
