// Lines through a chain of coordinates to a device that only counts them: with the transformation kept, and with one
// changed before each line.
#include "drawing.h"
#include "drawing/vornplan.h"
#include "foundation/suelo/dueno.hpp"
#include <cmath>
#include <functional>
#include <vector>
#ifdef CON_CAIRO
#include <cairo.h>
#endif
#ifdef CON_QTGUI
#include <QPaintDevice>
#include <QPaintEngine>
#include <QPainter>
#include <QTransform>
#endif

namespace bench {

namespace {

constexpr size_t N = 1000000;

struct linea {
    double x1, y1, x2, y2;
};
std::vector<linea> lineas_al_azar() {
    std::vector<linea> v(N);
    azar a(9);
    for (linea &l : v) {
        l.x1 = a.entre(0, 1000), l.y1 = a.entre(0, 1000);
        l.x2 = l.x1 + a.entre(-5, 5), l.y2 = l.y1 + a.entre(-5, 5);
    }
    return v;
}

// What a device is told: how many lines, and where they are. Ours and the others' keep the same.
struct cuenta {
    uint64_t veces = 0;
    double suma = 0;
    void anota(double x1, double y2) { ++veces, suma += x1 + y2; }
};
void dibuja_linea(void *item, double x1, double, double, double y2) { static_cast<cuenta *>(item)->anota(x1, y2); }

using salida_propia = vn::dueno<vplan_cierra>;
salida_propia abre(cuenta *c, salida_t *destino, const vplan_funciones &f) {
    void *item = c;
    return salida_propia(vplan_nousar_abre_dispositivo_con_tabla(3, destino, &item, "banco", nullptr, &f));
}

// Outputs, each with a turn and a displacement; the last one draws.
struct cadena {
    cuenta c;
    std::vector<salida_propia> salidas;
    explicit cadena(int cuantas) {
        vplan_funciones ninguna{}, funciones{};
        funciones.func_DrawLinea = dibuja_linea;
        for (int k = 0; k < cuantas; ++k) {
            salida_t *const destino = k == 0 ? nullptr : salidas.back().get();
            salidas.push_back(abre(&c, destino, k == 0 ? funciones : ninguna));
            vplan_append_giro_xy_y_posiciona(salidas.back().get(), k, -k, std::cos(0.1 * k), std::sin(0.1 * k));
        }
    }
    ~cadena() {
        for (; !salidas.empty(); salidas.pop_back()) vplan_desapila_transformacion(salidas.back().get());
    }
    cadena(const cadena &) = delete;
    cadena &operator=(const cadena &) = delete;
    salida_t *primera() const { return salidas.back().get(); }
};

#ifdef CON_QTGUI
class motor_nulo : public QPaintEngine {
  public:
    motor_nulo() : QPaintEngine(AllFeatures) {}
    bool begin(QPaintDevice *) override { return true; }
    bool end() override { return true; }
    void updateState(const QPaintEngineState &s) override {
        if (s.state() & DirtyTransform) cambio_ = s.transform();
    }
    void drawPixmap(const QRectF &, const QPixmap &, const QRectF &) override {}
    void drawLines(const QLineF *l, int n) override {
        for (int i = 0; i < n; ++i) {
            const QLineF q = cambio_.map(l[i]);
            c.anota(q.x1(), q.y2());
        }
    }
    Type type() const override { return User; }
    cuenta c;

  private:
    QTransform cambio_;
};
class dispositivo_nulo : public QPaintDevice {
  public:
    QPaintEngine *paintEngine() const override { return &motor; }
    int metric(PaintDeviceMetric m) const override { return m == PdmDevicePixelRatioScaled ? 65536 : 1000; }
    mutable motor_nulo motor;
};
#endif

#ifdef CON_CAIRO
// A surface of one pixel, of which only the path is made.
class de_cairo {
  public:
    de_cairo() : superficie_(cairo_image_surface_create(CAIRO_FORMAT_ARGB32, 1, 1)), c(cairo_create(superficie_)) {
        cairo_matrix_t m;
        cairo_matrix_init(&m, 0.9, 0.1, -0.1, 0.9, 5, 7);
        cairo_set_matrix(c, &m);
    }
    ~de_cairo() { cairo_destroy(c), cairo_surface_destroy(superficie_); }
    de_cairo(const de_cairo &) = delete;
    de_cairo &operator=(const de_cairo &) = delete;
    void pon(const linea &l) {
        cairo_new_path(c);
        cairo_move_to(c, l.x1, l.y1);
        cairo_line_to(c, l.x2, l.y2);
    }

  private:
    cairo_surface_t *superficie_;

