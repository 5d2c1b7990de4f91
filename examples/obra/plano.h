// The drawing in memory: what an imported DXF becomes and what a project file holds. Lengths in the drawing's units,
// angles in radians, counter-clockwise; everything in plan.
#pragma once

#include <cstdint>
#include <map>
#include <nucleos/foundation/suelo/tipos.h>
#include <string>
#include <vector>

namespace obra {

using texto = std::basic_string<vnwchar>;

struct linea {
    Punto2D a, b;
};
struct circulo {
    Punto2D centro;
    double radio;
};
struct arco {
    Punto2D centro;
    double radio, desde, hasta;
};
// Half major axis as a vector, ratio of the minor one (negative: mirrored), parameters of both ends.
struct elipse {
    Punto2D centro, eje;
    double razon, desde, hasta;
};
// A bulge belongs to the vertex that its arc begins at: the tangent of a quarter of the angle, positive to the left.
struct polilinea {
    bool cerrada = false;
    std::vector<Punto2D> vertices;
    std::vector<double> curvaturas;
};
struct rotulo {
    Punto2D en;
    double altura, angulo;
    texto letras;
};

// The colours of a kind's entities, one each: 0 to 256 of the CAD palette (256 that of the layer), or 0x1000000 + RGB.
using colores = std::vector<uint32_t>;

struct capa {
    texto nombre, tipo_linea;
    uint32_t color = 7;
    bool apagada = false;
    double grosor_mm = 0; // 0: none is said
    std::vector<linea> lineas;
    std::vector<circulo> circulos;
    std::vector<arco> arcos;
    std::vector<elipse> elipses;
    std::vector<polilinea> polilineas;
    std::vector<rotulo> rotulos;
    colores color_lineas, color_circulos, color_arcos, color_elipses, color_polilineas, color_rotulos;
};

struct extension {
    bool hay = false;
    double xmin = 0, ymin = 0, xmax = 0, ymax = 0;
    void anade(double x, double y) {
        if (!hay) xmin = xmax = x, ymin = ymax = y, hay = true;
        else {
            if (x < xmin) xmin = x;
            if (x > xmax) xmax = x;
            if (y < ymin) ymin = y;
            if (y > ymax) ymax = y;
        }
    }
};

struct plano {
    texto version_dxf;
    double metros_por_unidad = 1;
    std::vector<texto> tipos_de_linea;
    // The pattern of each of them: lengths drawn and, below 0, left free; empty: without gaps. Fewer in old files.
    std::vector<std::vector<double>> trazos_de_linea;
    std::vector<capa> capas;
    // What the drawing holds and this program does not take, by kind.
    std::map<std::string, uint32_t> sin_importar;
};

// Names of layers and line types have no case: those that are one have this in common.
texto clave_de(texto nombre);
// The arc, counter-clockwise, of a piece of a polyline whose bulge is not 0.
arco arco_de(Punto2D a, Punto2D b, double curvatura);
// Adds the points that bound the curve centre + u cos t + v sin t, for t from `desde` counter-clockwise to `hasta`.
void anade_arco(extension &e, Punto2D centro, Punto2D u, Punto2D v, double desde, double hasta);
// The box of lines, circles, arcs, ellipses and polylines; texts do not count.
extension extension_de(const capa &c);

} // namespace obra
