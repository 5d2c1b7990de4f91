/* The groups in which a device's functions are installed: the slots of each, in the order of its installer's arguments.
   VPLAN_GRUPO_2D(G) is G(func_DrawLinea) G(func_LineaGradiente) ... Used by the installers, their checks and whoever
   calls one with functions that bear the slots' names. */
#ifndef VN_VORNPLAN_GRUPOS_H
#define VN_VORNPLAN_GRUPOS_H

/* clang-format off */
#define VPLAN_GRUPO_ABRE(G)                                                                                            \
    G(func_define_capa_u)                                                                                              \
    G(func_set_clave) G(func_set_capa) G(func_set_pluma) G(func_set_color) G(func_define_tipo_linea_u)                 \
    G(func_set_tipo_linea_definida_u) G(func_set_tipo_linea) G(func_set_estilo_texto) G(func_set_familia_fuente_texto) \
    G(func_guardar_capas) G(func_fin_grupo_de_capas)                                                                   \
    G(func_guardar) G(func_reponer) G(func_set_xor) G(func_set_borrar) G(func_borra_fondo)                             \
    G(func_obtener_escalas) G(func_set_escalas)                                                                        \
    G(func_obtener_limites) G(func_sep_vis_entre_lin) G(func_tam_texto_visible) G(func_tam_punto_visible)              \
    G(func_append_extrusion) G(func_borra_extrusion)
#define VPLAN_GRUPO_2D(G)                                                                                              \
    G(func_DrawLinea) G(func_LineaGradiente) G(func_DrawCirculo) G(func_DrawArco) G(func_DrawPoligono)                 \
    G(func_DibujaRellenoRegiones) G(func_DibujaRellenoRegionesConGradiente) G(func_DrawHatch) G(func_DrawArandela)     \
    G(func_DrawTexto) G(func_DrawImagen) G(func_Elipse) G(func_Punto) G(func_ArcoElipse) G(func_LongitudTrozoTexto)    \
    G(func_Rayo) G(func_LineaReferencia) G(func_DrawPolilinea) G(func_DibujaGrid) G(func_DibujaPuntoClave)
#define VPLAN_GRUPO_3D(G)                                                                                              \
    G(func_Linea3D) G(func_LineaGradiente3D) G(func_DrawCirculo3D) G(func_DrawArco3D) G(func_DrawPolilinea3D)          \
    G(func_DrawPoligono3D) G(func_DibujaCara3D) G(func_DibujaSolid3D) G(func_Polilinea3DConCambioDeColor)              \
    G(func_DrawImagen3D) G(func_DrawTexto3D) G(func_SetPlanoTexto) G(func_Elipse3D) G(func_Punto3D)                    \
    G(func_ArcoElipse3D) G(func_Rayo3D) G(func_LineaReferencia3D) G(func_TrianguloGradiente3D)                         \
    G(func_Triangulo3DConNormalPorVertice) G(func_NubesPuntos3D) G(func_DibujaMesh) G(func_DibujaGrid3D)               \
    G(func_DibujaTubo3D) G(func_DibujaPrimaConico) G(func_DibujaXRef) G(func_DibujaPuntoClave3D)                       \
    G(func_DibujaRellenoRegiones3D)
#define VPLAN_GRUPO_COORDENADAS(G)                                                                                     \
    G(func_obtener_escalas_overlay2d) G(func_tam_punto_visible_overlay2d) G(func_desproyecta_punto_2d)                 \
    G(func_proyecta_punto_2d) G(func_proyecta_punto_2d_overlay2d) G(func_vectores_sistema_coordenadas)                 \
    G(func_obtener_punto_cursor_3d) G(func_transformacion_plano_pantalla)                                              \
    G(func_profundidad_salida_sin_transformacion)
#define VPLAN_GRUPO_COTAS(G) G(func_escribe_cota_dwg) G(func_finaliza_dibujo_cota_explotada)
#define VPLAN_GRUPO_MORPHING(G)                                                                                        \
    G(func_escr_triangulo_3d_animacion_morphing) G(func_escr_triangulo_gradiente_3d_animacion_morphing)                \
    G(func_escr_polilinea_animacion_morphing) G(func_escr_polilinea_con_cambio_de_color_animacion_morphing)
