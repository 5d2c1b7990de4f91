#define VN_MODULO "entorno (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/entorno.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/platform/maquina.h"
#include "foundation/platform/variables.h"
#include "foundation/suelo/logico_int.h"
#include <cstdlib>

using vn::logico;

namespace {

// a * b / c to the nearest whole number; -1 for a division by zero or a result beyond 32 bits.
int32_t por_entre(int32_t a, int32_t b, int32_t c) {
    if (c == 0) return -1;
    const int64_t producto = int64_t{a} * b, divisor = c;
    // The signs apart, so that halves go away from zero on both sides of it.
    const int64_t cociente = (std::abs(producto) + std::abs(divisor) / 2) / std::abs(divisor);
    const int64_t resultado = (producto < 0) != (divisor < 0) ? -cociente : cociente;
    return resultado == static_cast<int32_t>(resultado) ? static_cast<int32_t>(resultado) : -1;
}

} // namespace

vnbool env_esta_definido_ENPRUEBA(void) { return logico(vn::plat::variable_definida("ENPRUEBA")); }
vnbool env_esta_definido_VNCACHINFO_LOG(void) { return logico(vn::plat::variable_definida("VNCACHINFO_LOG")); }
vnbool machine_es_imagen_de_64bits(void) { return logico(sizeof(void *) == 8); }
// The library is built for 64 bits alone, and such an image runs on no other system.
vnbool verswin_EsVersion_64_bits(void) { return machine_es_imagen_de_64bits(); }
vnwchar *machine_nombre_u(void) { return vn::ficheros::nuevo(vn::plat::nombre_de_la_maquina()); }
vnwchar *machine_nombre_usuario_u(void) {
    vn::cadena_ancha nombre;
    return vn::plat::nombre_del_usuario(nombre) ? vn::ficheros::nuevo(nombre) : nullptr;
}
uint64_t machine_milisegundos(void) { return vn::plat::milisegundos_de_la_maquina(); }
int vornwin_MulDiv(int a, int b, int c) { return por_entre(a, b, c); }
int32_t vornwin_MulDiv_long(int32_t a, int32_t b, int32_t c) { return por_entre(a, b, c); }
