// The SVG device: nothing is kept of what has been drawn, the text goes out as it comes. Layers are groups, and in them
// what is drawn alike; figures of curves stay curves.
#include "dispositivos.h"
#include "informe.h"
#include "rayado.h"
#include <algorithm>
#include <cmath>
#include <nucleos/foundation/numeros/vnmath.h>
#include <numbers>

namespace obra {
namespace {

constexpr double MEDIA_VUELTA = std::numbers::pi, GRADOS_POR_RADIAN = 180 / MEDIA_VUELTA;
// What is smaller is not written: a curve flatter than this is a line, a figure smaller a point.
constexpr double MINIMO = 0.0005;

class svg : public dispositivo {
  public:
    static constexpr const char *NOMBRE = "obra: svg";
    static constexpr uint32_t TIPO = 4;

    svg(const hoja &h, vnfichero *f) : dispositivo(h.tipo_fondo, h.unidades_por_mm), escribe_(f), h_(h) {}

    void empieza(uint32_t rgb_fondo) {
        const char *const unidad = h_.en_mm ? "mm" : "px";
        escribe_ << "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<svg xmlns=\"http://www.w3.org/2000/svg\" "
                    "xmlns:inkscape=\"http://www.inkscape.org/namespaces/inkscape\" width=\""
                 << h_.ancho << unidad << "\" height=\"" << h_.alto << unidad << "\" viewBox=\"0 0 " << h_.ancho << " "
                 << h_.alto
                 << "\" fill=\"none\" stroke-linecap=\"round\" stroke-linejoin=\"round\">\n"
                    "<rect width=\"100%\" height=\"100%\"";
        pon_color("fill", "fill-opacity", rgb_fondo | 0xFF000000);
        escribe_ << "/>\n";
    }
    void acaba() {
        cierra_capa();
        escribe_ << "</svg>\n";
        escribe_.vuelca();
    }
    static void pon_funciones(vplan_funciones &f);

  private:
    escritor escribe_;
    const hoja h_;
    bool en_capa_ = false;
    std::optional<aspecto> grupo_; // that of the group that is open
    std::map<uint8_t, int> veces_; // that the group of a layer has been opened
    int definidos_ = 0;            // gradients and clips

    // ------------------------------------------------------------ groups
    void cierra_grupo() {
        if (grupo_) escribe_ << "</g>\n";
        grupo_.reset();
    }
    void cierra_capa() {
        cierra_grupo();
        if (en_capa_) escribe_ << "</g>\n";
        en_capa_ = false;
    }
    void cambia_capa() override { cierra_capa(); }
    // To be drawn in: the layer's group, and in it that of the appearance.
    void prepara() {
        const aspecto &a = actual();
        if (grupo_ == a) return;
        cierra_grupo();
        if (const capa_definida *const c = capa_actual(); c != nullptr && !en_capa_) {
            const int vez = ++veces_[numero_de_capa()];
            escribe_ << "<g id=\"capa" << double(numero_de_capa()) << (vez > 1 ? "_" + std::to_string(vez) : "")
                     << "\" inkscape:groupmode=\"layer\" inkscape:label=\"" << xml_de(c->nombre) << "\">\n";
            en_capa_ = true;
        }
        grupo_ = a;
        escribe_ << "<g";
        pon_color("stroke", "stroke-opacity", a.rgba);
        pon_trazo(a.grosor_mm, a.trazos);
        escribe_ << ">\n";
    }
    void pon_trazo(double grosor_mm, const std::vector<double> &trazos) {
        const double grosor = grosor_mm * unidades_por_mm_;
        escribe_ << " stroke-width=\"" << grosor << "\"";
        if (trazos.empty()) return;
        // Round ends would fill the gaps; a point is as long as the pen is wide.
        escribe_ << " stroke-linecap=\"butt\" stroke-dasharray=\"";
        for (size_t i = 0; i < trazos.size(); ++i)
            escribe_ << (i > 0 ? " " : "") << (i % 2 == 0 ? std::max(trazos[i], grosor) : trazos[i]);
        escribe_ << "\"";
    }
    // An attribute, and that of its opacity.
    void pon_color(const char *que, const char *opacidad, uint32_t rgba) {
        char hex[8];
        const auto canal = [&](int i) { return (rgba >> (8 * i)) & 0xFF; };
        for (int i = 0; i < 6; ++i) hex[i + 1] = "0123456789abcdef"[(canal(i / 2) >> (i % 2 == 0 ? 4 : 0)) & 15];
        hex[0] = '#';
        escribe_ << " " << que << "=\"" << std::string_view(hex, 7) << "\"";
        if (canal(3) != 255) escribe_ << " " << opacidad << "=\"" << canal(3) / 255. << "\"";
    }
    void pon_relleno(vnbool relleno) {
        if (relleno == FALSO) return;
        pon_color("fill", "fill-opacity", actual().rgba);
        escribe_ << " stroke=\"none\"";
    }

