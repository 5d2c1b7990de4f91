// The texts of both widths, cad.h and widestr.h, over one table.
#define VN_MODULO "cad_test"
#include "filas.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "propiedades.h"
#include <map>
#include <span>

using namespace vn;

namespace {

using txt = std::string;
// Makes a call of a row: a text on the heap, two arguments, and what comes of it: of a question its answer, of a change
// the text that is left.
using llamada = std::function<txt(const txt &s, const txt &t, const txt &u)>;

char *nueva(const txt &s, char) { return cad_copia_cadena(s.c_str()); }
vnwchar *nueva(const txt &s, vnwchar) { return widestr_copia(ancho(s).c_str()); }
txt como(const txt &s, char) { return s; }
std::basic_string<vnwchar> como(const txt &s, vnwchar) { return ancho(s); }
void destruye(uint32_t n, char ***lista) { vornstr_destruyeListaCadenas(n, lista); }
void destruye(uint32_t n, vnwchar ***lista) { widestr_destruyeListaCadenas(n, lista); }

template <class R, class P, class... A> llamada llama(R (*f)(P, A...)) {
    using C = std::remove_cv_t<std::remove_pointer_t<std::remove_pointer_t<P>>>;
    return [f](const txt &s, const txt &t, const txt &u) {
        const std::basic_string<C> dados[] = {como(t, C()), como(u, C()), {}};
        C *texto = nueva(s, C()), **lista = nullptr;
        size_t k = 0;
        // An argument by its type; "&4": the text itself, from its unit 4 on. A wide operation ends in who calls.
        [[maybe_unused]] const auto dado = [&]<class T>() -> T {
            const txt &como_esta = k == 0 ? t : u;
            if constexpr (std::is_same_v<T, C ***>) return &lista;
            else if constexpr (std::is_same_v<T, const C *>)
                return como_esta.starts_with("&") ? texto + std::stoul(como_esta.substr(k++ + 1)) : dados[k++].c_str();
            else if constexpr (std::is_same_v<T, C>) return dados[k++][0];
            else if constexpr (std::is_integral_v<T>)
                return k < 2 ? static_cast<T>(std::stoul("0" + (k++ == 0 ? t : u))) : 0;
            else return k = 2, "quien";
        };
        const auto primero = [&]() -> P {
            if constexpr (std::is_same_v<P, C **>) return &texto;
            else return texto;
        };
        const std::tuple<P, A...> todos{primero(), dado.template operator()<A>()...};
        txt r;
        if constexpr (std::is_void_v<R>) std::apply(f, todos);
        else if constexpr (std::is_same_v<R, C *>) r = toma(std::apply(f, todos));
        else r = std::to_string(std::apply(f, todos));
        if (lista != nullptr) {
            const auto n = static_cast<uint32_t>(std::stoul(r));
            for (C *&p : std::span(lista, n)) r += "|" + toma(std::exchange(p, nullptr));
            destruye(n, &lista);
            EXPECT_EQ(lista, nullptr);
        }
        const txt queda = toma(texto);
        return std::is_void_v<R> ? queda : std::is_same_v<P, C **> ? r + " " + queda : r;
    };
}

// An operation in the widths that have it.
struct operacion {
    llamada ansi, ancha;
};
// clang-format off
#define ANSI(f) llama(cad_##f)
#define ANCHA(f) llama(widestr_nousar_##f)
#define AMBAS(f) {#f, {ANSI(f), ANCHA(f)}}
#define SOLO_ANCHA(f) {#f, {nullptr, ANCHA(f)}}
const std::map<txt, operacion> OPERACIONES = {
    AMBAS(concatena), AMBAS(concatena_caracter), AMBAS(cadenas_iguales), AMBAS(cadenas_iguales_may_o_min),
    AMBAS(es_cadena_vacia), AMBAS(es_cadena_en_blanco), AMBAS(es_subcadena), AMBAS(es_subcadena_inicial),
    AMBAS(es_subcadena_inicial_may_o_min), AMBAS(es_subcadena_final), AMBAS(subcadena_inicial), AMBAS(atof),
    AMBAS(subcadena_anterior), AMBAS(suprime_subcadena), AMBAS(suprime_subcadena_inicial), AMBAS(LTrim),
    AMBAS(reemplaza_todas_cadenas), AMBAS(convertir_a_mayusculas), AMBAS(convertir_a_minusculas),
    {"longitud", {ANSI(longitud_cadena), ANCHA(longitud)}}, {"compara", {ANSI(cadenas_compara), ANCHA(compara)}},
    {"es_subcadena_may_o_min", {ANSI(es_subcadena_may_min), ANCHA(es_subcadena_may_o_min)}},
    {"inserta_al_principio", {llama(vornstr_inserta_al_principio), ANCHA(inserta_al_principio)}},
    {"RTrim", {llama(RTrim), ANCHA(RTrim)}},
    {"lista", {ANSI(lista_de_subcadenas), ANCHA(lista_de_subcadenas_un_separador)}},
    {"suprime_subcadena_inicial_may_o_min", {ANSI(suprime_subcadena_inicial_may_o_min), nullptr}},
    {"convertir_ansi_cadena", {ANSI(convertir_ansi_cadena), nullptr}},
    {"convertir_cadena_ascii_ansi", {ANSI(convertir_cadena_ascii_ansi), nullptr}},
    SOLO_ANCHA(cad_concatena), SOLO_ANCHA(cadenas_compara_lexico_graficamente), SOLO_ANCHA(hay_texto),
    SOLO_ANCHA(subcadena), SOLO_ANCHA(subcadena_final), SOLO_ANCHA(subcadena_anterior_may_o_min), SOLO_ANCHA(atoul),
    SOLO_ANCHA(subcadena_posterior), SOLO_ANCHA(extrae_token), SOLO_ANCHA(numero_de_subcadenas),
    SOLO_ANCHA(lista_de_subcadenas_sin_eliminar_blancos), SOLO_ANCHA(suprime_subcadena_final),
    SOLO_ANCHA(convertir_cadena_sin_acentos),
};
// clang-format on

txt ansi(const txt &utf8) { return toma(unicode_convierte_UTF8_a_ANSI(utf8.c_str())); }

} // namespace

