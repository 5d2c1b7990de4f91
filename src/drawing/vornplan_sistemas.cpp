#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_sistemas.h"
#include "drawing/salida_priv.h"
#include "drawing/vornplan_salida.h"
#include "foundation/numeros/gcMat4x4.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/sistema/vnstdc.h"

using namespace vn;
using namespace vn::numeros;
using D = dispositivo;

namespace {

// Below this two points of a line of sight are one.
constexpr double MISMO_PUNTO = 1e-06;

void apila_si_valida(salida_t *s, const sistema_coordenadas &nuevo) {
    if (es_valida(s)) apila(s, &nuevo);
}

// With the depth of the plane, in which two-dimensional displacements stay.
double z_o_cero(const salida_t *s) { return es_valida(s) ? z_del_plano(*s) : 0.; }

// The device's own extrusion, then axes with origin 0.
void apila_ejes_avisando(salida_t *salida, Punto3D X, Punto3D Y, Punto3D Z) {
    llama_si_hay<&D::func_append_extrusion>(salida, Z.x, Z.y, Z.z);
    const sistema_coordenadas nuevo = ejes(i_MATRIZ_GENERAL, X, Y, Z, {});
    apila(salida, &nuevo);
}

// An output address that may be null.
template <class T> void pon(T *donde, T valor) {
    if (donde != nullptr) *donde = valor;
}
void pon(Punto3D v, double *x, double *y, double *z) { pon(x, v.x), pon(y, v.y), pon(z, v.z); }

} // namespace

// ---------------------------------------------------------------- displacements, scales, turns

void vplan_append_desplaza_origen_coordenadas(salida_t *salida, double dx, double dy) {
    apila_si_valida(salida, desplazamiento(dx, dy, z_o_cero(salida)));
}
void vplan_append_desplaza_origen_coordenadas_3d(salida_t *salida, double dx, double dy, double dz) {
    apila_si_valida(salida, desplazamiento(dx, dy, dz));
}
void vplan_append_desplaza_z(salida_t *salida, double dz) { apila_si_valida(salida, desplazamiento(0., 0., dz)); }

void vplan_append_escala(salida_t *salida, double factor_x, double factor_y) {
    apila_si_valida(salida, escala(i_MATRIZ_ESCALA, factor_x, factor_y, 1., 1.));
}
void vplan_append_escala_3d(salida_t *salida, double factor_x, double factor_y, double factor_z) {
    apila_si_valida(salida, escala(i_MATRIZ_ESCALA, factor_x, factor_y, factor_z, 1.));
}
void vplan_append_escala_xyz(salida_t *salida, double factor) {
    apila_si_valida(salida, escala(i_MATRIZ_ESCALA, factor, factor, factor, 1.));
}
void vplan_append_escala_con_origen(salida_t *salida, double x, double y, double factor_x, double factor_y) {
    sistema_coordenadas s = escala(i_MATRIZ_ESCALA, factor_x, factor_y, 1., 1.);
    transforma_con_respecto_a(&s, {x, y});
    s.tipo = i_MATRIZ_ESCALA;
    apila_si_valida(salida, s);
}
void vplan_append_escala_excepto_texto(salida_t *salida, double factor_x, double factor_y) {
    apila_si_valida(salida, escala(i_MATRIZ_ESCALA_EXCEPTO_TEXTO, factor_x, factor_y, 1., 1.));
}
void vplan_append_divisor_escala(salida_t *salida, uint16_t div_escala) {
    if (!AFIRMA(div_escala > 0)) return;
    const double d = 1. / div_escala;
    apila_si_valida(salida, escala(i_MATRIZ_DIVISOR_ESCALA, d, d, d, d));
}

