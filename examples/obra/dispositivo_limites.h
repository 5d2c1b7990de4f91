// A device that draws nothing and collects the box of what it is told: the first pass of whoever frames a drawing.
// vplan_obtener_limites asks for the box, and `hay` tells whether there is any.
#pragma once

#include "dispositivo.h"

namespace obra {

class limites : public dispositivo {
  public:
    static constexpr const char *NOMBRE = "obra: limites";
    static constexpr uint32_t TIPO = 1;
    limites() : dispositivo(0) {}
    bool hay() const { return caja_.hay; }
    static void pon_funciones(vplan_funciones &f);

  private:
    void anade(double x, double y);
    void anade_curva(Punto2D centro, Punto2D u, Punto2D v, double desde, double hasta);
    void anade_contornos(const arrPuntero *contornos);

    void punto(double x, double y);
    void linea(double x1, double y1, double x2, double y2);
    void linea_gradiente(double x1, double y1, uint32_t, double x2, double y2, uint32_t);
    void circulo(double xc, double yc, double radio, vnbool);
    void arco(double xc, double yc, double x1, double y1, double x2, double y2, vnbool);
    void elipse(double xc, double yc, double ra, double rb, double angulo, vnbool);
    void arco_elipse(double xc, double yc, double ra, double rb, double desde, double hasta, double angulo, vnbool);
    void poligono(const arrPunto2D *puntos, vnbool);
    void polilinea(const arrPunto2D *puntos);
    void regiones(const arrPuntero *exteriores, const arrPuntero *interiores, vnbool);
    void regiones_con_gradiente(const arrPuntero *exteriores, const arrPuntero *interiores, uint32_t, double, double,
                                double, double, uint32_t, uint32_t);
    void rayado(const arrPuntero *contornos, const arrDouble *, const arrPunto2D *, const arrPunto2D *,
                const arrPuntero *);
    void dame(double *xmin, double *ymin, double *xmax, double *ymax);

    extension caja_;
};

} // namespace obra
