#define VN_MODULO "alsalir (NUCLEOS.DLL)"
#include "frame/alsalir.h"
#include "foundation/listas/arr.h"
#include "foundation/sistema/vnmutex.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/contexto.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include <atomic>

namespace {

// The two lists of addresses of text variables, and the guards of all three; each null until its first use.
arrPuntero *las_cadenas = nullptr;
arrPuntero *las_cadenas_u = nullptr;
constinit std::atomic<vnmutex *> mutex_cadena{nullptr};
constinit std::atomic<vnmutex *> mutex_cadena_u{nullptr};
constinit std::atomic<vnmutex *> mutex_dato{nullptr};

void destruye_cadena(void *cadena) { vornstr_destruye(static_cast<char **>(cadena)); }

void limpia_los_mutex(vnparametros *datosQQ) {
    AFIRMA_TEXTO(datosQQ == nullptr, "datosQQ==NULL");
    for (auto *mutex : {&mutex_cadena, &mutex_cadena_u, &mutex_dato})
        if (vnmutex *m = mutex->exchange(nullptr); vornspy_es_memoria_reservada_valida(m) == CIERTO)
            vnmutex_destruye_saliendo(&m);
}

} // namespace

namespace vn {

// Not of the unnamed namespace: the compiler knows the three calls and would take the check of the mutex away.
vnmutex *alsalir_mutex_entra(std::atomic<vnmutex *> *mutex, const vnwchar *nombre, const char *modulo, uint32_t linea);

// Enters a mutex, which is made first if it is null: of those that threads which meet here make the first one stays.
// The handle that was entered, or null.
vnmutex *alsalir_mutex_entra(std::atomic<vnmutex *> *mutex, const vnwchar *nombre, const char *modulo, uint32_t linea) {
    if (!AFIRMA_NO_NULO(mutex)) return nullptr;
    vnmutex *m = mutex->load();
    if (m == nullptr) {
        const propio<vnwchar> modulo_u(utunicode_ANSI_a_UNICODE(modulo != nullptr ? modulo : ""));
        const propio<vnwchar> contexto(copiaforu_nousar_formatea(VNU("[alsalir:i_mutex_entra(%s)] %s(%d)"), nombre,
                                                                 modulo_u.get(), static_cast<int>(linea)));
        contexto_dentroDeContexto_u(contexto.get());
        vnmutex *nuevo = vnmutex_crea_u(nombre);
        if (mutex->compare_exchange_strong(m, nuevo)) {
            m = nuevo;
            nousar_atexit_anade(limpia_los_mutex, nullptr, modulo, linea);
        } else vnmutex_destruye(&nuevo);
        contexto_fueraDeContexto_u(contexto.get());
    }
    return vnmutex_entra(m) == CIERTO ? m : nullptr;
}

} // namespace vn

namespace {

// Holds one of the mutexes over a registration. When it cannot be had in time the registration is made all the same:
// not to make it would surely lose the text, and two that meet may lose one.
class dentro {
  public:
    dentro(std::atomic<vnmutex *> *mutex, const vnwchar *nombre, const char *modulo, uint32_t linea)
        : mutex_(vn::alsalir_mutex_entra(mutex, nombre, modulo, linea)) {}
    ~dentro() {
        if (mutex_ != nullptr) vnmutex_sal(mutex_);
    }
    dentro(const dentro &) = delete;
    dentro &operator=(const dentro &) = delete;

  private:
    vnmutex *const mutex_;
};

// Destroys what the variables of a list lead to, then the list. Without a destroyer the texts are raw blocks.
void limpia_lista(arrPuntero **lista, vnfunc_destruye destructor) {
    if (vornspy_es_memoria_reservada_valida(*lista) != CIERTO) return;
    for (uint32_t i = 0; i < arr_NumElemsPuntero(*lista); ++i) {
        auto **elemento = static_cast<void **>(arr_GetPunteroConTipo(*lista, i));
        if (vornspy_es_memoria_reservada_valida(*elemento) == CIERTO) {
            if (destructor != nullptr) destructor(elemento);
            else vornspy_free_pp(elemento, 1);
        }
        arr_SetPunteroConTipo(*lista, i, nullptr);
    }
    arr_DestruyePunteroConTipo(lista);
}

template <vnfunc_destruye DESTRUCTOR> void limpia_cadenas(vnparametros *parametros) {
    auto **lista = static_cast<arrPuntero **>(vornspy_parametro_puntero(parametros, 0));
    if (lista != nullptr && *lista != nullptr) limpia_lista(lista, DESTRUCTOR);
}

void limpia_dato(vnparametros *parametros) {
    auto **dato = static_cast<void **>(vornspy_parametro_puntero(parametros, 0));
    const auto funcion = reinterpret_cast<vnfunc_destruye>(vornspy_parametro_puntero(parametros, 1));
    if (dato == nullptr || funcion == nullptr) return;
    // A block that is not alive has been freed by its owner.
    if (vornspy_es_memoria_reservada_valida(*dato) == CIERTO) funcion(dato);
    else *dato = nullptr;
}

void registra(arrPuntero **lista, vnfunc_atexit limpiador, void *variable, const char *modulo, uint32_t linea) {
    if (*lista == nullptr) {
        *lista = arr_CreaPunteroConTipo(0);
        nousar_atexit_anade(limpiador, vornspy_parametro(1, 8, lista), modulo, linea);
    }
    arr_AppendPunteroConTipo(*lista, variable);
}

} // namespace

void alsalir_nousar_destruye_cadena(char **cadena, const char *modulo, uint32_t linea) {
    if (!AFIRMA_NO_NULO(cadena)) return;
    const dentro guardado(&mutex_cadena, VNU("ALSALIR_ID_MUTEX_CADENA"), modulo, linea);
    registra(&las_cadenas, limpia_cadenas<destruye_cadena>, cadena, modulo, linea);
}

void alsalir_nousar_destruye_cadena_u(vnwchar **cadena, const char *modulo, uint32_t linea) {
    if (!AFIRMA_NO_NULO(cadena)) return;
    const dentro guardado(&mutex_cadena_u, VNU("ALSALIR_ID_MUTEX_CADENA_U"), modulo, linea);
    registra(&las_cadenas_u, limpia_cadenas<widestr_fun_destruye>, cadena, modulo, linea);
}

void alsalir_nousar_destruye_dato(void *dato, vnfunc_destruye funcDestruyeDato, const char *modulo, uint32_t linea) {
    if (!EXIGE(dato, funcDestruyeDato)) return;
    const dentro guardado(&mutex_dato, VNU("ALSALIR_ID_MUTEX_DATO"), modulo, linea);
    nousar_atexit_anade(limpia_dato, vornspy_parametro(2, 8, dato, 8, funcDestruyeDato), modulo, linea);
}
