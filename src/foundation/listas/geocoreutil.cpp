#define VN_MODULO "geocoreutil (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/listas/geocoreutil.h"
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include <array>
#include <vector>

using namespace vn;

namespace {

using gc_normales = dueno<gcFloat32Array_free>;

// Where in the list of indices triangle `t` has its corners.
using terna = std::array<uint32_t, 3>;
terna de_sueltos(uint32_t t) { return {3 * t, 3 * t + 1, 3 * t + 2}; }
terna de_tira(uint32_t t) { return t % 2 == 0 ? terna{t, t + 1, t + 2} : terna{t, t + 2, t + 1}; }
terna de_abanico(uint32_t t) { return {0, t + 1, t + 2}; }

gcFloat32Array *normales(const gcFloat64Array *vertices, const gcUint32Array *indices, terna (*esquinas)(uint32_t)) {
    if (!AFIRMA_NO_NULO(vertices)) return nullptr;
    const uint32_t num_componentes_vertices = gcFloat64Array_count(vertices), num = num_componentes_vertices / 3;
    AFIRMA(num_componentes_vertices % 3 == 0);
    const uint32_t num_indices = indices != nullptr ? gcUint32Array_count(indices) : num;
    if (esquinas == de_sueltos) AFIRMA(num_indices % 3 == 0);
    gc_normales r(gcFloat32Array_crea(num * 3));
    if (r == nullptr || num == 0) return r.release();

    const double *coordenadas = gcFloat64Array_get_buffer(vertices);
    const uint32_t *orden = indices != nullptr ? gcUint32Array_get_elements_buffer(indices) : nullptr;
    float *salida = gcFloat32Array_get_buffer(r.get());
    const auto punto = [=](uint32_t i) {
        const double *c = coordenadas + size_t{i} * 3;
        return Punto3D{c[0], c[1], c[2]};
    };
    const auto pon = [=](uint32_t i, Punto3D n) {
        float *c = salida + size_t{i} * 3;
        c[0] = static_cast<float>(n.x), c[1] = static_cast<float>(n.y), c[2] = static_cast<float>(n.z);
    };
    std::vector<bool> tiene(num);
    const uint32_t triangulos = esquinas == de_sueltos ? num_indices / 3 : num_indices > 2 ? num_indices - 2 : 0;
    for (uint32_t t = 0; t < triangulos; ++t) {
        terna v = esquinas(t);
        if (orden != nullptr)
            for (uint32_t &i : v) i = orden[i];
        if (!AFIRMA_TEXTO(v[0] < num && v[1] < num && v[2] < num, "indice < num_vertices")) continue;
        Punto3D n = numeros::vectorial(punto(v[1]) - punto(v[0]), punto(v[2]) - punto(v[0]));
        if (!numeros::unitario(n)) continue;
        for (const uint32_t i : v) {
            if (!tiene[i]) pon(i, n);
            tiene[i] = true;
        }
    }
    for (uint32_t i = 0; i < num; ++i)
        if (!tiene[i]) pon(i, {0., 0., 1.});
    return r.release();
}

} // namespace

gcFloat32Array *geocoreutil_triangles_compute_flat_normals(const gcFloat64Array *vertices,
                                                           const gcUint32Array *indices) {
    return normales(vertices, indices, de_sueltos);
}

gcFloat32Array *geocoreutil_triangle_strip_compute_flat_normals(const gcFloat64Array *vertices,
                                                                const gcUint32Array *indices) {
    return normales(vertices, indices, de_tira);
}

gcFloat32Array *geocoreutil_triangle_fan_compute_flat_normals(const gcFloat64Array *vertices,
                                                              const gcUint32Array *indices) {
    return normales(vertices, indices, de_abanico);
}
