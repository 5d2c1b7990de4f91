#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_rellenos.h"
#include "drawing/trazado_priv.h"
#include "foundation/numeros/mt.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/sistema/vnstdc.h"
#include "geometry/rectng_recorte.h"

using namespace vn;
using namespace vn::numeros;
using vn::listas::tramo;
using D = dispositivo;

namespace {

// A gradient shorter than this is none, metres.
constexpr double GRADIENTE_MINIMO = 1e-06;
// How far the line through the middle of a box reaches each way before it is clipped to it, metres.
constexpr double ALCANCE = 1000.;
// Below this a direction of a hatch has been taken to nothing.
constexpr double SIN_DIRECCION = 0.0001;
// Dashes below this are gaps, metres.
constexpr double ES_HUECO = -1e-05;

grupo2D pasa_contornos(const sistema_coordenadas &s, const arrPuntero *contornos, double z) {
    return pasa_grupo<grupo2D, arrPunto2D>(contornos,
                                           [&](const arrPunto2D *p) { return copia_en_planta(s, p, z, false); });
}

// Both sets of a region, in the device's space: themselves where the system is identity.
struct region {
    grupo2D exteriores_pasados, interiores_pasados;
    const arrPuntero *exteriores, *interiores;
    region(const sistema_coordenadas &s, const arrPuntero *fuera, const arrPuntero *dentro, double z)
        : exteriores(fuera), interiores(dentro) {
        if (i_es_sistema_coordenadas_identidad(&s)) return;
        exteriores_pasados = pasa_contornos(s, fuera, z);
        interiores_pasados = pasa_contornos(s, dentro, z);
        exteriores = exteriores_pasados.arr;
        interiores = interiores_pasados.arr;
    }
    // Not so for want of memory, which was reported.
    bool entera() const { return exteriores != nullptr && interiores != nullptr; }
};

void dibuja_regiones(salida_t *salida, const arrPuntero *exteriores, const arrPuntero *interiores, vnbool con_borde) {
    if (!son_contornos(exteriores) || !son_contornos(interiores)) return;
    const camino c = busca<&D::func_DibujaRellenoRegiones, &D::func_DibujaRellenoRegiones3D>(salida);
    if (c.donde == nullptr) return;
    if (tiene<&D::func_DibujaRellenoRegiones>(c.donde)) {
        const region r(*c.sistema, exteriores, interiores, z_del_plano(*salida));
        if (r.entera()) llama<&D::func_DibujaRellenoRegiones>(c.donde, r.exteriores, r.interiores, con_borde);
        return;
    }
    const auto al_espacio = [&](const arrPunto2D *p) { return sube(*c.sistema, p, 0.); };
    const auto fuera = pasa_grupo<grupo3D, arrPunto2D>(exteriores, al_espacio),
               dentro = pasa_grupo<grupo3D, arrPunto2D>(interiores, al_espacio);
    if (fuera.arr == nullptr || dentro.arr == nullptr) return;
    llama<&D::func_DibujaRellenoRegiones3D>(c.donde, static_cast<const arrPuntero *>(fuera.arr),
                                            static_cast<const arrPuntero *>(dentro.arr), con_borde);
}

struct caja {
    Punto2D min{INFINITY, INFINITY}, max{-INFINITY, -INFINITY};
};
caja caja_de(const arrPuntero *contornos) {
    caja c;
    for (const void *contorno : tramo(contornos))
        for (const Punto2D p : tramo(static_cast<const arrPunto2D *>(contorno))) {
            c.min = {std::fmin(c.min.x, p.x), std::fmin(c.min.y, p.y)};
            c.max = {std::fmax(c.max.x, p.x), std::fmax(c.max.y, p.y)};
        }
    return c;
}

struct linea {
    Punto2D a, b;
};
// The part of a line through the lower left corner of a box on which the box stands.
linea al_sesgo(const caja &c, Punto2D d) {
    double t1 = 1e+10, t2 = -1e+10;
    for (const Punto2D p : {c.min, Punto2D{c.max.x, c.min.y}, c.max, Punto2D{c.min.x, c.max.y}}) {
        const double t = mt_posicion_relativa_a_segmento(p.x, p.y, c.min.x, c.min.y, c.min.x + d.x, c.min.y + d.y);
        t1 = std::fmin(t1, t);
        t2 = std::fmax(t2, t);
    }
    return {c.min + t1 * d, c.min + t2 * d};
}
// What a box has of a line through its middle.
bool por_el_medio(const caja &c, Punto2D d, linea *l) {
    const Punto2D medio = relativo(c.min, c.max, 0.5), a = medio - ALCANCE * d, b = medio + ALCANCE * d;
    const vnbool hay_clip = rec_clip_linea_liang_barsky(c.min.x, c.min.y, c.max.x, c.max.y, a.x, a.y, b.x, b.y, &l->a.x,
                                                        &l->a.y, &l->b.x, &l->b.y);
    if (!AFIRMA(hay_clip == CIERTO)) return false;
    const double longitud = modulo(l->b - l->a);
    return AFIRMA(longitud > 0.);
}

} // namespace

