// The DXF device: AutoCAD R2000, each figure as the entity that it is, in metres. Entities are kept until the end: the
// layers and the box that they turn out to have stand before them.
#include "dispositivos.h"
#include "escritor_dxf.h"
#include "informe.h"
#include "posesion.h"
#include <algorithm>
#include <array>
#include <cmath>
#include <nucleos/drawing/capadxf.h>
#include <nucleos/drawing/tipolin.h>
#include <nucleos/foundation/listas/arr.h>
#include <nucleos/foundation/texto/unicode.h>
#include <numbers>

namespace obra {
namespace {

constexpr double VUELTA = 2 * std::numbers::pi, EN_GRADOS = 180 / std::numbers::pi;
constexpr Punto3D HACIA_ARRIBA = {0, 0, 1};

// Records that every drawing has. Those of the drawing come after.
enum asa : uint32_t {
    TABLA_VPORT = 1,
    TABLA_LTYPE,
    TABLA_LAYER,
    TABLA_STYLE,
    TABLA_VIEW,
    TABLA_UCS,
    TABLA_APPID,
    TABLA_DIMSTYLE,
    TABLA_BLOCK_RECORD,
    VPORT_ACTIVO,
    LTYPE_BYBLOCK,
    LTYPE_BYLAYER,
    ESTILO,
    APLICACION,
    ESTILO_COTA,
    REGISTRO_MODELO,
    REGISTRO_PAPEL,
    BLOQUE_MODELO,
    FIN_BLOQUE_MODELO,
    BLOQUE_PAPEL,
    FIN_BLOQUE_PAPEL,
    DICCIONARIO,
    DICCIONARIO_GRUPOS,
    DICCIONARIO_ESTILOS,
    ESTILO_DE_TRAZADO,
    PRIMERA_LIBRE
};

// The thicknesses that there are, in hundredths of a millimetre.
constexpr int GROSORES[] = {0,  5,  9,  13, 15, 18,  20,  25,  30,  35,  40,  50,
                            53, 60, 70, 80, 90, 100, 106, 120, 140, 158, 200, 211};
constexpr int GROSOR_POR_DEFECTO = -3;
int grosor_dxf(double mm) {
    const double centesimas = std::clamp(mm * 100, 0., 211.);
    return *std::min_element(std::begin(GROSORES), std::end(GROSORES),
                             [&](int a, int b) { return std::fabs(a - centesimas) < std::fabs(b - centesimas); });
}

// A contour of a fill: a polyline with bulges, or part of an ellipse and its chord.
struct contorno {
    std::vector<Punto2D> vertices;
    std::vector<double> curvaturas; // none: straight
};
// What stands for a gradient, which this version of the format has none of.
uint32_t intermedio(uint32_t a, uint32_t b) { return idcolor_color_rgb_mezcla(a, b, 0.5); }

// Line types by number; the second continuous one has no pattern of its own.
constexpr uint8_t TIPO_MAXIMO = 10, CONTINUA_REPETIDA = 8;
class dxf : public dispositivo {
  public:
    static constexpr const char *NOMBRE = "obra: dxf";
    static constexpr uint32_t TIPO = 5; // a kind of the host's, with layers

    explicit dxf(vnfichero *f) : dispositivo(FONDO_NEGRO), f_(f) {
        capas_.push_back({"0", {}});
        capas_.back().suyos.color = {0, BLANCO, 0xFFFFFFFF};
        capas_.back().suyos.linea.numero = 0;
    }
    void acaba() {
        const std::string tablas_escritas = tablas().texto_escrito; // after which all handles are known
        for (const std::string &s : {cabecera().texto_escrito, tablas_escritas, bloques().texto_escrito,
                                     e_.texto_escrito, objetos().texto_escrito})
            f_lc_fwrite(s.data(), 1, s.size(), f_, VN_AQUI);
    }
    static void pon_funciones(vplan_funciones &f);

  private:
    static constexpr uint32_t FONDO_NEGRO = 2;
    static constexpr uint8_t BLANCO = 7;

