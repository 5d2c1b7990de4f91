#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_texto.h"
#include "drawing/caja_texto_priv.h"
#include "drawing/texto_priv.h"
#include "drawing/vornplan_salida.h"
#include "foundation/suelo/logico_int.h"
#include <atomic>
#include <climits>
#include <cmath>

using namespace vn;
using D = vn::dispositivo;

namespace {

constexpr double TOLERANCIA = 1e-06;
// The direction of 5 degrees: a text is upright up to a right angle from it.
constexpr double COSENO_5 = 0.9961947, SENO_5 = 0.08715574;

constinit std::atomic<vnbool> permitir_orientacion_correcta{CIERTO};

Punto2D desplazamiento_de(uint8_t justificacion, double d, double coseno, double seno) {
    const banda *const b = banda_si_hay(justificacion);
    if (b == nullptr) return AFIRMA_DEFECTO(), Punto2D{};
    const double largo = LADOS[columna_de(justificacion)] * d, alto = b->alejado * d;
    return {largo * coseno - alto * seno, largo * seno + alto * coseno};
}

void pon_plano(const salida_t *donde, const matriz4 &s) {
    const auto &m = s.m;
    llama<&D::func_SetPlanoTexto>(donde, m[0][0], m[0][1], m[0][2], m[1][0], m[1][1], m[1][2], m[2][0], m[2][1],
                                  m[2][2], m[0][3], m[1][3], m[2][3], m[3][0], m[3][1], m[3][2], m[3][3]);
}
void di_si_se_permite(const salida_t *donde, bool se_permite) {
    if (tiene<&D::func_SetPermitirOrientacionCorrecta>(donde))
        llama<&D::func_SetPermitirOrientacionCorrecta>(donde, logico(se_permite));
}

Punto3D en_el_plano(const salida_t *salida, double x, double y) { return {x, y, z_del_plano(*salida)}; }

void mide_y_dibuja(salida_t *salida, const rotulo &r, double x, double y, int32_t estilo, double desplazamiento = 0.) {
    if (tiene_texto_bloqueado(salida)) return;
    dibuja_texto(salida, r, en_el_plano(salida, x, y), mide_antes_de_dibujar(salida, r, estilo), desplazamiento);
}

} // namespace

// ---------------------------------------------------------------- the primitive

void vn::dibuja_texto(salida_t *salida, const rotulo &r, Punto3D ancla, double longitud, double desplazamiento) {
    if (tiene_texto_bloqueado(salida)) return;
    const camino c = busca<&D::func_DrawTexto, &D::func_DrawTexto3D>(salida);
    if (!hay(c.donde)) return;
    if (desplazamiento != 0.) {
        const Punto2D d = desplazamiento_de(r.justificacion, desplazamiento, r.coseno, r.seno);
        ancla.x += d.x;
        ancla.y += d.y;
    }
    const bool iguales = std::fabs(r.ancho - r.alto) < TOLERANCIA, se_permite = se_permite_la_orientacion_correcta();
    double alto = r.alto, ancho = r.ancho, coseno = r.coseno, seno = r.seno;
    uint8_t justificacion = r.justificacion;
    if (!tiene<&D::func_SetPlanoTexto>(c.donde)) {
        // Before the next composition, which this one does not outlive.
        ancla = transforma_punto(*c.sistema, ancla);
        if (salida->bloqueos.con_giro_texto_bloqueado == 0)
            transforma_direccion(*c.sistema, r.coseno, r.seno, &coseno, &seno);
        const sistema_coordenadas de_texto = compone_para_texto(salida, c.donde);
        ancho = magnitud_x(de_texto, ancho);
        alto = magnitud_y(de_texto, alto);
        if (!(std::fabs(longitud - MIDE_EL_DISPOSITIVO) < TOLERANCIA)) longitud = magnitud_x(de_texto, longitud);
    } else {
        if (!AFIRMA_TEXTO(tiene<&D::func_DrawTexto3D>(c.donde), tabla::FILA<&D::func_DrawTexto3D>.falta)) return;
        pon_plano(c.donde, c.sistema->m);
    }
    if (!AFIRMA(justificacion <= 18)) return;
    orientacion_correcta(se_permite, justificacion, coseno, seno);
    if (iguales) alto = ancho = std::fmin(alto, ancho);
    di_si_se_permite(c.donde, se_permite);
    if (tiene<&D::func_DrawTexto>(c.donde))
        llama<&D::func_DrawTexto>(c.donde, r.texto, ancla.x, ancla.y, justificacion, alto, ancho, coseno, seno,
                                  longitud, uint8_t{0});
    else
        llama<&D::func_DrawTexto3D>(c.donde, r.texto, ancla.x, ancla.y, ancla.z, justificacion, alto, ancho, coseno,
                                    seno, longitud, uint8_t{0});
}

