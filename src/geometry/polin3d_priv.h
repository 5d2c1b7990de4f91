// What the sources of the polylines share: the fillet between three points, the tolerances.
#pragma once

#include "foundation/listas/arr.h"
#include "foundation/numeros/vector_int.h"
#include <vector>

namespace vn {

// The tolerances. Radians from the half turn up to which an arc is a half circle, whose ends do not tell its plane.
inline constexpr double MARGEN_MEDIA_VUELTA = 1e-05;
// Cosine of the normals, from 1, up to which the ends of an arc are in the plane of its axes, and corners in one plane.
inline constexpr double MARGEN_MISMO_PLANO_ARCO = .000001, MARGEN_MISMO_PLANO_POLIGONO = .00001;
// Cosine of the turn, from 1, up to which two edges go on straight.
inline constexpr double MARGEN_SIN_GIRO = 1e-05;
// Angle up to which a bar is straight or doubled back at a point, with no fillet: one degree, in radians.
inline constexpr double ANGULO_SIN_ACUERDO = 0.017453;
// Distance up to which a tangent point is the end of its segment, and two consecutive points of a result are one.
inline constexpr double PRECISION_EXTREMO = 1e-05;
// Distance up to which a section stands where the last one does.
inline constexpr double PRECISION_SECCION = 1e-06;
// Cosine, from 1 or -1, up to which a corner is straight enough for the section before it.
inline constexpr double MARGEN_RECTO = 0.0001;
// The step of a cosine that is rounded before its angle is asked for.
inline constexpr double PASO_COSENO = 1e-14;

// The most steps of a fillet and points of a result: a tiny step could ask for points without bound.
inline constexpr double MAXIMO_PASOS = 100000.;
inline constexpr uint64_t MAXIMO_PUNTOS = uint64_t{1} << 22;

// New array with the points; null if there is no memory for them.
arrPunto3D *array_de(const std::vector<Punto3D> &puntos);

double distancia(Punto3D a, Punto3D b);
bool cerca(Punto3D a, Punto3D b, double precision);
// The unit vector from a to b, zero if they are one.
Punto3D direccion(Punto3D a, Punto3D b);
// X from o to a, Y on the side of b, Z = X x Y; the global axes, and false, if the three are on a line.
bool ejes_de_tres(Punto3D o, Punto3D a, Punto3D b, Punto3D &x, Punto3D &y, Punto3D &z);
double angulo_entre(Punto3D u1, Punto3D u2);

struct acuerdo {
    std::vector<Punto3D> puntos; // from the tangent point toward p1 to the one toward p3
    Punto3D centro{};
    bool hay_centro = false;
};

struct barra {
    double diametro, radio_eje, num_grados_dibujo_doblado;
};

// Where the sections of a chain go; each may be null.
struct salidas_seccion {
    arrPuntero *contornos;
    arrPunto3D *centros;
    arrPuntero *ejes;
};

// A section at `origen` with the axes u and v, or, with `V_vertical`, those of their plane whose V is vertical. Leaves
// its origin for the next one to begin at.
void emite_seccion(Punto3D origen, Punto3D u, Punto3D v, bool V_vertical, double diametro, uint16_t num_puntos_circulo,
                   const salidas_seccion &salidas, Punto3D *Xo_ult_cir);

// The fillet at p2; false if there is none.
bool hay_acuerdo(Punto3D p1, Punto3D p2, Punto3D p3, const barra &b, bool mantiene_extremos, acuerdo &a);

} // namespace vn
