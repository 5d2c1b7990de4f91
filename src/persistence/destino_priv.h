// Destinations of values: the two tables, the row that tells all of one destination, and the pair of a row and the
// datum behind it, over which every loop of the folder is written.
#pragma once

#include "foundation/ficheros/fichmem.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/error_interno_int.h"
#include "foundation/suelo/propio_int.h"
#include "frame/tabla_int.h"

#define VN_TABLA fncs_grabar_t
#define VN_TABLA_FILAS "persistence/tabla_grabar.inl"
#define VN_TABLA_PREFIJO fncptr_graba_
#define VN_TABLA_DONDE "vornsave_datos->fncs_grabar->"
#include "frame/tabla_declara.inl"
#define VN_TABLA fncs_leer_t
#define VN_TABLA_FILAS "persistence/tabla_leer.inl"
#define VN_TABLA_PREFIJO fncptr_lee_
#define VN_TABLA_DONDE "vornsave_datos->fncs_leer->"
#include "frame/tabla_declara.inl"

namespace vn {

static_assert(fncs_grabar_t::NUM_ENTRADAS == 34 && fncs_leer_t::NUM_ENTRADAS == 40);
#define GRABAR(entrada) (&::vn::fncs_grabar_t::fncptr_graba_##entrada)
#define LEER(entrada) (&::vn::fncs_leer_t::fncptr_lee_##entrada)

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

// ---- What a destination can do beside its values. Each group is there as a whole, or not at all.

// Its failures: every row has them. `error_leyendo` reports one; the mark is quiet, and follows a report.
struct fallos_t {
    bool (*ha_fallado)(void *origen) = nullptr;
    void (*error_leyendo)(void *origen) = nullptr;
    void (*marca)(void *destino) = nullptr;
};
// Positions, and the size that a bar sees them against; those of 64 bits may be wanting.
struct posiciones_t {
    uint32_t (*tamanyo)(void *destino) = nullptr;
    int32_t (*get)(void *destino) = nullptr;
    void (*set)(void *destino, int32_t posicion) = nullptr;
    int64_t (*get64)(void *destino) = nullptr;
    void (*set64)(void *destino, int64_t posicion) = nullptr;
};
// The marks of blocks.
struct marcas_t {
    void (*graba)(const char *id, void *destino) = nullptr;
    vnbool (*se_lee)(const char *id, void *origen) = nullptr;
    vnbool (*se_lee64)(const char *id, void *origen) = nullptr;
};
// The header of a file.
struct cabecera_t {
    vnbool (*fichero_valido)(void *origen, uint16_t version, const char *firma, char **titulo,
                             uint16_t version_ascii) = nullptr;
    vnbool (*se_comprueba_marca)(const char *marca, void *origen) = nullptr;
};
// Texts in arrays that may be null.
struct nulos_t {
    void (*graba)(const char *valor, void *destino) = nullptr;
    void (*graba_unicode)(const vnwchar *valor, void *destino) = nullptr;
    char *(*lee)(void *origen) = nullptr;
    vnwchar *(*lee_unicode)(void *origen) = nullptr;
};
// Lines: texts in arrays go one a line, and a line may end in a comment.
struct lineas_t {
    void (*graba)(const char *valor, void *destino) = nullptr;
    char *(*lee)(void *origen) = nullptr;
    void (*graba_comentario)(const char *comentario, void *destino) = nullptr;
    void (*salta)(void *origen) = nullptr;
};
// A destination in memory, which the protocol itself makes and ends; a close takes what it is given the address of.
struct memoria_t {
    void *(*crea_para_escritura)(uint32_t tamanyo) = nullptr;
    void *(*crea_para_lectura)(const fichmem *fichero) = nullptr;
    fichmem *(*cierra_escritura)(void **destino) = nullptr;
    void (*cierra_lectura)(void **origen) = nullptr;
    void (*cierra_lectura_al_final)(void **origen) = nullptr;
    void (*destruye)(void **destino) = nullptr;
};

// ---- The row

// The kinds of destination.
enum tipo_destino : uint32_t { BIN, TXT, IDX, FICHMEM, SOC, TEXTO_EDITABLE, NUM_TIPOS_DESTINO };
enum sentido : uint8_t { AMBOS, ESCRITURA, LECTURA };

struct destino {
    tipo_destino tipo;
    sentido va = AMBOS;
    bool es_texto = false;      // values take as many bytes as their digits
    bool trozos_libres = false; // bytes need not be read in the pieces that they were written in
    fncs_grabar_t grabar;
    fncs_leer_t leer;
    bloques_t bloques;
    // Whether so many elements of so many bytes can still be there; absent where it cannot be known.
    bool (*quedan)(void *origen, uint64_t numero, uint64_t tamanyo) = nullptr;
    fallos_t fallos;
    posiciones_t posiciones;
    marcas_t marcas;
    cabecera_t cabecera;
    nulos_t nulos;
    lineas_t lineas;
    memoria_t memoria;
};

template <class... P> constexpr bool todas(P... p) { return ((p != nullptr) && ...); }
template <class... P> constexpr bool todas_o_ninguna(P... p) { return todas(p...) || ((p == nullptr) && ...); }
// What every row is asserted to keep.
constexpr bool es_entera(const destino &d) {
    const posiciones_t &p = d.posiciones;
    const memoria_t &m = d.memoria;
    return todas(d.fallos.ha_fallado, d.fallos.error_leyendo, d.fallos.marca) &&
           todas_o_ninguna(p.tamanyo, p.get, p.set) && todas_o_ninguna(p.get64, p.set64) &&
           (p.get != nullptr || p.get64 == nullptr) &&
           todas_o_ninguna(d.marcas.graba, d.marcas.se_lee, d.marcas.se_lee64) &&
           todas_o_ninguna(d.cabecera.fichero_valido, d.cabecera.se_comprueba_marca) &&
           todas_o_ninguna(d.nulos.graba, d.nulos.graba_unicode, d.nulos.lee, d.nulos.lee_unicode) &&
           todas_o_ninguna(d.lineas.graba, d.lineas.lee, d.lineas.graba_comentario, d.lineas.salta) &&
           todas_o_ninguna(m.crea_para_escritura, m.crea_para_lectura, m.cierra_escritura, m.cierra_lectura,
                           m.cierra_lectura_al_final, m.destruye);
}

// The rows, each in the source of its name.
extern const destino DESTINO_BIN, DESTINO_TXT, DESTINO_TXT_CON_COMENTARIOS;
// The row of a kind, or its other one: of text with comments, of memory that is read. Null, reported, while its module
// is not part of the library, or if there is no such kind.
const destino *destino_de(uint32_t tipo, bool la_otra = false);

// ---- The row and its datum: where values go, or come from.

struct conducto {
    const destino *fila;
    void *donde;

