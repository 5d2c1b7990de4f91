// Declares a table of functions, in namespace vn, from the list of its rows. Included outside any namespace, after
// frame/tabla_int.h, with these defined, which it undefines:
//     VN_TABLA          the table's name
//     VN_TABLA_FILAS    the file of the rows: X(entry, result, PRIMERO or ULTIMO, (arguments), what the list adds...)
//     VN_TABLA_PREFIJO  what the members' names begin with
//     VN_TABLA_DONDE    how a check says where the table is found
//     VN_TABLA_DE_C     only of a table whose struct, with the same members, a public header declares: its name
#define VN_TABLA_UNE_(a, b) a##b
#define VN_TABLA_UNE(a, b) VN_TABLA_UNE_(a, b)
#define VN_TABLA_MIEMBRO(entrada) VN_TABLA_UNE(VN_TABLA_PREFIJO, entrada)
#define VN_TABLA_LETRAS_(x) #x
#define VN_TABLA_LETRAS(x) VN_TABLA_LETRAS_(x)

namespace vn {

#ifdef VN_TABLA_DE_C
struct VN_TABLA : VN_TABLA_DE_C {
#else
struct VN_TABLA {
#define X(entrada, resultado, sitio, argumentos, ...) resultado(*VN_TABLA_MIEMBRO(entrada)) argumentos = nullptr;
#include VN_TABLA_FILAS
#undef X
#endif
    enum : size_t {
#define X(entrada, ...) numero_de_##entrada,
#include VN_TABLA_FILAS
#undef X
        NUM_ENTRADAS
    };
    // f.operator()<entry>() for each entry, in their order.
    template <class F> static constexpr void recorre(F f) {
#define X(entrada, ...) f.template operator()<&VN_TABLA::VN_TABLA_MIEMBRO(entrada)>();
#include VN_TABLA_FILAS
#undef X
    }
};
static_assert(sizeof(VN_TABLA) == VN_TABLA::NUM_ENTRADAS * sizeof(void *));

#define X(entrada, resultado, sitio, ...)                                                                              \
    template <> inline constexpr tabla::fila tabla::FILA<&VN_TABLA::VN_TABLA_MIEMBRO(entrada)>{                        \
        VN_TABLA::numero_de_##entrada, tabla::sitio, #entrada,                                                         \
        "(" VN_TABLA_DONDE VN_TABLA_LETRAS(VN_TABLA_MIEMBRO(entrada)) ") != NULL"};
#include VN_TABLA_FILAS
#undef X

} // namespace vn

#undef VN_TABLA_UNE_
#undef VN_TABLA_UNE
#undef VN_TABLA_MIEMBRO
#undef VN_TABLA_LETRAS_
#undef VN_TABLA_LETRAS
#undef VN_TABLA
#undef VN_TABLA_DE_C
#undef VN_TABLA_FILAS
#undef VN_TABLA_PREFIJO
#undef VN_TABLA_DONDE
