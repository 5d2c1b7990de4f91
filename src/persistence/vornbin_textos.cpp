#define VN_MODULO "vornbin (NUCLEOS.DLL)"
#include "foundation/numeros/punto.h"
#include "foundation/numeros/vncopro.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/cad.h"
#include "persistence/vornbin.h"
#include "persistence/vornbin_priv.h"
#include <cfloat>
#include <climits>
#include <cmath>
#include <string>

namespace {

// The number before a text: little-endian, without a tag.
template <class T> T toma_longitud(vnfichero *f) {
    T n = 0;
    vnfichero_toma(f, &n, sizeof n, VN_AQUI);
    return n;
}

// New text of `n` units, empty when that many are not left.
template <class C> vn::propio<C> lee_texto(uint64_t n, vnfichero *f) {
    // A length is believed as far as the file has bytes for it: nothing is allocated for what is not there.
    if (lc_quedan(f, n, sizeof(C)) == FALSO) {
        lc_error_leyendo_fichero(f);
        n = 0;
    }
    vn::propio<C> texto(static_cast<C *>(vornspy_malloc((n + 1) * sizeof(C))));
    vnfichero_toma(f, texto.get(), n * sizeof(C), VN_AQUI);
    texto.get()[n] = 0;
    return texto;
}

char *lee_cadena(vnfichero *f, bool es_ascii) {
    vn::propio<char> texto = lee_texto<char>(toma_longitud<uint16_t>(f), f);
    if (es_ascii) cad_convertir_cadena_ascii_ansi(texto.get());
    return texto.release();
}

char convierte_char(char c) {
    // The conversion takes texts, so the character becomes one.
    char texto[2] = {c, 0};
    cad_convertir_cadena_ascii_ansi(texto);
    return texto[0];
}

// Hands the result of a check on; after a failed one, which has been reported, the save fails.
bool hay_dato(bool bien, vnfichero *f) {
    if (!bien) vn::ficheros::marca_fallo_escritura(f);
    return bien;
}

// Reads the flag before a value that may be null: 1 says that the value follows, 0 that it is null.
bool lee_no_es_null(vnfichero *f) {
    const uint8_t resultado = bin_lee_byte(f);
    if (resultado == 1) return true;
    if (!AFIRMA(resultado == 0)) vn::ficheros::marca_fallo_lectura(f);
    return false;
}

} // namespace

void bin_graba_cadena(const char *buf, vnfichero *f) {
    if (!hay_dato(AFIRMA_NO_NULO(buf), f) || !AFIRMA_NO_NULO(f)) return;
    const size_t l = strlen(buf);
    // A longer one goes cut, with the length that stands before it: the stream stays in step, the save fails.
    hay_dato(AFIRMA(l <= USHRT_MAX), f);
    const auto longitud = static_cast<uint16_t>(l);
    vnfichero_pon(f, &longitud, sizeof longitud, VN_AQUI);
    vnfichero_pon(f, buf, longitud, VN_AQUI);
}

void bin_graba_cadena_unicode(const vnwchar *buf, vnfichero *f) {
    if (!hay_dato(AFIRMA_NO_NULO(buf), f) || !AFIRMA_NO_NULO(f)) return;
    const size_t l = std::char_traits<vnwchar>::length(buf);
    const auto longitud = static_cast<uint32_t>(l);
    vnfichero_pon(f, &longitud, sizeof longitud, VN_AQUI);
    vnfichero_pon(f, buf, l * sizeof *buf, VN_AQUI);
}

void bin_graba_null(const char *buf, vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return;
    bin_graba_byte(buf != nullptr, f);
    if (buf != nullptr) bin_graba_cadena(buf, f);
}

void bin_graba_null_unicode(const vnwchar *buf, vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return;
    bin_graba_byte(buf != nullptr, f);
    if (buf != nullptr) bin_graba_cadena_unicode(buf, f);
}

void bin_graba_double_posible_null(const double *dato, vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return;
    bin_graba_byte(dato != nullptr, f);
    if (dato != nullptr) bin_graba_double(*dato, f);
}

