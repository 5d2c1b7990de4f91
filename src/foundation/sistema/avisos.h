/* Texts for the user and for the developer: warnings and questions, and who shows them. */
#ifndef VN_AVISOS_H
#define VN_AVISOS_H

#include "../suelo/tipos.h"

typedef enum vntipo_aviso {
    VN_AVISO_DESARROLLO = 0, /**< a developer's warning */
    VN_AVISO_ERROR = 1,      /**< a warning that the user must see, shown as an error */
    VN_AVISO_PREGUNTA = 2    /**< a yes or no question */
} vntipo_aviso;

/** Receiver of warnings and questions; only the answer to a question counts: CIERTO is yes. */
typedef vnbool (*vnreceptor_avisos)(vntipo_aviso tipo, const vnwchar *texto, void *datos);

VN_C_INICIO

/** Gives a developer's warning, only where the variable ENPRUEBA is defined. */
void assert_aviso(const vnwchar *texto);
/** Shows the user a warning as an error: how bad input files are told. */
void vnaviso_aviso_interno_como_error_u(const vnwchar *texto);
/** Asks the user. With nobody to ask the answer is FALSO. */
vnbool avisobas_pregunta_u(const vnwchar *texto);
/** Installs the host's receiver, process-wide; null brings the default one back: the error stream, or on Windows a
    message box when a main window is set. */
void avisos_instala_receptor(VN_OPC vnreceptor_avisos receptor, VN_DATO void *datos);

VN_C_FIN

#endif
