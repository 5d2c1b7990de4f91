#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/destino_priv.h"

#include <algorithm>
#include <cstring>
#include <iterator>

namespace vn {

const destino *destino_de(uint32_t tipo, bool la_otra) {
    // By kind; null until the destination's module is part of the library.
    static constexpr struct {
        const destino *una = nullptr, *otra = nullptr;
    } DESTINOS[] = {{&DESTINO_BIN}, {&DESTINO_TXT, &DESTINO_TXT_CON_COMENTARIOS}, {}, {}, {}, {}};
    static_assert(std::size(DESTINOS) == NUM_TIPOS_DESTINO);
    const destino *fila = nullptr;
    if (tipo < std::size(DESTINOS)) fila = la_otra ? DESTINOS[tipo].otra : DESTINOS[tipo].una;
    return AFIRMA_TEXTO(fila != nullptr, "vornsave: el destino no forma parte de la biblioteca") ? fila : nullptr;
}

propio<uint8_t> lee_bytes(const conducto &c, uint32_t &tamanyo, uint32_t trozo) {
    const uint32_t pedidos = tamanyo;
    tamanyo = c.acota(tamanyo, 1);
    const bool libres = c.fila->trozos_libres;
    const auto nuevo = [](uint32_t n) {
        return propio<uint8_t>(static_cast<uint8_t *>(vornspy_calloc(size_t(n) + 1, 1)));
    };
    propio<uint8_t> bytes;
    uint32_t caben = libres ? c.primer_paso(tamanyo) : std::min(trozo, tamanyo), hechos = 0;
    if (libres || c.fila->quedan != nullptr) {
        bytes = nuevo(caben);
    } else { // a piece is read as it was written: the room for one is taken on trust, if there is so much
        bytes.reset(static_cast<uint8_t *>(vornspy_reserva_seguro(size_t(caben) + 1, 1, CIERTO, VN_AQUI)));
        if (bytes == nullptr) {
            c.error_leyendo();
            tamanyo = 0;
            return nuevo(0);
        }
    }
    if (tamanyo == 0 && (pedidos > 0 || libres)) return bytes;
    const vigia guarda(c);
    // Piece by piece: where they are free, none is larger than the room that there is.
    do {
        const uint32_t n = std::min({trozo, tamanyo - hechos, libres ? std::max(caben, 1u) : UINT32_MAX});
        if (caben - hechos < n) { // the source cannot tell its size: what has come doubles the room
            caben = static_cast<uint32_t>(std::min<uint64_t>(tamanyo, uint64_t(caben) * 2 + n));
            propio<uint8_t> mayor = nuevo(caben);
            std::memcpy(mayor.get(), bytes.get(), hechos);
            bytes = std::move(mayor);
        }
        c.lee<LEER(buffer)>(bytes.get() + hechos, n);
        hechos += n;
    } while (hechos < tamanyo && guarda.sigue());
    tamanyo = caben;
    return bytes;
}

} // namespace vn
