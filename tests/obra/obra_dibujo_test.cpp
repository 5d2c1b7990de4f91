// The sample host's pictures: what its devices make of a drawing, by the text of the SVG.
#include "dibuja.h"
#include "dispositivo_limites.h"
#include "filas.h"
#include "informe.h"
#include "malla.h"
#include "posesion.h"
#include "propiedades.h"
#include <cmath>
#include <nucleos/foundation/listas/arr.h>
#include <numbers>
#include <set>
#include <sstream>

using namespace obra;
using std::numbers::pi;

namespace {

std::string hecho(const std::function<void(vnfichero *)> &escribe) {
    const std::string nombre = vn::Prueba::directorio() + "/hecho";
    vnfichero *const f = f_lc_fopen_u(vn::ancho(nombre).c_str(), VNU("wb"), VN_AQUI);
    escribe(f);
    EXPECT_EQ(lc_fclose(f), CIERTO);
    return vn::lee_fichero(nombre);
}
// An SVG of 100 by 100, a unit a millimetre, without what every one begins and ends with.
std::string svg_de(const std::function<void(salida_t *)> &pinta, uint32_t tipo_fondo = 0) {
    const std::string s = hecho([&](vnfichero *f) {
        const dueno_lienzo l = abre_svg({100, 100, 1, true, tipo_fondo}, f);
        pinta(l->salida());
        EXPECT_TRUE(l->acaba());
    });
    const size_t desde = s.find("<rect"), cuerpo = s.find('\n', desde) + 1, hasta = s.rfind("</svg>\n");
    EXPECT_NE(s.find("width=\"100mm\" height=\"100mm\" viewBox=\"0 0 100 100\""), s.npos);
    EXPECT_EQ(hasta + 7, s.size());
    return s.substr(cuerpo, hasta - cuerpo);
}
const avisado NADA = [](size_t) {};

// A layer with one figure: its kind and its numbers.
capa capa_con(const std::string &dicho) {
    std::istringstream s(dicho);
    std::string clase;
    s >> clase;
    const std::vector<double> n{std::istream_iterator<double>(s), {}};
    capa c{.nombre = vn::ancho("C")};
    if (clase == "linea") c.lineas = {{{n[0], n[1]}, {n[2], n[3]}}};
    else if (clase == "circulo") c.circulos = {{{n[0], n[1]}, n[2]}};
    else if (clase == "arco") c.arcos = {{{n[0], n[1]}, n[2], n[3] * pi / 180, n[4] * pi / 180}};
    else if (clase == "elipse") c.elipses = {{{n[0], n[1]}, {n[2], n[3]}, n[4], n[5] * pi / 180, n[6] * pi / 180}};
    else {
        polilinea p{clase == "cerrada", {}, {}};
        for (size_t i = 0; i + 2 < n.size(); i += 3)
            p.vertices.push_back({n[i], n[i + 1]}), p.curvaturas.push_back(n[i + 2]);
        c.polilineas = {p};
    }
    return c;
}

// The contours of a region, as the output takes them.
class contornos {
  public:
    contornos(std::initializer_list<std::vector<Punto2D>> v) : lista_(arr_CreaPunteroST(0, arrPunto2D)) {
        for (const auto &puntos : v) {
            arrPunto2D *const a = arr_CreaPunto2D(0);
            for (const Punto2D &p : puntos) arr_AppendPunto2D(a, p.x, p.y);
            arr_AppendPunteroST(lista_, a, arrPunto2D);
        }
    }
    ~contornos() { arr_DestruyeEstructurasST(&lista_, arrPunto2D, arr_DestruyePunto2D); }
    contornos(const contornos &) = delete;
    contornos &operator=(const contornos &) = delete;
    operator const arrPuntero *() const { return lista_; }

  private:
    arrPuntero *lista_;
};

} // namespace

