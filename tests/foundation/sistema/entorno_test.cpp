#include "filas.h"
#include "foundation/sistema/entorno.h"
#include "foundation/sistema/lastwin.h"
#include "foundation/sistema/version.h"

PRUEBA(entorno, el_producto_escalado_redondea_como_windows) {
    for (const auto &[a, b, c, esperado] :
         vn::filas<int64_t, int64_t, int64_t, int64_t>("foundation/entorno.tsv", "muldiv"))
        for (const auto f : {vornwin_MulDiv, vornwin_MulDiv_long})
            EXPECT_EQ(f(static_cast<int>(a), static_cast<int>(b), static_cast<int>(c)), esperado)
                << a << " * " << b << " / " << c;
}

// A window that is none, as one already closed, must not swallow a warning nor block the program.
PRUEBA(entorno, sin_cuadro_que_mostrar_la_pregunta_se_contesta_que_no) {
    avisos_instala_receptor(nullptr, nullptr);
    int no_es_una_ventana = 0;
    lastwin_win_SetWinMain(&no_es_una_ventana);
    EXPECT_EQ(avisobas_pregunta_u(VNU("¿sí?")), FALSO);
    EXPECT_EQ(lastwin_win_GetWinMain(), &no_es_una_ventana);
    lastwin_win_SetWinMain(nullptr);
}

PRUEBA(entorno, la_identidad_que_declara_el_programa_sale_en_los_dos_anchos) {
    EXPECT_STREQ(version_versionAplicacion(), "1.0");
    version_establece_u(VNU("2026.ñ"), VNU("2026"), 'b');
    EXPECT_STREQ(version_versionAplicacion(), "2026.\xF1");
    EXPECT_EQ(vn::utf8_de(version_versionAplicacion_u()), "2026.ñ");
    EXPECT_STREQ(version_versionMayor(), "2026");
    EXPECT_EQ(version_revision(), 'b');
    // What the header of a file could not give back changes nothing.
    const std::basic_string<vnwchar> largo(193, VNU('9'));
    ESPERA_INFORME("mayor.ansi.find('-') == std::string::npos", version_establece_u(VNU("1"), VNU("2026-SP1"), 'a'));
    ESPERA_INFORME("mayor.ansi.size() <= LIMITE_MAYOR", version_establece_u(VNU("1"), largo.c_str(), 'a'));
    for (const char revision : {'-', '\0', ' ', '\n', '\x7f'})
        ESPERA_INFORME("codigo > ' ' && codigo != 127 && revision != '-'",
                       version_establece_u(VNU("1"), VNU("3"), revision));
    EXPECT_STREQ(version_versionMayor(), "2026");
    version_establece_u(VNU("1"), largo.c_str() + 1, '\xF1');
    EXPECT_EQ(version_revision(), '\xF1');
    version_establece_u(VNU("1.0"), VNU("1"), 'a');
}
