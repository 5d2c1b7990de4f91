#define VN_MODULO "vdir (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/vornspy.h"
#include <algorithm>

namespace vn::ficheros {

bool nombres_en(const cadena_ancha &directorio, vista_ancha mascara, clase que, std::vector<cadena_ancha> &nombres) {
    plat::recorrido r(directorio, false);
    for (plat::ficha f; r.siguiente(f);)
        if (f.es_directorio == (que == clase::directorios) && casa_con(mascara, f.nombre)) nombres.push_back(f.nombre);
    // Each system gives them in an order of its own; sorted, they are the same everywhere.
    std::sort(nombres.begin(), nombres.end());
    return r.abierto();
}

arrCADENA_u *nueva_lista(const std::vector<cadena_ancha> &textos) {
    dueno<arr_DestruyeCADENA_u> a(arr_CreaCADENA_u(0));
    for (const cadena_ancha &t : textos) arr_AppendCADENA_u(a.get(), t.c_str());
    return a.release();
}

} // namespace vn::ficheros

using namespace vn;
using namespace vn::ficheros;

namespace {

vnbool lista(const vnwchar *ruta, const vnwchar *mascara, clase que, arrCADENA_u **salida) {
    if (!AFIRMA_NO_NULO(salida)) return FALSO;
    *salida = nullptr;
    if (!EXIGE(ruta, mascara)) return FALSO;
    std::vector<cadena_ancha> nombres;
    const bool leido = nombres_en(ruta, mascara, que, nombres);
    // The caller is given a list even of a directory that cannot be read.
    *salida = nueva_lista(nombres);
    return logico(leido);
}

} // namespace

vnbool vdir_lista_de_ficheros_UNICODE(const vnwchar *ruta, const vnwchar *mascara, arrCADENA_u **salida) {
    return lista(ruta, mascara, clase::ficheros, salida);
}

vnbool vdir_lista_de_directorios_UNICODE(const vnwchar *ruta, const vnwchar *mascara, arrCADENA_u **salida) {
    return lista(ruta, mascara, clase::directorios, salida);
}

void vdir_libera_lista_de_ficheros_UNICODE(arrCADENA_u **salida) {
    if (AFIRMA_NO_NULO(salida) && *salida != nullptr) arr_DestruyeCADENA_u(salida);
}
