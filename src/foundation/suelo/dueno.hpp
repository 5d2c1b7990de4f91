// Owners, for the library's C++ and for hosts in C++: a handle goes back by its family's own operation when its owner
// goes.
//
//     const vn::dueno<arr_DestruyeDouble> alturas(arr_CreaDouble(0));
//     const vn::dueno<lc_fclose_seguro> fichero(f_lc_fopen_u(nombre, VNU("rb"), VN_AQUI));
#ifndef VN_DUENO_HPP
#define VN_DUENO_HPP

#include <memory>

namespace vn {

// The handle that an operation gives back: it takes its address, and empties it, or the handle itself.
template <class F> struct asa_de;
template <class R, class T> struct asa_de<R (*)(T **)> {
    using tipo = T;
    template <auto DESTRUYE> static void suelta(T *p) { DESTRUYE(&p); }
};
template <class R, class T> struct asa_de<R (*)(T *)> {
    using tipo = T;
    template <auto DESTRUYE> static void suelta(T *p) { DESTRUYE(p); }
};

template <auto DESTRUYE> struct suelta_dueno {
    using asa = asa_de<decltype(DESTRUYE)>;
    void operator()(typename asa::tipo *p) const { asa::template suelta<DESTRUYE>(p); }
};
template <auto DESTRUYE> using dueno =
    std::unique_ptr<typename suelta_dueno<DESTRUYE>::asa::tipo, suelta_dueno<DESTRUYE>>;

} // namespace vn

#endif
