/* Rectangles one by one: life, access, growth, tests, positions of a section. What
   the families of rectng.h share is told there. */
#ifndef VN_RECTNG_REGISTRO_H
#define VN_RECTNG_REGISTRO_H

#include "../foundation/suelo/tipos.h"

/** A rectangle. With `calculados`, xmin <= xmax and ymin <= ymax; reset, they are the extremes of the type,
    inverted. */
typedef struct rectangulo_t {
    double xmin, ymin, xmax, ymax;
    vnbool calculados; /**< the limits are a real extent */
} rectangulo_t;

VN_C_INICIO

/** New reset rectangle. */
rectangulo_t *rec_Crea(void);
/** New rectangle from (ox, oy) to (ex, ey); its width and height are to be above 0. */
rectangulo_t *rec_CreaDefinido(double ox, double oy, double ex, double ey);
/** The same for a horizontal and for a vertical strip; a square, to 0.0001, is either. */
rectangulo_t *rec_CreaHorizontal(double ox, double oy, double ex, double ey);
rectangulo_t *rec_CreaVertical(double ox, double oy, double ex, double ey);
/** New copy, reset if `rec` is. */
rectangulo_t *rec_Copia(const rectangulo_t *rec);
/** Frees the rectangle and leaves `*rec` null. */
void rec_Destruye(rectangulo_t **rec);
/** Takes the rectangle back to having no extent. */
void rec_Reset(rectangulo_t *rec);
/** Sets the limits, ex >= ox and ey >= oy: a rectangle of no size is allowed here. */
void rec_Set(rectangulo_t *rec, double ox, double oy, double ex, double ey);

/** Whether the rectangle has an extent. */
vnbool rec_Inicializado(const rectangulo_t *rec);
/** The limits of a calculated rectangle, each if asked for. */
void rec_Get(const rectangulo_t *rec, VN_SALIDA_OPC double *xmin, VN_SALIDA_OPC double *ymin,
             VN_SALIDA_OPC double *xmax, VN_SALIDA_OPC double *ymax);
/** The limits of a calculated rectangle, all. */
void rec_get_limites(const rectangulo_t *rec, VN_SALIDA double *xmin, VN_SALIDA double *ymin, VN_SALIDA double *xmax,
                     VN_SALIDA double *ymax);
/** Width and height of a calculated rectangle. */
double rec_Ancho(const rectangulo_t *rec);
double rec_Alto(const rectangulo_t *rec);
/** Centre of a calculated rectangle, each coordinate if asked for. */
void rec_Centro(const rectangulo_t *rec, VN_SALIDA_OPC double *x, VN_SALIDA_OPC double *y);
/** Moves a calculated rectangle. */
void rec_Mover(rectangulo_t *rec, double dx, double dy);
/** Widens the rectangle to hold (x, y); a reset one becomes that point. What is not a number is passed over. */
void rec_MaximizaPunto(rectangulo_t *rec, double x, double y);
/** Widens a calculated rectangle in y only. A reset one cannot be begun so: it is reported, and stays. */
void rec_MaximizaY(rectangulo_t *rec, double y);
/** Widens `rec1`, which may be reset, to hold `rec2`, which is calculated; a reset one is reported, and adds
    nothing. */
void rec_MaximizaRect(rectangulo_t *rec1, const rectangulo_t *rec2);
/** Moves each side outwards by the amount, which is to be at least 0. */
void rec_IncrementaAnchos(rectangulo_t *rec, double incremento_a_cada_lado);
/** Cuts `rec1` down to what it has in common with `rec2`, both calculated; what has nothing in common
    (rec_ClipRectangulo) is reset. Those apart by no more than the tolerance of that test leave limits that are
    inverted: reported. */
void rec_RecortaRect(rectangulo_t *rec1, const rectangulo_t *rec2);

/** Whether x, or the point, lies in the rectangle, to 1e-6; FALSO if that is reset. */
vnbool rec_ClipX(const rectangulo_t *rec, double x);
vnbool rec_ClipPunto(const rectangulo_t *rec, double x, double y);
/** Whether the point lies in the rectangle widened by `precision`; FALSO if that is reset. */
vnbool rec_ClipPunto_ConPrecision(const rectangulo_t *rec, double x, double y, double precision);
/** Whether the point lies within `precision` of the rectangle's border, inside or outside. */
vnbool rectng_punto_esta_en_borde_con_precision(const rectangulo_t *rec, double x, double y, double precision);
/** Whether two rectangles overlap or touch, to 1e-6; FALSO if one is reset. */
vnbool rec_ClipRectangulo(const rectangulo_t *rec1, const rectangulo_t *rec2);
/** 0: they do not overlap; 2: `rec2` lies inside `rec1`, to 1e-6; 1: otherwise, `rec1` inside `rec2` too. */
uint32_t rec_RelacionaRectangulos(const rectangulo_t *rec1, const rectangulo_t *rec2);
/** Whether the box of two opposite corners and a calculated rectangle overlap or touch, exactly. */
vnbool rec_ExisteSolapeConLimites(const rectangulo_t *rec, double x1, double y1, double x2, double y2);
/** The same for the box of a segment and the rectangle widened by `tolerancia`: CIERTO too for one that passes by a
    corner. */
vnbool rec_ExisteSolapeConSegmento(const rectangulo_t *rec, double x1, double y1, double x2, double y2,
                                   double tolerancia);
/** Whether the rectangle is higher than wide; a square is not. Both are to be above 0. */
vnbool rec_RectanguloVertical(const rectangulo_t *rec);
/** Whether the centre is the origin, each coordinate to `tolerancia`, which is to be at least 0. */
vnbool rec_RectanguloCentradoOrigen(const rectangulo_t *rec, double tolerancia);
/** Distance from the point to the rectangle, 0 inside. A rectangle without width or height is reported. */
double rec_DistanciaPuntoARectangulo(const rectangulo_t *rec, double x, double y);

/** The position of a section that the point, from the section's centre, is nearest to: 0 centre, 1 low left, 2 low
    right, 3 high left, 4 high right, 5 low middle, 6 right middle, 7 high middle, 8 left middle. A coordinate is middle
    from -tolerancia, included, to tolerancia, excluded. */
uint32_t rectng_calculaPosicionMasCercana(double x, double y, double tolerancia);
/** The place of a position, the four distances being measured from the centre. Another position is reported and gives
    the centre. */
void rectng_calcula_coordenadas_posicion(VN_RANGO(0, 8) uint32_t posicion, double izquierda, double derecha,
                                         double abajo, double arriba, VN_SALIDA double *coord_x,
                                         VN_SALIDA double *coord_y);
/** Divides the widths of a section on either side of its fixed point: all after it at a left or low position, all
    before it at a right or high one, by the centre of gravity in the middle. The centre of gravity is to lie within the
    section. Another position is reported and gives zeros. */
void rectng_AnchosDesdePuntoFijo(double ancho_y, double ancho_z, double coord_y_cdg, double coord_z_cdg,
                                 VN_RANGO(0, 8) uint32_t posicion, VN_SALIDA double *ancho_y_inicial,
                                 VN_SALIDA double *ancho_z_inicial, VN_SALIDA double *ancho_y_final,
                                 VN_SALIDA double *ancho_z_final);

VN_C_FIN

#endif
