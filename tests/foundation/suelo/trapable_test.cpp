#include "foundation/ficheros/vornfile.h"
#include "foundation/sistema/vnmutex.h"
#include "foundation/suelo/callback.h"
#include "foundation/suelo/trapable.h"
#include "foundation/suelo/vnatexit.h"
#include "prueba.h"
#include <thread>

using vn::atrapado;

namespace {

std::string ultimo() { return trapable_texto_del_ultimo_fallo(); }
void informa(const char *que, uint32_t linea) { error_interno(que, "prueba", linea, 0); }

} // namespace

PRUEBA(trapable, un_informe_marca_su_trampa_y_vuelve) {
    bool hasta_el_final = false;
    EXPECT_TRUE(atrapado([] { EXPECT_EQ(trapable_ha_fallado(), FALSO); }));
    EXPECT_FALSE(atrapado([&] {
        informa("se_lee_final_bloque == CIERTO", 7);
        EXPECT_EQ(trapable_ha_fallado(), CIERTO);
        informa("lo que se sigue", 8);
        hasta_el_final = true;
    }));
    EXPECT_TRUE(hasta_el_final);
    EXPECT_EQ(ultimo(), "prueba, 7: se_lee_final_bloque == CIERTO\n");
    const Punto2D p = {1.5, -2};
    EXPECT_FALSE(atrapado([&] { error_interno_punto_2D("es_convexo", "prueba", 8, &p); }));
    EXPECT_EQ(ultimo(), "prueba, 8: es_convexo: (1.5, -2)\n");
    EXPECT_TRUE(atrapado([] {}));
    EXPECT_EQ(ultimo(), "prueba, 8: es_convexo: (1.5, -2)\n");
    // Outside again, a report goes to the receiver.
    EXPECT_EQ(trapable_ha_fallado(), FALSO);
    ESPERA_INFORME("x", informa("x", 1));
}

PRUEBA(trapable, cada_trampa_y_cada_hebra_tiene_su_marca) {
    EXPECT_TRUE(atrapado([] {
        EXPECT_FALSE(atrapado([] { informa("dentro", 1); }));
        EXPECT_EQ(trapable_ha_fallado(), FALSO);
        std::thread([] { ESPERA_INFORME("otra hebra", informa("otra hebra", 2)); }).join();
    }));
    // The text is that of the trap that failed last, also when it was marked before one inside it.
    EXPECT_FALSE(atrapado([] {
        informa("fuera", 3);
        EXPECT_FALSE(atrapado([] { informa("dentro", 4); }));
        EXPECT_EQ(ultimo(), "prueba, 4: dentro\n");
        EXPECT_EQ(trapable_ha_fallado(), CIERTO);
    }));
    EXPECT_EQ(ultimo(), "prueba, 3: fuera\n");
    // A C++ host's own exception passes through and leaves no trap open.
    EXPECT_THROW(atrapado([] { throw 1; }), int);
    ESPERA_INFORME("x", informa("x", 1));
}

PRUEBA(trapable, lo_que_se_tiene_dentro_se_deja_o_se_libera_tras_un_informe) {
    vnmutex *m = vnmutex_crea_u(VNU("trapable_test"));
    const std::string nombre = directorio() + "/x";
    // clang-format off
    const std::function<void()> filas[] = {
        [&] { vnmutex_entra(m); informa("con el mutex", 1); vnmutex_sal(m); },
        [] { vnparametros *p = vornspy_parametro(1, 3, 7); vornspy_destruye_parametros(&p); },
        [] { callback_crea(nullptr, vornspy_parametro(1, 4, 7)); },
        [] { atexit_anade(nullptr, vornspy_parametro(1, 4, 7)); },
        [&] { vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(
                  vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(vn::ancho(nombre).c_str()), nullptr); },
        [&] { vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar(
                  vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar(nombre.c_str()), nullptr); },
    };
    // clang-format on
    for (const auto &f : filas) EXPECT_FALSE(atrapado(f));
    std::thread([m] {
        EXPECT_EQ(vnmutex_entra(m), CIERTO);
        vnmutex_sal(m);
    }).join();
    vnmutex_destruye(&m);
}
