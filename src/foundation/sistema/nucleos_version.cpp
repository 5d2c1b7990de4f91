#define VN_MODULO "nucleos_version (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/nucleos_version.h"

// VN_CONSTRUCCION is the build's: compiler, platform and commit.
const char *nucleos_version(void) { return NUCLEOS_VERSION " (" VN_CONSTRUCCION ")"; }
