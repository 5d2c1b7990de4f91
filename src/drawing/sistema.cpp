#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/sistema_priv.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include <cmath>
#include <cstring>

namespace vn {

using namespace numeros;

namespace {

// How far a row may be from the axes of the plan, and a figure from a similarity.
constexpr double TOLERANCIA_PLANTA = 1e-05, TOLERANCIA_SEMEJANZA = 0.0001;
// Below this a direction has been taken to nothing.
constexpr double SIN_DIRECCION = 1e-05;

bool es_nulo(Punto2D v, double tolerancia) { return std::fabs(v.x) < tolerancia && std::fabs(v.y) < tolerancia; }

bool invierte(const matriz4 &m, double *Ux_inversa, double *Uy_inversa, double *Uz_inversa, double *Dx_inversa,
              double *Vx_inversa, double *Vy_inversa, double *Vz_inversa, double *Dy_inversa, double *Wx_inversa,
              double *Wy_inversa, double *Wz_inversa, double *Dz_inversa, double *a41_inversa, double *a42_inversa,
              double *a43_inversa, double *a44_inversa) {
    if (!EXIGE(Ux_inversa, Uy_inversa, Uz_inversa, Dx_inversa, Vx_inversa, Vy_inversa, Vz_inversa, Dy_inversa) ||
        !EXIGE(Wx_inversa, Wy_inversa, Wz_inversa, Dz_inversa, a41_inversa, a42_inversa, a43_inversa, a44_inversa))
        return false;
    const std::optional<matriz4> r = m.inversa();
    if (!AFIRMA_TEXTO(r.has_value(), "ABS(determinante) > 0.")) return false;
    double *const filas[4][4] = {{Ux_inversa, Uy_inversa, Uz_inversa, Dx_inversa},
                                 {Vx_inversa, Vy_inversa, Vz_inversa, Dy_inversa},
                                 {Wx_inversa, Wy_inversa, Wz_inversa, Dz_inversa},
                                 {a41_inversa, a42_inversa, a43_inversa, a44_inversa}};
    for (int i = 0; i < 4; ++i)
        for (int j = 0; j < 4; ++j) *filas[i][j] = r->m[i][j];
    return true;
}
// An inverse in place; false, reported, and the matrix stays.
bool invierte(matriz4 &m) {
    const matriz4 a = m;
    auto &[u, v, w, cuarta] = m.m;
    return invierte(a, &u[0], &u[1], &u[2], &u[3], &v[0], &v[1], &v[2], &v[3], &w[0], &w[1], &w[2], &w[3], &cuarta[0],
                    &cuarta[1], &cuarta[2], &cuarta[3]);
}

} // namespace

const rasgos_de_tipo &rasgos_de_ninguno() {
    AFIRMA_DEFECTO();
    return RASGOS_DE_TIPOS[i_MATRIZ_SISTEMA_COORDENADAS];
}

// ---------------------------------------------------------------- constructors

sistema_coordenadas desplazamiento(double dx, double dy, double dz) {
    return {i_MATRIZ_DESPLAZAMIENTO, matriz4::traslacion({dx, dy, dz})};
}

sistema_coordenadas escala(tipo_transformacion tipo, double factor_x, double factor_y, double factor_z,
                           double factor_escala_textos) {
    if (!AFIRMA(vnstdc_fabs(factor_x) > 0.)) factor_x = 1.;
    if (!AFIRMA(vnstdc_fabs(factor_y) > 0.)) factor_y = 1.;
    if (!AFIRMA(vnstdc_fabs(factor_z) > 0.)) factor_z = 1.;
    return {tipo, matriz4::escala(factor_x, factor_y, factor_z), factor_escala_textos};
}

sistema_coordenadas giro(double coseno, double seno) {
    return {i_MATRIZ_GIRO, matriz4::de_ejes({}, {coseno, seno, 0}, {-seno, coseno, 0}, {0, 0, 1})};
}

sistema_coordenadas ejes(tipo_transformacion tipo, Punto3D X, Punto3D Y, Punto3D Z, Punto3D origen) {
    sistema_coordenadas s{tipo, {{{X.x, X.y, X.z, 0}, {Y.x, Y.y, Y.z, 0}, {Z.x, Z.y, Z.z, 0}, {0, 0, 0, 1}}}};
    if (!invierte(s.m)) s.m = {};
    s.m.m[0][3] = origen.x;
    s.m.m[1][3] = origen.y;
    s.m.m[2][3] = origen.z;
    return s;
}

sistema_coordenadas extrusion(Punto3D normal, Punto3D origen) {
    Punto3D X{1, 0, 0}, Y{0, 1, 0};
    vornmath_calcula_matriz_transformacion_autocad(normal.x, normal.y, normal.z, &X.x, &X.y, &X.z, &Y.x, &Y.y, &Y.z);
    return ejes(i_MATRIZ_EXTRUSION, X, Y, normal, origen);
}

// ---------------------------------------------------------------- products

namespace {

// r = a x b, of affine ones; r may be either. By pairs of columns, which a stack that changes for each figure feels.
void multiplica(matriz4 &r, const matriz4 &a, const matriz4 &b) {
    static constexpr double CUARTA[] = {0, 0, 0, 1};
    if (std::memcmp(a.m[3], CUARTA, sizeof CUARTA) != 0 || std::memcmp(b.m[3], CUARTA, sizeof CUARTA) != 0) {
        r = a * b;
        return;
    }
    using par [[gnu::vector_size(16)]] = double;
    par izquierda[3], derecha[3];
    for (int k = 0; k < 3; ++k) {
        std::memcpy(&izquierda[k], &b.m[k][0], sizeof(par));
        std::memcpy(&derecha[k], &b.m[k][2], sizeof(par));
    }
    for (int i = 0; i < 3; ++i) {
        const double x = a.m[i][0], y = a.m[i][1], z = a.m[i][2];
        const par d{-0., a.m[i][3]}; // -0 leaves what it is added to
        const par primera = izquierda[0] * x + izquierda[1] * y + izquierda[2] * z,
                  segunda = derecha[0] * x + derecha[1] * y + derecha[2] * z + d;
        std::memcpy(&r.m[i][0], &primera, sizeof(par));
        std::memcpy(&r.m[i][2], &segunda, sizeof(par));
    }
    std::memcpy(r.m[3], CUARTA, sizeof CUARTA);
}

} // namespace

void compone(const sistema_coordenadas *sistema_total, const sistema_coordenadas *sistema_parcial,
             sistema_coordenadas *sistema_resultado) {
    if (!EXIGE(sistema_total, sistema_parcial)) return;
    if (i_es_sistema_coordenadas_identidad(sistema_parcial)) {
        if (sistema_resultado != sistema_total) *sistema_resultado = *sistema_total;
        return;
    }
    // Each part is taken from both before it is written: the result may be either of them.
    sistema_coordenadas &r = *sistema_resultado;
    const tipo_transformacion tipo = sistema_parcial->tipo;
    vnbool desactivada = sistema_total->se_ha_aplicado_previamente_desactiva_todas_transformaciones_glsl;
    // A total that is identity by its kind leaves each column as it is, whatever its numbers.
    if (!i_es_sistema_coordenadas_identidad(sistema_total)) multiplica(r.m, sistema_total->m, sistema_parcial->m);
    else if (sistema_resultado != sistema_parcial) r.m = sistema_parcial->m;
    r.factor_escala_textos = sistema_total->factor_escala_textos * sistema_parcial->factor_escala_textos;
    r.profundidad = sistema_parcial->profundidad > sistema_total->profundidad ? sistema_parcial->profundidad
                                                                              : sistema_total->profundidad;
    if (tipo == i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL) {
        AFIRMA_TEXTO(desactivada == FALSO,
                     "sistema_resultado->se_ha_aplicado_previamente_desactiva_todas_transformaciones_glsl == FALSO");
        desactivada = CIERTO;
    }
    r.se_ha_aplicado_previamente_desactiva_todas_transformaciones_glsl = desactivada;
    r.tipo = tipo;
}

void transforma_con_respecto_a(sistema_coordenadas *sistema, const sistema_coordenadas *matriz_destransformar,
                               const sistema_coordenadas *matriz_transformar) {
    if (!EXIGE(matriz_destransformar, matriz_transformar)) return;
    compone(sistema, matriz_destransformar, sistema);
    compone(matriz_transformar, sistema, sistema);
}

void transforma_con_respecto_a(sistema_coordenadas *sistema, Punto2D p) {
    const sistema_coordenadas ida = desplazamiento(p.x, p.y, 0.), vuelta = desplazamiento(-p.x, -p.y, 0.);
    transforma_con_respecto_a(sistema, &vuelta, &ida);
}

sistema_coordenadas inversa(const sistema_coordenadas &s) {
    sistema_coordenadas r = s;
    if (invierte(r.m)) r.factor_escala_textos = 1. / s.factor_escala_textos;
    return r;
}

sistema_coordenadas solo_giro(const sistema_coordenadas &s) {
    sistema_coordenadas r = s;
    r.tipo = i_MATRIZ_SISTEMA_COORDENADAS;
    for (int i = 0; i < 3; ++i) r.m.m[i][3] = 0.;
    return r;
}

dueno<vmatr_destruir_matriz> a_vmatr(const sistema_coordenadas &s) {
    return matriz4::de_ejes(s.m.columna(3), s.m.columna(0), s.m.columna(1), s.m.columna(2)).a_vmatr();
}

// ---------------------------------------------------------------- what goes through one

Punto3D transforma_punto_identidad(const sistema_coordenadas &s, Punto3D p) {
    const auto &cuarta = s.m.m[3];
    const double w = cuarta[0] * p.x + cuarta[1] * p.y + cuarta[2] * p.z + cuarta[3];
    return w == 1. ? p : p / w;
}

Punto3D transforma_vector(const sistema_coordenadas &s, Punto3D v) {
    return i_es_sistema_coordenadas_identidad(&s) ? v : s.m.vector(v);
}

namespace {

// The distance between what the origin and what the end of a length become. Without a perspective it is that of the
// vector, which a displacement of a survey does not round.
double magnitud(const sistema_coordenadas &s, Punto3D extremo) {
    if (s.m.es_afin()) return modulo(transforma_vector(s, extremo));
    const Punto3D a = transforma_punto(s, {}), b = transforma_punto(s, extremo);
    return mt_distancia_3D(a.x, a.y, a.z, b.x, b.y, b.z);
}

} // namespace

double magnitud_x(const sistema_coordenadas &s, double m) { return magnitud(s, {m, 0, 0}); }
double magnitud_y(const sistema_coordenadas &s, double m) { return magnitud(s, {0, m, 0}); }

double magnitud_inversa(const sistema_coordenadas &s, double m) {
    return i_es_sistema_coordenadas_identidad(&s) ? m : magnitud_y(inversa(s), m);
}

dueno<arr_DestruyeDouble> magnitudes_con_signo(const sistema_coordenadas &s, const arrDouble *valores, double limite) {
    const uint32_t n = arr_NumElemsDouble(valores);
    dueno<arr_DestruyeDouble> r(arr_CreaDouble(n));
    for (uint32_t i = 0; i < n; ++i) {
        const double v = arr_GetDouble(valores, i), m = magnitud_x(s, v);
        arr_SetDouble(r.get(), i, v < limite ? -m : m);
    }
    return r;
}

void transforma_direccion(const sistema_coordenadas &s, double Ux, double Uy, double *Ux_transformado,
                          double *Uy_transformado) {
    if (!EXIGE(Ux_transformado, Uy_transformado)) return;
    const Punto3D v =
        s.m.es_afin() ? transforma_vector(s, {Ux, Uy, 0}) : transforma_punto(s, {Ux, Uy, 0}) - transforma_punto(s, {});
    Punto2D u{v.x, v.y};
    if (es_nulo(u, SIN_DIRECCION)) u = {Ux, Uy};
    mt_pasar_a_unitario_2D(&u.x, &u.y);
    *Ux_transformado = u.x;
    *Uy_transformado = u.y;
}

void transforma_direccion(const sistema_coordenadas &s, Punto3D U, double *Ux_trans, double *Uy_trans,
                          double *Uz_trans) {
    if (!EXIGE(Ux_trans, Uy_trans, Uz_trans)) return;
    Punto3D u = transforma_vector(s, U);
    mt_pasar_a_unitario_3D(&u.x, &u.y, &u.z);
    *Ux_trans = u.x;
    *Uy_trans = u.y;
    *Uz_trans = u.z;
}

double transforma_angulo(const sistema_coordenadas &s, double angulo) {
    double c, n;
    transforma_direccion(s, std::cos(angulo), std::sin(angulo), &c, &n);
    return mt_angulo_a_partir_de_seno_y_coseno(n, c);
}

void transforma_elipse(const sistema_coordenadas &s, Punto3D centro, double ra, double rb, double *xc_trans,
                       double *yc_trans, double *zc_trans, double *ra_trans, double *rb_trans) {
    if (!EXIGE(xc_trans, yc_trans, zc_trans, ra_trans, rb_trans)) return;
    const Punto3D c = transforma_punto(s, centro);
    *xc_trans = c.x;
    *yc_trans = c.y;
    *zc_trans = c.z;
    *ra_trans = magnitud_x(s, ra);
    *rb_trans = magnitud_y(s, rb);
}

// ---------------------------------------------------------------- shape

bool mantiene_planta(const sistema_coordenadas &s) {
    return std::fabs(s.m.m[2][0]) < TOLERANCIA_PLANTA && std::fabs(s.m.m[2][1]) < TOLERANCIA_PLANTA;
}

bool deforma_circulos(const sistema_coordenadas &s) {
    return std::fabs(s.m.m[0][0] - s.m.m[1][1]) >= TOLERANCIA_SEMEJANZA ||
           std::fabs(s.m.m[0][1] + s.m.m[1][0]) >= TOLERANCIA_SEMEJANZA;
}

} // namespace vn
