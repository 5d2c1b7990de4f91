#define VN_MODULO "vornconf (NUCLEOS.DLL)"
#include "units/vornconf.h"
#include "foundation/ficheros/ini.h"
#include "foundation/ficheros/temporal_int.h"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vtxt.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/sistema/vnmutex.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/eterno_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/mensajes.hpp"
#include "frame/alsalir.h"
#include "units/vornconf_priv.h"
#include <array>
#include <atomic>
#include <iterator>
#include <memory>
#include <mutex>
#include <string>

using internacional = vornconf_internacional;

namespace {

// ---------------------------------------------------------------- what a language brings

constexpr int NUM_INDICES = MSGLOCAL_NUM_TEXTOS;

// A bit to each language.
template <class... N> consteval uint64_t idiomas(N... indices) { return (... | (uint64_t{1} << indices)); }

struct fila {
    uint64_t idiomas;
    internacional valores;
};
// Languages; standards for concrete, cold-formed steel, rolled steel, electrical works and timber; system of units;
// energy.
constexpr fila FILAS[] = {
    {idiomas(0, 3, 9), {47, 8, 10, 4, 3, 1, 0}},
    {idiomas(1), {13, 10, 12, 4, 4, 2, 0}},
    {idiomas(2), {11, 6, 8, 2, 1, 2, 0}},
    {idiomas(4), {4, 17, 18, 4, 1, 1, 0}},
    {idiomas(5), {51, 19, 36, 4, 2, 1, 0}},
    {idiomas(6), {16, 28, 32, 4, 1, 1, 0}},
    {idiomas(7), {41, 14, 7, 4, 1, 1, 0}},
    {idiomas(8, 18, 26, 27, 28, 30, 32, 33, 34, 37, 38), {12, 7, 9, 4, 1, 2, 0}},
    {idiomas(10), {12, 11, 14, 4, 3, 1, 0}},
    {idiomas(11), {12, 33, 37, 4, 3, 1, 0}},
    {idiomas(12), {12, 7, 9, 4, 3, 1, 0}},
    {idiomas(13), {12, 15, 16, 4, 3, 1, 0}},
    {idiomas(14), {27, 3, 6, 4, 1, 1, 0}},
    {idiomas(15, 16), {38, 28, 32, 4, 1, 1, 0}},
    {idiomas(17), {28, 28, 32, 4, 1, 1, 0}},
    {idiomas(19, 20, 22, 23, 24), {53, 28, 32, 4, 1, 1, 0}},
    {idiomas(21), {49, 28, 32, 4, 1, 1, 0}},
    {idiomas(25, 35, 36, 39), {53, 28, 32, 4, 1, 2, 0}},
    {idiomas(29), {50, 32, 33, 4, 1, 2, 0}},
    {idiomas(31), {48, 31, 31, 4, 3, 1, 0}},
    {idiomas(40), {12, 7, 9, 4, 1, 1, 0}},
};

// So that no language is forgotten, nor stands in two rows.
consteval bool cada_idioma_una_vez() {
    uint64_t vistos = 0;
    for (const fila &f : FILAS) {
        if ((vistos & f.idiomas) != 0) return false;
        vistos |= f.idiomas;
    }
    return vistos == (uint64_t{1} << NUM_INDICES) - 1;
}
static_assert(cada_idioma_una_vez());

internacional por_defecto(uint32_t idioma) {
    for (const fila &f : FILAS)
        if (idioma < NUM_INDICES && (f.idiomas >> idioma & 1) != 0) return f.valores;
    AFIRMA_DEFECTO();
    return {};
}

// ---------------------------------------------------------------- the file

// The keys, in their order in the file.
struct clave {
    const char *nombre;
    uint32_t internacional::*campo;
};
constexpr clave CLAVES[] = {
    {"Norma", &internacional::hormigon},
    {"NormaAceroConf", &internacional::conformados},
    {"NormaAceroLam", &internacional::laminados},
    {"NormaElec", &internacional::electrica},
    {"NormaMadera", &internacional::madera},
    {"Sistema de Unidades", &internacional::sistema_unidades},
    {"SistemaUnidadEnergia", &internacional::sistema_unidades_energia},
};

vnmutex *el_mutex = nullptr;
constinit std::atomic<bool> esta_en_la_salida{false}; // whether the exit registry has it

void destruye_el_mutex(vnmutex **mutex) {
    esta_en_la_salida = false;
    vnmutex_destruye_saliendo(mutex);
}

// Inside the mutex between programs, for as long as it lives.
class turno {
  public:
    turno() : dentro_(vnmutex_entra_creando_entre_aplicaciones_si_es_necesario(&el_mutex, "vornconf") == CIERTO) {
        // Registered anew after the exit registry has run: the program may go on.
        if (!esta_en_la_salida.exchange(true)) alsalir_destruye_dato(vnmutex, &el_mutex, destruye_el_mutex);
    }
    ~turno() {
        if (dentro_) vnmutex_sal(el_mutex);
    }
    turno(const turno &) = delete;
    turno &operator=(const turno &) = delete;
    bool dentro() const { return dentro_; }

