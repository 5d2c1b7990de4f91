#define VN_MODULO "vornspy (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/vornspy.h"
#include "foundation/platform/consola.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/error_interno_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/par_atomico_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/vnatexit.h"
#include <algorithm>
#include <atomic>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <utility>

// A block is the platform's own, with a 16-byte head before it that says who asked. Whether an address is a live
// block stands apart, in a bit per 16 bytes of address space, so that any pointer may be asked about without following
// it, no allocation takes a lock, and the live blocks can be walked.

namespace {

struct cabeza {
    const char *modulo;
    uint64_t linea_y_tamanyo; // line in the upper 20 bits, size in the lower 44
};
static_assert(sizeof(cabeza) == 16, "blocks keep the platform's alignment");

// Half of what the head can hold is refused already: no machine has it, and adding the head to less cannot overflow.
constexpr unsigned BITS_TAMANYO = 44;
constexpr uint64_t MAXIMO_TAMANYO = uint64_t{1} << (BITS_TAMANYO - 1);

// The map of live blocks: leaves of 256 MiB of addresses each, made at first use, in a table that any address finds its
// own in.
constexpr unsigned BITS_HOJA = 28, BITS_GRANO = 4, BITS_TABLA = 16;
constexpr size_t PALABRAS_HOJA = size_t{1} << (BITS_HOJA - BITS_GRANO - 6);
using palabra = std::atomic<uint64_t>;
// A bit of the summary stands for 64 words that have ever held a live block: what a walk has to look at.
struct hoja_de_bits {
    uintptr_t numero;
    palabra bits[PALABRAS_HOJA];
    palabra resumen[PALABRAS_HOJA / 64 / 64];
};
constinit std::atomic<hoja_de_bits *> hojas[size_t{1} << BITS_TABLA] = {};

constinit vn::par_atomico<vnfunc_permiso> el_permiso;
constinit vn::par_atomico<vnfunc_memoria_agotada> el_agotamiento;
constinit std::atomic<bool> fugas_al_salir{false};

// The place in the table of an address's leaf, or the empty one where it belongs; null when the table is full.
std::atomic<hoja_de_bits *> *sitio_de(uintptr_t numero, hoja_de_bits *&hoja) {
    // A multiplicative hash says where to begin; a place that another leaf has is passed over for the next.
    constexpr size_t MASCARA = std::size(hojas) - 1;
    size_t i = static_cast<size_t>((uint64_t{numero} * 0x9E3779B97F4A7C15u) >> (64 - BITS_TABLA));
    for (size_t k = 0; k <= MASCARA; ++k, i = (i + 1) & MASCARA) {
        hoja = hojas[i].load(std::memory_order_acquire);
        if (hoja == nullptr || hoja->numero == numero) [[likely]]
            return &hojas[i];
    }
    return nullptr;
}

// The leaf of an address; null where no block has ever lived in its range.
hoja_de_bits *hoja_de(uintptr_t direccion) {
    hoja_de_bits *hoja = nullptr;
    return sitio_de(direccion >> BITS_HOJA, hoja) != nullptr ? hoja : nullptr;
}

// The leaf of an address, made if it is missing; null when the memory or the table has no room for it.
hoja_de_bits *hoja_creada(uintptr_t direccion) {
    const uintptr_t numero = direccion >> BITS_HOJA;
    hoja_de_bits *hoja = nullptr, *nueva = nullptr;
    std::atomic<hoja_de_bits *> *sitio = sitio_de(numero, hoja);
    for (; sitio != nullptr && hoja == nullptr; sitio = sitio_de(numero, hoja)) {
        if (nueva == nullptr) nueva = static_cast<hoja_de_bits *>(std::calloc(1, sizeof(hoja_de_bits)));
        if (nueva == nullptr) return nullptr;
        // A lost exchange looks again: the winner's leaf may be this one or one of another number.
        nueva->numero = numero;
        if (sitio->compare_exchange_strong(hoja, nueva, std::memory_order_acq_rel)) return nueva;
    }
    std::free(nueva); // another thread was first
    return sitio != nullptr ? hoja : nullptr;
}

// One grain in the map: its word and its bit there.
struct bit {
    palabra &en;
    uint64_t mascara;
};

// The number of a 16-byte grain within its leaf.
size_t grano_de(uintptr_t direccion) { return (direccion & ((uintptr_t{1} << BITS_HOJA) - 1)) >> BITS_GRANO; }

bit bit_de(hoja_de_bits *hoja, uintptr_t direccion) {
    const size_t grano = grano_de(direccion);
    return {hoja->bits[grano >> 6], uint64_t{1} << (grano & 63)};
}

// Marks a block as alive; false when there is no room to note it.
bool apunta(const void *p) {
    const auto direccion = reinterpret_cast<uintptr_t>(p);
    hoja_de_bits *hoja = hoja_creada(direccion);
    if (hoja == nullptr) return false;
    const bit b = bit_de(hoja, direccion);
    b.en.fetch_or(b.mascara, std::memory_order_relaxed);
    // The summary is only ever set, so a look mostly saves the write.
    const size_t grupo = grano_de(direccion) >> 12;
    palabra &resumen = hoja->resumen[grupo >> 6];
    const uint64_t mascara = uint64_t{1} << (grupo & 63);
    if ((resumen.load(std::memory_order_relaxed) & mascara) == 0) resumen.fetch_or(mascara, std::memory_order_relaxed);
    return true;
}

// True when the block was alive; of two that race to free it, one wins.
bool tacha(const void *p) {
    const auto direccion = reinterpret_cast<uintptr_t>(p);
    if (direccion & ((1u << BITS_GRANO) - 1)) return false;
    hoja_de_bits *hoja = hoja_de(direccion);
    if (hoja == nullptr) return false;
    const bit b = bit_de(hoja, direccion);
    return (b.en.fetch_and(~b.mascara, std::memory_order_relaxed) & b.mascara) != 0;
}

bool esta_vivo(const void *p) {
    const auto direccion = reinterpret_cast<uintptr_t>(p);
    if (direccion & ((1u << BITS_GRANO) - 1)) return false;
    hoja_de_bits *hoja = hoja_de(direccion);
    if (hoja == nullptr) return false;
    const bit b = bit_de(hoja, direccion);
    return (b.en.load(std::memory_order_relaxed) & b.mascara) != 0;
}

// False for a size that no machine has, and where the installed question forbids it.
bool permitido(size_t tamanyo) {
    if (tamanyo > MAXIMO_TAMANYO) [[unlikely]]
        return false;
    const auto permiso = el_permiso.dame();
    return permiso.funcion == nullptr || permiso.funcion(tamanyo, permiso.datos) == CIERTO;
}

// A product that overflows becomes a size that permitido() refuses.
size_t producto(size_t num, size_t tamanyo) {
    size_t total = 0;
    return __builtin_mul_overflow(num, tamanyo, &total) ? SIZE_MAX : total;
}

cabeza *cabeza_de(void *p) { return static_cast<cabeza *>(p) - 1; }

// ---- Who asked, in texts of our own: those of a module that is unloaded go with it.

struct nombre { // the text stands behind it
    const nombre *siguiente;
    const char *texto() const { return reinterpret_cast<const char *>(this + 1); }
};
constinit std::atomic<const nombre *> nombres{nullptr};
constexpr unsigned BITS_VISTOS = 12;
constinit std::atomic<const char *> vistos[size_t{1} << BITS_VISTOS] = {}; // by the caller's address; its text decides

// The kept copy of a module's text, made at its first block; null when there is no memory for it.
[[gnu::cold, gnu::noinline]] const char *apunta_nombre(const char *modulo) {
    // Names are few and never leave the chain, so it is walked without a lock.
    const nombre *primero = nombres.load(std::memory_order_acquire);
    for (const nombre *n = primero; n != nullptr; n = n->siguiente)
        if (std::strcmp(n->texto(), modulo) == 0) return n->texto();
    const size_t bytes = std::strlen(modulo) + 1;
    auto *nuevo = static_cast<nombre *>(std::malloc(sizeof(nombre) + bytes));
    if (nuevo == nullptr) return nullptr;
    std::memcpy(nuevo + 1, modulo, bytes);
    // Two threads at the same name leave it twice: harmless.
    nuevo->siguiente = primero;
    while (
        !nombres.compare_exchange_weak(nuevo->siguiente, nuevo, std::memory_order_release, std::memory_order_relaxed)) {
    }
    return nuevo->texto();
}

// The kept copy of a module's text, found without a walk for the callers seen before.
const char *propio_nombre(const char *modulo) {
    if (modulo == nullptr) return nullptr;
    std::atomic<const char *> &visto =
        vistos[(uint64_t{reinterpret_cast<uintptr_t>(modulo)} * 0x9E3779B97F4A7C15u) >> (64 - BITS_VISTOS)];
    const char *n = visto.load(std::memory_order_acquire);
    if (n != nullptr && std::strcmp(n, modulo) == 0) [[likely]]
        return n;
    n = apunta_nombre(modulo);
    visto.store(n, std::memory_order_release);
    return n;
}

// Fills the head and enters the block in the map; null hands null on.
void *estrena(cabeza *c, size_t tamanyo, const char *modulo, uint32_t linea) {
    if (c == nullptr) return nullptr;
    c->modulo = propio_nombre(modulo);
    c->linea_y_tamanyo = (uint64_t{linea} << BITS_TAMANYO) | tamanyo;
    if (apunta(c + 1)) [[likely]]
        return c + 1;
    std::free(c);
    return nullptr;
}

void *reserva(size_t tamanyo, const char *modulo, uint32_t linea) {
    if (!permitido(tamanyo)) [[unlikely]]
        return nullptr;
    return estrena(static_cast<cabeza *>(std::malloc(tamanyo + sizeof(cabeza))), tamanyo, modulo, linea);
}

void *reserva_a_cero(size_t tamanyo, const char *modulo, uint32_t linea) {
    if (!permitido(tamanyo)) [[unlikely]]
        return nullptr;
    return estrena(static_cast<cabeza *>(std::calloc(1, tamanyo + sizeof(cabeza))), tamanyo, modulo, linea);
}

// Nobody above can go on without the block: the host's handler, or one line, and the process ends.
[[noreturn, gnu::cold]] void sin_memoria(const char *modulo, uint32_t linea) {
    if (const auto h = el_agotamiento.dame(); h.funcion != nullptr) h.funcion(h.datos);
    vn::trampa_abierta() = nullptr; // no trap keeps this to itself
    error_interno_msg("memoria != NULL", modulo, linea, "memoria agotada", 0);
    std::abort();
}

void *exige(void *p, const char *modulo, uint32_t linea) {
    if (p == nullptr) [[unlikely]]
        sin_memoria(modulo, linea);
    return p;
}

// Calls funcion(number) for each bit of a word that is set.
template <class F> void por_cada_bit(const palabra &en, size_t primero, F &&funcion) {
    for (uint64_t bits = en.load(std::memory_order_relaxed); bits != 0; bits &= bits - 1)
        funcion(primero + static_cast<size_t>(__builtin_ctzll(bits)));
}

// Calls funcion(block, size, module, line) for each live block.
template <class F> void por_cada_vivo(F &&funcion) {
    const auto di = [&](size_t grano) {
        auto *p = reinterpret_cast<void *>(grano << BITS_GRANO);
        const cabeza *c = cabeza_de(p);
        funcion(p, static_cast<size_t>(c->linea_y_tamanyo & ((uint64_t{1} << BITS_TAMANYO) - 1)), c->modulo,
                static_cast<uint32_t>(c->linea_y_tamanyo >> BITS_TAMANYO));
    };
    for (const auto &sitio : hojas) {
        const hoja_de_bits *hoja = sitio.load(std::memory_order_acquire);
        if (hoja == nullptr) continue;
        const size_t primer_grano = hoja->numero << (BITS_HOJA - BITS_GRANO);
        for (size_t r = 0; r < std::size(hoja->resumen); ++r) {
            por_cada_bit(hoja->resumen[r], r << 6, [&](size_t grupo) {
                for (size_t w = grupo << 6; w < (grupo + 1) << 6; ++w)
                    por_cada_bit(hoja->bits[w], primer_grano + (w << 6), di);
            });
        }
    }
}

void *&puntero_en(void *pp) { return *static_cast<void **>(pp); }

} // namespace

