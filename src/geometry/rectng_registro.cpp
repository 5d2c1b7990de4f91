#define VN_MODULO "rectng (NUCLEOS.DLL)"
#include "geometry/rectng_registro.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/numeros/vnmath.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/vornspy.h"
#include <cfloat>
#include <cmath>
#include <iterator>

using vn::logico;

namespace {

// The tolerances. What is not here is exact, or to that of the comparisons of vnmath.h, or given by the caller.
// Difference of the sides, in metres, up to which a strip that is nearly a square counts as one of either direction.
constexpr double MARGEN_DIRECCION = 0.0001;
// Distance of a centre of gravity from the middle of the section, in widths: a half is its border.
constexpr double MARGEN_CDG = 0.50001;
// Difference, in metres, up to which the two parts of a width make the whole.
constexpr double PRECISION_ANCHOS = 0.00001;

constexpr rectangulo_t REPUESTO = {DBL_MAX, DBL_MAX, -DBL_MAX, -DBL_MAX, FALSO};

bool menor_igual(double a, double b) { return ES_MENOR_IGUAL(a, b) == CIERTO; }
bool mayor_igual(double a, double b) { return ES_MAYOR_IGUAL(a, b) == CIERTO; }

rectangulo_t *nuevo(const rectangulo_t &r) {
    auto *rec = static_cast<rectangulo_t *>(vornspy_malloc(sizeof(rectangulo_t)));
    *rec = r;
    return rec;
}

void maximiza_punto(rectangulo_t &r, double x, double y) {
    if (std::isnan(x) || std::isnan(y)) return; // no later point would take its place: none compares as beyond it
    if (r.calculados == FALSO) {
        r = {x, y, x, y, CIERTO};
        return;
    }
    if (x < r.xmin) r.xmin = x;
    if (x > r.xmax) r.xmax = x;
    if (y < r.ymin) r.ymin = y;
    if (y > r.ymax) r.ymax = y;
}

// Written so that what is no number lies outside.
bool en_el_ensanchado(const rectangulo_t &r, double x, double y, double precision) {
    return r.calculados != FALSO && x + precision >= r.xmin && x - precision <= r.xmax && y + precision >= r.ymin &&
           y - precision <= r.ymax;
}

bool se_solapan(const rectangulo_t &a, const rectangulo_t &b) {
    return a.calculados != FALSO && b.calculados != FALSO && menor_igual(a.xmin, b.xmax) &&
           mayor_igual(a.xmax, b.xmin) && menor_igual(a.ymin, b.ymax) && mayor_igual(a.ymax, b.ymin);
}

// By boxes: a segment that passes by a corner counts.
bool solapa_con_limites(const rectangulo_t &r, double x1, double y1, double x2, double y2) {
    if (std::isnan(x1) || std::isnan(y1) || std::isnan(x2) || std::isnan(y2)) return false;
    return !(x1 < r.xmin && x2 < r.xmin) && !(x1 > r.xmax && x2 > r.xmax) && !(y1 < r.ymin && y2 < r.ymin) &&
           !(y1 > r.ymax && y2 > r.ymax);
}

double distancia_en_un_eje(double v, double min, double max) {
    AFIRMA(min < max);
    if (v < min) return min - v;
    return v > max ? v - max : 0.;
}

} // namespace

// ---------------------------------------------------------------- life

rectangulo_t *rec_Crea(void) { return nuevo(REPUESTO); }

rectangulo_t *rec_CreaDefinido(double ox, double oy, double ex, double ey) {
    const double ancho = ex - ox, alto = ey - oy;
    AFIRMA_TEXTO(ancho > 0. && alto > 0., "ancho >0. && alto > 0.");
    return nuevo({ox, oy, ex, ey, CIERTO});
}

// A square is a strip of either direction, with a margin for sides that were computed.
rectangulo_t *rec_CreaHorizontal(double ox, double oy, double ex, double ey) {
    AFIRMA_TEXTO(ex - ox + MARGEN_DIRECCION > ey - oy, "ex - ox + 0.0001 > ey - oy");
    return rec_CreaDefinido(ox, oy, ex, ey);
}

rectangulo_t *rec_CreaVertical(double ox, double oy, double ex, double ey) {
    AFIRMA_TEXTO(ex - ox - MARGEN_DIRECCION < ey - oy, "ex - ox - 0.0001 < ey - oy");
    return rec_CreaDefinido(ox, oy, ex, ey);
}

