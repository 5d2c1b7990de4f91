#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_lineas.h"
#include "drawing/trazado_priv.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/logico_int.h"

using namespace vn;
using namespace vn::numeros;
using vn::listas::tramo;
using D = dispositivo;

namespace {

// Two points of a ray, or of a line, that are one; of space by the square of their distance.
constexpr double MISMO_EN_RAYO = 1e-05, MISMO_EN_REFERENCIA = 1e-06, MISMO_EN_ESPACIO_AL_CUADRADO = 1e-06;

Punto2D planta(Punto3D p) { return {p.x, p.y}; }

// A figure of two points, in its form of the plane or of space.
template <auto PLANO, auto ESPACIO>
[[gnu::always_inline]] inline void dibuja_recta(salida_t *salida, Punto3D p, Punto3D q) {
    const camino c = busca<PLANO, ESPACIO>(salida);
    if (!hay(c.donde)) return;
    const en_planta &planta = salida->sistema_coordenadas_encadenado->planta;
    if (tiene<PLANO>(c.donde) && planta.directo) [[likely]] {
        const en_planta::par a = planta.punto(p.x, p.y, p.z), b = planta.punto(q.x, q.y, q.z);
        return llama<PLANO>(c.donde, a[0], a[1], b[0], b[1]);
    }
    const Punto3D a = transforma_punto(*c.sistema, p), b = transforma_punto(*c.sistema, q);
    if (tiene<PLANO>(c.donde)) llama<PLANO>(c.donde, a.x, a.y, b.x, b.y);
    else llama<ESPACIO>(c.donde, a.x, a.y, a.z, b.x, b.y, b.z);
}

// The same, drawn as a point where the two are one.
template <auto PLANO, auto ESPACIO> void dibuja_recta_o_punto(salida_t *salida, Punto3D p, Punto3D q, double mismo) {
    const camino c = busca<PLANO, ESPACIO>(salida);
    if (!hay(c.donde)) return;
    const Punto3D a = transforma_punto(*c.sistema, p), b = transforma_punto(*c.sistema, q);
    if (tiene<PLANO>(c.donde)) {
        if (modulo(planta(b - a)) <= mismo) llama<&D::func_Punto>(c.donde, a.x, a.y);
        else llama<PLANO>(c.donde, a.x, a.y, b.x, b.y);
    } else if (cuadrado(b - a) <= MISMO_EN_ESPACIO_AL_CUADRADO) llama<&D::func_Punto3D>(c.donde, a.x, a.y, a.z);
    else llama<ESPACIO>(c.donde, a.x, a.y, a.z, b.x, b.y, b.z);
}

void dibuja_gradiente(salida_t *salida, Punto3D p, uint32_t rgba1, Punto3D q, uint32_t rgba2) {
    const camino c = busca<&D::func_LineaGradiente, &D::func_LineaGradiente3D>(salida);
    if (!hay(c.donde)) return;
    const Punto3D a = transforma_punto(*c.sistema, p), b = transforma_punto(*c.sistema, q);
    if (tiene<&D::func_LineaGradiente>(c.donde))
        llama<&D::func_LineaGradiente>(c.donde, a.x, a.y, rgba1, b.x, b.y, rgba2);
    else llama<&D::func_LineaGradiente3D>(c.donde, a.x, a.y, a.z, rgba1, b.x, b.y, b.z, rgba2);
}

void dibuja_punto(salida_t *salida, Punto3D p) {
    salida_t *donde = implementa<&D::func_Punto>(salida);
    if (donde == nullptr) donde = implementa<&D::func_Punto3D>(salida);
    if (donde == nullptr) return;
    const Punto3D q = transforma_punto(encadenado(salida, donde), p);
    if (tiene<&D::func_Punto>(donde)) llama<&D::func_Punto>(donde, q.x, q.y);
    else llama<&D::func_Punto3D>(donde, q.x, q.y, q.z);
}

puntos2D poligono(std::initializer_list<Punto2D> vertices) {
    puntos2D r(arr_CreaPunto2D(static_cast<uint32_t>(vertices.size())));
    if (r != nullptr) std::copy(vertices.begin(), vertices.end(), tramo(r.get()).begin());
    return r;
}
puntos3D poligono(std::initializer_list<Punto3D> vertices) {
    puntos3D r(arr_CreaPunto3D(static_cast<uint32_t>(vertices.size())));
    if (r != nullptr) std::copy(vertices.begin(), vertices.end(), tramo(r.get()).begin());
    return r;
}

bool son_iguales(Punto2D a, Punto2D b, double tolerancia) {
    return mt_puntos2D_iguales_con_tolerancia(a.x, a.y, b.x, b.y, tolerancia) != FALSO;
}

} // namespace

