/* Configuration places of the programs of the family: which directory is whose.

       <base>/<distributor>            the configuration directory
   <base>/<distributor>/estructa   the directory of what all its programs share The base is the user's: on Windows the
   variable APPDATA (or what the system gives when it is not set), on Linux the variable XDG_CONFIG_HOME or ".config" of
   the home directory, unless the host sets another. The distributor is "VORN" until another is registered. Paths are
   wide, new texts. Threads: any, those that set included. */
#ifndef VN_FICHCONF_H
#define VN_FICHCONF_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** Path of the file `nombre` in the configuration directory; of the directory itself if `nombre` is empty. Nothing is
    created. Null if the user has no such place. */
vnwchar *fichconf_dame_ruta_fichero_en_directorio_configuracion(const vnwchar *nombre);
/** The same in the directory of what is shared. */
vnwchar *fichconf_dame_ruta_fichero_en_directorio_estructa(const vnwchar *nombre);
/** Creates the directory of what is shared, and those above it, if it is not there. FALSO, without a report, if it
    cannot be created. */
vnbool fichconf_crea_directorio_estructa(void);
/** Head of the paths of the user's work, without a separator at its end. Windows: the drive of the program if a
    directory can be made in its root, else the system's drive, as "C:". Linux: the user's data directory,
    XDG_DATA_HOME or ".local/share" of the home directory. */
vnwchar *fichconf_dame_unidad_escribible(void);
/** Registers the distributor whose name the configuration directory bears, for the whole process. A name that is not
    one part of a valid path is reported, and nothing changes. */
void fichconf_registra_nombre_distribuidor_no_vorn(const vnwchar *nombre);
/** Sets the base directory for the whole process; null goes back to the user's own. */
void fichconf_establece_directorio_base(VN_OPC const vnwchar *ruta);

VN_C_FIN

#endif
