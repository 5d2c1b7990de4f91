// The sweep of arguments: what a swept operation is made of. The generated sources state one `operacion` per
// exported function; the kinds of parameter below carry the good and the bad values; barrido.cpp calls them
// all.
#pragma once

#include <cstddef>
#include <cstdint>
#include <limits>
#include <memory>
#include <string>
#include <vector>

namespace barrido {

// An argument or a result on its way through a thunk.
union dato {
    int64_t i;
    double d;
    void *p;
    void (*f)();
};

// What a value promises: good ones must pass the checks of pointers and truth values, bad ones must be
// reported, free ones may be reported or not. None may crash, hang or leak.
enum class calidad : uint8_t { buena, mala, libre };

// Makes and destroys the object that a pointer leads to. Each call gets a fresh one.
struct fabrica {
    void *(*crea)();
    void (*destruye)(void *p);
    void (*despues)() = nullptr; // after the object is gone, whoever destroyed it
};

enum class clase_valor : uint8_t {
    entero,  // i
    real,    // d
    puntero, // p, of static life
    funcion, // f
    objeto,  // made by the factory, handed as T *
    hueco,   // a slot that holds one made by the factory (or null), handed as T **
    bufer,   // `elementos` of `tamanyo` bytes, or as many as another argument says
    copia    // a fresh copy of `tamanyo` bytes at p
};

struct valor {
    const char *nombre; // how it is shown
    calidad cal;
    clase_valor clase;
    dato d{};
    const fabrica *fab = nullptr;
    bool enorme = false; // a number that may ask for more memory than there is
};

struct parametro {
    const char *nombre;
    std::vector<valor> valores{}; // the first is the default
    bool consume = false;         // the operation takes the object over
    int longitud_de = -1;         // bufer: the argument that is its number of elements
    size_t elementos = 1;         // bufer: their number where no argument says it
    size_t tamanyo = 1;           // bufer, copia: bytes of an element
    bool lleno = false;           // bufer: of letters rather than of zeros
};
using parametros = std::vector<parametro>;

struct operacion {
    const char *nombre;
    void (*llama)(const dato *a, dato &r);
    parametros (*da_parametros)();
    void (*suelta)(void *p);       // of an owned result; null when there is none
    const char *retiene;           // why memory may stay after its calls, or null
    const char *deja_pasar;        // parameter and value that it is documented to accept, "name=value", or null
    bool deja_el_anterior = false; // what an owner's slot held stays the caller's when a new object takes its place
    const char *neutro = "0";      // the result after a report: a number, "first" for the first argument, "*" for any
    bool informa = false;          // the call with good values reports, and must
};

enum opcion : unsigned { EXIGE = 0, OPCIONAL = 1, CONSUME = 2, HUECO_OPCIONAL = 4, HUECO_VACIO = 8, LLENO = 16 };

// ---------------------------------------------------------------- kinds of parameter

parametro logico(const char *nombre);
parametro enteros(const char *nombre, std::vector<int64_t> valores);
parametro linea(const char *nombre);
parametro modulo(const char *nombre);
parametro real_libre(const char *nombre);
// The same, with a number to begin with.
parametro real(const char *nombre, double primero);
parametro real_en(const char *nombre, double a, double b);
// Values of an enumeration; the bad ones can still be held by its bits.
parametro enumerado(const char *nombre, std::vector<int64_t> buenos);
parametro texto(const char *nombre, unsigned opciones);
parametro texto_u(const char *nombre, unsigned opciones);
parametro nombre_fichero(const char *nombre, unsigned opciones);
parametro nombre_fichero_u(const char *nombre, unsigned opciones);
// Fixed texts, all good.
parametro textos(const char *nombre, std::vector<const char *> valores);
parametro textos_u(const char *nombre, std::vector<std::u16string> valores);
parametro formato(const char *nombre);
parametro formato_u(const char *nombre);
parametro objeto(const char *nombre, const fabrica &f, unsigned opciones);
// The same with a second object, of another state.
parametro tambien(parametro p, const fabrica &f);
parametro hueco(const char *nombre, const fabrica &f, unsigned opciones);
// A buffer of `elementos`, or of as many as the argument number `longitud_de` says.
parametro bufer(const char *nombre, size_t tamanyo, size_t elementos, int longitud_de, unsigned opciones);
// A record of plain values: copies of a good one.
parametro registro(const char *nombre, const void *bueno, size_t tamanyo, unsigned opciones);
parametro llamada(const char *nombre, void (*f)(), unsigned opciones);
parametro dato_ajeno(const char *nombre);

void pon_entero(parametro &p, calidad c, int64_t i, bool enorme);

// A whole number without a stated range: its ends too.
template <class T> parametro entero(const char *nombre) {
    parametro p{nombre};
    using lim = std::numeric_limits<T>;
    pon_entero(p, calidad::libre, 1, false);
    pon_entero(p, calidad::libre, 0, false);
    pon_entero(p, calidad::libre, 2, false);
    if (lim::is_signed) pon_entero(p, calidad::libre, -1, false);
    pon_entero(p, calidad::libre, static_cast<int64_t>(lim::max()), sizeof(T) >= 4);
    if (lim::is_signed) pon_entero(p, calidad::libre, static_cast<int64_t>(lim::min()), sizeof(T) >= 4);
    return p;
}

// A whole number that must lie in [a, b]: the ends and the first beyond them.
template <class T, class A, class B> parametro entero_en(const char *nombre, A a_, B b_) {
    parametro p{nombre};
    using lim = std::numeric_limits<T>;
    const T a = static_cast<T>(a_), b = static_cast<T>(b_);
    pon_entero(p, calidad::buena, static_cast<int64_t>(a <= T{1} && T{1} <= b ? T{1} : a), false);
    pon_entero(p, calidad::buena, static_cast<int64_t>(a), false);
    const bool grande = b > T{100} && sizeof(T) >= 4 && static_cast<uint64_t>(b) > 100000;
    pon_entero(p, grande ? calidad::libre : calidad::buena, static_cast<int64_t>(b), grande);
    if (a > lim::min()) {
        pon_entero(p, calidad::mala, static_cast<int64_t>(static_cast<T>(a - T{1})), false);
        pon_entero(p, calidad::mala, static_cast<int64_t>(lim::min()), false);
    }
    if (b < lim::max()) {
        pon_entero(p, calidad::mala, static_cast<int64_t>(static_cast<T>(b + T{1})), false);
        pon_entero(p, calidad::mala, static_cast<int64_t>(lim::max()), false);
    }
    return p;
}

// An index into a container that the factory makes with `n` elements.
template <class T> parametro indice(const char *nombre, int64_t n) {
    parametro p{nombre};
    pon_entero(p, calidad::buena, 0, false);
    pon_entero(p, calidad::buena, n - 1, false);
    pon_entero(p, calidad::mala, n, false);
    pon_entero(p, calidad::mala, static_cast<int64_t>(std::numeric_limits<T>::max()), false);
    if (std::numeric_limits<T>::is_signed) pon_entero(p, calidad::mala, -1, false);
    return p;
}

// A call-back of any type that does nothing and returns nothing.
template <class F> struct generica;
template <class R, class... A> struct generica<R (*)(A...)> {
    static R f(A...) { return R(); }
};
template <class F> void (*sin_efecto())() { return reinterpret_cast<void (*)()>(&generica<F>::f); }

// ---------------------------------------------------------------- what the generated sources give

const std::vector<const std::vector<operacion> *> &todas();

// The files that the factories and the names of files stand on, in the working directory; before the first
// call.
void prepara_ficheros();
// Brings back what an operation may have set for the whole process; before the first one and after each.
void restaura_lo_establecido();

} // namespace barrido
