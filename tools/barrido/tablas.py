"""What the sweep of arguments knows beyond the headers, one fact a row. A type or an operation that no row fits stops the
build with its name."""

# Handle -> (new object, destroyer of T *, number of elements for VN_INDICE). Expressions of fabricas.h; a row with a third
# column is for the operations whose name matches it, and stands before the general one.
MANEJOS = [
    # type, operations, creator, destroyer, elements
    ("vnfichero", r"vorn(bin_(cierra|abandona)\w*_para_escritura|file_(cerrar|abandonar)_fichero_escritura)", "flujo_de_guardado()",
     "vornfile_abandonar_fichero_escritura(p)", 0),
    ("vnfichero", r"bin_lee_SN", "flujo_con(\"S\")", "lc_fclose_seguro(p)", 0),
    ("vnfichero", r"vtxt_lee_bool", "flujo_con(\"a\\\\n\")", "lc_fclose_seguro(p)", 0),
    ("vnfichero", r"vtxt_leer_BOOL", "flujo_con(\"1\\\\n\")", "lc_fclose_seguro(p)", 0),
    ("vnfichero", r"(?!vtxt_|vornsave_registra_txt|vornsave_registra_texto)", "flujo_binario()", "lc_fclose_seguro(p)", 0),
    ("vnfichero", r"", "flujo_texto()", "lc_fclose_seguro(p)", 0),
    ("fichmem", r"", "fichmem_crea32(\"abc\", 3)", "fichmem_destruye(&p)", 3),
    ("arrBIT", r"", "bits()", "arr_DestruyeBIT(&p)", 3),
    ("arrCADENA", r"", "cadenas()", "arr_DestruyeCADENA(&p)", 3),
    ("arrCADENA_u", r"", "cadenas_u()", "arr_DestruyeCADENA_u(&p)", 3),
    ("arrPunto2DXPriv", r"", "arr_CreaPunto2DXPriv(3)", "arr_DestruyePunto2DXPriv(&p, nullptr)", 3),
    ("arrPuntero", r"ultfichsel_", "ultimos_ficheros()", "ultfichsel_destruye(&p)", 1),
    ("arrPuntero", r"vornsave_.*arr_punteros_array", "punteros_a_arrays()", "destruye_punteros_a_arrays(p)", 2),
    ("arrPuntero", r"rec_", "tiras()", "destruye_tiras(p)", 3),
    ("arrPuntero", r"vtm_", "fechas()", "vtm_libera_tm_arr(&p)", 2),
    ("arrPuntero", r"polin3d_contorno", "arr_CreaPunteroConTipo(0)",
     "arr_DestruyeEstructurasArrayST(&p, arrPunto3D, arr_DestruyePunto3D)", 0),
    ("arrPuntero", r"polin3d_ejes2d", "arr_CreaPunteroConTipo(0)", "arr_DestruyeEstructurasST(&p, ejes2d, ejes2d_destruye)", 0),
    ("arrPuntero", r"vornmesh_crea", "caras_de_tres()", "destruye_listas<arrULong, arr_DestruyeULong>(p)", 1),
    ("arrPuntero", r"vornmesh_(genera|obtener_caras)|vplan_escr_grid3d",
     "contornos_3D()", "destruye_listas<arrPunto3D, arr_DestruyePunto3D>(p)", 2),
    ("arrPuntero", r"vplan_escr_", "contornos_2D()", "destruye_listas<arrPunto2D, arr_DestruyePunto2D>(p)", 2),
    ("arrPuntero", r"", "punteros()", "arr_DestruyePunteroConTipo(&p)", 3),
    *(("arrPunto3D", f"vornmesh_{de}", crea, "arr_DestruyePunto3D(&p)", 0)
      for de, crea in (("copia_para", "arr_CreaPunto3D(36)"), ("crea", "arr_CreaPunto3D(3)"), ("genera_vectores", "normales()"))),
    ("arrPunto2D", r"vornmesh_set_coord", "arr_CreaPunto2D(36)", "arr_DestruyePunto2D(&p)", 36),
    ("arrULong", r"vornmesh_crea", "tipos_de_caras()", "arr_DestruyeULong(&p)", 1),
    ("arrPunto3D", r"(?!arr_)", "triangulo()", "arr_DestruyePunto3D(&p)", 3),
    ("mesh", r"", "vornmesh_genera_cubo(1., 2., 3.)", "vornmesh_destruye(&p)", 0),
    ("gcMat4x4", r"", "gcMat4x4_make_translation(1., 2., 3.)", "gcMat4x4_free(&p)", 0),
    (r"(gc\w+Array)", r"", r"\1_crea(3)", r"\1_free(&p)", 3),
    ("tmtime", r"", "vtm_crea(23, 59, 58, 31, 12, 2005)", "vtm_destruye(&p)", 0),
    (r"arr([A-Z]\w+)", r"", r"arr_Crea\1(3)", r"arr_Destruye\1(&p)", 3),
    (r"(arulong(?:64)?)", r"", r"\1_de_tres()", r"\1_destruye(&p)", 3),
    (r"(acadorde)", r"", r"\1_de_tres()", r"\1_destruye(&p)", 3),
    (r"(acadordeu)", r"", r"\1_de_tres()", r"\1_destruye(&p)", 3),
    ("apunorde", r"", "apunorde_de_tres()", "apunorde_nousar_destruye(&p)", 3),
    ("dirwin", r"", "dirwin_crea_UNICODE(VNU(\"./*\"))", "dirwin_destruye_UNICODE(&p)", 0),
    ("vnmutex", r"vnmutex_sal", "mutex_por_dentro()", "vnmutex_destruye_saliendo(&p)", 0),
    ("vnmutex", r"", "vnmutex_crea(\"barrido\")", "vnmutex_destruye_saliendo(&p)", 0),
    ("vncallback", r"", "callback_nousar_crea(con_parametros, nullptr)", "callback_nousar_destruye(&p)", 0),
    ("vnparametros", r"", "vornspy_parametro(2, 8, static_cast<void *>(nullptr), 4, 2)", "vornspy_destruye_parametros(&p)", 2),
    *(("vornsave", f"vornsave_graba_fin_{b}$", f"escribiendo([](vornsave *v) {{ vornsave_graba_inicio_{b}(\"a\", v); }})",
       "destruye_protocolo(p)", 0) for b in ("bloque", "bloque64", "seccion")),
    *(("vornsave", f"vornsave_lee_final_{b}$", f"leyendo([](vornsave *v) {{ vornsave_graba_inicio_{b}(\"a\", v), "
       f"vornsave_graba_fin_{b}(\"a\", v); }}, [](vornsave *v) {{ vornsave_se_inicia_lectura_{b}(\"a\", v); }})",
       "destruye_protocolo(p)", 0) for b in ("bloque", "bloque64")),
    ("vornsave", r"vornsave_lee_seccion", "leyendo(graba_seccion, [](vornsave *) {})", "destruye_protocolo(p)", 0),
    ("vornsave", r"vornsave_(ir|lee)_final_seccion", "leyendo(graba_seccion, entra_en_seccion)", "destruye_protocolo(p)", 0),
    ("vornsave", r"vornsave_fin_progreso", "escribiendo(pon_progreso)", "destruye_protocolo(p)", 0),
    ("vornsave", r"vtm_lee_hora_y_fecha", "leyendo(graba_fecha, [](vornsave *) {})", "destruye_protocolo(p)", 0),
    ("vornsave", r"", "protocolo()", "destruye_protocolo(p)", 0),
    ("rectangulo_t", r"", "rec_CreaDefinido(0, 0, 4, 1)", "rec_Destruye(&p)", 0),
    ("vmatr", r"vplan_append_matriz_transformacion", "vmatr_crea_matriz_identidad(4)", "vmatr_destruir_matriz(&p)", 0),
    ("vmatr", r"", "vmatr_crea_matriz_identidad(3)", "vmatr_destruir_matriz(&p)", 0),
    ("pto3dord", r"", "puntos_ordenados()", "pto3dord_destruye(&p)", 0),
    ("poligono_t", r"poligono_crea_pol", "poligono_vacio()", "destruye_poligono(p)", 0),
    ("poligono_t", r"", "poligono_de_tres()", "destruye_poligono(p)", 0),
    ("ejes2d", r"", "ejes2d_crea(0., 0., 0., 1., 0., 0., 0., 1., 0.)", "ejes2d_destruye(&p)", 0),
    ("idcolor", r"", "idcolor_crea_color_paleta_autocad(1)", "idcolor_destruye(&p)", 0),
    ("arraydxf", r"arraydxf_destruye", "capas()", "destruye_capas(p)", 0),
    ("arraydxf", r"", "capas_con_guardados()", "destruye_capas(p)", 0),
    ("gestcapa", r"gestcapa_fin.*", "grupo_de_capas()", "destruye_grupos(p)", 0),
    ("gestcapa", r"", "gestcapa_crea()", "destruye_grupos(p)", 0),
    ("tipolin", r"", "linea_de_trazos()", "tipolin_destruye(&p)", 0),
    ("gcMat4x4", r"", "gcMat4x4_make_translation(1, 2, 3)", "gcMat4x4_free(&p)", 0),
    (r"(gc(?:Float|Uint)\d+Array)", r"", r"\1_crea(3)", r"\1_free(&p)", 3),
    ("mesh", r"", "vornmesh_genera_cubo(1, 1, 1)", "vornmesh_destruye(&p)", 0),
    # Outputs: what the operation is about is there.
    ("salida_t", r"vplan_desapila_transformacion", "con(salida(), apila_una)", "cierra_salida(p)", 0),
    ("salida_t", r"vplan_fin_grupo_de_capas", "con(salida(), vplan_guardar_capas)", "cierra_salida(p)", 0),
    ("salida_t", r"vplan_toma_lo_apuntado", "vplan_abre_apuntador(0, nullptr, FALSO)", "cierra_salida(p)", 0),
    ("salida_t", r"vplan_veces_contado", "vplan_abre_contador(0, nullptr, FALSO)", "cierra_salida(p)", 0),
    ("salida_t", r"\w+_nousar_(set_|es_datos|obtener_datos)", "salida_sin_funciones(nullptr)", "cierra_salida(p)", 0),
    ("salida_t", r"", "salida()", "cierra_salida(p)", 0),
    ("planoABCD", r"", "ejes2d_crea_planoABCD(0., 0., 1., 0.)", "ejes2d_destruye_planoABCD(&p)", 0),
    # Owned texts and blocks.
    ("char", r"", "nuevo_texto()", "vornspy_free_pp(&p, 1)", 0),
    ("vnwchar", r"", "nuevo_texto_u()", "vornspy_free_pp(&p, sizeof(vnwchar))", 0),
    (r"(?:unsigned char|uint8_t|void|double|Punto2D|vnbool|float|u?int\d+_t)", r"", "nuevo_bloque()",
     "vornspy_free_pp(&p, 1)", 0),
    # A list of texts.
    (r"(?:char|vnwchar) \*", r"", "nuevo_bloque()", "destruye_lista(p)", 0),
]