void bin_graba_punto(const Punto2D *pto, vnfichero *f) {
    if (!hay_dato(AFIRMA_NO_NULO(pto), f) || !AFIRMA_NO_NULO(f)) return;
    bin_graba_double(pto->x, f);
    bin_graba_double(pto->y, f);
}

void bin_graba_punto2D(const Punto2D *pto, vnfichero *f) {
    if (!hay_dato(AFIRMA_NO_NULO(pto), f) || !AFIRMA_NO_NULO(f)) return;
    // One tag for both numbers, which are written unchecked: not-a-number too.
    if (f->etiquetas_al_escribir) vnfichero_pon(f, "p", 1, VN_AQUI);
    vnfichero_pon(f, pto, sizeof *pto, VN_AQUI);
}

void bin_graba_buffer(const void *buf, uint32_t tamanyo, vnfichero *f) {
    if (!hay_dato(AFIRMA_NO_NULO(buf), f) || !AFIRMA_NO_NULO(f)) return;
    f_lc_fwrite(buf, 1, tamanyo, f, VN_AQUI);
}

void bin_graba_buffer_u(const vnwchar *buf, uint32_t tamanyo, vnfichero *f) {
    if (!hay_dato(AFIRMA_NO_NULO(buf), f) || !AFIRMA_NO_NULO(f)) return;
    f_lc_fwrite(buf, sizeof *buf, tamanyo, f, VN_AQUI);
}

char *bin_lee_cadena(vnfichero *f) { return AFIRMA_NO_NULO(f) ? lee_cadena(f, false) : nullptr; }

char *bin_lee_cadena_ASCII(vnfichero *f) { return AFIRMA_NO_NULO(f) ? lee_cadena(f, true) : nullptr; }

char *bin_lee_cadena_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii) {
    return AFIRMA_NO_NULO(f) ? lee_cadena(f, version <= version_ascii) : nullptr;
}

vnwchar *bin_lee_cadena_unicode(vnfichero *f) {
    return AFIRMA_NO_NULO(f) ? lee_texto<vnwchar>(toma_longitud<uint32_t>(f), f).release() : nullptr;
}

char *bin_lee_null(vnfichero *f) { return AFIRMA_NO_NULO(f) && lee_no_es_null(f) ? lee_cadena(f, false) : nullptr; }

char *bin_lee_null_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii) {
    return AFIRMA_NO_NULO(f) && lee_no_es_null(f) ? lee_cadena(f, version <= version_ascii) : nullptr;
}

vnwchar *bin_lee_null_unicode(vnfichero *f) {
    return AFIRMA_NO_NULO(f) && lee_no_es_null(f) ? bin_lee_cadena_unicode(f) : nullptr;
}

char bin_lee_char_ASCII(vnfichero *f) { return convierte_char(bin_lee_char(f)); }

char bin_lee_char_ansi_ascii(vnfichero *f, uint16_t version, uint16_t version_ascii) {
    // Files after that version hold ANSI characters as they are.
    return version > version_ascii ? bin_lee_char(f) : bin_lee_char_ASCII(f);
}

void bin_lee_buffer(void *destino, uint32_t tamanyo, vnfichero *f) {
    if (!EXIGE(destino, f)) return;
    f_lc_fread(destino, 1, tamanyo, f, VN_AQUI);
}

void bin_lee_buffer_uchar(uint8_t *destino, uint32_t tamanyo, vnfichero *f) { bin_lee_buffer(destino, tamanyo, f); }

void bin_lee_buffer_u(vnwchar *destino, uint32_t tamanyo, vnfichero *f) {
    if (!EXIGE(destino, f)) return;
    f_lc_fread(destino, sizeof *destino, tamanyo, f, VN_AQUI);
}

void bin_lee_buffer_ascii(char *destino, uint32_t tamanyo, vnfichero *f) {
    // A version that is not above its limit always means the OEM page.
    bin_lee_buffer_ansi_ascii(destino, tamanyo, f, 0, 0);
}