rectangulo_t *rec_Copia(const rectangulo_t *rec) { return AFIRMA_NO_NULO(rec) ? nuevo(*rec) : nullptr; }

void rec_Destruye(rectangulo_t **rec) { vornspy_free_pp(rec, sizeof(rectangulo_t)); }

void rec_Reset(rectangulo_t *rec) {
    if (AFIRMA_NO_NULO(rec)) *rec = REPUESTO;
}

void rec_Set(rectangulo_t *rec, double ox, double oy, double ex, double ey) {
    if (!AFIRMA_NO_NULO(rec)) return;
    AFIRMA(ex >= ox && ey >= oy);
    *rec = {ox, oy, ex, ey, CIERTO};
}

// ---------------------------------------------------------------- access

vnbool rec_Inicializado(const rectangulo_t *rec) {
    return AFIRMA_NO_NULO(rec) ? logico(rec->calculados != FALSO) : FALSO;
}

void rec_Get(const rectangulo_t *rec, double *xmin, double *ymin, double *xmax, double *ymax) {
    if (!AFIRMA_NO_NULO(rec)) return;
    AFIRMA(rec->calculados);
    const rectangulo_t r = *rec; // a copy: the outputs may be its own limits
    vn::numeros::da(xmin, ymin, {r.xmin, r.ymin});
    vn::numeros::da(xmax, ymax, {r.xmax, r.ymax});
}

void rec_get_limites(const rectangulo_t *rec, double *xmin, double *ymin, double *xmax, double *ymax) {
    if (EXIGE(rec, xmin, ymin, xmax, ymax)) rec_Get(rec, xmin, ymin, xmax, ymax);
}

double rec_Ancho(const rectangulo_t *rec) {
    if (!AFIRMA_NO_NULO(rec)) return 0.;
    AFIRMA(rec->calculados);
    return rec->xmax - rec->xmin;
}

double rec_Alto(const rectangulo_t *rec) {
    if (!AFIRMA_NO_NULO(rec)) return 0.;
    AFIRMA(rec->calculados);
    return rec->ymax - rec->ymin;
}

void rec_Centro(const rectangulo_t *rec, double *x, double *y) {
    if (!AFIRMA_NO_NULO(rec)) return;
    AFIRMA(rec->calculados);
    vn::numeros::da(x, y, {(rec->xmin + rec->xmax) / 2., (rec->ymin + rec->ymax) / 2.});
}

void rec_Mover(rectangulo_t *rec, double dx, double dy) {
    if (!AFIRMA_NO_NULO(rec)) return;
    AFIRMA(rec->calculados);
    rec->xmin += dx;
    rec->xmax += dx;
    rec->ymin += dy;
    rec->ymax += dy;
}

// ---------------------------------------------------------------- growth

void rec_MaximizaPunto(rectangulo_t *rec, double x, double y) {
    if (AFIRMA_NO_NULO(rec)) maximiza_punto(*rec, x, y);
}

void rec_MaximizaY(rectangulo_t *rec, double y) {
    if (!AFIRMA_NO_NULO(rec)) return;
    if (!AFIRMA(rec->calculados)) return;
    if (y < rec->ymin) rec->ymin = y;
    if (y > rec->ymax) rec->ymax = y;
}

void rec_MaximizaRect(rectangulo_t *rec1, const rectangulo_t *rec2) {
    if (!EXIGE(rec1, rec2)) return;
    if (!AFIRMA(rec2->calculados)) return;
    // Two opposite corners hold all of it.
    maximiza_punto(*rec1, rec2->xmin, rec2->ymin);
    maximiza_punto(*rec1, rec2->xmax, rec2->ymax);
}

void rec_IncrementaAnchos(rectangulo_t *rec, double incremento_a_cada_lado) {
    if (!AFIRMA_NO_NULO(rec)) return;
    AFIRMA(incremento_a_cada_lado >= 0.);
    rec->xmin -= incremento_a_cada_lado;
    rec->ymin -= incremento_a_cada_lado;
    rec->xmax += incremento_a_cada_lado;
    rec->ymax += incremento_a_cada_lado;
}