# A second object of a handle, in another state: empty, of another kind, or one that refuses. As above.
OTROS = [
    ("vnfichero", r"", "flujo_que_no_escribe()", "lc_fclose_seguro(p)"),
    ("vornsave", r"", "protocolo_de_texto()", "destruye_protocolo(p)"),
    ("fichmem", r"", "fichmem_crea32(nullptr, 0)", "fichmem_destruye(&p)"),
    ("arrPunto2DXPriv", r"", "arr_CreaPunto2DXPriv(0)", "arr_DestruyePunto2DXPriv(&p, nullptr)"),
    ("arrPuntero", r"rec_", "arr_CreaPunteroConTipo(2)", "destruye_tiras(p)"),  # of null rectangles
    ("rectangulo_t", r"", "rec_Crea()", "rec_Destruye(&p)"),
    ("arrPuntero", r"(?!ultfichsel_)", "arr_CreaPunteroConTipo(0)", "arr_DestruyePunteroConTipo(&p)"),
    ("arrPuntero", r"", "ultfichsel_lee_todos_los_ultimos_ficheros_seleccionados()", "ultfichsel_destruye(&p)"),
    (r"arr(CADENA(?:_u)?)", r"", r"arr_Crea\1(2)", r"arr_Destruye\1(&p)"),  # of null texts
    (r"arr([A-Z]\w+)", r"", r"arr_Crea\1(0)", r"arr_Destruye\1(&p)"),
    (r"(arulong(?:64)?)", r"", r"\1_crea()", r"\1_destruye(&p)"),
    (r"(acadordeu?)", r"", r"\1_crea(FALSO)", r"\1_destruye(&p)"),
    ("apunorde", r"", "apunorde_nousar_crea(compara_direcciones, nullptr, nullptr)", "apunorde_nousar_destruye(&p)"),
    ("mesh", r"", "vornmesh_crea_vacio_sin_coords_textura()", "vornmesh_destruye(&p)"),
    ("gcMat4x4", r"", "gcMat4x4_make_scale(1., 0., 1.)", "gcMat4x4_free(&p)"),
    (r"(gc\w+Array)", r"", r"\1_crea(0)", r"\1_free(&p)"),
    ("vnparametros", r"", "vornspy_parametro(1, 4, 1)", "vornspy_destruye_parametros(&p)"),
    ("vmatr", r"", "vmatr_crea_matriz_nula(2, 5)", "vmatr_destruir_matriz(&p)"),
    ("pto3dord", r"", "pto3dord_crea_vacio()", "pto3dord_destruye(&p)"),
    ("poligono_t", r"", "poligono_vacio()", "destruye_poligono(p)"),
    (r"(gc(?:Float|Uint)\d+Array)", r"", r"\1_crea(0)", r"\1_free(&p)"),
    ("mesh", r"", "vornmesh_crea_vacio_sin_coords_textura()", "vornmesh_destruye(&p)"),
    # Two stages before one that draws in space.
    ("salida_t", r"", "cadena()", "cierra_cadena(p)"),
    ("idcolor", r"", "idcolor_crea_color_por_capa()", "idcolor_destruye(&p)"),
    ("arraydxf", r"", "arraydxf_crea()", "destruye_capas(p)"),
]

