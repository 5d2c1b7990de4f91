#include "modelo_dxf.h"
#include <algorithm>
#include <array>
#include <climits>
#include <cmath>
#include <unordered_map>

namespace obra {
namespace {

constexpr uint32_t COLOR_DE_CAPA = 256;

// What the groups of one record say.
struct registro {
    std::string clase, texto, trozos, nombre, tipo_linea, capa, texto_empotrado;
    std::array<double, 80> valor; // of codes 10 to 79
    std::array<bool, 80> dicho;
    std::vector<double> trazos; // of code 49
    Punto3D normal;
    double rgb, grosor;
    bool danado, empotrado; // a number that is none; an object inside the record began

    void empieza(const std::string &de_clase) {
        clase = de_clase;
        texto.clear(), trozos.clear(), nombre.clear(), tipo_linea.clear(), capa.clear(), texto_empotrado.clear();
        valor.fill(0), dicho.fill(false);
        trazos.clear();
        normal = {0, 0, 1};
        rgb = grosor = -1;
        danado = empotrado = false;
    }
    double real(int codigo, double si_no = 0) const {
        const auto i = static_cast<size_t>(codigo);
        return dicho[i] ? valor[i] : si_no;
    }
    int entero(int codigo, int si_no = 0) const {
        const double x = real(codigo, si_no);
        return x >= INT_MIN && x <= INT_MAX ? static_cast<int>(x) : si_no;
    }
    Punto3D punto(int codigo) const { return {real(codigo), real(codigo + 10), real(codigo + 20)}; }
    bool en_papel() const { return entero(67) != 0; }
    // Colours that the palette does not have are taken for `si_no`: what is imported must be readable afterwards.
    uint32_t color(uint32_t si_no) const {
        constexpr int MAXIMO_DE_PALETA = 256;
        if (rgb >= 0 && rgb <= UINT32_MAX) return 0x1000000u + (static_cast<uint32_t>(rgb) & 0xFFFFFF);
        const int c = entero(62, static_cast<int>(si_no));
        return c >= -MAXIMO_DE_PALETA && c <= MAXIMO_DE_PALETA ? static_cast<uint32_t>(std::abs(c)) : si_no;
    }
};

class lector {
  public:
    lector(grupos_dxf &g, modelo_dxf &m) : g_(g), m_(m) {}

    lectura_dxf lee(bool &con_final) {
        while (!con_final && g_.siguiente()) {
            if (g_.codigo() == 999) continue; // a comment
            if (!empezado_ && (g_.codigo() != 0 || g_.nombre() != "SECTION"))
                return g_.valor().ends_with(" Binary DXF") ? lectura_dxf::es_binario : lectura_dxf::no_es_dxf;
            empezado_ = true;
            if (g_.codigo() != 0) {
                grupo();
                continue;
            }
            cierra();
            ligera_ = {};
            r_.empieza(g_.nombre());
            if (r_.clase == "SECTION") seccion_.clear(); // its name comes first, then perhaps others
            con_final = r_.clase == "EOF";
        }
        if (!empezado_) return g_.valor().ends_with(" Binary DXF") ? lectura_dxf::es_binario : lectura_dxf::no_es_dxf;
        if (g_.danado()) return lectura_dxf::danado;
        if (!con_final) cierra();
        cierra_polilinea();
        return lectura_dxf::bien;
    }

  private:
    grupos_dxf &g_;
    modelo_dxf &m_;
    registro r_;
    std::string seccion_, variable_, pagina_;
    bool empezado_ = false;
    std::optional<textos_dxf> textos_;
    std::unordered_map<std::string, uint32_t> capas_; // by their bytes
    std::optional<uint32_t> abierto_;                 // block
    // The polyline whose vertices are coming, what it is drawn with, and the vertices of the one of a single record.
    std::optional<entidad_dxf> poli_;
    double elevacion_ = 0;
    bool poli_fuera_ = false, poli_danada_ = false;
    poli_dxf ligera_;

    // The header comes before any name.
    const textos_dxf &textos() {
        if (!textos_) textos_.emplace(m_.version, pagina_);
        return *textos_;
    }
    uint32_t capa_de(const std::string &bytes) {
        const auto [i, nueva] = capas_.try_emplace(bytes, 0);
        if (nueva) i->second = m_.capas.lugar(textos().sencillo(bytes.empty() ? "0" : bytes));
        return i->second;
    }
    uint32_t bloque_de(const std::string &bytes) {
        const uint32_t i = m_.nombres_de_bloque.lugar(textos().sencillo(bytes));
        if (i >= m_.bloques.size()) m_.bloques.resize(i + 1);
        return i;
    }
    bloque_dxf &destino() { return abierto_ ? m_.bloques[*abierto_] : m_.modelo; }

