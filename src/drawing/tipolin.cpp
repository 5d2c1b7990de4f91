#define VN_MODULO "tipolin (NUCLEOS.DLL)"
#include "drawing/tipolin.h"
#include "foundation/listas/arr_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/widestr.h"
#include <algorithm>
#include <bit>
#include <cmath>
#include <iterator>
#include <memory>

using namespace vn;

struct tipolin {
    propio<vnwchar> nombre, descripcion;
    dueno<arr_DestruyeDouble> patron;
    uint8_t estilo_aproximado = 0;
};

namespace {

// The library's own line types, by number: pattern in the units of a model and in pixels.
constexpr uint32_t MAXIMO_ELEMENTOS = 8;
struct patron_fijo {
    uint32_t n;
    double elementos[MAXIMO_ELEMENTOS];
};
constexpr uint8_t CONTINUA_REPETIDA = 8; // a second continuous one, which has no name and no pattern of its own
// clang-format off
constexpr struct {
    const vnwchar *nombre;
    patron_fijo modelo, pixeles;
} TIPOS[] = {
    {VNU("CONTINUOUS"),               {0, {}},                                                {0, {}}},
    {VNU("VORN_RAYAPUNTO"),           {4, {0.2025, -0.105, 0, -0.105}},                       {4, {18, 12, 6, 12}}},
    {VNU("VORN_RAYA"),                {2, {0.1125, -0.1125}},                                 {2, {36, 18}}},
    {VNU("VORN_PUNTO"),               {2, {0, -0.075}},                                       {2, {6, 6}}},
    {VNU("VORN_RAYITA"),              {2, {0.05625, -0.05625}},                               {2, {18, 18}}},
    {VNU("VORN_RAYAPUNTOPUNTO"),      {6, {0.225, -0.075, 0, -0.075, 0, -0.075}},             {6, {18, 6, 9, 6, 9, 6}}},
    {VNU("VORN_RAYAPUNTO"),           {4, {0.2025, -0.105, 0, -0.105}},                       {4, {18, 12, 6, 12}}},
    {VNU("VORN_PUNTO"),               {2, {0, -0.075}},                                       {2, {6, 6}}},
    {VNU("CONTINUOUS"),               {0, {}},                                                {0, {}}},
    {VNU("VORN_RAYAPUNTOPUNTOPUNTO"), {8, {0.225, -0.075, 0, -0.075, 0, -0.075, 0, -0.075}},  {8, {36, 6, 9, 6, 9, 6, 9, 6}}},
    {VNU("VORN_PUNTOSSEPARADOS8PX"),  {2, {0, -0.6}},                                         {2, {6, 18}}},
};
// clang-format on
static_assert(std::size(TIPOS) == 11);

// Stipples of the styles, 0 to 7: a bit drawn or free, the lowest first.
constexpr uint16_t ESTILOS[] = {0xFFFF, 0xE4E4, 0xCCCC, 0x8888, 0xEEEE, 0xF29F, 0xF6F6, 0x0101};
constexpr int BITS = 16;

// What is shorter is no pattern.
constexpr double LONGITUD_NULA = 1e-6;

// A pattern as 16 bits over its whole length.
uint16_t punteado_de(const arrDouble *patron) {
    double total = 0.;
    for (const double e : listas::tramo(patron)) total += std::fabs(e);
    if (!(total > LONGITUD_NULA) || !std::isfinite(total)) return 0xFFFF;
    uint32_t punteado = 0;
    int puestos = 0;
    for (const double e : listas::tramo(patron)) {
        const int bits = static_cast<int>(std::round(BITS * std::fabs(e) / total));
        // Many short elements, each rounded up, may want more than there are.
        const int caben = std::min(bits, BITS - puestos);
        if (e > 0.) punteado |= ((1u << caben) - 1) << puestos;
        puestos += caben;
    }
    return static_cast<uint16_t>(punteado);
}

uint8_t estilo_de(uint16_t punteado) {
    int menos = BITS + 1;
    uint8_t mejor = 0;
    for (uint8_t i = 0; i < std::size(ESTILOS); ++i)
        for (int giro = 0; giro < BITS; ++giro) {
            const int distintos = std::popcount(static_cast<uint16_t>(punteado ^ std::rotl(ESTILOS[i], giro)));
            if (distintos >= menos) continue;
            menos = distintos;
            mejor = i;
        }
    return mejor;
}

bool es_valido(const tipolin *tipo) {
    return AFIRMA_TEXTO(tipo != nullptr, "(tipolin) != NULL") &&
           AFIRMA_TEXTO(tipo->nombre != nullptr, "(tipolin->nombre) != NULL") &&
           AFIRMA_TEXTO(tipo->descripcion != nullptr, "(tipolin->descripcion) != NULL") &&
           AFIRMA_TEXTO(tipo->patron != nullptr, "(tipolin->patron) != NULL");
}

arrDouble *array_de(const patron_fijo &p) {
    dueno<arr_DestruyeDouble> a(arr_CreaDouble(p.n));
    if (a != nullptr) std::copy_n(p.elementos, p.n, listas::tramo(a.get()).begin());
    return a.release();
}

} // namespace

