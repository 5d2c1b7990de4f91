#define VN_MODULO "vornbin (NUCLEOS.DLL)"
#include "persistence/vornbin_fichero.h"

#include "foundation/listas/arr.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "persistence/ultiobra.h"
#include "persistence/vornbin_cabecera_priv.h"

namespace vn {
namespace {

ficheros::temporal abre_temporal(const vnwchar *nomfich) {
    return ficheros::temporal(vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(nomfich));
}

// The lists of the file that is about to be replaced. A header that is damaged has none: it must not stand in the way
// of saving. False, reported, if there is a file that cannot be read: saving would lose what it holds.
bool lee_listas_existentes(const vnwchar *nomfich, listas_cabecera *listas) {
    vnestado_fichero estado{};
    const vnerror_fichero error = operaciones_fichero_actuales()->estado(nomfich, &estado);
    if (error == VN_FICH_NO_EXISTE || (error == VN_FICH_BIEN && estado.es_directorio == CIERTO)) return true;
    // Another program may hold it for a moment: it is tried for longer than a plain opening.
    const fichero f(f_lc_fopen_en_varios_intentos_u(nomfich, VNU("rb"), VN_AQUI));
    if (f == nullptr) return false;
    const cabecera c = lee_cabecera(f.get());
    *listas = c.listas;
    // A header in a form of later programs: its lists cannot be kept.
    if (!c.valida && !c.truncada) error_interno_msg_u(VNU("fichero_valido == CIERTO"), VN_AQUI, nomfich, 0);
    if (lc_ha_fallado(f.get()) == FALSO) return true;
    lc_error_leyendo_fichero(f.get());
    return false;
}

ficheros::temporal abre_con_cabecera(const vnwchar *nomfich, const vnwchar *obra, const arrCADENA_u *nombres,
                                     const arrCADENA_u *valores) {
    // Until the save is in its place no work counts as the open one.
    ultiobra_guarda_nombre_ultima_obra_u(nullptr, obra);
    // Held before the lists are read: no other saver puts fields there in between.
    ficheros::temporal f = abre_temporal(nomfich);
    listas_cabecera listas;
    if (f == nullptr || !lee_listas_existentes(nomfich, &listas)) return nullptr;
    if (nombres != nullptr) listas.pon_campos(nombres, valores);
    graba_cabecera(f.get(), listas);
    return f;
}

void graba_prologo(vnfichero *f, uint16_t version, const char *firma, const vnwchar *titulo) {
    // The title is stored in the code page: what does not come back from it is told, and saved all the same.
    const propio<char> titulo_ansi(unicode_UNICODE_a_ANSI(titulo));
    const propio<vnwchar> titulo_leido(unicode_convierte_ANSI_a_UNICODE(titulo_ansi.get()));
    AFIRMA_TEXTO(vista_u(titulo_leido.get()) == titulo, "vornbin: el titulo no cabe en la pagina de codigos");
    bin_graba_modo_debug(f);
    bin_graba_ushort(version, f);
    bin_graba_cadena(firma, f);
    bin_graba_cadena(titulo_ansi.get(), f);
}

vnfichero *abre_con_cabecera_y_prologo(const vnwchar *nomfich, uint16_t version, const char *firma,
                                       const vnwchar *titulo, const arrCADENA_u *nombres, const arrCADENA_u *valores,
                                       const vnwchar *obra) {
    ficheros::temporal f = abre_con_cabecera(nomfich, obra, nombres, valores);
    if (f != nullptr) graba_prologo(f.get(), version, firma, titulo);
    return f.release();
}

// Saving over a sample keeps it a sample. False, reported, if the file cannot be looked at.
bool mira_si_es_ejemplo(const vnwchar *nomfich, bool *es_ejemplo) {
    vnestado_fichero estado{};
    *es_ejemplo = false;
    if (!esta_en_directorio_ejemplos(nomfich) ||
        operaciones_fichero_actuales()->estado(nomfich, &estado) == VN_FICH_NO_EXISTE)
        return true;
    const fichero f(f_lc_fopen_en_varios_intentos_u(nomfich, VNU("rb"), VN_AQUI));
    if (f == nullptr) return false;
    *es_ejemplo = lee_cabecera(f.get()).es_ejemplo;
    if (lc_ha_fallado(f.get()) == FALSO || lc_ultimo_error(f.get()) == VN_FICH_BIEN) return true;
    lc_error_leyendo_fichero(f.get());
    return false;
}

// The mask of a sample over that of what was just written, if it has a header. False, reported, if it cannot be told.
bool hace_ejemplo(vnfichero *f) {
    if (lc_fflush(f) == FALSO) return false; // it is read back through a stream of its own
    const fichero escrito(f_lc_fopen_u(lc_nombre_fichero(f), VNU("rb"), VN_AQUI));
    if (escrito == nullptr) return false;
    const bool hay = lee_cabecera(escrito.get()).hay;
    if (lc_ha_fallado(escrito.get()) == CIERTO) {
        lc_error_leyendo_fichero(escrito.get());
        return false;
    }
    if (hay) graba_mascara_de_ejemplo(f);
    return true;
}

vnbool cierra_y_reemplaza(ficheros::temporal f, const vnwchar *nomfich) {
    bool es_ejemplo = false;
    // A save that has failed already needs no mask: its close tells it, and the old file stays.
    if (lc_ha_fallado(f.get()) == FALSO &&
        (!mira_si_es_ejemplo(nomfich, &es_ejemplo) || (es_ejemplo && !hace_ejemplo(f.get()))))
        return FALSO;
    return vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f.release(), nomfich);
}

// Reads a text of the prologue; null after a failure to read.
propio<char> lee_texto_del_prologo(vnfichero *f, uint16_t version, uint16_t version_ascii) {
    propio<char> texto(bin_lee_cadena_ansi_ascii(f, version, version_ascii));
    if (lc_ha_fallado(f) == CIERTO) texto.reset();
    return texto;
}

// The stream behind its header, or closed where that is no valid one.
fichero abre_tras_cabecera(const vnwchar *nomfich, cabecera *c) {
    fichero f = abre_para_leer(nomfich);
    if (f == nullptr) return f;
    *c = lee_cabecera(f.get());
    if (c->truncada) {
        lc_error_leyendo_fichero(f.get());
        f.reset();
        return f;
    }
    const vnbool valido = vn::logico(c->valida);
    if (!AFIRMA(valido == CIERTO)) f.reset();
    return f;
}

template <class T> void inicia(T *salida, T valor) {
    if (salida != nullptr) *salida = valor;
}

} // namespace
} // namespace vn

