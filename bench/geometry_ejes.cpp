// Axes out of a list of points, beside a bare pass that finds the plane's distance and the turn at each point; then
// lists on which the search has no luck.
#include "foundation/listas/arr.h"
#include "foundation/numeros/vector_int.h"
#include "geometry.h"
#include "geometry/ejes2d.h"
#include <chrono>
#include <cmath>

namespace bench {
namespace {

constexpr uint32_t N = 1000;

arrPunto3D *circulo = nullptr;

void prepara() {
    circulo = arr_CreaPunto3D(0);
    for (uint32_t i = 0; i < N; ++i) {
        const double a = vn::numeros::VUELTA * i / N, x = 50. * std::cos(a), y = 50. * std::sin(a);
        arr_AppendPunto3D(circulo, x + 3., .8 * y, .6 * y - 7.);
    }
}

// Written plainly, with the plane given.
void pasada() {
    const Punto3D *p = arr_GetBufferConstPunto3D(circulo);
    const double wx = 0., wy = -.6, wz = .8;
    double sx = 0., sy = 0., sz = 0.;
    int votos = 0, fuera = 0;
    for (uint32_t j = 0; j < N; ++j) {
        const Punto3D &o = p[0], &q = p[j], &antes = p[j > 0 ? j - 1 : N - 1], &luego = p[j + 1 < N ? j + 1 : 0];
        if (std::fabs((q.x - o.x) * wx + (q.y - o.y) * wy + (q.z - o.z) * wz) > .0005) ++fuera;
        const double ax = q.x - antes.x, ay = q.y - antes.y, az = q.z - antes.z;
        const double bx = luego.x - q.x, by = luego.y - q.y, bz = luego.z - q.z;
        const double c = (ay * bz - az * by) * wx + (az * bx - ax * bz) * wy + (ax * by - ay * bx) * wz;
        if (std::fabs(c) > 1e-9) votos += c > 0. ? 1 : -1;
        sx += q.x, sy += q.y, sz += q.z;
    }
    debe(fuera == 0 && votos == static_cast<int>(N) && std::fabs(sx / N - 3.) < 1e-9 &&
             std::fabs(sy) + std::fabs(sz / N + 7.) < 1e-9,
         "bare pass");
}

void ejes() {
    double x, y, z, ux, uy, uz, vx, vy, vz;
    debe(ejes2d_punto3D_forman_ejes(circulo, &x, &y, &z, &ux, &uy, &uz, &vx, &vy, &vz) == CIERTO &&
             std::fabs(ux * vy - uy * vx - .8) < 1e-9,
         "axes");
}

// A hundred thousand points that form no axes, seconds each: reported only.
void sin_suerte() {
    constexpr uint32_t MUCHOS = 100000;
    azar a(9);
    for (const char *que : {"on a line", "in one place but two", "hardly an arc", "in no plane"}) {
        arrPunto3D *p = arr_CreaPunto3D(0);
        for (uint32_t i = 0; i < MUCHOS; ++i) {
            const double t = static_cast<double>(i) / MUCHOS;
            Punto3D q{3. + t, 5. + .7 * t, 8. - .3 * t};
            if (que[3] == 'o' && que[0] == 'i') q = i % 50000 == 7 ? Punto3D{1., 2., i * 1e-5} : Punto3D{};
            if (que[0] == 'h') q.x += 3e-5 * t * (1. - t), q.y += 2e-5 * t * t * t;
            if (que[3] == 'n') q = {a.entre(0., 1.), a.entre(0., 1.), a.entre(0., 1.)};
            arr_AppendPunto3D(p, q.x, q.y, q.z);
        }
        uint32_t indice;
        const auto antes = std::chrono::steady_clock::now();
        ejes2d_punto3D_forman_ejes_con_precision_ex2(p, 1e-5, 1e-7, FALSO, nullptr, nullptr, nullptr, nullptr, nullptr,
                                                     nullptr, nullptr, nullptr, nullptr, &indice);
        const std::chrono::duration<double> s = std::chrono::steady_clock::now() - antes;
        std::printf("  axes of %u points %s: %.3f s\n", MUCHOS, que, s.count());
        arr_DestruyePunto3D(&p);
    }
}

} // namespace

int ejes2d_de_puntos(int pasadas) {
    prepara();
    const auto veces = [](void (*f)()) {
        return [f] {
            for (int i = 0; i < 1000; ++i) f();
        };
    };
    const int fuera = mide("axes from 1,000 points, per point",
                           {{"bare pass", 1000. * N, veces(pasada)}, {"nucleos", 1000. * N, veces(ejes)}},
                           {{"nucleos", "bare pass", 3.}}, pasadas);
    sin_suerte();
    arr_DestruyePunto3D(&circulo);
    return fuera;
}

} // namespace bench