# What an object stood on, which goes after it, whoever destroyed it.
DESPUES = {"vornsave": "el_flujo().cierra()"}

# Types that are only declared so far: no object of theirs can exist, an address stands for one.
SIN_OBJETOS = {"escal", "idxdatos", "insocket"}

# Record -> a good value of it, for the parameter number {i}. One that is not here and has only numbers is all zero.
REGISTROS = {
    "vnoperaciones_fichero": "*operaciones_fichero_del_sistema()",
    "tm": "tm{{}}",  # a platform's may have pointers
    "vornconf_internacional": "vornconf_internacional{{47, 8, 10, 4, 3, 1, 0}}",
    "vnFILETIME": "vnFILETIME{{0, 0x1C60D9D}}",  # of 2005
    # No two points alike, nor three in a line.
    "Punto2D": "Punto2D{{{i}., {i}. * {i}.}}",
    "vplan_funciones": "vplan_funciones{{}}",
    "textoVar": "textoVar{{}}",
    "totales": "totales{{}}",
    "fichmem": None,  # through its factory
    "idcolor": None,
    "poligono_t": None,
}

# Type of call-back -> function of fabricas.h. One that is not here does nothing and returns nothing.
LLAMADAS_DE_VUELTA = [
    # type, operations, function
    ("vnfunc_copia", r"", "copia_igual"),
    ("vnfunc_destruye", r"vornspy_nousar_destruye_puntero_opcional", "libera"),
    ("vnfunc_destruye", r"", "anula"),
    ("vnfunc_mensaje", r".*(_u|textomsgu_obtener_mensaje(_idioma)?)$", "mensaje_u"),
    ("vnfunc_mensaje", r"", "mensaje_ansi"),
    ("vnfunc_lee_texto", r"", "lee_texto"),
    ("vnfunc_compara", r"arr_(Existe|Buscar)Unica", "compara_sitios"),
]

