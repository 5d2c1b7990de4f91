/* Values as lines of a text stream, written or read by one call; vtxt.h tells the form. */
#ifndef VN_VTXT_TRATA_H
#define VN_VTXT_TRATA_H

#include "../suelo/tipos.h"

typedef struct vnfichero vnfichero;

VN_C_INICIO

/** Writes `*dato` when `graba` is CIERTO, reads it when it is FALSO, with the members of that type; numbers leave the
    line open. A text that is read is a new one, and what `*dato` led to before is the caller's still. */
void vtxt_trata_bool(vnfichero *f, vnbool *dato, const char *texto1, const char *texto2, vnbool graba);
void vtxt_trata_cadena(VN_OPC char **dato, vnfichero *f, vnbool graba);
void vtxt_trata_cadena_ansi_ascii(VN_OPC char **dato, vnfichero *f, vnbool graba, uint16_t version,
                                  uint16_t version_ascii);
void vtxt_trata_cadena_u(VN_OPC vnwchar **dato, vnfichero *f, vnbool graba);
void vtxt_trata_double(double *dato, vnfichero *f, vnbool graba);
void vtxt_trata_ushrt(uint16_t *dato, vnfichero *f, vnbool graba);
/** As vtxt_trata_ushrt for a value of 8 bits; a greater number is bad text. */
void vtxt_trata_uchar_como_ushrt(uint8_t *dato, vnfichero *f, vnbool graba);
/** Writes a comment as vtxt_escr_comentario_y_salta does, or passes over the rest of the line. */
void vtxt_trata_comentario(const char *comentario, vnfichero *f, vnbool graba);

VN_C_FIN

#endif