    // ------------------------------------------------------------ figures
    void linea(double x1, double y1, double x2, double y2) {
        const figura f(*this, "LINE", "AcDbLine");
        e_.pon(10, visto(x1, y1));
        e_.pon(11, visto(x2, y2));
    }
    void linea_gradiente(double x1, double y1, uint32_t rgba1, double x2, double y2, uint32_t rgba2) {
        con_color(intermedio(rgba1, rgba2), [&] { linea(x1, y1, x2, y2); });
    }
    void circulo(double xc, double yc, double radio, vnbool relleno) {
        if (relleno != FALSO) return rellena({{{{xc - radio, yc}, {xc + radio, yc}}, {1, 1}}});
        anade_arco(caja_, {xc, yc}, {radio, 0}, {0, radio}, 0, VUELTA);
        const figura f(*this, "CIRCLE", "AcDbCircle");
        e_.pon(10, Punto3D{xc, yc, 0});
        e_.pon(40, radio);
    }
    void arco(double xc, double yc, double x1, double y1, double x2, double y2, vnbool relleno) {
        const double radio = std::hypot(x1 - xc, y1 - yc), desde = std::atan2(y1 - yc, x1 - xc),
                     hasta = std::atan2(y2 - yc, x2 - xc);
        if (relleno != FALSO) {
            return rellena({{{{x1, y1}, {x2, y2}}, {std::tan(barrido_de(desde, hasta) / 4), 0}}});
        }
        anade_arco(caja_, {xc, yc}, {radio, 0}, {0, radio}, desde, hasta);
        const figura f(*this, "ARC", "AcDbCircle");
        e_.pon(10, Punto3D{xc, yc, 0});
        e_.pon(40, radio);
        e_.pon(100, "AcDbArc");
        e_.pon(50, desde * EN_GRADOS);
        e_.pon(51, hasta * EN_GRADOS);
    }
    void elipse(double xc, double yc, double ra, double rb, double angulo, vnbool relleno) {
        arco_elipse(xc, yc, ra, rb, 0, VUELTA, angulo, relleno);
    }
    void arco_elipse(double xc, double yc, double ra, double rb, double desde, double hasta, double angulo,
                     vnbool relleno) {
        const double barrido = barrido_de(desde, hasta);
        // The first axis is the longer one.
        if (rb > ra) {
            std::swap(ra, rb);
            angulo += VUELTA / 4;
            if (barrido < VUELTA) desde -= VUELTA / 4;
        }
        desde = std::fmod(desde, VUELTA);
        if (desde < 0) desde += VUELTA;
        if (barrido >= VUELTA) desde = 0;
        hasta = desde + barrido;
        if (hasta > VUELTA) hasta -= VUELTA;
        const Punto2D centro = {xc, yc}, u = {ra * std::cos(angulo), ra * std::sin(angulo)},
                      v = {-rb * std::sin(angulo), rb * std::cos(angulo)};
        anade_arco(caja_, centro, u, v, desde, hasta);
        if (relleno != FALSO) return rellena_elipse(centro, u, v, rb / ra, desde, hasta, barrido >= VUELTA);
        const figura f(*this, "ELLIPSE", "AcDbEllipse");
        e_.pon(10, Punto3D{xc, yc, 0});
        e_.pon(11, Punto3D{u.x, u.y, 0});
        e_.pon(210, HACIA_ARRIBA);
        e_.pon(40, rb / ra);
        e_.pon(41, desde);
        e_.pon(42, hasta);
    }
    void punto(double x, double y) {
        const figura f(*this, "POINT", "AcDbPoint");
        e_.pon(10, visto(x, y));
    }
    void polilinea(const arrPunto2D *puntos) { polilinea_de(puntos_de(puntos), false); }
    void poligono(const arrPunto2D *puntos, vnbool relleno) {
        if (relleno != FALSO) rellena({contorno_de(puntos_de(puntos))});
        else polilinea_de(puntos_de(puntos), true);
    }
    void cara(double x1, double y1, double z1, vnbool visible1, double x2, double y2, double z2, vnbool visible2,
              double x3, double y3, double z3, vnbool visible3, double x4, double y4, double z4, vnbool visible4) {
        int ocultos = 0, bit = 1;
        for (const vnbool v : {visible1, visible2, visible3, visible4}) {
            if (v == FALSO) ocultos |= bit;
            bit *= 2;
        }
        const figura f(*this, "3DFACE", "AcDbFace");
        cuatro({{{x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3}, {x4, y4, z4}}});
        e_.pon(70, ocultos);
    }
    void solido(double x1, double y1, double z1, double x2, double y2, double z2, double x3, double y3, double z3,
                double x4, double y4, double z4) {
        const figura f(*this, "SOLID", "AcDbTrace");
        cuatro({{{x1, y1, z1}, {x2, y2, z2}, {x3, y3, z3}, {x4, y4, z4}}});
    }
    void rayo(double x1, double y1, double x2, double y2) { recta("RAY", "AcDbRay", {x1, y1}, {x2, y2}); }
    void linea_referencia(double x1, double y1, double x2, double y2) {
        recta("XLINE", "AcDbXline", {x1, y1}, {x2, y2});
    }
    void rotulo(const vnwchar *letras, double x, double y, uint8_t justificacion, double alto, double ancho,
                double coseno, double seno, double, uint8_t) {
        // The anchor across: on the base line, at the bottom, in the middle, at the top.
        enum { BASE, ABAJO, EN_MEDIO, ARRIBA };
        constexpr int EN_ALTURA[] = {BASE, EN_MEDIO, ARRIBA, BASE, EN_MEDIO, BASE};
        const int codigo = std::clamp<int>(justificacion, 1, 18) - 1, a_lo_largo = codigo % 3,
                  en_altura = EN_ALTURA[codigo / 3];
        const figura f(*this, "TEXT", "AcDbText");
        e_.pon(10, visto(x, y));
        e_.pon(40, alto);
        e_.pon(1, texto_de_dxf(letras));
        e_.pon(50, std::atan2(seno, coseno) * EN_GRADOS);
        if (ancho != alto && alto > 0) e_.pon(41, ancho / alto);
        if (a_lo_largo != 0) e_.pon(72, a_lo_largo);
        if (a_lo_largo != 0 || en_altura != BASE) e_.pon(11, Punto3D{x, y, 0});
        e_.pon(100, "AcDbText");
        if (en_altura != BASE) e_.pon(73, en_altura);
    }

