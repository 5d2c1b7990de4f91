// The closed outlines of a drawing as prisms of one height, each a mesh, from the ground up.
#pragma once

#include "dispositivos.h"

namespace obra {

class prismas {
  public:
    // Circles, whole ellipses, closed polylines and rings of pieces end to end, of the layers that are seen. `alto`:
    // metres.
    prismas(const plano &p, double alto);

    bool vacio() const { return bases_.empty(); }
    // Wavefront OBJ, metres: a group to each layer; the ring of a face runs counter-clockwise seen from outside.
    void escribe_obj(vnfichero *f) const;
    // What a view from above the south-east shows, without perspective.
    extension limites_en_axonometria() const;
    void dibuja_en_axonometria(lienzo &l) const;

  private:
    struct base {
        size_t capa;
        std::vector<Punto2D> puntos; // metres, counter-clockwise
    };
    void anade(size_t capa, std::vector<Punto2D> puntos);

    const plano &p_;
    const double alto_;
    std::vector<base> bases_;
};

} // namespace obra
