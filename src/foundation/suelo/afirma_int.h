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
#define EXIGE(...)                                                                                                     \
    VN_EXIGE_(__VA_ARGS__, VN_EXIGE_8, VN_EXIGE_7, VN_EXIGE_6, VN_EXIGE_5, VN_EXIGE_4, VN_EXIGE_3, VN_EXIGE_2,         \
              AFIRMA_NO_NULO, )(__VA_ARGS__)
#define VN_EXIGE_(a, b, c, d, e, f, g, h, cual, ...) cual
#define VN_EXIGE_2(a, b) (AFIRMA_NO_NULO(a) && AFIRMA_NO_NULO(b))
#define VN_EXIGE_3(a, ...) (AFIRMA_NO_NULO(a) && VN_EXIGE_2(__VA_ARGS__))
#define VN_EXIGE_4(a, ...) (AFIRMA_NO_NULO(a) && VN_EXIGE_3(__VA_ARGS__))
#define VN_EXIGE_5(a, ...) (AFIRMA_NO_NULO(a) && VN_EXIGE_4(__VA_ARGS__))
#define VN_EXIGE_6(a, ...) (AFIRMA_NO_NULO(a) && VN_EXIGE_5(__VA_ARGS__))
#define VN_EXIGE_7(a, ...) (AFIRMA_NO_NULO(a) && VN_EXIGE_6(__VA_ARGS__))
#define VN_EXIGE_8(a, ...) (AFIRMA_NO_NULO(a) && VN_EXIGE_7(__VA_ARGS__))
/** AFIRMA_LOGICO(v): reports "v == CIERTO || v == FALSO". */
#define AFIRMA_LOGICO(v) AFIRMA_TEXTO_CLASE((v) == CIERTO || (v) == FALSO, #v " == CIERTO || " #v " == FALSO", 0)
/** AFIRMA_DEFECTO(): the default branch of a selection; always false. */
#define AFIRMA_DEFECTO() (error_interno_default_error(nullptr, nullptr, VN_MODULO, __LINE__, 0), false)
// clang-format on
