#define VN_MODULO "vornmesh (NUCLEOS.DLL)"
#include "foundation/suelo/logico_int.h"
#include "geometry/ejes2d_construye.h"
#include "geometry/ejes2d_puntos.h"
#include "mesh/vornmesh_monta_priv.h"
#include <utility>

// What the generators make meshes with.
using namespace vn;

namespace {

using numeros::modulo, numeros::vectorial;

// The product of two edges of a side says nothing of its normal.
constexpr double SIN_NORMAL = 1e-06;

} // namespace

Punto3D vn::unitario_o(Punto3D v, Punto3D si_no) { return numeros::unitario(v) ? v : si_no; }

Punto3D vn::normal_plana_dudosa(Punto3D p1, Punto3D p2, Punto3D p3) {
    if (tres_puntos_degenerados(p1, p2, p3, MISMO_PUNTO, MISMA_RECTA)) return HACIA_ARRIBA;
    Punto3D u = p2 - p1, v = p3 - p1;
    if (!numeros::unitario(u) || !numeros::unitario(v)) return HACIA_ARRIBA;
    return unitario_o(vectorial(u, v), HACIA_ARRIBA);
}

Punto3D vn::normal_de_contorno(const arrPunto3D *contorno) {
    Punto3D o, u, v, n;
    if (ejes2d_punto3D_forman_ejes(contorno, &o.x, &o.y, &o.z, &u.x, &u.y, &u.z, &v.x, &v.y, &v.z) != CIERTO)
        return HACIA_ARRIBA;
    ejes2d_vector_director_plano(u.x, u.y, u.z, v.x, v.y, v.z, &n.x, &n.y, &n.z);
    return n;
}

Punto3D vn::normal_de_contorno(std::span<const Punto3D> contorno) {
    const puntos3D_propios puntos = array_de_puntos(contorno);
    return puntos != nullptr ? normal_de_contorno(puntos.get()) : HACIA_ARRIBA;
}

// ---------------------------------------------------------------- shared vertices

void malla_compacta::contornos(const contornos_t &c, bool con_caras, bool invertidas) {
    triangulos t;
    tesela(c, t);
    unicos_.reserva(c.vertices().size());
    for (size_t i = 0; i < t.primitivas.size(); ++i) {
        const auto &primitiva = t.primitivas[i];
        if (con_caras && caras.vacias()) caras.reserva(primitiva.hasta - primitiva.desde);
        if (con_caras) caras.abre(primitiva.tipo);
        for (size_t k = primitiva.desde; k < primitiva.hasta; ++k) {
            const uint32_t v = unicos_.anade(*t.esquinas[k].v, t.esquinas[k].borde);
            if (con_caras) caras.indice(v);
        }
        if (con_caras && invertidas) caras.invierte();
    }
}

mesh_propia malla_compacta::termina(bool con_texturas) {
    const vertices_unicos::orden orden = unicos_.completa();
    const auto n = static_cast<uint32_t>(orden.numeros.size());
    mesh m;
    m.puntos.reset(arr_CreaPunto3D(n));
    m.normales.reset(arr_CreaPunto3D(n));
    m.es_borde.reset(arr_CreaBOOL(n));
    if (con_texturas) m.coord_texturas_opc.reset(arr_CreaPunto2D(n));
    if (m.puntos == nullptr || m.normales == nullptr || m.es_borde == nullptr ||
        !AFIRMA_TEXTO(!con_texturas || m.coord_texturas_opc != nullptr,
                      "num_vertices == arr_NumElemsPunto2D(genera_triangulos->coords_textura_triangulos)"))
        return nullptr;
    Punto3D *puntos = arr_GetBufferPunto3D(m.puntos.get()), *normales = arr_GetBufferPunto3D(m.normales.get());
    vnbool *bordes = arr_GetBufferBOOL(m.es_borde.get());
    Punto2D *texturas = con_texturas ? arr_GetBufferPunto2D(m.coord_texturas_opc.get()) : nullptr;
    for (uint32_t i = 0; i < n; ++i) {
        vn::vertice v = unicos_.da(orden.numeros[i]);
        numeros::unitario(v.n);
        puntos[i] = v.p;
        normales[i] = v.n;
        bordes[i] = logico(unicos_.es_borde(orden.numeros[i]));
        if (texturas != nullptr) texturas[i] = v.t;
    }
    if (!caras.da(m, [&](uint32_t v) { return orden.lugares[v]; })) return nullptr;
    return nueva_mesh(std::move(m));
}

