#define VN_MODULO "convers (NUCLEOS.DLL)"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/mensajes.hpp"
#include "units/convers_priv.h"
#include <array>

namespace vn {
namespace {

// ---------------------------------------------------------------- the texts that some language writes otherwise

#define M(id, ...) VN_MENSAJE(msg_##id, "convers.msg", id, __VA_ARGS__)
#include "units/convers_msg.inl"
#undef M

// A unit's text: the Spanish words, and where the other languages' are.
struct texto_unidad {
    const vnwchar *es = nullptr;
    vnfunc_mensaje traducido = nullptr;

    consteval texto_unidad() = default;
    consteval texto_unidad(const vnwchar *texto);
    const vnwchar *local() const { return traducido == nullptr ? es : nousar_msglocal_original_u(traducido); }
};

constexpr struct {
    const vnwchar *es;
    vnfunc_mensaje mensaje;
} TRADUCIDAS[] = {
#define M(id, ...) {msg_##id.es(), msg_##id.u},
#include "units/convers_msg.inl"
#undef M
};

consteval texto_unidad::texto_unidad(const vnwchar *texto) : es(texto) {
    for (const auto &fila : TRADUCIDAS) {
        const vnwchar *a = fila.es, *b = texto;
        while (*a == *b && *a != 0) ++a, ++b;
        if (*a == *b) traducido = fila.mensaje;
    }
}

// ---------------------------------------------------------------- the rows as they are written

struct unidad {
    texto_unidad texto;
    double coef = 0, sumando = 0;
};

struct forma_energia {
    uint8_t familia = 0;
    texto_unidad kcal, btu;
};

struct definicion {
    uint32_t tipovalor;
    unidad mks, si, imperial;
    uint8_t formato, denominador;
    double relativa;
    uint8_t modo;
    forma_energia energia;
};

// clang-format off
constexpr definicion DEFINICIONES[] = {
#define U(texto, coef) {VNU(texto), coef}
#define US(texto, coef, sumando) {VNU(texto), coef, sumando}
#define SI {}
#define EN(familia, kcal, btu) {familia, VNU(kcal), VNU(btu)}
#define NO {}
#define X(tipo, nombre, interna, ...) {nombre, __VA_ARGS__},
#include "units/convers_tabla.inl"
#undef X
#undef NO
#undef EN
#undef SI
#undef US
#undef U
};
// clang-format on

constexpr double KCAL_HORA = 0.859845227859;
constexpr double BTU_HORA = 3.41214163313;

constexpr double factor_de_energia(uint8_t familia, double por_hora) {
    return familia == 3 ? 1000 * por_hora : por_hora;
}

// A row that gives no imperial form shows that of the S.I.
constexpr const unidad &imperial_de(const definicion &d) { return d.imperial.texto.es != nullptr ? d.imperial : d.si; }

consteval std::array<fila_convers, CNV_NO_CONVERSION> calcula() {
    std::array<fila_convers, CNV_NO_CONVERSION> filas{};
    for (const definicion &d : DEFINICIONES) {
        fila_convers &f = filas[d.tipovalor];
        const uint8_t familia = d.energia.familia;
        const auto si_por = [&d, familia](double por_hora) {
            const double coef = familia > 1 ? d.si.coef * factor_de_energia(familia, por_hora) : d.si.coef;
            return cifras_convers{coef, d.si.sumando};
        };
        f.cifras[EN_MKS] = {d.mks.coef, d.mks.sumando};
        f.cifras[EN_SI_JULIO] = {d.si.coef, d.si.sumando};
        f.cifras[EN_SI_KCAL] = si_por(KCAL_HORA);
        f.cifras[EN_SI_BTU] = si_por(BTU_HORA);
        f.cifras[EN_IMPERIAL] = {imperial_de(d).coef, imperial_de(d).sumando};
        f.relativa = d.relativa;
        f.modo = static_cast<modo_redondeo>(d.modo);
        f.familia = familia;
        f.formato = d.formato;
        f.denominador = d.denominador;
    }
    return filas;
}

consteval bool en_orden() {
    uint32_t n = 0;
    for (const definicion &d : DEFINICIONES)
        if (d.tipovalor != n++) return false;
    return true;
}

// A row has all its texts and multipliers, or leaves the imperial ones out together; its small numbers are possible.
consteval bool completas() {
    for (const definicion &d : DEFINICIONES) {
        const bool imperial = d.imperial.texto.es != nullptr;
        const double c = d.imperial.coef < 0 ? -d.imperial.coef : d.imperial.coef;
        if (d.mks.texto.es == nullptr || d.si.texto.es == nullptr || d.mks.coef == 0 || d.si.coef == 0) return false;
        if (imperial ? !(c > 1e-12) : !(c < 1e-12)) return false;
        if (d.formato > 3 || d.denominador < 2 || d.modo > 2 || d.energia.familia > 3) return false;
        const bool energia = d.energia.familia != 0;
        if (energia != (d.energia.kcal.es != nullptr) || energia != (d.energia.btu.es != nullptr)) return false;
    }
    return true;
}

static_assert(std::size(DEFINICIONES) == CNV_NO_CONVERSION);
static_assert(en_orden());
static_assert(completas());

// ---------------------------------------------------------------- the texts

void libera_textos(vnparametros *) {
    const textos_convers *t = textos_de_convers.exchange(nullptr, std::memory_order_acq_rel);
    if (t != nullptr) vornspy_free_pp(&t, sizeof(textos_convers));
}

// The type is the number of rows so far.
void anade(textos_convers *textos, uint32_t *num_conversiones, const definicion &d) {
    if (!AFIRMA_TEXTO(*num_conversiones == d.tipovalor, "num_conversiones == (unsigned long)tipovalor")) return;
    if (d.imperial.texto.es != nullptr)
        AFIRMA_TEXTO(vnstdc_fabs(d.imperial.coef) > 1e-12, "vnstdc_fabs(coefConv_Inglesas) > 1e-12");
    else AFIRMA_TEXTO(vnstdc_fabs(d.imperial.coef) < 1e-12, "vnstdc_fabs(coefConv_Inglesas) < 1e-12");
    textos_convers &t = textos[(*num_conversiones)++];
    t.texto[EN_MKS] = d.mks.texto.local();
    t.texto[EN_SI_JULIO] = d.si.texto.local();
    t.texto[EN_SI_KCAL] = d.energia.familia != 0 ? d.energia.kcal.local() : t.texto[EN_SI_JULIO];
    t.texto[EN_SI_BTU] = d.energia.familia != 0 ? d.energia.btu.local() : t.texto[EN_SI_JULIO];
    t.texto[EN_IMPERIAL] = imperial_de(d).texto.local();
}

} // namespace

constexpr std::array<fila_convers, CNV_NO_CONVERSION> FILAS_CONVERS = calcula();

// Threads that meet here each make the texts; the first one's stay.
const textos_convers *crea_textos_convers() {
    propio<textos_convers> nuevos(
        static_cast<textos_convers *>(vornspy_malloc(sizeof(textos_convers) * CNV_NO_CONVERSION)));
    int idioma = 0;
    do { // all in one language: anew when it was changed meanwhile
        idioma = msidioma_dame_idioma();
        uint32_t num_conversiones = 0;
        for (const definicion &d : DEFINICIONES) anade(nuevos.get(), &num_conversiones, d);
        AFIRMA_TEXTO(num_conversiones == CNV_NO_CONVERSION, "num_conversiones == (unsigned long)CNV_NO_CONVERSION");
    } while (idioma != msidioma_dame_idioma());
    const textos_convers *puestos = nullptr;
    if (!textos_de_convers.compare_exchange_strong(puestos, nuevos.get(), std::memory_order_acq_rel)) return puestos;
    atexit_anade(libera_textos, nullptr);
    return nuevos.release();
}

} // namespace vn

