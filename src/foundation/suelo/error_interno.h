/* Reports: what a failed check does. A report names the failed expression, the module and the line; it goes to the
   receiver that the host installed, or as one line to the error stream, and returns. Inside a trapped call
   (trapable.h) it marks the trap as failed instead, and returns too. */
#ifndef VN_ERROR_INTERNO_H
#define VN_ERROR_INTERNO_H

#include "tipos.h"

/** One report. The texts live only during the call of the receiver. */
typedef struct vninforme {
    const char *expresion;      /**< failed expression, ANSI; null when it is wide or there is none */
    const vnwchar *expresion_u; /**< failed expression, wide; null when it is ANSI or there is none */
    const char *detalle;        /**< a value worth showing, ANSI, or null */
    const vnwchar *detalle_u;   /**< a value worth showing, wide, or null */
    const Punto2D *punto;       /**< the point that failed, or null */
    const char *modulo;         /**< who reports, as "vornsave (NUCLEOS.DLL)"; may be null */
    uint32_t linea;             /**< source line */
    uint16_t clase;             /**< 0 programming fault, 1 stack not empty at the end of its life, 2 edited text */
} vninforme;

/** Receiver of reports. It may be called from any thread; it must return. */
typedef void (*vnreceptor_informes)(const vninforme *informe, void *datos);

VN_C_INICIO

/** Reports a failed precondition or invariant. Keeps `errno` and the last Windows error; allocates nothing. */
void error_interno(VN_OPC const char *expresion, VN_OPC const char *modulo, uint32_t linea, uint16_t clase);
/** Reports that a selection over an enumerated value has no such case. The first two are null, `clase` is 0. */
void error_interno_default_error(VN_OPC const char *expresion, VN_OPC const char *detalle, VN_OPC const char *modulo,
                                 uint32_t linea, uint16_t clase);
/** Reports a failed check with a value worth showing. */
void error_interno_msg(VN_OPC const char *expresion, VN_OPC const char *modulo, uint32_t linea,
                       VN_OPC const char *detalle, uint16_t clase);
/** The same in wide text; the detail is typically a file's name. */
void error_interno_msg_u(VN_OPC const vnwchar *expresion, VN_OPC const char *modulo, uint32_t linea,
                         VN_OPC const vnwchar *detalle, uint16_t clase);
/** As error_interno_msg_u, with a detail that was built for the report: it is taken over and freed. */
void error_interno_liberando_mensaje_u(VN_OPC const vnwchar *expresion, VN_OPC const char *modulo, uint32_t linea,
                                       VN_OPC VN_CONSUME vnwchar *detalle, uint16_t clase);
/** Reports a failed check on a point of the plane. */
void error_interno_punto_2D(VN_OPC const char *expresion, VN_OPC const char *modulo, uint32_t linea,
                            VN_OPC const Punto2D *punto);

/** Installs the host's receiver, process-wide; null brings the default one back. `datos` is handed to it. */
void error_interno_instala_receptor(VN_OPC vnreceptor_informes receptor, VN_DATO void *datos);
/** Number of reports of this process so far, trapped ones included. */
uint64_t error_interno_numero_de_informes(void);

VN_C_FIN

#endif
