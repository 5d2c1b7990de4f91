// The DXF reader of the sample host on real drawings, which stand beside the checkout where there are any.
#include "dibuja.h"
#include "dxf.h"
#include "geometria.h"
#include "informe.h"
#include "propiedades.h"
#include <cmath>
#include <map>
#include <set>
#include <sstream>

using namespace obra;

// Counts, length of the lines and extents of real drawings, as an independent reader found them.
PRUEBA(obra_planos, los_planos_reales_dan_las_cuentas_y_las_medidas_de_otro_lector) {
    int comparados = 0;
    for (const auto &col : vn::tabla("A_dxf/expected.tsv")) {
        SCOPED_TRACE(col[0]);
        plano p;
        noticias_dxf noticias;
        ASSERT_EQ(lee_dxf(vn::ancho(vn::dato("A_dxf/" + col[0])), p, noticias), lectura_dxf::bien);
        EXPECT_TRUE(!noticias.sin_final && !noticias.unidad_ignorada);
        EXPECT_EQ(utf8(p.version_dxf), col[1]);
        std::map<std::string, size_t> esperadas;
        std::istringstream todas(col[6]);
        for (std::string x; todas >> x;) esperadas[x.substr(0, x.find('='))] = std::stoul(x.substr(x.find('=') + 1));
        // The picture's box is the report's, but for layers that are off.
        extension vista;
        for (const capa &c : p.capas)
            if (const extension x = extension_de(c); x.hay && !c.apagada)
                vista.anade(x.xmin, x.ymin), vista.anade(x.xmax, x.ymax);
        const extension dibujada = limites_de(p, [](size_t) {});
        const double m = p.metros_por_unidad,
                     ajuste = 1e-9 * (1 + std::fabs(vista.xmax * m) + std::fabs(vista.ymax * m));
        EXPECT_TRUE(vista.hay && dibujada.hay);
        EXPECT_NEAR(dibujada.xmin, vista.xmin * m, ajuste);
        EXPECT_NEAR(dibujada.ymin, vista.ymin * m, ajuste);
        EXPECT_NEAR(dibujada.xmax, vista.xmax * m, ajuste);
        EXPECT_NEAR(dibujada.ymax, vista.ymax * m, ajuste);
        // What is not taken is told, each kind; a reference may bring more of it.
        static const std::set<std::string> TOMADAS = {"ARC",        "CIRCLE", "ELLIPSE",  "INSERT", "LINE",
                                                      "LWPOLYLINE", "MTEXT",  "POLYLINE", "TEXT"};
        for (const auto &[clase, cuantas] : esperadas)
            EXPECT_TRUE(TOMADAS.contains(clase) ? !p.sin_importar.contains(clase) : p.sin_importar[clase] >= cuantas)
                << clase;
        // Those with references count what is in them too; the oracle does not expand them.
        if (esperadas.contains("INSERT") || esperadas.contains("SPLINE")) continue;
        ++comparados;
        std::map<std::string, size_t> n;
        double longitud = 0;
        extension e;
        for (const capa &c : p.capas) {
            n["LINE"] += c.lineas.size(), n["ARC"] += c.arcos.size(), n["CIRCLE"] += c.circulos.size();
            n["POLYLINE"] += c.polilineas.size(), n["TEXT"] += c.rotulos.size();
            for (const linea &l : c.lineas) longitud += std::hypot(l.b.x - l.a.x, l.b.y - l.a.y);
            if (const extension x = extension_de(c); x.hay) e.anade(x.xmin, x.ymin), e.anade(x.xmax, x.ymax);
        }
        for (const auto &[clase, cuantas] : esperadas) {
            const auto nuestra = n.find(clase == "LWPOLYLINE" ? "POLYLINE" : clase);
            EXPECT_TRUE(nuestra == n.end() || nuestra->second == cuantas) << clase << ": " << cuantas;
        }
        // The roof's lines climb: in plan they are shorter.
        const double esperada = std::stod(col[7]);
        if (col[0] == "house_roof_r2007.dxf") {
            EXPECT_LT(longitud, esperada);
        } else {
            EXPECT_NEAR(longitud, esperada, 1e-6 * (1 + esperada));
        }
        // Hatches and faces, which are not imported, reach beyond the curves in some.
        if (esperadas.contains("HATCH") || esperadas.contains("3DFACE")) continue;
        std::istringstream caja(col[8]);
        double xmin, ymin, xmax, ymax;
        caja >> xmin >> ymin >> xmax >> ymax;
        const double tolerancia = 1e-5 * (1 + std::fabs(xmax - xmin) + std::fabs(ymax - ymin)); // its arcs are polygons
        EXPECT_NEAR(e.xmin, xmin, tolerancia);
        EXPECT_NEAR(e.ymin, ymin, tolerancia);
        EXPECT_NEAR(e.xmax, xmax, tolerancia);
        EXPECT_NEAR(e.ymax, ymax, tolerancia);
        // The hull lies in the bounding rectangle and touches its four sides: at least half of it.
        const double area = rec_Ancho(rectangulo_de(p).get()) * rec_Alto(rectangulo_de(p).get());
        const envolvente casco = envolvente_de(p);
        EXPECT_TRUE(area / 2 < casco.area && casco.area < area * 1.000001 && casco.vertices > 3)
            << casco.area << " of " << area;
    }
    EXPECT_GE(comparados, 9);
}
