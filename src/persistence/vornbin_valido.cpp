#define VN_MODULO "vornbin (NUCLEOS.DLL)"
#include "foundation/listas/arr.h"
#include "foundation/sistema/avisos.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/mensajes.hpp"
#include "foundation/texto/widestr.h"
#include "persistence/vornbin_cabecera_priv.h"

namespace vn {
namespace {

#define M(id, ...) VN_MENSAJE(msg_##id, "vornbin.msg", id, __VA_ARGS__)
#include "persistence/vornbin_msg.inl"
#undef M

// Opens a file and reads its header; false, reported, when there is no file to read.
bool abre_y_lee_cabecera(const vnwchar *nomfich, fichero *f, cabecera *c) {
    *f = abre_para_leer(nomfich);
    if (!AFIRMA_NO_NULO(*f)) return false;
    *c = lee_cabecera(f->get());
    return true;
}

// The length of a text of the prologue, without a tag, read only if the file goes on.
bool lee_longitud(vnfichero *f, uint16_t *n) { return f_lc_fread_sin_error(n, sizeof *n, 1, f) == 1; }

// A text of `n` bytes by the ANSI or ASCII rule; null where the file ends before.
propio<char> lee_texto(vnfichero *f, uint16_t n, uint16_t version, uint16_t version_ascii) {
    if (lc_quedan(f, n, 1) == FALSO) return nullptr;
    propio<char> texto(creacadena(n));
    f_lc_fread_ansi_ascii(texto.get(), 1, n, f, version, version_ascii, VN_AQUI);
    return texto;
}

// The title of a file that can be read, null for any other.
propio<char> titulo_si_es_valido(vnfichero *f, uint16_t version_actual, const char *firma, uint16_t version_ascii) {
    // The debug byte, the version and the lengths of two texts.
    constexpr int64_t MINIMO = 7;
    const auto n = static_cast<int64_t>(strlen(firma));
    if (lc_tamanyo_fichero_i64(f) < n + MINIMO) return nullptr;
    if (!lee_cabecera(f).valida || !bin_lee_modo_debug(f) || lc_quedan(f, sizeof(uint16_t), 1) == FALSO) return nullptr;
    const uint16_t version = bin_lee_ushort(f);
    // The file of a later program cannot be read.
    if (version > version_actual) return nullptr;
    uint16_t longitud_firma = 0, longitud_titulo = 0;
    // A signature of another length is not even read.
    if (!lee_longitud(f, &longitud_firma) || longitud_firma != n) return nullptr;
    const propio<char> leida = lee_texto(f, longitud_firma, version, version_ascii);
    if (leida == nullptr || cad_cadenas_iguales(leida.get(), firma) == FALSO) return nullptr;
    if (!lee_longitud(f, &longitud_titulo)) return nullptr;
    return lee_texto(f, longitud_titulo, version, version_ascii);
}

bool comprueba_marca(const char *id, vnfichero *f) {
    const size_t n = strlen(id);
    auto *v = reinterpret_cast<vnfichero_ventana *>(f);
    // The whole mark lies in the window of the stream: compared there.
    if (v->fin_lectura - v->pos >= static_cast<ptrdiff_t>(n)) {
        if (memcmp(v->pos, id, n) != 0) return false;
        v->pos += n;
        return true;
    }
    // At the edge of the window: byte by byte, and back to where it began if the mark is another.
    const int64_t pos = vornio_ftell_i64(f);
    for (; *id != 0; ++id) {
        if (vnfichero_toma_byte(f) == static_cast<unsigned char>(*id)) continue;
        // A pipe cannot go back past its buffer: what was taken is missing from what follows.
        if (vornio_fseek_i64(f, pos, VN_DESDE_EL_PRINCIPIO) == FALSO) lc_error_leyendo_fichero(f);
        return false;
    }
    return true;
}

} // namespace
} // namespace vn

vnbool vornbin_hay_cabecera_en_fichero_u(const vnwchar *nomfich, char **version_texto, char **revision_texto,
                                         vnbool *es_ejemplo) {
    if (version_texto != nullptr) *version_texto = nullptr;
    if (revision_texto != nullptr) *revision_texto = nullptr;
    if (es_ejemplo != nullptr) *es_ejemplo = FALSO;
    if (!AFIRMA_NO_NULO(nomfich)) return FALSO;
    vn::fichero f;
    vn::cabecera c;
    if (!vn::abre_y_lee_cabecera(nomfich, &f, &c)) return FALSO;
    const vnbool fichero_valido = vn::logico(c.valida);
    if (!AFIRMA(fichero_valido == CIERTO) || !c.hay) return FALSO;
    vn::da_textos(c, version_texto, revision_texto);
    if (es_ejemplo != nullptr) *es_ejemplo = c.es_ejemplo;
    return CIERTO;
}

