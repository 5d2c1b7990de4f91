#include "geometria.h"
#include "informe_priv.h"
#include "valores.h"

namespace obra {
namespace {

void suma(geometria_capa &total, const geometria_capa &g) {
    total.contornos += g.contornos;
    total.cruces += g.cruces;
    total.hay_mas_cruces = total.hay_mas_cruces || g.hay_mas_cruces;
    total.longitud_arcos += g.longitud_arcos;
}

bool hay(const geometria_capa &g) { return g.contornos != 0 || g.cruces != 0 || g.longitud_arcos != 0; }

std::string numero_de(vnfunc_mensaje que, size_t n) { return etiqueta(que) + " " + std::to_string(n); }

std::string dila(const geometria_capa &g) {
    const std::string s = numero_de(mensaje::contornos, g.contornos) + ", " + etiqueta(mensaje::cruces) + " " +
                          (g.hay_mas_cruces ? di(mensaje::al_menos) + " " : "") + std::to_string(g.cruces);
    return g.longitud_arcos != 0 ? s + ", " + di(mensaje::arcos) + " " + longitud(g.longitud_arcos) : s;
}

} // namespace

void pon_geometria(std::string &s, const plano &p) {
    const dueno_rectangulo r = rectangulo_de(p);
    if (rec_Inicializado(r.get()) == CIERTO) {
        linea_de(s, mensaje::rectangulo, area(rec_Ancho(r.get()) * rec_Alto(r.get())));
        const envolvente e = envolvente_de(p);
        linea_de(s, mensaje::casco, area(e.area) + ", " + numero_de(mensaje::vertices, e.vertices));
    }
    s += etiqueta(mensaje::geometria) + "\n";
    geometria_capa total;
    for (const capa &c : p.capas) {
        const geometria_capa g = geometria_de(c, p.metros_por_unidad);
        suma(total, g);
        if (hay(g)) s += "  " + etiqueta(utf8(c.nombre)) + " " + dila(g) + "\n";
    }
    s += "  " + etiqueta(mensaje::total) + " " + dila(total) + "\n";
}

} // namespace obra
