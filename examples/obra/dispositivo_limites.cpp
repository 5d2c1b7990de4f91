#include "dispositivo_limites.h"
#include <cmath>
#include <nucleos/foundation/listas/arr.h>
#include <numbers>

namespace obra {

void limites::pon_funciones(vplan_funciones &f) {
    dispositivo::pon_funciones(f);
    f.func_Punto = puente<&limites::punto>::llama;
    f.func_DrawLinea = puente<&limites::linea>::llama;
    f.func_LineaGradiente = puente<&limites::linea_gradiente>::llama;
    f.func_DrawCirculo = puente<&limites::circulo>::llama;
    f.func_DrawArco = puente<&limites::arco>::llama;
    f.func_Elipse = puente<&limites::elipse>::llama;
    f.func_ArcoElipse = puente<&limites::arco_elipse>::llama;
    f.func_DrawPoligono = puente<&limites::poligono>::llama;
    f.func_DrawPolilinea = puente<&limites::polilinea>::llama;
    f.func_DibujaRellenoRegiones = puente<&limites::regiones>::llama;
    f.func_DibujaRellenoRegionesConGradiente = puente<&limites::regiones_con_gradiente>::llama;
    f.func_DrawHatch = puente<&limites::rayado>::llama;
    f.func_obtener_limites = puente<&limites::dame>::llama;
}

// A drawing may hold anything: what is no place takes none.
void limites::anade(double x, double y) {
    if (std::isfinite(x) && std::isfinite(y)) caja_.anade(x, y);
}
void limites::anade_curva(Punto2D centro, Punto2D u, Punto2D v, double desde, double hasta) {
    extension e;
    anade_arco(e, centro, u, v, desde, hasta);
    if (e.hay) anade(e.xmin, e.ymin), anade(e.xmax, e.ymax);
}
void limites::anade_contornos(const arrPuntero *contornos) {
    for (uint32_t i = 0; i < arr_NumElemsPuntero(contornos); ++i) polilinea(arr_GetPunteroST(contornos, i, arrPunto2D));
}

void limites::punto(double x, double y) { anade(x, y); }
void limites::linea(double x1, double y1, double x2, double y2) {
    anade(x1, y1);
    anade(x2, y2);
}
void limites::linea_gradiente(double x1, double y1, uint32_t, double x2, double y2, uint32_t) { linea(x1, y1, x2, y2); }
void limites::circulo(double xc, double yc, double radio, vnbool) {
    anade(xc - radio, yc - radio);
    anade(xc + radio, yc + radio);
}
void limites::arco(double xc, double yc, double x1, double y1, double x2, double y2, vnbool) {
    const double radio = std::hypot(x1 - xc, y1 - yc);
    anade(x1, y1);
    anade(x2, y2);
    anade_curva({xc, yc}, {radio, 0}, {0, radio}, std::atan2(y1 - yc, x1 - xc), std::atan2(y2 - yc, x2 - xc));
}
void limites::elipse(double xc, double yc, double ra, double rb, double angulo, vnbool relleno) {
    arco_elipse(xc, yc, ra, rb, 0, 2 * std::numbers::pi, angulo, relleno);
}
void limites::arco_elipse(double xc, double yc, double ra, double rb, double desde, double hasta, double angulo,
                          vnbool) {
    const double c = std::cos(angulo), s = std::sin(angulo);
    anade_curva({xc, yc}, {ra * c, ra * s}, {-rb * s, rb * c}, desde, hasta);
}
void limites::poligono(const arrPunto2D *puntos, vnbool) { polilinea(puntos); }
void limites::polilinea(const arrPunto2D *puntos) {
    const Punto2D *const v = arr_GetBufferConstPunto2D(puntos);
    for (uint32_t i = 0; i < arr_NumElemsPunto2D(puntos); ++i) anade(v[i].x, v[i].y);
}
void limites::regiones(const arrPuntero *exteriores, const arrPuntero *interiores, vnbool) {
    anade_contornos(exteriores);
    anade_contornos(interiores);
}
void limites::regiones_con_gradiente(const arrPuntero *exteriores, const arrPuntero *interiores, uint32_t, double,
                                     double, double, double, uint32_t, uint32_t) {
    regiones(exteriores, interiores, FALSO);
}
void limites::rayado(const arrPuntero *contornos, const arrDouble *, const arrPunto2D *, const arrPunto2D *,
                     const arrPuntero *) {
    anade_contornos(contornos);
}
void limites::dame(double *xmin, double *ymin, double *xmax, double *ymax) {
    *xmin = caja_.xmin, *ymin = caja_.ymin, *xmax = caja_.xmax, *ymax = caja_.ymax;
}

} // namespace obra
