/* The stack of tables of layers of an output: a group of layers has a table of its own while it is drawn. */
#ifndef VN_GESTCAPA_H
#define VN_GESTCAPA_H

#include "../foundation/suelo/tipos.h"

typedef struct gestcapa gestcapa;

VN_C_INICIO

/** New stack with one table, which has no layers. */
gestcapa *gestcapa_crea(void);
/** Frees it and leaves `*gestionCapas` null. Groups still open are reported at class 1. */
void gestcapa_destruye(gestcapa **gestionCapas);
/** Begins a group: the current table is kept, and a new one with its current attributes and no layers takes its
    place. */
void gestcapa_guardar_capas(gestcapa *gestionCapas);
/** Ends a group: the table of before is current again, and that of the group is freed. No group is reported. */
void gestcapa_fin_grupos_capas(gestcapa *gestionCapas);

VN_C_FIN

#endif
