#define VN_MODULO "avisos (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/avisos.h"
#include "foundation/platform/cuadro.h"
#include "foundation/sistema/entorno.h"
#include "foundation/sistema/lastwin.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/error_interno_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/par_atomico_int.h"

namespace {

constinit vn::par_atomico<vnreceptor_avisos> el_receptor;

// Gives a notice to the first that can show it: the host's receiver, a box over its window, the error stream.
vnbool da(vntipo_aviso tipo, const vnwchar *texto) {
    if (const auto receptor = el_receptor.dame(); receptor.funcion != nullptr)
        return receptor.funcion(tipo, texto, receptor.datos);
    // A notice for developers opens no box in front of a user.
    if (void *ventana = lastwin_win_GetWinMain(); ventana != nullptr && tipo != VN_AVISO_DESARROLLO) {
        const vn::plat::respuesta r = vn::plat::muestra_cuadro(ventana, texto, tipo == VN_AVISO_PREGUNTA);
        if (r != vn::plat::respuesta::nadie) return vn::logico(r == vn::plat::respuesta::si);
    }
    // Nobody was there to answer, and silence is a no.
    vn::escribe_linea_de_error(texto);
    return FALSO;
}

} // namespace

void assert_aviso(const vnwchar *texto) {
    if (!AFIRMA_NO_NULO(texto)) return;
    if (env_esta_definido_ENPRUEBA() == CIERTO) da(VN_AVISO_DESARROLLO, texto);
}

void vnaviso_aviso_interno_como_error_u(const vnwchar *texto) {
    if (AFIRMA_NO_NULO(texto)) da(VN_AVISO_ERROR, texto);
}

vnbool avisobas_pregunta_u(const vnwchar *texto) {
    if (!AFIRMA_NO_NULO(texto)) return FALSO;
    // A receiver may answer any number: CIERTO alone is a yes.
    return vn::logico(da(VN_AVISO_PREGUNTA, texto) == CIERTO);
}

void avisos_instala_receptor(vnreceptor_avisos receptor, void *datos) { el_receptor.pon(receptor, datos); }
