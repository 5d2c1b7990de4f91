/* Safe replacement of files: at every moment, a power failure included, a name leads to its old content or to the new
   one, whole. The content that was replaced stays as a safety copy, the name with ".bak" appended. */
#ifndef VN_VORNFILE_H
#define VN_VORNFILE_H

#include "foundation/lc_fichero.h"

VN_C_INICIO

/** The finished temporary, closed, becomes `destino`, in the same directory: it is flushed to the disk, what `destino`
    was becomes the safety copy, one rename replaces, and the directory is flushed. CIERTO only when the new content is
    in place and on the disk. A failure is reported as "lc_error_escribiendo_fichero" with the name `destino`, which
    then has its old content still (the new one if only the last flush, the directory's, failed), and the temporary is
    removed. A file that may not be written, or that has an only writer (f_lc_fopen_modo_escritura_u), is not replaced.
    Not to be called when a write, a flush or the close of the temporary has failed. */
vnbool vornfile_hacer_definitivo_fichero_temporal_y_hacer_copia_seguridad_u(const vnwchar *destino,
                                                                            const vnwchar *temporal);
/** Opens a temporary beside `nombre` (the name with "_TM$" appended, overwritten if one was left) for binary writing;
    null, reported, if that fails. Closed by the operation that follows. ANSI name, or wide in the form `_u`. */
vnfichero *vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar(const char *nombre);
vnfichero *vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(const vnwchar *nombre);
/** Closes such a stream, and the temporary becomes `nombre` as above. CIERTO only when the new content is in place and
    on the disk. After a failure to write the temporary is removed and the old content stays. */
vnbool vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar(VN_CONSUME vnfichero *f, const char *nombre);
vnbool vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(VN_CONSUME vnfichero *f, const vnwchar *nombre);

/** Copies the file `origen` over `destino`, which gets the new content whole or keeps the old one. FALSO, without a
    report, on failure. ANSI names, or wide in the form `_u`. */
vnbool vf_copyfile_seguro(const char *origen, const char *destino);
vnbool vf_copyfile_seguro_u(const vnwchar *origen, const vnwchar *destino);
/** Appends the content of `origen` to `destino`, made if it is not there. FALSO on failure, reported by the stream. */
vnbool vf_appendfile_u(const vnwchar *origen, const vnwchar *destino);

VN_C_FIN

#endif