void vplan_append_giro_xy(salida_t *salida, double x, double y, double coseno, double seno) {
    sistema_coordenadas s = giro(coseno, seno);
    transforma_con_respecto_a(&s, {x, y});
    s.tipo = i_MATRIZ_GIRO;
    apila_si_valida(salida, s);
}
void vplan_append_giro_xy_y_posiciona(salida_t *salida, double x, double y, double coseno, double seno) {
    if (!es_valida(salida)) return;
    const sistema_coordenadas s{i_MATRIZ_GIRO, matriz4::de_ejes({x, y, z_del_plano(*salida)}, {coseno, seno, 0},
                                                                {-seno, coseno, 0}, {0, 0, 1})};
    apila(salida, &s);
}

void vplan_append_escala_gira_xy_y_desplaza_con_respecto_a_un_eje(salida_t *salida, double x, double y,
                                                                  double angulo_eje, double factor_x, double factor_y,
                                                                  double giro, double dx, double dy) {
    sistema_coordenadas s = vn::giro(vnstdc_cos(giro), vnstdc_sin(giro));
    const sistema_coordenadas factores = escala(i_MATRIZ_ESCALA, factor_x, factor_y, 1., 1.),
                              paso = desplazamiento(dx, dy, 0.);
    transforma_con_respecto_a(&s, &paso, &factores);
    const double c = vnstdc_cos(angulo_eje), n = vnstdc_sin(angulo_eje);
    const sistema_coordenadas ida = vn::giro(c, n), vuelta = vn::giro(c, -n);
    transforma_con_respecto_a(&s, &vuelta, &ida);
    transforma_con_respecto_a(&s, {x, y});
    s.tipo = i_MATRIZ_GENERAL;
    apila_si_valida(salida, s);
}

// ---------------------------------------------------------------- axes and matrices

void vplan_append_ejes2D(salida_t *salida, double ox, double oy, double oz, double Ux, double Uy, double Uz, double Vx,
                         double Vy, double Vz) {
    if (!es_valida(salida)) return;
    const Punto3D U{Ux, Uy, Uz}, V{Vx, Vy, Vz};
    apila_si_valida(salida, ejes(i_MATRIZ_GENERAL, U, V, vectorial(U, V), {ox, oy, oz}));
}
void vplan_append_sistema_coordenadas(salida_t *salida, double Xx, double Xy, double Xz, double Yx, double Yy,
                                      double Yz, double Zx, double Zy, double Zz, double ox, double oy, double oz) {
    if (!es_valida(salida)) return;
    apila_si_valida(salida, ejes(i_MATRIZ_GENERAL, {Xx, Xy, Xz}, {Yx, Yy, Yz}, {Zx, Zy, Zz}, {ox, oy, oz}));
}

void vplan_append_ejes3D_a_partir_de_dos_puntos_3D_que_definen_el_eje_x(salida_t *salida, double x1, double y1,
                                                                        double z1, double x2, double y2, double z2) {
    if (!es_valida(salida)) return;
    Punto3D X{1, 0, 0}, Y{0, 1, 0}, Z{0, 0, 1};
    mt_calcular_ejes_3D_dados_2_puntos(x1, y1, z1, x2, y2, z2, &X.x, &X.y, &X.z, &Y.x, &Y.y, &Y.z, &Z.x, &Z.y, &Z.z);
    apila_ejes_avisando(salida, X, Y, Z);
}
void vplan_append_ejes3D_a_partir_de_tres_puntos_3D(salida_t *salida, double x1, double y1, double z1, double x2,
                                                    double y2, double z2, double x3, double y3, double z3) {
    if (!es_valida(salida)) return;
    Punto3D X{1, 0, 0}, Y{0, 1, 0}, Z{0, 0, 1};
    mt_calcular_ejes_3D_dados_3_puntos(x1, y1, z1, x2, y2, z2, x3, y3, z3, &X.x, &X.y, &X.z, &Y.x, &Y.y, &Y.z, &Z.x,
                                       &Z.y, &Z.z);
    apila_ejes_avisando(salida, X, Y, Z);
}

