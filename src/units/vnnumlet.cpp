#define VN_MODULO "vnnumlet (NUCLEOS.DLL)"
#include "units/vnnumlet.h"
#include "foundation/sistema/avisos.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/msglocal.h"
#include "units/vnnumlet_priv.h"
#include <string_view>

namespace vn::numlet {

void blanco(std::string *pszNumLetra) {
    if (!AFIRMA_NO_NULO(pszNumLetra) || pszNumLetra->empty()) return;
    // What follows a hyphen joins it without a blank.
    if (pszNumLetra->back() != ' ' && pszNumLetra->back() != '-') *pszNumLetra += ' ';
}

void pon(std::string *pszNumLetra, const char *palabra) {
    blanco(pszNumLetra);
    *pszNumLetra += palabra;
}

void pon_nombre(std::string *pszNumLetra, const nombres &n, bool uno) {
    if (n.singular != nullptr) pon(pszNumLetra, uno ? n.singular : n.plural);
}

} // namespace vn::numlet

namespace {

using namespace vn::numlet;

constexpr int IDIOMA_INGLES = 8;
constexpr size_t MAXIMO_CIFRAS = 15;

// A language by its index: its engine and the warning that its words are still to come.
struct fila {
    int idioma;
    const motor *m;
    const vnwchar *aviso;
};
constexpr fila IDIOMAS[] = {
    {0, &GENERICO, nullptr},
    {1, &FRANCES, nullptr},
    {2, &GENERICO, nullptr},
    {3, &GENERICO, nullptr},
    {5, &GENERICO, nullptr},
    {6, &GENERICO, nullptr},
    {7, &GENERICO, nullptr},
    {8, &INGLES, nullptr},
    {9, &GENERICO, nullptr},
    {10, &GENERICO, VNU("Falta traducir al búlgaro")},
    {11, &GENERICO, VNU("Falta traducir al rumano")},
    {12, &GENERICO, VNU("Falta traducir al chino")},
    {13, &GENERICO, VNU("Falta traducir al alemán")},
};
constexpr fila LOS_DEMAS = {-1, &GENERICO, VNU("Idioma no contemplado")};

const fila &fila_de(int idioma) {
    for (const fila &f : IDIOMAS)
        if (f.idioma == idioma) return f;
    return LOS_DEMAS;
}

uint32_t numero_de(std::string_view cifras) {
    uint32_t n = 0;
    for (const char c : cifras) n = n * 10 + static_cast<uint32_t>(c - '0');
    return n;
}

// Takes up to `n` digits off the end.
uint32_t quita_del_final(std::string_view &cifras, size_t n) {
    const std::string_view grupo = cifras.substr(cifras.size() - std::min(n, cifras.size()));
    cifras.remove_suffix(grupo.size());
    return numero_de(grupo);
}

int es_cifra(char c) { return vnstdc_isdigit(static_cast<unsigned char>(c)); }

// Reads the fraction: nothing, or a separator and two digits. Further characters, or an odd separator where no whole
// part stands before it, are reported: the words would name another amount.
bool lee_fraccion(const char *pStrAux, bool hay_entera, uint32_t &fraccion) {
    if (*pStrAux == 0) return true;
    const char separador = *pStrAux++;
    if (!AFIRMA_TEXTO(es_cifra(pStrAux[0]), "vnstdc_isdigit(pStrAux[0])")) return false;
    if (!AFIRMA_TEXTO(es_cifra(pStrAux[1]), "vnstdc_isdigit(pStrAux[1])")) return false;
    if (!AFIRMA(pStrAux[2] == 0) || !AFIRMA(hay_entera || separador == '.' || separador == ',')) return false;
    fraccion = numero_de({pStrAux, 2});
    return true;
}

char *en_letra(const char *cadena, vnbool negativo, const moneda &m) {
    // The environment may ask for the words in English, to try them.
    const int idioma = vnstdc_getenv("PRUEBA_NUMEROS_INGLES") != nullptr ? IDIOMA_INGLES : msidioma_dame_idioma();
    const fila &f = fila_de(idioma);
    // Words that are still to come: a warning, and those of the general engine.
    if (f.aviso != nullptr) assert_aviso(f.aviso);
    const char *desbordamiento = f.m->desbordamiento(idioma);
    if (desbordamiento == nullptr) return nullptr;
    size_t n = 0;
    while (es_cifra(cadena[n])) ++n;
    if (n > MAXIMO_CIFRAS) return cad_copia_cadena(desbordamiento);
    importe x{.negativo = negativo == CIERTO};
    std::string_view cifras(cadena, n);
    // From the end: nine digits below the thousands of millions, three of these, three of the billions (10^12).
    x.menor = quita_del_final(cifras, 9);
    x.miles_de_millones = quita_del_final(cifras, 3);
    x.billones = quita_del_final(cifras, 3);
    if (!lee_fraccion(cadena + n, n > 0, x.fraccion)) return nullptr;
    std::string texto;
    f.m->escribe(&texto, x, m, idioma);
    return cad_copia_cadena(texto.c_str());
}

} // namespace

char *vnnumlet_numero_en_cifras_a_letra(const char *cadena, vnbool negativo) {
    if (!AFIRMA_NO_NULO(cadena) || !AFIRMA_LOGICO(negativo)) return nullptr;
    return en_letra(cadena, negativo, {});
}

char *vnnumlet_moneda_en_cifras_a_letra(const char *cadena, vnbool negativo, const char *monedaPrincipalSingular,
                                        const char *monedaPrincipalPlural, vnbool monedaPrincipalFemenina,
                                        const char *monedaFraccionariaSingular, const char *monedaFraccionariaPlural,
                                        vnbool monedaFraccionariaFemenina) {
    if (!AFIRMA_NO_NULO(cadena) || !AFIRMA_LOGICO(negativo)) return nullptr;
    if (!EXIGE(monedaPrincipalSingular, monedaPrincipalPlural)) return nullptr;
    if (!AFIRMA_LOGICO(monedaPrincipalFemenina) || !AFIRMA_LOGICO(monedaFraccionariaFemenina)) return nullptr;
    moneda m{{monedaPrincipalSingular, monedaPrincipalPlural, monedaPrincipalFemenina == CIERTO}, {}};
    if (monedaFraccionariaSingular == nullptr) {
        if (!AFIRMA_TEXTO(monedaFraccionariaPlural == nullptr, "monedaFraccionariaPlural==NULL")) return nullptr;
    } else if (monedaFraccionariaPlural != nullptr) {
        m.fraccion = {monedaFraccionariaSingular, monedaFraccionariaPlural, monedaFraccionariaFemenina == CIERTO};
    }
    return en_letra(cadena, negativo, m);
}