    // ------------------------------------------------------------ groups
    void grupo() {
        const int c = g_.codigo();
        if (r_.clase == "SECTION" && c == 2 && seccion_.empty()) seccion_ = g_.nombre();
        else if (seccion_ == "HEADER") variable();
        else if (c == 101) r_.empotrado = true; // it has points of its own, with the same codes
        else if (!r_.empotrado) campo(c);
        else if (c == 1 || c == 3) r_.texto_empotrado += g_.valor();
    }
    void variable() {
        if (g_.codigo() == 9) variable_ = g_.nombre();
        else if (variable_ == "$ACADVER") m_.version = g_.nombre();
        else if (variable_ == "$DWGCODEPAGE") pagina_ = g_.nombre();
        else if (double x; variable_ == "$INSUNITS")
            m_.unidades = g_.numero(x) && std::fabs(x) < INT_MAX ? static_cast<int>(x) : -1;
        else if (variable_ == "$LTSCALE" && g_.numero(x) && x > 0) m_.escala_de_linea = x;
    }
    void campo(int c) {
        switch (c) {
        case 1: r_.texto = g_.valor(); return;
        case 2: r_.nombre = g_.nombre(); return;
        case 3: r_.trozos += g_.valor(); return;
        case 6: r_.tipo_linea = g_.nombre(); return;
        case 8: r_.capa = g_.nombre(); return;
        case 210: numero(r_.normal.x); return;
        case 220: numero(r_.normal.y); return;
        case 230: numero(r_.normal.z); return;
        case 370: numero(r_.grosor); return;
        case 420: numero(r_.rgb); return;
        default: break;
        }
        if (c < 10 || c >= static_cast<int>(r_.valor.size())) return;
        const auto i = static_cast<size_t>(c);
        numero(r_.valor[i]);
        r_.dicho[i] = true;
        if (r_.clase == "LWPOLYLINE") vertice_ligero(c, r_.valor[i]);
        if (r_.clase == "LTYPE" && c == 49) r_.trazos.push_back(r_.valor[i]);
    }
    void numero(double &x) {
        if (!g_.numero(x)) r_.danado = true;
    }
    void vertice_ligero(int c, double x) {
        if (c == 10) ligera_.vertices.push_back({x, 0, 0}), ligera_.curvaturas.push_back(0);
        else if (ligera_.vertices.empty()) return;
        else if (c == 20) ligera_.vertices.back().y = x;
        else if (c == 42) ligera_.curvaturas.back() = x;
    }

    // ------------------------------------------------------------ records
    void cierra() {
        if (seccion_ == "TABLES") fila();
        else if (seccion_ == "BLOCKS" && r_.clase == "BLOCK") {
            cierra_polilinea();
            abierto_ = bloque_de(r_.nombre);
            destino().definido = true;
            destino().base = r_.punto(10);
        } else if (r_.clase == "ENDBLK" || r_.clase == "ENDSEC" || r_.clase == "SECTION") {
            cierra_polilinea();
            abierto_.reset();
        } else if (seccion_ == "ENTITIES" || (seccion_ == "BLOCKS" && abierto_)) entidad();
    }
    void fila() {
        if (r_.nombre.empty()) return;
        if (r_.clase == "LTYPE") {
            const uint32_t i = m_.tipos_de_linea.lugar(textos().sencillo(r_.nombre));
            if (i == m_.trazos.size()) m_.trazos.push_back(std::move(r_.trazos)); // the first of a name
        }
        if (r_.clase != "LAYER") return;
        constexpr int CONGELADA = 1;
        constexpr double MM_POR_GROSOR = 0.01; // below 0 it is some default
        const bool sin_tipo = r_.tipo_linea.empty() || r_.tipo_linea == "BYLAYER" || r_.tipo_linea == "BYBLOCK";
        const uint32_t color = r_.color(7);
        m_.tabla_de_capas.push_back({capa_de(r_.nombre), textos().sencillo(sin_tipo ? "CONTINUOUS" : r_.tipo_linea),
                                     color == COLOR_DE_CAPA ? 7 : color,
                                     r_.entero(62) < 0 || (r_.entero(70) & CONGELADA) != 0,
                                     r_.grosor > 0 ? r_.grosor * MM_POR_GROSOR : 0});
    }

    void entidad() {
        if (r_.clase == "VERTEX") return vertice();
        cierra_polilinea();
        if (r_.clase == "SEQEND" || (r_.en_papel() && r_.clase != "POLYLINE")) return;
        // The definition of an attribute is not drawn with its block, unless it is constant.
        if (abierto_ && r_.clase == "ATTDEF" && (r_.entero(70) & 2) == 0) return;
        if (r_.clase == "POLYLINE") abre_polilinea();
        else if (r_.danado) cuenta(r_.clase);
        else if (r_.clase == "LINE") pon(linea_dxf{r_.punto(10), r_.punto(11)}, false);
        else if (r_.clase == "CIRCLE") pon(arco_dxf{r_.punto(10), r_.real(40), 0, 2 * std::numbers::pi, true});
        else if (r_.clase == "ARC")
            pon(arco_dxf{r_.punto(10), r_.real(40), r_.real(50) * GRADOS, r_.real(51) * GRADOS, false});
        else if (r_.clase == "ELLIPSE") elipse();
        else if (r_.clase == "LWPOLYLINE") polilinea_ligera();
        else if (r_.clase == "TEXT" || r_.clase == "ATTRIB") rotulo();
        else if (r_.clase == "MTEXT") parrafo();
        else if (r_.clase == "INSERT")
            pon(referencia_dxf{bloque_de(r_.nombre), r_.punto(10), r_.real(41, 1), r_.real(42, 1), r_.real(43, 1),
                               r_.real(50) * GRADOS, r_.real(44), r_.real(45), r_.entero(70, 1), r_.entero(71, 1)});
        else cuenta(r_.clase);
    }
    template <class T> void pon(T que, bool en_su_plano = true) {
        destino().entidades.push_back(
            {capa_de(r_.capa), r_.color(COLOR_DE_CAPA), en_su_plano ? r_.normal : Punto3D{0, 0, 1}, std::move(que)});
    }
    // What is not taken, by its name, which is the file's.
    void cuenta(std::string clase) {
        clase.resize(std::min<size_t>(clase.size(), 40));
        for (char &c : clase)
            if (c < ' ' || c > '~') c = '?';
        ++destino().sin_tomar[clase];
    }

