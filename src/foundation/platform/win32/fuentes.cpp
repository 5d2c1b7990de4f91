#include "foundation/platform/fuentes.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/utf_int.h"
#include <windows.h>

namespace vn::plat {
namespace {

// Of a raster font, which has no units of its own.
constexpr int ALTO_DE_PIXELES = 100;

using contexto = dueno<DeleteDC>;

// A font in use by a context, as long as it lives.
class elegida {
  public:
    elegida(HDC dc, const vnwchar *nombre, int alto)
        : dc_(dc),
          fuente_(CreateFontW(-alto, 0, 0, 0, FW_NORMAL, FALSE, FALSE, FALSE, DEFAULT_CHARSET, OUT_TT_ONLY_PRECIS,
                              CLIP_DEFAULT_PRECIS, DEFAULT_QUALITY, DEFAULT_PITCH, nombre)),
          antes_(fuente_ != nullptr ? SelectObject(dc, fuente_) : nullptr) {}
    ~elegida() {
        if (antes_ != nullptr) SelectObject(dc_, antes_);
        if (fuente_ != nullptr) DeleteObject(fuente_);
    }
    elegida(const elegida &) = delete;
    elegida &operator=(const elegida &) = delete;
    bool hay() const { return antes_ != nullptr; }

  private:
    HDC dc_;
    HFONT fuente_;
    HGDIOBJ antes_;
};

// The height at which a pixel is a unit of the outlines.
int alto_de_diseno(HDC dc, const vnwchar *nombre) {
    const elegida e(dc, nombre, ALTO_DE_PIXELES);
    OUTLINETEXTMETRICW m{};
    m.otmSize = sizeof m;
    return e.hay() && GetOutlineTextMetricsW(dc, sizeof m, &m) != 0 && m.otmEMSquare > 0
               ? static_cast<int>(m.otmEMSquare)
               : ALTO_DE_PIXELES;
}

} // namespace

fuente::fuente(const vnwchar *nombre) : nombre_(nombre) {}

bool fuente::anchos(char32_t primero, pagina_de_anchos &pagina) const {
    const contexto dc(CreateDCW(L"DISPLAY", nullptr, nullptr, nullptr));
    if (dc == nullptr) return false;
    const int alto = alto_de_diseno(dc.get(), nombre_.c_str());
    const elegida e(dc.get(), nombre_.c_str(), alto);
    if (!e.hay()) return false;
    for (size_t i = 0; i < CARACTERES_POR_PAGINA; ++i) {
        vnwchar par[2];
        SIZE t{};
        const auto c = static_cast<uint32_t>(primero + i);
        if (!GetTextExtentPoint32W(dc.get(), par, static_cast<int>(escribe_utf16(c, par)), &t)) return false;
        pagina.ancho[i] = static_cast<double>(t.cx) / alto;
    }
    return true;
}

} // namespace vn::plat
