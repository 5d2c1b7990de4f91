#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/trazado_priv.h"
#include "foundation/listas/arr.h"
#include <cstring>
#include <type_traits>

namespace vn {

using listas::tramo;

namespace {

Punto3D en_espacio(Punto2D p, double z) { return {p.x, p.y, z}; }
Punto3D en_espacio(Punto3D p, double) { return p; }
void pon(Punto2D &p, Punto3D q) { p = {q.x, q.y}; }
void pon(Punto3D &p, Punto3D q) { p = q; }

// Points, those of the plane at a depth, through a system.
template <class P, class Q>
void pasa_todos(const sistema_coordenadas &s, std::span<const P> de, double z, std::span<Q> a) {
    const size_t n = de.size();
    const en_planta planta(s);
    if (!planta.directo) {
        for (size_t i = 0; i < n; ++i) pon(a[i], transforma_punto(s, en_espacio(de[i], z)));
        return;
    }
    const matriz4 m = s.m;
    for (size_t i = 0; i < n; ++i) {
        const Punto3D p = en_espacio(de[i], z);
        const en_planta::par xy = planta.punto(p.x, p.y, p.z);
        if constexpr (std::is_same_v<Q, Punto3D>)
            a[i].z = m.m[2][0] * p.x + m.m[2][1] * p.y + m.m[2][2] * p.z + m.m[2][3];
        std::memcpy(&a[i].x, &xy, sizeof xy);
    }
}

} // namespace

pasados2D pasa_puntos(const sistema_coordenadas &s, const arrPunto2D *puntos, double z) {
    if (i_es_sistema_coordenadas_identidad(&s)) return {nullptr, puntos};
    puntos2D copia = copia_en_planta(s, puntos, z, false);
    const arrPunto2D *const vista = copia.get();
    return {std::move(copia), vista};
}

pasados3D pasa_puntos(const sistema_coordenadas &s, const arrPunto3D *puntos) {
    if (i_es_sistema_coordenadas_identidad(&s)) return {nullptr, puntos};
    const auto origen = tramo(puntos);
    puntos3D copia(arr_CreaPunto3D(static_cast<uint32_t>(origen.size())));
    if (copia == nullptr) return {nullptr, nullptr};
    pasa_todos(s, origen, 0., tramo(copia.get()));
    const arrPunto3D *const vista = copia.get();
    return {std::move(copia), vista};
}

puntos3D sube(const sistema_coordenadas &s, const arrPunto2D *puntos, double z, bool cierra) {
    const auto origen = tramo(puntos);
    const size_t n = origen.size();
    const bool uno_mas = cierra && n > 0;
    puntos3D r(arr_CreaPunto3D(static_cast<uint32_t>(n + (uno_mas ? 1 : 0))));
    if (r == nullptr) return nullptr;
    const auto destino = tramo(r.get());
    pasa_todos(s, origen, z, destino);
    if (uno_mas) destino[n] = destino[0];
    return r;
}

puntos2D baja(const sistema_coordenadas &s, const arrPunto3D *puntos) {
    const auto origen = tramo(puntos);
    puntos2D r(arr_CreaPunto2D(static_cast<uint32_t>(origen.size())));
    if (r == nullptr) return nullptr;
    pasa_todos(s, origen, 0., tramo(r.get()));
    return r;
}

puntos2D copia_en_planta(const sistema_coordenadas &s, const arrPunto2D *puntos, double z, bool cierra) {
    const auto origen = tramo(puntos);
    const size_t n = origen.size();
    const bool uno_mas = cierra && n > 0;
    puntos2D r(arr_CreaPunto2D(static_cast<uint32_t>(n + (uno_mas ? 1 : 0))));
    if (r == nullptr) return nullptr;
    const auto destino = tramo(r.get());
    pasa_todos(s, origen, z, destino);
    if (uno_mas) destino[n] = destino[0];
    return r;
}

bool son_contornos(const arrPuntero *contornos) {
    for (const void *contorno : tramo(contornos))
        if (!AFIRMA_NO_NULO(contorno)) return false;
    return true;
}

} // namespace vn
