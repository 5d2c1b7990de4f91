// The devices that draw with cairo, a PDF and a PNG: one way of drawing, on a page of points and on pixels. The sheet's
// y goes up, cairo's goes down.
#include "dispositivos.h"
#include "rayado.h"
#include <algorithm>
#include <cairo-pdf.h>
#include <cairo.h>
#include <cmath>
#include <numbers>

namespace obra {
namespace {

constexpr double VUELTA = 2 * std::numbers::pi, MM_POR_PULGADA = 25.4, PUNTOS_POR_PULGADA = 72;
// Of a PNG on a sheet of paper, as many pixels as this, but no side longer.
constexpr double PIXELES_POR_PULGADA = 150, MAXIMO_DE_PIXELES = 16000;

using dueno_superficie = vn::dueno<cairo_surface_destroy>;
using dueno_cairo = vn::dueno<cairo_destroy>;
using dueno_color = vn::dueno<cairo_pattern_destroy>;

struct canales {
    double r, g, b, a;
};
canales canales_de(uint32_t rgba) {
    const auto canal = [&](int i) { return (rgba >> (8 * i) & 0xFF) / 255.; };
    return {canal(0), canal(1), canal(2), canal(3)};
}

cairo_status_t escribe(void *f, const unsigned char *datos, unsigned n) {
    const bool bien = f_lc_fwrite(datos, 1, n, static_cast<vnfichero *>(f), VN_AQUI) == n;
    return bien ? CAIRO_STATUS_SUCCESS : CAIRO_STATUS_WRITE_ERROR;
}

// What could not be written is told by the stream.
bool va_bien(cairo_status_t s) { return s == CAIRO_STATUS_SUCCESS || s == CAIRO_STATUS_WRITE_ERROR; }

class con_cairo : public dispositivo {
  public:
    static constexpr const char *NOMBRE = "obra: cairo";
    static constexpr uint32_t TIPO = 4;

    // `escala`: units of the surface to one of the sheet. No pen is thinner than `minimo`, in those of the surface.
    con_cairo(const hoja &h, dueno_superficie superficie, double escala, double minimo)
        : dispositivo(h.tipo_fondo, h.unidades_por_mm), superficie_(std::move(superficie)),
          c_(cairo_create(superficie_.get())), grosor_minimo_(minimo / escala) {
        caja_.anade(0, 0), caja_.anade(h.ancho, h.alto);
        const cairo_matrix_t a_la_superficie = {escala, 0, 0, -escala, 0, h.alto * escala};
        cairo_set_matrix(c_.get(), &a_la_superficie);
        cairo_set_line_join(c_.get(), CAIRO_LINE_JOIN_ROUND);
        cairo_set_fill_rule(c_.get(), CAIRO_FILL_RULE_EVEN_ODD);
    }
    void pinta_fondo(uint32_t rgb) {
        pon_color(rgb | 0xFF000000);
        cairo_paint(c_.get());
    }
    cairo_surface_t *superficie() { return superficie_.get(); }
    // What was drawn is on the surface; whether all of it.
    bool acaba() {
        cairo_show_page(c_.get());
        return va_bien(cairo_status(c_.get())) && completo();
    }
    static void pon_funciones(vplan_funciones &f);

  private:
    const dueno_superficie superficie_;
    const dueno_cairo c_;
    const double grosor_minimo_;
    extension caja_;                // the sheet
    std::optional<aspecto> puesto_; // what cairo draws with

