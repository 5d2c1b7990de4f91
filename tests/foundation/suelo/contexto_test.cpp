#include "foundation/suelo/callback.h"
#include "foundation/suelo/contexto.h"
#include "prueba.h"
#include <thread>

namespace {

void suma(vnparametros *parametros, void *dato) {
    auto *total = static_cast<int *>(vornspy_parametro_puntero(parametros, 0));
    *total += dato != nullptr ? *static_cast<int *>(dato) : 1;
}

} // namespace

PRUEBA(contexto, se_ve_lo_que_se_ha_dejado_abierto_y_una_trampa_lo_deja_como_estaba) {
    contexto_dentroDeContexto_u(VNU("grabando"));
    contexto_dentroDeContexto_u(VNU("sección 3"));
    EXPECT_EQ(vn::utf8_de(contexto_actual_u()), "grabando > sección 3");
    EXPECT_FALSE(vn::atrapado([] {
        contexto_dentroDeContexto_u(VNU("interior"));
        error_interno("x", "prueba", 1, 0);
    }));
    EXPECT_NE(std::string(trapable_texto_del_ultimo_fallo()).find("[grabando > sección 3 > interior]"),
              std::string::npos);
    EXPECT_EQ(vn::utf8_de(contexto_actual_u()), "grabando > sección 3");
    std::thread([] { EXPECT_EQ(vn::utf8_de(contexto_actual_u()), ""); }).join();
    contexto_fueraDeContexto_u(VNU("sección 3"));
    contexto_fueraDeContexto_u(VNU("grabando"));
    EXPECT_EQ(vn::utf8_de(contexto_actual_u()), "");
}

PRUEBA(contexto, lo_desequilibrado_se_informa_y_lo_hondo_o_largo_se_acota) {
    ESPERA_INFORME("nivel > 0", contexto_fueraDeContexto_u(VNU("a")));
    contexto_dentroDeContexto_u(VNU("a"));
    contexto_dentroDeContexto_u(VNU("b"));
    ESPERA_INFORME("es_el_ultimo", contexto_fueraDeContexto_u(VNU("c")));
    EXPECT_EQ(vn::utf8_de(contexto_actual_u()), "a > b");
    ESPERA_INFORME("es_el_ultimo", contexto_fueraDeContexto_u(VNU("a")));
    EXPECT_EQ(vn::utf8_de(contexto_actual_u()), "");
    const std::basic_string<vnwchar> largo(5000, VNU('x'));
    for (int i = 0; i < 40; ++i) contexto_dentroDeContexto_u(largo.c_str());
    EXPECT_EQ(vn::utf8_de(contexto_actual_u()).size(), 16 * 159 + 15 * 3u);
    for (int i = 0; i < 40; ++i) contexto_fueraDeContexto_u(largo.c_str());
    EXPECT_EQ(vn::utf8_de(contexto_actual_u()), "");
}

PRUEBA(contexto, una_llamada_guardada_lleva_sus_valores_y_los_libera) {
    int total = 0, diez = 10;
    vncallback *c = callback_crea(suma, vornspy_parametro(1, 8, &total));
    callback_lanza_void(c);
    callback_lanza_void_dato(int, c, &diez);
    EXPECT_EQ(total, 11);
    callback_destruye(&c);
    EXPECT_EQ(c, nullptr);
    EXPECT_EQ(ESPERA_INFORME("(funcion) != NULL", callback_nousar_crea(nullptr, vornspy_parametro(1, 4, 5))), nullptr);
}
