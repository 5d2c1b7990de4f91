#define VN_MODULO "guardado (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/guardado_priv.h"
#include "foundation/platform/fichero.h"
#include <string_view>
#include <utility>

namespace vn::ficheros {
namespace {

constexpr const vnwchar *SUFIJO_SEGURIDAD = VNU(".bak");
// The safety copy until it takes the name of the one before.
constexpr const vnwchar *SUFIJO_SEGURIDAD_NUEVA = VNU("_BK$");

constexpr uint32_t TEMPORAL = VN_ABRE_LECTURA | VN_ABRE_ESCRITURA | VN_ABRE_EXCLUSIVO | VN_ABRE_PROPIO;

bool es_bajo(vnwchar c) { return c >= 0xDC00 && c < 0xE000; }

// A name beside `ruta`. One that would not fit in a directory loses the end of its own part, of which it keeps a
// digest: two long names have two such names.
cadena_ancha al_lado(const cadena_ancha &ruta, const vnwchar *sufijo) {
    const size_t barra = ruta.find_last_of(VNU("/\\"));
    const size_t inicio = barra == cadena_ancha::npos ? 0 : barra + 1;
    const cadena_ancha nombre = ruta.substr(inicio);
    cadena_ancha resto = sufijo;
    size_t n = nombre.size();
    if (plat::mide_nombre(nombre + resto) > plat::MAXIMO_NOMBRE) {
        uint32_t resumen = 2166136261u;
        for (const vnwchar c : nombre) resumen = (resumen ^ static_cast<uint16_t>(c)) * 16777619u;
        cadena_ancha cifras = VNU("~");
        for (int k = 28; k >= 0; k -= 4) cifras += VNU("0123456789abcdef")[resumen >> k & 15];
        resto = cifras + resto;
        while (n > 0 && (plat::mide_nombre(nombre.substr(0, n) + resto) > plat::MAXIMO_NOMBRE || es_bajo(nombre[n])))
            --n;
    }
    return ruta.substr(0, inicio + n) + resto;
}

vnerror_fichero resuelve(const vnwchar *nombre, cadena_ancha &real) {
    constexpr size_t MAXIMO = 32768;
    real.assign(MAXIMO, 0);
    const vnerror_fichero e = operaciones().resuelve(nombre, real.data(), MAXIMO);
    real.resize(e == VN_FICH_BIEN ? std::char_traits<vnwchar>::length(real.c_str()) : 0);
    real.shrink_to_fit();
    return e;
}

// Creates the temporary, held. A temporary that a dead program has left goes first; one that a program holds stays.
vnerror_fichero crea_temporal(const cadena_ancha &nombre, uint32_t ademas, vnid_fichero *id) {
    return con_paciencia(UN_SEGUNDO, [&] {
        vnerror_fichero e = operaciones().abre(nombre.c_str(), TEMPORAL | VN_ABRE_CREA | VN_ABRE_NUEVO | ademas, id);
        if (e != VN_FICH_YA_EXISTE) return e;
        e = operaciones().retira(nombre.c_str());
        return e == VN_FICH_BIEN || e == VN_FICH_NO_EXISTE ? VN_FICH_INTERRUMPIDA : e;
    });
}

// Opens a file for writing and closes it again: the error if it cannot be written, another program holds it alone, or
// it is not a normal file.
vnerror_fichero se_puede_escribir(const vnwchar *nombre) {
    vnid_fichero id = VN_FICHERO_NINGUNO;
    vnestado_fichero estado{};
    vnerror_fichero e = con_paciencia(UN_SEGUNDO, [&] { return operaciones().abre(nombre, VN_ABRE_ESCRITURA, &id); });
    if (e != VN_FICH_BIEN) return e;
    e = operaciones().estado_abierto(id, &estado);
    operaciones().cierra(id);
    return e != VN_FICH_BIEN || estado.es_normal == CIERTO ? e : VN_FICH_NO_ADMITIDO;
}

// A file system without rights of its own for each file has nothing to copy.
vnerror_fichero copia_permisos_si_hay(const vnwchar *origen, vnid_fichero id) {
    const vnerror_fichero e = operaciones().copia_permisos(origen, id);
    return e == VN_FICH_NO_ADMITIDO ? VN_FICH_BIEN : e;
}

// Removes a file that is open and held, and closes it. Where what is open cannot be removed it goes after its close.
vnerror_fichero borra_y_cierra(vnid_fichero id, const cadena_ancha &nombre) {
    vnerror_fichero e = operaciones().es_su_nombre(id, nombre.c_str());
    if (e == VN_FICH_BIEN) e = operaciones().borra(nombre.c_str());
    operaciones().cierra(id);
    return e == VN_FICH_COMPARTIDO ? operaciones().borra(nombre.c_str()) : e;
}

// A copy on the disk with the rights of the first.
vnerror_fichero copia_entera(const cadena_ancha &de, const cadena_ancha &a) {
    vnid_fichero id = VN_FICHERO_NINGUNO;
    vnerror_fichero e = crea_temporal(a, VN_ABRE_PRIVADO, &id);
    if (e != VN_FICH_BIEN) return e;
    e = copia_permisos_si_hay(de.c_str(), id);
    if (e == VN_FICH_BIEN) e = copia_contenido(de.c_str(), id);
    if (e == VN_FICH_BIEN) e = operaciones().vuelca(id);
    const vnerror_fichero al_cerrar = operaciones().cierra(id);
    return e != VN_FICH_BIEN ? e : al_cerrar;
}

} // namespace

// The reason to refuse a file, or whether it is there.
vnerror_fichero guardado::busca_destino(const vnwchar *nombre, bool *hay) {
    nombre_ = nombre;
    vnerror_fichero e = resuelve(nombre, destino_);
    if (e != VN_FICH_BIEN) return e;
    vnestado_fichero estado{};
    e = operaciones().estado(destino_.c_str(), &estado);
    *hay = e == VN_FICH_BIEN;
    if (e == VN_FICH_NO_EXISTE) return VN_FICH_BIEN;
    if (e != VN_FICH_BIEN || estado.es_normal == CIERTO) return e;
    return estado.es_directorio == CIERTO ? VN_FICH_ES_DIRECTORIO : VN_FICH_NO_ADMITIDO;
}

std::unique_ptr<guardado> guardado::abre(const vnwchar *nombre, const manera &como, vnerror_fichero *e) {
    std::unique_ptr<guardado> g(new guardado);
    bool hay = false;
    if ((*e = g->busca_destino(nombre, &hay)) != VN_FICH_BIEN) return nullptr;
    g->temporal_ = al_lado(g->destino_, como.sufijo);
    g->con_copia_ = como.con_copia;
    const vnwchar *derechos = hay ? g->destino_.c_str() : como.derechos;
    *e = crea_temporal(g->temporal_, derechos != nullptr ? VN_ABRE_PRIVADO : 0, &g->id_);
    if (*e != VN_FICH_BIEN) return nullptr;
    if (derechos != nullptr) *e = copia_permisos_si_hay(derechos, g->id_);
    return *e == VN_FICH_BIEN ? std::move(g) : nullptr;
}

std::unique_ptr<guardado> guardado::adopta(const vnwchar *nombre, const vnwchar *temporal, vnerror_fichero *e) {
    std::unique_ptr<guardado> g(new guardado);
    bool hay = false;
    g->temporal_ = temporal;
    *e = con_paciencia(UN_SEGUNDO, [&] { return operaciones().abre(temporal, TEMPORAL, &g->id_); });
    if (*e == VN_FICH_BIEN) *e = g->busca_destino(nombre, &hay);
    return *e == VN_FICH_BIEN ? std::move(g) : nullptr;
}

bool guardado::es_de(const vnwchar *nombre) const {
    cadena_ancha real;
    return nombre_ == nombre || (resuelve(nombre, real) == VN_FICH_BIEN && plat::mismo_camino(real, destino_));
}

// The file gets a second name, or a copy where that is refused, which then replaces the safety copy in one step: the
// old safety copy is there until the new one is.
vnerror_fichero guardado::guarda_copia_de_seguridad() const {
    const cadena_ancha nueva = al_lado(destino_, SUFIJO_SEGURIDAD_NUEVA), copia = al_lado(destino_, SUFIJO_SEGURIDAD);
    operaciones().retira(nueva.c_str());
    vnerror_fichero e = operaciones().enlaza(destino_.c_str(), nueva.c_str());
    if (e != VN_FICH_BIEN) e = copia_entera(destino_, nueva);
    if (e == VN_FICH_BIEN)
        e = con_paciencia(UN_SEGUNDO, [&] { return operaciones().renombra(nueva.c_str(), copia.c_str()); });
    // Half a copy, or two names of one file: then the rename did nothing, as it should, and left both.
    operaciones().borra(nueva.c_str());
    return e;
}

// The old file gives its rights and becomes the safety copy. A program that may not write it does not replace it
// either.
vnerror_fichero guardado::prepara_sitio() {
    vnerror_fichero e = se_puede_escribir(destino_.c_str());
    if (e == VN_FICH_NO_EXISTE) return VN_FICH_BIEN;
    if (e == VN_FICH_BIEN && !plat::se_puede_reemplazar(destino_.c_str())) e = VN_FICH_SIN_PERMISO;
    if (e == VN_FICH_BIEN) e = copia_permisos_si_hay(destino_.c_str(), id_);
    return e == VN_FICH_BIEN && con_copia_ ? guarda_copia_de_seguridad() : e;
}

vnerror_fichero guardado::confirma() {
    // A flush that failed is not tried again: the system may then say that all is well of data that are gone.
    vnerror_fichero e = operaciones().vuelca(id_);
    if (e == VN_FICH_BIEN) e = operaciones().es_su_nombre(id_, temporal_.c_str());
    if (e == VN_FICH_BIEN) e = prepara_sitio();
    if (e == VN_FICH_BIEN)
        e = con_paciencia(UN_SEGUNDO,
                          [&] { return operaciones().renombra_abierto(id_, temporal_.c_str(), destino_.c_str()); });
    if (e != VN_FICH_BIEN) {
        abandona();
        return e;
    }
    // From here on the new file stands, and all that can still be told is whether it will last.
    const vnerror_fichero al_cerrar = operaciones().cierra(std::exchange(id_, VN_FICHERO_NINGUNO));
    e = con_paciencia(UN_SEGUNDO, [&] { return operaciones().vuelca_directorio(destino_.c_str()); });
    const bool dura = (e == VN_FICH_BIEN || e == VN_FICH_NO_ADMITIDO) && al_cerrar == VN_FICH_BIEN;
    return dura ? VN_FICH_BIEN : VN_FICH_SIN_ASEGURAR;
}

void guardado::abandona() {
    if (id_ != VN_FICHERO_NINGUNO) borra_y_cierra(std::exchange(id_, VN_FICHERO_NINGUNO), temporal_);
}

} // namespace vn::ficheros
