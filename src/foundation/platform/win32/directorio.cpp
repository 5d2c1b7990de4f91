#include "foundation/platform/directorio.h"
#include "foundation/platform/win32/ruta.h"
#include "foundation/suelo/vnlongpath.h"
#include <algorithm>
#include <shlobj.h>
#include <windows.h>

namespace vn::plat {

const vnwchar SEPARADOR = L'\\';

vnwchar para_comparar(vnwchar c) {
    // A value below 65536 in the place of the pointer is one character, and comes back so.
    return static_cast<vnwchar>(
        reinterpret_cast<uintptr_t>(CharUpperW(reinterpret_cast<LPWSTR>(static_cast<uintptr_t>(c)))));
}

namespace {

struct cierra_handle {
    using pointer = HANDLE;
    void operator()(HANDLE h) const { CloseHandle(h); }
};
using handle = std::unique_ptr<void, cierra_handle>;

// Opens what is there without getting in anybody's way; null if it cannot be.
handle abre(const cadena_ancha &ruta, DWORD acceso) {
    const HANDLE h =
        CreateFileW(ruta_del_sistema(ruta).c_str(), acceso, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS, nullptr);
    return handle(h == INVALID_HANDLE_VALUE ? nullptr : h);
}

int64_t segundos(FILETIME t) {
    const auto pasos = static_cast<int64_t>(static_cast<uint64_t>(t.dwHighDateTime) << 32 | t.dwLowDateTime);
    return (pasos - 116444736000000000) / 10000000; // from 1601, in steps of 100 ns
}

// The attributes and sizes that three records of the system name alike.
template <class T> void copia(const T &d, ficha &f) {
    f.atributos = d.dwFileAttributes;
    f.es_directorio = (d.dwFileAttributes & FILE_ATTRIBUTE_DIRECTORY) != 0;
    f.tamanyo = f.es_directorio ? 0 : static_cast<uint64_t>(d.nFileSizeHigh) << 32 | d.nFileSizeLow;
    f.fecha = segundos(d.ftLastWriteTime);
}

// The data of what a link leads to, told as a link; false if it leads nowhere.
bool sigue_enlace(const cadena_ancha &ruta, ficha &f) {
    const handle h = abre(ruta, FILE_READ_ATTRIBUTES);
    BY_HANDLE_FILE_INFORMATION d{};
    if (!h || !GetFileInformationByHandle(h.get(), &d)) return false;
    copia(d, f);
    f.atributos |= FILE_ATTRIBUTE_REPARSE_POINT;
    return true;
}

// Of the records that replace a file, those that lead elsewhere; a file kept by a cloud service does not.
bool lleva_a_otro(const WIN32_FIND_DATAW &d) {
    return (d.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(d.dwReserved0);
}

bool busca(const cadena_ancha &patron, WIN32_FIND_DATAW &d, HANDLE &h) {
    h = FindFirstFileExW(ruta_del_sistema(patron).c_str(), FindExInfoBasic, &d, FindExSearchNameMatch, nullptr, 0);
    return h != INVALID_HANDLE_VALUE;
}

cadena_ancha sin_separador_final(cadena_ancha t) {
    while (!t.empty() && (t.back() == L'\\' || t.back() == L'/')) t.pop_back();
    return t;
}

// True also if the directory was there.
bool crea_directorio(const cadena_ancha &ruta) {
    const std::wstring r = ruta_del_sistema(ruta);
    if (CreateDirectoryW(r.c_str(), nullptr)) return true;
    const DWORD a = GetFileAttributesW(r.c_str());
    return a != INVALID_FILE_ATTRIBUTES && (a & FILE_ATTRIBUTE_DIRECTORY) != 0;
}

// Takes away what keeps a file, or the link itself, from being removed though its directory may be written.
void quita_proteccion(const cadena_ancha &del_sistema) {
    const DWORD a = GetFileAttributesW(del_sistema.c_str());
    if (a == INVALID_FILE_ATTRIBUTES || (a & FILE_ATTRIBUTE_READONLY) == 0) return;
    const HANDLE h =
        CreateFileW(del_sistema.c_str(), FILE_WRITE_ATTRIBUTES, FILE_SHARE_READ | FILE_SHARE_WRITE | FILE_SHARE_DELETE,
                    nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT, nullptr);
    if (h == INVALID_HANDLE_VALUE) return;
    FILE_BASIC_INFO d{}; // a time of 0 stays as it is
    d.FileAttributes = (a & ~static_cast<DWORD>(FILE_ATTRIBUTE_READONLY)) | FILE_ATTRIBUTE_NORMAL;
    SetFileInformationByHandle(h, FileBasicInfo, &d, sizeof d);
    CloseHandle(h);
}

// True when a directory can be made there, which is tried out: attributes and rights alone do not tell.
bool se_crea_en(const cadena_ancha &raiz) {
    const cadena_ancha prueba = raiz + L"\\~nucleos" + std::to_wstring(GetCurrentProcessId());
    return CreateDirectoryW(prueba.c_str(), nullptr) && RemoveDirectoryW(prueba.c_str());
}

// Grows the room until the call, which answers the length that it needs or has written, fits.
template <class F> cadena_ancha con_sitio(F llama) {
    cadena_ancha t(MAX_PATH, L'\0');
    for (;;) {
        const DWORD n = llama(t.data(), static_cast<DWORD>(t.size()));
        if (n < t.size()) {
            t.resize(n);
            return t;
        }
        t.resize(n > t.size() ? n : t.size() * 2);
    }
}

} // namespace

bool es_enlace(const cadena_ancha &ruta) {
    const cadena_ancha limpia = sin_separador_final(ruta);
    if ((GetFileAttributesW(ruta_del_sistema(limpia).c_str()) & FILE_ATTRIBUTE_REPARSE_POINT) == 0) return false;
    WIN32_FIND_DATAW d{};
    HANDLE h = nullptr;
    if (!busca(limpia, d, h)) return false;
    FindClose(h);
    return lleva_a_otro(d);
}

bool consulta(const cadena_ancha &ruta, ficha &f) {
    f = {};
    WIN32_FILE_ATTRIBUTE_DATA d{};
    if (!GetFileAttributesExW(ruta_del_sistema(ruta).c_str(), GetFileExInfoStandard, &d)) return false;
    if ((d.dwFileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && es_enlace(ruta)) {
        f.es_enlace = true;
        return sigue_enlace(ruta, f);
    }
    copia(d, f);
    return true;
}

namespace {

void cierra(HANDLE &busqueda) {
    if (busqueda != INVALID_HANDLE_VALUE && busqueda != nullptr) FindClose(busqueda);
    busqueda = INVALID_HANDLE_VALUE;
}

} // namespace

struct recorrido::interior {
    cadena_ancha directorio;
    HANDLE busqueda;
    // The record that is read ahead, while `pendiente` says that there is one.
    WIN32_FIND_DATAW dato;
    bool pendiente;
};

recorrido::recorrido(const cadena_ancha &directorio, bool) : interior_(std::make_unique<interior>()) {
    interior_->directorio = directorio;
    cadena_ancha &d = interior_->directorio;
    if (!d.empty() && d.back() != L'\\' && d.back() != L'/' && d.back() != L':') d += L'\\';
    interior_->pendiente = busca(d + L"*", interior_->dato, interior_->busqueda);
    // The root of an empty disk is a directory with nothing in it.
    if (!interior_->pendiente && GetLastError() == ERROR_FILE_NOT_FOUND) interior_->busqueda = nullptr;
}

recorrido::~recorrido() { cierra(interior_->busqueda); }

bool recorrido::abierto() const { return interior_->busqueda != INVALID_HANDLE_VALUE; }

bool recorrido::siguiente(ficha &f) {
    interior &i = *interior_;
    while (i.pendiente) {
        const WIN32_FIND_DATAW d = i.dato;
        i.pendiente = FindNextFileW(i.busqueda, &i.dato) != 0;
        if (!i.pendiente && GetLastError() != ERROR_NO_MORE_FILES) cierra(i.busqueda);
        const vista_ancha nombre = d.cFileName;
        if (nombre == L"." || nombre == L"..") continue;
        f = {};
        copia(d, f);
        if (lleva_a_otro(d)) {
            // The entry knows whether it is a directory's link, also where its target is gone.
            const bool es_directorio = f.es_directorio;
            f.es_enlace = true;
            sigue_enlace(i.directorio + cadena_ancha(nombre), f);
            f.es_directorio = es_directorio;
        }
        f.nombre = nombre;
        return true;
    }
    return false;
}

// The directories on the way down are held by handles that nobody can delete or rename them under: then their names
// lead where they led. A path has 32,767 characters at most, and so bounds the handles.
struct descenso::interior {
    struct nivel {
        handle sujeto;
        size_t longitud; // of its path
    };
    cadena_ancha ruta;
    std::vector<nivel> niveles;

    cadena_ancha ruta_de(const cadena_ancha &nombre) const { return ruta_del_sistema(ruta + L'\\' + nombre); }
    bool sujeta() {
        // Opened as itself, so that a link is seen and not followed.
        handle h(CreateFileW(ruta_del_sistema(ruta).c_str(), FILE_LIST_DIRECTORY, FILE_SHARE_READ | FILE_SHARE_WRITE,
                             nullptr, OPEN_EXISTING, FILE_FLAG_BACKUP_SEMANTICS | FILE_FLAG_OPEN_REPARSE_POINT,
                             nullptr));
        FILE_ATTRIBUTE_TAG_INFO d{};
        if (h.get() == INVALID_HANDLE_VALUE) static_cast<void>(h.release());
        if (!h || !GetFileInformationByHandleEx(h.get(), FileAttributeTagInfo, &d, sizeof d)) return false;
        if ((d.FileAttributes & FILE_ATTRIBUTE_DIRECTORY) == 0) return false;
        if ((d.FileAttributes & FILE_ATTRIBUTE_REPARSE_POINT) != 0 && IsReparseTagNameSurrogate(d.ReparseTag))
            return false;
        niveles.push_back({std::move(h), ruta.size()});
        return true;
    }
};

descenso::descenso(const cadena_ancha &raiz) : interior_(std::make_unique<interior>()) {
    interior_->ruta = sin_separador_final(raiz);
    interior_->sujeta();
}

descenso::~descenso() = default;

bool descenso::abierto() const { return !interior_->niveles.empty(); }

bool descenso::lista(std::vector<ficha> &contenido) {
    recorrido r(interior_->ruta, false);
    for (ficha f; r.siguiente(f);) contenido.push_back(std::move(f));
    return r.abierto();
}

bool descenso::entra(const cadena_ancha &nombre) {
    interior_->ruta += L'\\' + nombre;
    const bool dentro = interior_->sujeta();
    if (!dentro) interior_->ruta.resize(interior_->niveles.back().longitud);
    return dentro;
}

bool descenso::sal() {
    interior_->niveles.pop_back();
    interior_->ruta.resize(interior_->niveles.back().longitud);
    return true;
}

bool descenso::borra(const cadena_ancha &nombre) {
    const cadena_ancha r = interior_->ruta_de(nombre);
    quita_proteccion(r);
    // The one removes files, the other directories.
    return DeleteFileW(r.c_str()) || RemoveDirectoryW(r.c_str());
}

bool crea_directorios(const cadena_ancha &ruta) {
    const cadena_ancha entera = sin_separador_final(ruta);
    size_t fin = entera.size();
    // Upwards to the first that is there or can be made, and down again.
    while (fin > 0 && !crea_directorio(entera.substr(0, fin))) {
        const size_t nombre = entera.find_last_of(L"\\/", fin - 1);
        if (nombre == cadena_ancha::npos || nombre == 0) return false;
        fin = entera.find_last_not_of(L"\\/", nombre) + 1;
    }
    // Nothing of a path that had a name could be made; without one there was nothing to make.
    if (fin == 0) return entera.empty();
    while (fin < entera.size()) {
        fin = std::min(entera.find_first_of(L"\\/", entera.find_first_not_of(L"\\/", fin)), entera.size());
        if (!crea_directorio(entera.substr(0, fin))) return false;
    }
    return true;
}

bool borra_directorio(const cadena_ancha &ruta) { return RemoveDirectoryW(ruta_del_sistema(ruta).c_str()) != 0; }

bool puede_leer(const cadena_ancha &fichero) { return abre(fichero, GENERIC_READ) != nullptr; }
bool puede_escribir(const cadena_ancha &fichero) { return abre(fichero, GENERIC_WRITE) != nullptr; }
bool es_ejecutable(const cadena_ancha &) { return true; }

std::optional<cadena_ancha> variable(const char *nombre) {
    const std::wstring n(nombre, nombre + strlen(nombre));
    cadena_ancha v = con_sitio([&](LPWSTR p, DWORD k) { return GetEnvironmentVariableW(n.c_str(), p, k); });
    if (v.empty()) return std::nullopt;
    return v;
}

cadena_ancha directorio_temporal() {
    return sin_separador_final(con_sitio([](LPWSTR p, DWORD k) { return GetTempPathW(k, p); }));
}

cadena_ancha ruta_del_programa() {
    return con_sitio([](LPWSTR p, DWORD k) { return GetModuleFileNameW(nullptr, p, k); });
}

std::optional<cadena_ancha> base_de_configuracion() {
    // The variable first, which a user may set; without it (a service) the system is asked.
    if (auto v = variable("APPDATA")) return sin_separador_final(*v);
    std::wstring sitio(MAX_PATH, L'\0');
    if (FAILED(SHGetFolderPathW(nullptr, CSIDL_APPDATA | CSIDL_FLAG_CREATE, nullptr, SHGFP_TYPE_CURRENT, sitio.data())))
        return std::nullopt;
    return sin_separador_final(cadena_ancha(sitio.c_str()));
}

cadena_ancha unidad_escribible() {
    const cadena_ancha programa = ruta_del_programa();
    // The drive of the program if it can be written, else that of the system.
    if (programa.size() > 2 && programa[1] == L':' && se_crea_en(programa.substr(0, 2))) return programa.substr(0, 2);
    const cadena_ancha sistema = con_sitio([](LPWSTR p, DWORD k) { return GetWindowsDirectoryW(p, k); });
    return sistema.size() > 1 && sistema[1] == L':' ? sistema.substr(0, 2) : cadena_ancha(L"C:");
}

namespace {

// The parts between semicolons, without quotation marks; empty ones are left out.
std::vector<cadena_ancha> separados(const cadena_ancha &todos) {
    std::vector<cadena_ancha> r;
    const cadena_ancha t = todos + L";";
    for (size_t i = 0, j = 0; (j = t.find(L';', i)) != cadena_ancha::npos; i = j + 1) {
        cadena_ancha uno = t.substr(i, j - i);
        std::erase(uno, L'"');
        if (!uno.empty()) r.push_back(uno);
    }
    return r;
}

} // namespace

// As the system looks for a program: beside this one, in its own directories, then along the variable.
std::vector<cadena_ancha> directorios_de_programas() {
    const cadena_ancha programa = ruta_del_programa();
    std::vector<cadena_ancha> r{programa.substr(0, programa.find_last_of(L"\\/")),
                                con_sitio([](LPWSTR p, DWORD k) { return GetSystemDirectoryW(p, k); }),
                                con_sitio([](LPWSTR p, DWORD k) { return GetWindowsDirectoryW(p, k); })};
    for (cadena_ancha &d : separados(variable("PATH").value_or(cadena_ancha()))) r.push_back(std::move(d));
    return r;
}

std::vector<cadena_ancha> terminaciones_de_programas() {
    std::vector<cadena_ancha> r{cadena_ancha()};
    for (cadena_ancha &t : separados(variable("PATHEXT").value_or(cadena_ancha(L".COM;.EXE;.BAT;.CMD"))))
        r.push_back(std::move(t));
    return r;
}

} // namespace vn::plat
