#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/msglocal.h"
#include "foundation/texto/msglocal_int.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "prueba.h"

namespace {

constexpr auto PLANOS = vn::texto::mensaje_u("prueba.msg", 1,
                                             {
                                                 {vn::texto::ES, VNU("<100001>%d planos de %s")},
                                                 {vn::texto::EN, VNU("<100001>%d drawings of %s")},
                                                 {vn::texto::CA, VNU("<100001>%d plànols de %s")},
                                                 {vn::texto::IT, VNU("<100001>%d disegni di %s")},
                                                 {vn::texto::PT, VNU("<100001>%d desenhos de %s")},
                                                 {vn::texto::JA, VNU("<100001>%d 枚 %s")},
                                                 {vn::texto::ES_AM, VNU("<100001>%d láminas de %s")},
                                             });
void planos(vnmensaje *m) { PLANOS.rellena(m); }

// An ANSI group: the Russian cell is "<32307>Да" coded, the Polish one is badly coded, the others have their faults.
void ansi(vnmensaje *m) {
    m->nombre = "prueba.msg";
    m->orden = 2;
    m->ancho_id = 7;
    m->textos[0] = "<32307>S\xED";
    m->textos[8] = "<32307>Yes";
    m->textos[18] = "FFFF3c00330032003300300037003e0014043004";
    m->textos[31] = "FFFF3c0033003";
    m->textos[10] = "FFFF3c00zz00";
    m->textos[33] = "<32";
    m->textos[39] = "No id here";
    m->textos[12] = "FFFF";
    m->fin = nullptr;
}

void vacio(vnmensaje *) {}

std::string lee(int idioma) {
    msidioma_establece_idioma(idioma);
    return vn::utf8_de(nousar_msglocal_original_u(planos));
}

std::string lee_ansi(int idioma) {
    msidioma_establece_idioma(idioma);
    return nousar_msglocal_original(ansi);
}

} // namespace

// The index of the host and the columns of a table number Catalan, Italian and Portuguese differently.
PRUEBA(msglocal, cada_indice_da_su_lengua_y_los_demas_la_suya_de_reserva) {
    const struct {
        int idioma;
        const char *texto;
    } filas[] = {
        {0, "%d planos de %s"},    {3, "%d plànols de %s"},   {4, "%d disegni di %s"},   {5, "%d desenhos de %s"},
        {6, "%d láminas de %s"},   {7, "%d láminas de %s"},   {24, "%d láminas de %s"},  {8, "%d drawings of %s"},
        {39, "%d 枚 %s"},          {9, "%d planos de %s"},    {14, "%d planos de %s"},   {17, "%d planos de %s"},
        {19, "%d planos de %s"},   {23, "%d planos de %s"},   {25, "%d drawings of %s"}, {30, "%d drawings of %s"},
        {32, "%d drawings of %s"}, {38, "%d drawings of %s"}, {40, "%d drawings of %s"}, {13, "%d drawings of %s"},
    };
    for (const auto &f : filas) EXPECT_EQ(lee(f.idioma), f.texto) << f.idioma;
    EXPECT_EQ(vn::utf8_de(nousar_original_u(planos)), "%d planos de %s");
    msidioma_establece_idioma(8);
    EXPECT_EQ(msidioma_es_idioma_ingles(), CIERTO);
    ESPERA_INFORME("idioma >= 0 && idioma < MSGLOCAL_NUM_TEXTOS", msidioma_establece_idioma(41));
    EXPECT_EQ(msidioma_dame_idioma(), 8);
    vnwchar *texto = textomsgu_obtener_mensaje(planos, 3, VNU("Árbol"));
    EXPECT_EQ(vn::utf8_de(texto), "3 drawings of Árbol");
    widestr_destruye(&texto);
}

PRUEBA(msglocal, el_lector_ansi_descodifica_y_lo_mal_escrito_no_le_hace_caer) {
    EXPECT_EQ(lee_ansi(0), "S\xED");
    EXPECT_EQ(lee_ansi(8), "Yes");
    EXPECT_EQ(lee_ansi(18), "\xC4\xE0"); // the Russian code page, whatever the active one
    const char *prestado = nousar_msglocal_original(ansi);
    EXPECT_EQ(nousar_msglocal_original(ansi), prestado);
    EXPECT_EQ(lee_ansi(31), "FFFF3c0033003");
    EXPECT_EQ(lee_ansi(10), "FFFF3c00zz00");
    EXPECT_EQ(lee_ansi(33), "<32");
    EXPECT_EQ(lee_ansi(39), "No id here");
    EXPECT_EQ(lee_ansi(12), "FFFF");
    EXPECT_EQ(lee_ansi(1), "S\xED"); // a column without text
    EXPECT_STREQ(nousar_msglocal_original(vacio), "");
    EXPECT_EQ(vn::utf8_de(nousar_msglocal_original_u(vacio)), "");
    vnatexit_ejecuta();
    EXPECT_EQ(lee_ansi(18), "\xC4\xE0");
}

// What a failure has left half done must not be lent by the next call.
PRUEBA(msglocal, un_texto_que_se_quedo_sin_memoria_se_descodifica_otra_vez) {
    vnatexit_ejecuta();
    EXPECT_FALSE(vn::atrapado([] { lee_ansi(18); }, 0));
    EXPECT_EQ(lee_ansi(18), "\xC4\xE0");
    vnatexit_ejecuta();
}
