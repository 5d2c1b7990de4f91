#include "foundation/numeros/vmatr.h"
#include "foundation/suelo/dueno.hpp"
#include "propiedades.h"
#include <array>

namespace {

using matriz = vn::dueno<vmatr_destruir_matriz>;

template <class F> matriz hecha(uint32_t filas, uint32_t columnas, F &&f) {
    matriz m(vmatr_crea_matriz_nula(filas, columnas));
    for (uint32_t i = 0; i < filas; ++i)
        for (uint32_t j = 0; j < columnas; ++j) vmatr_set_coef_matriz(m.get(), i, j, f(i, j));
    return m;
}

double en(const matriz &m, uint32_t i, uint32_t j) { return vmatr_get_coef_matriz(m.get(), i, j); }
matriz copia(const matriz &m) {
    return hecha(vmatr_num_filas_matriz(m.get()), vmatr_num_columnas_matriz(m.get()),
                 [&m](uint32_t i, uint32_t j) { return en(m, i, j); });
}

// The largest difference from what the sums of products give, with the first transposed if asked.
double error_de_producto(const matriz &r, const matriz &a, const matriz &b, bool traspuesta = false) {
    double error = 0.;
    for (uint32_t i = 0; i < vmatr_num_filas_matriz(r.get()); ++i)
        for (uint32_t j = 0; j < vmatr_num_columnas_matriz(r.get()); ++j) {
            double suma = 0.;
            for (uint32_t k = 0; k < vmatr_num_filas_matriz(b.get()); ++k)
                suma += (traspuesta ? en(a, k, i) : en(a, i, k)) * en(b, k, j);
            error = std::max(error, std::fabs(en(r, i, j) - suma));
        }
    return error;
}

} // namespace

// The sizes that have a road of their own and those on either side of them.
PRUEBA(vmatr, los_productos_son_las_sumas_de_productos_tambien_sobre_si_mismos) {
    vn::azar a(11);
    vn::huella h;
    const auto al_azar = [&](uint32_t, uint32_t) { return a.entre(-10., 10.); };
    for (uint32_t n = 1; n <= 6; ++n)
        for (uint32_t m = 1; m <= 6; ++m)
            for (uint32_t c = 1; c <= 5; c += 2) {
                const matriz cambio = hecha(n, m, al_azar), columnas = hecha(m, c, al_azar),
                             otras = hecha(n, c, al_azar);
                const matriz r(vmatr_producto_cambio_x_columnas(cambio.get(), columnas.get())),
                    buf = hecha(n, c, al_azar), tras = hecha(m, c, al_azar);
                vmatr_producto_sobre_buffer_cambio_x_columnas(cambio.get(), columnas.get(), buf.get());
                vmatr_producto_sobre_buffer_cambio_trasp_x_columnas(cambio.get(), otras.get(), tras.get());
                ASSERT_LT(error_de_producto(r, cambio, columnas) + error_de_producto(buf, cambio, columnas) +
                              error_de_producto(tras, cambio, otras, true),
                          1e-11);
                for (uint32_t i = 0; i < n; ++i) h << en(r, i, c - 1) << en(buf, i, 0);
                if (n != m) continue;
                const matriz antes = copia(columnas), cambio_antes = copia(cambio);
                vmatr_producto_sobre_buffer_cambio_x_columnas(cambio.get(), columnas.get(), columnas.get());
                vmatr_producto_sobre_buffer_cambio_trasp_x_columnas(cambio.get(), cambio_antes.get(), cambio.get());
                ASSERT_LT(error_de_producto(columnas, cambio_antes, antes) +
                              error_de_producto(cambio, cambio_antes, cambio_antes, true),
                          1e-11);
            }
    EXPECT_EQ(h(), 7258111029976417792u);
}

PRUEBA(vmatr, la_inversa_por_la_matriz_es_la_identidad_aunque_las_escalas_disten_mucho) {
    vn::azar a(12);
    for (int caso = 0; caso < 10000; ++caso) {
        const uint32_t n = 1 + a.entero(5);
        // A well-conditioned matrix, then rows and columns of scales as far apart as millions of metres and microns.
        double filas[6], columnas[6];
        for (double *e : {filas, columnas})
            for (uint32_t i = 0; i < n; ++i) e[i] = std::ldexp(1., static_cast<int>(a.entero(80)) - 40);
        const matriz m = hecha(n, n, [&](uint32_t i, uint32_t j) {
            return filas[i] * columnas[j] * ((a.moneda() ? -1. : 1.) * a.entre(0.2, 1.) + (i == j ? 6. : 0.));
        });
        const matriz inversa(vmatr_matriz_inversa(m.get()));
        ASSERT_NE(inversa, nullptr);
        const matriz uno(vmatr_producto_cambio_x_columnas(m.get(), inversa.get()));
        for (uint32_t i = 0; i < n; ++i)
            for (uint32_t j = 0; j < n; ++j)
                ASSERT_NEAR(en(uno, i, j) * filas[j] / filas[i], i == j ? 1. : 0., 1e-12) << caso;
    }
}

PRUEBA(vmatr, lo_que_no_puede_ser_se_informa_y_no_cambia_nada) {
    const matriz m = hecha(2, 3, [](uint32_t i, uint32_t j) { return 10. * i + j; }),
                 corta(vmatr_crea_matriz_nula(3, 2));
    EXPECT_EQ(vmatr_get_buffer_matriz(m.get())[1 * 2 + 1], 11.); // by columns
    EXPECT_EQ(ESPERA_INFORME("i < num_filas", en(m, 2, 0)), 0.);
    EXPECT_EQ(ESPERA_INFORME("j < num_columnas", en(m, 0, 3)), 0.);
    ESPERA_INFORME("i < num_filas", vmatr_set_coef_matriz(m.get(), UINT32_MAX, 0, 5.));
    EXPECT_EQ(ESPERA_INFORME("num_filas == num_columnas", vmatr_matriz_inversa(m.get())), nullptr);
    EXPECT_EQ(
        ESPERA_INFORME("num_columnas_cambio == num_filas_columnas", vmatr_producto_cambio_x_columnas(m.get(), m.get())),
        nullptr);
    ESPERA_INFORME("num_filas == num_filas_cambio && num_columnas == num_columnas_columnas",
                   vmatr_producto_sobre_buffer_cambio_trasp_x_columnas(m.get(), m.get(), corta.get()));
    for (const std::pair<uint32_t, uint32_t> &t : {std::pair{0u, 3u}, {1u << 16, 1u << 16}, {11586u, 11586u}})
        EXPECT_EQ(ESPERA_INFORME("filas > 0 && columnas > 0 && filas * columnas <= 134217728",
                                 vmatr_crea_matriz_nula(t.first, t.second)),
                  nullptr);
    // A row that is another's, a column of zeros, not a number, an infinity.
    for (const std::array<double, 4> &f : {std::array{1., 2., 0.5, 1.},
                                           {1e-30, 0., 1e-30, 0.},
                                           {1., vn::NAN_, 0., 1.},
                                           {vn::INF, 0., 0., 1.},
                                           {0., 0., 0., 0.}}) {
        const matriz mala = hecha(2, 2, [&](uint32_t i, uint32_t j) { return f[2 * i + j]; });
        EXPECT_EQ(ESPERA_INFORME("es_matriz_regular == CIERTO", vmatr_matriz_inversa(mala.get())), nullptr);
    }
}
