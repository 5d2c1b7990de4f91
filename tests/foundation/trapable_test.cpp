#include "foundation/trapable.h"
#include "foundation/callback.h"
#include "foundation/vnatexit.h"
#include "foundation/vornfile.h"
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

} // namespace

PRUEBA(trapable, un_informe_vuelve_como_resultado_y_no_llega_al_receptor) {
    int n = 0;
    EXPECT_EQ(trapable_ejecuta_funcion_segura(void, va_bien, &n, nullptr), CIERTO);
    EXPECT_EQ(trapable_ejecuta_funcion_segura(void, falla, nullptr, nullptr), FALSO);
    EXPECT_NE(std::strstr(trapable_texto_del_ultimo_fallo(), "se_lee_final_bloque == CIERTO"), nullptr);
    EXPECT_EQ(trapable_ejecuta_funcion_segura(void, anidada, &n, nullptr), CIERTO);
    EXPECT_EQ(n, 2);
    const vnfunc_trapable falla_un_punto = [](void *) {
        const Punto2D p = {1.5, -2};
        error_interno_punto_2D("es_convexo", "prueba", 8, &p);
    };
    EXPECT_EQ(trapable_ejecuta_funcion_segura(void, falla_un_punto, nullptr, nullptr), FALSO);
    EXPECT_STREQ(trapable_texto_del_ultimo_fallo(), "prueba, 8: es_convexo: (1.5, -2)\n");
    // Outside again, a report goes to the receiver.
    ESPERA_INFORME("x", error_interno("x", nullptr, 1, 0));
}

PRUEBA(trapable, lo_que_se_entrega_se_libera_aunque_el_informe_no_vuelva) {
    const vnfunc_trapable filas[] = {
        [](void *) { vornspy_parametro(1, 3, 7); },
        [](void *) { callback_crea(nullptr, vornspy_parametro(1, 4, 7)); },
        [](void *) { atexit_anade(nullptr, vornspy_parametro(1, 4, 7)); },
        [](void *) {
            const auto nombre = vn::ancho(directorio() + "/x");
            vnfichero *f = vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(nombre.c_str());
            vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f, nullptr);
        },
        [](void *) {
            vnfichero *f = vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar((directorio() + "/x").c_str());
            vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar(f, nullptr);
        },
    };
    for (const vnfunc_trapable f : filas) EXPECT_EQ(trapable_ejecuta_funcion_segura(void, f, nullptr, nullptr), FALSO);
}
