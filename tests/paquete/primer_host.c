#include <nucleos/foundation/suelo/error_interno.h>
#include <nucleos/persistence/vornbin.h>
#include <nucleos/persistence/vornsave.h>
#include <nucleos/units/convers.h>
#include <nucleos/units/vornconf.h>
#include <stdio.h>

int main(void) {
    vornspy_informa_de_fugas_al_salir(CIERTO); /* what is never freed is told at the end, on the error stream */
    const vnwchar *obra = VNU("puente.obra");
    vnfichero *f = vornbin_abre_fichero_para_escritura_u(obra, NULL);
    vornsave *s = vornsave_registra_bin(f);
    vornsave_graba_inicio_seccion("vigas", s); /* a reader may pass over what it does not know */
    vornsave_graba_double(6.5, s);             /* span, m */
    vornsave_graba_cadena("dintel", s);
    vornsave_graba_fin_seccion("vigas", s);
    vornsave_graba_double(1.0, NULL); /* a fault: reported on the error stream, and the program goes on */
    vornsave_libera(&s);
    if (vornbin_cierra_fichero_abierto_para_escritura_u(f, obra, NULL) == FALSO) return 1; /* the old file stays */

    f = vornbin_abre_fichero_para_lectura_unicode(obra, NULL);
    s = vornsave_registra_bin(f);
    char *seccion = vornsave_lee_seccion(s);
    const double luz = vornsave_lee_double(s);
    char *nombre = vornsave_lee_cadena(s);
    vornsave_lee_final_seccion(seccion, s);
    vornconf_Internacional_set_sistema_unidades(VORNCONF_SU_IMPERIAL);
    char *en_pies = convers_texto(luz, CNV_LONGITUD);
    printf("%s: %s, %.1f m, %s\n", seccion, nombre, luz, en_pies);
    vornspy_free_pp(&en_pies, 1); /* what comes back without const is the caller's */
    vornspy_free_pp(&seccion, 1);
    vornspy_free_pp(&nombre, 1);
    vornsave_libera(&s);
    vornbin_cierra_fichero_abierto_para_lectura_u(f, obra, NULL);
    return luz == 6.5 && error_interno_numero_de_informes() == 1 ? 0 : 1;
}
