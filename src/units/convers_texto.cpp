#define VN_MODULO "convers (NUCLEOS.DLL)"
#include "units/convers_texto.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "units/convers_priv.h"
#include "units/vornnum_priv.h"
#include <algorithm>
#include <type_traits>

using namespace vn;

namespace {

// A length in feet and inches, which no format applies to: the road of every text under the imperial system.
template <class C> C *texto_imperial(double valor, const vista_convers &v, const C *cabecera = nullptr) {
    if (!AFIRMA_TEXTO(v.es_longitud_imperial(), "convers_es_longitud_en_sistema_imperial(tipovalor) == CIERTO"))
        return nullptr;
    texto_numero<C> t;
    if (!pon_longitud(t, v.a_mostrado(valor), v.formato, v.denominador())) return nullptr;
    // Only the wide family has headings.
    if constexpr (std::is_same_v<C, vnwchar>)
        if (cabecera != nullptr)
            return copiaforu_formatea(VNU("%s: %.*s"), cabecera, static_cast<int>(t.largo()), t.letras());
    return texto_nuevo(t);
}

// `formatea` makes the text of the value as it is shown, or of the value and its unit.
template <class C, class F>
C *texto_del_valor(double valor, uint32_t tipovalor, F formatea, const C *cabecera = nullptr) {
    const vista_convers v(tipovalor);
    if (!v.es_tipo) return nullptr;
    if (v.es_longitud_imperial()) return texto_imperial<C>(valor, v, cabecera);
    // The arguments that `formatea` takes tell the two kinds apart.
    if constexpr (std::is_invocable_v<F, double>) return formatea(v.a_mostrado(valor));
    else return formatea(v.a_mostrado(valor), v.unidad);
}

template <class F> vnwchar *texto_con_cabecera(const vnwchar *cabecera, double valor, uint32_t tipovalor, F formatea) {
    return AFIRMA_NO_NULO(cabecera) ? texto_del_valor<vnwchar>(valor, tipovalor, formatea, cabecera) : nullptr;
}

// A number of decimals as the formats take it; beyond a million they show a million.
int precision_de_formato(uint32_t n_decimales) { return static_cast<int>(std::min<uint32_t>(n_decimales, INT32_MAX)); }

// Rounded first, so that "%g" has no further decimals to show.
double con_decimales(double mostrado, uint32_t decimales) {
    return prec_redondea_numero_decimales(mostrado, decimales);
}

} // namespace

// ---------------------------------------------------------------- the family, a member a line: name and format

#define TEXTO(nombre, nombre_u, formato)                                                                               \
    char *nombre(double valor, uint32_t tipovalor) {                                                                   \
        return texto_del_valor<char>(valor, tipovalor, [](double v) { return cad_formatea(formato, v); });             \
    }                                                                                                                  \
    vnwchar *nombre_u(double valor, uint32_t tipovalor) {                                                              \
        return texto_del_valor<vnwchar>(valor, tipovalor,                                                              \
                                        [](double v) { return copiaforu_formatea(VNU(formato), v); });                 \
    }
#define CON_UNIDADES(nombre, formato)                                                                                  \
    vnwchar *nombre(double valor, uint32_t tipovalor) {                                                                \
        return texto_del_valor<vnwchar>(valor, tipovalor, [](double v, const vnwchar *unidad) {                        \
            return copiaforu_formatea(VNU(formato), v, unidad);                                                        \
        });                                                                                                            \
    }
#define CON_CABECERA(nombre, formato)                                                                                  \
    vnwchar *nombre(const vnwchar *cabecera, double valor, uint32_t tipovalor) {                                       \
        return texto_con_cabecera(cabecera, valor, tipovalor, [=](double v, const vnwchar *unidad) {                   \
            return copiaforu_formatea(VNU(formato), cabecera, v, unidad);                                              \
        });                                                                                                            \
    }

// clang-format off
TEXTO(convers_texto, convers_texto_u, "%g")
TEXTO(convers_texto_un_decimal, convers_texto_un_decimal_u, "%.1lf")
TEXTO(convers_texto_dos_decimales, convers_texto_dos_decimales_u, "%.2lf")
TEXTO(convers_texto_tres_decimales, convers_texto_tres_decimales_u, "%.3lf")
TEXTO(convers_texto_sin_decimales, convers_texto_sin_decimales_u, "%.0lf")

