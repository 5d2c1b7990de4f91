#define VN_MODULO "vnmutex (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/vnmutex.h"
#include "foundation/platform/cerrojo.h"
#include "foundation/sistema/avisos.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/eterno_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/vornspy.h"
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <list>
#include <map>
#include <memory>
#include <mutex>
#include <new>
#include <optional>
#include <string>
#include <thread>
#include <utility>
#include <vector>

using reloj = std::chrono::steady_clock;

namespace {

constinit std::atomic<uint32_t> el_plazo{30000};
constinit std::atomic<uint64_t> abandonados{0};
// How often this process is a copy of one that split: what a handle entered in the process before is not entered.
constinit std::atomic<uint32_t> generacion{0};

// The lock itself: all mutexes of one name and kind share it.
struct nucleo {
    explicit nucleo(const std::string *nombre_entre_programas) {
        if (nombre_entre_programas != nullptr) entre_programas.emplace(*nombre_entre_programas);
    }

    std::mutex cerrojo; // guards what follows and the count of each handle; held for a moment only
    std::condition_variable libre;
    std::list<std::thread::id> cola; // those that wait, in the order in which they came
    std::thread::id dueno;
    uint32_t veces = 0;
    std::optional<vn::plat::cerrojo> entre_programas; // used by the thread that is `dueno` alone
};

// By kind and name, those that a handle uses.
struct registro {
    // `cerrojo` guards the names, `creacion` the making of a handle that several threads share.
    std::mutex cerrojo, creacion;
    std::map<std::string, std::weak_ptr<nucleo>> por_nombre;
    std::vector<std::shared_ptr<nucleo>> al_bifurcarse; // those whose guard is held while the process splits
    registro() { vn::plat::al_bifurcarse(para, sigue, sigue_en_el_hijo); }

    static void para();
    static void sigue();
    static void sigue_en_el_hijo();
};

registro &el_registro() { return vn::eterno<registro>(); }

// While the process splits no other thread is halfway in what the child goes on with.
void registro::para() {
    registro &r = el_registro();
    r.creacion.lock();
    r.cerrojo.lock();
    // Each core is kept while its guard is held; a name without one has no guard to hold.
    for (const auto &par : r.por_nombre)
        if (auto n = par.second.lock()) r.al_bifurcarse.push_back(std::move(n));
    for (const auto &n : r.al_bifurcarse) n->cerrojo.lock();
}

void registro::sigue() {
    registro &r = el_registro();
    const auto parados = std::exchange(r.al_bifurcarse, {}); // what only this owns goes after its guard is free
    for (const auto &n : parados) n->cerrojo.unlock();
    r.cerrojo.unlock();
    r.creacion.unlock();
}

// In the child no thread is inside a lock or waits for one; to the locks between programs it is one program more.
void registro::sigue_en_el_hijo() {
    ++generacion;
    for (const auto &n : el_registro().al_bifurcarse) {
        new (&n->libre) std::condition_variable; // the old one counts threads that are not here
        n->cola.clear();
        n->dueno = {};
        n->veces = 0;
        if (n->entre_programas) n->entre_programas->olvida();
    }
    sigue();
}

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
        if ((letra >= 'a' && letra <= 'z') || (b >= '0' && b <= '9') || b == '_' || b == '-') r += c;
        else ((r += '%') += CIFRAS[b >> 4]) += CIFRAS[b & 15];
    }
    if (r.size() <= MAXIMO) return r;
    r.resize(MAXIMO);
    r += '~';
    for (int i = 60; i >= 0; i -= 4) r += CIFRAS[resumen >> i & 15];
    return r;
}

// The kind begins the key in the registry: one name is a lock of this program and another of the machine.
enum class ambito : char { programa = 'a', maquina = 'm' };

std::shared_ptr<nucleo> nucleo_de(const std::string &nombre, ambito donde) {
    registro &r = el_registro();
    const std::string sencillo = nombre_sencillo(nombre);
    const std::lock_guard guarda(r.cerrojo);
    std::weak_ptr<nucleo> &w = r.por_nombre[static_cast<char>(donde) + sencillo];
    // One lock to a name, as long as some handle uses it.
    if (auto hay = w.lock()) return hay;
    auto nuevo = std::make_shared<nucleo>(donde == ambito::maquina ? &sencillo : nullptr);
    w = nuevo;
    return nuevo;
}

} // namespace

struct vnmutex {
    std::shared_ptr<nucleo> suyo;
    uint32_t veces_dentro = 0; // how often it was entered through this handle, in that generation
    uint32_t cuando = 0;

    uint32_t &veces() {
        // What the parent had entered through this handle does not count in a child.
        if (const uint32_t ahora = generacion; cuando != ahora) {
            cuando = ahora;
            veces_dentro = 0;
        }
        return veces_dentro;
    }
};