void vplan_escr_relleno_regiones(salida_t *salida, const arrPuntero *exteriores, const arrPuntero *interiores) {
    if (!es_valida(salida) || !EXIGE(exteriores, interiores)) return;
    if (relleno_si_no_bloqueado(CIERTO, salida) != FALSO) dibuja_regiones(salida, exteriores, interiores, CIERTO);
}
void vplan_escr_borde_regiones(salida_t *salida, const arrPuntero *exteriores, const arrPuntero *interiores) {
    if (es_valida(salida) && EXIGE(exteriores, interiores)) dibuja_regiones(salida, exteriores, interiores, FALSO);
}

// ---------------------------------------------------------------- gradients

void vplan_escr_relleno_regiones_con_gradiente(salida_t *salida, const arrPuntero *exteriores,
                                               const arrPuntero *interiores, double angulo, uint32_t tipo,
                                               uint32_t rgba1, uint32_t rgba2) {
    if (!es_valida(salida) || !EXIGE(exteriores, interiores)) return;
    if (tipo > 4) {
        AFIRMA_DEFECTO();
        return;
    }
    if (!son_contornos(exteriores) || !son_contornos(interiores)) return;
    if (relleno_si_no_bloqueado(CIERTO, salida) == FALSO) return;
    const camino c = busca<&D::func_DibujaRellenoRegionesConGradiente>(salida);
    if (c.donde == nullptr) return;
    const region r(*c.sistema, exteriores, interiores, z_del_plano(*salida));
    if (!r.entera()) return;
    const caja limites = caja_de(r.exteriores);
    if (!(limites.min.x <= limites.max.x)) return; // no contours
    Punto2D d;
    transforma_direccion(*c.sistema, vnstdc_cos(angulo), vnstdc_sin(angulo), &d.x, &d.y);
    linea l{limites.min, limites.max};
    switch (tipo) {
    case 0:
    case 1:
        l = al_sesgo(limites, d);
        if (!(modulo(l.b - l.a) > GRADIENTE_MINIMO)) return;
        break;
    case 4:
        if (!por_el_medio(limites, d, &l)) return;
        break;
    default: break; // 2, 3: the box from corner to corner
    }
    llama<&D::func_DibujaRellenoRegionesConGradiente>(c.donde, r.exteriores, r.interiores, tipo, l.a.x, l.a.y, l.b.x,
                                                      l.b.y, rgba1, rgba2);
}

