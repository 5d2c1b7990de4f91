// The sweep of arguments: calls every exported operation with each good and bad value of each parameter,
// alone and in pairs, and holds the answers to what the headers promise. One process runs operation after
// operation; when it dies or hangs, barrido.py names the call and goes on with the next.
//
// usage: barrido OUTPUT PAIRS SECONDS FROM PART PARTS [NAME]: operations k >= FROM with k mod PARTS = PART;
// with NAME, only that one, telling each call. SECONDS: how long a call may take.
#include "barrido.h"
#include "foundation/sistema/avisos.h"
#include "foundation/suelo/error_interno.h"
#include "foundation/suelo/operaciones_fichero.h"
#include "foundation/suelo/trapable.h"
#include "foundation/suelo/vornspy.h"
#include <algorithm>
#include <atomic>
#include <chrono>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <new>
#include <set>
#include <string_view>
#include <thread>
#include <utility>

namespace barrido {
namespace {

constexpr size_t CENTINELA = 32;
constexpr unsigned char RELLENO = 0xA5;
constexpr size_t MAXIMO_BUFER = 65536;
constexpr unsigned MAXIMO_FALTAS = 6;
#if defined(__has_feature)
#if __has_feature(address_sanitizer)
#define VN_BARRIDO_SANEADO 1
#endif
#endif
#ifdef VN_BARRIDO_SANEADO
constexpr bool SANEADO = true;
#else
constexpr bool SANEADO = false;
#endif

FILE *salida;
bool habla = false;
std::atomic<uint64_t> numero_de_llamada{0};

using indices = std::vector<size_t>;

// One operation while it is swept.
class barredor {
  public:
    explicit barredor(const operacion &op) : op_(op), params_(op.da_parametros()) {}

    // All the calls, the default one first.
    void barre(size_t tope);
    // The second time over finds what the first one only filled lazily.
    bool crece(size_t tope);
    // Names the first call that leaves blocks behind.
    void nombra_fuga(size_t tope);

    uint64_t llamadas = 0, anotaciones = 0, agotamientos = 0;

  private:
    struct argumento {
        const valor *v;
        void *objeto = nullptr; // fresh object
        void *bloque = nullptr; // slot, buffer or copy
        size_t bytes = 0;       // of the block
    };

    template <class F> void recorre(size_t tope, F &&f);
    void prueba(const indices &cuales, bool solo);
    bool llama(const indices &cuales, bool atrapada, uint64_t &informes, bool *neutro = nullptr);
    void agota_la_memoria();
    void prepara(const indices &cuales, std::vector<argumento> &args, std::vector<dato> &d);
    void recoge(const indices &cuales, std::vector<argumento> &args, const std::vector<dato> &d, dato r,
                bool informado);
    std::string describe(const indices &cuales, bool atrapada) const;
    void falta(const indices &cuales, bool atrapada, const std::string &que);
    bool deja_pasar(size_t i, const valor &v) const;
    bool es_neutro(const std::vector<dato> &d, dato r) const;

