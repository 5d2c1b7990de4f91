#include "drawing/vornplan.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "propiedades.h"

namespace {

std::string utf8(vnwchar *t) {
    std::string r = t != nullptr ? vn::toma(unicode_convierte_UNICODE_a_UTF8(t)) : "(null)";
    widestr_destruye(&t);
    return r;
}
// Three texts; "uno" is the first, "Familia" by two families the second and none, "nada" none, "mal" past the end.
struct tabla : textoVar {
    tabla() : textoVar{} {
        numFamilias = 2;
        numTextos = 3;
        texto = static_cast<vnwchar **>(vornspy_calloc(3, sizeof(vnwchar *)));
        texto[0] = widestr_copia(VNU("el primero"));
        texto[1] = widestr_copia(VNU("de la familia"));
        texto[2] = widestr_copia(VNU(""));
        numIndices = 5;
        indiceTexto = static_cast<textoVar_indice *>(vornspy_calloc(5, sizeof(textoVar_indice)));
        const vnwchar *const NOMBRES[] = {VNU("uno"), VNU("Familia"), VNU("nada"), VNU("mal"), VNU("vacio")};
        const uint16_t INDICES[] = {0, 0, VPLAN_SIN_TEXTO, 3, 2};
        for (int i = 0; i < 5; ++i) {
            indiceTexto[i].nombre = widestr_copia(NOMBRES[i]);
            indiceTexto[i].ind = INDICES[i];
            indiceTexto[i].ind_por_familia = static_cast<uint16_t *>(vornspy_calloc(2, sizeof(uint16_t)));
        }
        indiceTexto[1].por_familia = CIERTO;
        indiceTexto[1].ind_por_familia[0] = 1;
        indiceTexto[1].ind_por_familia[1] = VPLAN_SIN_TEXTO;
    }
    ~tabla() { vplan_libera_textos_var(this); }
};
double largo(const vnwchar *t) {
    double l;
    vplan_longitud_trozo_texto_u(nullptr, t, 0, 1000, 2, 1, 0, &l);
    return l;
}

} // namespace

PRUEBA(texto_variable, nombres) {
    const tabla t;
    const struct {
        const vnwchar *texto;
        int32_t familia;
        const char *esperado;
        const vnwchar *medido; // null: the length is left
        const char *informe;
    } FILAS[] = {
        {VNU("@UNO"), 1, "el primero", VNU("el primero"), nullptr},
        {VNU("@familia"), 1, "de la familia", VNU("de la familia"), nullptr},
        {VNU("@familia"), 2, " ", VNU(""), nullptr},
        {VNU("@familia"), 3, "", nullptr, nullptr},
        {VNU("@familia"), -2, "", nullptr, nullptr},
        {VNU("@familia"), -1, "familia", nullptr, nullptr},
        {VNU("@nada"), 1, " ", VNU(""), nullptr},
        {VNU("@vacio"), 1, "", VNU(""), nullptr},
        {VNU("@otro"), 1, "@otro", nullptr, nullptr},
        {VNU("@"), 1, "@", nullptr, nullptr},
        {VNU("@uno"), 0, "@uno", nullptr, "familiaTotal != 0"},
        {VNU("@mal"), 1, "@mal", nullptr, "texto < textoVar->numTextos"},
    };
    for (const auto &f : FILAS) {
        double l = 77;
        const std::string visto = utf8(vplan_dame_texto_var(f.texto, f.familia, &t, nullptr, 0, 2, 0, &l));
        if (f.informe != nullptr) vn::espera_informes({f.informe}, __FILE__, __LINE__);
        EXPECT_EQ(visto, f.esperado);
        EXPECT_EQ(l, f.medido == nullptr ? 77 : largo(f.medido)) << f.esperado;
    }
}