    // ------------------------------------------------------------ paths
    void pon(Punto2D p) { escribe_ << p.x << " " << h_.alto - p.y; }
    void pon_camino(std::span<const Punto2D> v, bool cierra) {
        const bool vuelve = v.size() > 2 && v.front().x == v.back().x && v.front().y == v.back().y;
        const size_t n = vuelve ? v.size() - 1 : v.size();
        bool primero = true;
        for (size_t i = 0; i < n; ++i) {
            if (!son_finitos(v[i].x, v[i].y)) continue;
            escribe_ << (primero ? "M" : " ");
            pon(v[i]);
            primero = false;
        }
        if ((cierra || vuelve) && !primero) escribe_ << "Z";
        else if (n == 1 && !primero) escribe_ << "h0"; // a point
    }
    void camino(std::span<const Punto2D> v, bool cierra, vnbool relleno) {
        if (v.empty()) return;
        prepara();
        escribe_ << "<path d=\"";
        pon_camino(v, cierra);
        escribe_ << "\"";
        pon_relleno(relleno);
        escribe_ << "/>\n";
    }
    // The piece of the curve centre + u cos t + v sin t over a sweep of at most half a turn.
    void pon_arco(double ra, double rb, double angulo, Punto2D fin) {
        escribe_ << "A" << ra << " " << rb << " " << -angulo * GRADOS_POR_RADIAN << " 0 0 ";
        pon(fin);
    }

    // ------------------------------------------------------------ figures
    void punto(double x, double y) {
        const Punto2D p{x, y};
        camino({&p, 1}, false, FALSO);
    }
    void linea(double x1, double y1, double x2, double y2) {
        const Punto2D v[] = {{x1, y1}, {x2, y2}};
        if (son_finitos(x1, y1, x2, y2)) camino(v, false, FALSO);
    }
    void circulo(double xc, double yc, double radio, vnbool relleno) {
        if (!son_finitos(xc, yc, radio)) return;
        if (radio < MINIMO) return punto(xc, yc);
        prepara();
        escribe_ << "<circle cx=\"" << xc << "\" cy=\"" << h_.alto - yc << "\" r=\"" << radio << "\"";
        pon_relleno(relleno);
        escribe_ << "/>\n";
    }
    void arco(double xc, double yc, double x1, double y1, double x2, double y2, vnbool relleno) {
        if (!son_finitos(xc, yc, x1, y1, x2, y2)) return;
        const double radio = std::hypot(x1 - xc, y1 - yc), desde = std::atan2(y1 - yc, x1 - xc);
        curva({xc, yc}, radio, radio, 0, desde, std::atan2(y2 - yc, x2 - xc), Punto2D{x1, y1}, Punto2D{x2, y2},
              relleno);
    }
    void elipse(double xc, double yc, double ra, double rb, double angulo, vnbool relleno) {
        if (!son_finitos(xc, yc, ra, rb, angulo)) return;
        if (std::min(ra, rb) < MINIMO) {
            const double r = std::max(ra, rb), t = angulo + (rb > ra ? MEDIA_VUELTA / 2 : 0);
            return linea(xc - r * std::cos(t), yc - r * std::sin(t), xc + r * std::cos(t), yc + r * std::sin(t));
        }
        prepara();
        escribe_ << "<ellipse cx=\"" << xc << "\" cy=\"" << h_.alto - yc << "\" rx=\"" << ra << "\" ry=\"" << rb
                 << "\"";
        if (angulo != 0)
            escribe_ << " transform=\"rotate(" << -angulo * GRADOS_POR_RADIAN << " " << xc << " " << h_.alto - yc
                     << ")\"";
        pon_relleno(relleno);
        escribe_ << "/>\n";
    }
    void arco_elipse(double xc, double yc, double ra, double rb, double desde, double hasta, double angulo,
                     vnbool relleno) {
        if (!son_finitos(xc, yc, ra, rb, desde, hasta) || !son_finitos(angulo)) return;
        curva({xc, yc}, ra, rb, angulo, desde, hasta, {}, {}, relleno);
    }
    // With the ends of a circle's as they were told.
    void curva(Punto2D c, double ra, double rb, double angulo, double desde, double hasta, std::optional<Punto2D> a,
               std::optional<Punto2D> b, vnbool relleno) {
        const double barrido = barrido_de(desde, hasta);
        const double ca = std::cos(angulo), sa = std::sin(angulo);
        const auto en = [&](double t) {
            const double x = ra * std::cos(t), y = rb * std::sin(t);
            return Punto2D{c.x + x * ca - y * sa, c.y + x * sa + y * ca};
        };
        const Punto2D inicio = a ? *a : en(desde), fin = b ? *b : en(desde + barrido);
        if (std::max(ra, rb) * (1 - std::cos(std::min(barrido, MEDIA_VUELTA) / 2)) < MINIMO)
            return linea(inicio.x, inicio.y, fin.x, fin.y);
        prepara();
        escribe_ << "<path d=\"M";
        pon(inicio);
        // In halves, so that the ends never fall together and no flag depends on the rounding.
        if (barrido > MEDIA_VUELTA / 2) pon_arco(ra, rb, angulo, en(desde + barrido / 2));
        pon_arco(ra, rb, angulo, fin);
        escribe_ << (relleno != FALSO ? "Z\"" : "\"");
        pon_relleno(relleno);
        escribe_ << "/>\n";
    }
    void poligono(const arrPunto2D *puntos, vnbool relleno) { camino(puntos_de(puntos), true, relleno); }
    void polilinea(const arrPunto2D *puntos) { camino(puntos_de(puntos), false, FALSO); }

