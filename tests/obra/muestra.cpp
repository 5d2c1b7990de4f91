#include "muestra.h"
#include "posesion.h"
#include <iterator>

namespace obra {
namespace {

// Contours of a region: squares about the origin by their half sides.
class cuadrados {
  public:
    explicit cuadrados(std::initializer_list<double> lados) : arr_(arr_CreaPunteroST(0, arrPunto2D)) {
        for (const double l : lados) {
            arrPunto2D *const p = arr_CreaPunto2D(0);
            for (const auto &[x, y] : {Punto2D{-l, -l}, {l, -l}, {l, l}, {-l, l}}) arr_AppendPunto2D(p, x, y);
            arr_AppendPunteroST(arr_, p, arrPunto2D);
        }
    }
    cuadrados(const cuadrados &) = delete;
    cuadrados &operator=(const cuadrados &) = delete;
    ~cuadrados() { arr_DestruyeEstructurasST(&arr_, arrPunto2D, arr_DestruyePunto2D); }
    const arrPuntero *operator()() const { return arr_; }

  private:
    arrPuntero *arr_;
};

void dibuja_rayado(salida_t *s) {
    const cuadrados fuera{3};
    const vn::dueno<arr_DestruyeDouble> angulos(arr_CreaDouble(0)), trazos(arr_CreaDouble(0));
    const dueno_puntos origenes(arr_CreaPunto2D(0)), pasos(arr_CreaPunto2D(0));
    for (const double a : {0., 1.}) {
        arr_AppendDouble(angulos.get(), a);
        arr_AppendPunto2D(origenes.get(), 0, 0);
        arr_AppendPunto2D(pasos.get(), 0, 0.5);
    }
    for (const double t : {0.2, -0.1}) arr_AppendDouble(trazos.get(), t);
    vplan_escr_hatch(s, fuera(), angulos.get(), origenes.get(), pasos.get(), nullptr);
    vplan_escr_hatch_relleno(s, fuera());
}

} // namespace

std::span<const cuenta> dibuja_muestra(salida_t *s) {
    const vn::dueno<arr_DestruyeDouble> trazos(arr_CreaDouble(0));
    for (const double t : {0.5, -0.25, 0., -0.25}) arr_AppendDouble(trazos.get(), t);
    vplan_define_tipo_linea_u(s, VNU("eje"), VNU("de ejes"), trazos.get());
    // Two names that are one without what names may not have; one that no code page has.
    for (const vnwchar *nombre : {VNU("muros ext"), VNU("muros.ext"), VNU("\x03b1 45"), VNU("0")}) {
        const idcolor rojo = {0, 1, 0xFFFFFFFF};
        vplan_escr_capadxf(s, vornplan_define_capa_u(s, VPLAN_NOCAMBIAR, nombre, 6, 0.5, &rojo, 0, VNU("eje"), 255));
        vplan_escr_linea(s, 0, 0, 10, 5);
    }
    vplan_escr_tipo_linea(s, 2);
    vornplan_escr_color_rgb(s, 0x102030);
    vplan_escr_circulo(s, 1, 1, 2);
    vplan_escr_tipo_linea_definida_u(s, VNU("nadie lo define"));
    vplan_escr_color(s, VPLAN_PORCAPA);
    vplan_escr_arco(s, 0, 0, 5, 0, 0, 5);
    vplan_escr_pluma(s, 2);
    vplan_escr_arco_elipse(s, 0, 0, 2, 6, 0, 1.5, 0.25, FALSO);
    vplan_escr_arco_elipse(s, 0, 0, 6, 2, 0, 10, 0, FALSO);
    vplan_escr_punto(s, 5, 5);
    vplan_escr_rayo(s, 0, 0, 1, 1);
    vplan_escr_linea_referencia(s, 0, 0, 1, 2);
    vplan_escr_rectangulo(s, 0, 0, 4, 3);
    vplan_escr_cara3D(s, 0, 0, 1, CIERTO, 4, 0, 1, FALSO, 4, 3, 2, CIERTO, 0, 3, 2, CIERTO, CIERTO);
    vplan_escr_solid3D(s, 0, 0, 0, 4, 0, 0, 0, 3, 0, 4, 3, 0, CIERTO);
    // Fills: a rectangle, a circle, a part of a circle and of an ellipse, a region with a hole, its gradient.
    vplan_escr_rectangulo_relleno(s, 0, 0, 4, 3);
    vplan_escr_circulo_relleno(s, 0, 0, 2);
    vplan_escr_arco_relleno(s, 0, 0, 5, 0, 0, 5);
    vplan_escr_arco_elipse(s, 0, 0, 6, 2, 0, 1.5, 0.25, CIERTO);
    const cuadrados fuera{3}, dentro{1, 0.5};
    vplan_escr_relleno_regiones(s, fuera(), dentro());
    vplan_escr_relleno_regiones_con_gradiente_lineal(s, fuera(), dentro(), 0xFF0000FF, 0xFFFF0000, -3, 0, 3, 0);
    dibuja_rayado(s);
    static constexpr cuenta CUENTAS[] = {{"LINE", 4},   {"CIRCLE", 1}, {"ARC", 1},   {"ELLIPSE", 2},
                                         {"POINT", 1},  {"RAY", 1},    {"XLINE", 1}, {"LWPOLYLINE", 1},
                                         {"3DFACE", 1}, {"SOLID", 1},  {"HATCH", 8}};
    return CUENTAS;
}

} // namespace obra