    // ------------------------------------------------------------ pens
    void pon_color(uint32_t rgba) {
        const canales k = canales_de(rgba);
        cairo_set_source_rgba(c_.get(), k.r, k.g, k.b, k.a);
    }
    void pon_trazos(std::vector<double> trazos, double grosor) {
        // A point is as long as the pen is wide; round ends would fill the gaps.
        for (size_t i = 0; i < trazos.size(); i += 2) trazos[i] = std::max(trazos[i], grosor);
        cairo_set_line_cap(c_.get(), trazos.empty() ? CAIRO_LINE_CAP_ROUND : CAIRO_LINE_CAP_BUTT);
        cairo_set_dash(c_.get(), trazos.data(), static_cast<int>(trazos.size()), 0);
    }
    double grosor() { return std::max(actual().grosor_mm * unidades_por_mm_, grosor_minimo_); }
    void prepara() {
        const aspecto &a = actual();
        if (puesto_ == a) return;
        puesto_ = a;
        pon_color(a.rgba);
        cairo_set_line_width(c_.get(), grosor());
        pon_trazos(a.trazos, grosor());
    }
    void pinta(vnbool relleno) {
        prepara();
        if (relleno != FALSO) cairo_fill(c_.get());
        else cairo_stroke(c_.get());
    }
    // From a colour to another instead of that of the appearance.
    template <class F> void con_degradado(Punto2D a, uint32_t rgba1, Punto2D b, uint32_t rgba2, F pinta_con) {
        prepara();
        const dueno_color color(cairo_pattern_create_linear(a.x, a.y, b.x, b.y));
        for (const int extremo : {0, 1}) {
            const canales k = canales_de(extremo == 0 ? rgba1 : rgba2);
            cairo_pattern_add_color_stop_rgba(color.get(), extremo, k.r, k.g, k.b, k.a);
        }
        cairo_set_source(c_.get(), color.get());
        pinta_con();
        pon_color(actual().rgba);
    }

    // ------------------------------------------------------------ paths
    void traza(std::span<const Punto2D> v, bool cierra) {
        bool sigue = false;
        for (const Punto2D &p : v) {
            if (!son_finitos(p.x, p.y)) continue;
            if (sigue) cairo_line_to(c_.get(), p.x, p.y);
            else cairo_move_to(c_.get(), p.x, p.y);
            sigue = true;
        }
        if (!sigue) return;
        if (cierra) cairo_close_path(c_.get());
        else if (v.size() == 1) cairo_line_to(c_.get(), v[0].x, v[0].y); // a point of the pen's width
    }
    void traza_region(const arrPuntero *exteriores, const arrPuntero *interiores) {
        for (const arrPuntero *a : {exteriores, interiores})
            if (a != nullptr) cada_contorno(a, [&](std::span<const Punto2D> v) { traza(v, true); });
    }
    // The part of an ellipse, its pen as wide all around.
    void traza_curva(double xc, double yc, double ra, double rb, double angulo, double desde, double hasta) {
        cairo_save(c_.get());
        cairo_translate(c_.get(), xc, yc);
        cairo_rotate(c_.get(), angulo);
        cairo_scale(c_.get(), ra, rb);
        cairo_new_sub_path(c_.get());
        cairo_arc(c_.get(), 0, 0, 1, desde, hasta);
        cairo_restore(c_.get());
    }

