// Checks that stay in: each is true when its condition holds; when not, it reports and is false.
// Private to the library's own sources. The text that is reported is part of the contract, to the letter.
#pragma once

#include "foundation/suelo/error_interno.h"
#include <atomic>

namespace vn::inline suelo {

// The static record of one check: what it reports and how often it has.
struct sitio {
    const char *texto;
    const char *modulo;
    uint32_t linea;
    uint16_t clase;
    std::atomic<uint32_t> veces;
};

[[gnu::cold, gnu::noinline]] inline bool informa(sitio &s) {
    s.veces.fetch_add(1, std::memory_order_relaxed);
    error_interno(s.texto, s.modulo, s.linea, s.clase);
    return false;
}

[[gnu::cold, gnu::noinline]] inline bool informa_de(const char *texto, const char *modulo, uint32_t linea) {
    error_interno(texto, modulo, linea, 0);
    return false;
}

} // namespace vn::suelo

// clang-format off
#define AFIRMA_TEXTO_CLASE(cond, texto, clase)                                                                         \
    (__builtin_expect(static_cast<bool>(cond), 1) ? true : vn::informa([]() -> vn::sitio & {                           \
         static constinit vn::sitio sitio_{texto, VN_MODULO, __LINE__, clase, 0};                                      \
         return sitio_;                                                                                                \
     }()))
/** AFIRMA(cond): reports the text of the condition. */
#define AFIRMA(cond) AFIRMA_TEXTO_CLASE(cond, #cond, 0)
/** AFIRMA_TEXTO(cond, "text"): where the text is not the code's own. */
#define AFIRMA_TEXTO(cond, texto) AFIRMA_TEXTO_CLASE(cond, texto, 0)
/** AFIRMA_NO_NULO(p): reports "(p) != NULL". */
#define AFIRMA_NO_NULO(p) AFIRMA_TEXTO_CLASE((p) != nullptr, "(" #p ") != NULL", 0)
/** EXIGE(a, b, c): none of them is null; the first that is, in the order of the parameters, is reported. Up to
    eight. */
#define EXIGE(...) VN_CADA_UNO_(VN_EXIGE_AQUI_, (), __VA_ARGS__)
/** EXIGE_DE(modulo, linea, a, b, c): the same in an operation that knows its caller, whom the report names. */
#define EXIGE_DE(modulo, linea, ...) VN_CADA_UNO_(VN_EXIGE_DE_, (modulo, linea), __VA_ARGS__)
#define VN_EXIGE_AQUI_(de, p) AFIRMA_NO_NULO(p)
#define VN_EXIGE_DE_(de, p)                                                                                            \
    (__builtin_expect((p) != nullptr, 1) ? true : vn::informa_de("(" #p ") != NULL", VN_SIN_PARENTESIS_ de))
#define VN_SIN_PARENTESIS_(...) __VA_ARGS__
#define VN_CADA_UNO_(F, de, ...)                                                                                       \
    VN_NOVENO_(__VA_ARGS__, VN_CADA_8_, VN_CADA_7_, VN_CADA_6_, VN_CADA_5_, VN_CADA_4_, VN_CADA_3_, VN_CADA_2_,        \
               VN_CADA_1_, )(F, de, __VA_ARGS__)
#define VN_NOVENO_(a, b, c, d, e, f, g, h, cual, ...) cual
#define VN_CADA_1_(F, de, a) F(de, a)
#define VN_CADA_2_(F, de, a, ...) (F(de, a) && VN_CADA_1_(F, de, __VA_ARGS__))
#define VN_CADA_3_(F, de, a, ...) (F(de, a) && VN_CADA_2_(F, de, __VA_ARGS__))
#define VN_CADA_4_(F, de, a, ...) (F(de, a) && VN_CADA_3_(F, de, __VA_ARGS__))
#define VN_CADA_5_(F, de, a, ...) (F(de, a) && VN_CADA_4_(F, de, __VA_ARGS__))
#define VN_CADA_6_(F, de, a, ...) (F(de, a) && VN_CADA_5_(F, de, __VA_ARGS__))
#define VN_CADA_7_(F, de, a, ...) (F(de, a) && VN_CADA_6_(F, de, __VA_ARGS__))
#define VN_CADA_8_(F, de, a, ...) (F(de, a) && VN_CADA_7_(F, de, __VA_ARGS__))
/** AFIRMA_LOGICO(v): reports "v == CIERTO || v == FALSO". */
#define AFIRMA_LOGICO(v) AFIRMA_TEXTO_CLASE((v) == CIERTO || (v) == FALSO, #v " == CIERTO || " #v " == FALSO", 0)
/** AFIRMA_DEFECTO(): the default branch of a selection; always false. */
#define AFIRMA_DEFECTO() (error_interno_default_error(nullptr, nullptr, VN_MODULO, __LINE__, 0), false)
// clang-format on
