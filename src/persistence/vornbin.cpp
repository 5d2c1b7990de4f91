#define VN_MODULO "vornbin (NUCLEOS.DLL)"
#include "persistence/vornbin.h"
#include "foundation/ficheros/trata_int.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "persistence/vornbin_priv.h"
#include <algorithm>
#include <cmath>

namespace vn {

// The byte that tells a reader whether each value has a tag before it; the environment asks for tags.
void bin_graba_modo_debug(vnfichero *f) {
    f->etiquetas_al_escribir = vnstdc_getenv("GRABARCONDEBUG") != nullptr;
    const uint8_t modo = f->etiquetas_al_escribir ? 1 : 0;
    vnfichero_pon(f, &modo, 1, VN_AQUI);
}

bool bin_lee_modo_debug(vnfichero *f) {
    uint8_t modo = 0;
    // Only 0 and 1 are ever written: any other value tells that this is no such file.
    if (f_lc_fread_sin_error(&modo, 1, 1, f) != 1 || modo > 1) return false;
    f->etiquetas_al_leer = modo == 1;
    return true;
}

template <class T> void graba_despacio(T dato, char etiqueta, vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return;
    // Tag, check, bytes: each is written whatever the one before it said.
    if (f->etiquetas_al_escribir) vnfichero_pon(f, &etiqueta, 1, VN_AQUI);
    if constexpr (std::is_same_v<T, double>)
        AFIRMA_TEXTO(es_numero_valido(dato), "defmath_es_numero_valido(dato) == CIERTO");
    vnfichero_pon(f, &dato, sizeof dato, VN_AQUI);
}

template <class T> T lee_despacio(char etiqueta, vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return {};
    if (f->etiquetas_al_leer) {
        char leida = 0;
        vnfichero_toma(f, &leida, 1, VN_AQUI);
        // A wrong letter is reported and the value read all the same: one tag may be damaged alone.
        if (leida != etiqueta) lc_error_leyendo_fichero(f);
    }
    T dato{};
    vnfichero_toma(f, &dato, sizeof dato, VN_AQUI);
    return dato;
}

#define DESPACIO(tipo)                                                                                                 \
    template void graba_despacio(tipo, char, vnfichero *);                                                             \
    template tipo lee_despacio(char, vnfichero *);
// clang-format off
DESPACIO(uint8_t) DESPACIO(char) DESPACIO(int16_t) DESPACIO(uint16_t) DESPACIO(int32_t)
DESPACIO(uint32_t) DESPACIO(int64_t) DESPACIO(uint64_t) DESPACIO(float) DESPACIO(double)
// clang-format on

} // namespace vn

#define X(tipo, etiqueta, nombre, graba, lee)                                                                          \
    void graba(tipo dato, vnfichero *f) {                                                                              \
        if (f != nullptr) [[likely]]                                                                                   \
            vn::directo::graba_##nombre(dato, f);                                                                      \
        else vn::graba_despacio<tipo>(dato, etiqueta, f);                                                              \
    }                                                                                                                  \
    tipo lee(vnfichero *f) { return f != nullptr ? vn::directo::lee_##nombre(f) : vn::lee_despacio<tipo>(etiqueta, f); }
VN_BIN_ESCALARES(X)
X(double, 'd', double, bin_graba_double, bin_lee_double)
#undef X

void bin_graba_bool(vnbool valor, vnfichero *f) {
    // The byte goes out all the same, so that what follows keeps its place; the save fails.
    if (!AFIRMA_LOGICO(valor)) vn::ficheros::marca_fallo_escritura(f);
    bin_graba_byte(static_cast<uint8_t>(valor), f);
}

vnbool bin_lee_bool(vnfichero *f) {
    const uint8_t valor = bin_lee_byte(f);
    // A damaged truth value is reported and handed over as it was read.
    if (valor > 1) [[unlikely]]
        lc_error_leyendo_fichero(f);
    return valor;
}

void bin_graba_SN(char dato, vnfichero *f) {
    if (!AFIRMA(dato == 'S' || dato == 'N')) vn::ficheros::marca_fallo_escritura(f);
    bin_graba_char(dato, f);
}

char bin_lee_SN(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return 0;
    const char dato = vn::directo::lee_char(f);
    if (dato != 'S' && dato != 'N') lc_error_leyendo_fichero(f);
    return dato;
}

// A value is passed over by reading it, so that its tag is looked at too.
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

// The members that go both ways.
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
TRATOS(VN_TRATA)

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
    // Tags lie between the values, which then cannot go at once.
    if (f->etiquetas_al_escribir) std::for_each_n(datos, n, [=](T dato) { graba(dato, f); });
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

// All are checked first and written at once: pieces would not meet the pages of the file.
template <> void graba_bloque(void (*graba)(double, vnfichero *), const double *datos, uint32_t n, vnfichero *f) {
    if (!f->etiquetas_al_escribir && son_numeros_validos(datos, n)) f_lc_fwrite(datos, sizeof *datos, n, f, VN_AQUI);
    else std::for_each_n(datos, n, [=](double dato) { graba(dato, f); });
}

template <class T> void lee_bloque(T (*lee)(vnfichero *), T *datos, uint32_t n, vnfichero *f) {
    if (f->etiquetas_al_leer) std::generate_n(datos, n, [=] { return lee(f); });
    else f_lc_fread(datos, sizeof(T), n, f, VN_AQUI);
}

} // namespace

void bin_graba_bloque_bool(const vnbool *datos, uint32_t n, vnfichero *f) {
    por_trozos(datos, n, TROZO_LOGICOS, [=](const vnbool *d, uint32_t k) {
        // One by one where tags are due or a value is none: each is then reported as a single one is.
        if (f->etiquetas_al_escribir || std::any_of(d, d + k, [](vnbool v) { return v > 1; })) {
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
        // One report to a piece, however many of its values are none.
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
