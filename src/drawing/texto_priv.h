// What the sources of texts share: the primitive, the upright rule, the length of a text before it is drawn.
#pragma once

#include "drawing/trazado_priv.h"

namespace vn {

// A length that the device is to measure.
constexpr double MIDE_EL_DISPOSITIVO = -1.;

// Wide text of the active ANSI page's, owned.
inline texto_u de_ansi(const char *texto) { return texto_u(unicode_convierte_ANSI_a_UNICODE(texto)); }

// What is drawn, but for the anchor.
struct rotulo {
    const vnwchar *texto;
    uint8_t justificacion;
    double alto, ancho, coseno, seno;
};
inline bool tiene_texto_bloqueado(const salida_t *salida) { return salida->bloqueos.con_texto_bloqueado > 0; }
void dibuja_texto(salida_t *salida, const rotulo &r, Punto3D ancla, double longitud, double desplazamiento);

// Whether the text stays; the code and the direction as they must be.
bool orientacion_correcta(bool se_permite, uint8_t &justificacion, double &coseno, double &seno);
bool se_permite_la_orientacion_correcta();
// The rule on what is about to be drawn; a code that is reported has none: false.
bool endereza(rotulo &r);

// Whether a text of these sizes can be measured, reported if not.
bool exige_medible(double alto, double ancho);
// Both ends included.
double mide(salida_t *salida, const vnwchar *texto, uint32_t primero, uint32_t ultimo, double alto, double ancho,
            int32_t estilo);
// Of the whole, by the machine's font alone.
double mide_sin_salida(const vnwchar *texto, double alto);
// Of the whole; for the device to measure if its sizes are out of range.
double mide_antes_de_dibujar(salida_t *salida, const rotulo &r, int32_t estilo);

} // namespace vn
