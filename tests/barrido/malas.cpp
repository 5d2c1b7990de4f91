// Operations with one fault each, and one without: what the sweep of arguments must find, and must not.
#include "barrido.h"
#include "foundation/suelo/error_interno.h"
#include "foundation/suelo/vornspy.h"
#include <cstdlib>
#include <cstring>

namespace barrido {
namespace {

const fabrica fab_bloque{[]() -> void * { return vornspy_calloc(1, 8); }, [](void *p) { vornspy_free_pp(&p, 1); }};

void exige(bool bien, const char *texto) {
    if (!bien) error_interno(texto, "malas", 1, 0);
}
void exige_b(const dato *a) { exige(a[0].p != nullptr, "(b) != NULL"); }
void libera(void *p) {
    if (p != nullptr) vornspy_free_pp(&p, 1);
}
int64_t *bloque(const dato *a) { return static_cast<int64_t *>(a[0].p); }

parametros un_bloque() { return {objeto("b", fab_bloque, EXIGE)}; }
parametros bloque_y_logico() { return {objeto("b", fab_bloque, EXIGE), logico("v")}; }
parametros bloque_y_numero() { return {objeto("b", fab_bloque, EXIGE), entero_en<uint32_t>("n", 1, 3)}; }
parametros que_consume() { return {objeto("b", fab_bloque, CONSUME)}; }
parametros solo_bufer() { return {bufer("s", 1, 4, -1, OPCIONAL)}; }
parametros un_hueco() { return {hueco("h", fab_bloque, EXIGE)}; }

// clang-format off
const std::vector<operacion> malas{
    {"buena", [](const dato *a, dato &) { exige_b(a); exige(a[1].i == 0 || a[1].i == 1, "v == CIERTO || v == FALSO"); },
     bloque_y_logico, nullptr, nullptr, nullptr},
    {"muere_con_nulo", [](const dato *a, dato &) { *bloque(a) = 1; }, un_bloque, nullptr, nullptr, nullptr},
    {"calla_el_nulo", [](const dato *, dato &) {}, un_bloque, nullptr, nullptr, nullptr},
    {"calla_el_logico", [](const dato *a, dato &) { exige_b(a); }, bloque_y_logico, nullptr, nullptr, nullptr},
    {"calla_el_rango", [](const dato *a, dato &) { exige(a[0].p != nullptr && a[1].i < 4, "(b) != NULL"); },
     bloque_y_numero, nullptr, nullptr, nullptr},
    {"no_vuelve", [](const dato *a, dato &) { exige_b(a); for (volatile bool espera = a[0].p == nullptr; espera;) {} },
     un_bloque, nullptr, nullptr, nullptr},
    {"pierde_memoria", [](const dato *a, dato &) { exige_b(a); vornspy_calloc(1, 8); },
     un_bloque, nullptr, nullptr, nullptr},
    {"se_sale", [](const dato *a, dato &) { if (a[0].p != nullptr) std::memset(a[0].p, 1, 5); },
     solo_bufer, nullptr, nullptr, nullptr},
    {"destruye_lo_ajeno", [](const dato *a, dato &) { exige_b(a); libera(a[0].p); },
     un_bloque, nullptr, nullptr, nullptr},
    {"no_es_neutra", [](const dato *a, dato &r) { exige_b(a); r.i = 7; }, un_bloque, nullptr, nullptr, nullptr},
    {"no_se_lo_queda", [](const dato *a, dato &) { exige_b(a); }, que_consume, nullptr, nullptr, nullptr},
    // What it holds when its second allocation fails is lost.
    {"pierde_sin_memoria", [](const dato *a, dato &) {
         exige_b(a);
         void *p = vornspy_malloc(8), *q = vornspy_malloc(8);
         libera(p), libera(q);
     }, un_bloque, nullptr, nullptr, nullptr},
    {"deja_colgando", [](const dato *a, dato &) {
         exige(a[0].p != nullptr, "(h) != NULL");
         if (a[0].p == nullptr) return;
         void *p = nullptr;
         std::memcpy(&p, a[0].p, sizeof p);
         exige(p != nullptr, "(*h) != NULL");
         libera(p);
     }, un_hueco, nullptr, nullptr, nullptr},
    {"ya_no_informa", [](const dato *a, dato &) { exige_b(a); },
     un_bloque, nullptr, nullptr, nullptr, false, "0", true},
    {"exige_de_mas", [](const dato *, dato &) { exige(false, "(otra) != NULL"); },
     un_bloque, nullptr, nullptr, nullptr},
};
// clang-format on

} // namespace

void restaura_lo_establecido() {}

const std::vector<const std::vector<operacion> *> &todas() {
    static const std::vector<const std::vector<operacion> *> t{&malas};
    return t;
}

} // namespace barrido