# Parameters whose kind the declaration does not tell: operation, parameter, expression of barrido.h ({n} is the name).
PARAMETROS = [
    (r".*", r"modulo", "modulo({n})"),
    (r".*", r"linea", "linea({n})"),
    # Axes that are axes, planes that are planes.
    (r"ejes2d_gira_ejes_sobre_U", r"Vy", "registro_de({n}, 1., EXIGE)"),
    (r"ejes2d_gira_ejes_sobre_V", r"Ux", "registro_de({n}, 1., EXIGE)"),
    (r"(ejes2d|Pln3D)_.*", r"(Ux|Vy|Wz).*", "real({n}, 1)"),
    (r"(ejes2d|Pln3D)_.*", r"(U[yz]|V[xz]|W[xy]).*", "real({n}, 0)"),
    (r"ejes2d_(vector_3D_a_2D|polilinea3D_a_2D).*", r"vz|Zo", "real({n}, 0)"),
    (r"nousar_punto_assert_iguales", r"p|q", "registro_de({n}, Punto2D{{}}, EXIGE)"),
    (r"ejes2d_ejes_(horizontales|para_proyectar).*", r"A|B", "real({n}, 0)"),
    # A quarter of a circle of radius 1.
    (r"Pln3D_puntos_arco", r"._centro|y_ini|x_fin|z_.*", "real({n}, 0)"),
    (r"Pln3D_puntos_arco", r"diametro", "real({n}, 2)"),
    # Rectangles with an inside, a stretch with a length, a point that is there, a weight inside its section.
    (r"rec_Crea(Definido|Horizontal|Vertical)|vnspline_trazado_tramo_curvo", r"[oxy][xy0]", "real({n}, 0)"),
    (r"pto3dord_ind_punto", r"y|z", "real({n}, 0)"),
    (r"rectng_AnchosDesdePuntoFijo", r"coord_._cdg", "real({n}, 0)"),
    (r"vornmat_modulo_poisson", r"modulo_elasticidad", "real({n}, 2.5)"),
    (r"vornmesh_obten_indices.*", r"tipo_primitiva", "enteros({n}, {{4, 5, 7, 8, 6, 0}})"),
    # The address of a pointer of any type.
    (r"vornspy_nousar_(free_pp|asigna_doble_puntero_no_null)", r"p", "hueco({n}, fab_void, EXIGE)"),
    (r"vornspy_nousar_(asigna_doble_puntero|destruye_puntero_opcional)", r"p", "hueco({n}, fab_void, HUECO_OPCIONAL)"),
    (r"widestr_fun_destruye", r"s", "hueco({n}, fab_void, EXIGE)"),
    # The list that the factory makes has eight.
    (r"\w+_destruyeListaCadenas", r"n", "enteros({n}, {{8, 0, 3}})"),
    # The address of a variable that lives until the exit.
    (r"alsalir_.*", r"cadena|dato", "direccion_fija({n}, EXIGE)"),
    (r"apunorde_nousar_(inserta_original|existe_elemento)", r"p", "direccion_fija({n}, EXIGE)"),
    (r"num_double_a_string(_u)?", r"sep_millares", "enteros({n}, {{'.', ',', 0, -1}})"),
    (r"num_double_a_string(_u)?", r"sep_decimales", "enteros({n}, {{',', '.', 0, -1}})"),
    (r"bin_graba_SN", r"dato", "enteros({n}, {{'S', 'N', 0, -1}})"),
    (r"version_establece_u", r"revision", "enteros({n}, {{'b', '-', ' ', -1}})"),
    # Room as the sizes say.
    (r"f_lc_f(read|write).*", r"destino|origen", "bufer({n}, 1, 4096, -1, OPCIONAL)"),
    (r"f_lc_f(read|write).*|lc_quedan", r"tamanyo|numero", "enteros({n}, {{1, 0, 3, 16}})"),
    (r"vornspy_(nousar_calloc|reserva_seguro)", r"num|tamanyo", "enteros({n}, {{1, 0, 3, 1000}})"),
    (r"vornspy_parametro", r"n", "enteros({n}, {{1, 3, 16}})"),
    (r"vornspy_parametro_\w+", r"i", "enteros({n}, {{0, 1, 2, 4294967295}})"),
    (r"arr_AumentaTamanyoBIT", r"n", "enteros({n}, {{8, 3, 2, 0, 1000000}})"),
    # Axes that have an inverse, circles one within the other.
    (r"vplan_append_(ejes2D|sistema_coordenadas)", r"U[yz]|V[xz]|X[yz]|Y[xz]|Z[xy]", "real({n}, 0)"),
    (r"vplan_escr_arandela", r"radio_mayor", "real({n}, 2)"),
    (r"vornmesh_obten_indices_triangulos.*", r"tipo_primitiva", "enteros({n}, {{4, 5, 6, 7, 8, 0, 4294967295}})"),
    # The datum of a device is anybody's; the name is the one that the factories give.
    (r"vplan_nousar_abre_.*", r"item", "registro_de({n}, elemento(1), EXIGE)"),
    (r"\w+_nousar_(set_|es_datos|obtener_datos).*", r"tipo|tipo_datos_dispositivo", 'textos({n}, {{"barrido", "otro", "", "%s"}})'),
    (r"vplan_veces_contado", r"slot", 'textos({n}, {{"func_DrawLinea", "otra", ""}})'),
    # Layers, pens and line types that there are.
    (r"arraydxf_cambiar_capa_u", r"num_capa", "enteros({n}, {{1, 0, 2, 254, 255}})"),
    (r"capadxf_convertir_pluma", r"pluma", "enteros({n}, {{1, 0, 5, 254, 255}})"),
    (r"tipolin_dame_patron_aproximado", r"tipo_linea", "enteros({n}, {{1, 0, 8, 11, 255}})"),
    (r"idcolor_crea_color_paleta_vorn", r"color_paleta", "enteros({n}, {{1, 0, 254, 255}})"),
    # Not to sleep through the whole range.
    (r"vtm_delay", r"segundos", "enteros({n}, {{0, 900, 4294967295}})"),
    # Texts of a form.
    (r"vtm_convierte_cadena_a_tm", r"cadena", 'textos({n}, {{"31/12/2005 23:59:58", "1/1/70", "31/4/2001", "", "99999999999", "%s"}})'),
    (r"vtm_convierte_cadena_a_tm_u", r"cadena", 'textos_u({n}, {{u"31/12/2005 23:59:58", u"1/1/70", u"31/4/2001", u"", u"99999999999"}})'),
    (r"f_lc_fopen_modo_escritura_u", r"modo", 'textos_u({n}, {{u"w", u"r", u"r+b", u"", u"%s"}})'),
    (r".*", r"modo", 'modo_de_abrir<{t}>({n})'),
    (r"vnnumlet_(numero|moneda)_en_cifras_a_letra", r"cadena", 'textos({n}, {{"12.50", "0", "", "-1", "999999999999999999999.1", "1,5"}})'),
    (r"vornfile_.*", r"sufijo", 'textos_u({n}, {{u"_X$", u"", u"a/b"}})'),
    (r"vornstrhex_.*", r"texto", 'textos({n}, {{"6162", "", "6", "zz", "0g", "%s"}})'),
    (r".*", r"patron", 'patron_de_ficheros<{t}>({n})'),
    # Keys that may be made in a real registry.
    (r"vornreg_.*_u", r"clave", 'textos_u({n}, {{u"Software\\\\nucleos_barrido", u"", u"\\\\%s\\\\"}})'),
    (r"vornreg_.*", r"clave", 'textos({n}, {{"Software\\\\nucleos_barrido", "", "\\\\%s\\\\"}})'),
    # Names of files and directories.
    (r"vornbin_marca_fichero_ejemplo_u", r"nomfich", 'textos_u({n}, {{u"obra.bin", u"entrada.bin", u"no_hay", u"carpeta", u""}})'),
    *((f"vornbin_(se_)?abre_fichero_para_lectura_{que}.*", r"nomfich",
       f'textos_u({{n}}, {{{{u"{uno}", u"{otro}", u"entrada.bin", u"proyecto.bin", u"obra.bin", u"no_hay", u"carpeta", u""}}}})')
      for que, uno, otro in (("con_version", "firmado.bin", "suelto.bin"), ("sin_cabecera", "suelto.bin", "firmado.bin"))),
    (r"vornfile_hacer_definitivo.*", r"temporal", 'textos_u({n}, {{u"flujo.txt", u"no_hay", u"carpeta", u""}})'),
    (r"vdir_borra_(contenido_directorio|directorio_y_subdirectorios)_UNICODE", r"ruta", "fichero_carpeta<{t}>"),
    (r"vdir_crea_directorios_UNICODE|vdir_renombra_fichero_UNICODE", r"ruta|destino", "fichero_nuevo<{t}>"),
    (r".*", r"obra|path_lista", "fichero_nuevo<{t}>"),
    (r".*", r"nomfich|fichero|nombre_fichero|nombre_fichero_obra|ruta|rutas?_\w+|path|path_\w+|directorio", "fichero<{t}>"),
    (r"(f_lc_fopen|vdir_|vorndir_|fichmem_|fichconf_|vnlongpath_|timefich_|vf_|vornfile_|tmpfich).*",
     r"nombre|origen|destino|fich\w*", "fichero<{t}>"),
]