PRUEBA(texto_variable, mascaras) {
    double valores[] = {1.5, 1e300, -2};
    const totales tres{3, valores};
    const struct {
        const vnwchar *texto;
        const char *esperado, *informe;
    } FILAS[] = {
        {VNU("hoja [1] de [3]"), "hoja 11 de 13", nullptr},
        {VNU("[E0M%.2f] y [E2M%+06.1f m]"), "1.50 y -002.0 m", nullptr},
        {VNU("[E0M%g%%]"), "1.5%", nullptr},
        {VNU("[E0Msin]"), "sin", nullptr},
        {VNU("[E0M%.3e][E0M%G]"), "1.500e+001.5", nullptr},
        {VNU("[99999999999999999999]"), "9007199254741002", nullptr},
        // Not for whoever formats: they stand as they are written.
        {VNU("[E0M%s]"), "%s", ""},
        {VNU("[E0M%n]"), "%n", ""},
        {VNU("[E0M%*f]"), "%*f", ""},
        {VNU("[E0M%100f]"), "%100f", ""},
        {VNU("[E0M%.100f]"), "%.100f", ""},
        {VNU("[E0M%f %f]"), "1.500000 %f", ""},
        {VNU("[E0M%]"), "%", ""},
        // The text as it is.
        {VNU(""), "", "numCars > 0"},
        {VNU("[abc]"), "[abc]", "textoOrigen[i] >= '0' && textoOrigen[i] <= '9'"},
        {VNU("[E0]"), "[E0]", "i < ultimo"},
        {VNU("[E0x]"), "[E0x]", "textoOrigen[i] == 'M'"},
        {VNU("[E3M%f]"), "[E3M%f]", "numero < totales->numTotales"},
        {VNU("[1"), "[1", "ultimo > primero"},
        {VNU("[[1]]"), "[[1]]", "ultimo > primero"},
        {VNU("1]"), "1]", "primero != -1"},
        {VNU("[1]]"), "[1]]", "ultimo == -1"},
    };
    for (const auto &f : FILAS) {
        double l = -1;
        const std::string visto = utf8(vplan_dame_texto_var(f.texto, 1, nullptr, &tres, 0, 2, 10, &l));
        if (f.informe != nullptr) vn::espera_informes({f.informe}, __FILE__, __LINE__);
        EXPECT_EQ(visto, f.esperado);
        const auto esperado = vn::ancho(f.esperado);
        EXPECT_EQ(l, esperado == f.texto ? -1 : largo(esperado.c_str())) << f.esperado;
    }
    double l = -1;
    EXPECT_EQ(utf8(vplan_dame_texto_var(VNU("[E7M%.2f]"), 1, nullptr, nullptr, 0, 2, 0, &l)), "0.00");
    EXPECT_EQ(utf8(vplan_dame_texto_var(VNU("[E1M%.99f]"), 1, nullptr, &tres, 0, 2, 0, &(l = -1))).size(), 401u);
    ESPERA_INFORME("*longitud >= 0.", utf8(vplan_dame_texto_var(VNU("a"), 1, nullptr, nullptr, 0, 2, 0, &(l = -3))));
}

// Texts by chance out of what masks are made of: an answer always, and a mask in it only if it was reported.
PRUEBA(texto_variable, textos_al_azar) {
    vn::azar a(7);
    double valores[] = {1.5, -1e300, 0};
    const totales tres{3, valores};
    constexpr std::basic_string_view<vnwchar> LETRAS = VNU("[[[]]]EEMM%%%.0123456789fgedsn*-+# @a");
    for (int caso = 0; caso < 20000; ++caso) {
        std::basic_string<vnwchar> t;
        for (uint32_t n = a.entero(24); n-- > 0;)
            t += a.entero(40) == 0 ? static_cast<vnwchar>(0xD800 + a.entero(0x800))
                                   : LETRAS[a.entero(static_cast<uint32_t>(LETRAS.size()))];
        double l = -1;
        const vn::dueno<utunicode_destruye_UNICODE> r(vplan_dame_texto_var(t.c_str(), 1, nullptr, &tres, 0, 2, -5, &l));
        ASSERT_NE(r, nullptr);
        const bool informado = !vn::Prueba::toma_informes().empty();
        if (informado) continue;
        ASSERT_EQ(std::basic_string_view<vnwchar>(r.get()).find(VNU('[')), std::basic_string<vnwchar>::npos);
        ASSERT_GE(l, 0);
    }
}

PRUEBA(texto_variable, se_libera_y_queda_vacio) {
    totales t{2, static_cast<double *>(vornspy_calloc(2, sizeof(double)))};
    vplan_libera_totales(&t);
    vplan_libera_totales(&t);
    EXPECT_TRUE(t.numTotales == 0 && t.total == nullptr);
    tabla v;
    vplan_libera_textos_var(&v);
    EXPECT_TRUE(v.numTextos == 0 && v.texto == nullptr && v.numIndices == 0 && v.indiceTexto == nullptr);
    double uno = 1;
    totales mal{0, &uno};
    ESPERA_INFORME("totales->total == NULL", vplan_libera_totales(&mal));
}
