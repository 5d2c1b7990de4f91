#define VN_MODULO "vornreg (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/temporal_int.h"
#include "foundation/ficheros/vdir.h"
#include "foundation/platform/maquina.h"
#include "foundation/platform/registro.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/sistema/vnmutex.h"
#include "foundation/sistema/vornreg.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/operaciones_fichero_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/trapable.h"
#include "foundation/suelo/utf_int.h"
#include "foundation/texto/numero_int.h"
#include "foundation/texto/widestr.h"
#include <map>

// The file: lines "[root\key\key]", each followed by its "name=text". UTF-8; "\\" is a backslash, and "\" with four
// hexadecimal digits a unit that has no place in a line of text or that says something in it.

namespace vn::plat {
namespace {

// Bytes of the file: a larger one is not read, and none larger is written.
constexpr uint64_t MAXIMO = 16 * 1024 * 1024;

// Without regard to case, in the order of the upper-case letters.
struct sin_caja {
    bool operator()(const cadena_ancha &a, const cadena_ancha &b) const {
        const auto mayuscula = [](vnwchar c) { return widestr_convertir_caracter_a_mayusculas(c); };
        for (size_t i = 0; i < a.size() && i < b.size(); ++i)
            if (const vnwchar x = mayuscula(a[i]), y = mayuscula(b[i]); x != y) return x < y;
        return a.size() < b.size();
    }
    bool iguales(const cadena_ancha &a, const cadena_ancha &b) const { return !(*this)(a, b) && !(*this)(b, a); }
};
using valores = std::map<cadena_ancha, cadena_ancha, sin_caja>;
using claves = std::map<cadena_ancha, valores, sin_caja>;

// A key as the file names it: the number of its root, then the key if there is one.
cadena_ancha con_raiz(uint32_t raiz, const cadena_ancha &clave) {
    cadena_ancha t(1, static_cast<vnwchar>(u'0' + raiz));
    return clave.empty() ? t : (t + u'\\') + clave;
}

// A value that the machine itself answers where the file has none.
struct fila {
    uint32_t raiz;
    const vnwchar *clave, *valor;
    cadena_ancha (*contenido)();
};
constexpr fila PROPIAS[] = {
    {VORNREG_CLASES, u"CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}", u"", nombre_de_la_maquina},
};

// ---------------------------------------------------------------- the text of the file

// Controls and halves of surrogate pairs; in a name also what ends it or begins a key or a comment.
bool se_escapa(uint32_t c, bool nombre) {
    return c < 32 || c == 127 || (c >= 0xD800 && c < 0xE000) || (nombre && (c == u'=' || c == u'[' || c == u';'));
}

void escribe(std::string &s, const cadena_ancha &t, bool nombre) {
    constexpr char CIFRAS[] = "0123456789ABCDEF";
    for (size_t i = 0; i < t.size();) {
        const uint32_t c = lee_utf16(t, i);
        char u[4];
        if (c == u'\\') s += "\\\\";
        else if (!se_escapa(c, nombre)) s.append(u, escribe_utf8(c, u));
        else {
            s += '\\';
            for (int k = 12; k >= 0; k -= 4) s += CIFRAS[c >> k & 15];
        }
    }
}

// Wide text of a piece of a line; `escapes`: with what escribe() writes.
cadena_ancha lee(std::string_view s, bool escapes) {
    cadena_ancha t;
    for (size_t i = 0; i < s.size();) {
        uint32_t c = 0;
        if (!lee_utf8(s, i, c)) c = REEMPLAZO;
        // Two backslashes are one; one before up to four hexadecimal digits is the unit of that number.
        if (escapes && c == u'\\' && i < s.size()) {
            c = 0;
            if (s[i] == '\\') c = static_cast<unsigned char>(s[i++]);
            else
                for (int k = 0;
                     k < 4 && i < s.size() && texto::cifra_hexadecimal(static_cast<unsigned char>(s[i])) < 16; ++k)
                    c = c << 4 | texto::cifra_hexadecimal(static_cast<unsigned char>(s[i++]));
        }
        if (c == 0) continue; // no text holds it
        vnwchar par[2];
        // A half goes in alone: two escaped halves make their pair again.
        if (c >= 0xD800 && c < 0xE000) t += static_cast<vnwchar>(c);
        else t.append(par, escribe_utf16(c, par));
    }
    return t;
}

// Names with one backslash between two.
bool es_camino(const cadena_ancha &clave) {
    return !clave.empty() && clave.front() != u'\\' && clave.back() != u'\\' &&
           clave.find(u"\\\\") == cadena_ancha::npos;
}

// Takes the next line off the text, as it stands; `linea` is without its end.
std::string_view toma_linea(std::string_view &s, std::string_view &linea) {
    const std::string_view tal_cual = s.substr(0, std::min(s.find('\n'), s.size() - 1) + 1);
    s.remove_prefix(tal_cual.size());
    linea = tal_cual;
    for (const char c : {'\n', '\r'})
        if (linea.ends_with(c)) linea.remove_suffix(1);
    return tal_cual;
}

// A line that names a key. Its backslashes separate, so nothing in it is escaped.
bool es_cabecera(std::string_view linea, cadena_ancha &clave) {
    if (!linea.starts_with('[') || !linea.ends_with(']')) return false;
    clave = lee(linea.substr(1, linea.size() - 2), false);
    return true;
}

// A line that gives a name its text; a comment with an equals sign is none.
bool es_asignacion(std::string_view linea, cadena_ancha &nombre, std::string_view &contenido) {
    const size_t igual = linea.find('=');
    if (igual == std::string_view::npos || linea[0] == ';') return false;
    nombre = lee(linea.substr(0, igual), true);
    contenido = linea.substr(igual + 1);
    return true;
}

constexpr std::string_view MARCA_DE_ORDEN = "\xEF\xBB\xBF";

claves interpreta(std::string_view s) {
    claves todas;
    valores *actual = nullptr;
    if (s.starts_with(MARCA_DE_ORDEN)) s.remove_prefix(MARCA_DE_ORDEN.size());
    while (!s.empty()) {
        std::string_view linea, contenido;
        cadena_ancha t;
        toma_linea(s, linea);
        // The values under an impossible key are left out.
        if (es_cabecera(linea, t)) actual = es_camino(t) ? &todas[t] : nullptr;
        else if (actual != nullptr && es_asignacion(linea, t, contenido)) (*actual)[t] = lee(contenido, true);
    }
    return todas;
}

// The text with a value set or, if null, gone. All else stays as somebody wrote it, comments too.
std::string con_valor(std::string_view s, const cadena_ancha &clave, const cadena_ancha &valor,
                      const vnwchar *contenido, bool esta) {
    std::string nuevo, linea_nueva;
    if (contenido != nullptr) {
        escribe(linea_nueva, valor, true);
        linea_nueva += '=';
        escribe(linea_nueva, contenido, false);
        linea_nueva += '\n';
    }
    // The new line is written once: over the old one, below its key, or below a key of its own at the end.
    const auto pon = [&] { nuevo += std::exchange(linea_nueva, {}); };
    if (s.starts_with(MARCA_DE_ORDEN)) s.remove_prefix(MARCA_DE_ORDEN.size());
    for (bool en_la_clave = false; !s.empty();) {
        std::string_view linea, nada;
        cadena_ancha t;
        const std::string_view tal_cual = toma_linea(s, linea);
        const bool cabecera = es_cabecera(linea, t);
        if (cabecera) en_la_clave = sin_caja().iguales(t, clave);
        if (!cabecera && en_la_clave && es_asignacion(linea, t, nada) && sin_caja().iguales(t, valor)) {
            pon();
            continue;
        }
        nuevo += tal_cual;
        if (!tal_cual.ends_with('\n')) nuevo += '\n';
        if (cabecera && en_la_clave && !esta) pon();
    }
    // A line that is still to be written has no key in the file.
    if (linea_nueva.empty()) return nuevo;
    nuevo += '[';
    for (size_t i = 0; i < clave.size();) {
        char u[4];
        nuevo.append(u, escribe_utf8(lee_utf16(clave, i), u));
    }
    nuevo += "]\n";
    pon();
    return nuevo;
}

// ---------------------------------------------------------------- the file

propio<vnwchar> ruta_del_fichero() {
    return propio<vnwchar>(fichconf_dame_ruta_fichero_en_directorio_configuracion(u"registro.txt"));
}

// False when the file is there and cannot be read: then it is not to be written either.
bool carga(const vnwchar *ruta, std::string &datos) {
    vnestado_fichero estado{};
    const vnerror_fichero e = operaciones().estado(ruta, &estado);
    if (e == VN_FICH_NO_EXISTE) return true;
    if (e != VN_FICH_BIEN || estado.es_normal != CIERTO || estado.tamanyo > MAXIMO) return false;
    vnid_fichero id = VN_FICHERO_NINGUNO;
    if (con_paciencia(UNA_DECIMA, [&] { return operaciones().abre(ruta, VN_ABRE_LECTURA, &id); }) != VN_FICH_BIEN)
        return false;
    datos.resize(static_cast<size_t>(estado.tamanyo));
    size_t leidos = 0;
    const bool bien = lee_todo(id, 0, datos.data(), datos.size(), &leidos) == VN_FICH_BIEN;
    operaciones().cierra(id);
    // The file may have shrunk since it was asked for its size.
    datos.resize(bien ? leidos : 0);
    return bien;
}

// The file with what the machine says; what the file says goes first.
claves todas_las_claves() {
    std::string datos;
    if (const auto ruta = ruta_del_fichero()) carga(ruta.get(), datos);
    claves todas = interpreta(datos);
    for (const fila &f : PROPIAS) todas[con_raiz(f.raiz, f.clave)].emplace(f.valor, f.contenido());
    return todas;
}

struct grabacion {
    const vnwchar *ruta;
    std::string datos;
    bool hecha;
};

// Runs inside a trap: a file that cannot be written stays as it was.
void graba(grabacion *g) {
    vdir_crea_directorios_fichero_si_es_posible_UNICODE(g->ruta);
    ficheros::temporal f(vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(g->ruta));
    if (f == nullptr) return;
    lc_fwrite(g->datos.data(), 1, g->datos.size(), f.get());
    g->hecha = vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f.release(), g->ruta) == CIERTO;
}

// The turn of this program: a file is read and written again as one step among all programs.
class entre_programas {
  public:
    entre_programas()
        : mutex_(vnmutex_crea_entre_aplicaciones("vornreg")), dentro_(vnmutex_entra(mutex_.get()) == CIERTO) {}
    bool dentro() const { return dentro_; }