void *vornspy_nousar_malloc(size_t tamanyo, const char *modulo, uint32_t linea) {
    return exige(reserva(tamanyo, modulo, linea), modulo, linea);
}

void *vornspy_nousar_calloc(size_t num, size_t tamanyo, const char *modulo, uint32_t linea) {
    return exige(reserva_a_cero(producto(num, tamanyo), modulo, linea), modulo, linea);
}

void *vornspy_nousar_realloc(void *p, size_t tamanyo, const char *modulo, uint32_t linea) {
    if (p == nullptr) return exige(reserva(tamanyo, modulo, linea), modulo, linea);
    if (!AFIRMA(vornspy_es_memoria_reservada_valida(p) == CIERTO)) return nullptr;
    if (!permitido(tamanyo)) sin_memoria(modulo, linea);
    // Out of the map first: once the platform has moved the block, another thread may be given its old place.
    tacha(p);
    auto *c = static_cast<cabeza *>(std::realloc(cabeza_de(p), tamanyo + sizeof(cabeza)));
    // The platform has kept the old block: it is alive again.
    if (c == nullptr) {
        apunta(p);
        sin_memoria(modulo, linea);
    }
    return exige(estrena(c, tamanyo, modulo, linea), modulo, linea);
}

void *vornspy_reserva_seguro(size_t num, size_t tamanyo, vnbool a_cero, const char *modulo, uint32_t linea) {
    // After a report, zeros are the safer of the two.
    if (!AFIRMA_LOGICO(a_cero)) a_cero = CIERTO;
    const size_t total = producto(num, tamanyo);
    return a_cero == CIERTO ? reserva_a_cero(total, modulo, linea) : reserva(total, modulo, linea);
}

