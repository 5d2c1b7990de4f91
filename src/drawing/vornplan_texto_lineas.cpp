#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_texto_lineas.h"
#include "drawing/caja_texto_priv.h"
#include "drawing/mascaras_priv.h"
#include "drawing/texto_priv.h"
#include "drawing/vornplan_caja_texto.h"
#include "drawing/vornplan_lineas.h"
#include "drawing/vornplan_texto.h"
#include "drawing/vornplan_texto_longitud.h"
#include "foundation/sistema/vnstdc_tiempo.h"
#include <cmath>
#include <string_view>
#include <vector>

using namespace vn;

namespace {

using cadena = std::basic_string<vnwchar>;

constexpr vista_u FIN_DE_LINEA = VNU("\\P");

// The words of a text, and the ends of line in it as words of their own.
std::vector<vista_u> palabras_de(vista_u texto) {
    std::vector<vista_u> r;
    for (size_t i = 0; i < texto.size();) {
        const size_t blanco = std::min(texto.find(VNU(' '), i), texto.size());
        vista_u palabra = texto.substr(i, blanco - i);
        i = blanco + 1;
        while (!palabra.empty()) {
            const size_t corte = palabra.find(FIN_DE_LINEA);
            const size_t n = corte == 0 ? FIN_DE_LINEA.size() : std::min(corte, palabra.size());
            r.push_back(palabra.substr(0, n));
            palabra.remove_prefix(n);
        }
    }
    return r;
}

// How many times its own length a text is along a direction, by its corners; about the origin, where they are exact.
double estira(uint8_t justificacion, double coseno, double seno) {
    Punto2D p, q, otra;
    vplan_obtener_4_esquinas_texto(1., 0., 0., 1., justificacion, seno, coseno, &p.x, &p.y, &q.x, &q.y, &otra.x,
                                   &otra.y, &otra.x, &otra.y);
    return std::hypot(q.x - p.x, q.y - p.y);
}

struct linea {
    cadena texto;
    double longitud = 0.;
};
// What the lines of a text are made by.
struct parrafo {
    salida_t *salida;
    double alto, ancho, max_longitud, estirado;
    bool blanco_delante; // of a word that does not begin its line; else a blank behind each

    double longitud(const cadena &t) const {
        double l;
        vplan_longitud_texto_u(salida, t.c_str(), alto, ancho, 0, &l);
        return l * estirado;
    }
    cadena con_blanco(vista_u palabra, bool empieza) const {
        cadena t(palabra);
        if (!blanco_delante) t += VNU(' ');
        else if (!empieza) t.insert(t.begin(), VNU(' '));
        return t;
    }
    // None if one word alone is too long.
    std::vector<linea> lineas(vista_u texto) const {
        std::vector<linea> r;
        linea l;
        const auto acaba = [&] { r.push_back(std::exchange(l, {})); };
        for (const vista_u palabra : palabras_de(texto)) {
            if (palabra == FIN_DE_LINEA) {
                acaba();
                continue;
            }
            cadena t = con_blanco(palabra, l.texto.empty());
            double suya = longitud(t);
            if (suya > max_longitud) return {};
            if (l.longitud + suya > max_longitud) {
                acaba();
                if (blanco_delante) suya = longitud(t = cadena(palabra));
            }
            l.texto += t;
            l.longitud += suya;
        }
        if (!l.texto.empty()) acaba();
        return r;
    }
};

// How much lower the first line is, in parts of the whole.
constexpr double BAJA[] = {1., .5, 0., 0., 0.};

void dibuja_lineas(salida_t *salida, const rotulo &r, Punto3D ancla, double max_longitud) {
    if (!exige_medible(r.alto, r.ancho)) return; // once, not at each word
    const banda *const b = banda_si_hay(r.justificacion);
    const double estirado = estira(r.justificacion, r.coseno, r.seno);
    if (b == nullptr) return;
    const bool blanco_delante = vnstdc_getenv("TEXTOS_MULTILINEA_VORNPLAN") != nullptr;
    const parrafo p{salida,        r.alto, r.ancho, max_longitud, blanco_delante && r.seno == 0. ? 1. : estirado,
                    blanco_delante};
    const std::vector<linea> lineas = p.lineas(r.texto);
    const double primera = BAJA[b - BANDAS] * static_cast<double>(lineas.size());
    rotulo una = r;
    for (size_t i = 0; i < lineas.size(); ++i) {
        una.texto = lineas[i].texto.c_str();
        const double baja = (primera + static_cast<double>(i)) * r.alto;
        dibuja_texto(salida, una, {ancla.x, ancla.y - baja, ancla.z}, lineas[i].longitud, 0.);
    }
}

// Whether a text has a mask; its brackets that do not pair are reported.
mascaras busca_mascaras(vista_u texto) {
    return recorre_mascaras(
        texto,
        [](ptrdiff_t primero, ptrdiff_t ultimo) {
            return AFIRMA_TEXTO((primero == -1 && ultimo == -1) || (primero != -1 && ultimo > primero),
                                "primero == -1 && ultimo == -1 || primero != -1 && ultimo > primero");
        },
        [](vnwchar) {}, [](vista_u) { return true; });
}

} // namespace

