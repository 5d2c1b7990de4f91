#include "foundation/platform/paginas.h"
#include <cstdio>
#include <unicode/uchar.h>
#include <unicode/ucnv.h>
#include <unicode/unorm2.h>

namespace vn::plat {

uint32_t pagina_ansi_del_sistema() { return 1252; }

decodificador::decodificador(uint32_t pagina) : pagina_(pagina) {
    // Windows pages by their own name, the OEM ones by theirs.
    for (const char *formato : {"windows-%u", "ibm-%u"}) {
        char nombre[32];
        std::snprintf(nombre, sizeof nombre, formato, static_cast<unsigned>(pagina));
        UErrorCode error = U_ZERO_ERROR;
        UConverter *c = ucnv_open(nombre, &error);
        if (U_FAILURE(error)) continue;
        // Bytes that are no character fail instead of becoming a replacement.
        ucnv_setToUCallBack(c, UCNV_TO_U_CALLBACK_STOP, nullptr, nullptr, nullptr, &error);
        propio_ = c;
        bytes_ = static_cast<unsigned>(ucnv_getMaxCharSize(c));
        return;
    }
}

decodificador::~decodificador() {
    if (propio_ != nullptr) ucnv_close(static_cast<UConverter *>(propio_));
}

bool decodificador::unidad(const unsigned char *bytes, int n, char16_t &u) {
    UErrorCode error = U_ZERO_ERROR;
    char16_t salida[4];
    auto *c = static_cast<UConverter *>(propio_);
    // Each question begins without the state of the one before.
    ucnv_reset(c);
    const int32_t hay = ucnv_toUChars(c, salida, 4, reinterpret_cast<const char *>(bytes), n, &error);
    if (U_FAILURE(error) || hay != 1 || salida[0] == 0xFFFD) return false;
    // The micro sign of page 437, which is a Greek letter to this library alone.
    u = pagina_ == 437 && salida[0] == 0x3BC ? u'\u00B5' : salida[0];
    return true;
}

void mapas_de_caja(char16_t *mayusculas, char16_t *minusculas) {
    // Halves of surrogate pairs have no case and stay as they are.
    for (uint32_t c = 0; c < NUM_UNIDADES; ++c) {
        const auto u = static_cast<UChar32>(c);
        mayusculas[c] = U_IS_SURROGATE(u) ? static_cast<char16_t>(c) : static_cast<char16_t>(u_toupper(u));
        minusculas[c] = U_IS_SURROGATE(u) ? static_cast<char16_t>(c) : static_cast<char16_t>(u_tolower(u));
    }
}

size_t descompone(char16_t c, char16_t *unidades, size_t sitio) {
    UErrorCode error = U_ZERO_ERROR;
    const UNormalizer2 *nfd = unorm2_getNFDInstance(&error);
    const int32_t n = unorm2_getDecomposition(nfd, c, unidades, static_cast<int32_t>(sitio), &error);
    return U_FAILURE(error) || n < 0 ? 0 : static_cast<size_t>(n);
}

} // namespace vn::plat
