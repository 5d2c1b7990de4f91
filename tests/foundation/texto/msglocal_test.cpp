#include "filas.h"
#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/mensajes.hpp"
#include "foundation/texto/msglocal.h"

namespace {

#define M(id, ...) VN_MENSAJE(msg_##id, "prueba.msg", id, __VA_ARGS__)
M(100001, 1, ES("%d planos de %s"), EN("%d drawings of %s"), CA("%d plànols de %s"), IT("%d disegni di %s"),
  PT_BR("%d desenhos de %s"), JA("%d 枚 %s"), ES_AM("%d láminas de %s"))
M(clave, ES("Clave"), EN("Clef 𝄞"))
M(100003, 3, ES("Área"), EN("Area"), ANSI(ES("\xC1rea"), EN("Area"), RU("A2")))
#undef M

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
    m->textos[11] = "<323070>";
    m->textos[39] = "No id here";
    m->textos[12] = "FFFF";
    m->fin = nullptr;
}

void vacio(vnmensaje *) {}

std::string lee(int idioma) {
    msidioma_establece_idioma(idioma);
    return vn::utf8_de(nousar_msglocal_original_u(msg_100001.u));
}

std::string lee_ansi(int idioma) {
    msidioma_establece_idioma(idioma);
    return nousar_msglocal_original(ansi);
}

} // namespace

// The index of the host and the columns of a table number Catalan, Italian and Portuguese differently.
PRUEBA(msglocal, cada_indice_da_su_lengua_y_los_demas_la_suya_de_reserva) {
    for (const auto &[idioma, texto] : vn::filas<int, std::string>("foundation/msglocal.tsv", "anchos"))
        EXPECT_EQ(lee(idioma), texto) << idioma;
    EXPECT_EQ(vn::utf8_de(nousar_original_u(msg_100001.u)), "%d planos de %s");
    msidioma_establece_idioma(8);
    EXPECT_EQ(msidioma_es_idioma_ingles(), CIERTO);
    ESPERA_INFORME("idioma >= 0 && idioma < MSGLOCAL_NUM_TEXTOS", msidioma_establece_idioma(41));
    EXPECT_EQ(msidioma_dame_idioma(), 8);
    EXPECT_EQ(vn::toma(textomsgu_obtener_mensaje(msg_100001.u, 3, VNU("Árbol"))), "3 drawings of Árbol");
}

PRUEBA(msglocal, el_lector_ansi_descodifica_y_lo_mal_escrito_no_le_hace_caer) {
    for (const auto &[idioma, texto] : vn::filas<int, std::string>("foundation/msglocal.tsv", "ansi")) {
        EXPECT_EQ(lee_ansi(idioma), texto) << idioma;
        const char *prestado = nousar_msglocal_original(ansi);
        EXPECT_EQ(nousar_msglocal_original(ansi), prestado);
    }
    EXPECT_STREQ(nousar_msglocal_original(vacio), "");
    EXPECT_EQ(vn::utf8_de(nousar_msglocal_original_u(vacio)), "");
    // What a failure has left half done must not be lent by the next call.
    vnatexit_ejecuta();
    EXPECT_FALSE(vn::atrapado([] { lee_ansi(18); }, 0));
    EXPECT_EQ(lee_ansi(18), "\xC4\xE0");
}

PRUEBA(msglocal, una_fila_da_las_columnas_de_los_dos_lectores) {
    const vnfunc_mensaje anchos[] = {msg_100001.u, msg_clave.u, msg_100003.u},
                         ansis[] = {msg_100001.a, msg_clave.a, msg_100003.a};
    for (const auto &[cual, orden, ancho_id, columna, texto, texto_ansi] :
         vn::filas<size_t, uint32_t, uint32_t, int, std::string, std::string>("foundation/msglocal.tsv", "columnas")) {
        vnmensaje ancho{}, ansi{};
        anchos[cual](&ancho);
        ansis[cual](&ansi);
        EXPECT_EQ(vn::utf8_de(static_cast<const vnwchar *>(ancho.textos[columna])), texto);
        EXPECT_EQ(static_cast<const char *>(ansi.textos[columna]), texto_ansi);
        for (const vnmensaje &m : {ancho, ansi})
            EXPECT_TRUE(m.nombre == std::string("prueba.msg") && m.orden == orden && m.ancho_id == ancho_id) << texto;
    }
}

// What the compiler refuses, asked at run time.
PRUEBA(msglocal, una_fila_que_no_vale_dice_por_que) {
    using namespace vn::idiomas;
    const auto falta = [](auto... partes) -> std::string {
        try {
            [[maybe_unused]] const vn::mensajes::fila f("prueba.msg", "1", partes...);
            return "";
        } catch (const char *que) {
            return que;
        }
    };
    EXPECT_EQ(falta(ES("100 %% de %s"), EN("100 %% of %s")), "");
    EXPECT_EQ(falta(ES("a"), DE("b")), "Spanish or English is missing");
    EXPECT_EQ(falta(ES("a"), EN("b"), ANSI(ES("a"), EN("b"))), "");
    EXPECT_EQ(falta(ES("a"), EN("b"), ES("c")), "a language is given twice");
    EXPECT_EQ(falta(ES("a"), EN("<1>b")), "a text writes its id");
    EXPECT_EQ(falta(ES("%s: %d"), EN("%d: %s")), "a text has other placeholders");
    EXPECT_EQ(falta(ES("%s"), EN("%s"), ANSI(ES("%d"), EN("%d"))), "the ANSI texts have other placeholders");
    EXPECT_EQ(falta(ES("a\xF1o"), EN("year")), "a text is not UTF-8");
}
