#include "foundation/trapable.h"
#include "prueba.h"
#include <cstring>
#include <memory>

namespace {

struct libera {
    void operator()(void *p) const { vornspy_free_pp(&p, 1); }
};

void va_bien(void *datos) { *static_cast<int *>(datos) += 1; }

// Holds memory while it fails: unwinding must give it back.
void falla(void *) {
    const std::unique_ptr<void, libera> bloque(vornspy_malloc(100));
    error_interno("se_lee_final_bloque == CIERTO", "prueba", 7, 0);
    FAIL() << "the report returned inside a trap";
}

void anidada(void *datos) {
    vnbool resultado = CIERTO;
    trapable_nousar_recursivo_ejecuta_funcion_segura(falla, nullptr, &resultado);
    EXPECT_EQ(resultado, FALSO);
    va_bien(datos);
}

vnbool nunca(size_t, void *) { return FALSO; }

void pide_memoria(void *) {
    void *p = vornspy_malloc(10);
    vornspy_free_pp(&p, 1);
}

} // namespace

PRUEBA(trapable, un_informe_vuelve_como_resultado_y_no_llega_al_receptor) {
    int n = 0;
    EXPECT_EQ(trapable_ejecuta_funcion_segura(void, va_bien, &n, nullptr), CIERTO);
    EXPECT_EQ(trapable_ejecuta_funcion_segura(void, falla, nullptr, nullptr), FALSO);
    EXPECT_NE(std::strstr(trapable_texto_del_ultimo_fallo(), "se_lee_final_bloque == CIERTO"), nullptr);
    EXPECT_EQ(trapable_ejecuta_funcion_segura(void, anidada, &n, nullptr), CIERTO);
    EXPECT_EQ(n, 2);
    // Outside again, a report goes to the receiver.
    ESPERA_INFORME("x", error_interno("x", nullptr, 1, 0));
}

PRUEBA(trapable, la_memoria_agotada_vuelve_a_la_trampa) {
    vornspy_instala_permiso(nunca, nullptr);
    const vnbool resultado = trapable_ejecuta_funcion_segura(void, pide_memoria, nullptr, nullptr);
    vornspy_instala_permiso(nullptr, nullptr);
    EXPECT_EQ(resultado, FALSO);
}