    void elipse() {
        const Punto3D e = r_.punto(11), n = r_.normal;
        const double modulo = std::hypot(n.x, n.y, n.z), razon = r_.real(40) / (modulo > 0 ? modulo : 1);
        pon(elipse_dxf{r_.punto(10),
                       e,
                       {(n.y * e.z - n.z * e.y) * razon, (n.z * e.x - n.x * e.z) * razon,
                        (n.x * e.y - n.y * e.x) * razon},
                       r_.real(41),
                       r_.real(42, 2 * std::numbers::pi)},
            false);
    }
    void rotulo() {
        // Justified texts are placed by their second point.
        const bool segundo = r_.entero(72) != 0 || r_.entero(r_.clase == "ATTRIB" ? 74 : 73) != 0;
        const int x = segundo ? 11 : 10;
        // An attribute of several lines has them in an object inside it.
        pon(texto_dxf{{r_.real(x), r_.real(x + 10), r_.real(30)},
                      r_.real(40),
                      r_.real(50) * GRADOS,
                      r_.texto.empty() ? textos().parrafo(r_.texto_empotrado) : textos().sencillo(r_.texto)});
    }
    void parrafo() {
        const bool con_direccion = r_.real(11) != 0 || r_.real(21) != 0;
        const double angulo = con_direccion ? std::atan2(r_.real(21), r_.real(11)) : r_.real(50) * GRADOS;
        pon(texto_dxf{r_.punto(10), r_.real(40), angulo, textos().parrafo(r_.trozos + r_.texto)}, false);
    }

    // ------------------------------------------------------------ polylines
    void polilinea_ligera() {
        if (ligera_.vertices.empty()) return cuenta(r_.clase);
        ligera_.cerrada = (r_.entero(70) & 1) != 0;
        for (Punto3D &v : ligera_.vertices) v.z = r_.real(38);
        pon(std::move(ligera_));
    }
    void abre_polilinea() {
        constexpr int EN_EL_ESPACIO = 8, MALLA = 16 | 64;
        const int marcas = r_.entero(70);
        // A polygon mesh or a mesh of faces is not an outline.
        if ((marcas & MALLA) != 0) {
            if (!r_.en_papel()) cuenta("POLYLINE MESH");
            return;
        }
        // A polyline in space is given in the world's axes.
        const Punto3D normal = (marcas & EN_EL_ESPACIO) == 0 ? r_.normal : Punto3D{0, 0, 1};
        poli_ = entidad_dxf{capa_de(r_.capa), r_.color(COLOR_DE_CAPA), normal, poli_dxf{(marcas & 1) != 0, {}, {}}};
        elevacion_ = r_.real(30);
        poli_fuera_ = r_.en_papel();
        poli_danada_ = r_.danado;
    }
    void vertice() {
        constexpr int DEL_MARCO = 16; // it only guides the spline that the others draw
        if (!poli_ || (r_.entero(70) & DEL_MARCO) != 0) return;
        poli_danada_ = poli_danada_ || r_.danado;
        auto &p = std::get<poli_dxf>(poli_->que);
        const Punto3D v = r_.punto(10);
        p.vertices.push_back({v.x, v.y, v.z != 0 ? v.z : elevacion_});
        p.curvaturas.push_back(r_.real(42));
    }
    void cierra_polilinea() {
        if (!poli_) return;
        const bool sirve = !poli_danada_ && !std::get<poli_dxf>(poli_->que).vertices.empty();
        if (!poli_fuera_ && sirve) destino().entidades.push_back(std::move(*poli_));
        else if (!poli_fuera_) cuenta("POLYLINE");
        poli_.reset();
    }
};

} // namespace

uint32_t nombres_dxf::lugar(const texto &nombre) {
    const auto [i, nuevo] = indice_.try_emplace(clave_de(nombre), static_cast<uint32_t>(nombres_.size()));
    if (nuevo) nombres_.push_back(nombre);
    return i->second;
}

lectura_dxf lee_modelo(grupos_dxf &g, modelo_dxf &m, bool &con_final) { return lector(g, m).lee(con_final); }

} // namespace obra