void rec_RecortaRect(rectangulo_t *rec1, const rectangulo_t *rec2) {
    if (!EXIGE(rec1, rec2)) return;
    AFIRMA(rec1->calculados);
    AFIRMA(rec2->calculados);
    if (!se_solapan(*rec1, *rec2)) {
        *rec1 = REPUESTO;
        return;
    }
    if (rec2->xmin > rec1->xmin) rec1->xmin = rec2->xmin;
    if (rec2->ymin > rec1->ymin) rec1->ymin = rec2->ymin;
    if (rec2->xmax < rec1->xmax) rec1->xmax = rec2->xmax;
    if (rec2->ymax < rec1->ymax) rec1->ymax = rec2->ymax;
    // The tolerance of the test lets pass what is hardly apart; its limits come out inverted.
    AFIRMA(rec1->xmin <= rec1->xmax && rec1->ymin <= rec1->ymax);
}

// ---------------------------------------------------------------- tests

vnbool rec_ClipX(const rectangulo_t *rec, double x) {
    if (!AFIRMA_NO_NULO(rec) || rec->calculados == FALSO) return FALSO;
    return logico(menor_igual(rec->xmin, x) && mayor_igual(rec->xmax, x));
}

vnbool rec_ClipPunto(const rectangulo_t *rec, double x, double y) {
    return logico(rec_ClipX(rec, x) == CIERTO && menor_igual(rec->ymin, y) && mayor_igual(rec->ymax, y));
}

vnbool rec_ClipPunto_ConPrecision(const rectangulo_t *rec, double x, double y, double precision) {
    return logico(AFIRMA_NO_NULO(rec) && en_el_ensanchado(*rec, x, y, precision));
}

vnbool rectng_punto_esta_en_borde_con_precision(const rectangulo_t *rec, double x, double y, double precision) {
    if (!AFIRMA_NO_NULO(rec) || !en_el_ensanchado(*rec, x, y, precision)) return FALSO;
    // Not within the border: neither outside of it nor well inside.
    const bool dentro = x - precision > rec->xmin && x + precision < rec->xmax && y - precision > rec->ymin &&
                        y + precision < rec->ymax;
    return logico(!dentro);
}

vnbool rec_ClipRectangulo(const rectangulo_t *rec1, const rectangulo_t *rec2) {
    return logico(EXIGE(rec1, rec2) && se_solapan(*rec1, *rec2));
}

uint32_t rec_RelacionaRectangulos(const rectangulo_t *rec1, const rectangulo_t *rec2) {
    if (!EXIGE(rec1, rec2) || !se_solapan(*rec1, *rec2)) return 0;
    const bool dentro = mayor_igual(rec2->xmin, rec1->xmin) && menor_igual(rec2->xmax, rec1->xmax) &&
                        mayor_igual(rec2->ymin, rec1->ymin) && menor_igual(rec2->ymax, rec1->ymax);
    return dentro ? 2 : 1;
}

vnbool rec_ExisteSolapeConLimites(const rectangulo_t *rec, double x1, double y1, double x2, double y2) {
    if (!AFIRMA_NO_NULO(rec)) return FALSO;
    AFIRMA_TEXTO(rec->calculados != FALSO, "rec->calculados == CIERTO");
    return logico(solapa_con_limites(*rec, x1, y1, x2, y2));
}

vnbool rec_ExisteSolapeConSegmento(const rectangulo_t *rec, double x1, double y1, double x2, double y2,
                                   double tolerancia) {
    if (!AFIRMA_NO_NULO(rec)) return FALSO;
    AFIRMA_TEXTO(rec->calculados != FALSO, "rec->calculados == CIERTO");
    const rectangulo_t r = {rec->xmin - tolerancia, rec->ymin - tolerancia, rec->xmax + tolerancia,
                            rec->ymax + tolerancia, CIERTO};
    return logico(solapa_con_limites(r, x1, y1, x2, y2));
}

vnbool rec_RectanguloVertical(const rectangulo_t *rec) {
    if (!AFIRMA_NO_NULO(rec)) return FALSO;
    const double ancho = rec->xmax - rec->xmin, alto = rec->ymax - rec->ymin;
    AFIRMA(ancho > 0.);
    AFIRMA(alto > 0.);
    return logico(ancho < alto);
}

vnbool rec_RectanguloCentradoOrigen(const rectangulo_t *rec, double tolerancia) {
    if (!AFIRMA_NO_NULO(rec)) return FALSO;
    // ES_CERO_PREC would report a negative one again, for each coordinate.
    const double t = AFIRMA(tolerancia >= 0.) ? tolerancia : 0.;
    double x = 0., y = 0.;
    rec_Centro(rec, &x, &y);
    return logico(ES_CERO_PREC(x, t) == CIERTO && ES_CERO_PREC(y, t) == CIERTO);
}

