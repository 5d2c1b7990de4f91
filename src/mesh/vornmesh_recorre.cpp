#define VN_MODULO "vornmesh (NUCLEOS.DLL)"
#include "foundation/suelo/logico_int.h"
#include "geometry/ejes2d_puntos.h"
#include "mesh/vornmesh_priv.h"
#include <array>
#include <vector>

// The faces of a mesh: walked, cut into triangles, taken out as outlines.
using namespace vn;

namespace {

using numeros::escalar, numeros::modulo;

// The arrays of a mesh as a walk reads them.
struct vista {
    std::span<const Punto3D> puntos, normales;
    std::span<const vnbool> bordes;
    explicit vista(const mesh &m)
        : puntos(listas::tramo(static_cast<const arrPunto3D *>(m.puntos.get()))),
          normales(listas::tramo(static_cast<const arrPunto3D *>(m.normales.get()))),
          bordes(listas::tramo(static_cast<const arrBOOL *>(m.es_borde.get()))) {}
    // A mesh that says nothing of its edges has borders only.
    bool es_borde(uint32_t i) const { return i >= bordes.size() || bordes[i] == CIERTO; }
    Punto2D planta(uint32_t i) const { return {puntos[i].x, puntos[i].y}; }
    bool mira_arriba(uint32_t a, uint32_t b, uint32_t c) const {
        return normales[a].z + normales[b].z + normales[c].z > 0.;
    }
};

bool coinciden(Punto3D a, Punto3D b, double tolerancia) {
    return std::fabs(a.x - b.x) < tolerancia && std::fabs(a.y - b.y) < tolerancia && std::fabs(a.z - b.z) < tolerancia;
}

// A corner of a face that is taken out, and whether the edge that leaves it is a border of the face.
struct esquina {
    uint32_t vertice;
    bool borde;
};

// The faces and the borders that vornmesh_obtener_caras_3d gives.
class caras_3d {
  public:
    caras_3d(const mesh &m, double t1, double t2)
        : v_(m), t1_(t1), t2_(t2), caras_(arr_CreaPunteroConTipo(0)), segmentos_(arr_CreaPunteroConTipo(0)) {}

    void triangulo(uint32_t a, uint32_t b, uint32_t c) {
        if (!degenerado(a, b, c)) anade({entera(a), entera(b), entera(c)});
    }
    void quad(uint32_t a, uint32_t b, uint32_t c, uint32_t d) {
        const bool sin_abc = degenerado(a, b, c), sin_cda = degenerado(c, d, a);
        if (sin_abc != sin_cda) {
            if (sin_cda) anade({entera(a), entera(b), entera(c)});
            else anade({entera(c), entera(d), entera(a)});
        } else if (!sin_abc && es_plano(a, b, c, d)) {
            anade({entera(a), entera(b), entera(c), entera(d)});
        } else { // two triangles, whose common edge is no border
            anade({entera(b), entera(c), {d, false}});
            anade({entera(d), entera(a), {b, false}});
        }
    }
    arrPuntero *da(arrPuntero **segmentos) {
        if (segmentos != nullptr) *segmentos = segmentos_.release();
        return caras_.release();
    }

  private:
    esquina entera(uint32_t i) const { return {i, v_.es_borde(i)}; }
    bool degenerado(uint32_t a, uint32_t b, uint32_t c) const {
        return tres_puntos_degenerados(v_.puntos[a], v_.puntos[b], v_.puntos[c], t1_, t2_);
    }
    bool es_plano(uint32_t a, uint32_t b, uint32_t c, uint32_t d) const {
        const Punto3D ring[] = {v_.puntos[a], v_.puntos[b], v_.puntos[c], v_.puntos[d]};
        const puntos3D_propios puntos = array_de_puntos(ring);
        return puntos != nullptr && ejes2d_punto3D_forman_ejes(puntos.get(), nullptr, nullptr, nullptr, nullptr,
                                                               nullptr, nullptr, nullptr, nullptr, nullptr) == CIERTO;
    }
    void anade(std::initializer_list<esquina> esquinas) {
        std::vector<Punto3D> cara;
        for (const esquina &e : esquinas) cara.push_back(v_.puntos[e.vertice]);
        pon(caras_.get(), array_de_puntos(cara));
        for (size_t i = 0; i < cara.size(); ++i) {
            if (!esquinas.begin()[i].borde) continue;
            const Punto3D lado[] = {cara[i], cara[(i + 1) % cara.size()]};
            pon(segmentos_.get(), array_de_puntos(lado));
        }
    }
    // The list owns it once it is there.
    static void pon(arrPuntero *lista, puntos3D_propios puntos) {
        arr_AppendPunteroST(lista, puntos.get(), arrPunto3D);
        puntos.release();
    }
    static void destruye(arrPuntero *a) { arr_DestruyeEstructurasArrayST(&a, arrPunto3D, arr_DestruyePunto3D); }

