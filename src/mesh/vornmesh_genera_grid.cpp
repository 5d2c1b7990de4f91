#define VN_MODULO "vornmesh (NUCLEOS.DLL)"
#include "mesh/vornmesh_genera.h"
#include "mesh/vornmesh_monta_priv.h"
#include <utility>

// Grids of rows of points.
using namespace vn;

namespace {

// A sum of normals has no direction.
constexpr double SIN_NORMAL = 1e-06;

struct rejilla {
    std::vector<Punto3D> puntos;
    uint32_t filas = 0, columnas = 0;
    const Punto3D *fila(uint32_t r) const { return puntos.data() + size_t{r} * columnas; }
};

// The rows one after another; none if they are not a grid, which is reported.
bool lee_filas(const arrPuntero *lista, rejilla &g) {
    const auto filas = listas::tramo(lista);
    const size_t num_filas = filas.size();
    if (!AFIRMA(num_filas > 0)) return false;
    uint32_t num_columnas = 0;
    for (size_t r = 0; r < num_filas; ++r) {
        const auto *fila = static_cast<const arrPunto3D *>(filas[r]);
        if (!AFIRMA_NO_NULO(fila)) return false;
        const uint32_t num_columnas_comprobacion = arr_NumElemsPunto3D(fila);
        if (r == 0) num_columnas = num_columnas_comprobacion;
        if (!AFIRMA(num_columnas == num_columnas_comprobacion)) return false;
    }
    const uint64_t num_puntos = uint64_t{num_columnas} * num_filas;
    if (!AFIRMA_TEXTO(num_columnas > 0, "num_columnas_loc > 0") ||
        !AFIRMA_TEXTO(num_puntos <= UINT32_MAX, "num_filas_loc > 0"))
        return false;
    g.filas = static_cast<uint32_t>(num_filas);
    g.columnas = num_columnas;
    g.puntos.reserve(num_puntos);
    for (const void *fila : filas) {
        const auto p = puntos_de(static_cast<const arrPunto3D *>(fila));
        g.puntos.insert(g.puntos.end(), p.begin(), p.end());
    }
    return AFIRMA_TEXTO(g.puntos.size() == num_puntos, "num_puntos == num_filas_loc * num_columnas_loc");
}

// At each point, the mean of the flat normals of the triangles that have it; upwards where they cancel out. Each cell
// is cut as its strip is: (r + 1, c), (r, c), (r + 1, c + 1) and (r, c), (r, c + 1), (r + 1, c + 1).
std::vector<Punto3D> normales_de(const rejilla &g, bool cerrada) {
    std::vector<Punto3D> normales(g.puntos.size());
    const uint32_t celdas = g.columnas < 2 ? 0 : cerrada ? g.columnas : g.columnas - 1;
    for (uint32_t r = 0; r + 1 < g.filas; ++r) {
        const Punto3D *p = g.fila(r), *q = g.fila(r + 1);
        Punto3D *n = normales.data() + size_t{r} * g.columnas, *m = n + g.columnas;
        for (uint32_t c = 0; c < celdas; ++c) {
            const uint32_t d = c + 1 < g.columnas ? c + 1 : 0;
            const Punto3D n1 = normal_plana(q[c], p[c], q[d]), n2 = normal_plana(p[c], p[d], q[d]), suma = n1 + n2;
            n[c] = n[c] + suma, m[d] = m[d] + suma;
            m[c] = m[c] + n1, n[d] = n[d] + n2;
        }
    }
    for (Punto3D &n : normales) {
        const double l = numeros::modulo(n);
        n = l > SIN_NORMAL ? n / l : HACIA_ARRIBA;
    }
    return normales;
}

mesh *genera(const arrPuntero *filas, bool cerrada, bool tapa_inicial, bool tapa_final) {
    rejilla g;
    if (!AFIRMA_NO_NULO(filas) || !lee_filas(filas, g)) return nullptr;
    // The rows of the caps, before the grid takes its points over.
    const auto contorno = [&](uint32_t r, bool al_reves) {
        std::vector<Punto3D> puntos(g.fila(r), g.fila(r) + g.columnas);
        if (al_reves) std::reverse(puntos.begin(), puntos.end());
        contornos_t c;
        c.anade(puntos, normal_de_contorno(puntos));
        return c;
    };
    std::vector<contornos_t> tapas;
    if (tapa_inicial) tapas.push_back(contorno(0, true));
    if (tapa_final) tapas.push_back(contorno(g.filas - 1, false));
    std::vector<Punto3D> normales = normales_de(g, cerrada);
    malla_suelta malla;
    malla.empieza(std::move(g.puntos), std::move(normales));
    for (uint32_t r = 0; r + 1 < g.filas && g.columnas > 1; ++r) {
        malla.caras.abre(VPLAN_TIRA_DE_QUADS);
        for (uint32_t c = 0; c < g.columnas + (cerrada ? 1 : 0); ++c) {
            const uint32_t k = c < g.columnas ? c : 0;
            malla.caras.indice((r + 1) * g.columnas + k);
            malla.caras.indice(r * g.columnas + k);
        }
    }
    for (const contornos_t &tapa : tapas) malla.contornos(tapa);
    return malla.termina().release();
}

} // namespace

mesh *vornmesh_genera_grid3d(const arrPuntero *filas) { return genera(filas, false, false, false); }

mesh *vornmesh_genera_grid3d_cerrado(const arrPuntero *filas, vnbool tapa_inicial, vnbool tapa_final) {
    if (!AFIRMA_LOGICO(tapa_inicial) || !AFIRMA_LOGICO(tapa_final)) return nullptr;
    return genera(filas, true, tapa_inicial == CIERTO, tapa_final == CIERTO);
}
