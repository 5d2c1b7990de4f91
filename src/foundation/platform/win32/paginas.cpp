#include "foundation/platform/paginas.h"
#include <memory>
#include <windows.h>

namespace vn::plat {

uint32_t pagina_ansi_del_sistema() { return GetACP(); }

decodificador::decodificador(uint32_t pagina) : pagina_(pagina) {
    CPINFO info;
    if (GetCPInfo(pagina, &info)) bytes_ = info.MaxCharSize;
}

decodificador::~decodificador() = default;

bool decodificador::unidad(const unsigned char *bytes, int n, char16_t &u) {
    wchar_t salida[4];
    const int hay =
        MultiByteToWideChar(pagina_, MB_ERR_INVALID_CHARS, reinterpret_cast<const char *>(bytes), n, salida, 4);
    if (hay != 1) return false;
    u = static_cast<char16_t>(salida[0]);
    return true;
}

void mapas_de_caja(char16_t *mayusculas, char16_t *minusculas) {
    struct textos {
        wchar_t origen[NUM_UNIDADES], destino[NUM_UNIDADES];
    };
    // Too large for the stack of a host's thread.
    const auto t = std::make_unique<textos>();
    for (const auto &[bandera, mapa] :
         {std::pair{LCMAP_UPPERCASE, mayusculas}, std::pair{LCMAP_LOWERCASE, minusculas}}) {
        for (size_t c = 0; c < NUM_UNIDADES; ++c)
            // Halves of surrogate pairs have no case; blanks keep their places in the text.
            t->origen[c] = static_cast<wchar_t>(c >= 0xD800 && c < 0xE000 ? ' ' : c);
        const int n = LCMapStringEx(LOCALE_NAME_INVARIANT, static_cast<DWORD>(bandera), t->origen, NUM_UNIDADES,
                                    t->destino, NUM_UNIDADES, nullptr, nullptr, 0);
        for (size_t c = 0; c < NUM_UNIDADES; ++c)
            mapa[c] = n != static_cast<int>(NUM_UNIDADES) || (c >= 0xD800 && c < 0xE000)
                          ? static_cast<char16_t>(c)
                          : static_cast<char16_t>(t->destino[c]);
    }
}

size_t descompone(char16_t c, char16_t *unidades, size_t sitio) {
    const auto w = static_cast<wchar_t>(c);
    wchar_t salida[16];
    const int n = FoldStringW(MAP_COMPOSITE, &w, 1, salida, 16);
    // A character that comes back as itself has no decomposition.
    if (n <= 0 || static_cast<size_t>(n) > sitio || (n == 1 && salida[0] == w)) return 0;
    for (int i = 0; i < n; ++i) unidades[i] = static_cast<char16_t>(salida[i]);
    return static_cast<size_t>(n);
}

} // namespace vn::plat
