#define VN_MODULO "trapable (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/trapable.h"
#include "foundation/afirma.h"
#include "foundation/contexto_priv.h"
#include "foundation/error_interno_priv.h"
#include <cstring>
#include <new>

namespace {

// Counts a trap of this thread over the call inside it.
class trampa {
  public:
    trampa() { ++vn::trampas_abiertas(); }
    ~trampa() { --vn::trampas_abiertas(); }
    trampa(const trampa &) = delete;
    trampa &operator=(const trampa &) = delete;
};

bool ejecuta(vnfunc_trapable funcion, void *datos) {
    // A call that unwinds leaves the contexts that it had entered.
    const uint32_t contextos = vn::nivel_de_contexto();
    try {
        const trampa abierta;
        funcion(datos);
        return true;
    } catch (const vn::fallo_atrapado &) {
        vn::nivel_de_contexto() = contextos;
        return false;
    } catch (const std::bad_alloc &) {
        vn::nivel_de_contexto() = contextos;
        std::strcpy(vn::linea_del_ultimo_fallo(), "memoria agotada\n");
        return false;
    }
}

} // namespace

vnbool trapable_nousar_recursivo_ejecuta_funcion_segura(vnfunc_trapable funcion, void *datos, vnbool *resultado) {
    vnbool ha_ido_bien = FALSO;
    if (AFIRMA_NO_NULO(funcion)) ha_ido_bien = ejecuta(funcion, datos) ? CIERTO : FALSO;
    if (resultado != nullptr) *resultado = ha_ido_bien;
    return ha_ido_bien;
}

const char *trapable_texto_del_ultimo_fallo(void) { return vn::linea_del_ultimo_fallo(); }
