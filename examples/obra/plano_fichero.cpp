#include "plano_fichero.h"
#include "posesion.h"
#include <algorithm>
#include <nucleos/foundation/suelo/trapable.h>
#include <nucleos/persistence/registro.hpp>
#include <nucleos/persistence/vornbin.h>
#include <utility>

// A file is the full header, the number of sections, the section of the drawing and a section per layer. Kinds that
// most layers do not have stand in blocks, which a reader may find absent; colours and bulges, nearly always flat, are
// run-coded.

namespace obra {
namespace {

// ---------------------------------------------------------------- what is stored, written and read by the same words
template <class A> void describe_colores(A &a, size_t num_entidades, colores &c) {
    constexpr double MEDIO_COLOR = 0.5, MAXIMO_COLOR = 0x1FFFFFF; // colours are whole numbers
    std::vector<double> valores(c.begin(), c.end());
    a(vn::iguales{valores, MEDIO_COLOR, num_entidades, "num_valores_iguales == num_entidades"});
    if constexpr (A::LEE) {
        const bool son =
            std::all_of(valores.begin(), valores.end(), [](double x) { return x >= 0 && x <= MAXIMO_COLOR; });
        if (!a.exige(son, "color >= 0 && color <= MAXIMO_COLOR")) return;
        c.clear();
        for (const double x : valores) c.push_back(static_cast<uint32_t>(x));
    }
}

// The vertices of all polylines one after another, and how many each has.
struct vertices_seguidos {
    std::vector<uint32_t> cuantos;
    std::vector<uint8_t> cerradas;
    std::vector<Punto2D> vertices;
    std::vector<double> curvaturas;
};
vertices_seguidos de(const std::vector<polilinea> &polilineas) {
    vertices_seguidos s;
    for (const polilinea &p : polilineas) {
        s.cuantos.push_back(static_cast<uint32_t>(p.vertices.size()));
        s.cerradas.push_back(p.cerrada ? 1 : 0);
        s.vertices.insert(s.vertices.end(), p.vertices.begin(), p.vertices.end());
        s.curvaturas.insert(s.curvaturas.end(), p.curvaturas.begin(), p.curvaturas.end());
    }
    return s;
}
std::vector<polilinea> a_polilineas(const vn::lector &a, const vertices_seguidos &s) {
    std::vector<polilinea> polilineas;
    if (!a.exige(s.cerradas.size() == s.cuantos.size(), "num_cerradas == num_polilineas")) return {};
    size_t desde = 0;
    for (size_t i = 0; i < s.cuantos.size(); ++i) {
        const size_t k = s.cuantos[i];
        if (!a.exige(k <= s.vertices.size() - desde, "num_vertices_polilinea <= num_vertices")) return {};
        const auto d = static_cast<std::ptrdiff_t>(desde), h = static_cast<std::ptrdiff_t>(desde + k);
        polilineas.push_back({s.cerradas[i] != 0,
                              {s.vertices.begin() + d, s.vertices.begin() + h},
                              {s.curvaturas.begin() + d, s.curvaturas.begin() + h}});
        desde += k;
    }
    a.exige(desde == s.vertices.size(), "suma_vertices == num_vertices");
    return polilineas;
}
template <class A> void describe_polilineas(A &a, capa &c) {
    vertices_seguidos s = de(c.polilineas);
    a(s.cuantos)(s.cerradas)(s.vertices);
    a(vn::iguales{s.curvaturas, 0, s.vertices.size(), "num_valores_iguales == num_entidades"});
    if constexpr (A::LEE) c.polilineas = a_polilineas(a, s);
    describe_colores(a, c.polilineas.size(), c.color_polilineas);
}

// The patterns of all line types one after another, and how many lengths each has.
template <class A> void describe_trazos(A &a, std::vector<std::vector<double>> &trazos) {
    std::vector<uint32_t> cuantos;
    std::vector<double> seguidos;
    for (const auto &t : trazos) {
        cuantos.push_back(static_cast<uint32_t>(t.size()));
        seguidos.insert(seguidos.end(), t.begin(), t.end());
    }
    a(cuantos)(seguidos);
    if constexpr (A::LEE) {
        auto desde = seguidos.begin();
        for (const uint32_t n : cuantos) {
            if (!a.exige(n <= seguidos.end() - desde, "num_trazos_tipo <= num_trazos")) return;
            trazos.emplace_back(desde, desde + n);
            desde += n;
        }
    }
}

} // namespace

template <class A> void describe(A &a, capa &c) {
    a(c.nombre)(c.tipo_linea)(c.color)(c.apagada);
    a.elementos("num_extremos % 2 == 0", c.lineas, &linea::a, &linea::b);
    describe_colores(a, c.lineas.size(), c.color_lineas);
    a.elementos("", c.circulos, &circulo::centro);
    a.columna("num_radios == num_centros", c.circulos, &circulo::radio);
    describe_colores(a, c.circulos.size(), c.color_circulos);
    a.elementos("", c.arcos, &arco::centro);
    a.columna("num_datos == 3 * num_centros", c.arcos, &arco::radio, &arco::desde, &arco::hasta);
    describe_colores(a, c.arcos.size(), c.color_arcos);
    describe_polilineas(a, c);
    a.bloque("ELIPSES", !c.elipses.empty(), [&] {
        constexpr const char *SEIS_NUMEROS = "num_datos == 3 * num_elipses";
        a.elementos(SEIS_NUMEROS, c.elipses, &elipse::centro, &elipse::eje);
        a.columna(SEIS_NUMEROS, c.elipses, &elipse::razon, &elipse::desde, &elipse::hasta);
        describe_colores(a, c.elipses.size(), c.color_elipses);
    });
    a.bloque("TEXTOS", !c.rotulos.empty(), [&] {
        a.elementos("", c.rotulos, &rotulo::en);
        a.columna_de_iguales("num_valores_iguales == num_entidades", c.rotulos, &rotulo::altura, 0);
        a.columna_de_iguales("num_valores_iguales == num_entidades", c.rotulos, &rotulo::angulo, 0);
        a.columna("num_textos == num_puntos", c.rotulos, &rotulo::letras);
        describe_colores(a, c.rotulos.size(), c.color_rotulos);
    });
    a.bloque("GROSOR", c.grosor_mm != 0, [&] { a(c.grosor_mm); });
}

// What is told of the drawing as a whole; its layers are sections of their own.
template <class A> void describe(A &a, plano &p) {
    std::vector<std::string> clases;
    std::vector<uint32_t> cuantas;
    for (const auto &[clase, n] : p.sin_importar) {
        clases.push_back(clase);
        cuantas.push_back(n);
    }
    a(p.version_dxf)(p.metros_por_unidad)(p.tipos_de_linea)(clases)(cuantas);
    if constexpr (A::LEE) {
        if (!a.exige(cuantas.size() == clases.size(), "num_cuentas == num_clases")) return;
        for (size_t i = 0; i < clases.size(); ++i) p.sin_importar[clases[i]] = cuantas[i];
    }
    const bool hay =
        std::any_of(p.trazos_de_linea.begin(), p.trazos_de_linea.end(), [](const auto &t) { return !t.empty(); });
    a.bloque("TRAZOS", hay, [&] { describe_trazos(a, p.trazos_de_linea); });
}

namespace {

std::string nombre_de_seccion(size_t i) { return i == 0 ? "PLANO" : "CAPA " + std::to_string(i); }

// ---------------------------------------------------------------- reading
// Ends the reading of a file that is no project or is damaged; it stays within this source.
struct ilegible {};
// What is read after a report of the library's is not the file's.
void exige_lo_leido() {
    if (trapable_ha_fallado() == CIERTO) throw ilegible{};
}
// What the file's own numbers say of each other must agree; a file where they do not is damaged.
void exige(bool cierto, const char *que) {
    if (!cierto) error_interno(que, VN_AQUI, 0);
    exige_lo_leido();
}

void lee_secciones(obra_leida &o, vornsave *s) {
    const uint32_t n = vornsave_lee_ulong(s);
    for (uint32_t i = 0; i < n; ++i) {
        const int64_t desde = vornsave_get_posicion(s);
        const dueno_ansi id(vornsave_lee_seccion(s));
        exige_lo_leido();
        const std::string nombre = id.get();
        if (nombre == "PLANO") vn::lee_registro(o.p, s);
        else if (nombre.starts_with("CAPA ")) vn::lee_registro(o.p.capas.emplace_back(), s);
        // A section of a later version is passed over.
        else vornsave_ir_final_seccion(nombre.c_str(), s);
        exige_lo_leido();
        vornsave_lee_final_seccion(nombre.c_str(), s);
        exige_lo_leido();
        o.secciones.push_back({nombre, vornsave_get_posicion(s) - desde});
    }
}

void lee_campos(const vnwchar *nombre, obra_leida &o) {
    arrCADENA_u *nombres = nullptr, *valores = nullptr;
    if (vornbin_lee_campos_cabecera_u(nombre, &nombres, &valores) == FALSO) return;
    const dueno_cadenas_u n(nombres), v(valores);
    for (uint32_t i = 0; i < arr_NumElemsCADENA_u(nombres); ++i)
        o.campos.emplace_back(arr_GetCADENA_u(nombres, i), arr_GetCADENA_u(valores, i));
}

struct peticion {
    const vnwchar *nombre;
    obra_leida leida;
    bool version_superior = false;
};

// A reading that stops early leaves marks open; told so, the protocol object does not take them for a fault.
struct parcial_mientras_no_acabe {
    vornsave *s;
    mutable bool acabado = false;
    explicit parcial_mientras_no_acabe(vornsave *s_) : s(s_) {}
    ~parcial_mientras_no_acabe() {
        if (!acabado) vornsave_set_tipo_status_lectura(s, 1, nullptr);
    }
};

void lee_entera(peticion *q) {
    obra_leida &o = q->leida;
    char *version = nullptr, *revision = nullptr;
    vnbool es_ejemplo = FALSO;
    const vnbool hay_cabecera = vornbin_hay_cabecera_en_fichero_u(q->nombre, &version, &revision, &es_ejemplo);
    const dueno_ansi v(version), r(revision);
    exige(hay_cabecera == CIERTO, "hay_cabecera == CIERTO");
    o.version_programa = v ? v.get() : "";
    o.revision_programa = r ? r.get() : "";
    o.es_ejemplo = es_ejemplo == CIERTO;
    lee_campos(q->nombre, o);
    vnwchar *titulo = nullptr;
    vnbool version_superior = FALSO;
    const dueno_fichero f(vornbin_abre_fichero_para_lectura_con_version_y_descripcion_u(
        q->nombre, VERSION_FORMATO, FIRMA, nullptr, &o.version_formato, &titulo, 0, nullptr, &version_superior));
    const dueno_ancho t(titulo);
    exige(f != nullptr, "(f) != NULL");
    o.titulo = t ? texto(t.get()) : texto();
    q->version_superior = version_superior == CIERTO;
    if (q->version_superior) return;
    const dueno_save s(vornsave_registra_bin(f.get()));
    const parcial_mientras_no_acabe estado(s.get());
    lee_secciones(o, s.get());
    exige(lc_bytes_restantes(f.get()) == 0, "lc_bytes_restantes(f) == 0");
    estado.acabado = true;
}

// Runs inside a trap: whatever is wrong with the file ends it, and nothing is left open.
void lee(peticion *q) {
    try {
        lee_entera(q);
    } catch (const ilegible &) {
    }
}

// A save that is given up, the old file as it was, unless it is closed.
class guardado {
  public:
    guardado(const texto &nombre, const texto &titulo, const arrCADENA_u *nombres, const arrCADENA_u *valores)
        : nombre_(nombre), f_(vornbin_abre_fichero_para_escritura_con_version_descripcion_y_campos_u(
                               nombre.c_str(), VERSION_FORMATO, FIRMA, titulo.c_str(), nombres, valores, nullptr)) {}
    ~guardado() {
        if (f_ != nullptr) vornbin_abandona_fichero_abierto_para_escritura_u(f_, nombre_.c_str());
    }
    guardado(const guardado &) = delete;
    guardado &operator=(const guardado &) = delete;

