/* Identity of the program: what it says its version is. */
#ifndef VN_VERSION_H
#define VN_VERSION_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** The whole version, as "2026.b". Borrowed until the host declares another. Before that: "1.0". */
const char *version_versionAplicacion(void);
const vnwchar *version_versionAplicacion_u(void);
/** The major version, as "2026". Borrowed until the host declares another. Before that: "1". */
const char *version_versionMayor(void);
const vnwchar *version_versionMayor_u(void);
/** The revision: one character, 'a' until the host declares another. */
char version_revision(void);
/** Declares what this program is, process-wide; the texts are copied. To be called once, before other threads ask.
    Every file that is written says so in its header: a major version that has a hyphen or more than 192 bytes, or a
    revision that is a hyphen or cannot be seen, is reported, and nothing changes. */
void version_establece_u(const vnwchar *version_aplicacion, const vnwchar *version_mayor, char revision);

VN_C_FIN

#endif