void vplan_append_extrusion(salida_t *salida, double nx, double ny, double nz, double elevacion) {
    if (!es_valida(salida)) return;
    llama_si_hay<&D::func_append_extrusion>(salida, nx, ny, nz);
    apila_si_valida(salida, extrusion({nx, ny, nz}, {0., 0., elevacion}));
}
void vplan_append_extrusion_plano_pantalla(salida_t *salida, double ox, double oy, double oz) {
    if (!es_valida(salida)) return;
    if (salida_t *const donde = implementa<&D::func_transformacion_plano_pantalla>(salida); donde != nullptr) {
        Punto3D X{}, Y{}, Z{};
        llama<&D::func_transformacion_plano_pantalla>(donde, &X.x, &X.y, &X.z, &Y.x, &Y.y, &Y.z, &Z.x, &Z.y, &Z.z);
        apila_si_valida(salida, ejes(i_MATRIZ_EXTRUSION, X, Y, Z, {ox, oy, oz}));
        return;
    }
    const sistema_coordenadas *const sistema_coordenadas = &encadenado(salida, nullptr);
    if (!AFIRMA_NO_NULO(sistema_coordenadas)) return;
    const auto &w = sistema_coordenadas->m.m[2];
    Punto3D W{w[0], w[1], w[2]};
    mt_pasar_a_unitario_3D(&W.x, &W.y, &W.z);
    llama_si_hay<&D::func_append_extrusion>(salida, W.x, W.y, W.z);
    apila_si_valida(salida, extrusion(W, {ox, oy, oz}));
}

void vplan_append_proyeccion_en_eje_de_giro(salida_t *salida, const vmatr *matriz_giros_proyeccion, double x, double y,
                                            double z) {
    if (!es_valida(salida) || !EXIGE(matriz_giros_proyeccion)) return;
    if (!AFIRMA(vmatr_num_filas_matriz(matriz_giros_proyeccion) == 3) ||
        !AFIRMA(vmatr_num_columnas_matriz(matriz_giros_proyeccion) == 3))
        return;
    sistema_coordenadas s{i_MATRIZ_PROYECCION};
    for (uint32_t i = 0; i < 3; ++i)
        for (uint32_t j = 0; j < 3; ++j) s.m.m[i][j] = vmatr_get_coef_matriz(matriz_giros_proyeccion, i, j);
    const sistema_coordenadas al_origen = desplazamiento(-x, -y, -z);
    compone(&s, &al_origen, &s);
    s.tipo = i_MATRIZ_PROYECCION;
    apila(salida, &s);
}

void vplan_append_matriz_transformacion(salida_t *salida, const vmatr *matriz_transformacion) {
    if (!es_valida(salida) || !EXIGE(matriz_transformacion)) return;
    if (!AFIRMA(vmatr_num_filas_matriz(matriz_transformacion) == 4) ||
        !AFIRMA(vmatr_num_columnas_matriz(matriz_transformacion) == 4))
        return;
    apila_si_valida(salida, {i_MATRIZ_GENERAL, matriz4::de_vmatr(matriz_transformacion)});
}
void vornplan_append_matriz_transformacion_gcMat4x4(salida_t *salida, const gcMat4x4 *matriz) {
    if (!es_valida(salida) || !EXIGE(matriz)) return;
    sistema_coordenadas s{i_MATRIZ_GENERAL};
    for (uint32_t i = 0; i < 4; ++i)
        for (uint32_t j = 0; j < 4; ++j) s.m.m[i][j] = gcMat4x4_get(matriz, i, j);
    apila(salida, &s);
}

// ---------------------------------------------------------------- what it knows of itself

void vplan_get_origen_coordenadas(const salida_t *salida, double *x, double *y) {
    if (!es_valida(salida) || !EXIGE(x, y)) return;
    *x = salida->sistema_coordenadas_actual->m.m[0][3];
    *y = salida->sistema_coordenadas_actual->m.m[1][3];
}

