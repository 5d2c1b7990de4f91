// Project files of the sample host: read whole or refused, and what is read can be told of.
#include "informe.h"
#include "monton.h"
#include "objetivo.h"
#include <cstring>

namespace {

// The library may make one run-coded array before it is known that it is too long; the host copies none that is.
constexpr uint64_t cota_de_biblioteca(size_t n) { return (uint64_t{7} << 28) + 64 * n; }
constexpr uint64_t cota_de_obra(size_t n) { return (uint64_t{1} << 20) + 64 * n; }

obra::plano plano() {
    obra::plano p;
    p.sin_importar = {{"HATCH", 3}};
    p.tipos_de_linea = {obra::texto(3, 'x')};
    obra::capa c{.nombre = obra::texto(2, 'C')};
    c.lineas = {{{0, 0}, {2, 2}}, {{0, 2}, {2, 0}}, {{5, 5}, {5, 5}}};
    c.circulos = {{{1, 2}, 3}};
    c.arcos = {{{0, 0}, 2, .5, 1.5}};
    c.elipses = {{{0, 0}, {2, 1}, -.5, 0, 3}};
    c.polilineas = {{true, {{0, 0}, {1, 0}, {1, 1}}, {0, .5, 0}}, {false, {}, {}}};
    c.rotulos = {{{1, 1}, .25, 0, obra::texto(1, 'A')}};
    c.color_lineas = {1, 256, 0x1FFFFFF};
    c.color_circulos = c.color_arcos = c.color_elipses = c.color_rotulos = {7};
    c.color_polilineas = {1, 2};
    p.capas = {c};
    return p;
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    return {fuzz::lo_que_graba([] {
        const obra::campos_t campos = {{obra::texto(1, 'a'), obra::texto(1, 'b')}};
        fuzz::exige(obra::graba_obra(fuzz::NOMBRE, plano(), obra::texto(1, 'T'), campos), "a seed is saved");
    })};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    // A report makes, once, what the library keeps of units and region.
    static const std::string primero = obra::informe_de("x", {});
    fuzz::con_fichero(datos, n, cota_de_biblioteca(n), [n] {
        obra::obra_leida o;
        std::string motivo;
        const uint64_t antes = fuzz::pedido_al_monton();
        const obra::lectura_obra r = obra::lee_obra(fuzz::NOMBRE, o, motivo);
        fuzz::exige(fuzz::pedido_al_monton() - antes <= cota_de_obra(n), "memory in proportion to the file");
        fuzz::exige((r == obra::lectura_obra::no_es_obra) == !motivo.empty(), "a refusal says which check failed");
        fuzz::exige((r == obra::lectura_obra::bien) == !o.secciones.empty(), "whole or nothing");
        if (r == obra::lectura_obra::bien) fuzz::exige(!obra::informe_de("x", o).empty(), "it is told of");
    });
    return 0;
}
