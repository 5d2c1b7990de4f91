#define VN_MODULO "vmatr (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/numeros/vmatr.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/vornspy.h"
#define EIGEN_NO_DEBUG // its checks end the process; every size is checked here before it gets there
#include <algorithm>
// It calls operator new then, which comes to the wall, where it would throw.
#pragma push_macro("__EXCEPTIONS")
#undef __EXCEPTIONS
#include <Eigen/Dense>
#pragma pop_macro("__EXCEPTIONS")
#include <cmath>
#include <utility>

struct vmatr {
    uint32_t filas, columnas;
    double *datos;
};

namespace {

constexpr uint64_t MAXIMO_COEFICIENTES = 1u << 27;

using matriz = Eigen::MatrixXd;
using vista = Eigen::Map<matriz>;
using vista_const = Eigen::Map<const matriz>;

vista_const ve(const vmatr *m) { return {m->datos, m->filas, m->columnas}; }

void libera(vmatr *m) {
    if (m->datos != nullptr) vornspy_free_pp(&m->datos, sizeof(double));
    vornspy_free_pp(&m, sizeof(vmatr));
}
using propia = vn::dueno<libera>;

// The record before its block: one that cannot be had leaves nothing behind.
propia crea(uint32_t filas, uint32_t columnas) {
    if (!AFIRMA_TEXTO(filas > 0 && columnas > 0 && uint64_t{filas} * columnas <= MAXIMO_COEFICIENTES,
                      "filas > 0 && columnas > 0 && filas * columnas <= 134217728"))
        return nullptr;
    propia m(static_cast<vmatr *>(vornspy_calloc(1, sizeof(vmatr))));
    m->filas = filas;
    m->columnas = columnas;
    m->datos = static_cast<double *>(vornspy_reserva_seguro(size_t{filas} * columnas, sizeof(double), CIERTO, VN_AQUI));
    if (!AFIRMA_TEXTO(m->datos != nullptr, "memoria != NULL")) return nullptr;
    return m;
}

double *coeficiente(const vmatr *m, uint32_t i, uint32_t j) {
    if (!AFIRMA_NO_NULO(m) || !AFIRMA_TEXTO(i < m->filas, "i < num_filas") ||
        !AFIRMA_TEXTO(j < m->columnas, "j < num_columnas"))
        return nullptr;
    return m->datos + (size_t{j} * m->filas + i);
}

// The change of a point of the plane or of space, or of its homogeneous form, has a size that the compiler
// knows: each result is built in registers, with no more than one pass over the points.
template <int N> void producto_fijo(const vmatr *cambio, bool traspuesta, const vmatr *columnas, double *destino) {
    using cuadrada = Eigen::Matrix<double, N, N>;
    const cuadrada dado = Eigen::Map<const cuadrada>(cambio->datos);
    const cuadrada a = traspuesta ? cuadrada(dado.transpose()) : dado;
    using punto = Eigen::Matrix<double, N, 1>;
    const double *p = columnas->datos;
    for (uint32_t j = 0; j < columnas->columnas; ++j, p += N, destino += N)
        Eigen::Map<punto>{destino} = a * punto(Eigen::Map<const punto>{p});
}

void multiplica(const vmatr *cambio, bool traspuesta, const vmatr *columnas, vmatr *r) {
    if (cambio->filas == cambio->columnas && cambio->filas >= 2 && cambio->filas <= 4) {
        // A column is read before its result is written, and the change is a copy: any of the three may be
        // one.
        if (cambio->filas == 4) producto_fijo<4>(cambio, traspuesta, columnas, r->datos);
        else if (cambio->filas == 3) producto_fijo<3>(cambio, traspuesta, columnas, r->datos);
        else producto_fijo<2>(cambio, traspuesta, columnas, r->datos);
        return;
    }
    vista destino(r->datos, r->filas, r->columnas);
    // Through a matrix of its own unless `resultado` is neither of the two.
    const bool aparte = r != cambio && r != columnas;
    if (traspuesta && aparte) destino.noalias() = ve(cambio).transpose() * ve(columnas);
    else if (traspuesta) destino = matriz(ve(cambio).transpose() * ve(columnas));
    else if (aparte) destino.noalias() = ve(cambio) * ve(columnas);
    else destino = matriz(ve(cambio) * ve(columnas));
}

void sobre_buffer(const vmatr *cambio, bool traspuesta, const vmatr *columnas, vmatr *resultado) {
    if (!EXIGE(cambio, columnas, resultado)) return;
    const uint32_t comun = traspuesta ? cambio->filas : cambio->columnas;
    const uint32_t filas = traspuesta ? cambio->columnas : cambio->filas;
    if (!AFIRMA_TEXTO(comun == columnas->filas, "num_columnas_cambio == num_filas_columnas") ||
        !AFIRMA_TEXTO(resultado->filas == filas && resultado->columnas == columnas->columnas,
                      "num_filas == num_filas_cambio && num_columnas == num_columnas_columnas"))
        return;
    multiplica(cambio, traspuesta, columnas, resultado);
}

// Scales of the rows or columns, powers of two, that bring the largest coefficient of each to about 1.
Eigen::VectorXd escalas(const Eigen::VectorXd &maximos) {
    return maximos.unaryExpr(
        [](double x) { return x > 0. ? std::ldexp(1., std::clamp(-std::ilogb(x), -1000, 1000)) : 1.; });
}

} // namespace

