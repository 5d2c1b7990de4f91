#define VN_MODULO "vornstrhex (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/texto/vornstrhex.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/numero_int.h"
#include <cstring>

using vn::texto::cifra_hexadecimal;

char *vornstrhex_nousar_buffer_a_cadena_hexadecimal(const void *datos, uint32_t tamanyo) {
    if (!AFIRMA_NO_NULO(datos) || !AFIRMA(tamanyo < 1u << 30)) return nullptr;
    char *s = static_cast<char *>(vornspy_malloc(size_t{tamanyo} * 2 + 1)), *p = s;
    const auto *b = static_cast<const unsigned char *>(datos);
    for (uint32_t i = 0; i < tamanyo; ++i) {
        // Small letters here; the single characters below have capitals.
        *p++ = "0123456789abcdef"[b[i] >> 4];
        *p++ = "0123456789abcdef"[b[i] & 15];
    }
    *p = 0;
    return s;
}

unsigned char *vornstrhex_nousar_cadena_hex_a_buffer(const char *texto, uint32_t *tamanyo) {
    if (!EXIGE(texto, tamanyo)) return nullptr;
    *tamanyo = 0;
    const size_t n = std::strlen(texto);
    // Two digits make a byte.
    if (n % 2 != 0 || n / 2 > UINT32_MAX) return nullptr;
    // All the digits are looked at before anything is made.
    for (size_t i = 0; i < n; ++i)
        if (cifra_hexadecimal(static_cast<unsigned char>(texto[i])) > 15) return nullptr;
    auto *b = static_cast<unsigned char *>(vornspy_malloc(n / 2));
    for (size_t i = 0; i < n / 2; ++i)
        b[i] = static_cast<unsigned char>(cifra_hexadecimal(static_cast<unsigned char>(texto[2 * i])) << 4 |
                                          cifra_hexadecimal(static_cast<unsigned char>(texto[2 * i + 1])));
    *tamanyo = static_cast<uint32_t>(n / 2);
    return b;
}

unsigned char *vornstrhex_nousar_cadena_hexadecimal_a_buffer(const char *texto, uint32_t *tamanyo) {
    if (!EXIGE(texto, tamanyo)) return nullptr;
    // The same bytes, but a text that is none of digits is reported.
    unsigned char *buffer = vornstrhex_nousar_cadena_hex_a_buffer(texto, tamanyo);
    (void)AFIRMA_NO_NULO(buffer);
    return buffer;
}

vnbool vornstrhex_codifica_caracter_u(vnwchar c, vnwchar *alto, vnwchar *bajo) {
    // A unit beyond a byte has no two digits, which is an answer and no error.
    if (!EXIGE(alto, bajo) || c > 0xFF) return FALSO;
    *alto = VNU("0123456789ABCDEF")[c >> 4];
    *bajo = VNU("0123456789ABCDEF")[c & 15];
    return CIERTO;
}

vnbool vornstrhex_decodifica_caracter_u(vnwchar alto, vnwchar bajo, vnwchar *c) {
    if (!AFIRMA_NO_NULO(c)) return FALSO;
    const uint32_t a = cifra_hexadecimal(static_cast<uint16_t>(alto)),
                   b = cifra_hexadecimal(static_cast<uint16_t>(bajo));
    if (a > 15 || b > 15) return FALSO;
    *c = static_cast<vnwchar>(a << 4 | b);
    return CIERTO;
}
