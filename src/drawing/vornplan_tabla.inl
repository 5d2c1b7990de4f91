/* The device table, in its order: X(slot, result, where the item stands, arguments, the group that installs it). The
   item is the device's own datum. Coordinates have been transformed to the space of the output that implements the
   slot; `relleno`: the figure is filled; `rgba`: red in the lowest byte, alpha in the highest. The row of a line is,
   written out:
       typedef void (*vplan_func_DrawLinea)(void *item, double x1, double y1, double x2, double y2);
       vplan_func_DrawLinea func_DrawLinea;          // a member of vplan_funciones, the first
       vplan_nousar_set_funciones2D(salida, tipo, func_DrawLinea, ...)      // what installs it, VPLAN_GRUPO_2D
   and vplan_escr_linea calls it. Groups: vornplan_grupos.h. */
X(func_DrawLinea, void, PRIMERO, (void *item, double x1, double y1, double x2, double y2), 2D)
X(func_LineaGradiente, void, PRIMERO,
  (void *item, double x1, double y1, uint32_t rgba1, double x2, double y2, uint32_t rgba2), 2D)
X(func_Linea3D, void, PRIMERO, (void *item, double x1, double y1, double z1, double x2, double y2, double z2), 3D)
X(func_LineaGradiente3D, void, PRIMERO,
  (void *item, double x1, double y1, double z1, uint32_t rgba1, double x2, double y2, double z2, uint32_t rgba2), 3D)
X(func_DrawCirculo, void, PRIMERO, (void *item, double xc, double yc, double radio, vnbool relleno), 2D)
X(func_DrawCirculo3D, void, PRIMERO, (void *item, double xc, double yc, double zc, double radio, vnbool relleno), 3D)
/* From point 1 to point 2 about the centre, counter-clockwise. */
X(func_DrawArco, void, PRIMERO,
  (void *item, double xc, double yc, double x1, double y1, double x2, double y2, vnbool relleno), 2D)
X(func_DrawArco3D, void, PRIMERO,
  (void *item, double xc, double yc, double zc, double x1, double y1, double z1, double x2, double y2, double z2,
   vnbool relleno), 3D)
X(func_DrawPoligono, void, PRIMERO, (void *item, const arrPunto2D *puntos, vnbool relleno), 2D)
X(func_DrawPolilinea, void, PRIMERO, (void *item, const arrPunto2D *puntos), 2D)
X(func_DrawPolilinea3D, void, PRIMERO, (void *item, const arrPunto3D *puntos, vnbool relleno), 3D)
X(func_DrawPoligono3D, void, PRIMERO, (void *item, const arrPunto3D *puntos, vnbool relleno), 3D)
/* Each corner with whether the edge that starts there is seen. */
X(func_DibujaCara3D, void, PRIMERO,
  (void *item, double x1, double y1, double z1, vnbool visible1, double x2, double y2, double z2, vnbool visible2,
   double x3, double y3, double z3, vnbool visible3, double x4, double y4, double z4, vnbool visible4), 3D)
X(func_DibujaSolid3D, void, PRIMERO,
  (void *item, double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3, double z3,
   double x4, double y4, double z4), 3D)
/* As many colours as points. */
X(func_Polilinea3DConCambioDeColor, void, PRIMERO, (void *item, const arrPunto3D *puntos, const arrULong *rgba), 3D)
/* Contours: arrays of pointers to arrPunto2D. `con_borde`: 1 fills, 0 draws the outline alone. */
X(func_DibujaRellenoRegiones, void, PRIMERO,
  (void *item, const arrPuntero *exteriores, const arrPuntero *interiores, vnbool con_borde), 2D)
/* The colour goes from rgba1 at point 1 to rgba2 at point 2. */
X(func_DibujaRellenoRegionesConGradiente, void, PRIMERO,
  (void *item, const arrPuntero *exteriores, const arrPuntero *interiores, uint32_t tipo, double x1, double y1,
   double x2, double y2, uint32_t rgba1, uint32_t rgba2), 2D)