// ---------------------------------------------------------------- lines

void vplan_escr_linea(salida_t *salida, double x1, double y1, double x2, double y2) {
    if (!es_valida(salida)) return;
    const double z = z_del_plano(*salida);
    dibuja_recta<&D::func_DrawLinea, &D::func_Linea3D>(salida, {x1, y1, z}, {x2, y2, z});
}
void vplan_escr_linea_3D(salida_t *salida, double x1, double y1, double z1, double x2, double y2, double z2) {
    if (es_valida(salida)) dibuja_recta<&D::func_DrawLinea, &D::func_Linea3D>(salida, {x1, y1, z1}, {x2, y2, z2});
}
void vplan_escr_linea_horizontal(salida_t *salida, double x1, double y, double x2) {
    vplan_escr_linea(salida, x1, y, x2, y);
}
void vplan_escr_linea_vertical(salida_t *salida, double x, double y1, double y2) {
    vplan_escr_linea(salida, x, y1, x, y2);
}
void vplan_escr_linea_con_gradiente(salida_t *salida, double x1, double y1, uint32_t rgba1, double x2, double y2,
                                    uint32_t rgba2) {
    if (!es_valida(salida)) return;
    const double z = z_del_plano(*salida);
    dibuja_gradiente(salida, {x1, y1, z}, rgba1, {x2, y2, z}, rgba2);
}
void vplan_escr_linea_3D_con_gradiente(salida_t *salida, double x1, double y1, double z1, uint32_t rgba1, double x2,
                                       double y2, double z2, uint32_t rgba2) {
    if (es_valida(salida)) dibuja_gradiente(salida, {x1, y1, z1}, rgba1, {x2, y2, z2}, rgba2);
}
void vplan_escr_rayo(salida_t *salida, double x1, double y1, double x2, double y2) {
    if (!es_valida(salida)) return;
    const double z = z_del_plano(*salida);
    dibuja_recta_o_punto<&D::func_Rayo, &D::func_Rayo3D>(salida, {x1, y1, z}, {x2, y2, z}, MISMO_EN_RAYO);
}
void vplan_escr_rayo3D(salida_t *salida, double x1, double y1, double z1, double x2, double y2, double z2) {
    if (!es_valida(salida)) return;
    dibuja_recta_o_punto<&D::func_Rayo, &D::func_Rayo3D>(salida, {x1, y1, z1}, {x2, y2, z2}, MISMO_EN_RAYO);
}
void vplan_escr_linea_referencia(salida_t *salida, double x1, double y1, double x2, double y2) {
    if (!es_valida(salida)) return;
    const double z = z_del_plano(*salida);
    dibuja_recta_o_punto<&D::func_LineaReferencia, &D::func_LineaReferencia3D>(salida, {x1, y1, z}, {x2, y2, z},
                                                                               MISMO_EN_REFERENCIA);
}
void vplan_escr_linea_referencia3D(salida_t *salida, double x1, double y1, double z1, double x2, double y2, double z2) {
    if (!es_valida(salida)) return;
    dibuja_recta_o_punto<&D::func_LineaReferencia, &D::func_LineaReferencia3D>(salida, {x1, y1, z1}, {x2, y2, z2},
                                                                               MISMO_EN_REFERENCIA);
}

// ---------------------------------------------------------------- points

