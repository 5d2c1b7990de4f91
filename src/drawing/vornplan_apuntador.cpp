#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_apuntador.h"
#include "colour/idcolor_tipos.h"
#include "drawing/salida_priv.h"
#include "drawing/vornplan_salida.h"
#include "foundation/listas/arr_int.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include <cstring>
#include <utility>

// Arguments as they are written down. Beside their types, which are nobody's namespace: found by their argument.
namespace {

using vn::tabla::apunta;

void apunta_punto(std::string &t, Punto2D p) { apunta(t, p.x), t += ',', apunta(t, p.y); }
void apunta_punto(std::string &t, Punto3D p) { apunta_punto(t, Punto2D{p.x, p.y}), t += ',', apunta(t, p.z); }
template <class N> void apunta_punto(std::string &t, N n) { apunta(t, n); }

// The elements of an array.
template <class A> void apunta_elementos(std::string &t, const A *a) {
    if (a == nullptr) return apunta(t, static_cast<const void *>(a));
    char separa = '[';
    for (const auto &e : vn::listas::tramo(a)) t += separa, apunta_punto(t, e), separa = ' ';
    t += separa == '[' ? "[]" : "]";
}

} // namespace

static void apunta(std::string &t, const arrPunto2D *a) { apunta_elementos(t, a); }
static void apunta(std::string &t, const arrPunto3D *a) { apunta_elementos(t, a); }
static void apunta(std::string &t, const arrDouble *a) { apunta_elementos(t, a); }
static void apunta(std::string &t, const arrULong *a) { apunta_elementos(t, a); }
static void apunta(std::string &t, const idcolor *c) {
    if (c == nullptr) return vn::tabla::apunta(t, static_cast<const void *>(c));
    vn::tabla::apunta(t += '(', c->tipo_color);
    vn::tabla::apunta(t += ',', uint32_t{c->color_paleta});
    vn::tabla::apunta(t += ',', c->rgba);
    t += ')';
}

using namespace vn;

