// Polylines of a thousand points, of the plane and of space, to a device that takes them, beside the loop that
// transforms their points into room that is there.
#include "drawing.h"
#include "drawing/vornplan.h"
#include "foundation/listas/arr.h"
#include "foundation/suelo/dueno.hpp"
#include <cmath>
#include <vector>

namespace bench {

namespace {

constexpr uint32_t PUNTOS = 1000, VECES = 1000;

// The device looks at the ends alone: what is measured is what comes before it.
struct extremos {
    double suma = 0;
};
void polilinea(void *item, const arrPunto2D *puntos) {
    const Punto2D *const p = arr_GetBufferPunto2D(const_cast<arrPunto2D *>(puntos));
    static_cast<extremos *>(item)->suma += p[0].x + p[PUNTOS - 1].y;
}
void polilinea3D(void *item, const arrPunto3D *puntos, vnbool) {
    const Punto3D *const p = arr_GetBufferPunto3D(const_cast<arrPunto3D *>(puntos));
    static_cast<extremos *>(item)->suma += p[0].x + p[PUNTOS - 1].y;
}

using salida_propia = vn::dueno<vplan_cierra>;
salida_propia abre(extremos *e, bool en_espacio) {
    vplan_funciones f{};
    if (en_espacio) f.func_DrawPolilinea3D = polilinea3D;
    else f.func_DrawPolilinea = polilinea;
    void *item = e;
    salida_propia s(vplan_nousar_abre_dispositivo_con_tabla(3, nullptr, &item, "banco", nullptr, &f));
    vplan_append_giro_xy_y_posiciona(s.get(), 10, 20, 0.8, 0.6);
    return s;
}

} // namespace

int polilineas(int pasadas) {
    vn::dueno<arr_DestruyePunto2D> plano(arr_CreaPunto2D(PUNTOS));
    vn::dueno<arr_DestruyePunto3D> espacio(arr_CreaPunto3D(PUNTOS));
    Punto2D *const p = arr_GetBufferPunto2D(plano.get());
    Punto3D *const q = arr_GetBufferPunto3D(espacio.get());
    azar a(11);
    for (uint32_t i = 0; i < PUNTOS; ++i) {
        p[i] = {a.entre(0, 1e3), a.entre(0, 1e3)};
        q[i] = {p[i].x, p[i].y, a.entre(0, 10)};
    }
    extremos en_plano, en_espacio;
    const salida_propia s2 = abre(&en_plano, false), s3 = abre(&en_espacio, true);
    const auto dibuja_plano = [&] {
        for (uint32_t i = 0; i < VECES; ++i) vplan_escr_polilinea(s2.get(), plano.get(), FALSO);
    };
    const auto dibuja_espacio = [&] {
        for (uint32_t i = 0; i < VECES; ++i) vplan_escr_polilinea3D(s3.get(), espacio.get());
    };
    // The loops, over a matrix that the compiler does not know.
    std::vector<Punto2D> destino2(PUNTOS);
    std::vector<Punto3D> destino3(PUNTOS);
    extremos de_bucle;
    volatile double coseno = 0.8, seno = 0.6;
    const auto bucle_plano = [&] {
        for (uint32_t v = 0; v < VECES; ++v) {
            const double c = coseno, s = seno;
            for (uint32_t i = 0; i < PUNTOS; ++i)
                destino2[i] = {c * p[i].x - s * p[i].y + 10, s * p[i].x + c * p[i].y + 20};
            de_bucle.suma += destino2[0].x + destino2[PUNTOS - 1].y;
        }
    };
    const auto bucle_espacio = [&] {
        for (uint32_t v = 0; v < VECES; ++v) {
            const double m[3][4] = {{coseno, -seno, 0, 10}, {seno, coseno, 0, 20}, {0, 0, coseno + seno - 0.4, 0}};
            for (uint32_t i = 0; i < PUNTOS; ++i) {
                const Punto3D &r = q[i];
                destino3[i] = {m[0][0] * r.x + m[0][1] * r.y + m[0][2] * r.z + m[0][3],
                               m[1][0] * r.x + m[1][1] * r.y + m[1][2] * r.z + m[1][3],
                               m[2][0] * r.x + m[2][1] * r.y + m[2][2] * r.z + m[2][3]};
            }
            de_bucle.suma += destino3[0].x + destino3[PUNTOS - 1].y;
        }
    };
    dibuja_plano(), dibuja_espacio();
    const double dibujado = en_plano.suma + en_espacio.suma;
    bucle_plano(), bucle_espacio();
    debe(std::fabs(dibujado - de_bucle.suma) < 1e-6 * std::fabs(dibujado), "polylines through a system");
    const int fuera =
        mide("a point of a polyline of 1,000",
             {{"plane: polyline", double(PUNTOS) * VECES, dibuja_plano},
              {"plane: the loop alone", double(PUNTOS) * VECES, bucle_plano},
              {"space: polyline", double(PUNTOS) * VECES, dibuja_espacio},
              {"space: the loop alone", double(PUNTOS) * VECES, bucle_espacio}},
             {{"plane: polyline", "plane: the loop alone", 1.5}, {"space: polyline", "space: the loop alone", 1.5}},
             pasadas);
    for (const salida_propia *s : {&s2, &s3}) vplan_desapila_transformacion(s->get());
    return fuera;
}

} // namespace bench
