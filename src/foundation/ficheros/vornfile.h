/* Safe replacement of files: at every moment, a power failure included, a name leads to its old content or to the new
   one, whole. The content that was replaced stays as a safety copy, the name with ".bak" appended.

   One saver at a time: while one has a file's temporary open a second one, of this or another program, is refused after
   a second, before it harms anything. The name is made absolute, and links are followed to the file itself, when it is
   opened; a file that is not a regular one is refused. The new file has the rights of the old one, its group, its owner
   where that is allowed, its access list, and on Windows its attributes; its temporary has them before the first byte.
   Other hard links keep the old content: that is the price of replacing in one step. A temporary that nobody holds,
   link or other thing under its name, is removed and made anew. A name that leaves no room for what is appended is cut
   before it. Why something failed is told by lc_ultimo_error(NULL), and in the report behind the name. */
#ifndef VN_VORNFILE_H
#define VN_VORNFILE_H

#include "lc_fichero.h"

VN_C_INICIO

/** The finished temporary, closed, becomes `destino`, in the same directory: it is flushed to the disk, what `destino`
    was becomes the safety copy, one rename replaces, and the directory is flushed. CIERTO only when the new content is
    in place and on the disk. A failure is reported as "lc_error_escribiendo_fichero" with the name `destino`, which
    then has its old content still, and the temporary is removed; with the reason VN_FICH_SIN_ASEGURAR the new content
    stands, and only the last flush, the directory's, failed. A file that may not be written, or that has an only writer
    (f_lc_fopen_modo_escritura_u), is not replaced, nor is one by a temporary that is a link or that somebody holds.
    Not to be called when a write, a flush or the close of the temporary has failed. */
vnbool vornfile_hacer_definitivo_fichero_temporal_y_hacer_copia_seguridad_u(const vnwchar *destino,
                                                                            const vnwchar *temporal);
/** Opens a temporary beside `nombre` (the name with "_TM$" appended, overwritten if one was left) for binary writing;
    null, reported as "f_lc_fopen", if that fails. Closed by the operation that follows; lc_fclose closes it and leaves
    the temporary. ANSI name, or wide in the form `_u`. */
vnfichero *vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar(const char *nombre);
vnfichero *vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(const vnwchar *nombre);
/** The same with another text appended for the temporary, no separator in it, and a safety copy only if `con_copia`. */
vnfichero *vornfile_abrir_fichero_escritura_con_temporal_u(const vnwchar *nombre, const vnwchar *sufijo,
                                                           vnbool con_copia);
/** Closes such a stream, and the temporary becomes `nombre` as above. CIERTO only when the new content is in place and
    on the disk. After a failure to write, which a stream also has that was told what it cannot store, the temporary is
    removed and the old content stays. A stream that was opened otherwise, or by another name, is reported and just
    closed: FALSO, and nothing is renamed or removed. */
vnbool vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar(VN_CONSUME vnfichero *f, const char *nombre);
vnbool vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(VN_CONSUME vnfichero *f, const vnwchar *nombre);
/** Closes such a stream and gives the save up: its temporary is removed, the file stays as it was. A stream that was
    opened otherwise is reported and just closed: FALSO. */
vnbool vornfile_abandonar_fichero_escritura(VN_CONSUME vnfichero *f);

/** Copies the file `origen` over `destino`, which gets the new content whole or keeps the old one; without a
    safety copy, and else as a save. A file that was not there gets the rights of `origen`. FALSO, without a report, on
    failure. ANSI names, or wide in the form `_u`. */
vnbool vf_copyfile_seguro(const char *origen, const char *destino);
vnbool vf_copyfile_seguro_u(const vnwchar *origen, const vnwchar *destino);
/** Appends the content of `origen` to `destino`, made if it is not there. FALSO on failure, reported by the stream. */
vnbool vf_appendfile_u(const vnwchar *origen, const vnwchar *destino);

VN_C_FIN

#endif