    // ------------------------------------------------------------ fills
    void regiones(const arrPuntero *exteriores, const arrPuntero *interiores, vnbool con_borde) {
        std::vector<contorno> contornos = contornos_de(exteriores);
        std::ranges::move(contornos_de(interiores), std::back_inserter(contornos));
        if (con_borde != FALSO) return rellena(contornos);
        for (const contorno &c : contornos) polilinea_de(c.vertices, true);
    }
    void regiones_gradiente(const arrPuntero *exteriores, const arrPuntero *interiores, uint32_t, double, double,
                            double, double, uint32_t rgba1, uint32_t rgba2) {
        con_color(intermedio(rgba1, rgba2), [&] { regiones(exteriores, interiores, CIERTO); });
    }
    void rayado(const arrPuntero *contornos, const arrDouble *angulos, const arrPunto2D *origenes,
                const arrPunto2D *pasos, const arrPuntero *trazos) {
        const std::vector<contorno> suyos = contornos_de(contornos);
        if (angulos == nullptr || origenes == nullptr || pasos == nullptr) return rellena(suyos);
        const auto a = numeros_de(angulos);
        const auto o = puntos_de(origenes), d = puntos_de(pasos);
        const size_t n = std::min({a.size(), o.size(), d.size()});
        if (n == 0) return;
        const figura_rellena f(*this, suyos, false);
        e_.pon(75, 0);
        e_.pon(76, 2); // of its own
        e_.pon(52, 0.);
        e_.pon(41, 1.);
        e_.pon(77, 0);
        e_.pon(78, static_cast<int>(n));
        for (size_t i = 0; i < n; ++i) {
            e_.pon(53, a[i] * EN_GRADOS);
            e_.pon(43, o[i].x), e_.pon(44, o[i].y);
            e_.pon(45, d[i].x), e_.pon(46, d[i].y);
            std::span<const double> longitudes;
            if (trazos != nullptr && i < arr_NumElemsPuntero(trazos))
                longitudes = numeros_de(arr_GetPunteroST(trazos, static_cast<uint32_t>(i), arrDouble));
            e_.pon(79, static_cast<int>(longitudes.size()));
            for (const double l : longitudes) e_.pon(49, l);
        }
    }

    struct capa_escrita {
        std::string nombre; // as it stands in the file
        atributos suyos;
    };
    struct tipo_escrito {
        texto nombre, descripcion;
        std::vector<double> trazos; // gaps below 0, points 0
    };

    vnfichero *f_;
    escritor_dxf e_; // the entities
    extension caja_;
    uint32_t siguiente_asa_ = PRIMERA_LIBRE;
    std::vector<capa_escrita> capas_;
    std::map<std::string, std::string> nombres_de_capa_; // as they are written, by those that they were given
    std::string en_capa_ = "0";
    std::vector<tipo_escrito> tipos_;
    std::optional<uint32_t> rgb_; // instead of the colour

    // An entity: what all have before, and none of it where it holds what is no number.
    class figura {
      public:
        figura(dxf &d, const char *clase, const char *subclase)
            : d_(d), desde_(d.e_.texto_escrito.size()), caja_(d.caja_) {
            d.e_.hubo_no_finitos();
            d.comun(clase);
            d.e_.pon(100, subclase);
        }
        figura(const figura &) = delete;
        figura &operator=(const figura &) = delete;
        ~figura() {
            if (!d_.e_.hubo_no_finitos()) return;
            d_.e_.texto_escrito.resize(desde_);
            d_.caja_ = caja_;
        }

