#define VN_MODULO "vornbin (NUCLEOS.DLL)"
#include "persistence/vornbin.h"
#include "foundation/afirma.h"
#include "foundation/vnstdc.h"
#include "persistence/vornbin_priv.h"
#include <algorithm>
#include <cmath>

namespace vn {

// No lock, as told; atomic so that two threads that save plain files do not race on the flag that each clears.
std::atomic<bool> bin_etiquetas_al_escribir{false};
std::atomic<bool> bin_etiquetas_al_leer{false};

void bin_graba_modo_debug(vnfichero *f) {
    if (vnstdc_getenv("GRABARCONDEBUG") != nullptr) bin_etiquetas_al_escribir = true;
    const uint8_t modo = bin_etiquetas_al_escribir ? 1 : 0;
    vnfichero_pon(f, &modo, 1, VN_AQUI);
}

bool bin_lee_modo_debug(vnfichero *f) {
    uint8_t modo = 0;
    if (f_lc_fread_sin_error(&modo, 1, 1, f) != 1 || modo > 1) return false;
    bin_etiquetas_al_leer = modo == 1;
    return true;
}

} // namespace vn

namespace {

// Everything off the fast path is a call in tail position that takes values, not addresses: on the fast path nothing is
// saved and the value stays in its register.
void pon_etiqueta(char etiqueta, vnfichero *f) {
    if (vn::bin_etiquetas_al_escribir) vnfichero_pon(f, &etiqueta, 1, VN_AQUI);
}

void comprueba_etiqueta(char etiqueta, vnfichero *f) {
    if (!vn::bin_etiquetas_al_leer) return;
    char leida = 0;
    vnfichero_toma(f, &leida, 1, VN_AQUI);
    if (leida != etiqueta) lc_error_leyendo_fichero(f);
}

template <class T> [[gnu::noinline]] void pon_al_final_del_buffer(T dato, vnfichero *f) {
    f_lc_fwrite(&dato, sizeof dato, 1, f, VN_AQUI);
}

template <class T> [[gnu::noinline]] T toma_al_final_del_buffer(vnfichero *f) {
    T dato{};
    f_lc_fread(&dato, sizeof dato, 1, f, VN_AQUI);
    return dato;
}

template <class T> inline void pon(T dato, vnfichero *f) {
    auto *v = reinterpret_cast<vnfichero_ventana *>(f);
    if (v->fin_escritura - v->pos >= static_cast<ptrdiff_t>(sizeof(T))) [[likely]] {
        memcpy(v->pos, &dato, sizeof(T));
        v->pos += sizeof(T);
    } else {
        pon_al_final_del_buffer(dato, f);
    }
}

template <class T> inline T toma(vnfichero *f) {
    auto *v = reinterpret_cast<vnfichero_ventana *>(f);
    if (v->fin_lectura - v->pos >= static_cast<ptrdiff_t>(sizeof(T))) [[likely]] {
        T dato;
        memcpy(&dato, v->pos, sizeof(T));
        v->pos += sizeof(T);
        return dato;
    }
    return toma_al_final_del_buffer<T>(f);
}

template <class T> [[gnu::cold, gnu::noinline]] void graba_despacio(T dato, char etiqueta, vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return;
    pon_etiqueta(etiqueta, f);
    pon(dato, f);
}

template <class T> [[gnu::cold, gnu::noinline]] T lee_despacio(char etiqueta, vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return {};
    comprueba_etiqueta(etiqueta, f);
    return toma<T>(f);
}

// One scalar, whole. Inline in each operation, so that none calls another through the export table.
template <class T> inline void graba_escalar(T dato, char etiqueta, vnfichero *f) {
    if (f == nullptr || vn::bin_etiquetas_al_escribir.load(std::memory_order_relaxed)) [[unlikely]]
        return graba_despacio(dato, etiqueta, f);
    pon(dato, f);
}

template <class T> inline T lee_escalar(char etiqueta, vnfichero *f) {
    if (f == nullptr || vn::bin_etiquetas_al_leer.load(std::memory_order_relaxed)) [[unlikely]]
        return lee_despacio<T>(etiqueta, f);
    return toma<T>(f);
}

// A finite number, without a call: the exponent is not all ones.
inline bool es_numero_valido(double x) {
    uint64_t bits;
    memcpy(&bits, &x, sizeof bits);
    return (bits & 0x7FF0000000000000u) != 0x7FF0000000000000u;
}

[[gnu::cold, gnu::noinline]] void graba_double_despacio(double dato, vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return;
    pon_etiqueta('d', f);
    AFIRMA_TEXTO(es_numero_valido(dato), "defmath_es_numero_valido(dato) == CIERTO");
    pon(dato, f);
}

} // namespace