/* A family of parallel lines for each angle (radians): its origin, its step, its dashes (pointers to arrDouble, below 0
   the gaps). All four may be null: the contours are filled. */
X(func_DrawHatch, void, PRIMERO,
  (void *item, const arrPuntero *contornos, const arrDouble *angulos, const arrPunto2D *origenes,
   const arrPunto2D *desplazamientos, const arrPuntero *trazos), 2D)
X(func_DrawArandela, void, PRIMERO, (void *item, double xc, double yc, double radio_menor, double radio_mayor), 2D)
/* A length of -1: the device measures. */
X(func_DrawTexto, void, PRIMERO,
  (void *item, const vnwchar *texto, double x, double y, uint8_t justificacion, double alto, double ancho,
   double coseno, double seno, double longitud, uint8_t cero), 2D)
X(func_DrawImagen, void, PRIMERO,
  (void *item, const void *imagen, double x, double y, double ancho, double alto, vnbool gris), 2D)
X(func_DrawImagen3D, void, PRIMERO,
  (void *item, const void *imagen, double x, double y, double z, double Ux, double Uy, double Uz, double Vx, double Vy,
   double Vz, double ancho, double alto, vnbool gris), 3D)
X(func_DrawImagenConGestorTextura, void, PRIMERO,
  (void *item, const void *textura, double x, double y, double ancho, double alto), NINGUNO)
X(func_DrawImagenConGestorTextura3D, void, PRIMERO,
  (void *item, const void *textura, double x, double y, double z, double Ux, double Uy, double Uz, double Vx, double Vy,
   double Vz, double ancho, double alto), BD3D_3)
X(func_DrawTexto3D, void, PRIMERO,
  (void *item, const vnwchar *texto, double x, double y, double z, uint8_t justificacion, double alto, double ancho,
   double coseno, double seno, double longitud, uint8_t cero), 3D)
/* A matrix, of a device that keeps texts in a plane: U, V, W, D, then the fourth row. */
X(func_SetPlanoTexto, void, PRIMERO,
  (void *item, double Ux, double Uy, double Uz, double Vx, double Vy, double Vz, double Wx, double Wy, double Wz,
   double Dx, double Dy, double Dz, double a41, double a42, double a43, double a44), 3D)
X(func_SetPermitirOrientacionCorrecta, void, PRIMERO, (void *item, vnbool permitir), BD3D_3)
X(func_guardar, void, PRIMERO, (void *item), ABRE)
X(func_reponer, void, PRIMERO, (void *item), ABRE)
X(func_set_xor, void, PRIMERO, (void *item, vnbool activo), ABRE)
X(func_set_borrar, void, PRIMERO, (void *item, vnbool activo), ABRE)
X(func_borra_fondo, void, PRIMERO, (void *item), ABRE)
/* Half axes and the turn of the first from x, radians. */
X(func_Elipse, void, PRIMERO,
  (void *item, double xc, double yc, double ra, double rb, double angulo, vnbool relleno), 2D)
X(func_Elipse3D, void, PRIMERO,
  (void *item, double xc, double yc, double zc, double ra, double rb, double angulo, vnbool relleno), 3D)
X(func_Punto, void, PRIMERO, (void *item, double x, double y), 2D)
X(func_Punto3D, void, PRIMERO, (void *item, double x, double y, double z), 3D)
X(func_ArcoElipse, void, PRIMERO,
  (void *item, double xc, double yc, double ra, double rb, double angulo_inicial, double angulo_final, double angulo,
   vnbool relleno), 2D)
X(func_ArcoElipse3D, void, PRIMERO,
  (void *item, double xc, double yc, double zc, double ra, double rb, double angulo_inicial, double angulo_final,
   double angulo, vnbool relleno), 3D)