  private:
    const bool dentro_;
};

using ruta_propia = vn::propio<vnwchar>;

ruta_propia la_ruta() {
    fichconf_crea_directorio_estructa();
    return ruta_propia(fichconf_dame_ruta_fichero_en_directorio_estructa(VNU("internac.ini")));
}

// The values of the file, those that it lacks by the active language. Without the mutex, when it cannot be had in time,
// the file is read all the same: it is replaced in one step.
internacional lee_fichero() {
    const ruta_propia ruta = la_ruta();
    int32_t valores[std::size(CLAVES)] = {};
    {
        const turno mio;
        std::string claves;
        for (const clave &c : CLAVES) (claves += c.nombre) += '\n';
        if (ruta != nullptr)
            ini_lee_varios_int(ruta.get(), "Internacional", claves.c_str(), valores,
                               static_cast<uint32_t>(std::size(CLAVES)));
    }
    internacional r{};
    for (size_t i = 0; i < std::size(CLAVES); ++i) r.*CLAVES[i].campo = static_cast<uint32_t>(valores[i]);
    const internacional defecto = por_defecto(static_cast<uint32_t>(msidioma_dame_idioma()));
    for (const clave &c : CLAVES)
        // Zero is the absence of a code in the file: then the language decides.
        if (r.*c.campo == 0) r.*c.campo = defecto.*c.campo;
    AFIRMA_TEXTO(r.hormigon != NORMA_H_ERROR, "hormigon != NORMA_H_ERROR");
    AFIRMA_TEXTO(r.conformados != NORMA_C_ERROR, "conformados != NORMA_C_ERROR");
    AFIRMA_TEXTO(r.laminados != NORMA_L_ERROR, "laminados != NORMA_L_ERROR");
    AFIRMA_TEXTO(r.electrica != NORMAELE_ERROR, "electrica != NORMAELE_ERROR");
    AFIRMA_TEXTO(r.madera != NORMA_M_ERROR, "madera != NORMA_M_ERROR");
    return r;
}

void escribe_linea(const char *nombre, uint32_t valor, vnfichero *f) {
    vtxt_escr_string_sin_salto_de_linea(nombre, f);
    vtxt_escr_string_sin_salto_de_linea("=", f);
    vtxt_escr_int_y_salta(static_cast<int>(valor), f);
}

// A program that is killed in here leaves the file that was there, or the new one.
void escribe_fichero(const internacional &r) {
    const ruta_propia ruta = la_ruta();
    const turno mio;
    if (!AFIRMA_NO_NULO(ruta) || !AFIRMA(mio.dentro())) return;
    vn::ficheros::temporal f(vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(ruta.get()));
    if (f == nullptr) return;
    vtxt_escr_string("[Internacional]", f.get());
    // For whoever looks into the file: the language itself is kept elsewhere.
    escribe_linea("Idioma", vornconf_Internacional_idioma(), f.get());
    for (const clave &c : CLAVES) escribe_linea(c.nombre, r.*c.campo, f.get());
    vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f.release(), ruta.get());
}

