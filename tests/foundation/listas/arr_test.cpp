#define VN_MODULO "arr_test"
#include "foundation/listas/acadorde.h"
#include "foundation/listas/apunorde.h"
#include "foundation/listas/arr.h"
#include "foundation/listas/arr_int.h"
#include "foundation/numeros/punto.h"
#include "foundation/texto/cad.h"
#include "texto_ancho.h"
#include <algorithm>

namespace {

struct viga {
    int clave, orden;
};

viga *nueva(int clave, int orden = 0) {
    auto *v = static_cast<viga *>(vornspy_malloc(sizeof(viga)));
    *v = {clave, orden};
    return v;
}
void destruye(viga **v) { vornspy_free_pp(v, sizeof(viga)); }
viga *copia(const viga *v) { return nueva(v->clave, v->orden); }
int compara(const viga *a, const viga *b) { return (a->clave > b->clave) - (a->clave < b->clave); }
int compara_clave(const int *a, const viga *b) { return (*a > b->clave) - (*a < b->clave); }

} // namespace

// One contract for every family of plain elements.
#define CONTRATO(S, T)                                                                                                 \
    PRUEBA(arr, familia_##S) {                                                                                         \
        const T uno = 1, cero = 0,                                                                                     \
                tope = std::is_same_v<T, vnbool> && #S[0] == 'B' ? T(1) : std::numeric_limits<T>::max();               \
        arr##S *a = arr_Crea##S(2);                                                                                    \
        EXPECT_EQ(arr_Get##S(a, 1), cero);                                                                             \
        arr_Inicializa##S(a, uno);                                                                                     \
        for (int i = 0; i < 100; ++i) arr_Append##S(a, i % 2 ? cero : tope);                                           \
        arr_Set##S(a, 0, cero);                                                                                        \
        arr##S *b = arr_Copia##S(a);                                                                                   \
        EXPECT_EQ(arr_SonIguales##S(a, b), CIERTO);                                                                    \
        arr_Concatena##S(a, a);                                                                                        \
        ASSERT_EQ(vn::listas::tramo(a).size(), 204u);                                                                  \
        EXPECT_TRUE(std::ranges::equal(vn::listas::tramo(a).subspan(102), vn::listas::tramo(std::as_const(b))));       \
        EXPECT_EQ(arr_SonIguales##S(a, b), FALSO);                                                                     \
        EXPECT_EQ(arr_Get##S(a, 102), cero);                                                                           \
        EXPECT_EQ(arr_Get##S(a, 103), uno);                                                                            \
        EXPECT_EQ(arr_GetBufferConst##S(a)[104], tope);                                                                \
        EXPECT_EQ(ESPERA_INFORME("i < num_elementos", arr_Get##S(a, 204)), cero);                                      \
        ESPERA_INFORME("i < num_elementos", arr_Set##S(a, 204, uno));                                                  \
        EXPECT_EQ(ESPERA_INFORME("n <= 268435456", arr_Crea##S(0xFFFFFFFF)), nullptr);                                 \
        arr_Destruye##S(&a);                                                                                           \
        ESPERA_INFORME("(*a) != NULL", arr_Destruye##S(&a));                                                           \
        arr_Destruye##S(&b);                                                                                           \
        arr##S *vacio = arr_Crea##S(0);                                                                                \
        EXPECT_EQ(arr_GetBuffer##S(vacio), nullptr);                                                                   \
        arr_Concatena##S(vacio, vacio);                                                                                \
        EXPECT_EQ(arr_NumElems##S(vacio), 0u);                                                                         \
        arr_Destruye##S(&vacio);                                                                                       \
    }
VN_ARR_SIMPLES(CONTRATO)

PRUEBA(arr, crece_en_tiempo_constante_y_sin_memoria_no_cambia) {
    arrULong *a = arr_CreaULong(0);
    static int pedidos;
    static vnbool permite;
    pedidos = 0, permite = CIERTO;
    vornspy_instala_permiso([](size_t, void *) { return ++pedidos, permite; }, nullptr);
    for (uint32_t i = 0; i < 1000000; ++i) arr_AppendULong(a, i);
    EXPECT_LT(pedidos, 40);
    // Many at once may be refused; what there was stays.
    permite = FALSO;
    ESPERA_INFORME("memoria != NULL", arr_ConcatenaULong(a, a));
    vornspy_instala_permiso(nullptr, nullptr);
    EXPECT_EQ(arr_NumElemsULong(a), 1000000u);
    uint32_t pos = 7;
    EXPECT_EQ(arr_ExisteULong(a, 999999, 0, &pos), CIERTO);
    EXPECT_EQ(pos, 999999u);
    EXPECT_EQ(arr_ExisteULong(a, 5, 6, &pos), FALSO);
    EXPECT_EQ(pos, 999999u);
    arr_DestruyeULong(&a);
}

PRUEBA(arr, los_bits_van_de_ocho_en_ocho) {
    arrBIT *a = arr_CreaBIT(3);
    arr_SetBIT(a, 1, CIERTO);
    for (int i = 0; i < 6; ++i) arr_AppendBIT(a, i == 5 ? CIERTO : FALSO);
    ASSERT_EQ(arr_NumElemsBIT(a), 9u);
    EXPECT_EQ(arr_GetBufferConstBIT(a)[0], 0x02);
    EXPECT_EQ(arr_GetBufferConstBIT(a)[1], 0x01);
    arr_SetBIT(a, 1, FALSO);
    arr_AumentaTamanyoBIT(a, 1000);
    EXPECT_EQ(arr_GetBIT(a, 8), CIERTO);
    EXPECT_EQ(std::ranges::count(std::span(arr_GetBufferConstBIT(a), 125), 0), 124);
    arr_DestruyeBIT(&a);
}

PRUEBA(arr, las_cadenas_son_del_array) {
    arrCADENA *a = arr_CreaCADENA(2);
    EXPECT_EQ(arr_GetCADENA(a, 0), nullptr);
    char texto[] = "uno";
    arr_SetCADENA(a, 0, texto);
    texto[0] = 'x';
    EXPECT_STREQ(arr_GetCADENA(a, 0), "uno");
    char *dos = cad_copia_cadena("dos"), *tres = cad_copia_cadena("tres");
    const char *el_mismo = dos;
    arr_SetCADENAOriginal(a, 0, &dos);
    EXPECT_EQ(dos, nullptr);
    EXPECT_EQ(arr_GetCADENA(a, 0), el_mismo);
    for (const bool al_final : {false, true}) { // refused, it is not the caller's any more
        char *rechazado = cad_copia_cadena("x");
        if (al_final) ESPERA_INFORME("(a) != NULL", arr_AppendCADENAOriginal(nullptr, &rechazado));
        else ESPERA_INFORME("i < num_elementos", arr_SetCADENAOriginal(a, 2, &rechazado));
        EXPECT_EQ(rechazado, nullptr);
    }
    arr_SetCADENA(a, 0, arr_GetCADENA(a, 0)); // onto itself
    arr_AppendCADENAOriginal(a, &tres);
    arr_AppendCADENA(a, nullptr);
    arr_InsertarCADENA(a, 4, "cuatro");
    arr_InsertarCADENA(a, 0, "cero");
    ESPERA_INFORME("i <= num_elementos", arr_InsertarCADENA(a, 7, "lejos"));
    EXPECT_EQ(vn::toma(arr_CopiaCADENA(a)), "cero|dos|~|tres|~|cuatro");

    arrCADENA *b = arr_CopiaCADENA(a);
    EXPECT_EQ(arr_SonIgualesCADENA(a, b), CIERTO);
    arr_SetCADENA(b, 2, "");
    EXPECT_EQ(arr_SonIgualesCADENA(a, b), FALSO);
    arr_ConcatenaCADENA(b, b);
    uint32_t pos = 0;
    EXPECT_EQ(arr_ExisteCADENA(b, "tres", &pos), CIERTO);
    EXPECT_EQ(pos, 3u);
    arr_BorrarCADENA(b, 3);
    EXPECT_EQ(arr_BuscarCADENA(b, "tres"), 8u);
    EXPECT_EQ(arr_BuscarCADENA(b, "tre"), VN_ARR_NO_ESTA);
    arr_ReduceTamanyoCADENA(b, 2);
    ESPERA_INFORME("n <= num_elementos", arr_ReduceTamanyoCADENA(b, 3));
    std::string vistos;
    RecorreCADENA(
        b, [](const char *e, void *d) { *static_cast<std::string *>(d) += e; }, &vistos);
    EXPECT_EQ(vistos, "cerodos");
    arr_DestruyeCADENA(&b);
    arr_DestruyeCADENA(&a);
    // The wide ones are of the same template; they compare by units.
    const vn::textos anchas = vn::textos_de({"Ñandú", "ñandú"});
    EXPECT_EQ(arr_BuscarCADENA_u(anchas.get(), VNU("ñandú")), 1u);
    arr_BorrarCADENA_u(anchas.get(), 0);
    vnwchar *c = arr_GetCopiaCADENA_u(anchas.get(), 0);
    arr_AppendCADENAOriginal_u(anchas.get(), &c);
    EXPECT_EQ(vn::toma(arr_CopiaCADENA_u(anchas.get())), "ñandú|ñandú");
}

PRUEBA(arr, los_puntos_van_por_coordenadas) {
    const vn::dueno<arr_DestruyePunto3D> a(arr_CreaPunto3D(1));
    arr_AppendPunto3D(a.get(), 1, 2, 3);
    arr_AppendPunto3D(a.get(), 4, 5, 6);
    arr_InvertirPunto3D(a.get());
    double x = 9, y = 9, z = 9;
    arr_GetPunto3D(a.get(), 1, &x, &y, &z);
    EXPECT_TRUE(x == 1 && y == 2 && z == 3);
    const vn::dueno<arr_DestruyePunto3D> b(arr_CopiaPunto3D(a.get()));
    arr_SetPunto3D(b.get(), 0, 4, 5.001, 6);
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(a.get(), b.get(), 0.01), CIERTO);
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(a.get(), b.get(), 0.0001), FALSO);
    arr_BorrarPunto3D(b.get(), 1);
    EXPECT_EQ(vn::listas::tramo(b.get())[1].x, 0.0);
    EXPECT_EQ(arr_SonIgualesPunto3DConTolerancia(a.get(), b.get(), 100), FALSO);
    ESPERA_INFORME("i < num_elementos", arr_GetPunto3D(b.get(), 2, &x, &y, &z));
    EXPECT_EQ(z, 0.0);

    arrPunto2DXPriv *c = arr_CreaPunto2DXPriv(0);
    arr_AppendPunto2DXPriv(c, 1, 2, nueva(7));
    arr_AppendPunto2DXPriv(c, 3, 4, nullptr);
    void *priv = nullptr;
    arr_GetPunto2DXPriv(c, 0, &x, &y, &priv);
    EXPECT_EQ(static_cast<viga *>(priv)->clave, 7);
    arr_DestruyePunto2DXPriv(&c, [](void *p) { vornspy_free_pp(p, 1); });

    const vn::dueno<arr_DestruyePunto2D> d(arr_CreaPunto2D(3));
    arr_SetPunto2D(d.get(), 2, 1, -1);
    arr_ConcatenaPunto2D(d.get(), d.get());
    uint32_t pos = 0;
    EXPECT_EQ(arr_ExistePunto2D(d.get(), 1.00001, -1, 0.0001, &pos), CIERTO);
    EXPECT_EQ(pos, 2u);
    EXPECT_EQ(arr_ExistePunto2D(d.get(), 1.001, -1, 0.0001, nullptr), FALSO);

    Punto2D *p = creapunto(1, 2), *q = p_copia(p);
    EXPECT_TRUE(q != p && q->x == 1 && q->y == 2);
    vornspy_free_pp(&p, 1);
    vornspy_free_pp(&q, 1);
}

PRUEBA(arr, las_estructuras_se_ordenan_se_buscan_y_se_destruyen) {
    arrPuntero *a = arr_CreaPunteroST(0, viga);
    for (int i = 0; i < 1000; ++i) arr_AppendPunteroST(a, nueva(i * 7919 % 10, i), viga);
    arr_QSortPunteroST(a, viga, compara);
    for (uint32_t i = 1; i < 1000; ++i) {
        const viga *v = arr_GetPunteroST(a, i - 1, viga), *w = arr_GetPunteroST(a, i, viga);
        // Equals keep the order in which they came.
        ASSERT_TRUE(v->clave < w->clave || (v->clave == w->clave && v->orden < w->orden)) << i;
    }
    int clave = 4;
    uint32_t pos = 0;
    EXPECT_EQ(arr_BuscarEstructuraDicotomicamenteST(a, &clave, int, viga, compara_clave, &pos), CIERTO);
    EXPECT_EQ(pos, 400u);
    EXPECT_EQ(arr_InsertarPunteroOrdenadoDicotomicamenteST(a, nueva(4, 1001), viga, compara), 500u);
    clave = 10;
    EXPECT_EQ(arr_BuscarEstructuraDicotomicamenteST(a, &clave, int, viga, compara_clave, &pos), FALSO);
    EXPECT_EQ(pos, 1001u);
    EXPECT_EQ(arr_BuscarUnicaEstructuraST(a, &clave, int, viga, compara_clave), VN_ARR_NO_ESTA);
    clave = 3;
    EXPECT_EQ(ESPERA_INFORME("num_encontrados <= 1", arr_BuscarUnicaEstructuraST(a, &clave, int, viga, compara_clave)),
              300u);
    EXPECT_EQ(arr_BuscarPunteroST(a, arr_GetPunteroST(a, 17, viga), viga), 17u);
    arr_BorrarEstructuraST(a, 17, viga, destruye);
    arr_AppendPunteroST(a, nullptr, viga);

    arrPuntero *b = arr_CopiaEstructurasST(a, viga, copia);
    EXPECT_EQ(arr_SonIgualesPunteroST(a, b, viga, compara), CIERTO);
    EXPECT_EQ(arr_SonIgualesPunteroConTipo(a, b, nullptr), FALSO);
    arr_ConcatenaEstructurasST(b, b, viga, copia);
    EXPECT_EQ(arr_NumElemsPunteroST(b, viga), 2002u);
    arr_DestruyeEstructurasST(&b, viga, destruye);
    arr_DestruyeEstructurasST(&a, viga, destruye);
}

PRUEBA(arr, un_comparador_sin_orden_o_que_informa_no_pierde_elementos) {
    arrPuntero *a = arr_CreaPunteroST(0, viga);
    for (int i = 0; i < 100; ++i) arr_AppendPunteroST(a, nueva(i), viga);
    arr_QSortPunteroST(a, viga, [](const viga *, const viga *) { return 1; });
    EXPECT_FALSE(vn::atrapado([&] {
        arr_QSortPunteroST(a, viga, [](const viga *v, const viga *) {
            if (v->clave == 50) error_interno("salta", nullptr, 0, 0);
            return -1;
        });
    }));
    int suma = 0;
    arr_RecorreEstructuraSimpleST(
        a, viga, int, [](viga *v, int *s) { *s += v->clave; }, &suma);
    EXPECT_EQ(suma, 4950);
    arr_DestruyeEstructurasST(&a, viga, destruye);
}

PRUEBA(arr, un_array_de_arrays_y_el_paseo_que_lo_cambia) {
    arrPuntero *a = arr_CreaPunteroST(1, arrULong);
    arr_InsertarPunteroST(a, 0, arr_CreaULong(3), arrULong);
    arr_DestruyeEstructurasArrayST(&a, arrULong, arr_DestruyeULong);
    EXPECT_EQ(a, nullptr);

    arrChar *c = arr_CreaChar(1);
    arr_RecorreChar(
        c,
        [](char e, void *d) {
            if (e < 50) arr_AppendChar(static_cast<arrChar *>(d), static_cast<char>(e + 1));
        },
        c);
    EXPECT_EQ(arr_NumElemsChar(c), 51u);
    arr_DestruyeChar(&c);

    arulong64 *u = arulong64_crea();
    for (uint64_t i = 0; i < 100; ++i) arulong64_append(u, ~i);
    EXPECT_EQ(arulong64_get(u, 99), ~uint64_t{99});
    EXPECT_EQ(arulong64_get_buffer_const(u)[50], ~uint64_t{50});
    ESPERA_INFORME("i < num_elementos", arulong64_get(u, 100));
    arulong64_destruye(&u);
}

// Each allocation fails in its turn: what was there stays as it was, or has grown by whole elements, and
// nothing that was being made is lost.
PRUEBA(arr, sin_memoria_no_se_pierde_nada) {
    struct caso {
        arrCADENA *textos = arr_CreaCADENA(0);
        arrPuntero *vigas = arr_CreaPunteroST(0, viga);
        acadorde *conjunto = acadorde_crea(FALSO);
        apunorde *orden = apunorde_crea(
            viga, void, [](const viga *v, const viga *w, void *) { return compara(v, w); },
            static_cast<void *>(nullptr), destruye);
    };
    // clang-format off
    void (*const operaciones[])(caso *) = {
        [](caso *c) { arr_AppendCADENA(c->textos, "uno"); },
        [](caso *c) { arr_InsertarCADENA(c->textos, 0, "cero"); },
        [](caso *c) { arr_ConcatenaCADENA(c->textos, c->textos); },
        [](caso *c) { const vn::dueno<arr_DestruyeCADENA> d(arr_CopiaCADENA(c->textos)); },
        [](caso *c) { char *s = cad_copia_cadena("dos"); arr_AppendCADENAOriginal(c->textos, &s); },
        [](caso *c) { arr_QSortPunteroST(c->vigas, viga, compara); },
        [](caso *c) { acadorde_inserta(c->conjunto, "Dos"); },
        [](caso *c) { apunorde_inserta_original(c->orden, nueva(3), viga, nullptr); },
    };
    // clang-format on
    for (const auto o : operaciones)
        for (int falla = 0; falla < 4; ++falla) {
            caso c;
            for (int i = 0; i < 8; ++i) { // 8 is full: the next one grows
                arr_AppendCADENA(c.textos, "texto");
                arr_AppendPunteroST(c.vigas, nueva(9 - i), viga);
                acadorde_inserta(c.conjunto, std::string(static_cast<size_t>(i + 1), 'e').c_str());
                apunorde_inserta_original(c.orden, nueva(10 * i), viga, nullptr);
            }
            vn::atrapado([&] { o(&c); }, falla);
            EXPECT_GE(arr_NumElemsCADENA(c.textos), 8u);
            EXPECT_GE(acadorde_numelems(c.conjunto), 8u);
            EXPECT_STREQ(arr_GetCADENA(c.textos, arr_NumElemsCADENA(c.textos) - 2), "texto");
            EXPECT_EQ(apunorde_get(c.orden, apunorde_numelems(c.orden, viga) - 1, viga)->clave, 70);
            arr_DestruyeCADENA(&c.textos);
            arr_DestruyeEstructurasST(&c.vigas, viga, destruye);
            acadorde_destruye(&c.conjunto);
            apunorde_destruye(&c.orden, viga);
        }
}
