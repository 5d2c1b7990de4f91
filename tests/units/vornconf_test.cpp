#include "fallos.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/texto/msglocal.h"
#include "plataforma/proceso.h"
#include "propiedades.h"
#include "units/vornconf.h"
#include <array>
#include <filesystem>

using vn::toma;

namespace {

// The file in a directory of the test's, and the record of the process as the file has it.
struct en_directorio {
    explicit en_directorio(const std::string &base = vn::Prueba::directorio())
        : nombre(base + "/VORN/estructa/internac.ini") {
        msidioma_establece_idioma(0); // in the children too
        fichconf_establece_directorio_base(vn::ancho(base).c_str());
        vornconf_par_lee_internacional(nullptr);
    }
    // Other tests of the program find a record that can be.
    ~en_directorio() {
        vornconf_Internacional_set_sistema_unidades(VORNCONF_SU_MKS);
        vornconf_Internacional_set_sistema_unidades_energia(VORNNORM_UNIDAD_ENERGIA_JULIO);
    }
    std::string contenido() const { return vn::lee_fichero(nombre); }
    void pon(const std::string &texto) const { vn::graba_fichero(nombre, texto); }

    const std::string nombre;
};

// In the order of the file's lines.
using numeros = std::array<uint32_t, 7>;
numeros leidos() {
    vornconf_internacional r{};
    vornconf_par_lee_internacional(&r);
    return std::bit_cast<numeros>(r);
}
constexpr numeros EN_ESPANYOL = {47, 8, 10, 4, 3, 1, 0};

void graba(const numeros &v) {
    const auto r = std::bit_cast<vornconf_internacional>(v);
    vornconf_par_graba_internacional(&r);
}
numeros todo(uint32_t n) { return {n, n, n, n, n, n, n}; }

std::string texto_de(const numeros &v) {
    char t[200];
    std::snprintf(t, sizeof t,
                  "[Internacional]\nIdioma=1\nNorma=%d\nNormaAceroConf=%d\nNormaAceroLam=%d\nNormaElec=%d\n"
                  "NormaMadera=%d\nSistema de Unidades=%d\nSistemaUnidadEnergia=%d\n",
                  v[0], v[1], v[2], v[3], v[4], v[5], v[6]);
    return t;
}

} // namespace

PRUEBA(vornconf, sin_fichero_manda_el_idioma) {
    const en_directorio d;
    EXPECT_EQ(leidos(), EN_ESPANYOL);
    EXPECT_FALSE(vn::existe(d.nombre));
    vn::huella h;
    for (int i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) {
        msidioma_establece_idioma(i);
        for (const uint32_t v : leidos()) h << v;
    }
    EXPECT_EQ(leidos(), (numeros{12, 7, 9, 4, 1, 1, 0})); // of the last one
    EXPECT_EQ(h(), 14214542125999415076u);
    // The last language has no number in the file's line.
    EXPECT_EQ(ESPERA_INFORME("idioma_int > 0 && idioma_int <= NUM_IDIOMAS", vornconf_Internacional_idioma()), 0u);
}

PRUEBA(vornconf, el_fichero_tiene_nueve_lineas) {
    const en_directorio d;
    const numeros r{12, 34, 4294967295u, 7, 8, 3, 2};
    graba(r);
    EXPECT_EQ(d.contenido(), texto_de(r)); // the third as -1
    EXPECT_EQ(leidos(), r);
    // The record has them too.
    EXPECT_EQ(vornconf_Internacional_normaHorm() + vornconf_Internacional_normaAceroConf(), 46u);
    EXPECT_EQ(vornconf_es_sistema_unidades_inglesas(), CIERTO);
    EXPECT_EQ(vornconf_Internacional_normaAceroLam(), 4294967295u);
    EXPECT_EQ(vornconf_Internacional_normaMadera(), 8u);
    EXPECT_EQ(vornconf_Internacional_sistema_unidades_energia(), 2u);

    // Another's keys are lost with the next write; one standard goes to the file and not to the record.
    d.pon("; mine\r\n[Internacional]\r\nNorma = 5\r\nOtra=1\r\nSistema de Unidades=2\r\nNormaMadera=0\r\n[Mas]\r\n"
          "Norma=9\r\n");
    EXPECT_EQ(vornconf_lee_norma_hormigon(), 5u);
    vornconf_graba_norma_acero_laminado(77);
    EXPECT_EQ(d.contenido(), texto_de({5, 8, 77, 4, 3, 2, 0}));
    EXPECT_EQ(vornconf_lee_norma_acero_laminado(), 77u);
    EXPECT_EQ(vornconf_Internacional_normaAceroLam(), 4294967295u);
    vornconf_graba_norma_hormigon(78);
    vornconf_graba_norma_acero_conformado(79);
    EXPECT_EQ(vornconf_lee_norma_hormigon() + vornconf_lee_norma_acero_conformado(), 157u);
    EXPECT_EQ(vornconf_lee_norma_madera(), 3u);
    EXPECT_EQ(vornconf_Internacional_sistema_unidades(), 3u);
}

