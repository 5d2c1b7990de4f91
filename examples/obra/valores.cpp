#include "valores.h"
#include "informe.h"
#include "posesion.h"
#include <cmath>
#include <iterator>
#include <nucleos/foundation/texto/unicode.h>
#include <nucleos/time/sysdata.h>
#include <nucleos/units/convers.h>
#include <nucleos/units/vornconf.h>

namespace obra {
namespace {

vnwchar caracter_de(vnwchar *texto) {
    const dueno_ancho t(texto);
    return t ? *t.get() : vnwchar{0};
}

std::string de_ansi(const char *t) {
    const dueno_ancho u(unicode_convierte_ANSI_idioma_a_UNICODE(t, static_cast<uint32_t>(msidioma_dame_idioma())));
    return utf8(u.get());
}

// The least that is seen with so many decimals. What is less than the last is left of a sine or of a difference in a
// drawing, and nothing to its reader.
constexpr double MINIMOS[] = {1, 0.1, 0.01, 0.001, 0.0001, 0.00001, 0.000001};
constexpr int MAXIMO_DECIMALES = std::size(MINIMOS) - 1;

// Decimals at which something of the number is seen: with fewer it would come out in the scientific form.
int con_cifras(double x, int decimales) {
    while (x != 0 && decimales < MAXIMO_DECIMALES && std::fabs(x) < MINIMOS[decimales]) ++decimales;
    return decimales;
}

} // namespace

std::string valor_de(double valor, uint32_t tipo, int decimales) {
    const vnwchar decimal = caracter_de(sysdata_separador_decimal_u());
    vnwchar millares = caracter_de(sysdata_separador_millares_u());
    if (millares == decimal) millares = 0;
    double mostrado = cnv_convierte(CNV_A_MOSTRADO, tipo, valor);
    if (std::fabs(mostrado) < MINIMOS[MAXIMO_DECIMALES]) mostrado = 0;
    const dueno_ancho numero(
        convers_double_a_cadena_u(mostrado, millares, decimal, con_cifras(mostrado, decimales), tipo));
    if (convers_es_longitud_en_sistema_imperial(tipo) == CIERTO) return utf8(numero.get());
    return utf8(numero.get()) + " " + utf8(cnv_strextunids(tipo));
}

std::string longitud(double metros) { return valor_de(metros, CNV_LONGITUD, 3); }
std::string area(double metros_cuadrados) { return valor_de(metros_cuadrados, CNV_AREA, 2); }

std::string sistema_en_uso() {
    const dueno_ansi sistema(vornconf_texto_sistema_de_unidades(vornconf_Internacional_sistema_unidades()));
    return de_ansi(sistema.get());
}

std::string energia_en_uso() {
    return de_ansi(vornconf_texto_sistema_unidad_energia(vornconf_Internacional_sistema_unidades_energia()));
}

} // namespace obra
