#include "drawing/tipolin.h"
#include "filas.h"
#include "foundation/listas/arr_int.h"
#include "foundation/suelo/dueno.hpp"
#include <algorithm>
#include <cctype>
#include <cstdlib>

using namespace vn;

namespace {

using doubles = dueno<arr_DestruyeDouble>;
using linea = dueno<tipolin_destruye>;

std::vector<double> valores(const arrDouble *a) {
    const auto t = listas::tramo(a);
    return {t.begin(), t.end()};
}
std::vector<double> toma(arrDouble *a) { return valores(doubles(a).get()); }

std::vector<double> numeros(const std::string &texto) {
    std::vector<double> r;
    const char *p = texto.c_str();
    for (char *fin; *p != 0; p = fin) r.push_back(std::strtod(p, &fin));
    return r;
}

linea crea(const std::vector<double> &patron) {
    const doubles a(arr_CreaDouble(static_cast<uint32_t>(patron.size())));
    std::ranges::copy(patron, listas::tramo(a.get()).begin());
    return linea(tipolin_crea(VNU("Eje"), VNU("__ _ __"), a.get()));
}
int estilo(const std::vector<double> &patron) { return tipolin_dame_estilo_aproximado(crea(patron).get()); }

} // namespace

PRUEBA(tipolin, estilo_que_mas_se_parece) {
    for (const auto &[patron, su_estilo] : filas<std::string, int>("drawing/tipolin.tsv", "estilos"))
        EXPECT_EQ(estilo(numeros(patron)), su_estilo) << patron;
    const linea l = crea({0.5, -0.25, 0., -0.25});
    EXPECT_EQ(valores(tipolin_dame_patron_const(l.get())), (std::vector{0.5, -0.25, 0., -0.25}));
    EXPECT_EQ(tipolin_compara_nombre(l.get(), VNU("Eje")), CIERTO);
    EXPECT_EQ(tipolin_compara_nombre(l.get(), VNU("EJE")), FALSO);
}

PRUEBA(tipolin, las_de_la_biblioteca_por_numero_y_por_nombre) {
    for (const auto &[i, nombre, primera, modelo, pixeles] :
         filas<uint8_t, std::string, int, std::string, std::string>("drawing/tipolin.tsv", "tipos")) {
        EXPECT_EQ(utf8_de(tipolin_dame_nombre_tipo_vorn_linea(i)), nombre);
        std::string minusculas = nombre;
        for (char &c : minusculas) c = static_cast<char>(std::tolower(c));
        uint8_t hallada = 99;
        EXPECT_EQ(tipolin_es_tipo_linea_vorn(ancho(minusculas).c_str(), &hallada), CIERTO);
        EXPECT_EQ(hallada, primera);
        EXPECT_EQ(toma(tipolin_dame_patron_aproximado_px_glsl(i)), numeros(pixeles)) << nombre;
        if (i == 8) continue;
        EXPECT_EQ(toma(tipolin_dame_patron_aproximado(i)), numeros(modelo)) << nombre;
    }
    EXPECT_EQ(tipolin_es_tipo_linea_vorn(VNU("VORN_"), nullptr), FALSO);
    EXPECT_EQ(tipolin_dame_patron_aproximado(8), nullptr);
    EXPECT_EQ(toma_informes().size(), 1u);
}
