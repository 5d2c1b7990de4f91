#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_priv.h"

#include "foundation/vnmath.h"
#include <algorithm>
#include <cstring>

// Arrays in groups of equal values: the total; then, until it is reached, whether the group is of equal values, how many
// it has, and one value or all of them.
using namespace vn;

namespace {

// What an array that is read may take: few bytes of a file can ask for many.
constexpr uint64_t MEMORIA_BASE = uint64_t(15) << 20, MEMORIA_POR_BYTE = 8, COSTE_BLOQUE = 48;

uint64_t memoria_permitida(const vornsave *d) {
    const int64_t tamanyo = d->tamanyo_origen != nullptr ? d->tamanyo_origen(d->datos_destino) : 0;
    return MEMORIA_BASE + MEMORIA_POR_BYTE * static_cast<uint64_t>(tamanyo);
}

void dueno_double_destruye(arrDouble **a) {
    arr_DestruyeDouble(a);
}
void dueno_cadenas_destruye(arrCADENA **a) {
    arr_DestruyeCADENA(a);
}

bool puede_grabar_grupos(const vornsave *d) {
    return puede_grabar<GRABAR(bool)>(d) && puede_grabar<GRABAR(ulong_y_salta)>(d);
}
bool puede_leer_grupos(const vornsave *d) {
    return puede_leer<LEER(bool)>(d) && puede_leer<LEER(ulong_y_salta)>(d);
}

template <class GRABA_VALOR>
void graba_grupo(vornsave *d, bool iguales, uint32_t desde, uint32_t num_valores, GRABA_VALOR graba_valor) {
    if (!AFIRMA(num_valores > 0)) return;
    graba<GRABAR(bool)>(d, iguales ? CIERTO : FALSO);
    graba<GRABAR(ulong_y_salta)>(d, num_valores);
    for (uint32_t i = 0; i < (iguales ? 1 : num_valores); ++i) graba_valor(desde + i);
}

// A run is of two or more elements equal to its first; what lies between runs goes value by value.
template <class IGUALES, class GRABA_VALOR>
void graba_grupos(vornsave *d, uint32_t n, IGUALES son_iguales, GRABA_VALOR graba_valor) {
    graba<GRABAR(ulong_y_salta)>(d, n);
    uint32_t hecho = 0;
    for (uint32_t inicio = 0, fin; inicio < n; inicio = fin) {
        for (fin = inicio + 1; fin < n && son_iguales(inicio, fin);) ++fin;
        if (fin - inicio < 2) continue;
        if (hecho < inicio) graba_grupo(d, false, hecho, inicio - hecho, graba_valor);
        graba_grupo(d, true, inicio, fin - inicio, graba_valor);
        hecho = fin;
    }
    if (hecho < n) graba_grupo(d, false, hecho, n - hecho, graba_valor);
}

// Reads the groups of `n` elements: `lee_iguales(hechos, m)` and `lee_valores(hechos, m)` put m elements and tell how many
// they could. Returns how many there are; a group that has none, or more than are missing, ends it.
template <class IGUALES, class VALORES>
uint32_t lee_grupos(vornsave *d, uint32_t n, IGUALES lee_iguales, VALORES lee_valores) {
    const vigia guarda(d);
    uint32_t hechos = 0;
    while (hechos < n && guarda.sigue()) {
        const bool iguales = lee<LEER(bool)>(d) == CIERTO;
        const uint32_t num_valores = lee<LEER(ulong_y_salta)>(d);
        if (!guarda.sigue() || num_valores == 0 || num_valores > n - hechos) break;
        const uint32_t puestos = iguales ? lee_iguales(hechos, num_valores) : lee_valores(hechos, num_valores);
        hechos += puestos;
        if (puestos < num_valores) break;
    }
    return hechos;
}

void graba_cadenas(const arrCADENA *array, vornsave *d, bool con_null) {
    if (!AFIRMA_NO_NULO(array)) return;
    if (!puede_grabar_grupos(d) || !puede_grabar<GRABAR(cadena)>(d)) return;
    const auto textos = arr_GetBufferConstCADENA(array);
    const auto iguales = [=](uint32_t i, uint32_t j) {
        return textos[i] == nullptr || textos[j] == nullptr ? textos[i] == textos[j]
                                                            : std::strcmp(textos[i], textos[j]) == 0;
    };
    graba_grupos(d, arr_NumElemsCADENA(array), iguales,
                 [=](uint32_t i) { graba_texto_de_array(textos[i], d, con_null); });
}

arrCADENA *lee_cadenas(vornsave *vornsave_datos, bool con_null) {
    if (!puede_leer_grupos(vornsave_datos) || !puede_leer<LEER(cadena)>(vornsave_datos)) return nullptr;
    AFIRMA(vornsave_datos->ANSI == CIERTO); // these forms were born after the OEM texts
    uint32_t num_elems_a_leer = lee<LEER(ulong_y_salta)>(vornsave_datos);
    const uint64_t permitida = memoria_permitida(vornsave_datos);
    uint64_t usada = num_elems_a_leer * sizeof(char *);
    if (usada > permitida) {
        error_leyendo(vornsave_datos);
        num_elems_a_leer = 0;
    }
    std::unique_ptr<arrCADENA, suelta<dueno_cadenas_destruye>> dueno(arr_CreaCADENA(num_elems_a_leer));
    arrCADENA *const array = dueno.get();
    if (array == nullptr) return nullptr;
    const auto lee_texto = [=] {
        return con_null ? lee_texto_de_array(vornsave_datos, true) : lee<LEER(cadena)>(vornsave_datos);
    };
    const uint32_t hechos = lee_grupos(
        vornsave_datos, num_elems_a_leer,
        [&](uint32_t desde, uint32_t m) {
            const dueno_cadena texto(lee_texto());
            usada += texto != nullptr ? m * (std::strlen(texto.get()) + 1 + COSTE_BLOQUE) : 0;
            if (usada > permitida) return 0u;
            for (uint32_t i = 0; i < m; ++i) arr_SetCADENA(array, desde + i, texto.get());
            return m;
        },
        [&](uint32_t desde, uint32_t m) {
            const vigia guarda(vornsave_datos);
            uint32_t i = 0;
            for (; i < m && guarda.sigue(); ++i) {
                char *texto = lee_texto();
                arr_SetCADENAOriginal(array, desde + i, &texto);
            }
            return i;
        });
    if (hechos < num_elems_a_leer) arr_ReduceTamanyoCADENA(array, hechos);
    AFIRMA(arr_NumElemsCADENA(array) == num_elems_a_leer);
    return dueno.release();
}

} // namespace