tipolin *tipolin_crea(const vnwchar *nombre, const vnwchar *descripcion, const arrDouble *patron) {
    if (!EXIGE(nombre, descripcion, patron)) return nullptr;
    propio<vnwchar> su_nombre(widestr_copia(nombre)), su_descripcion(widestr_copia(descripcion));
    dueno<arr_DestruyeDouble> su_patron(arr_CopiaDouble(patron));
    if (su_patron == nullptr) return nullptr; // there was no memory for it
    return new (vornspy_malloc(sizeof(tipolin)))
        tipolin{std::move(su_nombre), std::move(su_descripcion), std::move(su_patron), estilo_de(punteado_de(patron))};
}

void tipolin_destruye(tipolin **tipo) {
    if (!EXIGE(tipo, *tipo)) return;
    es_valido(*tipo);
    std::destroy_at(*tipo);
    vornspy_free_pp(tipo, sizeof **tipo);
}

vnbool tipolin_compara_nombre(const tipolin *tipo, const vnwchar *nombre) {
    if (!es_valido(tipo) || !AFIRMA_NO_NULO(nombre)) return FALSO;
    return widestr_cadenas_iguales(tipo->nombre.get(), nombre);
}

uint8_t tipolin_dame_estilo_aproximado(const tipolin *tipo) { return es_valido(tipo) ? tipo->estilo_aproximado : 0; }

const arrDouble *tipolin_dame_patron_const(const tipolin *tipo) {
    return es_valido(tipo) ? tipo->patron.get() : nullptr;
}

const vnwchar *tipolin_dame_nombre_tipo_vorn_linea(uint8_t tipo_linea) {
    if (tipo_linea >= std::size(TIPOS)) {
        AFIRMA_DEFECTO();
        return nullptr;
    }
    return TIPOS[tipo_linea].nombre;
}

arrDouble *tipolin_dame_patron_aproximado(uint8_t tipo_linea) {
    if (tipo_linea >= std::size(TIPOS) || tipo_linea == CONTINUA_REPETIDA) {
        AFIRMA_DEFECTO();
        return nullptr;
    }
    return array_de(TIPOS[tipo_linea].modelo);
}

arrDouble *tipolin_dame_patron_aproximado_px_glsl(uint8_t tipo_linea) {
    if (tipo_linea >= std::size(TIPOS)) {
        AFIRMA_DEFECTO();
        return nullptr;
    }
    return array_de(TIPOS[tipo_linea].pixeles);
}

vnbool tipolin_es_tipo_linea_vorn(const vnwchar *nombre, uint8_t *tipo_linea) {
    if (!AFIRMA_NO_NULO(nombre)) return FALSO;
    for (uint8_t i = 0; i < std::size(TIPOS); ++i) {
        if (i == CONTINUA_REPETIDA || widestr_cadenas_iguales_may_o_min(TIPOS[i].nombre, nombre) == FALSO) continue;
        if (tipo_linea != nullptr) *tipo_linea = i;
        return CIERTO;
    }
    return FALSO;
}
