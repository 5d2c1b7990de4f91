#define VN_MODULO "fichconf (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/fichconf.h"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/eterno_int.h"
#include <mutex>

using vn::texto;
using vn::vista;

namespace {

struct elegido {
    std::mutex cerrojo;
    texto distribuidor = VNU("VORN");
    std::optional<texto> base;
};

constexpr const vnwchar *ESTRUCTA = VNU("estructa");

// The configuration directory; empty if the user has none.
texto directorio() {
    auto &e = vn::eterno<elegido>();
    const std::lock_guard guarda(e.cerrojo);
    const auto base = e.base ? e.base : vn::plat::base_de_configuracion();
    return base ? vn::une(*base, e.distribuidor) : texto();
}

vnwchar *ruta_en(const texto &dir, const vnwchar *nombre) {
    return dir.empty() ? nullptr : vn::nuevo(vn::une(dir, nombre));
}

texto directorio_estructa() {
    const texto d = directorio();
    return d.empty() ? d : vn::une(d, ESTRUCTA);
}

bool es_una_parte(const vnwchar *nombre) {
    const vista n = nombre;
    return n != vista(VNU(".")) && n != vista(VNU("..")) && vn::descompone(n).hasta_directorio().empty() &&
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
    const texto d = directorio_estructa();
    return !d.empty() && vn::crea_directorios(d) ? CIERTO : FALSO;
}

vnwchar *fichconf_dame_unidad_escribible(void) { return vn::nuevo(vn::plat::unidad_escribible()); }

void fichconf_registra_nombre_distribuidor_no_vorn(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre) || !AFIRMA(es_una_parte(nombre))) return;
    auto &e = vn::eterno<elegido>();
    const std::lock_guard guarda(e.cerrojo);
    e.distribuidor = nombre;
}

void fichconf_establece_directorio_base(const vnwchar *ruta) {
    auto &e = vn::eterno<elegido>();
    const std::lock_guard guarda(e.cerrojo);
    if (ruta != nullptr) e.base = vn::con_separadores_propios(ruta);
    else e.base.reset();
}
