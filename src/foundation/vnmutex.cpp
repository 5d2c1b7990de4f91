#define VN_MODULO "vnmutex (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/vnmutex.h"
#include "foundation/afirma.h"
#include "foundation/eterno_priv.h"
#include "foundation/platform/cerrojo.h"
#include "foundation/vornspy.h"
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <optional>
#include <string>
#include <thread>

using reloj = std::chrono::steady_clock;

namespace {

constinit std::atomic<uint32_t> el_plazo{30000};
constinit std::atomic<uint64_t> abandonados{0};

// The lock itself: all mutexes of one name and kind share it.
struct nucleo {
    explicit nucleo(const std::string *nombre_entre_programas) {
        if (nombre_entre_programas != nullptr) entre_programas.emplace(*nombre_entre_programas);
    }

    std::mutex cerrojo; // guards what follows and the count of each handle; held for a moment only
    std::condition_variable libre;
    std::thread::id dueno;
    uint32_t veces = 0;
    std::optional<vn::plat::cerrojo> entre_programas; // used by the thread that is `dueno` alone
};

// By kind and name, those that a handle uses.
struct registro {
    std::mutex cerrojo, creacion;
    std::map<std::string, std::weak_ptr<nucleo>> por_nombre;
};

registro &el_registro() { return vn::eterno<registro>(); }

// A text that is the name of a file and of a system object everywhere: other bytes in hexadecimal, a long one
// cut and told apart by its hash.
std::string nombre_sencillo(const std::string &nombre) {
    constexpr char CIFRAS[] = "0123456789ABCDEF";
    constexpr size_t MAXIMO = 100;
    std::string r;
    uint64_t resumen = 0xcbf29ce484222325u; // FNV-1a
    for (const char c : nombre) {
        const auto b = static_cast<unsigned char>(c);
        resumen = (resumen ^ b) * 0x100000001b3u;
        const auto letra = static_cast<unsigned char>(b | 32);
        if ((letra >= 'a' && letra <= 'z') || (b >= '0' && b <= '9') || b == '_' || b == '-')
            r += c;
        else
            ((r += '%') += CIFRAS[b >> 4]) += CIFRAS[b & 15];
    }
    if (r.size() <= MAXIMO) return r;
    r.resize(MAXIMO);
    r += '~';
    for (int i = 60; i >= 0; i -= 4) r += CIFRAS[resumen >> i & 15];
    return r;
}

enum class ambito : char { programa = 'a', maquina = 'm' };

std::shared_ptr<nucleo> nucleo_de(const std::string &nombre, ambito donde) {
    registro &r = el_registro();
    const std::string sencillo = nombre_sencillo(nombre);
    const std::lock_guard guarda(r.cerrojo);
    std::weak_ptr<nucleo> &w = r.por_nombre[static_cast<char>(donde) + sencillo];
    if (auto hay = w.lock()) return hay;
    auto nuevo = std::make_shared<nucleo>(donde == ambito::maquina ? &sencillo : nullptr);
    w = nuevo;
    return nuevo;
}

} // namespace

struct vnmutex {
    std::shared_ptr<nucleo> suyo;
    uint32_t veces = 0; // how often it was entered through this handle
};

namespace {

vnmutex *crea(const std::string &nombre, ambito donde) {
    auto n = nucleo_de(nombre, donde);
    return new (vornspy_malloc(sizeof(vnmutex))) vnmutex{std::move(n), 0};
}

void libera(vnmutex **m) {
    registro &r = el_registro();
    {
        const std::lock_guard guarda(r.cerrojo);
        (*m)->~vnmutex();
        std::erase_if(r.por_nombre, [](const auto &par) { return par.second.expired(); });
    }
    vornspy_free_pp(m, 1);
}

bool entra(vnmutex &m) {
    nucleo &n = *m.suyo;
    const auto fin = reloj::now() + std::chrono::milliseconds(el_plazo);
    const auto yo = std::this_thread::get_id();
    std::unique_lock guarda(n.cerrojo);
    if (n.veces == 0 || n.dueno != yo) {
        if (!n.libre.wait_until(guarda, fin, [&] { return n.veces == 0; })) return false;
        n.dueno = yo;
        n.veces = 1;
        if (n.entre_programas) {
            guarda.unlock();
            const auto queda = std::chrono::ceil<std::chrono::milliseconds>(fin - reloj::now()).count();
            const auto como = n.entre_programas->entra(queda > 0 ? static_cast<uint32_t>(queda) : 0);
            guarda.lock();
            if (como == vn::plat::cerrojo::toma::no) {
                n.veces = 0;
                n.libre.notify_one();
                return false;
            }
            if (como == vn::plat::cerrojo::toma::abandonado) ++abandonados;
        }
    } else
        ++n.veces;
    ++m.veces;
    return true;
}

// Leaves `veces` times; the caller holds n.cerrojo.
void sal(vnmutex &m, uint32_t veces) {
    nucleo &n = *m.suyo;
    m.veces -= veces;
    n.veces -= veces;
    if (n.veces > 0) return;
    if (n.entre_programas) n.entre_programas->sal();
    n.dueno = {};
    n.libre.notify_one();
}

bool es_mio(const vnmutex &m) { return m.veces > 0 && m.suyo->dueno == std::this_thread::get_id(); }

} // namespace

