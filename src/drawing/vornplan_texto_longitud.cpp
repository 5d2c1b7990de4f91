#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_texto_longitud.h"
#include "drawing/texto_priv.h"
#include "foundation/sistema/textowin.h"
#include <algorithm>
#include <cmath>
#include <cstring>

using namespace vn;
using D = vn::dispositivo;

namespace {

// What digits a number can be made of.
constexpr size_t SITIO_DIGITOS = 200;
// A frame around a text: from this many heights on a box, with these parts of the height more; else a circle.
constexpr double LARGO_DE_CAJA = 1.5, HOLGURA_LARGO = 1.2, HOLGURA_ALTO = .2, HOLGURA_CIRCULO = 1.2;

constexpr uint32_t HASTA_EL_FINAL = UINT32_MAX;

bool es_valida_o_ninguna(const salida_t *salida) { return salida == nullptr || es_valida(salida); }

double mide_por_la_pantalla(const vnwchar *texto, uint32_t primero, uint32_t ultimo, double alto) {
    return textowin_calcula_longitudTrozoTexto(texto, primero, ultimo, textowin_get_nombre_fuente_por_defecto(), 100.) *
           (alto / 100.);
}
uint32_t ultimo_de(const vnwchar *texto) { return static_cast<uint32_t>(std::char_traits<vnwchar>::length(texto)) - 1; }

} // namespace

bool vn::exige_medible(double alto, double ancho) {
    // That the second looks at the height again is its contract.
    return AFIRMA(alto > 1e-50 && alto < 1e50) && AFIRMA(ancho > 1e-50 && alto < 1e50);
}

double vn::mide_sin_salida(const vnwchar *texto, double alto) {
    return mide_por_la_pantalla(texto, 0, HASTA_EL_FINAL, alto);
}
double vn::mide(salida_t *salida, const vnwchar *texto, uint32_t primero, uint32_t ultimo, double alto, double ancho,
                int32_t estilo) {
    if (salida == nullptr) return mide_por_la_pantalla(texto, primero, ultimo, alto);
    salida_t *const donde = implementa<&D::func_LongitudTrozoTexto>(salida);
    const sistema_coordenadas de_texto = compone_para_texto(salida, donde);
    const double ancho_suyo = magnitud_x(de_texto, ancho), alto_suyo = magnitud_y(de_texto, alto);
    double longitud = 0.;
    if (donde == nullptr) longitud = mide_por_la_pantalla(texto, primero, ultimo, alto_suyo);
    else llama<&D::func_LongitudTrozoTexto>(donde, texto, primero, ultimo, alto_suyo, ancho_suyo, estilo, &longitud);
    return magnitud_inversa(de_texto, longitud);
}
double vn::mide_antes_de_dibujar(salida_t *salida, const rotulo &r, int32_t estilo) {
    if (!(r.alto > 1e-50 && r.alto < 1e50 && r.ancho > 1e-50)) return MIDE_EL_DISPOSITIVO;
    return r.texto[0] == 0 ? 0. : mide(salida, r.texto, 0, ultimo_de(r.texto), r.alto, r.ancho, estilo);
}

void vplan_longitud_texto_u(salida_t *salida, const vnwchar *texto, double alto, double ancho, int32_t estilo,
                            double *longitud) {
    if (longitud != nullptr) *longitud = 0.;
    if (!es_valida_o_ninguna(salida) || !EXIGE(texto) || !exige_medible(alto, ancho) || !EXIGE(longitud)) return;
    if (texto[0] != 0) *longitud = mide(salida, texto, 0, ultimo_de(texto), alto, ancho, estilo);
}
void vplan_longitud_texto(salida_t *salida, const char *texto, double alto, double ancho, int32_t estilo,
                          double *longitud) {
    if (longitud != nullptr) *longitud = 0.;
    if (!es_valida_o_ninguna(salida) || !EXIGE(texto, longitud)) return;
    vplan_longitud_texto_u(salida, de_ansi(texto).get(), alto, ancho, estilo, longitud);
}

