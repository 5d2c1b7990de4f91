#define VN_MODULO "vornmesh (NUCLEOS.DLL)"
#include "mesh/vornmesh_teselador_priv.h"
#include <algorithm>
#include <array>
#include <atomic>
#include <cmath>
#include <GL/glu.h>
#include <utility>

// The tessellator of the system's GLU.
using namespace vn;

namespace {

// A contour whose ends are this near in every axis is closed by them.
constexpr double CIERRE = 1e-06;

using llamada = void (*)();

// One tessellation under way. Its functions are called by GLU, so that they neither throw nor ask for memory that must
// be had: what they could not do is said when GLU has returned.
struct genera_triangulos {
    static constexpr size_t ERRORES = 8, PRIMER_BLOQUE = 32;

    triangulos &r;
    Punto3D cgeom;
    bool en_primitiva = false, sin_memoria = false, hay_borde = false, es_borde = false;
    std::array<GLenum, ERRORES> errores{};
    size_t num_errores = 0;

    void anota(bool hay_memoria) { sin_memoria = sin_memoria || !hay_memoria; }

    static genera_triangulos &de(void *estado) { return *static_cast<genera_triangulos *>(estado); }

    static void empieza(GLenum tipo, void *estado) {
        auto &g = de(estado);
        AFIRMA_TEXTO(!g.en_primitiva, "genera_triangulos->puntos_triangulos == NULL");
        AFIRMA_TEXTO(!g.hay_borde, "genera_triangulos->es_borde == NULL");
        g.en_primitiva = true;
        g.anota(g.r.primitivas.anade({tipo, g.r.esquinas.size(), g.r.esquinas.size()}));
    }
    static void borde(GLboolean es_borde, void *estado) {
        auto &g = de(estado);
        g.hay_borde = true;
        g.es_borde = es_borde == GL_TRUE;
    }
    // Only a change of the flag is told: it holds until the next one.
    static void pon_vertice(void *v, void *estado) {
        auto &g = de(estado);
        AFIRMA_TEXTO(g.hay_borde, "num_bordes == num_puntos - 1");
        g.anota(g.r.esquinas.anade({static_cast<const vertice *>(v), g.es_borde}));
    }
    static void termina(void *estado) {
        auto &g = de(estado);
        g.en_primitiva = g.hay_borde = false;
        if (g.sin_memoria || !AFIRMA_TEXTO(g.r.primitivas.size() > 0, "(genera_triangulos->triangulos) != NULL"))
            return;
        auto &p = g.r.primitivas.ultimo();
        p.hasta = g.r.esquinas.size();
        AFIRMA_TEXTO(p.tipo != GL_TRIANGLES || (p.hasta - p.desde) % 3 == 0, "num_vertices == num_caras");
    }
    // A new corner out of up to four, its normal and texture coordinate by their weights.
    static void combina(GLdouble c[3], void *vertices[4], GLfloat pesos[4], void **nuevo, void *estado) {
        auto &g = de(estado);
        vertice *v = g.hueco();
        *nuevo = v; // none leaves the tessellator without one, which it reports
        if (v == nullptr) return;
        *v = {g.cgeom + Punto3D{c[0], c[1], c[2]}, {0., 0., 0.}, {0., 0.}};
        for (int i = 0; i < 4; ++i) {
            if (vertices[i] == nullptr) continue;
            const auto *de = static_cast<const vertice *>(vertices[i]);
            v->n = v->n + double{pesos[i]} * de->n;
            v->t = v->t + double{pesos[i]} * de->t;
        }
    }
    static void falla(GLenum error, void *estado) {
        auto &g = de(estado);
        if (g.num_errores < ERRORES) g.errores[g.num_errores++] = error;
    }