// ---------------------------------------------------------------- vertices of their own

void malla_suelta::quad(const esquina &a, const esquina &b, const esquina &c, const esquina &d) {
    const uint32_t a1 = vertice(a), a2 = vertice({a.p, a.n, false}), b1 = vertice(b), c1 = vertice(c),
                   c2 = vertice({c.p, c.n, false}), d1 = vertice(d);
    caras.triangulo(a1, b1, c2);
    caras.triangulo(c1, d1, a2);
}

void malla_suelta::contornos(const contornos_t &c) {
    triangulos t;
    tesela(c, t);
    for (size_t i = 0; i < t.primitivas.size(); ++i) {
        const auto &primitiva = t.primitivas[i];
        const size_t num_puntos_triangulo = primitiva.hasta;
        if (primitiva.desde == primitiva.hasta || // an empty record adds nothing
            !AFIRMA_TEXTO(num_puntos_triangulo <= t.esquinas.size(),
                          "num_puntos_triangulo == arr_NumElemsBOOL(triangulo->es_borde)"))
            continue;
        const size_t n = primitiva.hasta - primitiva.desde;
        if (puntos_.empty()) reserva(n), caras.reserva(n);
        caras.abre(primitiva.tipo);
        for (size_t k = primitiva.desde; k < primitiva.hasta; ++k)
            caras.indice(vertice({t.esquinas[k].v->p, t.esquinas[k].v->n, t.esquinas[k].borde}));
    }
}

mesh_propia malla_suelta::termina() {
    mesh m;
    m.puntos = array_de_puntos(puntos_);
    m.normales = array_de_puntos(normales_);
    m.es_borde.reset(arr_CreaBOOL(static_cast<uint32_t>(bordes_.size())));
    if (m.puntos == nullptr || m.normales == nullptr || m.es_borde == nullptr) return nullptr;
    std::ranges::copy(bordes_, arr_GetBufferBOOL(m.es_borde.get()));
    if (!caras.da(m, [](uint32_t v) { return v; })) return nullptr;
    return nueva_mesh(std::move(m));
}

// ---------------------------------------------------------------- sides, circles

bool vn::normal_cara_lateral(Punto3D a, Punto3D b, Punto3D c, Punto3D d, Punto3D &n) {
    // The third product has mixed corners.
    const Punto3D mezcla{d.x - a.x, d.y - b.y, d.z - b.z};
    for (const Punto3D &producto :
         {vectorial(b - a, c - a), vectorial(a - c, d - c), vectorial(b - a, mezcla), vectorial(a - c, b - c)}) {
        if (!(modulo(producto) >= SIN_NORMAL)) continue;
        n = producto;
        return numeros::unitario(n);
    }
    return false;
}

ejes_de_circulo::ejes_de_circulo(Punto3D w) {
    ejes2d_ejes_horizontales_a_partir_de_normal_del_plano(w.x, w.y, w.z, &u.x, &u.y, &u.z, &v.x, &v.y, &v.z);
}

puntos2D_propios vn::circulo_unidad(uint32_t num_puntos) {
    puntos2D_propios puntos(arr_CreaPunto2D(0));
    arr_AnyadirCirculoPunto2D(puntos.get(), 0., 0., 1., num_puntos);
    return arr_NumElemsPunto2D(puntos.get()) > 0 ? std::move(puntos) : nullptr;
}
