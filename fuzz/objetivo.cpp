#include "objetivo.h"
#include "foundation/sistema/avisos.h"
#include "foundation/suelo/trapable.h"
#include "foundation/suelo/vornspy.h"
#include "memoria.h"
#include <cstdio>
#include <cstdlib>

namespace fuzz {
namespace {

uint64_t pedidos = 0;
vnbool cuenta(size_t n, void *) {
    pedidos += n;
    return CIERTO;
}
uint64_t hechos = 0;
std::string el_ultimo;
void calla(const vninforme *informe, void *) {
    ++hechos;
    el_ultimo = informe->expresion != nullptr ? informe->expresion : "";
}
vnbool responde_que_no(vntipo_aviso, const vnwchar *, void *) { return FALSO; }

// Made at first use, and there until the process ends.
vn::ficheros_en_memoria &disco() {
    static auto *d = new vn::ficheros_en_memoria;
    return *d;
}

void prepara() {
    error_interno_instala_receptor(calla, nullptr);
    avisos_instala_receptor(responde_que_no, nullptr);
    vornspy_instala_permiso(cuenta, nullptr);
    disco().vacia();
    exige(disco().todos_cerrados(), "every file was closed");
}

} // namespace

void exige(bool condicion, const char *que) {
    if (condicion) return;
    std::fprintf(stderr, "fuzz: does not hold: %s\n", que);
    std::abort();
}

void con_fichero(const uint8_t *datos, size_t n, uint64_t maximo, const std::function<void()> &lee_todo) {
    prepara();
    disco().pon(NOMBRE, {reinterpret_cast<const char *>(datos), n});
    pedidos = hechos = 0;
    lee_todo();
    // The library makes once, with the first input, what it keeps. Walking the heap costs more than an input does: a
    // leak shows within so many of them.
    constexpr uint64_t CADA = 2048;
    static uint64_t entradas = 0, vivos = 0;
    if (entradas > 0) exige(pedidos <= maximo, "the memory asked for is bounded by the file's size");
    if (entradas % CADA == 0) {
        const uint64_t ahora = vornspy_bloques_vivos(nullptr);
        exige(entradas == 0 || ahora <= vivos, "every block was freed");
        vivos = ahora;
    }
    ++entradas;
    exige(disco().todos_cerrados(), "every file was closed");
}

std::string lo_que_graba(const std::function<void()> &graba) {
    prepara();
    graba();
    return contenido();
}

uint64_t informes() { return hechos; }
const std::string &ultimo_informe() { return el_ultimo; }
std::string contenido() { return disco().dame(NOMBRE); }

bool atrapa(const std::function<void()> &f) {
    const auto corre = [](void *p) { (*static_cast<const std::function<void()> *>(p))(); };
    return trapable_nousar_recursivo_ejecuta_funcion_segura(corre, const_cast<std::function<void()> *>(&f), nullptr) ==
           CIERTO;
}

} // namespace fuzz