void vornspy_nousar_free_pp(void *p, size_t) {
    if (!AFIRMA_NO_NULO(p)) return;
    void *bloque = std::exchange(puntero_en(p), nullptr);
    if (!AFIRMA_TEXTO(bloque != nullptr, "(*p) != NULL")) return;
    if (!AFIRMA_TEXTO(tacha(bloque), "vornspy_es_memoria_reservada_valida(*p) == CIERTO")) return;
    std::free(cabeza_de(bloque));
}

void *vornspy_nousar_asigna_doble_puntero_no_null(void *p) {
    if (!AFIRMA_NO_NULO(p)) return nullptr;
    if (!AFIRMA_TEXTO(puntero_en(p) != nullptr, "(*p) != NULL")) return nullptr;
    return std::exchange(puntero_en(p), nullptr);
}

void *vornspy_nousar_asigna_doble_puntero(void *p) {
    if (!AFIRMA_NO_NULO(p)) return nullptr;
    return std::exchange(puntero_en(p), nullptr);
}

void *vornspy_nousar_copia_puntero_opcional(const void *p, vnfunc_copia copiador) {
    if (!AFIRMA_NO_NULO(copiador)) return nullptr;
    return p == nullptr ? nullptr : copiador(p);
}

void vornspy_nousar_destruye_puntero_opcional(void *p, vnfunc_destruye destructor) {
    if (!EXIGE(p, destructor)) return;
    if (puntero_en(p) != nullptr) destructor(p);
}

