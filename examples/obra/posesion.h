// Owners of the library's handles: each is given back when its owner goes.
#pragma once

#include <memory>
#include <nucleos/foundation/ficheros/lc_fichero.h>
#include <nucleos/foundation/listas/arr.h>
#include <nucleos/foundation/texto/cad.h>
#include <nucleos/foundation/texto/widestr.h>
#include <nucleos/persistence/vornsave.h>

namespace obra {

template <auto DESTRUYE> struct suelta {
    template <class T> void operator()(T *p) const { DESTRUYE(&p); }
};
inline void destruye_ancho(vnwchar **p) { widestr_destruye(p); }
inline void cierra(vnfichero **f) { lc_fclose_seguro(*f); }

using dueno_ancho = std::unique_ptr<vnwchar, suelta<destruye_ancho>>;
using dueno_ansi = std::unique_ptr<char, suelta<vornstr_destruye>>;
using dueno_fichero = std::unique_ptr<vnfichero, suelta<cierra>>;
using dueno_save = std::unique_ptr<vornsave, suelta<vornsave_libera>>;
using dueno_doubles = std::unique_ptr<arrDouble, suelta<arr_DestruyeDouble>>;
using dueno_ulongs = std::unique_ptr<arrULong, suelta<arr_DestruyeULong>>;
using dueno_uchars = std::unique_ptr<arrUChar, suelta<arr_DestruyeUChar>>;
using dueno_puntos = std::unique_ptr<arrPunto2D, suelta<arr_DestruyePunto2D>>;
using dueno_cadenas = std::unique_ptr<arrCADENA, suelta<arr_DestruyeCADENA>>;
using dueno_cadenas_u = std::unique_ptr<arrCADENA_u, suelta<arr_DestruyeCADENA_u>>;

} // namespace obra
