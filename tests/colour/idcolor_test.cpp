#include "colour/idcolor.h"
#include "filas.h"
#include "propiedades.h"
#include <algorithm>
#include <functional>
#include <map>
#include <memory>

using namespace vn;

namespace {

constexpr idcolor AUTOCAD_15{0, 15, 0xFFFFFFFF}, DIRECTO{1, 255, 0x80C86403}, VORN_4{2, 4, 0xFFFFFFFF},
    POR_CAPA{2, VPLAN_PORCAPA, 0xFFFFFFFF};

bool operator==(const idcolor &a, const idcolor &b) {
    return a.tipo_color == b.tipo_color && a.color_paleta == b.color_paleta && a.rgba == b.rgba;
}

// A record that an operation made, taken and freed.
idcolor toma(idcolor *c) {
    const idcolor valor = *c;
    idcolor_destruye(&c);
    EXPECT_EQ(c, nullptr);
    return valor;
}
std::string texto(const idcolor &c) {
    char t[40];
    std::snprintf(t, sizeof t, "%d %u %08X", c.tipo_color, c.color_paleta, c.rgba);
    return t;
}

uint32_t un_rgb(azar &a) { return static_cast<uint32_t>(a.siguiente() >> 40); }

// What a colour answers to every question, as one line.
std::string respuestas(const idcolor &c) {
    std::string r;
    const auto di = [&](const char *formato, auto... v) {
        char t[80];
        std::snprintf(t, sizeof t, formato, v...);
        r += t;
    };
    di("%d%d%d ", idcolor_es_color_paleta(&c), idcolor_es_color_paleta_autocad(&c), idcolor_es_vplan_porcapa(&c));
    di("%d %d %d; ", idcolor_color_paleta(&c), idcolor_color_paleta_autocad(&c), idcolor_color_paleta_vorn(&c));
    di("%X %X %X;", idcolor_color_rgb(&c), idcolor_color_rgba(&c), idcolor_color_rgb_tenue(&c));
    for (const uint32_t fondo : {0u, 1u, 2u}) di(" %X", idcolor_color_rgb_segun_fondo(&c, fondo));
    for (const uint32_t fondo : {0u, 1u, 2u}) di(" %X", idcolor_color_rgb_segun_fondo_para_vplanglsl(&c, fondo));
    uint32_t tipo = 9;
    uint16_t indice = 9;
    uint8_t bytes[4] = {};
    idcolor_color_para_ARX_DWG_y_ALLPLAN(&c, &tipo, &indice, &bytes[0], &bytes[1], &bytes[2], &bytes[3]);
    di("; %u %d %d %d %d %d;", tipo, indice, bytes[0], bytes[1], bytes[2], bytes[3]);
    // To an output.
    void (*const escribe_indice)(std::string *, uint8_t) = [](std::string *t, uint8_t i) {
        *t += " #" + std::to_string(i);
    };
    void (*const escribe_rgba)(std::string *, uint32_t) = [](std::string *t, uint32_t v) {
        *t += " rgba " + std::to_string(v);
    };
    idcolor_escr_color(std::string, &r, &c, escribe_indice, escribe_rgba);
    idcolor_escr_color_con_paleta_vorn(std::string, &r, &c, escribe_indice, escribe_rgba);
    return r;
}

} // namespace

