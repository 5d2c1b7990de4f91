/* The two file calls of Win32 that take a name, for paths of any length, on both platforms. */
#ifndef VN_VNLONGPATH_H
#define VN_VNLONGPATH_H

#include "tipos.h"

/* A handle is a HANDLE on Windows; on Linux the file descriptor as a pointer, never 0. This one is none. */
#define VNLONGPATH_INVALID_HANDLE ((void *)(intptr_t)-1)

/* `acceso`. On Linux any other bit is ignored. */
#define VNLONGPATH_GENERIC_READ 0x80000000u
#define VNLONGPATH_GENERIC_WRITE 0x40000000u
/* `comparticion`: what others may do meanwhile. Linux keeps nobody out. */
#define VNLONGPATH_FILE_SHARE_READ 1u
#define VNLONGPATH_FILE_SHARE_WRITE 2u
#define VNLONGPATH_FILE_SHARE_DELETE 4u
/* `disposicion`: what to do where the file is, or is not, there. */
#define VNLONGPATH_CREATE_NEW 1u
#define VNLONGPATH_CREATE_ALWAYS 2u
#define VNLONGPATH_OPEN_EXISTING 3u
#define VNLONGPATH_OPEN_ALWAYS 4u
#define VNLONGPATH_TRUNCATE_EXISTING 5u
/* Attributes and flags. On Linux `atributos` may ask for READONLY (of a new file), WRITE_THROUGH,
   DELETE_ON_CLOSE (the name goes at once) and BACKUP_SEMANTICS (a directory opens too); the rest is ignored. */
#define VNLONGPATH_FILE_ATTRIBUTE_READONLY 0x1u
#define VNLONGPATH_FILE_ATTRIBUTE_HIDDEN 0x2u
#define VNLONGPATH_FILE_ATTRIBUTE_DIRECTORY 0x10u
#define VNLONGPATH_FILE_ATTRIBUTE_NORMAL 0x80u
#define VNLONGPATH_FILE_ATTRIBUTE_REPARSE_POINT 0x400u
#define VNLONGPATH_FILE_FLAG_BACKUP_SEMANTICS 0x02000000u
#define VNLONGPATH_FILE_FLAG_DELETE_ON_CLOSE 0x04000000u
#define VNLONGPATH_FILE_FLAG_WRITE_THROUGH 0x80000000u
#define VNLONGPATH_INVALID_FILE_ATTRIBUTES 0xFFFFFFFFu

VN_C_INICIO

/** Opens or creates a file. VNLONGPATH_INVALID_HANDLE if it cannot be; then GetLastError on Windows, errno on Linux,
    says why. `seguridad` and `plantilla` are those of Win32; Linux ignores them. */
void *vnlongpath_CreateFileW(const vnwchar *nombre, uint32_t acceso, uint32_t comparticion, VN_DATO void *seguridad,
                             VN_RANGO(1, 5) uint32_t disposicion, uint32_t atributos, VN_DATO void *plantilla);
/** Closes what vnlongpath_CreateFileW opened; FALSO if it is not open. */
vnbool vnlongpath_CloseHandle(VN_DATO void *fichero);
/** Attributes of a file or directory; VNLONGPATH_INVALID_FILE_ATTRIBUTES if it is not there. On Linux:
    DIRECTORY, READONLY (this user may not write it), HIDDEN (its name begins with a full stop), REPARSE_POINT
    (a link), else NORMAL. */
uint32_t vnlongpath_GetFileAttributesW(const vnwchar *nombre);

VN_C_FIN

#endif
