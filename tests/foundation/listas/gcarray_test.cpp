#include "foundation/listas/gcarray.h"
#include "foundation/listas/geocoreutil.h"
#include "foundation/suelo/dueno.hpp"
#include "propiedades.h"
#include <array>
#include <vector>

namespace {

using vertices_t = vn::dueno<gcFloat64Array_free>;
using indices_t = vn::dueno<gcUint32Array_free>;
using normales_t = vn::dueno<gcFloat32Array_free>;

vertices_t vertices(const std::vector<std::array<double, 3>> &p, const vn::lugar &l) {
    vertices_t a(gcFloat64Array_crea(0));
    for (const auto &q : p) {
        gcFloat64Array_append(a.get(), l.x + q[0]);
        gcFloat64Array_append(a.get(), l.y + q[1]);
        gcFloat64Array_append(a.get(), l.z + q[2]);
    }
    return a;
}
indices_t indices(const std::vector<uint32_t> &v) {
    indices_t a(gcUint32Array_crea(static_cast<uint32_t>(v.size())));
    for (size_t i = 0; i < v.size(); ++i) gcUint32Array_get_elements_buffer(a.get())[i] = v[i];
    return a;
}

} // namespace

PRUEBA(gcarray, cada_clase_crece_y_se_lee) {
    const vn::dueno<gcUint8Array_free> marcas(gcUint8Array_crea(2));
    gcUint8Array_append(marcas.get(), 255);
    EXPECT_EQ(gcUint8Array_count(marcas.get()), 3u);
    EXPECT_EQ(gcUint8Array_get(marcas.get(), 0), 0);
    EXPECT_EQ(gcUint8Array_get(marcas.get(), 2), 255);
    EXPECT_EQ(ESPERA_INFORME("i < num_elementos", gcUint8Array_get(marcas.get(), 3)), 0);
    const indices_t i = indices({7, 8, 4000000000u});
    EXPECT_EQ(gcUint32Array_get(i.get(), 2), 4000000000u);
    const normales_t f(gcFloat32Array_crea(0));
    EXPECT_EQ(gcFloat32Array_get_buffer(f.get()), nullptr);
    for (int k = 0; k < 1000; ++k) gcFloat32Array_append(f.get(), static_cast<float>(k));
    EXPECT_EQ(gcFloat32Array_get_buffer(f.get())[999], 999.f);
}

PRUEBA(gcarray, la_normal_plana_es_la_del_primer_triangulo_con_area_del_vertice) {
    // A roof: two faces that meet in the edge 1-3, seen as each kind of primitive.
    const std::vector<std::array<double, 3>> tejado{{0, 0, 0}, {1, 0, 1}, {0, 1, 0}, {1, 1, 1}, {2, 1, 0}};
    const double s = std::sqrt(.5);
    const std::array<double, 3> izquierda{-s, 0, s}, derecha{s, 0, s}, arriba{0, 0, 1};
    using funcion = gcFloat32Array *(*)(const gcFloat64Array *, const gcUint32Array *);
    const struct {
        funcion f;
        std::vector<uint32_t> ind;
        std::vector<std::array<double, 3>> n; // of the five vertices
    } filas[] = {
        {geocoreutil_triangles_compute_flat_normals,
         {0, 1, 2, 1, 4, 3},
         {izquierda, izquierda, izquierda, derecha, derecha}},
        {geocoreutil_triangles_compute_flat_normals,
         {1, 4, 3, 0, 1, 2},
         {izquierda, derecha, izquierda, derecha, derecha}},
        {geocoreutil_triangles_compute_flat_normals, {0, 0, 1}, {arriba, arriba, arriba, arriba, arriba}},
        {geocoreutil_triangle_strip_compute_flat_normals,
         {2, 0, 3, 1, 4},
         {izquierda, izquierda, izquierda, izquierda, derecha}},
        {geocoreutil_triangle_fan_compute_flat_normals,
         {3, 2, 0, 1, 4},
         {izquierda, izquierda, izquierda, izquierda, derecha}},
    };
    for (int caso = 0; caso < 2; ++caso)
        for (const auto &fila : filas) {
            const normales_t n(fila.f(vertices(tejado, vn::lugar_de(caso)).get(), indices(fila.ind).get()));
            ASSERT_EQ(gcFloat32Array_count(n.get()), 15u);
            for (uint32_t i = 0; i < 15; ++i)
                EXPECT_NEAR(gcFloat32Array_get_buffer(n.get())[i], fila.n[i / 3][i % 3], 1e-7)
                    << &fila - filas << ' ' << i;
        }
    // Without indices, the vertices as they stand; an index that is not there leaves its triangle out.
    const vertices_t v = vertices({{0, 0, 0}, {0, 1, 0}, {1, 0, 0}}, {});
    const normales_t abajo(geocoreutil_triangles_compute_flat_normals(v.get(), nullptr)),
        ninguna(ESPERA_INFORME("indice < num_vertices",
                               geocoreutil_triangles_compute_flat_normals(v.get(), indices({0, 1, 3}).get())));
    EXPECT_EQ(gcFloat32Array_get_buffer(abajo.get())[2], -1.f);
    EXPECT_EQ(gcFloat32Array_get_buffer(ninguna.get())[2], 1.f);
}