vnfichero *vornbin_abre_fichero_para_escritura_u(const vnwchar *nomfich, const vnwchar *obra) {
    if (!AFIRMA_NO_NULO(nomfich)) return nullptr;
    return vn::abre_con_cabecera(nomfich, obra, nullptr, nullptr).release();
}

vnfichero *vornbin_abre_fichero_para_escritura_con_version_y_descripcion_u(const vnwchar *nomfich, uint16_t version,
                                                                           const char *firma, const vnwchar *titulo,
                                                                           const vnwchar *obra) {
    if (!EXIGE(nomfich, firma, titulo)) return nullptr;
    return vn::abre_con_cabecera_y_prologo(nomfich, version, firma, titulo, nullptr, nullptr, obra);
}

vnfichero *vornbin_abre_fichero_para_escritura_con_version_descripcion_y_campos_u(
    const vnwchar *nomfich, uint16_t version, const char *firma, const vnwchar *titulo, const arrCADENA_u *nombres,
    const arrCADENA_u *valores, const vnwchar *obra) {
    if (!EXIGE(nomfich, firma, titulo, nombres, valores) ||
        !AFIRMA(arr_NumElemsCADENA_u(nombres) == arr_NumElemsCADENA_u(valores)))
        return nullptr;
    return vn::abre_con_cabecera_y_prologo(nomfich, version, firma, titulo, nombres, valores, obra);
}

vnfichero *vornbin_abre_fichero_para_escritura_sin_cabecera_version_programa_u(const vnwchar *nomfich, uint16_t version,
                                                                               const char *firma, const vnwchar *titulo,
                                                                               const vnwchar *obra) {
    if (!EXIGE(nomfich, firma, titulo)) return nullptr;
    ultiobra_guarda_nombre_ultima_obra_u(nullptr, obra);
    vn::ficheros::temporal f = vn::abre_temporal(nomfich);
    if (f != nullptr) vn::graba_prologo(f.get(), version, firma, titulo);
    return f.release();
}

vnfichero *vornbin_abre_fichero_para_escritura_sin_cabecera(const char *nomfich, const char *obra) {
    if (!AFIRMA_NO_NULO(nomfich)) return nullptr;
    ultiobra_guarda_nombre_ultima_obra_u(nullptr, vn::ancho_opcional(obra).get());
    return vn::abre_temporal(vn::ancho_opcional(nomfich).get()).release();
}

vnfichero *vornbin_abre_basico_fichero_para_escritura(const char *nomfich) {
    return vornbin_abre_fichero_para_escritura_sin_cabecera(nomfich, nullptr);
}