  private:
    dueno<vnmutex_destruye_saliendo> mutex_;
    bool dentro_;
};

// A key that the file can name: its line has no escapes.
bool es_clave(const cadena_ancha &clave) {
    for (size_t i = 0; i < clave.size();)
        if (const uint32_t c = lee_utf16(clave, i); se_escapa(c, false)) return false;
    return es_camino(clave);
}

// True when `otra` lies under `clave`.
bool esta_debajo(const cadena_ancha &clave, const cadena_ancha &otra) {
    return otra.size() > clave.size() && otra[clave.size()] == u'\\' &&
           sin_caja().iguales(otra.substr(0, clave.size()), clave);
}

} // namespace

bool lee_registro(uint32_t raiz, const cadena_ancha &clave, const cadena_ancha &valor, cadena_ancha &contenido) {
    const claves todas = todas_las_claves();
    const auto c = todas.find(con_raiz(raiz, clave));
    if (c == todas.end()) return false;
    const auto v = c->second.find(valor);
    if (v == c->second.end()) return false;
    contenido = v->second;
    return true;
}

bool subclaves_de_registro(uint32_t raiz, const cadena_ancha &clave, std::vector<cadena_ancha> &nombres) {
    const cadena_ancha entera = con_raiz(raiz, clave);
    // The roots are always there.
    bool hay = clave.empty();
    std::map<cadena_ancha, bool, sin_caja> vistos;
    for (const auto &[otra, suyos] : todas_las_claves()) {
        const bool debajo = esta_debajo(entera, otra);
        hay = hay || debajo || sin_caja().iguales(otra, entera);
        if (debajo)
            // Only the next part of the name: a deeper key stands for those on the way to it.
            vistos.emplace(otra.substr(entera.size() + 1, otra.find(u'\\', entera.size() + 1) - entera.size() - 1),
                           true);
    }
    for (const auto &[nombre, visto] : vistos) nombres.push_back(nombre);
    return hay;
}

