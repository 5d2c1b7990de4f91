#define VN_MODULO "mt (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"

using namespace vn;
using namespace vn::numeros;

namespace {

// Sine of the angle of a line with a plane at or below which they do not meet.
constexpr double SENO_RECTA_PLANO = 1e-6;
// Component of a unit normal below which, in both x and y, it counts as close to the z axis.
constexpr double CASI_VERTICAL = 1. / 64.;

constexpr Punto3D EJE_X{1., 0., 0.}, EJE_Y{0., 1., 0.}, EJE_Z{0., 0., 1.};

struct ejes {
    Punto3D x = EJE_X, y = EJE_Y, z = EJE_Z;
};

// The axes whose Z is the normal.
bool de_normal(Punto3D n, ejes &e) {
    if (!unitario(n)) return false;
    const bool cerca_de_z = std::fabs(n.x) < CASI_VERTICAL && std::fabs(n.y) < CASI_VERTICAL;
    // Whichever of both axes is far from the normal: their product is then long enough to tell a direction.
    Punto3D x = vectorial(cerca_de_z ? EJE_Y : EJE_Z, n);
    unitario(x);
    e = {x, vectorial(n, x), n};
    return true;
}

// The axes whose X is the vector.
bool de_eje_x(Punto3D x, ejes &e) {
    ejes de_ella;
    if (!de_normal(x, de_ella)) return false;
    // The rule tells X and Y of a normal; with the vector in its place they are Y and Z.
    e = {de_ella.z, de_ella.x, de_ella.y};
    return true;
}

bool de_tres_puntos(Punto3D p, Punto3D q, Punto3D r, ejes &e) {
    Punto3D u = q - p, v = r - p;
    const double mayor = std::max({mayor_coordenada(p), mayor_coordenada(q), mayor_coordenada(r)});
    // Found while the differences still have their lengths.
    const double seno_minimo = seno_de_redondeo(mayor, std::min(modulo(u), modulo(v)));
    if (!unitario(u) || !unitario(v)) return false;
    Punto3D z = vectorial(u, v);
    if (!(modulo(z) > seno_minimo)) return false;
    unitario(z);
    // Made unit once more: the product of unit vectors is so to rounding only.
    Punto3D y = vectorial(z, u);
    unitario(y);
    e = {u, y, z};
    return true;
}

} // namespace

double mt_distancia_3D(double x1, double y1, double z1, double x2, double y2, double z2) {
    return modulo(Punto3D{x2 - x1, y2 - y1, z2 - z1});
}

double mt_modulo_vector_3D(double x, double y, double z) { return modulo(Punto3D{x, y, z}); }

vnbool mt_pasar_a_unitario_3D(double *x, double *y, double *z) {
    if (!EXIGE(x, y, z)) return FALSO;
    Punto3D v{*x, *y, *z};
    if (!unitario(v)) return FALSO;
    da(x, y, z, v);
    return CIERTO;
}

double mt_producto_escalar(double x1, double y1, double z1, double x2, double y2, double z2) {
    return escalar({x1, y1, z1}, {x2, y2, z2});
}

void mt_producto_vectorial(double x1, double y1, double z1, double x2, double y2, double z2, double *x, double *y,
                           double *z) {
    da(x, y, z, vectorial({x1, y1, z1}, {x2, y2, z2}));
}

void mt_producto_vectorial_3ptos(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3,
                                 double z3, double *x, double *y, double *z) {
    const Punto3D p{x1, y1, z1};
    da(x, y, z, vectorial(Punto3D{x2, y2, z2} - p, Punto3D{x3, y3, z3} - p));
}

vnbool mt_vector_director_de_dos_puntos_3D(double x1, double y1, double z1, double x2, double y2, double z2, double *ux,
                                           double *uy, double *uz) {
    Punto3D u{x2 - x1, y2 - y1, z2 - z1};
    const bool hay = unitario(u);
    da(ux, uy, uz, hay ? u : Punto3D{});
    return logico(hay);
}

void mt_proyecta_punto_sobre_recta_3D(double x, double y, double z, double x1, double y1, double z1, double x2,
                                      double y2, double z2, double *xp, double *yp, double *zp) {
    const Punto3D o{x1, y1, z1}, p = Punto3D{x, y, z} - o;
    Punto3D u = Punto3D{x2, y2, z2} - o;
    da(xp, yp, zp, unitario(u) ? o + escalar(p, u) * u : o);
}

double mt_D_plano_posicionado_en_coordenada(double A, double B, double C, double x, double y, double z) {
    return -escalar({A, B, C}, {x, y, z});
}

vnbool mt_existe_interseccion_recta_con_plano(double x, double y, double z, double dx, double dy, double dz, double A,
                                              double B, double C, double D, double *xc, double *yc, double *zc) {
    Punto3D u{dx, dy, dz}, n{A, B, C};
    const double l = modulo(n);
    if (!unitario(u) || !unitario(n)) return FALSO;
    // The distance to the plane along its normal, D brought to a unit normal, over the sine is the way along the
    // line.
    const double seno = escalar(u, n);
    if (!(std::fabs(seno) > SENO_RECTA_PLANO)) return FALSO;
    const Punto3D p{x, y, z};
    const Punto3D corte = p + (-(escalar(n, p) + D / l) / seno) * u;
    if (!es_finito(corte)) return FALSO;
    da(xc, yc, zc, corte);
    return CIERTO;
}

vnbool vornmath_calcula_matriz_transformacion_autocad(double nx, double ny, double nz, double *Xx, double *Xy,
                                                      double *Xz, double *Yx, double *Yy, double *Yz) {
    ejes e;
    const bool hay = de_normal({nx, ny, nz}, e);
    da(Xx, Xy, Xz, e.x);
    da(Yx, Yy, Yz, e.y);
    return logico(hay);
}

vnbool mt_calcular_ejes_segun_vector_x_local(double Xx, double Xy, double Xz, double *Yx, double *Yy, double *Yz,
                                             double *Zx, double *Zy, double *Zz) {
    ejes e;
    const bool hay = de_eje_x({Xx, Xy, Xz}, e);
    da(Yx, Yy, Yz, e.y);
    da(Zx, Zy, Zz, e.z);
    return logico(hay);
}

vnbool mt_calcular_ejes_3D_dados_2_puntos(double x1, double y1, double z1, double x2, double y2, double z2, double *Xx,
                                          double *Xy, double *Xz, double *Yx, double *Yy, double *Yz, double *Zx,
                                          double *Zy, double *Zz) {
    ejes e;
    const bool hay = de_eje_x({x2 - x1, y2 - y1, z2 - z1}, e);
    da(Xx, Xy, Xz, e.x);
    da(Yx, Yy, Yz, e.y);
    da(Zx, Zy, Zz, e.z);
    return logico(hay);
}

vnbool mt_calcular_ejes_3D_dados_3_puntos(double x1, double y1, double z1, double x2, double y2, double z2, double x3,
                                          double y3, double z3, double *Xx, double *Xy, double *Xz, double *Yx,
                                          double *Yy, double *Yz, double *Zx, double *Zy, double *Zz) {
    ejes e;
    const bool hay = de_tres_puntos({x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3}, e);
    da(Xx, Xy, Xz, e.x);
    da(Yx, Yy, Yz, e.y);
    da(Zx, Zy, Zz, e.z);
    return logico(hay);
}