PRUEBA(obra_dibujo, cada_figura_se_escribe_corta_y_con_la_y_hacia_abajo) {
    for (const auto &[figura, esperado] : vn::filas<std::string, std::string>("obra/dibujo.tsv", "figuras")) {
        plano p;
        p.capas = {capa_con(figura)};
        const std::string s = svg_de([&](salida_t *salida) { dibuja(p, salida, NADA); });
        const std::string antes = "<g id=\"capa0\" inkscape:groupmode=\"layer\" inkscape:label=\"C\">\n"
                                  "<g stroke=\"#000000\" stroke-width=\"0.25\">\n";
        EXPECT_EQ(s, esperado.empty() ? "" : antes + esperado + "</g>\n</g>\n") << figura;
    }
}

PRUEBA(obra_dibujo, los_numeros_y_los_nombres_caben_en_xml) {
    for (const auto &[x, dicho] : vn::filas<double, std::string>("obra/dibujo.tsv", "numeros"))
        EXPECT_EQ(hecho([&numero = x](vnfichero *f) {
                      escritor e(f);
                      e << numero, e.vuelca();
                  }),
                  dicho);
    for (const auto &[nombre, dicho] : vn::filas<std::string, std::string>("obra/dibujo.tsv", "nombres"))
        EXPECT_EQ(xml_de(nombre), dicho);
}

PRUEBA(obra_dibujo, rellenos_con_huecos_rayados_y_degradados) {
    const contornos cuadro{{{10, 10}, {30, 10}, {30, 30}, {10, 30}}}, hueco{{{15, 15}, {25, 15}, {25, 25}, {15, 25}}},
        nada{};
    const dueno_puntos origen(arr_CreaPunto2D(0)), paso(arr_CreaPunto2D(0)), junto(arr_CreaPunto2D(0));
    arr_AppendPunto2D(origen.get(), 12, 10);
    arr_AppendPunto2D(paso.get(), 0, 8);
    arr_AppendPunto2D(junto.get(), 0, 0.01);
    vn::dueno<arr_DestruyeDouble> angulo(arr_CreaDouble(0)), trazo(arr_CreaDouble(0));
    arr_AppendDouble(angulo.get(), 0);
    for (const double x : {3., -1.}) arr_AppendDouble(trazo.get(), x);
    arrPuntero *trazos = arr_CreaPunteroST(0, arrDouble);
    arr_AppendPunteroST(trazos, trazo.get(), arrDouble);
    const std::function<void(salida_t *)> figuras[] = {
        [&](salida_t *s) { vplan_escr_relleno_regiones(s, cuadro, hueco); },
        [&](salida_t *s) { vplan_escr_borde_regiones(s, cuadro, nada); },
        [&](salida_t *s) { vplan_escr_circulo_relleno(s, 50, 50, 5); },
        [&](salida_t *s) { vplan_escr_rectangulo_relleno(s, 0, 0, 1, 2); },
        [&](salida_t *s) {
            vplan_escr_relleno_regiones_con_gradiente_lineal(s, cuadro, nada, 0xFF0000FF, 0x80FF0000, 10, 10, 30, 10);
        },
        [&](salida_t *s) { vplan_escr_linea_con_gradiente(s, 0, 0, 0xFF000000, 10, 0, 0xFFFFFFFF); },
        [&](salida_t *s) { vplan_escr_hatch(s, cuadro, angulo.get(), origen.get(), paso.get(), trazos); },
        [&](salida_t *s) { vplan_escr_hatch(s, cuadro, angulo.get(), origen.get(), junto.get(), nullptr); },
    };
    const auto esperados = vn::filas<std::string>("obra/dibujo.tsv", "rellenos");
    ASSERT_EQ(esperados.size(), std::size(figuras));
    for (size_t i = 0; i < std::size(figuras); ++i) {
        const std::string s = svg_de(figuras[i]), antes = "<g stroke=\"#000000\" stroke-width=\"0.25\">\n";
        EXPECT_EQ(s, antes + std::get<0>(esperados[i]) + "</g>\n") << i;
    }
    arr_DestruyePunteroST(&trazos, arrDouble);
    // One of a region, or from an origin, that is beyond all measure ends all the same.
    for (const double lejos : {1e6, 1e18, 1e300}) {
        const contornos enorme{{{-lejos, -lejos}, {lejos, -lejos}, {0, lejos}}};
        arr_SetPunto2D(origen.get(), 0, lejos > 1e17 ? lejos : 0, lejos);
        EXPECT_LT(svg_de([&](salida_t *s) {
                      vplan_escr_hatch(s, enorme, angulo.get(), origen.get(), paso.get(), nullptr);
                  }).size(),
                  5000u);
    }
}

