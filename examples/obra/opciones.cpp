#include "opciones.h"
#include "informe.h"
#include "mensajes.h"
#include <charconv>
#include <nucleos/foundation/texto/msglocal.h>
#include <nucleos/units/vornconf.h>

namespace obra {
namespace {

struct valor_con_nombre {
    const char *nombre;
    uint32_t valor;
};
constexpr valor_con_nombre SISTEMAS[] = {
    {"mks", VORNCONF_SU_MKS}, {"si", VORNCONF_SU_INTERNACIONAL}, {"imperial", VORNCONF_SU_IMPERIAL}};
constexpr valor_con_nombre ENERGIAS[] = {{"julio", VORNNORM_UNIDAD_ENERGIA_JULIO},
                                         {"kcal", VORNNORM_UNIDAD_ENERGIA_KCAL},
                                         {"btu", VORNNORM_UNIDAD_ENERGIA_BTU}};

template <size_t N> bool toma(const valor_con_nombre (&tabla)[N], const std::string &dicho,
                              std::optional<uint32_t> &donde, std::string &validos) {
    for (const auto &[nombre, valor] : tabla) {
        if (dicho == nombre) donde = valor;
        validos += (validos.empty() ? "" : ", ") + std::string(nombre);
    }
    return donde.has_value();
}

bool toma_idioma(const std::string &dicho, std::optional<int> &donde, std::string &validos) {
    int n = -1;
    const auto [fin, error] = std::from_chars(dicho.data(), dicho.data() + dicho.size(), n);
    if (error != std::errc() || fin != dicho.data() + dicho.size()) n = -1;
    for (const int i : mensaje::IDIOMAS) {
        if (i == n) donde = n;
        validos += (validos.empty() ? "" : ", ") + std::to_string(i);
    }
    return donde.has_value();
}

// An option and its value; each at most once.
bool toma_opcion(const std::string &cual, const std::string &dicho, opciones &o, std::string &validos) {
    if (cual == "--sistema") return !o.sistema && toma(SISTEMAS, dicho, o.sistema, validos);
    if (cual == "--energia") return !o.energia && toma(ENERGIAS, dicho, o.energia, validos);
    return cual == "--idioma" && !o.idioma && toma_idioma(dicho, o.idioma, validos);
}

// A number between two, whole or not.
struct opcion_numerica {
    const char *nombre;
    std::optional<double> opciones_dibujo::*donde;
    double minimo, maximo;
    bool entera, de_malla;
};
constexpr opcion_numerica NUMERICAS[] = {{"--ancho-px", &opciones_dibujo::ancho_px, 16, 100000, true, false},
                                         {"--escala", &opciones_dibujo::escala, 1, 65535, true, false},
                                         {"--fondo", &opciones_dibujo::fondo, 0, 2, true, false},
                                         {"--alto", &opciones_dibujo::alto, 0.001, 1000, false, true}};

std::string corto(double x) {
    char b[32];
    return {b, std::to_chars(b, b + sizeof b, x, std::chars_format::fixed).ptr};
}

bool toma_numero(const std::string &cual, const std::string &dicho, bool con_alto, opciones_dibujo &o,
                 std::string &validos) {
    // A picture is as wide as it is told or as its scale asks for, not both.
    if ((cual == "--escala" && o.ancho_px) || (cual == "--ancho-px" && o.escala)) return false;
    for (const opcion_numerica &n : NUMERICAS) {
        if (cual != n.nombre || (n.de_malla && !con_alto) || o.*n.donde) continue;
        validos = corto(n.minimo) + ".." + corto(n.maximo);
        double x = 0;
        const auto [fin, error] = std::from_chars(dicho.data(), dicho.data() + dicho.size(), x);
        if (error != std::errc() || fin != dicho.data() + dicho.size() || !(x >= n.minimo && x <= n.maximo) ||
            (n.entera && x != static_cast<int>(x)))
            return false;
        o.*n.donde = x;
        return true;
    }
    return false;
}

// Names, as many as there is room for, and options anywhere; `toma` takes an option and its value.
template <class T> bool lee_palabras(const std::vector<std::string> &palabras,
                                     std::initializer_list<std::string *> nombres, std::string &falta, T toma) {
    auto nombre = nombres.begin();
    for (size_t i = 0; i < palabras.size(); ++i) {
        const std::string &p = palabras[i];
        if (!p.starts_with("--")) {
            if (nombre == nombres.end()) return falta = p + ": " + di(mensaje::sobra), false;
            **nombre++ = p;
            continue;
        }
        const std::string dicho = i + 1 < palabras.size() ? palabras[++i] : "";
        std::string validos;
        if (toma(p, dicho, validos)) continue;
        falta = p + (dicho.empty() ? "" : " " + dicho) + ": " +
                (validos.empty() ? di(mensaje::sobra) : di(mensaje::no_vale) + " " + validos);
        return false;
    }
    return true;
}

} // namespace

bool lee_opciones(const std::vector<std::string> &palabras, opciones &o, std::string &falta) {
    o = {};
    const auto toma = [&](const auto &cual, const auto &dicho, auto &validos) {
        return toma_opcion(cual, dicho, o, validos);
    };
    if (!lee_palabras(palabras, {&o.obra}, falta, toma)) return false;
    if (o.obra.empty()) return falta = di(mensaje::falta_obra), false;
    return true;
}

bool lee_opciones_dibujo(const std::vector<std::string> &palabras, bool con_alto, opciones_dibujo &o,
                         std::string &falta) {
    o = {};
    const auto toma = [&](const auto &cual, const auto &dicho, auto &validos) {
        return toma_numero(cual, dicho, con_alto, o, validos);
    };
    if (!lee_palabras(palabras, {&o.obra, &o.destino}, falta, toma)) return false;
    if (o.obra.empty()) return falta = di(mensaje::falta_obra), false;
    if (o.destino.empty()) return falta = di(mensaje::falta_destino), false;
    return true;
}

void aplica(const opciones &o) {
    if (o.idioma) msidioma_establece_idioma(*o.idioma);
    if (o.sistema) vornconf_Internacional_set_sistema_unidades(*o.sistema);
    if (o.energia) vornconf_Internacional_set_sistema_unidades_energia(*o.energia);
}

} // namespace obra
