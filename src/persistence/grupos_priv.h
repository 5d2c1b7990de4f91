// Arrays in groups of equal values over a destination: the total; then, until it is reached, whether the group is of
// equal values, how many it has, and one value or all of them. The caller has checked the entries.
#pragma once

#include "foundation/suelo/logico_int.h"
#include "persistence/textos_priv.h"
#include <algorithm>
#include <cstring>

namespace vn {

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
inline uint64_t bytes_de(const char *s) { return s == nullptr ? 1 : sizeof(uint16_t) + std::strlen(s); }
inline uint64_t memoria_de(const char *s) {
    constexpr uint64_t COSTE_BLOQUE = 48;
    return sizeof(char *) + (s == nullptr ? 0 : std::strlen(s) + 1 + COSTE_BLOQUE);
}
inline double vista(double x) { return x; }
inline const char *vista(const dueno_cadena &s) { return s.get(); }

template <class GRABA_VALOR>
void graba_grupo(const conducto &c, bool iguales, uint32_t desde, uint32_t num_valores, GRABA_VALOR graba_valor) {
    c.graba<GRABAR(bool)>(logico(iguales));
    c.graba<GRABAR(ulong_y_salta)>(num_valores);
    for (uint32_t i = 0; i < (iguales ? 1 : num_valores); ++i) graba_valor(desde + i);
}

// A run is of two or more elements equal to its first; what lies between runs, and runs beyond the budget, go value by
// value.
template <class T, class IGUALES, class GRABA_VALOR>
void graba_grupos(const conducto &c, const T *valores, uint32_t n, IGUALES son_iguales, GRABA_VALOR graba_valor) {
    c.graba<GRABAR(ulong_y_salta)>(n);
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
        if (hecho < inicio) graba_grupo(c, false, hecho, inicio - hecho, graba_valor);
        graba_grupo(c, true, inicio, fin - inicio, graba_valor);
        hecho = fin;
    }
    if (hecho < n) graba_grupo(c, false, hecho, n - hecho, graba_valor);
}

// Reads the groups of `n` elements, each of at least so many bytes, or characters in text, and adds what they hold one
// by one. A group beyond the budget is reported; it and what follows it are passed over. A group that has no values, or
// more than are missing, or than the source can hold, ends it.
template <class LEE_VALOR, class ANADE>
void lee_grupos(const conducto &c, uint32_t n, uint64_t bytes, uint64_t caracteres, LEE_VALOR lee_valor, ANADE anade) {
    vigia guarda(c);
    presupuesto p;
    bool caben = true;
    for (uint32_t hechos = 0, num_valores; hechos < n && guarda.sigue(); hechos += num_valores) {
        const bool iguales = c.lee<LEER(bool)>() == CIERTO;
        num_valores = c.lee<LEER(ulong_y_salta)>();
        const uint32_t guardados = iguales ? 1 : num_valores;
        if (!guarda.sigue() || num_valores == 0 || num_valores > n - hechos) break;
        if (!c.quedan(guardados, bytes, caracteres)) break;
        p.gasta_bytes(presupuesto::POR_GRUPO);
        for (uint32_t i = 0; i < guardados && guarda.sigue(); ++i) {
            const auto valor = lee_valor();
            p.gasta_bytes(bytes_de(vista(valor)));
            if (iguales && !guarda.sigue()) break;
            if (iguales && caben && !p.toma(num_valores * memoria_de(vista(valor)))) {
                caben = false;
                c.error_leyendo();
                guarda = vigia(c);
            }
            for (uint32_t veces = iguales ? num_valores : 1; caben && veces != 0; --veces) anade(valor);
        }
    }
}

} // namespace vn