void vplan_escr_texto_en_multiples_lineas_u(salida_t *salida, const vnwchar *texto, double x, double y,
                                            uint8_t justificacion, double alto, double ancho, double max_longitud,
                                            double coseno, double seno) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    dibuja_lineas(salida, {texto, justificacion, alto, ancho, coseno, seno}, {x, y, z_del_plano(*salida)},
                  max_longitud);
}
void vplan_escr_texto_en_multiples_lineas3D_u(salida_t *salida, const vnwchar *texto, double x, double y, double z,
                                              uint8_t justificacion, double alto, double ancho, double max_longitud,
                                              double coseno, double seno) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    dibuja_lineas(salida, {texto, justificacion, alto, ancho, coseno, seno}, {x, y, z}, max_longitud);
}

void vplan_escr_texto_tabla_u(salida_t *salida, const vnwchar *texto, double x, double y, uint8_t justificacion,
                              double alto, double ancho, double coseno, double seno, int32_t estilo) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    const mascaras m = estilo == -1 ? mascaras::alguna : busca_mascaras(texto);
    if (m == mascaras::alguna)
        vplan_escr_texto_con_longit_u(salida, texto, x, y, justificacion, alto, ancho, coseno, seno,
                                      MIDE_EL_DISPOSITIVO);
    else if (m == mascaras::ninguna)
        vplan_escr_texto_u(salida, texto, x, y, justificacion, alto, ancho, coseno, seno, estilo);
}
void vplan_escr_texto_u_tabla_con_orientacion_correcta_para_texto(salida_t *salida, const vnwchar *texto, double x,
                                                                  double y, uint8_t justificacion, double alto,
                                                                  double ancho, double coseno, double seno,
                                                                  int32_t estilo) {
    if (!es_valida(salida) || !EXIGE(texto)) return;
    rotulo r{texto, justificacion, alto, ancho, coseno, seno};
    if (endereza(r))
        vplan_escr_texto_tabla_u(salida, texto, x, y, r.justificacion, alto, ancho, r.coseno, r.seno, estilo);
}

void vplan_escr_texto_con_longit_con_lineas_u(salida_t *salida, const vnwchar *texto, double x, double y,
                                              uint8_t justificacion, double alto, double ancho, double coseno,
                                              double seno, double longitud, vnbool linea_superior,
                                              vnbool linea_inferior) {
    if (!es_valida(salida) || !EXIGE(texto) || !AFIRMA_LOGICO(linea_superior) || !AFIRMA_LOGICO(linea_inferior)) return;
    const rotulo r{texto, justificacion, alto, ancho, coseno, seno};
    dibuja_texto(salida, r, {x, y, z_del_plano(*salida)}, longitud, 0.);
    if (longitud == MIDE_EL_DISPOSITIVO) longitud = mide_antes_de_dibujar(salida, r, 0);
    const banda *const b = banda_si_hay(justificacion);
    if (b == nullptr) return static_cast<void>(AFIRMA_DEFECTO());
    const double medio = LADOS[columna_de(justificacion)] * longitud / 2., izquierda = medio - longitud / 2.,
                 derecha = medio + longitud / 2.;
    const auto dibuja = [&](double altura) {
        const Punto2D p{x - altura * alto * seno, y + altura * alto * coseno};
        vplan_escr_linea(salida, p.x + izquierda * coseno, p.y + izquierda * seno, p.x + derecha * coseno,
                         p.y + derecha * seno);
    };
    if (linea_superior == CIERTO) dibuja(b->linea_superior);
    if (linea_inferior == CIERTO) dibuja(b->linea_inferior);
}