void vplan_longitud_trozo_texto_u(salida_t *salida, const vnwchar *texto, uint32_t primero, uint32_t ultimo,
                                  double alto, double ancho, int32_t estilo, double *longitud) {
    if (longitud != nullptr) *longitud = 0.;
    if (!es_valida_o_ninguna(salida) || !EXIGE(texto, longitud)) return;
    // A device need not look where the text ends.
    const size_t n = std::char_traits<vnwchar>::length(texto);
    if (primero > ultimo || primero >= n) return;
    *longitud = mide(salida, texto, primero, std::min(ultimo, static_cast<uint32_t>(n - 1)), alto, ancho, estilo);
}
void vplan_longitud_trozo_texto(salida_t *salida, const char *texto, uint32_t primero, uint32_t ultimo, double alto,
                                double ancho, int32_t estilo, double *longitud) {
    if (longitud != nullptr) *longitud = 0.;
    if (!es_valida_o_ninguna(salida) || !EXIGE(texto, longitud)) return;
    // The part alone: its bytes are not as many as its characters in every page.
    const size_t n = std::strlen(texto);
    if (primero > ultimo || primero >= n) return;
    const std::string trozo(texto + primero, std::min<size_t>(n - 1, ultimo) - primero + 1);
    vplan_longitud_trozo_texto_u(salida, de_ansi(trozo.c_str()).get(), 0, HASTA_EL_FINAL, alto, ancho, estilo,
                                 longitud);
}

void vplan_longitud_numerica(salida_t *salida, uint32_t numdigitos, double alto, double ancho, int32_t estilo,
                             double *longitud) {
    if (longitud != nullptr) *longitud = 0.;
    if (!es_valida_o_ninguna(salida) || !AFIRMA(numdigitos > 0) ||
        !AFIRMA_TEXTO(numdigitos < SITIO_DIGITOS, "digitos < sizeof(buffer)") || !exige_medible(alto, ancho) ||
        !EXIGE(longitud))
        return;
    for (char digito = '0'; digito < '9'; ++digito) {
        vnwchar numero[SITIO_DIGITOS] = {};
        std::fill_n(numero, numdigitos, static_cast<vnwchar>(digito));
        *longitud = std::fmax(*longitud, mide(salida, numero, 0, numdigitos - 1, alto, ancho, estilo));
    }
}

void vplan_longitudes_texto_numerico_u(salida_t *salida, const vnwchar *texto, double alto, double ancho,
                                       int32_t estilo, double *longitud_entera, double *longitud_decimal) {
    if (longitud_entera != nullptr) *longitud_entera = 0.;
    if (longitud_decimal != nullptr) *longitud_decimal = 0.;
    if (!es_valida_o_ninguna(salida) || !EXIGE(texto)) return;
    const std::basic_string_view<vnwchar> t(texto);
    const size_t pos = std::min(t.find(VNU('.')), t.size());
    if (!AFIRMA_TEXTO(pos == t.size() || t.rfind(VNU('.')) == pos, "pos == vnstdc_wcsrchr(texto, L'.')")) return;
    const auto entre = [&](size_t de, size_t a) {
        return mide(salida, texto, static_cast<uint32_t>(de), static_cast<uint32_t>(a - 1), alto, ancho, estilo);
    };
    if (longitud_entera != nullptr && pos > 0) *longitud_entera = entre(0, pos);
    if (longitud_decimal != nullptr && pos < t.size()) *longitud_decimal = entre(pos, t.size());
}

void vplan_longitud_texto_rodeado_u(salida_t *salida, const vnwchar *texto, double alto, double ancho, int32_t estilo,
                                    double *longitud, double *altura) {
    if (longitud != nullptr) *longitud = 0.;
    if (altura != nullptr) *altura = 0.;
    if (!es_valida_o_ninguna(salida) || !EXIGE(texto, longitud, altura) || !exige_medible(alto, ancho)) return;
    double l;
    vplan_longitud_texto_u(salida, texto, alto, ancho, estilo, &l);
    if (l >= LARGO_DE_CAJA * alto) {
        *longitud = l + HOLGURA_LARGO * alto;
        *altura = alto + HOLGURA_ALTO * alto;
    } else *longitud = *altura = HOLGURA_CIRCULO * 2. * std::hypot(alto / 2., l / 2.);
}

double vplan_proyecta_alto_2d(salida_t *salida, double alto) {
    return es_valida(salida) ? magnitud_y(compone_para_texto(salida, nullptr), alto) : 0.;
}
