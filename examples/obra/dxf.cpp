#include "dxf.h"
#include "afin.h"
#include "textos_dxf.h"
#include <cmath>
#include <cstring>
#include <dxflib/dl_creationadapter.h>
#include <dxflib/dl_dxf.h>
#include <numbers>
#include <optional>
#include <unordered_map>
#include <variant>

namespace obra {
namespace {

constexpr double GRADOS = std::numbers::pi / 180;
// A drawing may insert blocks in blocks; these bound what a forged one can ask for.
constexpr int MAXIMO_ANIDADO = 32;
constexpr size_t MAXIMO_ENTIDADES = 20'000'000;

struct atributos {
    std::string capa, tipo_linea;
    uint32_t color;
    afin ejes; // of the object, from its extrusion direction
};
struct insertado {
    std::string bloque;
    vector3 en;
    double sx, sy, sz, angulo, paso_columnas, paso_filas;
    int columnas, filas;
};
struct poli_dxf {
    bool cerrada;
    std::vector<vector3> vertices;
    std::vector<double> curvaturas;
};
struct elipse_dxf {
    vector3 centro, eje;
    double razon, desde, hasta;
};
struct arco_dxf {
    vector3 centro;
    double radio, desde, hasta;
    bool completo;
};
struct linea_dxf {
    vector3 a, b;
};
struct texto_dxf {
    vector3 en;
    double altura, angulo;
    std::string letras;
};
struct entidad {
    atributos atr;
    std::variant<linea_dxf, arco_dxf, elipse_dxf, poli_dxf, texto_dxf, insertado> que;
};
struct bloque {
    vector3 base;
    std::vector<entidad> entidades;
};

// Metres in a drawing unit, by the $INSUNITS codes of DXF; 0 and unknown ones count as metres.
constexpr double METROS[] = {1,    0.0254, 0.3048, 1609.344, 0.001, 0.01, 1,   1000, 2.54e-8, 2.54e-5, 0.9144,
                             1e-10, 1e-9,  1e-6,   0.1,      10,    100,  1e9, 1.495978707e11};

// Colours that the palette does not have are taken for `si_no`: what is imported must be readable afterwards.
uint32_t color_de(const DL_Attributes &a, uint32_t si_no) {
    constexpr int MAXIMO_DE_PALETA = 256;
    if (const int rgb = a.getColor24(); rgb >= 0) return 0x1000000u + static_cast<uint32_t>(rgb & 0xFFFFFF);
    const int c = a.getColor();
    return c >= -MAXIMO_DE_PALETA && c <= MAXIMO_DE_PALETA ? static_cast<uint32_t>(std::abs(c)) : si_no;
}

class lector final : public DL_CreationAdapter {
  public:
    std::unordered_map<std::string, bloque> bloques;
    bloque modelo;
    std::vector<DL_LayerData> capas;
    std::vector<DL_Attributes> atributos_de_capas;
    std::vector<std::string> tipos_de_linea;
    std::map<std::string, uint32_t> sin_importar;
    std::string version, pagina;
    int unidades = 0;
    bool con_datos = false;

