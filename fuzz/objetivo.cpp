#include "objetivo.h"
#include "foundation/avisos.h"
#include "foundation/operaciones_fichero.h"
#include "foundation/trapable.h"
#include "foundation/vornspy.h"
#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <memory>

namespace fuzz {
namespace {

// ---------------------------------------------------------------- a file system of memory
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
    *leidos = posicion < 0 || static_cast<uint64_t>(posicion) >= s.size() ? 0 : std::min(n, s.size() - static_cast<size_t>(posicion));
    if (*leidos != 0) std::memcpy(destino, s.data() + posicion, *leidos);
    return VN_FICH_BIEN;
}
vnerror_fichero escribe(vnid_fichero id, int64_t posicion, const void *origen, size_t n, size_t *escritos) {
    std::string &s = *abiertos.at(id);
    exige(posicion >= 0 && posicion < (1 << 26), "a position to write at");
    if (s.size() < static_cast<size_t>(posicion) + n) s.resize(static_cast<size_t>(posicion) + n);
    std::memcpy(s.data() + posicion, origen, n);
    *escritos = n;
    return VN_FICH_BIEN;
}
vnerror_fichero vuelca(vnid_fichero) { return VN_FICH_BIEN; }
vnerror_fichero trunca(vnid_fichero id, int64_t tamanyo) {
    abiertos.at(id)->resize(static_cast<size_t>(tamanyo));
    return VN_FICH_BIEN;
}
vnerror_fichero estado_abierto(vnid_fichero id, vnestado_fichero *e) {
    *e = {abiertos.at(id)->size(), FALSO, CIERTO};
    return VN_FICH_BIEN;
}
vnerror_fichero bloquea(vnid_fichero, int64_t, int64_t, uint32_t) { return VN_FICH_BIEN; }
vnerror_fichero desbloquea(vnid_fichero, int64_t, int64_t) { return VN_FICH_BIEN; }
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
vnerror_fichero borra(const vnwchar *nombre) { return ficheros.erase(nombre) != 0 ? VN_FICH_BIEN : VN_FICH_NO_EXISTE; }
vnerror_fichero copia_permisos(const vnwchar *, const vnwchar *) { return VN_FICH_BIEN; }
vnerror_fichero vuelca_directorio(const vnwchar *) { return VN_FICH_BIEN; }
void espera(uint32_t) {}

nombre_u nombre_fichero() { return {FICHERO, FICHERO + std::strlen(FICHERO)}; }

// ---------------------------------------------------------------- the watch over the library
uint64_t pedidos = 0;
vnbool cuenta(size_t n, void *) {
    pedidos += n;
    return CIERTO;
}
void calla(const vninforme *, void *) {}
vnbool responde_que_no(vntipo_aviso, const vnwchar *, void *) { return FALSO; }

void prepara() {
    static const bool hecho = [] {
        static const vnoperaciones_fichero tabla = {.abre = abre,
                                                     .lee = lee,
                                                     .escribe = escribe,
                                                     .vuelca = vuelca,
                                                     .trunca = trunca,
                                                     .estado_abierto = estado_abierto,
                                                     .bloquea = bloquea,
                                                     .desbloquea = desbloquea,
                                                     .cierra = cierra,
                                                     .estado = estado,
                                                     .enlaza = enlaza,
                                                     .renombra = renombra,
                                                     .borra = borra,
                                                     .copia_permisos = copia_permisos,
                                                     .vuelca_directorio = vuelca_directorio,
                                                     .espera = espera};
        operaciones_fichero_instala(&tabla);
        error_interno_instala_receptor(calla, nullptr);
        avisos_instala_receptor(responde_que_no, nullptr);
        vornspy_instala_permiso(cuenta, nullptr);
        return true;
    }();
    static_cast<void>(hecho);
    ficheros.clear();
    exige(abiertos.empty(), "every file was closed");
}

} // namespace

void exige(bool condicion, const char *que) {
    if (condicion) return;
    std::fprintf(stderr, "fuzz: does not hold: %s\n", que);
    std::abort();
}

void con_fichero(const uint8_t *datos, size_t n, uint64_t maximo, const std::function<void()> &lee_todo) {
    prepara();
    ficheros[nombre_fichero()] = std::make_shared<std::string>(reinterpret_cast<const char *>(datos), n);
    pedidos = 0;
    lee_todo();
    // The library makes once, with the first input, what it keeps. Walking the heap costs more than an input does: a leak
    // shows within so many of them.
    constexpr uint64_t CADA = 64;
    static uint64_t entradas = 0, vivos = 0;
    if (entradas > 0) exige(pedidos <= maximo, "the memory asked for is bounded by the file's size");
    if (entradas % CADA == 0) {
        const uint64_t ahora = vornspy_bloques_vivos(nullptr);
        exige(entradas == 0 || ahora <= vivos, "every block was freed");
        vivos = ahora;
    }
    ++entradas;
    exige(abiertos.empty(), "every file was closed");
}

std::string lo_que_graba(const std::function<void()> &graba) {
    prepara();
    graba();
    return contenido();
}

std::string contenido() {
    const auto f = ficheros.find(nombre_fichero());
    return f == ficheros.end() ? std::string() : *f->second;
}

bool atrapa(const std::function<void()> &f) {
    const auto corre = [](void *p) { (*static_cast<const std::function<void()> *>(p))(); };
    return trapable_nousar_recursivo_ejecuta_funcion_segura(corre, const_cast<std::function<void()> *>(&f), nullptr) == CIERTO;
}

} // namespace fuzz