vnbool vornbin_es_fichero_vorn_valido(const char *nomfich) {
    if (!AFIRMA_NO_NULO(nomfich)) return FALSO;
    vn::fichero f;
    vn::cabecera c;
    return vn::abre_y_lee_cabecera(vn::ancho_opcional(nomfich).get(), &f, &c) && c.valida;
}

vnbool bin_fichero_valido(vnfichero *f, uint16_t version_actual, const char *firma, char **titulo,
                          uint16_t version_ascii) {
    if (titulo != nullptr) *titulo = nullptr;
    if (!EXIGE(f, firma)) return FALSO;
    vn::propio<char> leido = vn::titulo_si_es_valido(f, version_actual, firma, version_ascii);
    if (leido == nullptr) return FALSO;
    if (titulo != nullptr) *titulo = leido.release();
    return CIERTO;
}

vnbool bin_fichero_valido_u(const vnwchar *nomfich, uint16_t version_actual, const char *firma, uint32_t tamanyo_titulo,
                            char *titulo, uint16_t version_ascii) {
    if (!EXIGE(nomfich, firma)) return FALSO;
    const vn::fichero f = vn::abre_para_leer(nomfich);
    const vn::propio<char> leido =
        f != nullptr ? vn::titulo_si_es_valido(f.get(), version_actual, firma, version_ascii) : nullptr;
    // One message to the user for all the reasons.
    if (leido == nullptr) {
        const vn::propio<vnwchar> mensaje(textomsgu_obtener_mensaje(vn::msg_32342.u, nomfich));
        vnaviso_aviso_interno_como_error_u(mensaje.get());
        return FALSO;
    }
    if (titulo != nullptr) vnstdc_strncpy(titulo, leido.get(), tamanyo_titulo);
    return CIERTO;
}

vnbool vornbin_lee_datos_cabecera_debug_soporte(const char *nomfich, char **version_texto, char **revision_texto,
                                                vnbool *es_ejemplo, vnwchar **contenido) {
    if (!EXIGE(nomfich, version_texto, revision_texto, es_ejemplo, contenido)) return FALSO;
    *version_texto = *revision_texto = nullptr;
    *es_ejemplo = FALSO;
    *contenido = nullptr;
    vn::cabecera c;
    if (const vn::fichero f = vn::abre_para_leer(vn::ancho_opcional(nomfich).get()); f != nullptr)
        c = vn::lee_cabecera(f.get());
    // The reason goes where the fields would have gone.
    if (!c.hay || !c.valida) {
        *contenido = widestr_copia(!c.hay ? VNU("ERROR - No hay cabecera") : VNU("ERROR - El fichero no es válido"));
        return FALSO;
    }
    vn::texto_u texto;
    c.listas.recorre_campos([&texto](const vn::texto_u &nombre, const vn::texto_u &valor) {
        texto.append(nombre).append(VNU("=")).append(valor).append(VNU("\n"));
    });
    vn::propio<vnwchar> copia(widestr_copia(texto.c_str()));
    vn::da_textos(c, version_texto, revision_texto);
    *contenido = copia.release();
    *es_ejemplo = c.es_ejemplo;
    return CIERTO;
}

vnbool vornbin_lee_campos_cabecera_u(const vnwchar *nomfich, arrCADENA_u **nombres, arrCADENA_u **valores) {
    if (!EXIGE(nomfich, nombres, valores)) return FALSO;
    *nombres = *valores = nullptr;
    // The caller is given two arrays even where there is nothing to put in them.
    vn::dueno<arr_DestruyeCADENA_u> leidos_nombres(arr_CreaCADENA_u(0)), leidos_valores(arr_CreaCADENA_u(0));
    const vn::fichero f = vn::abre_para_leer(nomfich);
    const vn::cabecera c = f != nullptr ? vn::lee_cabecera(f.get()) : vn::cabecera{};
    if (c.valida)
        c.listas.recorre_campos([&](const vn::texto_u &nombre, const vn::texto_u &valor) {
            arr_AppendCADENA_u(leidos_nombres.get(), nombre.c_str());
            arr_AppendCADENA_u(leidos_valores.get(), valor.c_str());
        });
    *nombres = leidos_nombres.release();
    *valores = leidos_valores.release();
    return c.hay && c.valida;
}

vnbool vornbin_se_comprueba_marca(const char *id, vnfichero *f) {
    return vn::logico(EXIGE(id, f) && vn::comprueba_marca(id, f));
}

vnbool vornbin_se_comprueba_marca64(const char *id, vnfichero *f) {
    return vn::logico(EXIGE(id, f) && vn::comprueba_marca(id, f));
}