    void setVariableString(const std::string &clave, const std::string &valor, int) override {
        con_datos = true;
        if (clave == "$ACADVER") version = valor;
        if (clave == "$DWGCODEPAGE") pagina = valor;
    }
    void setVariableInt(const std::string &clave, int valor, int) override {
        con_datos = true;
        if (clave == "$INSUNITS") unidades = valor;
    }
    void addLayer(const DL_LayerData &c) override {
        con_datos = true;
        capas.push_back(c);
        atributos_de_capas.push_back(getAttributes());
    }
    void addLinetype(const DL_LinetypeData &t) override { tipos_de_linea.push_back(t.name); }
    void addBlock(const DL_BlockData &b) override {
        cierra_polilinea();
        // Model space itself may come as a block of this name.
        abierto_ = &bloques[b.name];
        abierto_->base = {b.bpx, b.bpy, b.bpz};
    }
    void endBlock() override {
        cierra_polilinea();
        abierto_ = nullptr;
    }
    void addLine(const DL_LineData &l) override { pon(linea_dxf{{l.x1, l.y1, l.z1}, {l.x2, l.y2, l.z2}}, false); }
    void addArc(const DL_ArcData &a) override {
        pon(arco_dxf{{a.cx, a.cy, a.cz}, a.radius, a.angle1 * GRADOS, a.angle2 * GRADOS, false});
    }
    void addCircle(const DL_CircleData &c) override {
        pon(arco_dxf{{c.cx, c.cy, c.cz}, c.radius, 0, 2 * std::numbers::pi, true});
    }
    void addEllipse(const DL_EllipseData &e) override {
        pon(elipse_dxf{{e.cx, e.cy, e.cz}, {e.mx, e.my, e.mz}, e.ratio, e.angle1, e.angle2}, false);
    }
    void addPolyline(const DL_PolylineData &p) override {
        cierra_polilinea();
        // A polygon mesh or a mesh of faces (flags 16 and 64) is not an outline.
        if (p.flags & (16 | 64)) {
            cuenta("POLYLINE MESH");
            return;
        }
        poli_ = poli_dxf{(p.flags & 1) != 0, {}, {}};
        // A 3D polyline is given in the world's axes.
        atributos_de_poli_ = del_momento((p.flags & 8) == 0);
        elevacion_ = p.elevation;
        fuera_ = getAttributes().isInPaperSpace();
    }
    void addVertex(const DL_VertexData &v) override {
        if (!poli_) return;
        poli_->vertices.push_back({v.x, v.y, v.z != 0 ? v.z : elevacion_});
        poli_->curvaturas.push_back(v.bulge);
    }
    void endEntity() override { cierra_polilinea(); }
    void endSequence() override { cierra_polilinea(); }
    void addInsert(const DL_InsertData &i) override {
        pon(insertado{i.name, {i.ipx, i.ipy, i.ipz}, i.sx, i.sy, i.sz, i.angle * GRADOS, i.colSp, i.rowSp, i.cols, i.rows});
    }
    void addText(const DL_TextData &t) override {
        // Justified texts are placed by their second point.
        const bool segundo = t.hJustification != 0 || t.vJustification != 0;
        pon(texto_dxf{{segundo ? t.apx : t.ipx, segundo ? t.apy : t.ipy, t.ipz}, t.height, t.angle, t.text});
    }
    void addAttribute(const DL_AttributeData &t) override { addText(t); }
    void addMTextChunk(const std::string &t) override { trozos_ += t; }
    void addMText(const DL_MTextData &t) override {
        const std::string letras = trozos_ + t.text;
        trozos_.clear();
        const bool con_direccion = t.dirx != 0 || t.diry != 0;
        pon(texto_dxf{{t.ipx, t.ipy, t.ipz}, t.height, con_direccion ? std::atan2(t.diry, t.dirx) : t.angle * GRADOS,
                      sin_formato(letras)},
            false);
    }
    void addPoint(const DL_PointData &) override { cuenta("POINT"); }
    void addXLine(const DL_XLineData &) override { cuenta("XLINE"); }
    void addRay(const DL_RayData &) override { cuenta("RAY"); }
    void addSpline(const DL_SplineData &) override { cuenta("SPLINE"); }
    void addTrace(const DL_TraceData &) override { cuenta("TRACE"); }
    void add3dFace(const DL_3dFaceData &) override { cuenta("3DFACE"); }
    void addSolid(const DL_SolidData &) override { cuenta("SOLID"); }
    void addLeader(const DL_LeaderData &) override { cuenta("LEADER"); }
    void addHatch(const DL_HatchData &) override { cuenta("HATCH"); }
    void addImage(const DL_ImageData &) override { cuenta("IMAGE"); }
    void addDimAlign(const DL_DimensionData &, const DL_DimAlignedData &) override { cuenta("DIMENSION"); }
    void addDimLinear(const DL_DimensionData &, const DL_DimLinearData &) override { cuenta("DIMENSION"); }
    void addDimRadial(const DL_DimensionData &, const DL_DimRadialData &) override { cuenta("DIMENSION"); }
    void addDimDiametric(const DL_DimensionData &, const DL_DimDiametricData &) override { cuenta("DIMENSION"); }
    void addDimAngular(const DL_DimensionData &, const DL_DimAngular2LData &) override { cuenta("DIMENSION"); }
    void addDimAngular3P(const DL_DimensionData &, const DL_DimAngular3PData &) override { cuenta("DIMENSION"); }
    void addDimOrdinate(const DL_DimensionData &, const DL_DimOrdinateData &) override { cuenta("DIMENSION"); }

