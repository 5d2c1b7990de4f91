/* The version of this library: the one that a host was compiled against, and the one that it runs with. What a host
   says of itself stands in version.h. The build takes its own version from the three numbers. */
#ifndef VN_NUCLEOS_VERSION_H
#define VN_NUCLEOS_VERSION_H

#include "../suelo/tipos.h"

#define NUCLEOS_VERSION_MAJOR 0
#define NUCLEOS_VERSION_MINOR 1
#define NUCLEOS_VERSION_PATCH 0

/* As a number that grows with them, for #if: 0.1.0 is 100. */
#define NUCLEOS_VERSION_NUMERO (NUCLEOS_VERSION_MAJOR * 10000 + NUCLEOS_VERSION_MINOR * 100 + NUCLEOS_VERSION_PATCH)

/* As a text, "0.1.0". */
#define NUCLEOS_VERSION_UNE(a, b, c) #a "." #b "." #c
#define NUCLEOS_VERSION_TEXTO_DE(a, b, c) NUCLEOS_VERSION_UNE(a, b, c)
#define NUCLEOS_VERSION NUCLEOS_VERSION_TEXTO_DE(NUCLEOS_VERSION_MAJOR, NUCLEOS_VERSION_MINOR, NUCLEOS_VERSION_PATCH)

VN_C_INICIO

/** The version of the library that runs, and how it was built: "0.1.0 (GNU 12.2.0, Linux x86_64)", with the commit
    behind the platform where the builder told it. It begins with the NUCLEOS_VERSION of the headers that it was built
    with, which need not be those of the host. Plain ASCII; lent for good. */
const char *nucleos_version(void);

VN_C_FIN

#endif
