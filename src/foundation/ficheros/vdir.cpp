#define VN_MODULO "vdir (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/utf_int.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/unicode.h"
#include <algorithm>
#include <iterator>

namespace vn::ficheros {
namespace {

constexpr size_t MAXIMO_DE_UNA_PARTE = 255;

bool es_letra(vnwchar c) { return (c >= VNU('a') && c <= VNU('z')) || (c >= VNU('A') && c <= VNU('Z')); }
vnwchar minuscula(vnwchar c) { return c >= VNU('A') && c <= VNU('Z') ? static_cast<vnwchar>(c + 32) : c; }

bool acaba_en(vista_ancha t, vista_ancha final) {
    return t.size() >= final.size() &&
           std::equal(final.begin(), final.end(), t.end() - static_cast<ptrdiff_t>(final.size()),
                      [](vnwchar a, vnwchar b) { return minuscula(a) == minuscula(b); });
}

// Index of the separator that ends the part at `i`, or of the end.
size_t fin_de_parte(vista_ancha r, size_t i) {
    while (i < r.size() && !es_separador(r[i])) ++i;
    return i;
}

bool es_de_red(vista_ancha r) {
    return r.size() > 2 && es_separador(r[0]) && es_separador(r[1]) && !es_separador(r[2]);
}
bool es_unidad_de_letra(vista_ancha r) { return r.size() >= 2 && es_letra(r[0]) && r[1] == VNU(':'); }

// "C:", "\\server\share", or either behind the prefix of paths without a limit, "\\?\" and "\\?\UNC\".
size_t longitud_de_unidad(vista_ancha r) {
    if (es_unidad_de_letra(r)) return 2;
    if (!es_de_red(r)) return 0;
    size_t i = 2;
    // The prefix of paths without a limit: a letter, "UNC\" before a server, or a volume that has a name.
    if ((r[2] == VNU('?') || r[2] == VNU('.')) && r.size() > 3 && es_separador(r[3])) {
        if (es_unidad_de_letra(r.substr(4))) return 6;
        const size_t j = fin_de_parte(r, 4);
        if (!acaba_en(r.substr(4, j - 4), VNU("unc")) || j - 4 != 3) return j;
        i = std::min(j + 1, r.size());
    }
    // The server, and the share behind it.
    i = fin_de_parte(r, i);
    return i < r.size() ? fin_de_parte(r, i + 1) : i;
}

bool es_parte_valida(vista_ancha parte) {
    return parte.size() <= MAXIMO_DE_UNA_PARTE && std::none_of(parte.begin(), parte.end(), [](vnwchar c) {
               return c < 32 || vista_ancha(VNU("<>:\"|?*")).find(c) != vista_ancha::npos;
           });
}

// The names that Windows keeps for devices, whatever extension follows; X stands for a digit from 1.
constexpr const vnwchar *RESERVADOS[] = {VNU("con"),  VNU("prn"),  VNU("aux"),    VNU("nul"),
                                         VNU("comX"), VNU("lptX"), VNU("conin$"), VNU("conout$")};

bool es_reservado(vista_ancha parte) {
    // Windows looks at what stands before the first full stop, without blanks at its end.
    vista_ancha nombre = parte.substr(0, parte.find(VNU('.')));
    while (!nombre.empty() && nombre.back() == VNU(' ')) nombre.remove_suffix(1);
    const auto casan = [](vnwchar c, vnwchar r) {
        // The superscript digits 1 to 3 count as digits there too.
        if (r == VNU('X')) return (c >= VNU('1') && c <= VNU('9')) || c == 0xB9 || c == 0xB2 || c == 0xB3;
        return minuscula(c) == r;
    };
    return std::any_of(std::begin(RESERVADOS), std::end(RESERVADOS), [&](vista_ancha r) {
        return std::equal(nombre.begin(), nombre.end(), r.begin(), r.end(), casan);
    });
}

// Windows takes the full stops and blanks at the end of a name away, and so would lead to another file.
bool puede_ser_nombre(vista_ancha parte) {
    if (parte.empty() || parte == vista_ancha(VNU(".")) || parte == vista_ancha(VNU(".."))) return true;
    return parte.back() != VNU('.') && parte.back() != VNU(' ') && !es_reservado(parte);
}

bool es_valida(vista_ancha ruta, bool (*vale)(vista_ancha parte)) {
    // The "?" of the prefix and the colon of a letter would not be valid in a part.
    const bool sin_limite = ruta.size() > 3 && es_de_red(ruta) && ruta[2] == VNU('?') && es_separador(ruta[3]);
    if (sin_limite) ruta.remove_prefix(4);
    if (es_unidad_de_letra(ruta)) ruta.remove_prefix(2);
    else if (ruta.empty()) return false;
    for (size_t i = 0; i < ruta.size(); ++i) {
        const size_t j = fin_de_parte(ruta, i);
        if (const vista_ancha parte = ruta.substr(i, j - i); !es_parte_valida(parte) || !vale(parte)) return false;
        i = j;
    }
    return true;
}

bool es_absoluta(vista_ancha ruta) {
    const vista_ancha unidad = descompone(ruta).unidad;
    // A server's share is a root by itself; a letter needs a separator behind it.
    return unidad.size() > 2 || (ruta.size() > unidad.size() && es_separador(ruta[unidad.size()]));
}

size_t ancho_de_caracter(vista_ancha t, size_t i) {
    return es_alto(t[i]) && i + 1 < t.size() && es_bajo(t[i + 1]) ? 2 : 1;
}

} // namespace

partes descompone(vista_ancha ruta) {
    partes p;
    p.unidad = ruta.substr(0, longitud_de_unidad(ruta));
    const vista_ancha resto = ruta.substr(p.unidad.size());
    size_t i = resto.size();
    // The last part begins after the last separator.
    while (i > 0 && !es_separador(resto[i - 1])) --i;
    const vista_ancha ultima = resto.substr(i);
    // The directory ends without separators, but for that of a root.
    while (i > 1 && es_separador(resto[i - 1])) --i;
    p.directorio = resto.substr(0, i);
    const size_t punto = ultima.rfind(VNU('.'));
    // A full stop at the beginning (".profile") or at the end makes no extension.
    const bool hay = punto != vista_ancha::npos && punto > 0 && punto + 1 < ultima.size();
    p.nombre = hay ? ultima.substr(0, punto) : ultima;
    p.extension = hay ? ultima.substr(punto + 1) : ultima.substr(ultima.size());
    return p;
}

cadena_ancha con_separadores_propios(vista_ancha ruta) {
    cadena_ancha t(ruta);
    std::replace_if(t.begin(), t.end(), es_separador, plat::SEPARADOR);
    return t;
}

cadena_ancha une(vista_ancha a, vista_ancha b) {
    if (a.empty() || b.empty()) return con_separadores_propios(a.empty() ? b : a);
    // One separator between both, whatever they brought.
    while (!a.empty() && es_separador(a.back())) a.remove_suffix(1);
    while (!b.empty() && es_separador(b.front())) b.remove_prefix(1);
    return con_separadores_propios(cadena_ancha(a) + plat::SEPARADOR + cadena_ancha(b));
}

vista_ancha sin_separador_final(vista_ancha ruta) {
    // "C:\" without its separator would be the current directory of that unit.
    const size_t raiz = descompone(ruta).unidad.size() + 1;
    while (ruta.size() > raiz && es_separador(ruta.back())) ruta.remove_suffix(1);
    return ruta;
}

bool casa_con(vista_ancha mascara, vista_ancha nombre) {
    // On Windows this mask has always meant every file, with a full stop or without.
    if (mascara == vista_ancha(VNU("*.*"))) return true;
    // At a mismatch the last star takes one character more.
    size_t m = 0, n = 0, estrella = vista_ancha::npos, desde = 0;
    while (n < nombre.size()) {
        if (m < mascara.size() && mascara[m] == VNU('*')) {
            estrella = m++;
            desde = n;
        } else if (m < mascara.size() && mascara[m] == VNU('?')) {
            ++m;
            n += ancho_de_caracter(nombre, n);
        } else if (m < mascara.size() && plat::para_comparar(mascara[m]) == plat::para_comparar(nombre[n])) {
            ++m;
            ++n;
        } else if (estrella != vista_ancha::npos) {
            m = estrella + 1;
            n = desde += ancho_de_caracter(nombre, desde);
        } else return false;
    }
    // Stars at the end match nothing as well.
    while (m < mascara.size() && mascara[m] == VNU('*')) ++m;
    return m == mascara.size();
}

vnwchar *nuevo(vista_ancha t) {
    auto *p = static_cast<vnwchar *>(vornspy_malloc((t.size() + 1) * sizeof(vnwchar)));
    *std::copy(t.begin(), t.end(), p) = 0;
    return p;
}

char *nuevo_ansi(const cadena_ancha &t) { return unicode_UNICODE_a_ANSI(t.c_str()); }

// Null where the code page cannot hold the text: a name with "?" in it would be another file.
char *nuevo_ansi_fiel(const cadena_ancha &t) {
    propio<char> s(nuevo_ansi(t));
    return s != nullptr && de_ansi(s.get()) == t ? s.release() : nullptr;
}

cadena_ancha de_ansi(const char *s) {
    const propio<vnwchar> p(unicode_convierte_ANSI_a_UNICODE(s));
    return p != nullptr ? p.get() : VNU("");
}

} // namespace vn::ficheros

