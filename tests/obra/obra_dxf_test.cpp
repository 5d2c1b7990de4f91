// The DXF reader of the sample host, on small drawings of our own.
#include "dxf.h"
#include "filas.h"
#include "informe.h"
#include "propiedades.h"
#include <algorithm>
#include <cmath>
#include <numbers>

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

const capa &capa_de(const plano &p, const char *nombre) {
    for (const capa &c : p.capas)
        if (utf8(c.nombre) == nombre) return c;
    ADD_FAILURE() << "no layer " << nombre;
    static const capa ninguna;
    return ninguna;
}

// Where a point is, and where a layer's figures are, to 1e-12 of a scale.
testing::AssertionResult es(const Punto2D &p, double x, double y, double escala = 1) {
    const auto r = vn::cerca(p.x, x, escala);
    return r ? vn::cerca(p.y, y, escala) : r;
}
testing::AssertionResult ocupa(const capa &c, double x1, double y1, double x2, double y2, double escala = 1) {
    const extension e = extension_de(c);
    const auto r = es({e.xmin, e.ymin}, x1, y1, escala);
    return r ? es({e.xmax, e.ymax}, x2, y2, escala) : r;
}

std::string veces(int n, const std::string &s) {
    std::string r;
    for (int i = 0; i < n; ++i) r += s;
    return r;
}

constexpr const char *LINEA = "0\nLINE\n8\n0\n62\n0\n10\n1\n20\n0\n30\n0\n11\n3\n21\n0\n31\n0\n";
constexpr const char *ARCO = "0\nARC\n8\n0\n10\n1\n20\n0\n30\n0\n40\n1\n50\n0\n51\n90\n";

} // namespace

PRUEBA(obra_dxf, las_referencias_se_expanden_con_su_capa_y_su_color) {
    // Turned 90 degrees, twice as large, in two columns 10 apart along the turned axis.
    const plano p = lee(
        dxf_con("0\nINSERT\n8\nEJES\n62\n5\n2\nB\n10\n100\n20\n50\n30\n0\n41\n2\n42\n2\n43\n2\n50\n90\n70\n2\n44\n10\n"
                "0\nLINE\n8\nOTRA\n62\n99999999\n10\n1\n20\n0\n11\n3\n21\n0\n",
                LINEA));
    EXPECT_EQ(capa_de(p, "OTRA").color_lineas.at(0), 256u); // no colour of the palette: that of its layer
    const capa &c = capa_de(p, "EJES");
    ASSERT_EQ(c.lineas.size(), 2u);
    EXPECT_TRUE(es(c.lineas[0].a, 100, 50));
    EXPECT_TRUE(es(c.lineas[0].b, 100, 54));
    EXPECT_TRUE(es(c.lineas[1].a, 100, 60));
    EXPECT_EQ(c.color_lineas[0], 5u);
    EXPECT_TRUE(c.apagada);
    EXPECT_EQ(utf8(c.tipo_linea), "DASHED");
}

PRUEBA(obra_dxf, un_arco_reflejado_gira_al_reves_y_uno_estirado_es_una_elipse) {
    const plano espejo = lee(dxf_con("0\nINSERT\n8\n0\n2\nB\n10\n0\n20\n0\n30\n0\n41\n-1\n42\n1\n43\n1\n", ARCO));
    const capa &c = capa_de(espejo, "0");
    ASSERT_EQ(c.arcos.size(), 1u);
    // From 90 to 180 degrees about the origin, counter-clockwise.
    EXPECT_TRUE(es(c.arcos[0].centro, 0, 0));
    EXPECT_TRUE(es({c.arcos[0].desde, std::fabs(c.arcos[0].hasta)}, std::numbers::pi / 2, std::numbers::pi));
    const plano estirado = lee(dxf_con("0\nINSERT\n8\n0\n2\nB\n10\n0\n20\n0\n30\n0\n41\n3\n42\n1\n43\n1\n", ARCO));
    EXPECT_EQ(capa_de(estirado, "0").elipses.size(), 1u);
    EXPECT_TRUE(ocupa(capa_de(estirado, "0"), 0, 0, 3, 1, 1e3));
}