vnbool vornspy_es_memoria_reservada_valida(const void *p) { return vn::logico(esta_vivo(p)); }

// ---------------------------------------------------------------- packs of values

struct vnparametros {
    uint32_t numero;
    uint8_t tamanyo[16];
    uint64_t valor[16];
};

vnparametros *vornspy_parametro(int n, ...) {
    if (!AFIRMA(n >= 1 && n <= 16)) n = 0;
    vn::propio<vnparametros> pack(static_cast<vnparametros *>(vornspy_calloc(1, sizeof(vnparametros))));
    // The count follows each value, so that a wrong size ends the pack before it.
    va_list args;
    va_start(args, n);
    for (int i = 0; i < n; ++i) {
        const int tamanyo = va_arg(args, int);
        if (!AFIRMA(tamanyo == 1 || tamanyo == 2 || tamanyo == 4 || tamanyo == 8)) break;
        // Narrow values travel as int.
        pack->valor[i] =
            tamanyo == 8 ? va_arg(args, uint64_t) : va_arg(args, unsigned) & (~uint64_t{0} >> (64 - 8 * tamanyo));
        pack->tamanyo[i] = static_cast<uint8_t>(tamanyo);
        pack->numero = static_cast<uint32_t>(i) + 1;
    }
    va_end(args);
    return pack.release();
}