double vplan_obtener_factor_escala_para_dibujar_textos_en_plano(const salida_t *salida) {
    return es_valida(salida) ? salida->sistema_coordenadas_actual->factor_escala_textos : 1.;
}

void vplan_aplica_escala_a_salida_destino(salida_t *salida_destino, salida_t *salida_para_obtener_escalas) {
    if (!EXIGE(salida_para_obtener_escalas, salida_para_obtener_escalas->sistema_coordenadas_actual, salida_destino,
               salida_destino->sistema_coordenadas_actual))
        return;
    if (vplan_hay_escalas(salida_destino) != FALSO && vplan_hay_escalas(salida_para_obtener_escalas) != FALSO)
        vplan_set_escalas(salida_destino, vplan_get_escalas(salida_para_obtener_escalas));
    salida_destino->sistema_coordenadas_actual->factor_escala_textos =
        salida_para_obtener_escalas->sistema_coordenadas_actual->factor_escala_textos;
    ++salida_destino->cambios;
}

void vornplan_transforma_punto(salida_t *salida, double x, double y, double z, double *x_trans, double *y_trans,
                               double *z_trans) {
    if (!es_valida(salida) || !EXIGE(x_trans, y_trans, z_trans)) return;
    pon(transforma_punto(encadenado(salida, nullptr), {x, y, z}), x_trans, y_trans, z_trans);
}
void vornplan_transforma_vector(salida_t *salida, double Ux, double Uy, double Uz, double *Ux_trans, double *Uy_trans,
                                double *Uz_trans) {
    if (!es_valida(salida) || !EXIGE(Ux_trans, Uy_trans, Uz_trans)) return;
    pon(transforma_vector(encadenado(salida, nullptr), {Ux, Uy, Uz}), Ux_trans, Uy_trans, Uz_trans);
}
double vornplan_transforma_magnitud(salida_t *salida, double magnitud) {
    return es_valida(salida) ? magnitud_x(encadenado(salida, nullptr), magnitud) : magnitud;
}
vmatr *vornplan_get_matriz_modelado(salida_t *salida) {
    return es_valida(salida) ? a_vmatr(encadenado(salida, nullptr)).release() : nullptr;
}

// ---------------------------------------------------------------- projection

void vplan_proyecta_punto_2d(salida_t *salida, double x, double y, double z, double *x2D, double *y2D) {
    if (!es_valida(salida) || !EXIGE(x2D, y2D)) return;
    salida_t *const donde = implementa<&D::func_proyecta_punto_2d>(salida);
    const Punto3D p = transforma_punto(encadenado(salida, donde), {x, y, z});
    *x2D = p.x;
    *y2D = p.y;
    if (donde != nullptr) llama<&D::func_proyecta_punto_2d>(donde, p.x, p.y, p.z, x2D, y2D);
}
void vplan_proyecta_punto_2d_overlay2d(salida_t *salida, double x, double y, double z, double *x2D, double *y2D) {
    if (!es_valida(salida) || !EXIGE(x2D, y2D)) return;
    salida_t *const donde = implementa<&D::func_proyecta_punto_2d_overlay2d>(salida);
    const Punto3D p = transforma_punto(encadenado(salida, donde), {x, y, z});
    *x2D = p.x;
    *y2D = p.y;
    if (donde != nullptr) llama<&D::func_proyecta_punto_2d_overlay2d>(donde, p.x, p.y, p.z, x2D, y2D);
}

namespace {

// A device that answers with a line gets addresses that are all there.
template <auto SLOT> bool linea_del_dispositivo(salida_t *s, double x, double y, double *x0, double *y0, double *z0,
                                                double *Ux, double *Uy, double *Uz) {
    salida_t *const donde = implementa<SLOT>(s);
    if (donde == nullptr) return false;
    Punto3D p{}, U{};
    llama<SLOT>(donde, x, y, &p.x, &p.y, &p.z, &U.x, &U.y, &U.z);
    pon(p, x0, y0, z0);
    pon(U, Ux, Uy, Uz);
    return true;
}

} // namespace