// ---------------------------------------------------------------- the upright rule

bool vn::se_permite_la_orientacion_correcta() {
    return permitir_orientacion_correcta.load(std::memory_order_acquire) != FALSO;
}
bool vn::orientacion_correcta(bool se_permite, uint8_t &justificacion, double &coseno, double &seno) {
    // What is not a number cannot be told the right way up.
    if (!se_permite || !(coseno * COSENO_5 + seno * SENO_5 < 0.)) return true;
    // By a difference, so that a zero has no sign.
    coseno = 0. - coseno;
    seno = 0. - seno;
    justificacion = static_cast<uint8_t>((justificacion < 10 ? 10 : 19) - justificacion);
    return false;
}
bool vn::endereza(rotulo &r) {
    const uint8_t justificacion = r.justificacion;
    if (!AFIRMA(justificacion <= 18)) return false;
    orientacion_correcta(se_permite_la_orientacion_correcta(), r.justificacion, r.coseno, r.seno);
    return true;
}

namespace {

struct enderezado {
    bool se_queda;
    uint8_t justificacion;
};
enderezado endereza_en(uint8_t justificacion, double coseno, double seno, double *cose_correcto,
                       double *seno_correcto) {
    enderezado e{true, justificacion};
    if (!AFIRMA(justificacion <= 18) || !EXIGE(cose_correcto, seno_correcto)) return e;
    e.se_queda = orientacion_correcta(se_permite_la_orientacion_correcta(), e.justificacion, coseno, seno);
    *cose_correcto = coseno;
    *seno_correcto = seno;
    return e;
}

} // namespace

vnbool vplan_orientacion_correcta_para_texto(uint8_t justificacion, double coseno, double seno, double *cose_correcto,
                                             double *seno_correcto) {
    return logico(endereza_en(justificacion, coseno, seno, cose_correcto, seno_correcto).se_queda);
}
uint8_t vplan_justificacion_correcta_para_texto(uint8_t justificacion, double coseno, double seno,
                                                double *cose_correcto, double *seno_correcto) {
    return endereza_en(justificacion, coseno, seno, cose_correcto, seno_correcto).justificacion;
}
void vornplan_set_permitir_orientacion_correcta_textos(vnbool permitir, vnbool *anterior) {
    if (!AFIRMA_LOGICO(permitir)) return;
    const vnbool hasta_ahora = permitir_orientacion_correcta.exchange(permitir, std::memory_order_acq_rel);
    if (anterior != nullptr) *anterior = hasta_ahora;
}

void vornplan_desplazamientos_x_y_segun_justificacion(uint8_t justificacion, double desplazamiento, double coseno,
                                                      double seno, double *desplazamiento_x, double *desplazamiento_y) {
    if (!EXIGE(desplazamiento_x, desplazamiento_y)) return;
    const Punto2D d = desplazamiento_de(justificacion, desplazamiento, coseno, seno);
    *desplazamiento_x = d.x;
    *desplazamiento_y = d.y;
}

// ---------------------------------------------------------------- writing

