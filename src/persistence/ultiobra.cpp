#define VN_MODULO "ultiobra (NUCLEOS.DLL)"
#include "persistence/ultiobra.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/temporal_int.h"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vtxt.h"
#include "foundation/listas/arr.h"
#include "foundation/sistema/avisos.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/error_interno_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/mensajes.hpp"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

namespace {

#define M(id, ...) VN_MENSAJE(msg_##id, "ultiobra.msg", id, __VA_ARGS__)
#include "persistence/ultiobra_msg.inl"
#undef M

constexpr uint16_t VERSION_NOMBRE_OBRA = 5;
// Version 0 was written by programs that still used the OEM code page.
constexpr uint16_t ULTIMA_VERSION_ASCII = 0;
constexpr uint32_t MAXIMO_OBRAS = 32;
constexpr uint32_t SIN_INDICE = UINT32_MAX;

using lista_propia = vn::dueno<arr_DestruyeCADENA_u>;
using texto_propio = vn::propio<vnwchar>;
using fichero_propio = vn::dueno<lc_fclose_seguro>; // closed without a report

struct obras {
    lista_propia lista{arr_CreaCADENA_u(0)};
    vnbool finalizada = FALSO;
};

void anade(obras &o, texto_propio texto) {
    vnwchar *s = texto.release();
    arr_AppendCADENAOriginal_u(o.lista.get(), &s);
}

// ---------------------------------------------------------------- the file

struct lectura {
    vnfichero *fichero;
    uint16_t version;
    obras leidas;
};

// Passes over the comment of a number, on its line or on one of its own.
void salta_comentario(vnfichero *f) {
    const auto toma_linea_de_comentario = [f] {
        const int64_t aqui = vornio_ftell_i64(f);
        const bool es_comentario = vnfichero_toma_byte(f) == ';';
        vornio_fseek_i64(f, aqui, VN_DESDE_EL_PRINCIPIO);
        if (es_comentario) vtxt_salta_linea(f);
        return es_comentario;
    };
    if (toma_linea_de_comentario()) return;
    vtxt_salta_linea(f);
    toma_linea_de_comentario();
}

// Runs inside a trap: whatever the file holds that it should not comes back as a failure.
void lee_fichero(lectura *l) {
    vnfichero *f = l->fichero;
    obras o;
    const uint16_t version = l->version = vtxt_lee_ushrt(f);
    salta_comentario(f);
    if (!AFIRMA(version <= VERSION_NOMBRE_OBRA)) return;
    // The first forms hold one name, and no mark of an orderly close.
    if (version < 2) {
        char *nombre = vtxt_lee_cadena_ansi_ascii(f, version, ULTIMA_VERSION_ASCII);
        anade(o, texto_propio(utunicode_ANSI_a_UNICODE_destruyendo_p(nombre)));
        o.finalizada = CIERTO;
        l->leidas = std::move(o);
        return;
    }
    o.finalizada = version >= 3 ? vtxt_leer_BOOL(f) : CIERTO;
    const uint32_t numFicheros = vtxt_lee_ulong(f);
    salta_comentario(f);
    if (!AFIRMA(numFicheros > 0)) return;
    // Names beyond those that are kept are not read.
    for (uint32_t i = 0; i < std::min(numFicheros, MAXIMO_OBRAS); ++i)
        anade(o, texto_propio(version < 5 ? vtxt_lee_cadena_ansi_a_unicode(f) : vtxt_lee_cadena_unicode(f)));
    l->leidas = std::move(o);
}

// The list as it stands in the file; empty, and the file deleted, if it is damaged. Nothing when it cannot be read for
// now, because another program holds it or the disk fails: then it is not to be written either.
std::optional<obras> lee_si_se_puede(const vnwchar *path_lista) {
    uint64_t tamanyo = 0;
    if (path_lista == nullptr || vdir_existe_fichero_UNICODE(path_lista) != CIERTO) return obras();
    // An empty file holds no list: it goes without a report.
    if (vdir_longitud_fichero_seguro_u(path_lista, &tamanyo) == CIERTO && tamanyo == 0) {
        vdir_borra_fichero_con_comprobacion_UNICODE(path_lista);
        return obras();
    }
    fichero_propio f(f_lc_fopen_seguro_u(path_lista, VNU("rb"), VN_AQUI));
    if (f == nullptr) return std::nullopt;
    lectura l{f.get(), 0, {}};
    const vnbool bien = trapable_ejecuta_funcion_segura(lectura, lee_fichero, &l, nullptr);
    // A fault of the disk says nothing about the list.
    if (lc_ultimo_error(f.get()) != VN_FICH_BIEN) return std::nullopt;
    f.reset();
    if (bien == CIERTO) return std::move(l.leidas);
    // The trap kept the report to itself; a list of a newer program is worth telling.
    const uint16_t version = l.version;
    AFIRMA(version <= VERSION_NOMBRE_OBRA);
    vdir_borra_fichero_con_comprobacion_UNICODE(path_lista);
    return obras();
}

obras lee(const vnwchar *path_lista) { return lee_si_se_puede(path_lista).value_or(obras()); }

struct escritura {
    const vnwchar *path;
    const obras *o;
};

// Runs inside a trap: a list that cannot be written stays as it was.
void escribe_fichero(escritura *e) {
    const arrCADENA_u *lista = e->o->lista.get();
    const uint32_t num = arr_NumElemsCADENA_u(lista);
    if (num == 0) {
        vdir_borra_fichero_si_existe_UNICODE(e->path);
        return;
    }
    vn::ficheros::temporal f(vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(e->path));
    if (f == nullptr) return;
    vtxt_escr_ushrt(VERSION_NOMBRE_OBRA, f.get());
    vtxt_escr_string("; version", f.get());
    vtxt_escr_BOOL(e->o->finalizada, f.get());
    vtxt_escr_ulong(num, f.get());
    vtxt_escr_string("; n\xFAmero de ficheros", f.get());
    for (uint32_t i = 0; i < num; ++i) vtxt_escr_cadena_unicode(arr_GetCADENA_u(lista, i), f.get());
    // What was not written whole does not take the place of the old list.
    if (vn::atrapado()) return;
    vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f.release(), e->path);
}

