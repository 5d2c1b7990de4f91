#define VN_MODULO "arr (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/arr_bit.h"
#include "foundation/listas/arreglo_int.h"
#include "foundation/suelo/logico_int.h"

// Bits stand as they are stored in files: eight to a byte, the lowest first, the rest of the last byte 0.
struct arrBIT : vn::listas::arreglo<uint8_t> {
    uint32_t bits;
};

namespace {

// Rounded up without a sum that the largest counts would overflow.
constexpr uint32_t bytes_de(uint32_t bits) { return bits / 8 + (bits % 8 != 0); }

bool hay_bit(const arrBIT *a, uint32_t i) {
    return AFIRMA_NO_NULO(a) && AFIRMA_TEXTO(i < a->bits, "i < num_elementos");
}

} // namespace

arrBIT *arr_CreaBIT(uint32_t n) {
    if (!AFIRMA_TEXTO(n <= vn::listas::MAXIMO_AL_CREAR, "n <= 268435456")) return nullptr;
    arrBIT *a = vn::listas::crea<arrBIT>(bytes_de(n));
    if (a != nullptr) a->bits = n;
    return a;
}

void arr_DestruyeBIT(arrBIT **a) { vn::listas::toma(a); }

arrBIT *arr_CopiaBIT(const arrBIT *a) {
    arrBIT *b = vn::listas::copia(a);
    if (b != nullptr) b->bits = a->bits;
    return b;
}

uint32_t arr_NumElemsBIT(const arrBIT *a) { return AFIRMA_NO_NULO(a) ? a->bits : 0; }

vnbool arr_GetBIT(const arrBIT *a, uint32_t i) {
    if (!hay_bit(a, i)) return FALSO;
    return vn::logico((a->datos[i / 8] >> (i % 8) & 1) != 0);
}

void arr_SetBIT(arrBIT *a, uint32_t i, vnbool v) {
    if (!hay_bit(a, i) || !AFIRMA_LOGICO(v)) return;
    const auto mascara = static_cast<uint8_t>(1u << (i % 8));
    uint8_t &byte = a->datos[i / 8];
    byte = static_cast<uint8_t>(v == CIERTO ? byte | mascara : byte & ~mascara);
}

void arr_AppendBIT(arrBIT *a, vnbool v) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_LOGICO(v)) return;
    if (!AFIRMA_TEXTO(a->bits < vn::listas::MAXIMO, "num_elementos < ULONG_MAX")) return;
    // A new byte only when the last one is full.
    if (a->bits % 8 == 0 && !vn::listas::anade(a, uint8_t{0})) return;
    arr_SetBIT(a, a->bits++, v);
}

void arr_AumentaTamanyoBIT(arrBIT *a, uint32_t n) {
    if (!AFIRMA_NO_NULO(a) || !AFIRMA_TEXTO(n >= a->bits, "n >= num_elementos")) return;
    const uint32_t mas = bytes_de(n) - a->num;
    if (!vn::listas::asegura(a, mas)) return;
    // The rest of the last byte is 0 already: only new ones have to be cleared.
    if (mas > 0) std::memset(a->datos + a->num, 0, mas);
    a->num += mas;
    a->bits = n;
}

const uint8_t *arr_GetBufferConstBIT(const arrBIT *a) { return vn::listas::bloque_de(a); }