namespace {

vnmutex *crea(const std::string &nombre, ambito donde) {
    auto n = nucleo_de(nombre, donde);
    return new (vornspy_malloc(sizeof(vnmutex))) vnmutex{std::move(n)};
}

void libera(vnmutex **m) {
    registro &r = el_registro();
    {
        const std::lock_guard guarda(r.cerrojo);
        // The handle's own reference goes first, so that its name counts as unused.
        (*m)->~vnmutex();
        // Names that nobody uses any more go with their last handle.
        std::erase_if(r.por_nombre, [](const auto &par) { return par.second.expired(); });
    }
    vornspy_free_pp(m, 1);
}

// Makes this thread the owner, in turn; false when the time passes. The caller holds n.cerrojo.
bool espera_turno(nucleo &n, std::unique_lock<std::mutex> &guarda, reloj::time_point fin) {
    const auto yo = std::this_thread::get_id();
    if (n.veces > 0 || !n.cola.empty()) {
        // In turn, so that nobody waits for ever behind those that enter again and again.
        const auto mio = n.cola.insert(n.cola.end(), yo);
        const bool bien = n.libre.wait_until(guarda, fin, [&] { return n.veces == 0 && mio == n.cola.begin(); });
        n.cola.erase(mio);
        if (!bien) {
            n.libre.notify_all(); // the next one may be the first now
            return false;
        }
    }
    n.dueno = yo;
    n.veces = 1;
    return true;
}

// The lock between programs, after that of the threads. The caller has let go of n.cerrojo.
bool entra_entre_programas(vn::plat::cerrojo &c, reloj::time_point fin) {
    // The warning is given when the lock becomes one of this user alone, not at each entry.
    const bool decia = c.es_de_un_usuario();
    // What is left of the wait, which counts from the entry on.
    const auto queda = std::chrono::ceil<std::chrono::milliseconds>(fin - reloj::now()).count();
    const auto como = c.entra(queda > 0 ? static_cast<uint32_t>(queda) : 0);
    if (como == vn::plat::cerrojo::toma::no) return false;
    if (como == vn::plat::cerrojo::toma::abandonado) ++abandonados;
    if (c.es_de_un_usuario() && !decia)
        assert_aviso(VNU("vnmutex: the lock that the machine shares was refused; only programs of this user share it"));
    return true;
}

bool entra(vnmutex &m) {
    nucleo &n = *m.suyo;
    const auto fin = reloj::now() + std::chrono::milliseconds(el_plazo);
    std::unique_lock guarda(n.cerrojo);
    // A thread that is inside enters once more without waiting.
    if (n.veces > 0 && n.dueno == std::this_thread::get_id()) {
        ++n.veces;
    } else {
        if (!espera_turno(n, guarda, fin)) return false;
        if (n.entre_programas) {
            // Other threads of this program wait in the queue meanwhile, and need its guard for that.
            guarda.unlock();
            const bool bien = entra_entre_programas(*n.entre_programas, fin);
            guarda.lock();
            if (!bien) {
                // The other programs kept the lock: the turn goes to the next thread.
                n.veces = 0;
                n.libre.notify_all();
                return false;
            }
        }
    }
    ++m.veces();
    return true;
}

// Leaves `veces` times; the caller holds n.cerrojo.
void sal(vnmutex &m, uint32_t veces) {
    nucleo &n = *m.suyo;
    // The count of this handle and that of the lock: others of the same name may still be inside.
    m.veces() -= veces;
    n.veces -= veces;
    if (n.veces > 0) return;
    if (n.entre_programas) n.entre_programas->sal();
    n.dueno = {};
    n.libre.notify_all();
}

bool es_mio(vnmutex &m) { return m.veces() > 0 && m.suyo->dueno == std::this_thread::get_id(); }

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
    return vn::logico(entra(*m));
}

void vnmutex_sal(vnmutex *m) {
    if (!AFIRMA_NO_NULO(m) || !AFIRMA(vornspy_es_memoria_reservada_valida(m) == CIERTO)) return;
    bool dentro = false;
    {
        const std::lock_guard guarda(m->suyo->cerrojo);
        dentro = es_mio(*m);
        if (dentro) sal(*m, 1);
    }
    // The report comes when the guard is free again: the receiver is the host's code.
    AFIRMA(dentro);
}

vnbool vnmutex_entra_creando_entre_aplicaciones_si_es_necesario(vnmutex **m, const char *nombre) {
    if (!EXIGE(m, nombre) || !AFIRMA(nombre[0] != 0)) return FALSO;
    vnmutex *el_mutex = nullptr;
    {
        // Threads that come together make one handle; they wait for the lock itself without this guard.
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
        dentro = (*m)->veces() > 0;
        de_otra_hebra = dentro && !es_mio(**m);
        if (dentro && !de_otra_hebra) sal(**m, (*m)->veces());
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
        if ((*m)->veces() > 0) sal(**m, (*m)->veces());
    }
    libera(m);
}

uint32_t vnmutex_establece_plazo(uint32_t milisegundos) { return el_plazo.exchange(milisegundos); }

uint64_t vnmutex_numero_de_abandonados(void) { return abandonados; }
