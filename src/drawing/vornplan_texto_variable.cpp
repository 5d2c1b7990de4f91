#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_texto_variable.h"
#include "drawing/mascaras_priv.h"
#include "drawing/texto_priv.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/widestr.h"
#include <charconv>
#include <climits>
#include <optional>
#include <string_view>

using namespace vn;

namespace {

using cadena = std::basic_string<vnwchar>;
using tabla_de_textos = ::textoVar;
using valores = ::totales;

constexpr uint32_t MAX_ANCHO = 99;

bool es_cifra(vnwchar c) { return c >= VNU('0') && c <= VNU('9'); }
size_t pasa_cifras(vista_u t, size_t i) {
    while (i < t.size() && es_cifra(t[i])) ++i;
    return i;
}
// Held at what no host counts to.
int64_t numero_de(vista_u cifras) {
    int64_t n = 0;
    for (const vnwchar c : cifras) n = std::min<int64_t>(n * 10 + (c - VNU('0')), int64_t{1} << 53);
    return n;
}
cadena texto_de(int64_t n) {
    char cifras[24];
    return cadena(cifras, std::to_chars(cifras, cifras + sizeof cifras, n).ptr);
}

// ---- The format of a mask

// The end of the conversion of a number that begins at `i`, the place of a %; 0 if it is none.
size_t fin_de_conversion(vista_u t, size_t i) {
    const auto lee = [&](size_t de) {
        const size_t a = pasa_cifras(t, de);
        return numero_de(t.substr(de, a - de)) <= MAX_ANCHO ? a : vista_u::npos;
    };
    i = std::min(t.find_first_not_of(VNU("-+ #0"), i + 1), t.size());
    i = lee(i);
    if (i < t.size() && t[i] == VNU('.')) i = lee(i + 1);
    return i < t.size() && vista_u(VNU("efgEFG")).find(t[i]) != vista_u::npos ? i + 1 : 0;
}

cadena formatea(vista_u formato, double valor) {
    cadena r;
    bool hecho = false;
    for (size_t i = 0; i < formato.size();) {
        const size_t fin = formato[i] == VNU('%') ? fin_de_conversion(formato, i) : 0;
        if (formato[i] == VNU('%') && formato.substr(i + 1, 1) == VNU("%")) {
            r += VNU('%');
            i += 2;
        } else if (fin != 0 && !hecho) {
            const texto_u t(copiaforu_nousar_formatea(cadena(formato.substr(i, fin - i)).c_str(), valor));
            r += t.get();
            i = fin;
            hecho = true;
        } else {
            if (formato[i] == VNU('%')) static_cast<void>(AFIRMA_DEFECTO());
            r += formato[i++];
        }
    }
    return r;
}

// ---- Masks

// What stands for a mask, without its brackets: nothing after a report.
std::optional<cadena> valor_de_mascara(vista_u textoOrigen, const valores *totales, int32_t cuantos_mas) {
    const size_t ultimo = textoOrigen.size();
    const bool es_total = textoOrigen.starts_with(VNU('E'));
    size_t i = pasa_cifras(textoOrigen, es_total);
    const int64_t numero = numero_de(textoOrigen.substr(es_total, i - es_total));
    const bool sin_cifras = i == (es_total ? 1u : 0u);
    if (!es_total) {
        if (!AFIRMA_TEXTO(!sin_cifras && i == ultimo, "textoOrigen[i] >= '0' && textoOrigen[i] <= '9'")) return {};
        return texto_de(numero + cuantos_mas);
    }
    if (!AFIRMA(i < ultimo) || !AFIRMA_TEXTO(!sin_cifras && textoOrigen[i] == VNU('M'), "textoOrigen[i] == 'M'"))
        return {};
    double valor = 0.;
    if (totales != nullptr) {
        if (!AFIRMA(numero < totales->numTotales) || !EXIGE(totales->total)) return {};
        valor = totales->total[numero];
    }
    return formatea(textoOrigen.substr(i + 1), valor);
}

std::optional<cadena> con_mascaras_reemplazadas(vista_u texto, const valores *totales, int32_t numero) {
    cadena r;
    const mascaras m = recorre_mascaras(
        texto,
        [](ptrdiff_t primero, ptrdiff_t ultimo) {
            return primero == -1 || AFIRMA_TEXTO(ultimo > primero, "ultimo > primero");
        },
        [&](vnwchar c) { r += c; },
        [&](vista_u mascara) {
            const auto v = valor_de_mascara(mascara, totales, numero);
            if (v) r += *v;
            return v.has_value();
        });
    return m == mascaras::mal ? std::nullopt : std::optional(std::move(r));
}

// ---- Names

// One past the last when it is not there.
uint32_t busca_nombre(const tabla_de_textos &t, const vnwchar *nombre) {
    uint32_t i = 0;
    while (i < t.numIndices && !(t.indiceTexto[i].nombre != nullptr &&
                                 widestr_cadenas_iguales_may_o_min(t.indiceTexto[i].nombre, nombre) == CIERTO))
        ++i;
    return i;
}

// The text of a name of the table; null after a report.
vnwchar *texto_de_nombre(const vnwchar *texto, int32_t familiaTotal, const tabla_de_textos *textoVar, double alto,
                         double *longitud) {
    if (!AFIRMA(familiaTotal != 0) || !(textoVar->numIndices == 0 || EXIGE(textoVar->indiceTexto))) return nullptr;
    const uint32_t indtexto = busca_nombre(*textoVar, texto + 1);
    if (indtexto == textoVar->numIndices) return widestr_copia(texto);
    const textoVar_indice &entrada = textoVar->indiceTexto[indtexto];
    uint32_t cual = VPLAN_SIN_TEXTO;
    if (entrada.por_familia == CIERTO) {
        if (familiaTotal == -1) return widestr_copia(texto + 1);
        if (textoVar->numFamilias > 0) {
            if (familiaTotal < 0 || familiaTotal > textoVar->numFamilias) return widestr_copia(VNU(""));
            if (!AFIRMA_NO_NULO(entrada.ind_por_familia)) return nullptr;
            cual = entrada.ind_por_familia[familiaTotal - 1];
        }
    } else if (AFIRMA(textoVar->indiceTexto[indtexto].por_familia == FALSO)) cual = entrada.ind;
    else return nullptr;
    if (cual == VPLAN_SIN_TEXTO) return *longitud = 0., widestr_copia(VNU(" "));
    if (!AFIRMA_TEXTO(cual < textoVar->numTextos, "texto < textoVar->numTextos") || !EXIGE(textoVar->texto) ||
        !EXIGE(textoVar->texto[cual]))
        return nullptr;
    const vnwchar *const suyo = textoVar->texto[cual];
    const uint32_t long_texto = widestr_longitud(suyo);
    if (!AFIRMA(long_texto < USHRT_MAX)) return nullptr;
    *longitud = mide_sin_salida(suyo, alto);
    return widestr_copia(suyo);
}

// ---- Freeing

void libera(tabla_de_textos *textoVar) {
    if (textoVar->numTextos != 0) widestr_destruyeListaCadenas(textoVar->numTextos, &textoVar->texto);
    else AFIRMA_TEXTO(textoVar->texto == nullptr, "textoVar->texto == NULL");
    textoVar->numTextos = 0;
    if (textoVar->numIndices != 0 && !EXIGE(textoVar->indiceTexto)) return;
    for (uint32_t i = 0; i < textoVar->numIndices; ++i) {
        textoVar_indice &entrada = textoVar->indiceTexto[i];
        widestr_nousar_destruye_opcional(&entrada.nombre, VN_AQUI);
        if (textoVar->numFamilias > 0 && entrada.ind_por_familia != nullptr)
            vornspy_free_pp(&entrada.ind_por_familia, sizeof *entrada.ind_por_familia);
        AFIRMA_TEXTO(entrada.ind_por_familia == nullptr, "textoVar->indiceTexto[i].ind_por_familia == NULL");
    }
    if (textoVar->numIndices != 0) vornspy_free_pp(&textoVar->indiceTexto, sizeof *textoVar->indiceTexto);
    else AFIRMA_TEXTO(textoVar->indiceTexto == nullptr, "textoVar->indiceTexto == NULL");
    textoVar->numIndices = 0;
    textoVar->numFamilias = 0;
}
void libera(valores *totales) {
    if (totales->numTotales > 0) vornspy_free_pp(&totales->total, sizeof *totales->total);
    else AFIRMA_TEXTO(totales->total == nullptr, "totales->total == NULL");
    totales->numTotales = 0;
}

} // namespace

