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

} // namespace

bool lee_opciones(const std::vector<std::string> &palabras, opciones &o, std::string &falta) {
    o = {};
    for (size_t i = 0; i < palabras.size(); ++i) {
        const std::string &p = palabras[i];
        if (!p.starts_with("--")) {
            if (!o.obra.empty()) return falta = p + ": " + di(mensaje::sobra), false;
            o.obra = p;
            continue;
        }
        const std::string dicho = i + 1 < palabras.size() ? palabras[++i] : "";
        std::string validos;
        if (toma_opcion(p, dicho, o, validos)) continue;
        falta = p + (dicho.empty() ? "" : " " + dicho) + ": " +
                (validos.empty() ? di(mensaje::sobra) : di(mensaje::no_vale) + " " + validos);
        return false;
    }
    if (o.obra.empty()) return falta = di(mensaje::falta_obra), false;
    return true;
}

void aplica(const opciones &o) {
    if (o.idioma) msidioma_establece_idioma(*o.idioma);
    if (o.sistema) vornconf_Internacional_set_sistema_unidades(*o.sistema);
    if (o.energia) vornconf_Internacional_set_sistema_unidades_energia(*o.energia);
}

} // namespace obra