void vplan_escr_punto(salida_t *salida, double x, double y) {
    if (es_valida(salida)) dibuja_punto(salida, {x, y, 0.});
}
void vplan_escr_punto3D(salida_t *salida, double x, double y, double z) {
    if (es_valida(salida)) dibuja_punto(salida, {x, y, z});
}
void vplan_escr_punto_clave(salida_t *salida, double x, double y, double pixeles, uint32_t color_1, uint32_t color_2) {
    if (es_valida(salida))
        vplan_escr_punto_clave_ex(salida, x, y, z_del_plano(*salida), 0, CIERTO, pixeles, 0., color_1, color_2);
}
void vplan_escr_punto_clave_diametro_en_mts(salida_t *salida, double x, double y, uint32_t tipo, double diametro,
                                            uint32_t color_1, uint32_t color_2) {
    if (es_valida(salida))
        vplan_escr_punto_clave_ex(salida, x, y, z_del_plano(*salida), tipo, FALSO, 0., diametro, color_1, color_2);
}
void vplan_escr_punto_clave_ex(salida_t *salida, double x, double y, double z, uint32_t tipo, vnbool en_pixeles,
                               double pixeles, double diametro, uint32_t color_1, uint32_t color_2) {
    if (!es_valida(salida) || !AFIRMA_LOGICO(en_pixeles)) return;
    const camino c = busca<&D::func_DibujaPuntoClave, &D::func_DibujaPuntoClave3D>(salida);
    if (c.donde == nullptr) return;
    const Punto3D p = transforma_punto(*c.sistema, {x, y, z});
    const double d = en_pixeles == CIERTO ? 0. : magnitud_x(*c.sistema, diametro);
    if (tiene<&D::func_DibujaPuntoClave>(c.donde))
        llama<&D::func_DibujaPuntoClave>(c.donde, p.x, p.y, tipo, en_pixeles, pixeles, d, color_1, color_2);
    else llama<&D::func_DibujaPuntoClave3D>(c.donde, p.x, p.y, p.z, tipo, en_pixeles, pixeles, d, color_1, color_2);
}

// ---------------------------------------------------------------- polylines and polygons

void vplan_escr_polilinea(salida_t *salida, const arrPunto2D *puntos, vnbool cerrar) {
    if (!es_valida(salida) || !EXIGE(puntos) || !AFIRMA_LOGICO(cerrar)) return;
    const auto p = tramo(puntos);
    if (p.empty()) return;
    const bool cierra = cerrar == CIERTO && !son_iguales(p.front(), p.back(), TOLERANCIA_PLANO);
    const camino c = busca<&D::func_DrawPolilinea, &D::func_DrawPolilinea3D>(salida);
    if (c.donde == nullptr) {
        for (size_t i = 1; i < p.size(); ++i) vplan_escr_linea(salida, p[i - 1].x, p[i - 1].y, p[i].x, p[i].y);
        if (cierra) vplan_escr_linea(salida, p.back().x, p.back().y, p.front().x, p.front().y);
    } else if (tiene<&D::func_DrawPolilinea3D>(c.donde)) {
        llama_con<&D::func_DrawPolilinea3D>(c.donde, vista(sube(*c.sistema, puntos, 0., cierra)), FALSO);
    } else if (const double z = z_del_plano(*salida); cierra)
        llama_con<&D::func_DrawPolilinea>(c.donde, vista(copia_en_planta(*c.sistema, puntos, z, true)));
    else llama_con<&D::func_DrawPolilinea>(c.donde, pasa_puntos(*c.sistema, puntos, z).vista);
}

