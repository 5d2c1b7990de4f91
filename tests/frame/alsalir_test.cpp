#include "foundation/ficheros/lc_fichero.h"
#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "frame/alsalir.h"
#include "plataforma/proceso.h"
#include "prueba.h"
#include <atomic>

namespace {

struct viga {};
int vigas_destruidas = 0;
void destruye_viga(viga **v) {
    ++vigas_destruidas;
    vornspy_free_pp(v, sizeof(viga));
}

char *texto = nullptr, *texto_sin_usar = nullptr;
vnwchar *texto_u = nullptr;
viga *una = nullptr, *otra = nullptr, *ninguna = nullptr;

// Leaves a file behind, with the library's own streams, when it is destroyed.
std::basic_string<vnwchar> *fichero_de_despedida = nullptr;
void se_despide(viga **v) {
    destruye_viga(v);
    vnfichero *f = lc_fopen_u(fichero_de_despedida->c_str(), VNU("wb"));
    lc_fwrite("adios", 1, 5, f);
    lc_fclose(f);
}

viga *crea_viga() { return static_cast<viga *>(vornspy_calloc(1, sizeof(viga))); }

} // namespace

PRUEBA(alsalir, al_salir_se_destruye_una_vez_lo_que_siga_vivo) {
    texto = cad_copia_cadena("hola");
    alsalir_destruye_cadena(&texto);
    alsalir_destruye_cadena(&texto); // the second visit finds null
    alsalir_destruye_cadena(&texto_sin_usar);
    alsalir_destruye_cadena_u(&texto_u);
    // What is there at exit counts, not what was there at registration.
    texto_u = widestr_copia(VNU("adiós"));
    vigas_destruidas = 0;
    una = crea_viga();
    otra = crea_viga();
    alsalir_destruye_dato(viga, &una, destruye_viga);
    alsalir_destruye_dato(viga, &otra, destruye_viga);
    alsalir_destruye_dato(viga, &ninguna, destruye_viga);
    viga *copia = otra; // its owner frees it and leaves `otra` dangling
    vornspy_free_pp(&copia, sizeof(viga));

    vnatexit_ejecuta();
    EXPECT_EQ(vigas_destruidas, 1);
    EXPECT_TRUE(texto == nullptr && texto_u == nullptr && una == nullptr && otra == nullptr);
}

PRUEBA(alsalir, sin_registros_no_hay_nada_y_tras_salir_se_vuelve_a_empezar) {
    uint64_t antes = vornspy_bloques_vivos(nullptr);
    vnatexit_ejecuta();
    EXPECT_EQ(vornspy_bloques_vivos(nullptr), antes);
    // Threads that meet at the first registration: of their mutexes one stays, and none is lost.
    for (int vuelta = 0; vuelta < 300; ++vuelta) {
        char *textos[2] = {};
        std::atomic<int> llegadas{0};
        vn::en_hebras(2, [&](int h) {
            textos[h] = cad_copia_cadena("otra vez");
            for (++llegadas; llegadas < 2;) std::this_thread::yield();
            alsalir_destruye_cadena(&textos[h]);
        });
        vnatexit_ejecuta();
        EXPECT_TRUE(textos[0] == nullptr && textos[1] == nullptr) << vuelta;
        ASSERT_EQ(vornspy_bloques_vivos(nullptr), antes) << vuelta;
    }
}

HIJO(acaba_con_registros) {
    // Never destroyed: on Windows the program's own statics go before the library's exit list runs.
    fichero_de_despedida = new std::basic_string<vnwchar>(vn::ancho(args.at(0)));
    una = crea_viga();
    alsalir_destruye_dato(viga, &una, se_despide);
    texto = cad_copia_cadena("hasta el final");
    alsalir_destruye_cadena(&texto);
    return 0;
}

PRUEBA(alsalir, un_proceso_que_acaba_por_si_mismo_ejecuta_lo_registrado) {
    const std::string fichero = directorio() + "/adiós";
    vn::proceso hijo("acaba_con_registros", {fichero});
    EXPECT_EQ(hijo.espera(20000), 0);
    EXPECT_EQ(vn::existe(fichero) ? vn::lee_fichero(fichero) : "", "adios");
}
