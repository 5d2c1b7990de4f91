#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/destino_fichero_priv.h"

#include "foundation/numeros/cambtipo.h"
#include "persistence/vornbin_priv.h"

// The binary stream: it has all there is, and no lines, so that every form of a number is the plain one.
namespace vn {
namespace {

using tabla::usa;

// The entries by their rule: graba_<entry> and lee_<entry>; the scalars are those of `directo`.
namespace entradas {
using namespace directo;

constexpr auto graba_bool = bin_graba_bool;
constexpr auto graba_cadena = bin_graba_cadena;
constexpr auto graba_cadena_unicode = bin_graba_cadena_unicode;
constexpr auto graba_buffer = bin_graba_buffer;
constexpr auto lee_bool = bin_lee_bool;
constexpr auto lee_cadena = bin_lee_cadena;
constexpr auto lee_cadena_unicode = bin_lee_cadena_unicode;
constexpr auto lee_cadena_ASCII = bin_lee_cadena_ASCII;
constexpr auto lee_char_ASCII = bin_lee_char_ASCII;
constexpr auto lee_double_con_posible_error = bin_lee_double_con_posible_error;
constexpr auto lee_buffer = bin_lee_buffer;
// The four irregular ones: the words of a truth value and the name of a field are dropped.
void graba_bool_texto(vnfichero *f, vnbool v, const char *, const char *) { bin_graba_bool(v, f); }
void graba_cadena_campo(const char *s, const char *, vnfichero *f) { bin_graba_cadena(s, f); }
vnbool lee_bool_texto(vnfichero *f, const char *, const char *) { return bin_lee_bool(f); }
char *lee_cadena_campo(vnfichero *f, const char *) { return bin_lee_cadena(f); }
} // namespace entradas

// ---- Positions and marks

uint32_t tamanyo_fichero(vnfichero *f) { return cambtipo_double_a_ulong(lc_tamanyo_fichero(f)); }
// A pipe cannot go far: what follows would be read, or written, in a wrong place.
void set_posicion64(vnfichero *f, int64_t posicion) {
    if (vornio_fseek_i64(f, posicion, VN_DESDE_EL_PRINCIPIO) == CIERTO) return;
    if (f->escribe) lc_error_escribiendo_fichero(f);
    else lc_error_leyendo_fichero(f);
}
void set_posicion(vnfichero *f, int32_t posicion) { set_posicion64(f, posicion); }
void graba_cabecera_bloque(const char *id, vnfichero *f) {
    // The terminator goes too: it tells a name from a longer one that begins alike.
    const char *p = id;
    do bin_graba_char(*p, f);
    while (*p++ != '\0');
}
template <auto COMPRUEBA> vnbool se_lee_inicio_bloque(const char *id, vnfichero *f) {
    const int64_t posicion = vornio_ftell_i64(f);
    if (COMPRUEBA(id, f) != CIERTO) return FALSO;
    const char fin_cadena = bin_lee_char(f);
    if (AFIRMA(fin_cadena == '\0')) return CIERTO;
    set_posicion64(f, posicion); // a longer name: nothing was read
    return FALSO;
}

} // namespace

constexpr destino DESTINO_BIN{
    .tipo = BIN,
    .trozos_libres = true,
    .grabar =
        {
#define X(entrada, resultado, sitio, argumentos, plana) .fncptr_graba_##entrada = usa<entradas::graba_##plana>,
#include "persistence/tabla_grabar.inl"
#undef X
        },
    .leer =
        {
#define X(entrada, resultado, sitio, argumentos, plana) .fncptr_lee_##entrada = usa<entradas::lee_##plana>,
#include "persistence/tabla_leer.inl"
#undef X
        },
    .bloques =
        {
#define X(nombre, tipo) .graba_##nombre = usa<bin_graba_bloque_##nombre>, .lee_##nombre = usa<bin_lee_bloque_##nombre>,
            VN_BLOQUES(X)
#undef X
        },
    .quedan = usa<flujo::quedan>,
    .fallos = flujo::FALLOS,
    .posiciones =
        {
            .tamanyo = usa<tamanyo_fichero>,
            .get = usa<lc_ftell>,
            .set = usa<set_posicion>,
            .get64 = usa<vornio_ftell_i64>,
            .set64 = usa<set_posicion64>,
        },
    .marcas =
        {
            .graba = usa<graba_cabecera_bloque>,
            .se_lee = usa<se_lee_inicio_bloque<vornbin_se_comprueba_marca>>,
            .se_lee64 = usa<se_lee_inicio_bloque<vornbin_se_comprueba_marca64>>,
        },
    .cabecera =
        {
            .fichero_valido = usa<bin_fichero_valido>,
            .se_comprueba_marca = usa<vornbin_se_comprueba_marca>,
        },
    .nulos =
        {
            .graba = usa<bin_graba_null>,
            .graba_unicode = usa<bin_graba_null_unicode>,
            .lee = usa<bin_lee_null>,
            .lee_unicode = usa<bin_lee_null_unicode>,
        },
};
static_assert(es_entera(DESTINO_BIN));

} // namespace vn
