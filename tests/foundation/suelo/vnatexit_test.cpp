#include "foundation/suelo/vnatexit.h"
#include "plataforma/proceso.h"
#include "prueba.h"
#include <atomic>
#include <cstdlib>

namespace {

std::string orden;

void anota(vnparametros *parametros) { orden += static_cast<char>(vornspy_parametro_entero(parametros, 0)); }
void anade_otra(vnparametros *parametros) {
    anota(parametros);
    atexit_anade(anota, vornspy_parametro(1, 4, 'x'));
}
void falla(vnparametros *) { error_interno("cleaner", "prueba", 1, 0); }

std::atomic<int> veces{0};
void cuenta(vnparametros *) { ++veces; }

} // namespace

PRUEBA(vnatexit, la_ultima_es_la_primera_y_lo_que_se_anade_entonces_va_a_continuacion) {
    orden.clear();
    atexit_anade(anota, vornspy_parametro(1, 4, 'a'));
    atexit_anade(anade_otra, vornspy_parametro(1, 4, 'b'));
    atexit_anade(anota, vornspy_parametro(1, 4, 'c'));
    for (int vez = 0; vez < 2; ++vez) {
        vnatexit_ejecuta();
        EXPECT_EQ(orden, "cbxa");
    }
    // One that fails, in a trap, does not stop the others.
    atexit_anade(anota, vornspy_parametro(1, 4, 'd'));
    atexit_anade(falla, nullptr);
    EXPECT_FALSE(vn::atrapado([] { vnatexit_ejecuta(); }));
    EXPECT_EQ(orden, "cbxad");
}

// A handler that was registered before the list's own runs after it.
HIJO(vnatexit_tarde) {
    static std::string fichero;
    fichero = args.at(0);
    std::atexit([] { atexit_anade([](vnparametros *) { vn::graba_fichero(fichero, "tarde"); }, nullptr); });
    atexit_anade(cuenta, nullptr);
    return 0;
}

PRUEBA(vnatexit, lo_que_se_anade_cuando_ya_ha_corrido_corre_tambien) {
    vn::proceso p("vnatexit_tarde", {directorio() + "/visto"});
    EXPECT_EQ(p.espera(20000), 0);
    EXPECT_EQ(vn::lee_fichero(directorio() + "/visto"), "tarde");
}

PRUEBA(vnatexit, muchas_hebras_registran_y_ejecutan_a_la_vez) {
    veces = 0;
    vn::en_hebras(4, [](int h) {
        for (int i = 0; i < 500; ++i) {
            atexit_anade(cuenta, nullptr);
            if (h == 0 && i % 50 == 0) vnatexit_ejecuta();
        }
    });
    vnatexit_ejecuta();
    EXPECT_EQ(veces, 2000);
}