vnbool vornbin_cierra_fichero_abierto_para_escritura_u(vnfichero *f, const vnwchar *nomfich, const vnwchar *obra) {
    if (!AFIRMA_NO_NULO(f)) return FALSO;
    // Owned from here on: the stream is closed even where the name is missing.
    vn::fichero abierto(f);
    if (!AFIRMA_NO_NULO(nomfich)) return FALSO;
    // The list of works hears of it only once the file is in its place.
    const vnbool grabado = vn::cierra_y_reemplaza(vn::ficheros::temporal(abierto.release()), nomfich);
    if (grabado == CIERTO) ultiobra_guarda_nombre_ultima_obra_u(nomfich, obra);
    return grabado;
}

vnbool vornbin_cierra_fichero_abierto_para_escritura(vnfichero *f, const char *nomfich, const char *obra) {
    if (!AFIRMA_NO_NULO(f)) return FALSO;
    vn::fichero abierto(f);
    if (!AFIRMA_NO_NULO(nomfich)) return FALSO;
    const vn::propio<vnwchar> nombre = vn::ancho_opcional(nomfich), obra_ancho = vn::ancho_opcional(obra);
    return vornbin_cierra_fichero_abierto_para_escritura_u(abierto.release(), nombre.get(), obra_ancho.get());
}

vnbool vornbin_cierra_basico_fichero_abierto_para_escritura(vnfichero *f, const char *nomfich) {
    return vornbin_cierra_fichero_abierto_para_escritura(f, nomfich, nullptr);
}

void vornbin_abandona_fichero_abierto_para_escritura_u(vnfichero *f, const vnwchar *nomfich) {
    if (!AFIRMA_NO_NULO(f)) return;
    // The name is only asked for: the stream knows its own.
    vornfile_abandonar_fichero_escritura(f);
    AFIRMA_NO_NULO(nomfich);
}

vnfichero *vornbin_abre_fichero_para_lectura_u(const vnwchar *nomfich, char **version_texto, char **revision_texto,
                                               vnbool *es_ejemplo) {
    // The outputs are set even where a check fails.
    vn::inicia<char *>(version_texto, nullptr);
    vn::inicia<char *>(revision_texto, nullptr);
    vn::inicia(es_ejemplo, FALSO);
    if (!AFIRMA_NO_NULO(nomfich)) return nullptr;
    vn::cabecera c;
    vn::fichero f = vn::abre_tras_cabecera(nomfich, &c);
    if (f == nullptr) return nullptr;
    if (c.hay) vn::da_textos(c, version_texto, revision_texto);
    vn::inicia(es_ejemplo, static_cast<vnbool>(c.es_ejemplo));
    return f.release();
}

vnfichero *vornbin_abre_fichero_para_lectura_unicode(const vnwchar *nomfich, const vnwchar *obra) {
    if (!AFIRMA_NO_NULO(nomfich)) return nullptr;
    ultiobra_guarda_nombre_ultima_obra_u(nullptr, obra);
    return vornbin_abre_fichero_para_lectura_u(nomfich, nullptr, nullptr, nullptr);
}

vnfichero *vornbin_abre_fichero_para_lectura_con_version_y_descripcion_u(const vnwchar *nomfich,
                                                                         uint16_t version_actual, const char *firma,
                                                                         const vnwchar *obra, uint16_t *version,
                                                                         vnwchar **titulo, uint16_t version_ascii,
                                                                         vnbool *es_ejemplo, vnbool *version_superior) {
    if (!EXIGE(nomfich, firma, version, titulo)) return nullptr;
    *version = 0;
    *titulo = nullptr;
    vn::inicia(es_ejemplo, FALSO);
    vn::inicia(version_superior, FALSO);
    ultiobra_guarda_nombre_ultima_obra_u(nullptr, obra);

    // The header, then the prologue: debug byte, version, signature, title.
    vn::cabecera c;
    vn::fichero f = vn::abre_tras_cabecera(nomfich, &c);
    if (f == nullptr) return nullptr;
    vn::inicia(es_ejemplo, static_cast<vnbool>(c.es_ejemplo));
    vn::bin_lee_modo_debug(f.get());
    *version = bin_lee_ushort(f.get());
    if (lc_ha_fallado(f.get()) == CIERTO) return nullptr;
    // With `version_superior` the caller is told of a later version and reads on; without it the file is refused.
    if (*version > version_actual && version_superior != nullptr) *version_superior = CIERTO;
    else if (!AFIRMA(*version <= version_actual)) return nullptr;

    const vn::propio<char> buf = vn::lee_texto_del_prologo(f.get(), *version, version_ascii);
    if (buf == nullptr) return nullptr;
    // A signature that differs is that of another kind of file.
    if (cad_cadenas_iguales(buf.get(), firma) == FALSO) {
        error_interno_msg_u(VNU("cad_cadenas_iguales(buf, firma)"), VN_AQUI, nomfich, 0);
        return nullptr;
    }
    const vn::propio<char> titulo_ansi = vn::lee_texto_del_prologo(f.get(), *version, version_ascii);
    if (titulo_ansi == nullptr) return nullptr;
    *titulo = unicode_convierte_ANSI_a_UNICODE(titulo_ansi.get());
    return f.release();
}