    void cierra_polilinea() {
        if (!poli_) return;
        if (!poli_->vertices.empty() && !fuera_) destino().entidades.push_back({atributos_de_poli_, std::move(*poli_)});
        con_datos = true;
        poli_.reset();
    }

  private:
    bloque *abierto_ = nullptr;
    std::optional<poli_dxf> poli_;
    atributos atributos_de_poli_;
    double elevacion_ = 0;
    bool fuera_ = false;
    std::string trozos_;

    bloque &destino() { return abierto_ != nullptr ? *abierto_ : modelo; }

    // What dxflib tells of the entity that it is reading.
    atributos del_momento(bool con_ejes_propios) {
        const DL_Attributes a = getAttributes();
        double n[3] = {0, 0, 1};
        if (getExtrusion() != nullptr) getExtrusion()->getDirection(n);
        return {a.getLayer(), a.getLinetype(), color_de(a, 256),
                con_ejes_propios ? ejes_de_objeto({n[0], n[1], n[2]}) : afin{}};
    }
    template <class T>
    void pon(T que, bool con_ejes_propios = true) {
        cierra_polilinea();
        con_datos = true;
        if (getAttributes().isInPaperSpace()) return;
        destino().entidades.push_back({del_momento(con_ejes_propios), std::move(que)});
    }
    void cuenta(const char *clase) {
        cierra_polilinea();
        con_datos = true;
        if (abierto_ == nullptr && !getAttributes().isInPaperSpace()) ++sin_importar[clase];
    }
};

// Puts the entities of model space into layers, with the references expanded.
class expansion {
  public:
    expansion(const lector &l, plano &p) : l_(l), p_(p), pagina_(l.version, l.pagina) {}

    bool hazlo() {
        p_.version_dxf = a_texto(l_.version);
        p_.metros_por_unidad = l_.unidades >= 0 && l_.unidades < static_cast<int>(std::size(METROS)) ? METROS[l_.unidades] : 1;
        for (const auto &t : l_.tipos_de_linea) p_.tipos_de_linea.push_back(a_texto(t));
        for (size_t i = 0; i < l_.capas.size(); ++i) {
            capa &c = de_nombre(l_.capas[i].name);
            const DL_Attributes &a = l_.atributos_de_capas[i];
            c.tipo_linea = a_texto(a.getLinetype());
            c.color = color_de(a, 7);
            c.apagada = a.getColor() < 0 || l_.capas[i].off;
        }
        p_.sin_importar = l_.sin_importar;
        coloca(l_.modelo, {}, nullptr, 0);
        return !excedido_;
    }

  private:
    const lector &l_;
    plano &p_;
    pagina_del_dibujo pagina_;
    std::unordered_map<std::string, size_t> indice_;
    size_t puestas_ = 0;
    bool excedido_ = false;

    capa &de_nombre(const std::string &nombre) {
        const auto [i, nuevo] = indice_.try_emplace(nombre, p_.capas.size());
        if (nuevo) p_.capas.push_back({.nombre = a_texto(nombre)});
        return p_.capas[i->second];
    }