vnmutex *vnmutex_crea(const char *nombre) {
    if (!AFIRMA_NO_NULO(nombre) || !AFIRMA(nombre[0] != 0)) return nullptr;
    return crea(nombre, ambito::programa);
}

vnmutex *vnmutex_crea_u(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre) || !AFIRMA(nombre[0] != 0)) return nullptr;
    // Plain ASCII is the name that vnmutex_crea knows; the rest only has to be told apart.
    std::string n;
    for (; *nombre != 0; ++nombre) {
        const auto c = static_cast<uint16_t>(*nombre);
        if (c >= 0x80) (n += '\x01') += static_cast<char>(c >> 8);
        n += static_cast<char>(c & 0xFF);
    }
    return crea(n, ambito::programa);
}

vnmutex *vnmutex_crea_entre_aplicaciones(const char *nombre) {
    if (!AFIRMA_NO_NULO(nombre) || !AFIRMA(nombre[0] != 0)) return nullptr;
    return crea(nombre, ambito::maquina);
}

vnbool vnmutex_entra(vnmutex *m) {
    if (!AFIRMA_NO_NULO(m) || !AFIRMA(vornspy_es_memoria_reservada_valida(m) == CIERTO)) return FALSO;
    return entra(*m) ? CIERTO : FALSO;
}

void vnmutex_sal(vnmutex *m) {
    if (!AFIRMA_NO_NULO(m) || !AFIRMA(vornspy_es_memoria_reservada_valida(m) == CIERTO)) return;
    bool dentro = false;
    {
        const std::lock_guard guarda(m->suyo->cerrojo);
        dentro = es_mio(*m);
        if (dentro) sal(*m, 1);
    }
    AFIRMA(dentro);
}

vnbool vnmutex_entra_creando_entre_aplicaciones_si_es_necesario(vnmutex **m, const char *nombre) {
    if (!AFIRMA_NO_NULO(m) || !AFIRMA_NO_NULO(nombre) || !AFIRMA(nombre[0] != 0)) return FALSO;
    vnmutex *el_mutex = nullptr;
    {
        const std::lock_guard guarda(el_registro().creacion);
        if (*m == nullptr) *m = vnmutex_crea_entre_aplicaciones(nombre);
        el_mutex = *m;
    }
    return el_mutex != nullptr ? vnmutex_entra(el_mutex) : FALSO;
}

void vnmutex_destruye(vnmutex **m) {
    if (!AFIRMA_NO_NULO(m) || *m == nullptr) return;
    if (!AFIRMA(vornspy_es_memoria_reservada_valida(*m) == CIERTO)) return;
    bool dentro = false, de_otra_hebra = false;
    {
        const std::lock_guard guarda((*m)->suyo->cerrojo);
        dentro = (*m)->veces > 0;
        de_otra_hebra = dentro && !es_mio(**m);
        if (dentro && !de_otra_hebra) sal(**m, (*m)->veces);
    }
    // The other thread is still to leave through it.
    if (!AFIRMA(!de_otra_hebra)) return;
    libera(m);
    AFIRMA(!dentro);
}

void vnmutex_destruye_saliendo(vnmutex **m) {
    if (!AFIRMA_NO_NULO(m) || *m == nullptr) return;
    if (!AFIRMA(vornspy_es_memoria_reservada_valida(*m) == CIERTO)) return;
    {
        const std::lock_guard guarda((*m)->suyo->cerrojo);
        if ((*m)->veces > 0) sal(**m, (*m)->veces);
    }
    libera(m);
}

uint32_t vnmutex_establece_plazo(uint32_t milisegundos) { return el_plazo.exchange(milisegundos); }

uint64_t vnmutex_numero_de_abandonados(void) { return abandonados; }
