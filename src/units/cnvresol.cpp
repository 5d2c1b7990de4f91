#define VN_MODULO "cnvresol (NUCLEOS.DLL)"
#include "units/cnvresol.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/sistema/entorno.h"

namespace {

// A dmm is a tenth of a millimetre, a point 1/72 of an inch, a twip a twentieth of a point.
constexpr int DMM_POR_PULGADA = 254;
constexpr int PUNTOS_POR_PULGADA = 72;
constexpr int MEDIOS_PUNTOS_POR_PULGADA = 144;
constexpr int SIN_RESULTADO = -1; // of vornwin_MulDiv too

// A millimetre is ten dmm; false where ten times the resolution has no room.
bool por_diez(int ppp, int &producto) { return !__builtin_mul_overflow(ppp, 10, &producto); }

} // namespace

int cnvresol_convierte_dmm_a_pixels(int valor, int ppp) { return vornwin_MulDiv(valor, ppp, DMM_POR_PULGADA); }

int32_t cnvresol_convierte_dmm_a_pixels_long(int32_t valor, int32_t ppp) {
    return vornwin_MulDiv_long(valor, ppp, DMM_POR_PULGADA);
}

int cnvresol_convierte_medios_puntos_a_pixels(int valor, int ppp) {
    return vornwin_MulDiv(valor, ppp, MEDIOS_PUNTOS_POR_PULGADA);
}

int cnvresol_convierte_puntos_a_pixels(int valor, int ppp) { return vornwin_MulDiv(valor, ppp, PUNTOS_POR_PULGADA); }

int cnvresol_convierte_milimetros_a_pixels(int valor, int ppp) {
    int diez;
    return por_diez(ppp, diez) ? vornwin_MulDiv(valor, diez, DMM_POR_PULGADA) : SIN_RESULTADO;
}

int cnvresol_convierte_pixels_a_dmm(int valor, int ppp) { return vornwin_MulDiv(valor, DMM_POR_PULGADA, ppp); }

int cnvresol_convierte_pixels_a_milimetros(int valor, int ppp) {
    int diez;
    return por_diez(ppp, diez) ? vornwin_MulDiv(valor, DMM_POR_PULGADA, diez) : SIN_RESULTADO;
}

double cnvresol_convierte_pixels_a_puntos(double valor, int ppp) { return valor * 72. / ppp; }
double cnvresol_dmm_a_puntos(double valor) { return valor * 72. / 254.; }
double cnvresol_puntos_a_twips(double valor) { return valor * 20.; }
double cnvresol_milimetros_a_pulgadas(double valor) { return valor / 25.4; }
double cnvresol_pixels_a_metros(double valor, int ppp) { return valor * 254. / (1000. * ppp); }

uint32_t cnvresol_dmm_a_twips(double valor) { return roundtul(valor * 1440. / 254.); }
uint32_t cnvresol_mm_a_twips(double valor) { return roundtul(valor * 14400. / 254.); }
uint32_t cnvresol_puntos_a_dmm(double valor) { return roundtul(valor * 254. / 72.); }
uint32_t cnvresol_metros_a_pixels(double valor, int ppp) { return roundtul(valor * 1000. * ppp / 25.4); }