    // An entity of a block on layer 0 takes the layer of its reference, and colour 0 its colour.
    void coloca(const bloque &b, const afin &t, const atributos *de_la_referencia, int nivel) {
        for (const entidad &e : b.entidades) {
            if (excedido_) return;
            atributos atr = e.atr;
            if (de_la_referencia != nullptr && atr.capa == "0") atr.capa = de_la_referencia->capa;
            if (de_la_referencia != nullptr && atr.color == 0) atr.color = de_la_referencia->color;
            const afin total = t.por(atr.ejes);
            if (const auto *i = std::get_if<insertado>(&e.que)) {
                inserta(*i, atr, total, nivel);
                continue;
            }
            // A long outline in many references is as much as many entities.
            const auto *contorno = std::get_if<poli_dxf>(&e.que);
            puestas_ += contorno != nullptr ? contorno->vertices.size() : 1;
            if (puestas_ >= MAXIMO_ENTIDADES) {
                excedido_ = true;
                return;
            }
            capa &c = de_nombre(atr.capa);
            std::visit([&](const auto &que) { pon(c, que, atr.color, total); }, e.que);
            if (contorno != nullptr) { // chords may have come between
                puestas_ += c.polilineas.back().vertices.size() - contorno->vertices.size();
                excedido_ = puestas_ >= MAXIMO_ENTIDADES;
            }
        }
    }
    void inserta(const insertado &i, const atributos &atr, const afin &t, int nivel) {
        const auto b = l_.bloques.find(i.bloque);
        if (b == l_.bloques.end() || nivel >= MAXIMO_ANIDADO) return;
        const vector3 base = b->second.base;
        // Refused before it is made: each copy is one entity at least.
        if (static_cast<size_t>(std::max(i.filas, 1)) * static_cast<size_t>(std::max(i.columnas, 1)) > MAXIMO_ENTIDADES - puestas_) {
            excedido_ = true;
            return;
        }
        for (int f = 0; f < std::max(i.filas, 1) && !excedido_; ++f) {
            for (int k = 0; k < std::max(i.columnas, 1) && !excedido_; ++k) {
                if (++puestas_ >= MAXIMO_ENTIDADES) excedido_ = true;
                const afin lugar = insercion(1, 1, 1, i.angulo, i.en)
                                       .por(desplazamiento(k * i.paso_columnas, f * i.paso_filas, 0))
                                       .por(insercion(i.sx, i.sy, i.sz, 0, {0, 0, 0}))
                                       .por(desplazamiento(-base.x, -base.y, -base.z));
                coloca(b->second, t.por(lugar), &atr, nivel + 1);
            }
        }
    }

    static Punto2D planta(const afin &t, vector3 p) {
        const vector3 q = t.punto(p);
        return {q.x, q.y};
    }

