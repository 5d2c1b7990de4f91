#define VN_MODULO "vorntime (NUCLEOS.DLL)"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/calendario_int.h"
#include "foundation/texto/unicode.h"
#include "time/vorntime_priv.h"
#include <optional>
#include <string_view>

using namespace vn;

namespace {

using vista = std::basic_string_view<vnwchar>;

// The pieces of a text between runs of separators.
class piezas {
  public:
    explicit piezas(const vnwchar *texto) : resto_(texto) {}

    // Null when there are no more.
    std::optional<vista> siguiente() {
        const vnwchar *principio = resto_;
        while (es_separador(*principio)) ++principio;
        resto_ = principio;
        while (*resto_ != 0 && !es_separador(*resto_)) ++resto_;
        if (resto_ == principio) return std::nullopt;
        return vista(principio, static_cast<size_t>(resto_ - principio));
    }

  private:
    static bool es_separador(vnwchar c) { return c == VNU('/') || c == VNU('-') || c == VNU(':') || c == VNU(' '); }

    const vnwchar *resto_;
};

// A whole number: digits, after a plus sign or not. (A minus sign and blanks never get into a piece.) What is beyond
// any field of a date stops at a number that is beyond them too.
std::optional<int32_t> entero(std::optional<vista> pieza) {
    constexpr int32_t ENORME = 100000;
    if (!pieza) return std::nullopt;
    if (pieza->front() == VNU('+')) pieza->remove_prefix(1);
    if (pieza->empty()) return std::nullopt;
    int32_t n = 0;
    for (const vnwchar c : *pieza) {
        if (c < VNU('0') || c > VNU('9')) return std::nullopt;
        n = n < ENORME ? n * 10 + (c - VNU('0')) : n;
    }
    return n;
}

bool entre(const std::optional<int32_t> &n, int32_t minimo, int32_t maximo) {
    return n && *n >= minimo && *n <= maximo;
}

std::optional<tmtime> lee(const vnwchar *cadena) {
    piezas p(cadena);
    const auto dia = entero(p.siguiente());
    if (!entre(dia, 1, 31)) return std::nullopt;
    const auto mes = entero(p.siguiente());
    if (!entre(mes, 1, 12)) return std::nullopt;
    auto anyo = entero(p.siguiente());
    if (!anyo) return std::nullopt;
    // A year of two digits is of this century below 70, of the last one from 70 on.
    if (*anyo >= 1900) *anyo -= 1900;
    else if (*anyo < 70) *anyo += 100;
    // No date later than the year 2100 is accepted.
    if (*anyo > 200 || *dia > dias_del_mes(static_cast<uint32_t>(*mes - 1), *anyo + 1900)) return std::nullopt;
    // In the order of the text.
    const int32_t hora = entero(p.siguiente()).value_or(0);
    const int32_t minuto = entero(p.siguiente()).value_or(0);
    const int32_t segundo = entero(p.siguiente()).value_or(0);
    if (hora > 23 || minuto > 59 || segundo > 59) return std::nullopt;
    tmtime fecha{segundo, minuto, hora, *dia, *mes - 1, *anyo, 0, 0, 0};
    pon_dias(fecha);
    return fecha;
}

} // namespace

vnbool vtm_convierte_cadena_a_tm_u(const vnwchar *cadena, tmtime *fecha) {
    if (!EXIGE(cadena, fecha)) return FALSO;
    const std::optional<tmtime> leida = lee(cadena);
    if (!leida) return FALSO;
    *fecha = *leida;
    return CIERTO;
}

vnbool vtm_convierte_cadena_a_tm(const char *cadena, tmtime *fecha) {
    if (!EXIGE(cadena, fecha)) return FALSO;
    const propio<vnwchar> ancha(utunicode_ANSI_a_UNICODE(cadena));
    return vtm_convierte_cadena_a_tm_u(ancha.get(), fecha);
}
