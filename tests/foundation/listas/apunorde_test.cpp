#define VN_MODULO "apunorde_test"
#include "foundation/listas/apunorde.h"
#include "propiedades.h"
#include <algorithm>
#include <atomic>
#include <cmath>

namespace {

struct nudo {
    double x;
    int destruidos_al_morir;
};
int destruidos = 0;

nudo *nuevo(double x) {
    auto *n = static_cast<nudo *>(vornspy_malloc(sizeof(nudo)));
    *n = {x, 1};
    return n;
}
void destruye(nudo **n) {
    destruidos += (*n)->destruidos_al_morir;
    vornspy_free_pp(n, sizeof(nudo));
}
// The datum is the tolerance.
int compara(const nudo *a, const nudo *b, double *tolerancia) {
    if (std::fabs(a->x - b->x) <= *tolerancia) return 0;
    return a->x < b->x ? -1 : 1;
}
int compara_clave(const double *x, const nudo *n) { return (*x > n->x) - (*x < n->x); }

} // namespace

// The order itself is the last test's.
PRUEBA(apunorde, un_igual_se_dice_y_se_destruye_y_se_busca_por_elemento_y_por_clave) {
    double tolerancia = 0.1, clave = 5;
    destruidos = 0;
    apunorde *a = apunorde_crea(nudo, double, compara, &tolerancia, destruye);
    uint32_t pos = 99;
    for (const double x : {9., 5., 7.}) apunorde_inserta_original(a, nuevo(x), nudo, &pos);
    ESPERA_INFORME("existe == FALSO", apunorde_inserta_original(a, nuevo(5.05), nudo, &pos));
    EXPECT_EQ(pos, 0u);
    EXPECT_EQ(destruidos, 1);
    EXPECT_EQ(apunorde_get(a, 0, nudo)->x, 5.);

    nudo cerca{7.05, 0}, entre{7.5, 0};
    EXPECT_EQ(apunorde_existe_elemento(a, &cerca, nudo, &pos), CIERTO);
    EXPECT_EQ(pos, 1u);
    EXPECT_EQ(apunorde_existe_elemento(a, &entre, nudo, &pos), FALSO);
    EXPECT_EQ(pos, 2u);

    nudo *n = apunorde_busca(a, &clave, double, nudo, compara_clave);
    EXPECT_EQ(n, apunorde_get(a, 0, nudo));
    EXPECT_EQ(apunorde_quita(a, 0, nudo), n);
    destruye(&n);
    EXPECT_EQ(apunorde_busca(a, &clave, double, nudo, compara_clave), nullptr);
    EXPECT_EQ(ESPERA_INFORME("existe == CIERTO", apunorde_dame(a, &clave, double, nudo, compara_clave)), nullptr);
    clave = 9;
    EXPECT_EQ(apunorde_dame(a, &clave, double, nudo, compara_clave)->x, 9.);
    EXPECT_EQ(ESPERA_INFORME("i < num_elementos", apunorde_get(a, 2, nudo)), nullptr);
    apunorde_destruye(&a, nudo);
    EXPECT_EQ(destruidos, 4);
    // Without a destructor the elements are not its own: nor is an equal one that is refused.
    nudo en_pila[] = {{2, 0}, {1, 0}, {2, 0}};
    a = apunorde_crea(nudo, double, compara, &tolerancia, nullptr);
    for (int i = 0; i < 2; ++i) apunorde_inserta_original(a, &en_pila[i], nudo, nullptr);
    EXPECT_EQ(apunorde_get(a, 0, nudo), &en_pila[1]);
    EXPECT_FALSE(vn::atrapado([&] { apunorde_inserta_original(a, &en_pila[2], nudo, nullptr); }));
    EXPECT_EQ(apunorde_numelems(a, nudo), 2u);
    apunorde_destruye(&a, nudo);
}

PRUEBA(apunorde, mezclando_operaciones_es_un_vector_ordenado) {
    double tolerancia = 0;
    apunorde *a = apunorde_crea(nudo, double, compara, &tolerancia, destruye);
    std::vector<double> modelo;
    vn::azar z(12345);
    for (int paso = 0; paso < 20000; ++paso) {
        const double x = z.entero(3000);
        const auto sitio = std::ranges::lower_bound(modelo, x);
        const bool esta = sitio != modelo.end() && *sitio == x;
        const auto indice = static_cast<uint32_t>(sitio - modelo.begin());
        uint32_t pos = 0;
        ASSERT_EQ(apunorde_existe(a, &x, double, nudo, compara_clave, &pos) == CIERTO, esta);
        ASSERT_EQ(pos, indice);
        if (!esta) {
            apunorde_inserta_original(a, nuevo(x), nudo, &pos);
            ASSERT_EQ(pos, indice);
            modelo.insert(sitio, x);
        } else if (z.entero(8) == 0) {
            nudo *n = apunorde_quita(a, indice, nudo);
            ASSERT_EQ(n->x, x);
            destruye(&n);
            modelo.erase(sitio);
        }
        ASSERT_EQ(apunorde_numelems(a, nudo), modelo.size());
        if (z.entero(4) == 0 && !modelo.empty()) {
            const uint32_t i = z.entero(static_cast<uint32_t>(modelo.size()));
            ASSERT_EQ(apunorde_get(a, i, nudo)->x, modelo[i]);
        }
    }
    // Two that only ask change nothing for each other, what came out of order and stands apart included.
    apunorde_inserta_original(a, nuevo(modelo[0] - 1), nudo, nullptr);
    modelo.insert(modelo.begin(), modelo[0] - 1);
    std::atomic<int> distintos{0};
    vn::en_hebras(2, [&](int) {
        for (uint32_t i = 0; i < modelo.size(); ++i) distintos += apunorde_get(a, i, nudo)->x != modelo[i];
    });
    EXPECT_EQ(distintos, 0);
    apunorde_destruye(&a, nudo);
}
