#include "foundation/sistema/fichconf.h"
#include "foundation/sistema/textowin.h"
#include "foundation/sistema/vnmutex.h"
#include "foundation/sistema/vnregional.h"
#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/msglocal.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "frame/alsalir.h"
#include "primer_uso.h"
#include "time/sysdata.h"
#include "units/convers.h"
#include "units/vornconf.h"
#include <chrono>
#include <filesystem>

namespace {

using vn::HEBRAS;

constexpr const char *FICHERO = "[Internacional]\nNorma=77\nSistema de Unidades=3\nSistemaUnidadEnergia=2\n";

// What each thread got is what one gets alone.
bool todos_son(const auto &obtenidos, const auto &esperado) {
    return std::ranges::all_of(obtenidos, [&](const auto &t) { return t == esperado; });
}

constexpr const char *MUTEX = "prueba-primer-uso";
vnmutex *el_mutex = nullptr;
int cuenta = 0;
bool cuenta_bajo_mutex(int) {
    for (int i = 0; i < 50; ++i) {
        if (vnmutex_entra_creando_entre_aplicaciones_si_es_necesario(&el_mutex, MUTEX) != CIERTO) return false;
        ++cuenta;
        vnmutex_sal(el_mutex);
    }
    return true;
}

int idiomas[HEBRAS];
double anchos[HEBRAS];
std::string textos[HEBRAS], mensajes[HEBRAS], paginas[HEBRAS], regiones[HEBRAS];
std::string region() {
    vnwchar decimal = 0, millares = 0;
    vnregional_separadores(&decimal, &millares);
    return std::to_string(decimal) + std::to_string(millares) + vn::toma(sysdata_separador_decimal()) +
           vn::toma(sysdata_nombre_dia(3)) + vn::toma(sysdata_fecha(2, 3, 2024, 0, nullptr, CIERTO));
}
std::string mensaje() { return vornconf_texto_sistema_unidad_energia(2); }
std::string en_mayusculas() {
    vnwchar letras[] = VNU("ñandú");
    widestr_convertir_a_mayusculas(letras);
    return vn::toma(unicode_convierte_UNICODE_a_ANSI_idioma(letras, 0, nullptr));
}
std::string fuerza() { return vn::toma(convers_texto_con_unidades_dos_decimales(1, CNV_FUERZA)); }

// What the exit registry is to destroy.
char *cadenas[HEBRAS * 20], *datos[HEBRAS];
vnwchar *cadenas_u[HEBRAS];
std::chrono::steady_clock::time_point empezo;
bool registra_al_salir(int h) {
    for (char *&c : std::span(cadenas).subspan(static_cast<size_t>(h) * 20, 20)) {
        c = cad_copia_cadena("texto");
        alsalir_destruye_cadena(&c);
    }
    cadenas_u[h] = widestr_copia(VNU("texto"));
    alsalir_destruye_cadena_u(&cadenas_u[h]);
    datos[h] = cad_copia_cadena("dato");
    alsalir_destruye_dato(char, &datos[h], vornstr_destruye);
    return true;
}
bool se_ha_destruido() {
    // In no time: nobody waited for a mutex that another thread had for good.
    const bool pronto = std::chrono::steady_clock::now() - empezo < std::chrono::seconds(25);
    vnatexit_ejecuta();
    return pronto && todos_son(cadenas, nullptr) && todos_son(cadenas_u, nullptr) && todos_son(datos, nullptr);
}

constexpr vn::uso USOS[] = {
    {"unit configuration",
     [](int) {
         return vornconf_Internacional_sistema_unidades() == 3 &&
                vornconf_Internacional_sistema_unidades_energia() == 2 && vornconf_Internacional_normaHorm() == 77 &&
                vornconf_es_sistema_unidades_inglesas() == CIERTO;
     },
     [] { return true; }},
    {"value texts", [](int h) { return (textos[h] = fuerza()).starts_with("2204.62 "); },
     [] { return todos_son(textos, fuerza()); }},
    {"exit registry", registra_al_salir, se_ha_destruido},
    {"messages", [](int h) { return (mensajes[h] = mensaje()).find("Btu") != std::string::npos; },
     [] { return todos_son(mensajes, mensaje()); }},
    {"language", [](int h) { return (idiomas[h] = msidioma_dame_idioma()) >= 0; },
     [] { return todos_son(idiomas, msidioma_dame_idioma()); }},
    {"code page", [](int h) { return (paginas[h] = en_mayusculas()) == "\321AND\xDA"; },
     [] { return todos_son(paginas, en_mayusculas()); }},
    {"region", [](int h) { return !(regiones[h] = region()).empty(); }, [] { return todos_son(regiones, region()); }},
    {"widths of a font",
     [](int h) {
         constexpr const vnwchar *TEXTO = VNU("ancho de \u4E00");
         return (anchos[h] = textowin_calcula_longitudTrozoTexto(TEXTO, 0, 99, VNU("Arial"), 10)) > 30;
     },
     [] { return todos_son(anchos, anchos[0]); }},
    {"mutex between programs", cuenta_bajo_mutex, [] { return cuenta == 50 * HEBRAS; }},
};

// One thread changes while the others bring about the first reading of the file, which is not put over the change.
constexpr vn::uso CAMBIO[] = {
    {"change at the first query",
     [](int h) {
         if (h == 0) vornconf_Internacional_set_sistema_unidades(VORNCONF_SU_INTERNACIONAL);
         const uint32_t sistema = vornconf_Internacional_sistema_unidades();
         return sistema == 2 || (sistema == 3 && h != 0);
     },
     [] { return vornconf_Internacional_sistema_unidades() == 2 && vornconf_Internacional_normaHorm() == 77; }},
};

} // namespace

// Arguments: the base directory, the number of the process.
HIJO(usa_por_primera_vez) {
    empezo = std::chrono::steady_clock::now();
    fichconf_establece_directorio_base(vn::ancho(args.at(0)).c_str());
    const size_t n = std::stoul(args.at(1));
    if (const int r = n % 3 == 0 ? vn::usa_por_primera_vez(CAMBIO, 0) : 0; r != 0) return -1;
    if (n % 3 == 0) vornconf_Internacional_set_sistema_unidades(VORNCONF_SU_IMPERIAL);
    return vn::usa_por_primera_vez(USOS, n);
}

PRUEBA(primer_uso, ocho_hebras_se_encuentran_en_un_proceso_nuevo) {
    fichconf_establece_directorio_base(vn::ancho(directorio()).c_str());
    fichconf_crea_directorio_estructa();
    fichconf_establece_directorio_base(nullptr);
    vn::graba_fichero(directorio() + "/VORN/estructa/internac.ini", FICHERO);
    vn::espera_primeros_usos("usa_por_primera_vez", USOS, {directorio()});
    std::filesystem::remove(vn::fichero_de_cerrojo(MUTEX));
}