    template <auto ENTRADA, class... V> void graba(V... valores) const {
        tabla::llama<ENTRADA>(fila->grabar, donde, valores...);
    }
    template <auto ENTRADA, class... V> tabla::resultado_de<ENTRADA> lee(V... valores) const {
        return tabla::llama<ENTRADA>(fila->leer, donde, valores...);
    }
    bool ha_fallado() const { return fila->fallos.ha_fallado(donde); }
    void error_leyendo() const { fila->fallos.error_leyendo(donde); }
    // Marks the destination after a report of a value that cannot be written, or cannot have been read: the save is not
    // taken for whole, and the loops of a reader end. Always false.
    [[gnu::cold]] bool falla() const {
        if (donde != nullptr) fila->fallos.marca(donde);
        return false;
    }
    // Whether so many elements can still be there: of at least `bytes` each in a binary form, of `caracteres` with the
    // line end (which the very last may lack) in text.
    bool quedan(uint64_t numero, uint64_t bytes, uint64_t caracteres = 1) const {
        if (numero == 0 || fila->quedan == nullptr) return true;
        return fila->es_texto ? fila->quedan(donde, numero * caracteres - 1, 1) : fila->quedan(donde, numero, bytes);
    }
    // A count just read: itself, or 0 once it has been reported that the source cannot hold so many.
    uint32_t acota(uint32_t numero, uint64_t bytes, uint64_t caracteres = 1) const {
        if (quedan(numero, bytes, caracteres)) return numero;
        error_leyendo();
        return 0;
    }
    // How many elements are made room for at once: all, or where the source cannot tell, a first step.
    uint32_t primer_paso(uint32_t numero) const {
        constexpr uint32_t PASO = 65536;
        return fila->quedan != nullptr || numero < PASO ? numero : PASO;
    }
};

// Tells a reading loop whether to go on. It ends at the first failure, and at once inside a trap that has failed. Over
// a source that had failed before, and where a failure leaves the source in step (a line that is too long), it ends
// with the source, or at once where that end cannot be known.
class vigia {
  public:
    explicit vigia(const conducto &c, bool en_su_sitio = false)
        : c_(&c), hasta_el_final_(c.fila->quedan != nullptr && (en_su_sitio || c.ha_fallado())) {}
    bool sigue() const {
        return !atrapado() && (!c_->ha_fallado() || (hasta_el_final_ && c_->quedan(c_->fila->es_texto ? 2 : 1, 1)));
    }

  private:
    const conducto *c_;
    bool hasta_el_final_;
};

// Reads `tamanyo` bytes in pieces of at most `trozo` through the buffer entry, which the caller has checked, into a new
// block with a zero after them; no bytes are a piece too. A size that the source cannot hold is reported and gives an
// empty block; `tamanyo` comes back as what there is.
propio<uint8_t> lee_bytes(const conducto &c, uint32_t &tamanyo, uint32_t trozo);

} // namespace vn
