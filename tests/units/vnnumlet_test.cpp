#include "foundation/sistema/vnstdc.h"
#include "palabras.h"
#include "units/vnnumlet.h"
#include <set>

using namespace vn;

namespace {

// Defined while it lives.
class variable {
  public:
    explicit variable(std::string nombre) : nombre_(std::move(nombre)) { vnstdc_putenv((nombre_ + "=1").c_str()); }
    ~variable() { vnstdc_putenv((nombre_ + "=").c_str()); }

  private:
    std::string nombre_;
};

} // namespace

PRUEBA(vnnumlet, cada_idioma_escribe_sus_numeros) {
    const struct {
        int idioma;
        const char *cadena;
        vnbool negativo;
        const char *palabras;
    } filas[] = {
        {ES, "0", CIERTO, "cero"},
        {ES, "1", FALSO, "un"},
        {ES, "002000", FALSO, "dos mil"},
        {ES, "1000000", FALSO, "un millón"},
        {ES, "1000000000", FALSO, "mil millones"},
        {ES, "2001000116", FALSO, "dos mil un millones ciento dieciseis"},
        {ES, "1000000000001", FALSO, "un billón un"},
        {ES_AM, "999999999999999", FALSO,
         "novecientos noventa y nueve billones novecientos noventa y nueve mil novecientos noventa y nueve millones "
         "novecientos noventa y nueve mil novecientos noventa y nueve"},
        {ES, "1234567890123456", FALSO, "ERR desbordamiento"},
        {ES, "2.01", FALSO, "dos con uno"},
        {ES, "0.50", CIERTO, "menos cero con cincuenta"},
        {ES, ".05", FALSO, "cero con cinco"},
        {PT_BR, "1001", FALSO, "mil e um"},
        {PT_BR, "1000500", FALSO, "um milhão e quinhentos"},
        {PT_BR, "2200121", FALSO, "dois milhões e duzentos mil cento e vinte e um"},
        {PT_BR, "1000000000000", FALSO, "um trilhão"},
        {PT, "2000019000000", FALSO, "dois biliões dezanove milhões"},
        {CA, "1522", FALSO, "mil cinc-cents vint-i-dos"},
        {CA, "31.01", FALSO, "trenta-un amb u"},
        {GL, "2022", FALSO, "dous mil vinte e dous"},
        {EN, "42", CIERTO, "minus forty-two"},
        {EN, "1234567", FALSO, "one million two hundred and thirty-four thousand five hundred and sixty-seven"},
        {EN, "2003000000000", FALSO, "two thousand and three billion"},
        {EN, "5000000000000", FALSO, "five thousand billion"},
        {EN, "1234567890123456", FALSO, "ERR overflow"},
        {FR, "99", CIERTO, "moins quatre-vingt-dix-neuf"},
        {FR, "200000080", FALSO, "deux cents millions quatre-vingts"},
        {FR, "1002000001000", FALSO, "un billion deux milliards mille"},
    };
    for (const auto &f : filas) EXPECT_EQ(numero(f.idioma, f.cadena, f.negativo), f.palabras) << f.cadena;
}

