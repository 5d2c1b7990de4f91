/* Bytes as hexadecimal text. */
#ifndef VN_VORNSTRHEX_H
#define VN_VORNSTRHEX_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** New ANSI text of two lower case hexadecimal digits per byte. */
char *vornstrhex_nousar_buffer_a_cadena_hexadecimal(VN_LON(tamanyo) const void *datos,
                                                    VN_RANGO(0, 1073741823) uint32_t tamanyo);
/** The bytes that the text stands for, a new block (freed with vornspy_free_pp), and their number. Digits of either
    case. A text that is not an even number of digits is reported and gives null and 0. */
unsigned char *vornstrhex_nousar_cadena_hexadecimal_a_buffer(const char *texto, VN_SALIDA uint32_t *tamanyo);
/** The same for text from outside: null and 0 without a report. */
unsigned char *vornstrhex_nousar_cadena_hex_a_buffer(const char *texto, VN_SALIDA uint32_t *tamanyo);
/** The two upper case digits of a unit up to 255; FALSO, and nothing is set, for one above, which has no such form. */
vnbool vornstrhex_codifica_caracter_u(vnwchar c, VN_SALIDA vnwchar *alto, VN_SALIDA vnwchar *bajo);
/** The unit that two digits stand for; FALSO, and nothing is set, when one is not a hexadecimal digit. */
vnbool vornstrhex_decodifica_caracter_u(vnwchar alto, vnwchar bajo, VN_SALIDA vnwchar *c);

VN_C_FIN

#define vornstrhex_buffer_a_cadena_hexadecimal(datos, tamanyo)                                                         \
    vornstrhex_nousar_buffer_a_cadena_hexadecimal(datos, tamanyo)
#define vornstrhex_cadena_hexadecimal_a_buffer(texto, tamanyo)                                                         \
    vornstrhex_nousar_cadena_hexadecimal_a_buffer(texto, tamanyo)
#define vornstrhex_cadena_hex_a_buffer(texto, tamanyo) vornstrhex_nousar_cadena_hex_a_buffer(texto, tamanyo)

#endif