# Calls that need more than their parameters: operation -> expression over a[0], a[1]...
LLAMADAS = {
    # Pairs of a size and a value, as many as the greatest count.
    "vornspy_parametro": "r.p = vornspy_parametro(static_cast<int>(a[0].i), " + ", ".join(["4, 1"] * 16) + ")",
    "contexto_fueraDeContexto_u": "contexto_dentroDeContexto_u({argumentos}), contexto_fueraDeContexto_u({argumentos})",
    # Not on the heap: closed here.
    "vnlongpath_CreateFileW": "vnlongpath_CloseHandle(vnlongpath_CreateFileW({argumentos}))",
}

# Results that are T * and stay another's.
PRESTADOS = [
    r"arr_GetBuffer\w+", r"vmatr_get_buffer_matriz", r"arr_GetPunteroConTipo", r"apunorde_nousar_(get|quita|busca|dame)", r"vornspy_parametro_puntero",
    r"vornspy_nousar_copia_puntero_opcional", r"lc_fgetws", r"vtxt_lee_linea", r"gc\w+Array_get_\w*buffer", r"vplan_get_escalas\w*",
    r"vornplan_salida_con_implementacion_cotas_dwg", r"vornplan_nousar_obtener_datos_\w+",
]

# Memory that stays on purpose after the calls.
RETIENE = [
    (r"alsalir_.*|nousar_atexit_anade", "the registry keeps it until the exit"),
    (r"contexto_dentroDeContexto_u", "the thread stays inside"),
]

