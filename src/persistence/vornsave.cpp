#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave.h"

#include "persistence/vornsave_priv.h"

using namespace vn;

namespace {

void destruye_marcas(arrPuntero **marcas) { arr_DestruyeEstructurasST(marcas, i_marca_t, destruye_marca); }

// The datum of a destination in memory, which goes with its object; others are the caller's.
struct fin_del_dato {
    const destino *fila;
    void operator()(void *donde) const { fila->memoria.destruye(&donde); }
};
using dueno_dato = std::unique_ptr<void, fin_del_dato>;
dueno_dato dato_propio(const conducto &c) { return {todas(c.fila->memoria.destruye) ? c.donde : nullptr, {c.fila}}; }

// Frees the object and all that it owns, whatever is still open.
void destruye_objeto(vornsave **vornsave_datos) {
    const dueno_dato dato = dato_propio(**vornsave_datos);
    vornstr_destruye_opcional(&(*vornsave_datos)->version_programa);
    vornstr_destruye_opcional(&(*vornsave_datos)->parche_programa);
    widestr_destruye_opcional(&(*vornsave_datos)->texto_status_lectura);
    destruye_marcas(&(*vornsave_datos)->pila_marcas);
    vornspy_free_pp(vornsave_datos, sizeof(vornsave));
}

vornsave *registra_de_tipo(uint32_t tipo, void *donde) {
    const destino *fila = destino_de(tipo);
    return fila != nullptr ? registra(*fila, donde) : nullptr;
}

// True for an object over memory that was opened in the direction of this close; else false, reported.
bool es_de_memoria(vornsave **vornsave_datos, sentido va) {
    if (!EXIGE(vornsave_datos, *vornsave_datos)) return false;
    if (!AFIRMA_TEXTO((*vornsave_datos)->fila->tipo == FICHMEM, "(*vornsave_datos)->tipo == FICHMEM")) return false;
    return AFIRMA_TEXTO((*vornsave_datos)->fila->va == va,
                        "vornsave: el fichero en memoria se abrio para lo contrario");
}

void cierra_lectura(vornsave **vornsave_datos, void (*memoria_t::*cierra)(void **)) {
    if (!es_de_memoria(vornsave_datos, LECTURA)) return;
    ((*vornsave_datos)->fila->memoria.*cierra)(&(*vornsave_datos)->donde);
    vornsave_libera(vornsave_datos);
}

} // namespace

vornsave *vn::registra(const destino &fila, void *donde, vnbool con_comentarios, const char *version_programa,
                       const char *parche_programa) {
    dueno_dato dato = dato_propio({&fila, donde}); // memory may run out on the way
    dueno_cadena version(cad_copia_cadena_opcional(version_programa)),
        parche(cad_copia_cadena_opcional(parche_programa));
    dueno<destruye_marcas> marcas(arr_CreaPunteroST(0, i_marca_t));
    // Nothing fails from here on: the object takes over what was made for it.
    auto *nuevo = new (vornspy_malloc(sizeof(vornsave))) vornsave{};
    nuevo->fila = &fila;
    nuevo->donde = donde;
    nuevo->con_comentarios = con_comentarios;
    nuevo->con_progreso = FALSO;
    nuevo->ANSI = CIERTO;
    nuevo->version_programa = version.release();
    nuevo->parche_programa = parche.release();
    nuevo->pila_marcas = marcas.release();
    static_cast<void>(dato.release());
    return nuevo;
}

vornsave *vornsave_registra_bin(vnfichero *f) { return vornsave_registra_bin_con_version(f, nullptr, nullptr); }

vornsave *vornsave_registra_bin_con_version(vnfichero *f, const char *version_programa, const char *parche_programa) {
    return AFIRMA_NO_NULO(f) ? registra(DESTINO_BIN, f, FALSO, version_programa, parche_programa) : nullptr;
}

vornsave *vornsave_registra_txt(vnfichero *f, vnbool con_comentarios) {
    if (!AFIRMA_NO_NULO(f)) return nullptr;
    if (!AFIRMA_TEXTO(con_comentarios == CIERTO || con_comentarios == FALSO,
                      "con_comentarios==CIERTO || con_comentarios==FALSO"))
        return nullptr;
    return registra(*destino_de(TXT, con_comentarios == CIERTO), f, con_comentarios);
}

vornsave *vornsave_registra_idx(idxdatos *datos) {
    return AFIRMA_NO_NULO(datos) ? registra_de_tipo(IDX, datos) : nullptr;
}

vornsave *vornsave_registra_soc(insocket *socket) {
    return AFIRMA_NO_NULO(socket) ? registra_de_tipo(SOC, socket) : nullptr;
}

vornsave *vornsave_registra_texto_editable(vnfichero *f) {
    return AFIRMA_NO_NULO(f) ? registra_de_tipo(TEXTO_EDITABLE, f) : nullptr;
}

vornsave *vornsave_fichmem_para_escritura(void) { return vornsave_fichmem_para_escritura_ex(0); }

