#define VN_MODULO "vnlongpath (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/vnlongpath.h"
#include "foundation/platform/longpath.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"

void *vnlongpath_CreateFileW(const vnwchar *nombre, uint32_t acceso, uint32_t comparticion, void *seguridad,
                             uint32_t disposicion, uint32_t atributos, void *plantilla) {
    if (!AFIRMA_NO_NULO(nombre)) return VNLONGPATH_INVALID_HANDLE;
    // The platforms index rows by the disposition, so no other number gets through.
    if (!AFIRMA(disposicion >= VNLONGPATH_CREATE_NEW && disposicion <= VNLONGPATH_TRUNCATE_EXISTING))
        return VNLONGPATH_INVALID_HANDLE;
    return vn::plat::abre_fichero(nombre, acceso, comparticion, seguridad, disposicion, atributos, plantilla);
}

vnbool vnlongpath_CloseHandle(void *fichero) { return vn::logico(vn::plat::cierra_fichero(fichero)); }

uint32_t vnlongpath_GetFileAttributesW(const vnwchar *nombre) {
    return AFIRMA_NO_NULO(nombre) ? vn::plat::atributos_de(nombre) : VNLONGPATH_INVALID_FILE_ATTRIBUTES;
}
