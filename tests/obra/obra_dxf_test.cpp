// The DXF reader of the sample host, on small drawings of our own.
#include "dxf.h"
#include "informe.h"
#include "prueba.h"
#include <cmath>
#include <numbers>

using namespace obra;

namespace {

// A drawing out of entity lines "code value" separated by line ends, with one block B and layer definitions.
std::string dxf_con(const std::string &entidades, const std::string &bloque = "") {
    return "0\nSECTION\n2\nHEADER\n9\n$ACADVER\n1\nAC1009\n9\n$DWGCODEPAGE\n3\nANSI_1252\n0\nENDSEC\n"
           "0\nSECTION\n2\nTABLES\n0\nTABLE\n2\nLAYER\n70\n1\n0\nLAYER\n2\nEJES\n70\n0\n62\n-3\n6\nDASHED\n0\nENDTAB\n0\nENDSEC\n"
           "0\nSECTION\n2\nBLOCKS\n0\nBLOCK\n8\n0\n2\nB\n70\n0\n10\n1\n20\n0\n30\n0\n" + bloque +
           "0\nENDBLK\n0\nENDSEC\n0\nSECTION\n2\nENTITIES\n" + entidades + "0\nENDSEC\n0\nEOF\n";
}

plano lee(const std::string &contenido) {
    const std::string nombre = vn::Prueba::directorio() + "/p.dxf";
    vn::graba_fichero(nombre, contenido);
    plano p;
    EXPECT_EQ(lee_dxf(nombre, p), lectura_dxf::bien);
    return p;
}

const capa &capa_de(const plano &p, const char *nombre) {
    for (const capa &c : p.capas)
        if (utf8(c.nombre) == nombre) return c;
    ADD_FAILURE() << "no layer " << nombre;
    static const capa ninguna;
    return ninguna;
}

constexpr const char *LINEA = "0\nLINE\n8\n0\n62\n0\n10\n1\n20\n0\n30\n0\n11\n3\n21\n0\n31\n0\n";
constexpr const char *ARCO = "0\nARC\n8\n0\n10\n1\n20\n0\n30\n0\n40\n1\n50\n0\n51\n90\n";

} // namespace

PRUEBA(obra_dxf, las_referencias_se_expanden_con_su_capa_y_su_color) {
    // Turned 90 degrees, twice as large, in two columns 10 apart along the turned axis.
    const plano p = lee(dxf_con("0\nINSERT\n8\nEJES\n62\n5\n2\nB\n10\n100\n20\n50\n30\n0\n41\n2\n42\n2\n43\n2\n50\n90\n70\n2\n44\n10\n"
                                "0\nLINE\n8\nOTRA\n62\n99999999\n10\n1\n20\n0\n11\n3\n21\n0\n", LINEA));
    EXPECT_EQ(capa_de(p, "OTRA").color_lineas.at(0), 256u); // no colour of the palette: that of its layer
    const capa &c = capa_de(p, "EJES");
    ASSERT_EQ(c.lineas.size(), 2u);
    EXPECT_NEAR(c.lineas[0].a.x, 100, 1e-12);
    EXPECT_NEAR(c.lineas[0].a.y, 50, 1e-12);
    EXPECT_NEAR(c.lineas[0].b.x, 100, 1e-12);
    EXPECT_NEAR(c.lineas[0].b.y, 54, 1e-12);
    EXPECT_NEAR(c.lineas[1].a.y, 60, 1e-12);
    EXPECT_EQ(c.color_lineas[0], 5u);
    EXPECT_TRUE(c.apagada);
    EXPECT_EQ(utf8(c.tipo_linea), "DASHED");
}

