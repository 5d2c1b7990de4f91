// A million points through a kept matrix: the array form, the same into another matrix, and one exported call
// a point.
#include "foundation/numeros/vmatr.h"
#include "geometry.h"
#include <cmath>
#include <Eigen/Dense>
#include <vector>

namespace bench {

namespace {

constexpr uint32_t N = 1000000;

struct datos {
    Eigen::Matrix4d cambio;
    Eigen::Matrix<double, 4, Eigen::Dynamic> puntos, resultado;
    vmatr *mi_cambio, *mis_puntos, *mi_resultado;

    datos() : puntos(4, N), resultado(4, N) {
        const double c = std::cos(0.3), s = std::sin(0.3);
        cambio << c, -s, 0., 10., s, c, 0., -5., 0., 0., 1., 2., 0., 0., 0., 1.;
        azar a(7);
        for (uint32_t j = 0; j < N; ++j)
            puntos.col(j) << a.entre(-1e3, 1e3), a.entre(-1e3, 1e3), a.entre(-1e3, 1e3), 1.;
        mi_cambio = vmatr_crea_matriz_identidad(4);
        mis_puntos = vmatr_crea_matriz_nula(4, N);
        mi_resultado = vmatr_crea_matriz_nula(4, N);
        Eigen::Map<Eigen::Matrix4d>(vmatr_get_buffer_matriz(mi_cambio)) = cambio;
        Eigen::Map<Eigen::Matrix4Xd>(vmatr_get_buffer_matriz(mis_puntos), 4, N) = puntos;
    }
    ~datos() {
        for (vmatr **m : {&mi_cambio, &mis_puntos, &mi_resultado}) vmatr_destruir_matriz(m);
    }
    datos(const datos &) = delete;
    datos &operator=(const datos &) = delete;
    double error() const {
        return (Eigen::Map<const Eigen::Matrix4Xd>(vmatr_get_buffer_matriz(mi_resultado), 4, N) - resultado)
            .cwiseAbs()
            .maxCoeff();
    }
};

} // namespace

int matrices(int pasadas) {
    datos d;
    const auto de_eigen = [&d] { d.resultado.noalias() = d.cambio * d.puntos; };
    // What a loop over fixed-size vectors makes of it, the fastest that Eigen has here.
    const auto por_puntos = [&d] {
        const Eigen::Matrix4d m = d.cambio;
        for (uint32_t j = 0; j < N; ++j) d.resultado.col(j).noalias() = m * Eigen::Vector4d(d.puntos.col(j));
    };
    const auto nuestro = [&d] {
        vmatr_producto_sobre_buffer_cambio_x_columnas(d.mi_cambio, d.mis_puntos, d.mi_resultado);
    };
    const auto traspuesto = [&d] {
        vmatr_producto_sobre_buffer_cambio_trasp_x_columnas(d.mi_cambio, d.mis_puntos, d.mi_resultado);
    };
    de_eigen();
    nuestro();
    debe(d.error() < 1e-9, "points through a matrix");
    return mide("points through a kept matrix",
                {{"array form", N, nuestro},
                 {"array form, transposed", N, traspuesto},
                 {"Eigen, matrix by matrix", N, de_eigen},
                 {"Eigen, matrix by vector", N, por_puntos}},
                {{"array form", "Eigen, matrix by matrix", 1.3},
                 {"array form", "Eigen, matrix by vector", 1.3},
                 {"array form, transposed", "Eigen, matrix by vector", 1.3}},
                pasadas);
}

} // namespace bench