# Operations that put a new object into an owner's slot and leave what was there to the caller, or that hand back what they
# were given when they fail.
DEJAN_EL_ANTERIOR = [r"(vtxt|bin)_trata_cadena\w*", r"vornspy_nousar_realloc"]

# What comes back after a report where it is not 0, null or FALSO: operation, values ("first" is the first argument, "*" what
# the third column says).
NEUTROS = [
    (r"cambtipo_.*", "*", "the nearest value of the type"),
    (r"arr_(Buscar(CADENA|Puntero|Unica)|InsertarPunteroOrdenado).*", "4294967295", ""),
    (r"lc_ftell|vornio_ftell_i64|vio_telli64|f_getc_sin_error|vnstdc__?w?putenv", "-1", ""),
    (r"vnlongpath_GetFileAttributesW", "4294967295", ""),
    (r"vnlongpath_CreateFileW", "*", "closed by the sweep"),
    (r"vnstdc_(str|wcs|mem)(n?cpy|cat)", "first", ""),
    (r"nousar_(msglocal_)?original(_u)?|vorntime_obtener_nombre_mes(_abreviado)?(_u)?|vtm_letra_inicial.*", "*", "an empty text"),
    (r"cnv_strextunids", "*", "an empty text"),
    (r"lc_texto_error_u", "*", "an empty text"),
    (r"convers_valor_.*", "*", "the value as it came"),
    (r"idcolor_color_rgb(_iluminado|_oscurecido|_modificado|_mezcla|a_lighten)", "*", "the value as it came"),
    (r"idcolor_color_rgb_segun_fondo\w*", "*", "the value of the light background"),
    (r"idcolor_crea_color_paleta_vorn|idcolor_lee", "*", "a colour all the same"),
    (r"vplan_(separacion_visible|tamanyo_punto_visible)\w*", "*", "the length where no device tells"),
    (r"vplan_obtener_factor_escala\w*|vornplan_transforma_magnitud", "*", "as without transformations"),
    (r"vplan_(id_color|color_rgb|hay_que_cambiar)\w*", "*", "as on a white background"),
    (r"vplan_capadxf_actual", "255", ""),
    (r"vtm_crea", "*", "the start of 1970"),
    (r"vornspy_(nousar_(malloc|calloc|realloc)|reserva_seguro)", "*", "a block all the same"),
    (r"unicode_pagina_ANSI_idioma", "1252", ""),
    (r"f_lc_fopen_modo_escritura_u", "*", "a stream all the same"),
    (r"vplan_dame_texto_var", "*", "the text as it came"),
    (r"vplan_orientacion_correcta_para_texto", "1", ""),
    (r"vplan_justificacion_correcta_para_texto", "first", ""),
]