void vplan_desproyecta_punto_2d(salida_t *salida, double x, double y, double *x0, double *y0, double *z0, double *Ux,
                                double *Uy, double *Uz) {
    if (!es_valida(salida)) return;
    if (linea_del_dispositivo<&D::func_desproyecta_punto_2d>(salida, x, y, x0, y0, z0, Ux, Uy, Uz)) return;
    const sistema_coordenadas s = inversa(encadenado(salida, nullptr));
    const Punto3D p = transforma_punto(s, {x, y, 0.});
    // The difference of two points of the line: without a perspective that of a vector, which a survey does not round.
    Punto3D U = s.m.es_afin() ? transforma_vector(s, {0., 0., 1.}) : transforma_punto(s, {x, y, 1.}) - p;
    if (!unitario(U)) U = {};
    pon(p, x0, y0, z0);
    pon(U, Ux, Uy, Uz);
}
void vplan_obtener_punto_cursor_3d(salida_t *salida, double x, double y, double *x0, double *y0, double *z0, double *Ux,
                                   double *Uy, double *Uz) {
    if (!es_valida(salida)) return;
    if (linea_del_dispositivo<&D::func_obtener_punto_cursor_3d>(salida, x, y, x0, y0, z0, Ux, Uy, Uz)) return;
    vplan_desproyecta_punto_2d(salida, x, y, x0, y0, z0, Ux, Uy, Uz);
}

void vplan_vectores_sistema_coordenadas(salida_t *salida, double *ox, double *oy, double *oz, double *Ux, double *Uy,
                                        double *Uz, double *Vx, double *Vy, double *Vz, double *Wx, double *Wy,
                                        double *Wz) {
    if (!es_valida(salida)) return;
    Punto3D o, U, V, W;
    if (salida_t *const donde = implementa<&D::func_vectores_sistema_coordenadas>(salida); donde != nullptr) {
        o = U = V = W = {};
        llama<&D::func_vectores_sistema_coordenadas>(donde, &o.x, &o.y, &o.z, &U.x, &U.y, &U.z, &V.x, &V.y, &V.z, &W.x,
                                                     &W.y, &W.z);
    } else {
        const auto &m = encadenado(salida, nullptr).m.m;
        o = {m[0][3], m[1][3], m[2][3]};
        U = {m[0][0], m[0][1], m[0][2]};
        V = {m[1][0], m[1][1], m[1][2]};
        W = {m[2][0], m[2][1], m[2][2]};
    }
    pon(o, ox, oy, oz);
    pon(U, Ux, Uy, Uz);
    pon(V, Vx, Vy, Vz);
    pon(W, Wx, Wy, Wz);
}

// ---------------------------------------------------------------- planes of the screen, pixels

