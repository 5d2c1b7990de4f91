// The protocol's readers over binary and text streams. An input is: destination, number of operations, the operations
// (one byte each, passed over from 128 on), and the content that they read in turn. What they could read is written and
// read again: the same.
#include "objetivo.h"
#include "persistence/catalogo_protocolo.h"

namespace {

using catalogo::fila;

std::basic_string<vnwchar> nombre(const char *sufijo) {
    const std::string s = std::string(fuzz::FICHERO) + sufijo;
    return {s.begin(), s.end()};
}
constexpr const char *COPIA = "_copia";

// Blocks and sections, beside the rows of the catalogue.
struct operacion {
    void (*graba)(vornsave *), (*lee)(vornsave *);
};
// clang-format off
#define HACE(...) [](vornsave *s) { __VA_ARGS__; }
const operacion MARCOS[] = {
    {HACE(vornsave_graba_inicio_bloque("BLOQUE", s); vornsave_graba_long(3, s); vornsave_graba_fin_bloque("BLOQUE", s)),
     HACE(if (vornsave_se_inicia_lectura_bloque("BLOQUE", s) == FALSO) return; vornsave_lee_long(s); vornsave_lee_final_bloque("BLOQUE", s))},
    {HACE(vornsave_graba_inicio_bloque64("B64", s); vornsave_graba_fin_bloque64("B64", s)), HACE(vornsave_se_salta_bloque64("B64", s))},
    {HACE(vornsave_graba_inicio_seccion("SECCION", s); vornsave_graba_double(1, s); vornsave_graba_fin_seccion("SECCION", s)),
     HACE(const auto id = catalogo::toma(vornsave_lee_seccion(s)); if (!id) return;
          vornsave_ir_final_seccion(id->c_str(), s); vornsave_lee_final_seccion(id->c_str(), s))},
};
// clang-format on
size_t num_operaciones() { return catalogo::filas().size() + std::size(MARCOS); }
// The row of an operation; null for the frames.
const fila *valor(size_t i) { return i < catalogo::filas().size() ? &catalogo::filas()[i] : nullptr; }
const operacion &marco(size_t i) { return MARCOS[i - catalogo::filas().size()]; }

enum destino : uint8_t { BINARIO, TEXTO_SOLO, TEXTO_CON_COMENTARIOS, ASCII, NUM_DESTINOS };
bool es_texto(destino d) { return d == TEXTO_SOLO || d == TEXTO_CON_COMENTARIOS; }
// A text destination has no form for some.
bool tiene_forma(destino d, size_t i) {
    return !es_texto(d) || (valor(i) != nullptr && !valor(i)->es(catalogo::SOLO_BIN));
}

struct abierto {
    vnfichero *f;
    vornsave *s;
    abierto(destino d, const char *modo, const char *sufijo = "")
        : f(f_lc_fopen_u(nombre(sufijo).c_str(),
                         (std::basic_string<vnwchar>(modo, modo + 1) + (es_texto(d) ? VNU("") : VNU("b"))).c_str(),
                         VN_AQUI)),
          s(es_texto(d) ? vornsave_registra_txt(f, d == TEXTO_CON_COMENTARIOS ? CIERTO : FALSO)
                        : vornsave_registra_bin(f)) {
        if (d == ASCII) vornsave_set_lectura_ANSI_ASCII_segun_version(s, 1, 1);
        // A reading that stops early leaves marks open.
        vornsave_set_tipo_status_lectura(s, 1, nullptr);
    }
    ~abierto() {
        vornsave_libera(&s);
        lc_fclose_seguro(f);
    }
    abierto(const abierto &) = delete;
    abierto &operator=(const abierto &) = delete;
    bool falla() const { return lc_ha_fallado(f) == CIERTO; }
};

std::string semilla(destino d, size_t desde, size_t hasta) {
    std::string s{static_cast<char>(d), static_cast<char>(hasta - desde)};
    for (size_t i = desde; i < hasta; ++i) s += static_cast<char>(i);
    catalogo::azar azar(static_cast<uint32_t>(desde), true);
    return s + fuzz::lo_que_graba([&] {
               const abierto a(d, "w");
               for (size_t i = desde; i < hasta; ++i) {
                   if (!tiene_forma(d, i)) continue;
                   if (valor(i) != nullptr) valor(i)->graba(azar, a.s);
                   else marco(i).graba(a.s);
               }
           });
}

// Reads every value, writes it to a second file, and reads that one: what came whole and was taken without a word comes
// back.
void lee_graba_y_lee(destino d, const uint8_t *ops, size_t numero) {
    std::vector<std::pair<const fila *, std::string>> copiados;
    bool entera = true;
    {
        const abierto de(d, "r"), a(d, "w", COPIA);
        // Few bytes may ask for 256 MiB in a run-coded array: so many of them, once.
        for (size_t i = 0, iguales = 0; i < numero; ++i) {
            const size_t op = (ops[i] & 0x7F) % num_operaciones();
            const bool salta = ops[i] > 0x7F;
            const fila *f = valor(op);
            if (f == nullptr) {
                marco(op).lee(de.s);
                continue;
            }
            if (std::strstr(f->nombre, "iguales") != nullptr && iguales++ > 0) continue;
            if (de.falla() || !entera || !tiene_forma(d, op) || !f->copia || salta) {
                if (salta && f->salta) f->salta(de.s);
                else f->lee(de.s);
                continue;
            }
            std::string texto = f->copia(de.s, a.s);
            if (!de.falla()) copiados.emplace_back(f, std::move(texto));
            entera = !de.falla() && !a.falla();
        }
        if (a.falla() && !copiados.empty()) copiados.pop_back();
    }
    const abierto otra_vez(d == ASCII ? BINARIO : d, "r", COPIA);
    for (const auto &[f, texto] : copiados) fuzz::exige(f->lee(otra_vez.s) == texto, f->nombre);
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    std::vector<std::string> v;
    for (const destino d : {BINARIO, TEXTO_SOLO, TEXTO_CON_COMENTARIOS})
        for (size_t i = 0; i < num_operaciones(); i += 6)
            v.push_back(semilla(d, i, std::min(i + 6, num_operaciones())));
    return v;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    if (n < 2) return 0;
    const auto d = static_cast<destino>(datos[0] % NUM_DESTINOS);
    const size_t numero = std::min<size_t>(datos[1] % 64, n - 2);
    const uint8_t *ops = datos + 2;
    const size_t tamanyo = n - 2 - numero;
    // One run-coded array may take 256 MiB: growing in steps of a half asks for three times that, and it is read twice.
    fuzz::con_fichero(ops + numero, tamanyo, (uint64_t{7} << 28) + 64 * tamanyo,
                      [&] { lee_graba_y_lee(d, ops, numero); });
    return 0;
}
