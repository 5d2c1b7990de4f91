#define VN_MODULO "fichconf (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/fichconf.h"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/eterno_int.h"
#include "foundation/suelo/logico_int.h"
#include <mutex>

using vn::cadena_ancha;
using vn::vista_ancha;

namespace {

// What the host has chosen: the name of its directory, and where that lies if not where the system says.
struct elegido {
    std::mutex cerrojo;
    cadena_ancha distribuidor = VNU("VORN");
    std::optional<cadena_ancha> base;
};

constexpr const vnwchar *ESTRUCTA = VNU("estructa");

// The configuration directory; empty if the user has none.
cadena_ancha directorio() {
    auto &e = vn::eterno<elegido>();
    const std::lock_guard guarda(e.cerrojo);
    const auto base = e.base ? e.base : vn::plat::base_de_configuracion();
    return base ? vn::ficheros::une(*base, e.distribuidor) : cadena_ancha();
}

// The path as a new text; null where there is no directory.
vnwchar *ruta_en(const cadena_ancha &dir, const vnwchar *nombre) {
    return dir.empty() ? nullptr : vn::ficheros::nuevo(vn::ficheros::une(dir, nombre));
}

cadena_ancha directorio_estructa() {
    const cadena_ancha d = directorio();
    return d.empty() ? d : vn::ficheros::une(d, ESTRUCTA);
}

// True for a plain name, which cannot lead out of the directory that it is joined to.
bool es_una_parte(const vnwchar *nombre) {
    const vista_ancha n = nombre;
    return n != vista_ancha(VNU(".")) && n != vista_ancha(VNU("..")) &&
           vn::ficheros::descompone(n).hasta_directorio().empty() &&
           vdir_es_path_valido_UNICODE(nombre, VDIR_PATH_RELATIVO) == CIERTO;
}

} // namespace

vnwchar *fichconf_dame_ruta_fichero_en_directorio_configuracion(const vnwchar *nombre) {
    return AFIRMA_NO_NULO(nombre) ? ruta_en(directorio(), nombre) : nullptr;
}

vnwchar *fichconf_dame_ruta_fichero_en_directorio_estructa(const vnwchar *nombre) {
    return AFIRMA_NO_NULO(nombre) ? ruta_en(directorio_estructa(), nombre) : nullptr;
}

vnbool fichconf_crea_directorio_estructa(void) {
    const cadena_ancha d = directorio_estructa();
    return vn::logico(!d.empty() && vn::ficheros::crea_directorios(d));
}

vnwchar *fichconf_dame_unidad_escribible(void) { return vn::ficheros::nuevo(vn::plat::unidad_escribible()); }

void fichconf_registra_nombre_distribuidor_no_vorn(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre) || !AFIRMA(es_una_parte(nombre))) return;
    auto &e = vn::eterno<elegido>();
    const std::lock_guard guarda(e.cerrojo);
    e.distribuidor = nombre;
}

void fichconf_establece_directorio_base(const vnwchar *ruta) {
    auto &e = vn::eterno<elegido>();
    const std::lock_guard guarda(e.cerrojo);
    if (ruta != nullptr) e.base = vn::ficheros::con_separadores_propios(ruta);
    else e.base.reset();
}
