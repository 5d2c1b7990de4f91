#include "mallas.h"
#include "mesh/vornmesh_int.h"
#include <algorithm>

using namespace mallas;

namespace {

// The patch 2 x 1 at z = 0, its vertices in two rows of three: 0 1 2 below, 3 4 5 above. All edges of the outline are
// borders, the inner one is not: each list of indices says so by vertices of its own.
struct parche {
    std::vector<vec> p;
    std::vector<vnbool> borde;
    std::vector<uint32_t> ind;
};
// The corners in order, each with the flag of the edge that leaves it.
parche de(std::initializer_list<std::pair<int, bool>> esquinas, vec o) {
    parche r;
    for (const auto &[i, b] : esquinas) {
        r.p.push_back(o + vec{double(i % 3), double(i / 3), 0.});
        r.borde.push_back(b ? CIERTO : FALSO);
        r.ind.push_back(static_cast<uint32_t>(r.ind.size()));
    }
    return r;
}
malla hecha(const parche &x, uint32_t tipo, vec normal = {0, 0, 1}) {
    vn::dueno<arr_DestruyeBOOL> b(arr_CreaBOOL(0));
    for (const vnbool v : x.borde) arr_AppendBOOL(b.get(), v);
    vn::dueno<arr_DestruyeULong> t(arr_CreaULong(0)), i(arr_CreaULong(0));
    arr_AppendULong(t.get(), tipo);
    for (const uint32_t k : x.ind) arr_AppendULong(i.get(), k);
    vn::dueno<arr_DestruyePunteroConTipo> caras(arr_CreaPunteroConTipo(0));
    arr_AppendPunteroST(caras.get(), i.get(), arrULong);
    return malla(vornmesh_crea_duplicando_arrays(puntos(x.p), puntos(std::vector<vec>(x.p.size(), normal)), nullptr,
                                                 nullptr, b.get(), t.get(), caras.get()));
}

struct segmentos {
    std::vector<std::array<Punto2D, 2>> s;
    explicit segmentos(const malla &m) {
        const vn::dueno<arr_DestruyePunto2D> a(vornmesh_obtener_segmentos_dibujo_basico(m.get()));
        const auto p = vn::listas::tramo(static_cast<const arrPunto2D *>(a.get()));
        for (size_t i = 0; i + 1 < p.size(); i += 2) s.push_back({p[i], p[i + 1]});
    }
    double largo() const {
        double l = 0.;
        for (const auto &[a, b] : s) l += std::hypot(b.x - a.x, b.y - a.y);
        return l;
    }
};
using caras_t = vn::dueno<destruye_lista>;

// None for null, one of any text for "", one of that text.
bool son(const std::vector<vn::informe_anotado> &informes, const char *texto) {
    if (texto == nullptr || informes.size() != 1) return texto == nullptr && informes.empty();
    return *texto == 0 || informes[0].expresion == texto;
}

using cuenta = std::array<int, 2>;
void cuenta_triangulo(cuenta *n, uint32_t, uint32_t, uint32_t) { ++(*n)[0]; }
void cuenta_quad(cuenta *n, uint32_t, uint32_t, uint32_t, uint32_t) { ++(*n)[1]; }

} // namespace

