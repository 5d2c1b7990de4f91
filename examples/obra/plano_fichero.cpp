#include "plano_fichero.h"
#include "posesion.h"
#include <nucleos/foundation/suelo/trapable.h>
#include <nucleos/persistence/vornbin.h>
#include <utility>

// A file is the full header, the number of sections, the section of the drawing and a section per layer. Kinds that
// most layers do not have stand in blocks, which a reader may find absent; colours and bulges, nearly always flat, are
// run-coded.

namespace obra {
namespace {

// ---------------------------------------------------------------- writing
dueno_puntos puntos_de(size_t n) { return dueno_puntos(arr_CreaPunto2D(static_cast<uint32_t>(n))); }
dueno_doubles doubles_de(size_t n) { return dueno_doubles(arr_CreaDouble(static_cast<uint32_t>(n))); }

// Arrays of the library out of what `saca(i)` gives for each index.
template <class F> dueno_puntos puntos(size_t n, F saca) {
    dueno_puntos a = puntos_de(n);
    for (size_t i = 0; i < n; ++i) {
        const Punto2D p = saca(i);
        arr_SetPunto2D(a.get(), static_cast<uint32_t>(i), p.x, p.y);
    }
    return a;
}
template <class F> dueno_doubles doubles(size_t n, F saca) {
    dueno_doubles a = doubles_de(n);
    for (size_t i = 0; i < n; ++i) arr_SetDouble(a.get(), static_cast<uint32_t>(i), saca(i));
    return a;
}

void graba_colores(const colores &c, vornsave *s) {
    const double MEDIO_COLOR = 0.5; // colours are whole numbers
    vornsave_graba_arr_double_con_valores_iguales(doubles(c.size(), [&](size_t i) { return c[i]; }).get(), MEDIO_COLOR,
                                                  s);
}

void graba_lineas(const capa &c, vornsave *s) {
    vornsave_graba_arr_puntos2D(
        puntos(2 * c.lineas.size(), [&](size_t i) { return i % 2 == 0 ? c.lineas[i / 2].a : c.lineas[i / 2].b; }).get(),
        s);
    graba_colores(c.color_lineas, s);
}

void graba_circulos(const capa &c, vornsave *s) {
    vornsave_graba_arr_puntos2D(puntos(c.circulos.size(), [&](size_t i) { return c.circulos[i].centro; }).get(), s);
    vornsave_graba_arr_double(doubles(c.circulos.size(), [&](size_t i) { return c.circulos[i].radio; }).get(), s);
    graba_colores(c.color_circulos, s);
}

void graba_arcos(const capa &c, vornsave *s) {
    vornsave_graba_arr_puntos2D(puntos(c.arcos.size(), [&](size_t i) { return c.arcos[i].centro; }).get(), s);
    vornsave_graba_arr_double(doubles(3 * c.arcos.size(),
                                      [&](size_t i) {
                                          const arco &a = c.arcos[i / 3];
                                          return i % 3 == 0 ? a.radio : i % 3 == 1 ? a.desde : a.hasta;
                                      })
                                  .get(),
                              s);
    graba_colores(c.color_arcos, s);
}

void graba_polilineas(const capa &c, vornsave *s) {
    const dueno_ulongs cuantos(arr_CreaULong(0));
    const dueno_uchars cerradas(arr_CreaUChar(0));
    std::vector<Punto2D> vertices;
    std::vector<double> curvaturas;
    for (const polilinea &p : c.polilineas) {
        arr_AppendULong(cuantos.get(), static_cast<uint32_t>(p.vertices.size()));
        arr_AppendUChar(cerradas.get(), p.cerrada ? 1 : 0);
        vertices.insert(vertices.end(), p.vertices.begin(), p.vertices.end());
        curvaturas.insert(curvaturas.end(), p.curvaturas.begin(), p.curvaturas.end());
    }
    vornsave_graba_arr_ulong(cuantos.get(), s);
    vornsave_graba_arr_uchar(cerradas.get(), s);
    vornsave_graba_arr_puntos2D(puntos(vertices.size(), [&](size_t i) { return vertices[i]; }).get(), s);
    vornsave_graba_arr_double_con_valores_iguales(
        doubles(curvaturas.size(), [&](size_t i) { return curvaturas[i]; }).get(), 0, s);
    graba_colores(c.color_polilineas, s);
}

void graba_elipses(const capa &c, vornsave *s) {
    if (c.elipses.empty()) return;
    vornsave_graba_inicio_bloque("ELIPSES", s);
    vornsave_graba_arr_puntos2D(
        puntos(2 * c.elipses.size(),
               [&](size_t i) { return i % 2 == 0 ? c.elipses[i / 2].centro : c.elipses[i / 2].eje; })
            .get(),
        s);
    vornsave_graba_arr_double(doubles(3 * c.elipses.size(),
                                      [&](size_t i) {
                                          const elipse &e = c.elipses[i / 3];
                                          return i % 3 == 0 ? e.razon : i % 3 == 1 ? e.desde : e.hasta;
                                      })
                                  .get(),
                              s);
    graba_colores(c.color_elipses, s);
    vornsave_graba_fin_bloque("ELIPSES", s);
}

void graba_rotulos(const capa &c, vornsave *s) {
    if (c.rotulos.empty()) return;
    vornsave_graba_inicio_bloque("TEXTOS", s);
    vornsave_graba_arr_puntos2D(puntos(c.rotulos.size(), [&](size_t i) { return c.rotulos[i].en; }).get(), s);
    vornsave_graba_arr_double_con_valores_iguales(
        doubles(c.rotulos.size(), [&](size_t i) { return c.rotulos[i].altura; }).get(), 0, s);
    vornsave_graba_arr_double_con_valores_iguales(
        doubles(c.rotulos.size(), [&](size_t i) { return c.rotulos[i].angulo; }).get(), 0, s);
    const dueno_cadenas_u letras(arr_CreaCADENA_u(0));
    for (const rotulo &r : c.rotulos) arr_AppendCADENA_u(letras.get(), r.letras.c_str());
    vornsave_graba_arr_cadenas_unicode(letras.get(), s);
    graba_colores(c.color_rotulos, s);
    vornsave_graba_fin_bloque("TEXTOS", s);
}

void graba_capa(const capa &c, vornsave *s) {
    vornsave_graba_cadena_unicode(c.nombre.c_str(), s);
    vornsave_graba_cadena_unicode(c.tipo_linea.c_str(), s);
    vornsave_graba_ulong(c.color, s);
    vornsave_graba_bool(c.apagada ? CIERTO : FALSO, s);
    graba_lineas(c, s);
    graba_circulos(c, s);
    graba_arcos(c, s);
    graba_polilineas(c, s);
    graba_elipses(c, s);
    graba_rotulos(c, s);
}

void graba_general(const plano &p, vornsave *s) {
    vornsave_graba_cadena_unicode(p.version_dxf.c_str(), s);
    vornsave_graba_double(p.metros_por_unidad, s);
    const dueno_cadenas_u tipos(arr_CreaCADENA_u(0));
    for (const texto &t : p.tipos_de_linea) arr_AppendCADENA_u(tipos.get(), t.c_str());
    vornsave_graba_arr_cadenas_unicode(tipos.get(), s);
    const dueno_cadenas clases(arr_CreaCADENA(0));
    const dueno_ulongs cuantas(arr_CreaULong(0));
    for (const auto &[clase, n] : p.sin_importar) {
        arr_AppendCADENA(clases.get(), clase.c_str());
        arr_AppendULong(cuantas.get(), n);
    }
    vornsave_graba_arr_cadenas(clases.get(), s);
    vornsave_graba_arr_ulong(cuantas.get(), s);
}

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

std::vector<Punto2D> lee_puntos(vornsave *s) {
    const dueno_puntos a(vornsave_lee_arr_puntos2D(s));
    exige_lo_leido();
    const Punto2D *p = arr_GetBufferConstPunto2D(a.get());
    return {p, p + arr_NumElemsPunto2D(a.get())};
}
std::vector<double> vector_de(dueno_doubles a) {
    exige_lo_leido();
    const double *p = arr_GetBufferConstDouble(a.get());
    return {p, p + arr_NumElemsDouble(a.get())};
}
std::vector<double> lee_doubles(vornsave *s) { return vector_de(dueno_doubles(vornsave_lee_arr_double(s))); }
// As many as there must be: few bytes can stand for very many.
std::vector<double> lee_iguales(size_t n, vornsave *s) {
    dueno_doubles a(vornsave_lee_arr_double_con_valores_iguales(s));
    exige_lo_leido();
    exige(arr_NumElemsDouble(a.get()) == n, "num_valores_iguales == num_entidades");
    return vector_de(std::move(a));
}
colores lee_colores(size_t n, vornsave *s) {
    colores c;
    for (const double x : lee_iguales(n, s)) {
        exige(x >= 0 && x <= 0x1FFFFFF, "color >= 0 && color <= MAXIMO_COLOR");
        c.push_back(static_cast<uint32_t>(x));
    }
    return c;
}
texto lee_texto(vornsave *s) {
    const dueno_ancho t(vornsave_lee_cadena_unicode(s));
    exige_lo_leido();
    return t ? texto(t.get()) : texto();
}
std::vector<texto> lee_textos(vornsave *s) {
    const dueno_cadenas_u a(vornsave_lee_arr_cadenas_unicode(s));
    exige_lo_leido();
    std::vector<texto> v;
    for (uint32_t i = 0, n = arr_NumElemsCADENA_u(a.get()); i < n; ++i) v.emplace_back(arr_GetCADENA_u(a.get(), i));
    return v;
}

void lee_lineas(capa &c, vornsave *s) {
    const auto p = lee_puntos(s);
    exige(p.size() % 2 == 0, "num_extremos % 2 == 0");
    for (size_t i = 0; i < p.size(); i += 2) c.lineas.push_back({p[i], p[i + 1]});
    c.color_lineas = lee_colores(c.lineas.size(), s);
}

void lee_circulos(capa &c, vornsave *s) {
    const auto p = lee_puntos(s);
    const auto r = lee_doubles(s);
    exige(r.size() == p.size(), "num_radios == num_centros");
    for (size_t i = 0; i < p.size(); ++i) c.circulos.push_back({p[i], r[i]});
    c.color_circulos = lee_colores(p.size(), s);
}

void lee_arcos(capa &c, vornsave *s) {
    const auto p = lee_puntos(s);
    const auto d = lee_doubles(s);
    exige(d.size() == 3 * p.size(), "num_datos == 3 * num_centros");
    for (size_t i = 0; i < p.size(); ++i) c.arcos.push_back({p[i], d[3 * i], d[3 * i + 1], d[3 * i + 2]});
    c.color_arcos = lee_colores(p.size(), s);
}

void lee_polilineas(capa &c, vornsave *s) {
    const dueno_ulongs cuantos(vornsave_lee_arr_ulong(s));
    const dueno_uchars cerradas(vornsave_lee_arr_uchar(s));
    const auto vertices = lee_puntos(s);
    const auto curvaturas = lee_iguales(vertices.size(), s);
    const uint32_t n = arr_NumElemsULong(cuantos.get());
    exige(arr_NumElemsUChar(cerradas.get()) == n, "num_cerradas == num_polilineas");
    size_t desde = 0;
    for (uint32_t i = 0; i < n; ++i) {
        const size_t k = arr_GetULong(cuantos.get(), i);
        exige(k <= vertices.size() - desde, "num_vertices_polilinea <= num_vertices");
        const auto d = static_cast<std::ptrdiff_t>(desde), h = static_cast<std::ptrdiff_t>(desde + k);
        c.polilineas.push_back({arr_GetUChar(cerradas.get(), i) != 0,
                                {vertices.begin() + d, vertices.begin() + h},
                                {curvaturas.begin() + d, curvaturas.begin() + h}});
        desde += k;
    }
    exige(desde == vertices.size(), "suma_vertices == num_vertices");
    c.color_polilineas = lee_colores(n, s);
}

void lee_elipses(capa &c, vornsave *s) {
    if (vornsave_se_inicia_lectura_bloque("ELIPSES", s) == FALSO) return;
    const auto p = lee_puntos(s);
    const auto d = lee_doubles(s);
    exige(p.size() % 2 == 0 && 2 * d.size() == 3 * p.size(), "num_datos == 3 * num_elipses");
    for (size_t i = 0; i < p.size() / 2; ++i)
        c.elipses.push_back({p[2 * i], p[2 * i + 1], d[3 * i], d[3 * i + 1], d[3 * i + 2]});
    c.color_elipses = lee_colores(c.elipses.size(), s);
    vornsave_lee_final_bloque("ELIPSES", s);
}

void lee_rotulos(capa &c, vornsave *s) {
    if (vornsave_se_inicia_lectura_bloque("TEXTOS", s) == FALSO) return;
    const auto p = lee_puntos(s);
    const auto alturas = lee_iguales(p.size(), s), angulos = lee_iguales(p.size(), s);
    const auto letras = lee_textos(s);
    exige(letras.size() == p.size(), "num_textos == num_puntos");
    for (size_t i = 0; i < p.size(); ++i) c.rotulos.push_back({p[i], alturas[i], angulos[i], letras[i]});
    c.color_rotulos = lee_colores(p.size(), s);
    vornsave_lee_final_bloque("TEXTOS", s);
}

capa lee_capa(vornsave *s) {
    capa c;
    c.nombre = lee_texto(s);
    c.tipo_linea = lee_texto(s);
    c.color = vornsave_lee_ulong(s);
    c.apagada = vornsave_lee_bool(s) == CIERTO;
    lee_lineas(c, s);
    lee_circulos(c, s);
    lee_arcos(c, s);
    lee_polilineas(c, s);
    lee_elipses(c, s);
    lee_rotulos(c, s);
    return c;
}

void lee_general(plano &p, vornsave *s) {
    p.version_dxf = lee_texto(s);
    p.metros_por_unidad = vornsave_lee_double(s);
    p.tipos_de_linea = lee_textos(s);
    const dueno_cadenas clases(vornsave_lee_arr_cadenas(s));
    const dueno_ulongs cuantas(vornsave_lee_arr_ulong(s));
    exige_lo_leido();
    const uint32_t n = arr_NumElemsCADENA(clases.get());
    exige(arr_NumElemsULong(cuantas.get()) == n, "num_cuentas == num_clases");
    for (uint32_t i = 0; i < n; ++i) p.sin_importar[arr_GetCADENA(clases.get(), i)] = arr_GetULong(cuantas.get(), i);
}

void lee_secciones(obra_leida &o, vornsave *s) {
    const uint32_t n = vornsave_lee_ulong(s);
    for (uint32_t i = 0; i < n; ++i) {
        const int64_t desde = vornsave_get_posicion(s);
        const dueno_ansi id(vornsave_lee_seccion(s));
        exige_lo_leido();
        const std::string nombre = id.get();
        if (nombre == "PLANO") lee_general(o.p, s);
        else if (nombre.starts_with("CAPA ")) o.p.capas.push_back(lee_capa(s));
        // A section of a later version is passed over.
        else vornsave_ir_final_seccion(nombre.c_str(), s);
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
            if (i == 0) graba_general(p, s.get());
            else graba_capa(p.capas[i - 1], s.get());
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
