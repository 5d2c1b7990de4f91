#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/trazado_priv.h"
#include "foundation/listas/arr.h"

namespace vn {

using listas::tramo;

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
    const auto destino = tramo(copia.get());
    for (size_t i = 0; i < origen.size(); ++i) destino[i] = transforma_punto(s, origen[i]);
    const arrPunto3D *const vista = copia.get();
    return {std::move(copia), vista};
}

puntos3D sube(const sistema_coordenadas &s, const arrPunto2D *puntos, double z, bool cierra) {
    const auto origen = tramo(puntos);
    const size_t n = origen.size();
    const bool uno_mas = cierra && n > 0;
    puntos3D r(arr_CreaPunto3D(static_cast<uint32_t>(n + (uno_mas ? 1 : 0))));
    const auto destino = tramo(r.get());
    for (size_t i = 0; i < n; ++i) destino[i] = transforma_punto(s, {origen[i].x, origen[i].y, z});
    if (uno_mas) destino[n] = destino[0];
    return r;
}

puntos2D baja(const sistema_coordenadas &s, const arrPunto3D *puntos) {
    const auto origen = tramo(puntos);
    puntos2D r(arr_CreaPunto2D(static_cast<uint32_t>(origen.size())));
    const auto destino = tramo(r.get());
    for (size_t i = 0; i < origen.size(); ++i) {
        const Punto3D p = transforma_punto(s, origen[i]);
        destino[i] = {p.x, p.y};
    }
    return r;
}

puntos2D copia_en_planta(const sistema_coordenadas &s, const arrPunto2D *puntos, double z, bool cierra) {
    const auto origen = tramo(puntos);
    const size_t n = origen.size();
    const bool uno_mas = cierra && n > 0;
    puntos2D r(arr_CreaPunto2D(static_cast<uint32_t>(n + (uno_mas ? 1 : 0))));
    const auto destino = tramo(r.get());
    for (size_t i = 0; i < n; ++i) destino[i] = transforma_punto_2d(s, origen[i].x, origen[i].y, z);
    if (uno_mas) destino[n] = destino[0];
    return r;
}

bool son_contornos(const arrPuntero *contornos) {
    for (const void *contorno : tramo(contornos))
        if (!AFIRMA_NO_NULO(contorno)) return false;
    return true;
}

} // namespace vn
