// The kit for tables of functions. A table is a struct of function pointers, declared from one list of rows
// (frame/tabla_declara.inl); each function takes a datum of the table's owner, first or last among its arguments. An
// absent entry is null. From the rows come, for any table:
//     llama<ENTRY>(table, datum, values...)      the call
//     despacha<ENTRY, DOOR>(object, values...)   the call through an object, checked; one indirect call if all is well
//     usa<function>                              the binding of a typed function to an entry
//     TABLA_DE<T, OBJECT>                        the table whose datum is a C++ object: one template for all entries
// and over the last the wrappers, each an object to stand before another table or to end there: `eslabon` hands on,
// `apuntador` writes down, `contador` counts, `nada` takes all and gives nothing.
#pragma once

#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/utf_int.h"
#include <array>
#include <charconv>
#include <cstdint>
#include <string>
#include <tuple>
#include <type_traits>

namespace vn::tabla {

// ---- What is known of an entry, by its member pointer.

// Where the datum stands among an entry's arguments.
enum sitio_del_dato : uint8_t { PRIMERO, ULTIMO };

struct fila {
    size_t numero;
    sitio_del_dato dato;
    const char *nombre; // as the list has it
    const char *falta;  // what is reported of a table that does not have it
};
template <auto ENTRADA> inline constexpr fila FILA{};

template <class M> struct miembro;
template <class T, class R, class... A> struct miembro<R (*T::*)(A...)> {
    using tabla = T;
    using resultado = R;
    using funcion = R (*)(A...);
};
template <auto ENTRADA> using tabla_de = typename miembro<decltype(ENTRADA)>::tabla;
template <auto ENTRADA> using resultado_de = typename miembro<decltype(ENTRADA)>::resultado;

// ---- The call

template <auto ENTRADA, class... V>
inline resultado_de<ENTRADA> llama(const tabla_de<ENTRADA> &tabla, void *dato, V... valores) {
    if constexpr (FILA<ENTRADA>.dato == PRIMERO) return (tabla.*ENTRADA)(dato, valores...);
    else return (tabla.*ENTRADA)(valores..., dato);
}

// The call through an object `o`. A DOOR tells of it:
//     tabla(o), dato(o)      the table and its datum
//     va_directo(o)          whether nothing is to be done before the call
//     prepara<ENTRY>(o)      does it, after the checks, of a null object and an absent entry too; false: no call
template <auto ENTRADA, class PUERTA, class O, class... V>
[[gnu::cold, gnu::noinline]] resultado_de<ENTRADA> despacha_despacio(O *o, V... valores) {
    if (!PUERTA::template prepara<ENTRADA>(o)) return resultado_de<ENTRADA>();
    return llama<ENTRADA>(PUERTA::tabla(o), PUERTA::dato(o), valores...);
}
// The checks live in a cold function, so the fast path compiles to a tail call.
template <auto ENTRADA, class PUERTA, class O, class... V> inline resultado_de<ENTRADA> despacha(O *o, V... valores) {
    if (o != nullptr && PUERTA::va_directo(o)) [[likely]]
        if (const tabla_de<ENTRADA> &tabla = PUERTA::tabla(o); tabla.*ENTRADA != nullptr) [[likely]]
            return llama<ENTRADA>(tabla, PUERTA::dato(o), valores...);
    return despacha_despacio<ENTRADA, PUERTA>(o, valores...);
}

// ---- The binding: adapts a typed function (`vnfichero *`, narrower integers) to an entry (`void *`).

template <class F> struct tipada;
template <class R, class... P> struct tipada<R (*)(P...)> {
    template <auto F, class S, class... A> static S llama(A... a) {
        if constexpr (std::is_void_v<S>) F(static_cast<P>(a)...);
        else return static_cast<S>(F(static_cast<P>(a)...));
    }
};
template <auto F> struct enlace {
    template <class S, class... A> using entrada = S (*)(A...);
    template <class S, class... A> constexpr operator entrada<S, A...>() const {
        return &tipada<std::remove_const_t<decltype(F)>>::template llama<F, S, A...>;
    }
};
template <auto F> inline constexpr enlace<F> usa;

// ---- The table of an object: entry E with values v... is object.entra<E>(v...).

// An object without state needs no datum.
template <class O, auto ENTRADA, class... V> inline resultado_de<ENTRADA> entra_en(void *dato, V... valores) {
    if constexpr (std::is_empty_v<O>) return O{}.template entra<ENTRADA>(valores...);
    else return static_cast<O *>(dato)->template entra<ENTRADA>(valores...);
}
template <class O, auto ENTRADA, sitio_del_dato DATO, class F> struct puente;
template <class O, auto ENTRADA, class R, class... V> struct puente<O, ENTRADA, PRIMERO, R (*)(void *, V...)> {
    static R entra(void *dato, V... valores) { return entra_en<O, ENTRADA>(dato, valores...); }
};
template <class O, auto ENTRADA, class R, class... A> struct puente<O, ENTRADA, ULTIMO, R (*)(A...)> {
    static R entra(A... a) {
        const std::tuple<A...> todos(a...);
        constexpr size_t VALORES = sizeof...(A) - 1;
        return [&]<size_t... I>(std::index_sequence<I...>) {
            return entra_en<O, ENTRADA>(std::get<VALORES>(todos), std::get<I>(todos)...);
        }
        (std::make_index_sequence<VALORES>());
    }
};
template <class T, class O> constexpr T hacia() {
    T t{};
    T::recorre([&]<auto ENTRADA>() {
        t.*ENTRADA = puente<O, ENTRADA, FILA<ENTRADA>.dato, typename miembro<decltype(ENTRADA)>::funcion>::entra;
    });
    return t;
}
template <class T, class O> inline constexpr T TABLA_DE = hacia<T, O>();

// ---- The wrappers

struct nada {
    template <auto ENTRADA, class... V> resultado_de<ENTRADA> entra(V...) const { return resultado_de<ENTRADA>(); }
};

// What a wrapper stands before; alone, it ends there. An entry that the next table does not have is reported as such.
template <class T> struct siguiente {
    const T *tabla = nullptr;
    void *dato = nullptr;
    template <auto ENTRADA, class... V> resultado_de<ENTRADA> sigue(V... valores) const {
        if (tabla == nullptr) return resultado_de<ENTRADA>();
        if (tabla->*ENTRADA != nullptr) return llama<ENTRADA>(*tabla, dato, valores...);
        static constinit sitio falta{FILA<ENTRADA>.falta, "tabla (NUCLEOS.DLL)", __LINE__, 0, 0};
        informa(falta);
        return resultado_de<ENTRADA>();
    }
};

template <class T> struct eslabon : siguiente<T> {
    template <auto ENTRADA, class... V> resultado_de<ENTRADA> entra(V... valores) const {
        return this->template sigue<ENTRADA>(valores...);
    }
};

template <class T> struct contador : siguiente<T> {
    std::array<uint32_t, T::NUM_ENTRADAS> veces{};
    template <auto ENTRADA, class... V> resultado_de<ENTRADA> entra(V... valores) {
        ++veces[FILA<ENTRADA>.numero];
        return this->template sigue<ENTRADA>(valores...);
    }
};

// Values as an `apuntador` writes them. A type of a table's own has its form from an overload beside the type, which is
// found by its argument; any other pointer is only told to be there.
template <class N>
requires std::is_arithmetic_v<N>
void apunta(std::string &texto, N valor) {
    char cifras[32];
    texto.append(cifras, std::to_chars(cifras, cifras + sizeof cifras, valor).ptr);
}
inline void apunta(std::string &texto, char valor) { (texto += '\'') += valor, texto += '\''; }
inline void apunta(std::string &texto, const void *p) { texto += p != nullptr ? "*" : "null"; }
inline void apunta(std::string &texto, const char *s) {
    if (s == nullptr) return apunta(texto, static_cast<const void *>(s));
    ((texto += '"') += s) += '"';
}
inline void apunta(std::string &texto, const vnwchar *s) {
    if (s == nullptr) return apunta(texto, static_cast<const void *>(s));
    texto += '"';
    const std::basic_string_view<vnwchar> todo(s);
    for (size_t i = 0; i < todo.size();) {
        char letra[4];
        texto.append(letra, escribe_utf8(lee_utf16(todo, i), letra));
    }
    texto += '"';
}

// Writes a line for each call, the entry and its values, and its result behind it where there is one.
template <class T> struct apuntador : siguiente<T> {
    std::string texto;
    template <auto ENTRADA, class... V> resultado_de<ENTRADA> entra(V... valores) {
        texto += FILA<ENTRADA>.nombre;
        ((texto += ' ', apunta(texto, valores)), ...);
        if constexpr (std::is_void_v<resultado_de<ENTRADA>>) {
            texto += '\n';
            this->template sigue<ENTRADA>(valores...);
        } else {
            const auto resultado = this->template sigue<ENTRADA>(valores...);
            texto += " = ";
            apunta(texto, resultado);
            texto += '\n';
            return resultado;
        }
    }
};

} // namespace vn::tabla
