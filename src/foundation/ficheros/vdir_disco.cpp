#define VN_MODULO "vdir (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/operaciones_fichero.h"
#include <algorithm>

namespace vn::ficheros {
namespace {

const vnoperaciones_fichero &tabla() { return *operaciones_fichero_actuales(); }

bool estado(const cadena_ancha &ruta, vnestado_fichero &e) {
    return !ruta.empty() && tabla().estado(ruta.c_str(), &e) == VN_FICH_BIEN;
}

bool longitud(const vnwchar *nombre, uint64_t &tamanyo) {
    vnestado_fichero e{};
    const bool hay = estado(nombre, e) && e.es_directorio == FALSO;
    tamanyo = hay ? e.tamanyo : 0;
    return hay;
}

// A link that leads nowhere has no state, but its name is taken.
bool hay_algo(const cadena_ancha &ruta) {
    vnestado_fichero e{};
    return estado(ruta, e) || plat::es_enlace(ruta);
}

bool mismo_nombre(vista_ancha a, vista_ancha b) {
    return std::equal(a.begin(), a.end(), b.begin(), b.end(), [](vnwchar x, vnwchar y) {
        return (es_separador(x) && es_separador(y)) || plat::para_comparar(x) == plat::para_comparar(y);
    });
}

// A second name and then the first one away, so that nobody's file is replaced; where a second name cannot be
// (directories, some file systems), the renaming itself after a look.
bool renombra(const cadena_ancha &origen, const cadena_ancha &destino) {
    switch (tabla().enlaza(origen.c_str(), destino.c_str())) {
    case VN_FICH_BIEN:
        if (tabla().borra(origen.c_str()) == VN_FICH_BIEN) return true;
        // The old name stays, so the second one goes again.
        tabla().borra(destino.c_str());
        return false;
    case VN_FICH_NO_EXISTE: return false;
    // The same file with other capitals.
    case VN_FICH_YA_EXISTE:
        return origen != destino && mismo_nombre(origen, destino) &&
               tabla().renombra(origen.c_str(), destino.c_str()) == VN_FICH_BIEN;
    default: return !hay_algo(destino) && tabla().renombra(origen.c_str(), destino.c_str()) == VN_FICH_BIEN;
    }
}

// Empties the current directory of all that is no directory; these are left in `directorios`.
bool quita_ficheros(plat::descenso &d, std::vector<cadena_ancha> &directorios) {
    std::vector<plat::ficha> contenido;
    bool todo = d.lista(contenido);
    for (plat::ficha &f : contenido) {
        if (f.es_directorio && !f.es_enlace) directorios.push_back(std::move(f.nombre));
        else todo = d.borra(f.nombre) && todo;
    }
    return todo;
}

bool borra_contenido(const cadena_ancha &raiz) {
    plat::descenso d(raiz);
    if (!d.abierto()) return false;
    std::vector<std::vector<cadena_ancha>> faltan(1); // the directories that are left, by depth
    bool todo = quita_ficheros(d, faltan.back());
    for (;;) {
        // Down into the next directory, which is emptied of files at once.
        if (!faltan.back().empty() && d.entra(faltan.back().back())) {
            faltan.emplace_back();
            todo = quita_ficheros(d, faltan.back()) && todo;
            continue;
        }
        // Nothing is left here: up again, where this directory itself is next to go.
        if (faltan.back().empty()) {
            faltan.pop_back();
            if (faltan.empty()) return todo;
            if (!d.sal()) return false;
        }
        // Emptied, or never entered: an empty one that cannot be read, or what has taken its place.
        todo = d.borra(faltan.back().back()) && todo;
        faltan.back().pop_back();
    }
}

bool borra_arbol(const cadena_ancha &ruta, bool tambien_la_raiz) {
    const cadena_ancha raiz(sin_separador_final(ruta));
    const vista_ancha ultima = descompone(raiz).nombre;
    // A root, and the names that change with the place, are never emptied.
    if (ultima.empty() || ultima == vista_ancha(VNU(".")) || ultima == vista_ancha(VNU(".."))) return false;
    // A link goes itself; what it leads to is not ours.
    if (plat::es_enlace(raiz)) return tambien_la_raiz && plat::borra_directorio(raiz);
    if (!hay_algo(raiz)) return true;
    return borra_contenido(raiz) && (!tambien_la_raiz || plat::borra_directorio(raiz));
}

vista_ancha directorio_del_path(vista_ancha ruta) {
    return !ruta.empty() && es_separador(ruta.back()) ? ruta : descompone(ruta).hasta_directorio();
}

} // namespace

bool existe_directorio(const cadena_ancha &ruta) {
    vnestado_fichero e{};
    return estado(ruta, e) && e.es_directorio == CIERTO;
}

bool existe_fichero(const cadena_ancha &ruta) {
    vnestado_fichero e{};
    return estado(ruta, e) && e.es_directorio == FALSO;
}

bool borra_fichero(const cadena_ancha &ruta) { return tabla().borra(ruta.c_str()) == VN_FICH_BIEN; }

bool crea_directorios(const cadena_ancha &ruta) { return plat::crea_directorios(ruta); }

} // namespace vn::ficheros

using namespace vn;
using namespace vn::ficheros;

vnbool vdir_existe_fichero_UNICODE(const vnwchar *ruta) { return logico(AFIRMA_NO_NULO(ruta) && existe_fichero(ruta)); }

vnbool vdir_existe_fichero(const char *ruta) { return logico(AFIRMA_NO_NULO(ruta) && existe_fichero(de_ansi(ruta))); }