// Colour, pen and line type by the layer or by themselves, on each background.
PRUEBA(obra_dibujo, el_aspecto_es_el_de_la_capa_o_el_pedido) {
    plano p;
    p.tipos_de_linea = {vn::ancho("EJES"), vn::ancho("SIN")};
    p.trazos_de_linea = {{-1, 2, 3, 0}, {}};
    capa c = capa_con("linea 0 0 9 0");
    c.tipo_linea = vn::ancho("Ejes"); // names have no case
    c.color = 1;
    c.grosor_mm = 0.5;
    c.lineas.resize(5, c.lineas[0]);
    c.color_lineas = {256, 7, 0, 0x1000000 + 0x12AB34, 256};
    capa otra = capa_con("linea 0 1 9 1"), apagada = capa_con("linea 0 0 500 500");
    otra.tipo_linea = vn::ancho("SIN");
    apagada.apagada = true;
    p.capas = {c, otra, apagada};
    for (const auto &[fondo, esperado] : vn::filas<uint32_t, std::string>("obra/dibujo.tsv", "aspectos"))
        EXPECT_EQ(svg_de([&](salida_t *s) { dibuja(p, s, NADA); }, fondo), esperado);
    const extension e = limites_de(p, NADA);
    EXPECT_TRUE(e.xmax == 9 && e.ymax == 1);
    EXPECT_EQ(cuantas_se_dibujan(p), 6u);
}

// More layers than an output has numbers, and one that is gone back to: each group has an id of its own.
PRUEBA(obra_dibujo, ninguna_capa_se_pierde_ni_se_confunde) {
    plano p;
    for (int i = 0; i < 450; ++i) {
        p.capas.push_back(capa_con("linea 0 0 9 0"));
        p.capas.back().nombre = vn::ancho("capa " + std::to_string(i));
        p.capas.back().color = 0x1000000u + static_cast<uint32_t>(i);
    }
    const std::string s = svg_de([&](salida_t *salida) {
        dibuja(p, salida, NADA);
        dibuja(p, salida, NADA);
    });
    std::set<std::string> ids;
    for (size_t i = s.find(" id="); i != s.npos; i = s.find(" id=", i + 1))
        EXPECT_TRUE(ids.insert(s.substr(i, s.find('"', i + 6) - i)).second);
    EXPECT_EQ(ids.size(), 900u);
    for (int i = 0; i < 450; ++i) {
        char color[32];
        std::snprintf(color, sizeof color, "\"capa %d\">\n<g stroke=\"#%06x\"", i, static_cast<unsigned>(i));
        EXPECT_NE(s.find(color), s.npos) << color;
    }
}