    // ------------------------------------------------------------ regions
    void pon_region(const arrPuntero *exteriores, const arrPuntero *interiores) {
        for (const arrPuntero *a : {exteriores, interiores})
            if (a != nullptr) cada_contorno(a, [&](std::span<const Punto2D> v) { pon_camino(v, true); });
    }
    void regiones(const arrPuntero *exteriores, const arrPuntero *interiores, vnbool rellena) {
        prepara();
        escribe_ << "<path fill-rule=\"evenodd\" d=\"";
        pon_region(exteriores, interiores);
        escribe_ << "\"";
        pon_relleno(rellena);
        escribe_ << "/>\n";
    }
    std::string nuevo_id() { return "d" + std::to_string(++definidos_); }
    // A gradient between two points, which paints what follows.
    std::string degradado(Punto2D a, uint32_t rgba1, Punto2D b, uint32_t rgba2) {
        const std::string id = nuevo_id();
        escribe_ << "<linearGradient id=\"" << id << "\" gradientUnits=\"userSpaceOnUse\" x1=\"" << a.x << "\" y1=\""
                 << h_.alto - a.y << "\" x2=\"" << b.x << "\" y2=\"" << h_.alto - b.y << "\"><stop";
        pon_color("stop-color", "stop-opacity", rgba1);
        escribe_ << "/><stop offset=\"1\"";
        pon_color("stop-color", "stop-opacity", rgba2);
        escribe_ << "/></linearGradient>\n";
        return id;
    }
    void regiones_con_degradado(const arrPuntero *exteriores, const arrPuntero *interiores, uint32_t, double x1,
                                double y1, double x2, double y2, uint32_t rgba1, uint32_t rgba2) {
        if (!son_finitos(x1, y1, x2, y2)) return;
        prepara();
        const std::string id = degradado({x1, y1}, rgba1, {x2, y2}, rgba2);
        escribe_ << "<path fill-rule=\"evenodd\" fill=\"url(#" << id << ")\" stroke=\"none\" d=\"";
        pon_region(exteriores, interiores);
        escribe_ << "\"/>\n";
    }
    void linea_con_degradado(double x1, double y1, uint32_t rgba1, double x2, double y2, uint32_t rgba2) {
        if (!son_finitos(x1, y1, x2, y2)) return;
        prepara();
        const std::string id = degradado({x1, y1}, rgba1, {x2, y2}, rgba2);
        const Punto2D v[] = {{x1, y1}, {x2, y2}};
        escribe_ << "<path stroke=\"url(#" << id << ")\" d=\"";
        pon_camino(v, false);
        escribe_ << "\"/>\n";
    }