namespace {

// The axes of a plane of the screen at P with one of them along d; the third looks at whoever looks.
void ejes_de_direccion(salida_t *salida, Punto3D P, Punto3D d, bool es_direccion_U, double *Ux, double *Uy, double *Uz,
                       double *Vx, double *Vy, double *Vz) {
    if (!EXIGE(Ux, Uy, Uz, Vx, Vy, Vz)) return;
    Punto3D V{}, W{}, Q1{}, Q2{}, vista{};
    vplan_vectores_sistema_coordenadas(salida, nullptr, nullptr, nullptr, nullptr, nullptr, nullptr, &V.x, &V.y, &V.z,
                                       &W.x, &W.y, &W.z);
    Punto2D p1{}, p2{};
    vplan_proyecta_punto_2d(salida, P.x, P.y, P.z, &p1.x, &p1.y);
    vplan_proyecta_punto_2d(salida, P.x + d.x, P.y + d.y, P.z + d.z, &p2.x, &p2.y);
    vplan_desproyecta_punto_2d(salida, p1.x, p1.y, &Q1.x, &Q1.y, &Q1.z, nullptr, nullptr, nullptr);
    vplan_desproyecta_punto_2d(salida, p2.x, p2.y, &Q2.x, &Q2.y, &Q2.z, &vista.x, &vista.y, &vista.z);
    const Punto3D paso = Q2 - Q1;
    Punto3D primero, segundo;
    if (mayor_coordenada(paso) >= MISMO_PUNTO) {
        // The direction is the second axis where it is asked for as U, and the first as V.
        Punto3D &suyo = es_direccion_U ? segundo : primero, &otro = es_direccion_U ? primero : segundo;
        suyo = paso;
        otro = vectorial(suyo, W);
    } else {
        primero = vectorial(V, vista);
        segundo = V;
    }
    mt_pasar_a_unitario_3D(&primero.x, &primero.y, &primero.z);
    mt_pasar_a_unitario_3D(&segundo.x, &segundo.y, &segundo.z);
    pon(primero, Ux, Uy, Uz);
    pon(segundo, Vx, Vy, Vz);
}

void apila_plano_pantalla(salida_t *salida, Punto3D P, bool con_direccion, Punto3D d, bool es_direccion_U) {
    if (!es_valida(salida)) return;
    salida_t *const donde = con_direccion ? implementa<&D::func_append_transf_plano_pantalla_con_direc>(salida)
                                          : implementa<&D::func_append_transf_plano_pantalla>(salida);
    if (donde == nullptr) {
        if (!con_direccion) return vplan_append_extrusion_plano_pantalla(salida, P.x, P.y, P.z);
        Punto3D U{1, 0, 0}, V{0, 1, 0};
        ejes_de_direccion(salida, P, d, es_direccion_U, &U.x, &U.y, &U.z, &V.x, &V.y, &V.z);
        return vplan_append_ejes2D(salida, P.x, P.y, P.z, U.x, U.y, U.z, V.x, V.y, V.z);
    }
    const sistema_coordenadas &s = encadenado(salida, donde);
    const Punto3D p = transforma_punto(s, P), u = transforma_vector(s, d);
    if (con_direccion)
        llama<&D::func_append_transf_plano_pantalla_con_direc>(donde, p.x, p.y, p.z, u.x, u.y, u.z,
                                                               vnbool{es_direccion_U});
    else llama<&D::func_append_transf_plano_pantalla>(donde, p.x, p.y, p.z);
    apila_en_su_lugar(salida, {i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_PLANO_PANTALLA});
}

} // namespace

void vornplan_append_transf_plano_pantalla(salida_t *salida, double x, double y, double z) {
    apila_plano_pantalla(salida, {x, y, z}, false, {}, false);
}
void vornplan_append_transf_plano_pantalla_con_direc_U(salida_t *salida, double x, double y, double z, double Ux,
                                                       double Uy, double Uz) {
    apila_plano_pantalla(salida, {x, y, z}, true, {Ux, Uy, Uz}, true);
}
void vornplan_append_transf_plano_pantalla_con_direc_V(salida_t *salida, double x, double y, double z, double Vx,
                                                       double Vy, double Vz) {
    apila_plano_pantalla(salida, {x, y, z}, true, {Vx, Vy, Vz}, false);
}

void vornplan_append_transf_dibujo_en_pixeles(salida_t *salida, double x, double y, double z) {
    if (!es_valida(salida)) return;
    salida_t *const donde = implementa<&D::func_append_transf_dibujo_en_pixeles>(salida);
    if (donde == nullptr) return vplan_append_desplaza_origen_coordenadas_3d(salida, x, y, z);
    const Punto3D p = transforma_punto(encadenado(salida, donde), {x, y, z});
    llama<&D::func_append_transf_dibujo_en_pixeles>(donde, p.x, p.y, p.z);
    apila_en_su_lugar(salida, {i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_DIBUJO_EN_PIXELES});
}