X(func_obtener_escalas, escal *, PRIMERO, (void *item), ABRE)
X(func_set_escalas, void, PRIMERO, (void *item, const escal *escalas), ABRE)
X(func_set_clave, void, PRIMERO, (void *item, uint8_t clave), ABRE)
X(func_set_capa, void, PRIMERO, (void *item, uint8_t capa), ABRE)
/* A device's code, 1 to 7; with 6 comes a thickness, mm. */
X(func_set_pluma, void, PRIMERO, (void *item, uint32_t pluma, double grosor_mm), ABRE)
X(func_set_color, void, PRIMERO, (void *item, const idcolor *color), ABRE)
X(func_define_tipo_linea_u, void, PRIMERO,
  (void *item, const vnwchar *nombre, const vnwchar *descripcion, const arrDouble *trazos), ABRE)
X(func_set_tipo_linea_definida_u, void, PRIMERO, (void *item, const vnwchar *nombre), ABRE)
X(func_set_tipo_linea, void, PRIMERO, (void *item, uint8_t tipo), ABRE)
X(func_set_estilo_texto, void, PRIMERO, (void *item, uint32_t estilo), ABRE)
/* Where the address is given it receives the family until now, a new text that the host frees. */
X(func_set_familia_fuente_texto, void, PRIMERO, (void *item, const vnwchar *familia, vnwchar **anterior), ABRE)
/* The number of the layer, which `capa` is unless it is VPLAN_NOCAMBIAR: then the device's choice. */
X(func_define_capa_u, uint8_t, PRIMERO,
  (void *item, uint8_t capa, const vnwchar *nombre, uint32_t pluma, double grosor_mm, const idcolor *color,
   uint8_t tipo_linea, const vnwchar *tipo_linea_definida, uint8_t atributo_extra), ABRE)
X(func_guardar_capas, void, PRIMERO, (void *item), ABRE)
X(func_fin_grupo_de_capas, void, PRIMERO, (void *item), ABRE)
/* Of the characters from `primero` to `ultimo`, both included. */
X(func_LongitudTrozoTexto, void, PRIMERO,
  (void *item, const vnwchar *texto, uint32_t primero, uint32_t ultimo, double alto, double ancho, int32_t estilo,
   double *longitud), 2D)
X(func_Rayo, void, PRIMERO, (void *item, double x1, double y1, double x2, double y2), 2D)
X(func_Rayo3D, void, PRIMERO, (void *item, double x1, double y1, double z1, double x2, double y2, double z2), 3D)
X(func_LineaReferencia, void, PRIMERO, (void *item, double x1, double y1, double x2, double y2), 2D)
X(func_LineaReferencia3D, void, PRIMERO,
  (void *item, double x1, double y1, double z1, double x2, double y2, double z2), 3D)
X(func_TrianguloGradiente3D, void, PRIMERO,
  (void *item, double x1, double y1, double z1, uint32_t rgba1, double x2, double y2, double z2, uint32_t rgba2,
   double x3, double y3, double z3, uint32_t rgba3), 3D)
X(func_Triangulo3DConNormalPorVertice, void, PRIMERO,
  (void *item, double x1, double y1, double z1, double nx1, double ny1, double nz1, double x2, double y2, double z2,
   double nx2, double ny2, double nz2, double x3, double y3, double z3, double nx3, double ny3, double nz3), 3D)
X(func_NubesPuntos3D, void, PRIMERO, (void *item, const void *nubes), 3D)
X(func_DibujaMesh, void, PRIMERO, (void *item, const mesh *malla, uint32_t modo), 3D)
/* Pointers to arrPunto3D, a row each. */
X(func_DibujaGrid3D, void, PRIMERO, (void *item, const arrPuntero *filas), 3D)
X(func_DibujaTubo3D, void, PRIMERO, (void *item, const arrPunto3D *eje, double diametro), 3D)
X(func_DibujaPrimaConico, void, PRIMERO,
  (void *item, double xb, double yb, double zb, double diametro_base, double xt, double yt, double zt,
   double diametro_tapa, double Ex, double Ey, double Ez), 3D)
X(func_DibujaXRef, void, PRIMERO, (void *item, const vmatr *matriz, const void *referencia), 3D)
X(func_DibujaGrid, void, PRIMERO, (void *item, double paso), 2D)
X(func_DibujaPuntoClave, void, PRIMERO,
  (void *item, double x, double y, uint32_t tipo, vnbool en_pixeles, double pixeles, double diametro, uint32_t color_1,
   uint32_t color_2), 2D)