vnwchar *vplan_dame_texto_var(const vnwchar *texto, int32_t familiaTotal, const tabla_de_textos *tabla_textos,
                              const valores *tabla_totales, int32_t, double alto, int32_t numero, double *longitud) {
    if (!EXIGE(texto, longitud)) return nullptr;
    if (texto[0] == VNU('@') && texto[1] != 0 && tabla_textos != nullptr) {
        vnwchar *const suyo = texto_de_nombre(texto, familiaTotal, tabla_textos, alto, longitud);
        return suyo != nullptr ? suyo : widestr_copia(texto);
    }
    if (*longitud == MIDE_EL_DISPOSITIVO) {
        if (const auto r = con_mascaras_reemplazadas(texto, tabla_totales, numero)) {
            *longitud = mide_sin_salida(r->c_str(), alto);
            return widestr_copia(r->c_str());
        }
    } else AFIRMA(*longitud >= 0.);
    return widestr_copia(texto);
}

void vplan_libera_textos_var(tabla_de_textos *tabla_textos) {
    if (EXIGE(tabla_textos)) libera(tabla_textos);
}
void vplan_libera_totales(valores *tabla_totales) {
    if (AFIRMA_TEXTO(tabla_totales != nullptr, "totales != NULL")) libera(tabla_totales);
}
