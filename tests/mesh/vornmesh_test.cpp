#include "foundation/ficheros/lc_fichero.h"
#include "mallas.h"
#include "mesh/vornmesh_genera.h"
#include "mesh/vornmesh_int.h"
#include "mesh/vornmesh_textura.h"
#include "persistence/vornsave.h"
#include <functional>
#include <string>

using namespace mallas;
using namespace vn;

namespace {

malla caja() { return malla(vornmesh_genera_cubo(2., 3., 4.)); }
// A grid of two cells, which has a strip, by kinds of optional arrays.
enum con : uint8_t { NADA = 0, TANGENTES = 1, TEXTURAS = 2, IDS = 4 };
malla tira(uint8_t que, double x = 0.) {
    malla m(vornmesh_genera_grid3d(
        lista({{{x, 0, 0}, {x + 1, 0, 0}, {x + 2, 0, 0}}, {{x, 1, 0}, {x + 1, 1, 0}, {x + 2, 1, 0}}})));
    if (que & TANGENTES) m->tangentes_opc.reset(vornmesh_genera_vectores_tangentes(m->normales.get()));
    if (que & TEXTURAS) {
        m->coord_texturas_opc.reset(arr_CreaPunto2D(0));
        for (int i = 0; i < 6; ++i) arr_AppendPunto2D(m->coord_texturas_opc.get(), .1 * i, x);
    }
    if (que & IDS) {
        m->ids_parametricos_puntos_opc.reset(arr_CreaULong(0));
        for (uint32_t i = 0; i < 6; ++i) arr_AppendULong(m->ids_parametricos_puntos_opc.get(), 10 + i);
    }
    return m;
}
std::vector<uint32_t> ids(const malla &m) {
    const auto t = listas::tramo(static_cast<const arrULong *>(m->ids_parametricos_puntos_opc.get()));
    return {t.begin(), t.end()};
}
bool iguales(const malla &a, const malla &b) { return vornmesh_son_iguales(a.get(), b.get(), 0., 0.) == CIERTO; }

// A file of the test's, open through the protocol: in binary form or in text.
enum class forma : uint8_t { BINARIA, TEXTO };
class abierto {
  public:
    abierto(forma como, const char *modo)
        : f_(lc_fopen_u(ancho(ruta()).c_str(), ancho(std::string(modo) + (como == forma::TEXTO ? "t" : "b")).c_str())),
          s_(como == forma::TEXTO ? vornsave_registra_txt(f_, CIERTO) : vornsave_registra_bin(f_)) {}
    ~abierto() {
        vornsave_libera(&s_);
        lc_fclose_seguro(f_);
    }
    abierto(const abierto &) = delete;
    abierto &operator=(const abierto &) = delete;
    operator vornsave *() const { return s_; }
    vnfichero *fichero() const { return f_; }
    static std::string ruta() { return Prueba::directorio() + "/malla"; }

  private:
    vnfichero *f_;
    vornsave *s_;
};
std::string grabado(forma como, const std::function<void(vornsave *)> &escribe) {
    escribe(abierto(como, "w"));
    return lee_fichero(abierto::ruta());
}
std::string bytes_de(const malla &m, forma como = forma::BINARIA) {
    return grabado(como, [&](vornsave *s) { vornmesh_graba(m.get(), s); });
}
malla leida(const std::string &bytes, forma como = forma::BINARIA) {
    graba_fichero(abierto::ruta(), bytes);
    return malla(vornmesh_lee(abierto(como, "r")));
}

} // namespace

PRUEBA(vornmesh, lo_que_se_graba_se_lee_igual) {
    for (uint8_t que = 0; que < 8; ++que)
        for (const forma d : {forma::BINARIA, forma::TEXTO}) {
            const malla m = tira(que, 4.5e6), otra = leida(bytes_de(m, d), d);
            ASSERT_NE(otra, nullptr);
            EXPECT_TRUE(iguales(m, otra));
            EXPECT_EQ(otra->ids_parametricos_puntos_opc != nullptr, (que & IDS) != 0);
            EXPECT_TRUE((que & IDS) == 0 || ids(m) == ids(otra));
        }
    EXPECT_EQ(vornmesh_version_DB(), 1);
    // An empty identifier array is there when it comes back.
    const malla vacia(vornmesh_crea_vacio_sin_coords_textura());
    EXPECT_NE(leida(bytes_de(vacia))->ids_parametricos_puntos_opc, nullptr);
}

