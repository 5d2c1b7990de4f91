// The parts of a report, each of which appends its lines.
#pragma once

#include "informe.h"
#include "mensajes.h"
#include "posesion.h"

namespace obra {

// A number as the library's formatting engine writes it: the same on every platform and under every locale.
template <class... A> std::string forma(const char *formato, A... a) {
    const dueno_ansi t(nousar_formatea(formato, a...));
    return t.get();
}

// What is said of something follows it, after a colon as the language writes it.
inline std::string etiqueta(const std::string &de_que) { return de_que + di(mensaje::dos_puntos); }
inline std::string etiqueta(vnfunc_mensaje de_que) { return etiqueta(di(de_que)); }

inline void linea_de(std::string &s, vnfunc_mensaje de_que, const std::string &valor) {
    s += etiqueta(de_que) + " " + valor + "\n";
}

// What can be told of the file: title, versions, fields, sections.
void pon_fichero(std::string &s, const obra_leida &o);
// The layers and what they hold, counted.
void pon_capas(std::string &s, const plano &p);
// Extents, lengths and areas, in the system of units in force.
void pon_medidas(std::string &s, const plano &p);
// What holds the drawing, and by layer what closes, what crosses and how long its arcs are.
void pon_geometria(std::string &s, const plano &p);

} // namespace obra
