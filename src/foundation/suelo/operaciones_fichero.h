/* The one table of file operations: everything of the library that touches a file goes through it. A host or a test may
   install its own table, to watch the operations or to make them fail. */
#ifndef VN_OPERACIONES_FICHERO_H
#define VN_OPERACIONES_FICHERO_H

#include "tipos.h"

/** An open file as the platform knows it; VN_FICHERO_NINGUNO is none. */
typedef intptr_t vnid_fichero;
#define VN_FICHERO_NINGUNO ((vnid_fichero)-1)

/** How an operation ended; the same on every platform. */
typedef enum vnerror_fichero {
    VN_FICH_BIEN = 0,
    VN_FICH_SIN_ESPACIO = 1,   /**< disk full, or a quota or a limit of size reached */
    VN_FICH_SIN_PERMISO = 2,   /**< refused by rights, or read-only */
    VN_FICH_NO_EXISTE = 3,     /**< the file, or a directory on the way to it, is not there */
    VN_FICH_YA_EXISTE = 4,     /**< the new name is taken */
    VN_FICH_INTERRUMPIDA = 5,  /**< nothing was done; do it again */
    VN_FICH_COMPARTIDO = 6,    /**< another holder of the file or of the zone is in the way: may pass */
    VN_FICH_ES_DIRECTORIO = 7, /**< a directory where a file is meant */
    VN_FICH_NO_ADMITIDO = 8,   /**< this file system or this kind of file cannot do it */
    VN_FICH_ES = 9,            /**< input or output error of the device */
    VN_FICH_OTRO = 10,
    VN_FICH_SIN_ASEGURAR = 11, /**< done, but it may not outlive a power failure: its directory was not flushed */
    VN_FICH_DATOS = 12         /**< what was told to be written makes no sense or does not fit, and was reported */
} vnerror_fichero;

/* How a file is opened; one of the first two or both, with any of the others. */
#define VN_ABRE_LECTURA 1u    /**< to read */
#define VN_ABRE_ESCRITURA 2u  /**< to write */
#define VN_ABRE_CREA 4u       /**< made when it is not there */
#define VN_ABRE_TRUNCA 8u     /**< emptied, once it is open */
#define VN_ABRE_ANADE 16u     /**< each write goes to the end, in one step with finding it */
#define VN_ABRE_EXCLUSIVO 32u /**< no other writer, before or while it is open */
#define VN_ABRE_NUEVO 64u     /**< with VN_ABRE_CREA: it must not be there */
#define VN_ABRE_PROPIO 128u   /**< with VN_ABRE_EXCLUSIVO: not through a link, and nobody else moves or removes it */
#define VN_ABRE_PRIVADO 256u  /**< with VN_ABRE_NUEVO: for its user alone until it is given other rights */

/* How a zone is locked. */
#define VN_ZONA_EXCLUSIVA 0u  /**< nobody else holds any of it */
#define VN_ZONA_COMPARTIDA 1u /**< others may hold it shared */
#define VN_ZONA_ESPERA 2u     /**< added to either: waits until it is free */

/** What is known of a name. */
typedef struct vnestado_fichero {
    uint64_t tamanyo; /**< bytes; 0 for what has no size */
    vnbool es_directorio;
    vnbool es_normal; /**< a regular file: it has a size and can be read at any position */
} vnestado_fichero;

/** The operations. Names are wide, of any length; the results are told above. None reports. */
typedef struct vnoperaciones_fichero {
    vnerror_fichero (*abre)(const vnwchar *nombre, uint32_t como, vnid_fichero *id);
    /** Up to `n` bytes at `posicion`; `*leidos` 0 is the end. */
    vnerror_fichero (*lee)(vnid_fichero id, int64_t posicion, void *destino, size_t n, size_t *leidos);
    /** Up to `n` bytes at `posicion`, -1 being the end of a file opened with VN_ABRE_ANADE; fewer may be written. */
    vnerror_fichero (*escribe)(vnid_fichero id, int64_t posicion, const void *origen, size_t n, size_t *escritos);
    /** To the disk itself. After a failure what was written is lost: it is not to be tried again. */
    vnerror_fichero (*vuelca)(vnid_fichero id);
    vnerror_fichero (*trunca)(vnid_fichero id, int64_t tamanyo);
    vnerror_fichero (*estado_abierto)(vnid_fichero id, vnestado_fichero *estado);
    /** Locks belong to the open file: another opening of it by the same process is somebody else. */
    vnerror_fichero (*bloquea)(vnid_fichero id, int64_t inicio, int64_t tamanyo, uint32_t modo);
    vnerror_fichero (*desbloquea)(vnid_fichero id, int64_t inicio, int64_t tamanyo);
    vnerror_fichero (*cierra)(vnid_fichero id);
    vnerror_fichero (*estado)(const vnwchar *nombre, vnestado_fichero *estado);
    /** The absolute name, at most `maximo` units with the zero, of the file that a name leads to through links; the
        file need not be there, its directory must. */
    vnerror_fichero (*resuelve)(const vnwchar *nombre, vnwchar *real, size_t maximo);
    /** A second name for the same file; `nuevo` must be free. */
    vnerror_fichero (*enlaza)(const vnwchar *existente, const vnwchar *nuevo);
    /** In one step, replacing what `nuevo` names; both in one file system. */
    vnerror_fichero (*renombra)(const vnwchar *existente, const vnwchar *nuevo);
    /** As renombra, of a file that is open with VN_ABRE_PROPIO and stays so. */
    vnerror_fichero (*renombra_abierto)(vnid_fichero id, const vnwchar *existente, const vnwchar *nuevo);
    /** VN_FICH_BIEN when the name, itself and not as a link, is that of this very open file; VN_FICH_YA_EXISTE when it
        is another's. */
    vnerror_fichero (*es_su_nombre)(vnid_fichero id, const vnwchar *nombre);
    vnerror_fichero (*borra)(const vnwchar *nombre);
    /** As borra, of what somebody left; VN_FICH_COMPARTIDO while somebody has it open with VN_ABRE_EXCLUSIVO. */
    vnerror_fichero (*retira)(const vnwchar *nombre);
    /** Gives an open file the rights of a named one, and its group, owner and attributes as far as that is allowed;
        VN_FICH_NO_ADMITIDO where files have none of their own. */
    vnerror_fichero (*copia_permisos)(const vnwchar *origen, vnid_fichero destino);
    /** Makes the name `nombre` of a file last. */
    vnerror_fichero (*vuelca_directorio)(const vnwchar *nombre);
    /** Waits between two tries. */
    void (*espera)(uint32_t milisegundos);
} vnoperaciones_fichero;

VN_C_INICIO

/** The platform's own operations, to call from a table that wraps them. Every entry is there. */
const vnoperaciones_fichero *operaciones_fichero_del_sistema(void);
/** Installs a copy of the table for the whole process; an entry that is null is the platform's own, and a null table
    is all of them. No file operation may be running in another thread. */
void operaciones_fichero_instala(VN_OPC const vnoperaciones_fichero *tabla);
/** The table in use. */
const vnoperaciones_fichero *operaciones_fichero_actuales(void);

VN_C_FIN

#endif