// A row: type, tag, writer, reader.
#define ESCALARES(X)                                                                                                   \
    X(uint8_t, 'b', bin_graba_byte, bin_lee_byte)                                                                      \
    X(char, 'c', bin_graba_char, bin_lee_char)                                                                         \
    X(uint8_t, 'u', bin_graba_uchar, bin_lee_uchar)                                                                    \
    X(int16_t, 's', bin_graba_short, bin_lee_short)                                                                    \
    X(uint16_t, 'u', bin_graba_ushort, bin_lee_ushort)                                                                 \
    X(int32_t, 'l', bin_graba_long, bin_lee_long)                                                                      \
    X(uint32_t, 'u', bin_graba_ulong, bin_lee_ulong)                                                                   \
    X(int64_t, 'l', bin_graba_long64, bin_lee_long64)                                                                  \
    X(uint64_t, 'u', bin_graba_ulong64, bin_lee_ulong64)                                                               \
    X(float, 'f', bin_graba_float, bin_lee_float)
#define X(tipo, etiqueta, graba, lee)                                                                                  \
    void graba(tipo dato, vnfichero *f) { graba_escalar<tipo>(dato, etiqueta, f); }                                    \
    tipo lee(vnfichero *f) { return lee_escalar<tipo>(etiqueta, f); }
ESCALARES(X)
#undef X

void bin_graba_double(double dato, vnfichero *f) {
    if (f == nullptr || vn::bin_etiquetas_al_escribir.load(std::memory_order_relaxed) || !es_numero_valido(dato)) [[unlikely]]
        return graba_double_despacio(dato, f);
    pon(dato, f);
}

double bin_lee_double(vnfichero *f) { return lee_escalar<double>('d', f); }

void bin_graba_bool(vnbool valor, vnfichero *f) {
    AFIRMA_LOGICO(valor);
    graba_escalar(static_cast<uint8_t>(valor), 'b', f);
}

vnbool bin_lee_bool(vnfichero *f) {
    const auto valor = lee_escalar<uint8_t>('b', f);
    if (valor > 1) [[unlikely]]
        lc_error_leyendo_fichero(f);
    return valor;
}

void bin_graba_SN(char dato, vnfichero *f) {
    AFIRMA(dato == 'S' || dato == 'N');
    graba_escalar(dato, 'c', f);
}

char bin_lee_SN(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return 0;
    const char dato = lee_escalar<char>('c', f);
    if (dato != 'S' && dato != 'N') lc_error_leyendo_fichero(f);
    return dato;
}

#define SALTOS(X)                                                                                                      \
    X(bin_salta_bool, bin_lee_bool)                                                                                    \
    X(bin_salta_byte, bin_lee_byte)                                                                                    \
    X(bin_salta_char, bin_lee_char)                                                                                    \
    X(bin_salta_short, bin_lee_short)                                                                                  \
    X(bin_salta_ushort, bin_lee_ushort)                                                                                \
    X(bin_salta_long, bin_lee_long)                                                                                    \
    X(bin_salta_ulong, bin_lee_ulong)                                                                                  \
    X(bin_salta_long64, bin_lee_long64)                                                                                \
    X(bin_salta_ulong64, bin_lee_ulong64)                                                                              \
    X(bin_salta_float, bin_lee_float)                                                                                  \
    X(bin_salta_double, bin_lee_double)
#define X(salta, lee)                                                                                                  \
    void salta(vnfichero *f) { static_cast<void>(lee(f)); }
SALTOS(X)
#undef X

// The checks of an operation that goes both ways.
#define AFIRMA_TRATA(dato) (AFIRMA_NO_NULO(dato) && AFIRMA_NO_NULO(f) && AFIRMA_LOGICO(graba))
#define TRATOS(X)                                                                                                      \
    X(vnbool, bin_trata_bool, bin_graba_bool, bin_lee_bool)                                                            \
    X(uint8_t, bin_trata_byte, bin_graba_byte, bin_lee_byte)                                                           \
    X(char, bin_trata_char, bin_graba_char, bin_lee_char)                                                              \
    X(uint8_t, bin_trata_uchar, bin_graba_uchar, bin_lee_uchar)                                                        \
    X(uint16_t, bin_trata_ushort, bin_graba_ushort, bin_lee_ushort)                                                    \
    X(int32_t, bin_trata_long, bin_graba_long, bin_lee_long)                                                           \
    X(uint32_t, bin_trata_ulong, bin_graba_ulong, bin_lee_ulong)                                                       \
    X(int64_t, bin_trata_long64, bin_graba_long64, bin_lee_long64)                                                     \
    X(uint64_t, bin_trata_ulong64, bin_graba_ulong64, bin_lee_ulong64)                                                 \
    X(float, bin_trata_float, bin_graba_float, bin_lee_float)                                                          \
    X(double, bin_trata_double, bin_graba_double, bin_lee_double)                                                      \
    X(char *, bin_trata_cadena, bin_graba_cadena, bin_lee_cadena)                                                      \
    X(vnwchar *, bin_trata_cadena_u, bin_graba_cadena_unicode, bin_lee_cadena_unicode)
#define X(tipo, trata, escribe, lee)                                                                                   \
    void trata(tipo *dato, vnfichero *f, vnbool graba) {                                                               \
        if (!AFIRMA_TRATA(dato)) return;                                                                               \
        if (graba == CIERTO) escribe(*dato, f);                                                                        \
        else *dato = lee(f);                                                                                           \
    }