X(func_DibujaPuntoClave3D, void, PRIMERO,
  (void *item, double x, double y, double z, uint32_t tipo, vnbool en_pixeles, double pixeles, double diametro,
   uint32_t color_1, uint32_t color_2), 3D)
/* As func_DibujaRellenoRegiones, over arrPunto3D. */
X(func_DibujaRellenoRegiones3D, void, PRIMERO,
  (void *item, const arrPuntero *exteriores, const arrPuntero *interiores, vnbool con_borde), 3D)
X(func_escribe_cota_dwg, void, PRIMERO,
  (void *item, const vnwchar *texto, double x1, double y1, double z1, double x2, double y2, double z2, double x3,
   double y3, double z3, uint32_t opciones, double alto_texto, double tamanyo_x, double tamanyo_y), COTAS)
X(func_finaliza_dibujo_cota_explotada, void, PRIMERO, (void *item), COTAS)
X(func_obtener_limites, void, PRIMERO, (void *item, double *xmin, double *ymin, double *xmax, double *ymax), ABRE)
/* Lengths in the device's units. */
X(func_sep_vis_entre_lin, double, PRIMERO, (void *item), ABRE)
X(func_tam_texto_visible, double, PRIMERO, (void *item, uint32_t clase), ABRE)
X(func_tam_punto_visible, double, PRIMERO, (void *item), ABRE)
X(func_append_extrusion, void, PRIMERO, (void *item, double nx, double ny, double nz), ABRE)
X(func_borra_extrusion, void, PRIMERO, (void *item), ABRE)
X(func_DefineDibujoMovil, void, PRIMERO, (void *item, const void *dibujo), MOVILES)
X(func_IniciaBloqueMovil, void, PRIMERO, (void *item, double x, double y, const vmatr *matriz, const void *datos),
  MOVILES)
X(func_FinBloqueMovil, void, PRIMERO, (void *item, const vmatr *matriz), MOVILES)
X(func_CreaSalidaLimitesMovil, salida_t *, PRIMERO, (void *item, salida_t *origen), MOVILES)
X(func_IniciaBloqueDibujo, void, PRIMERO, (void *item, const vnwchar *nombre, const vmatr *matriz), BLOQUES)
X(func_FinBloqueDibujo, void, PRIMERO, (void *item, vnbool punto_base_en_origen, const vmatr *matriz), BLOQUES)
X(func_AppendNombreBloqueDibujo, void, PRIMERO, (void *item, const vnwchar *nombre), BLOQUES)
X(func_dibuja_bloque_con_plano_definido, void, PRIMERO,
  (void *item, const vnwchar *nombre, double ox, double oy, double oz, double Ux, double Uy, double Uz, double Vx,
   double Vy, double Vz, vncallback *contenido, salida_t *origen), BLOQUE_CON_PLANO)
X(func_flush_doble_buffer, void, PRIMERO, (void *item), DOBLE_BUFFER)
X(func_se_ha_cancelado_dibujo, vnbool, PRIMERO, (void *item), DOBLE_BUFFER)
X(func_obtener_escalas_overlay2d, escal *, PRIMERO, (void *item), COORDENADAS)
X(func_tam_punto_visible_overlay2d, double, PRIMERO, (void *item), COORDENADAS)
/* The point of the screen as a line of space: a point of it and its direction. */
X(func_desproyecta_punto_2d, void, PRIMERO,
  (void *item, double x, double y, double *x0, double *y0, double *z0, double *Ux, double *Uy, double *Uz),
  COORDENADAS)
X(func_proyecta_punto_2d, void, PRIMERO, (void *item, double x, double y, double z, double *x2D, double *y2D),
  COORDENADAS)
X(func_proyecta_punto_2d_overlay2d, void, PRIMERO,
  (void *item, double x, double y, double z, double *x2D, double *y2D), COORDENADAS)
