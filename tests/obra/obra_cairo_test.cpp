// The devices of the sample host that draw with cairo, by the pixels and the page that they make.
#include "dispositivos.h"
#include "muestra.h"
#include "posesion.h"
#include "prueba.h"
#include <cairo.h>
#include <cmath>
#include <cstring>
#include <functional>

using namespace obra;

namespace {

std::string nombre() { return vn::Prueba::directorio() + "/d"; }
void dibuja_en(abre_lienzo *abre, const hoja &h, const std::function<void(salida_t *)> &dibujante) {
    const dueno_fichero f(f_lc_fopen_u(vn::ancho(nombre()).c_str(), VNU("wb"), VN_AQUI));
    const dueno_lienzo l = abre(h, f.get());
    dibujante(l->salida());
    EXPECT_TRUE(l->acaba());
}

class imagen {
  public:
    imagen() : s_(cairo_image_surface_create_from_png(nombre().c_str())) { cairo_surface_flush(s_.get()); }
    int ancho() const { return cairo_image_surface_get_width(s_.get()); }
    int alto() const { return cairo_image_surface_get_height(s_.get()); }
    // Red is the highest of three bytes; y from below.
    uint32_t operator()(int x, int y) const {
        const unsigned char *const fila =
            cairo_image_surface_get_data(s_.get()) + (alto() - 1 - y) * cairo_image_surface_get_stride(s_.get());
        uint32_t pixel;
        std::memcpy(&pixel, fila + 4 * x, sizeof pixel);
        return pixel & 0xFFFFFF;
    }

  private:
    vn::dueno<cairo_surface_destroy> s_;
};

// A square about a point.
arrPunto2D *cuadrado(double x, double y, double l) {
    arrPunto2D *const p = arr_CreaPunto2D(0);
    for (const auto &[dx, dy] : {Punto2D{-l, -l}, {l, -l}, {l, l}, {-l, l}}) arr_AppendPunto2D(p, x + dx, y + dy);
    return p;
}
struct contornos {
    explicit contornos(std::initializer_list<arrPunto2D *> v) : arr(arr_CreaPunteroST(0, arrPunto2D)) {
        for (arrPunto2D *const p : v) arr_AppendPunteroST(arr, p, arrPunto2D);
    }
    contornos(const contornos &) = delete;
    contornos &operator=(const contornos &) = delete;
    ~contornos() { arr_DestruyeEstructurasST(&arr, arrPunto2D, arr_DestruyePunto2D); }
    arrPuntero *arr;
};

constexpr uint32_t BLANCO = 0xFFFFFF, NEGRO = 0;
constexpr idcolor BLANCO_O_NEGRO = {0, 7, 0xFFFFFFFF}; // by the background

} // namespace

