#define VN_MODULO "msglocal (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/texto/msglocal.h"
#include "foundation/platform/variables.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/eterno_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/vnatexit.h"
#include "foundation/texto/formato_int.h"
#include "foundation/texto/numero_int.h"
#include "foundation/texto/unicode.h"
#include <atomic>
#include <map>
#include <mutex>
#include <string>
#include <string_view>

namespace {

// ---------------------------------------------------------------- the active language

// clang-format off
enum idioma : int {
    ESPANYOL = 0, FRANCES = 1, PORTUGUES_DE_BRASIL = 2, CATALAN = 3, ITALIANO = 4, PORTUGUES = 5, ESPANYOL_DE_AMERICA = 6,
    INGLES = 8, GALLEGO = 9, BULGARO = 10, RUMANO = 11, CHINO = 12, ALEMAN = 13, RUSO = 18, POLACO = 31, TURCO = 33,
    JAPONES = 39
};
// clang-format on

// A row: the language's code, the region that it takes ("" any), the index. The first that fits counts.
// clang-format off
constexpr struct {
    std::string_view lengua, region;
    idioma indice;
} IDIOMAS[] = {
    {"es", "ES", ESPANYOL}, {"es", "", ESPANYOL_DE_AMERICA}, {"fr", "", FRANCES}, {"pt", "BR", PORTUGUES_DE_BRASIL},
    {"pt", "", PORTUGUES},  {"ca", "", CATALAN},  {"it", "", ITALIANO}, {"en", "", INGLES}, {"gl", "", GALLEGO},
    {"bg", "", BULGARO},    {"ro", "", RUMANO},   {"zh", "", CHINO},    {"de", "", ALEMAN}, {"ru", "", RUSO},
    {"pl", "", POLACO},     {"tr", "", TURCO},    {"ja", "", JAPONES},
};
// clang-format on

constexpr int SIN_ESTABLECER = -1;
std::atomic<int> el_idioma{SIN_ESTABLECER};

// Of "es_MX.UTF-8", "pt-BR", "zh-Hans-CN", "C".
int idioma_de(std::string_view nombre) {
    nombre = nombre.substr(0, nombre.find_first_of(".@"));
    const size_t fin = nombre.find_first_of("_-");
    const std::string_view lengua = nombre.substr(0, fin);
    if (lengua.size() < 2 || lengua == "POSIX") return ESPANYOL;
    std::string_view region;
    if (fin != nombre.npos) region = nombre.substr(nombre.find_last_of("_-") + 1);
    if (lengua == "es" && region.empty()) return ESPANYOL;
    for (const auto &fila : IDIOMAS)
        if (fila.lengua == lengua && (fila.region.empty() || fila.region == region)) return fila.indice;
    return INGLES;
}

// The columns of the messages have their own numbering for three languages.
int columna_de(int indice) {
    switch (indice) {
    case CATALAN: return 4;
    case ITALIANO: return 5;
    case PORTUGUES: return 3;
    default: return indice;
    }
}

// ---------------------------------------------------------------- reading a message

// A filled message and the cell of a language in it.
struct lectura {
    vnmensaje mensaje{};
    const void *celda = nullptr;