void *vornspy_parametro_puntero(const vnparametros *parametros, uint32_t i) {
    if (!AFIRMA_NO_NULO(parametros) || !AFIRMA(i < parametros->numero)) return nullptr;
    if (!AFIRMA(parametros->tamanyo[i] == sizeof(void *))) return nullptr;
    return reinterpret_cast<void *>(static_cast<uintptr_t>(parametros->valor[i]));
}

uint64_t vornspy_parametro_entero(const vnparametros *parametros, uint32_t i) {
    if (!AFIRMA_NO_NULO(parametros) || !AFIRMA(i < parametros->numero)) return 0;
    return parametros->valor[i];
}

void vornspy_destruye_parametros(vnparametros **parametros) {
    if (!AFIRMA_NO_NULO(parametros)) return;
    vornspy_free_pp(parametros, sizeof(vnparametros));
}

// ---------------------------------------------------------------- what is alive

void vornspy_recorre_bloques_vivos(vnfunc_bloque funcion, void *datos) {
    if (!AFIRMA_NO_NULO(funcion)) return;
    por_cada_vivo([&](const void *p, size_t tamanyo, const char *modulo, uint32_t linea) {
        funcion(p, tamanyo, modulo, linea, datos);
    });
}

uint64_t vornspy_bloques_vivos(uint64_t *bytes) {
    uint64_t bloques = 0, suma = 0;
    por_cada_vivo([&](const void *, size_t tamanyo, const char *, uint32_t) {
        ++bloques;
        suma += tamanyo;
    });
    if (bytes != nullptr) *bytes = suma;
    return bloques;
}

uint64_t vornspy_informa_de_fugas(void) {
    struct cuenta {
        uint64_t bloques = 0, bytes = 0;
    };
    // One sum per place that asked: a loop that leaks is one line of the account.
    std::map<std::pair<const char *, uint32_t>, cuenta> por_sitio;
    uint64_t total = 0;
    por_cada_vivo([&](const void *, size_t tamanyo, const char *modulo, uint32_t linea) {
        cuenta &c = por_sitio[{modulo, linea}];
        ++c.bloques;
        c.bytes += tamanyo;
        ++total;
    });
    for (const auto &[sitio, c] : por_sitio) {
        char texto[256];
        const int n =
            std::snprintf(texto, sizeof texto, "%s, %u: %llu bloques sin liberar, %llu bytes\n",
                          sitio.first != nullptr ? sitio.first : "?", sitio.second,
                          static_cast<unsigned long long>(c.bloques), static_cast<unsigned long long>(c.bytes));
        // A line that did not fit is written as far as it went.
        if (n > 0) vn::plat::escribe_error(texto, std::min(static_cast<size_t>(n), sizeof texto - 1));
    }
    return total;
}

void vornspy_informa_de_fugas_al_salir(vnbool activo) {
    if (!AFIRMA_LOGICO(activo)) return;
    static std::atomic<bool> registrado{false};
    fugas_al_salir = activo == CIERTO;
    if (activo == CIERTO && !registrado.exchange(true)) {
        // The call at the end needs this library's own code.
        vn::plat::fija_en_memoria(&fugas_al_salir);
        std::atexit([] {
            // Whichever of the two was registered first, the list runs before its blocks are counted.
            vnatexit_ejecuta();
            if (fugas_al_salir) vornspy_informa_de_fugas();
        });
    }
}

void vornspy_instala_memoria_agotada(vnfunc_memoria_agotada funcion, void *datos) {
    el_agotamiento.pon(funcion, datos);
}

void vornspy_instala_permiso(vnfunc_permiso permiso, void *datos) { el_permiso.pon(permiso, datos); }
