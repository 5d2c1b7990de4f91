#include "mensajes.h"
#include <initializer_list>

namespace obra::mensaje {
namespace {

// The columns of a message that have a text of their own.
enum columna { ES = 0, FR = 1, PT_BR = 2, PT = 3, CA = 4, IT = 5, EN = 8, GL = 9, DE = 13 };

// Where the other languages take theirs from: those of Spain and America Spanish, the rest English.
constexpr columna de_reserva(int i) {
    return i == PT ? PT_BR : i == 6 || i == 7 || (i >= 14 && i <= 17) || (i >= 19 && i <= 24) ? ES : EN;
}

struct texto_en {
    columna en;
    const vnwchar *texto;
};
struct columnas {
    const vnwchar *de[MSGLOCAL_NUM_TEXTOS];
};

// A row that leaves a language out or gives one twice does not compile.
consteval columnas reparte(std::initializer_list<texto_en> fila) {
    columnas t{};
    for (const auto &[en, texto] : fila) {
        if (t.de[en] != nullptr) throw "a language is given twice";
        t.de[en] = texto;
    }
    for (const columna c : {ES, FR, PT_BR, CA, IT, EN, GL, DE})
        if (t.de[c] == nullptr) throw "a language is missing";
    for (int i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i)
        if (t.de[i] == nullptr) t.de[i] = t.de[de_reserva(i)];
    return t;
}

void rellena(vnmensaje *m, const columnas &t) {
    *m = {"obra.msg", 0, 0, {}, nullptr};
    for (int i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) m->textos[i] = t.de[i];
}

} // namespace

#define T(idioma, texto)                                                                                               \
    { idioma, VNU(texto) }
#define X(nombre, ...)                                                                                                 \
    void nombre(vnmensaje *m) {                                                                                        \
        static constexpr columnas TEXTOS = reparte({__VA_ARGS__});                                                     \
        rellena(m, TEXTOS);                                                                                            \
    }
#include "mensajes.inl"
#undef X
#undef T

void habla_un_solo_idioma() {
    const int i = msidioma_dame_idioma();
    for (const int propio : IDIOMAS)
        if (i == propio) return;
    if (de_reserva(i) == EN) msidioma_establece_idioma(EN);
}

} // namespace obra::mensaje
