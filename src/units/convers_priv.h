// The table of value types as the sources of convers read it.
#pragma once

#include "foundation/suelo/afirma_int.h"
#include "units/convers.h"
#include <array>
#include <atomic>

namespace vn {

// What a type is shown in. Of the S.I. there is one for each unit of energy, all alike but in an energy family. The
// first three are those of VORNCONF_SU_* less 1.
enum columna_convers : uint8_t { EN_MKS, EN_SI_JULIO, EN_IMPERIAL, EN_SI_KCAL, EN_SI_BTU, NUM_COLUMNAS_CONVERS };
enum modo_redondeo : uint8_t { POR_EXCESO = 0, POR_DEFECTO = 1, AL_MAS_CERCANO = 2 };

// shown = internal * coef + sumando. No other formula is used.
struct cifras_convers {
    double coef, sumando;
    double a_mostrado(double interno) const { return interno * coef + sumando; }
    double a_interno(double mostrado) const { return (mostrado - sumando) / coef; }
};

// The figures of a value type.
struct fila_convers {
    cifras_convers cifras[NUM_COLUMNAS_CONVERS];
    double relativa;     // relative precision of the adapted value
    modo_redondeo modo;  // and its rounding
    uint8_t familia;     // of energy: 0 none, 2 per hour, 3 that by 1000
    uint8_t formato;     // entry format in the imperial system
    uint8_t denominador; // greatest, of an inch fraction
};

extern const std::array<fila_convers, CNV_NO_CONVERSION> FILAS_CONVERS;

// The texts of a value type in the language that was active when they were looked up.
struct textos_convers {
    const vnwchar *texto[NUM_COLUMNAS_CONVERS];
};
// One for each type. Null until the first look-up, and again once the exit list has run.
inline constinit std::atomic<const textos_convers *> textos_de_convers{nullptr};
const textos_convers *crea_textos_convers();

inline const textos_convers *dame_textos_convers() {
    const textos_convers *t = textos_de_convers.load(std::memory_order_acquire);
    return __builtin_expect(t != nullptr, 1) ? t : crea_textos_convers();
}

// The row of a type, null if there is none. The first look-up fixes the language of the texts.
inline const fila_convers *fila_de_convers(uint32_t tipovalor) {
    dame_textos_convers();
    return tipovalor < CNV_NO_CONVERSION ? &FILAS_CONVERS[tipovalor] : nullptr;
}

// A value type as it is shown at one moment. Each operation looks once: what changes meanwhile changes the next one.
struct vista_convers {
    bool es_tipo = true;                // false, reported: there is none, and it shows like CNV_NO_CONVERSION
    const fila_convers *fila = nullptr; // null of CNV_NO_CONVERSION: values as they are
    cifras_convers cifras{1, 0};
    const vnwchar *unidad = VNU("");
    int32_t formato = 0; // entry format in force: VORNNUM_FORMATO_*

    explicit vista_convers(uint32_t tipovalor);
    bool es_longitud_imperial() const { return formato != 0; }
    uint32_t denominador() const { return fila != nullptr ? fila->denominador : 0; }
    double a_mostrado(double interno) const { return fila != nullptr ? cifras.a_mostrado(interno) : interno; }
    double a_interno(double mostrado) const { return fila != nullptr ? cifras.a_interno(mostrado) : mostrado; }
};

} // namespace vn