PRUEBA(idcolor, las_dos_paletas_y_sus_correspondencias) {
    std::map<int, int> a_propia;
    for (const auto &[autocad, propia] : filas<int, int>("colour/idcolor.tsv", "a_propia")) a_propia[autocad] = propia;
    for (int i = 0; i < 256; ++i) {
        const idcolor c{0, static_cast<uint8_t>(i), 0xFFFFFFFF};
        EXPECT_EQ(idcolor_color_paleta_vorn(&c), a_propia.contains(i) ? a_propia[i] : i);
        const idcolor v{2, static_cast<uint8_t>(i), 0xFFFFFFFF};
        if (i < 16) continue;
        EXPECT_EQ(idcolor_color_paleta_autocad(&v), i);
        for (const uint32_t fondo : {0u, 1u, 2u})
            EXPECT_EQ(idcolor_colorRGBSegunTipoFondo(uint32_t(i), fondo), idcolor_color_rgb(&c)) << i;
    }
    for (const auto &[i, claro, oscuro, es_claro, autocad] :
         filas<uint8_t, uint32_t, uint32_t, int, int>("colour/idcolor.tsv", "propia")) {
        const idcolor c{2, i, 0xFFFFFFFF};
        EXPECT_EQ(idcolor_color_paleta_autocad(&c), autocad);
        EXPECT_EQ(toma(idcolor_crea_color_paleta_autocad_con_color_vorn(i)).color_paleta, autocad);
        EXPECT_EQ(toma(idcolor_transforma_a_color_autocad_si_es_color_paleta(&c)).color_paleta, autocad);
        EXPECT_EQ(idcolor_colorRGB(i), claro);
        uint32_t indice = 0;
        EXPECT_EQ(idcolor_color_fondo_RGB_es_claro(claro, &indice), es_claro);
        EXPECT_EQ(indice, i);
        for (const auto &[visto, esperado] :
             {std::pair(idcolor_colorRGBSegunColorFondo(i, CIERTO), claro),
              std::pair(idcolor_colorRGBSegunColorFondo(i, FALSO), oscuro),
              std::pair(idcolor_colorRGBSegunFondo(i, 0x123456), claro), // what is not of the palette is light
              std::pair(idcolor_colorRGBSegunFondo(i, 0x800000), oscuro),
              std::pair(idcolor_colorRGBSegunTipoFondo(i, 0), claro),
              std::pair(idcolor_colorRGBSegunTipoFondo(i, 1), claro),
              std::pair(idcolor_colorRGBSegunTipoFondo(i, 2), oscuro)})
            EXPECT_EQ(visto, esperado) << int{i};
    }
    uint32_t indice = 0;
    EXPECT_EQ(idcolor_color_fondo_RGB_es_claro(0x123456, &indice), CIERTO);
    EXPECT_EQ(indice, 0xFFFFFFFF);
    ESPERA_INFORME("indice <= UCHAR_MAX", idcolor_colorRGB(256));
}

PRUEBA(idcolor, el_indice_exacto_y_el_mas_cercano) {
    const auto rgb = idcolor_dame_RGB_de_indice_color_autocad;
    for (int i = 0; i < 256; ++i) {
        const uint32_t v = rgb(static_cast<uint8_t>(i));
        uint8_t indice = 0;
        ASSERT_EQ(idcolor_dame_indice_color_autocad(v, &indice), CIERTO);
        EXPECT_LE(indice, i);
        EXPECT_EQ(rgb(indice), v);
        EXPECT_TRUE(toma(idcolor_crea_color_ajustando_paleta_autocad(v)) == (idcolor{0, indice, 0xFFFFFFFF}));
    }
    EXPECT_TRUE(toma(idcolor_crea_color_ajustando_paleta_autocad(0x123456)) == (idcolor{1, 255, 0xFF123456}));
    // Against every candidate, the last of the nearest.
    azar a(3);
    for (int caso = 0; caso < 3000; ++caso) {
        uint32_t v = un_rgb(a);
        if (caso % 8 == 0) v = rgb(static_cast<uint8_t>(a.entero(256)));
        double menor = HUGE_VAL;
        int mejor = 0;
        for (int i = 1; i <= 237; ++i) {
            double d = 0.;
            for (int bits = 0; bits < 24; bits += 8)
                d += std::pow(double(v >> bits & 255) - double(rgb(static_cast<uint8_t>(i)) >> bits & 255), 2.);
            if (d <= menor) menor = d, mejor = i;
        }
        const idcolor c{1, 255, v | 0x55000000};
        ASSERT_EQ(idcolor_dame_indice_color_autocad_mas_cercano_a_RGB(v), mejor) << std::hex << v;
        ASSERT_EQ(idcolor_color_paleta_autocad(&c), mejor);
        ASSERT_EQ(idcolor_color_paleta_vorn(&c), mejor);
    }
    EXPECT_EQ(rgb(idcolor_dame_indice_color_autocad_mas_cercano_a_RGB(0xFFFFFF)), 0xC0C0C0u);
}

