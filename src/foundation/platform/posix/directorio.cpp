#include "foundation/platform/directorio.h"
#include "foundation/platform/posix/ruta.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/vnlongpath.h"
#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdlib>
#include <dirent.h>
#include <fcntl.h>
#include <pwd.h>
#include <sys/stat.h>
#include <unistd.h>

namespace vn::plat {

const vnwchar SEPARADOR = VNU('/');

vnwchar para_comparar(vnwchar c) { return c; }

namespace {

void cierra_directorio(DIR *d) { ::closedir(d); }
using lista_abierta = dueno<cierra_directorio>;

lista_abierta abre_en(int en, const char *nombre, int ademas) {
    descriptor d(::openat(en, nombre, O_RDONLY | O_DIRECTORY | O_CLOEXEC | ademas));
    lista_abierta lista(d.numero() >= 0 ? ::fdopendir(d.numero()) : nullptr);
    // The list closes the descriptor from here on.
    if (lista != nullptr) d.suelta();
    return lista;
}

// What fstatat finds of `nombre` in the directory `en`.
bool lee_ficha(int en, const char *nombre, ficha &f) {
    struct stat s {};
    f = {};
    if (::fstatat(en, nombre, &s, AT_SYMLINK_NOFOLLOW) != 0) return false;
    f.es_enlace = S_ISLNK(s.st_mode);
    // The data are those of what a link leads to; that it is a link is kept beside them.
    const bool lleva = !f.es_enlace || ::fstatat(en, nombre, &s, 0) == 0;
    if (f.es_enlace) f.atributos |= VNLONGPATH_FILE_ATTRIBUTE_REPARSE_POINT;
    if (!lleva) return false;
    f.es_directorio = S_ISDIR(s.st_mode);
    f.tamanyo = S_ISREG(s.st_mode) ? static_cast<uint64_t>(s.st_size) : 0;
    f.fecha = s.st_mtim.tv_sec;
    // The last part of the name, which may have separators behind it.
    const char *ultima = nombre;
    for (const char *p = nombre; *p != 0; ++p)
        if (*p == '/' && p[1] != 0 && p[1] != '/') ultima = p + 1;
    if (f.es_directorio) f.atributos |= VNLONGPATH_FILE_ATTRIBUTE_DIRECTORY;
    // Hidden by its full stop, but for "." and "..".
    if (ultima[0] == '.' && ultima[1] != 0 && ultima[1] != '/' && std::string_view(ultima) != "..")
        f.atributos |= VNLONGPATH_FILE_ATTRIBUTE_HIDDEN;
    if (::faccessat(en, nombre, W_OK, AT_EACCESS) != 0) f.atributos |= VNLONGPATH_FILE_ATTRIBUTE_READONLY;
    if (f.atributos == 0) f.atributos = VNLONGPATH_FILE_ATTRIBUTE_NORMAL;
    return true;
}

// The next one that is not "." nor ".."; false at the end, and, with errno, when it cannot be read.
bool lee_entrada(DIR *lista, bool con_datos, ficha &f) {
    while (const struct dirent *e = ::readdir(lista)) {
        const std::string_view nombre = e->d_name;
        if (nombre == "." || nombre == "..") continue;
        f = {};
        // The kind is mostly in the entry itself: it is asked for only where it is not.
        if (con_datos || e->d_type == DT_LNK || e->d_type == DT_UNKNOWN) lee_ficha(::dirfd(lista), e->d_name, f);
        else f.es_directorio = e->d_type == DT_DIR;
        f.nombre = ruta_ancha(nombre);
        return true;
    }
    return false;
}

bool hay_permiso(const cadena_ancha &fichero, int cual) {
    const ruta_en r(fichero);
    return ::faccessat(r.directorio(), r.nombre(), cual, AT_EACCESS) == 0;
}

cadena_ancha sin_separador_final(cadena_ancha t) {
    while (t.size() > 1 && (t.back() == VNU('/') || t.back() == VNU('\\'))) t.pop_back();
    return t;
}

std::optional<cadena_ancha> casa() {
    // A relative directory would change with the current one, so it does not count.
    if (auto v = variable("HOME"); v && v->front() == SEPARADOR) return v;
    std::array<char, 16384> sitio{};
    struct passwd p {
    }, *hay = nullptr;
    // Without the variable (a service): the user's entry in the system's list.
    if (::getpwuid_r(::geteuid(), &p, sitio.data(), sitio.size(), &hay) != 0 || hay == nullptr) return std::nullopt;
    return ruta_ancha(p.pw_dir);
}

// The directory that a variable names, or one below the user's home.
std::optional<cadena_ancha> de_usuario(const char *nombre, vista_ancha en_casa) {
    if (auto v = variable(nombre); v && v->front() == SEPARADOR) return sin_separador_final(*v);
    if (auto c = casa()) return sin_separador_final(*c) + SEPARADOR + cadena_ancha(en_casa);
    return std::nullopt;
}

} // namespace

bool consulta(const cadena_ancha &ruta, ficha &f) {
    const ruta_en r(ruta);
    return lee_ficha(r.directorio(), r.nombre(), f);
}

bool es_enlace(const cadena_ancha &ruta) {
    // With a separator at its end the name would be that of what the link leads to.
    const ruta_en r(sin_separador_final(ruta));
    struct stat s {};
    return ::fstatat(r.directorio(), r.nombre(), &s, AT_SYMLINK_NOFOLLOW) == 0 && S_ISLNK(s.st_mode);
}

struct recorrido::interior {
    lista_abierta lista;
    bool con_datos;
};

recorrido::recorrido(const cadena_ancha &directorio, bool con_datos) : interior_(std::make_unique<interior>()) {
    const ruta_en r(directorio.empty() ? cadena_ancha(VNU(".")) : directorio);
    *interior_ = {abre_en(r.directorio(), r.nombre(), 0), con_datos};
}

recorrido::~recorrido() = default;

bool recorrido::abierto() const { return interior_->lista != nullptr; }

bool recorrido::siguiente(ficha &f) {
    if (!abierto()) return false;
    errno = 0;
    if (lee_entrada(interior_->lista.get(), interior_->con_datos, f)) return true;
    // A failed reading closes the walk, so that abierto() tells it from the end.
    if (errno != 0) interior_->lista.reset();
    return false;
}

struct descenso::interior {
    lista_abierta actual;
    // Which the directories above are: a directory knows its parent, but may get another one.
    std::vector<std::pair<dev_t, ino_t>> de_arriba;
};

descenso::descenso(const cadena_ancha &raiz) : interior_(std::make_unique<interior>()) {
    const ruta_en r(sin_separador_final(raiz));
    interior_->actual = abre_en(r.directorio(), r.nombre(), O_NOFOLLOW);
}

descenso::~descenso() = default;

bool descenso::abierto() const { return interior_->actual != nullptr; }

bool descenso::lista(std::vector<ficha> &contenido) {
    errno = 0;
    for (ficha f; lee_entrada(interior_->actual.get(), false, f); errno = 0) contenido.push_back(std::move(f));
    return errno == 0;
}

bool descenso::entra(const cadena_ancha &nombre) {
    struct stat s {};
    const int en = ::dirfd(interior_->actual.get());
    lista_abierta dentro = abre_en(en, ruta_del_sistema(nombre).c_str(), O_NOFOLLOW);
    if (dentro == nullptr || ::fstat(en, &s) != 0) return false;
    interior_->de_arriba.emplace_back(s.st_dev, s.st_ino);
    interior_->actual = std::move(dentro);
    return true;
}

bool descenso::sal() {
    struct stat s {};
    lista_abierta arriba = abre_en(::dirfd(interior_->actual.get()), "..", 0);
    if (arriba == nullptr || ::fstat(::dirfd(arriba.get()), &s) != 0) return false;
    // Somebody has moved the directory meanwhile: what lies above now is not ours to empty.
    if (interior_->de_arriba.back() != std::pair(s.st_dev, s.st_ino)) return false;
    interior_->de_arriba.pop_back();
    interior_->actual = std::move(arriba);
    return true;
}

bool descenso::borra(const cadena_ancha &nombre) {
    const int en = ::dirfd(interior_->actual.get());
    const std::string b = ruta_del_sistema(nombre);
    // Removed without asking what it is: that could change before the removal.
    return ::unlinkat(en, b.c_str(), 0) == 0 || (errno == EISDIR && ::unlinkat(en, b.c_str(), AT_REMOVEDIR) == 0);
}

bool crea_directorios(const cadena_ancha &ruta) {
    const std::string b = ruta_del_sistema(ruta);
    descriptor en(AT_FDCWD);
    for (size_t i = 0, fin = 0; i < b.size(); i = fin) {
        // Part by part from the directory before, so that a path longer than the system's limit is made too.
        fin = std::min(b.find_first_not_of('/', std::min(b.find('/', i), b.size())), b.size());
        const std::string parte = b.substr(i, fin - i);
        const auto abre = [&] {
            return descriptor(::openat(en.numero(), parte.c_str(), O_PATH | O_DIRECTORY | O_CLOEXEC));
        };
        descriptor d = abre();
        // Another program may make it at the same moment, which is as good.
        if (d.numero() < 0 && errno == ENOENT && (::mkdirat(en.numero(), parte.c_str(), 0777) == 0 || errno == EEXIST))
            d = abre();
        if (d.numero() < 0) return false;
        en = std::move(d);
    }
    return true;
}

bool borra_directorio(const cadena_ancha &ruta) {
    const ruta_en r(sin_separador_final(ruta));
    // A link goes as a name, without what it leads to.
    return ::unlinkat(r.directorio(), r.nombre(), es_enlace(ruta) ? 0 : AT_REMOVEDIR) == 0;
}

bool puede_leer(const cadena_ancha &fichero) { return hay_permiso(fichero, R_OK); }
bool puede_escribir(const cadena_ancha &fichero) { return hay_permiso(fichero, W_OK); }
bool es_ejecutable(const cadena_ancha &fichero) { return hay_permiso(fichero, X_OK); }

std::optional<cadena_ancha> variable(const char *nombre) {
    const char *v = std::getenv(nombre);
    if (v == nullptr || *v == 0) return std::nullopt;
    return ruta_ancha(v);
}

cadena_ancha directorio_temporal() {
    auto v = variable("TMPDIR");
    return v && v->front() == SEPARADOR ? sin_separador_final(*v) : cadena_ancha(VNU("/tmp"));
}

cadena_ancha ruta_del_programa() {
    std::string b(4096, '\0');
    const ssize_t n = ::readlink("/proc/self/exe", b.data(), b.size());
    return n > 0 ? ruta_ancha(std::string_view(b).substr(0, static_cast<size_t>(n))) : cadena_ancha();
}

std::optional<cadena_ancha> base_de_configuracion() { return de_usuario("XDG_CONFIG_HOME", VNU(".config")); }

cadena_ancha unidad_escribible() {
    return de_usuario("XDG_DATA_HOME", VNU(".local/share")).value_or(directorio_temporal());
}

std::vector<cadena_ancha> directorios_de_programas() {
    std::vector<cadena_ancha> r;
    const cadena_ancha todos = variable("PATH").value_or(cadena_ancha(VNU("/usr/local/bin:/usr/bin:/bin"))) + VNU(':');
    for (size_t i = 0, j = 0; (j = todos.find(VNU(':'), i)) != cadena_ancha::npos; i = j + 1)
        // An empty part of the list is the current directory.
        r.push_back(j > i ? todos.substr(i, j - i) : cadena_ancha(VNU(".")));
    return r;
}

std::vector<cadena_ancha> terminaciones_de_programas() { return {cadena_ancha()}; }

} // namespace vn::plat
