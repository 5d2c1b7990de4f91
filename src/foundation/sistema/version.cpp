#define VN_MODULO "version (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/version.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/eterno_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/unicode.h"
#include <string>
#include <utility>

namespace {

// One text in both widths.
struct texto_doble {
    std::basic_string<vnwchar> ancho;
    std::string ansi;

    explicit texto_doble(const vnwchar *texto) : ancho(texto) {
        const vn::propio<char> convertido(unicode_UNICODE_a_ANSI(texto));
        ansi = convertido.get();
    }
};

// Files say "MASK-major-revision" in less than 200 characters: what would not come back from there is no version.
constexpr size_t LIMITE_MAYOR = 192;

struct identidad {
    texto_doble aplicacion{VNU("1.0")};
    texto_doble mayor{VNU("1")};
    char revision = 'a';
};
identidad &la_identidad() { return vn::eterno<identidad>(); }

} // namespace

const char *version_versionAplicacion(void) { return la_identidad().aplicacion.ansi.c_str(); }
const vnwchar *version_versionAplicacion_u(void) { return la_identidad().aplicacion.ancho.c_str(); }
const char *version_versionMayor(void) { return la_identidad().mayor.ansi.c_str(); }
const vnwchar *version_versionMayor_u(void) { return la_identidad().mayor.ancho.c_str(); }
char version_revision(void) { return la_identidad().revision; }

void version_establece_u(const vnwchar *version_aplicacion, const vnwchar *version_mayor, char revision) {
    if (!EXIGE(version_aplicacion, version_mayor)) return;
    texto_doble aplicacion(version_aplicacion), mayor(version_mayor);
    if (!AFIRMA(mayor.ansi.find('-') == std::string::npos) || !AFIRMA(mayor.ansi.size() <= LIMITE_MAYOR)) return;
    // The revision is one visible character, and not the dash that separates it in files.
    const auto codigo = static_cast<unsigned char>(revision);
    if (!AFIRMA(codigo > ' ' && codigo != 127 && revision != '-')) return;
    // Nothing changes before every check has passed.
    identidad &i = la_identidad();
    i.aplicacion = std::move(aplicacion);
    i.mayor = std::move(mayor);
    i.revision = revision;
}
