#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_cadenas.h"

#include "foundation/ficheros/fichmem.h"
#include "foundation/suelo/utf_int.h"
#include "foundation/texto/unicode.h"
#include "persistence/vornsave_priv.h"
#include <algorithm>

using namespace vn;

namespace {

// The largest piece in which a memory file goes.
constexpr uint32_t i_TAMANO_TROZO_FICHMEM = 65534;

// Half of a surrogate pair that stands alone has no form in UTF-8.
bool esta_bien_formado(std::basic_string_view<vnwchar> s) {
    for (size_t i = 0; i < s.size();) {
        const uint32_t c = lee_utf16(s, i);
        if (es_alto(c) || es_bajo(c)) return false;
    }
    return true;
}

char *lee_cadena_de(vornsave *d, bool ansi) { return ansi ? lee<LEER(cadena)>(d) : lee<LEER(cadena_ASCII)>(d); }

} // namespace

// ---- ANSI texts

void vornsave_graba_cadena(const char *valor, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, valor)) return;
    graba<GRABAR(cadena), CON_PROGRESO>(vornsave_datos, valor);
}

char *vornsave_lee_cadena(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return nullptr;
    return vornsave_datos->ANSI == CIERTO ? lee<LEER(cadena), CON_PROGRESO>(vornsave_datos)
                                          : lee<LEER(cadena_ASCII), CON_PROGRESO>(vornsave_datos);
}

void vornsave_salta_cadena(vornsave *vornsave_datos) { const dueno_cadena texto(vornsave_lee_cadena(vornsave_datos)); }

char *vornsave_lee_cadena_ANSI_ASCII(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii) {
    return lee_cadena_de(vornsave_datos, version > version_ascii);
}

char *vornsave_lee_cadena_ascii(vornsave *vornsave_datos) { return lee_cadena_de(vornsave_datos, false); }

void vornsave_graba_cadena_campo(const char *valor, const char *campo, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, valor, campo)) return;
    graba<GRABAR(cadena_campo)>(vornsave_datos, valor, campo);
}

char *vornsave_lee_cadena_campo(vornsave *vornsave_datos, const char *campo) {
    if (!EXIGE(vornsave_datos, campo)) return nullptr;
    AFIRMA(vornsave_datos->ANSI == CIERTO); // no file of the OEM times has this form
    return lee<LEER(cadena_campo)>(vornsave_datos, campo);
}

void vornsave_salta_cadena_campo(vornsave *vornsave_datos, const char *campo) {
    const dueno_cadena texto(vornsave_lee_cadena_campo(vornsave_datos, campo));
}

// ---- Wide texts

void vornsave_graba_cadena_unicode(const vnwchar *valor, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, valor)) return;
    graba<GRABAR(cadena_unicode), CON_PROGRESO>(vornsave_datos, valor);
}

vnwchar *vornsave_lee_cadena_unicode(vornsave *vornsave_datos) {
    return lee<LEER(cadena_unicode), CON_PROGRESO>(vornsave_datos);
}

void vornsave_salta_cadena_unicode(vornsave *vornsave_datos) {
    const dueno_cadena_u texto(vornsave_lee_cadena_unicode(vornsave_datos));
}

vnwchar *vornsave_lee_cadena_ANSI_a_unicode(vornsave *vornsave_datos) {
    const dueno_cadena texto(vornsave_lee_cadena(vornsave_datos));
    return texto != nullptr ? unicode_convierte_ANSI_a_UNICODE(texto.get()) : nullptr;
}

void vornsave_graba_cadena_UTF8(const vnwchar *texto, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, texto)) return;
    if (!puede_grabar<GRABAR(cadena)>(vornsave_datos)) return;
    // Reported, and saved all the same with what the conversion makes of it.
    AFIRMA_TEXTO(esta_bien_formado(texto), "vornsave: el texto tiene medios caracteres");
    const dueno_cadena utf8(unicode_convierte_UNICODE_a_UTF8(texto));
    vornsave_graba_cadena(utf8.get(), vornsave_datos);
}

