/* Installing a device's functions in an output, group by group; vornplan_grupos.h has the slots of each in the order of
   the arguments, vornplan_tabla.inl what each receives. `tipo`: the device's name, as it was given at the opening;
   another is reported, and nothing is installed. A function may be null but where it is told. */
#ifndef VN_VORNPLAN_INSTALA_H
#define VN_VORNPLAN_INSTALA_H

#include "vornplan_tipos.h"

VN_C_INICIO

/** The figures of the plane. */
void vplan_nousar_set_funciones2D(salida_t *salida, const char *tipo VPLAN_GRUPO_2D(VPLAN_PARAMETRO_OPC));
/** The figures of space. */
void vplan_nousar_set_funciones3D(salida_t *salida, const char *tipo VPLAN_GRUPO_3D(VPLAN_PARAMETRO_OPC));
/** From the host's space to the screen and back: all nine, once. */
void vplan_nousar_set_funciones_transformacion_coords_a_pantalla(
    salida_t *salida, const char *tipo VPLAN_GRUPO_COORDENADAS(VPLAN_PARAMETRO));
/** Dimensions as such. */
void vplan_nousar_set_funciones_cotas_dwg(salida_t *salida, const char *tipo VPLAN_GRUPO_COTAS(VPLAN_PARAMETRO_OPC));
/** Figures that move between two positions. */
void vplan_nousar_set_funciones_animacion_morphing(salida_t *salida,
                                                   const char *tipo VPLAN_GRUPO_MORPHING(VPLAN_PARAMETRO_OPC));
/** A block in a plane of its own. */
void vplan_nousar_set_dibuja_bloque_con_plano_definido(
    salida_t *salida, const char *tipo VPLAN_GRUPO_BLOQUE_CON_PLANO(VPLAN_PARAMETRO_OPC));
/** Whether a reference to a block is seen. */
void vplan_nousar_set_func_visibilidad_bloques(salida_t *salida,
                                               const char *tipo VPLAN_GRUPO_VISIBILIDAD(VPLAN_PARAMETRO_OPC));
/** A database of objects of space: layers of the view, state, blocks and materials; its objects; texts and planes of
    the screen, levels of detail. */
void vornplan_nousar_set_funciones_base_de_datos_3D_1(salida_t *salida,
                                                      const char *tipo VPLAN_GRUPO_BD3D_1(VPLAN_PARAMETRO_OPC));
void vornplan_nousar_set_funciones_base_de_datos_3D_2(salida_t *salida,
                                                      const char *tipo VPLAN_GRUPO_BD3D_2(VPLAN_PARAMETRO_OPC));
void vornplan_nousar_set_funciones_base_de_datos_3D_3(salida_t *salida,
                                                      const char *tipo VPLAN_GRUPO_BD3D_3(VPLAN_PARAMETRO_OPC));
/** Buffers of geometry. */
void vornplan_nousar_set_funciones_dibujo_buffers_geometria(salida_t *salida,
                                                            const char *tipo VPLAN_GRUPO_BUFFERS(VPLAN_PARAMETRO_OPC));
/** Solids: once. */
void vornplan_nousar_set_funciones_dibujo_vnsmsolid(salida_t *salida,
                                                    const char *tipo VPLAN_GRUPO_SOLIDO(VPLAN_PARAMETRO_OPC));
/** Told of locks of attributes. */
void vornplan_nousar_set_funciones_gestion_atributos_bloqueados(
    salida_t *salida, const char *tipo VPLAN_GRUPO_BLOQUEOS(VPLAN_PARAMETRO_OPC));
/** Blocks: once. `pasar_a_globales_entidades_del_bloque`: their content is written in the device's space, not in the
    block's. */
void vornplan_nousar_set_gestor_bloques_dibujo(salida_t *salida, const char *tipo,
                                               vnbool pasar_a_globales_entidades_del_bloque
                                                   VPLAN_GRUPO_BLOQUES(VPLAN_PARAMETRO_OPC));
/** Moving drawings: once. */
void vornplan_nousar_set_gestor_bloques_moviles(salida_t *salida,
                                                const char *tipo VPLAN_GRUPO_MOVILES(VPLAN_PARAMETRO_OPC));
/** A double buffer: once. */
void vornplan_nousar_set_gestor_doble_buffer(salida_t *salida,
                                             const char *tipo VPLAN_GRUPO_DOBLE_BUFFER(VPLAN_PARAMETRO_OPC));
/** Blocks are written in the device's space although their contents are given in their own. Reported where the device
    itself wants them so. */
void vornplan_set_pasar_a_globales_entidades_del_bloque_aunque_se_defina_en_locales(salida_t *salida);

VN_C_FIN

#endif