void bin_lee_buffer_ansi_ascii(char *destino, uint32_t tamanyo, vnfichero *f, uint16_t version,
                               uint16_t version_ascii) {
    if (!EXIGE(destino, f)) return;
    f_lc_fread_ansi_ascii(destino, 1, tamanyo, f, version, version_ascii, VN_AQUI);
}

Punto2D *bin_lee_punto(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return nullptr;
    // One statement each: within a call the order of the arguments would be the compiler's.
    const double x = bin_lee_double(f);
    const double y = bin_lee_double(f);
    return creapunto(x, y);
}

Punto2D *bin_lee_punto_float(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return nullptr;
    const float x = bin_lee_float(f);
    const float y = bin_lee_float(f);
    return creapunto(x, y);
}

void bin_lee_punto2D(Punto2D *destino, vnfichero *f) {
    if (!EXIGE(destino, f)) return;
    if (f->etiquetas_al_leer) {
        char etiqueta = 0;
        vnfichero_toma(f, &etiqueta, 1, VN_AQUI);
        // A wrong tag is reported and the point read all the same, as with a scalar.
        if (etiqueta != 'p') lc_error_leyendo_fichero(f);
    }
    vnfichero_toma(f, destino, sizeof *destino, VN_AQUI);
}

namespace {

double *lee_double_posible_null(vnfichero *f) {
    if (!lee_no_es_null(f)) return nullptr;
    const double valor = bin_lee_double(f);
    auto *dato = static_cast<double *>(vornspy_malloc(sizeof(double)));
    *dato = valor;
    return dato;
}

} // namespace

double *bin_lee_double_posible_null(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return nullptr;
    return lee_double_posible_null(f);
}

double bin_lee_double_con_posible_error(vnfichero *f, vnbool *es_incorrecto, vnbool *es_denormal) {
    if (!EXIGE(f, es_incorrecto, es_denormal)) return 0;
    double dato = bin_lee_double(f);
    vncopro_filtra_double_con_posible_error(&dato, es_incorrecto, es_denormal);
    return dato;
}

double *bin_lee_double_posible_null_con_posible_error(vnfichero *f, vnbool *es_incorrecto, vnbool *es_denormal) {
    if (!AFIRMA_NO_NULO(f)) return nullptr;
    vn::propio<double> dato(lee_double_posible_null(f));
    // The outputs are looked at after the read: the stream stands behind the value even where one is missing.
    if (!EXIGE(es_incorrecto, es_denormal)) return dato.release();
    *es_incorrecto = *es_denormal = FALSO;
    if (dato != nullptr) vncopro_filtra_double_con_posible_error(dato.get(), es_incorrecto, es_denormal);
    return dato.release();
}

Punto2D *bin_lee_punto_con_posible_error(vnfichero *f, vnbool *es_incorrecto, vnbool *es_denormal) {
    if (!EXIGE(f, es_incorrecto, es_denormal)) return nullptr;
    vnbool x_incorrecto = FALSO, x_denormal = FALSO;
    const double x = bin_lee_double_con_posible_error(f, &x_incorrecto, &x_denormal);
    const double y = bin_lee_double_con_posible_error(f, es_incorrecto, es_denormal);
    // A fault of one coordinate is a fault of the point.
    *es_incorrecto |= x_incorrecto;
    *es_denormal |= x_denormal;
    return creapunto(x, y);
}

float bin_lee_float_con_posible_error(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return 0;
    const float dato = bin_lee_float(f);
    const double dato_temporal = dato;
    AFIRMA_TEXTO(std::fabs(dato_temporal) <= FLT_MAX, "vnstdc_fabs(dato_temporal) <= FLT_MAX");
    // Below the least normal float the caller is given a zero.
    if (std::fabs(dato_temporal) < 1.1754943508222875e-38) {
        vncopro_inicializa_coprocesador_activando_excepciones_coma_flotante();
        return 0;
    }
    return dato;
}
