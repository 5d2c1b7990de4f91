#include "fallos.h"
#include "foundation/vornfile.h"
#include "prueba.h"
#include <filesystem>

using namespace vn;

namespace {

std::string ruta(const char *corto) { return Prueba::directorio() + "/" + corto; }
std::basic_string<vnwchar> nombre(const char *corto) { return ancho(ruta(corto)); }
// More than a stream's buffer, so that a save is several writes.
std::string contenido(int edicion) {
    return std::string(70000 + static_cast<size_t>(edicion), static_cast<char>('0' + edicion));
}

bool escribe_edicion(vnfichero *f, int edicion) {
    const std::string s = contenido(edicion);
    bool bien = true;
    for (size_t i = 0; bien && i < s.size(); i += 7000) {
        const size_t n = std::min<size_t>(7000, s.size() - i);
        bien = lc_fwrite(s.data() + i, 1, n, f) == n;
    }
    return bien;
}

} // namespace

GUARDADO(definitivo_al_cerrar) {
    const auto n = ancho(fichero);
    vnfichero *f = vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(n.c_str());
    if (f == nullptr) return false;
    escribe_edicion(f, edicion);
    return vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f, n.c_str()) == CIERTO;
}

GUARDADO(hacer_definitivo) {
    const auto n = ancho(fichero), temporal = ancho(fichero + "_TM$");
    vnfichero *f = lc_fopen_u(temporal.c_str(), VNU("wb"));
    if (f == nullptr) return false;
    escribe_edicion(f, edicion);
    return lc_fclose(f) == CIERTO &&
           vornfile_hacer_definitivo_fichero_temporal_y_hacer_copia_seguridad_u(n.c_str(), temporal.c_str()) == CIERTO;
}

PRUEBA(vornfile, every_boundary_of_a_save_that_commits_at_close) { comprueba_guardado("definitivo_al_cerrar"); }
PRUEBA(vornfile, every_boundary_of_a_save_that_commits_a_temporary) { comprueba_guardado("hacer_definitivo"); }

// Patience has a bound: a holder that never lets go makes the save fail, told once, with the old content in place.
PRUEBA(vornfile, refusals_that_stay) {
    const auto n = nombre("obra");
    ASSERT_TRUE(guardado_definitivo_al_cerrar(ruta("obra"), 0));
    static int veces;
    const vnoperaciones_fichero terco = {
        .renombra_abierto =
            [](vnid_fichero, const vnwchar *, const vnwchar *) {
                ++veces;
                return VN_FICH_COMPARTIDO;
            },
        .espera = [](uint32_t) {},
    };
    veces = 0;
    operaciones_fichero_instala(&terco);
    EXPECT_FALSE(ESPERA_INFORME("lc_error_escribiendo_fichero", guardado_definitivo_al_cerrar(ruta("obra"), 1)));
    operaciones_fichero_instala(nullptr);
    EXPECT_GT(veces, 5);
    EXPECT_LT(veces, 100);
    EXPECT_TRUE(lee_fichero(ruta("obra")) == contenido(0));
    EXPECT_FALSE(existe(ruta("obra_TM$")));

    // In the hands of its only writer it is not replaced either.
    vnfichero *otro = f_lc_fopen_modo_escritura_u(n.c_str(), VNU("r+b"), CIERTO, VN_AQUI);
    EXPECT_FALSE(ESPERA_INFORME("lc_error_escribiendo_fichero", guardado_definitivo_al_cerrar(ruta("obra"), 1)));
    EXPECT_EQ(vf_copyfile_seguro_u(n.c_str(), n.c_str()), FALSO);
    lc_fclose(otro);

    std::filesystem::create_directory(ruta("carpeta"));
    EXPECT_FALSE(ESPERA_INFORME("f_lc_fopen", guardado_definitivo_al_cerrar(ruta("carpeta"), 1)));
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", guardado_definitivo_al_cerrar(ruta("no/obra"), 1)), false);
}

PRUEBA(vornfile, copies_and_appends) {
    graba_fichero(ruta("origen"), contenido(5));
    EXPECT_EQ(vf_copyfile_seguro_u(nombre("origen").c_str(), nombre("copia").c_str()), CIERTO);
    EXPECT_EQ(vf_copyfile_seguro_u(nombre("no").c_str(), nombre("copia").c_str()), FALSO);
    EXPECT_TRUE(lee_fichero(ruta("copia")) == contenido(5));
    // Every failure of a copy leaves what was there.
    graba_fichero(ruta("otro"), "otro");
    for (size_t k = 0, total = 1; k < total; ++k) {
        bool bien;
        {
            const con_fallos puestos({fallo::error_una_vez, k});
            bien = vf_copyfile_seguro_u(nombre("otro").c_str(), nombre("copia").c_str()) == CIERTO;
            total = std::max(total, puestos.hechas().size());
        }
        EXPECT_TRUE(lee_fichero(ruta("copia")) == (bien ? "otro" : contenido(5))) << k;
        graba_fichero(ruta("copia"), contenido(5));
    }
    EXPECT_EQ(vf_appendfile_u(nombre("otro").c_str(), nombre("copia").c_str()), CIERTO);
    EXPECT_EQ(vf_appendfile_u(nombre("otro").c_str(), nombre("otro").c_str()), CIERTO);
    EXPECT_EQ(vf_appendfile_u(nombre("otro").c_str(), nombre("nuevo").c_str()), CIERTO);
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", vf_appendfile_u(nombre("no").c_str(), nombre("otro").c_str())), FALSO);
    EXPECT_TRUE(lee_fichero(ruta("copia")) == contenido(5) + "otro");
    EXPECT_EQ(lee_fichero(ruta("nuevo")), "otrootro");
}