    vertice *hueco() {
        auto *ultimo = r.num_nuevos > 0 ? &r.nuevos[r.num_nuevos - 1] : nullptr;
        if (ultimo == nullptr || ultimo->n == ultimo->capacidad) {
            const size_t n = ultimo == nullptr ? PRIMER_BLOQUE : 2 * ultimo->capacidad;
            propio<vertice> bloque(static_cast<vertice *>(
                r.num_nuevos < r.nuevos.size() ? vornspy_reserva_seguro(n, sizeof(vertice), FALSO, VN_AQUI) : nullptr));
            anota(bloque != nullptr);
            if (bloque == nullptr) return nullptr;
            ultimo = &r.nuevos[r.num_nuevos++];
            *ultimo = {std::move(bloque), 0, n};
        }
        return ultimo->vertices.get() + ultimo->n++;
    }
};

// Tessellators at rest, since making one takes as long as a small contour: whoever needs one takes it, and gives it
// back for the next. Not one to each thread, which would have to be destroyed when the thread ends: the runtime of one
// of our platforms has freed a thread's variables by then. There are as many as threads that triangulated at once.
constinit std::array<std::atomic<GLUtesselator *>, 16> en_reposo{};

void suelta(GLUtesselator *t) { gluDeleteTess(t); }
using teselador = dueno<suelta>;

teselador toma_teselador() {
    for (auto &sitio : en_reposo)
        if (GLUtesselator *t = sitio.exchange(nullptr, std::memory_order_acquire)) return teselador(t);
    teselador nuevo(gluNewTess());
    const auto pon = [&nuevo](GLenum cual, auto *funcion) {
        if (nuevo != nullptr) gluTessCallback(nuevo.get(), cual, reinterpret_cast<llamada>(funcion));
    };
    pon(GLU_TESS_BEGIN_DATA, genera_triangulos::empieza);
    pon(GLU_TESS_EDGE_FLAG_DATA, genera_triangulos::borde);
    pon(GLU_TESS_VERTEX_DATA, genera_triangulos::pon_vertice);
    pon(GLU_TESS_END_DATA, genera_triangulos::termina);
    pon(GLU_TESS_COMBINE_DATA, genera_triangulos::combina);
    pon(GLU_TESS_ERROR_DATA, genera_triangulos::falla);
    return nuevo;
}

void devuelve(teselador t) {
    for (auto &sitio : en_reposo) {
        GLUtesselator *nadie = nullptr;
        if (!sitio.compare_exchange_strong(nadie, t.get(), std::memory_order_release, std::memory_order_relaxed))
            continue;
        t.release();
        return;
    }
}

Punto3D minimo(Punto3D a, Punto3D b) { return {std::min(a.x, b.x), std::min(a.y, b.y), std::min(a.z, b.z)}; }
Punto3D maximo(Punto3D a, Punto3D b) { return {std::max(a.x, b.x), std::max(a.y, b.y), std::max(a.z, b.z)}; }

// The middle of the box of all corners, relative to which they are near the origin; false if it has none.
bool centro(std::span<const vertice> vertices, Punto3D &c) {
    c = {};
    if (vertices.empty()) return true;
    Punto3D a = vertices[0].p, b = a, suma{};
    for (const vertice &v : vertices) {
        a = minimo(a, v.p), b = maximo(b, v.p);
        suma = suma + (v.p - vertices[0].p); // what is no number fails no comparison, but stays in a sum
    }
    c = 0.5 * (a + b);
    return numeros::es_finito(suma) && numeros::es_finito(a + b) && numeros::es_finito(b - a);
}

bool coinciden(Punto3D a, Punto3D b) { return numeros::mayor_coordenada(a - b) <= CIERRE; }

} // namespace

void contornos_t::anade(std::span<const Punto3D> contorno, Punto3D normal, bool al_reves) {
    const size_t n = contorno.size();
    if (vertices_.capacity() - vertices_.size() < n)
        vertices_.reserve(std::max(2 * vertices_.size(), vertices_.size() + n));
    for (size_t i = 0; i < n; ++i) vertices_.push_back({contorno[al_reves ? n - 1 - i : i], normal, {}});
    finales_.push_back(vertices_.size());
}

void contornos_t::anade(const arrPuntero *contornos, Punto3D normal, bool al_reves) {
    for (const void *contorno : listas::tramo(contornos))
        if (AFIRMA_NO_NULO(contorno)) anade(listas::tramo(static_cast<const arrPunto3D *>(contorno)), normal, al_reves);
}

