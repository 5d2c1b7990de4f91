#define VN_MODULO "vornspy_test"
#include "foundation/suelo/vornspy.h"
#include "plataforma/proceso.h"
#include "prueba.h"
#include <cstring>

PRUEBA(vornspy, un_bloque_esta_vivo_hasta_que_se_libera) {
    char *p = static_cast<char *>(vornspy_calloc(3, 5));
    EXPECT_EQ(std::string(p, 15), std::string(15, '\0'));
    EXPECT_EQ(vornspy_es_memoria_reservada_valida(p), CIERTO);
    EXPECT_EQ(vornspy_es_memoria_reservada_valida(p + 1), FALSO);
    std::memcpy(p, "abcdefghijklmn", 15);
    p = static_cast<char *>(vornspy_realloc(p, 1 << 20));
    EXPECT_STREQ(p, "abcdefghijklmn");
    char *muerto = p;
    vornspy_free_pp(&p, 1);
    EXPECT_EQ(p, nullptr);
    EXPECT_EQ(vornspy_es_memoria_reservada_valida(muerto), FALSO);
    // Freed twice through a second owner: told, and nothing happens.
    ESPERA_INFORME("vornspy_es_memoria_reservada_valida(*p) == CIERTO", vornspy_free_pp(&muerto, 1));
    int local = 0;
    for (const uintptr_t q : {uintptr_t{0}, uintptr_t{1}, uintptr_t{16}, ~uintptr_t{0}, uintptr_t{0x7fffffffffff},
                              uintptr_t{1} << 63, reinterpret_cast<uintptr_t>(&local)})
        EXPECT_EQ(vornspy_es_memoria_reservada_valida(reinterpret_cast<void *>(q)), FALSO) << q;
}

PRUEBA(vornspy, los_bloques_vivos_dicen_quien_los_pidio) {
    static void *p;
    p = vornspy_malloc(1234);
    bool hallado = false;
    vornspy_recorre_bloques_vivos(
        [](const void *q, size_t tamanyo, const char *modulo, uint32_t linea, void *si) {
            if (q == p)
                *static_cast<bool *>(si) = tamanyo == 1234 && modulo == std::string("vornspy_test") && linea > 0;
        },
        &hallado);
    EXPECT_TRUE(hallado);
    vornspy_free_pp(&p, 1);
}

PRUEBA(vornspy, varias_hebras_a_la_vez) {
    vn::en_hebras(2, [](int) {
        void *p[64] = {};
        for (unsigned i = 0; i < 20000; ++i)
            if (void *&q = p[i * 7 % 64]; q != nullptr) vornspy_free_pp(&q, 1);
            else q = vornspy_malloc(i % 300);
        for (void *&q : p)
            if (q != nullptr) vornspy_free_pp(&q, 1);
    });
}

// A size that nobody has is exhausted memory, never a smaller block.
PRUEBA(vornspy, lo_que_no_cabe_no_da_un_bloque_menor) {
    struct agotada {};
    int veces = 0;
    void *p = vornspy_malloc(8);
    const auto salta = [](void *n) {
        ++*static_cast<int *>(n);
        throw agotada{};
    };
    vornspy_instala_memoria_agotada(salta, &veces);
    EXPECT_THROW(vornspy_malloc(SIZE_MAX), agotada);
    EXPECT_THROW(vornspy_calloc(size_t{1} << 32, size_t{1} << 32), agotada);
    for (const size_t n : {SIZE_MAX, SIZE_MAX - 8, size_t{1} << 60}) EXPECT_THROW(vornspy_realloc(p, n), agotada) << n;
    EXPECT_EQ(vornspy_reserva_seguro(SIZE_MAX, 2, FALSO, VN_AQUI), nullptr);
    vornspy_instala_memoria_agotada(nullptr, nullptr);
    EXPECT_EQ(veces, 5);
    EXPECT_EQ(vornspy_es_memoria_reservada_valida(p), CIERTO);
    vornspy_free_pp(&p, 1);
}

// Without a handler, or with one that returns, the process ends, inside a trap too.
HIJO(vornspy_sin_memoria) {
    if (args.at(0) == "vuelve") vornspy_instala_memoria_agotada([](void *) {}, nullptr);
    const vnfunc_trapable pide = [](void *) { vornspy_malloc(SIZE_MAX); };
    trapable_ejecuta_funcion_segura(void, pide, nullptr, nullptr);
    return 0;
}

PRUEBA(vornspy, sin_memoria_se_acaba_el_proceso) {
    for (const char *que : {"nada", "vuelve"}) {
        vn::proceso p("vornspy_sin_memoria", {que});
        const auto fin = p.espera(30000);
        EXPECT_TRUE(fin.has_value() && *fin != 0) << que;
    }
}

PRUEBA(vornspy, un_paquete_devuelve_sus_valores) {
    int x = 0;
    vnparametros *pack = vornspy_parametro(3, 8, &x, 4, -1, 8, nullptr);
    EXPECT_EQ(vornspy_parametro_puntero(pack, 0), &x);
    EXPECT_EQ(vornspy_parametro_entero(pack, 1), 0xFFFFFFFFu);
    EXPECT_EQ(vornspy_parametro_puntero(pack, 2), nullptr);
    EXPECT_EQ(ESPERA_INFORME("i < parametros->numero", vornspy_parametro_puntero(pack, 3)), nullptr);
    vornspy_destruye_parametros(&pack);
}