double rec_DistanciaPuntoARectangulo(const rectangulo_t *rec, double x, double y) {
    if (!AFIRMA_NO_NULO(rec)) return 0.;
    const double dx = distancia_en_un_eje(x, rec->xmin, rec->xmax), dy = distancia_en_un_eje(y, rec->ymin, rec->ymax);
    return RAIZ(dx * dx + dy * dy);
}

// ---------------------------------------------------------------- positions of a section

namespace {

// Column and row of each position: -1 left or low, 1 right or high, 0 middle.
struct lugar {
    int8_t columna, fila;
};
constexpr lugar LUGARES[] = {{0, 0}, {-1, -1}, {1, -1}, {-1, 1}, {1, 1}, {0, -1}, {1, 0}, {0, 1}, {-1, 0}};
static_assert(std::size(LUGARES) == 9);

int lado(double v, double tolerancia) {
    if (v < -tolerancia) return -1;
    return v >= tolerancia ? 1 : 0;
}

// Before and after the fixed point.
struct partes {
    double inicial, final;
};
partes reparte(int lado, double ancho, double cdg) {
    if (lado < 0) return {0., ancho};
    if (lado > 0) return {ancho, 0.};
    return {ancho / 2. + cdg, ancho / 2. - cdg};
}

} // namespace

uint32_t rectng_calculaPosicionMasCercana(double x, double y, double tolerancia) {
    const int columna = lado(x, tolerancia), fila = lado(y, tolerancia);
    uint32_t posicion = 0;
    // Every pair of column and row has its position, so that the search ends.
    while (LUGARES[posicion].columna != columna || LUGARES[posicion].fila != fila) ++posicion;
    return posicion;
}

void rectng_calcula_coordenadas_posicion(uint32_t posicion, double izquierda, double derecha, double abajo,
                                         double arriba, double *coord_x, double *coord_y) {
    if (!EXIGE(coord_x, coord_y)) return;
    if (posicion >= std::size(LUGARES)) AFIRMA_DEFECTO(), posicion = 0;
    const auto [columna, fila] = LUGARES[posicion];
    *coord_x = columna == 0 ? 0. : columna < 0 ? -izquierda : derecha;
    *coord_y = fila == 0 ? 0. : fila < 0 ? -abajo : arriba;
}

void rectng_AnchosDesdePuntoFijo(double ancho_y, double ancho_z, double coord_y_cdg, double coord_z_cdg,
                                 uint32_t posicion, double *ancho_y_inicial, double *ancho_z_inicial,
                                 double *ancho_y_final, double *ancho_z_final) {
    if (!EXIGE(ancho_y_inicial, ancho_z_inicial, ancho_y_final, ancho_z_final)) return;
    // Zeros first: what follows may report and leave.
    *ancho_y_inicial = *ancho_z_inicial = *ancho_y_final = *ancho_z_final = 0.;
    AFIRMA_TEXTO(std::fabs(coord_y_cdg) < MARGEN_CDG * ancho_y, "vnstdc_fabs(coord_y_cdg) < 0.50001 * ancho_y");
    AFIRMA_TEXTO(std::fabs(coord_z_cdg) < MARGEN_CDG * ancho_z, "vnstdc_fabs(coord_z_cdg) < 0.50001 * ancho_z");
    if (posicion >= std::size(LUGARES)) {
        AFIRMA_DEFECTO();
        return;
    }
    const partes y = reparte(LUGARES[posicion].columna, ancho_y, coord_y_cdg);
    const partes z = reparte(LUGARES[posicion].fila, ancho_z, coord_z_cdg);
    AFIRMA_TEXTO(std::fabs(y.inicial + y.final - ancho_y) < PRECISION_ANCHOS,
                 "vnstdc_fabs(*ancho_y_inicial + *ancho_y_final - ancho_y) < 0.00001");
    AFIRMA_TEXTO(std::fabs(z.inicial + z.final - ancho_z) < PRECISION_ANCHOS,
                 "vnstdc_fabs(*ancho_z_inicial + *ancho_z_final - ancho_z) < 0.00001");
    *ancho_y_inicial = y.inicial;
    *ancho_z_inicial = z.inicial;
    *ancho_y_final = y.final;
    *ancho_z_final = z.final;
}