// Centre (7, 1), half axis (1, 0.5), ratio 0.3, parameters 0.2 to 2, seen from below: its box by another reader.
PRUEBA(obra_dxf, una_elipse_en_un_plano_vuelto_y_una_polilinea_con_curvatura_y_marco) {
    const plano e = lee(dxf_con("0\nELLIPSE\n10\n7\n20\n1\n11\n1\n21\n.5\n40\n.3\n41\n.2\n42\n2\n230\n-1\n"));
    EXPECT_TRUE(ocupa(capa_de(e, "0"), 6.720, 0.519, 8.010, 1.430, 1e9));
    // The second vertex is of the frame; the third belongs to none.
    const plano p = lee(
        dxf_con("0\nPOLYLINE\n8\nEJES\n66\n1\n70\n5\n0\nVERTEX\n10\n0\n20\n0\n42\n1\n0\nVERTEX\n70\n16\n10\n9\n20\n9\n"
                "0\nVERTEX\n10\n2\n20\n0\n0\nSEQEND\n0\nVERTEX\n10\n99\n0\nPOLYLINE\n70\n16\n0\nVERTEX\n10\n99\n"
                "0\nPOLYLINE\n0\nSEQEND\n"));
    const capa &c = capa_de(p, "EJES");
    ASSERT_EQ(c.polilineas.size(), 1u);
    EXPECT_TRUE(c.polilineas[0].cerrada);
    EXPECT_EQ(c.polilineas[0].vertices.size(), 2u);
    // A half circle below the chord.
    EXPECT_TRUE(ocupa(c, 0, -1, 2, 0));
    EXPECT_EQ(p.sin_importar, (std::map<std::string, uint32_t>{{"POLYLINE", 1}, {"POLYLINE MESH", 1}}));
}

PRUEBA(obra_dxf, los_textos_dicen_lo_que_el_plano_y_estan_donde_el) {
    for (const auto &[version, clase, bytes, dicho] :
         vn::filas<std::string, std::string, std::string, std::string>("obra/obra.tsv", "textos")) {
        std::string s = dxf_con("0\n" + clase + "\n1\n" + bytes + "\n");
        const plano p = lee(s.replace(s.find("AC1009"), 6, version));
        EXPECT_EQ(utf8(capa_de(p, "0").rotulos.at(0).letras), dicho) << bytes;
    }
    // Longer than any buffer, in pieces; what follows 101 is of another object.
    const std::string largo(5000, 'x'),
        empotrado = "101\nEmbedded Object\n10\n1\n20\n0\n40\n9\n11\n0\n21\n1\n1\n\\C1;otro\n";
    const plano p = lee(dxf_con("0\nMTEXT\n10\n7\n20\n8\n40\n.5\n3\n" + largo + "\n1\ny\n50\n90\n" + empotrado +
                                "0\nTEXT\n10\n1\n20\n1\n11\n3\n21\n4\n72\n1\n50\n30\n1\n" + largo +
                                "\n0\nATTRIB\n10\n5\n20\n6\n1\n\n" + empotrado));
    const auto &r = capa_de(p, "0").rotulos;
    ASSERT_EQ(r.size(), 3u);
    EXPECT_EQ(utf8(r[0].letras), largo + "y");
    EXPECT_TRUE(r[0].en.x == 7 && r[0].en.y == 8 && r[0].altura == .5);
    EXPECT_TRUE(vn::cerca(r[0].angulo, std::numbers::pi / 2));
    EXPECT_EQ(utf8(r[1].letras), largo);
    EXPECT_TRUE(r[1].en.x == 3 && r[1].en.y == 4);
    EXPECT_TRUE(vn::cerca(r[1].angulo, std::numbers::pi / 6));
    EXPECT_TRUE(utf8(r[2].letras) == "otro" && r[2].en.x == 5 && r[2].en.y == 6);
}

PRUEBA(obra_dxf, los_nombres_no_tienen_caja_y_lo_que_no_se_toma_se_cuenta) {
    const std::string tabla = "0\nLTYPE\n2\nTrazos\n0\nLTYPE\n2\nTRAZOS\n0\nLAYER\n2\nHelada\n70\n1\n";
    std::string s = dxf_con("0\nINSERT\n2\nb\n8\nejes\n70\n3\n0\nINSERT\n2\nNo est\xE1\n0\nMLINE\n0\nMULTILEADER\n"
                            "0\nLINE\n10\n1e999\n0\nLINE\n10\nx\n0\nATTDEF\n70\n0\n0\nLINE\n67\n1\n",
                            std::string(LINEA) + "0\nHATCH\n91\n2000000000\n0\nATTDEF\n70\n0\n0\nINSERT\n2\nB\n");
    const plano p = lee(s.insert(s.find("0\nENDTAB"), tabla));
    EXPECT_EQ(capa_de(p, "EJES").lineas.size(), 3u);
    EXPECT_TRUE(capa_de(p, "Helada").apagada);
    EXPECT_EQ(p.tipos_de_linea.size(), 1u);
    EXPECT_EQ(p.sin_importar, (std::map<std::string, uint32_t>{{"HATCH", 3},
                                                               {"INSERT B", 3},
                                                               {"INSERT No está", 1},
                                                               {"MLINE", 1},
                                                               {"MULTILEADER", 1},
                                                               {"LINE", 2},
                                                               {"ATTDEF", 1}}));
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
    EXPECT_TRUE(n.sin_final && capa_de(p, "0").lineas.size() == 1);
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