// At the origin and at survey coordinates: the box of the limits device is that of the report, and the sheet holds it.
PRUEBA(obra_dibujo, los_limites_son_los_del_informe_y_encuadran) {
    vn::azar z(77);
    for (int caso = 0; caso < 200; ++caso) {
        const vn::lugar o = vn::lugar_de(caso);
        plano p;
        p.metros_por_unidad = caso % 3 == 0 ? 0.001 : 1;
        const double u = 1 / p.metros_por_unidad;
        const auto punto = [&] { return Punto2D{(o.x + z.entre(0, 90)) * u, (o.y + z.entre(0, 40)) * u}; };
        capa c{.nombre = vn::ancho("C")};
        for (int i = 0; i < 1 + caso % 4; ++i) {
            c.arcos.push_back({punto(), z.entre(1, 20) * u, z.entre(-7, 7), z.entre(-7, 7)});
            c.elipses.push_back(
                {punto(), {z.entre(1, 9) * u, z.entre(1, 9) * u}, z.entre(-1, 1), z.entre(-7, 7), z.entre(-7, 7)});
            c.polilineas.push_back({i % 2 == 0, {punto(), punto(), punto()}, {z.entre(-2, 2), 0, z.entre(-2, 2)}});
            c.circulos.push_back({punto(), z.entre(0, 9) * u});
        }
        p.capas = {c};
        const extension e = limites_de(p, NADA), d = extension_de(c);
        const double m = p.metros_por_unidad;
        ASSERT_TRUE(e.hay);
        // Of the layer's turns and radii at such coordinates.
        const double lejos = 1e-9 * (1 + std::fabs(o.y));
        for (const auto &[visto, dicho] :
             {std::pair{e.xmin, d.xmin}, {e.ymin, d.ymin}, {e.xmax, d.xmax}, {e.ymax, d.ymax}})
            EXPECT_NEAR(visto, dicho * m, lejos) << caso;
        const tamano t{.ancho_px = 500, .divisor = static_cast<uint16_t>(caso % 2 == 0 ? 0 : 50)};
        const hoja h = hoja_para(e, t, 0);
        const auto a = abre_dispositivo(limites::TIPO, std::make_unique<limites>());
        {
            const encuadre marco(a.salida.get(), h, e, t);
            dibuja(p, a.salida.get(), NADA);
        }
        double x1, y1, x2, y2;
        vplan_obtener_limites(a.salida.get(), &x1, &y1, &x2, &y2);
        EXPECT_NEAR(x1 + x2, h.ancho, 1e-4 * (1 + lejos));
        EXPECT_NEAR(y1 + y2, h.alto, 1e-4 * (1 + lejos));
        if (t.divisor > 0) EXPECT_NEAR(x2 - x1, (e.xmax - e.xmin) * 20, 1e-4);
        else EXPECT_TRUE(h.ancho == 500 && x1 > 9.9 && y1 > 9.9);
    }
}

// What a stored drawing may hold is no place: it is left out, and the picture stands.
PRUEBA(obra_dibujo, lo_que_no_es_lugar_no_se_dibuja) {
    plano p;
    p.metros_por_unidad = vn::NAN_;
    for (const char *clase : {"linea", "circulo", "arco", "elipse", "abierta"})
        for (const double raro : {vn::NAN_, vn::INF}) {
            std::ostringstream s;
            s << clase << " 1 1 2 2 .5 0 90";
            capa c = capa_con(s.str());
            for (linea &l : c.lineas) l.a.x = raro;
            for (circulo &k : c.circulos) k.radio = raro;
            for (arco &k : c.arcos) k.centro.y = raro;
            for (elipse &k : c.elipses) k.eje.x = raro;
            for (polilinea &k : c.polilineas) k.vertices[0].x = raro;
            p.capas.push_back(c);
        }
    const std::string s = svg_de([&](salida_t *salida) { dibuja(p, salida, NADA); });
    EXPECT_EQ(s.find("nan"), s.npos) << s;
    EXPECT_EQ(s.find("inf"), s.npos) << s;
    plano vacio;
    vacio.capas = {capa{}};
    EXPECT_FALSE(limites_de(vacio, NADA).hay);
}

// ---------------------------------------------------------------- prisms

namespace {

struct solido {
    size_t caras = 0, sin_pareja = 0;
    double volumen = 0;
};
// An OBJ: each edge of a face must be that of one other, the other way around.
solido solido_de(const std::string &obj) {
    std::istringstream s(obj);
    std::vector<Punto3D> v;
    std::map<std::pair<size_t, size_t>, int> aristas;
    solido r;
    for (std::string linea; std::getline(s, linea);) {
        std::istringstream t(linea);
        std::string que;
        t >> que;
        if (que == "v") {
            Punto3D p;
            t >> p.x >> p.y >> p.z;
            v.push_back(p);
        } else if (que == "f") {
            ++r.caras;
            const std::vector<size_t> i{std::istream_iterator<size_t>(t), {}};
            for (size_t k = 0; k < i.size(); ++k) ++aristas[{i[k], i[(k + 1) % i.size()]}];
            const Punto3D &o = v[0];
            for (size_t k = 1; k + 1 < i.size(); ++k) {
                const Punto3D &p = v.at(i[0] - 1), &a = v.at(i[k] - 1), &b = v.at(i[k + 1] - 1);
                r.volumen += ((p.x - o.x) * ((a.y - o.y) * (b.z - o.z) - (a.z - o.z) * (b.y - o.y)) -
                              (p.y - o.y) * ((a.x - o.x) * (b.z - o.z) - (a.z - o.z) * (b.x - o.x)) +
                              (p.z - o.z) * ((a.x - o.x) * (b.y - o.y) - (a.y - o.y) * (b.x - o.x))) /
                             6;
            }
        }
    }
    for (const auto &[arista, n] : aristas) {
        const auto otra = aristas.find({arista.second, arista.first});
        r.sin_pareja += n != 1 || otra == aristas.end() || otra->second != 1;
    }
    return r;
}

} // namespace

