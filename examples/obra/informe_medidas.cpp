#include "informe_priv.h"
#include "medidas.h"
#include "valores.h"

namespace obra {
namespace {

struct suma {
    double longitud = 0, area = 0;
    size_t cerradas = 0;

    void anade(const capa &c) {
        longitud += longitud_de(c);
        for (const polilinea &p : c.polilineas)
            if (es_cerrada(p)) ++cerradas, area += area_de(p);
    }
    // Of lengths in units of so many metres.
    std::string dila(double metros) const {
        std::string s = di(mensaje::longitud) + " " + obra::longitud(longitud * metros);
        if (cerradas == 0) return s;
        s += di(mensaje::punto_y_coma) + " " + etiqueta(mensaje::cerradas) + " " + std::to_string(cerradas);
        return s + ", " + di(mensaje::area) + " " + obra::area(area * metros * metros);
    }
};

void pon_extension(std::string &s, const plano &p) {
    extension todo;
    for (const capa &c : p.capas)
        if (const extension e = extension_de(c); e.hay) todo.anade(e.xmin, e.ymin), todo.anade(e.xmax, e.ymax);
    const auto tramo = [&](double desde, double hasta) {
        return longitud(desde * p.metros_por_unidad) + " .. " + longitud(hasta * p.metros_por_unidad);
    };
    const auto lado = [&](double desde, double hasta) { return longitud((hasta - desde) * p.metros_por_unidad); };
    linea_de(s, mensaje::extension,
             todo.hay ? "x " + tramo(todo.xmin, todo.xmax) + ", y " + tramo(todo.ymin, todo.ymax) + " (" +
                            lado(todo.xmin, todo.xmax) + " x " + lado(todo.ymin, todo.ymax) + ")"
                      : di(mensaje::ninguna_extension));
}

} // namespace

void pon_medidas(std::string &s, const plano &p) {
    s += sistema_en_uso() + "\n";
    linea_de(s, mensaje::energia, energia_en_uso());
    pon_extension(s, p);
    s += etiqueta(mensaje::medidas) + "\n";
    suma total;
    for (const capa &c : p.capas) {
        suma una;
        una.anade(c);
        total.anade(c);
        if (una.longitud != 0) s += "  " + etiqueta(utf8(c.nombre)) + " " + una.dila(p.metros_por_unidad) + "\n";
    }
    s += "  " + etiqueta(mensaje::total) + " " + total.dila(p.metros_por_unidad) + "\n";
}

} // namespace obra