#define VPLAN_GRUPO_BLOQUE_CON_PLANO(G) G(func_dibuja_bloque_con_plano_definido)
#define VPLAN_GRUPO_VISIBILIDAD(G) G(func_es_referencia_bloque_geometria_bd3d_visible)
#define VPLAN_GRUPO_BD3D_1(G)                                                                                          \
    G(func_set_capa_visualiz_predefinida_y_apila) G(func_desapila_capa_visualiz)                                       \
    G(func_set_capa_visualiz_predef_y_apila_y_abre_objeto_anonimo) G(func_cierra_y_desapila_capa_visualiz)             \
    G(func_set_num_puntos_circulo) G(func_set_cara_visible_triangulos_y_quads) G(func_escr_test_profundidad)           \
    G(func_escr_multisampling) G(func_escr_con_calculo_iluminacion) G(func_escr_admite_planos_recorte)                 \
    G(func_escr_admite_volumenes_recorte) G(func_get_indice_orden_dibujo) G(func_escr_indice_orden_dibujo)             \
    G(func_set_color_rgb_fondo_texto) G(func_existe_bloque_bd3d) G(func_abre_bloque_bd3d) G(func_cierra_bloque_bd3d)   \
    G(func_borra_bloque_bd3d) G(func_append_referencia_bloque_a_geometria_bd3d)                                        \
    G(func_append_referencia_bloque_a_geometria_ex_bd3d) G(func_append_referencia_multiple_bloque_a_geometria_bd3d)    \
    G(func_append_descripcion_bim) G(func_append_cb_descripcion_bim) G(func_escr_material_bd3d)                        \
    G(func_escr_material_bd3d_con_nombre) G(func_escr_material_vnmatvis3d)
#define VPLAN_GRUPO_BD3D_2(G)                                                                                          \
    G(func_set_forzar_nuevos_objetos_hijos_de_objeto_actual) G(func_abre_objeto) G(func_abre_objeto_anonimo)           \
    G(func_abre_objeto_y_get_handle) G(func_abre_objeto_handle) G(func_existe_objeto) G(func_se_abre_objeto_si_existe) \
    G(func_cierra_objeto) G(func_borra_objeto) G(func_borra_objeto_en_capa_visualizacion) G(func_vacia_objeto)         \
    G(func_set_visibilidad_objeto_actual) G(func_set_visibilidad_hasta_objeto_actual)                                  \
    G(func_set_visibilidad_hijos_objeto_actual) G(func_set_visibilidad_hijos_objeto_en_capa_handle)                    \
    G(func_set_visibilidad_objeto) G(func_set_aplicar_frustrum_culling_objeto_actual)                                  \
    G(func_set_considerar_para_calculo_limites_objeto_actual) G(func_set_usa_material_alternativo_objeto_actual)       \
    G(func_set_usa_material_alfa_0_5_objeto_actual) G(func_set_usa_material_polygon_capping_propio_objeto_actual)      \
    G(func_set_genera_sombras_objeto_actual) G(func_set_recibe_sombras_objeto_actual)
#define VPLAN_GRUPO_BD3D_3(G)                                                                                          \
    G(func_DrawImagenConGestorTextura3D) G(func_SetPermitirOrientacionCorrecta) G(func_append_transf_plano_pantalla)   \
    G(func_append_transf_plano_pantalla_con_direc) G(func_desapila_transf_plano_pantalla)                              \
    G(func_escr_texto_con_alto_en_pixeles) G(func_set_condicion_lod_segmento_objeto_actual)                            \
    G(func_set_condicion_lod_esfera_objeto_actual) G(func_escr_con_offset_profundidad)                                 \
    G(func_append_transf_dibujo_en_pixeles) G(func_desapila_transf_dibujo_en_pixeles)
#define VPLAN_GRUPO_BUFFERS(G) G(func_dibuja_geometria_buffer_geometria) G(func_dibuja_triangulos_buffer_geometria)
#define VPLAN_GRUPO_SOLIDO(G) G(func_escribe_vnmsolid)
#define VPLAN_GRUPO_BLOQUEOS(G)                                                                                        \
    G(func_bloquea_color) G(func_bloquea_pluma) G(func_bloquea_tipo_linea) G(func_bloquea_texto)                       \
    G(func_bloquea_relleno)
#define VPLAN_GRUPO_BLOQUES(G)                                                                                         \
    G(func_IniciaBloqueDibujo) G(func_FinBloqueDibujo) G(func_AppendNombreBloqueDibujo)
#define VPLAN_GRUPO_MOVILES(G)                                                                                         \
    G(func_DefineDibujoMovil) G(func_IniciaBloqueMovil) G(func_FinBloqueMovil) G(func_CreaSalidaLimitesMovil)
#define VPLAN_GRUPO_DOBLE_BUFFER(G) G(func_flush_doble_buffer) G(func_se_ha_cancelado_dibujo)

/* What stands for G: a parameter that may be null, one that must not be, the name alone. Each begins with its comma. */
#define VPLAN_PARAMETRO_OPC(f) , VN_OPC vplan_##f f
#define VPLAN_PARAMETRO(f) , vplan_##f f
#define VPLAN_NOMBRE(f) , f
/* clang-format on */

#endif