PRUEBA(vornmesh, otras_versiones_e_indices_malos_se_leen_con_cuidado) {
    const malla m = tira(NADA);
    const std::string bytes = bytes_de(m);
    // Version 0 has no word on identifiers: the flag that says whether there are any, where both files part.
    const std::string con = bytes_de(tira(IDS));
    const auto bandera = std::ranges::mismatch(bytes, con).in1;
    std::string vieja(bytes.begin(), bandera);
    vieja[0] = 0;
    vieja.append(bandera + 1, bytes.end());
    EXPECT_TRUE(iguales(m, leida(vieja)));
    std::string nueva = bytes;
    nueva[0] = 2;
    EXPECT_TRUE(iguales(m, ESPERA_INFORME("version_fichero <= i_VERSION_FICHERO", leida(nueva))));

    const malla c = caja();
    std::string mala = bytes_de(c);
    mala[mala.size() - 4] = 36; // the last index of the last primitive
    mala[mala.size() - 20] = 99;
    const malla leida_mala = ESPERA_INFORME("indice < num_vertices", leida(mala));
    EXPECT_EQ(triangulos(leida_mala.get()).size(), 10u); // without a further word
    EXPECT_EQ(vornmesh_num_puntos(leida_mala.get()), 36u);

    // Lists that do not fit together: one normal for six points.
    malla coja = tira(NADA);
    coja->normales = puntos({{0, 0, 1}}).a;
    const std::string cojos = grabado(forma::BINARIA, [&](vornsave *s) {
        vornsave_graba_uchar(1, s);
        vornsave_graba_arr_puntos3D(coja->puntos.get(), s);
        vornsave_graba_arr_puntos3D(coja->normales.get(), s);
        vornsave_graba_arr_puntos3D_opcional(nullptr, s);
        vornsave_graba_arr_puntos2D_opcional(nullptr, s);
        vornsave_graba_arr_bool(coja->es_borde.get(), s);
        vornsave_graba_arr_ulong_opcional(nullptr, s);
        vornsave_graba_arr_ulong(coja->tipos_primitivas.get(), s);
        vornsave_graba_arr_punterosST(coja->inds_caras.get(), s, arrULong, vornsave_graba_arr_ulong);
    });
    EXPECT_EQ(
        vornmesh_num_puntos(ESPERA_INFORME("num_vertices == arr_NumElemsPunto3D(mesh->normales)", leida(cojos)).get()),
        0u);
}

PRUEBA(vornmesh, concatenar_desplaza_los_indices_y_une_lo_opcional) {
    for (uint8_t que = 0; que < 8; ++que) {
        const malla origen = tira(que, 7.), destino = tira(que), antes(vornmesh_copia(origen.get()));
        ASSERT_EQ(vornmesh_se_pueden_concatenar(origen.get(), destino.get()), CIERTO);
        vornmesh_concatena(origen.get(), destino.get());
        EXPECT_TRUE(iguales(origen, antes));
        auto t = triangulos(tira(que).get());
        const auto segundos = triangulos(origen.get());
        t.insert(t.end(), segundos.begin(), segundos.end());
        const auto visto = triangulos(destino.get());
        ASSERT_EQ(visto.size(), t.size());
        for (size_t i = 0; i < t.size(); ++i)
            for (int k = 0; k < 3; ++k) EXPECT_LT(largo(visto[i].p[k] - t[i].p[k]), 1e-15);
        EXPECT_EQ(vornmesh_num_puntos(destino.get()), 12u);
        // One that has other optional arrays stays as it was.
        for (uint8_t otro = 0; otro < 8; ++otro) {
            if (otro == que) continue;
            const malla tercera = tira(otro), copia(vornmesh_copia(tercera.get()));
            EXPECT_EQ(vornmesh_se_pueden_concatenar(origen.get(), tercera.get()), FALSO);
            vornmesh_concatena(origen.get(), tercera.get());
            EXPECT_FALSE(Prueba::toma_informes().empty());
            EXPECT_TRUE(iguales(tercera, copia));
        }
    }
    // Identifiers of one only: zeros for the other's vertices.
    static constexpr const char *informe = "num_vertices == arr_NumElemsULong(mesh->ids_parametricos_puntos_opc)";
    const malla con_ids = tira(IDS), sin_ids = tira(IDS), otra = tira(IDS);
    sin_ids->ids_parametricos_puntos_opc.reset(arr_CreaULong(0));
    const malla vacia(vornmesh_copia(sin_ids.get()));
    ESPERA_INFORME(informe, vornmesh_concatena(con_ids.get(), vacia.get()));
    EXPECT_EQ(ids(vacia), (std::vector<uint32_t>{0, 0, 0, 0, 0, 0, 10, 11, 12, 13, 14, 15}));
    ESPERA_INFORME(informe, vornmesh_concatena(sin_ids.get(), otra.get()));
    EXPECT_EQ(ids(otra), (std::vector<uint32_t>{10, 11, 12, 13, 14, 15, 0, 0, 0, 0, 0, 0}));
    vornmesh_concatena(sin_ids.get(), sin_ids.get());
    EXPECT_TRUE(ids(sin_ids).empty());
    EXPECT_EQ(triangulos(sin_ids.get()).size(), 8u); // itself too
}