using namespace vn;
using namespace vn::ficheros;

vnwchar *vdir_concatena_directorios_UNICODE(const vnwchar *a, const vnwchar *b) {
    if (!EXIGE(a, b)) return nullptr;
    return nuevo(une(a, b));
}

char *vdir_concatena_directorios(const char *a, const char *b) {
    if (!EXIGE(a, b)) return nullptr;
    return nuevo_ansi(une(de_ansi(a), de_ansi(b)));
}

vnwchar *vdir_makepath_UNICODE(const vnwchar *unidad, const vnwchar *directorio, const vnwchar *nombre,
                               const vnwchar *extension) {
    const auto o = [](const vnwchar *t) { return t != nullptr ? vista_ancha(t) : vista_ancha(); };
    const vista_ancha d = o(directorio), e = o(extension);
    cadena_ancha r(o(unidad));
    if (r.size() == 1 && es_letra(r[0])) r += VNU(':');
    // Behind the unit of a network the directory begins at the root; behind a letter it may be relative.
    if (r.size() > 2 && !d.empty() && !es_separador(d.front())) r += plat::SEPARADOR;
    r += d;
    if (!d.empty() && !es_separador(d.back())) r += plat::SEPARADOR;
    r += o(nombre);
    if (!e.empty() && e.front() != VNU('.')) r += VNU('.');
    return nuevo(con_separadores_propios(r += e));
}