      private:
        dxf &d_;
        size_t desde_;
        extension caja_;
    };
    // The entity of a fill up to its contours, and its end.
    class figura_rellena : figura {
      public:
        figura_rellena(dxf &d, std::span<const contorno> contornos, bool macizo)
            : figura_rellena(d, macizo, contornos.size()) {
            for (const contorno &c : contornos) d.borde(c);
        }
        figura_rellena(dxf &d, bool macizo, size_t contornos) : figura(d, "HATCH", "AcDbHatch"), d_(d) {
            d.e_.pon(10, Punto3D{0, 0, 0});
            d.e_.pon(210, HACIA_ARRIBA);
            d.e_.pon(2, macizo ? "SOLID" : "_USER");
            d.e_.pon(70, macizo);
            d.e_.pon(71, 0);
            d.e_.pon(91, static_cast<int>(contornos));
        }
        ~figura_rellena() { d_.e_.pon(98, 0); }

      private:
        dxf &d_;
    };

    Punto3D visto(double x, double y, double z = 0) {
        caja_.anade(x, y);
        return {x, y, z};
    }
    template <class F> void con_color(uint32_t rgb, F f) {
        rgb_ = rgb;
        f();
        rgb_.reset();
    }

    void comun(const char *clase) {
        e_.pon(0, clase);
        e_.pon_asa(5, siguiente_asa_++);
        e_.pon_asa(330, REGISTRO_MODELO);
        e_.pon(100, "AcDbEntity");
        e_.pon(8, en_capa_);
        if (const linea_pedida &l = pedidos_.linea; !l.nombre.empty() || l.numero <= TIPO_MAXIMO)
            e_.pon(6, nombre_de_dxf(tipo_de(l)));
        if (rgb_) color_directo(e_, *rgb_);
        else if (idcolor_es_vplan_porcapa(&pedidos_.color) == FALSO) color(e_, pedidos_.color, false);
        if (const auto g = grosor_de_pluma(pedidos_.pluma, pedidos_.grosor_mm)) e_.pon(370, grosor_dxf(*g));
    }
    static void color_directo(escritor_dxf &e, uint32_t rgb) {
        uint8_t r, g, b;
        idcolor_get_rgba(rgb, &r, &g, &b, nullptr);
        uint8_t indice = 0;
        if (idcolor_dame_indice_color_autocad(rgb & 0xFFFFFF, &indice) == FALSO)
            indice = idcolor_dame_indice_color_autocad_mas_cercano_a_RGB(rgb & 0xFFFFFF);
        e.pon(62, indice);
        e.pon(420, r << 16 | g << 8 | b);
    }
    static void color(escritor_dxf &e, const idcolor &c, bool de_capa) {
        if (idcolor_es_color_paleta(&c) == FALSO) return color_directo(e, c.rgba);
        const int indice = idcolor_color_paleta_autocad(&c);
        e.pon(62, indice == 0 && de_capa ? BLANCO : indice);
    }