PRUEBA(vornmesh, iguales_lo_son_en_todo_menos_en_los_identificadores) {
    using cambio = void (*)(mesh &);
    const struct {
        const char *que;
        cambio f;
        bool iguales;
    } filas[] = {
        {"nothing", [](mesh &) {}, true},
        {"identifiers", [](mesh &m) { m.ids_parametricos_puntos_opc.reset(); }, true},
        {"a point within its tolerance", [](mesh &m) { arr_SetPunto3D(m.puntos.get(), 5, 2., 1., .009); }, true},
        {"a point", [](mesh &m) { arr_SetPunto3D(m.puntos.get(), 5, 2., 1., .011); }, false},
        {"a normal", [](mesh &m) { arr_SetPunto3D(m.normales.get(), 5, .009, 0., 1.); }, false},
        {"a tangent", [](mesh &m) { arr_SetPunto3D(m.tangentes_opc.get(), 0, 1., .009, 0.); }, false},
        {"no tangents", [](mesh &m) { m.tangentes_opc.reset(); }, false},
        {"a texture coordinate within its tolerance",
         [](mesh &m) { arr_SetPunto2D(m.coord_texturas_opc.get(), 0, .009, 0.); }, true},
        {"a texture coordinate", [](mesh &m) { arr_SetPunto2D(m.coord_texturas_opc.get(), 0, .011, 0.); }, false},
        {"no texture coordinates", [](mesh &m) { m.coord_texturas_opc.reset(); }, false},
        {"a border", [](mesh &m) { arr_SetBOOL(m.es_borde.get(), 3, FALSO); }, false},
        {"a kind", [](mesh &m) { arr_SetULong(m.tipos_primitivas.get(), 0, VPLAN_QUADS); }, false},
        {"an index", [](mesh &m) { arr_SetULong(arr_GetPunteroST(m.inds_caras.get(), 0, arrULong), 2, 0); }, false},
    };
    const malla m = tira(TANGENTES | TEXTURAS | IDS);
    for (const auto &fila : filas) {
        const malla otra(vornmesh_copia(m.get()));
        fila.f(*otra);
        EXPECT_EQ(vornmesh_son_iguales(m.get(), otra.get(), .01, .001) == CIERTO, fila.iguales) << fila.que;
        EXPECT_EQ(vornmesh_son_iguales(otra.get(), m.get(), .01, .001) == CIERTO, fila.iguales) << fila.que;
    }
}

