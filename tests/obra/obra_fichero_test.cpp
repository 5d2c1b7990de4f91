// Project files of the sample host: what is saved comes back, and what has been damaged is refused whole.
#include "fallos.h"
#include "informe.h"
#include "plano_fichero.h"
#include "propiedades.h"
#include "prueba.h"

using namespace obra;

namespace {

plano plano_de_prueba() {
    plano p;
    p.version_dxf = vn::ancho("AC1027");
    p.metros_por_unidad = 0.001;
    p.tipos_de_linea = {vn::ancho("CONTINUOUS"), vn::ancho("EJES")};
    p.sin_importar = {{"HATCH", 3}, {"SPLINE", 1}};
    capa muros{.nombre = vn::ancho("Muros \u00f1\u4e2d\U0001F600"), .tipo_linea = vn::ancho("CONTINUOUS"), .color = 1};
    for (int i = 0; i < 40; ++i) {
        muros.lineas.push_back({{i * 1.5, 0}, {i * 1.5, 10.0 + i}});
        muros.color_lineas.push_back(256);
    }
    muros.color_lineas[7] = 0x1000000 + 0xABCDEF;
    muros.circulos = {{{1, 2}, 3}};
    muros.color_circulos = {5};
    muros.arcos = {{{0, 0}, 2, 0.5, 1.5}, {{100, 100}, 1, 3, -3}};
    muros.color_arcos = {1, 1};
    capa vacia{.nombre = vn::ancho("0"), .apagada = true};
    capa resto{.nombre = vn::ancho("Resto"), .tipo_linea = vn::ancho("EJES"), .color = 0x1FFFFFF};
    resto.polilineas = {{true, {{0, 0}, {1, 0}, {1, 1}}, {0, 0.5, 0}}, {false, {{5, 5}}, {0}}, {false, {}, {}}};
    resto.color_polilineas = {1, 2, 3};
    resto.elipses = {{{0, 0}, {2, 1}, -0.5, 0, 3}};
    resto.color_elipses = {0};
    resto.rotulos = {{{1, 1}, 0.25, 0, vn::ancho("Cota \u00b10,00")}, {{2, 1}, 0.25, 0.1, vn::ancho("")}};
    resto.color_rotulos = {7, 7};
    p.capas = {muros, vacia, resto};
    return p;
}

struct Fichero {
    std::string utf8 = vn::Prueba::directorio() + "/obra de prueba.obr";
    texto ancho = vn::ancho(utf8);
};

bool graba(const Fichero &f, const campos_t &campos = {}) {
    return graba_obra(f.ancho, plano_de_prueba(), vn::ancho("Un t\u00edtulo"), campos);
}

} // namespace

PRUEBA(obra_fichero, lo_que_se_graba_se_lee_y_los_campos_se_conservan) {
    const Fichero f;
    ASSERT_TRUE(graba(f, {{vn::ancho("autor"), vn::ancho("Ñandú")}, {vn::ancho("fase"), vn::ancho("1")}}));
    obra_leida o;
    std::string motivo;
    ASSERT_EQ(lee_obra(f.ancho, o, motivo), lectura_obra::bien) << motivo;
    // What was read makes the same file, whose bytes are those of below.
    const std::string otra = directorio() + "/otra.obr";
    ASSERT_TRUE(graba_obra(vn::ancho(otra), o.p, o.titulo, o.campos));
    EXPECT_TRUE(vn::lee_fichero(otra) == vn::lee_fichero(f.utf8));
    EXPECT_EQ(utf8(o.titulo), "Un título");
    ASSERT_EQ(o.secciones.size(), 4u);
    EXPECT_EQ(o.secciones[0].nombre, "PLANO");
    // A second save gives one field anew and keeps the other.
    ASSERT_TRUE(graba(f, {{vn::ancho("fase"), vn::ancho("2")}}));
    ASSERT_EQ(lee_obra(f.ancho, o, motivo), lectura_obra::bien) << motivo;
    ASSERT_EQ(o.campos.size(), 2u);
    EXPECT_EQ(utf8(o.campos[0].second), "Ñandú");
    EXPECT_EQ(utf8(o.campos[1].second), "2");
    EXPECT_TRUE(vn::existe(f.utf8 + ".bak"));
    EXPECT_FALSE(vn::existe(f.utf8 + "_TM$"));
}

// Patterns and pens stand in blocks of their own, which old files have not.
PRUEBA(obra_fichero, los_trazos_y_las_plumas_se_conservan) {
    const Fichero f;
    plano p = plano_de_prueba();
    p.trazos_de_linea = {{}, {0.5, -0.25, 0, -0.25}};
    p.capas[2].grosor_mm = 0.35;
    ASSERT_TRUE(graba_obra(f.ancho, p, vn::ancho("t"), {}));
    obra_leida o;
    std::string motivo;
    ASSERT_EQ(lee_obra(f.ancho, o, motivo), lectura_obra::bien) << motivo;
    EXPECT_EQ(o.p.trazos_de_linea, p.trazos_de_linea);
    EXPECT_TRUE(o.p.capas[2].grosor_mm == 0.35 && o.p.capas[0].grosor_mm == 0);
    ASSERT_TRUE(graba(f));
    ASSERT_EQ(lee_obra(f.ancho, o, motivo), lectura_obra::bien) << motivo;
    EXPECT_TRUE(o.p.trazos_de_linea.empty() && o.p.capas[2].grosor_mm == 0);
}

// The same records give the same bytes on every platform: this number is of them all.
PRUEBA(obra_fichero, los_bytes_son_los_mismos_en_toda_plataforma) {
    const Fichero f;
    ASSERT_TRUE(graba(f, {{vn::ancho("autor"), vn::ancho("Ñandú")}}));
    const std::string bytes = vn::lee_fichero(f.utf8);
    EXPECT_EQ(bytes.size(), 2346u);
    EXPECT_EQ((vn::huella() << bytes)(), 2748994739658136108u);
}

PRUEBA(obra_fichero, una_version_superior_y_lo_que_no_es_una_obra) {
    const Fichero f;
    obra_leida o;
    std::string motivo;
    ASSERT_TRUE(graba(f));
    std::string otro = vn::lee_fichero(f.utf8);
    otro[otro.find(FIRMA) - 4] = 99; // the version stands before the signature's length
    vn::graba_fichero(f.utf8, otro);
    EXPECT_EQ(lee_obra(f.ancho, o, motivo), lectura_obra::version_superior);
    for (const std::string &nombre : {directorio(), directorio() + "/no est\u00e1"}) {
        EXPECT_EQ(lee_obra(vn::ancho(nombre), o, motivo), lectura_obra::no_es_obra);
        EXPECT_FALSE(motivo.empty());
    }
}

// Every boundary of a save, the death of the program at each one included.
GUARDADO(obra_de_ejemplo) {
    return graba_obra(vn::ancho(fichero), plano_de_prueba(),
                      vn::ancho(std::string("Edici\u00f3n ") + static_cast<char>('0' + edicion)), {});
}
PRUEBA(obra_fichero, un_guardado_deja_la_obra_de_antes_o_la_nueva) { vn::comprueba_guardado("obra_de_ejemplo"); }
