// The triangulation of contours of space.
#pragma once

#include "foundation/suelo/propio_int.h"
#include "mesh/vornmesh_priv.h"
#include "mesh/vornmesh_vertices_priv.h"
#include <algorithm>
#include <array>
#include <span>
#include <vector>

namespace vn {

// The contours of a face, outline and holes alike, as corners with all that the result inherits.
class contornos_t {
  public:
    // An arrPunto3D for each contour, all with one normal; the other way around if asked for.
    void anade(const arrPuntero *contornos, Punto3D normal, bool al_reves = false);
    // The same with a normal and a texture coordinate of each point: arrays of arrPunto3D, of arrPunto2D, or none.
    void anade(const arrPuntero *contornos, Punto3D normal, const arrPuntero *normales_vertices_contornos_opc,
               const arrPuntero *coord_texturas_opc);
    void anade(std::span<const Punto3D> contorno, Punto3D normal, bool al_reves = false);

    std::span<const vertice> vertices() const { return vertices_; }
    // Where each contour ends.
    std::span<const size_t> finales() const { return finales_; }

  private:
    std::vector<vertice> vertices_;
    std::vector<size_t> finales_;
};

// Values at the end of a block that asks for its memory and takes no for an answer: what grows while the code of others
// is on the stack, through which nothing may be thrown.
// The first of them, what a small contour needs, take no block.
template <class T, size_t PROPIOS> class lista_segura {
  public:
    lista_segura() = default;
    lista_segura(const lista_segura &) = delete;
    lista_segura &operator=(const lista_segura &) = delete;
    bool reserva(size_t n) {
        if (n <= capacidad_) return true;
        propio<T> nuevos(static_cast<T *>(vornspy_reserva_seguro(n, sizeof(T), FALSO, VN_AQUI)));
        if (nuevos == nullptr) return false;
        std::copy_n(datos_, n_, nuevos.get());
        bloque_ = std::move(nuevos);
        datos_ = bloque_.get();
        capacidad_ = n;
        return true;
    }
    bool anade(T v) {
        if (n_ == capacidad_ && !reserva(2 * capacidad_)) return false;
        datos_[n_++] = v;
        return true;
    }
    void vacia() { n_ = 0; }
    size_t size() const { return n_; }
    const T &operator[](size_t i) const { return datos_[i]; }
    T &ultimo() { return datos_[n_ - 1]; }

  private:
    T primeros_[PROPIOS];
    T *datos_ = primeros_;
    propio<T> bloque_;
    size_t n_ = 0, capacidad_ = PROPIOS;
};

// What a tessellation gives: corners in the order of their triangles, whether the edge that leaves each is one of the
// contours', and the primitives that they make.
struct triangulos {
    struct esquina {
        const vertice *v;
        bool borde;
    };
    struct primitiva {
        uint32_t tipo;
        size_t desde, hasta;
    };
    // A corner where contours cross, made on the way; each block is twice the one before it.
    struct cruces {
        propio<vertice> vertices;
        size_t n = 0, capacidad = 0;
    };
    std::array<cruces, 32> nuevos;
    size_t num_nuevos = 0;
    lista_segura<esquina, 64> esquinas;
    lista_segura<primitiva, 2> primitivas;
};

// Triangulates by the odd winding rule. What the tessellator finds wrong is reported, and what it gave is kept;
// coordinates that are not finite are reported, and give no triangles. The corners point into `c` and `r`.
void tesela(const contornos_t &c, triangulos &r);

} // namespace vn