void cambia_en_fichero(uint32_t internacional::*campo, uint32_t norma) {
    const turno mio; // over both: what another program changes in between would be lost
    internacional r = lee_fichero();
    r.*campo = norma;
    escribe_fichero(r);
}

// ---------------------------------------------------------------- the record of the process

auto &el_registro = vn::registro_vornconf;
constinit std::atomic<bool> registro_cargado{false};

// Held by a thread that loads or changes the record, so that values read before a change do not replace it. Recursive:
// a report made while the file is read may lead the host to ask.
std::unique_lock<std::recursive_mutex> cierra_el_registro() {
    return std::unique_lock(vn::eterno<std::recursive_mutex>());
}

std::atomic_ref<uint32_t> palabra(uint32_t internacional::*campo) {
    return std::atomic_ref<uint32_t>(el_registro.*campo);
}

void pon(const internacional &r) {
    for (const clave &c : CLAVES) palabra(c.campo).store(r.*c.campo, std::memory_order_relaxed);
}

// Takes the values of the file over. The flag comes last: a thread that finds it set finds the values.
internacional carga() {
    const auto cerrado = cierra_el_registro();
    const internacional r = lee_fichero();
    pon(r);
    registro_cargado.store(true, std::memory_order_release);
    return r;
}

[[gnu::cold, gnu::noinline]] void primera_carga() {
    const auto cerrado = cierra_el_registro();
    // Another thread may have loaded it while this one waited.
    if (!registro_cargado.load(std::memory_order_relaxed)) carga();
}

void carga_si_hace_falta() {
    if (!registro_cargado.load(std::memory_order_acquire)) [[unlikely]]
        primera_carga();
}

void cambia(uint32_t internacional::*campo, uint32_t valor) {
    const auto cerrado = cierra_el_registro();
    carga_si_hace_falta();
    palabra(campo).store(valor, std::memory_order_relaxed);
}

uint32_t del_registro(uint32_t internacional::*campo) {
    carga_si_hace_falta();
    return palabra(campo).load(std::memory_order_relaxed);
}

// ---------------------------------------------------------------- texts

#define M(id, ...) VN_MENSAJE(msg_##id, "vornconf.msg", id, __VA_ARGS__)
#include "units/vornconf_msg.inl"
#undef M

constexpr vnfunc_mensaje SISTEMAS[] = {msg_53941.a, msg_53942.a, msg_53943.a};
constexpr vnfunc_mensaje ENERGIAS[] = {msg_53944.a, msg_53945.a, msg_53946.a};

} // namespace

uint32_t vornconf_Internacional_sistema_unidades(void) { return del_registro(&internacional::sistema_unidades); }
uint32_t vornconf_Internacional_sistema_unidades_energia(void) {
    return del_registro(&internacional::sistema_unidades_energia);
}
uint32_t vornconf_Internacional_normaHorm(void) { return del_registro(&internacional::hormigon); }
uint32_t vornconf_Internacional_normaAceroConf(void) { return del_registro(&internacional::conformados); }
uint32_t vornconf_Internacional_normaAceroLam(void) { return del_registro(&internacional::laminados); }
uint32_t vornconf_Internacional_normaMadera(void) { return del_registro(&internacional::madera); }

void vornconf_Internacional_set_sistema_unidades(uint32_t sistema_unidades) {
    if (!AFIRMA(sistema_unidades == VORNCONF_SU_MKS || sistema_unidades == VORNCONF_SU_INTERNACIONAL ||
                sistema_unidades == VORNCONF_SU_IMPERIAL))
        return;
    cambia(&internacional::sistema_unidades, sistema_unidades);
}

