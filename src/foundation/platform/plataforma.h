/* What differs between platforms in the public headers: the wide character and how a name is made visible. */
#ifndef VN_PLATAFORMA_H
#define VN_PLATAFORMA_H

#include <stddef.h>
#include <stdint.h>

#ifdef _WIN32
#include <wchar.h>
/** A UTF-16 unit: wchar_t on Windows, char16_t elsewhere. VNU("text") is a literal of it. */
typedef wchar_t vnwchar;
#define VNU(texto) L##texto
#define VN_VISIBLE_INICIO
#define VN_VISIBLE_FIN
#else
#ifndef __cplusplus
#include <uchar.h>
#endif
/** A UTF-16 unit: wchar_t on Windows, char16_t elsewhere. VNU("text") is a literal of it. */
typedef char16_t vnwchar;
#define VNU(texto) u##texto
#define VN_VISIBLE_INICIO _Pragma("GCC visibility push(default)")
#define VN_VISIBLE_FIN _Pragma("GCC visibility pop")
#endif

/* Brackets the exported operations of a header: C linkage, visible outside the library. */
#ifdef __cplusplus
#define VN_C_INICIO VN_VISIBLE_INICIO extern "C" {
#define VN_C_FIN                                                                                                       \
    }                                                                                                                  \
    VN_VISIBLE_FIN
#else
#define VN_C_INICIO VN_VISIBLE_INICIO
#define VN_C_FIN VN_VISIBLE_FIN
#endif

#endif
