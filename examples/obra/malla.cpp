#include "malla.h"
#include "dibuja.h"
#include "dispositivo_limites.h"
#include "geometria.h"
#include "informe.h"
#include "posesion.h"
#include <algorithm>
#include <charconv>
#include <cmath>
#include <nucleos/mesh/vornmesh_genera.h>
#include <numbers>
#include <tuple>

namespace obra {
namespace {

constexpr double VUELTA = 2 * std::numbers::pi;
constexpr double LADOS_DE_VUELTA = 64;
// Points nearer than this are one, metres: a tenth of a thousandth of a millimetre.
constexpr double MISMO_PUNTO = 1e-7;

using dueno_malla = vn::dueno<vornmesh_destruye>;
using dueno_puntos3D = vn::dueno<arr_DestruyePunto3D>;

void destruye_caras(arrPuntero **a) { arr_DestruyeEstructurasST(a, arrPunto3D, arr_DestruyePunto3D); }
using dueno_caras = vn::dueno<destruye_caras>;

std::span<const Punto3D> puntos_de(const arrPunto3D *a) {
    return {arr_GetBufferConstPunto3D(a), arr_NumElemsPunto3D(a)};
}
double escalar(const Punto3D &a, const Punto3D &b) { return a.x * b.x + a.y * b.y + a.z * b.z; }

// From above the south-east: the axes of the picture and the direction towards who looks, in those of the drawing.
struct vista {
    Punto3D derecha, arriba, hacia;
};
vista axonometria() {
    constexpr double AZIMUT = -std::numbers::pi / 3;
    const double elevacion = std::atan(std::numbers::sqrt2 / 2), c = std::cos(elevacion), s = std::sin(elevacion);
    const double ca = std::cos(AZIMUT), sa = std::sin(AZIMUT);
    return {{-sa, ca, 0}, {-ca * s, -sa * s, c}, {ca * c, sa * c, s}};
}
void anade_axonometria(salida_t *s) {
    const auto [r, u, d] = axonometria();
    vplan_append_sistema_coordenadas(s, r.x, u.x, d.x, r.y, u.y, d.y, r.z, u.z, d.z, 0, 0, 0);
}

// In the fewest digits that give it back.
std::string exacto(double x) {
    char b[32];
    return {b, std::to_chars(b, b + sizeof b, x).ptr};
}

// Appends the points of a curve but its last.
template <class F> void anade_curva(std::vector<Punto2D> &v, double barrido, F en) {
    const double lados = std::max(1., std::ceil(std::fabs(barrido) / VUELTA * LADOS_DE_VUELTA));
    for (double i = 0; i < lados; ++i) v.push_back(en(barrido * i / lados));
}

// The points of a polyline; of one that is gone through to its end only, that end is the last.
std::vector<Punto2D> contorno_de(const polilinea &l, bool hasta_el_final) {
    std::vector<Punto2D> v;
    const size_t n = l.vertices.size();
    for (size_t i = 0; i < n; ++i) {
        if (hasta_el_final && i + 1 == n) {
            v.push_back(l.vertices[i]);
            break;
        }
        const Punto2D &a = l.vertices[i], &b = l.vertices[(i + 1) % n];
        const double curvatura = i < l.curvaturas.size() ? l.curvaturas[i] : 0;
        if (curvatura == 0 || !std::isfinite(curvatura)) {
            v.push_back(a);
            continue;
        }
        const Punto2D c = arco_de(a, b, curvatura).centro;
        anade_curva(v, 4 * std::atan(curvatura), [&](double t) {
            const double x = a.x - c.x, y = a.y - c.y;
            return Punto2D{c.x + x * std::cos(t) - y * std::sin(t), c.y + x * std::sin(t) + y * std::cos(t)};
        });
    }
    return v;
}

// The points of a piece, both ends included.
std::vector<Punto2D> puntos_de(const capa &c, size_t cual) {
    if (cual < c.lineas.size()) return {c.lineas[cual].a, c.lineas[cual].b};
    cual -= c.lineas.size();
    if (cual >= c.arcos.size()) return contorno_de(c.polilineas[cual - c.arcos.size()], true);
    const arco &a = c.arcos[cual];
    const auto en = [&](double t) {
        return Punto2D{a.centro.x + a.radio * std::cos(t), a.centro.y + a.radio * std::sin(t)};
    };
    double barrido = std::fmod(a.hasta - a.desde, VUELTA);
    if (barrido <= 0) barrido += VUELTA;
    std::vector<Punto2D> v;
    anade_curva(v, barrido, [&](double t) { return en(a.desde + t); });
    v.push_back(en(a.hasta));
    return v;
}
// The points of a ring, the end of each piece left to the next.
std::vector<Punto2D> contorno_de(const capa &c, const anillo &pedazos) {
    std::vector<Punto2D> v;
    for (const auto &[cual, al_reves] : pedazos) {
        std::vector<Punto2D> suyos = puntos_de(c, cual);
        if (al_reves) std::reverse(suyos.begin(), suyos.end());
        v.insert(v.end(), suyos.begin(), suyos.end() - 1);
    }
    return v;
}

bool cierra(const polilinea &l) {
    const auto &v = l.vertices;
    return l.cerrada || (v.size() > 3 && v.front().x == v.back().x && v.front().y == v.back().y);
}

// An outline at a height, as the list of contours that the generators take.
class contorno {
  public:
    contorno(const std::vector<Punto2D> &puntos, double z)
        : puntos_(arr_CreaPunto3D(0)), lista_(arr_CreaPunteroST(0, arrPunto3D)) {
        for (const Punto2D &p : puntos) arr_AppendPunto3D(puntos_.get(), p.x, p.y, z);
        arr_AppendPunteroST(lista_, puntos_.get(), arrPunto3D);
    }
    ~contorno() { arr_DestruyePunteroST(&lista_, arrPunto3D); }
    contorno(const contorno &) = delete;
    contorno &operator=(const contorno &) = delete;
    const arrPuntero *lista() const { return lista_; }