void escribe(const vnwchar *path_lista, const obras &o) {
    escritura e{path_lista, &o};
    trapable_ejecuta_funcion_segura(escritura, escribe_fichero, &e, nullptr);
}

// ---------------------------------------------------------------- the filter

// The path of an entry: a work held in a bracketed form has it behind the brackets.
const vnwchar *ruta_de(const vnwchar *entrada) {
    if (entrada[0] != VNU('[')) return entrada;
    const vnwchar *fin = widestr_strchr(entrada, VNU(']'));
    return fin != nullptr ? fin + 1 : entrada + 1;
}

bool pasa(const vnwchar *entrada, const arrCADENA_u *extensiones) {
    const std::basic_string_view<vnwchar> ruta(ruta_de(entrada));
    if (ruta.empty() || vdir_es_path_valido_UNICODE(ruta.data(), 0) != CIERTO) return false;
    if (extensiones == nullptr) return true;
    // A directory has no extension to compare.
    if (ruta.back() == VNU('\\')) return false;
    const texto_propio extension(vdir_extension_fichero_UNICODE(ruta.data()));
    return arr_ExisteMayMinCADENA_u(extensiones, extension.get(), nullptr) == CIERTO;
}

obras lee_filtrada(const vnwchar *path_lista, const arrCADENA_u *extensiones) {
    obras o = lee(path_lista);
    // From the end, so that a deletion moves no index that is still to come.
    for (uint32_t i = arr_NumElemsCADENA_u(o.lista.get()); i-- > 0;)
        if (!pasa(arr_GetCADENA_u(o.lista.get(), i), extensiones)) arr_BorrarCADENA_u(o.lista.get(), i);
    if (arr_NumElemsCADENA_u(o.lista.get()) == 0) o.finalizada = FALSO;
    return o;
}

// ---------------------------------------------------------------- whether a work exists

uint32_t busca(const arrCADENA_u *lista, const vnwchar *nombre_opcional, uint32_t indice_obra_opcional) {
    if (nombre_opcional == nullptr)
        return indice_obra_opcional < arr_NumElemsCADENA_u(lista) ? indice_obra_opcional : SIN_INDICE;
    if (!AFIRMA_TEXTO(indice_obra_opcional == SIN_INDICE, "indice_obra_opcional == ULONG_MAX")) return SIN_INDICE;
    return arr_BuscarCADENA_u(lista, nombre_opcional);
}

// Takes an entry out of the list as it stands in the file, so that what a filter hides is not lost.
void elimina(const vnwchar *path_lista, const vnwchar *entrada) {
    const auto o = lee_si_se_puede(path_lista);
    const uint32_t i = o ? arr_BuscarCADENA_u(o->lista.get(), entrada) : SIN_INDICE;
    if (i == SIN_INDICE) return;
    arr_BorrarCADENA_u(o->lista.get(), i);
    escribe(path_lista, *o);
}