    // ------------------------------------------------------------ layers and line types
    uint8_t anota_capa(uint8_t capa, const vnwchar *nombre, uint32_t pluma, double grosor_mm, const idcolor *suyo,
                       uint8_t tipo, const vnwchar *definido, uint8_t extra) {
        const atributos a = {*suyo, pluma, grosor_mm, {tipo, definido != nullptr ? definido : texto()}};
        const std::string &escrito = nombre_de_capa(utf8(nombre));
        const auto i = std::find_if(capas_.begin(), capas_.end(), [&](const auto &c) { return c.nombre == escrito; });
        if (i == capas_.end()) capas_.push_back({escrito, a});
        else if (i == capas_.begin()) i->suyos = a; // the one that there always is
        return define_capa(capa, nombre, pluma, grosor_mm, suyo, tipo, definido, extra);
    }
    void cambia_capa() override {
        const capa_definida *const c = capa_actual();
        en_capa_ = c != nullptr ? nombre_de_capa(c->nombre) : "0";
    }
    // One that no layer of another name has in this file.
    const std::string &nombre_de_capa(const std::string &dado) {
        const auto puesto = nombres_de_capa_.try_emplace(dado);
        const auto i = puesto.first;
        if (!puesto.second) return i->second;
        const dueno_ancho ancho(unicode_convierte_UTF8_a_UNICODE(dado.c_str()));
        const dueno_ancho valido(capadxf_nombre_valido_para_capa_u(ancho.get()));
        const std::string base = nombre_de_dxf(valido.get());
        i->second = base;
        const auto es_de_otra = [&](const auto &n) { return &n != &*i && n.second == i->second; };
        for (int n = 2; std::any_of(nombres_de_capa_.begin(), nombres_de_capa_.end(), es_de_otra); ++n)
            i->second = base + "_" + std::to_string(n);
        return i->second;
    }
    void anota_tipo(const vnwchar *nombre, const vnwchar *descripcion, const arrDouble *trazos) {
        const auto t = numeros_de(trazos);
        if (tipo_escrito_de(nombre) == nullptr) tipos_.push_back({nombre, descripcion, {t.begin(), t.end()}});
        define_tipo_linea(nombre, descripcion, trazos);
    }
    const tipo_escrito *tipo_escrito_de(const texto &nombre) const {
        for (const tipo_escrito &t : tipos_)
            if (widestr_cadenas_iguales_may_o_min(t.nombre.c_str(), nombre.c_str()) == CIERTO) return &t;
        return nullptr;
    }
    // Its name in the table of line types, where it is from then on: one that nobody has defined is a continuous one.
    texto tipo_de(const linea_pedida &l) {
        const bool por_numero = l.nombre.empty();
        const uint8_t numero = l.numero == CONTINUA_REPETIDA || l.numero > TIPO_MAXIMO ? 0 : l.numero;
        const texto nombre = por_numero ? tipolin_dame_nombre_tipo_vorn_linea(numero) : l.nombre;
        if (const tipo_escrito *const t = tipo_escrito_de(nombre)) return t->nombre;
        tipos_.push_back({nombre, {}, {}});
        if (!por_numero) return nombre;
        const vn::dueno<arr_DestruyeDouble> patron(tipolin_dame_patron_aproximado(numero));
        const auto trazos = numeros_de(patron.get());
        tipos_.back().trazos.assign(trazos.begin(), trazos.end());
        return nombre;
    }

    // ------------------------------------------------------------ parts of entities
    void polilinea_de(std::span<const Punto2D> p, bool cerrada) {
        if (p.size() > 1 && p.front().x == p.back().x && p.front().y == p.back().y) {
            cerrada = true;
            p = p.first(p.size() - 1);
        }
        if (p.empty()) return;
        const figura f(*this, "LWPOLYLINE", "AcDbPolyline");
        e_.pon(90, static_cast<int>(p.size()));
        e_.pon(70, cerrada);
        for (const Punto2D &v : p) {
            caja_.anade(v.x, v.y);
            e_.pon(10, v);
        }
    }
    void cuatro(const std::array<Punto3D, 4> &p) {
        for (int i = 0; i < 4; ++i) e_.pon(10 + i, visto(p[i].x, p[i].y, p[i].z));
    }
    void recta(const char *clase, const char *subclase, Punto2D a, Punto2D b) {
        const double l = std::hypot(b.x - a.x, b.y - a.y);
        const figura f(*this, clase, subclase);
        e_.pon(10, visto(a.x, a.y));
        e_.pon(11, Punto3D{(b.x - a.x) / l, (b.y - a.y) / l, 0});
    }
    static contorno contorno_de(std::span<const Punto2D> p) {
        if (p.size() > 1 && p.front().x == p.back().x && p.front().y == p.back().y) p = p.first(p.size() - 1);
        return {{p.begin(), p.end()}, {}};
    }
    static std::vector<contorno> contornos_de(const arrPuntero *a) {
        std::vector<contorno> v;
        cada_contorno(a, [&](std::span<const Punto2D> p) { v.push_back(contorno_de(p)); });
        std::erase_if(v, [](const contorno &c) { return c.vertices.size() < 2; });
        return v;
    }
    void rellena(const std::vector<contorno> &contornos) {
        if (contornos.empty()) return;
        const figura_rellena f(*this, contornos, true);
        e_.pon(75, 0);
        e_.pon(76, 1);
    }
    void borde(const contorno &c) {
        constexpr int EXTERIOR = 1, POLILINEA = 2;
        e_.pon(92, EXTERIOR | POLILINEA);
        e_.pon(72, !c.curvaturas.empty());
        e_.pon(73, 1);
        e_.pon(93, static_cast<int>(c.vertices.size()));
        for (size_t i = 0; i < c.vertices.size(); ++i) {
            e_.pon(10, c.vertices[i]);
            if (!c.curvaturas.empty()) e_.pon(42, c.curvaturas[i]);
            caja_.anade(c.vertices[i].x, c.vertices[i].y);
            if (c.curvaturas.empty() || c.curvaturas[i] == 0) continue;
            const ::obra::arco k = arco_de(c.vertices[i], c.vertices[(i + 1) % c.vertices.size()], c.curvaturas[i]);
            anade_arco(caja_, k.centro, {k.radio, 0}, {0, k.radio}, k.desde, k.hasta);
        }
        e_.pon(97, 0);
    }
    void rellena_elipse(Punto2D centro, Punto2D u, Punto2D v, double razon, double desde, double hasta, bool entera) {
        const figura_rellena f(*this, true, 1);
        const auto en = [&](double t) {
            return Punto2D{centro.x + u.x * std::cos(t) + v.x * std::sin(t),
                           centro.y + u.y * std::cos(t) + v.y * std::sin(t)};
        };
        e_.pon(92, 1);
        e_.pon(93, entera ? 1 : 2);
        e_.pon(72, 3); // an ellipse
        e_.pon(10, centro);
        e_.pon(11, u);
        e_.pon(40, razon);
        e_.pon(50, desde * EN_GRADOS);
        e_.pon(51, hasta * EN_GRADOS);
        e_.pon(73, 1);
        if (!entera) {
            e_.pon(72, 1); // its chord
            e_.pon(10, en(hasta));
            e_.pon(11, en(desde));
        }
        e_.pon(97, 0);
        e_.pon(75, 0);
        e_.pon(76, 1);
    }