// Each figure in a cell of its own, by what is seen at some of its pixels.
PRUEBA(obra_cairo, cada_figura_pinta_sus_pixeles) {
    dibuja_en(abre_png, {.ancho = 500, .alto = 100, .unidades_por_mm = 4}, [](salida_t *s) {
        vornplan_escr_color_rgb(s, 0x0000FF); // red
        const contornos fuera{cuadrado(50, 50, 40)}, dentro{cuadrado(50, 50, 20), cuadrado(50, 50, 10)};
        vplan_escr_relleno_regiones(s, fuera.arr, dentro.arr);
        const contornos de_color{cuadrado(150, 50, 40)}, ninguno{};
        vplan_escr_relleno_regiones_con_gradiente_lineal(s, de_color.arr, ninguno.arr, 0xFF0000FF, 0xFFFF0000, 110, 50,
                                                         190, 50);
        // Lines of a pixel and a half every ten, only inside.
        const contornos rayada{cuadrado(250, 50, 35)};
        const vn::dueno<arr_DestruyeDouble> angulos(arr_CreaDouble(0));
        const dueno_puntos origenes(arr_CreaPunto2D(0)), pasos(arr_CreaPunto2D(0));
        arr_AppendDouble(angulos.get(), 0);
        arr_AppendPunto2D(origenes.get(), 0, 0.5);
        arr_AppendPunto2D(pasos.get(), 0, 10);
        vplan_escr_hatch(s, rayada.arr, angulos.get(), origenes.get(), pasos.get(), nullptr);
        // Thinner than a pixel: a whole one. A circle about it.
        vornplan_escr_color_rgb(s, 0);
        vornplan_set_pluma(s, 6, 0.001);
        vplan_escr_linea(s, 300, 20.5, 400, 20.5);
        vplan_escr_circulo(s, 350, 60, 30);
        vplan_escr_arco_elipse(s, 450, 50, 40, 20, 0, 10, 0, FALSO); // more than a turn: the rest of it
        vornplan_set_pluma(s, 6, 1);
        vplan_escr_tipo_linea(s, 2); // 9.525 mm and half of that
        vplan_escr_linea(s, 300, 6, 400, 6);
    });
    const imagen im;
    EXPECT_EQ(im.ancho(), 500);
    EXPECT_EQ(im.alto(), 100);
    const struct {
        const char *que;
        int x, y;
        uint32_t rgb;
    } PIXELES[] = {
        {"outside", 5, 5, BLANCO},
        {"ring", 15, 50, 0xFF0000},
        {"its hole", 35, 50, BLANCO},
        {"inside the hole", 50, 50, 0xFF0000},
        {"a line of the hatch", 250, 40, 0xFF0000},
        {"between two", 250, 45, BLANCO},
        {"beyond the contour", 213, 40, BLANCO},
        {"above it", 250, 90, BLANCO},
        {"the thin line", 350, 20, NEGRO},
        {"below it", 350, 19, BLANCO},
        {"the circle's inside", 350, 60, BLANCO},
        {"the arc's part that is not", 450, 30, BLANCO},
        {"its chord", 453, 44, BLANCO},
        {"a dash", 310, 6, NEGRO},
        {"its gap", 345, 6, BLANCO},
    };
    for (const auto &p : PIXELES) EXPECT_EQ(im(p.x, p.y), p.rgb) << p.que;
    const uint32_t izquierda = im(112, 50), derecha = im(188, 50);
    EXPECT_TRUE(izquierda >> 16 > 0xF0 && (izquierda & 0xFF) < 0x10) << izquierda;
    EXPECT_TRUE(derecha >> 16 < 0x10 && (derecha & 0xFF) > 0xF0) << derecha;
    // The circle is where it is asked for and nowhere else, and the arc too.
    for (const auto &[x, y] : {std::pair{379, 60}, {320, 60}, {350, 89}, {350, 30}, {450, 69}})
        EXPECT_LT(im(x, y), 0xC0C0C0u);
}

// White on white and black on black are seen; a sheet of paper has its size in points and its resolution in pixels.
PRUEBA(obra_cairo, la_hoja_tiene_su_fondo_y_su_tamano) {
    for (const uint32_t fondo : {0u, 2u}) {
        const auto raya = [](salida_t *s) {
            vplan_escr_idcolor(s, &BLANCO_O_NEGRO);
            vornplan_set_pluma(s, 6, 5);
            vplan_escr_linea(s, 0, 25.4, 50.8, 25.4);
        };
        const hoja h = {.ancho = 50.8, .alto = 50.8, .en_mm = true, .tipo_fondo = fondo};
        dibuja_en(abre_png, h, raya);
        const imagen im;
        EXPECT_EQ(im.ancho(), 300); // two inches
        EXPECT_EQ(im(150, 20), fondo == 0 ? BLANCO : NEGRO);
        EXPECT_EQ(im(150, 150), fondo == 0 ? NEGRO : BLANCO);
        dibuja_en(abre_pdf, h, raya);
        const std::string s = vn::lee_fichero(nombre());
        EXPECT_TRUE(s.starts_with("%PDF-") && s.find("%%EOF") != std::string::npos);
        EXPECT_NE(s.find("/MediaBox [ 0 0 144 144 ]"), std::string::npos);
    }
}

// Of all kinds of figures, and of what is no figure, nothing stops the drawing.
PRUEBA(obra_cairo, todo_se_dibuja) {
    for (abre_lienzo *const abre : {abre_png, abre_pdf}) {
        dibuja_en(abre, {.ancho = 40, .alto = 40}, [](salida_t *s) {
            vplan_append_desplaza_origen_coordenadas(s, 20, 20);
            dibuja_muestra(s);
            vplan_escr_linea(s, 0, 0, NAN, 1);
            vplan_escr_circulo(s, 0, 0, INFINITY);
            vplan_escr_arco_elipse(s, 0, 0, 5, 0, 0, 6, 0, FALSO);
            vplan_desapila_transformacion(s);
        });
    }
}