    // ------------------------------------------------------------ figures
    void punto(double x, double y) { linea(x, y, x, y); }
    void linea(double x1, double y1, double x2, double y2) {
        const Punto2D v[] = {{x1, y1}, {x2, y2}};
        traza(v, false);
        pinta(FALSO);
    }
    void linea_gradiente(double x1, double y1, uint32_t rgba1, double x2, double y2, uint32_t rgba2) {
        const Punto2D v[] = {{x1, y1}, {x2, y2}};
        if (!son_finitos(x1, y1, x2, y2)) return;
        traza(v, false);
        con_degradado(v[0], rgba1, v[1], rgba2, [&] { cairo_stroke(c_.get()); });
    }
    void circulo(double xc, double yc, double radio, vnbool relleno) {
        arco_elipse(xc, yc, radio, radio, 0, VUELTA, 0, relleno);
    }
    void arco(double xc, double yc, double x1, double y1, double x2, double y2, vnbool relleno) {
        const double radio = std::hypot(x1 - xc, y1 - yc);
        arco_elipse(xc, yc, radio, radio, std::atan2(y1 - yc, x1 - xc), std::atan2(y2 - yc, x2 - xc), 0, relleno);
    }
    void elipse(double xc, double yc, double ra, double rb, double angulo, vnbool relleno) {
        arco_elipse(xc, yc, ra, rb, 0, VUELTA, angulo, relleno);
    }
    void arco_elipse(double xc, double yc, double ra, double rb, double desde, double hasta, double angulo,
                     vnbool relleno) {
        if (!son_finitos(xc, yc, ra, rb, desde, hasta, angulo)) return;
        // Of no width it is a line: cairo has no such scale.
        constexpr double NADA = 1e-6;
        if (const double r = std::max(ra, rb); std::min(ra, rb) < NADA) {
            const double t = angulo + (rb > ra ? VUELTA / 4 : 0);
            return linea(xc - r * std::cos(t), yc - r * std::sin(t), xc + r * std::cos(t), yc + r * std::sin(t));
        }
        const double barrido = barrido_de(desde, hasta);
        traza_curva(xc, yc, ra, rb, angulo, desde, desde + barrido);
        if (relleno != FALSO || barrido >= VUELTA) cairo_close_path(c_.get());
        pinta(relleno);
    }
    void poligono(const arrPunto2D *puntos, vnbool relleno) {
        traza(puntos_de(puntos), true);
        pinta(relleno);
    }
    void polilinea(const arrPunto2D *puntos) {
        const auto v = puntos_de(puntos);
        const bool cerrada = v.size() > 2 && v.front().x == v.back().x && v.front().y == v.back().y;
        traza(v, cerrada);
        pinta(FALSO);
    }
    // Up to where no sheet reaches.
    void recta(double x1, double y1, double x2, double y2, bool hacia_atras) {
        const double l = std::hypot(x2 - x1, y2 - y1), lejos = caja_.xmax + caja_.ymax + std::hypot(x1, y1);
        const double dx = (x2 - x1) / l * lejos, dy = (y2 - y1) / l * lejos;
        if (hacia_atras) x1 -= dx, y1 -= dy;
        if (l > 0) linea(x1, y1, x2 + dx, y2 + dy);
    }
    void rayo(double x1, double y1, double x2, double y2) { recta(x1, y1, x2, y2, false); }
    void linea_referencia(double x1, double y1, double x2, double y2) { recta(x1, y1, x2, y2, true); }

