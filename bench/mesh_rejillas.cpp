// A grid of a million vertices with its normals, beside loops over plain arrays: central differences, the limit, and
// the sum over the triangles about each vertex. The mesh's own arrays and its strips are in the time of ours alone.
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/dueno.hpp"
#include "mesh.h"
#include "mesh/vornmesh_genera.h"
#include "mesh/vornmesh_int.h"
#include <algorithm>
#include <cmath>
#include <vector>

namespace bench {

namespace {

constexpr int LADO = 1000;
using namespace vn::numeros;

std::vector<Punto3D> superficie(Punto3D o) {
    std::vector<Punto3D> p;
    for (int j = 0; j < LADO; ++j)
        for (int i = 0; i < LADO; ++i)
            p.push_back({o.x + i, o.y + j, o.z + 20. * std::sin(i * .02) * std::cos(j * .03)});
    return p;
}

void por_diferencias(const std::vector<Punto3D> &p, std::vector<Punto3D> &n) {
    for (int j = 0; j < LADO; ++j)
        for (int i = 0; i < LADO; ++i) {
            const int l = std::max(i - 1, 0), r = std::min(i + 1, LADO - 1), d = std::max(j - 1, 0),
                      u = std::min(j + 1, LADO - 1);
            const Punto3D v = vectorial(p[j * LADO + r] - p[j * LADO + l], p[u * LADO + i] - p[d * LADO + i]);
            n[j * LADO + i] = v / std::sqrt(cuadrado(v));
        }
}

void por_triangulos(const std::vector<Punto3D> &p, const std::vector<uint32_t> &t, std::vector<Punto3D> &n) {
    std::ranges::fill(n, Punto3D{});
    for (size_t i = 0; i < t.size(); i += 3) {
        const Punto3D v = vectorial(p[t[i + 1]] - p[t[i]], p[t[i + 2]] - p[t[i]]);
        for (int k = 0; k < 3; ++k) n[t[i + k]] = n[t[i + k]] + v;
    }
    for (Punto3D &v : n) v = v / std::sqrt(cuadrado(v));
}

} // namespace

int rejillas(int pasadas) {
    int fuera = 0;
    for (const auto &[titulo, o] : {std::pair<const char *, Punto3D>{"grid with normals, a vertex", {}},
                                    {"grid with normals at survey coordinates, a vertex", {5e5, 4.5e6, 600}}}) {
        const std::vector<Punto3D> p = superficie(o);
        std::vector<Punto3D> n(p.size()), suma(p.size());
        std::vector<uint32_t> t;
        for (int j = 0; j + 1 < LADO; ++j)
            for (int i = 0; i + 1 < LADO; ++i) {
                const auto a = static_cast<uint32_t>(j * LADO + i), c = a + LADO;
                for (const uint32_t k : {c, a, c + 1, a, a + 1, c + 1}) t.push_back(k);
            }
        arrPuntero *filas = arr_CreaPunteroConTipo(0);
        for (int j = 0; j < LADO; ++j) {
            arrPunto3D *fila = arr_CreaPunto3D(LADO);
            std::copy_n(p.begin() + j * LADO, LADO, arr_GetBufferPunto3D(fila));
            arr_AppendPunteroST(filas, fila, arrPunto3D);
        }
        vn::mesh_propia m;
        const auto nuestro = [&] { m.reset(vornmesh_genera_grid3d(filas)); };
        nuestro();
        por_triangulos(p, t, suma);
        double error = 0.;
        for (size_t i = 0; i < p.size(); ++i)
            error = std::max(error, modulo(suma[i] - arr_GetBufferPunto3D(m->normales.get())[i]));
        debe(error < .05, "normals of the grid"); // one sums by area, the other does not
        fuera +=
            mide(titulo,
                 {{"grid3d", LADO * LADO, nuestro},
                  {"limit: central differences", LADO * LADO, [&] { por_diferencias(p, n); }},
                  {"sum over indexed triangles", LADO * LADO, [&] { por_triangulos(p, t, n); }}},
                 {{"grid3d", "limit: central differences", 0.}, {"grid3d", "sum over indexed triangles", 0.}}, pasadas);
        arr_DestruyeEstructurasArrayST(&filas, arrPunto3D, arr_DestruyePunto3D);
    }
    return fuera;
}

} // namespace bench