    const operacion &op_;
    parametros params_;
    bool agotando_ = false;
    std::set<std::string> faltas_;
};

bool vivo(const void *p) { return p != nullptr && vornspy_es_memoria_reservada_valida(p) == CIERTO; }

struct en_trampa {
    const operacion *op;
    const dato *a;
    dato *r;
};

void llama_en_trampa(void *datos) {
    const auto *e = static_cast<const en_trampa *>(datos);
    e->op->llama(e->a, *e->r);
}

std::string ultimo_informe; // its expression

void anota_informe(const vninforme *i, void *) {
    ultimo_informe = i->expresion != nullptr ? i->expresion : "";
    for (const vnwchar *p = i->expresion_u; p != nullptr && *p != 0; ++p)
        ultimo_informe += *p < 128 ? static_cast<char>(*p) : '?';
}

vnbool responde_no(vntipo_aviso, const vnwchar *, void *) { return FALSO; }

// The allocations of the call that are still allowed; the next one fails, and so do all after it if
// `para_siempre`.
struct {
    bool armado = false, para_siempre = false, llegado = false;
    uint64_t quedan = 0;
} agotamiento;

bool toca_fallar() {
    if (!agotamiento.armado || agotamiento.quedan-- != 0) return false;
    agotamiento.llegado = true;
    if (agotamiento.para_siempre) agotamiento.quedan = 0;
    else agotamiento.armado = false;
    return true;
}

vnbool hay_memoria(size_t tamanyo, void *) {
    if (toca_fallar()) return FALSO;
    return tamanyo <= (size_t{64} << 20) ? CIERTO : FALSO; // no swept call needs more in one block
}

// All frames between are C++: what the call holds is released on the way.
struct agotada {};
void se_agota(void *) { throw agotada{}; }

// Destructors take files away, and nothing can be thrown out of those: there is memory for that.
template <auto Entrada, typename... A> vnerror_fichero con_memoria(A... a) {
    const bool armado = std::exchange(agotamiento.armado, false);
    const vnerror_fichero e = (operaciones_fichero_del_sistema()->*Entrada)(a...);
    agotamiento.armado = armado;
    return e;
}

// The swept operations may have taken them away.
void instala_receptores() {
    error_interno_instala_receptor(anota_informe, nullptr);
    avisos_instala_receptor(responde_no, nullptr);
    vornspy_instala_permiso(hay_memoria, nullptr);
    vornspy_instala_memoria_agotada(se_agota, nullptr);
    vnoperaciones_fichero tabla = *operaciones_fichero_del_sistema();
    tabla.borra = con_memoria<&vnoperaciones_fichero::borra>;
    tabla.es_su_nombre = con_memoria<&vnoperaciones_fichero::es_su_nombre>;
    operaciones_fichero_instala(&tabla);
}

std::string barredor::describe(const indices &cuales, bool atrapada) const {
    std::string s = op_.nombre;
    s += '(';
    for (size_t i = 0; i < params_.size(); ++i)
        s += std::string(i ? ", " : "") + params_[i].nombre + '=' + params_[i].valores[cuales[i]].nombre;
    s += atrapada ? "), trapped" : ")";
    if (agotando_) s += ", memory out at allocation " + std::to_string(agotamiento.quedan + 1);
    return s;
}

void barredor::falta(const indices &cuales, bool atrapada, const std::string &que) {
    if (faltas_.size() >= MAXIMO_FALTAS || !faltas_.insert(que).second) return;
    std::fprintf(salida, "X\t%s\t%s\t%s\n", op_.nombre, que.c_str(), describe(cuales, atrapada).c_str());
    std::fflush(salida);
}

bool barredor::deja_pasar(size_t i, const valor &v) const {
    if (op_.deja_pasar == nullptr) return false;
    const std::string este = std::string(";") + params_[i].nombre + '=' + v.nombre + ';';
    return (std::string(";") + op_.deja_pasar + ';').find(este) != std::string::npos;
}

bool barredor::es_neutro(const std::vector<dato> &d, dato r) const {
    const std::string_view esperado = op_.neutro;
    if (esperado == "*") return true;
    if (esperado == "first") return r.p == d[0].p;
    return std::to_string(r.i) == esperado;
}

// Room of exactly `bytes`, so that a sanitizer sees the first byte beyond; elsewhere a sentinel does.
void *reserva_bloque(size_t bytes) {
    const size_t total = bytes + (SANEADO ? 0 : CENTINELA);
    auto *p = static_cast<unsigned char *>(std::malloc(total != 0 ? total : 1));
    if (p == nullptr) std::abort();
    std::memset(p, 0, bytes);
    if (!SANEADO) std::memset(p + bytes, RELLENO, CENTINELA);
    return p;
}

bool intacto(const void *bloque, size_t bytes) {
    if (SANEADO) return true;
    const auto *p = static_cast<const unsigned char *>(bloque) + bytes;
    for (size_t i = 0; i < CENTINELA; ++i)
        if (p[i] != RELLENO) return false;
    return true;
}

void barredor::prepara(const indices &cuales, std::vector<argumento> &args, std::vector<dato> &d) {
    const size_t n = params_.size();
    args.resize(n);
    d.assign(n, dato{});
    for (size_t i = 0; i < n; ++i) {
        const valor &v = params_[i].valores[cuales[i]];
        args[i].v = &v;
        switch (v.clase) {
        case clase_valor::objeto: d[i].p = args[i].objeto = v.fab->crea(); break;
        case clase_valor::hueco:
            args[i].objeto = v.d.i != 0 ? v.fab->crea() : nullptr;
            args[i].bytes = sizeof(void *);
            d[i].p = args[i].bloque = reserva_bloque(sizeof(void *));
            std::memcpy(args[i].bloque, &args[i].objeto, sizeof(void *));
            break;
        case clase_valor::copia:
            args[i].bytes = params_[i].tamanyo;
            d[i].p = args[i].bloque = reserva_bloque(args[i].bytes);
            std::memcpy(args[i].bloque, v.d.p, args[i].bytes);
            break;
        case clase_valor::bufer: break;
        default: d[i] = v.d;
        }
    }
    for (size_t i = 0; i < n; ++i) {
        if (args[i].v->clase != clase_valor::bufer) continue;
        const parametro &p = params_[i];
        size_t elementos = p.elementos;
        if (p.longitud_de >= 0) {
            const int64_t pedidos = d[static_cast<size_t>(p.longitud_de)].i;
            elementos = pedidos < 0 ? 0 : std::min(static_cast<size_t>(pedidos), MAXIMO_BUFER);
        }
        args[i].bytes = elementos * p.tamanyo;
        d[i].p = args[i].bloque = reserva_bloque(args[i].bytes);
        for (size_t k = 0; p.lleno && k < args[i].bytes; k += p.tamanyo) static_cast<char *>(d[i].p)[k] = 'a';
    }
}

void barredor::recoge(const indices &cuales, std::vector<argumento> &args, const std::vector<dato> &d, dato r,
                      bool informado) {
    const uint64_t antes = error_interno_numero_de_informes();
    if (op_.suelta != nullptr && vivo(r.p)) {
        bool suyo = true;
        for (const dato &a : d) suyo = suyo && a.p != r.p;
        if (suyo) op_.suelta(r.p);
    }
    for (size_t i = 0; i < args.size(); ++i) {
        argumento &a = args[i];
        if (a.bloque != nullptr && !intacto(a.bloque, a.bytes))
            falta(cuales, false, std::string("writes beyond the room of ") + params_[i].nombre);
        if (a.v->clase != clase_valor::hueco) continue;
        void *p = nullptr;
        std::memcpy(&p, a.bloque, sizeof p);
        if (vivo(p)) a.v->fab->destruye(p);
        else if (p != nullptr && p == a.objeto)
            falta(cuales, false, std::string("leaves ") + params_[i].nombre + " leading to a freed block");
        if (op_.deja_el_anterior && p != a.objeto && vivo(a.objeto)) a.v->fab->destruye(a.objeto);
    }
    for (size_t i = 0; i < args.size(); ++i) {
        argumento &a = args[i];
        if (a.v->clase == clase_valor::objeto) {
            // A registry keeps what it took until the exit.
            if (vivo(a.objeto) && params_[i].consume && op_.retiene != nullptr && !informado) continue;
            if (vivo(a.objeto) && params_[i].consume && !op_.deja_el_anterior)
                falta(cuales, false, std::string("does not take ") + params_[i].nombre + " over");
            if (vivo(a.objeto)) a.v->fab->destruye(a.objeto);
            else if (!params_[i].consume)
                falta(cuales, false, std::string("destroys its argument ") + params_[i].nombre);
        }
        std::free(a.bloque);
        if (a.v->fab != nullptr && a.v->fab->despues != nullptr) a.v->fab->despues();
    }
    if (error_interno_numero_de_informes() != antes)
        falta(cuales, false, "destroying what the call left is reported: " + ultimo_informe);
}

// One call; false when memory ran out. Says how many reports it made.
bool barredor::llama(const indices &cuales, bool atrapada, uint64_t &informes, bool *neutro) {
    std::vector<argumento> args;
    std::vector<dato> d;
    prepara(cuales, args, d);
    instala_receptores();
    if (habla) {
        std::fprintf(salida, "C\t%s\n", describe(cuales, atrapada).c_str());
        std::fflush(salida);
    }
    numero_de_llamada.fetch_add(1, std::memory_order_relaxed);
    ++llamadas;
    dato r{};
    bool alcanza = true;
    const uint64_t antes = error_interno_numero_de_informes();
    agotamiento.armado = agotando_;
    try {
        en_trampa e{&op_, d.data(), &r};
        if (atrapada) trapable_nousar_recursivo_ejecuta_funcion_segura(llama_en_trampa, &e, nullptr);
        else llama_en_trampa(&e);
    } catch (const agotada &) {
        alcanza = false;
    }
    agotamiento.armado = false;
    informes = error_interno_numero_de_informes() - antes;
    if (neutro != nullptr) *neutro = es_neutro(d, r);
    const std::string del_informe = ultimo_informe;
    instala_receptores();
    recoge(cuales, args, d, r, informes != 0);
    ultimo_informe = del_informe;
    return alcanza;
}

void barredor::prueba(const indices &cuales, bool solo) {
    bool enorme = false;
    const valor *roto = nullptr;
    size_t parametro_roto = 0;
    for (size_t i = 0; i < cuales.size(); ++i) {
        const valor &v = params_[i].valores[cuales[i]];
        enorme = enorme || v.enorme;
        if (v.cal == calidad::mala && !deja_pasar(i, v)) {
            roto = &v;
            parametro_roto = i;
        }
    }
    uint64_t informes = 0;
    // What asks for more memory than there is comes to no report.
    if (enorme && !llama(cuales, true, informes)) return;
    ultimo_informe.clear();
    bool neutro = true;
    llama(cuales, false, informes, &neutro);
    if (roto != nullptr) {
        const std::string cual = std::string(params_[parametro_roto].nombre) + '=' + roto->nombre;
        if (informes == 0) falta(cuales, false, cual + " is not reported");
        if (solo && informes != 0 && !neutro) falta(cuales, false, cual + " does not give the neutral value back");
        if (solo) ++anotaciones;
    } else if (solo && (informes != 0) != op_.informa && cuales == indices(cuales.size(), 0)) {
        falta(cuales, false,
              op_.informa ? "is listed as reporting, and does not"
                          : "the call with good values reports: " + ultimo_informe);
    }
    // The same call inside a trap, which keeps the report.
    if (informes == 0) return;
    llama(cuales, true, informes);
    if (roto != nullptr && informes == 0)
        falta(cuales, true, std::string(params_[parametro_roto].nombre) + '=' + roto->nombre + " is not reported");
}

template <class F> void barredor::recorre(size_t tope, F &&f) {
    const size_t n = params_.size();
    indices cuales(n, 0);
    f(cuales, true);
    for (size_t i = 0; i < n; ++i) {
        for (cuales[i] = 1; cuales[i] < params_[i].valores.size(); ++cuales[i]) f(cuales, true);
        cuales[i] = 0;
    }
    size_t pares = 0;
    for (size_t i = 0; i < n; ++i)
        for (size_t j = i + 1; j < n; ++j) pares += (params_[i].valores.size() - 1) * (params_[j].valores.size() - 1);
    if (tope == 0) return;
    // An odd step over the list of pairs touches every row and column of it.
    const size_t paso = pares <= tope ? 1 : (pares / tope + 1) | 1;
    size_t k = 0;
    for (size_t i = 0; i < n; ++i)
        for (size_t j = i + 1; j < n; ++j) {
            for (size_t a = 1; a < params_[i].valores.size(); ++a)
                for (size_t b = 1; b < params_[j].valores.size(); ++b) {
                    if (k++ % paso != 0) continue;
                    cuales[i] = a;
                    cuales[j] = b;
                    f(cuales, false);
                }
            cuales[i] = cuales[j] = 0;
        }
}

// The call with good values while each of its allocations fails, alone and with all after it: what is lost
// shows as a leak.
void barredor::agota_la_memoria() {
    constexpr uint64_t MAXIMO = 60;
    const indices bien(params_.size(), 0);
    agotando_ = true;
    for (const bool para_siempre : {false, true})
        for (uint64_t n = 0; n < MAXIMO; ++n) {
            agotamiento = {false, para_siempre, false, n};
            uint64_t informes = 0;
            llama(bien, true, informes);
            if (!agotamiento.llegado) break;
            ++agotamientos;
        }
    agotando_ = false;
}

void barredor::barre(size_t tope) {
    recorre(tope, [this](const indices &cuales, bool solo) { prueba(cuales, solo); });
    agota_la_memoria();
}

bool barredor::crece(size_t tope) {
    const uint64_t antes = vornspy_bloques_vivos(nullptr);
    barre(tope);
    return vornspy_bloques_vivos(nullptr) > antes;
}

void barredor::nombra_fuga(size_t tope) {
    bool hallada = false;
    recorre(tope, [&](const indices &cuales, bool solo) {
        if (hallada) return;
        const uint64_t antes = vornspy_bloques_vivos(nullptr);
        prueba(cuales, solo);
        if (const uint64_t ahora = vornspy_bloques_vivos(nullptr); ahora > antes) {
            hallada = true;
            falta(cuales, false, "leaves " + std::to_string(ahora - antes) + " blocks behind");
        }
    });
    if (hallada) return;
    const uint64_t antes = vornspy_bloques_vivos(nullptr);
    agota_la_memoria();
    falta(indices(params_.size(), 0), true,
          vornspy_bloques_vivos(nullptr) > antes ? "leaves blocks behind when memory runs out"
                                                 : "leaves blocks behind");
}

// Operations between two looks at what is alive: a look walks the map of live blocks, which a sanitizer
// scatters.
size_t tamanyo_de_lote() { return SANEADO && todas().front()->size() > 50 ? 32 : 1; }

struct lote {
    std::vector<const operacion *> ops;
    uint64_t vivos_antes = 0;
};

void barre_una(size_t k, const operacion &op, size_t tope) {
    std::fprintf(salida, "F\t%zu\t%s\n", k, op.nombre);
    std::fflush(salida);
    barredor b(op);
    b.barre(tope);
    prepara_ficheros();
    restaura_lo_establecido();
    std::fprintf(salida, "R\t%zu\t%s\t%llu\t%llu\t%llu\n", k, op.nombre, static_cast<unsigned long long>(b.llamadas),
                 static_cast<unsigned long long>(b.anotaciones), static_cast<unsigned long long>(b.agotamientos));
    std::fflush(salida);
}

// Who of the batch left blocks behind, if they did more than fill something at first use.
void mira_fugas(lote &l, size_t tope) {
    if (vornspy_bloques_vivos(nullptr) > l.vivos_antes)
        for (const operacion *op : l.ops) {
            if (op->retiene != nullptr) continue;
            barredor b(*op);
            if (b.crece(tope)) b.nombra_fuga(tope);
            prepara_ficheros();
            restaura_lo_establecido();
        }
    l.ops.clear();
    l.vivos_antes = vornspy_bloques_vivos(nullptr);
}

// A call that does not come back ends the process; barrido.py names it.
void vigila(unsigned long segundos) {
    std::thread([segundos] {
        uint64_t visto = 0;
        for (unsigned long quieto = 0;;) {
            std::this_thread::sleep_for(std::chrono::seconds(1));
            const uint64_t ahora = numero_de_llamada.load(std::memory_order_relaxed);
            quieto = ahora == visto && ahora != 0 ? quieto + 1 : 0;
            visto = ahora;
            if (quieto >= segundos) {
                std::fprintf(stderr, "barrido: a call has not come back in %lu s\n", segundos);
                std::_Exit(77);
            }
        }
    }).detach();
}

} // namespace
} // namespace barrido

