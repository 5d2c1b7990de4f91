// stdio without its lock where the platform has it; msvcrt has not, and takes the lock.
#pragma once

#include <cstdio>

namespace bench {
#ifdef _WIN32
inline constexpr const char *FWRITE = "fwrite", *FREAD = "fread";
inline size_t fwrite_sin_cerrojo(const void *p, size_t t, size_t n, FILE *f) { return std::fwrite(p, t, n, f); }
inline size_t fread_sin_cerrojo(void *p, size_t t, size_t n, FILE *f) { return std::fread(p, t, n, f); }
#else
inline constexpr const char *FWRITE = "fwrite_unlocked", *FREAD = "fread_unlocked";
inline size_t fwrite_sin_cerrojo(const void *p, size_t t, size_t n, FILE *f) { return ::fwrite_unlocked(p, t, n, f); }
inline size_t fread_sin_cerrojo(void *p, size_t t, size_t n, FILE *f) { return ::fread_unlocked(p, t, n, f); }
#endif
} // namespace bench
