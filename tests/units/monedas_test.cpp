#include "foundation/texto/msglocal.h"
#include "prueba.h"
#include "units/monedas.h"
#include <cfloat>
#include <cmath>

using namespace vn;

PRUEBA(monedas, precio_en_euros_y_en_pesetas) {
    using fila = std::tuple<int, double, const char *>;
    for (const auto &[idioma, pesetas, precio] : {fila{0, 166386, "1.000,00(euros) 166.386(Ptas)"},
                                                  {3, 100, "0,60(euros) 100(Ptes)"},
                                                  {8, 20.79825, "0,13(euros) 21(Ptas)"}, // half a hundredth goes up
                                                  {10, 0, "0,00(евро) 0(песети)"},
                                                  {0, -20.79825, "-0,12(euros) -21(Ptas)"}, // of a negative one too
                                                  {13, 1663.86, "10,00(Euro) 1.664(Peseten)"}}) {
        msidioma_establece_idioma(idioma);
        EXPECT_EQ(toma(monedas_precio_Ptas_euros(pesetas)), precio);
    }
    for (const double x : {HUGE_VAL, -HUGE_VAL, std::nan(""), DBL_MAX, DBL_TRUE_MIN}) {
        const std::string s = toma(monedas_precio_Ptas_euros(x));
        EXPECT_LT(s.size(), 80u) << x;
        EXPECT_TRUE(s.ends_with("(Peseten)")) << s;
    }
}