    // ------------------------------------------------------------ what stands around the entities
    static void variable(escritor_dxf &e, const char *nombre, int codigo, auto valor) {
        e.pon(9, nombre);
        e.pon(codigo, valor);
    }
    static void seccion(escritor_dxf &e, const char *nombre) {
        e.pon(0, "SECTION");
        e.pon(2, nombre);
    }
    // A record: of a table, or of the objects.
    static void registro(escritor_dxf &e, const char *clase, uint32_t propia, uint32_t dueno, const char *subclase) {
        e.pon(0, clase);
        e.pon_asa(clase == std::string_view("DIMSTYLE") ? 105 : 5, propia);
        e.pon_asa(330, dueno);
        if (subclase == nullptr) return;
        e.pon(100, "AcDbSymbolTableRecord");
        e.pon(100, subclase);
    }
    static void tabla(escritor_dxf &e, const char *nombre, uint32_t propia, size_t filas) {
        e.pon(0, "TABLE");
        e.pon(2, nombre);
        e.pon_asa(5, propia);
        e.pon_asa(330, 0);
        e.pon(100, "AcDbSymbolTable");
        e.pon(70, static_cast<int>(filas));
    }

    escritor_dxf cabecera() const {
        escritor_dxf e;
        seccion(e, "HEADER");
        variable(e, "$ACADVER", 1, "AC1015");
        variable(e, "$DWGCODEPAGE", 3, "ANSI_1252");
        variable(e, "$INSUNITS", 70, 6); // metres
        variable(e, "$MEASUREMENT", 70, 1);
        constexpr double NADA = 1e20;
        variable(e, "$EXTMIN", 10, caja_.hay ? Punto3D{caja_.xmin, caja_.ymin, 0} : Punto3D{NADA, NADA, NADA});
        variable(e, "$EXTMAX", 10, caja_.hay ? Punto3D{caja_.xmax, caja_.ymax, 0} : Punto3D{-NADA, -NADA, -NADA});
        e.pon(9, "$HANDSEED");
        e.pon_asa(5, siguiente_asa_);
        e.pon(0, "ENDSEC");
        seccion(e, "CLASSES");
        e.pon(0, "ENDSEC");
        return e;
    }