    static void pon(capa &c, const linea_dxf &l, uint32_t color, const afin &t) {
        c.lineas.push_back({planta(t, l.a), planta(t, l.b)});
        c.color_lineas.push_back(color);
    }
    static void pon(capa &c, const arco_dxf &a, uint32_t color, const afin &t) {
        if (!t.conserva_circulos()) {
            pon(c, elipse_dxf{a.centro, {a.radio, 0, 0}, 1, a.desde, a.hasta}, color, t);
            return;
        }
        const Punto2D centro = planta(t, a.centro);
        const double radio = a.radio * t.escala_en_planta();
        if (a.completo) {
            c.circulos.push_back({centro, radio});
            c.color_circulos.push_back(color);
            return;
        }
        const vector3 u = t.vector({std::cos(a.desde), std::sin(a.desde), 0});
        const vector3 v = t.vector({std::cos(a.hasta), std::sin(a.hasta), 0});
        double desde = std::atan2(u.y, u.x), hasta = std::atan2(v.y, v.x);
        if (t.giro_en_planta() < 0) std::swap(desde, hasta);
        c.arcos.push_back({centro, radio, desde, hasta});
        c.color_arcos.push_back(color);
    }
    // The image of an ellipse under an affine map, back to half axes at a right angle (Rytz).
    static void pon(capa &c, const elipse_dxf &e, uint32_t color, const afin &t) {
        const vector3 u = t.vector(e.eje), v = t.vector({-e.eje.y * e.razon, e.eje.x * e.razon, 0});
        const double giro = 0.5 * std::atan2(2 * (u.x * v.x + u.y * v.y), u.x * u.x + u.y * u.y - v.x * v.x - v.y * v.y);
        const double cg = std::cos(giro), sg = std::sin(giro);
        const Punto2D p = {u.x * cg + v.x * sg, u.y * cg + v.y * sg}, q = {v.x * cg - u.x * sg, v.y * cg - u.y * sg};
        const double lp = std::hypot(p.x, p.y), lq = std::hypot(q.x, q.y);
        if (!(lp > 0)) return;
        const double signo = p.x * q.y - p.y * q.x < 0 ? -1 : 1;
        c.elipses.push_back({planta(t, e.centro), p, signo * lq / lp, e.desde - giro, e.hasta - giro});
        c.color_elipses.push_back(color);
    }
    static void pon(capa &c, const poli_dxf &p, uint32_t color, const afin &t) {
        polilinea nueva;
        nueva.cerrada = p.cerrada;
        const bool con_arcos = t.conserva_circulos();
        const double signo = t.giro_en_planta() < 0 ? -1 : 1;
        for (size_t i = 0; i < p.vertices.size(); ++i) {
            nueva.vertices.push_back(planta(t, p.vertices[i]));
            const double b = p.curvaturas[i];
            nueva.curvaturas.push_back(con_arcos ? signo * b : 0);
            // A bulge that is no arc any more goes by chords of at most 5 degrees.
            if (!con_arcos && b != 0 && std::isfinite(b) && (i + 1 < p.vertices.size() || p.cerrada))
                anade_cuerdas(nueva, p.vertices[i], p.vertices[(i + 1) % p.vertices.size()], b, t);
        }
        c.polilineas.push_back(std::move(nueva));
        c.color_polilineas.push_back(color);
    }
    static void anade_cuerdas(polilinea &nueva, vector3 a, vector3 b, double curvatura, const afin &t) {
        const double angulo = 4 * std::atan(curvatura), k = (1 - curvatura * curvatura) / (4 * curvatura);
        const vector3 centro = {(a.x + b.x) / 2 - (b.y - a.y) * k, (a.y + b.y) / 2 + (b.x - a.x) * k, a.z};
        const int n = std::max(2, static_cast<int>(std::ceil(std::fabs(angulo) / (5 * GRADOS))));
        for (int i = 1; i < n; ++i) {
            const double g = angulo * i / n, dx = a.x - centro.x, dy = a.y - centro.y;
            nueva.vertices.push_back(planta(t, {centro.x + dx * std::cos(g) - dy * std::sin(g),
                                                centro.y + dx * std::sin(g) + dy * std::cos(g), a.z}));
            nueva.curvaturas.push_back(0);
        }
    }
    void pon(capa &c, const texto_dxf &x, uint32_t color, const afin &t) {
        const vector3 d = t.vector({std::cos(x.angulo), std::sin(x.angulo), 0});
        c.rotulos.push_back({planta(t, x.en), x.altura * t.escala_en_planta(), std::atan2(d.y, d.x), a_texto(x.letras)});
        c.color_rotulos.push_back(color);
    }
    static void pon(capa &, const insertado &, uint32_t, const afin &) {}
};

} // namespace

lectura_dxf lee_dxf(const std::string &nombre, plano &p) {
    lector l;
    DL_Dxf dxf;
    if (!dxf.in(nombre, &l)) return lectura_dxf::no_se_abre;
    l.cierra_polilinea();
    if (!l.con_datos) return lectura_dxf::no_es_dxf;
    plano nuevo;
    if (!expansion(l, nuevo).hazlo()) return lectura_dxf::demasiado_grande;
    p = std::move(nuevo);
    return lectura_dxf::bien;
}

} // namespace obra