// Outlines of every kind, in either sense, in metres and in millimetres: closed, and turned outwards.
PRUEBA(obra_dibujo, los_contornos_se_levantan_en_prismas_cerrados) {
    for (const auto &[figura, volumen] : vn::filas<std::string, double>("obra/dibujo.tsv", "prismas"))
        for (const double m : {1., 0.001}) {
            plano p;
            p.metros_por_unidad = m;
            p.capas = {capa_con(figura)};
            const prismas q(p, 2);
            EXPECT_EQ(q.vacio(), volumen == 0) << figura;
            if (q.vacio()) continue;
            const solido s = solido_de(hecho([&](vnfichero *f) { q.escribe_obj(f); }));
            EXPECT_EQ(s.sin_pareja, 0u) << figura << m;
            EXPECT_NEAR(s.volumen / (m * m), volumen, 1e-3 * volumen) << figura << m; // curves have 64 sides
        }
    // A ring of pieces of each kind, one drawn backwards and one twice, beside one that does not close.
    plano p;
    p.capas = {capa_con("arco 2 2 2 0 180")};
    p.capas[0].lineas = {{{0, 0}, {4, 0}}, {{4, 2}, {4, 0}}, {{0, 0}, {4, 0}}, {{9, 9}, {9, 8}}, {{9, 8}, {7, 9}}};
    p.capas[0].polilineas = {{false, {{0, 2}, {0, 1}, {0, 0}}, {0, 0, 0}}};
    const prismas anillo_solo(p, 2);
    const solido unico = solido_de(hecho([&](vnfichero *f) { anillo_solo.escribe_obj(f); }));
    EXPECT_EQ(unico.sin_pareja, 0u);
    EXPECT_NEAR(unico.volumen, 2 * (8 + 64 * std::sin(pi / 32)), 1e-9);
    p.capas = {capa_con("cerrada 0 0 0 4 0 0 4 3 0 0 3 0"), capa_con("circulo 9 9 1")};
    p.capas[0].nombre = vn::ancho("con blanco");
    const prismas q(p, 3);
    EXPECT_NE(hecho([&](vnfichero *f) { q.escribe_obj(f); }).find("\ng con_blanco\nv "), std::string::npos);
    const extension e = q.limites_en_axonometria();
    // The corner nearest to who looks stands lowest.
    EXPECT_TRUE(e.hay && vn::cerca(e.xmin, 0) && vn::cerca(e.ymin, -2 / std::sqrt(3.))) << e.xmin << " " << e.ymin;
    const std::string s = hecho([&](vnfichero *f) {
        const tamano t;
        const hoja h = hoja_para(e, t, 0);
        const dueno_lienzo l = abre_svg(h, f);
        const encuadre marco(l->salida(), h, e, t);
        q.dibuja_en_axonometria(*l);
        l->acaba();
    });
    // Of the box three faces are seen, of the drum half its sides and its top; all lies on the sheet.
    size_t rellenos = 0;
    for (size_t k = s.find(" fill=\"#", s.find("<g")); k != s.npos; k = s.find(" fill=\"#", k + 1)) ++rellenos;
    EXPECT_EQ(rellenos, 3u + 32 + 1);
    EXPECT_EQ(s.find("\"M-"), s.npos);
}