PRUEBA(vornmesh_recorre, toda_clase_de_primitiva_cubre_su_cara_con_sus_bordes_y_su_sentido) {
    const struct {
        uint32_t tipo;
        std::initializer_list<std::pair<int, bool>> esquinas;
        int caras;     // of the walk with indices
        double bordes; // length of the edges whose flags are set, as the walk of triangles tells them
    } filas[] = {
        {VPLAN_TRIANGULOS,
         {{0, true},
          {1, false},
          {3, true},
          {1, false},
          {4, true},
          {3, false},
          {1, true},
          {2, false},
          {4, false},
          {2, true},
          {5, true},
          {4, false}},
         4,
         6.},
        {VPLAN_TIRA_DE_TRIANGULOS, {{0, true}, {1, true}, {3, true}, {4, true}}, 2, 2 * (2. + std::sqrt(2.))},
        {VPLAN_ABANICO_DE_TRIANGULOS, {{0, false}, {2, true}, {5, true}, {3, false}}, 2, 3. + std::sqrt(5.)},
        {VPLAN_QUADS,
         {{0, true}, {1, false}, {4, true}, {3, true}, {1, true}, {2, true}, {5, true}, {4, false}},
         2,
         6.},
        {VPLAN_TIRA_DE_QUADS, {{3, true}, {0, true}, {4, true}, {1, true}, {5, true}, {2, true}}, 2, 8.},
    };
    for (int caso = 0; caso < 2; ++caso)
        for (const auto &fila : filas) {
            SCOPED_TRACE(fila.tipo);
            const vn::lugar l = vn::lugar_de(caso);
            const vec o{l.x, l.y, l.z};
            const parche x = de(fila.esquinas, o);
            const malla m = hecha(x, fila.tipo);
            const auto t = triangulos(m.get());
            const suma s(t, o);
            EXPECT_NEAR(s.vector.z, s.area, 1e-8); // none is turned over
            EXPECT_NEAR(s.area, fila.tipo == VPLAN_TIRA_DE_TRIANGULOS ? 1. : 2., 1e-8);
            EXPECT_NEAR(s.bordes, fila.bordes, 1e-8);
            cuenta n{};
            vornmesh_recorre_mesh_con_indices(m.get(), cuenta, &n, cuenta_triangulo, cuenta_quad);
            EXPECT_EQ(n[0] + n[1], fila.caras);
            EXPECT_EQ(n[1] > 0, fila.tipo >= VPLAN_QUADS);
            // From above the same borders, but each edge once where both its halves look up; from below none.
            EXPECT_NEAR(segmentos(m).largo(), fila.bordes, 1e-8);
            EXPECT_TRUE(segmentos(hecha(x, fila.tipo, {1, 0, 0})).s.empty());
            // The faces cover it too, with their borders in the second list.
            arrPuntero *lados = nullptr;
            const caras_t caras(vornmesh_obtener_caras_3d(m.get(), 1e-5, 1e-6, &lados));
            const caras_t los_lados(lados);
            EXPECT_EQ(arr_NumElemsPuntero(caras.get()), static_cast<uint32_t>(fila.caras));
            double borde = 0.;
            for (uint32_t i = 0; i < arr_NumElemsPuntero(lados); ++i) {
                const Punto3D *p = arr_GetBufferPunto3D(arr_GetPunteroST(lados, i, arrPunto3D));
                borde += largo(p[1] - p[0]);
            }
            EXPECT_NEAR(borde, fila.bordes, 1e-8);
            // Its triangles as indices give the same surface, but of the fan.
            vn::dueno<arr_DestruyeULong> ind(arr_CreaULong(0));
            for (const uint32_t k : x.ind) arr_AppendULong(ind.get(), k);
            if (fila.tipo == VPLAN_ABANICO_DE_TRIANGULOS) continue;
            const vn::dueno<arr_DestruyeULong> ternas(
                vornmesh_obten_indices_triangulos_segun_tipo_primitiva(fila.tipo, ind.get()));
            parche y{x.p, x.borde, {}};
            for (const uint32_t k : vn::listas::tramo(ternas.get())) y.ind.push_back(k);
            EXPECT_NEAR(suma(triangulos(hecha(y, VPLAN_TRIANGULOS).get()), o).vector.z, s.area, 1e-8);
        }
}

PRUEBA(vornmesh_recorre, primitivas_imposibles_informan_y_se_pasan_de_largo) {
    const struct {
        uint32_t tipo;
        std::vector<uint32_t> ind;
        const char *informe; // of a walk
        size_t triangulos;
        const char *de_indices; // of the operation on indices; null where it makes none
    } filas[] = {
        {VPLAN_TRIANGULOS, {0, 1, 2, 3}, "num_puntos_indices % 3 == 0", 1, nullptr},
        {VPLAN_TIRA_DE_TRIANGULOS, {0, 1}, "num_puntos_indices > 2", 0, "num_vertices >= 3"},
        {VPLAN_ABANICO_DE_TRIANGULOS, {0}, "num_puntos_indices > 2", 0, ""},
        {VPLAN_QUADS, {0, 1, 2, 3, 0}, "num_puntos % 4 == 0", 2, "num_vertices % 4 == 0"},
        {VPLAN_TIRA_DE_QUADS, {0, 1}, "num_puntos > 3", 0, "num_vertices > 3"},
        {VPLAN_TIRA_DE_QUADS, {0, 1, 2, 3, 0}, "(num_puntos - 2) % 2 == 0", 2, "(num_vertices - 2) % 2 == 0"},
        {VPLAN_TRIANGULOS, {0, 1, 4}, "indice < num_vertices", 0, nullptr},
        {VPLAN_QUADS, {0, 1, 2, 0xFFFFFFFF}, "indice < num_vertices", 0, nullptr},
        {3, {0, 1, 2}, "", 0, ""},
        {9, {0, 1, 2}, "", 0, ""},
        {VPLAN_TIRA_DE_QUADS, {}, nullptr, 0, "num_vertices > 3"},
    };
    for (const auto &fila : filas) {
        SCOPED_TRACE(fila.tipo);
        parche x = de({{0, true}, {1, true}, {4, true}, {3, true}}, {});
        x.ind = fila.ind;
        const malla m = hecha(x, fila.tipo);
        EXPECT_EQ(triangulos(m.get()).size(), fila.triangulos);
        auto informes = vn::Prueba::toma_informes();
        EXPECT_TRUE(son(informes, fila.informe));
        vn::dueno<arr_DestruyeULong> ind(arr_CreaULong(0));
        for (const uint32_t k : fila.ind) arr_AppendULong(ind.get(), k);
        const vn::dueno<arr_DestruyeULong> r(
            vornmesh_obten_indices_triangulos_segun_tipo_primitiva(fila.tipo, ind.get()));
        informes = vn::Prueba::toma_informes();
        EXPECT_EQ(r == nullptr, fila.de_indices != nullptr);
        EXPECT_TRUE(son(informes, fila.de_indices));
    }
}

