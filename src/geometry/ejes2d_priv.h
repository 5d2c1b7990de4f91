// What the sources of the axes of planes share: a frame as one value, the tolerances.
#pragma once

#include "foundation/numeros/vector_int.h"

// The parameters of VN_EJES and VN_EJES_DE as a frame, and the nine names.
#define MARCO_DE(s)                                                                                                    \
    vn::marco {                                                                                                        \
        {Xo##s, Yo##s, Zo##s}, {Ux##s, Uy##s, Uz##s}, { Vx##s, Vy##s, Vz##s }                                          \
    }
#define MARCO MARCO_DE()
#define LOS_EJES Xo, Yo, Zo, Ux, Uy, Uz, Vx, Vy, Vz
// Fills the outputs of those names that are not null. EXIGE_EJES_DE: none of the nine is null.
#define A_SALIDAS_DE(s, marco)                                                                                         \
    (vn::numeros::da(Xo##s, Yo##s, Zo##s, (marco).o), vn::numeros::da(Ux##s, Uy##s, Uz##s, (marco).u),                 \
     vn::numeros::da(Vx##s, Vy##s, Vz##s, (marco).v))
#define A_SALIDAS(marco) A_SALIDAS_DE(, marco)
#define EXIGE_EJES_DE(s) (EXIGE(Xo##s, Yo##s, Zo##s) && EXIGE(Ux##s, Uy##s, Uz##s, Vx##s, Vy##s, Vz##s))

namespace vn {

// The tolerances. Distance up to which two points of a list are one, and a point is on the line of two others.
inline constexpr double PRECISION_PUNTOS = 1e-05;
// Distance up to which a point of a list is in the plane of three others.
inline constexpr double PRECISION_PLANO = 0.0005;
// Distance up to which the third corner of a face is in the plane of the others.
inline constexpr double i_PRECISION_PUNTO_PERTENECE_PLANO = 0.0005;
// A point this many times the tolerance off the plane: other starts are not tried.
inline constexpr double FACTOR_SIN_REMEDIO = 100.;
// Twice the area that a corner sweeps, below which it does not say which way the polygon turns.
inline constexpr double GIRO_SIN_SENTIDO = 1e-09;
// Difference, by component, up to which two frames have the same vectors.
inline constexpr double PRECISION_EJES_IGUALES = 1e-05;
// Horizontal components below which a vector is vertical.
inline constexpr double PRECISION_VERTICAL = 1e-06;
// Component along the normal up to which a vector is in a plane, where the caller gives no tolerance.
inline constexpr double PRECISION_VECTOR_EN_PLANO = 1e-06;
// Size up to which a coordinate of a projected origin is zero.
inline constexpr double PRECISION_ORIGEN_CERO = 1e-06;
// Product of the normals above which two planes look the same way.
inline constexpr double MARGEN_MISMA_ORIENTACION = 1e-08;
// How far past a turn an angle may be, in degrees.
inline constexpr double MARGEN_ANGULO_NEGATIVO = 1e-10, ANGULO_MAXIMO = 360.0000000001;

// A frame: origin and the vectors of local x and y.
struct marco {
    Punto3D o, u, v;

    Punto3D vector_a_global(Punto2D p) const { return p.x * u + p.y * v; }
    Punto3D a_global(Punto2D p) const { return o + p.x * u + p.y * v; }
    Punto3D a_global(Punto3D p, Punto3D w) const { return o + p.x * u + p.y * v + p.z * w; }
    Punto2D vector_a_local(Punto3D d) const { return {numeros::escalar(d, u), numeros::escalar(d, v)}; }
    Punto2D a_local(Punto3D p) const { return vector_a_local(p - o); }
    Punto3D vector_a_local(Punto3D d, Punto3D w) const {
        return {numeros::escalar(d, u), numeros::escalar(d, v), numeros::escalar(d, w)};
    }
};

// Reports a vector that is not of length 1.
bool comprueba_unitario(Punto3D u);
// The unit normal U x V, checked.
Punto3D normal_de(Punto3D u, Punto3D v);
inline Punto3D normal_de(const marco &m) { return normal_de(m.u, m.v); }
// Local coordinates of a point of the plane of normal `w`; a point off the plane by the precision or more is reported.
Punto2D a_local_en_plano(const marco &m, Punto3D w, Punto3D p, double precision);

} // namespace vn
