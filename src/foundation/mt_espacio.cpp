#define VN_MODULO "mt (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/afirma.h"
#include "foundation/logico_priv.h"
#include "foundation/mt.h"
#include "foundation/mt_priv.h"

using vn::logico;
using vn::v3;

namespace {

// Sine of the angle of a line with a plane at or below which they do not meet.
constexpr double SENO_RECTA_PLANO = 1e-6;
// Sine of the angle of three points at or below which they are on a line: the rounding of unit vectors, no
// more.
constexpr double SENO_ALINEADOS = 1e-14;
// Component of a unit normal below which, in both x and y, it counts as close to the z axis.
constexpr double CASI_VERTICAL = 1. / 64.;

constexpr v3 EJE_X{1., 0., 0.}, EJE_Y{0., 1., 0.}, EJE_Z{0., 0., 1.};

struct ejes {
    v3 x = EJE_X, y = EJE_Y, z = EJE_Z;
};

// The axes whose Z is the normal.
bool de_normal(v3 n, ejes &e) {
    if (!vn::unitario(n)) return false;
    const bool cerca_de_z = std::fabs(n.x) < CASI_VERTICAL && std::fabs(n.y) < CASI_VERTICAL;
    v3 x = vn::vectorial(cerca_de_z ? EJE_Y : EJE_Z, n);
    vn::unitario(x);
    e = {x, vn::vectorial(n, x), n};
    return true;
}

// The axes whose X is the vector.
bool de_eje_x(const v3 &x, ejes &e) {
    ejes de_ella;
    if (!de_normal(x, de_ella)) return false;
    e = {de_ella.z, de_ella.x, de_ella.y};
    return true;
}

// The differences from the first point, each of unit length.
bool de_tres_puntos(v3 u, v3 v, ejes &e) {
    if (!vn::unitario(u) || !vn::unitario(v)) return false;
    v3 z = vn::vectorial(u, v);
    if (!(vn::modulo(z) > SENO_ALINEADOS)) return false;
    vn::unitario(z);
    v3 y = vn::vectorial(z, u);
    vn::unitario(y);
    e = {u, y, z};
    return true;
}

} // namespace

double mt_distancia_3D(double x1, double y1, double z1, double x2, double y2, double z2) {
    return vn::modulo({x2 - x1, y2 - y1, z2 - z1});
}

double mt_modulo_vector_3D(double x, double y, double z) { return vn::modulo({x, y, z}); }

vnbool mt_pasar_a_unitario_3D(double *x, double *y, double *z) {
    if (!AFIRMA_NO_NULO(x) || !AFIRMA_NO_NULO(y) || !AFIRMA_NO_NULO(z)) return FALSO;
    v3 v{*x, *y, *z};
    if (!vn::unitario(v)) return FALSO;
    vn::da(v, x, y, z);
    return CIERTO;
}

double mt_producto_escalar(double x1, double y1, double z1, double x2, double y2, double z2) {
    return vn::escalar({x1, y1, z1}, {x2, y2, z2});
}

void mt_producto_vectorial(double x1, double y1, double z1, double x2, double y2, double z2, double *x,
                           double *y, double *z) {
    vn::da(vn::vectorial({x1, y1, z1}, {x2, y2, z2}), x, y, z);
}

void mt_producto_vectorial_3ptos(double x1, double y1, double z1, double x2, double y2, double z2, double x3,
                                 double y3, double z3, double *x, double *y, double *z) {
    const v3 p{x1, y1, z1};
    vn::da(vn::vectorial(v3{x2, y2, z2} - p, v3{x3, y3, z3} - p), x, y, z);
}

vnbool mt_vector_director_de_dos_puntos_3D(double x1, double y1, double z1, double x2, double y2, double z2,
                                           double *ux, double *uy, double *uz) {
    v3 u{x2 - x1, y2 - y1, z2 - z1};
    const bool hay = vn::unitario(u);
    vn::da(hay ? u : v3{}, ux, uy, uz);
    return logico(hay);
}

void mt_proyecta_punto_sobre_recta_3D(double x, double y, double z, double x1, double y1, double z1,
                                      double x2, double y2, double z2, double *xp, double *yp, double *zp) {
    const v3 o{x1, y1, z1}, p = v3{x, y, z} - o;
    v3 u = v3{x2, y2, z2} - o;
    vn::da(vn::unitario(u) ? o + vn::escalar(p, u) * u : o, xp, yp, zp);
}

double mt_D_plano_posicionado_en_coordenada(double A, double B, double C, double x, double y, double z) {
    return -vn::escalar({A, B, C}, {x, y, z});
}

vnbool mt_existe_interseccion_recta_con_plano(double x, double y, double z, double dx, double dy, double dz,
                                              double A, double B, double C, double D, double *xc, double *yc,
                                              double *zc) {
    v3 u{dx, dy, dz}, n{A, B, C};
    const double l = vn::modulo(n);
    if (!vn::unitario(u) || !vn::unitario(n)) return FALSO;
    const double seno = vn::escalar(u, n);
    if (!(std::fabs(seno) > SENO_RECTA_PLANO)) return FALSO;
    const v3 p{x, y, z};
    const v3 corte = p + (-(vn::escalar(n, p) + D / l) / seno) * u;
    if (!std::isfinite(corte.x + corte.y + corte.z)) return FALSO;
    vn::da(corte, xc, yc, zc);
    return CIERTO;
}

vnbool vornmath_calcula_matriz_transformacion_autocad(double nx, double ny, double nz, double *Xx, double *Xy,
                                                      double *Xz, double *Yx, double *Yy, double *Yz) {
    ejes e;
    const bool hay = de_normal({nx, ny, nz}, e);
    vn::da(e.x, Xx, Xy, Xz);
    vn::da(e.y, Yx, Yy, Yz);
    return logico(hay);
}

vnbool mt_calcular_ejes_segun_vector_x_local(double Xx, double Xy, double Xz, double *Yx, double *Yy,
                                             double *Yz, double *Zx, double *Zy, double *Zz) {
    ejes e;
    const bool hay = de_eje_x({Xx, Xy, Xz}, e);
    vn::da(e.y, Yx, Yy, Yz);
    vn::da(e.z, Zx, Zy, Zz);
    return logico(hay);
}

vnbool mt_calcular_ejes_3D_dados_2_puntos(double x1, double y1, double z1, double x2, double y2, double z2,
                                          double *Xx, double *Xy, double *Xz, double *Yx, double *Yy,
                                          double *Yz, double *Zx, double *Zy, double *Zz) {
    ejes e;
    const bool hay = de_eje_x({x2 - x1, y2 - y1, z2 - z1}, e);
    vn::da(e.x, Xx, Xy, Xz);
    vn::da(e.y, Yx, Yy, Yz);
    vn::da(e.z, Zx, Zy, Zz);
    return logico(hay);
}

vnbool mt_calcular_ejes_3D_dados_3_puntos(double x1, double y1, double z1, double x2, double y2, double z2,
                                          double x3, double y3, double z3, double *Xx, double *Xy, double *Xz,
                                          double *Yx, double *Yy, double *Yz, double *Zx, double *Zy,
                                          double *Zz) {
    ejes e;
    const v3 p{x1, y1, z1};
    const bool hay = de_tres_puntos(v3{x2, y2, z2} - p, v3{x3, y3, z3} - p, e);
    vn::da(e.x, Xx, Xy, Xz);
    vn::da(e.y, Yx, Yy, Yz);
    vn::da(e.z, Zx, Zy, Zz);
    return logico(hay);
}