TRATOS(X)
#undef X

void bin_trata_cadena_ansi_ascii(char **dato, vnfichero *f, vnbool graba, uint16_t version, uint16_t version_ascii) {
    if (!AFIRMA_TRATA(dato)) return;
    if (graba == CIERTO) bin_graba_cadena(*dato, f);
    else *dato = bin_lee_cadena_ansi_ascii(f, version, version_ascii);
}

void bin_trata_punto(Punto2D *pto, vnfichero *f, vnbool graba) {
    if (!AFIRMA_TRATA(pto)) return;
    bin_trata_double(&pto->x, f, graba);
    bin_trata_double(&pto->y, f, graba);
}

namespace vn {
namespace {

// Truth values turned to bytes and back, on the stack.
constexpr uint32_t TROZO_LOGICOS = 1024;

template <class T, class F> void por_trozos(T *datos, uint32_t n, uint32_t trozo, F &&funcion) {
    for (; n != 0; n -= std::min(n, trozo), datos += trozo) funcion(datos, std::min(n, trozo));
}

template <class T> void graba_bloque(void (*graba)(T, vnfichero *), const T *datos, uint32_t n, vnfichero *f) {
    if (bin_etiquetas_al_escribir) std::for_each_n(datos, n, [=](T dato) { graba(dato, f); });
    else f_lc_fwrite(datos, sizeof(T), n, f, VN_AQUI);
}

// es_numero_valido of each, four at a time: an exponent of ones reaches the sign bit when one is added to it.
bool son_numeros_validos(const double *d, uint32_t n) {
    typedef uint64_t par __attribute__((vector_size(16)));
    constexpr par EXPONENTE = {0x7FF0000000000000u, 0x7FF0000000000000u}, UNO = {uint64_t(1) << 52, uint64_t(1) << 52};
    par malos[2] = {};
    uint32_t i = 0;
    for (; n - i >= 4; i += 4) {
        par bits[2];
        memcpy(bits, d + i, sizeof bits);
        malos[0] |= (bits[0] & EXPONENTE) + UNO;
        malos[1] |= (bits[1] & EXPONENTE) + UNO;
    }
    malos[0] |= malos[1];
    bool validos = (malos[0][0] | malos[0][1]) >> 63 == 0;
    for (; i < n; ++i) validos &= es_numero_valido(d[i]);
    return validos;
}

// One look over all of them, and one write: pieces would not meet the pages of the file.
template <> void graba_bloque(void (*graba)(double, vnfichero *), const double *datos, uint32_t n, vnfichero *f) {
    if (!bin_etiquetas_al_escribir && son_numeros_validos(datos, n)) f_lc_fwrite(datos, sizeof *datos, n, f, VN_AQUI);
    else std::for_each_n(datos, n, [=](double dato) { graba(dato, f); });
}

template <class T> void lee_bloque(T (*lee)(vnfichero *), T *datos, uint32_t n, vnfichero *f) {
    if (bin_etiquetas_al_leer) std::generate_n(datos, n, [=] { return lee(f); });
    else f_lc_fread(datos, sizeof(T), n, f, VN_AQUI);
}

} // namespace

void bin_graba_bloque_bool(const vnbool *datos, uint32_t n, vnfichero *f) {
    por_trozos(datos, n, TROZO_LOGICOS, [=](const vnbool *d, uint32_t k) {
        if (bin_etiquetas_al_escribir || std::any_of(d, d + k, [](vnbool v) { return v > 1; })) {
            std::for_each_n(d, k, [=](vnbool v) { bin_graba_bool(v, f); });
            return;
        }
        uint8_t bytes[TROZO_LOGICOS];
        std::transform(d, d + k, bytes, [](vnbool v) { return static_cast<uint8_t>(v); });
        f_lc_fwrite(bytes, 1, k, f, VN_AQUI);
    });
}

void bin_lee_bloque_bool(vnbool *datos, uint32_t n, vnfichero *f) {
    por_trozos(datos, n, TROZO_LOGICOS, [=](vnbool *d, uint32_t k) {
        uint8_t bytes[TROZO_LOGICOS];
        bin_lee_bloque_byte(bytes, k, f);
        std::copy_n(bytes, k, d);
        if (std::any_of(bytes, bytes + k, [](uint8_t b) { return b > 1; })) lc_error_leyendo_fichero(f);
    });
}

#define X(nombre, tipo)                                                                                                \
    void bin_graba_bloque_##nombre(const tipo *datos, uint32_t n, vnfichero *f) {                                      \
        graba_bloque<tipo>(bin_graba_##nombre, datos, n, f);                                                           \
    }                                                                                                                  \
    void bin_lee_bloque_##nombre(tipo *datos, uint32_t n, vnfichero *f) {                                              \
        lee_bloque<tipo>(bin_lee_##nombre, datos, n, f);                                                               \
    }
VN_BIN_BLOQUES(X)
#undef X

} // namespace vn