X(func_vectores_sistema_coordenadas, void, PRIMERO,
  (void *item, double *ox, double *oy, double *oz, double *Ux, double *Uy, double *Uz, double *Vx, double *Vy,
   double *Vz, double *Wx, double *Wy, double *Wz), COORDENADAS)
X(func_obtener_punto_cursor_3d, void, PRIMERO,
  (void *item, double x, double y, double *x0, double *y0, double *z0, double *Ux, double *Uy, double *Uz),
  COORDENADAS)
X(func_transformacion_plano_pantalla, void, PRIMERO,
  (void *item, double *Xx, double *Xy, double *Xz, double *Yx, double *Yy, double *Yz, double *Zx, double *Zy,
   double *Zz), COORDENADAS)
X(func_profundidad_salida_sin_transformacion, double, PRIMERO, (void *item), COORDENADAS)
X(func_set_capa_visualiz_predefinida_y_apila, void, PRIMERO, (void *item, uint32_t capa), BD3D_1)
X(func_desapila_capa_visualiz, void, PRIMERO, (void *item), BD3D_1)
X(func_set_capa_visualiz_predef_y_apila_y_abre_objeto_anonimo, void, PRIMERO, (void *item, uint32_t capa), BD3D_1)
X(func_cierra_y_desapila_capa_visualiz, void, PRIMERO, (void *item), BD3D_1)
/* Here and below `anterior` receives the value until now, where it is given. */
X(func_set_num_puntos_circulo, void, PRIMERO, (void *item, uint32_t num_puntos, uint32_t *anterior), BD3D_1)
X(func_set_cara_visible_triangulos_y_quads, void, PRIMERO, (void *item, uint16_t cara, uint16_t *anterior), BD3D_1)
X(func_escr_test_profundidad, void, PRIMERO, (void *item, vnbool activo), BD3D_1)
X(func_escr_multisampling, void, PRIMERO, (void *item, vnbool activo), BD3D_1)
X(func_escr_con_calculo_iluminacion, void, PRIMERO, (void *item, vnbool activo, vnbool *anterior), BD3D_1)
X(func_escr_admite_planos_recorte, void, PRIMERO, (void *item, vnbool admite), BD3D_1)
X(func_escr_admite_volumenes_recorte, void, PRIMERO, (void *item, vnbool admite), BD3D_1)
X(func_get_indice_orden_dibujo, int32_t, PRIMERO, (void *item), BD3D_1)
X(func_escr_indice_orden_dibujo, void, PRIMERO, (void *item, int32_t indice, int32_t *anterior), BD3D_1)
X(func_set_color_rgb_fondo_texto, void, PRIMERO, (void *item, vnbool con_fondo, uint32_t rgb), BD3D_1)
X(func_existe_bloque_bd3d, vnbool, PRIMERO, (void *item, const vnwchar *nombre), BD3D_1)
X(func_abre_bloque_bd3d, void, PRIMERO, (void *item, const vnwchar *nombre), BD3D_1)
X(func_cierra_bloque_bd3d, void, PRIMERO, (void *item), BD3D_1)
X(func_borra_bloque_bd3d, void, PRIMERO, (void *item, const vnwchar *nombre), BD3D_1)
X(func_append_referencia_bloque_a_geometria_bd3d, void, PRIMERO,
  (void *item, const vnwchar *nombre, double ox, double oy, double oz, double Ux, double Uy, double Uz, double Vx,
   double Vy, double Vz), BD3D_1)
X(func_append_referencia_bloque_a_geometria_ex_bd3d, void, PRIMERO,
  (void *item, const vnwchar *nombre, double ox, double oy, double oz, double Ux, double Uy, double Uz, double Vx,
   double Vy, double Vz, double Wx, double Wy, double Wz), BD3D_1)
X(func_append_referencia_multiple_bloque_a_geometria_bd3d, void, PRIMERO,
  (void *item, const vnwchar *nombre, const arrPunto3D *origenes, const arrPunto3D *ejes_U, const arrPunto3D *ejes_V,
   const arrPunto3D *ejes_W), BD3D_1)
