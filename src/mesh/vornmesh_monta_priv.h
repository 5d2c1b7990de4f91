// What the generators make meshes with: their primitives, vertices that are shared or not, the normals of faces.
#pragma once

#include "foundation/suelo/logico_int.h"
#include "mesh/vornmesh_teselador_priv.h"
#include <cmath>
#include <utility>
#include <vector>

namespace vn {

// The normal of a plane face that has none given, whatever its corners say.
inline constexpr Punto3D HACIA_ARRIBA{0., 0., 1.};

// A triangle has no area: its points are one, or the third is on the line of the others.
inline constexpr double MISMO_PUNTO = 1e-05, MISMA_RECTA = 1e-06;
// Unit normal of a triangle; upwards if it has no area. One that may have none goes the long way.
Punto3D normal_plana_dudosa(Punto3D p1, Punto3D p2, Punto3D p3);
inline Punto3D normal_plana(Punto3D p1, Punto3D p2, Punto3D p3) {
    constexpr double HOLGURA = 1e4, PUNTO = HOLGURA * MISMO_PUNTO * MISMO_PUNTO,
                     RECTA = HOLGURA * MISMA_RECTA * MISMA_RECTA;
    const Punto3D d12 = p2 - p1, n = numeros::vectorial(d12, p3 - p1);
    const double n2 = numeros::cuadrado(n), l2 = numeros::cuadrado(d12);
    // Far from every limit: the height over the first edge is |n| / |d12|.
    if (n2 > RECTA * l2 && n2 < numeros::CUADRADO_MAXIMO && l2 > PUNTO && numeros::cuadrado(p3 - p2) > PUNTO) [[likely]]
        return n / std::sqrt(n2);
    return normal_plana_dudosa(p1, p2, p3);
}
// The normal of the plane of the points, if they lie in one; otherwise upwards.
Punto3D normal_de_contorno(const arrPunto3D *contorno);
Punto3D normal_de_contorno(std::span<const Punto3D> contorno);
// The unit vector, or what there is instead where it has no direction.
Punto3D unitario_o(Punto3D v, Punto3D si_no);

inline std::span<const Punto3D> puntos_de(const arrPunto3D *a) { return listas::tramo(a); }

// The primitives of a mesh under way.
class primitivas {
  public:
    void abre(uint32_t tipo) {
        tipos_.push_back(tipo);
        finales_.push_back(indices_.size());
    }
    void indice(uint32_t i) {
        indices_.push_back(i);
        ++finales_.back();
    }
    void triangulo(uint32_t a, uint32_t b, uint32_t c) {
        abre(VPLAN_TRIANGULOS);
        for (const uint32_t i : {a, b, c}) indice(i);
    }
    // The last one the other way around.
    void invierte() {
        std::reverse(indices_.begin() + static_cast<ptrdiff_t>(inicio(tipos_.size() - 1)), indices_.end());
    }
    void reserva(size_t n) { indices_.reserve(n); }
    bool vacias() const { return tipos_.empty(); }
    // Into the arrays of a mesh, each index as `lugar` tells; false, and reported, if there is no memory for them.
    template <class F> bool da(mesh &m, F &&lugar) const {
        m.tipos_primitivas.reset(arr_CreaULong(static_cast<uint32_t>(tipos_.size())));
        m.inds_caras.reset(arr_CreaPunteroConTipo(static_cast<uint32_t>(tipos_.size())));
        if (m.tipos_primitivas == nullptr || m.inds_caras == nullptr) return false;
        for (size_t i = 0; i < tipos_.size(); ++i) {
            const auto n = static_cast<uint32_t>(finales_[i] - inicio(i));
            arr_GetBufferULong(m.tipos_primitivas.get())[i] = tipos_[i];
            arrULong *indices = arr_CreaULong(n);
            if (indices == nullptr) return false;
            arr_GetBufferPuntero(m.inds_caras.get())[i] = indices;
            uint32_t *donde = arr_GetBufferULong(indices);
            for (uint32_t k = 0; k < n; ++k) donde[k] = lugar(indices_[inicio(i) + k]);
        }
        return true;
    }

  private:
    size_t inicio(size_t i) const { return i > 0 ? finales_[i - 1] : 0; }
    std::vector<uint32_t> tipos_, indices_;
    std::vector<size_t> finales_;
};

// A mesh whose equal vertices are one: its vertices come out rounded, in their order, with unit normals.
class malla_compacta {
  public:
    primitivas caras;
    uint32_t vertice(const vn::vertice &v, bool borde) { return unicos_.anade(v, borde); }
    // Contours as triangles: their vertices are added, and, if asked for, their primitives.
    void contornos(const contornos_t &c, bool con_caras, bool invertidas = false);
    mesh_propia termina(bool con_texturas);

  private:
    vertices_unicos unicos_;
};

// A mesh whose vertices are as they were added, each with its own.
class malla_suelta {
  public:
    struct esquina {
        Punto3D p, n;
        bool borde = true;
    };
    primitivas caras;
    void reserva(size_t n) { puntos_.reserve(n), normales_.reserve(n), bordes_.reserve(n); }
    uint32_t vertice(const esquina &e) {
        puntos_.push_back(e.p);
        normales_.push_back(e.n);
        bordes_.push_back(logico(e.borde));
        return static_cast<uint32_t>(puntos_.size() - 1);
    }
    // The first vertices, whose edges are all borders.
    void empieza(std::vector<Punto3D> puntos, std::vector<Punto3D> normales) {
        puntos_ = std::move(puntos);
        normales_ = std::move(normales);
        bordes_.assign(puntos_.size(), CIERTO);
    }
    // Two triangles, a, b, c and c, d, a, whose common edge is no border.
    void quad(const esquina &a, const esquina &b, const esquina &c, const esquina &d);
    void contornos(const contornos_t &c);
    mesh_propia termina();

  private:
    std::vector<Punto3D> puntos_, normales_;
    std::vector<vnbool> bordes_;
};

// The normal of the side of a prism between an edge of its lower polygon, a to b, and that of its upper one, c to d;
// false if the side has no area.
bool normal_cara_lateral(Punto3D a, Punto3D b, Punto3D c, Punto3D d, Punto3D &n);

// The axes of a plane across a direction, a unit vector.
struct ejes_de_circulo {
    Punto3D u, v;
    explicit ejes_de_circulo(Punto3D w);
    Punto3D en(Punto2D p) const { return p.x * u + p.y * v; }
};
// The points of a circle of radius 1 about the origin, of the plane. Null after a report.
puntos2D_propios circulo_unidad(uint32_t num_puntos);

} // namespace vn