vnbool vdir_existe_directorio_UNICODE(const vnwchar *ruta) {
    return logico(AFIRMA_NO_NULO(ruta) && existe_directorio(ruta));
}

vnbool vdir_existe_directorio(const char *ruta) {
    return logico(AFIRMA_NO_NULO(ruta) && existe_directorio(de_ansi(ruta)));
}

vnbool vdir_se_puede_leer_UNICODE(const vnwchar *ruta) {
    return logico(AFIRMA_NO_NULO(ruta) && existe_fichero(ruta) && plat::puede_leer(ruta));
}

vnbool vdir_se_puede_escribir_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta) || *ruta == 0 || es_separador(vista_ancha(ruta).back())) return FALSO;
    vnestado_fichero e{};
    // A file that is there is asked for its rights; for one that is not, its directory is tried.
    const vnerror_fichero hay = tabla().estado(ruta, &e);
    if (hay == VN_FICH_BIEN) return logico(e.es_directorio == FALSO && plat::puede_escribir(ruta));
    if (hay != VN_FICH_NO_EXISTE) return FALSO; // links that lead to each other
    return vdir_se_puede_escribir_en_directorio_UNICODE(cadena_ancha(descompone(ruta).hasta_directorio()).c_str());
}

vnbool vdir_se_puede_escribir_en_directorio_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return FALSO;
    // Tried with a file: rights alone do not tell of a full or protected disk.
    cadena_ancha prueba;
    return logico(crea_fichero_unico(ruta, VNU("tmp"), prueba) && borra_fichero(prueba));
}

vnbool vdir_se_puede_escribir_en_directorio(const char *ruta) {
    return AFIRMA_NO_NULO(ruta) ? vdir_se_puede_escribir_en_directorio_UNICODE(de_ansi(ruta).c_str()) : FALSO;
}

uint64_t vdir_longitud64_fichero_u(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return 0;
    uint64_t tamanyo = 0;
    const bool existe = longitud(nombre, tamanyo);
    AFIRMA_DE_FICHERO(existe, nombre);
    return tamanyo;
}

uint32_t vdir_longitud_fichero_u(const vnwchar *nombre) {
    const uint64_t tamanyo = vdir_longitud64_fichero_u(nombre);
    return AFIRMA_DE_FICHERO(tamanyo <= UINT32_MAX, nombre) ? static_cast<uint32_t>(tamanyo) : 0;
}

vnbool vdir_longitud_fichero_seguro_u(const vnwchar *nombre, uint64_t *tamanyo) {
    if (!AFIRMA_NO_NULO(tamanyo)) return FALSO;
    *tamanyo = 0;
    return logico(AFIRMA_NO_NULO(nombre) && longitud(nombre, *tamanyo));
}

vnbool vdir_borra_fichero_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return FALSO;
    const bool borrado = borra_fichero(ruta);
    return logico(AFIRMA_DE_FICHERO(borrado, ruta));
}

vnbool vdir_borra_fichero_si_existe_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return FALSO;
    return hay_algo(ruta) ? vdir_borra_fichero_UNICODE(ruta) : CIERTO;
}

vnbool vdir_borra_fichero_con_comprobacion_UNICODE(const vnwchar *ruta) {
    return logico(AFIRMA_NO_NULO(ruta) && borra_fichero(ruta));
}

vnbool vdir_renombra_fichero_UNICODE(const vnwchar *origen, const vnwchar *destino) {
    if (!EXIGE(origen, destino)) return FALSO;
    const bool renombrado = renombra(origen, destino);
    return logico(AFIRMA_DE_FICHERO(renombrado, destino));
}

vnbool vdir_renombra_fichero_si_es_posible_UNICODE(const vnwchar *origen, const vnwchar *destino) {
    return logico(EXIGE(origen, destino) && renombra(origen, destino));
}

vnbool vdir_crea_directorios_UNICODE(const vnwchar *ruta, vnbool informa) {
    if (!AFIRMA_NO_NULO(ruta) || !AFIRMA_LOGICO(informa)) return FALSO;
    const bool creados = crea_directorios(ruta);
    return logico(creados || (informa == CIERTO && AFIRMA_DE_FICHERO(creados, ruta)));
}

vnbool vdir_crea_directorios_del_path_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return FALSO;
    return vdir_crea_directorios_UNICODE(cadena_ancha(directorio_del_path(ruta)).c_str(), CIERTO);
}

vnbool vdir_crea_directorios_fichero_UNICODE(const vnwchar *fichero) {
    if (!AFIRMA_NO_NULO(fichero)) return FALSO;
    return vdir_crea_directorios_UNICODE(cadena_ancha(descompone(fichero).hasta_directorio()).c_str(), CIERTO);
}

vnbool vdir_crea_directorios_fichero_si_es_posible_UNICODE(const vnwchar *fichero) {
    if (!AFIRMA_NO_NULO(fichero)) return FALSO;
    return vdir_crea_directorios_UNICODE(cadena_ancha(descompone(fichero).hasta_directorio()).c_str(), FALSO);
}

vnbool vdir_borra_contenido_directorio_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return FALSO;
    const bool borrado = borra_arbol(ruta, false);
    return logico(AFIRMA_DE_FICHERO(borrado, ruta));
}

vnbool vdir_borra_directorio_y_subdirectorios_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return FALSO;
    const bool borrado = borra_arbol(ruta, true);
    return logico(AFIRMA_DE_FICHERO(borrado, ruta));
}
