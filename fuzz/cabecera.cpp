// Headers and format prologues of project files: every reader of them, and that a file that is taken can be saved over.
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/listas/arr.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/propio_int.h"
#include "objetivo.h"
#include "persistence/vornbin.h"

namespace {

constexpr const char *FIRMA = "FIRMA";
constexpr uint16_t VERSION = 3;

using textos = vn::dueno<arr_DestruyeCADENA_u>;

void con_campos(std::initializer_list<const vnwchar *> nombres, const char *firma, const vnwchar *titulo) {
    const textos n(arr_CreaCADENA_u(0)), v(arr_CreaCADENA_u(0));
    for (const vnwchar *x : nombres) arr_AppendCADENA_u(n.get(), x), arr_AppendCADENA_u(v.get(), VNU("valor \u00f1"));
    vnfichero *f = vornbin_abre_fichero_para_escritura_con_version_descripcion_y_campos_u(
        fuzz::NOMBRE.c_str(), VERSION, firma, titulo, n.get(), v.get(), nullptr);
    bin_graba_long(7, f);
    fuzz::exige(vornbin_cierra_fichero_abierto_para_escritura_u(f, fuzz::NOMBRE.c_str(), nullptr) == CIERTO,
                "a seed is saved");
}

// A text that an operation hands over.
template <class C> struct sale {
    C *texto = nullptr;
    ~sale() { vn::propio<C>{texto}.reset(); }
    operator C **() { return &texto; }
};

uint32_t numero_de_campos() {
    arrCADENA_u *nombres = nullptr, *valores = nullptr;
    vornbin_lee_campos_cabecera_u(fuzz::NOMBRE.c_str(), &nombres, &valores);
    const textos n(nombres), v(valores);
    fuzz::exige(arr_NumElemsCADENA_u(nombres) == arr_NumElemsCADENA_u(valores), "as many values as names");
    return arr_NumElemsCADENA_u(nombres);
}

void lee_abierto() {
    uint16_t version = 0;
    sale<vnwchar> titulo;
    vnbool ejemplo = FALSO, superior = FALSO;
    const vn::dueno<lc_fclose_seguro> f(vornbin_abre_fichero_para_lectura_con_version_y_descripcion_u(
        fuzz::NOMBRE.c_str(), VERSION, FIRMA, nullptr, &version, titulo, 1, &ejemplo, &superior));
}

void lee_sin_trampa() {
    sale<char> version, revision, otra_version, otra_revision, titulo;
    sale<vnwchar> contenido;
    vnbool ejemplo = FALSO;
    vornbin_hay_cabecera_en_fichero_u(fuzz::NOMBRE.c_str(), version, revision, &ejemplo);
    vornbin_es_fichero_vorn_valido(fuzz::FICHERO);
    char corto[8];
    bin_fichero_valido_u(fuzz::NOMBRE.c_str(), VERSION, FIRMA, sizeof corto, corto, 1);
    vnfichero *f = nullptr;
    uint16_t v = 0;
    if (vornbin_se_abre_fichero_para_lectura_sin_cabecera_version_programa_u(fuzz::NOMBRE.c_str(), VERSION, FIRMA,
                                                                             nullptr, 1, &f, &v, titulo) == CIERTO)
        lc_fclose_seguro(f);
    const uint32_t cuantos = numero_de_campos();
    vornbin_lee_datos_cabecera_debug_soporte(fuzz::FICHERO, otra_version, otra_revision, &ejemplo, contenido);
    // Saved over, the fields that were read are carried over.
    vnfichero *g = vornbin_abre_fichero_para_escritura_u(fuzz::NOMBRE.c_str(), nullptr);
    if (g == nullptr) return;
    fuzz::exige(vornbin_cierra_fichero_abierto_para_escritura_u(g, fuzz::NOMBRE.c_str(), nullptr) == CIERTO,
                "saved over");
    fuzz::exige(numero_de_campos() == cuantos, "the fields are carried over");
    vornbin_marca_fichero_ejemplo_u(fuzz::NOMBRE.c_str());
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    return {
        lo_que_graba([] {
            con_campos({VNU("a"), VNU("nombre largo")}, FIRMA, VNU("T\u00edtulo"));
        }),
        lo_que_graba([] { con_campos({}, "OTRA", VNU("")); }), lo_que_graba([] {
            vnfichero *f = vornbin_abre_fichero_para_escritura_sin_cabecera_version_programa_u(
                fuzz::NOMBRE.c_str(), VERSION, FIRMA, VNU("t"), nullptr);
            vornbin_cierra_fichero_abierto_para_escritura_u(f, fuzz::NOMBRE.c_str(), nullptr);
        }),
        // Older forms: form 2 with the lists at once, form 0 without marks.
        std::string("\x02\x01\x08\x00VORN-9-a\x02\x00\x00\x00\x00\x01\x00\x00\x00\x05\x00\x00\x00\x01\x00\x00\x00x\x00",
                    31),
        std::string("\x02\x01\x08\x00WENK-9-b\x00\x00\x03\x00\x05\000FIRMA\x01\x00T", 26)};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    // Eleven openings of the file, each within its own bound.
    fuzz::con_fichero(datos, n, 11 * fuzz::cota(n), [] {
        fuzz::atrapa(lee_abierto);
        lee_sin_trampa();
    });
    return 0;
}