PRUEBA(vornconf, lo_que_se_cambia_para_una_ejecucion) {
    const en_directorio d;
    vornconf_Internacional_set_sistema_unidades(VORNCONF_SU_IMPERIAL);
    vornconf_Internacional_set_sistema_unidades_energia(VORNNORM_UNIDAD_ENERGIA_BTU);
    EXPECT_EQ(vornconf_lee_norma_hormigon(), 47u);
    EXPECT_EQ(vornconf_Internacional_sistema_unidades(), VORNCONF_SU_IMPERIAL);
    for (const uint32_t mal : {0u, 4u})
        ESPERA_INFORME("sistema_unidades == VORNCONF_SU_MKS || sistema_unidades == VORNCONF_SU_INTERNACIONAL || "
                       "sistema_unidades == VORNCONF_SU_IMPERIAL",
                       vornconf_Internacional_set_sistema_unidades(mal));
    ESPERA_INFORME("sistema_unidades_energia == VORNNORM_UNIDAD_ENERGIA_JULIO || sistema_unidades_energia == "
                   "VORNNORM_UNIDAD_ENERGIA_KCAL || sistema_unidades_energia == VORNNORM_UNIDAD_ENERGIA_BTU",
                   vornconf_Internacional_set_sistema_unidades_energia(3));
    EXPECT_EQ(vornconf_es_sistema_unidades_inglesas(), CIERTO);
    EXPECT_EQ(vornconf_Internacional_sistema_unidades_energia(), VORNNORM_UNIDAD_ENERGIA_BTU);
    EXPECT_FALSE(vn::existe(d.nombre));
    EXPECT_EQ(leidos(), EN_ESPANYOL);
    // What the file holds is not judged when it is read.
    d.pon("[Internacional]\nSistema de Unidades=9\n");
    EXPECT_EQ(leidos()[5], 9u);
    vornconf_es_sistema_unidades_inglesas();
    EXPECT_EQ(toma_informes().size(), 1u);
}

// Argument: the base directory. What is saved before anything is asked is loaded from the file: a zero is the default.
HIJO(graba_antes_de_preguntar) {
    msidioma_establece_idioma(0);
    fichconf_establece_directorio_base(vn::ancho(args.at(0)).c_str());
    graba({0, 34, 0, 7, 8, 0, 2});
    return vornconf_Internacional_sistema_unidades() != 1 || vornconf_Internacional_normaHorm() != 47 ||
           vornconf_Internacional_normaAceroConf() != 34;
}

PRUEBA(vornconf, se_crea_solo_si_no_existe) {
    const en_directorio d;
    EXPECT_EQ(vn::proceso("graba_antes_de_preguntar", {directorio()}).espera(60000), 0);
    std::filesystem::remove(d.nombre);
    vornconf_Internacional_set_sistema_unidades(3);
    vornconf_crea_internac_por_defecto_si_no_existe(2);
    EXPECT_EQ(d.contenido(), texto_de({11, 6, 8, 2, 1, 2, 0})); // the language is the active one
    EXPECT_EQ(vornconf_Internacional_sistema_unidades(), 2u);
    EXPECT_EQ(vornconf_Internacional_normaHorm(), 11u);
    d.pon("[Internacional]");
    vornconf_Internacional_set_sistema_unidades(3);
    vornconf_crea_internac_por_defecto_si_no_existe(2);
    EXPECT_EQ(d.contenido(), "[Internacional]");
    EXPECT_EQ(vornconf_Internacional_sistema_unidades(), 3u);
    EXPECT_EQ(leidos(), EN_ESPANYOL);
}

