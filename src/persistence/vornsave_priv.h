// What the sources of the save protocol share: the two tables, the object, the one dispatcher, the watch over loops.
#pragma once

#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/error_interno_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "persistence/vornsave.h"
#include <memory>

namespace vn {

// The kinds of destination.
enum tipo_destino : uint32_t { BIN, TXT, IDX, FICHMEM, SOC, TEXTO_EDITABLE, NUM_TIPOS_DESTINO };

// A null entry: the destination has no such form.
struct fncs_grabar_t {
#define X(entrada, argumentos) void(*fncptr_graba_##entrada) argumentos = nullptr;
#include "persistence/tabla_grabar.inl"
#undef X
};
struct fncs_leer_t {
#define X(entrada, resultado, argumentos) resultado(*fncptr_lee_##entrada) argumentos = nullptr;
#include "persistence/tabla_leer.inl"
#undef X
};
static_assert(sizeof(fncs_grabar_t) == 34 * sizeof(void *) && sizeof(fncs_leer_t) == 40 * sizeof(void *));

// What an entry's check reports.
template <auto ENTRADA> inline constexpr const char *TEXTO_ENTRADA = nullptr;
#define X(entrada, argumentos)                                                                                         \
    template <> inline constexpr const char *TEXTO_ENTRADA<&fncs_grabar_t::fncptr_graba_##entrada> =                   \
        "(vornsave_datos->fncs_grabar->fncptr_graba_" #entrada ") != NULL";
#include "persistence/tabla_grabar.inl"
#undef X
#define X(entrada, resultado, argumentos)                                                                              \
    template <> inline constexpr const char *TEXTO_ENTRADA<&fncs_leer_t::fncptr_lee_##entrada> =                       \
        "(vornsave_datos->fncs_leer->fncptr_lee_" #entrada ") != NULL";
#include "persistence/tabla_leer.inl"
#undef X

// Arrays that a destination takes as a whole: the same bytes as one call per element.
#define VN_BLOQUES(X)                                                                                                  \
    X(double, double)                                                                                                  \
    X(long, int32_t)                                                                                                   \
    X(long64, int64_t)                                                                                                 \
    X(uchar, uint8_t)                                                                                                  \
    X(ushort, uint16_t)                                                                                                \
    X(ulong, uint32_t)                                                                                                 \
    X(ulong64, uint64_t)
struct bloques_t {
#define X(nombre, tipo)                                                                                                \
    void (*graba_##nombre)(const tipo *datos, uint32_t n, void *destino) = nullptr;                                    \
    void (*lee_##nombre)(tipo * datos, uint32_t n, void *origen) = nullptr;
    VN_BLOQUES(X)
#undef X
};

// The operations of a destination beside its values; each may be absent.
struct operaciones_destino {
    vnbool (*fncptr_fichero_valido)(void *origen, uint16_t version, const char *firma, char **titulo,
                                    uint16_t version_ascii) = nullptr;
    vnbool (*fncptr_se_comprueba_marca_fichero)(const char *marca, void *origen) = nullptr;
    uint32_t (*fncptr_get_tamanyo)(void *destino) = nullptr;
    int32_t (*fncptr_get_posicion)(void *destino) = nullptr;
    void (*fncptr_set_posicion)(void *destino, int32_t posicion) = nullptr;
    int64_t (*fncptr_get_posicion64)(void *destino) = nullptr;
    void (*fncptr_set_posicion64)(void *destino, int64_t posicion) = nullptr;
    void (*fncptr_graba_cabecera_bloque)(const char *id, void *destino) = nullptr;
    vnbool (*fncptr_se_lee_inicio_bloque)(const char *id, void *origen) = nullptr;
    vnbool (*fncptr_se_lee_inicio_bloque64)(const char *id, void *origen) = nullptr;
    // Texts in arrays, where they go otherwise than single ones: with null elements, and line by line.
    void (*graba_cadena_o_null)(const char *valor, void *destino) = nullptr;
    void (*graba_cadena_o_null_unicode)(const vnwchar *valor, void *destino) = nullptr;
    char *(*lee_cadena_o_null)(void *origen) = nullptr;
    vnwchar *(*lee_cadena_o_null_unicode)(void *origen) = nullptr;
    void (*graba_linea)(const char *valor, void *destino) = nullptr;
    char *(*lee_linea)(void *origen) = nullptr;
    void (*graba_comentario)(const char *comentario, void *destino) = nullptr;
    void (*salta_linea)(void *origen) = nullptr;
    // Whether so many elements of so many bytes can still be there; absent where it cannot be known.
    bool (*quedan)(void *origen, uint64_t numero, uint64_t tamanyo) = nullptr;
    // Failures, which every row tells and takes: `error_leyendo` reports one; the mark is quiet, and follows a report.
    bool (*ha_fallado)(void *origen) = nullptr;
    void (*error_leyendo)(void *origen) = nullptr;
    void (*marca_fallo)(void *destino) = nullptr;
    // Memory destinations are made and ended by the protocol itself.
    void *(*crea_para_escritura)(uint32_t tamanyo) = nullptr;
    void *(*crea_para_lectura)(const fichmem *fichero) = nullptr;
    fichmem *(*cierra_escritura)(void **destino) = nullptr;
    void (*cierra_lectura)(void **origen) = nullptr;
    void (*cierra_lectura_al_final)(void **origen) = nullptr;
};

// A destination: one row of vornsave_destinos.cpp.
struct destino {
    uint32_t tipo;
    bool es_texto; // values take as many bytes as their digits
    fncs_grabar_t grabar;
    fncs_leer_t leer;
    bloques_t bloques;
    operaciones_destino operaciones;
};
// The row of a kind; null while its module is not part of the library. TXT differs with its comments.
const destino *destino_de(uint32_t tipo, bool con_comentarios = false);

// An open block or section. A reader of sections notes where it ends; all others where its length is, or was.
enum clase_marca : uint32_t { MARCA_32, MARCA_64 };
struct i_marca_t {
    char *id_marca;
    uint32_t clase;
    int32_t posicion_inicial, posicion_final;
    int64_t posicion_inicial64, posicion_final64;
};
inline constexpr int32_t LARGO_MAX = INT32_MAX;
inline constexpr int64_t LARGO64_MAX = INT64_MAX;

} // namespace vn

struct vornsave : vn::operaciones_destino {
    void *datos_destino;
    const vn::fncs_grabar_t *fncs_grabar;
    const vn::fncs_leer_t *fncs_leer;
    const vn::bloques_t *bloques;
    vnbool con_progreso, con_comentarios, ANSI;
    bool es_texto;
    uint32_t tipo;
    char *version_programa, *parche_programa;
    uint32_t tipo_status_lectura;
    vnwchar *texto_status_lectura;
    arrPuntero *pila_marcas;
    void *datos_prgs;
    vnfunc_prgs_inicia func_prgs_inicia_barra_progreso;
    vnfunc_prgs_valor func_prgs_valor_barra_progreso;
    vnfunc_prgs_fin func_prgs_fin_barra_progreso;
    vnfunc_prgs_refresca func_prgs_refresca;
    uint32_t posicion_final_prgs;
};

namespace vn {

// Owners of what is being read.
template <auto DESTRUYE> struct suelta {
    template <class T> void operator()(T *p) const { DESTRUYE(&p); }
};
inline void suelta_cadena(char **s) { vornstr_destruye(s); }
inline void suelta_cadena_u(vnwchar **s) { widestr_destruye(s); }
using dueno_cadena = std::unique_ptr<char, suelta<suelta_cadena>>;
using dueno_cadena_u = std::unique_ptr<vnwchar, suelta<suelta_cadena_u>>;

void destruye_marca(i_marca_t **marca);

// One text of an array, in the form in which null elements survive, where the destination has one; a null one elsewhere
// is reported and goes as an empty text, so that what follows stays in step.
void graba_texto_o_null(const char *texto, vornsave *vornsave_datos);
char *lee_texto_o_null(vornsave *vornsave_datos);

[[gnu::cold]] void refresca_grabacion(vornsave *vornsave_datos);
[[gnu::cold]] void refresca_lectura(vornsave *vornsave_datos);

// Which refresh of the progress a member runs before the transfer.
enum progreso : bool { SIN_PROGRESO, CON_PROGRESO };

inline void progreso_al_grabar(vornsave *vornsave_datos) {
    if (vornsave_datos->con_progreso == CIERTO) [[unlikely]]
        refresca_grabacion(vornsave_datos);
}
inline void progreso_al_leer(vornsave *vornsave_datos) {
    if (vornsave_datos->con_progreso == CIERTO) [[unlikely]]
        refresca_lectura(vornsave_datos);
}

// What was told cannot be written, or what was read cannot be: it has been reported, and the destination is marked, so
// that what is saved is not taken for whole and loops over what is read end. Always false.
[[gnu::cold]] bool falla(const vornsave *vornsave_datos);
// A check of what is to be written: SE_GRABA(object, AFIRMA_...).
#define SE_GRABA(vornsave_datos, comprobacion) ((comprobacion) || ::vn::falla(vornsave_datos))

template <auto ENTRADA> inline bool puede_grabar(const vornsave *vornsave_datos) {
    return AFIRMA_NO_NULO(vornsave_datos) && AFIRMA_NO_NULO(vornsave_datos->fncs_grabar) &&
           SE_GRABA(vornsave_datos,
                    AFIRMA_TEXTO(vornsave_datos->fncs_grabar->*ENTRADA != nullptr, TEXTO_ENTRADA<ENTRADA>));
}
template <auto ENTRADA> inline bool puede_leer(const vornsave *vornsave_datos) {
    return AFIRMA_NO_NULO(vornsave_datos) && AFIRMA_NO_NULO(vornsave_datos->fncs_leer) &&
           AFIRMA_TEXTO(vornsave_datos->fncs_leer->*ENTRADA != nullptr, TEXTO_ENTRADA<ENTRADA>);
}

// The dispatchers: checks, progress where the member has it, one indirect call. Whatever is not that call is out of the
// way, so that the call is a jump.
template <auto ENTRADA, progreso PROGRESO, class... A>
[[gnu::cold, gnu::noinline]] void graba_despacio(vornsave *vornsave_datos, A... valores) {
    if (!puede_grabar<ENTRADA>(vornsave_datos)) return;
    if constexpr (PROGRESO == CON_PROGRESO) progreso_al_grabar(vornsave_datos);
    (vornsave_datos->fncs_grabar->*ENTRADA)(valores..., vornsave_datos->datos_destino);
}
template <auto ENTRADA, progreso PROGRESO = SIN_PROGRESO, class... A>
inline void graba(vornsave *vornsave_datos, A... valores) {
    if (vornsave_datos != nullptr) [[likely]] { // an object has its tables
        const auto entrada = vornsave_datos->fncs_grabar->*ENTRADA;
        if (entrada != nullptr && (PROGRESO == SIN_PROGRESO || vornsave_datos->con_progreso == FALSO)) [[likely]]
            return entrada(valores..., vornsave_datos->datos_destino);
    }
    graba_despacio<ENTRADA, PROGRESO>(vornsave_datos, valores...);
}
template <auto ENTRADA, class... A> using resultado_de =
    decltype((std::declval<fncs_leer_t>().*ENTRADA)(nullptr, std::declval<A>()...));
template <auto ENTRADA, progreso PROGRESO, class... A>
[[gnu::cold, gnu::noinline]] resultado_de<ENTRADA, A...> lee_despacio(vornsave *vornsave_datos, A... extras) {
    if (!puede_leer<ENTRADA>(vornsave_datos)) return {};
    if constexpr (PROGRESO == CON_PROGRESO) progreso_al_leer(vornsave_datos);
    return (vornsave_datos->fncs_leer->*ENTRADA)(vornsave_datos->datos_destino, extras...);
}
template <auto ENTRADA, progreso PROGRESO = SIN_PROGRESO, class... A>
inline resultado_de<ENTRADA, A...> lee(vornsave *vornsave_datos, A... extras) {
    if (vornsave_datos != nullptr) [[likely]] {
        const auto entrada = vornsave_datos->fncs_leer->*ENTRADA;
        if (entrada != nullptr && (PROGRESO == SIN_PROGRESO || vornsave_datos->con_progreso == FALSO)) [[likely]]
            return entrada(vornsave_datos->datos_destino, extras...);
    }
    return lee_despacio<ENTRADA, PROGRESO>(vornsave_datos, extras...);
}

#define GRABAR(entrada) (&::vn::fncs_grabar_t::fncptr_graba_##entrada)
#define LEER(entrada) (&::vn::fncs_leer_t::fncptr_lee_##entrada)

// Whether so many elements can still be there: of at least `bytes` each in a binary form, of `caracteres` with the line
// end (which the very last may lack) in text.
inline bool quedan(const vornsave *vornsave_datos, uint64_t numero, uint64_t bytes, uint64_t caracteres = 1) {
    if (numero == 0 || vornsave_datos->quedan == nullptr) return true;
    return vornsave_datos->es_texto ? vornsave_datos->quedan(vornsave_datos->datos_destino, numero * caracteres - 1, 1)
                                    : vornsave_datos->quedan(vornsave_datos->datos_destino, numero, bytes);
}
inline void error_leyendo(vornsave *vornsave_datos) { vornsave_datos->error_leyendo(vornsave_datos->datos_destino); }
// A count just read: itself, or 0 once it has been reported that the source cannot hold so many.
inline uint32_t acota(vornsave *vornsave_datos, uint32_t numero, uint64_t bytes, uint64_t caracteres = 1) {
    if (quedan(vornsave_datos, numero, bytes, caracteres)) return numero;
    error_leyendo(vornsave_datos);
    return 0;
}

// Watches a loop that reads: it ends at its first failure, and over a source that had failed before, at the source's
// end; so it does where a failure leaves the source in step, as a line that is too long; inside a trap that has failed,
// at once.
class vigia {
  public:
    explicit vigia(const vornsave *vornsave_datos, bool en_su_sitio = false)
        : datos_(vornsave_datos), hasta_el_final_(en_su_sitio || falla()) {}
    bool sigue() const {
        return !atrapado() && (!falla() || (hasta_el_final_ && quedan(datos_, datos_->es_texto ? 2 : 1, 1)));
    }

  private:
    bool falla() const { return datos_->ha_fallado(datos_->datos_destino); }
    const vornsave *datos_;
    bool hasta_el_final_;
};

// How many elements are made room for at once: all, or where the source cannot tell, a first step.
inline uint32_t primer_paso(const vornsave *vornsave_datos, uint32_t numero) {
    constexpr uint32_t PASO = 65536;
    return vornsave_datos->quedan != nullptr || numero < PASO ? numero : PASO;
}

// Reads `tamanyo` bytes in pieces of at most `trozo` through the buffer entry, which the caller has checked, into a new
// block with a zero after them. A size that the source cannot hold is reported and gives an empty block; `tamanyo`
// comes back as what there is.
propio<uint8_t> lee_bytes(vornsave *vornsave_datos, uint32_t &tamanyo, uint32_t trozo);

} // namespace vn
