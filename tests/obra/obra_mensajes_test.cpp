// What the sample host says in the languages it has texts in.
#include "informe.h"
#include "mensajes.h"
#include "prueba.h"
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
        if (p == "importa" || p == "informa" ||
            (p.find_first_of("[]|0123456789") != std::string::npos && p.find('=') == std::string::npos))
            fijas.insert(p);
    return fijas;
}

} // namespace

// The texts of the host and those of the library meet in one report.
PRUEBA(obra_mensajes, un_informe_habla_un_solo_idioma) {
    const struct {
        int idioma;
        const char *pasaje;
    } filas[] = {
        {1, "Système d'unités: Système international\nUnité d'énergie\u00a0: joule, J\nÉtendue\u00a0: "
            "aucune\nLongueurs et surfaces\u00a0:\n"},
        {2, "Sistema de unidades: Sistema Internacional\nUnidade de energia: joule, J\nExtensão: nenhuma\nComprimentos "
            "e áreas:\n"},
        {3,
         "Sistema d'unitats: Sistema Internacional\nUnitat d'energia: joule, J\nExtensió: cap\nLongituds i àrees:\n"},
        {4, "Sistema di unità: Sistema internazionale\nUnità di energia: joule, J\nEstensione: nessuna\nLunghezze e "
            "aree:\n"},
        {7, "Sistema de unidades: Sistema Internacional\nUnidad de energía: julio, J\nExtensión: ninguna\nLongitudes y "
            "áreas:\n"},
        {9, "Sistema de unidades: Sistema Internacional\nUnidade de enerxía: joule, J\nExtensión: ningunha\nLonxitudes "
            "e áreas:\n"},
        {13, "Einheitensystem: Internationales Einheitensystem\nEnergieeinheit: Joule, J\nAusdehnung: keine\nLängen "
             "und Flächen:\n"},
    };
    obra_leida o;
    vornconf_Internacional_set_sistema_unidades(VORNCONF_SU_INTERNACIONAL);
    vornconf_Internacional_set_sistema_unidades_energia(VORNNORM_UNIDAD_ENERGIA_JULIO);
    for (const auto &f : filas) {
        msidioma_establece_idioma(f.idioma);
        const std::string s = informe_de("x", o);
        EXPECT_NE(s.find(f.pasaje), std::string::npos) << s;
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
    EXPECT_EQ(fijas.size(), 8 + std::size(mensaje::IDIOMAS));
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
            for (size_t i = s.find_first_of(":;"); i != std::string::npos; i = s.find_first_of(":;", i + 1)) {
                const bool aparte = i >= 2 && s.compare(i - 2, 2, "\u00a0") == 0;
                EXPECT_EQ(aparte, idioma == 1) << nombre << ": " << s;
                EXPECT_FALSE(i > 0 && s[i - 1] == ' ') << nombre;
            }
        }
    }
}
