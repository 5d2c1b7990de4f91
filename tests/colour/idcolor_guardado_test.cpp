// What a file holds of a colour, over each destination of the protocol.
#include "colour/idcolor.h"
#include "foundation/suelo/dueno.hpp"
#include "persistence/prueba_vornsave.h"

using namespace vn;

PRUEBA(idcolor_guardado, se_guarda_y_se_lee) {
    const char *const AL_GRABAR = "i_es_tipo_paleta_grabable(idcolor->tipo_color) == CIERTO",
                      *const AL_LEER = "i_es_tipo_paleta_grabable(tipo_color) == CIERTO";
    const struct {
        idcolor c;
        const char *bytes;
        bool informa;
    } casos[] = {
        {{0, 15, 0xFFFFFFFF}, "00000fffffffff", false},
        {{1, 255, 0x80C86403}, "0100ff0364c880", false},
        {{2, VPLAN_PORCAPA, 0xFFFFFFFF}, "0200feffffffff", true}, // goes all the same
        {{77, 1, 2}, "4d000102000000", true},
    };
    for (const auto &d : DESTINOS)
        for (const auto &f : casos) {
            SCOPED_TRACE(std::string(d.nombre) + ": " + f.bytes);
            std::string b;
            con_informe(f.informa ? AL_GRABAR : nullptr, [&] {
                b = grabado(d, [&](vornsave *v) {
                    idcolor_graba(&f.c, v);
                    vornsave_graba_long(77, v);
                });
            });
            if (!d.texto && !d.etiquetas) {
                EXPECT_EQ(hex(b).substr(0, 14), f.bytes);
            }
            con_informe(f.informa ? AL_LEER : nullptr, [&] {
                leido(d, b, [&](vornsave *v) {
                    const dueno<idcolor_destruye> c(idcolor_lee(v));
                    EXPECT_EQ(c->tipo_color, f.c.tipo_color);
                    EXPECT_EQ(c->color_paleta, f.c.color_paleta);
                    EXPECT_EQ(c->rgba, f.c.rgba);
                    EXPECT_EQ(vornsave_lee_long(v), 77);
                });
            });
        }
    EXPECT_EQ(idcolor_version_DB(), 0u);
}
