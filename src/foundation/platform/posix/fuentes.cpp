#include "foundation/platform/fuentes.h"
#include "foundation/platform/posix/ruta.h"
#include "foundation/suelo/dueno.hpp"
#include <fontconfig/fontconfig.h>
#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_ADVANCES_H

namespace vn::plat {

fuente::fuente(const vnwchar *nombre) {
    // A configuration of its own: the process's is the host's to change.
    const dueno<FcConfigDestroy> config(FcInitLoadConfigAndFonts());
    const dueno<FcPatternDestroy> pedida(FcPatternCreate());
    if (config == nullptr || pedida == nullptr) return;
    FcPatternAddString(pedida.get(), FC_FAMILY, reinterpret_cast<const FcChar8 *>(bytes_de(nombre).c_str()));
    FcPatternAddBool(pedida.get(), FC_SCALABLE, FcTrue);
    FcConfigSubstitute(config.get(), pedida.get(), FcMatchPattern);
    FcDefaultSubstitute(pedida.get());
    FcResult resultado = FcResultNoMatch;
    const dueno<FcPatternDestroy> hallada(FcFontMatch(config.get(), pedida.get(), &resultado));
    FcChar8 *fichero = nullptr;
    int cara = 0;
    if (hallada == nullptr || FcPatternGetString(hallada.get(), FC_FILE, 0, &fichero) != FcResultMatch) return;
    FcPatternGetInteger(hallada.get(), FC_INDEX, 0, &cara);
    nombre_ = ruta_ancha(reinterpret_cast<const char *>(fichero));
    cara_ = cara;
}

bool fuente::anchos(char32_t primero, pagina_de_anchos &pagina) const {
    if (nombre_.empty()) return false;
    FT_Library l = nullptr;
    if (FT_Init_FreeType(&l) != 0) return false;
    const dueno<FT_Done_FreeType> biblioteca(l);
    FT_Face f = nullptr;
    if (FT_New_Face(l, bytes_de(nombre_).c_str(), cara_, &f) != 0) return false;
    const dueno<FT_Done_Face> cara(f);
    if (f->units_per_EM == 0) return false;
    FT_Select_Charmap(f, FT_ENCODING_UNICODE);
    for (size_t i = 0; i < CARACTERES_POR_PAGINA; ++i) {
        // Glyph 0 stands for what the font does not have.
        FT_Fixed avance = 0;
        FT_Get_Advance(f, FT_Get_Char_Index(f, primero + i), FT_LOAD_NO_SCALE, &avance);
        pagina.ancho[i] = static_cast<double>(avance) / f->units_per_EM;
    }
    return true;
}

} // namespace vn::plat
