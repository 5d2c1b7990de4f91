#include "foundation/platform/directorio.h"
#include "foundation/platform/posix/ruta.h"
#include "foundation/vnlongpath.h"
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

std::string bytes(const texto &ruta) { return ruta_del_sistema(ruta); }

// What fstatat finds of `nombre` in the directory `en`.
bool lee_ficha(int en, const char *nombre, ficha &f) {
    struct stat s {};
    f = {};
    if (::fstatat(en, nombre, &s, AT_SYMLINK_NOFOLLOW) != 0) return false;
    f.es_enlace = S_ISLNK(s.st_mode);
    const bool lleva = !f.es_enlace || ::fstatat(en, nombre, &s, 0) == 0;
    if (f.es_enlace) f.atributos |= VNLONGPATH_FILE_ATTRIBUTE_REPARSE_POINT;
    if (!lleva) return false;
    f.es_directorio = S_ISDIR(s.st_mode);
    f.tamanyo = S_ISREG(s.st_mode) ? static_cast<uint64_t>(s.st_size) : 0;
    f.fecha = s.st_mtim.tv_sec;
    const char *ultima = nombre;
    for (const char *p = nombre; *p != 0; ++p)
        if (*p == '/' && p[1] != 0 && p[1] != '/') ultima = p + 1;
    if (f.es_directorio) f.atributos |= VNLONGPATH_FILE_ATTRIBUTE_DIRECTORY;
    if (ultima[0] == '.' && ultima[1] != 0 && ultima[1] != '/' && std::string_view(ultima) != "..")
        f.atributos |= VNLONGPATH_FILE_ATTRIBUTE_HIDDEN;
    if (::faccessat(en, nombre, W_OK, AT_EACCESS) != 0) f.atributos |= VNLONGPATH_FILE_ATTRIBUTE_READONLY;
    if (f.atributos == 0) f.atributos = VNLONGPATH_FILE_ATTRIBUTE_NORMAL;
    return true;
}

texto sin_separador_final(texto t) {
    while (!t.empty() && t.back() == SEPARADOR) t.pop_back();
    return t;
}

std::optional<texto> casa() {
    if (auto v = variable("HOME"); v && v->front() == SEPARADOR) return v;
    std::array<char, 16384> sitio{};
    struct passwd p {
    }, *hay = nullptr;
    if (::getpwuid_r(::geteuid(), &p, sitio.data(), sitio.size(), &hay) != 0 || hay == nullptr)
        return std::nullopt;
    return ruta_ancha(p.pw_dir);
}

// The directory that a variable names, or one below the user's home.
std::optional<texto> de_usuario(const char *nombre, vista en_casa) {
    if (auto v = variable(nombre); v && v->front() == SEPARADOR) return sin_separador_final(*v);
    if (auto c = casa()) return sin_separador_final(*c) + SEPARADOR + texto(en_casa);
    return std::nullopt;
}

} // namespace

bool consulta(const texto &ruta, ficha &f) { return lee_ficha(AT_FDCWD, bytes(ruta).c_str(), f); }

bool es_enlace(const texto &ruta) {
    struct stat s {};
    std::string b = bytes(ruta);
    // With a separator at its end the name would be that of what the link leads to.
    while (b.size() > 1 && b.back() == '/') b.pop_back();
    return ::lstat(b.c_str(), &s) == 0 && S_ISLNK(s.st_mode);
}

struct recorrido::interior {
    DIR *directorio;
    bool con_datos;
};

recorrido::recorrido(const texto &directorio, bool con_datos) : interior_(std::make_unique<interior>()) {
    *interior_ = {::opendir(directorio.empty() ? "." : bytes(directorio).c_str()), con_datos};
}

recorrido::~recorrido() {
    if (abierto()) ::closedir(interior_->directorio);
}

bool recorrido::abierto() const { return interior_->directorio != nullptr; }

bool recorrido::siguiente(ficha &f) {
    if (!abierto()) return false;
    while (const struct dirent *e = ::readdir(interior_->directorio)) {
        const std::string_view nombre = e->d_name;
        if (nombre == "." || nombre == "..") continue;
        f = {};
        if (interior_->con_datos || e->d_type == DT_LNK || e->d_type == DT_UNKNOWN)
            lee_ficha(::dirfd(interior_->directorio), e->d_name, f);
        else
            f.es_directorio = e->d_type == DT_DIR;
        f.nombre = ruta_ancha(nombre);
        return true;
    }
    return false;
}

bool crea_directorio(const texto &ruta) {
    const std::string b = bytes(ruta);
    struct stat s {};
    if (::mkdir(b.c_str(), 0777) == 0) return true;
    return ::stat(b.c_str(), &s) == 0 && S_ISDIR(s.st_mode);
}

bool borra_directorio(const texto &ruta) {
    const std::string b = bytes(ruta);
    return es_enlace(ruta) ? ::unlink(b.c_str()) == 0 : ::rmdir(b.c_str()) == 0;
}

void quita_proteccion(const texto &) {}

bool puede_leer(const texto &fichero) {
    return ::faccessat(AT_FDCWD, bytes(fichero).c_str(), R_OK, AT_EACCESS) == 0;
}
bool puede_escribir(const texto &fichero) {
    return ::faccessat(AT_FDCWD, bytes(fichero).c_str(), W_OK, AT_EACCESS) == 0;
}
bool es_ejecutable(const texto &fichero) {
    return ::faccessat(AT_FDCWD, bytes(fichero).c_str(), X_OK, AT_EACCESS) == 0;
}

std::optional<texto> variable(const char *nombre) {
    const char *v = std::getenv(nombre);
    if (v == nullptr || *v == 0) return std::nullopt;
    return ruta_ancha(v);
}

texto directorio_temporal() {
    auto v = variable("TMPDIR");
    return v && v->front() == SEPARADOR ? sin_separador_final(*v) : texto(VNU("/tmp"));
}

texto ruta_del_programa() {
    std::string b(4096, '\0');
    const ssize_t n = ::readlink("/proc/self/exe", b.data(), b.size());
    return n > 0 ? ruta_ancha(std::string_view(b).substr(0, static_cast<size_t>(n))) : texto();
}

std::optional<texto> base_de_configuracion() { return de_usuario("XDG_CONFIG_HOME", VNU(".config")); }

texto unidad_escribible() {
    return de_usuario("XDG_DATA_HOME", VNU(".local/share")).value_or(directorio_temporal());
}

std::vector<texto> directorios_de_programas() {
    std::vector<texto> r;
    const texto todos = variable("PATH").value_or(texto(VNU("/usr/local/bin:/usr/bin:/bin"))) + VNU(':');
    for (size_t i = 0, j = 0; (j = todos.find(VNU(':'), i)) != texto::npos; i = j + 1)
        r.push_back(j > i ? todos.substr(i, j - i) : texto(VNU(".")));
    return r;
}

std::vector<texto> terminaciones_de_programas() { return {texto()}; }

} // namespace vn::plat
