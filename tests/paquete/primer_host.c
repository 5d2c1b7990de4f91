#include "foundation/error_interno.h"
#include "foundation/trapable.h"
#include "foundation/vornspy.h"
#include <stdio.h>

typedef struct viga { double luz, canto; } viga;

static void cuenta(const vninforme *informe, void *datos) {
    printf("reported: %s\n", informe->expresion);
    ++*(int *)datos;
}
static void sin_canto(viga *v) {
    if (v->canto <= 0.0) error_interno("v->canto > 0.0", VN_AQUI, 0);
    v->luz = 0.0; /* not reached: the report goes to the trap */
}

int main(void) {
    int informes = 0;
    error_interno_instala_receptor(cuenta, &informes);
    viga *v = vornspy_calloc(1, sizeof *v);
    v->luz = 6.0;
    if (trapable_ejecuta_funcion_segura(viga, sin_canto, v, NULL) == FALSO)
        printf("trapped: %s", trapable_texto_del_ultimo_fallo());
    vornspy_nousar_free_pp(NULL, 1); /* a fault: reported, and the program goes on */
    printf("span %.1f m, %d report\n", v->luz, informes);
    vornspy_free_pp(&v, sizeof *v);
    return informes == 1 && v == NULL && vornspy_bloques_vivos(NULL) == 0 ? 0 : 1;
}
