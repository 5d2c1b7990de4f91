#define VN_MODULO "ultfichsel (NUCLEOS.DLL)"
#include "environment/ultfichsel.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/temporal_int.h"
#include "foundation/ficheros/vdir.h"
#include "foundation/listas/arr.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/error_interno_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "persistence/vornsave.h"
#include <utility>

namespace {

constexpr uint8_t i_VERSION_FICHERO = 3;

// The file last chosen for one purpose.
struct registro {
    char *clave;
    vnwchar *raiz;
    vnwchar *nombre_fichero;
};

void destruye_registro(registro **r) {
    vornstr_destruye_opcional(&(*r)->clave);
    widestr_destruye_opcional(&(*r)->raiz);
    widestr_destruye_opcional(&(*r)->nombre_fichero);
    vornspy_free_pp(r, sizeof(registro));
}

void destruye_lista(arrPuntero **a) { arr_DestruyeEstructurasST(a, registro, destruye_registro); }
void destruye_array(arrPuntero **a) { arr_DestruyePunteroST(a, registro); }

using lista_propia = vn::dueno<destruye_lista>;
using registro_propio = vn::dueno<destruye_registro>;
using protocolo_propio = vn::dueno<vornsave_libera>;
using texto_propio = vn::propio<vnwchar>;

registro_propio nuevo_registro() {
    return registro_propio(static_cast<registro *>(vornspy_calloc(1, sizeof(registro))));
}

// A whole record becomes the list's: one that was cut short half way would stand there without its texts.
registro *anade_registro(arrPuntero *lista, registro_propio r) {
    arr_AppendPunteroST(lista, r.get(), registro);
    return r.release();
}

registro *busca(const arrPuntero *lista, const char *clave) {
    for (uint32_t i = 0; i < arr_NumElemsPunteroST(lista, registro); ++i) {
        registro *r = arr_GetPunteroST(lista, i, registro);
        if (cad_cadenas_iguales(r->clave, clave) == CIERTO) return r;
    }
    return nullptr;
}

void graba_registro(const registro *r, vornsave *v) {
    vornsave_graba_uchar(i_VERSION_FICHERO, v);
    vornsave_graba_cadena(r->clave, v);
    vornsave_graba_cadena_unicode(r->raiz, v);
    vornsave_graba_cadena_unicode(r->nombre_fichero, v);
}

struct lectura {
    vnfichero *fichero;
    lista_propia lista{arr_CreaPunteroST(0, registro)};
    uint8_t version = 0;
};

registro *lee_registro(lectura *l, vornsave *v) {
    registro_propio r = nuevo_registro();
    const uint8_t version = l->version = vornsave_lee_uchar(v);
    if (!AFIRMA(version <= i_VERSION_FICHERO)) return nullptr;
    r->clave = vornsave_lee_cadena(v);
    // Version 1 brought the root, version 2 a wide name, version 3 a wide root.
    if (version == 0) r->raiz = widestr_copia(VNU(""));
    else r->raiz = version < 3 ? vornsave_lee_cadena_ANSI_a_unicode(v) : vornsave_lee_cadena_unicode(v);
    r->nombre_fichero = version < 2 ? vornsave_lee_cadena_ANSI_a_unicode(v) : vornsave_lee_cadena_unicode(v);
    return anade_registro(l->lista.get(), std::move(r));
}

// Both run inside a trap: what the file holds or the disk refuses comes back as a failure.
void lee_fichero(lectura *l) {
    const protocolo_propio v(vornsave_registra_bin(l->fichero));
    // The records are the list's; the array that comes back only repeats them.
    const vn::dueno<destruye_array> repetidos(
        vornsave_lee_arr_punteros_con_1_dato_extraST(v.get(), registro, lectura, lee_registro, l));
}

struct escritura {
    const vnwchar *ruta;
    const arrPuntero *lista;
};

void escribe_fichero(escritura *e) {
    vdir_crea_directorios_fichero_si_es_posible_UNICODE(e->ruta);
    vn::ficheros::temporal f(vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(e->ruta));
    if (f == nullptr) return;
    {
        // Closed before the file: what it finds wrong at its end must still fail the save.
        const protocolo_propio v(vornsave_registra_bin(f.get()));
        vornsave_graba_arr_punterosST(e->lista, v.get(), registro, graba_registro);
    }
    // What was not written whole does not take the place of the old file.
    if (vn::atrapado()) return;
    vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(f.release(), e->ruta);
}

texto_propio ruta_del_fichero() {
    return texto_propio(fichconf_dame_ruta_fichero_en_directorio_configuracion(VNU("pnlselfic.cfg")));
}

} // namespace