// Kinds out of range among them, as a file may bring one: reported by every question, and nothing is answered.
PRUEBA(idcolor, lo_que_contesta_cada_tipo) {
    std::vector<idcolor> todos;
    for (const auto &[tipo, indice, rgba, informes, esperadas] :
         filas<int32_t, uint8_t, uint32_t, size_t, std::string>("colour/idcolor.tsv", "tipos")) {
        const idcolor c{tipo, indice, rgba};
        EXPECT_EQ(respuestas(c), esperadas) << texto(c);
        EXPECT_EQ(toma_informes().size(), informes) << texto(c);
        if (tipo >= 0 && tipo <= 2) todos.push_back(c);
    }
    for (const idcolor &c : todos) {
        for (const idcolor &otro : todos) EXPECT_EQ(idcolor_es_igual(&c, &otro), &c == &otro) << texto(c);
        idcolor copia{};
        idcolor_asigna(&copia, &c);
        EXPECT_TRUE(copia == c && toma(idcolor_copia(&c)) == c);
        EXPECT_EQ(idcolor_color_rgb_segun_fondo(&c, 3), idcolor_color_rgb_segun_fondo(&c, 1));
        EXPECT_EQ(toma_informes().size(), 1u);
    }
}

PRUEBA(idcolor, como_se_hace_cada_uno) {
    EXPECT_TRUE(toma(idcolor_crea_color_por_capa()) == POR_CAPA);
    EXPECT_TRUE(toma(idcolor_crea_color_paleta_vorn(4)) == VORN_4);
    EXPECT_TRUE(toma(idcolor_crea_color_paleta_autocad(15)) == AUTOCAD_15);
    EXPECT_TRUE(toma(idcolor_crea_color_rgba(0x80C86403)) == DIRECTO);
    EXPECT_TRUE(toma(idcolor_crea_color_rgb(0x80C86403)) == (idcolor{1, 255, 0xFFC86403}));
    EXPECT_TRUE(toma(idcolor_transforma_a_color_autocad_si_es_color_paleta(&DIRECTO)) == DIRECTO);
    idcolor c = DIRECTO;
    idcolor_set_color_paleta_vorn(&c, VPLAN_PORCAPA);
    EXPECT_TRUE(c == POR_CAPA);
    idcolor_set_color_rgba(&c, 0x80C86403);
    EXPECT_TRUE(c == DIRECTO);
    EXPECT_EQ(idcolor_es_igual_color_RGB(&c, 0xC86403), CIERTO);
    EXPECT_EQ(idcolor_es_igual_color_RGB(&c, 0x80C86403), FALSO);
    EXPECT_EQ(idcolor_es_igual_color_RGBA(&c, 0x80C86403), CIERTO);
    for (const uint8_t reservado : {uint8_t{254}, uint8_t{255}})
        EXPECT_TRUE(toma(ESPERA_INFORME("color_paleta != VPLAN_PORCAPA && color_paleta != VPLAN_NOCAMBIAR",
                                        idcolor_crea_color_paleta_vorn(reservado))) ==
                    (idcolor{2, reservado, 0xFFFFFFFF}));
}