    // ------------------------------------------------------------ fills
    void regiones(const arrPuntero *exteriores, const arrPuntero *interiores, vnbool con_borde) {
        traza_region(exteriores, interiores);
        pinta(con_borde);
    }
    void regiones_gradiente(const arrPuntero *exteriores, const arrPuntero *interiores, uint32_t, double x1, double y1,
                            double x2, double y2, uint32_t rgba1, uint32_t rgba2) {
        if (!son_finitos(x1, y1, x2, y2)) return;
        traza_region(exteriores, interiores);
        con_degradado({x1, y1}, rgba1, {x2, y2}, rgba2, [&] { cairo_fill(c_.get()); });
    }
    void rayado(const arrPuntero *contornos, const arrDouble *angulos, const arrPunto2D *origenes,
                const arrPunto2D *pasos, const arrPuntero *trazos) {
        if (angulos == nullptr || origenes == nullptr || pasos == nullptr) return regiones(contornos, nullptr, CIERTO);
        prepara();
        cairo_save(c_.get());
        traza_region(contornos, nullptr);
        cairo_clip(c_.get());
        extension dentro;
        cairo_clip_extents(c_.get(), &dentro.xmin, &dentro.ymin, &dentro.xmax, &dentro.ymax);
        for (const familia_de_rayado &f : familias_de(angulos, origenes, pasos, trazos, JUNTAS_MM * unidades_por_mm_)) {
            pon_trazos(f.trazos, grosor());
            const auto da = [&](Punto2D a, Punto2D b) {
                cairo_move_to(c_.get(), a.x, a.y);
                cairo_line_to(c_.get(), b.x, b.y);
            };
            if (rectas_de(f, dentro, JUNTAS_MM * unidades_por_mm_, da)) cairo_stroke(c_.get());
            else cairo_paint(c_.get());
        }
        cairo_restore(c_.get());
    }
};

void con_cairo::pon_funciones(vplan_funciones &f) {
    dispositivo::pon_funciones(f);
    f.func_Punto = puente<&con_cairo::punto>::llama;
    f.func_DrawLinea = puente<&con_cairo::linea>::llama;
    f.func_LineaGradiente = puente<&con_cairo::linea_gradiente>::llama;
    f.func_DrawCirculo = puente<&con_cairo::circulo>::llama;
    f.func_DrawArco = puente<&con_cairo::arco>::llama;
    f.func_Elipse = puente<&con_cairo::elipse>::llama;
    f.func_ArcoElipse = puente<&con_cairo::arco_elipse>::llama;
    f.func_DrawPoligono = puente<&con_cairo::poligono>::llama;
    f.func_DrawPolilinea = puente<&con_cairo::polilinea>::llama;
    f.func_Rayo = puente<&con_cairo::rayo>::llama;
    f.func_LineaReferencia = puente<&con_cairo::linea_referencia>::llama;
    f.func_DibujaRellenoRegiones = puente<&con_cairo::regiones>::llama;
    f.func_DibujaRellenoRegionesConGradiente = puente<&con_cairo::regiones_gradiente>::llama;
    f.func_DrawHatch = puente<&con_cairo::rayado>::llama;
}

class lienzo_cairo : public lienzo {
  public:
    lienzo_cairo(const hoja &h, dueno_superficie superficie, double escala, double minimo, vnfichero *al_final)
        : a_(abre_dispositivo(con_cairo::TIPO, std::make_unique<con_cairo>(h, std::move(superficie), escala, minimo))),
          al_final_(al_final) {
        vplan_set_tipo_fondo(salida(), h.tipo_fondo);
        a_.suyo->pinta_fondo(vplan_color_rgb_fondo(salida()));
    }
    salida_t *salida() override { return a_.salida.get(); }
    bool acaba() override {
        cairo_surface_t *const s = a_.suyo->superficie();
        if (!a_.suyo->acaba()) return false;
        if (al_final_ != nullptr) return va_bien(cairo_surface_write_to_png_stream(s, escribe, al_final_));
        cairo_surface_finish(s);
        return va_bien(cairo_surface_status(s));
    }

  private:
    abierto<con_cairo> a_;
    vnfichero *const al_final_; // of pixels; a PDF is written as it is drawn
};

dueno_lienzo pdf(const hoja &h, vnfichero *f) {
    const double escala = PUNTOS_POR_PULGADA / MM_POR_PULGADA / h.unidades_por_mm;
    dueno_superficie s(cairo_pdf_surface_create_for_stream(escribe, f, h.ancho * escala, h.alto * escala));
    return std::make_unique<lienzo_cairo>(h, std::move(s), escala, 0, nullptr);
}

dueno_lienzo png(const hoja &h, vnfichero *f) {
    double escala = 1;
    if (h.en_mm) escala = std::min(PIXELES_POR_PULGADA / MM_POR_PULGADA, MAXIMO_DE_PIXELES / std::max(h.ancho, h.alto));
    const auto pixeles = [&](double lado) { return std::max(1, static_cast<int>(std::lround(lado * escala))); };
    dueno_superficie s(cairo_image_surface_create(CAIRO_FORMAT_RGB24, pixeles(h.ancho), pixeles(h.alto)));
    return std::make_unique<lienzo_cairo>(h, std::move(s), escala, 1, f);
}

} // namespace

abre_lienzo *const abre_pdf = pdf, *const abre_png = png;

} // namespace obra