# Broken values that the documentation accepts: operation, parameter, value.
DEJA_PASAR = [
    # What has no unit comes back before the direction counts.
    *(("cnv_convierte", "sentido", v) for v in ("-2147483648", "-1", "2", "2147483647")),
]

# Operations that cannot be called blindly, each with its reason.
EXCLUIDAS = [
]

# Operations whose call with good values reports: why, and their names. One that is not here and reports is a fault, and so
# is one that is here and does not.
INFORMAN = [
    ("it is the report", """
        error_interno error_interno_default_error error_interno_liberando_mensaje_u error_interno_msg error_interno_msg_u
        error_interno_punto_2D lc_error_escribiendo_fichero lc_error_leyendo_fichero"""),
    ("no device of the factories knows", """
        vplan_get_escalas vplan_get_escalas_overlay2d vplan_obtener_limites vplan_set_escalas vplan_tamanyo_texto_visible"""),
    ("its destination is not part of the library yet", """
        vornsave_cierra_fichmem_para_escritura vornsave_cierra_fichmem_para_lectura
        vornsave_cierra_fichmem_para_lectura_al_final vornsave_fichmem_para_escritura vornsave_fichmem_para_escritura_ex
        vornsave_fichmem_para_lectura vornsave_registra_idx vornsave_registra_soc vornsave_registra_texto_editable"""),
    ("its output draws in the plane, and heights in pixels ask for a device that keeps texts in one of space",
     "vplan_escr_texto_con_alto_en_pixeles_con_orientacion_correcta_u"),
]

# What an operation may have set for the whole process, and how it is brought back: operation, expression.
RESTAURA = [
    ("p_cambia_eps", "p_cambia_eps(0.00005)"),
    ("arraydxf_defensivo_set_es_dibujo_capas_pilares_estructa", "arraydxf_defensivo_set_es_dibujo_capas_pilares_estructa(FALSO)"),
    ("setroundoff", "setroundoff(0.00001)"),
    ("operaciones_fichero_instala", "operaciones_fichero_instala(nullptr)"),
    ("msidioma_establece_idioma", "msidioma_establece_idioma(0)"),
    ("fichconf_registra_nombre_distribuidor_no_vorn", "fichconf_registra_nombre_distribuidor_no_vorn(VNU(\"barrido\"))"),
    ("fichconf_establece_directorio_base", "fichconf_establece_directorio_base(nullptr)"),
    ("vnmutex_establece_plazo", "vnmutex_establece_plazo(100)"),
    ("vnregional_establece", "vnregional_establece(nullptr)"),
    ("vornplan_set_permitir_orientacion_correcta_textos", "vornplan_set_permitir_orientacion_correcta_textos(CIERTO, nullptr)"),
    ("vornbin_abre_fichero_para_escritura_u", "prepara_proyecto()"),
]
