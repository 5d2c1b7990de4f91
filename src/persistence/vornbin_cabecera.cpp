#define VN_MODULO "vornbin (NUCLEOS.DLL)"
#include "foundation/sistema/version.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "persistence/vornbin_cabecera_priv.h"
#include <algorithm>
#include <unordered_map>
#include <utility>

namespace vn {
namespace {

// The bytes that begin a header, those that announce its lists, and the forms: in the second one lists follow
// unannounced.
constexpr uint8_t COMIENZO[2] = {2, 1};
constexpr uint8_t MARCA_LISTAS[2] = {0xFD, 0xFE};
constexpr uint16_t LIMITE_IDENTIFICACION = 200;
constexpr uint8_t FORMA_ACTUAL = 1, FORMA_LISTAS_SEGUIDAS = 2;

bool lee_exacto(vnfichero *f, void *destino, size_t n) { return f_lc_fread_sin_error(destino, 1, n, f) == n; }

bool es_letra(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

// "MASK-version-revision": exactly three pieces, a known mask, and a revision of one character or beginning with a
// letter.
bool interpreta_identificacion(std::string_view texto, cabecera &c) {
    // A zero may end the text before its stored length does.
    texto = texto.substr(0, texto.find('\0'));
    if (std::count(texto.begin(), texto.end(), '-') != 2) return false;
    const size_t primero = texto.find('-'), segundo = texto.rfind('-');
    const std::string_view mascara = texto.substr(0, primero), revision = texto.substr(segundo + 1);
    if (mascara != i_MASCARA_VORN && mascara != i_MASCARA_EJEMPLO_VORN) return false;
    if (revision.empty() || (revision.size() > 1 && !es_letra(revision.front()))) return false;
    c.es_ejemplo = mascara == i_MASCARA_EJEMPLO_VORN;
    c.version = texto.substr(primero + 1, segundo - primero - 1);
    c.revision = revision;
    return true;
}

bool lee_identificacion(vnfichero *f, cabecera &c) {
    uint8_t comienzo = 0;
    for (const uint8_t esperado : COMIENZO)
        if (!lee_exacto(f, &comienzo, 1) || comienzo != esperado) return false;
    uint16_t longitud = 0;
    char texto[LIMITE_IDENTIFICACION];
    // A length beyond the room is that of no header: nothing is read for it.
    return lee_exacto(f, &longitud, sizeof longitud) && longitud < LIMITE_IDENTIFICACION &&
           lee_exacto(f, texto, longitud) && interpreta_identificacion({texto, longitud}, c);
}

// True if lists follow the form byte; files of the first years have none, and no mark.
bool hay_listas(vnfichero *f, uint8_t forma) {
    if (forma == FORMA_LISTAS_SEGUIDAS) return true;
    const int64_t pos = vornio_ftell_i64(f);
    uint8_t marca[sizeof MARCA_LISTAS];
    if (lee_exacto(f, marca, sizeof marca) && std::equal(marca, marca + sizeof marca, MARCA_LISTAS)) return true;
    // No mark: these bytes belong to what follows the header.
    vornio_fseek_i64(f, pos, VN_DESDE_EL_PRINCIPIO);
    return false;
}

void graba_bytes(vnfichero *f, const void *p, size_t n) { f_lc_fwrite(p, 1, n, f, VN_AQUI); }

void graba_identificacion(vnfichero *f, const char *identificacion) {
    graba_bytes(f, COMIENZO, sizeof COMIENZO);
    bin_graba_cadena(identificacion, f);
}

void graba_cuerpo(vnfichero *f, uint8_t forma, const listas_cabecera &listas) {
    graba_bytes(f, &forma, 1);
    if (forma != FORMA_LISTAS_SEGUIDAS) graba_bytes(f, MARCA_LISTAS, sizeof MARCA_LISTAS);
    listas.graba(f);
}

} // namespace

const char i_MASCARA_VORN[] = "VORN";
const char i_MASCARA_EJEMPLO_VORN[] = "WENK";

void listas_cabecera::vacia() {
    // Two lists without elements: a count of zero each.
    bytes_.assign(2 * TAM_NUMERO, 0);
    fin_campos_ = TAM_NUMERO;
}

bool listas_cabecera::anexa(vnfichero *f, size_t n) {
    // No room is made for bytes that the file does not have.
    if (lc_quedan(f, n, 1) == FALSO) return false;
    bytes_.resize(bytes_.size() + n);
    return lee_exacto(f, bytes_.data() + bytes_.size() - n, n);
}

bool listas_cabecera::anexa_numero(vnfichero *f, size_t tamanyo_elemento, uint32_t *n) {
    if (!anexa(f, TAM_NUMERO)) return false;
    *n = numero_en(bytes_.size() - TAM_NUMERO);
    return lc_quedan(f, *n, tamanyo_elemento) == CIERTO;
}

bool listas_cabecera::anexa_texto(vnfichero *f) {
    uint32_t n = 0;
    return anexa_numero(f, sizeof(vnwchar), &n) && anexa(f, n * sizeof(vnwchar));
}

bool listas_cabecera::lee(vnfichero *f) {
    // The least that a pair of texts, or an entry of a number and a text, takes.
    constexpr size_t MINIMO_ELEMENTO = 8;
    bytes_.clear();
    uint32_t n = 0;
    bool bien = anexa_numero(f, MINIMO_ELEMENTO, &n);
    // The fields: a name and a value each.
    for (; bien && n != 0; --n) bien = anexa_texto(f) && anexa_texto(f);
    fin_campos_ = bytes_.size();
    bien = bien && anexa_numero(f, MINIMO_ELEMENTO, &n);
    // The second list: a number and a text each.
    for (; bien && n != 0; --n) bien = anexa(f, TAM_NUMERO) && anexa_texto(f);
    // Lists that are cut short are not kept by halves.
    if (!bien) vacia();
    return bien;
}

void listas_cabecera::graba(vnfichero *f) const { graba_bytes(f, bytes_.data(), bytes_.size()); }

uint32_t listas_cabecera::numero_en(size_t pos) const {
    uint32_t n = 0;
    memcpy(&n, bytes_.data() + pos, sizeof n);
    return n;
}

texto_u listas_cabecera::texto_en(size_t &pos) const {
    texto_u texto(numero_en(pos), 0);
    memcpy(texto.data(), bytes_.data() + pos + TAM_NUMERO, texto.size() * sizeof(vnwchar));
    pos += TAM_NUMERO + texto.size() * sizeof(vnwchar);
    return texto;
}

void listas_cabecera::pon_campos(const arrCADENA_u *nombres, const arrCADENA_u *valores) {
    // One pass over the stored fields, however many new ones there are: each takes the last value given for its name.
    // Names that the file lacks are added at the end.
    struct nuevo {
        vista_u nombre, valor;
        bool puesto = false;
    };
    const auto vista = [](const vnwchar *s) { return s != nullptr ? vista_u(s) : vista_u(); };
    std::vector<nuevo> nuevos;
    std::unordered_map<vista_u, size_t> indice;
    for (uint32_t i = 0; i < arr_NumElemsCADENA_u(nombres); ++i) {
        const vista_u nombre = vista(arr_GetCADENA_u(nombres, i));
        const size_t k = indice.emplace(nombre, nuevos.size()).first->second;
        if (k == nuevos.size()) nuevos.push_back({nombre, {}});
        nuevos[k].valor = vista(arr_GetCADENA_u(valores, i));
    }
    // The list of fields is made anew, with room before it for the count, which is known at the end.
    std::vector<unsigned char> bytes(TAM_NUMERO);
    const auto pon_bytes = [&bytes](const void *p, size_t n) {
        bytes.insert(bytes.end(), static_cast<const unsigned char *>(p), static_cast<const unsigned char *>(p) + n);
    };
    const auto pon_texto = [&](vista_u texto) {
        const auto n = static_cast<uint32_t>(texto.size());
        pon_bytes(&n, sizeof n);
        pon_bytes(texto.data(), texto.size() * sizeof(vnwchar));
    };
    uint32_t total = 0;
    recorre_campos([&](const texto_u &nombre, const texto_u &valor) {
        const auto este = indice.find(nombre);
        // Of equal names only the first is given the value.
        const bool cambia = este != indice.end() && !std::exchange(nuevos[este->second].puesto, true);
        pon_texto(nombre);
        pon_texto(cambia ? nuevos[este->second].valor : vista_u(valor));
        ++total;
    });
    for (const nuevo &n : nuevos) {
        if (n.puesto) continue;
        pon_texto(n.nombre);
        pon_texto(n.valor);
        ++total;
    }
    memcpy(bytes.data(), &total, sizeof total);
    // The second list goes behind, as it was.
    const size_t fin = bytes.size();
    pon_bytes(bytes_.data() + fin_campos_, bytes_.size() - fin_campos_);
    bytes_ = std::move(bytes);
    fin_campos_ = fin;
}

void listas_cabecera::blanquea() {
    // Blanks take the room of the text, so that no byte of the file moves.
    const auto blanquea_texto = [this](size_t &pos) {
        const texto_u blancos(texto_en(pos).size(), ' ');
        const size_t n = blancos.size() * sizeof(vnwchar);
        if (n != 0) memcpy(bytes_.data() + pos - n, blancos.data(), n);
    };
    size_t pos = TAM_NUMERO;
    while (pos != fin_campos_) blanquea_texto(pos);
    // Of the second list the numbers become zero.
    for (pos += TAM_NUMERO; pos != bytes_.size();) {
        memset(bytes_.data() + pos, 0, TAM_NUMERO);
        pos += TAM_NUMERO;
        blanquea_texto(pos);
    }
}

void da_textos(const cabecera &c, char **version_texto, char **revision_texto) {
    propio<char> version(cad_copia_cadena(c.version.c_str())), revision(cad_copia_cadena(c.revision.c_str()));
    if (version_texto != nullptr) *version_texto = version.release();
    if (revision_texto != nullptr) *revision_texto = revision.release();
}

cabecera lee_cabecera(vnfichero *f) {
    cabecera c;
    const int64_t comienzo = vornio_ftell_i64(f);
    if (!lee_identificacion(f, c)) {
        // No header: the stream is given back as it came.
        vornio_fseek_i64(f, comienzo, VN_DESDE_EL_PRINCIPIO);
        return c;
    }
    c.hay = true;
    c.truncada = !lee_exacto(f, &c.forma, 1);
    // A form beyond the known ones is of a later program: whole, and not valid here.
    c.valida = !c.truncada && c.forma <= FORMA_LISTAS_SEGUIDAS;
    if (c.valida && hay_listas(f, c.forma)) {
        c.con_listas = c.valida = c.listas.lee(f);
        c.truncada = !c.valida;
    }
    return c;
}

void graba_cabecera(vnfichero *f, const listas_cabecera &listas) {
    const propio<char> identificacion(
        nousar_formatea("%s-%s-%c", i_MASCARA_VORN, version_versionMayor(), version_revision()));
    const std::string_view texto = identificacion.get();
    cabecera leida;
    // The reader's own rule is asked first: an identification that it would refuse fails the save.
    if (!AFIRMA(texto.size() < LIMITE_IDENTIFICACION && interpreta_identificacion(texto, leida)))
        ficheros::marca_fallo_escritura(f);
    graba_identificacion(f, identificacion.get());
    graba_cuerpo(f, FORMA_ACTUAL, listas);
}

void graba_cabecera_copiada(vnfichero *f, const cabecera &c) {
    const char *mascara = c.es_ejemplo ? i_MASCARA_EJEMPLO_VORN : i_MASCARA_VORN;
    graba_identificacion(f, (mascara + ("-" + c.version) + "-" + c.revision).c_str());
    graba_cuerpo(f, c.forma, c.listas);
}

void graba_mascara_de_ejemplo(vnfichero *f) {
    // clang-format off
    if (!AFIRMA(vnstdc_strlen(i_MASCARA_EJEMPLO_VORN) == vnstdc_strlen(i_MASCARA_VORN))) return;
    // clang-format on
    // The mask begins the identification, behind the first bytes and the length of the text.
    vornio_fseek_i64(f, sizeof COMIENZO + sizeof(uint16_t), VN_DESDE_EL_PRINCIPIO);
    graba_bytes(f, i_MASCARA_EJEMPLO_VORN, LONGITUD_MASCARA);
}

fichero abre_para_leer(const vnwchar *nomfich) { return fichero(f_lc_fopen_u(nomfich, VNU("rb"), VN_AQUI)); }

propio<vnwchar> ancho_opcional(const char *texto) {
    return propio<vnwchar>(texto != nullptr ? utunicode_ANSI_a_UNICODE(texto) : nullptr);
}

} // namespace vn
