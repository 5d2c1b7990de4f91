// The DXF reader of the sample host, on small drawings of our own.
#include "dxf.h"
#include "filas.h"
#include "informe.h"
#include "propiedades.h"
#include <algorithm>
#include <cmath>
#include <iomanip>
#include <sstream>

using namespace obra;

namespace {

// A drawing out of entity lines "code value" separated by line ends, with one block B and layer definitions.
std::string dxf_con(const std::string &entidades, const std::string &bloque = "") {
    return "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1009\n9\n$DWGCODEPAGE\n3\nANSI_1252\n0\nENDSEC\n"
           "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n2\nEJES\n70\n0\n62\n-"
           "3\n6\nDASHED\n0\nENDTAB\n0\nENDSEC\n"
           "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nB\n70\n0\n10\n1\n20\n0\n30\n0\n" +
           bloque + "0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + entidades + "0\nENDSEC\n0\nEOF\n";
}

lectura_dxf lee(const std::string &contenido, plano &p, noticias_dxf &noticias) {
    const std::string nombre = vn::Prueba::directorio() + "/p.dxf";
    vn::graba_fichero(nombre, contenido);
    return lee_dxf(vn::ancho(nombre), p, noticias);
}
plano lee(const std::string &contenido) {
    plano p;
    noticias_dxf noticias;
    EXPECT_EQ(lee(contenido, p, noticias), lectura_dxf::bien);
    EXPECT_FALSE(noticias.sin_final);
    return p;
}

// What a drawing holds, as one line; the far end of an arc without its sign, which is either at half a turn.
std::string retrato(const plano &p) {
    std::ostringstream s;
    s << std::setprecision(9);
    const auto n = [](double x) { return std::fabs(x) < 1e-9 ? 0. : x; };
    for (const capa &c : p.capas) {
        s << utf8(c.nombre) << " (" << utf8(c.tipo_linea) << (c.apagada ? ", off)" : ")");
        for (const linea &l : c.lineas)
            s << " line " << n(l.a.x) << ',' << n(l.a.y) << '>' << n(l.b.x) << ',' << n(l.b.y);
        for (const uint32_t color : c.color_lineas) s << " colour " << color;
        for (const arco &a : c.arcos)
            s << " arc " << n(a.centro.x) << ',' << n(a.centro.y) << ' ' << n(a.desde) << ' ' << std::fabs(a.hasta);
        for (const polilinea &q : c.polilineas) s << (q.cerrada ? " closed " : " open ") << q.vertices.size();
        for (const rotulo &t : c.rotulos)
            s << " text " << n(t.en.x) << ',' << n(t.en.y) << ' ' << t.altura << ' ' << n(t.angulo) << ' '
              << utf8(t.letras);
        if (!c.elipses.empty()) s << " ellipses " << c.elipses.size();
        if (const extension e = extension_de(c); e.hay)
            s << " box " << n(e.xmin) << ',' << n(e.ymin) << ' ' << n(e.xmax) << ',' << n(e.ymax);
        s << "; ";
    }
    s << p.tipos_de_linea.size() << " line types; ";
    for (const auto &[que, cuantos] : p.sin_importar) s << que << '=' << cuantos << ' ';
    return s.str();
}

std::string veces(int n, const std::string &s) {
    std::string r;
    for (int i = 0; i < n; ++i) r += s;
    return r;
}

constexpr const char *LINEA = "0\nLINE\n8\n0\n62\n0\n10\n1\n20\n0\n30\n0\n11\n3\n21\n0\n31\n0\n";

} // namespace

// References, mirrored and stretched arcs, frames, names in either case, and what is not taken and is counted.
PRUEBA(obra_dxf, cada_dibujo_da_su_retrato) {
    for (const auto &[tablas, bloque, entidades, esperado] :
         vn::filas<std::string, std::string, std::string, std::string>("obra/obra.tsv", "dibujos")) {
        std::string s = dxf_con(entidades, bloque);
        EXPECT_EQ(retrato(lee(s.insert(s.find("0\nENDTAB"), tablas))), esperado);
    }
}

PRUEBA(obra_dxf, los_textos_dicen_lo_que_el_plano_y_estan_donde_el) {
    for (const auto &[version, clase, bytes, dicho] :
         vn::filas<std::string, std::string, std::string, std::string>("obra/obra.tsv", "textos")) {
        std::string s = dxf_con("0\n" + clase + "\n1\n" + bytes + "\n");
        const plano p = lee(s.replace(s.find("AC1009"), 6, version));
        EXPECT_EQ(utf8(p.capas.back().rotulos.at(0).letras), dicho) << bytes;
    }
    // Longer than any buffer, in pieces; what follows 101 is of another object.
    const std::string largo(5000, 'x'),
        empotrado = "101\nEmbedded Object\n10\n1\n20\n0\n40\n9\n11\n0\n21\n1\n1\n\\C1;otro\n";
    const plano p = lee(dxf_con("0\nMTEXT\n10\n7\n20\n8\n40\n.5\n3\n" + largo + "\n1\ny\n50\n90\n" + empotrado +
                                "0\nTEXT\n10\n1\n20\n1\n11\n3\n21\n4\n72\n1\n50\n30\n1\n" + largo +
                                "\n0\nATTRIB\n10\n5\n20\n6\n1\n\n" + empotrado));
    const std::string s = retrato(p);
    EXPECT_EQ(s.substr(s.find("0 ()")), "0 () text 7,8 0.5 1.57079633 " + largo + "y text 3,4 0 0.523598776 " + largo +
                                            " text 5,6 0 0 otro; 0 line types; ");
}