PRUEBA(vnnumlet, un_importe_lleva_sus_monedas) {
    const struct {
        int idioma;
        const char *cadena;
        vnbool negativo;
        const char *singular, *plural;
        vnbool femenina;
        const char *centimo, *centimos;
        vnbool centimo_femenino;
        const char *palabras;
    } filas[] = {
        {ES, "0", FALSO, "euro", "euros", FALSO, "c", "cc", FALSO, "cero euros"},
        {ES, "1.01", CIERTO, "euro", "euros", FALSO, "c", "cc", FALSO, "menos un euro con un c"},
        {ES, "0.50", FALSO, "euro", "euros", FALSO, "c", "cc", FALSO, "cincuenta cc"},
        {ES, "0.21", CIERTO, "euro", "euros", FALSO, "c", "cc", CIERTO, "menos veintiuna cc"},
        {ES, "12.50", FALSO, "euro", "euros", FALSO, nullptr, nullptr, FALSO, "doce euros con cincuenta"},
        {ES, "12.50", FALSO, "euro", "euros", FALSO, "c", nullptr, FALSO, "doce euros con cincuenta"},
        {ES, "1000000", FALSO, "euro", "euros", FALSO, nullptr, nullptr, FALSO, "un millón de euros"},
        {ES, "201201521", FALSO, "peseta", "pesetas", CIERTO, nullptr, nullptr, FALSO,
         "doscientos un millones doscientas una mil quinientas veintiuna pesetas"},
        {PT_BR, "1202002", FALSO, "libra", "libras", CIERTO, nullptr, nullptr, FALSO,
         "um milhão duzentas e duas mil e duas libras"},
        {CA, "222.00", FALSO, "pesseta", "pessetes", CIERTO, nullptr, nullptr, FALSO,
         "dues-centes vint-i-dues pessetes"},
        {EN, "1.50", FALSO, "pound", "pounds", FALSO, "penny", "pence", FALSO, "one pound and fifty pence"},
        {FR, "2000000", FALSO, "euro", "euros", FALSO, nullptr, nullptr, FALSO, "deux millions d'euros"},
        {FR, "1000000.80", FALSO, "livre", "livres", CIERTO, "sou", "sous", FALSO,
         "un million de livres et quatre-vingts sous"},
        {FR, "21021", FALSO, "livre", "livres", CIERTO, nullptr, nullptr, FALSO,
         "vingt et un mille vingt et une livres"},
    };
    for (const auto &f : filas) {
        msidioma_establece_idioma(f.idioma);
        EXPECT_EQ(toma_1252(vnnumlet_moneda_en_cifras_a_letra(f.cadena, f.negativo, f.singular, f.plural, f.femenina,
                                                              f.centimo, f.centimos, f.centimo_femenino)),
                  f.palabras);
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
    for (const char *cadena : {"12.", "1.x5", "abc", "12.\xFF\xFE", " -1"})
        EXPECT_EQ(ESPERA_INFORME("vnstdc_isdigit(pStrAux[0])", vnnumlet_numero_en_cifras_a_letra(cadena, FALSO)),
                  nullptr);
    for (const char *cadena : {"12.5", "x7", "0,1 "})
        EXPECT_EQ(ESPERA_INFORME("vnstdc_isdigit(pStrAux[1])", vnnumlet_numero_en_cifras_a_letra(cadena, FALSO)),
                  nullptr);
    for (const char *cadena : {"3.077", "1.234,56", "12.34 "})
        EXPECT_EQ(ESPERA_INFORME("pStrAux[2] == 0", vnnumlet_numero_en_cifras_a_letra(cadena, FALSO)), nullptr);
    for (const char *cadena : {" 12", "-50", "x07"})
        EXPECT_EQ(ESPERA_INFORME("hay_entera || separador == '.' || separador == ','",
                                 vnnumlet_numero_en_cifras_a_letra(cadena, FALSO)),
                  nullptr);
    EXPECT_EQ(numero(ES, ",07") + numero(ES, "12 34"), "cero con sietedoce con treinta y cuatro");
    EXPECT_EQ(numero(ES, std::string(100000, '7')), "ERR desbordamiento");
}

PRUEBA(vnnumlet, un_idioma_sin_palabras_es_un_error_interno_y_se_avisa_en_pruebas) {
    const struct {
        int idioma;
        const char *aviso;
    } filas[] = {{10, "Falta traducir al búlgaro"}, {11, "Falta traducir al rumano"}, {12, "Falta traducir al chino"},
                 {13, "Falta traducir al alemán"},  {4, "Idioma no contemplado"},     {40, "Idioma no contemplado"}};
    for (const bool en_prueba : {false, true}) {
        for (const auto &f : filas) {
            msidioma_establece_idioma(f.idioma);
            const std::unique_ptr<variable> definida(en_prueba ? new variable("ENPRUEBA") : nullptr);
            EXPECT_EQ(vnnumlet_numero_en_cifras_a_letra("1", FALSO), nullptr);
            EXPECT_EQ(toma_informes().size(), 1u);
            EXPECT_EQ(toma_avisos(), en_prueba ? std::vector<std::string>{f.aviso} : std::vector<std::string>{});
        }
    }
    const variable definida("PRUEBA_NUMEROS_INGLES");
    EXPECT_EQ(numero(10, "20"), "twenty");
}
