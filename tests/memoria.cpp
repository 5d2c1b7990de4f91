#include "memoria.h"
#include "foundation/suelo/operaciones_fichero.h"
#include <algorithm>
#include <map>
#include <memory>

namespace vn {
namespace {

using bytes = std::shared_ptr<std::string>;
using nombre_u = std::basic_string<vnwchar>;
std::map<nombre_u, bytes> ficheros;
std::map<vnid_fichero, bytes> abiertos;
vnid_fichero siguiente = 1;

vnerror_fichero abre(const vnwchar *nombre, uint32_t como, vnid_fichero *id) {
    const auto f = ficheros.find(nombre);
    if (f == ficheros.end() && !(como & VN_ABRE_CREA)) return VN_FICH_NO_EXISTE;
    if (f != ficheros.end() && (como & VN_ABRE_NUEVO)) return VN_FICH_YA_EXISTE;
    bytes &b = ficheros[nombre];
    if (b == nullptr) b = std::make_shared<std::string>();
    if (como & VN_ABRE_TRUNCA) b->clear();
    *id = siguiente++;
    abiertos[*id] = b;
    return VN_FICH_BIEN;
}
vnerror_fichero lee(vnid_fichero id, int64_t posicion, void *destino, size_t n, size_t *leidos) {
    const std::string &s = *abiertos.at(id);
    const auto desde = static_cast<uint64_t>(posicion);
    *leidos = desde >= s.size() ? 0 : s.copy(static_cast<char *>(destino), n, desde);
    return VN_FICH_BIEN;
}
vnerror_fichero escribe(vnid_fichero id, int64_t posicion, const void *origen, size_t n, size_t *escritos) {
    std::string &s = *abiertos.at(id);
    if (posicion < 0 || posicion > (1 << 26)) return VN_FICH_SIN_ESPACIO;
    const auto desde = static_cast<size_t>(posicion);
    s.resize(std::max(s.size(), desde + n));
    s.replace(desde, n, static_cast<const char *>(origen), n);
    *escritos = n;
    return VN_FICH_BIEN;
}
vnerror_fichero trunca(vnid_fichero id, int64_t tamanyo) {
    abiertos.at(id)->resize(static_cast<size_t>(tamanyo));
    return VN_FICH_BIEN;
}
vnerror_fichero estado_abierto(vnid_fichero id, vnestado_fichero *e) {
    *e = {abiertos.at(id)->size(), FALSO, CIERTO};
    return VN_FICH_BIEN;
}
vnerror_fichero cierra(vnid_fichero id) {
    abiertos.erase(id);
    return VN_FICH_BIEN;
}
vnerror_fichero estado(const vnwchar *nombre, vnestado_fichero *e) {
    const auto f = ficheros.find(nombre);
    if (f == ficheros.end()) return VN_FICH_NO_EXISTE;
    *e = {f->second->size(), FALSO, CIERTO};
    return VN_FICH_BIEN;
}
vnerror_fichero enlaza(const vnwchar *existente, const vnwchar *nuevo) {
    const auto f = ficheros.find(existente);
    if (f == ficheros.end()) return VN_FICH_NO_EXISTE;
    return ficheros.try_emplace(nuevo, f->second).second ? VN_FICH_BIEN : VN_FICH_YA_EXISTE;
}
vnerror_fichero renombra(const vnwchar *existente, const vnwchar *nuevo) {
    const auto f = ficheros.find(existente);
    if (f == ficheros.end()) return VN_FICH_NO_EXISTE;
    const bytes b = f->second;
    ficheros.erase(f);
    ficheros[nuevo] = b;
    return VN_FICH_BIEN;
}
vnerror_fichero renombra_abierto(vnid_fichero, const vnwchar *existente, const vnwchar *nuevo) {
    return renombra(existente, nuevo);
}
vnerror_fichero es_su_nombre(vnid_fichero id, const vnwchar *nombre) {
    const auto f = ficheros.find(nombre);
    return f == ficheros.end() ? VN_FICH_NO_EXISTE : f->second == abiertos.at(id) ? VN_FICH_BIEN : VN_FICH_YA_EXISTE;
}
vnerror_fichero resuelve(const vnwchar *nombre, vnwchar *real, size_t maximo) {
    const size_t n = std::char_traits<vnwchar>::length(nombre) + 1;
    if (n > maximo) return VN_FICH_NO_ADMITIDO;
    std::copy_n(nombre, n, real);
    return VN_FICH_BIEN;
}
vnerror_fichero borra(const vnwchar *nombre) { return ficheros.erase(nombre) != 0 ? VN_FICH_BIEN : VN_FICH_NO_EXISTE; }

} // namespace

ficheros_en_memoria::ficheros_en_memoria() {
    const vnoperaciones_fichero tabla = {
        .abre = abre,
        .lee = lee,
        .escribe = escribe,
        .vuelca = [](vnid_fichero) { return VN_FICH_BIEN; },
        .trunca = trunca,
        .estado_abierto = estado_abierto,
        .bloquea = [](vnid_fichero, int64_t, int64_t, uint32_t) { return VN_FICH_BIEN; },
        .desbloquea = [](vnid_fichero, int64_t, int64_t) { return VN_FICH_BIEN; },
        .cierra = cierra,
        .estado = estado,
        .resuelve = resuelve,
        .enlaza = enlaza,
        .renombra = renombra,
        .renombra_abierto = renombra_abierto,
        .es_su_nombre = es_su_nombre,
        .borra = borra,
        .retira = borra,
        .copia_permisos = [](const vnwchar *, vnid_fichero) { return VN_FICH_BIEN; },
        .vuelca_directorio = [](const vnwchar *) { return VN_FICH_BIEN; },
        .espera = [](uint32_t) {},
    };
    vacia();
    operaciones_fichero_instala(&tabla);
}

ficheros_en_memoria::~ficheros_en_memoria() {
    operaciones_fichero_instala(nullptr);
    vacia();
}

void ficheros_en_memoria::pon(const nombre_u &nombre, std::string contenido) {
    ficheros[nombre] = std::make_shared<std::string>(std::move(contenido));
}

std::string ficheros_en_memoria::dame(const nombre_u &nombre) const {
    const auto f = ficheros.find(nombre);
    return f == ficheros.end() ? std::string() : *f->second;
}

void ficheros_en_memoria::vacia() { ficheros.clear(); }
bool ficheros_en_memoria::todos_cerrados() const { return abiertos.empty(); }

} // namespace vn