CON_UNIDADES(convers_texto_con_unidades, "%g %s")
CON_UNIDADES(convers_texto_con_unidades_un_decimal, "%.1lf %s")
CON_UNIDADES(convers_texto_con_unidades_dos_decimales, "%.2lf %s")
CON_UNIDADES(convers_texto_con_unidades_tres_decimales, "%.3lf %s")
CON_UNIDADES(convers_texto_con_unidades_sin_decimales, "%.0lf %s")

CON_CABECERA(convers_texto_con_cabecera_y_unidades, "%s: %g %s")
CON_CABECERA(convers_texto_con_cabecera_y_unidades_un_decimal, "%s: %.1lf %s")
CON_CABECERA(convers_texto_con_cabecera_y_unidades_dos_decimales, "%s: %.2lf %s")
CON_CABECERA(convers_texto_con_cabecera_y_unidades_tres_decimales, "%s: %.3lf %s")
CON_CABECERA(convers_texto_con_cabecera_y_unidades_cuatro_decimales, "%s: %.4lf %s")
CON_CABECERA(convers_texto_con_cabecera_y_unidades_seis_decimales, "%s: %.6lf %s")
CON_CABECERA(convers_texto_con_cabecera_y_unidades_sin_decimales, "%s: %.0lf %s")
// clang-format on

// ---------------------------------------------------------------- the members that are told the decimals

char *convers_texto_n_decimales(double valor, uint32_t tipovalor, uint32_t n_decimales) {
    return texto_del_valor<char>(valor, tipovalor,
                                 [=](double v) { return cad_formatea("%.*lf", precision_de_formato(n_decimales), v); });
}

vnwchar *convers_texto_n_decimales_u(double valor, uint32_t tipovalor, uint32_t n_decimales) {
    return texto_del_valor<vnwchar>(valor, tipovalor, [=](double v) {
        return copiaforu_formatea(VNU("%.*lf"), precision_de_formato(n_decimales), v);
    });
}

char *convers_texto_max_n_decimales(double valor, uint32_t tipovalor, uint32_t decimales) {
    if (!AFIRMA(decimales < 256)) return nullptr;
    return texto_del_valor<char>(valor, tipovalor,
                                 [=](double v) { return cad_formatea("%g", con_decimales(v, decimales)); });
}

vnwchar *convers_texto_max_n_decimales_u(double valor, uint32_t tipovalor, uint32_t decimales) {
    if (!AFIRMA(decimales < 256)) return nullptr;
    return texto_del_valor<vnwchar>(
        valor, tipovalor, [=](double v) { return copiaforu_formatea(VNU("%g"), con_decimales(v, decimales)); });
}

vnwchar *convers_texto_con_unidades_n_decimales(double valor, uint32_t tipovalor, uint32_t n_decimales) {
    return texto_del_valor<vnwchar>(valor, tipovalor, [=](double v, const vnwchar *unidad) {
        return copiaforu_formatea(VNU("%.*lf %s"), precision_de_formato(n_decimales), v, unidad);
    });
}

vnwchar *convers_texto_con_unidades_max_n_decimales(double valor, uint32_t tipovalor, uint32_t decimales) {
    if (!AFIRMA(decimales < 256)) return nullptr;
    return texto_del_valor<vnwchar>(valor, tipovalor, [=](double v, const vnwchar *unidad) {
        return copiaforu_formatea(VNU("%g %s"), con_decimales(v, decimales), unidad);
    });
}

vnwchar *convers_texto_con_cabecera_y_unidades_n_decimales(const vnwchar *cabecera, double valor, uint32_t tipovalor,
                                                           uint32_t n_decimales) {
    return texto_con_cabecera(cabecera, valor, tipovalor, [=](double v, const vnwchar *unidad) {
        return copiaforu_formatea(VNU("%s: %.*lf %s"), cabecera, precision_de_formato(n_decimales), v, unidad);
    });
}

vnwchar *convers_texto_con_cabecera_y_unidades_max_tres_decimales(const vnwchar *cabecera, double valor,
                                                                  uint32_t tipovalor) {
    return texto_con_cabecera(cabecera, valor, tipovalor, [=](double v, const vnwchar *unidad) {
        return copiaforu_formatea(VNU("%s: %g %s"), cabecera, con_decimales(v, 3), unidad);
    });
}

