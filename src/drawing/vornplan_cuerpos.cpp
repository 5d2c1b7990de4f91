#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_cuerpos.h"
#include "drawing/trazado_priv.h"
#include "drawing/vornplan_lineas.h"
#include "drawing/vornplan_salida.h"
#include "foundation/numeros/vector_int.h"
#include "mesh/vornmesh.h"
#include "mesh/vornmesh_genera.h"
#include "mesh/vornmesh_int.h"

using namespace vn;
using namespace vn::numeros;
using vn::listas::tramo;
using D = dispositivo;

namespace {

constexpr uint32_t LADOS = 32;

puntos3D pasa_direcciones(const sistema_coordenadas &s, const arrPunto3D *v) {
    if (v == nullptr) return nullptr; // a mesh may be without tangents
    const auto origen = tramo(v);
    puntos3D r(arr_CreaPunto3D(static_cast<uint32_t>(origen.size())));
    const auto destino = tramo(r.get());
    for (size_t i = 0; i < destino.size(); ++i)
        transforma_direccion(s, origen[i], &destino[i].x, &destino[i].y, &destino[i].z);
    return r;
}

mesh_propia pasa_malla(const sistema_coordenadas &s, const mesh *m) {
    puntos3D puntos = pasa_puntos(s, m->puntos.get()).copia, normales = pasa_direcciones(s, m->normales.get()),
             tangentes = pasa_direcciones(s, m->tangentes_opc.get());
    if (puntos == nullptr || normales == nullptr || (m->tangentes_opc != nullptr && tangentes == nullptr))
        return nullptr;
    arrPunto3D *p = puntos.release(), *n = normales.release(), *t = tangentes.release();
    return mesh_propia(vornmesh_copia_para_transformacion_vornplan(m, &p, &n, &t));
}

// A mesh in the space of a device that draws meshes, or lines.
void dibuja_malla(const salida_t *donde, const mesh *m, uint32_t modo) {
    if (tiene<&D::func_DibujaMesh>(donde)) return llama<&D::func_DibujaMesh>(donde, m, modo);
    const puntos2D puntos(vornmesh_obtener_segmentos_dibujo_basico(m));
    if (puntos == nullptr) return;
    const auto p = tramo(puntos.get());
    const size_t num_puntos = p.size();
    AFIRMA_TEXTO(num_puntos % 2 == 0, "num_puntos %2 == 0");
    for (size_t i = 0; i + 1 < num_puntos; i += 2)
        llama<&D::func_DrawLinea>(donde, p[i].x, p[i].y, p[i + 1].x, p[i + 1].y);
}

// Who draws a mesh: as such, or by its lines.
camino busca_malla(salida_t *s) {
    salida_t *donde = implementa<&D::func_DibujaMesh>(s);
    if (donde == nullptr) donde = implementa<&D::func_DrawLinea>(s);
    return {donde, &encadenado(s, donde)};
}

} // namespace

void vplan_escr_mesh(salida_t *salida, const mesh *malla, uint32_t modo) {
    if (!es_valida(salida) || !AFIRMA_TEXTO(malla != nullptr, "(mesh) != NULL")) return;
    if (vornplan_es_salida_limites(salida) != FALSO) return vplan_escr_polilinea3D(salida, malla->puntos.get());
    const camino c = busca_malla(salida);
    if (!hay(c.donde)) return;
    if (i_es_sistema_coordenadas_identidad(c.sistema)) return dibuja_malla(c.donde, malla, modo);
    if (const mesh_propia suya = pasa_malla(*c.sistema, malla); suya != nullptr)
        dibuja_malla(c.donde, suya.get(), modo);
}

void vplan_escr_tubo3D(salida_t *salida, const arrPunto3D *puntos, double diametro) {
    if (!es_valida(salida) || !EXIGE(puntos)) return;
    if (const camino c = busca<&D::func_DibujaTubo3D>(salida); c.donde != nullptr)
        return llama_con<&D::func_DibujaTubo3D>(c.donde, pasa_puntos(*c.sistema, puntos).vista,
                                                magnitud_x(*c.sistema, diametro));
    const camino c = busca<&D::func_DibujaMesh>(salida);
    if (c.donde == nullptr) return vplan_escr_polilinea3D(salida, puntos);
    const pasados3D eje = pasa_puntos(*c.sistema, puntos);
    if (eje.vista == nullptr) return;
    const mesh_propia tubo(
        vornmesh_genera_prisma_tubos(eje.vista, magnitud_x(*c.sistema, diametro / 2.), LADOS, FALSO));
    if (tubo != nullptr) llama<&D::func_DibujaMesh>(c.donde, static_cast<const mesh *>(tubo.get()), 0u);
}

