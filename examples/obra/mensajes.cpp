#include "mensajes.h"

namespace obra::mensaje {
namespace {

// English for the languages that read it rather than Spanish.
bool se_lee_en_ingles(int columna) {
    constexpr int ESPANYOL[] = {0, 2, 3, 4, 5, 6, 7, 9, 14, 15, 16, 17, 19, 20, 21, 22, 23, 24};
    for (const int c : ESPANYOL)
        if (c == columna) return false;
    return true;
}

void rellena(vnmensaje *m, const vnwchar *es, const vnwchar *en) {
    *m = {"obra.msg", 0, 0, {}, nullptr};
    for (int i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) m->textos[i] = se_lee_en_ingles(i) ? en : es;
}

} // namespace

#define X(nombre, es, en)                                                                                              \
    void nombre(vnmensaje *m) { rellena(m, VNU(es), VNU(en)); }
OBRA_MENSAJES(X)
#undef X

} // namespace obra::mensaje
