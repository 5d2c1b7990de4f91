#define VN_MODULO "vornreg (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/vornreg.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/listas/arr.h"
#include "foundation/platform/registro.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/unicode.h"
#include <algorithm>

using vn::cadena_ancha;

namespace {

// The last number of each kind; the platform has its rows by them.
constexpr uint32_t ULTIMA_RAIZ = VORNREG_USUARIOS, ULTIMA_VISTA = VORNREG_VISTA_64;

using lista_propia = vn::dueno<arr_DestruyeCADENA_u>;

// A key without backslashes at its ends.
cadena_ancha limpia(vn::vista_ancha clave) {
    const size_t i = clave.find_first_not_of(VNU('\\'));
    return i == vn::vista_ancha::npos ? cadena_ancha()
                                      : cadena_ancha(clave.substr(i, clave.find_last_not_of(VNU('\\')) - i + 1));
}

// The subkeys of a key as a new array; null if there is no such key.
arrCADENA_u *subclaves(uint32_t raiz, const cadena_ancha &clave) {
    std::vector<cadena_ancha> nombres;
    if (!vn::plat::subclaves_de_registro(raiz, limpia(clave), nombres)) return nullptr;
    // The system lists them in an order of its own.
    std::sort(nombres.begin(), nombres.end());
    return vn::ficheros::nueva_lista(nombres);
}

} // namespace

vnbool vornreg_lee_cadena_u(uint32_t raiz, const vnwchar *clave, const vnwchar *valor, vnwchar **el_texto) {
    if (!AFIRMA_TEXTO(el_texto != nullptr, "(texto) != NULL")) return FALSO;
    *el_texto = nullptr;
    if (!AFIRMA(raiz <= ULTIMA_RAIZ) || !EXIGE(clave, valor)) return FALSO;
    cadena_ancha contenido;
    if (!vn::plat::lee_registro(raiz, limpia(clave), valor, contenido)) return FALSO;
    *el_texto = vn::ficheros::nuevo(contenido);
    return CIERTO;
}

vnbool vornreg_lee_cadena(uint32_t raiz, const char *clave, const char *valor, char **el_texto) {
    if (!AFIRMA_TEXTO(el_texto != nullptr, "(texto) != NULL")) return FALSO;
    *el_texto = nullptr;
    if (!AFIRMA(raiz <= ULTIMA_RAIZ) || !EXIGE(clave, valor)) return FALSO;
    cadena_ancha contenido;
    if (!vn::plat::lee_registro(raiz, limpia(vn::ficheros::de_ansi(clave)), vn::ficheros::de_ansi(valor), contenido))
        return FALSO;
    *el_texto = vn::ficheros::nuevo_ansi(contenido);
    return CIERTO;
}

vnbool vornreg_dame_subclaves_u(uint32_t raiz, const vnwchar *clave, arrCADENA_u **lista) {
    if (!AFIRMA_NO_NULO(lista)) return FALSO;
    *lista = nullptr;
    if (!AFIRMA(raiz <= ULTIMA_RAIZ) || !AFIRMA_NO_NULO(clave)) return FALSO;
    *lista = subclaves(raiz, clave);
    return vn::logico(*lista != nullptr);
}

vnbool vornreg_dame_subclaves(uint32_t raiz, const char *clave, arrCADENA **lista) {
    if (!AFIRMA_NO_NULO(lista)) return FALSO;
    *lista = nullptr;
    if (!AFIRMA(raiz <= ULTIMA_RAIZ) || !AFIRMA_NO_NULO(clave)) return FALSO;
    // Sorted as wide text and converted then: both widths have one order.
    const lista_propia ancha(subclaves(raiz, vn::ficheros::de_ansi(clave)));
    if (ancha == nullptr) return FALSO;
    *lista = utunicode_cadenas_UNICODE_a_ANSI(ancha.get());
    return CIERTO;
}

vnbool vornreg_existe_clave_u(uint32_t raiz, const vnwchar *clave) {
    if (!AFIRMA(raiz <= ULTIMA_RAIZ) || !AFIRMA_NO_NULO(clave)) return FALSO;
    return vn::logico(vn::plat::hay_clave_de_registro(raiz, limpia(clave)));
}

vnbool vornreg_lee_valores_cadena_clave_ex_u(uint32_t raiz, const vnwchar *clave, uint32_t vista, arrCADENA_u **nombres,
                                             arrCADENA_u **textos) {
    // Both are cleared first, so that a failed check leaves no stale list behind.
    if (nombres != nullptr) *nombres = nullptr;
    if (textos != nullptr) *textos = nullptr;
    if (!AFIRMA(raiz <= ULTIMA_RAIZ) || !AFIRMA_NO_NULO(clave) || !AFIRMA(vista <= ULTIMA_VISTA) ||
        !EXIGE(nombres, textos))
        return FALSO;
    std::vector<std::pair<cadena_ancha, cadena_ancha>> pares;
    if (!vn::plat::textos_de_registro(raiz, limpia(clave), vista, pares)) return FALSO;
    // By name, as the system has an order of its own here too.
    std::sort(pares.begin(), pares.end());
    // Both are handed over at the end, when neither can fail any more.
    lista_propia n(arr_CreaCADENA_u(0)), t(arr_CreaCADENA_u(0));
    for (const auto &[nombre, contenido] : pares) {
        arr_AppendCADENA_u(n.get(), nombre.c_str());
        arr_AppendCADENA_u(t.get(), contenido.c_str());
    }
    *nombres = n.release();
    *textos = t.release();
    return CIERTO;
}

vnbool vornreg_establece_cadena_u(uint32_t raiz, const vnwchar *clave, const vnwchar *valor, const vnwchar *contenido) {
    if (!AFIRMA(raiz <= ULTIMA_RAIZ) || !EXIGE(clave, valor)) return FALSO;
    return vn::logico(vn::plat::escribe_registro(raiz, limpia(clave), valor, contenido));
}

vnbool vornreg_tiene_permisos_escribir_en_registro(void) {
    return vn::logico(vn::plat::puede_escribir_registro(VORNREG_MAQUINA));
}
