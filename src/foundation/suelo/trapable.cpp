#define VN_MODULO "trapable (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/trapable.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/contexto_priv.h"
#include "foundation/suelo/error_interno_int.h"
#include "foundation/suelo/logico_int.h"
#include <algorithm>
#include <cstring>

namespace {

// The first report of the last trap that failed, which outlives the trap itself.
thread_local char ultimo_fallo[vn::MAXIMO_LINEA_INFORME] = "";

// The innermost trap of this thread over the call inside it.
class trampa_propia {
  public:
    trampa_propia() : contextos_(vn::nivel_de_contexto()) {
        esta_.exterior = vn::trampa_abierta();
        vn::trampa_abierta() = &esta_;
    }
    // A destructor closes the trap, so that an exception of the host's closes it too.
    ~trampa_propia() {
        vn::trampa_abierta() = esta_.exterior;
        // Contexts that the call entered and did not leave end with it; those that it left stay left.
        vn::nivel_de_contexto() = std::min(vn::nivel_de_contexto(), contextos_);
        if (esta_.marcada) std::strcpy(ultimo_fallo, esta_.linea);
    }
    trampa_propia(const trampa_propia &) = delete;
    trampa_propia &operator=(const trampa_propia &) = delete;

  private:
    vn::trampa esta_;
    uint32_t contextos_;
};

// True when nothing was reported during the call.
bool ejecuta(vnfunc_trapable funcion, void *datos) {
    const trampa_propia abierta;
    funcion(datos);
    return !vn::atrapado();
}

} // namespace

vnbool trapable_nousar_recursivo_ejecuta_funcion_segura(vnfunc_trapable funcion, void *datos, vnbool *resultado) {
    vnbool ha_ido_bien = FALSO;
    if (AFIRMA_NO_NULO(funcion)) ha_ido_bien = vn::logico(ejecuta(funcion, datos));
    if (resultado != nullptr) *resultado = ha_ido_bien;
    return ha_ido_bien;
}

vnbool trapable_ha_fallado(void) {
    const vn::trampa *t = vn::trampa_abierta();
    return vn::logico(t != nullptr && t->marcada);
}

const char *trapable_texto_del_ultimo_fallo(void) { return ultimo_fallo; }