namespace {

constexpr char APUNTADOR[] = "nucleos: apuntador", CONTADOR[] = "nucleos: contador", NADA[] = "nucleos: nada";

// The slots that have a sister: of each pair a device has one.
constexpr size_t DEL_PLANO[] = {
#define PAR(plano, espacio) dispositivo::numero_de_##plano,
#include "drawing/vornplan_pares.inl"
#undef PAR
};
constexpr size_t DEL_ESPACIO[] = {
#define PAR(plano, espacio) dispositivo::numero_de_##espacio,
#include "drawing/vornplan_pares.inl"
#undef PAR
};

// Questions that have an answer of the layer's own where no device knows: none of these does.
constexpr size_t SIN_RESPUESTA[] = {
#define PREGUNTA(slot) dispositivo::numero_de_##slot,
    VPLAN_GRUPO_COORDENADAS(PREGUNTA) PREGUNTA(func_obtener_escalas) PREGUNTA(func_set_escalas)
        PREGUNTA(func_obtener_limites) PREGUNTA(func_sep_vis_entre_lin) PREGUNTA(func_tam_texto_visible)
            PREGUNTA(func_tam_punto_visible) PREGUNTA(func_LongitudTrozoTexto)
#undef PREGUNTA
};

void pon_cero(...) {}
template <class T>
requires(std::is_arithmetic_v<T> && !std::is_const_v<T>) void pon_cero(T *p) {
    if (p != nullptr) *p = T{};
}
void pon_cero(vnwchar **p) {
    if (p != nullptr) *p = widestr_copia(VNU(""));
}
// Takes all: what it is asked for is zero, and layers get their numbers.
struct nada {
    uint8_t capas = 0;
    template <auto SLOT, class... V> tabla::resultado_de<SLOT> entra(V... valores) {
        (pon_cero(valores), ...);
        if constexpr (tabla::FILA<SLOT>.numero == dispositivo::numero_de_func_define_capa_u) {
            const uint8_t capa = std::get<0>(std::tuple(valores...));
            return capa != VPLAN_NOCAMBIAR ? capa : ++capas;
        } else return tabla::resultado_de<SLOT>();
    }
};
// One of the kit's wrappers, before it.
template <class O> struct ante_nada : O {
    nada fin;
    ante_nada() {
        this->tabla = &tabla::TABLA_DE<dispositivo, nada>;
        this->dato = &fin;
    }
};
using apuntador = ante_nada<tabla::apuntador<dispositivo>>;
using contador = ante_nada<tabla::contador<dispositivo>>;

// The whole table without what it has no answer to and the forms that are not asked for.
template <class O> constexpr vplan_funciones tabla_de(bool en_espacio) {
    dispositivo d = tabla::TABLA_DE<dispositivo, O>;
    const auto quita = [&](const auto &fuera) {
        dispositivo::recorre([&]<auto SLOT>() {
            for (const size_t numero : fuera)
                if (numero == tabla::FILA<SLOT>.numero) d.*SLOT = nullptr;
        });
    };
    quita(SIN_RESPUESTA);
    if (en_espacio) quita(DEL_PLANO);
    else quita(DEL_ESPACIO);
    return d;
}

template <class O> void destruye_dispositivo(O **o) {
    (*o)->~O();
    vornspy_free_pp(o, sizeof(O));
}

template <class O> salida_t *abre(uint32_t tipo, salida_t *destino, vnbool en_espacio, const char *nombre) {
    if (!AFIRMA_LOGICO(en_espacio)) return nullptr;
    static constexpr vplan_funciones PLANO = tabla_de<O>(false), ESPACIO = tabla_de<O>(true);
    // The output takes the datum over at its end: until then it is ours.
    dueno<destruye_dispositivo<O>> propio(new (vornspy_malloc(sizeof(O))) O{});
    void *item = propio.get();
    salida_t *const s = vplan_nousar_abre_dispositivo_con_tabla(
        tipo, destino, &item, nombre, [](void *o) { destruye_dispositivo(static_cast<O **>(o)); },
        en_espacio == CIERTO ? &ESPACIO : &PLANO);
    if (item == nullptr) static_cast<void>(propio.release());
    return s;
}

} // namespace

salida_t *vplan_abre_apuntador(uint32_t tipo, salida_t *salida_destino, vnbool en_espacio) {
    return abre<apuntador>(tipo, salida_destino, en_espacio, APUNTADOR);
}
salida_t *vplan_abre_contador(uint32_t tipo, salida_t *salida_destino, vnbool en_espacio) {
    return abre<contador>(tipo, salida_destino, en_espacio, CONTADOR);
}
salida_t *vplan_abre_nada(uint32_t tipo, salida_t *salida_destino, vnbool en_espacio) {
    return abre<nada>(tipo, salida_destino, en_espacio, NADA);
}

char *vplan_toma_lo_apuntado(salida_t *salida) {
    auto *const a = static_cast<apuntador *>(vornplan_nousar_obtener_datos_dispositivo_generico(salida, APUNTADOR));
    if (a == nullptr) return nullptr;
    return cad_copia_cadena(std::exchange(a->texto, {}).c_str());
}

uint64_t vplan_veces_contado(const salida_t *salida, const char *slot) {
    const auto *const c =
        static_cast<const contador *>(vornplan_nousar_obtener_datos_dispositivo_generico(salida, CONTADOR));
    if (c == nullptr || !EXIGE(slot)) return 0;
    const uint32_t *veces = nullptr;
    dispositivo::recorre([&]<auto SLOT>() {
        if (std::strcmp(tabla::FILA<SLOT>.nombre, slot) == 0) veces = &c->veces[tabla::FILA<SLOT>.numero];
    });
    return AFIRMA_NO_NULO(veces) ? *veces : 0;
}
