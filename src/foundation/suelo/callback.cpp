#define VN_MODULO "callback (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/callback.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/propio_int.h"

// The pack is the call-back's own; without one the function is called with null.
struct vncallback {
    vnfunc_callback funcion;
    vnparametros *parametros;
};

vncallback *callback_nousar_crea(vnfunc_callback funcion, vnparametros *parametros) {
    vn::propio<vnparametros> suyos(parametros); // taken over, so freed on a failed check too
    if (!AFIRMA_NO_NULO(funcion)) return nullptr;
    auto *c = static_cast<vncallback *>(vornspy_malloc(sizeof(vncallback)));
    *c = {funcion, suyos.release()};
    return c;
}

void callback_nousar_lanza_void(vncallback *c) {
    if (AFIRMA_NO_NULO(c)) c->funcion(c->parametros, nullptr);
}

void callback_nousar_lanza_void_dato(vncallback *c, void *dato) {
    if (AFIRMA_NO_NULO(c)) c->funcion(c->parametros, dato);
}

void callback_nousar_destruye(vncallback **c) {
    if (!AFIRMA_NO_NULO(c) || !AFIRMA_TEXTO(*c != nullptr, "(*c) != NULL")) return;
    // The pack goes first, while the record still leads to it.
    if ((*c)->parametros != nullptr) vornspy_destruye_parametros(&(*c)->parametros);
    vornspy_free_pp(c, sizeof(vncallback));
}