vmatr *vmatr_crea_matriz_nula(uint32_t filas, uint32_t columnas) { return crea(filas, columnas).release(); }

vmatr *vmatr_crea_matriz_identidad(uint32_t n) {
    propia m = crea(n, n);
    if (m != nullptr)
        for (uint32_t i = 0; i < n; ++i) m->datos[size_t{i} * n + i] = 1.;
    return m.release();
}

void vmatr_destruir_matriz(vmatr **m) {
    if (!AFIRMA_NO_NULO(m) || !AFIRMA_TEXTO(*m != nullptr, "(*m) != NULL")) return;
    const propia libre(std::exchange(*m, nullptr));
}

uint32_t vmatr_num_filas_matriz(const vmatr *m) { return AFIRMA_NO_NULO(m) ? m->filas : 0; }

uint32_t vmatr_num_columnas_matriz(const vmatr *m) { return AFIRMA_NO_NULO(m) ? m->columnas : 0; }

double vmatr_get_coef_matriz(const vmatr *m, uint32_t i, uint32_t j) {
    const double *c = coeficiente(m, i, j);
    return c != nullptr ? *c : 0.;
}

void vmatr_set_coef_matriz(vmatr *m, uint32_t i, uint32_t j, double v) {
    if (double *c = coeficiente(m, i, j)) *c = v;
}

double *vmatr_get_buffer_matriz(vmatr *m) { return AFIRMA_NO_NULO(m) ? m->datos : nullptr; }

vmatr *vmatr_matriz_inversa(const vmatr *m) {
    if (!AFIRMA_NO_NULO(m) || !AFIRMA_TEXTO(m->filas == m->columnas, "num_filas == num_columnas")) return nullptr;
    // Pivots are chosen by comparisons, which mean nothing among values that are not finite.
    if (!AFIRMA_TEXTO(ve(m).allFinite(), "es_matriz_regular == CIERTO")) return nullptr;
    // Rows and columns of one size first, so that what counts as zero is the same in all. The inverse of R M
    // C is C^-1 M^-1 R^-1.
    const Eigen::VectorXd filas = escalas(ve(m).cwiseAbs().rowwise().maxCoeff());
    matriz a = filas.asDiagonal() * ve(m);
    const Eigen::VectorXd columnas = escalas(a.cwiseAbs().colwise().maxCoeff().transpose());
    a = matriz(a * columnas.asDiagonal());
    const Eigen::FullPivLU<matriz> lu(a);
    if (!AFIRMA_TEXTO(lu.isInvertible(), "es_matriz_regular == CIERTO")) return nullptr;
    propia r = crea(m->filas, m->columnas);
    if (r == nullptr) return nullptr;
    // The scales of a rotation with a far origin leave its rows almost alike; a step of Newton's brings the digits
    // back.
    const matriz x = lu.inverse(), resto = matriz::Identity(a.rows(), a.cols()) - a * x;
    vista(r->datos, r->filas, r->columnas) = columnas.asDiagonal() * (x + x * resto) * filas.asDiagonal();
    return r.release();
}

vmatr *vmatr_producto_cambio_x_columnas(const vmatr *cambio, const vmatr *columnas) {
    if (!EXIGE(cambio, columnas) ||
        !AFIRMA_TEXTO(cambio->columnas == columnas->filas, "num_columnas_cambio == num_filas_columnas"))
        return nullptr;
    propia r = crea(cambio->filas, columnas->columnas);
    if (r != nullptr) multiplica(cambio, false, columnas, r.get());
    return r.release();
}

void vmatr_producto_sobre_buffer_cambio_x_columnas(const vmatr *cambio, const vmatr *columnas, vmatr *resultado) {
    sobre_buffer(cambio, false, columnas, resultado);
}

void vmatr_producto_sobre_buffer_cambio_trasp_x_columnas(const vmatr *cambio, const vmatr *columnas, vmatr *resultado) {
    sobre_buffer(cambio, true, columnas, resultado);
}
