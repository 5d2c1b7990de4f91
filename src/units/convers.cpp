#define VN_MODULO "convers (NUCLEOS.DLL)"
#include "units/convers.h"
#include "units/convers_priv.h"
#include "units/vornconf_priv.h"
#include "units/vornnum.h"

namespace vn {
namespace {

static_assert(EN_MKS == VORNCONF_SU_MKS - 1 && EN_SI_JULIO == VORNCONF_SU_INTERNACIONAL - 1 &&
              EN_IMPERIAL == VORNCONF_SU_IMPERIAL - 1);

// Set for good by hosts whose units are configurable apart: no length is in feet and inches.
constinit std::atomic<bool> es_uso_residual{false};

// Unit of energy in force, as a column of the S.I.
columna_convers columna_de_energia() {
    switch (vornconf_Internacional_sistema_unidades_energia()) {
    case VORNNORM_UNIDAD_ENERGIA_JULIO: return EN_SI_JULIO;
    case VORNNORM_UNIDAD_ENERGIA_KCAL: return EN_SI_KCAL;
    case VORNNORM_UNIDAD_ENERGIA_BTU: return EN_SI_BTU;
    default: AFIRMA_DEFECTO(); return EN_SI_JULIO;
    }
}

// The column of the system in force for a type; M.K.S., reported, if there is no such system or unit of energy.
columna_convers columna_en_vigor(const fila_convers *convers) {
    switch (vornconf_Internacional_sistema_unidades()) {
    case VORNCONF_SU_MKS: return EN_MKS;
    case VORNCONF_SU_INTERNACIONAL: return convers->familia == 0 ? EN_SI_JULIO : columna_de_energia();
    case VORNCONF_SU_IMPERIAL: return EN_IMPERIAL;
    default: AFIRMA_DEFECTO(); return EN_MKS;
    }
}

// The slow road: every check, and the texts that the first use makes.
[[gnu::cold, gnu::noinline]] double convierte_despacio(int32_t sentido, uint32_t tipovalor, double valor) {
    const vista_convers v(tipovalor);
    if (!v.es_tipo) return 0;
    if (v.fila == nullptr || sentido == CNV_A_MOSTRADO) return v.a_mostrado(valor);
    return sentido == CNV_A_INTERNO ? v.a_interno(valor) : (AFIRMA_DEFECTO(), 0);
}

} // namespace

vista_convers::vista_convers(uint32_t tipovalor) {
    if (tipovalor == CNV_NO_CONVERSION) return;
    const fila_convers *convers = fila_de_convers(tipovalor);
    es_tipo = AFIRMA_NO_NULO(convers);
    if (!es_tipo) return;
    const columna_convers columna = columna_en_vigor(convers);
    fila = convers;
    cifras = convers->cifras[columna];
    unidad = dame_textos_convers()[tipovalor].texto[columna];
    // Feet and inches belong to the imperial column, and not to a host whose units are apart.
    if (columna == EN_IMPERIAL && !es_uso_residual.load(std::memory_order_relaxed)) formato = convers->formato;
}

} // namespace vn

using namespace vn;

// The common case without a call: all is made, the type has a row and no energy family.
double cnv_convierte(int32_t sentido, uint32_t tipovalor, double valor) {
    const uint32_t columna = sistema_unidades_si_cargado() - VORNCONF_SU_MKS;
    if (tipovalor < CNV_NO_CONVERSION && columna <= EN_IMPERIAL && FILAS_CONVERS[tipovalor].familia == 0 &&
        textos_de_convers.load(std::memory_order_acquire) != nullptr) [[likely]] {
        const cifras_convers &c = FILAS_CONVERS[tipovalor].cifras[columna];
        if (sentido == CNV_A_MOSTRADO) [[likely]]
            return c.a_mostrado(valor);
        if (sentido == CNV_A_INTERNO) [[likely]]
            return c.a_interno(valor);
    }
    return convierte_despacio(sentido, tipovalor, valor);
}

const vnwchar *cnv_strextunids(uint32_t tipovalor) { return vista_convers(tipovalor).unidad; }
int32_t convers_formato_entrada(uint32_t tipovalor) { return vista_convers(tipovalor).formato; }

vnbool convers_es_longitud_en_sistema_imperial(uint32_t tipovalor) {
    return vista_convers(tipovalor).es_longitud_imperial();
}

uint32_t convers_divisor_maximo_pulgadas(uint32_t tipovalor) {
    if (tipovalor == CNV_NO_CONVERSION) return 0;
    const fila_convers *convers = fila_de_convers(tipovalor);
    return AFIRMA_NO_NULO(convers) ? convers->denominador : 0;
}

void convers_set_es_uso_residual_en_programas_con_unidades_configurables(void) {
    es_uso_residual.store(true, std::memory_order_relaxed);
}

void convers_valores_para_vnudcuso(uint32_t tipovalor, double *factor_conversion_a_unidades_internas,
                                   double *sumando_conversion_a_unidades_internas,
                                   vnbool *es_correcto_texto_de_unidades_despues_de_valor,
                                   const vnwchar **texto_unidades) {
    const vista_convers v(tipovalor);
    if (!v.es_tipo) return;
    if (!EXIGE(factor_conversion_a_unidades_internas, sumando_conversion_a_unidades_internas)) return;
    if (!EXIGE(es_correcto_texto_de_unidades_despues_de_valor, texto_unidades)) return;
    *factor_conversion_a_unidades_internas = 1 / v.cifras.coef;
    *sumando_conversion_a_unidades_internas = 0 - v.cifras.sumando;
    *es_correcto_texto_de_unidades_despues_de_valor = !v.es_longitud_imperial();
    *texto_unidades = v.unidad;
}