void vn::dibuja_polilinea3D(salida_t *salida, const arrPunto3D *puntos, bool cerrado, vnbool relleno) {
    const camino c = cerrado ? busca<&D::func_DrawPoligono, &D::func_DrawPoligono3D>(salida)
                             : busca<&D::func_DrawPoligono, &D::func_DrawPolilinea3D>(salida);
    if (!hay(c.donde)) return;
    const size_t n = puntos != nullptr ? tramo(puntos).size() : 0;
    if (n == 0) return;
    const vnbool con_relleno = logico(relleno != FALSO && n > 2);
    if (!tiene<&D::func_DrawPoligono>(c.donde)) {
        if (!AFIRMA_TEXTO(tiene<&D::func_DrawPoligono3D>(c.donde) || tiene<&D::func_DrawPolilinea3D>(c.donde),
                          "salida_con_implementacion->func_DrawPoligono3D != NULL || "
                          "salida_con_implementacion->func_DrawPolilinea3D != NULL"))
            return;
        const pasados3D suyos = pasa_puntos(*c.sistema, puntos);
        if (!cerrado && tiene<&D::func_DrawPolilinea3D>(c.donde))
            llama_con<&D::func_DrawPolilinea3D>(c.donde, suyos.vista, con_relleno);
        else llama_con<&D::func_DrawPoligono3D>(c.donde, suyos.vista, con_relleno);
        return;
    }
    // A device of the plane: a polygon where it is one, else its polyline, else a line back from each vertex.
    const puntos2D suyos = baja(*c.sistema, puntos);
    const arrPunto2D *const vista = suyos.get();
    if (vista == nullptr) return;
    const auto p = tramo(vista);
    const bool se_cierra = n > 2 && son_iguales(p.front(), p.back(), TOLERANCIA_CIERRE);
    if (cerrado || con_relleno != FALSO || se_cierra) llama<&D::func_DrawPoligono>(c.donde, vista, con_relleno);
    else if (tiene<&D::func_DrawPolilinea>(c.donde)) llama<&D::func_DrawPolilinea>(c.donde, vista);
    else if (AFIRMA_TEXTO(tiene<&D::func_DrawLinea>(c.donde), tabla::FILA<&D::func_DrawLinea>.falta))
        for (size_t i = 0; i < n; ++i) {
            const Punto2D q = p[i == 0 ? 0 : i - 1];
            llama<&D::func_DrawLinea>(c.donde, p[i].x, p[i].y, q.x, q.y);
        }
}

void vn::dibuja_poligono2D(salida_t *salida, const arrPunto2D *puntos, vnbool relleno) {
    const camino c = busca<&D::func_DrawPoligono, &D::func_DrawPoligono3D>(salida);
    if (!hay(c.donde) || puntos == nullptr) return;
    if (relleno != FALSO && !AFIRMA(arr_NumElemsPunto2D(puntos) > 2)) return;
    const double z = z_del_plano(*salida);
    if (tiene<&D::func_DrawPoligono>(c.donde))
        llama_con<&D::func_DrawPoligono>(c.donde, pasa_puntos(*c.sistema, puntos, z).vista, relleno);
    else llama_con<&D::func_DrawPoligono3D>(c.donde, vista(sube(*c.sistema, puntos, z)), relleno);
}

void vplan_escr_polilinea3D(salida_t *salida, const arrPunto3D *puntos) {
    if (es_valida(salida) && EXIGE(puntos)) dibuja_polilinea3D(salida, puntos, false, FALSO);
}
void vplan_escr_poligono3D(salida_t *salida, const arrPunto3D *puntos) {
    if (es_valida(salida) && EXIGE(puntos)) dibuja_polilinea3D(salida, puntos, true, FALSO);
}
void vplan_escr_poligono3D_relleno(salida_t *salida, const arrPunto3D *puntos) {
    if (es_valida(salida) && EXIGE(puntos))
        dibuja_polilinea3D(salida, puntos, true, relleno_si_no_bloqueado(CIERTO, salida));
}
void vplan_escr_poligono_relleno(salida_t *salida, const arrPunto2D *puntos) {
    if (es_valida(salida) && EXIGE(puntos)) dibuja_poligono2D(salida, puntos, relleno_si_no_bloqueado(CIERTO, salida));
}

