// The protocol's readers over binary and text streams. An input is: destination, number of operations, the operations
// (one byte each), and the content that they read in turn.
#include "objetivo.h"
#include "foundation/cad.h"
#include "foundation/punto.h"
#include "foundation/vornspy.h"
#include "foundation/widestr.h"
#include "persistence/vornsave.h"
#include <cstring>
#include <memory>

namespace {

const std::basic_string<vnwchar> NOMBRE(fuzz::FICHERO, fuzz::FICHERO + std::char_traits<char>::length(fuzz::FICHERO));

template <class T>
void suelta(T *p) {
    if (p != nullptr) vornspy_free_pp(&p, 1);
}
void graba_texto(const void *t, vornsave *s) { vornsave_graba_cadena(static_cast<const char *>(t), s); }
void salta_texto(vornsave *s) { vornsave_salta_cadena(s); }

struct operacion {
    void (*graba)(vornsave *);
    void (*lee)(vornsave *);
};

// A row: what a seed writes, and what reads it. Arrays come from the lists below.
#define ESCALAR(nombre, valor)                                                                                         \
    {[](vornsave *s) { vornsave_graba_##nombre(valor, s); }, [](vornsave *s) { vornsave_lee_##nombre(s); }},          \
    {[](vornsave *s) { vornsave_graba_##nombre(valor, s); }, [](vornsave *s) { vornsave_salta_##nombre(s); }},
#define TEXTO(nombre, valor)                                                                                           \
    {[](vornsave *s) { vornsave_graba_##nombre(valor, s); }, [](vornsave *s) { suelta(vornsave_lee_##nombre(s)); }},
#define ARRAY(nombre, crea, tipo, destruye, pon)                                                                       \
    {[](vornsave *s) {                                                                                                 \
         tipo *a = crea;                                                                                               \
         for (int i = 0; i < 5; ++i) pon;                                                                              \
         vornsave_graba_##nombre(a, s);                                                                                \
         destruye(&a);                                                                                                 \
     },                                                                                                                \
     [](vornsave *s) {                                                                                                 \
         tipo *a = vornsave_lee_##nombre(s);                                                                           \
         if (a != nullptr) destruye(&a);                                                                               \
     }},

const operacion OPERACIONES[] = {
    ESCALAR(bool, CIERTO) ESCALAR(uchar, 200) ESCALAR(short, -5) ESCALAR(ushort, 65535) ESCALAR(long, -70000)
    ESCALAR(ulong, 4000000000u) ESCALAR(long64, -5000000000) ESCALAR(ulong64, 1ull << 63) ESCALAR(float, 0.5f)
    ESCALAR(double, 1e-300)
    TEXTO(cadena, "texto \xf1") TEXTO(cadena_unicode, VNU("texto \u4e2d\n")) TEXTO(cadena_UTF8, VNU("\u20ac"))
    TEXTO(cadena_como_buffer, "largo") TEXTO(cadena_opcional, "si") TEXTO(cadena_unicode_opcional, nullptr)
    TEXTO(cadena_UTF8_opcional, VNU("u"))
    ARRAY(arr_double, arr_CreaDouble(0), arrDouble, arr_DestruyeDouble, arr_AppendDouble(a, i / 3.0))
    ARRAY(arr_long, arr_CreaLong(0), arrLong, arr_DestruyeLong, arr_AppendLong(a, -i))
    ARRAY(arr_long64, arr_CreaLong64(0), arrLong64, arr_DestruyeLong64, arr_AppendLong64(a, -i))
    ARRAY(arr_uchar, arr_CreaUChar(0), arrUChar, arr_DestruyeUChar, arr_AppendUChar(a, static_cast<uint8_t>(i)))
    ARRAY(arr_ushort, arr_CreaUShort(0), arrUShort, arr_DestruyeUShort, arr_AppendUShort(a, static_cast<uint16_t>(i)))
    ARRAY(arr_ulong, arr_CreaULong(0), arrULong, arr_DestruyeULong, arr_AppendULong(a, static_cast<uint32_t>(i)))
    ARRAY(arr_ulong64, arr_CreaULong64(0), arrULong64, arr_DestruyeULong64, arr_AppendULong64(a, static_cast<uint64_t>(i)))
    ARRAY(arr_bool, arr_CreaBOOL(0), arrBOOL, arr_DestruyeBOOL, arr_AppendBOOL(a, i % 2 == 0 ? CIERTO : FALSO))
    ARRAY(arr_puntos2D, arr_CreaPunto2D(0), arrPunto2D, arr_DestruyePunto2D, arr_AppendPunto2D(a, i, -i))
    ARRAY(arr_puntos3D, arr_CreaPunto3D(0), arrPunto3D, arr_DestruyePunto3D, arr_AppendPunto3D(a, i, -i, 2.5))
    ARRAY(arr_cadenas, arr_CreaCADENA(0), arrCADENA, arr_DestruyeCADENA, arr_AppendCADENA(a, "uno"))
    ARRAY(arr_cadenas_unicode, arr_CreaCADENA_u(0), arrCADENA_u, arr_DestruyeCADENA_u, arr_AppendCADENA_u(a, VNU("dos")))
    ARRAY(arr_cadenas_segun_tipo, arr_CreaCADENA(0), arrCADENA, arr_DestruyeCADENA, arr_AppendCADENA(a, "tres"))
    ARRAY(arr_cadenas_con_valores_iguales, arr_CreaCADENA(0), arrCADENA, arr_DestruyeCADENA, arr_AppendCADENA(a, i < 3 ? "a" : "b"))
    ARRAY(arr_double_opcional, arr_CreaDouble(0), arrDouble, arr_DestruyeDouble, arr_AppendDouble(a, i))
    ARRAY(arr_puntos2D_opcional, arr_CreaPunto2D(0), arrPunto2D, arr_DestruyePunto2D, arr_AppendPunto2D(a, i, i))
    ARRAY(arr_cadenas_opcional, arr_CreaCADENA(0), arrCADENA, arr_DestruyeCADENA, arr_AppendCADENA(a, ""))
    ARRAY(acadorde, acadorde_crea(CIERTO), acadorde, acadorde_destruye, acadorde_inserta(a, i % 2 == 0 ? "x" : "y"))
    ARRAY(acadordeu, acadordeu_crea(FALSO), acadordeu, acadordeu_destruye, acadordeu_inserta(a, i % 2 == 0 ? VNU("x") : VNU("y")))
    {[](vornsave *s) {
         arrDouble *a = arr_CreaDouble(0);
         for (const double x : {1., 1., 1., 2., 3., 3.}) arr_AppendDouble(a, x);
         vornsave_graba_arr_double_con_valores_iguales(a, 0.1, s);
         arr_DestruyeDouble(&a);
     },
     [](vornsave *s) {
         arrDouble *a = vornsave_lee_arr_double_con_valores_iguales(s);
         if (a != nullptr) arr_DestruyeDouble(&a);
     }},
    {[](vornsave *s) {
         fichmem *m = fichmem_crea32("memoria", 7);
         vornsave_graba_fichmem(m, s);
         fichmem_destruye(&m);
     },
     [](vornsave *s) {
         fichmem *m = vornsave_lee_fichmem(s);
         if (m != nullptr) fichmem_destruye(&m);
     }},
    {[](vornsave *s) { vornsave_graba_estructura_opcional2("dato", s, graba_texto); },
     [](vornsave *s) { vornsave_nousar_salta_estructura_opcional(s, salta_texto); }},
    {[](vornsave *s) {
         const Punto2D p{1, 2};
         vornsave_graba_punto(&p, s);
     },
     [](vornsave *s) { suelta(vornsave_lee_punto(s)); }},
    {[](vornsave *s) {
         vornsave_graba_inicio_bloque("BLOQUE", s);
         vornsave_graba_long(3, s);
         vornsave_graba_fin_bloque("BLOQUE", s);
     },
     [](vornsave *s) {
         if (vornsave_se_inicia_lectura_bloque("BLOQUE", s) == FALSO) return;
         vornsave_lee_long(s);
         vornsave_lee_final_bloque("BLOQUE", s);
     }},
    {[](vornsave *s) {
         vornsave_graba_inicio_bloque64("B64", s);
         vornsave_graba_fin_bloque64("B64", s);
     },
     [](vornsave *s) { vornsave_se_salta_bloque64("B64", s); }},
    {[](vornsave *s) {
         vornsave_graba_inicio_seccion("SECCION", s);
         vornsave_graba_double(1, s);
         vornsave_graba_fin_seccion("SECCION", s);
     },
     [](vornsave *s) {
         struct suelta_texto {
             void operator()(char *t) const { suelta(t); }
         };
         const std::unique_ptr<char, suelta_texto> id(vornsave_lee_seccion(s));
         if (id == nullptr) return;
         vornsave_ir_final_seccion(id.get(), s);
         vornsave_lee_final_seccion(id.get(), s);
     }},
    {[](vornsave *s) { vornsave_graba_comentario("; comentario", s); }, [](vornsave *s) { vornsave_salta_comentario(s); }},
};
constexpr size_t NUM_OPERACIONES = std::size(OPERACIONES);
// Those that a text destination has no form for.
bool solo_binaria(size_t i) {
    const auto lee = OPERACIONES[i].lee;
    for (size_t k = NUM_OPERACIONES - 4; k < NUM_OPERACIONES - 1; ++k)
        if (OPERACIONES[k].lee == lee) return true;
    return false;
}

enum destino : uint8_t { BINARIO, TEXTO_SOLO, TEXTO_CON_COMENTARIOS, ASCII, NUM_DESTINOS };

struct abierto {
    vnfichero *f;
    vornsave *s;
    abierto(destino d, const vnwchar *modo_bin, const vnwchar *modo_txt)
        : f(f_lc_fopen_u(NOMBRE.c_str(), d == BINARIO || d == ASCII ? modo_bin : modo_txt, VN_AQUI)),
          s(d == BINARIO || d == ASCII ? vornsave_registra_bin(f)
                                       : vornsave_registra_txt(f, d == TEXTO_CON_COMENTARIOS ? CIERTO : FALSO)) {
        if (d == ASCII) vornsave_set_lectura_ANSI_ASCII_segun_version(s, 1, 1);
        // A reading that stops early leaves marks open.
        vornsave_set_tipo_status_lectura(s, 1, nullptr);
    }
    ~abierto() {
        vornsave_libera(&s);
        lc_fclose_seguro(f);
    }
};

std::string semilla(destino d, size_t desde, size_t hasta) {
    std::string s{static_cast<char>(d), static_cast<char>(hasta - desde)};
    for (size_t i = desde; i < hasta; ++i) s += static_cast<char>(i);
    return s + fuzz::lo_que_graba([&] {
        const abierto a(d, VNU("wb"), VNU("w"));
        for (size_t i = desde; i < hasta; ++i)
            if (d == BINARIO || !solo_binaria(i)) OPERACIONES[i].graba(a.s);
    });
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    std::vector<std::string> v;
    for (const destino d : {BINARIO, TEXTO_SOLO, TEXTO_CON_COMENTARIOS})
        for (size_t i = 0; i < NUM_OPERACIONES; i += 12) v.push_back(semilla(d, i, std::min(i + 12, NUM_OPERACIONES)));
    return v;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    if (n < 2) return 0;
    const auto d = static_cast<destino>(datos[0] % NUM_DESTINOS);
    const size_t numero = std::min<size_t>(datos[1] % 64, n - 2);
    const uint8_t *ops = datos + 2;
    const uint8_t *contenido = ops + numero;
    const size_t tamanyo = n - 2 - numero;
    // A run-coded array may grow to 16 MiB, once: what it was decoded from is then past, or the reading has failed.
    fuzz::con_fichero(contenido, tamanyo, (uint64_t{48} << 20) + 8 * tamanyo, [&] {
        const abierto a(d, VNU("rb"), VNU("r"));
        fuzz::atrapa([&] {
            for (size_t i = 0; i < numero; ++i) OPERACIONES[ops[i] % NUM_OPERACIONES].lee(a.s);
        });
    });
    return 0;
}