PRUEBA(obra_dxf, lo_que_no_es_un_dxf_se_rechaza_y_lo_que_le_pasa_a_uno_se_dice) {
    plano p;
    noticias_dxf n;
    for (const char *malo : {"", "hola\n", "\177ELF\x01\x02\x03", "0\n", "0\nLINE\n"})
        EXPECT_EQ(lee(malo, p, n), lectura_dxf::no_es_dxf) << malo;
    EXPECT_EQ(lee(std::string(200000, 0), p, n), lectura_dxf::no_es_dxf); // as a device that has no end
    EXPECT_EQ(lee("AutoCAD Binary DXF\r\n\x1A", p, n), lectura_dxf::es_binario);
    EXPECT_EQ(lee_dxf(vn::ancho(directorio() + "/no_esta.dxf"), p, n), lectura_dxf::no_se_lee);
    const std::string bien = dxf_con(LINEA);
    EXPECT_EQ(lee(bien.substr(0, bien.find("11\n3")) + "once\n", p, n), lectura_dxf::danado);
    EXPECT_EQ(n.linea,
              1 + std::count(bien.begin(), bien.begin() + static_cast<std::ptrdiff_t>(bien.find("11\n3")), '\n'));
    EXPECT_EQ(lee(bien.substr(0, bien.rfind("0\nEOF")) + "\n\n", p, n), lectura_dxf::bien);
    EXPECT_TRUE(n.sin_final && p.capas.back().lineas.size() == 1);
    for (const char *vacio : {"999\nx\n0\nSECTION\n2\nENTITIES\n0\nENDSEC\n0\nEOF\n",
                              "\xEF\xBB\xBF  0\r\nSECTION\r\n  2\r\nBLOCKS\r\n  0\r\nENDSEC\r\n  0\r\nEOF"})
        EXPECT_TRUE(lee(vacio).capas.empty());
    for (const auto &[codigo, metros] :
         {std::pair{"21", 1200. / 3937}, {"24", 5280 * 1200. / 3937}, {"25", 1.}, {"-1", 1.}}) {
        ASSERT_EQ(lee(std::string("0\nSECTION\n2\nHEADER\n9\n$INSUNITS\n70\n") + codigo +
                          "\n9\n$OTRA\n2\nHEADER\n0\nENDSEC\n0\nEOF\n",
                      p, n),
                  lectura_dxf::bien);
        EXPECT_DOUBLE_EQ(p.metros_por_unidad, metros);
        EXPECT_EQ(n.unidad_ignorada.has_value(), metros == 1);
    }
}

// A few hundred bytes that ask for millions of copies are refused while they are counted, not when they are made.
PRUEBA(obra_dxf, un_dibujo_no_pide_mas_de_lo_que_pesa) {
    const std::string rejilla = "0\nINSERT\n2\nB\n41\n3\n70\n2000\n71\n2000\n", perdido = "0\nINSERT\n2\nNO\n";
    std::string anidados; // ten times, forty deep
    for (int i = 0; i < 40; ++i)
        anidados += "0\nENDBLK\n0\nBLOCK\n2\nN" + std::to_string(i) + "\n" +
                    veces(10, "0\nINSERT\n2\nN" + std::to_string(i + 1) + "\n");
    const struct {
        std::string entidades, bloque;
    } filas[] = {
        {rejilla, LINEA},
        {"0\nINSERT\n2\nB\n70\n2147483647\n71\n2147483647\n", ""},
        {rejilla, veces(100, perdido)},
        {"0\nINSERT\n2\nN0\n", anidados},
        {rejilla, "0\nTEXT\n1\n" + std::string(1000, 'x') + "\n"},
        {rejilla, "0\nLWPOLYLINE\n10\n0\n"},
        {rejilla, "0\nLWPOLYLINE\n90\n1073741825\n" + veces(99, "10\n0\n20\n0\n42\n9\n")},
        {rejilla, "0\nK1\n0\nK2\n0\nK3\n"},
    };
    for (const auto &f : filas) {
        plano p;
        noticias_dxf n;
        ASSERT_EQ(lee(dxf_con(f.entidades, f.bloque), p, n), lectura_dxf::demasiado_grande);
        EXPECT_TRUE(p.capas.empty());
        EXPECT_LE(n.visitadas, maximo_de_visitas(n.bytes));
    }
}

PRUEBA(obra_dxf, los_trazos_de_los_tipos_de_linea_y_las_plumas_de_las_capas) {
    const plano p = lee("0\nSECTION\n2\nHEADER\n9\n$LTSCALE\n40\n2\n0\nENDSEC\n0\nSECTION\n2\nTABLES\n"
                        "0\nLTYPE\n2\nA\n73\n2\n40\n1\n49\n.5\n74\n0\n49\n-.25\n0\nLTYPE\n2\nB\n73\n0\n"
                        "0\nLTYPE\n2\na\n49\n9\n0\nLAYER\n2\nX\n6\nA\n370\n35\n0\nLAYER\n2\nY\n370\n-3\n"
                        "0\nENDSEC\n0\nEOF\n");
    EXPECT_EQ(p.trazos_de_linea, (std::vector<std::vector<double>>{{1, -0.5}, {}}));
    ASSERT_EQ(p.capas.size(), 2u);
    EXPECT_TRUE(vn::cerca(p.capas[0].grosor_mm, 0.35) && p.capas[1].grosor_mm == 0);
}