  private:
    dueno_puntos3D puntos_;
    arrPuntero *lista_;
};

dueno_malla prisma_de(const std::vector<Punto2D> &base, double alto) {
    const contorno abajo(base, 0), arriba(base, alto);
    return dueno_malla(
        vornmesh_genera_prisma_por_extrusion2(abajo.lista(), 0, 0, -1, CIERTO, arriba.lista(), 0, 0, 1, CIERTO));
}
// Calls f with the ring of each face.
template <class F> void cada_cara(const mesh *m, F f) {
    const dueno_caras caras(vornmesh_obtener_caras_3d(m, 0, 0, nullptr));
    for (uint32_t i = 0; i < arr_NumElemsPuntero(caras.get()); ++i) f(arr_GetPunteroST(caras.get(), i, arrPunto3D));
}

// Fills in a tint of the colour, lighter the more of the background there is in it.
void rellena(salida_t *s, const arrPunto3D *puntos, uint32_t rgb, uint32_t fondo, double claro) {
    vornplan_escr_color_rgb(s, idcolor_color_rgb_mezcla(rgb, fondo, claro));
    vplan_escr_poligono3D_relleno(s, puntos);
    vornplan_escr_color_rgb(s, rgb);
}
// What is seen of a prism: its sides, the farthest first, with their edges, and its top over them.
void dibuja_prisma(salida_t *s, const std::vector<Punto2D> &base, double alto, uint32_t rgb, uint32_t fondo) {
    // A bend of less is that of a curve, and no edge.
    const double SUAVE = std::cos(std::numbers::pi / 9);
    constexpr double TAPA = 0.92, DE_FRENTE = 0.75, DE_LADO = 0.6;
    const vista v = axonometria();
    const size_t n = base.size();
    std::vector<Punto3D> normales;
    std::vector<std::pair<double, size_t>> vistos;
    for (size_t i = 0; i < n; ++i) {
        const Punto2D &a = base[i], &b = base[(i + 1) % n];
        const double largo = std::hypot(b.x - a.x, b.y - a.y);
        normales.push_back({(b.y - a.y) / largo, (a.x - b.x) / largo, 0});
        if (escalar(normales[i], v.hacia) > 0) vistos.emplace_back(escalar({a.x + b.x, a.y + b.y, 0}, v.hacia), i);
    }
    std::sort(vistos.begin(), vistos.end());
    const auto arista = [&](size_t i, size_t lado, size_t otro) {
        const bool borde = escalar(normales[otro], v.hacia) <= 0 || escalar(normales[lado], normales[otro]) < SUAVE;
        if (borde) vplan_escr_linea_3D(s, base[i].x, base[i].y, 0, base[i].x, base[i].y, alto);
    };
    for (const auto &[lejos, i] : vistos) {
        const size_t j = (i + 1) % n;
        const Punto2D &a = base[i], &b = base[j];
        const double de_lado = std::fabs(escalar(normales[i], v.derecha));
        const dueno_puntos3D cara(arr_CreaPunto3D(0));
        for (const Punto3D &p : {Punto3D{a.x, a.y, 0}, {b.x, b.y, 0}, {b.x, b.y, alto}, {a.x, a.y, alto}})
            arr_AppendPunto3D(cara.get(), p.x, p.y, p.z);
        rellena(s, cara.get(), rgb, fondo, DE_FRENTE + (DE_LADO - DE_FRENTE) * de_lado);
        vplan_escr_linea_3D(s, a.x, a.y, 0, b.x, b.y, 0);
        arista(i, i, (i + n - 1) % n);
        arista(j, i, j);
    }
    const dueno_puntos3D tapa(arr_CreaPunto3D(0));
    for (const Punto2D &p : base) arr_AppendPunto3D(tapa.get(), p.x, p.y, alto);
    rellena(s, tapa.get(), rgb, fondo, TAPA);
    vplan_escr_poligono3D(s, tapa.get());
}

} // namespace

prismas::prismas(const plano &p, double alto) : p_(p), alto_(alto) {
    for (size_t i = 0; i < p.capas.size(); ++i) {
        const capa &c = p.capas[i];
        if (c.apagada) continue;
        for (const circulo &k : c.circulos) {
            std::vector<Punto2D> v;
            anade_curva(v, VUELTA, [&](double t) {
                return Punto2D{k.centro.x + k.radio * std::cos(t), k.centro.y + k.radio * std::sin(t)};
            });
            anade(i, std::move(v));
        }
        for (const elipse &e : c.elipses) {
            if (!da_la_vuelta(e.desde, e.hasta)) continue;
            std::vector<Punto2D> v;
            anade_curva(v, VUELTA, [&](double t) {
                const double x = std::cos(t), y = std::sin(t) * e.razon;
                return Punto2D{e.centro.x + e.eje.x * x - e.eje.y * y, e.centro.y + e.eje.y * x + e.eje.x * y};
            });
            anade(i, std::move(v));
        }
        for (const polilinea &l : c.polilineas)
            if (cierra(l)) anade(i, contorno_de(l, false));
        for (const anillo &a : anillos_de(c, metros_de(p))) anade(i, contorno_de(c, a));
    }
}

void prismas::anade(size_t capa, std::vector<Punto2D> puntos) {
    const double metros = metros_de(p_);
    std::vector<Punto2D> v;
    const auto es_el_mismo = [](const Punto2D &a, const Punto2D &b) {
        return std::fabs(a.x - b.x) < MISMO_PUNTO && std::fabs(a.y - b.y) < MISMO_PUNTO;
    };
    for (const Punto2D &p : puntos) {
        const Punto2D q = {p.x * metros, p.y * metros};
        if (!std::isfinite(q.x) || !std::isfinite(q.y)) return;
        if (v.empty() || !es_el_mismo(v.back(), q)) v.push_back(q);
    }
    while (v.size() > 1 && es_el_mismo(v.front(), v.back())) v.pop_back();
    if (v.size() < 3) return;
    double doble = 0; // twice the area, about the first point
    for (size_t i = 1; i + 1 < v.size(); ++i)
        doble += (v[i].x - v[0].x) * (v[i + 1].y - v[0].y) - (v[i].y - v[0].y) * (v[i + 1].x - v[0].x);
    if (std::fabs(doble) < MISMO_PUNTO * MISMO_PUNTO) return;
    if (doble < 0) std::reverse(v.begin(), v.end());
    bases_.push_back({capa, std::move(v)});
}

// ---------------------------------------------------------------- OBJ

void prismas::escribe_obj(vnfichero *f) const {
    escritor escribe(f);
    escribe << "# metres\n";
    size_t capa = SIZE_MAX;
    uint64_t anteriores = 0;
    for (const base &b : bases_) {
        if (b.capa != capa) {
            // A name ends at a blank.
            std::string nombre = utf8(p_.capas[b.capa].nombre);
            for (char &c : nombre)
                if (static_cast<unsigned char>(c) <= ' ') c = '_';
            escribe << "g " << nombre << "\n";
            capa = b.capa;
        }
        const dueno_malla m = prisma_de(b.puntos, alto_);
        if (m == nullptr) continue;
        std::map<std::tuple<double, double, double>, uint64_t> numeros;
        std::string caras;
        cada_cara(m.get(), [&](const arrPunto3D *cara) {
            caras += "f";
            for (const Punto3D &p : puntos_de(cara)) {
                const auto [i, nuevo] = numeros.try_emplace({p.x, p.y, p.z}, anteriores + numeros.size() + 1);
                if (nuevo) escribe << "v " << exacto(p.x) << " " << exacto(p.y) << " " << exacto(p.z) << "\n";
                caras += " " + std::to_string(i->second);
            }
            caras += "\n";
        });
        escribe << caras;
        anteriores += numeros.size();
    }
    escribe.vuelca();
}

// ---------------------------------------------------------------- axonometry

extension prismas::limites_en_axonometria() const {
    const auto a = abre_dispositivo(limites::TIPO, std::make_unique<limites>());
    salida_t *const s = a.salida.get();
    anade_axonometria(s);
    for (const base &b : bases_)
        if (const dueno_malla m = prisma_de(b.puntos, alto_); m != nullptr) vplan_escr_mesh(s, m.get(), 0);
    vplan_desapila_transformacion(s);
    extension e;
    e.hay = a.suyo->hay();
    vplan_obtener_limites(s, &e.xmin, &e.ymin, &e.xmax, &e.ymax);
    return e;
}

// The farthest first, so that what is nearer covers it.
void prismas::dibuja_en_axonometria(lienzo &l) const {
    salida_t *const s = l.salida();
    const vista v = axonometria();
    std::vector<std::pair<double, const base *>> orden;
    for (const base &b : bases_) {
        double lejos = 0;
        for (const Punto2D &p : b.puntos) lejos += escalar({p.x, p.y, 0}, v.hacia);
        orden.emplace_back(lejos / static_cast<double>(b.puntos.size()), &b);
    }
    std::stable_sort(orden.begin(), orden.end(), [](const auto &a, const auto &b) { return a.first < b.first; });
    const uint32_t fondo = vplan_color_rgb_fondo(s), tipo_fondo = vplan_get_tipo_fondo(s);
    anade_axonometria(s);
    for (const auto &[lejos, b] : orden) {
        const idcolor color = color_de_capa(p_.capas[b->capa]);
        dibuja_prisma(s, b->puntos, alto_, idcolor_color_rgb_segun_fondo(&color, tipo_fondo), fondo);
        l.vuelca();
    }
    vplan_desapila_transformacion(s);
}

} // namespace obra
