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
    POR_CAPA{2, VPLAN_PORCAPA, 0xFFFFFFFF}, NO_CAMBIAR{2, VPLAN_NOCAMBIAR, 0xFFFFFFFF};

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
        EXPECT_EQ(idcolor_color_rgb(&c), claro);
        EXPECT_EQ(idcolor_color_rgba(&c), claro | 0xFF000000);
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

PRUEBA(idcolor, lo_que_contesta_cada_tipo) {
    const struct {
        idcolor c;
        bool es_paleta, es_autocad, es_porcapa;
        const char *arx; // type, index, bytes
    } casos[] = {
        {AUTOCAD_15, true, true, false, "0 15 255 255 255 255"},
        {DIRECTO, false, false, false, "1 65535 3 100 200 128"},
        {VORN_4, true, false, false, "0 16 255 255 255 255"},
        {POR_CAPA, true, false, true, "0 254 255 255 255 255"},
        {{0, VPLAN_PORCAPA, 0xFFFFFFFF}, true, true, false, "0 254 255 255 255 255"},
        {NO_CAMBIAR, true, false, false, "0 255 255 255 255 255"},
        {{1, 255, 0xFEC86403}, false, false, false, "1 65535 3 100 200 254"},
    };
    for (const auto &f : casos) {
        EXPECT_EQ(idcolor_es_color_paleta(&f.c), f.es_paleta);
        EXPECT_EQ(idcolor_es_color_paleta_autocad(&f.c), f.es_autocad);
        EXPECT_EQ(idcolor_es_vplan_porcapa(&f.c), f.es_porcapa);
        uint32_t tipo = 9;
        uint16_t indice = 9;
        uint8_t r, g, b, al;
        idcolor_color_para_ARX_DWG_y_ALLPLAN(&f.c, &tipo, &indice, &r, &g, &b, &al);
        std::string arx = std::to_string(tipo);
        for (const int n : {int{indice}, int{r}, int{g}, int{b}, int{al}}) arx += " " + std::to_string(n);
        EXPECT_EQ(arx, f.arx);
        for (const auto &g2 : casos) EXPECT_EQ(idcolor_es_igual(&f.c, &g2.c), &f.c == &g2.c) << texto(f.c);
        idcolor copia{};
        idcolor_asigna(&copia, &f.c);
        EXPECT_TRUE(copia == f.c && toma(idcolor_copia(&f.c)) == f.c);
    }
    EXPECT_TRUE(toma(idcolor_crea_color_por_capa()) == POR_CAPA);
    EXPECT_TRUE(toma(idcolor_crea_color_paleta_vorn(4)) == VORN_4);
    EXPECT_TRUE(toma(idcolor_crea_color_paleta_autocad(15)) == AUTOCAD_15);
    EXPECT_TRUE(toma(idcolor_crea_color_rgba(0x80C86403)) == DIRECTO);
    EXPECT_TRUE(toma(idcolor_crea_color_rgb(0x80C86403)) == (idcolor{1, 255, 0xFFC86403}));
    EXPECT_TRUE(toma(idcolor_transforma_a_color_autocad_si_es_color_paleta(&DIRECTO)) == DIRECTO);
    idcolor c = DIRECTO;
    idcolor_set_color_paleta_vorn(&c, VPLAN_NOCAMBIAR);
    EXPECT_TRUE(c == NO_CAMBIAR);
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

PRUEBA(idcolor, sobre_cada_fondo) {
    constexpr idcolor BLANCO_ACI{0, 255, 0xFFFFFFFF}, NEGRO_ACI{0, 7, 0xFFFFFFFF}, BLANCO{2, 15, 0xFFFFFFFF},
        NEGRO{2, 7, 0xFFFFFFFF}, BLANCO_DIRECTO{1, 255, 0xFFFFFFFF}, NEGRO_DIRECTO{1, 255, 0xFF000000};
    const struct {
        idcolor c;
        uint32_t fondos[3], glsl[3];
    } casos[] = {
        {BLANCO_ACI, {0, 0xFFFFFF, 0xFFFFFF}, {0, 0xFFFFFF, 0xFFFFFF}},
        {NEGRO_ACI, {0, 0, 0xFFFFFF}, {0, 0, 0xFFFFFF}},
        {BLANCO, {0, 0xFFFFFF, 0xFFFFFF}, {0, 0xFFFFFF, 0xFFFFFF}},
        {NEGRO, {0, 0, 0xFFFFFF}, {0, 0, 0xFFFFFF}},
        {BLANCO_DIRECTO, {0xFFFFFF, 0xFFFFFF, 0xFFFFFF}, {0xFFFFFF, 0xFFFFFF, 0xFFFFFF}},
        {NEGRO_DIRECTO, {0, 0, 0}, {0, 0, 0}},
        {VORN_4, {0x000080, 0x000080, 0x000080}, {0x000080, 0x000080, 0x0066CC}},
    };
    for (const auto &f : casos) {
        SCOPED_TRACE(texto(f.c));
        for (uint32_t fondo = 0; fondo < 3; ++fondo) {
            EXPECT_EQ(idcolor_color_rgb_segun_fondo(&f.c, fondo), f.fondos[fondo]);
            EXPECT_EQ(idcolor_color_rgb_segun_fondo_para_vplanglsl(&f.c, fondo), f.glsl[fondo]);
        }
        EXPECT_EQ(idcolor_color_rgb_segun_fondo(&f.c, 3), f.fondos[1]);
        EXPECT_EQ(toma_informes().size(), 1u);
    }
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
    EXPECT_EQ(idcolor_color_rgb_tenue(&DIRECTO), idcolor_rgb_tenue(0xC86403));
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
        // The ends of each proportion.
        ASSERT_EQ(idcolor_color_rgb_iluminado(rgba, 0.), v);
        ASSERT_EQ(idcolor_color_rgb_iluminado(rgba, 1.), 0xFFFFFFu);
        ASSERT_EQ(idcolor_color_rgb_oscurecido(rgba, 0.), v);
        ASSERT_EQ(idcolor_color_rgb_oscurecido(rgba, 1.), 0u);
        ASSERT_EQ(idcolor_color_rgb_modificado(rgba, 0.), v);
        ASSERT_EQ(idcolor_color_rgb_mezcla(rgba, 0x123456, 1.), 0x123456u);
        ASSERT_EQ(idcolor_color_rgb_superpuesto(0x123456, v, 255), v);
        ASSERT_EQ(idcolor_color_rgb_superpuesto(v, 0x123456, 0), v);
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

// What an output is told, as text.
PRUEBA(idcolor, a_una_salida) {
    std::string dicho;
    const auto indice = [](std::string *s, uint8_t i) { *s += "indice " + std::to_string(i); };
    const auto rgba = [](std::string *s, uint32_t v) {
        char t[20];
        std::snprintf(t, sizeof t, "rgba %08X", v);
        *s += t;
    };
    void (*const fi)(std::string *, uint8_t) = indice;
    void (*const fr)(std::string *, uint32_t) = rgba;
    const struct {
        idcolor c;
        const char *tal_cual, *con_paleta_vorn;
    } casos[] = {
        {AUTOCAD_15, "indice 15", "indice 245"},
        {{0, 1, 0xFFFFFFFF}, "indice 1", "indice 12"},
        {{0, 255, 0xFFFFFFFF}, "rgba 00FFFFFF", "indice 15"},
        {DIRECTO, "rgba 80C86403", "rgba 80C86403"},
        {VORN_4, "indice 4", "indice 4"},
        {POR_CAPA, "indice 254", "indice 254"},
        {NO_CAMBIAR, "indice 255", "indice 255"},
        {{3, 0, 0}, "", ""},
    };
    for (const auto &f : casos) {
        dicho.clear();
        idcolor_escr_color(std::string, &dicho, &f.c, fi, fr);
        EXPECT_EQ(dicho, f.tal_cual);
        dicho.clear();
        idcolor_escr_color_con_paleta_vorn(std::string, &dicho, &f.c, fi, fr);
        EXPECT_EQ(dicho, f.con_paleta_vorn);
    }
    EXPECT_EQ(toma_informes().size(), 2u);
}

// A kind out of range, as a file may bring one: one report, and a neutral answer.
PRUEBA(idcolor, un_tipo_que_no_hay) {
    const std::function<uint32_t(const idcolor *)> preguntas[] = {
        idcolor_es_color_paleta,
        idcolor_es_color_paleta_autocad,
        idcolor_es_vplan_porcapa,
        idcolor_color_paleta,
        idcolor_color_paleta_autocad,
        idcolor_color_paleta_vorn,
        idcolor_color_rgb,
        idcolor_color_rgba,
        idcolor_color_rgb_tenue,
        [](const idcolor *c) { return idcolor_color_rgb_segun_fondo(c, 0); },
        [](const idcolor *c) { return idcolor_color_rgb_segun_fondo_para_vplanglsl(c, 0); },
        [](const idcolor *c) { return idcolor_es_igual(c, c); },
        [](const idcolor *c) { return idcolor_es_igual_color_RGB(c, 0); },
    };
    for (const int32_t tipo : {-1, 3, INT32_MIN, INT32_MAX}) {
        const idcolor malo{tipo, 12, 0};
        for (const auto &pregunta : preguntas) {
            EXPECT_EQ(pregunta(&malo), 0u);
            EXPECT_EQ(toma_informes().size(), 1u) << tipo << " " << &pregunta - preguntas;
        }
    }
    // Questions that have no answer for a kind.
    EXPECT_EQ(idcolor_color_paleta(&DIRECTO), 0);
    EXPECT_EQ(idcolor_color_rgb_tenue(&VORN_4), 0u);
    EXPECT_EQ(toma_informes().size(), 2u);
}
