#include "rayado.h"
#include <algorithm>
#include <cmath>
#include <numeric>

namespace obra {
namespace {

double periodo_de(const std::vector<double> &trazos) { return std::accumulate(trazos.begin(), trazos.end(), 0.); }

} // namespace

std::vector<familia_de_rayado> familias_de(const arrDouble *angulos, const arrPunto2D *origenes,
                                           const arrPunto2D *pasos, const arrPuntero *trazos, double minimo) {
    const auto a = numeros_de(angulos);
    const auto o = puntos_de(origenes), p = puntos_de(pasos);
    std::vector<familia_de_rayado> v;
    for (uint32_t i = 0; i < std::min({a.size(), o.size(), p.size()}); ++i) {
        if (!son_finitos(a[i], o[i].x, o[i].y, p[i].x, p[i].y)) continue;
        v.push_back({a[i], o[i], p[i], {}});
        if (trazos == nullptr || i >= arr_NumElemsPuntero(trazos)) continue;
        std::vector<double> suyos = por_turnos(numeros_de(arr_GetPunteroST(trazos, i, arrDouble)));
        if (periodo_de(suyos) >= minimo) v.back().trazos = std::move(suyos);
    }
    return v;
}

bool rectas_de(const familia_de_rayado &f, const extension &caja, double minimo,
               const std::function<void(Punto2D a, Punto2D b)> &da) {
    const Punto2D d = {std::cos(f.angulo), std::sin(f.angulo)}, o = f.origen;
    const double salto = f.paso.y * d.x - f.paso.x * d.y, avance = f.paso.x * d.x + f.paso.y * d.y;
    if (!(std::fabs(salto) >= minimo)) return false;
    // The box along the lines and across them.
    extension a_lo_largo;
    for (const double x : {caja.xmin, caja.xmax})
        for (const double y : {caja.ymin, caja.ymax})
            a_lo_largo.anade((x - o.x) * d.x + (y - o.y) * d.y, ((y - o.y) * d.x - (x - o.x) * d.y) / salto);
    const double periodo = periodo_de(f.trazos);
    // So far away that a line and the next are one number.
    constexpr double MUCHAS = 1e12;
    if (!(std::fabs(a_lo_largo.ymin) < MUCHAS && std::fabs(a_lo_largo.ymax) < MUCHAS)) return true;
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
