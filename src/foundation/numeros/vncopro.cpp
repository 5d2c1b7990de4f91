#define VN_MODULO "vncopro (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/numeros/vncopro.h"
#include "foundation/platform/coma_flotante.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include <cstring>

void vncopro_filtra_double_con_posible_error(double *x, vnbool *es_incorrecto, vnbool *es_denormal) {
    if (!EXIGE(x, es_incorrecto, es_denormal)) return;
    // Looked at as bits: a signalling not-a-number must not reach a register.
    uint64_t bits;
    std::memcpy(&bits, x, sizeof bits);
    const uint64_t exponente = bits >> 52 & 0x7FF, mantisa = bits << 12;
    *es_incorrecto = vn::logico(exponente == 0x7FF);
    *es_denormal = vn::logico(exponente == 0 && mantisa != 0);
    if (*es_incorrecto == CIERTO || *es_denormal == CIERTO) std::memset(x, 0, sizeof *x);
}

void vncopro_inicializa_coprocesador_activando_excepciones_coma_flotante(void) { vn::plat::reinicia_coma_flotante(); }
