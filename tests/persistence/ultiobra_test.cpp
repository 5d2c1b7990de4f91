#include "fallos.h"
#include "filas.h"
#include "foundation/texto/msglocal.h"
#include "persistence/ultiobra.h"
#include "texto_ancho.h"
#include <array>

namespace {

std::string fichero() { return vn::Prueba::directorio() + "/últimas.txt"; }
std::basic_string<vnwchar> lista() { return vn::ancho(fichero()); }
void guarda(const char *nombre) { ultiobra_guarda_nombre_ultima_obra_u(vn::ancho(nombre).c_str(), lista().c_str()); }
std::string obras() { return vn::toma(ultiobra_lee_ultimas_obras_u(lista().c_str(), nullptr)); }
std::string ultima_finalizada() {
    return vn::toma(ultiobra_lee_nombre_ultima_obra_finalizada_u(lista().c_str(), nullptr));
}
vnbool existe_la_b(const vnwchar *nombre) { return nombre[0] == VNU('b') ? CIERTO : FALSO; }

} // namespace

PRUEBA(ultiobra, el_ultimo_va_delante_una_vez_y_los_viejos_se_pierden) {
    guarda("a.obr");
    guarda("Ñandú 日.obr");
    guarda("A.OBR");
    EXPECT_EQ(obras(), "A.OBR|Ñandú 日.obr");
    EXPECT_EQ(vn::lee_fichero(fichero()).substr(0, 14), "5 ; version\n0\n");
    for (int i = 0; i < 33; ++i) guarda(("obra" + std::to_string(i) + ".obr").c_str());
    const std::string todas = obras();
    EXPECT_EQ(std::count(todas.begin(), todas.end(), '|'), 31);
    EXPECT_EQ(todas.substr(0, 11), "obra32.obr|");
    EXPECT_EQ(todas.substr(todas.size() - 10), "|obra1.obr");
}

PRUEBA(ultiobra, la_marca_de_obra_cerrada_y_la_de_ninguna_abierta) {
    ultiobra_guarda_nombre_ultima_obra_u(nullptr, lista().c_str());
    EXPECT_FALSE(vn::existe(fichero()));
    guarda("a.obr");
    EXPECT_EQ(ultima_finalizada(), "(null)");
    ultiobra_finaliza_ultima_obra_u(lista().c_str());
    EXPECT_EQ(ultima_finalizada(), "a.obr");
    ultiobra_guarda_nombre_ultima_obra_u(nullptr, lista().c_str());
    for (int i = 0; i < 40; ++i) ultiobra_guarda_nombre_ultima_obra_u(nullptr, lista().c_str()); // openings that failed
    EXPECT_NE(vn::lee_fichero(fichero()).find("\n2 ;"), std::string::npos);
    EXPECT_EQ(obras(), "a.obr");
    guarda("b.obr"); // takes the place of the mark
    EXPECT_NE(vn::lee_fichero(fichero()).find("\n2 ;"), std::string::npos);
    EXPECT_EQ(obras(), "b.obr|a.obr");
    // Closed, but with nothing that passes.
    vn::graba_fichero(fichero(), "5 ; version\n1\n1 ; n\nno<valida\n");
    EXPECT_EQ(obras(), "");
    EXPECT_EQ(ultima_finalizada(), "(null)");
    ultiobra_guarda_nombre_ultima_obra_u(VNU("x"), nullptr);
}

