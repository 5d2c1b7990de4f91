#define VN_MODULO "vorntime (NUCLEOS.DLL)"
#include "foundation/suelo/afirma_int.h"
#include "time/sysdata.h"
#include "time/vorntime_priv.h"
#include <string_view>

using namespace vn;

namespace {

using ansi_propio = propio<char>;

// Known days, in order. The names are those of Spanish regional data, of the abbreviated ones the letters that all
// systems agree on; null where they are not looked at.
constexpr struct {
    int32_t dia, mes, anyo;
    int32_t dia_semana;
    const char *nombre, *abreviado;
} FECHAS[] = {
    {7, 2, 1970, 6, nullptr, nullptr},  {1, 5, 1974, 3, nullptr, "mi"},    {19, 1, 1999, 2, "martes", "ma"},
    {29, 2, 2000, 2, nullptr, nullptr}, {24, 6, 2005, 5, "viernes", "vi"},
};

bool regional_en_espanyol() {
    constexpr uint32_t JUEVES = 4; // its name is of no other language
    return std::string_view(ansi_propio(sysdata_nombre_dia(JUEVES)).get()) == "jueves";
}

} // namespace

void vtm_test_fechas(void *) {
    const bool con_nombres = regional_en_espanyol();
    tmtime_propio anterior;
    for (const auto &f : FECHAS) {
        tmtime_propio fecha(vtm_crea(0, 0, 0, f.dia, f.mes, f.anyo));
        AFIRMA(fecha->tm_wday == f.dia_semana);
        const auto dia = static_cast<uint32_t>(f.dia_semana);
        if (con_nombres && f.nombre != nullptr) {
            const ansi_propio nombre(sysdata_nombre_dia(dia));
            AFIRMA(std::string_view(nombre.get()) == f.nombre);
        }
        if (con_nombres && f.abreviado != nullptr) {
            const ansi_propio abreviado(sysdata_nombre_dia_abreviado(dia));
            AFIRMA(std::string_view(abreviado.get()).starts_with(f.abreviado));
        }
        // A date is equal to itself, and later than the one before it.
        AFIRMA(vtm_fechas_iguales(fecha.get(), fecha.get()) == CIERTO);
        if (anterior != nullptr) {
            AFIRMA(vtm_compara_fechas(anterior.get(), fecha.get()) == -1);
            AFIRMA(vtm_compara_fechas(fecha.get(), anterior.get()) == 1);
        }
        anterior = std::move(fecha);
    }
}
