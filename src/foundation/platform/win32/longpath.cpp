#include "foundation/platform/longpath.h"
#include "foundation/platform/win32/ruta.h"
#include <windows.h>

namespace vn::plat {

// The public numbers go to the system as they are.
static_assert(VNLONGPATH_GENERIC_READ == GENERIC_READ && VNLONGPATH_GENERIC_WRITE == GENERIC_WRITE);
static_assert(VNLONGPATH_CREATE_NEW == CREATE_NEW && VNLONGPATH_TRUNCATE_EXISTING == TRUNCATE_EXISTING);
static_assert(VNLONGPATH_FILE_ATTRIBUTE_READONLY == FILE_ATTRIBUTE_READONLY &&
              VNLONGPATH_FILE_ATTRIBUTE_DIRECTORY == FILE_ATTRIBUTE_DIRECTORY &&
              VNLONGPATH_FILE_ATTRIBUTE_REPARSE_POINT == FILE_ATTRIBUTE_REPARSE_POINT);
static_assert(VNLONGPATH_FILE_FLAG_BACKUP_SEMANTICS == FILE_FLAG_BACKUP_SEMANTICS &&
              VNLONGPATH_FILE_FLAG_DELETE_ON_CLOSE == FILE_FLAG_DELETE_ON_CLOSE &&
              VNLONGPATH_FILE_FLAG_WRITE_THROUGH == FILE_FLAG_WRITE_THROUGH);

void *abre_fichero(const cadena_ancha &nombre, uint32_t acceso, uint32_t comparticion, void *seguridad,
                   uint32_t disposicion, uint32_t atributos, void *plantilla) {
    // The documented rule, which not every system enforces.
    if (disposicion == TRUNCATE_EXISTING && (acceso & (GENERIC_WRITE | GENERIC_ALL | FILE_WRITE_DATA)) == 0) {
        SetLastError(ERROR_INVALID_PARAMETER);
        return VNLONGPATH_INVALID_HANDLE;
    }
    return CreateFileW(ruta_del_sistema(nombre).c_str(), acceso, comparticion,
                       static_cast<SECURITY_ATTRIBUTES *>(seguridad), disposicion, atributos, plantilla);
}

bool cierra_fichero(void *fichero) {
    return fichero != nullptr && fichero != VNLONGPATH_INVALID_HANDLE && CloseHandle(fichero) != 0;
}

uint32_t atributos_de(const cadena_ancha &nombre) { return GetFileAttributesW(ruta_del_sistema(nombre).c_str()); }

} // namespace vn::plat
