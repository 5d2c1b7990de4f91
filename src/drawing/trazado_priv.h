// What the primitives share: who draws a figure and through what, and arrays of points that go through a system.
#pragma once

#include "drawing/salida_priv.h"
#include "foundation/listas/arr_int.h"
#include <utility>

namespace vn {

using puntos2D = dueno<arr_DestruyePunto2D>;
using puntos3D = dueno<arr_DestruyePunto3D>;

// Points and turns of the plane that the layer makes of a curve, per full turn.
constexpr uint32_t PUNTOS_CIRCULO = 64;
constexpr double TOLERANCIA_PLANO = 1e-05, TOLERANCIA_CIERRE = 1e-06;

// Who draws a figure, null if nobody, and the transformation up to there.
struct camino {
    salida_t *donde;
    const sistema_coordenadas *sistema;
};
template <auto SLOT> inline camino busca(salida_t *s) {
    salida_t *const donde = implementa<SLOT>(s);
    return {donde, &encadenado(s, donde)};
}
// In one walk of the chain, as it is done for each line.
template <auto PLANO, auto ESPACIO> inline camino busca(salida_t *s) {
    uint64_t cambios = 0;
    salida_t *i = s;
    for (; i != nullptr; i = i->salida_destino) {
        cambios += i->cambios;
        if (tiene_una<PLANO, ESPACIO>(*i)) break;
    }
    return {i, &encadenado(s, i, cambios)};
}
template <auto SLOT> inline bool tiene(const salida_t *s) { return s->funciones.*SLOT != nullptr; }

// Arrays through a system: themselves where it is identity by its kind, copies elsewhere.
template <class A, class D> struct pasados {
    D copia;
    const A *vista;
};
using pasados2D = pasados<arrPunto2D, puntos2D>;
using pasados3D = pasados<arrPunto3D, puntos3D>;
pasados2D pasa_puntos(const sistema_coordenadas &s, const arrPunto2D *puntos, double z);
pasados3D pasa_puntos(const sistema_coordenadas &s, const arrPunto3D *puntos);
// From the plane at a depth to space, through a system; `cierra`: the first is repeated at the end.
puntos3D sube(const sistema_coordenadas &s, const arrPunto2D *puntos, double z, bool cierra = false);
// The plan of points that go through a system.
puntos2D baja(const sistema_coordenadas &s, const arrPunto3D *puntos);
puntos2D copia_en_planta(const sistema_coordenadas &s, const arrPunto2D *puntos, double z, bool cierra);

// What a device is handed.
inline const arrPunto2D *vista(const puntos2D &p) { return p.get(); }
inline const arrPunto3D *vista(const puntos3D &p) { return p.get(); }

// The call of a slot whose first value is an array; without memory for one, which was reported, there is no call.
template <auto SLOT, class A, class... V> inline void llama_con(const salida_t *s, const A *puntos, V... resto) {
    if (puntos != nullptr) llama<SLOT>(s, puntos, resto...);
}

// An array of pointers to arrays, each of which goes through f; what f gives is owned. None at all where there was no
// memory for one of them.
template <class T, auto DESTRUYE> struct grupo {
    arrPuntero *arr = nullptr;
    grupo() = default;
    explicit grupo(uint32_t n) : arr(arr_CreaPunteroConTipo(n)) {}
    grupo(grupo &&g) noexcept : arr(std::exchange(g.arr, nullptr)) {}
    grupo &operator=(grupo &&g) noexcept { return std::swap(arr, g.arr), *this; }
    ~grupo() {
        if (arr == nullptr) return;
        for (void *&p : listas::tramo(arr))
            if (auto *a = static_cast<T *>(p); a != nullptr) DESTRUYE(&a);
        arr_DestruyePunteroConTipo(&arr);
    }
};
using grupo2D = grupo<arrPunto2D, arr_DestruyePunto2D>;
using grupo3D = grupo<arrPunto3D, arr_DestruyePunto3D>;
using grupo_trazos = grupo<arrDouble, arr_DestruyeDouble>;
template <class G, class T, class F> G pasa_grupo(const arrPuntero *de, F f) {
    const auto origen = listas::tramo(de);
    G g(static_cast<uint32_t>(origen.size()));
    if (g.arr == nullptr) return g;
    const auto destino = listas::tramo(g.arr);
    for (size_t i = 0; i < origen.size(); ++i) {
        const auto *a = static_cast<const T *>(origen[i]);
        if (a != nullptr && (destino[i] = f(a).release()) == nullptr) return G();
    }
    return g;
}

// Of contours: whether none of them is null, reported.
bool son_contornos(const arrPuntero *contornos);

// The drawing of an outline in space, and of one of the plane that is filled; the entries of several primitives.
void dibuja_polilinea3D(salida_t *salida, const arrPunto3D *puntos, bool cerrado, vnbool relleno);
void dibuja_poligono2D(salida_t *salida, const arrPunto2D *puntos, vnbool relleno);

} // namespace vn
