#include "foundation/platform/fichero.h"
#include "foundation/platform/win32/ruta.h"
#include "foundation/suelo/logico_int.h"
#include <algorithm>
#include <cstddef>
#include <memory>
#include <windows.h>

namespace vn::plat {

extern const bool lineas_con_retorno = true;

namespace {

// The counts of the system's calls have 32 bits.
constexpr size_t MAXIMO_DE_UNA_VEZ = size_t{1} << 30;
constexpr DWORD TODOS = FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE;

// ERROR_DISK_QUOTA_EXCEEDED, which not every winerror.h has.
constexpr DWORD CUOTA_AGOTADA = 1295;

constexpr struct {
    DWORD del_sistema;
    vnerror_fichero error;
} ERRORES[] = {
    {ERROR_DISK_FULL, VN_FICH_SIN_ESPACIO},
    {ERROR_HANDLE_DISK_FULL, VN_FICH_SIN_ESPACIO},
    {CUOTA_AGOTADA, VN_FICH_SIN_ESPACIO},
    {ERROR_FILE_TOO_LARGE, VN_FICH_SIN_ESPACIO},
    {ERROR_ACCESS_DENIED, VN_FICH_SIN_PERMISO},
    {ERROR_WRITE_PROTECT, VN_FICH_SIN_PERMISO},
    {ERROR_PRIVILEGE_NOT_HELD, VN_FICH_SIN_PERMISO},
    {ERROR_FILE_NOT_FOUND, VN_FICH_NO_EXISTE},
    {ERROR_PATH_NOT_FOUND, VN_FICH_NO_EXISTE},
    {ERROR_INVALID_NAME, VN_FICH_NO_EXISTE},
    {ERROR_BAD_PATHNAME, VN_FICH_NO_EXISTE},
    {ERROR_BAD_NETPATH, VN_FICH_NO_EXISTE},
    {ERROR_FILE_EXISTS, VN_FICH_YA_EXISTE},
    {ERROR_ALREADY_EXISTS, VN_FICH_YA_EXISTE},
    {ERROR_SHARING_VIOLATION, VN_FICH_COMPARTIDO},
    {ERROR_LOCK_VIOLATION, VN_FICH_COMPARTIDO},
    {ERROR_IO_PENDING, VN_FICH_COMPARTIDO},
    {ERROR_USER_MAPPED_FILE, VN_FICH_COMPARTIDO},
    {ERROR_INVALID_FUNCTION, VN_FICH_NO_ADMITIDO},
    {ERROR_NOT_SUPPORTED, VN_FICH_NO_ADMITIDO},
    {ERROR_INVALID_PARAMETER, VN_FICH_NO_ADMITIDO},
    {ERROR_TOO_MANY_LINKS, VN_FICH_NO_ADMITIDO},
    {ERROR_NOT_SAME_DEVICE, VN_FICH_NO_ADMITIDO},
    {ERROR_CRC, VN_FICH_ES},
    {ERROR_IO_DEVICE, VN_FICH_ES},
    {ERROR_WRITE_FAULT, VN_FICH_ES},
    {ERROR_READ_FAULT, VN_FICH_ES},
    {ERROR_GEN_FAILURE, VN_FICH_ES},
};

vnerror_fichero error_de(DWORD del_sistema) {
    for (const auto &fila : ERRORES)
        if (fila.del_sistema == del_sistema) return fila.error;
    return VN_FICH_OTRO;
}

vnerror_fichero resultado(BOOL r) { return r ? VN_FICH_BIEN : error_de(GetLastError()); }
HANDLE handle(vnid_fichero id) { return reinterpret_cast<HANDLE>(id); }

// Every transfer names its position, so that streams do not move one another.
OVERLAPPED en(int64_t posicion) {
    OVERLAPPED o = {};
    o.Offset = static_cast<DWORD>(posicion);
    o.OffsetHigh = static_cast<DWORD>(static_cast<uint64_t>(posicion) >> 32);
    return o;
}

vnerror_fichero trunca(vnid_fichero id, int64_t tamanyo) {
    FILE_END_OF_FILE_INFO fin;
    fin.EndOfFile.QuadPart = tamanyo;
    return resultado(SetFileInformationByHandle(handle(id), FileEndOfFileInfo, &fin, sizeof fin));
}

vnerror_fichero abre(const vnwchar *nombre, uint32_t como, vnid_fichero *id) {
    *id = VN_FICHERO_NINGUNO;
    const std::wstring ruta = ruta_del_sistema(nombre);
    const bool propio = (como & VN_ABRE_PROPIO) != 0;
    // One's own may be renamed by its handle, and given rights.
    const DWORD acceso = ((como & VN_ABRE_LECTURA) != 0 ? GENERIC_READ : 0) |
                         ((como & VN_ABRE_ESCRITURA) != 0 ? GENERIC_WRITE : 0) | (propio ? DELETE | WRITE_DAC : 0);
    // Readers are always let in; other writers neither to one's own nor beside a sole one.
    const DWORD otros = propio                            ? FILE_SHARE_READ
                        : (como & VN_ABRE_EXCLUSIVO) != 0 ? TODOS & ~static_cast<DWORD>(FILE_SHARE_WRITE)
                                                          : TODOS;
    const DWORD manera = (como & VN_ABRE_CREA) == 0    ? OPEN_EXISTING
                         : (como & VN_ABRE_NUEVO) != 0 ? CREATE_NEW
                                                       : OPEN_ALWAYS;
    const auto intenta = [&](DWORD con) {
        return CreateFileW(ruta.c_str(), con, otros, nullptr, manera,
                           FILE_ATTRIBUTE_NORMAL | (propio ? FILE_FLAG_OPEN_REPARSE_POINT : 0), nullptr);
    };
    HANDLE h = intenta(acceso);
    // Some file systems of a network give nobody the right to change rights.
    if (h == INVALID_HANDLE_VALUE && propio && GetLastError() == ERROR_ACCESS_DENIED)
        h = intenta(acceso & ~static_cast<DWORD>(WRITE_DAC));
    if (h == INVALID_HANDLE_VALUE) {
        // The system refuses a directory as if by rights.
        const DWORD error = GetLastError();
        const DWORD atributos =
            error == ERROR_ACCESS_DENIED ? GetFileAttributesW(ruta.c_str()) : INVALID_FILE_ATTRIBUTES;
        return atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_DIRECTORY) != 0
                   ? VN_FICH_ES_DIRECTORIO
                   : error_de(error);
    }
    const vnid_fichero nuevo = reinterpret_cast<vnid_fichero>(h);
    BY_HANDLE_FILE_INFORMATION datos;
    vnerror_fichero e = VN_FICH_BIEN;
    // One's own is no link that somebody put in its place.
    if (propio &&
        (!GetFileInformationByHandle(h, &datos) || (datos.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0))
        e = VN_FICH_NO_ADMITIDO;
    else if ((como & VN_ABRE_TRUNCA) != 0) e = trunca(nuevo, 0);
    if (e != VN_FICH_BIEN) {
        CloseHandle(h);
        return e;
    }
    *id = nuevo;
    return VN_FICH_BIEN;
}

vnerror_fichero lee(vnid_fichero id, int64_t posicion, void *destino, size_t n, size_t *leidos) {
    OVERLAPPED o = en(posicion);
    DWORD k = 0;
    const BOOL bien = ReadFile(handle(id), destino, static_cast<DWORD>(std::min(n, MAXIMO_DE_UNA_VEZ)), &k, &o);
    *leidos = bien ? k : 0;
    if (bien) return VN_FICH_BIEN;
    const DWORD error = GetLastError();
    // The end of a file, and the closed end of a pipe, are no errors.
    return error == ERROR_HANDLE_EOF || error == ERROR_BROKEN_PIPE ? VN_FICH_BIEN : error_de(error);
}

// The position -1 is the end of the file for the system too.
vnerror_fichero escribe(vnid_fichero id, int64_t posicion, const void *origen, size_t n, size_t *escritos) {
    OVERLAPPED o = en(posicion);
    DWORD k = 0;
    const BOOL bien = WriteFile(handle(id), origen, static_cast<DWORD>(std::min(n, MAXIMO_DE_UNA_VEZ)), &k, &o);
    *escritos = bien ? k : 0;
    return resultado(bien);
}

vnerror_fichero vuelca(vnid_fichero id) { return resultado(FlushFileBuffers(handle(id))); }

vnerror_fichero estado_abierto(vnid_fichero id, vnestado_fichero *estado) {
    *estado = {};
    // Pipes and devices have no size.
    if (GetFileType(handle(id)) != FILE_TYPE_DISK) return VN_FICH_BIEN;
    LARGE_INTEGER n;
    if (!GetFileSizeEx(handle(id), &n)) return resultado(FALSE);
    estado->es_normal = CIERTO;
    estado->tamanyo = static_cast<uint64_t>(n.QuadPart);
    return VN_FICH_BIEN;
}

vnerror_fichero estado(const vnwchar *nombre, vnestado_fichero *e) {
    *e = {};
    WIN32_FILE_ATTRIBUTE_DATA d;
    if (!GetFileAttributesExW(ruta_del_sistema(nombre).c_str(), GetFileExInfoStandard, &d)) return resultado(FALSE);
    e->es_directorio = logico((d.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0);
    e->es_normal = logico((d.dwFileAttributes & (FILE_ATTRIBUTE_DIRECTORY | FILE_ATTRIBUTE_DEVICE)) == 0);
    if (e->es_normal == CIERTO) e->tamanyo = static_cast<uint64_t>(d.nFileSizeHigh) << 32 | d.nFileSizeLow;
    return VN_FICH_BIEN;
}

vnerror_fichero bloquea(vnid_fichero id, int64_t inicio, int64_t tamanyo, uint32_t modo) {
    OVERLAPPED o = en(inicio);
    const DWORD banderas = ((modo & VN_ZONA_COMPARTIDA) != 0 ? 0 : LOCKFILE_EXCLUSIVE_LOCK) |
                           ((modo & VN_ZONA_ESPERA) != 0 ? 0 : LOCKFILE_FAIL_IMMEDIATELY);
    return resultado(LockFileEx(handle(id), banderas, 0, static_cast<DWORD>(tamanyo),
                                static_cast<DWORD>(static_cast<uint64_t>(tamanyo) >> 32), &o));
}

vnerror_fichero desbloquea(vnid_fichero id, int64_t inicio, int64_t tamanyo) {
    OVERLAPPED o = en(inicio);
    return resultado(UnlockFileEx(handle(id), 0, static_cast<DWORD>(tamanyo),
                                  static_cast<DWORD>(static_cast<uint64_t>(tamanyo) >> 32), &o));
}

vnerror_fichero cierra(vnid_fichero id) { return resultado(CloseHandle(handle(id))); }

vnerror_fichero resuelve(const vnwchar *nombre, wchar_t *real, size_t maximo) {
    const auto cabe = [maximo](DWORD n) { return n > 0 && n < maximo; };
    if (!cabe(GetFullPathNameW(nombre, static_cast<DWORD>(maximo), real, nullptr))) return VN_FICH_NO_EXISTE;
    // Only a link needs its file opened to be resolved.
    const std::wstring ruta = ruta_del_sistema(real);
    const DWORD atributos = GetFileAttributesW(ruta.c_str());
    if (atributos == INVALID_FILE_ATTRIBUTES || (atributos & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return VN_FICH_BIEN;
    const HANDLE h = CreateFileW(ruta.c_str(), FILE_READ_ATTRIBUTES, TODOS, nullptr, OPEN_EXISTING,
                                 FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (h == INVALID_HANDLE_VALUE) return VN_FICH_NO_ADMITIDO; // a link to nothing
    const bool bien = cabe(GetFinalPathNameByHandleW(h, real, static_cast<DWORD>(maximo), FILE_NAME_NORMALIZED));
    CloseHandle(h);
    return bien ? VN_FICH_BIEN : VN_FICH_NO_ADMITIDO;
}

vnerror_fichero enlaza(const vnwchar *existente, const vnwchar *nuevo) {
    return resultado(CreateHardLinkW(ruta_del_sistema(nuevo).c_str(), ruta_del_sistema(existente).c_str(), nullptr));
}

// A target that somebody holds open is refused as if by rights; unless rights forbid it, that may pass.
vnerror_fichero error_al_renombrar(DWORD error, const std::wstring &final) {
    if (error == ERROR_ACCESS_DENIED) {
        const DWORD atributos = GetFileAttributesW(final.c_str());
        if (atributos != INVALID_FILE_ATTRIBUTES &&
            (atributos & (FILE_ATTRIBUTE_READONLY | FILE_ATTRIBUTE_DIRECTORY)) == 0)
            return VN_FICH_COMPARTIDO;
    }
    return error_de(error);
}

vnerror_fichero renombra(const vnwchar *existente, const vnwchar *nuevo) {
    const std::wstring final = ruta_del_sistema(nuevo);
    if (MoveFileExW(ruta_del_sistema(existente).c_str(), final.c_str(),
                    MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH))
        return VN_FICH_BIEN;
    return error_al_renombrar(GetLastError(), final);
}

vnerror_fichero es_su_nombre(vnid_fichero id, const vnwchar *nombre) {
    const HANDLE h = CreateFileW(ruta_del_sistema(nombre).c_str(), FILE_READ_ATTRIBUTES, TODOS, nullptr, OPEN_EXISTING,
                                 FILE_FLAG_OPEN_REPARSE_POINT | FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    if (h == INVALID_HANDLE_VALUE) return resultado(FALSE);
    BY_HANDLE_FILE_INFORMATION a, b;
    const bool bien = GetFileInformationByHandle(h, &a) && GetFileInformationByHandle(handle(id), &b);
    const vnerror_fichero e = resultado(bien);
    CloseHandle(h);
    if (e != VN_FICH_BIEN) return e;
    // Two openings are of one file when its volume and its index are the same.
    return a.dwVolumeSerialNumber == b.dwVolumeSerialNumber && a.nFileIndexHigh == b.nFileIndexHigh &&
                   a.nFileIndexLow == b.nFileIndexLow
               ? VN_FICH_BIEN
               : VN_FICH_YA_EXISTE;
}

// By its handle, which nobody else can rename. What readers have open is replaced too where the system can.
vnerror_fichero renombra_abierto(vnid_fichero id, const vnwchar *, const vnwchar *nuevo) {
    constexpr auto RENOMBRA_CON_LECTORES = static_cast<FILE_INFO_BY_HANDLE_CLASS>(22);
    constexpr DWORD REEMPLAZA = 1, CON_LECTORES = 2;
    const std::wstring final = ruta_del_sistema(nuevo);
    const size_t bytes = final.size() * sizeof(wchar_t);
    // The record ends in the name, with its zero.
    const size_t todo = offsetof(FILE_RENAME_INFO, FileName) + bytes + sizeof(wchar_t);
    const auto memoria = std::make_unique<unsigned char[]>(std::max(todo, sizeof(FILE_RENAME_INFO)));
    auto *datos = reinterpret_cast<FILE_RENAME_INFO *>(memoria.get());
    datos->FileNameLength = static_cast<DWORD>(bytes);
    std::copy(final.begin(), final.end(), datos->FileName);
    const auto hace = [&](FILE_INFO_BY_HANDLE_CLASS clase, DWORD banderas) {
        *reinterpret_cast<DWORD *>(datos) = banderas; // in the place of ReplaceIfExists
        return SetFileInformationByHandle(handle(id), clase, datos, static_cast<DWORD>(todo)) != 0;
    };
    // Systems and file systems that lack the first way take the second.
    return hace(RENOMBRA_CON_LECTORES, REEMPLAZA | CON_LECTORES) || hace(FileRenameInfo, REEMPLAZA)
               ? VN_FICH_BIEN
               : error_al_renombrar(GetLastError(), final);
}

vnerror_fichero borra(const vnwchar *nombre) { return resultado(DeleteFileW(ruta_del_sistema(nombre).c_str())); }

// Removes what a dead program has left, read-only too; the system refuses a file that a program holds.
vnerror_fichero retira(const vnwchar *nombre) {
    const std::wstring ruta = ruta_del_sistema(nombre);
    const DWORD atributos = GetFileAttributesW(ruta.c_str());
    if (atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_DIRECTORY) != 0)
        return VN_FICH_ES_DIRECTORIO;
    if (atributos != INVALID_FILE_ATTRIBUTES && (atributos & FILE_ATTRIBUTE_READONLY) != 0)
        SetFileAttributesW(ruta.c_str(), FILE_ATTRIBUTE_NORMAL);
    return borra(nombre);
}

// The access list, protected against what the directory gives if it was; and what hides a file.
vnerror_fichero copia_permisos(const vnwchar *origen, vnid_fichero destino) {
    const std::wstring de = ruta_del_sistema(origen);
    const DWORD atributos = GetFileAttributesW(de.c_str());
    if (atributos == INVALID_FILE_ATTRIBUTES) return resultado(FALSE);
    FILE_BASIC_INFO datos{};
    datos.FileAttributes =
        FILE_ATTRIBUTE_NORMAL | (atributos & (FILE_ATTRIBUTE_HIDDEN | FILE_ATTRIBUTE_SYSTEM | FILE_ATTRIBUTE_ARCHIVE));
    // "Normal" is said alone or not at all.
    if (datos.FileAttributes != FILE_ATTRIBUTE_NORMAL)
        datos.FileAttributes &= ~static_cast<DWORD>(FILE_ATTRIBUTE_NORMAL);
    if (!SetFileInformationByHandle(handle(destino), FileBasicInfo, &datos, sizeof datos)) return resultado(FALSE);
    DWORD n = 0;
    // Asked for its size first.
    GetFileSecurityW(de.c_str(), DACL_SECURITY_INFORMATION, nullptr, 0, &n);
    const auto lista = std::make_unique<unsigned char[]>(n + 1);
    SECURITY_DESCRIPTOR_CONTROL control = 0;
    DWORD revision = 0;
    if (!GetFileSecurityW(de.c_str(), DACL_SECURITY_INFORMATION, lista.get(), n, &n) ||
        !GetSecurityDescriptorControl(lista.get(), &control, &revision))
        return VN_FICH_NO_ADMITIDO;
    const SECURITY_INFORMATION que =
        DACL_SECURITY_INFORMATION | ((control & SE_DACL_PROTECTED) != 0 ? PROTECTED_DACL_SECURITY_INFORMATION
                                                                        : UNPROTECTED_DACL_SECURITY_INFORMATION);
    return SetKernelObjectSecurity(handle(destino), que, lista.get()) ? VN_FICH_BIEN : VN_FICH_NO_ADMITIDO;
}

// A file that is flushed has its name on the disk too.
vnerror_fichero vuelca_directorio(const vnwchar *nombre) {
    vnid_fichero id = VN_FICHERO_NINGUNO;
    if (const vnerror_fichero e = abre(nombre, VN_ABRE_ESCRITURA, &id); e != VN_FICH_BIEN) return e;
    const vnerror_fichero e = vuelca(id);
    cierra(id);
    return e;
}

void espera(uint32_t milisegundos) { Sleep(milisegundos); }

} // namespace

bool mismo_camino(const std::wstring &a, const std::wstring &b) {
    // As the system compares names: without case, and by no language's rules.
    return CompareStringOrdinal(a.data(), static_cast<int>(a.size()), b.data(), static_cast<int>(b.size()), TRUE) ==
           CSTR_EQUAL;
}

size_t mide_nombre(std::wstring_view nombre) { return nombre.size(); }

// The rename itself is refused where rights forbid it, before anything is lost.
bool se_puede_reemplazar(const vnwchar *) { return true; }

extern const vnoperaciones_fichero operaciones_de_fichero = {
#include "foundation/platform/fichero_filas.inl"
};

} // namespace vn::plat
