#include "filas.h"
#include "foundation/sistema/vnstdc.h"
#include "palabras.h"
#include "units/vnnumlet.h"
#include <set>

using namespace vn;

PRUEBA(vnnumlet, cada_idioma_escribe_sus_numeros) {
    for (const auto &[idioma, cadena, negativo, palabras] :
         filas<int, std::string, vnbool, std::string>("units/vnnumlet.tsv", "numeros"))
        EXPECT_EQ(numero(idioma, cadena, negativo), palabras) << cadena;
}

PRUEBA(vnnumlet, un_importe_lleva_sus_monedas) {
    using std::string;
    for (const auto &[idioma, cifras, negativo, moneda, monedas, femenina, centimo, centimos, suyo_femenino, palabras] :
         filas<int, string, vnbool, string, string, vnbool, nulable, nulable, vnbool, string>("units/vnnumlet.tsv",
                                                                                              "importes")) {
        msidioma_establece_idioma(idioma);
        EXPECT_EQ(
            toma_1252(vnnumlet_moneda_en_cifras_a_letra(cifras.c_str(), negativo, moneda.c_str(), monedas.c_str(),
                                                        femenina, centimo.c_str(), centimos.c_str(), suyo_femenino)),
            palabras);
    }
    EXPECT_EQ(ESPERA_INFORME("monedaFraccionariaPlural==NULL",
                             vnnumlet_moneda_en_cifras_a_letra("1", FALSO, "x", "x", FALSO, nullptr, "c", FALSO)),
              nullptr);
}

// No two numbers share their words, whatever their size: a word of the tables that is another's, or a group lost,
// would.
PRUEBA(vnnumlet, cada_numero_tiene_sus_palabras) {
    for (const int idioma : {ES, FR, PT_BR, CA, PT, EN, GL}) {
        std::set<std::string> todas, femeninas;
        size_t n = 0;
        for (uint64_t x = 0; x < 1'000'000'000'000'000; x += x < 2200 ? 1 : x * 7 / 911 + 997, ++n) {
            todas.insert(numero(idioma, std::to_string(x)));
            femeninas.insert(cuenta_de(idioma, std::to_string(x), CIERTO));
        }
        EXPECT_EQ(todas.size(), n) << idioma;
        EXPECT_EQ(femeninas.size(), n) << idioma;
        for (const std::string &t : todas) EXPECT_EQ(t.find("  "), t.npos) << t;
    }
}

PRUEBA(vnnumlet, lo_que_no_es_un_importe_se_informa) {
    msidioma_establece_idioma(ES);
    for (const auto &[cadena, informe] : filas<std::string, std::string>("units/vnnumlet.tsv", "rechazados")) {
        EXPECT_EQ(vnnumlet_numero_en_cifras_a_letra(cadena.c_str(), FALSO), nullptr) << cadena;
        espera_informes({informe}, cadena.c_str(), 0);
    }
    EXPECT_EQ(numero(ES, ",07") + numero(ES, "12 34"), "cero con sietedoce con treinta y cuatro");
    EXPECT_EQ(numero(ES, std::string(100000, '7')), "ERR desbordamiento");
}

PRUEBA(vnnumlet, un_idioma_sin_palabras_es_un_error_interno_y_se_avisa_en_pruebas) {
    const auto quita = al_final([] { vnstdc_putenv("ENPRUEBA="), vnstdc_putenv("PRUEBA_NUMEROS_INGLES="); });
    for (const bool en_prueba : {false, true}) {
        if (en_prueba) vnstdc_putenv("ENPRUEBA=1");
        for (const auto &[idioma, aviso] : filas<int, std::string>("units/vnnumlet.tsv", "sin_palabras")) {
            msidioma_establece_idioma(idioma);
            EXPECT_EQ(vnnumlet_numero_en_cifras_a_letra("1", FALSO), nullptr);
            EXPECT_EQ(toma_informes().size(), 1u);
            EXPECT_EQ(toma_avisos(), en_prueba ? std::vector<std::string>{aviso} : std::vector<std::string>{});
        }
    }
    vnstdc_putenv("PRUEBA_NUMEROS_INGLES=1");
    EXPECT_EQ(numero(10, "20"), "twenty");
}
