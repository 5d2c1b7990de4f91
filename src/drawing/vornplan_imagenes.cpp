#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_imagenes.h"
#include "drawing/trazado_priv.h"
#include "drawing/vornplan_caja_texto.h"
#include "foundation/numeros/vector_int.h"
#include "geometry/ejes2d_coordenadas.h"

using namespace vn;
using namespace vn::numeros;
using D = dispositivo;

namespace {

constexpr uint8_t CENTRADA = 5;

// The lower left corner of a box whose anchor is at a point.
Punto2D esquina(Punto2D ancla, uint8_t justificacion, double ancho, double alto) {
    Punto2D e, otra;
    vplan_obtener_4_esquinas_texto(ancho, ancla.x, ancla.y, alto, justificacion, 0., 1., &e.x, &e.y, &otra.x, &otra.y,
                                   &otra.x, &otra.y, &otra.x, &otra.y);
    return e;
}

bool es_de_imagen(uint8_t justificacion) { return AFIRMA(justificacion >= 1 && justificacion <= 9); }

// A box of the plane in the device's space; its sizes go along its own axes.
struct caja {
    Punto3D p;
    double ancho, alto;
};
caja pasa_caja(const sistema_coordenadas &s, Punto2D ancla, double z, uint8_t justificacion, double ancho,
               double alto) {
    const Punto2D e = esquina(ancla, justificacion, ancho, alto);
    return {transforma_punto(s, {e.x, e.y, z}), magnitud_x(s, ancho), magnitud_y(s, alto)};
}
// The axes of an image of space: unit vectors of the first two columns.
void ejes_de_imagen(const sistema_coordenadas &s, Punto3D *U, Punto3D *V) {
    *U = s.m.columna(0);
    *V = s.m.columna(1);
    unitario(*U);
    unitario(*V);
}

void dibuja_imagen(salida_t *salida, const void *imagen, double x, double y, uint8_t justificacion, double ancho,
                   double alto, vnbool gris) {
    if (!es_valida(salida) || !es_de_imagen(justificacion)) return;
    const camino c = busca<&D::func_DrawImagen, &D::func_DrawImagen3D>(salida);
    if (c.donde == nullptr) return;
    const sistema_coordenadas &s = *c.sistema;
    const double z = z_del_plano(*salida);
    if (!tiene<&D::func_DrawImagen>(c.donde)) {
        const caja q = pasa_caja(s, {x, y}, z, justificacion, ancho, alto);
        Punto3D U, V;
        ejes_de_imagen(s, &U, &V);
        return llama<&D::func_DrawImagen3D>(c.donde, imagen, q.p.x, q.p.y, q.p.z, U.x, U.y, U.z, V.x, V.y, V.z, q.ancho,
                                            q.alto, gris);
    }
    if (justificacion != CENTRADA) {
        const caja q = pasa_caja(s, {x, y}, z, justificacion, ancho, alto);
        return llama<&D::func_DrawImagen>(c.donde, imagen, q.p.x, q.p.y, q.ancho, q.alto, gris);
    }
    // About its centre, both sizes along x.
    const double w = magnitud_x(s, ancho), h = magnitud_x(s, alto);
    const Punto2D e = esquina(transforma_punto_2d(s, x, y, z), CENTRADA, w, h);
    llama<&D::func_DrawImagen>(c.donde, imagen, e.x, e.y, w, h, gris);
}

} // namespace

void vplan_escr_imagen(salida_t *salida, const void *imagen, double x, double y, uint8_t justificacion, double ancho,
                       double alto) {
    dibuja_imagen(salida, imagen, x, y, justificacion, ancho, alto, FALSO);
}
void vplan_escr_imagen_gris(salida_t *salida, const void *imagen, double x, double y, uint8_t justificacion,
                            double ancho, double alto) {
    dibuja_imagen(salida, imagen, x, y, justificacion, ancho, alto, CIERTO);
}

void vplan_escr_imagen_con_gestor_textura(salida_t *salida, const void *textura, double x, double y,
                                          uint8_t justificacion, double ancho, double alto) {
    if (!es_valida(salida) || !es_de_imagen(justificacion)) return;
    const camino c = busca<&D::func_DrawImagenConGestorTextura, &D::func_DrawImagenConGestorTextura3D>(salida);
    if (c.donde == nullptr) return;
    const caja q = pasa_caja(*c.sistema, {x, y}, z_del_plano(*salida), justificacion, ancho, alto);
    if (tiene<&D::func_DrawImagenConGestorTextura>(c.donde))
        return llama<&D::func_DrawImagenConGestorTextura>(c.donde, textura, q.p.x, q.p.y, q.ancho, q.alto);
    Punto3D U, V;
    ejes_de_imagen(*c.sistema, &U, &V);
    llama<&D::func_DrawImagenConGestorTextura3D>(c.donde, textura, q.p.x, q.p.y, q.p.z, U.x, U.y, U.z, V.x, V.y, V.z,
                                                 q.ancho, q.alto);
}

void vplan_escr_imagen3D(salida_t *salida, const void *imagen, double ox, double oy, double oz, double Ux, double Uy,
                         double Uz, double Vx, double Vy, double Vz, double x, double y, uint8_t justificacion,
                         double ancho, double alto, vnbool gris) {
    if (!es_valida(salida) || !es_de_imagen(justificacion) || !AFIRMA_LOGICO(gris)) return;
    const camino c = busca<&D::func_DrawImagen3D>(salida);
    if (c.donde == nullptr) return;
    const Punto2D e = esquina({x, y}, justificacion, ancho, alto);
    Punto3D p{};
    ejes2d_coordenada_2D_a_3D(ox, oy, oz, Ux, Uy, Uz, Vx, Vy, Vz, e.x, e.y, &p.x, &p.y, &p.z);
    p = transforma_punto(*c.sistema, p);
    const Punto3D U = transforma_vector(*c.sistema, {Ux, Uy, Uz}), V = transforma_vector(*c.sistema, {Vx, Vy, Vz});
    llama<&D::func_DrawImagen3D>(c.donde, imagen, p.x, p.y, p.z, U.x, U.y, U.z, V.x, V.y, V.z, ancho, alto, gris);
}
