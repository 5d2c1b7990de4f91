#define VN_MODULO "pagina (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/platform/paginas.h"
#include "foundation/texto/pagina_priv.h"
#include "foundation/texto/unicode.h"
#include <atomic>

namespace vn::texto {
namespace {

constexpr char16_t NO_ES = 0xFFFD;

void anade_inversa(pagina &p, char16_t u, uint16_t codigo) {
    std::unique_ptr<uint16_t[]> &fila = p.inversa[u >> 8];
    if (fila == nullptr) fila = std::make_unique<uint16_t[]>(256);
    if (fila[u & 0xFF] == 0) fila[u & 0xFF] = codigo;
}

// Where one platform sees a private character and the other none, both are to see none.
bool es_relleno(char16_t u) { return u >= 0xF8F0 && u <= 0xF8FF; }

// The two-byte characters. Of two codes for a unit, text is written with the lower one, but with one of the rows ED and
// EE (repeated on page 932) only when there is no other.
void llena_pares(pagina &p, plat::decodificador &d) {
    p.pares = std::make_unique<char16_t[]>(65536);
    for (unsigned a = 0x80; a < 0x100; ++a) {
        char16_t u;
        const unsigned char solo = static_cast<unsigned char>(a);
        if (d.unidad(&solo, 1, u)) continue;
        for (unsigned b = 0x40; b < 0xFF; ++b) {
            const unsigned char par[] = {solo, static_cast<unsigned char>(b)};
            if (!d.unidad(par, 2, u) || es_relleno(u)) continue;
            p.pares[a << 8 | b] = u;
            p.lider[a] = true;
        }
    }
    for (const bool repetidas : {false, true})
        for (unsigned c = 0x8000; c < 0x10000; ++c)
            if (p.pares[c] != 0 && repetidas == (p.numero == 932 && (c >> 8 == 0xED || c >> 8 == 0xEE)))
                anade_inversa(p, p.pares[c], static_cast<uint16_t>(c));
}

void llena_bytes(pagina &p, plat::decodificador *d) {
    for (unsigned b = 0; b < 256; ++b) {
        const unsigned char byte = static_cast<unsigned char>(b);
        // What a page of one byte leaves undefined is itself, like the control characters of all. In one of two bytes
        // it is nothing, whether a platform says so or gives the control character: others take it for half of a pair.
        char16_t u = static_cast<char16_t>(b);
        if (p.lider[b] || (p.utf8 && b >= 0x80)) u = NO_ES;
        else if (b >= 0x80 && d != nullptr && (!d->unidad(&byte, 1, u) || es_relleno(u))) u = static_cast<char16_t>(b);
        if (p.doble && b >= 0x80 && u == b) u = NO_ES;
        p.unidad[b] = u;
        if (u != NO_ES) anade_inversa(p, u, static_cast<uint16_t>(b));
    }
}

void llena_cajas(pagina &p) {
    const mapas_de_unidades &m = mapas();
    for (unsigned b = 0; b < 256; ++b) {
        const char16_t u = p.unidad[b];
        const auto byte_de = [&](char16_t otra) {
            const uint16_t c = u == NO_ES ? uint16_t{0} : p.codigo(otra);
            return static_cast<unsigned char>(c == 0 || c > 0xFF ? b : c);
        };
        p.mayuscula[b] = byte_de(m.mayuscula[u]);
        p.minuscula[b] = byte_de(m.minuscula[u]);
        p.sin_acento[b] = byte_de(m.sin_acento[u]);
    }
}

// Null when the platform does not know the page, but for 1252, which there always is.
std::unique_ptr<pagina> hace_pagina(uint32_t numero) {
    auto p = std::make_unique<pagina>();
    p->numero = numero;
    p->utf8 = numero == 65001;
    if (p->utf8) llena_bytes(*p, nullptr);
    else {
        plat::decodificador d(numero);
        const unsigned bytes = d.bytes_por_caracter();
        const unsigned char letra = 'A';
        char16_t u;
        // Not one whose letters are not those of ASCII, nor one that stands for another page (0 to 3 on Windows).
        if (bytes < 1 || bytes > 2 || numero < 10 || !d.unidad(&letra, 1, u) || u != letra) {
            if (numero != 1252) return nullptr;
            llena_bytes(*p, nullptr);
        } else {
            p->doble = bytes == 2;
            if (p->doble) llena_pares(*p, d);
            llena_bytes(*p, &d);
        }
    }
    llena_cajas(*p);
    return p;
}

// The pages made so far; a process meets a handful.
constexpr size_t MAX_PAGINAS = 64;
constinit std::atomic<const pagina *> hechas[MAX_PAGINAS] = {};
constinit std::atomic<const pagina *> activa{nullptr};

constexpr struct {
    char16_t letra, base;
} SIN_DESCOMPOSICION[] = {{0xD8, 'O'},  {0xF8, 'o'},  {0x110, 'D'}, {0x111, 'd'}, {0x126, 'H'}, {0x127, 'h'},
                          {0x131, 'i'}, {0x141, 'L'}, {0x142, 'l'}, {0x166, 'T'}, {0x167, 't'}};

char16_t base_de(char16_t c) {
    const bool latina_o_griega = (c >= 0xC0 && c < 0x250) || (c >= 0x386 && c < 0x400) || (c >= 0x1E00 && c < 0x2000);
    if (!latina_o_griega) return c;
    for (const auto &f : SIN_DESCOMPOSICION)
        if (f.letra == c) return f.base;
    char16_t d[16];
    const size_t n = plat::descompone(c, d, 16);
    if (n < 2) return c;
    for (size_t i = 1; i < n; ++i)
        // Only accents may follow the letter: what is composed otherwise stays as it is.
        if (d[i] < 0x300 || d[i] > 0x36F) return c;
    return d[0];
}

// Of the platform's maps, what leads back: the rest differs between platforms or loses a letter.
std::unique_ptr<mapas_de_unidades> hace_mapas() {
    auto bruto = std::make_unique<mapas_de_unidades>(), m = std::make_unique<mapas_de_unidades>();
    plat::mapas_de_caja(bruto->mayuscula.data(), bruto->minuscula.data());
    for (uint32_t c = 0; c < 65536; ++c) {
        const char16_t u = static_cast<char16_t>(c), may = bruto->mayuscula[c], min = bruto->minuscula[c];
        m->mayuscula[c] = bruto->minuscula[may] == u ? may : u;
        m->minuscula[c] = bruto->mayuscula[min] == u ? min : u;
        m->sin_acento[c] = base_de(u);
    }
    return m;
}

} // namespace

const mapas_de_unidades &mapas() {
    static const mapas_de_unidades &unicos = *hace_mapas().release();
    return unicos;
}

const pagina *pagina_de(uint32_t numero) {
    std::unique_ptr<pagina> nueva;
    for (std::atomic<const pagina *> &sitio : hechas) {
        const pagina *p = sitio.load(std::memory_order_acquire);
        if (p == nullptr) {
            if (nueva == nullptr) nueva = hace_pagina(numero);
            if (nueva == nullptr) return nullptr;
            // Of two threads that made it, one wins, and both use the winner's.
            if (sitio.compare_exchange_strong(p, nueva.get(), std::memory_order_acq_rel)) return nueva.release();
        }
        if (p->numero == numero) return p;
    }
    return nullptr;
}

const pagina &pagina_activa() {
    const pagina *p = activa.load(std::memory_order_acquire);
    if (p == nullptr) [[unlikely]] {
        const pagina *nueva = pagina_de(plat::pagina_ansi_del_sistema());
        // Where the page of the system cannot be made, 1252 takes its place.
        if (nueva == nullptr) nueva = pagina_de(1252);
        if (activa.compare_exchange_strong(p, nueva, std::memory_order_acq_rel)) p = nueva;
    }
    return *p;
}

const pagina &pagina_de_idioma(uint32_t idioma) {
    const pagina *p = pagina_de(unicode_pagina_ANSI_idioma(idioma));
    return p != nullptr ? *p : *pagina_de(1252);
}

} // namespace vn::texto

using namespace vn;
using namespace vn::texto;

vnbool unicode_establece_pagina_ANSI(uint32_t pagina) {
    const texto::pagina *p = pagina_de(pagina);
    if (p == nullptr) return FALSO;
    activa.store(p, std::memory_order_release);
    return CIERTO;
}

uint32_t unicode_pagina_ANSI(void) { return pagina_activa().numero; }