void vornsave_graba_arr_double_con_valores_iguales(const arrDouble *array, double tolerancia, vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(array)) return;
    if (!puede_grabar_grupos(vornsave_datos) || !puede_grabar<GRABAR(double_y_salta)>(vornsave_datos)) return;
    const double *valores = arr_GetBufferConstDouble(array);
    graba_grupos(
        vornsave_datos, arr_NumElemsDouble(array),
        [=](uint32_t i, uint32_t j) { return SON_IGUALES_PREC(valores[i], valores[j], tolerancia) == CIERTO; },
        [=](uint32_t i) { graba<GRABAR(double_y_salta)>(vornsave_datos, valores[i]); });
}

arrDouble *vornsave_lee_arr_double_con_valores_iguales(vornsave *vornsave_datos) {
    if (!puede_leer_grupos(vornsave_datos) || !puede_leer<LEER(double_y_salta)>(vornsave_datos)) return nullptr;
    uint32_t num_elems_a_leer = lee<LEER(ulong_y_salta)>(vornsave_datos);
    if (num_elems_a_leer * sizeof(double) > memoria_permitida(vornsave_datos)) {
        error_leyendo(vornsave_datos);
        num_elems_a_leer = 0;
    }
    using dueno_double = std::unique_ptr<arrDouble, suelta<dueno_double_destruye>>;
    dueno_double array(arr_CreaDouble(num_elems_a_leer));
    if (array == nullptr) return nullptr;
    double *const valores = arr_GetBufferDouble(array.get());
    const uint32_t hechos = lee_grupos(
        vornsave_datos, num_elems_a_leer,
        [=](uint32_t desde, uint32_t m) {
            std::fill_n(valores + desde, m, lee<LEER(double_y_salta)>(vornsave_datos));
            return m;
        },
        [=](uint32_t desde, uint32_t m) {
            const vigia guarda(vornsave_datos);
            uint32_t i = 0;
            for (; i < m && guarda.sigue(); ++i) valores[desde + i] = lee<LEER(double_y_salta)>(vornsave_datos);
            return i;
        });
    if (hechos < num_elems_a_leer) {
        dueno_double leidos(arr_CreaDouble(hechos));
        if (hechos > 0) std::copy_n(valores, hechos, arr_GetBufferDouble(leidos.get()));
        array = std::move(leidos);
    }
    AFIRMA_TEXTO(arr_NumElemsDouble(array.get()) == num_elems_a_leer, "arr_NumElemsDouble(array) == num_elems_a_leer");
    return array.release();
}

void vornsave_graba_arr_cadenas_con_valores_iguales(const arrCADENA *array, vornsave *vornsave_datos) {
    graba_cadenas(array, vornsave_datos, false);
}

arrCADENA *vornsave_lee_arr_cadenas_con_valores_iguales(vornsave *vornsave_datos) {
    return lee_cadenas(vornsave_datos, false);
}

void vornsave_graba_arr_cadenas_con_valores_iguales_segun_tipo(const arrCADENA *array, vornsave *vornsave_datos) {
    graba_cadenas(array, vornsave_datos, true);
}

arrCADENA *vornsave_lee_arr_cadenas_con_valores_iguales_segun_tipo(vornsave *vornsave_datos) {
    return lee_cadenas(vornsave_datos, true);
}