void vplan_escr_prisma_conico(salida_t *salida, double xb, double yb, double zb, double diametro_base, double xt,
                              double yt, double zt, double diametro_tapa, double Ex, double Ey, double Ez) {
    if (!es_valida(salida)) return;
    if (const camino c = busca<&D::func_DibujaPrimaConico>(salida); c.donde != nullptr) {
        const sistema_coordenadas &s = *c.sistema;
        const Punto3D base = transforma_punto(s, {xb, yb, zb}), tapa = transforma_punto(s, {xt, yt, zt});
        Punto3D eje;
        transforma_direccion(s, {Ex, Ey, Ez}, &eje.x, &eje.y, &eje.z);
        return llama<&D::func_DibujaPrimaConico>(c.donde, base.x, base.y, base.z, magnitud_x(s, diametro_base), tapa.x,
                                                 tapa.y, tapa.z, magnitud_x(s, diametro_tapa), eje.x, eje.y, eje.z);
    }
    const mesh_propia cono(vornmesh_genera_prisma_conico(xb, yb, zb, diametro_base / 2., xt, yt, zt, diametro_tapa / 2.,
                                                         Ex, Ey, Ez, LADOS, FALSO));
    if (cono != nullptr) vplan_escr_mesh(salida, cono.get(), 0);
}

void vplan_escr_grid(salida_t *salida, double paso) {
    if (EXIGE(salida)) llama_si_hay<&D::func_DibujaGrid>(salida, paso);
}

void vplan_escr_grid3d(salida_t *salida, const arrPuntero *filas) {
    if (!es_valida(salida) || !EXIGE(filas) || !son_contornos(filas)) return;
    const camino propio = busca<&D::func_DibujaGrid3D>(salida);
    const camino c = propio.donde != nullptr ? propio : busca_malla(salida);
    if (!hay(c.donde)) return;
    grupo3D pasadas;
    const arrPuntero *suyas = filas;
    if (!i_es_sistema_coordenadas_identidad(c.sistema)) {
        pasadas = pasa_grupo<grupo3D, arrPunto3D>(
            filas, [&](const arrPunto3D *fila) { return std::move(pasa_puntos(*c.sistema, fila).copia); });
        if (pasadas.arr == nullptr) return;
        suyas = pasadas.arr;
    }
    if (propio.donde != nullptr) return llama<&D::func_DibujaGrid3D>(c.donde, suyas);
    if (const mesh_propia m(vornmesh_genera_grid3d(suyas)); m != nullptr) dibuja_malla(c.donde, m.get(), 0);
}

void vplan_escr_nubes_puntos_3Dcons(salida_t *salida, const void *nubes) {
    if (!es_valida(salida)) return;
    const camino c = busca<&D::func_NubesPuntos3D>(salida);
    if (!hay(c.donde)) return;
    const sistema_coordenadas *const sistema_coordenadas = c.sistema;
    if (AFIRMA(i_es_sistema_coordenadas_identidad(sistema_coordenadas) == CIERTO))
        llama<&D::func_NubesPuntos3D>(c.donde, nubes);
}

void vplan_escr_xref(salida_t *salida, const void *referencia) {
    if (!es_valida(salida)) return;
    const camino c = busca<&D::func_DibujaXRef>(salida);
    if (c.donde == nullptr) return;
    const auto matriz = a_vmatr(*c.sistema);
    llama_con<&D::func_DibujaXRef>(c.donde, static_cast<const vmatr *>(matriz.get()), referencia);
}

void vornplan_set_num_puntos_circulo(salida_t *salida, uint32_t num_puntos, uint32_t *anterior) {
    if (!EXIGE(salida)) return;
    if (!llama_si_hay<&D::func_set_num_puntos_circulo>(salida, num_puntos, anterior) && anterior != nullptr)
        *anterior = 0;
}
