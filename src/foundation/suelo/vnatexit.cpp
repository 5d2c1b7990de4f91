#define VN_MODULO "vnatexit (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/vnatexit.h"
#include "foundation/platform/consola.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/propio_int.h"
#include <atomic>
#include <cstdlib>

// The list takes no lock: at the end of a Windows process the other threads are gone, with whatever they held.

namespace {

// The list is a stack: each entry leads to the one that was registered before it.
struct entrada {
    vnfunc_atexit funcion;
    vnparametros *parametros;
    entrada *anterior;
};

constinit std::atomic<entrada *> la_ultima{nullptr};
// True while the C library is to call al_final() at the end.
constinit std::atomic<bool> registrada{false};

// Puts a chain, from its newest to its oldest entry, on top of the list.
void apila(entrada *nueva, entrada *vieja) {
    vieja->anterior = la_ultima.load(std::memory_order_relaxed);
    while (!la_ultima.compare_exchange_weak(vieja->anterior, nueva, std::memory_order_release,
                                            std::memory_order_relaxed)) {
    }
}

// What has been taken off the list and not yet run.
class tomadas {
  public:
    // The newest entry of all, the ones added meanwhile before the ones taken earlier; null at the end.
    entrada *toma() {
        if (entrada *nuevas = la_ultima.exchange(nullptr, std::memory_order_acquire)) {
            // The oldest of the new ones is linked to what is left of the earlier ones.
            entrada *vieja = nuevas;
            while (vieja->anterior != nullptr) vieja = vieja->anterior;
            vieja->anterior = primera_;
            primera_ = nuevas;
        }
        entrada *e = primera_;
        if (e != nullptr) primera_ = e->anterior;
        return e;
    }

  private:
    entrada *primera_ = nullptr;
};

// Destructors that run later may add more: that is registered anew.
void al_final() {
    registrada = false;
    vnatexit_ejecuta();
}

} // namespace

void nousar_atexit_anade(vnfunc_atexit funcion, vnparametros *parametros, const char *modulo, uint32_t linea) {
    vn::propio<vnparametros> suyos(parametros); // taken over, so freed on a failed check too
    if (!AFIRMA_NO_NULO(funcion)) return;
    if (!registrada.exchange(true)) {
        // The call at the end needs this library's own code.
        vn::plat::fija_en_memoria(&registrada);
        std::atexit(al_final);
    }
    // The caller's module, and the one that it registers for.
    vn::plat::fija_en_memoria(reinterpret_cast<const void *>(funcion));
    vn::plat::fija_en_memoria(modulo);
    auto *e = static_cast<entrada *>(vornspy_nousar_malloc(sizeof(entrada), modulo, linea));
    *e = {funcion, suyos.release(), nullptr};
    apila(e, e);
}

void vnatexit_ejecuta(void) {
    tomadas lista;
    while (entrada *e = lista.toma()) {
        e->funcion(e->parametros);
        // The function has only borrowed its pack.
        if (e->parametros != nullptr) vornspy_destruye_parametros(&e->parametros);
        vornspy_free_pp(&e, sizeof(entrada));
    }
}
