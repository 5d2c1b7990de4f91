/* Files and directories by name: paths and their parts, tests, changes, lists.

   Both separators are accepted in every path on both platforms; results have the platform's. A path may be
   longer than 260 characters (on Linux directories of any depth are made, listed and removed; a file is opened by 4095
   bytes at most) and hold any Unicode character; on Linux a name that is not UTF-8 comes back as it was. The
   operations of a path's text do not look at the disk and answer alike on both platforms:
       \\server\share \ directory \ name . extension         C: \ directory \ name . extension
       '---unit-----'                                        unit
   The extension is what follows the last full stop of the last part, unless that stop is its first or last
   character. An operation without _UNICODE takes and gives ANSI text, of the active code page:
   1252 on Linux too until the host sets another (unicode.h), so that a name in UTF-8 would be another. Results are
   new texts. */
#ifndef VN_VDIR_H
#define VN_VDIR_H

#include "../suelo/tipos.h"

/* Lists of texts (arr.h). */
typedef struct arrCADENA_u arrCADENA_u;

/* Which paths vdir_es_path_valido_UNICODE allows. */
#define VDIR_PATH_CUALQUIERA 0u
#define VDIR_PATH_ABSOLUTO 1u
#define VDIR_PATH_RELATIVO 2u

VN_C_INICIO

/** `a`, one separator, `b`; an empty one is left out. Separators become the platform's. */
vnwchar *vdir_concatena_directorios_UNICODE(const vnwchar *a, const vnwchar *b);
char *vdir_concatena_directorios(const char *a, const char *b);
/** Path out of its parts, the reverse of vdir_splitpath_con_comprobacion_UNICODE; null and empty parts are left out.
    Separators and the full stop are added where they are missing. */
vnwchar *vdir_makepath_UNICODE(VN_OPC const vnwchar *unidad, VN_OPC const vnwchar *directorio,
                               VN_OPC const vnwchar *nombre, VN_OPC const vnwchar *extension);
/** The parts of a path: unit, directory (with its first separator, without the last one), name without extension,
    extension without its full stop; a missing one is an empty text. FALSO and null texts if the path is not valid;
    names that only Windows refuses are taken apart all the same. */
vnbool vdir_splitpath_con_comprobacion_UNICODE(const vnwchar *ruta, VN_SALIDA_OPC vnwchar **unidad,
                                               VN_SALIDA_OPC vnwchar **directorio, VN_SALIDA_OPC vnwchar **nombre,
                                               VN_SALIDA_OPC vnwchar **extension);
/** `nombre` with the extension `ext` (with or without full stop) at its end, unless it ends so already, in any case. */
vnwchar *vdir_nombre_fichero_con_ext_UNICODE(const vnwchar *nombre, const vnwchar *ext);
/** Last part of the path without its extension. */
vnwchar *vdir_nombre_base_fichero_UNICODE(const vnwchar *ruta);
/** Extension of the last part, without full stop; empty if there is none. */
vnwchar *vdir_extension_fichero_UNICODE(const vnwchar *ruta);
/** The directory that holds the path's last part: "" for a plain name, with a separator at the end only for a root. */
vnwchar *vdir_ruta_acceso_directorio_fichero_UNICODE(const vnwchar *ruta);
char *vdir_ruta_acceso_directorio_fichero(const char *ruta);
/** The path without the extension of its last part. */
vnwchar *vdir_ruta_y_nombre_fichero_sin_extension_UNICODE(const vnwchar *ruta);
/** Whether the text can be the path of a file or directory on every platform: not empty, no control characters and
    none of <>"|?* or a colon but the drive's, no part of more than 255 characters, none that is a device of Windows
    ("con", "NUL.txt", "COM1") or ends in a full stop or a blank ("." and ".." may). `clases` is one of VDIR_PATH_*. */
vnbool vdir_es_path_valido_UNICODE(const vnwchar *ruta, VN_RANGO(0, 2) uint32_t clases);
/** The unit where the running program lies: "C:" or "\\server\share"; always empty on Linux. */
vnwchar *vdir_disco_de_programa_UNICODE(void);