// ---------------------------------------------------------------- units by name

using namespace vn;

#define UNIDAD(nombre, es)                                                                                             \
    const vnwchar *nombre(void) {                                                                                      \
        constexpr texto_unidad TEXTO(VNU(es));                                                                         \
        return TEXTO.local();                                                                                          \
    }

// clang-format off
UNIDAD(convers_texto_kp_cm2, "kp/cm²")
UNIDAD(convers_texto_MPa, "MPa")
UNIDAD(convers_texto_W_K, "W/K")
UNIDAD(convers_texto_W_m2K, "W/(m²·K)")
UNIDAD(convers_texto_grado_centigrado, "°C")
UNIDAD(convers_texto_kW, "kW")
UNIDAD(convers_texto_kWh, "kW·h")
UNIDAD(convers_texto_kg, "kg")
UNIDAD(convers_texto_kg_m2, "kg/m²")
UNIDAD(convers_texto_l, "l")
UNIDAD(convers_texto_m, "m")
UNIDAD(convers_texto_m2, "m²")
UNIDAD(convers_texto_m3, "m³")
UNIDAD(convers_texto_m3_h, "m³/h")
UNIDAD(convers_texto_mm, "mm")
UNIDAD(convers_texto_mm2, "mm²")
UNIDAD(convers_texto_porcentaje, "%")
// clang-format on