    vista v_;
    double t1_, t2_;
    dueno<destruye> caras_, segmentos_;
};

} // namespace

bool vn::tres_puntos_degenerados(Punto3D p1, Punto3D p2, Punto3D p3, double t1, double t2) {
    if (coinciden(p1, p2, t1) || coinciden(p2, p3, t1)) return true;
    Punto3D u = p2 - p1;
    const Punto3D w = p3 - p1;
    // The way to the foot on the line; on a line without a direction, the foot is its point.
    return modulo(numeros::unitario(u) ? w - escalar(w, u) * u : w) < t2;
}

arrULong *vornmesh_obten_indices_triangulos_segun_tipo_primitiva(uint32_t tipo_primitiva, const arrULong *indices) {
    if (!AFIRMA_NO_NULO(indices)) return nullptr;
    const uint32_t num_vertices = arr_NumElemsULong(indices);
    switch (tipo_primitiva) {
    case VPLAN_TRIANGULOS: return arr_CopiaULong(indices);
    case VPLAN_TIRA_DE_TRIANGULOS:
        if (!AFIRMA(num_vertices >= 3)) return nullptr;
        break;
    case VPLAN_QUADS:
        if (!AFIRMA(num_vertices % 4 == 0)) return nullptr;
        break;
    case VPLAN_TIRA_DE_QUADS:
        if (!AFIRMA(num_vertices > 3) || !AFIRMA((num_vertices - 2) % 2 == 0)) return nullptr;
        break;
    default: return static_cast<void>(AFIRMA_DEFECTO()), nullptr;
    }
    enteros_propios r(arr_CreaULong(0));
    const auto anade = [&](uint32_t a, uint32_t b, uint32_t c) {
        for (const uint32_t k : {a, b, c}) arr_AppendULong(r.get(), k);
    };
    recorre_primitiva(tipo_primitiva, listas::tramo(indices), anade,
                      [&](uint32_t a, uint32_t b, uint32_t c, uint32_t d) { anade(a, b, c), anade(c, d, a); });
    return r.release();
}

void vornmesh_nousar_recorre_mesh(const mesh *m, void *contexto, vnfunc_triangulo_mesh funcion) {
    if (!EXIGE(m, funcion) || !comprueba_mesh(*m)) return;
    const vista v(*m);
    const auto llama = [&](std::array<esquina, 3> e) {
        std::array<Punto3D, 3> p, n;
        std::array<vnbool, 3> b;
        for (size_t i = 0; i < 3; ++i) {
            p[i] = v.puntos[e[i].vertice];
            n[i] = v.normales[e[i].vertice];
            b[i] = logico(e[i].borde && v.es_borde(e[i].vertice));
        }
        funcion(contexto, p[0].x, p[0].y, p[0].z, n[0].x, n[0].y, n[0].z, b[0], p[1].x, p[1].y, p[1].z, n[1].x, n[1].y,
                n[1].z, b[1], p[2].x, p[2].y, p[2].z, n[2].x, n[2].y, n[2].z, b[2]);
    };
    recorre_caras(
        *m,
        [&](uint32_t a, uint32_t b, uint32_t c) {
            llama({{{a, true}, {b, true}, {c, true}}});
        },
        [&](uint32_t a, uint32_t b, uint32_t c, uint32_t d) { // the diagonal is no border
            llama({{{a, true}, {b, true}, {c, false}}});
            llama({{{c, true}, {d, true}, {a, false}}});
        });
}

