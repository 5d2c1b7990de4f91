#define VN_MODULO "ini (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/ini.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/operaciones_fichero_int.h"
#include "foundation/texto/numero_int.h"
#include <algorithm>
#include <string>
#include <string_view>

namespace {

// A configuration file is small: a larger one is something else.
constexpr uint64_t MAXIMO = 1024 * 1024;

// The whole of a plain file of a reasonable size; empty for anything else.
std::string contenido(const vnwchar *fichero) {
    const vnoperaciones_fichero &op = vn::operaciones();
    // Asked before it is opened: a pipe would wait for its other end.
    vnestado_fichero estado{};
    if (op.estado(fichero, &estado) != VN_FICH_BIEN || estado.es_normal != CIERTO || estado.tamanyo > MAXIMO) return {};
    vnid_fichero id = VN_FICHERO_NINGUNO;
    if (vn::con_paciencia(vn::UNA_DECIMA, [&] { return op.abre(fichero, VN_ABRE_LECTURA, &id); }) != VN_FICH_BIEN)
        return {};
    std::string datos(static_cast<size_t>(estado.tamanyo), '\0');
    size_t leidos = 0;
    const vnerror_fichero e = vn::lee_todo(id, 0, datos.data(), datos.size(), &leidos);
    op.cierra(id);
    // The file may have become shorter since its size was asked.
    datos.resize(e == VN_FICH_BIEN ? leidos : 0);
    return datos;
}

std::string_view sin_blancos(std::string_view s) {
    constexpr const char *BLANCOS = " \t\r\v\f";
    const size_t i = s.find_first_not_of(BLANCOS);
    return i == std::string_view::npos ? std::string_view() : s.substr(i, s.find_last_not_of(BLANCOS) - i + 1);
}

char minuscula(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c + 32) : c; }

bool iguales(std::string_view a, std::string_view b) {
    if (a.size() != b.size()) return false;
    for (size_t i = 0; i < a.size(); ++i)
        if (minuscula(a[i]) != minuscula(b[i])) return false;
    return true;
}

// True if a line begins a section; gives its name.
bool es_seccion(std::string_view linea, std::string_view &nombre) {
    if (linea.empty() || linea[0] != '[') return false;
    nombre = sin_blancos(linea.substr(1, linea.find(']') - 1));
    return true;
}

// The text of a key; false if the section or the key is missing.
bool busca(std::string_view datos, std::string_view seccion, std::string_view clave, std::string_view &valor) {
    constexpr std::string_view MARCA_UTF8 = "\xEF\xBB\xBF";
    if (datos.starts_with(MARCA_UTF8)) datos.remove_prefix(MARCA_UTF8.size());
    bool dentro = false;
    while (!datos.empty()) {
        const size_t fin = datos.find('\n');
        const std::string_view linea = sin_blancos(datos.substr(0, fin));
        datos.remove_prefix(fin == std::string_view::npos ? datos.size() : fin + 1);
        std::string_view nombre;
        if (es_seccion(linea, nombre)) {
            // Only the first section of a name counts.
            if (dentro) return false;
            dentro = iguales(nombre, seccion);
        } else if (dentro && !linea.empty() && linea[0] != ';') {
            const size_t igual = linea.find('=');
            if (igual == std::string_view::npos || !iguales(sin_blancos(linea.substr(0, igual)), clave)) continue;
            valor = linea.substr(igual + 1);
            return true;
        }
    }
    return false;
}

int32_t entero_de(std::string_view datos, std::string_view seccion, std::string_view clave, int32_t por_defecto) {
    std::string_view valor;
    if (!busca(datos, sin_blancos(seccion), sin_blancos(clave), valor)) return por_defecto;
    return vn::texto::lee_entero<int32_t>(valor.data(), valor.size()).valor;
}

} // namespace

int32_t ini_lee_int(const vnwchar *fichero, const char *seccion, const char *clave, int32_t por_defecto) {
    if (!EXIGE(fichero, seccion, clave)) return 0;
    return entero_de(contenido(fichero), seccion, clave, por_defecto);
}

void ini_lee_varios_int(const vnwchar *fichero, const char *seccion, const char *claves, int32_t *valores,
                        uint32_t cuantas) {
    if (!EXIGE(fichero, seccion, claves, valores)) return;
    const std::string datos = contenido(fichero);
    std::string_view quedan = claves;
    for (uint32_t i = 0; i < cuantas; ++i) {
        // The keys come in one text, a line each.
        const size_t fin = std::min(quedan.find('\n'), quedan.size());
        valores[i] = entero_de(datos, seccion, quedan.substr(0, fin), 0);
        quedan.remove_prefix(std::min(fin + 1, quedan.size()));
    }
}