// The libraries ask for their scratch here, where one symbol serves the whole process.
void *operator new(size_t n, const std::nothrow_t &) noexcept {
    return barrido::toca_fallar() ? nullptr : ::operator new(n);
}

int main(int argc, char **argv) {
    using namespace barrido;
    if (argc < 7) return 2;
    salida = std::fopen(argv[1], "ab");
    if (salida == nullptr) return 2;
    const auto numero = [argv](int i) { return std::strtoul(argv[i], nullptr, 10); };
    const size_t tope = numero(2), desde = numero(4), parte = numero(5), partes = numero(6);
    const std::string_view solo = argc > 7 ? argv[7] : "";
    habla = !solo.empty();
    prepara_ficheros();
    restaura_lo_establecido();
    vigila(numero(3));
    size_t k = 0;
    lote este;
    este.vivos_antes = vornspy_bloques_vivos(nullptr);
    for (const auto *lista : todas())
        for (const operacion &op : *lista) {
            if (habla ? solo == op.nombre : k >= desde && k % partes == parte) {
                barre_una(k, op, tope);
                este.ops.push_back(&op);
                if (este.ops.size() == tamanyo_de_lote()) mira_fugas(este, tope);
            }
            ++k;
        }
    mira_fugas(este, tope);
    std::fprintf(salida, "T\t%zu\n", k);
    std::fclose(salida);
    return 0; // the exit list runs too
}