vnwchar *vornsave_lee_cadena_UTF8(vornsave *vornsave_datos) {
    const dueno_cadena utf8(vornsave_lee_cadena(vornsave_datos));
    return utf8 != nullptr ? unicode_convierte_UTF8_a_UNICODE(utf8.get()) : nullptr;
}

// ---- Bytes

void vornsave_graba_cadena_como_buffer(const char *texto, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, texto)) return;
    if (!puede_grabar<GRABAR(ulong), GRABAR(buffer)>(vornsave_datos)) return;
    const uint32_t longitud = cad_longitud_cadena(texto);
    graba<GRABAR(ulong)>(vornsave_datos, longitud);
    if (longitud > 0) graba<GRABAR(buffer)>(vornsave_datos, static_cast<const void *>(texto), longitud);
}

char *vornsave_lee_cadena_como_buffer(vornsave *vornsave_datos) {
    if (!puede_leer<LEER(ulong), LEER(buffer)>(vornsave_datos)) return nullptr;
    uint32_t longitud = lee<LEER(ulong)>(vornsave_datos);
    if (longitud == 0) return cad_copia_cadena(""); // no bytes were written, not even none
    return reinterpret_cast<char *>(lee_bytes(*vornsave_datos, longitud, UINT32_MAX).release());
}

void vornsave_graba_buffer(const void *datos_buffer, uint32_t tamanyo, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, datos_buffer)) return;
    graba<GRABAR(buffer), CON_PROGRESO>(vornsave_datos, datos_buffer, tamanyo);
}

uint8_t *vornsave_lee_buffer(uint32_t tamanyo, vornsave *vornsave_datos) {
    if (!puede_leer<LEER(buffer)>(vornsave_datos)) return nullptr;
    uint32_t leidos = tamanyo;
    propio<uint8_t> bytes = lee_bytes(*vornsave_datos, leidos, UINT32_MAX);
    return leidos == tamanyo ? bytes.release() : nullptr; // the caller takes it for as long as was asked
}

void vornsave_salta_buffer(uint32_t tamanyo, vornsave *vornsave_datos) {
    if (puede_leer<LEER(buffer)>(vornsave_datos)) lee_bytes(*vornsave_datos, tamanyo, UINT32_MAX);
}

void vornsave_graba_fichmem(const fichmem *fichero, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, fichero)) return;
    if (!puede_grabar<GRABAR(ulong), GRABAR(buffer)>(vornsave_datos)) return;
    graba<GRABAR(ulong)>(vornsave_datos, fichero->longitud);
    uint32_t n = 0;
    // In pieces of the size in which the reader takes them.
    for (uint32_t hechos = 0; hechos < fichero->longitud; hechos += n) {
        n = std::min(i_TAMANO_TROZO_FICHMEM, fichero->longitud - hechos);
        graba<GRABAR(buffer)>(vornsave_datos, static_cast<const void *>(fichero->datos + hechos), n);
    }
}

fichmem *vornsave_lee_fichmem(vornsave *vornsave_datos) {
    if (!puede_leer<LEER(ulong), LEER(buffer)>(vornsave_datos)) return nullptr;
    progreso_al_leer(vornsave_datos);
    uint32_t longitud = lee<LEER(ulong)>(vornsave_datos);
    propio<uint8_t> bytes;
    if (longitud > 0) bytes = lee_bytes(*vornsave_datos, longitud, i_TAMANO_TROZO_FICHMEM);
    if (longitud == 0) return fichmem_crea32(nullptr, 0);
    // The bytes become those of the file without a copy.
    unsigned char *datos = bytes.get();
    fichmem *fichero = fichmem_crea_original32(&datos, longitud);
    static_cast<void>(bytes.release());
    return fichero;
}