vnbool vdir_splitpath_con_comprobacion_UNICODE(const vnwchar *ruta, vnwchar **unidad, vnwchar **directorio,
                                               vnwchar **nombre, vnwchar **extension) {
    // Cleared first, so that no caller reads a stale text after FALSO.
    for (vnwchar **salida : {unidad, directorio, nombre, extension})
        if (salida != nullptr) *salida = nullptr;
    if (!AFIRMA_NO_NULO(ruta) || !es_valida(ruta, [](vista_ancha) { return true; })) return FALSO;
    const partes p = descompone(ruta);
    if (unidad != nullptr) *unidad = nuevo(con_separadores_propios(p.unidad));
    if (directorio != nullptr) *directorio = nuevo(con_separadores_propios(p.directorio));
    if (nombre != nullptr) *nombre = nuevo(p.nombre);
    if (extension != nullptr) *extension = nuevo(p.extension);
    return CIERTO;
}

vnwchar *vdir_nombre_fichero_con_ext_UNICODE(const vnwchar *nombre, const vnwchar *ext) {
    if (!EXIGE(nombre, ext)) return nullptr;
    const cadena_ancha final = *ext == 0 || *ext == VNU('.') ? cadena_ancha(ext) : VNU('.') + cadena_ancha(ext);
    return nuevo(acaba_en(nombre, final) ? cadena_ancha(nombre) : nombre + final);
}

vnwchar *vdir_nombre_base_fichero_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return nullptr;
    return nuevo(descompone(ruta).nombre);
}

vnwchar *vdir_extension_fichero_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return nullptr;
    return nuevo(descompone(ruta).extension);
}

vnwchar *vdir_ruta_acceso_directorio_fichero_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return nullptr;
    return nuevo(con_separadores_propios(descompone(ruta).hasta_directorio()));
}

char *vdir_ruta_acceso_directorio_fichero(const char *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return nullptr;
    const cadena_ancha t = de_ansi(ruta);
    return nuevo_ansi(con_separadores_propios(descompone(t).hasta_directorio()));
}

vnwchar *vdir_ruta_y_nombre_fichero_sin_extension_UNICODE(const vnwchar *ruta) {
    if (!AFIRMA_NO_NULO(ruta)) return nullptr;
    const vista_ancha entera = ruta, extension = descompone(entera).extension;
    return nuevo(
        con_separadores_propios(entera.substr(0, entera.size() - (extension.empty() ? 0 : extension.size() + 1))));
}

vnbool vdir_es_path_valido_UNICODE(const vnwchar *ruta, uint32_t clases) {
    if (!AFIRMA_NO_NULO(ruta) || !AFIRMA(clases <= VDIR_PATH_RELATIVO)) return FALSO;
    if (!es_valida(ruta, puede_ser_nombre)) return FALSO;
    return logico(clases == VDIR_PATH_CUALQUIERA || es_absoluta(ruta) == (clases == VDIR_PATH_ABSOLUTO));
}

vnwchar *vdir_disco_de_programa_UNICODE(void) { return nuevo(descompone(plat::ruta_del_programa()).unidad); }
