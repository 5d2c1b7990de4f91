#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_priv.h"

#include "foundation/numeros/vnmath.h"
#include <algorithm>
#include <cstring>

// Arrays in groups of equal values: the total; then, until it is reached, whether the group is of equal values, how
// many it has, and one value or all of them.
using namespace vn;

namespace {

// Few bytes can stand for many values: those of groups of equal ones may take this much memory, and eight times the
// bytes that the groups up to them take. Writer and reader count alike, in binary form whatever the destination's, so
// that what was written is read; where equal values would pass it they are written one by one.
class presupuesto {
  public:
    static constexpr uint64_t POR_GRUPO = 5; // the truth value and the count
    void gasta_bytes(uint64_t bytes) { bytes_ += bytes; }
    // Whether so much memory more is allowed; if so, it is taken.
    bool toma(uint64_t memoria) {
        constexpr uint64_t BASE = uint64_t(256) << 20, POR_BYTE = 8;
        if (memoria > BASE + POR_BYTE * bytes_ - std::min(tomada_, BASE + POR_BYTE * bytes_)) return false;
        tomada_ += memoria;
        return true;
    }

  private:
    uint64_t bytes_ = 0, tomada_ = 0;
};
// What a value takes: bytes of the source, memory of the array.
constexpr uint64_t bytes_de(double) { return sizeof(double); }
constexpr uint64_t memoria_de(double) { return sizeof(double); }
uint64_t bytes_de(const char *s) { return s == nullptr ? 1 : sizeof(uint16_t) + std::strlen(s); }
uint64_t memoria_de(const char *s) {
    constexpr uint64_t COSTE_BLOQUE = 48;
    return sizeof(char *) + (s == nullptr ? 0 : std::strlen(s) + 1 + COSTE_BLOQUE);
}
double vista(double x) { return x; }
const char *vista(const dueno_cadena &s) { return s.get(); }

void dueno_double_destruye(arrDouble **a) { arr_DestruyeDouble(a); }
void dueno_cadenas_destruye(arrCADENA **a) { arr_DestruyeCADENA(a); }

bool puede_grabar_grupos(const vornsave *d) {
    return puede_grabar<GRABAR(bool)>(d) && puede_grabar<GRABAR(ulong_y_salta)>(d);
}
bool puede_leer_grupos(const vornsave *d) { return puede_leer<LEER(bool)>(d) && puede_leer<LEER(ulong_y_salta)>(d); }

template <class GRABA_VALOR>
void graba_grupo(vornsave *d, bool iguales, uint32_t desde, uint32_t num_valores, GRABA_VALOR graba_valor) {
    if (!AFIRMA(num_valores > 0)) return;
    graba<GRABAR(bool)>(d, iguales ? CIERTO : FALSO);
    graba<GRABAR(ulong_y_salta)>(d, num_valores);
    for (uint32_t i = 0; i < (iguales ? 1 : num_valores); ++i) graba_valor(desde + i);
}

// A run is of two or more elements equal to its first; what lies between runs, and runs beyond the budget, go value by
// value.
template <class T, class IGUALES, class GRABA_VALOR>
void graba_grupos(vornsave *d, const T *valores, uint32_t n, IGUALES son_iguales, GRABA_VALOR graba_valor) {
    graba<GRABAR(ulong_y_salta)>(d, n);
    uint32_t hecho = 0;
    presupuesto p;
    for (uint32_t inicio = 0, fin; inicio < n; inicio = fin) {
        for (fin = inicio + 1; fin < n && son_iguales(valores[inicio], valores[fin]);) ++fin;
        // Counted as they come: what is not written yet will be in a group before this one.
        p.gasta_bytes(bytes_de(valores[inicio]) + (hecho == inicio ? presupuesto::POR_GRUPO : 0));
        if (fin - inicio < 2) continue;
        presupuesto con_grupo = p;
        if (hecho < inicio) con_grupo.gasta_bytes(presupuesto::POR_GRUPO);
        if (!con_grupo.toma((fin - inicio) * memoria_de(valores[inicio]))) {
            p.gasta_bytes((fin - inicio - 1) * bytes_de(valores[inicio]));
            continue;
        }
        p = con_grupo;
        if (hecho < inicio) graba_grupo(d, false, hecho, inicio - hecho, graba_valor);
        graba_grupo(d, true, inicio, fin - inicio, graba_valor);
        hecho = fin;
    }
    if (hecho < n) graba_grupo(d, false, hecho, n - hecho, graba_valor);
}

// Reads the groups of `n` elements, each of at least so many bytes, or characters in text, and adds what they hold one
// by one. A group beyond the budget is reported; it and what follows it are passed over. A group that has no values, or
// more than are missing, or than the source can hold, ends it.
template <class LEE_VALOR, class ANADE>
void lee_grupos(vornsave *d, uint32_t n, uint64_t bytes, uint64_t caracteres, LEE_VALOR lee_valor, ANADE anade) {
    vigia guarda(d);
    presupuesto p;
    bool caben = true;
    for (uint32_t hechos = 0, num_valores; hechos < n && guarda.sigue(); hechos += num_valores) {
        const bool iguales = lee<LEER(bool)>(d) == CIERTO;
        num_valores = lee<LEER(ulong_y_salta)>(d);
        const uint32_t guardados = iguales ? 1 : num_valores;
        if (!guarda.sigue() || num_valores == 0 || num_valores > n - hechos) break;
        if (!quedan(d, guardados, bytes, caracteres)) break;
        p.gasta_bytes(presupuesto::POR_GRUPO);
        for (uint32_t i = 0; i < guardados && guarda.sigue(); ++i) {
            const auto valor = lee_valor();
            p.gasta_bytes(bytes_de(vista(valor)));
            if (iguales && !guarda.sigue()) break;
            if (iguales && caben && !p.toma(num_valores * memoria_de(vista(valor)))) {
                caben = false;
                error_leyendo(d);
                guarda = vigia(d);
            }
            for (uint32_t veces = iguales ? num_valores : 1; caben && veces != 0; --veces) anade(valor);
        }
    }
}

void graba_cadenas(const arrCADENA *array, vornsave *d, bool con_null) {
    if (!SE_GRABA(d, AFIRMA_NO_NULO(array))) return;
    if (!puede_grabar_grupos(d) || !puede_grabar<GRABAR(cadena)>(d)) return;
    const auto textos = arr_GetBufferConstCADENA(array);
    const auto iguales = [](const char *a, const char *b) {
        return a == nullptr || b == nullptr ? a == b : std::strcmp(a, b) == 0;
    };
    graba_grupos(d, textos, arr_NumElemsCADENA(array), iguales, [=](uint32_t i) {
        const char *texto = textos[i];
        if (con_null) graba_texto_o_null(texto, d);
        else graba<GRABAR(cadena)>(d, SE_GRABA(d, AFIRMA_NO_NULO(texto)) ? texto : "");
    });
}

arrCADENA *lee_cadenas(vornsave *vornsave_datos, bool con_null) {
    if (!puede_leer_grupos(vornsave_datos) || !puede_leer<LEER(cadena)>(vornsave_datos)) return nullptr;
    AFIRMA(vornsave_datos->ANSI == CIERTO); // these forms were born after the OEM texts
    const uint32_t num_elems_a_leer = lee<LEER(ulong_y_salta)>(vornsave_datos);
    std::unique_ptr<arrCADENA, suelta<dueno_cadenas_destruye>> dueno(arr_CreaCADENA(0));
    arrCADENA *const array = dueno.get();
    lee_grupos(
        vornsave_datos, num_elems_a_leer, con_null ? 1 : sizeof(uint16_t), 1,
        [=] { return dueno_cadena(con_null ? lee_texto_o_null(vornsave_datos) : lee<LEER(cadena)>(vornsave_datos)); },
        [=](const dueno_cadena &texto) { arr_AppendCADENA(array, texto.get()); });
    if (!AFIRMA(arr_NumElemsCADENA(array) == num_elems_a_leer)) falla(vornsave_datos);
    return dueno.release();
}

} // namespace