    escritor_dxf tablas() {
        escritor_dxf e;
        seccion(e, "TABLES");
        vista(e);
        // Layers first: they may name line types that nobody has defined.
        const escritor_dxf sus_capas = capas();
        tipos(e);
        e.texto_escrito += sus_capas.texto_escrito;
        tabla(e, "STYLE", TABLA_STYLE, 1);
        registro(e, "STYLE", ESTILO, TABLA_STYLE, "AcDbTextStyleTableRecord");
        e.pon(2, "Standard");
        e.pon(70, 0);
        e.pon(40, 0.);
        e.pon(41, 1.);
        e.pon(50, 0.);
        e.pon(71, 0);
        e.pon(42, 0.2);
        e.pon(3, "txt");
        e.pon(4, "");
        e.pon(0, "ENDTAB");
        tabla(e, "VIEW", TABLA_VIEW, 0);
        e.pon(0, "ENDTAB");
        tabla(e, "UCS", TABLA_UCS, 0);
        e.pon(0, "ENDTAB");
        tabla(e, "APPID", TABLA_APPID, 1);
        registro(e, "APPID", APLICACION, TABLA_APPID, "AcDbRegAppTableRecord");
        e.pon(2, "ACAD");
        e.pon(70, 0);
        e.pon(0, "ENDTAB");
        tabla(e, "DIMSTYLE", TABLA_DIMSTYLE, 1);
        e.pon(100, "AcDbDimStyleTable");
        registro(e, "DIMSTYLE", ESTILO_COTA, TABLA_DIMSTYLE, "AcDbDimStyleTableRecord");
        e.pon(2, "Standard");
        e.pon(70, 0);
        e.pon_asa(340, ESTILO);
        e.pon(0, "ENDTAB");
        tabla(e, "BLOCK_RECORD", TABLA_BLOCK_RECORD, 2);
        registro(e, "BLOCK_RECORD", REGISTRO_MODELO, TABLA_BLOCK_RECORD, "AcDbBlockTableRecord");
        e.pon(2, "*Model_Space");
        registro(e, "BLOCK_RECORD", REGISTRO_PAPEL, TABLA_BLOCK_RECORD, "AcDbBlockTableRecord");
        e.pon(2, "*Paper_Space");
        e.pon(0, "ENDTAB");
        e.pon(0, "ENDSEC");
        return e;
    }
    // A view of the whole drawing.
    void vista(escritor_dxf &e) const {
        constexpr double ASPECTO = 1.5, MARGEN = 1.05;
        const double ancho = caja_.hay ? caja_.xmax - caja_.xmin : 0, alto = caja_.hay ? caja_.ymax - caja_.ymin : 0;
        const double altura = std::max(alto, ancho / ASPECTO) * MARGEN;
        tabla(e, "VPORT", TABLA_VPORT, 1);
        registro(e, "VPORT", VPORT_ACTIVO, TABLA_VPORT, "AcDbViewportTableRecord");
        e.pon(2, "*Active");
        e.pon(70, 0);
        e.pon(10, Punto2D{0, 0});
        e.pon(11, Punto2D{1, 1});
        e.pon(12, caja_.hay ? Punto2D{(caja_.xmin + caja_.xmax) / 2, (caja_.ymin + caja_.ymax) / 2} : Punto2D{0, 0});
        e.pon(16, HACIA_ARRIBA);
        e.pon(17, Punto3D{0, 0, 0});
        e.pon(40, altura > 0 ? altura : 1.);
        e.pon(41, ASPECTO);
        e.pon(0, "ENDTAB");
    }
    escritor_dxf capas() {
        escritor_dxf e;
        tabla(e, "LAYER", TABLA_LAYER, capas_.size());
        for (const capa_escrita &c : capas_) {
            registro(e, "LAYER", siguiente_asa_++, TABLA_LAYER, "AcDbLayerTableRecord");
            e.pon(2, c.nombre);
            e.pon(70, 0);
            color(e, c.suyos.color, true);
            e.pon(6, nombre_de_dxf(tipo_de(c.suyos.linea)));
            const auto g = grosor_de_pluma(c.suyos.pluma, c.suyos.grosor_mm);
            e.pon(370, g ? grosor_dxf(*g) : GROSOR_POR_DEFECTO);
            e.pon_asa(390, ESTILO_DE_TRAZADO);
        }
        e.pon(0, "ENDTAB");
        return e;
    }
    void tipos(escritor_dxf &e) {
        tabla(e, "LTYPE", TABLA_LTYPE, tipos_.size() + 2);
        un_tipo(e, {VNU("ByBlock"), {}, {}}, LTYPE_BYBLOCK);
        un_tipo(e, {VNU("ByLayer"), {}, {}}, LTYPE_BYLAYER);
        for (const tipo_escrito &t : tipos_) un_tipo(e, t, siguiente_asa_++);
        e.pon(0, "ENDTAB");
    }
    static void un_tipo(escritor_dxf &e, const tipo_escrito &t, uint32_t propia) {
        registro(e, "LTYPE", propia, TABLA_LTYPE, "AcDbLinetypeTableRecord");
        e.pon(2, nombre_de_dxf(t.nombre));
        e.pon(70, 0);
        e.pon(3, texto_de_dxf(t.descripcion));
        e.pon(72, 65); // aligned
        e.pon(73, static_cast<int>(t.trazos.size()));
        double total = 0;
        for (const double l : t.trazos) total += std::fabs(l);
        e.pon(40, total);
        for (const double l : t.trazos) {
            e.pon(49, l);
            e.pon(74, 0);
        }
    }
    static escritor_dxf bloques() {
        escritor_dxf e;
        seccion(e, "BLOCKS");
        const auto uno = [&](const char *nombre, uint32_t dueno, uint32_t principio, uint32_t fin) {
            const auto comienzo = [&](const char *clase, uint32_t propia, const char *subclase) {
                e.pon(0, clase);
                e.pon_asa(5, propia);
                e.pon_asa(330, dueno);
                e.pon(100, "AcDbEntity");
                if (dueno == REGISTRO_PAPEL) e.pon(67, 1);
                e.pon(8, "0");
                e.pon(100, subclase);
            };
            comienzo("BLOCK", principio, "AcDbBlockBegin");
            e.pon(2, nombre);
            e.pon(70, 0);
            e.pon(10, Punto3D{0, 0, 0});
            e.pon(3, nombre);
            e.pon(1, "");
            comienzo("ENDBLK", fin, "AcDbBlockEnd");
        };
        uno("*Model_Space", REGISTRO_MODELO, BLOQUE_MODELO, FIN_BLOQUE_MODELO);
        uno("*Paper_Space", REGISTRO_PAPEL, BLOQUE_PAPEL, FIN_BLOQUE_PAPEL);
        e.pon(0, "ENDSEC");
        seccion(e, "ENTITIES");
        return e;
    }
    static escritor_dxf objetos() {
        escritor_dxf e;
        e.pon(0, "ENDSEC");
        seccion(e, "OBJECTS");
        const auto diccionario = [&](uint32_t propia, uint32_t dueno, const char *clase = "DICTIONARY") {
            registro(e, clase, propia, dueno, nullptr);
            e.pon(100, "AcDbDictionary");
            e.pon(281, 1);
        };
        diccionario(DICCIONARIO, 0);
        e.pon(3, "ACAD_GROUP");
        e.pon_asa(350, DICCIONARIO_GRUPOS);
        e.pon(3, "ACAD_PLOTSTYLENAME");
        e.pon_asa(350, DICCIONARIO_ESTILOS);
        diccionario(DICCIONARIO_GRUPOS, DICCIONARIO);
        diccionario(DICCIONARIO_ESTILOS, DICCIONARIO, "ACDBDICTIONARYWDFLT");
        e.pon(3, "Normal");
        e.pon_asa(350, ESTILO_DE_TRAZADO);
        e.pon(100, "AcDbDictionaryWithDefault");
        e.pon_asa(340, ESTILO_DE_TRAZADO);
        registro(e, "ACDBPLACEHOLDER", ESTILO_DE_TRAZADO, DICCIONARIO_ESTILOS, nullptr);
        e.pon(0, "ENDSEC");
        e.pon(0, "EOF");
        return e;
    }
};

void dxf::pon_funciones(vplan_funciones &f) {
    dispositivo::pon_funciones(f);
    f.func_define_capa_u = puente<&dxf::anota_capa>::llama;
    f.func_define_tipo_linea_u = puente<&dxf::anota_tipo>::llama;
    f.func_DrawLinea = puente<&dxf::linea>::llama;
    f.func_LineaGradiente = puente<&dxf::linea_gradiente>::llama;
    f.func_DrawCirculo = puente<&dxf::circulo>::llama;
    f.func_DrawArco = puente<&dxf::arco>::llama;
    f.func_Elipse = puente<&dxf::elipse>::llama;
    f.func_ArcoElipse = puente<&dxf::arco_elipse>::llama;
    f.func_Punto = puente<&dxf::punto>::llama;
    f.func_DrawPolilinea = puente<&dxf::polilinea>::llama;
    f.func_DrawPoligono = puente<&dxf::poligono>::llama;
    f.func_DibujaCara3D = puente<&dxf::cara>::llama;
    f.func_DibujaSolid3D = puente<&dxf::solido>::llama;
    f.func_Rayo = puente<&dxf::rayo>::llama;
    f.func_LineaReferencia = puente<&dxf::linea_referencia>::llama;
    f.func_DrawTexto = puente<&dxf::rotulo>::llama;
    f.func_DibujaRellenoRegiones = puente<&dxf::regiones>::llama;
    f.func_DibujaRellenoRegionesConGradiente = puente<&dxf::regiones_gradiente>::llama;
    f.func_DrawHatch = puente<&dxf::rayado>::llama;
}

class lienzo_dxf : public lienzo {
  public:
    explicit lienzo_dxf(vnfichero *f) : a_(abre_dispositivo(dxf::TIPO, std::make_unique<dxf>(f))) {}
    salida_t *salida() override { return a_.salida.get(); }
    bool acaba() override {
        a_.suyo->acaba();
        return a_.suyo->completo();
    }

  private:
    abierto<dxf> a_;
};

} // namespace

dueno_lienzo abre_dxf(const hoja &, vnfichero *f) { return std::make_unique<lienzo_dxf>(f); }

} // namespace obra
