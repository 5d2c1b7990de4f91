#include <nucleos/colour/idcolor.h>
#include <nucleos/drawing/vornplan.h>
#include <nucleos/foundation/listas/arr.h>
#include <nucleos/foundation/suelo/error_interno.h>
#include <nucleos/foundation/suelo/vornspy.h>
#include <stdio.h>

/* The device's datum: the first argument of all its functions. */
typedef struct papel {
    int lineas, poligonos, capas;
    double xmax;
    uint32_t rgb; /* red in the lowest byte */
} papel;

static void linea(void *item, double x1, double y1, double x2, double y2) {
    papel *p = item;
    ++p->lineas;
    if (x2 > p->xmax) p->xmax = x2;
    printf("line %g,%g %g,%g in %06X\n", x1, y1, x2, y2, (unsigned)p->rgb);
}
static void polilinea(void *item, const arrPunto2D *puntos) {
    const Punto2D *q = arr_GetBufferConstPunto2D(puntos);
    for (uint32_t i = 1; i < arr_NumElemsPunto2D(puntos); ++i) linea(item, q[i - 1].x, q[i - 1].y, q[i].x, q[i].y);
}
static void poligono(void *item, const arrPunto2D *puntos, vnbool relleno) {
    papel *p = item;
    ++p->poligonos;
    printf("polygon of %u, %s\n", (unsigned)arr_NumElemsPunto2D(puntos), relleno == FALSO ? "outline" : "filled");
}
static void color(void *item, const idcolor *c) { ((papel *)item)->rgb = idcolor_color_rgb_segun_fondo(c, 0); }
static uint8_t capa(void *item, uint8_t numero, const vnwchar *nombre, uint32_t pluma, double grosor_mm,
                    const idcolor *c, uint8_t tipo_linea, const vnwchar *tipo_linea_definida, uint8_t extra) {
    papel *p = item;
    (void)nombre, (void)pluma, (void)grosor_mm, (void)c, (void)tipo_linea, (void)tipo_linea_definida, (void)extra;
    return numero != VPLAN_NOCAMBIAR ? numero : (uint8_t)++p->capas;
}
static void destruye(papel **p) {
    printf("closed after %d lines\n", (*p)->lineas);
    vornspy_free_pp(p, sizeof(papel));
}

int main(void) {
    const vplan_funciones funciones = {.func_DrawLinea = linea,
                                       .func_DrawPolilinea = polilinea,
                                       .func_DrawPoligono = poligono,
                                       .func_set_color = color,
                                       .func_define_capa_u = capa};
    papel *item = vornspy_calloc(1, sizeof(papel)), *const datos = item;
    salida_t *hoja = vplan_abre_dispositivo(papel, 0, NULL, &item, "papel", destruye, &funciones);
    vplan_append_escala(hoja, 0.01, 0.01); /* the sheet is at 1:100 */

    /* A stage before it: it draws nothing itself, and what it is told goes on. */
    const vplan_funciones ninguna = {0};
    papel *otro = vornspy_calloc(1, sizeof(papel));
    salida_t *vista = vplan_abre_dispositivo(papel, 0, hoja, &otro, "vista", destruye, &ninguna);

    vplan_escr_capadxf(vista, vplan_define_capa_dxf_u(vista, VNU("walls"), 1, VPLAN_PORCAPA, 0));
    vornplan_escr_color_rgb(vista, 0x0000FF); /* red */
    vplan_append_desplaza_origen_coordenadas(vista, 100, 0);
    vplan_escr_linea(vista, 0, 0, 500, 0);
    vplan_bloquea_color(vista, CIERTO);       /* what follows is in red, whatever it asks for */
    vornplan_escr_color_rgb(vista, 0xFF0000); /* nothing */
    vplan_escr_rectangulo(vista, 0, 0, 200, 100);
    vplan_bloquea_color(vista, FALSO);
    vplan_escr_circulo_relleno(vista, 0, 0, 50); /* no circles here: a polygon */
    vplan_desapila_transformacion(vista);

    const int bien = datos->lineas == 5 && datos->poligonos == 1 && datos->xmax == 6 && datos->rgb == 0x0000FF;
    vplan_cierra(&vista); /* those before are closed before their destination */
    vplan_desapila_transformacion(hoja);
    vplan_cierra(&hoja);
    return bien && error_interno_numero_de_informes() == 0 ? 0 : 1;
}