vnbool existe_obra(const vnwchar *path_lista, const vnwchar *nombre_opcional, uint32_t indice_obra_opcional,
                   const arrCADENA_u *extensiones, ultiobra_func_existe_obra funcionExisteObra, vnwchar **nombre_obra,
                   vnbool *eliminada) {
    if (nombre_obra != nullptr) *nombre_obra = nullptr;
    if (eliminada != nullptr) *eliminada = FALSO;
    if (!AFIRMA_NO_NULO(funcionExisteObra)) return FALSO;
    const obras o = lee_filtrada(path_lista, extensiones);
    const uint32_t indice = busca(o.lista.get(), nombre_opcional, indice_obra_opcional);
    if (indice == SIN_INDICE) return FALSO;
    const vnwchar *entrada = arr_GetCADENA_u(o.lista.get(), indice);
    if (funcionExisteObra(entrada) == CIERTO) {
        if (nombre_obra != nullptr) *nombre_obra = widestr_copia(entrada);
        return CIERTO;
    }
    if (ultiobra_pregunta_eliminar_obra_reciente(entrada) == CIERTO) {
        elimina(path_lista, entrada);
        if (eliminada != nullptr) *eliminada = CIERTO;
    }
    return FALSO;
}

} // namespace

void ultiobra_guarda_nombre_ultima_obra_u(const vnwchar *nombre, const vnwchar *path_lista) {
    if (path_lista == nullptr) return;
    auto o = lee_si_se_puede(path_lista);
    if (!o) return;
    arrCADENA_u *lista = o->lista.get();
    uint32_t i = 0;
    if (nombre != nullptr) {
        while (arr_ExisteMayMinCADENA_u(lista, nombre, &i) == CIERTO) arr_BorrarCADENA_u(lista, i);
        // An empty head says "no work open"; there is one now.
        if (arr_NumElemsCADENA_u(lista) > 0 && *arr_GetCADENA_u(lista, 0) == 0) arr_SetCADENA_u(lista, 0, nombre);
        else arr_InsertarCADENA_u(lista, 0, nombre);
    } else if (arr_NumElemsCADENA_u(lista) > 0 && *arr_GetCADENA_u(lista, 0) != 0) { // said once
        arr_InsertarCADENA_u(lista, 0, VNU(""));
    }
    while (arr_NumElemsCADENA_u(lista) > MAXIMO_OBRAS) arr_BorrarCADENA_u(lista, arr_NumElemsCADENA_u(lista) - 1);
    o->finalizada = FALSO;
    escribe(path_lista, *o);
}

void ultiobra_finaliza_ultima_obra_u(const vnwchar *path_lista) {
    if (path_lista == nullptr) return;
    auto o = lee_si_se_puede(path_lista);
    if (!o) return;
    o->finalizada = CIERTO;
    escribe(path_lista, *o);
}

arrCADENA_u *ultiobra_lee_ultimas_obras_u(const vnwchar *path_lista, const arrCADENA_u *extensiones) {
    return lee_filtrada(path_lista, extensiones).lista.release();
}

vnwchar *ultiobra_lee_nombre_ultima_obra_finalizada_u(const vnwchar *path_lista, const arrCADENA_u *extensiones) {
    const obras o = lee_filtrada(path_lista, extensiones);
    return o.finalizada == CIERTO ? arr_GetCopiaCADENA_u(o.lista.get(), 0) : nullptr;
}

vnbool ultiobra_indice_existe_obra_reciente(const vnwchar *path_lista, uint32_t indice, const arrCADENA_u *extensiones,
                                            ultiobra_func_existe_obra funcionExisteObra, vnwchar **nombre_obra,
                                            vnbool *eliminada) {
    return existe_obra(path_lista, nullptr, indice, extensiones, funcionExisteObra, nombre_obra, eliminada);
}

vnbool ultiobra_nombre_existe_obra_reciente(const vnwchar *path_lista, const vnwchar *nombre_fichero_obra,
                                            ultiobra_func_existe_obra funcionExisteObra, vnwchar **nombre_obra,
                                            vnbool *eliminada) {
    if (nombre_obra != nullptr) *nombre_obra = nullptr;
    if (eliminada != nullptr) *eliminada = FALSO;
    if (!AFIRMA_NO_NULO(nombre_fichero_obra)) return FALSO;
    return existe_obra(path_lista, nombre_fichero_obra, SIN_INDICE, nullptr, funcionExisteObra, nombre_obra, eliminada);
}

vnbool ultiobra_pregunta_eliminar_obra_reciente(const vnwchar *nombre_fichero_obra) {
    if (!AFIRMA_NO_NULO(nombre_fichero_obra)) return FALSO;
    const texto_propio motivo(textomsgu_obtener_mensaje(msg_160946.u, nombre_fichero_obra));
    const texto_propio pregunta(
        copiaforu_nousar_formatea(VNU("%s\n%s"), motivo.get(), nousar_msglocal_original_u(msg_160947.u)));
    return avisobas_pregunta_u(pregunta.get());
}