PRUEBA(idcolor, cuentas_con_valores) {
    const auto p32 = [](double p) { return static_cast<uint8_t>(p); };
    const std::map<std::string, std::function<uint32_t(uint32_t, uint32_t, double)>> operaciones{
        {"iluminado", [](auto a, auto, auto p) { return idcolor_color_rgb_iluminado(a, p); }},
        {"oscurecido", [](auto a, auto, auto p) { return idcolor_color_rgb_oscurecido(a, p); }},
        {"modificado", [](auto a, auto, auto p) { return idcolor_color_rgb_modificado(a, p); }},
        {"mezcla", [](auto a, auto b, auto p) { return idcolor_color_rgb_mezcla(a, b, p); }},
        {"superpuesto", [&](auto a, auto b, auto p) { return idcolor_color_rgb_superpuesto(a, b, p32(p)); }},
        {"transparencia", [](auto a, auto b, auto) { return idcolor_color_rgb_transparencia_resultante(a, b); }},
        {"grises", [](auto a, auto, auto) { return idcolor_color_rgb_a_escala_grises(a); }},
        {"tenue", [](auto a, auto, auto) { return idcolor_rgb_tenue(a); }},
    };
    for (const auto &[operacion, a, b, p, esperado] :
         filas<std::string, uint32_t, uint32_t, double, uint32_t>("colour/idcolor.tsv", "cuentas"))
        EXPECT_EQ(operaciones.at(operacion)(a, b, p), esperado) << operacion << " " << p;
    // What is out of range, by a bit too, leaves the first value.
    for (const char *operacion : {"iluminado", "oscurecido", "modificado", "mezcla"})
        for (const double p : {NAN_, INF, -INF, std::nextafter(1., 2.), -1.0000001}) {
            EXPECT_EQ(operaciones.at(operacion)(0x11223344, 0x55667788, p), 0x223344u) << operacion << " " << p;
            EXPECT_EQ(toma_informes().size(), 1u) << operacion << " " << p;
        }
    for (const auto &[indice, su_tenue] : filas<uint8_t, uint8_t>("colour/idcolor.tsv", "tenues")) {
        const idcolor c{0, indice, 0xFFFFFFFF};
        EXPECT_EQ(idcolor_color_rgb_tenue(&c), idcolor_dame_RGB_de_indice_color_autocad(su_tenue)) << int{indice};
    }
    EXPECT_EQ(idcolor_color_rgb_igual(0x20102030, 0x00121E31, 2), CIERTO);
    EXPECT_EQ(idcolor_color_rgb_igual(0x00102030, 0x00121E31, 1), FALSO);
    EXPECT_EQ(idcolor_color_con_transparencia(0xFEFFFFFF), CIERTO);
    EXPECT_EQ(idcolor_color_con_transparencia(0xFF000000), FALSO);
}

PRUEBA(idcolor, propiedades_de_las_cuentas) {
    azar a(11);
    huella h;
    for (int caso = 0; caso < 4000; ++caso) {
        const uint32_t v = caso < 256 ? static_cast<uint32_t>(caso) * 0x010101 : un_rgb(a);
        const auto alfa = static_cast<uint8_t>(a.entero(256));
        const uint32_t rgba = idcolor_color_rgb_a_rgba(v, alfa);
        SCOPED_TRACE(caso);
        uint8_t r, g, b, al;
        idcolor_get_rgba(rgba, &r, &g, &b, &al);
        ASSERT_EQ(idcolor_rgba(r, g, b, al), rgba);
        double x, y, z;
        idcolor_descomponer_color_vector_unitario_con_fondo_blanco(rgba, &x, &y, &z);
        ASSERT_EQ((std::vector{x * 255, y * 255, z * 255}), (std::vector<double>{double(r), double(g), double(b)}));
        // To hue, saturation and lightness and back.
        ASSERT_EQ(idcolor_color_rgba_lighten(rgba, 0.), rgba);
        ASSERT_EQ(idcolor_color_rgba_lighten(rgba, 1.), rgba | 0xFFFFFF);
        ASSERT_EQ(idcolor_color_rgba_lighten(rgba, -1.), rgba & 0xFF000000);
        const double p = a.entre(-1., 1.);
        const uint32_t otro = idcolor_color_rgba_lighten(rgba, p);
        h << otro;
        for (int bits = 0; bits < 24; bits += 8) { // no channel goes against the way, but for rounding
            const int sube = int(otro >> bits & 255) - int(v >> bits & 255);
            ASSERT_TRUE(p >= 0. ? sube >= 0 : sube <= 0) << p;
        }
    }
    EXPECT_EQ(h(), 1396473927508616183u);
}

PRUEBA(idcolor, textos_y_colores_de_listas) {
    EXPECT_EQ(vn::toma(idcolor_dame_cadena_color_para_html(0x0000FF)), "#FF0000");
    EXPECT_EQ(vn::toma(idcolor_dame_cadena_color_para_html_u(0xFFA00B3C)), "#3C0BA0");
    EXPECT_EQ(idcolor_color_fondo_selector(0), 0x8F9FD0u);
    EXPECT_EQ(idcolor_color_fondo_selector(7), 0xF8FEFEu);
    EXPECT_EQ(idcolor_color_texto_selector(6), 0u);
    EXPECT_EQ(idcolor_color_texto_selector(7), 0x323232u);
    EXPECT_EQ(ESPERA_INFORME("tabuladores < 8", idcolor_color_fondo_selector(8)), 0u);
}