  public:
    cairo_t *c;
};
#endif

} // namespace

int lineas(int pasadas) {
    const std::vector<linea> v = lineas_al_azar();
    cadena d(4), sola(1);
    salida_t *const s = d.primera();
    const auto traza_en = [](salida_t *o, const linea &l) { vplan_escr_linea(o, l.x1, l.y1, l.x2, l.y2); };
    const auto traza = [s, traza_en](const linea &l) { traza_en(s, l); };
    const auto todas = [&v](const auto &dibuja) {
        return [&v, dibuja] {
            for (const linea &l : v) dibuja(l);
        };
    };

    // The limit: the product of the chain, known beforehand, and the call of the device.
    Punto2D o{}, ux{}, uy{};
    double z;
    vornplan_transforma_punto(s, 0, 0, 0, &o.x, &o.y, &z);
    vornplan_transforma_vector(s, 1, 0, 0, &ux.x, &ux.y, &z);
    vornplan_transforma_vector(s, 0, 1, 0, &uy.x, &uy.y, &z);
    cuenta sin_nada;
    void (*volatile dispositivo)(void *, double, double, double, double) = dibuja_linea;
    const auto a_mano = [&, funcion = +dispositivo](const linea &l) {
        funcion(&sin_nada, ux.x * l.x1 + uy.x * l.y1 + o.x, ux.y * l.x1 + uy.y * l.y1 + o.y,
                ux.x * l.x2 + uy.x * l.y2 + o.x, ux.y * l.x2 + uy.y * l.y2 + o.y);
    };
    for (const linea &l : v) traza(l), a_mano(l);
    debe(d.c.veces == N && std::fabs(d.c.suma - sin_nada.suma) < 1e-6 * std::fabs(d.c.suma), "lines of a chain");

    std::vector<camino> caminos{{"kept: a line through a chain of four", N, todas(traza)},
                                {"kept: the products and the call alone", N, todas(a_mano)}};
    // The transformation of the output that is drawn on changes, as when a figure is placed.
    uint32_t par = 0;
    const auto colocada_en = [&par, traza_en](salida_t *o) {
        return [&par, o, traza_en](const linea &l) {
            vplan_append_giro_xy_y_posiciona(o, 1, 2, 0.8, (++par & 1) != 0 ? 0.6 : -0.6);
            traza_en(o, l);
            vplan_desapila_transformacion(o);
        };
    };
    const auto desplazada_en = [traza_en](salida_t *o) {
        return [o, traza_en](const linea &l) {
            vplan_append_desplaza_origen_coordenadas(o, 1, 2);
            traza_en(o, l);
            vplan_desapila_transformacion(o);
        };
    };
    const std::vector<camino> cambiadas{
        {"changed: turned, a line, taken off", N, todas(colocada_en(sola.primera()))},
        {"changed: displaced, a line, taken off", N, todas(desplazada_en(sola.primera()))},
        {"changed: turned, a chain of four", N, todas(colocada_en(s))},
        {"changed: displaced, a chain of four", N, todas(desplazada_en(s))}};
    caminos.insert(caminos.end(), cambiadas.begin(), cambiadas.end());
    std::vector<razon> razones{{caminos[0].nombre, caminos[1].nombre, 0}};
#ifdef CON_QTGUI
    dispositivo_nulo qt;
    QPainter pintor(&qt);
    pintor.setTransform(QTransform(0.9, 0.1, -0.1, 0.9, 5, 7));
    caminos.push_back({"kept: QPainter to nothing", N, todas([&pintor](const linea &l) {
                           pintor.drawLine(QPointF(l.x1, l.y1), QPointF(l.x2, l.y2));
                       })});
    razones.push_back({caminos[0].nombre, caminos.back().nombre, 1.});
#endif
#ifdef CON_CAIRO
    de_cairo quieto, movido;
    cairo_matrix_t paso;
    cairo_matrix_init(&paso, 1, 0, 0, 1, 1e-9, 0);
    caminos.push_back({"kept: path of cairo", N, todas([&quieto](const linea &l) { quieto.pon(l); })});
    caminos.push_back({"changed: path of cairo", N, todas([&movido, &paso](const linea &l) {
                           cairo_save(movido.c);
                           cairo_transform(movido.c, &paso);
                           movido.pon(l);
                           cairo_restore(movido.c);
                       })});
    for (const camino &c : cambiadas) razones.push_back({c.nombre, caminos.back().nombre, 0.3});
#endif
    const int fuera = mide("a line of a drawing", caminos, razones, pasadas);
#ifdef CON_QTGUI
    pintor.end();
    debe(qt.motor.c.veces >= N, "lines that reach the other painter");
#endif
#ifdef CON_CAIRO
    debe(cairo_status(quieto.c) == CAIRO_STATUS_SUCCESS && cairo_status(movido.c) == CAIRO_STATUS_SUCCESS, "cairo");
#endif
    return fuera;
}

} // namespace bench
