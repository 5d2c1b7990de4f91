#define VN_MODULO "capadxf (NUCLEOS.DLL)"
#include "drawing/capadxf.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include <iterator>
#include <string_view>

namespace {

constexpr struct {
    uint8_t pluma;
    uint32_t codigo;
} PLUMAS[] = {{0, 1}, {1, 1}, {2, 2}, {3, 3}, {4, 4}, {6, 7}, {254, 5}, {255, 0}};

constexpr int MAYUSCULAS_SIN_ACENTOS = 3;

template <class C> void subraya(C *s, std::string_view los_que_no_valen) {
    for (; *s != 0; ++s)
        for (const char c : los_que_no_valen)
            if (*s == static_cast<C>(c)) *s = static_cast<C>('_');
}
constexpr std::string_view NO_EN_CAPA = " ,./:\"", NO_EN_BLOQUE = "\"";

} // namespace

uint32_t capadxf_convertir_pluma(uint8_t pluma) {
    for (const auto &fila : PLUMAS)
        if (fila.pluma == pluma) return fila.codigo;
    error_interno_default_error(nullptr, "pluma", VN_MODULO, __LINE__, 0);
    return 0;
}

vnwchar *capadxf_nombre_valido_para_capa_u(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    vn::propio<vnwchar> s(widestr_copia(nombre));
    widestr_convertir_cadena_sin_acentos(s.get());
    widestr_convertir_a_mayusculas(s.get());
    subraya(s.get(), NO_EN_CAPA);
    return s.release();
}

char *capadxf_nombre_valido_para_capa(const char *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    vn::propio<char> s(cad_copia_cadena(nombre));
    cad_convertir_ansi_cadena(s.get(), MAYUSCULAS_SIN_ACENTOS);
    subraya(s.get(), NO_EN_CAPA);
    return s.release();
}

vnwchar *capadxf_nombre_valido_para_bloque_u(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    vnwchar *s = widestr_copia(nombre);
    subraya(s, NO_EN_BLOQUE);
    return s;
}