void vplan_escr_polilinea3D_con_cambio_de_color(salida_t *salida, const arrPunto3D *puntos, const arrULong *rgba) {
    if (!es_valida(salida) || !EXIGE(puntos, rgba)) return;
    const camino c = busca<&D::func_Polilinea3DConCambioDeColor>(salida);
    const uint32_t num_puntos = arr_NumElemsPunto3D(puntos);
    if (!AFIRMA(num_puntos == arr_NumElemsULong(rgba))) return;
    if (c.donde != nullptr)
        return llama_con<&D::func_Polilinea3DConCambioDeColor>(c.donde, pasa_puntos(*c.sistema, puntos).vista, rgba);
    const auto p = tramo(puntos);
    const auto color = tramo(rgba);
    for (size_t i = 1; i < p.size(); ++i) dibuja_gradiente(salida, p[i - 1], color[i - 1], p[i], color[i]);
}

// ---------------------------------------------------------------- quadrilaterals and triangles

void vplan_escr_rectangulo(salida_t *salida, double x1, double y1, double x2, double y2) {
    if (!es_valida(salida)) return;
    vplan_escr_polilinea(salida, poligono({Punto2D{x1, y1}, {x2, y1}, {x2, y2}, {x1, y2}}).get(), CIERTO);
}
void vplan_escr_rectangulo_relleno(salida_t *salida, double x1, double y1, double x2, double y2) {
    vplan_escr_solid(salida, x1, y1, x2, y1, x1, y2, x2, y2, CIERTO);
}

void vplan_escr_solid(salida_t *salida, double x1, double y1, double x2, double y2, double x3, double y3, double x4,
                      double y4, vnbool relleno) {
    if (!es_valida(salida) || !AFIRMA_LOGICO(relleno)) return;
    const puntos2D p = poligono({Punto2D{x1, y1}, {x2, y2}, {x4, y4}, {x3, y3}, {x1, y1}});
    dibuja_poligono2D(salida, p.get(), relleno_si_no_bloqueado(relleno, salida));
}
void vplan_escr_solid3D(salida_t *salida, double x1, double y1, double z1, double x2, double y2, double z2, double x3,
                        double y3, double z3, double x4, double y4, double z4, vnbool relleno) {
    if (!es_valida(salida) || !AFIRMA_LOGICO(relleno)) return;
    const camino c = busca<&D::func_DibujaSolid3D>(salida);
    const Punto3D p1{x1, y1, z1}, p2{x2, y2, z2}, p3{x3, y3, z3}, p4{x4, y4, z4};
    if (c.donde == nullptr || relleno_si_no_bloqueado(relleno, salida) == FALSO)
        return vplan_escr_poligono3D_relleno(salida, poligono({p1, p2, p4, p3, p1}).get());
    const sistema_coordenadas &s = *c.sistema;
    const Punto3D a = transforma_punto(s, p1), b = transforma_punto(s, p2), d = transforma_punto(s, p3),
                  e = transforma_punto(s, p4);
    llama<&D::func_DibujaSolid3D>(c.donde, a.x, a.y, a.z, b.x, b.y, b.z, d.x, d.y, d.z, e.x, e.y, e.z);
}
void vplan_escr_cara3D(salida_t *salida, double x1, double y1, double z1, vnbool visible1, double x2, double y2,
                       double z2, vnbool visible2, double x3, double y3, double z3, vnbool visible3, double x4,
                       double y4, double z4, vnbool visible4, vnbool relleno) {
    if (!es_valida(salida) || !AFIRMA_LOGICO(visible1) || !AFIRMA_LOGICO(visible2) || !AFIRMA_LOGICO(visible3) ||
        !AFIRMA_LOGICO(visible4) || !AFIRMA_LOGICO(relleno))
        return;
    const Punto3D p[] = {{x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3}, {x4, y4, z4}};
    const vnbool visible[] = {visible1, visible2, visible3, visible4};
    const camino c = busca<&D::func_DibujaCara3D>(salida);
    if (c.donde != nullptr && relleno_si_no_bloqueado(relleno, salida) != FALSO) {
        const sistema_coordenadas &s = *c.sistema;
        const Punto3D a = transforma_punto(s, p[0]), b = transforma_punto(s, p[1]), d = transforma_punto(s, p[2]),
                      e = transforma_punto(s, p[3]);
        return llama<&D::func_DibujaCara3D>(c.donde, a.x, a.y, a.z, visible1, b.x, b.y, b.z, visible2, d.x, d.y, d.z,
                                            visible3, e.x, e.y, e.z, visible4);
    }
    if (visible1 && visible2 && visible3 && visible4)
        return vplan_escr_polilinea3D(salida, poligono({p[0], p[1], p[2], p[3], p[0]}).get());
    for (int i = 0; i < 4; ++i) {
        const Punto3D &q = p[(i + 1) % 4];
        if (visible[i] != FALSO) vplan_escr_linea_3D(salida, p[i].x, p[i].y, p[i].z, q.x, q.y, q.z);
    }
}