void contornos_t::anade(const arrPuntero *contornos, Punto3D normal, const arrPuntero *normales_vertices_contornos_opc,
                        const arrPuntero *coord_texturas_opc) {
    const uint32_t num = arr_NumElemsPuntero(contornos);
    const arrPuntero *normales = normales_vertices_contornos_opc, *texturas = coord_texturas_opc;
    if (normales != nullptr &&
        !AFIRMA_TEXTO(num == arr_NumElemsPuntero(normales),
                      "num == arr_NumElemsPunteroTD(normales_vertices_contornos_opc, ArrPunto3D)"))
        normales = nullptr;
    if (texturas != nullptr && !AFIRMA_TEXTO(num == arr_NumElemsPuntero(texturas),
                                             "num == arr_NumElemsPunteroTD(coord_texturas_opc, ArrPunto2D)"))
        texturas = nullptr;
    for (uint32_t i = 0; i < num; ++i) {
        const auto *contorno = arr_GetPunteroST(contornos, i, const arrPunto3D);
        if (!AFIRMA_NO_NULO(contorno)) continue;
        const size_t desde = vertices_.size();
        anade(listas::tramo(contorno), normal);
        const auto suyos = std::span(vertices_).subspan(desde);
        // Lists that are not as long as their contour say nothing of it.
        const auto *n = normales != nullptr ? arr_GetPunteroST(normales, i, const arrPunto3D) : nullptr;
        if (normales != nullptr && AFIRMA_NO_NULO(n) &&
            AFIRMA_TEXTO(arr_NumElemsPunto3D(n) == suyos.size(), "num_puntos == arr_NumElemsPunto3D(normales)"))
            for (size_t j = 0; j < suyos.size(); ++j) suyos[j].n = listas::tramo(n)[j];
        const auto *t = texturas != nullptr ? arr_GetPunteroST(texturas, i, const arrPunto2D) : nullptr;
        if (texturas != nullptr && AFIRMA_NO_NULO(t) &&
            AFIRMA_TEXTO(arr_NumElemsPunto2D(t) == suyos.size(), "num_puntos == arr_NumElemsPunto2D(coord_texturas)"))
            for (size_t j = 0; j < suyos.size(); ++j) suyos[j].t = listas::tramo(t)[j];
    }
}

void vn::tesela(const contornos_t &c, triangulos &r) {
    Punto3D cgeom;
    if (!AFIRMA_TEXTO(centro(c.vertices(), cgeom), "defmath_es_numero_valido(x) == CIERTO")) return;
    genera_triangulos g{r, cgeom};
    // What nearly every contour needs; crossings may ask for more.
    const size_t esquinas = 3 * (c.vertices().size() + 2 * c.finales().size());
    teselador propio = toma_teselador();
    GLUtesselator *t = propio.get();
    if (!AFIRMA_TEXTO(r.esquinas.reserva(esquinas) && t != nullptr, "memoria != NULL")) return;

    gluTessBeginPolygon(t, &g);
    size_t desde = 0;
    for (const size_t hasta : c.finales()) {
        auto anillo = c.vertices().subspan(desde, hasta - desde);
        desde = hasta;
        if (anillo.size() > 1 && coinciden(anillo.front().p, anillo.back().p)) anillo = anillo.first(anillo.size() - 1);
        gluTessBeginContour(t);
        for (const vertice &v : anillo) {
            const Punto3D d = v.p - cgeom;
            GLdouble p[3] = {d.x, d.y, d.z}; // copied by GLU
            gluTessVertex(t, p, const_cast<vertice *>(&v));
        }
        gluTessEndContour(t);
    }
    gluTessEndPolygon(t);

    // One that found something wrong may not be at its beginning.
    if (g.num_errores == 0 && !g.sin_memoria) devuelve(std::move(propio));
    for (size_t i = 0; i < g.num_errores; ++i) {
        const auto *texto = reinterpret_cast<const char *>(gluErrorString(g.errores[i]));
        error_interno(texto != nullptr ? texto : "GLU_TESS_ERROR", VN_AQUI, 0);
    }
    // What could not be kept whole is not kept.
    if (!AFIRMA_TEXTO(!g.sin_memoria && !g.en_primitiva, "memoria != NULL")) r.primitivas.vacia();
}
