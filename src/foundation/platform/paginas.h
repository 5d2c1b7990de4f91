// What the platform knows of characters: code pages, letter case, decomposition. Asked once each, to build tables.
#pragma once

#include <cstddef>
#include <cstdint>

namespace vn::plat {

// The active ANSI code page of the system.
uint32_t pagina_ansi_del_sistema();

// The decoder of one code page.
class decodificador {
  public:
    explicit decodificador(uint32_t pagina);
    ~decodificador();
    decodificador(const decodificador &) = delete;
    decodificador &operator=(const decodificador &) = delete;
    // Bytes of the longest character; 0 when the platform does not know the page.
    unsigned bytes_por_caracter() const { return bytes_; }
    // The unit that the `n` bytes are, when they are exactly one defined character of one unit.
    bool unidad(const unsigned char *bytes, int n, char16_t &u);

  private:
    uint32_t pagina_;
    unsigned bytes_ = 0;
    void *propio_ = nullptr;
};

constexpr size_t NUM_UNIDADES = 65536;
// Fills the simple upper and lower case of every unit; surrogates are themselves.
void mapas_de_caja(char16_t *mayusculas, char16_t *minusculas);
// The full canonical decomposition of a unit, at most `sitio` units; returns how many, 0 when it has none.
size_t descompone(char16_t c, char16_t *unidades, size_t sitio);

} // namespace vn::plat