PRUEBA(ultiobra, cada_version_se_lee_y_lo_danyado_se_borra_sin_ruido) {
    for (const auto &[contenido, sus_obras, finalizada] :
         vn::filas<std::string, std::string, vn::nulable>("persistence/ultiobra.tsv", "listas")) {
        SCOPED_TRACE(contenido);
        vn::graba_fichero(fichero(), contenido);
        EXPECT_EQ(obras(), sus_obras);
        EXPECT_EQ(vn::existe(fichero()), finalizada.texto.has_value());
        EXPECT_EQ(finalizada.texto ? ultima_finalizada() : "", finalizada.texto.value_or(""));
    }
    // A list of a newer program goes too, but not without a word.
    vn::graba_fichero(fichero(), "6 ; version\n1\n1 ; n\na.obr\n");
    EXPECT_EQ(ESPERA_INFORME("version <= VERSION_NOMBRE_OBRA", obras()), "");
    EXPECT_FALSE(vn::existe(fichero()));
}

PRUEBA(ultiobra, el_filtro_mira_la_ruta_detras_de_los_corchetes) {
    vn::graba_fichero(fichero(),
                      "5 ; version\n1\n8 ; n\n[red]a.obr\n[b.obr\n\n[]\nc.OBR\nd.txt\ncarpeta\\\nmal*.obr\n");
    EXPECT_EQ(obras(), "[red]a.obr|[b.obr|c.OBR|d.txt|carpeta\\");
    const vn::textos ext = vn::textos_de({"obr", "xyz"});
    EXPECT_EQ(vn::toma(ultiobra_lee_ultimas_obras_u(lista().c_str(), ext.get())), "[red]a.obr|[b.obr|c.OBR");
}

PRUEBA(ultiobra, la_obra_que_falta_se_quita_si_el_usuario_quiere) {
    for (const char *nombre : {"c.txt", "b.obr", "a.obr"}) guarda(nombre);
    msidioma_establece_idioma(8);
    const vn::textos ext = vn::textos_de({"obr"});
    vnwchar *nombre = nullptr;
    vnbool eliminada = CIERTO;
    const auto existe = [&](uint32_t i, vnwchar **n, vnbool *e) {
        return ultiobra_indice_existe_obra_reciente(lista().c_str(), i, ext.get(), existe_la_b, n, e);
    };
    EXPECT_EQ(existe(1, &nombre, &eliminada), CIERTO);
    EXPECT_EQ(vn::toma(std::exchange(nombre, nullptr)), "b.obr");
    EXPECT_EQ(eliminada, FALSO);

    vn::Prueba::responde(FALSO);
    EXPECT_EQ(ultiobra_nombre_existe_obra_reciente(lista().c_str(), VNU("a.obr"), existe_la_b, &nombre, &eliminada),
              FALSO);
    EXPECT_TRUE(nombre == nullptr && eliminada == FALSO);
    const auto avisos = vn::Prueba::toma_avisos();
    ASSERT_EQ(avisos.size(), 1u);
    EXPECT_EQ(avisos[0],
              "The file or files of 'a.obr' in the list of recently opened files no longer exist or cannot be "
              "accessed.\nDo you want to delete this entry from the list?");

    vn::Prueba::responde(CIERTO);
    EXPECT_EQ(existe(0, nullptr, &eliminada), FALSO);
    EXPECT_EQ(eliminada, CIERTO);
    EXPECT_EQ(vn::Prueba::toma_avisos().size(), 1u);
    EXPECT_EQ(obras(), "b.obr|c.txt"); // what the filter hid is still there
    EXPECT_EQ(existe(9, nullptr, nullptr), FALSO);
}

// The same work in another case takes the place of itself. What fails is told to nobody, and loses nothing.
GUARDADO(ultimas_obras) {
    const char *const nombre = std::array{"obra", "Obra", "oBra", "obrA"}[static_cast<size_t>(edicion)];
    ultiobra_guarda_nombre_ultima_obra_u(vn::ancho(nombre).c_str(), vn::ancho(fichero).c_str());
    return vn::existe(fichero) && vn::lee_fichero(fichero).find(nombre) != std::string::npos;
}

PRUEBA(ultiobra, cada_fallo_al_leer_y_grabar_la_lista) {
    vn::comprueba_guardado("ultimas_obras", {.informa = false, .muere = false, .dice = false});
}