void vornsave_graba_arr_double_con_valores_iguales(const arrDouble *array, double tolerancia,
                                                   vornsave *vornsave_datos) {
    if (!SE_GRABA(vornsave_datos, AFIRMA_NO_NULO(array))) return;
    if (!puede_grabar_grupos(vornsave_datos) || !puede_grabar<GRABAR(double_y_salta)>(vornsave_datos)) return;
    const double *valores = arr_GetBufferConstDouble(array);
    graba_grupos(
        vornsave_datos, valores, arr_NumElemsDouble(array),
        [=](double a, double b) { return SON_IGUALES_PREC(a, b, tolerancia) == CIERTO; },
        [=](uint32_t i) { graba<GRABAR(double_y_salta)>(vornsave_datos, valores[i]); });
}

arrDouble *vornsave_lee_arr_double_con_valores_iguales(vornsave *vornsave_datos) {
    if (!puede_leer_grupos(vornsave_datos) || !puede_leer<LEER(double_y_salta)>(vornsave_datos)) return nullptr;
    const uint32_t num_elems_a_leer = lee<LEER(ulong_y_salta)>(vornsave_datos);
    std::unique_ptr<arrDouble, suelta<dueno_double_destruye>> dueno(arr_CreaDouble(0));
    arrDouble *const array = dueno.get();
    lee_grupos(
        vornsave_datos, num_elems_a_leer, sizeof(double), 2, [=] { return lee<LEER(double_y_salta)>(vornsave_datos); },
        [=](double valor) { arr_AppendDouble(array, valor); });
    if (!AFIRMA(arr_NumElemsDouble(array) == num_elems_a_leer)) falla(vornsave_datos);
    return dueno.release();
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
