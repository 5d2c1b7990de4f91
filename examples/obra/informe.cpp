#include "informe.h"
#include "informe_priv.h"
#include <nucleos/foundation/texto/unicode.h>

namespace obra {
namespace {

struct cuentas {
    size_t lineas = 0, circulos = 0, arcos = 0, elipses = 0, polilineas = 0, textos = 0;

    void suma(const capa &c) {
        lineas += c.lineas.size();
        circulos += c.circulos.size();
        arcos += c.arcos.size();
        elipses += c.elipses.size();
        polilineas += c.polilineas.size();
        textos += c.rotulos.size();
    }
    std::string dilas() const {
        struct fila {
            size_t n;
            vnfunc_mensaje nombre;
        };
        std::string s;
        for (const auto &[n, nombre] :
             {fila{lineas, mensaje::lineas}, fila{circulos, mensaje::circulos}, fila{arcos, mensaje::arcos},
              fila{elipses, mensaje::elipses}, fila{polilineas, mensaje::polilineas}, fila{textos, mensaje::textos}})
            if (n != 0) s += (s.empty() ? "" : ", ") + std::to_string(n) + " " + di(nombre);
        return s.empty() ? "0" : s;
    }
};

std::string color_de(uint32_t c) { return c >= 0x1000000 ? forma("#%06X", c & 0xFFFFFF) : std::to_string(c); }

} // namespace

std::string utf8(const vnwchar *t) {
    const dueno_ansi u(unicode_convierte_UNICODE_a_UTF8(t));
    return u ? u.get() : "";
}

std::string di(vnfunc_mensaje mensaje) { return utf8(nousar_msglocal_original_u(mensaje)); }

void pon_fichero(std::string &s, const obra_leida &o) {
    linea_de(s, mensaje::titulo, utf8(o.titulo));
    linea_de(s, mensaje::programa,
             di(mensaje::version) + " " + o.version_programa + ", " + di(mensaje::revision) + " " +
                 o.revision_programa + (o.es_ejemplo ? ", " + di(mensaje::ejemplo) : ""));
    linea_de(s, mensaje::formato,
             std::string(FIRMA) + ", " + di(mensaje::version) + " " + std::to_string(o.version_formato) + " (" +
                 di(mensaje::actual) + " " + std::to_string(VERSION_FORMATO) + ")");
    linea_de(s, mensaje::dibujo,
             utf8(o.p.version_dxf) + ", " + forma("%.10g ", o.p.metros_por_unidad) + di(mensaje::unidad));
    linea_de(s, mensaje::tipos_linea, std::to_string(o.p.tipos_de_linea.size()));
    s += etiqueta(mensaje::campos) + (o.campos.empty() ? " " + di(mensaje::ningun_campo) : "") + "\n";
    for (const auto &[n, v] : o.campos) s += "  " + utf8(n) + " = " + utf8(v) + "\n";
    linea_de(s, mensaje::secciones, std::to_string(o.secciones.size()));
    for (const seccion &x : o.secciones)
        s += forma("  %-12s %10I64d ", x.nombre.c_str(), x.bytes) + di(mensaje::bytes) + "\n";
}

void pon_capas(std::string &s, const plano &p) {
    linea_de(s, mensaje::capas, std::to_string(p.capas.size()));
    cuentas total;
    for (const capa &c : p.capas) {
        cuentas n;
        n.suma(c);
        total.suma(c);
        s += "  " +
             etiqueta(utf8(c.nombre) + " (" + di(mensaje::color) + " " + color_de(c.color) +
                      (c.tipo_linea.empty() ? "" : ", " + utf8(c.tipo_linea)) +
                      (c.apagada ? ", " + di(mensaje::apagada) : "") + ")") +
             " " + n.dilas() + "\n";
    }
    linea_de(s, mensaje::total, total.dilas());
    std::string sin;
    for (const auto &[clase, n] : p.sin_importar) sin += (sin.empty() ? "" : ", ") + std::to_string(n) + " " + clase;
    if (!sin.empty()) linea_de(s, mensaje::sin_importar, sin);
}

std::string informe_de(const std::string &nombre, const obra_leida &o) {
    std::string s = nombre + "\n";
    pon_fichero(s, o);
    pon_capas(s, o.p);
    pon_medidas(s, o.p);
    pon_geometria(s, o.p);
    return s;
}

} // namespace obra