void vplan_escr_texto_u(salida_t *salida, const vnwchar *texto, double x, double y, uint8_t justificacion, double alto,
                        double ancho, double coseno, double seno, int32_t estilo) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    mide_y_dibuja(salida, {texto, justificacion, alto, ancho, coseno, seno}, x, y, estilo);
}
void vplan_escr_texto(salida_t *salida, const char *texto, double x, double y, uint8_t justificacion, double alto,
                      double ancho, double coseno, double seno, int32_t estilo) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    vplan_escr_texto_u(salida, de_ansi(texto).get(), x, y, justificacion, alto, ancho, coseno, seno, estilo);
}
void vplan_escr_texto3D_u(salida_t *salida, const vnwchar *texto, double x, double y, double z, uint8_t justificacion,
                          double alto, double ancho, double coseno, double seno, int32_t estilo) {
    if (!es_valida(salida) || !EXIGE(texto) || tiene_texto_bloqueado(salida)) return;
    if (!exige_medible(alto, ancho)) return;
    const rotulo r{texto, justificacion, alto, ancho, coseno, seno};
    dibuja_texto(salida, r, {x, y, z}, mide_antes_de_dibujar(salida, r, estilo), 0.);
}
void vplan_escr_texto3D(salida_t *salida, const char *texto, double x, double y, double z, uint8_t justificacion,
                        double alto, double ancho, double coseno, double seno, int32_t estilo) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    vplan_escr_texto3D_u(salida, de_ansi(texto).get(), x, y, z, justificacion, alto, ancho, coseno, seno, estilo);
}
void vplan_escr_texto_con_longit_u(salida_t *salida, const vnwchar *texto, double x, double y, uint8_t justificacion,
                                   double alto, double ancho, double coseno, double seno, double longitud) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    dibuja_texto(salida, {texto, justificacion, alto, ancho, coseno, seno}, en_el_plano(salida, x, y), longitud, 0.);
}
void vplan_escr_texto_con_longit3D_u(salida_t *salida, const vnwchar *texto, double x, double y, double z,
                                     uint8_t justificacion, double alto, double ancho, double coseno, double seno,
                                     double longitud) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    dibuja_texto(salida, {texto, justificacion, alto, ancho, coseno, seno}, {x, y, z}, longitud, 0.);
}
void vplan_escr_texto_con_desplazamiento_u(salida_t *salida, const vnwchar *texto, double x, double y,
                                           uint8_t justificacion, double alto, double ancho, double coseno, double seno,
                                           int32_t estilo, double desplazamiento) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    mide_y_dibuja(salida, {texto, justificacion, alto, ancho, coseno, seno}, x, y, estilo, desplazamiento);
}

void vplan_escr_texto_con_orientacion_correcta_u(salida_t *salida, const vnwchar *texto, double x, double y,
                                                 uint8_t justificacion, double alto, double ancho, double coseno,
                                                 double seno, int32_t estilo) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    rotulo r{texto, justificacion, alto, ancho, coseno, seno};
    if (endereza(r)) mide_y_dibuja(salida, r, x, y, estilo);
}
void vplan_escr_texto_con_orientacion_correcta(salida_t *salida, const char *texto, double x, double y,
                                               uint8_t justificacion, double alto, double ancho, double coseno,
                                               double seno, int32_t estilo) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    vplan_escr_texto_con_orientacion_correcta_u(salida, de_ansi(texto).get(), x, y, justificacion, alto, ancho, coseno,
                                                seno, estilo);
}

void vplan_escr_texto_con_alto_en_pixeles_con_orientacion_correcta_u(salida_t *salida, const vnwchar *texto, double x,
                                                                     double y, uint8_t justificacion,
                                                                     double alto_pixeles, double coseno, double seno,
                                                                     double longitud, uint32_t estilo) {
    if (!es_valida(salida) || !EXIGE(texto) || !AFIRMA(estilo < UCHAR_MAX) || tiene_texto_bloqueado(salida)) return;
    const camino c = busca<&D::func_escr_texto_con_alto_en_pixeles>(salida);
    if (c.donde == nullptr) {
        const double alto = vplan_tamanyo_punto_visible(salida) * alto_pixeles;
        return vplan_escr_texto_con_orientacion_correcta_u(salida, texto, x, y, justificacion, alto, alto, coseno, seno,
                                                           static_cast<int32_t>(estilo));
    }
    if (!AFIRMA_TEXTO(tiene<&D::func_SetPlanoTexto>(c.donde), "salida_con_implementacion->func_SetPlanoTexto != NULL"))
        return;
    pon_plano(c.donde, c.sistema->m);
    di_si_se_permite(c.donde, se_permite_la_orientacion_correcta());
    llama<&D::func_escr_texto_con_alto_en_pixeles>(c.donde, texto, x, y, z_del_plano(*salida), justificacion,
                                                   alto_pixeles, coseno, seno, longitud, estilo);
}