namespace vn {
namespace {

enum class resultado { bien, no_se_lee, version_superior, otra_firma };

// The prologue of a file without header. The stream is open only after `bien`.
resultado abre_tras_prologo(const vnwchar *nomfich, uint16_t version_actual, const char *firma, uint16_t version_ascii,
                            fichero *f, uint16_t *version, propio<char> *titulo) {
    fichero abierto = abre_para_leer(nomfich);
    if (abierto == nullptr) return resultado::no_se_lee;
    bin_lee_modo_debug(abierto.get());
    *version = bin_lee_ushort(abierto.get());
    if (lc_ha_fallado(abierto.get()) == CIERTO) return resultado::no_se_lee;
    if (*version > version_actual) return resultado::version_superior;
    const propio<char> buf = lee_texto_del_prologo(abierto.get(), *version, version_ascii);
    if (buf == nullptr) return resultado::no_se_lee;
    if (cad_cadenas_iguales(buf.get(), firma) == FALSO) return resultado::otra_firma;
    *titulo = lee_texto_del_prologo(abierto.get(), *version, version_ascii);
    if (*titulo == nullptr) return resultado::no_se_lee;
    *f = std::move(abierto);
    return resultado::bien;
}

} // namespace
} // namespace vn

vnfichero *vornbin_abre_fichero_para_lectura_sin_cabecera_version_programa_u(const vnwchar *nomfich,
                                                                             uint16_t version_actual, const char *firma,
                                                                             const vnwchar *obra, uint16_t *version,
                                                                             char **titulo, uint16_t version_ascii) {
    if (!EXIGE(nomfich, firma, version, titulo)) return nullptr;
    *version = 0;
    *titulo = nullptr;
    ultiobra_guarda_nombre_ultima_obra_u(nullptr, obra);
    vn::fichero f;
    vn::propio<char> titulo_leido;
    switch (vn::abre_tras_prologo(nomfich, version_actual, firma, version_ascii, &f, version, &titulo_leido)) {
    case vn::resultado::bien: *titulo = titulo_leido.release(); return f.release();
    case vn::resultado::version_superior:
        error_interno_msg_u(VNU("*version <= version_actual"), VN_AQUI, nomfich, 0);
        return nullptr;
    case vn::resultado::otra_firma:
        error_interno_msg_u(VNU("cad_cadenas_iguales(buf, firma)"), VN_AQUI, nomfich, 0);
        return nullptr;
    case vn::resultado::no_se_lee: break;
    }
    return nullptr;
}

vnbool vornbin_se_abre_fichero_para_lectura_sin_cabecera_version_programa_u(const vnwchar *nomfich,
                                                                            uint16_t version_actual, const char *firma,
                                                                            const vnwchar *obra, uint16_t version_ascii,
                                                                            vnfichero **f, uint16_t *version,
                                                                            char **titulo) {
    if (!EXIGE(nomfich, firma, f, version, titulo)) return FALSO;
    *f = nullptr;
    // The largest number says that no version was read.
    *version = UINT16_MAX;
    *titulo = nullptr;
    vn::fichero abierto;
    vn::propio<char> titulo_leido;
    uint16_t version_leida = 0;
    if (vn::abre_tras_prologo(nomfich, version_actual, firma, version_ascii, &abierto, &version_leida, &titulo_leido) !=
        vn::resultado::bien)
        return FALSO;
    // Only now does no work count as open: an attempt that failed leaves the list as it was.
    ultiobra_guarda_nombre_ultima_obra_u(nullptr, obra);
    *version = version_leida;
    *titulo = titulo_leido.release();
    *f = abierto.release();
    return CIERTO;
}

void vornbin_cierra_fichero_abierto_para_lectura_u(vnfichero *f, const vnwchar *nomfich, const vnwchar *obra) {
    if (!AFIRMA_NO_NULO(f)) return;
    // Closed even where the name is missing.
    lc_fclose(f);
    if (!AFIRMA_NO_NULO(nomfich)) return;
    ultiobra_guarda_nombre_ultima_obra_u(nomfich, obra);
}
