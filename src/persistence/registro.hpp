// Records that are told once, for the library's C++ and for hosts in C++: the fields of a record in their order, and
// out of that what writes it, what reads it and what passes over it.
//
//     struct viga { double luz; std::string nombre; std::vector<Punto2D> puntos; };
//     template <class A> void describe(A &a, viga &v) { a(v.luz)(v.nombre)(v.puntos); }
//
//     vn::graba_registro(v, s);   vn::lee_registro(v, s);   vn::salta_registro<viga>(s);
//
// A field is a number, a truth value, an enumeration (as the number that it is), a text (std::string: ANSI; wide too),
// an array of numbers, points or texts (std::vector), a record, an optional record (std::optional) or a list of records
// (std::vector). What is stored otherwise than it is held has an own way of being told:
//     a(vn::iguales{valores, tolerancia})      an array in groups of equal values
//     a.elementos("n % 2 == 0", lineas, &linea::a, &linea::b)
//                                              a list by its columns: members by turns, of all elements; this one
//                                              makes them, `columna` and `columna_de_iguales` give them more
//     a.bloque("ELIPSES", hay, [&] { ... })    what a reader may find absent: written if `hay`
//     if constexpr (A::LEE) a.exige(n == m, "n == m")
//                                              what the values that were read must say of each other
// `describe` stands in the namespace of the record, and a writer leaves the record as it is. Read inside a trap: after
// its first report a reader touches nothing more.
#ifndef VN_REGISTRO_HPP
#define VN_REGISTRO_HPP

#include "../foundation/listas/arr.h"
#include "../foundation/suelo/dueno.hpp"
#include "../foundation/suelo/error_interno.h"
#include "../foundation/suelo/trapable.h"
#include "../foundation/suelo/vornspy.h"
#include "../foundation/texto/cad.h"
#include "../foundation/texto/widestr.h"
#include "vornsave.h"
#include <algorithm>
#include <optional>
#include <string>
#include <type_traits>
#include <vector>