PRUEBA(cad, las_dos_anchuras_hacen_lo_mismo) {
    for (const auto &[nombre, s, t, u, da] : filas<txt, txt, txt, txt, txt>("foundation/cad.tsv", "ambas")) {
        const operacion &o = OPERACIONES.at(nombre);
        EXPECT_EQ(o.ansi(ansi(s), ansi(t), ansi(u)), ansi(da)) << nombre << " of " << s << ", " << t;
        EXPECT_EQ(o.ancha(s, t, u), da) << nombre << " of " << s << ", " << t;
    }
    for (const auto &[nombre, s, t, u, da] : filas<txt, txt, txt, txt, txt>("foundation/cad.tsv", "ancha"))
        EXPECT_EQ(OPERACIONES.at(nombre).ancha(s, t, u), da) << nombre << " of " << s << ", " << t;
}

PRUEBA(cad, los_bytes_de_cada_pagina) {
    for (const auto &[pagina, nombre, s, t, u, da] :
         filas<uint32_t, txt, txt, txt, txt, txt>("foundation/cad.tsv", "ansi")) {
        ASSERT_EQ(unicode_establece_pagina_ANSI(pagina), CIERTO);
        EXPECT_EQ(OPERACIONES.at(nombre).ansi(s, t, u), da) << pagina << ": " << nombre << " of " << s << ", " << t;
    }
}

