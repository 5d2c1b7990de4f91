// Triangulation: a star of 10,000 vertices with 100 holes, and 10,000 small U shapes, beside GLU with one tessellator
// kept, which hands over indices and makes no mesh.
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/dueno.hpp"
#include "mesh.h"
#include "mesh/vornmesh_genera.h"
#include <array>
#include <cmath>
#include <GL/glu.h>
#include <vector>

namespace bench {

namespace {

using anillo = std::vector<Punto3D>;
using figura = std::vector<anillo>;

figura estrella(int n) {
    figura f(1);
    for (int i = 0; i < n; ++i) {
        const double t = vn::numeros::VUELTA * i / n, r = i % 2 == 1 ? 800. : 1000.;
        f[0].push_back({r * std::cos(t), r * std::sin(t), 0.});
    }
    for (int i = 0; i < 100; ++i) {
        const double x = -450. + 100. * (i % 10), y = -450. + 100. * (i / 10), h = 20.;
        f.push_back({{x - h, y - h, 0.}, {x - h, y + h, 0.}, {x + h, y + h, 0.}, {x + h, y - h, 0.}});
    }
    return f;
}

std::vector<figura> ues() {
    constexpr double U[8][2] = {{0, 0}, {3, 0}, {3, 3}, {2, 3}, {2, 1}, {1, 1}, {1, 3}, {0, 3}};
    azar a(8);
    std::vector<figura> v;
    for (int i = 0; i < 10000; ++i) {
        const double t = a.entre(0., 6.28), s = a.entre(.5, 5.), x = a.entre(-100., 100.), y = a.entre(-100., 100.);
        figura f(1);
        for (const auto &u : U)
            f[0].push_back({x + s * (u[0] * std::cos(t) - u[1] * std::sin(t)),
                            y + s * (u[0] * std::sin(t) + u[1] * std::cos(t)), 0.});
        v.push_back(f);
    }
    return v;
}

// The tessellator alone, kept.
class glu {
  public:
    glu() {
        const auto pon = [this](GLenum cual, auto *f) { gluTessCallback(t_, cual, reinterpret_cast<void (*)()>(f)); };
        pon(
            GLU_TESS_BEGIN_DATA, +[](GLenum, void *) {});
        pon(
            GLU_TESS_EDGE_FLAG_DATA, +[](GLboolean, void *) {});
        pon(
            GLU_TESS_VERTEX_DATA, +[](void *v, void *g) { static_cast<glu *>(g)->indices.push_back(v); });
        pon(
            GLU_TESS_COMBINE_DATA, +[](GLdouble *, void **v, GLfloat *, void **nuevo, void *) { *nuevo = v[0]; });
    }
    ~glu() { gluDeleteTess(t_); }
    glu(const glu &) = delete;
    glu &operator=(const glu &) = delete;
    size_t corre(const figura &f) {
        indices.clear();
        gluTessBeginPolygon(t_, this);
        for (const anillo &r : f) {
            gluTessBeginContour(t_);
            for (const Punto3D &p : r) {
                GLdouble c[3] = {p.x, p.y, p.z};
                gluTessVertex(t_, c, const_cast<Punto3D *>(&p));
            }
            gluTessEndContour(t_);
        }
        gluTessEndPolygon(t_);
        return indices.size() / 3;
    }
    std::vector<void *> indices;

  private:
    GLUtesselator *t_ = gluNewTess();
};

void destruye_lista(arrPuntero *a) { arr_DestruyeEstructurasArrayST(&a, arrPunto3D, arr_DestruyePunto3D); }
using lista = vn::dueno<destruye_lista>;
lista lista_de(const figura &f) {
    lista l(arr_CreaPunteroConTipo(0));
    for (const anillo &r : f) {
        arrPunto3D *a = arr_CreaPunto3D(0);
        for (const Punto3D &p : r) arr_AppendPunto3D(a, p.x, p.y, p.z);
        arr_AppendPunteroST(l.get(), a, arrPunto3D);
    }
    return l;
}
using malla = vn::dueno<vornmesh_destruye>;
void cuenta_triangulo(size_t *n, uint32_t, uint32_t, uint32_t) { ++*n; }
void cuenta_quad(size_t *n, uint32_t, uint32_t, uint32_t, uint32_t) { *n += 2; }
size_t triangulos(const malla &m) {
    size_t n = 0;
    vornmesh_recorre_mesh_con_indices(m.get(), size_t, &n, cuenta_triangulo, cuenta_quad);
    return n;
}

} // namespace

int contornos(int pasadas) {
    constexpr double TRIANGULOS = 10598;
    const figura f = estrella(10000);
    const lista l = lista_de(f);
    glu g;
    size_t n = 0;
    debe(g.corre(f) == TRIANGULOS && triangulos(malla(vornmesh_genera_contorno(l.get()))) == TRIANGULOS,
         "triangles of the star");
    int fuera = mide("star of 10,000 with 100 holes, a triangle",
                     {{"contour", TRIANGULOS, [&] { n += malla(vornmesh_genera_contorno(l.get())) != nullptr; }},
                      {"GLU alone", TRIANGULOS, [&] { n += g.corre(f); }}},
                     {{"contour", "GLU alone", 1.1}}, pasadas);

    const std::vector<figura> u = ues();
    std::vector<lista> listas;
    lista todas(arr_CreaPunteroConTipo(0));
    for (const figura &x : u) {
        listas.push_back(lista_de(x));
        arr_AppendPunteroST(todas.get(), arr_CopiaPunto3D(arr_GetPunteroST(listas.back().get(), 0, arrPunto3D)),
                            arrPunto3D);
    }
    debe(triangulos(malla(vornmesh_genera_contorno(listas[0].get()))) == 6, "triangles of a U");
    const auto cada_una = [&](auto genera) {
        return [&n, &listas, genera] {
            for (const lista &x : listas) n += malla(genera(x.get())) != nullptr;
        };
    };
    fuera += mide("10,000 U shapes, a triangle",
                  {{"a mesh of each, vertices as they come", 60000, cada_una([](const arrPuntero *x) {
                        return vornmesh_genera_contorno_con_normal_sin_compactar_vertices(x, 0., 0., 1.);
                    })},
                   {"a mesh of each, shared vertices", 60000,
                    cada_una([](const arrPuntero *x) { return vornmesh_genera_contorno_con_normal(x, 0., 0., 1.); })},
                   {"a mesh of each, its plane too", 60000,
                    cada_una([](const arrPuntero *x) { return vornmesh_genera_contorno(x); })},
                   {"one mesh of all faces", 60000,
                    [&] { n += malla(vornmesh_genera_prisma_por_conjunto_caras(todas.get())) != nullptr; }},
                   {"GLU, one tessellator kept", 60000,
                    [&] {
                        for (const figura &x : u) n += g.corre(x);
                    }}},
                  {{"a mesh of each, vertices as they come", "GLU, one tessellator kept", 1.1},
                   {"a mesh of each, shared vertices", "GLU, one tessellator kept", 0.},
                   {"a mesh of each, its plane too", "GLU, one tessellator kept", 0.},
                   {"one mesh of all faces", "GLU, one tessellator kept", 0.}},
                  pasadas);
    debe(n > 0, "meshes");
    return fuera;
}

} // namespace bench
