#define VN_MODULO "textowin (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/textowin.h"
#include "foundation/platform/fuentes.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/utf_int.h"
#include <algorithm>
#include <array>
#include <atomic>
#include <memory>
#include <string_view>

namespace {

using vn::plat::CARACTERES_POR_PAGINA;
using pagina = vn::plat::pagina_de_anchos;
using vista = std::basic_string_view<vnwchar>;

constexpr vnwchar FUENTE_POR_DEFECTO[] = VNU("Arial");
constexpr size_t NUM_PAGINAS = 0x110000 / CARACTERES_POR_PAGINA;
constexpr uint32_t NO_ES_CARACTER = 0xFFFD;

// ---- Without a font: thousandths of the height

constexpr uint16_t ANCHO_DE_LOS_DEMAS = 556;
// clang-format off
constexpr uint16_t DESDE_EL_BLANCO[] = { // U+0020 to U+007E
    278, 278, 355, 556, 556, 889, 667, 191, 333, 333, 389, 584, 278, 333, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 556, 556, 556, 278, 278, 584, 584, 584, 556,
    1015, 667, 667, 722, 722, 667, 611, 778, 722, 278, 500, 667, 556, 833, 722, 778,
    667, 778, 722, 667, 611, 722, 667, 944, 667, 667, 611, 278, 278, 278, 469, 556,
    333, 556, 556, 500, 556, 556, 278, 556, 556, 222, 222, 500, 222, 833, 556, 556,
    556, 556, 333, 500, 278, 556, 500, 722, 500, 500, 500, 334, 260, 334, 584};
constexpr uint16_t DESDE_EL_BLANCO_FIJO[] = { // U+00A0 to U+00FF
    278, 333, 556, 556, 556, 556, 260, 556, 333, 737, 370, 556, 584, 333, 737, 333,
    400, 584, 333, 333, 333, 556, 537, 278, 333, 333, 365, 556, 834, 834, 834, 611,
    667, 667, 667, 667, 667, 667, 1000, 722, 667, 667, 667, 667, 278, 278, 278, 278,
    722, 722, 778, 778, 778, 778, 778, 584, 778, 722, 722, 722, 722, 667, 667, 611,
    556, 556, 556, 556, 556, 556, 889, 500, 556, 556, 556, 556, 278, 278, 278, 278,
    556, 556, 556, 556, 556, 556, 556, 584, 611, 556, 556, 556, 556, 500, 556, 500};
// clang-format on
static_assert(std::size(DESDE_EL_BLANCO) == 0x7F - 0x20 && std::size(DESDE_EL_BLANCO_FIJO) == 0x100 - 0xA0);

bool es_de_control(size_t c) { return c < 0x20 || (c >= 0x7F && c < 0xA0); }

void pon_los_de_serie(size_t numero, pagina &p) {
    std::fill(std::begin(p.ancho), std::end(p.ancho), ANCHO_DE_LOS_DEMAS / 1000.);
    if (numero != 0) return;
    const auto milesimas = [](uint16_t n) { return n / 1000.; };
    std::transform(std::begin(DESDE_EL_BLANCO), std::end(DESDE_EL_BLANCO), p.ancho + 0x20, milesimas);
    std::transform(std::begin(DESDE_EL_BLANCO_FIJO), std::end(DESDE_EL_BLANCO_FIJO), p.ancho + 0xA0, milesimas);
}

// ---- What is known of the fonts, for the life of the process

// Pages are measured when a character of theirs is first asked for. Of two threads that measure one, or find one font,
// the second throws its own away.
class fuente_medida {
  public:
    explicit fuente_medida(const vnwchar *nombre) : nombre_(nombre), del_sistema_(nombre) {}
    const pagina &de(size_t numero) {
        const pagina *p = paginas_[numero].load(std::memory_order_acquire);
        if (p != nullptr) return *p;
        auto nueva = std::make_unique<pagina>();
        if (!del_sistema_.anchos(static_cast<char32_t>(numero * CARACTERES_POR_PAGINA), *nueva))
            pon_los_de_serie(numero, *nueva);
        for (size_t c = 0; numero == 0 && c < CARACTERES_POR_PAGINA; ++c)
            if (es_de_control(c)) nueva->ancho[c] = 0.;
        if (paginas_[numero].compare_exchange_strong(p, nueva.get(), std::memory_order_acq_rel)) p = nueva.release();
        return *p;
    }
    bool se_llama(vista nombre) const { return nombre_ == nombre; }

    fuente_medida *siguiente = nullptr;

  private:
    std::basic_string<vnwchar> nombre_;
    vn::plat::fuente del_sistema_;
    std::array<std::atomic<const pagina *>, NUM_PAGINAS> paginas_{};
};
constinit std::atomic<fuente_medida *> fuentes{nullptr};

fuente_medida &la_fuente(const vnwchar *nombre) {
    const auto busca = [nombre](fuente_medida *f) {
        while (f != nullptr && !f->se_llama(nombre)) f = f->siguiente;
        return f;
    };
    fuente_medida *primera = fuentes.load(std::memory_order_acquire), *f = busca(primera);
    if (f != nullptr) return *f;
    auto nueva = std::make_unique<fuente_medida>(nombre);
    do {
        if ((f = busca(primera)) != nullptr) return *f;
        nueva->siguiente = primera;
    } while (!fuentes.compare_exchange_weak(primera, nueva.get(), std::memory_order_acq_rel));
    return *nueva.release();
}

} // namespace

const vnwchar *textowin_get_nombre_fuente_por_defecto(void) { return FUENTE_POR_DEFECTO; }

double textowin_calcula_longitudTrozoTexto(const vnwchar *texto, uint32_t primero, uint32_t ultimo,
                                           const vnwchar *nombre_fuente, double alto) {
    if (!EXIGE(texto, nombre_fuente)) return 0.;
    // The text itself may end before either.
    size_t inicio = 0, fin = 0;
    while (inicio < primero && texto[inicio] != 0) ++inicio;
    for (fin = inicio; fin <= ultimo && texto[fin] != 0;) ++fin;
    const vista trozo(texto, fin);
    fuente_medida &f = la_fuente(nombre_fuente);
    double suma = 0.;
    for (size_t i = inicio; i < fin;) {
        uint32_t c = vn::lee_utf16(trozo, i);
        if (c >= 0xD800 && c < 0xE000) c = NO_ES_CARACTER;
        suma += f.de(c / CARACTERES_POR_PAGINA).ancho[c % CARACTERES_POR_PAGINA];
    }
    return suma * alto;
}