X(func_append_descripcion_bim, void, PRIMERO, (void *item, const vnwchar *descripcion), BD3D_1)
X(func_append_cb_descripcion_bim, void, PRIMERO, (void *item, vncallback *descripcion), BD3D_1)
X(func_escr_material_bd3d, void, PRIMERO, (void *item, uint32_t material), BD3D_1)
X(func_escr_material_bd3d_con_nombre, void, PRIMERO, (void *item, const vnwchar *nombre), BD3D_1)
X(func_escr_material_vnmatvis3d, void, PRIMERO, (void *item, const void *material), BD3D_1)
X(func_set_forzar_nuevos_objetos_hijos_de_objeto_actual, void, PRIMERO, (void *item, vnbool forzar), BD3D_2)
X(func_abre_objeto, void, PRIMERO, (void *item, const vnwchar *path_objeto), BD3D_2)
X(func_abre_objeto_anonimo, void, PRIMERO, (void *item), BD3D_2)
X(func_abre_objeto_y_get_handle, void, PRIMERO, (void *item, const vnwchar *path_objeto, uint32_t *handle), BD3D_2)
X(func_abre_objeto_handle, void, PRIMERO, (void *item, uint32_t handle), BD3D_2)
X(func_existe_objeto, vnbool, PRIMERO, (void *item, const vnwchar *path_objeto), BD3D_2)
X(func_se_abre_objeto_si_existe, vnbool, PRIMERO, (void *item, const vnwchar *path_objeto), BD3D_2)
X(func_cierra_objeto, void, PRIMERO, (void *item), BD3D_2)
X(func_borra_objeto, void, PRIMERO, (void *item, const vnwchar *path_objeto), BD3D_2)
X(func_borra_objeto_en_capa_visualizacion, void, PRIMERO, (void *item, uint32_t capa, const vnwchar *path_objeto),
  BD3D_2)
X(func_vacia_objeto, void, PRIMERO, (void *item, const vnwchar *path_objeto), BD3D_2)
X(func_set_visibilidad_objeto_actual, void, PRIMERO, (void *item, vnbool visible), BD3D_2)
X(func_set_visibilidad_hasta_objeto_actual, void, PRIMERO, (void *item, vnbool visible), BD3D_2)
X(func_set_visibilidad_hijos_objeto_actual, void, PRIMERO, (void *item, vnbool visible), BD3D_2)
X(func_set_visibilidad_hijos_objeto_en_capa_handle, void, PRIMERO,
  (void *item, uint32_t capa, uint32_t handle, vnbool visible), BD3D_2)
X(func_set_visibilidad_objeto, void, PRIMERO, (void *item, const vnwchar *path_objeto, vnbool visible), BD3D_2)
X(func_set_aplicar_frustrum_culling_objeto_actual, void, PRIMERO, (void *item, vnbool activo), BD3D_2)
X(func_set_considerar_para_calculo_limites_objeto_actual, void, PRIMERO, (void *item, vnbool activo), BD3D_2)
X(func_set_usa_material_alternativo_objeto_actual, void, PRIMERO, (void *item, vnbool activo), BD3D_2)
X(func_set_usa_material_alfa_0_5_objeto_actual, void, PRIMERO, (void *item, vnbool activo), BD3D_2)
X(func_set_usa_material_polygon_capping_propio_objeto_actual, void, PRIMERO, (void *item, vnbool activo), BD3D_2)
X(func_set_genera_sombras_objeto_actual, void, PRIMERO, (void *item, vnbool activo), BD3D_2)
X(func_set_recibe_sombras_objeto_actual, void, PRIMERO, (void *item, vnbool activo), BD3D_2)
/* Arrays of the geometry core, then a matrix as in func_SetPlanoTexto. */
X(func_dibuja_geometria_buffer_geometria, void, PRIMERO,
  (void *item, uint32_t primitiva, const gcFloat64Array *vertices, const gcFloat32Array *normales,
   const gcFloat32Array *colores, const gcUint32Array *indices, const gcUint8Array *es_borde_vertices, double Ux,
   double Uy, double Uz, double Vx, double Vy, double Vz, double Wx, double Wy, double Wz, double Dx, double Dy,
   double Dz, double a41, double a42, double a43, double a44), BUFFERS)