PRUEBA(vornmesh, las_caras_sueltas_y_las_texturas_mantienen_la_malla_entera) {
    const malla m(vornmesh_crea_vacio_sin_coords_textura());
    for (int i = 0; i < 3; ++i)
        vornmesh_append_cara_triangular(m.get(), i, 0, 0, 0, 0, 1, CIERTO, i + 1, 0, 0, 0, 0, 1, FALSO, i, 1, 0, 0, 0,
                                        1, CIERTO);
    EXPECT_EQ(vornmesh_num_puntos(m.get()), 9u);
    const auto t = triangulos(m.get());
    ASSERT_EQ(t.size(), 3u);
    EXPECT_EQ(t[2].p[1].x, 3.);
    EXPECT_EQ(t[2].borde, (std::array<bool, 3>{true, false, true}));

    // A horizontal normal, and the rule of a horizontal plane, by horizontal tangents.
    arr_SetPunto3D(m->normales.get(), 0, 0., -1., 0.);
    dueno<arr_DestruyePunto2D> pocas(arr_CreaPunto2D(8)), todas(arr_CreaPunto2D(9));
    arrPunto2D *coordenadas = pocas.get();
    ESPERA_INFORME("arr_NumElemsPunto3D(mesh->puntos) == arr_NumElemsPunto2D(*coords_textura)",
                   vornmesh_set_coordenadas_textura(m.get(), &coordenadas));
    EXPECT_EQ(coordenadas, pocas.get());
    coordenadas = todas.release();
    vornmesh_set_coordenadas_textura(m.get(), &coordenadas);
    EXPECT_EQ(coordenadas, nullptr);
    const auto tangentes = listas::tramo(static_cast<const arrPunto3D *>(m->tangentes_opc.get()));
    ASSERT_EQ(tangentes.size(), 9u);
    EXPECT_EQ(tangentes[0].x, 1.);
    EXPECT_EQ(tangentes[1].x, 1.);
    ESPERA_INFORME("mesh->tangentes_opc == NULL",
                   vornmesh_append_cara_triangular(m.get(), 0, 0, 0, 0, 0, 1, CIERTO, 1, 0, 0, 0, 0, 1, CIERTO, 0, 1, 0,
                                                   0, 0, 1, CIERTO));
    EXPECT_EQ(vornmesh_num_puntos(m.get()), 9u);

    // The transformed copy takes the new points and normals and keeps the rest.
    arrPunto3D *p = arr_CopiaPunto3D(m->puntos.get()), *n = arr_CopiaPunto3D(m->normales.get()), *sin = nullptr;
    arr_SetPunto3D(p, 0, 9., 9., 9.);
    const malla movida(vornmesh_copia_para_transformacion_vornplan(m.get(), &p, &n, &sin));
    EXPECT_TRUE(p == nullptr && n == nullptr);
    EXPECT_EQ(triangulos(movida.get())[0].p[0].x, 9.);
    EXPECT_EQ(movida->tangentes_opc, nullptr);
    EXPECT_EQ(arr_NumElemsPunto2D(movida->coord_texturas_opc.get()), 9u);
}

PRUEBA(vornmesh, una_malla_cuyas_listas_no_casan_informa_y_no_hace_nada) {
    static constexpr const char *informe = "num_vertices == arr_NumElemsPunto3D(mesh->normales)";
    const malla entera = caja();
    arrPunto3D *p = arr_CopiaPunto3D(entera->puntos.get()), *n = puntos({{0, 0, 1}}).a.release(), *t = nullptr;
    arrPunto2D *c = nullptr;
    arrBOOL *b = arr_CopiaBOOL(entera->es_borde.get());
    arrULong *k = arr_CopiaULong(entera->tipos_primitivas.get());
    arrPuntero *i = arr_CopiaEstructurasST(entera->inds_caras.get(), arrULong, arr_CopiaULong);
    const malla coja(ESPERA_INFORME(informe, vornmesh_crea(&p, &n, &t, &c, &b, &k, &i)));
    EXPECT_TRUE(p == nullptr && n == nullptr && b == nullptr && k == nullptr && i == nullptr);
    EXPECT_TRUE(ESPERA_INFORME(informe, triangulos(coja.get())).empty());
    EXPECT_EQ(ESPERA_INFORME(informe, vornmesh_son_iguales(coja.get(), entera.get(), 0., 0.)), FALSO);
    ESPERA_INFORME(informe, vornmesh_concatena(coja.get(), entera.get()));
    EXPECT_EQ(vornmesh_num_puntos(entera.get()), 36u);
    EXPECT_EQ(ESPERA_INFORME("num_puntos == arr_NumElemsPunto3D(mesh->normales)", vornmesh_num_puntos(coja.get())),
              36u);
    // What is written of it does not pass for saved.
    const abierto a(forma::BINARIA, "w");
    vornmesh_graba(coja.get(), a);
    EXPECT_EQ(Prueba::toma_informes().front().expresion, informe);
    EXPECT_EQ(lc_ha_fallado(a.fichero()), CIERTO);
}