    lectura(vnfunc_mensaje rellena, int indice) {
        rellena(&mensaje);
        celda = mensaje.textos[columna_de(indice)];
        if (celda == nullptr) celda = mensaje.textos[0];
    }
};

// The text behind its id. One that is too short for it or does not begin with it is given whole.
template <class C> const C *sin_id(const C *texto, uint32_t ancho_id) {
    if (ancho_id < 2 || texto[0] != '<') return texto;
    for (uint32_t i = 1; i + 1 < ancho_id; ++i)
        if (texto[i] == 0) return texto;
    return texto[ancho_id - 1] == '>' ? texto + ancho_id : texto;
}

// The units of a text coded as UTF-16LE in hexadecimal; false when it is not one.
bool descodifica(std::string_view hexadecimal, std::basic_string<vnwchar> &texto) {
    if (hexadecimal.empty() || hexadecimal.size() % 4 != 0) return false;
    for (size_t i = 0; i < hexadecimal.size(); i += 4) {
        unsigned unidad = 0;
        for (const size_t j : {i + 2, i + 3, i, i + 1}) {
            const uint32_t cifra = vn::texto::cifra_hexadecimal(static_cast<unsigned char>(hexadecimal[j]));
            if (cifra > 15) return false;
            unidad = unidad * 16 + cifra;
        }
        if (unidad == 0) return false;
        texto += static_cast<vnwchar>(unidad);
    }
    return true;
}

// Decoded texts stay until the exit list runs: what was lent stays good.
struct descodificados {
    std::mutex cerrojo;
    std::map<std::pair<int, std::string>, std::string> textos;
    bool registrado = false;
};

void olvida_los_descodificados(vnparametros *) {
    descodificados &d = vn::eterno<descodificados>();
    // At the end of a Windows process the lock may be held by a thread that is gone.
    const std::unique_lock<std::mutex> dentro(d.cerrojo, std::try_to_lock);
    if (!dentro) return;
    d.textos.clear();
    d.registrado = false;
}

const char *texto_ansi(const char *celda, uint32_t ancho_id, int indice) {
    constexpr std::string_view MARCA = "FFFF";
    const std::string_view texto(celda);
    std::basic_string<vnwchar> ancho;
    if (!texto.starts_with(MARCA) || !descodifica(texto.substr(MARCA.size()), ancho)) return sin_id(celda, ancho_id);
    descodificados &d = vn::eterno<descodificados>();
    const std::lock_guard<std::mutex> dentro(d.cerrojo);
    const std::pair clave(indice, std::string(celda));
    if (const auto sitio = d.textos.find(clave); sitio != d.textos.end()) return sitio->second.c_str();
    // Kept once it is whole: memory may run out in any of this.
    const vn::propio<char> ansi(unicode_convierte_UNICODE_a_ANSI_idioma(sin_id(ancho.c_str(), ancho_id),
                                                                        static_cast<uint32_t>(indice), nullptr));
    if (!d.registrado) atexit_anade(olvida_los_descodificados, nullptr);
    d.registrado = true;
    return d.textos.emplace(clave, ansi.get()).first->second.c_str();
}

const vnwchar *lee_u(vnfunc_mensaje rellena, int indice) {
    const lectura l(rellena, indice);
    if (l.celda == nullptr) return VNU("");
    return sin_id(static_cast<const vnwchar *>(l.celda), l.mensaje.ancho_id);
}

const char *lee(vnfunc_mensaje rellena, int indice) {
    const lectura l(rellena, indice);
    if (l.celda == nullptr) return "";
    return texto_ansi(static_cast<const char *>(l.celda), l.mensaje.ancho_id, indice);
}

} // namespace

const vnwchar *nousar_msglocal_original_u(vnfunc_mensaje rellena) {
    return AFIRMA_NO_NULO(rellena) ? lee_u(rellena, msidioma_dame_idioma()) : VNU("");
}

const char *nousar_msglocal_original(vnfunc_mensaje rellena) {
    return AFIRMA_NO_NULO(rellena) ? lee(rellena, msidioma_dame_idioma()) : "";
}

const vnwchar *nousar_original_u(vnfunc_mensaje rellena) {
    return AFIRMA_NO_NULO(rellena) ? lee_u(rellena, ESPANYOL) : VNU("");
}

const char *nousar_original(vnfunc_mensaje rellena) { return AFIRMA_NO_NULO(rellena) ? lee(rellena, ESPANYOL) : ""; }

vnwchar *textomsgu_obtener_mensaje(vnfunc_mensaje rellena, ...) {
    if (!AFIRMA_NO_NULO(rellena)) return nullptr;
    const vnwchar *formato = lee_u(rellena, msidioma_dame_idioma());
    va_list args;
    va_start(args, rellena);
    vnwchar *texto = vn::texto::formatea_nuevo(formato, args, VN_MODULO, __LINE__);
    va_end(args);
    return texto;
}

vnwchar *textomsgu_obtener_mensaje_idioma(int idioma, vnfunc_mensaje rellena, ...) {
    if (!AFIRMA(idioma >= 0 && idioma < MSGLOCAL_NUM_TEXTOS) || !AFIRMA_NO_NULO(rellena)) return nullptr;
    va_list args;
    va_start(args, rellena);
    vnwchar *texto = vn::texto::formatea_nuevo(lee_u(rellena, idioma), args, VN_MODULO, __LINE__);
    va_end(args);
    return texto;
}

int msidioma_dame_idioma(void) {
    int indice = el_idioma.load(std::memory_order_relaxed);
    if (indice != SIN_ESTABLECER) return indice;
    const int del_entorno = idioma_de(vn::plat::idioma_del_usuario());
    // The host may have set one meanwhile.
    return el_idioma.compare_exchange_strong(indice, del_entorno) ? del_entorno : indice;
}

void msidioma_establece_idioma(int idioma) {
    if (AFIRMA(idioma >= 0 && idioma < MSGLOCAL_NUM_TEXTOS)) el_idioma.store(idioma, std::memory_order_relaxed);
}

vnbool msidioma_es_idioma_ingles(void) { return vn::logico(msidioma_dame_idioma() == INGLES); }
