// What the sample host says in the languages it has texts in.
#include "filas.h"
#include "informe.h"
#include "mensajes.h"
#include <nucleos/units/vornconf.h>
#include <set>
#include <sstream>

using namespace obra;

namespace {

#define M(nombre, ...) {#nombre, mensaje::nombre},
const std::pair<const char *, vnfunc_mensaje> TODOS[] = {
#include "mensajes.inl"
};
#undef M

// What every language has to write alike: options with their values, commands, numbers.
std::multiset<std::string> palabras_fijas(const std::string &uso) {
    std::multiset<std::string> fijas;
    std::istringstream s(uso);
    for (std::string p; s >> p;)
        if (p == "importa" || p == "informa" || p == "dibuja" || p == "malla" ||
            (p.find_first_of("[]|0123456789") != std::string::npos && p.find('=') == std::string::npos))
            fijas.insert(p.find('.') < p.find("...") ? p.substr(p.find('.')) : p); // of a file its kinds
    return fijas;
}

} // namespace

// The texts of the host and those of the library meet in one report.
PRUEBA(obra_mensajes, un_informe_habla_un_solo_idioma) {
    obra_leida o;
    vornconf_Internacional_set_sistema_unidades(VORNCONF_SU_INTERNACIONAL);
    vornconf_Internacional_set_sistema_unidades_energia(VORNNORM_UNIDAD_ENERGIA_JULIO);
    for (const auto &[idioma, pasaje] : vn::filas<int, std::string>("obra/obra.tsv", "pasajes")) {
        msidioma_establece_idioma(idioma);
        const std::string s = informe_de("x", o);
        EXPECT_NE(s.find(pasaje), std::string::npos) << s;
    }
    // The two of Portugal and Brazil; one of America; one without texts of the host, which the library would speak
    // alone.
    for (const auto &[idioma, dicho] : {std::pair{2, "Seções"}, {5, "Secções"}, {7, "Secciones"}, {18, "Sections"}}) {
        msidioma_establece_idioma(idioma);
        mensaje::habla_un_solo_idioma();
        EXPECT_EQ(msidioma_dame_idioma(), idioma == 18 ? 8 : idioma);
        EXPECT_EQ(di(mensaje::secciones), dicho);
    }
}

PRUEBA(obra_mensajes, cada_idioma_distingue_lo_que_cuenta_y_dice_todas_las_opciones) {
    msidioma_establece_idioma(0);
    const auto fijas = palabras_fijas(di(mensaje::uso));
    EXPECT_EQ(fijas.size(), 21 + std::size(mensaje::IDIOMAS));
    for (const int idioma : mensaje::IDIOMAS) {
        SCOPED_TRACE(idioma);
        msidioma_establece_idioma(idioma);
        EXPECT_EQ(palabras_fijas(di(mensaje::uso)), fijas);
        std::set<std::string> clases;
        for (const vnfunc_mensaje m : {mensaje::lineas, mensaje::circulos, mensaje::arcos, mensaje::elipses,
                                       mensaje::polilineas, mensaje::textos, mensaje::contornos, mensaje::cruces})
            clases.insert(di(m));
        EXPECT_EQ(clases.size(), 8u);
        for (const auto &[nombre, m] : TODOS) {
            const std::string s = di(m);
            EXPECT_TRUE(!s.empty() && s.front() != ' ' && s.back() != ' ' && s.back() != '\n') << nombre;
            // A colon stands apart in French, by a space that does not break.
            for (size_t i = s.find_first_of(":;"); i != s.npos; i = s.find_first_of(":;", i + 1))
                EXPECT_TRUE((i == 0 || s[i - 1] != ' ') && s.substr(0, i).ends_with("\u00a0") == (idioma == 1))
                    << nombre << s;
        }
    }
}