    bool abierto() const { return f_ != nullptr; }
    vnfichero *fichero() const { return f_; }
    bool cierra() {
        return vornbin_cierra_fichero_abierto_para_escritura_u(std::exchange(f_, nullptr), nombre_.c_str(), nullptr) ==
               CIERTO;
    }

  private:
    const texto &nombre_;
    vnfichero *f_;
};

} // namespace

bool graba_obra(const texto &nombre, const plano &p, const texto &titulo, const campos_t &campos) {
    const uint64_t informes = error_interno_numero_de_informes();
    const dueno_cadenas_u nombres(arr_CreaCADENA_u(0)), valores(arr_CreaCADENA_u(0));
    for (const auto &[n, v] : campos) {
        arr_AppendCADENA_u(nombres.get(), n.c_str());
        arr_AppendCADENA_u(valores.get(), v.c_str());
    }
    guardado g(nombre, titulo, nombres.get(), valores.get());
    if (!g.abierto()) return false;
    {
        const dueno_save s(vornsave_registra_bin(g.fichero()));
        const parcial_mientras_no_acabe estado(s.get());
        vornsave_graba_ulong(static_cast<uint32_t>(p.capas.size() + 1), s.get());
        for (size_t i = 0; i <= p.capas.size(); ++i) {
            const std::string id = nombre_de_seccion(i);
            vornsave_graba_inicio_seccion(id.c_str(), s.get());
            if (i == 0) vn::graba_registro(p, s.get());
            else vn::graba_registro(p.capas[i - 1], s.get());
            vornsave_graba_fin_seccion(id.c_str(), s.get());
        }
        estado.acabado = true;
    }
    // A project of which anything could not be said is not saved.
    return error_interno_numero_de_informes() == informes && g.cierra();
}

lectura_obra lee_obra(const texto &nombre, obra_leida &o, std::string &motivo) {
    peticion q{nombre.c_str(), {}};
    if (trapable_ejecuta_funcion_segura(peticion, lee, &q, nullptr) == FALSO) {
        motivo = trapable_texto_del_ultimo_fallo();
        return lectura_obra::no_es_obra;
    }
    if (q.version_superior) return lectura_obra::version_superior;
    o = std::move(q.leida);
    return lectura_obra::bien;
}

} // namespace obra
