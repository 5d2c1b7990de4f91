#define VN_MODULO "dirwin (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/dirwin.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/vnlongpath.h"
#include "foundation/suelo/vornspy.h"
#include <algorithm>
#include <iterator>
#include <new>

// A walk over one directory, and the mask that its names must match.
struct dirwin {
    explicit dirwin(vn::ficheros::partes p)
        : mascara(p.nombre_con_extension()), recorrido(vn::cadena_ancha(p.hasta_directorio()), true) {}
    vn::cadena_ancha mascara;
    vn::plat::recorrido recorrido;
};

dirwin *dirwin_crea_UNICODE(const vnwchar *patron) {
    if (!AFIRMA_NO_NULO(patron)) return nullptr;
    // The room is owned until the record in it is made: memory may run out on the way.
    vn::propio<void> sitio(vornspy_malloc(sizeof(dirwin)));
    auto *d = new (sitio.get()) dirwin(vn::ficheros::descompone(patron));
    static_cast<void>(sitio.release());
    return d;
}

vnbool dirwin_findnextfile_UNICODE(dirwin *d, dirwin_dato *dato) {
    if (dato != nullptr) *dato = {};
    if (!EXIGE(d, dato)) return FALSO;
    for (vn::plat::ficha f; d->recorrido.siguiente(f);) {
        // A name that has no room in the record is passed over, like one that the mask leaves out.
        if (f.nombre.size() >= std::size(dato->nombre) || !vn::ficheros::casa_con(d->mascara, f.nombre)) continue;
        std::copy(f.nombre.begin(), f.nombre.end(), dato->nombre);
        // The platform tells a directory by its kind too, not by its attributes alone.
        dato->atributos = f.atributos | (f.es_directorio ? VNLONGPATH_FILE_ATTRIBUTE_DIRECTORY : 0);
        dato->tamanyo = f.tamanyo;
        dato->fecha_UTC = f.fecha;
        return CIERTO;
    }
    return FALSO;
}

vnbool dirwin_es_directorio_UNICODE(const dirwin_dato *dato) {
    return vn::logico(AFIRMA_NO_NULO(dato) && (dato->atributos & VNLONGPATH_FILE_ATTRIBUTE_DIRECTORY) != 0);
}

void dirwin_destruye_UNICODE(dirwin **d) {
    if (!AFIRMA_NO_NULO(d) || *d == nullptr) return;
    (*d)->~dirwin();
    vornspy_free_pp(d, 1);
}