/** Whether there is a file (not a directory) or a directory of this name; links are followed. */
vnbool vdir_existe_fichero_UNICODE(const vnwchar *ruta);
vnbool vdir_existe_fichero(const char *ruta);
vnbool vdir_existe_directorio_UNICODE(const vnwchar *ruta);
vnbool vdir_existe_directorio(const char *ruta);
/** Whether the file exists and can be opened for reading. */
vnbool vdir_se_puede_leer_UNICODE(const vnwchar *ruta);
/** Whether the file can be opened for writing (it is not changed) or, where there is none, be created. */
vnbool vdir_se_puede_escribir_UNICODE(const vnwchar *ruta);
/** Whether a file can be created in the directory: one is, and removed. */
vnbool vdir_se_puede_escribir_en_directorio_UNICODE(const vnwchar *ruta);
vnbool vdir_se_puede_escribir_en_directorio(const char *ruta);

/** Length of a file in bytes. One that is not there is reported, and so is one past 32 bits where the result is of 32
    bits; then 0. */
uint64_t vdir_longitud64_fichero_u(const vnwchar *nombre);
uint32_t vdir_longitud_fichero_u(const vnwchar *nombre);
/** The same without a report: FALSO, and 0 in `tamanyo`, if there is no such file. */
vnbool vdir_longitud_fichero_seguro_u(const vnwchar *nombre, VN_SALIDA uint64_t *tamanyo);

/** Removes a file (of a link the link itself). CIERTO when it was removed; a failure is reported, and FALSO. */
vnbool vdir_borra_fichero_UNICODE(const vnwchar *ruta);
/** The same; CIERTO without a report if there is no such file. */
vnbool vdir_borra_fichero_si_existe_UNICODE(const vnwchar *ruta);
/** The same; a failure is not reported: FALSO if the file is still there or never was. */
vnbool vdir_borra_fichero_con_comprobacion_UNICODE(const vnwchar *ruta);
/** Renames a file or directory. It replaces nothing: an existing `destino` is a failure, which is reported,
    and FALSO. */
vnbool vdir_renombra_fichero_UNICODE(const vnwchar *origen, const vnwchar *destino);
/** The same; a failure is not reported. */
vnbool vdir_renombra_fichero_si_es_posible_UNICODE(const vnwchar *origen, const vnwchar *destino);

/** Creates the directory and those above it that are missing. CIERTO when it is there at the end; a failure is
    reported if `informa`. An empty path is the current directory. */
vnbool vdir_crea_directorios_UNICODE(const vnwchar *ruta, vnbool informa);
/** The same for a path that may end in a file's name: a last part with no separator behind it is not created. A
    failure is reported. */
vnbool vdir_crea_directorios_del_path_UNICODE(const vnwchar *ruta);
/** Creates the directories that a file needs. A failure is reported, but for _si_es_posible. */
vnbool vdir_crea_directorios_fichero_UNICODE(const vnwchar *fichero);
vnbool vdir_crea_directorios_fichero_si_es_posible_UNICODE(const vnwchar *fichero);
/** Removes all that the directory holds, or that and the directory itself. Links are removed, never followed, also one
    that takes a directory's place meanwhile. Reported, and FALSO, if something is left, and for a root, "." and "..";
    CIERTO if the directory was not there. */
vnbool vdir_borra_contenido_directorio_UNICODE(const vnwchar *ruta);
vnbool vdir_borra_directorio_y_subdirectorios_UNICODE(const vnwchar *ruta);

/** Names, without path, of the files or of the directories in `ruta` that match `mascara`: '*' any text, '?' any one
    character, "*" and "*.*" all; case as the platform has it. In the order of their characters' numbers. FALSO and an
    empty list if the directory cannot be read. */
vnbool vdir_lista_de_ficheros_UNICODE(const vnwchar *ruta, const vnwchar *mascara, VN_SALIDA arrCADENA_u **lista);
vnbool vdir_lista_de_directorios_UNICODE(const vnwchar *ruta, const vnwchar *mascara, VN_SALIDA arrCADENA_u **lista);
/** Frees a list of either operation. */
void vdir_libera_lista_de_ficheros_UNICODE(VN_OPC arrCADENA_u **lista);

VN_C_FIN

#endif
