#include "rayado.h"
#include <algorithm>
#include <cmath>
#include <numeric>

namespace obra {

bool rectas_de(const familia_de_rayado &f, const extension &caja, double minimo,
               const std::function<void(Punto2D a, Punto2D b)> &da) {
    const Punto2D d = {std::cos(f.angulo), std::sin(f.angulo)}, o = f.origen;
    const double salto = f.paso.y * d.x - f.paso.x * d.y, avance = f.paso.x * d.x + f.paso.y * d.y;
    if (!std::isfinite(salto + avance + o.x + o.y) || !(std::fabs(salto) >= minimo)) return false;
    // The box along the lines and across them.
    extension a_lo_largo;
    for (const double x : {caja.xmin, caja.xmax})
        for (const double y : {caja.ymin, caja.ymax})
            a_lo_largo.anade((x - o.x) * d.x + (y - o.y) * d.y, ((y - o.y) * d.x - (x - o.x) * d.y) / salto);
    const double periodo = std::accumulate(f.trazos.begin(), f.trazos.end(), 0.);
    for (double k = std::ceil(a_lo_largo.ymin); k <= a_lo_largo.ymax; ++k) {
        double desde = a_lo_largo.xmin;
        if (periodo > 0) desde = k * avance + std::floor((desde - k * avance) / periodo) * periodo;
        const auto en = [&](double l) {
            return Punto2D{o.x + d.x * l - d.y * k * salto, o.y + d.y * l + d.x * k * salto};
        };
        da(en(desde), en(a_lo_largo.xmax));
    }
    return true;
}

} // namespace obra