vornsave *vornsave_fichmem_para_escritura_ex(uint32_t tamanyo) {
    const destino *fila = destino_de(FICHMEM);
    return fila != nullptr ? registra(*fila, fila->memoria.crea_para_escritura(tamanyo)) : nullptr;
}

vornsave *vornsave_fichmem_para_lectura(const fichmem *fichero) {
    if (!AFIRMA_NO_NULO(fichero)) return nullptr;
    const destino *fila = destino_de(FICHMEM, true);
    return fila != nullptr ? registra(*fila, fila->memoria.crea_para_lectura(fichero)) : nullptr;
}

fichmem *vornsave_cierra_fichmem_para_escritura(vornsave **vornsave_datos) {
    if (!es_de_memoria(vornsave_datos, ESCRITURA)) return nullptr;
    // The close takes the datum: the object is left without one, and goes like any other.
    fichmem *escrito = (*vornsave_datos)->fila->memoria.cierra_escritura(&(*vornsave_datos)->donde);
    vornsave_libera(vornsave_datos);
    return escrito;
}

void vornsave_cierra_fichmem_para_lectura(vornsave **vornsave_datos) {
    cierra_lectura(vornsave_datos, &memoria_t::cierra_lectura);
}

void vornsave_cierra_fichmem_para_lectura_al_final(vornsave **vornsave_datos) {
    cierra_lectura(vornsave_datos, &memoria_t::cierra_lectura_al_final);
}

void vornsave_libera(vornsave **vornsave_datos) {
    if (!EXIGE(vornsave_datos, *vornsave_datos)) return;
    const dueno<destruye_objeto> objeto(*vornsave_datos);
    *vornsave_datos = nullptr;
    // What a writer left open has no end: a file with it cannot be read.
    if (arr_NumElemsPunteroST(objeto->pila_marcas, i_marca_t) > 0) objeto->falla();
    // A host that said how far it read is not told that it left something open.
    switch (objeto->tipo_status_lectura) {
    case 0:
        AFIRMA_TEXTO_CLASE(arr_NumElemsPunteroST(objeto->pila_marcas, i_marca_t) == 0,
                           "arr_NumElemsPunteroST((*vornsave_datos)->pila_marcas, i_marca_t) == 0", 1);
        break;
    case 1:
    case 2: break; // a reader that stopped early leaves marks behind
    default: AFIRMA_DEFECTO();
    }
}

int32_t vornsave_get_posicion(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return 0;
    // A destination without positions lacks this entry and the next operation's.
    const auto get = vornsave_datos->fila->posiciones.get;
    return AFIRMA_TEXTO(get != nullptr, "(vornsave->fncptr_get_posicion) != NULL") ? get(vornsave_datos->donde) : 0;
}

void vornsave_set_posicion(vornsave *vornsave_datos, int32_t posicion) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    const auto set = vornsave_datos->fila->posiciones.set;
    if (AFIRMA_TEXTO(set != nullptr, "(vornsave->fncptr_set_posicion) != NULL")) set(vornsave_datos->donde, posicion);
}

const char *vornsave_dame_version_programa(const vornsave *vornsave_datos) {
    return AFIRMA_NO_NULO(vornsave_datos) ? vornsave_datos->version_programa : nullptr;
}

const char *vornsave_dame_parche_programa(const vornsave *vornsave_datos) {
    return AFIRMA_NO_NULO(vornsave_datos) ? vornsave_datos->parche_programa : nullptr;
}

void vornsave_set_tipo_status_lectura(vornsave *vornsave_datos, uint32_t tipo, const vnwchar *texto) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    vnwchar *copia = widestr_copia_opcional(texto); // first: the text may be the object's own
    widestr_destruye_opcional(&vornsave_datos->texto_status_lectura);
    vornsave_datos->texto_status_lectura = copia;
    vornsave_datos->tipo_status_lectura = tipo;
}

uint32_t vornsave_get_tipo_status_lectura(const vornsave *vornsave_datos, const vnwchar **texto) {
    if (texto != nullptr) *texto = nullptr;
    if (!AFIRMA_NO_NULO(vornsave_datos)) return 0;
    if (texto != nullptr) *texto = vornsave_datos->texto_status_lectura;
    return vornsave_datos->tipo_status_lectura;
}

void vornsave_set_lectura_ANSI_ASCII_segun_version(vornsave *vornsave_datos, uint32_t version, uint32_t version_ascii) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    // From here on the ANSI texts of the file are taken in the page of its version.
    vornsave_datos->ANSI = logico(version > version_ascii);
}

vnbool vornsave_fichero_valido(vornsave *vornsave_datos, uint16_t version, uint16_t version_ascii, const char *firma,
                               char **titulo) {
    if (titulo != nullptr) *titulo = nullptr;
    if (!EXIGE(vornsave_datos, firma, titulo)) return FALSO;
    const auto fichero_valido = vornsave_datos->fila->cabecera.fichero_valido;
    if (!AFIRMA_TEXTO(fichero_valido != nullptr, "(vornsave_datos->fncptr_fichero_valido) != NULL")) return FALSO;
    return fichero_valido(vornsave_datos->donde, version, firma, titulo, version_ascii);
}
