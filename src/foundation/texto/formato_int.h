// The one printf-like engine, for both widths, independent of the C locale (std::to_chars). The conversions are those
// of nousar_formatea (cad.h). NaN prints "nan" and the infinities "inf" and "-inf" whatever the platform and the sign
// of the NaN. Widths and precisions beyond a million are cut to it.
#pragma once

#include "foundation/suelo/tipos.h"
#include <cstdarg>
#include <cstddef>

// A step of a variadic operation on its arguments, which follow `ultimo`: CON_ARGUMENTOS(args, formato, use of args).
#define CON_ARGUMENTOS(args, ultimo, ...)                                                                              \
    va_list args;                                                                                                      \
    va_start(args, ultimo);                                                                                            \
    __VA_ARGS__;                                                                                                       \
    va_end(args)

namespace vn::texto {

// Writes at most `sitio` units at `destino`, terminator included (there is one whenever `sitio` is not 0), and returns
// the length of the whole text: it was cut when that is not below `sitio`. C is char (ANSI) or vnwchar. A two-byte
// character of an ANSI page or a surrogate pair may be cut in two at the end, and a text by its precision, which counts
// its own units. `args` is left as it was: it may be used again.
template <class C> size_t formatea_en(C *destino, size_t sitio, const C *formato, va_list args);

// The same as a new text of the tracked heap, the caller's, under the name of the module and line.
template <class C> C *formatea_nuevo(const C *formato, va_list args, const char *modulo, uint32_t linea);

extern template size_t formatea_en<char>(char *, size_t, const char *, va_list);
extern template size_t formatea_en<vnwchar>(vnwchar *, size_t, const vnwchar *, va_list);
extern template char *formatea_nuevo<char>(const char *, va_list, const char *, uint32_t);
extern template vnwchar *formatea_nuevo<vnwchar>(const vnwchar *, va_list, const char *, uint32_t);

} // namespace vn::texto