arrPuntero *ultfichsel_lee_todos_los_ultimos_ficheros_seleccionados(void) {
    const texto_propio ruta = ruta_del_fichero();
    lectura l{};
    // Nothing was chosen yet: an empty list, and no report.
    if (ruta == nullptr || vdir_existe_fichero_UNICODE(ruta.get()) != CIERTO) return l.lista.release();
    const vn::dueno<lc_fclose_seguro> f(f_lc_fopen_seguro_u(ruta.get(), VNU("rb"), VN_AQUI));
    if (f == nullptr) return l.lista.release();
    l.fichero = f.get();
    if (trapable_ejecuta_funcion_segura(lectura, lee_fichero, &l, nullptr) == CIERTO) return l.lista.release();
    // Of a damaged file no record is kept.
    l.lista.reset(arr_CreaPunteroST(0, registro));
    // The trap kept the report to itself; a file of a newer program is worth telling.
    const uint8_t version = l.version;
    AFIRMA(version <= i_VERSION_FICHERO);
    return l.lista.release();
}

void ultfichsel_graba_todos_los_ultimos_ficheros_seleccionados(const arrPuntero *ultimos_ficheros_seleccionados) {
    if (!AFIRMA_NO_NULO(ultimos_ficheros_seleccionados)) return;
    const texto_propio ruta = ruta_del_fichero();
    if (ruta == nullptr) return;
    escritura e{ruta.get(), ultimos_ficheros_seleccionados};
    trapable_ejecuta_funcion_segura(escritura, escribe_fichero, &e, nullptr);
}

void ultfichsel_registra_nombre_fichero(arrPuntero *ultimos_fich_seleccionados, const char *clave, const vnwchar *raiz,
                                        const vnwchar *nombre_fichero) {
    if (!EXIGE(ultimos_fich_seleccionados, clave, raiz, nombre_fichero)) return;
    // Copied first: the texts may be the record's own.
    texto_propio raiz_nueva(widestr_copia(raiz)), nombre_nuevo(widestr_copia(nombre_fichero));
    registro *r = busca(ultimos_fich_seleccionados, clave);
    if (r == nullptr) {
        registro_propio nuevo = nuevo_registro();
        nuevo->clave = cad_copia_cadena(clave);
        r = anade_registro(ultimos_fich_seleccionados, std::move(nuevo));
    }
    widestr_destruye_opcional(&r->raiz);
    widestr_destruye_opcional(&r->nombre_fichero);
    r->raiz = raiz_nueva.release();
    r->nombre_fichero = nombre_nuevo.release();
}

vnbool ultfichsel_ultimo_fichero_seleccionado_si_existe(const arrPuntero *ultimos_fich_seleccionados, const char *clave,
                                                        const vnwchar *raiz_actual, vnwchar **nombre_fichero) {
    if (!EXIGE(ultimos_fich_seleccionados, clave, raiz_actual, nombre_fichero)) return FALSO;
    *nombre_fichero = nullptr;
    const registro *r = busca(ultimos_fich_seleccionados, clave);
    if (r == nullptr) return FALSO;
    *nombre_fichero = widestr_copia(r->nombre_fichero);
    // A work that has moved to another directory takes its selections along.
    if (r->raiz[0] != 0 && raiz_actual[0] != 0 && widestr_cadenas_iguales_may_o_min(r->raiz, raiz_actual) != CIERTO)
        widestr_reemplaza_todas_cadenas(nombre_fichero, r->raiz, raiz_actual);
    return CIERTO;
}

void ultfichsel_destruye(arrPuntero **ultimos_fich_seleccionados) {
    if (!AFIRMA_NO_NULO(ultimos_fich_seleccionados)) return;
    if (!AFIRMA_TEXTO(*ultimos_fich_seleccionados != nullptr, "(*ultimos_fich_seleccionados) != NULL")) return;
    arr_DestruyeEstructurasST(ultimos_fich_seleccionados, registro, destruye_registro);
}