PRUEBA(vornmesh_recorre, un_quad_sin_area_en_una_mitad_o_alabeado_da_triangulos) {
    const struct {
        const char *que;
        std::array<vec, 4> p;
        std::vector<uint32_t> caras; // points of each
        uint32_t lados;
    } filas[] = {
        {"plane", {{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {0, 1, 0}}}, {4}, 4},
        {"second half without area", {{{0, 0, 0}, {1, 0, 0}, {1, 1, 0}, {.5, .5, 0}}}, {3}, 3},
        {"first half without area", {{{0, 0, 0}, {.5, .5, 0}, {1, 1, 0}, {0, 1, 0}}}, {3}, 3},
        {"warped", {{{0, 0, 0}, {1, 0, .5}, {1, 1, 0}, {0, 1, .5}}}, {3, 3}, 4},
        {"no area at all", {{{0, 0, 0}, {1, 0, 0}, {2, 0, 0}, {3, 0, 0}}}, {3, 3}, 4},
    };
    for (const auto &fila : filas) {
        SCOPED_TRACE(fila.que);
        parche x = de({{0, true}, {1, true}, {4, true}, {3, true}}, {});
        x.p.assign(fila.p.begin(), fila.p.end());
        const malla m = hecha(x, VPLAN_QUADS);
        arrPuntero *lados = nullptr;
        const caras_t caras(vornmesh_obtener_caras_3d(m.get(), 1e-5, 1e-6, &lados)), los_lados(lados),
            solas(vornmesh_obtener_caras_3d(m.get(), 1e-5, 1e-6, nullptr));
        std::vector<uint32_t> n;
        for (uint32_t i = 0; i < arr_NumElemsPuntero(caras.get()); ++i)
            n.push_back(arr_NumElemsPunto3D(arr_GetPunteroST(caras.get(), i, arrPunto3D)));
        EXPECT_EQ(n, fila.caras);
        EXPECT_EQ(arr_NumElemsPuntero(lados), fila.lados);
        EXPECT_EQ(arr_NumElemsPuntero(solas.get()), n.size());
    }
    // A half that looks up, beside one that looks down, is drawn with its diagonal.
    parche x = de({{0, true}, {1, true}, {4, true}, {3, true}}, {});
    const malla m = hecha(x, VPLAN_QUADS);
    arr_SetPunto3D(m->normales.get(), 3, 0., 0., -3.);
    EXPECT_NEAR(segmentos(m).largo(), 2. + std::sqrt(2.), 1e-12);
    // Captures take the first face of triangles and quads, and say so when there is another number of indices than
    // three.
    puntos capturados(std::vector<vec>{});
    ESPERA_INFORME("arr_NumElemsULong(indices_vertices_primitiva) == 3",
                   vornmesh_append_coords_vertices_triangulos_para_captura(m.get(), capturados));
    EXPECT_EQ(capturados.size(), 6u);
    EXPECT_EQ(capturados[4].y, 1.);
    for (const auto &[tipo, informe] : {std::pair<uint32_t, const char *>{VPLAN_TIRA_DE_QUADS, nullptr},
                                        {9, "tipo_primitiva == (enum vplan_tipo_primitiva_t)GL_QUADS"}})
        vn::con_informe(informe, [&, t = tipo] {
            vornmesh_append_coords_vertices_triangulos_para_captura(hecha(x, t).get(), capturados);
        });
    x.ind.pop_back();
    vornmesh_append_coords_vertices_triangulos_para_captura(hecha(x, VPLAN_TRIANGULOS).get(), capturados);
    EXPECT_EQ(capturados.size(), 9u);
}
