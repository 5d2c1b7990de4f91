// A system of coordinates of an output: a 4 x 4 transformation, of which kind the last one appended was, and what texts
// and depths of the plane take from it; the arithmetic of the stack and of what goes through one.
#pragma once

#include "foundation/listas/arr.h"
#include "foundation/numeros/afin.hpp"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/tipos.h"
#include <iterator>

namespace vn {

// What the last transformation appended was.
enum tipo_transformacion : uint32_t {
    i_MATRIZ_SISTEMA_COORDENADAS,
    i_MATRIZ_DESPLAZAMIENTO,
    i_MATRIZ_ESCALA,
    i_MATRIZ_ESCALA_EXCEPTO_TEXTO,
    i_MATRIZ_DIVISOR_ESCALA,
    i_MATRIZ_GIRO,
    i_MATRIZ_EXTRUSION,
    i_MATRIZ_PROYECCION,
    i_MATRIZ_GENERAL,
    i_MATRIZ_DESACTIVA_TRANSFORMACIONES,
    i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL,
    i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_PLANO_PANTALLA,
    i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_DIBUJO_EN_PIXELES,
};

struct sistema_coordenadas {
    tipo_transformacion tipo = i_MATRIZ_SISTEMA_COORDENADAS;
    // Rows U, V, W with D in the fourth column, and the fourth row. Aligned, so that a copy of the record reads by the
    // pairs in which it was written.
    alignas(16) matriz4 m{};
    double factor_escala_textos = 1., profundidad = 0.;
    vnbool se_ha_aplicado_previamente_desactiva_todas_transformaciones_glsl = FALSO;
};

// What each kind is to whoever composes, and to the size of a text: identity by the kind, whatever the numbers say.
struct rasgos_de_tipo {
    bool identidad, identidad_para_texto;
    bool corta; // the stages beyond it take no part
};
// identity, identity for texts, cuts
inline constexpr rasgos_de_tipo RASGOS_DE_TIPOS[] = {
    {true, true, false},   // 0
    {false, false, false}, // 1
    {false, false, false}, // 2
    {false, true, false},  // 3
    {false, false, false}, // 4
    {false, false, false}, // 5
    {false, false, false}, // 6
    {false, false, false}, // 7
    {false, false, false}, // 8
    {true, true, true},    // 9
    {false, true, true},   // 10
    {true, true, true},    // 11
    {true, true, true},    // 12
};
// Those of a kind that is none, reported.
const rasgos_de_tipo &rasgos_de_ninguno();
inline const rasgos_de_tipo &rasgos(tipo_transformacion tipo) {
    return tipo < std::size(RASGOS_DE_TIPOS) ? RASGOS_DE_TIPOS[tipo] : rasgos_de_ninguno();
}
inline bool i_es_sistema_coordenadas_identidad(const sistema_coordenadas *s) { return rasgos(s->tipo).identidad; }

// ---- Constructors

sistema_coordenadas desplazamiento(double dx, double dy, double dz);
// A factor of zero is reported, and is 1 then.
sistema_coordenadas escala(tipo_transformacion tipo, double factor_x, double factor_y, double factor_z,
                           double factor_escala_textos);
sistema_coordenadas giro(double coseno, double seno);
// A point (x, y, z) goes to origin + x X + y Y + z Z, of orthonormal axes; of others, by the inverse of the matrix
// whose rows they are.
sistema_coordenadas ejes(tipo_transformacion tipo, Punto3D X, Punto3D Y, Punto3D Z, Punto3D origen);
sistema_coordenadas extrusion(Punto3D normal, Punto3D origen);

// ---- Products

// resultado = total x parcial; it may be either of them.
void compone(const sistema_coordenadas *sistema_total, const sistema_coordenadas *sistema_parcial,
             sistema_coordenadas *sistema_resultado);
// sistema = transformar x sistema x destransformar.
void transforma_con_respecto_a(sistema_coordenadas *sistema, const sistema_coordenadas *matriz_destransformar,
                               const sistema_coordenadas *matriz_transformar);
// About a point of the plane.
void transforma_con_respecto_a(sistema_coordenadas *sistema, Punto2D p);
// What is reported of a matrix without an inverse leaves it as it is.
sistema_coordenadas inversa(const sistema_coordenadas &s);
// For hatches: without the translation, of kind 0.
sistema_coordenadas solo_giro(const sistema_coordenadas &s);
// A matrix object of the first three rows: the fourth is 0 0 0 1.
dueno<vmatr_destruir_matriz> a_vmatr(const sistema_coordenadas &s);

// ---- What goes through one

// Through one that is identity by its kind: as it is, but for a perspective.
Punto3D transforma_punto_identidad(const sistema_coordenadas &s, Punto3D p);
inline Punto3D transforma_punto(const sistema_coordenadas &s, Punto3D p) {
    return i_es_sistema_coordenadas_identidad(&s) ? transforma_punto_identidad(s, p) : s.m.punto(p);
}
inline Punto2D transforma_punto_2d(const sistema_coordenadas &s, double x, double y, double z) {
    const Punto3D p = transforma_punto(s, {x, y, z});
    return {p.x, p.y};
}
Punto3D transforma_vector(const sistema_coordenadas &s, Punto3D v);
// The length that a length along x, or along y, becomes.
double magnitud_x(const sistema_coordenadas &s, double m);
double magnitud_y(const sistema_coordenadas &s, double m);
// Of a length that comes back from a device: along y, through the inverse.
double magnitud_inversa(const sistema_coordenadas &s, double m);
// A new list whose lengths went along x, each with its sign. `limite`: below it a value is negative.
dueno<arr_DestruyeDouble> magnitudes_con_signo(const sistema_coordenadas &s, const arrDouble *valores, double limite);
// Unit directions; one that the system takes to nothing stays as given.
void transforma_direccion(const sistema_coordenadas &s, double Ux, double Uy, double *Ux_transformado,
                          double *Uy_transformado);
void transforma_direccion(const sistema_coordenadas &s, Punto3D U, double *Ux_trans, double *Uy_trans,
                          double *Uz_trans);
// Radians.
double transforma_angulo(const sistema_coordenadas &s, double angulo);
// Centre as a point, half axes along x and y.
void transforma_elipse(const sistema_coordenadas &s, Punto3D centro, double ra, double rb, double *xc_trans,
                       double *yc_trans, double *zc_trans, double *ra_trans, double *rb_trans);

// ---- Shape

// z stays independent of x and y: a circle stays flat.
bool mantiene_planta(const sistema_coordenadas &s);
// Not a turn with one scale, in plan.
bool deforma_circulos(const sistema_coordenadas &s);

} // namespace vn