void vplan_escr_relleno_regiones_con_gradiente_lineal(salida_t *salida, const arrPuntero *exteriores,
                                                      const arrPuntero *interiores, uint32_t rgba1, uint32_t rgba2,
                                                      double x1, double y1, double x2, double y2) {
    if (!es_valida(salida) || !EXIGE(exteriores, interiores)) return;
    if (!son_contornos(exteriores) || !son_contornos(interiores)) return;
    if (relleno_si_no_bloqueado(CIERTO, salida) == FALSO) return;
    const camino c = busca<&D::func_DibujaRellenoRegionesConGradiente>(salida);
    if (c.donde == nullptr) return;
    const region r(*c.sistema, exteriores, interiores, z_del_plano(*salida));
    if (!r.entera()) return;
    const Punto2D a = transforma_punto_2d(*c.sistema, x1, y1, 0.), b = transforma_punto_2d(*c.sistema, x2, y2, 0.);
    llama<&D::func_DibujaRellenoRegionesConGradiente>(c.donde, r.exteriores, r.interiores, uint32_t{4}, a.x, a.y, b.x,
                                                      b.y, rgba1, rgba2);
}

// ---------------------------------------------------------------- hatches

namespace {

dueno<arr_DestruyeDouble> pasa_angulos(const sistema_coordenadas &s, const arrDouble *angulos) {
    if (angulos == nullptr) return nullptr;
    const auto origen = tramo(angulos);
    dueno<arr_DestruyeDouble> r(arr_CreaDouble(static_cast<uint32_t>(origen.size())));
    const auto destino = tramo(r.get());
    for (size_t i = 0; i < destino.size(); ++i) {
        Punto2D d = transforma_punto_2d(s, vnstdc_cos(origen[i]), vnstdc_sin(origen[i]), 0.);
        if (mayor_coordenada(d) < SIN_DIRECCION) d = {1., 0.};
        destino[i] = vnstdc_atan2(d.y, d.x);
    }
    return r;
}
puntos2D pasa_opcional(const sistema_coordenadas &s, const arrPunto2D *puntos) {
    return puntos != nullptr ? copia_en_planta(s, puntos, 0., false) : nullptr;
}

} // namespace

void vplan_escr_hatch(salida_t *salida, const arrPuntero *contornos, const arrDouble *angulos,
                      const arrPunto2D *origenes, const arrPunto2D *desplazamientos, const arrPuntero *trazos) {
    if (!es_valida(salida) || !EXIGE(contornos) || !son_contornos(contornos)) return;
    if (trazos != nullptr && !son_contornos(trazos)) return;
    const camino c = busca<&D::func_DrawHatch>(salida);
    if (!hay(c.donde)) return;
    const sistema_coordenadas &s = *c.sistema;
    if (i_es_sistema_coordenadas_identidad(&s))
        return llama<&D::func_DrawHatch>(c.donde, contornos, angulos, origenes, desplazamientos, trazos);
    const grupo2D suyos = pasa_contornos(s, contornos, z_del_plano(*salida));
    if (suyos.arr == nullptr) return;
    // The lines turn and scale about the origin; where they stand is each one's own point.
    sistema_coordenadas giro = solo_giro(s);
    if (giro.m == matriz4{})
        return llama<&D::func_DrawHatch>(c.donde, static_cast<const arrPuntero *>(suyos.arr), angulos, origenes,
                                         desplazamientos, trazos);
    giro.tipo = i_MATRIZ_GENERAL;
    const auto sus_angulos = pasa_angulos(giro, angulos);
    const puntos2D sus_origenes = pasa_opcional(giro, origenes), sus_pasos = pasa_opcional(giro, desplazamientos);
    grupo_trazos sus_trazos;
    if (trazos != nullptr)
        sus_trazos = pasa_grupo<grupo_trazos, arrDouble>(
            trazos, [&](const arrDouble *t) { return magnitudes_con_signo(s, t, ES_HUECO); });
    llama<&D::func_DrawHatch>(c.donde, static_cast<const arrPuntero *>(suyos.arr),
                              static_cast<const arrDouble *>(sus_angulos.get()), vista(sus_origenes), vista(sus_pasos),
                              static_cast<const arrPuntero *>(sus_trazos.arr));
}
void vplan_escr_hatch_relleno(salida_t *salida, const arrPuntero *contornos) {
    vplan_escr_hatch(salida, contornos, nullptr, nullptr, nullptr, nullptr);
}