void vornmesh_nousar_recorre_mesh_con_indices(const mesh *m, void *contexto,
                                              vnfunc_ind_vertices_triangulo func_ind_vertices_triangulo,
                                              vnfunc_ind_vertices_quad func_ind_vertices_quad) {
    if (!EXIGE(m, func_ind_vertices_triangulo, func_ind_vertices_quad) || !comprueba_mesh(*m)) return;
    recorre_caras(
        *m, [=](uint32_t a, uint32_t b, uint32_t c) { func_ind_vertices_triangulo(contexto, a, b, c); },
        [=](uint32_t a, uint32_t b, uint32_t c, uint32_t d) { func_ind_vertices_quad(contexto, a, b, c, d); });
}

arrPuntero *vornmesh_obtener_caras_3d(const mesh *m, double precision_1, double precision_2, arrPuntero **segmentos) {
    if (segmentos != nullptr) *segmentos = nullptr;
    if (!AFIRMA_NO_NULO(m)) return nullptr;
    caras_3d caras(*m, precision_1, precision_2);
    recorre_caras(
        *m, [&](uint32_t a, uint32_t b, uint32_t c) { caras.triangulo(a, b, c); },
        [&](uint32_t a, uint32_t b, uint32_t c, uint32_t d) { caras.quad(a, b, c, d); });
    return caras.da(segmentos);
}

arrPunto2D *vornmesh_obtener_segmentos_dibujo_basico(const mesh *m) {
    if (!AFIRMA_NO_NULO(m)) return nullptr;
    puntos2D_propios r(arr_CreaPunto2D(0));
    if (!comprueba_mesh(*m)) return r.release();
    const vista v(*m);
    const auto lado = [&](uint32_t a, uint32_t b) {
        if (!v.es_borde(a)) return;
        for (const Punto2D p : {v.planta(a), v.planta(b)}) arr_AppendPunto2D(r.get(), p.x, p.y);
    };
    const auto triangulo = [&](uint32_t a, uint32_t b, uint32_t c) { lado(a, b), lado(b, c), lado(c, a); };
    recorre_caras(
        *m,
        [&](uint32_t a, uint32_t b, uint32_t c) {
            if (v.mira_arriba(a, b, c)) triangulo(a, b, c);
        },
        [&](uint32_t a, uint32_t b, uint32_t c, uint32_t d) {
            const bool abc = v.mira_arriba(a, b, c), cda = v.mira_arriba(c, d, a);
            // The diagonal is seen only where the other half is not.
            if (abc && cda) lado(a, b), lado(b, c), lado(c, d), lado(d, a);
            else if (abc) triangulo(a, b, c);
            else if (cda) triangulo(c, d, a);
        });
    return r.release();
}

void vornmesh_append_coords_vertices_triangulos_para_captura(const mesh *m, arrPunto3D *puntos) {
    if (!EXIGE(m, puntos) || !comprueba_mesh(*m)) return;
    const vista v(*m);
    recorre_primitivas(*m, [&](uint32_t tipo_primitiva, std::span<const uint32_t> ind) {
        const auto anade = [&](size_t a, size_t b, size_t c) {
            for (const size_t i : {a, b, c}) {
                const Punto3D p = v.puntos[ind[i]];
                arr_AppendPunto3D(puntos, p.x, p.y, p.z);
            }
        };
        const bool es_quad = tipo_primitiva == VPLAN_QUADS;
        if (tipo_primitiva != VPLAN_TRIANGULOS && !es_quad) { // strips and fans are not for captures
            AFIRMA_TEXTO(es_primitiva_de_triangulos(tipo_primitiva) || es_primitiva_de_quads(tipo_primitiva),
                         "tipo_primitiva == (enum vplan_tipo_primitiva_t)GL_QUADS");
            return;
        }
        AFIRMA_TEXTO(ind.size() == 3, "arr_NumElemsULong(indices_vertices_primitiva) == 3");
        if (ind.size() >= 3) anade(0, 1, 2);
        if (es_quad && ind.size() >= 4) anade(2, 3, 0);
    });
}
