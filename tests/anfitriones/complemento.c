/* A plug-in that its host unloads: what it has left on the heap keeps its name, and what it registered still runs. */
#define VN_MODULO "complemento (COMPLEMENTO.DLL)"
#include <nucleos/foundation/suelo/vnatexit.h>
#include <nucleos/foundation/suelo/vornspy.h>
#include <stdio.h>

#define SALE __attribute__((visibility("default")))

SALE void *deja_un_bloque(void);
SALE void registra(void);

static void al_final(vnparametros *parametros) {
    (void)parametros;
    fputs("complemento: final\n", stderr);
}

void *deja_un_bloque(void) { return vornspy_malloc(10); }
void registra(void) { atexit_anade(al_final, NULL); }