bool hay_clave_de_registro(uint32_t raiz, const cadena_ancha &clave) {
    std::vector<cadena_ancha> nombres;
    return subclaves_de_registro(raiz, clave, nombres);
}

bool textos_de_registro(uint32_t raiz, const cadena_ancha &clave, uint32_t,
                        std::vector<std::pair<cadena_ancha, cadena_ancha>> &textos) {
    const claves todas = todas_las_claves();
    if (const auto c = todas.find(con_raiz(raiz, clave)); c != todas.end()) {
        textos.assign(c->second.begin(), c->second.end());
        return true;
    }
    // A key without texts is there if others lie under it.
    return hay_clave_de_registro(raiz, clave);
}

bool escribe_registro(uint32_t raiz, const cadena_ancha &clave, const cadena_ancha &valor, const vnwchar *contenido) {
    const auto ruta = ruta_del_fichero();
    if (ruta == nullptr || !es_clave(clave)) return false;
    const entre_programas turno;
    std::string datos;
    if (!turno.dentro() || !carga(ruta.get(), datos)) return false;
    const cadena_ancha entera = con_raiz(raiz, clave);
    const claves todas = interpreta(datos);
    const auto suya = todas.find(entera);
    const bool esta = suya != todas.end() && suya->second.contains(valor);
    // What is not there need not be taken away, and the file stays untouched.
    if (contenido == nullptr && !esta) return true;
    grabacion g{ruta.get(), con_valor(datos, entera, valor, contenido, esta), false};
    return g.datos.size() <= MAXIMO && trapable_ejecuta_funcion_segura(grabacion, graba, &g, nullptr) == CIERTO &&
           g.hecha;
}

bool puede_escribir_registro(uint32_t) {
    const auto ruta = ruta_del_fichero();
    return ruta != nullptr && vdir_crea_directorios_fichero_si_es_posible_UNICODE(ruta.get()) == CIERTO &&
           vdir_se_puede_escribir_UNICODE(ruta.get()) == CIERTO;
}

} // namespace vn::plat