PRUEBA(obra_dxf, un_arco_reflejado_gira_al_reves_y_uno_estirado_es_una_elipse) {
    const plano espejo = lee(dxf_con("0\nINSERT\n8\n0\n2\nB\n10\n0\n20\n0\n30\n0\n41\n-1\n42\n1\n43\n1\n", ARCO));
    const capa &c = capa_de(espejo, "0");
    ASSERT_EQ(c.arcos.size(), 1u);
    // From 90 to 180 degrees about the origin, counter-clockwise.
    EXPECT_NEAR(c.arcos[0].centro.x, 0, 1e-12);
    EXPECT_NEAR(c.arcos[0].desde, std::numbers::pi / 2, 1e-12);
    EXPECT_NEAR(std::fabs(c.arcos[0].hasta), std::numbers::pi, 1e-12);
    const plano estirado = lee(dxf_con("0\nINSERT\n8\n0\n2\nB\n10\n0\n20\n0\n30\n0\n41\n3\n42\n1\n43\n1\n", ARCO));
    const extension e = extension_de(capa_de(estirado, "0"));
    EXPECT_EQ(capa_de(estirado, "0").elipses.size(), 1u);
    EXPECT_NEAR(e.xmin, 0, 1e-9);
    EXPECT_NEAR(e.xmax, 3, 1e-9);
    EXPECT_NEAR(e.ymin, 0, 1e-9);
    EXPECT_NEAR(e.ymax, 1, 1e-9);
}

PRUEBA(obra_dxf, polilineas_con_curvatura_y_textos_con_codigos) {
    const plano p = lee(dxf_con(
        "0\nPOLYLINE\n8\nEJES\n66\n1\n70\n1\n0\nVERTEX\n8\n0\n10\n0\n20\n0\n42\n1\n0\nVERTEX\n8\n0\n10\n2\n20\n0\n0\nSEQEND\n"
        "0\nTEXT\n8\nEJES\n10\n1\n20\n1\n40\n0.5\n1\n%%c20 \\U+00B1 ca\xF1o\n50\n30\n"));
    const capa &c = capa_de(p, "EJES");
    ASSERT_EQ(c.polilineas.size(), 1u);
    EXPECT_TRUE(c.polilineas[0].cerrada);
    ASSERT_EQ(c.rotulos.size(), 1u);
    EXPECT_EQ(utf8(c.rotulos[0].letras), "∅20 ± caño");
    // A half circle below the chord.
    const extension e = extension_de(c);
    EXPECT_NEAR(e.ymin, -1, 1e-12);
    EXPECT_NEAR(e.ymax, 0, 1e-12);
}

PRUEBA(obra_dxf, lo_que_no_es_un_dxf_se_rechaza_y_un_bloque_dentro_de_si_mismo_acaba) {
    plano p;
    const std::string nombre = directorio() + "/p.dxf";
    for (const char *malo : {"", "hola\n", "\x7f""ELF\x01\x02\x03", "0\n"}) {
        vn::graba_fichero(nombre, malo);
        EXPECT_NE(lee_dxf(nombre, p), lectura_dxf::bien) << malo;
    }
    EXPECT_NE(lee_dxf(directorio() + "/no_esta.dxf", p), lectura_dxf::bien);
    const std::string dentro = "0\nINSERT\n8\n0\n2\nB\n10\n0\n20\n0\n30\n0\n";
    EXPECT_TRUE(capa_de(lee(dxf_con(dentro, dentro + LINEA)), "0").lineas.size() < 100);
    // 65,535 x 65,535 copies are refused, not made.
    const std::string entero = dxf_con("0\nINSERT\n8\n0\n2\nB\n10\n0\n20\n0\n30\n0\n70\n65535\n71\n65535\n", LINEA);
    vn::graba_fichero(nombre, entero);
    EXPECT_EQ(lee_dxf(nombre, p), lectura_dxf::demasiado_grande);
    // Cut anywhere, it is read as far as it goes or refused.
    const std::string bien = dxf_con(std::string(LINEA) + ARCO, LINEA);
    for (size_t n = 0; n < bien.size(); n += 3) {
        vn::graba_fichero(nombre, bien.substr(0, n));
        lee_dxf(nombre, p);
    }
}
