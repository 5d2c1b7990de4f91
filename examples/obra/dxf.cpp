#include "dxf.h"
#include "modelo_dxf.h"
#include "posesion.h"

namespace obra {
namespace {

// Metres in a drawing unit, by the $INSUNITS codes of DXF; no unit counts as metres, as unknown ones do. The last four
// are the foot, inch, yard and mile of surveyors in the United States.
constexpr double PIE_DE_TOPOGRAFO = 1200.0 / 3937;
// clang-format off
constexpr double METROS[] = {1,     0.0254, 0.3048, 1609.344, 0.001, 0.01, 1,   1000, 2.54e-8, 2.54e-5, 0.9144,
                             1e-10, 1e-9,   1e-6,   0.1,      10,    100,  1e9, 1.495978707e11, 9.4607304725808e15,
                             3.0856775814913673e16, PIE_DE_TOPOGRAFO, PIE_DE_TOPOGRAFO / 12, PIE_DE_TOPOGRAFO * 3,
                             PIE_DE_TOPOGRAFO * 5280};
// clang-format on

} // namespace

lectura_dxf lee_dxf(const texto &nombre, plano &p, noticias_dxf &noticias) {
    const dueno_fichero f(f_lc_fopen_seguro_u(nombre.c_str(), VNU("rb"), VN_AQUI));
    if (f == nullptr) return lectura_dxf::no_se_lee;
    modelo_dxf m;
    grupos_dxf g(f.get());
    noticias = {};
    bool con_final = false;
    const lectura_dxf r = lee_modelo(g, m, con_final);
    noticias.linea = g.linea();
    noticias.bytes = g.bytes();
    noticias.sin_final = !con_final;
    if (f_lc_ferror(f.get()) == CIERTO) return lectura_dxf::no_se_lee;
    if (r != lectura_dxf::bien) return r;
    plano nuevo;
    const bool conocida = m.unidades >= 0 && m.unidades < static_cast<int>(std::size(METROS));
    if (!conocida) noticias.unidad_ignorada = m.unidades;
    nuevo.metros_por_unidad = conocida ? METROS[m.unidades] : 1;
    if (!expande(m, g.bytes(), nuevo, noticias.visitadas)) return lectura_dxf::demasiado_grande;
    p = std::move(nuevo);
    return lectura_dxf::bien;
}

} // namespace obra