PRUEBA(vornconf, un_fichero_estropeado_da_los_valores_por_defecto) {
    const en_directorio d;
    for (const char *mal : {"", "x[Internacional]\nNorma=1\nNormaMadera=2\nSistema de Unidades=3\n",
                            "[Internacional]\nNorma=abc\nNormaElec=\nSistema de Unidades=0\n"}) {
        d.pon(mal);
        EXPECT_EQ(leidos(), EN_ESPANYOL) << mal;
    }
}

PRUEBA(vornconf, los_textos_en_cada_idioma) {
    constexpr std::array<const char *, 3> SISTEMAS{"M.K.S.", "Sistema Internacional", "Unidades Inglesas"};
    constexpr std::array ENERGIAS{"julio, J", "kilocalor\355a, kcal", "unidad t\xE9rmica brit\xE1nica, Btu"};
    for (uint32_t i = 0; i < 3; ++i) {
        EXPECT_EQ(toma(vornconf_texto_sistema_de_unidades(i + 1)), std::string("Sistema de unidades: ") + SISTEMAS[i]);
        EXPECT_STREQ(vornconf_texto_sistema_unidad_energia(i), ENERGIAS[i]);
    }
    for (const auto &[idioma, mks] : {std::pair{1, "Syst\xE8me d'unit\xE9s: M.K.S."},
                                      {2, "Sistema de unidades: M.K.S. (m.tf.s.)"},
                                      {5, "Sistema de unidades: M.K.S."},
                                      {31, "Uk\263ad jednostek: M.K.S."}}) {
        msidioma_establece_idioma(idioma);
        EXPECT_EQ(toma(vornconf_texto_sistema_de_unidades(VORNCONF_SU_MKS)), mks);
    }
    // Every text of every language stands in the language's ANSI page, and without its id.
    for (int i = 0; i <= 40; ++i) {
        msidioma_establece_idioma(i);
        for (uint32_t k = 0; k < 3; ++k) {
            const std::string t =
                toma(vornconf_texto_sistema_de_unidades(k + 1)) + vornconf_texto_sistema_unidad_energia(k);
            EXPECT_EQ(t.find_first_of("?<>"), std::string::npos) << i << " " << t;
        }
    }
}

// ---------------------------------------------------------------- many programs

GUARDADO(configuracion) {
    msidioma_establece_idioma(0);
    fichconf_establece_directorio_base(vn::ancho(fichero.substr(0, fichero.rfind("/VORN/"))).c_str());
    // Saved is what no report was made of.
    return vn::atrapado([=] { graba(todo(100 + static_cast<uint32_t>(edicion))); });
}

PRUEBA(vornconf, quien_falla_o_muere_en_cualquier_punto_deja_el_viejo_o_el_nuevo) {
    const en_directorio d;
    vn::comprueba_guardado("configuracion", {.carpeta = "VORN/estructa", .fichero = "internac.ini", .informa = false});
}

// Arguments: the base directory, the value that it writes. 0 when all that it read was whole and nothing was reported.
HIJO(reescribe_configuracion) {
    const en_directorio d(args.at(0));
    for (int veces = 0; veces < 5; ++veces) {
        graba(todo(static_cast<uint32_t>(std::stoul(args.at(1)))));
        const auto v = leidos();
        if (v != todo(v[0])) return 3;
    }
    return error_interno_numero_de_informes() == 0 ? 0 : 4;
}

PRUEBA(vornconf, muchos_programas_lo_reescriben) {
    const en_directorio d;
    auto hijos = vn::procesos(60, "reescribe_configuracion", [&](int i) {
        return std::vector{directorio(), std::to_string(100 + i)};
    });
    for (auto &hijo : hijos) EXPECT_EQ(hijo.espera(60000), 0);
    const auto v = leidos();
    EXPECT_EQ(v, todo(v[0]));
    EXPECT_EQ(d.contenido(), texto_de(v));
}
