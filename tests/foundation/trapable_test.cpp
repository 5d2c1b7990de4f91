#include "foundation/trapable.h"
#include "foundation/arr.h"
#include "foundation/cad.h"
#include "foundation/callback.h"
#include "foundation/msglocal.h"
#include "foundation/vdir.h"
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
    const vnfunc_trapable falla_un_punto = [](void *) {
        const Punto2D p = {1.5, -2};
        error_interno_punto_2D("es_convexo", "prueba", 8, &p);
    };
    EXPECT_EQ(trapable_ejecuta_funcion_segura(void, falla_un_punto, nullptr, nullptr), FALSO);
    EXPECT_STREQ(trapable_texto_del_ultimo_fallo(), "prueba, 8: es_convexo: (1.5, -2)\n");
    // Outside again, a report goes to the receiver.
    ESPERA_INFORME("x", error_interno("x", nullptr, 1, 0));
}

PRUEBA(trapable, la_memoria_agotada_vuelve_a_la_trampa) {
    vornspy_instala_permiso(nunca, nullptr);
    const vnbool resultado = trapable_ejecuta_funcion_segura(void, pide_memoria, nullptr, nullptr);
    vornspy_instala_permiso(nullptr, nullptr);
    EXPECT_EQ(resultado, FALSO);
}

// Each allocation of an operation is refused in turn: it unwinds to the trap, and the fixture finds nothing left behind.
PRUEBA(trapable, a_quien_le_falta_memoria_no_se_deja_nada) {
    vn::graba_fichero(directorio() + "/a b.txt", "");
    static uint32_t quedan;
    struct {
        const char *nombre;
        vnfunc_trapable hace;
    } const filas[] = {
        {"call-back", [](void *) {
             vncallback *c = callback_crea([](vnparametros *, void *) {}, vornspy_parametro(1, 4, 7));
             callback_destruye(&c);
         }},
        {"exit list", [](void *) {
             atexit_anade([](vnparametros *) {}, vornspy_parametro(1, 4, 7));
             vnatexit_ejecuta();
         }},
        {"lists of names", [](void *) {
             arrCADENA_u *lista = nullptr;
             vdir_lista_de_ficheros_UNICODE(vn::ancho(directorio()).c_str(), VNU("*"), &lista);
             arr_DestruyeCADENA_u(&lista);
         }},
        {"ANSI paths", [](void *) {
             char *s = vdir_concatena_directorios("a", "b");
             vornstr_destruye(&s);
         }},
        {"decoded message", [](void *) {
             // What a failure has left half done must not be lent by the next call.
             EXPECT_STREQ(nousar_original([](vnmensaje *m) { m->textos[0] = "FFFF41004200"; }), "AB");
             vnatexit_ejecuta();
         }},
    };
    for (const auto &f : filas) {
        vnbool entera = FALSO;
        for (uint32_t permitidas = 0; entera == FALSO && permitidas < 100; ++permitidas) {
            quedan = permitidas;
            vornspy_instala_permiso([](size_t, void *) -> vnbool { return quedan == 0 ? FALSO : (--quedan, CIERTO); }, nullptr);
            entera = trapable_ejecuta_funcion_segura(void, f.hace, nullptr, nullptr);
            vornspy_instala_permiso(nullptr, nullptr);
        }
        EXPECT_EQ(entera, CIERTO) << f.nombre;
    }
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