PRUEBA(cad, lo_que_se_crea_y_se_destruye) {
    char *s = creacadena(4);
    EXPECT_EQ(std::string(s, 5), std::string(5, 0));
    vornstr_destruye(&s);
    EXPECT_EQ(s, nullptr);
    vornstr_destruye_opcional(&s);
    ESPERA_INFORME("(*s) != NULL", vornstr_destruye(&s));
    EXPECT_EQ(toma(cad_crea_de_bytes("abc", 2)), "ab");
    EXPECT_EQ(toma(ESPERA_INFORME("vnstdc_strlen(str)==len", cad_crea_de_bytes("a\0b", 3))), "a");
    EXPECT_EQ(toma(widestr_creacadena_con_caracter(3, 0x20AC)), "€€€");
    EXPECT_EQ(toma(widestr_crea_de_unidades(VNU("abc"), 2)), "ab");
    EXPECT_EQ(toma(ESPERA_INFORME("widestr_longitud(str)==len", widestr_crea_de_unidades(VNU("a\0b"), 3))), "a");
    EXPECT_EQ(widestr_copia_si_no_null(nullptr), nullptr);
    EXPECT_EQ(widestr_hay_texto(nullptr), FALSO);
    vnwchar *t = widestr_copia_opcional(VNU("a")), *v = widestr_creacadena(2), ajena[] = VNU("ab"), *p = ajena;
    EXPECT_EQ(u16_de(t) + u16_de(v), u"a");
    widestr_fun_destruye(&t);
    widestr_destruye(&v);
    EXPECT_TRUE(t == nullptr && v == nullptr);
    // Not of the heap: it stays.
    ESPERA_INFORME("vornspy_es_memoria_reservada_valida(p) == CIERTO", widestr_concatena(&p, VNU("c")));
    EXPECT_EQ(utf8_de(p), "ab");
    // A report bears the caller's name.
    EXPECT_EQ(widestr_nousar_longitud(nullptr, "quien", 77), 0u);
    const auto informes = toma_informes();
    ASSERT_EQ(informes.size(), 1u);
    EXPECT_EQ(informes[0].expresion, "(s) != NULL");
    EXPECT_EQ(informes[0].modulo, "quien");
    EXPECT_EQ(informes[0].linea, 77u);
    const vnwchar *a = VNU("a/b/c");
    EXPECT_EQ(widestr_strchr(a, '/'), a + 1);
    EXPECT_EQ(widestr_strchr(a, 0), a + 5);
    EXPECT_EQ(widestr_strchr(a, 'x'), nullptr);
    EXPECT_EQ(widestr_es_digito(0x663), FALSO); // a digit, but not one of 0 to 9
}

// The letters of the languages that the programs speak, alike on every platform.
PRUEBA(cad, mapas_de_letras_iguales_en_todas_partes) {
    huella h;
    std::basic_string<vnwchar> todas;
    for (unsigned u = 0x20; u < 0x530; ++u)
        if (u < 0x250 || u >= 0x370) todas += static_cast<vnwchar>(u);
    for (unsigned u = 0x1E00; u < 0x1F00; ++u) todas += static_cast<vnwchar>(u);
    for (const char *o : {"convertir_a_mayusculas", "convertir_a_minusculas", "convertir_cadena_sin_acentos"})
        h << OPERACIONES.at(o).ancha(utf8_de(todas.c_str()), "", "");
    EXPECT_EQ(h(), 9815241886362381049u);
}

// Each allocation of each of these fails in its turn: no text is left half changed.
PRUEBA(cad, sin_memoria_no_se_pierde_nada) {
    using cambio = void (*)(vnwchar **);
    for (const cambio o : {cambio([](vnwchar **s) { widestr_concatena(s, std::basic_string(40, VNU('0')).c_str()); }),
                           cambio([](vnwchar **s) { widestr_inserta_al_principio(s, *s); }),
                           cambio([](vnwchar **s) { widestr_reemplaza_todas_cadenas(s, VNU("a"), VNU("aaaa")); }),
                           cambio([](vnwchar **s) {
                               *s = utunicode_ANSI_a_UNICODE_destruyendo_p(utunicode_UNICODE_a_ANSI_destruyendo(s));
                           })})
        for (int reservas = 0; reservas < 8; ++reservas) {
            vnwchar *s = widestr_copia(VNU("a,b,a,c"));
            const bool ido = atrapado([&] { o(&s); }, reservas);
            EXPECT_TRUE(ido || s == nullptr || utf8_de(s) == "a,b,a,c");
            toma_informes();
            widestr_destruye_opcional(&s);
        }
}