vnwchar *convers_texto_ex(const vnwchar *cabecera, double valor, uint32_t tipovalor, uint32_t decimales,
                          vnbool es_maximo, vnbool con_unidades) {
    const vista_convers vista(tipovalor);
    if (!vista.es_tipo || !AFIRMA(decimales < 256)) return nullptr;
    if (!AFIRMA_LOGICO(es_maximo) || !AFIRMA_LOGICO(con_unidades)) return nullptr;
    // Feet and inches have fractions of their own: neither decimals nor unit apply.
    if (vista.es_longitud_imperial()) return texto_imperial(valor, vista, cabecera);
    const double v = con_decimales(vista.a_mostrado(valor), decimales);
    // Heading, its separator, blank, unit: each an empty text where it is absent.
    const bool unidad = con_unidades == CIERTO && tipovalor != CNV_NO_CONVERSION;
    const vnwchar *const cabeza = cabecera != nullptr ? cabecera : VNU("");
    const vnwchar *const separa = cabecera != nullptr ? VNU(": ") : VNU("");
    const vnwchar *const blanco = unidad ? VNU(" ") : VNU("");
    const vnwchar *const texto = unidad ? vista.unidad : VNU("");
    if (es_maximo == CIERTO) return copiaforu_formatea(VNU("%s%s%g%s%s"), cabeza, separa, v, blanco, texto);
    return copiaforu_formatea(VNU("%s%s%.*lf%s%s"), cabeza, separa, static_cast<int>(decimales), v, blanco, texto);
}

// ---------------------------------------------------------------- number text in the type's entry format

vnbool convers_dameNumeroDeCadena(const char *cadena, double *valor, uint32_t tipovalor) {
    if (valor != nullptr) *valor = 0;
    if (!EXIGE(cadena, valor)) return FALSO;
    const vista_convers v(tipovalor);
    return v.es_tipo ? vornnum_dameNumeroDeCadena(cadena, valor, v.formato) : FALSO;
}

vnbool convers_dameNumeroDeCadena_u(const vnwchar *cadena, double *valor, uint32_t tipovalor) {
    if (valor != nullptr) *valor = 0;
    if (!EXIGE(cadena, valor)) return FALSO;
    const vista_convers v(tipovalor);
    return v.es_tipo ? vornnum_dameNumeroDeCadena_u(cadena, valor, v.formato) : FALSO;
}

vnbool convers_dameNumeroDeCadenaConDecimales(const char *cadena, double *valor, char sep_millares, char sep_decimales,
                                              uint32_t tipovalor) {
    if (valor != nullptr) *valor = 0;
    if (!EXIGE(cadena, valor)) return FALSO;
    const vista_convers v(tipovalor);
    return v.es_tipo ? vornnum_dameNumeroDeCadenaConDecimales(cadena, valor, sep_millares, sep_decimales, v.formato)
                     : FALSO;
}

vnbool convers_dameNumeroDeCadenaConDecimales_u(const vnwchar *cadena, double *valor, vnwchar sep_millares,
                                                vnwchar sep_decimales, uint32_t tipovalor) {
    if (valor != nullptr) *valor = 0;
    if (!EXIGE(cadena, valor)) return FALSO;
    const vista_convers v(tipovalor);
    return v.es_tipo ? vornnum_dameNumeroDeCadenaConDecimales_u(cadena, valor, sep_millares, sep_decimales, v.formato)
                     : FALSO;
}

char *convers_double_a_cadena(double valor, char sep_millares, char sep_decimales, int32_t decimales,
                              uint32_t tipovalor) {
    const vista_convers v(tipovalor);
    return v.es_tipo
               ? vornnum_double_a_cadena(valor, sep_millares, sep_decimales, decimales, v.formato, v.denominador())
               : nullptr;
}

vnwchar *convers_double_a_cadena_u(double valor, vnwchar sep_millares, vnwchar sep_decimales, int32_t decimales,
                                   uint32_t tipovalor) {
    const vista_convers v(tipovalor);
    return v.es_tipo
               ? vornnum_double_a_cadena_u(valor, sep_millares, sep_decimales, decimales, v.formato, v.denominador())
               : nullptr;
}