namespace vn {

// ---- What each type is in the file

namespace por_tipo {

template <class T> struct escalar; // numbers and truth values
#define VN_FILA(tipo, nombre)                                                                                          \
    template <> struct escalar<tipo> {                                                                                 \
        static constexpr auto graba = vornsave_graba_##nombre;                                                         \
        static constexpr auto lee = vornsave_lee_##nombre;                                                             \
    };
VN_FILA(char, char)
VN_FILA(uint8_t, uchar)
VN_FILA(int16_t, short)
VN_FILA(uint16_t, ushort)
VN_FILA(int32_t, long)
VN_FILA(uint32_t, ulong)
VN_FILA(int64_t, long64)
VN_FILA(uint64_t, ulong64)
VN_FILA(float, float)
VN_FILA(double, double)
#undef VN_FILA
template <> struct escalar<bool> {
    static void graba(bool v, vornsave *s) { vornsave_graba_bool(v ? CIERTO : FALSO, s); }
    static bool lee(vornsave *s) { return vornsave_lee_bool(s) == CIERTO; }
};

template <class T> struct array; // arrays whose elements lie one after another
#define VN_FILA(tipo, sufijo, nombre)                                                                                  \
    template <> struct array<tipo> {                                                                                   \
        using dueno = vn::dueno<arr_Destruye##sufijo>;                                                                 \
        static constexpr auto crea = arr_Crea##sufijo;                                                                 \
        static constexpr auto buffer = arr_GetBuffer##sufijo;                                                          \
        static constexpr auto numelems = arr_NumElems##sufijo;                                                         \
        static constexpr auto graba = vornsave_graba_arr_##nombre;                                                     \
        static constexpr auto lee = vornsave_lee_arr_##nombre;                                                         \
    };
VN_FILA(uint8_t, UChar, uchar)
VN_FILA(uint16_t, UShort, ushort)
VN_FILA(int32_t, Long, long)
VN_FILA(uint32_t, ULong, ulong)
VN_FILA(int64_t, Long64, long64)
VN_FILA(uint64_t, ULong64, ulong64)
VN_FILA(double, Double, double)
VN_FILA(Punto2D, Punto2D, puntos2D)
VN_FILA(Punto3D, Punto3D, puntos3D)
#undef VN_FILA
template <class T> typename array<T>::dueno array_de(const std::vector<T> &v) {
    typename array<T>::dueno a(array<T>::crea(static_cast<uint32_t>(v.size())));
    if (a != nullptr) std::copy(v.begin(), v.end(), array<T>::buffer(a.get()));
    return a;
}
template <class T, class A> void vierte(const A &a, std::vector<T> &v) {
    const T *p = a != nullptr ? array<T>::buffer(a.get()) : nullptr;
    v.assign(p, p != nullptr ? p + array<T>::numelems(a.get()) : p);
}

inline void destruye_ancha(vnwchar **s) { widestr_destruye(s); }
template <class C> struct texto; // single texts, and arrays of them
#define VN_FILA(caracter, arr, destruye_texto, nombre, nombre_arr)                                                     \
    template <> struct texto<caracter> {                                                                               \
        using dueno = vn::dueno<destruye_texto>;                                                                       \
        using dueno_arr = vn::dueno<arr_Destruye##arr>;                                                                \
        static constexpr auto graba = vornsave_graba_##nombre;                                                         \
        static constexpr auto lee = vornsave_lee_##nombre;                                                             \
        static constexpr auto crea = arr_Crea##arr;                                                                    \
        static constexpr auto numelems = arr_NumElems##arr;                                                            \
        static constexpr auto textos = arr_GetBufferConst##arr;                                                        \
        static constexpr auto anade = arr_Append##arr;                                                                 \
        static constexpr auto graba_arr = vornsave_graba_##nombre_arr;                                                 \
        static constexpr auto lee_arr = vornsave_lee_##nombre_arr;                                                     \
    };
VN_FILA(char, CADENA, vornstr_destruye, cadena, arr_cadenas)
VN_FILA(vnwchar, CADENA_u, destruye_ancha, cadena_unicode, arr_cadenas_unicode)
#undef VN_FILA

template <class A> struct cualquiera { template <class T> void operator()(T &) const; };
// A record is what has a description.
template <class T>
concept registro = requires(cualquiera<int> a, T &v) {
    describe(a, v);
};

} // namespace por_tipo

// Doubles that go in groups of equal ones; `tolerancia` is how far two may be apart and go as the first. Few bytes can
// stand for very many: where the record knows how many there are, a reader holds them to it, and reports `exigencia`.
struct iguales {
    std::vector<double> &valores;
    double tolerancia;
    size_t cuantos = SIZE_MAX;
    const char *exigencia = "";
};

// ---- The writer

class grabador {
  public:
    static constexpr bool LEE = false;
    explicit grabador(vornsave *s) : s_(s) {}
    template <class T> grabador &operator()(const T &v) {
        if constexpr (std::is_enum_v<T>) return (*this)(static_cast<std::underlying_type_t<T>>(v));
        else if constexpr (std::is_arithmetic_v<T>) por_tipo::escalar<T>::graba(v, s_);
        else describe(*this, const_cast<T &>(v)); // which a writer only reads
        return *this;
    }
    template <class C> grabador &operator()(const std::basic_string<C> &v) {
        por_tipo::texto<C>::graba(v.c_str(), s_);
        return *this;
    }
    template <class T> grabador &operator()(const std::vector<T> &v) {
        if constexpr (por_tipo::registro<T>) {
            vornsave_graba_ulong(static_cast<uint32_t>(v.size()), s_);
            for (const T &uno : v) (*this)(uno);
        } else {
            por_tipo::array<T>::graba(por_tipo::array_de(v).get(), s_);
        }
        return *this;
    }
    template <class C> grabador &operator()(const std::vector<std::basic_string<C>> &v) {
        using T = por_tipo::texto<C>;
        const typename T::dueno_arr a(T::crea(0));
        for (const auto &uno : v) T::anade(a.get(), uno.c_str());
        T::graba_arr(a.get(), s_);
        return *this;
    }
    template <class T> grabador &operator()(const std::optional<T> &v) {
        (*this)(v.has_value());
        return v ? (*this)(*v) : *this;
    }
    grabador &operator()(const iguales &v) {
        vornsave_graba_arr_double_con_valores_iguales(por_tipo::array_de(v.valores).get(), v.tolerancia, s_);
        return *this;
    }
    template <class V, class M, class... M2>
    grabador &elementos(const char *, const std::vector<V> &v, M V::*m, M2... mas) {
        std::vector<M> valores;
        valores.reserve(v.size() * (1 + sizeof...(mas)));
        for (const V &uno : v) {
            valores.push_back(uno.*m);
            (valores.push_back(uno.*mas), ...);
        }
        return (*this)(valores);
    }
    template <class V, class... M> grabador &columna(const char *exigencia, const std::vector<V> &v, M... miembros) {
        return elementos(exigencia, v, miembros...);
    }
    template <class V>
    grabador &columna_de_iguales(const char *, const std::vector<V> &v, double V::*m, double tolerancia) {
        std::vector<double> valores;
        for (const V &uno : v) valores.push_back(uno.*m);
        return (*this)(iguales{valores, tolerancia});
    }
    template <class F> grabador &bloque(const char *id, bool hay, F dentro) {
        if (!hay) return *this;
        vornsave_graba_inicio_bloque(id, s_);
        dentro();
        vornsave_graba_fin_bloque(id, s_);
        return *this;
    }