X(func_dibuja_triangulos_buffer_geometria, void, PRIMERO,
  (void *item, const gcFloat32Array *vertices, const gcFloat32Array *normales, double Ux, double Uy, double Uz,
   double Vx, double Vy, double Vz, double Wx, double Wy, double Wz, double Dx, double Dy, double Dz, double a41,
   double a42, double a43, double a44, vnbool opcion), BUFFERS)
X(func_append_transf_plano_pantalla, void, PRIMERO, (void *item, double x, double y, double z), BD3D_3)
X(func_append_transf_plano_pantalla_con_direc, void, PRIMERO,
  (void *item, double x, double y, double z, double dx, double dy, double dz, vnbool es_direccion_U), BD3D_3)
X(func_desapila_transf_plano_pantalla, void, PRIMERO, (void *item), BD3D_3)
X(func_escr_texto_con_alto_en_pixeles, void, PRIMERO,
  (void *item, const vnwchar *texto, double x, double y, double z, uint8_t justificacion, double alto_pixeles,
   double coseno, double seno, double longitud, uint32_t estilo), BD3D_3)
X(func_set_condicion_lod_segmento_objeto_actual, void, PRIMERO,
  (void *item, double x1, double y1, double z1, double x2, double y2, double z2, double pixeles), BD3D_3)
X(func_set_condicion_lod_esfera_objeto_actual, void, PRIMERO,
  (void *item, double xc, double yc, double zc, double radio, double pixeles), BD3D_3)
X(func_escr_con_offset_profundidad, void, PRIMERO, (void *item, vnbool activo), BD3D_3)
X(func_append_transf_dibujo_en_pixeles, void, PRIMERO, (void *item, double x, double y, double z), BD3D_3)
X(func_desapila_transf_dibujo_en_pixeles, void, PRIMERO, (void *item), BD3D_3)
/* Two positions of each figure, between which it moves. */
X(func_escr_triangulo_3d_animacion_morphing, void, PRIMERO,
  (void *item, const arrPunto3D *inicial, const arrPunto3D *final_), MORPHING)
X(func_escr_triangulo_gradiente_3d_animacion_morphing, void, PRIMERO,
  (void *item, const arrPunto3D *inicial, const arrULong *rgba_inicial, const arrPunto3D *final_,
   const arrULong *rgba_final), MORPHING)
X(func_escr_polilinea_animacion_morphing, void, PRIMERO,
  (void *item, const arrPunto3D *inicial, const arrPunto3D *final_), MORPHING)
X(func_escr_polilinea_con_cambio_de_color_animacion_morphing, void, PRIMERO,
  (void *item, const arrPunto3D *inicial, const arrULong *rgba_inicial, const arrPunto3D *final_,
   const arrULong *rgba_final), MORPHING)
X(func_bloquea_color, void, PRIMERO, (void *item, vnbool bloquea), BLOQUEOS)
X(func_bloquea_pluma, void, PRIMERO, (void *item, vnbool bloquea), BLOQUEOS)
X(func_bloquea_tipo_linea, void, PRIMERO, (void *item, vnbool bloquea), BLOQUEOS)
X(func_bloquea_texto, void, PRIMERO, (void *item, vnbool bloquea), BLOQUEOS)
X(func_bloquea_relleno, void, PRIMERO, (void *item, vnbool bloquea), BLOQUEOS)
X(func_escribe_vnmsolid, void, PRIMERO,
  (void *item, const void *solido, double ox, double oy, double oz, double Ux, double Uy, double Uz, double Vx,
   double Vy, double Vz, double Wx, double Wy, double Wz), SOLIDO)
X(func_es_referencia_bloque_geometria_bd3d_visible, vnbool, PRIMERO,
  (void *item, const vnwchar *nombre, double ox, double oy, double oz, double Ux, double Uy, double Uz, double Vx,
   double Vy, double Vz, double Wx, double Wy, double Wz, vnbool *es_parcial), VISIBILIDAD)