    // ------------------------------------------------------------ hatches
    void rayado(const arrPuntero *contornos, const arrDouble *angulos, const arrPunto2D *origenes,
                const arrPunto2D *pasos, const arrPuntero *trazos) {
        if (angulos == nullptr || origenes == nullptr || pasos == nullptr) return regiones(contornos, nullptr, CIERTO);
        prepara();
        extension caja;
        cada_contorno(contornos, [&](std::span<const Punto2D> v) {
            for (const Punto2D &p : v)
                if (son_finitos(p.x, p.y)) caja.anade(std::clamp(p.x, 0., h_.ancho), std::clamp(p.y, 0., h_.alto));
        });
        if (!caja.hay) return;
        const std::string id = nuevo_id();
        escribe_ << "<clipPath id=\"" << id << "\"><path clip-rule=\"evenodd\" d=\"";
        pon_region(contornos, nullptr);
        escribe_ << "\"/></clipPath>\n<g clip-path=\"url(#" << id << ")\">\n";
        for (const familia_de_rayado &f : familias_de(angulos, origenes, pasos, trazos, JUNTAS_MM * unidades_por_mm_))
            familia(f, caja, contornos);
        escribe_ << "</g>\n";
    }
    // In one path, in which a line begins where its pattern does.
    void familia(const familia_de_rayado &f, const extension &caja, const arrPuntero *contornos) {
        std::vector<Punto2D> extremos;
        const auto da = [&](Punto2D a, Punto2D b) { extremos.insert(extremos.end(), {a, b}); };
        const bool son_lineas = rectas_de(f, caja, JUNTAS_MM * unidades_por_mm_, da);
        escribe_ << "<path";
        if (!son_lineas) escribe_ << " fill-rule=\"evenodd\"";
        else if (!f.trazos.empty()) pon_trazo(actual().grosor_mm, f.trazos);
        escribe_ << " d=\"";
        if (!son_lineas) pon_region(contornos, nullptr);
        for (size_t i = 0; i < extremos.size(); ++i) {
            escribe_ << (i % 2 == 0 ? "M" : "L");
            pon(extremos[i]);
        }
        escribe_ << "\"";
        if (!son_lineas) pon_relleno(CIERTO);
        escribe_ << "/>\n";
    }
};

void svg::pon_funciones(vplan_funciones &f) {
    dispositivo::pon_funciones(f);
    f.func_Punto = puente<&svg::punto>::llama;
    f.func_DrawLinea = puente<&svg::linea>::llama;
    f.func_LineaGradiente = puente<&svg::linea_con_degradado>::llama;
    f.func_DrawCirculo = puente<&svg::circulo>::llama;
    f.func_DrawArco = puente<&svg::arco>::llama;
    f.func_Elipse = puente<&svg::elipse>::llama;
    f.func_ArcoElipse = puente<&svg::arco_elipse>::llama;
    f.func_DrawPoligono = puente<&svg::poligono>::llama;
    f.func_DrawPolilinea = puente<&svg::polilinea>::llama;
    f.func_DibujaRellenoRegiones = puente<&svg::regiones>::llama;
    f.func_DibujaRellenoRegionesConGradiente = puente<&svg::regiones_con_degradado>::llama;
    f.func_DrawHatch = puente<&svg::rayado>::llama;
}

class lienzo_svg : public lienzo {
  public:
    lienzo_svg(const hoja &h, vnfichero *f) : a_(abre_dispositivo(svg::TIPO, std::make_unique<svg>(h, f))) {
        vplan_set_tipo_fondo(salida(), h.tipo_fondo);
        a_.suyo->empieza(vplan_color_rgb_fondo(salida()));
    }
    salida_t *salida() override { return a_.salida.get(); }
    bool acaba() override {
        a_.suyo->acaba();
        return a_.suyo->completo();
    }

  private:
    abierto<svg> a_;
};

} // namespace

dueno_lienzo abre_svg(const hoja &h, vnfichero *f) { return std::make_unique<lienzo_svg>(h, f); }

} // namespace obra