  private:
    vornsave *s_;
};

// ---- The reader

class lector {
  public:
    static constexpr bool LEE = true;
    explicit lector(vornsave *s) : s_(s) {}
    bool va_bien() const { return trapable_ha_fallado() == FALSO; }
    // What was read must be so; else that is reported.
    bool exige(bool condicion, const char *texto) const {
        if (va_bien() && !condicion) error_interno(texto, VN_AQUI, 0);
        return condicion && va_bien();
    }
    template <class T> lector &operator()(T &v) {
        if (!va_bien()) return *this;
        if constexpr (std::is_enum_v<T>) {
            std::underlying_type_t<T> numero{};
            (*this)(numero);
            v = static_cast<T>(numero);
        } else if constexpr (std::is_arithmetic_v<T>) v = por_tipo::escalar<T>::lee(s_);
        else describe(*this, v);
        return *this;
    }
    template <class C> lector &operator()(std::basic_string<C> &v) {
        if (!va_bien()) return *this;
        const typename por_tipo::texto<C>::dueno t(por_tipo::texto<C>::lee(s_));
        if (t != nullptr && va_bien()) v = t.get();
        return *this;
    }
    template <class T> lector &operator()(std::vector<T> &v) {
        if (!va_bien()) return *this;
        v.clear();
        if constexpr (por_tipo::registro<T>) {
            // The library bounds the count and ends at the first failure; the elements are the vector's.
            const dueno<arr_DestruyePunteroConTipo> nada(
                vornsave_lee_arr_punteros_con_1_dato_extra(s_, lee_uno<T>, &v));
        } else {
            por_tipo::vierte(typename por_tipo::array<T>::dueno(por_tipo::array<T>::lee(s_)), v);
        }
        return *this;
    }
    template <class C> lector &operator()(std::vector<std::basic_string<C>> &v) {
        using T = por_tipo::texto<C>;
        if (!va_bien()) return *this;
        v.clear();
        const typename T::dueno_arr a(T::lee_arr(s_));
        if (!va_bien() || a == nullptr) return *this;
        const auto textos = T::textos(a.get());
        for (uint32_t i = 0, n = T::numelems(a.get()); i < n; ++i) v.emplace_back(textos[i]);
        return *this;
    }
    template <class T> lector &operator()(std::optional<T> &v) {
        bool esta = false;
        (*this)(esta);
        v.reset();
        return esta ? (*this)(v.emplace()) : *this;
    }
    lector &operator()(const iguales &v) {
        if (!va_bien()) return *this;
        const dueno<arr_DestruyeDouble> a(vornsave_lee_arr_double_con_valores_iguales(s_));
        if (!va_bien()) return *this;
        if (v.cuantos == SIZE_MAX || exige(arr_NumElemsDouble(a.get()) == v.cuantos, v.exigencia))
            por_tipo::vierte(a, v.valores);
        return *this;
    }
    template <class V, class M, class... M2>
    lector &elementos(const char *exigencia, std::vector<V> &v, M V::*m, M2... mas) {
        constexpr size_t POR_TURNOS = 1 + sizeof...(mas);
        std::vector<M> valores;
        (*this)(valores);
        if (!exige(valores.size() % POR_TURNOS == 0, exigencia)) return *this;
        v.assign(valores.size() / POR_TURNOS, V{});
        return reparte(valores, v, m, mas...);
    }
    template <class V, class M, class... M2>
    lector &columna(const char *exigencia, std::vector<V> &v, M V::*m, M2... mas) {
        std::vector<M> valores;
        (*this)(valores);
        if (!exige(valores.size() == (1 + sizeof...(mas)) * v.size(), exigencia)) return *this;
        return reparte(valores, v, m, mas...);
    }
    template <class V>
    lector &columna_de_iguales(const char *exigencia, std::vector<V> &v, double V::*m, double tolerancia) {
        std::vector<double> valores;
        (*this)(iguales{valores, tolerancia, v.size(), exigencia});
        return va_bien() ? reparte(valores, v, m) : *this;
    }
    template <class F> lector &bloque(const char *id, bool, F dentro) {
        if (!va_bien() || vornsave_es_posible_marcar_bloques(s_) == FALSO) return *this;
        if (vornsave_se_inicia_lectura_bloque(id, s_) == FALSO) return *this;
        dentro();
        if (va_bien()) vornsave_lee_final_bloque(id, s_);
        return *this;
    }

  private:
    // The values of a column, by turns, to the members of the elements.
    template <class V, class M, class... M2>
    lector &reparte(const std::vector<M> &valores, std::vector<V> &v, M V::*m, M2... mas) {
        auto valor = valores.begin();
        for (V &uno : v) {
            uno.*m = *valor++;
            ((uno.*mas = *valor++), ...);
        }
        return *this;
    }
    template <class T> static void *lee_uno(void *lista, vornsave *s) {
        lector{s}(static_cast<std::vector<T> *>(lista)->emplace_back());
        return nullptr;
    }
    vornsave *s_;
};

// ---- A record over a save: whole

template <class T> void graba_registro(const T &v, vornsave *s) { grabador{s}(v); }
template <class T> void lee_registro(T &v, vornsave *s) { lector{s}(v); }
// Passes over it, and keeps nothing.
template <class T> void salta_registro(vornsave *s) {
    T perdido{};
    lector{s}(perdido);
}

} // namespace vn

#endif
