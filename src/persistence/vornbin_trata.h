/* Binary project files: values of an open stream passed over, or written and read by the same words. vornbin.h tells
   what holds for all. */
#ifndef VN_VORNBIN_TRATA_H
#define VN_VORNBIN_TRATA_H

#include "../foundation/ficheros/lc_fichero.h"

VN_C_INICIO

/** Passes over a value, checked as its reader checks it. */
void bin_salta_bool(vnfichero *f);
void bin_salta_byte(vnfichero *f);
void bin_salta_char(vnfichero *f);
void bin_salta_short(vnfichero *f);
void bin_salta_ushort(vnfichero *f);
void bin_salta_long(vnfichero *f);
void bin_salta_ulong(vnfichero *f);
void bin_salta_long64(vnfichero *f);
void bin_salta_ulong64(vnfichero *f);
void bin_salta_float(vnfichero *f);
void bin_salta_double(vnfichero *f);

/** Both ways, for record code written once: `graba` CIERTO writes `*dato`, FALSO reads into it. */
void bin_trata_bool(vnbool *dato, vnfichero *f, vnbool graba);
void bin_trata_byte(uint8_t *dato, vnfichero *f, vnbool graba);
void bin_trata_char(char *dato, vnfichero *f, vnbool graba);
void bin_trata_uchar(uint8_t *dato, vnfichero *f, vnbool graba);
void bin_trata_ushort(uint16_t *dato, vnfichero *f, vnbool graba);
void bin_trata_long(int32_t *dato, vnfichero *f, vnbool graba);
void bin_trata_ulong(uint32_t *dato, vnfichero *f, vnbool graba);
void bin_trata_long64(int64_t *dato, vnfichero *f, vnbool graba);
void bin_trata_ulong64(uint64_t *dato, vnfichero *f, vnbool graba);
void bin_trata_float(float *dato, vnfichero *f, vnbool graba);
void bin_trata_double(double *dato, vnfichero *f, vnbool graba);
/** Reading stores a new text; what `*dato` held before is not looked at. */
void bin_trata_cadena(VN_OPC char **dato, vnfichero *f, vnbool graba);
void bin_trata_cadena_u(VN_OPC vnwchar **dato, vnfichero *f, vnbool graba);
/** Reads as bin_lee_cadena_ansi_ascii, writes as bin_graba_cadena. */
void bin_trata_cadena_ansi_ascii(VN_OPC char **dato, vnfichero *f, vnbool graba, uint16_t version,
                                 uint16_t version_ascii);
/** x, then y, of the point at `pto`. */
void bin_trata_punto(Punto2D *pto, vnfichero *f, vnbool graba);

VN_C_FIN

#endif
