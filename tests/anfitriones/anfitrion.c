/* A host in C whose frames nothing can be thrown through: it is compiled without unwind tables. Traps, call-backs under
   them, refused arguments and a size that nobody has. */
#include <nucleos/foundation/listas/arr.h>
#include <nucleos/foundation/sistema/vnmutex.h>
#include <nucleos/foundation/suelo/trapable.h>
#include <nucleos/foundation/suelo/vornspy.h>
#include <nucleos/persistence/vornsave.h>
#include <stdint.h>
#include <stdio.h>
#include <stdlib.h>
#include <string.h>

#define EN_TRAMPA(f, datos) trapable_nousar_recursivo_ejecuta_funcion_segura(f, datos, NULL)

static int faltas = 0, vueltas = 0;
static vnmutex *mutex;

static void debe(int bien, const char *que) {
    if (bien) return;
    fprintf(stderr, "does not hold: %s\n", que);
    ++faltas;
}

static void no_debe_llegar(const vninforme *informe, void *datos) {
    (void)datos;
    debe(0, informe->expresion != NULL ? informe->expresion : "a report outside of traps");
}

static void rechazada(void *datos) {
    (void)datos;
    vornsave_graba_double(1.0, NULL);
    ++vueltas;
}

static int compara_informando(const void *a, const void *b) {
    rechazada(NULL);
    return memcmp(a, b, 1);
}

static void visita_informando(void *elemento, void *datos) {
    rechazada(NULL);
    *(int *)datos += *(int *)elemento;
}

static void con_el_mutex(void *datos) {
    (void)datos;
    vnmutex_entra(mutex);
    rechazada(NULL);
    vnmutex_sal(mutex);
}

static void ordena_y_pasea(void *datos) {
    char letras[] = "nucleos";
    int numeros[] = {3, 1, 2};
    arrPuntero *a = arr_CreaPunteroConTipo(0);
    for (size_t i = 0; i < 3; ++i) arr_AppendPunteroConTipo(a, &numeros[i]);
    qsort(letras, 7, 1, compara_informando);
    debe(strcmp(letras, "celnosu") == 0, "the C library's sort ends");
    arr_QSortPunteroConTipo(a, compara_informando);
    arr_RecorreEstructuraSimpleConTipo(a, visita_informando, datos);
    arr_DestruyePunteroConTipo(&a);
}

static void otra_trampa(void *datos) {
    debe(EN_TRAMPA(rechazada, NULL) == FALSO, "the inner trap fails");
    debe(trapable_ha_fallado() == FALSO, "the outer one does not");
    *(int *)datos = 1;
}

static void acaba_bien(void *datos) { exit(*(int *)datos == 0 ? 0 : 1); }

int main(void) {
    int suma = 0, dentro = 0;
    error_interno_instala_receptor(no_debe_llegar, NULL);
    mutex = vnmutex_crea("anfitrion");
    debe(EN_TRAMPA(rechazada, NULL) == FALSO, "a refused argument fails");
    debe(strstr(trapable_texto_del_ultimo_fallo(), "(vornsave_datos) != NULL") != NULL, "the text of the report");
    debe(EN_TRAMPA(con_el_mutex, NULL) == FALSO, "a mutex inside");
    debe(vueltas == 2, "every call came back");
    debe(EN_TRAMPA(ordena_y_pasea, &suma) == FALSO, "call-backs that fail");
    debe(suma == 6, "every element was visited");
    debe(EN_TRAMPA(otra_trampa, &dentro) == CIERTO && dentro == 1, "nested traps");
    vnmutex_destruye(&mutex); /* one that is still held would be reported */
    vornspy_instala_memoria_agotada(acaba_bien, &faltas);
    vornspy_malloc(SIZE_MAX);
    return 1;
}