void vplan_escr_triangulo(salida_t *salida, double x1, double y1, double x2, double y2, double x3, double y3) {
    if (!es_valida(salida)) return;
    vplan_escr_polilinea(salida, poligono({Punto2D{x1, y1}, {x2, y2}, {x3, y3}}).get(), CIERTO);
}
void vplan_escr_triangulo_relleno(salida_t *salida, double x1, double y1, double x2, double y2, double x3, double y3) {
    if (!es_valida(salida)) return;
    dibuja_poligono2D(salida, poligono({Punto2D{x1, y1}, {x2, y2}, {x3, y3}, {x1, y1}}).get(), CIERTO);
}
void vplan_escr_triangulo_2D_relleno_RGBA(salida_t *salida, double x1, double y1, double x2, double y2, double x3,
                                          double y3, uint32_t rgba) {
    if (!es_valida(salida)) return;
    const double z = z_del_plano(*salida);
    vplan_escr_triangulo_gradiente_3d(salida, x1, y1, z, rgba, x2, y2, z, rgba, x3, y3, z, rgba);
}
void vplan_escr_triangulo_gradiente_3d(salida_t *salida, double x1, double y1, double z1, uint32_t rgba1, double x2,
                                       double y2, double z2, uint32_t rgba2, double x3, double y3, double z3,
                                       uint32_t rgba3) {
    if (!es_valida(salida)) return;
    const camino c = busca<&D::func_TrianguloGradiente3D>(salida);
    if (!hay(c.donde)) return;
    const Punto3D a = transforma_punto(*c.sistema, {x1, y1, z1}), b = transforma_punto(*c.sistema, {x2, y2, z2}),
                  d = transforma_punto(*c.sistema, {x3, y3, z3});
    llama<&D::func_TrianguloGradiente3D>(c.donde, a.x, a.y, a.z, rgba1, b.x, b.y, b.z, rgba2, d.x, d.y, d.z, rgba3);
}
void vplan_escr_triangulo_3D_con_normal_por_vertice(salida_t *salida, double x1, double y1, double z1, double nx1,
                                                    double ny1, double nz1, double x2, double y2, double z2, double nx2,
                                                    double ny2, double nz2, double x3, double y3, double z3, double nx3,
                                                    double ny3, double nz3) {
    if (!es_valida(salida)) return;
    const Punto3D p1{x1, y1, z1}, p2{x2, y2, z2}, p3{x3, y3, z3};
    const camino c = busca<&D::func_Triangulo3DConNormalPorVertice>(salida);
    if (c.donde == nullptr) return dibuja_polilinea3D(salida, poligono({p1, p2, p3, p1}).get(), true, FALSO);
    const Punto3D a = transforma_punto(*c.sistema, p1), b = transforma_punto(*c.sistema, p2),
                  d = transforma_punto(*c.sistema, p3);
    llama<&D::func_Triangulo3DConNormalPorVertice>(c.donde, a.x, a.y, a.z, nx1, ny1, nz1, b.x, b.y, b.z, nx2, ny2, nz2,
                                                   d.x, d.y, d.z, nx3, ny3, nz3);
}