void vornconf_Internacional_set_sistema_unidades_energia(uint32_t sistema_unidades_energia) {
    if (!AFIRMA(sistema_unidades_energia == VORNNORM_UNIDAD_ENERGIA_JULIO ||
                sistema_unidades_energia == VORNNORM_UNIDAD_ENERGIA_KCAL ||
                sistema_unidades_energia == VORNNORM_UNIDAD_ENERGIA_BTU))
        return;
    cambia(&internacional::sistema_unidades_energia, sistema_unidades_energia);
}

uint32_t vornconf_Internacional_idioma(void) {
    // Languages count from one here.
    const int idioma_int = msidioma_dame_idioma() + 1;
    return AFIRMA(idioma_int > 0 && idioma_int <= NUM_IDIOMAS) ? static_cast<uint32_t>(idioma_int) : 0;
}

vnbool vornconf_es_sistema_unidades_inglesas(void) {
    const uint32_t sistema = vornconf_Internacional_sistema_unidades();
    if (sistema < VORNCONF_SU_MKS || sistema > VORNCONF_SU_IMPERIAL) return AFIRMA_DEFECTO(), FALSO;
    return vn::logico(sistema == VORNCONF_SU_IMPERIAL);
}

uint32_t vornconf_lee_norma_hormigon(void) { return lee_fichero().hormigon; }
uint32_t vornconf_lee_norma_acero_conformado(void) { return lee_fichero().conformados; }
uint32_t vornconf_lee_norma_acero_laminado(void) { return lee_fichero().laminados; }
uint32_t vornconf_lee_norma_madera(void) { return lee_fichero().madera; }

void vornconf_graba_norma_hormigon(uint32_t norma) { cambia_en_fichero(&internacional::hormigon, norma); }
void vornconf_graba_norma_acero_conformado(uint32_t norma) { cambia_en_fichero(&internacional::conformados, norma); }
void vornconf_graba_norma_acero_laminado(uint32_t norma) { cambia_en_fichero(&internacional::laminados, norma); }

void vornconf_par_lee_internacional(internacional *internac) {
    const internacional r = carga();
    if (internac != nullptr) *internac = r;
}

void vornconf_par_graba_internacional(const internacional *internac) {
    if (!AFIRMA_NO_NULO(internac)) return;
    const auto cerrado = cierra_el_registro();
    escribe_fichero(*internac);
    // One that is not loaded is loaded from the file by the next query.
    if (internac != &el_registro && registro_cargado.load(std::memory_order_relaxed)) pon(*internac);
}

void vornconf_crea_internac_por_defecto_si_no_existe(uint32_t idioma) {
    if (idioma >= NUM_INDICES) {
        AFIRMA_DEFECTO();
        return;
    }
    {
        const ruta_propia ruta = la_ruta();
        const turno mio; // of two programs that meet here one finds the file
        if (ruta == nullptr || vdir_existe_fichero_UNICODE(ruta.get()) == CIERTO) return;
        escribe_fichero(por_defecto(idioma));
    }
    carga();
}

char *vornconf_texto_sistema_de_unidades(uint32_t sistema_unidades) {
    if (sistema_unidades < VORNCONF_SU_MKS || sistema_unidades > VORNCONF_SU_IMPERIAL) return AFIRMA_DEFECTO(), nullptr;
    return nousar_formatea("%s: %s", vornconf_texto_sistema_unidades(),
                           nousar_msglocal_original(SISTEMAS[sistema_unidades - VORNCONF_SU_MKS]));
}

const char *vornconf_texto_sistema_unidades(void) { return nousar_msglocal_original(msg_32343.a); }

const char *vornconf_texto_sistema_unidad_energia(uint32_t sistema_unidades_energia) {
    if (sistema_unidades_energia > VORNNORM_UNIDAD_ENERGIA_BTU) return AFIRMA_DEFECTO(), nullptr;
    return nousar_msglocal_original(ENERGIAS[sistema_unidades_energia]);
}
