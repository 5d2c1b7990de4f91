#include "persistence/prueba_vornsave.h"
#include "persistence/registro.hpp"

using namespace vn;

namespace obra_de_prueba {

enum class clase : uint16_t { viga = 7, pilar = 9 };
struct nudo {
    double x = 0, y = 0;
    std::string nombre;
    bool operator==(const nudo &) const = default;
};
struct barra {
    clase que = clase::viga;
    bool activa = false;
    int64_t ref = 0;
    std::basic_string<vnwchar> titulo;
    std::vector<double> cargas;
    std::vector<std::string> notas;
    nudo apoyo;
    std::optional<nudo> otro;
    std::vector<nudo> nudos;
    std::vector<double> tensiones;
    std::vector<nudo> huecos;
    bool operator==(const barra &) const = default;
};
template <class A> void describe(A &a, nudo &n) { a(n.x)(n.y)(n.nombre); }
template <class A> void describe(A &a, barra &b) {
    a(b.que)(b.activa)(b.ref)(b.titulo)(b.cargas)(b.notas)(b.apoyo)(b.otro)(b.nudos);
    a(iguales{b.tensiones, 0});
    a.bloque("HUECOS", !b.huecos.empty(), [&] {
        a.elementos("num_numeros % 2 == 0", b.huecos, &nudo::x, &nudo::y);
        a.columna("num_nombres == num_huecos", b.huecos, &nudo::nombre);
    });
}

} // namespace obra_de_prueba

using namespace obra_de_prueba;

PRUEBA(registro, lo_que_se_cuenta_una_vez_se_graba_se_lee_y_se_salta) {
    const nudo n{1.5, -2, "A"};
    const barra filas[] = {
        {},
        {clase::pilar, true, -5, VNU("t\u00edtulo"), {1, 2}, {"uno", ""}, n, n, {n, {}, n}, {3, 3, 3}, {n}},
        {clase::viga, false, 1, VNU(""), {}, {}, {}, {}, {}, {}, {n, n, {}}},
    };
    for (const destino_de_prueba &en : {EN_BIN, EN_TXT, EN_BIN_SIN})
        for (const barra &b : filas) {
            if (en.texto && !b.huecos.empty()) continue; // no blocks there
            const std::string datos = grabado(en, [&](vornsave *s) {
                graba_registro(b, s);
                graba_registro(b, s);
                vornsave_graba_long(77, s);
            });
            leido(en, datos, [&](vornsave *s) {
                salta_registro<barra>(s);
                barra otra = filas[1]; // nothing of what was there stays
                lee_registro(otra, s);
                if (b.huecos.empty()) otra.huecos.clear(); // but what is absent
                EXPECT_TRUE(otra == b);
                EXPECT_EQ(vornsave_lee_long(s), 77);
            });
        }
    // The bytes are those of the members, one by one.
    EXPECT_EQ(hex(grabado(EN_BIN, [&](vornsave *s) { graba_registro(std::vector<nudo>{n}, s); })), "01000000"
                                                                                                   "000000000000f83f"
                                                                                                   "00000000000000c0"
                                                                                                   "010041");
}

// Cut anywhere or with columns that disagree: reported, no more is read, and lists do not grow by what is not there.
PRUEBA(registro, un_registro_danyado_no_se_lee_hasta_el_final) {
    const nudo n{1, 2, "A"};
    const barra b{clase::pilar, true, 1, VNU("t"), {1}, {"u"}, n, n, {n, n}, {3, 3}, {n, n}};
    const std::string datos = grabado(EN_BIN, [&](vornsave *s) { graba_registro(b, s); });
    const auto lee = [](const std::string &bytes, barra &leida) {
        return atrapado([&] {
            leido(EN_BIN, bytes, [&](vornsave *s) {
                vornsave_set_tipo_status_lectura(s, 1, nullptr);
                lee_registro(leida, s);
            });
        });
    };
    for (size_t hasta = 0; hasta < datos.size(); ++hasta) {
        barra leida;
        const bool bien = lee(datos.substr(0, hasta), leida);
        EXPECT_TRUE(!bien || leida.huecos.empty()) << hasta; // before the block the record is whole without it
        EXPECT_LE(leida.nudos.size(), 2u);
    }
    std::string otra = datos;
    otra[otra.rfind("A\1") - 6] = 1; // one name for two elements
    barra leida;
    EXPECT_FALSE(lee(otra, leida));
}
