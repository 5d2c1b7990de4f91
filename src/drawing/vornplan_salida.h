/* A drawing output: opening and closing it, its kind and its device's datum, what it asks its device.
   vornplan_tipos.h tells what an output is.

   Kinds (`tipo`): 0 screen, 1 limits, 2 plans, 4 image, 6 DXF in space, 9 buffer of a screen, 12 PDF, 13 layout; 3, 5,
   7, 8, 10 and 11 are the host's. An output opened on another takes its kind. */
#ifndef VN_VORNPLAN_SALIDA_H
#define VN_VORNPLAN_SALIDA_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** Opens an output over a device. `salida_destino`: the next of the chain, which must outlive this one; kind 11 cannot
    be one. `*item`, the device's datum and the first argument of all its functions, is taken over and left null;
    `func_destruye_datos_dispositivo` frees it at the close. `tipo_datos_dispositivo` names the device (the text is
    copied): the installers ask for the same. Returns the new output, which vplan_cierra closes; the functions of the
    plane and of space are installed afterwards. */
salida_t *vplan_nousar_abre_dispositivo_generico(
    uint32_t tipo, VN_OPC salida_t *salida_destino, VN_CONSUME void **item, const char *tipo_datos_dispositivo,
    VN_OPC vnfunc_destruye func_destruye_datos_dispositivo VPLAN_GRUPO_ABRE(VPLAN_PARAMETRO_OPC));
/** The same with a whole table of functions, which is copied. */
salida_t *vplan_nousar_abre_dispositivo_con_tabla(uint32_t tipo, VN_OPC salida_t *salida_destino,
                                                  VN_CONSUME void **item, const char *tipo_datos_dispositivo,
                                                  VN_OPC vnfunc_destruye func_destruye_datos_dispositivo,
                                                  const vplan_funciones *funciones);
/** Closes and leaves `*salida` null; the destination stays open. What is left on the stack of transformations is
    reported. */
void vplan_cierra(salida_t **salida);

/** Its kind. */
uint32_t vplan_salida(const salida_t *salida);
/** Whether the kind is one of a screen, of a screen or a buffer, of limits, and so on. */
vnbool vornplan_es_salida_pantalla(const salida_t *salida);
vnbool vornplan_es_salida_pantalla_o_buffer(const salida_t *salida);
vnbool vornplan_es_salida_limites(const salida_t *salida);
vnbool vornplan_es_salida_planos(const salida_t *salida);
vnbool vornplan_es_salida_imagen(const salida_t *salida);
vnbool vornplan_es_salida_dxf_3d(const salida_t *salida);
vnbool vornplan_es_salida_pdf(const salida_t *salida);
vnbool vornplan_es_salida_oblayout(const salida_t *salida);
/** Whether some output of the chain projects points of space (func_proyecta_punto_2d). The first answer is kept:
    install those functions before. */
vnbool vornplan_es_salida_sobre_base_de_datos_3D(salida_t *salida);

/** Whether the name is that of this output's device, or of the last one's of the chain. */
vnbool vornplan_nousar_es_datos_dispositivo(const salida_t *salida, const char *tipo_datos_dispositivo);
vnbool vornplan_nousar_es_datos_dispositivo_base(const salida_t *salida, const char *tipo_datos_dispositivo);
/** The item of this output, or of the last one of the chain, borrowed; another name is reported: null. */
void *vornplan_nousar_obtener_datos_dispositivo_generico(const salida_t *salida, const char *tipo_datos_dispositivo);
void *vornplan_nousar_obtener_datos_dispositivo_base(const salida_t *salida, const char *tipo_datos_dispositivo);
/** The output of the chain that writes dimensions as such (func_escribe_cota_dwg), or null. */
salida_t *vornplan_salida_con_implementacion_cotas_dwg(salida_t *salida);

/** Whether the view is being panned: stored, for the host. */
vnbool vplan_get_haciendo_pan(const salida_t *salida);
void vplan_set_haciendo_pan(salida_t *salida, vnbool haciendo_pan);

/** Asks the first device of the chain that does it to keep what is drawn, and to show it again. None: nothing. */
void vplan_Guardar(salida_t *salida);
void vplan_Reponer(salida_t *salida);
/** Brings the double buffer to the screen. None: nothing. */
void vplan_flush_doble_buffer(salida_t *salida);
/** Whether the user has asked to stop drawing; FALSO when no device knows. */
vnbool vplan_se_ha_cancelado_dibujo(salida_t *salida);
/** Clears. Reported when no device does. */
void vplan_borra_pantalla(salida_t *salida);
/** The limits of the device. Reported when none tells: zeros. */
void vplan_obtener_limites(salida_t *salida, VN_SALIDA double *xmin, VN_SALIDA double *ymin, VN_SALIDA double *xmax,
                           VN_SALIDA double *ymax);
/** The device's scales, whose they stay. Reported when none has them: null. */
escal *vplan_get_escalas(salida_t *salida);
void vplan_set_escalas(salida_t *salida, const escal *escalas);
vnbool vplan_hay_escalas(salida_t *salida);
/** Those of the plane over the view, or the device's. */
escal *vplan_get_escalas_overlay2d(salida_t *salida);

/** Distance between lines that is still seen, in the host's units; 0.005 when no device tells. */
double vplan_separacion_visible_entre_lineas(salida_t *salida);
/** Size of a point that is seen; 0.05 when no device tells. The second: of the plane over the view. */
double vplan_tamanyo_punto_visible(salida_t *salida);
double vplan_tamanyo_punto_visible_overlay2d(salida_t *salida);
/** Height of a text of that size class that is read. Reported when no device tells: 0. */
double vplan_tamanyo_texto_visible(salida_t *salida, uint32_t clase);

/* abre_dispositivo(type, kind, destination, &item, name, destroyer, table): an item of that type. */
#define vplan_abre_dispositivo(Tipo, tipo, salida_destino, item, nombre, destruye, funciones)                          \
    vplan_nousar_abre_dispositivo_con_tabla(tipo, salida_destino, VN_COMPRUEBA_TIPO(Tipo **, item, void **), nombre,   \
                                            VN_COMPRUEBA_TIPO(void (*)(Tipo **), destruye, vnfunc_destruye),           \
                                            funciones)

VN_C_FIN

#endif
