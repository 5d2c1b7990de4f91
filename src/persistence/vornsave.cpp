#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave.h"

#include "persistence/vornsave_priv.h"

using namespace vn;

namespace {

void destruye_marcas(arrPuntero **marcas) { arr_DestruyeEstructurasST(marcas, i_marca_t, destruye_marca); }
// Frees the object and all that it owns, whatever is still open.
void destruye_objeto(vornsave **vornsave_datos) {
    vornstr_destruye_opcional(&(*vornsave_datos)->version_programa);
    vornstr_destruye_opcional(&(*vornsave_datos)->parche_programa);
    widestr_destruye_opcional(&(*vornsave_datos)->texto_status_lectura);
    destruye_marcas(&(*vornsave_datos)->pila_marcas);
    vornspy_free_pp(vornsave_datos, sizeof(vornsave));
}

vornsave *registra(const destino &d, void *datos_destino, vnbool con_comentarios, const char *version_programa,
                   const char *parche_programa) {
    dueno_cadena version(cad_copia_cadena_opcional(version_programa)),
        parche(cad_copia_cadena_opcional(parche_programa));
    std::unique_ptr<arrPuntero, suelta<destruye_marcas>> marcas(arr_CreaPunteroST(0, i_marca_t));
    auto *nuevo = new (vornspy_malloc(sizeof(vornsave))) vornsave{};
    static_cast<operaciones_destino &>(*nuevo) = d.operaciones;
    nuevo->datos_destino = datos_destino;
    nuevo->fncs_grabar = &d.grabar;
    nuevo->fncs_leer = &d.leer;
    nuevo->bloques = &d.bloques;
    nuevo->tipo = d.tipo;
    nuevo->es_texto = d.es_texto;
    nuevo->con_comentarios = con_comentarios;
    nuevo->con_progreso = FALSO;
    nuevo->ANSI = CIERTO;
    nuevo->version_programa = version.release();
    nuevo->parche_programa = parche.release();
    nuevo->pila_marcas = marcas.release();
    return nuevo;
}

// The row of a kind, or null, reported, while its module is not part of the library.
const destino *destino_enlazado(uint32_t tipo) {
    const destino *d = destino_de(tipo);
    return AFIRMA_TEXTO(d != nullptr, "vornsave: el destino no forma parte de la biblioteca") ? d : nullptr;
}
vornsave *registra_de_tipo(uint32_t tipo, void *datos_destino) {
    const destino *d = destino_enlazado(tipo);
    return d != nullptr ? registra(*d, datos_destino, FALSO, nullptr, nullptr) : nullptr;
}

// The object of a memory destination writes or reads, never both: the other table is empty.
constexpr fncs_grabar_t NADA_GRABAR{};
constexpr fncs_leer_t NADA_LEER{};

vornsave *registra_memoria(void *datos_destino, bool escritura) {
    vornsave *nuevo = registra_de_tipo(FICHMEM, datos_destino);
    if (escritura) nuevo->fncs_leer = &NADA_LEER;
    else nuevo->fncs_grabar = &NADA_GRABAR;
    return nuevo;
}

bool es_de_memoria(vornsave **vornsave_datos) {
    return AFIRMA_NO_NULO(vornsave_datos) && AFIRMA_NO_NULO(*vornsave_datos) &&
           AFIRMA((*vornsave_datos)->tipo == FICHMEM);
}

} // namespace

bool vn::falla(const vornsave *vornsave_datos) {
    if (vornsave_datos != nullptr) vornsave_datos->marca_fallo(vornsave_datos->datos_destino);
    return false;
}

vornsave *vornsave_registra_bin(vnfichero *f) { return vornsave_registra_bin_con_version(f, nullptr, nullptr); }

vornsave *vornsave_registra_bin_con_version(vnfichero *f, const char *version_programa, const char *parche_programa) {
    if (!AFIRMA_NO_NULO(f)) return nullptr;
    return registra(*destino_de(BIN), f, FALSO, version_programa, parche_programa);
}

vornsave *vornsave_registra_txt(vnfichero *f, vnbool con_comentarios) {
    if (!AFIRMA_NO_NULO(f)) return nullptr;
    if (!AFIRMA_TEXTO(con_comentarios == CIERTO || con_comentarios == FALSO,
                      "con_comentarios==CIERTO || con_comentarios==FALSO"))
        return nullptr;
    return registra(*destino_de(TXT, con_comentarios == CIERTO), f, con_comentarios, nullptr, nullptr);
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
    const destino *d = destino_enlazado(FICHMEM);
    return d != nullptr ? registra_memoria(d->operaciones.crea_para_escritura(tamanyo), true) : nullptr;
}

vornsave *vornsave_fichmem_para_lectura(const fichmem *fichero) {
    if (!AFIRMA_NO_NULO(fichero)) return nullptr;
    const destino *d = destino_enlazado(FICHMEM);
    return d != nullptr ? registra_memoria(d->operaciones.crea_para_lectura(fichero), false) : nullptr;
}

fichmem *vornsave_cierra_fichmem_para_escritura(vornsave **vornsave_datos) {
    if (!es_de_memoria(vornsave_datos)) return nullptr;
    fichmem *escrito = (*vornsave_datos)->cierra_escritura(&(*vornsave_datos)->datos_destino);
    vornsave_libera(vornsave_datos);
    return escrito;
}

void vornsave_cierra_fichmem_para_lectura(vornsave **vornsave_datos) {
    if (!es_de_memoria(vornsave_datos)) return;
    (*vornsave_datos)->cierra_lectura(&(*vornsave_datos)->datos_destino);
    vornsave_libera(vornsave_datos);
}

void vornsave_cierra_fichmem_para_lectura_al_final(vornsave **vornsave_datos) {
    if (!es_de_memoria(vornsave_datos)) return;
    (*vornsave_datos)->cierra_lectura_al_final(&(*vornsave_datos)->datos_destino);
    vornsave_libera(vornsave_datos);
}

void vornsave_libera(vornsave **vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    if (!AFIRMA_NO_NULO(*vornsave_datos)) return;
    const std::unique_ptr<vornsave, suelta<destruye_objeto>> objeto(*vornsave_datos);
    *vornsave_datos = nullptr;
    // What a writer left open has no end: a file with it cannot be read.
    if (arr_NumElemsPunteroST(objeto->pila_marcas, i_marca_t) > 0) falla(objeto.get());
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
    if (!AFIRMA_TEXTO(vornsave_datos->fncptr_get_posicion != nullptr, "(vornsave->fncptr_get_posicion) != NULL"))
        return 0;
    return vornsave_datos->fncptr_get_posicion(vornsave_datos->datos_destino);
}

void vornsave_set_posicion(vornsave *vornsave_datos, int32_t posicion) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    if (!AFIRMA_TEXTO(vornsave_datos->fncptr_set_posicion != nullptr, "(vornsave->fncptr_set_posicion) != NULL"))
        return;
    vornsave_datos->fncptr_set_posicion(vornsave_datos->datos_destino, posicion);
}

const char *vornsave_dame_version_programa(const vornsave *vornsave_datos) {
    return AFIRMA_NO_NULO(vornsave_datos) ? vornsave_datos->version_programa : nullptr;
}

const char *vornsave_dame_parche_programa(const vornsave *vornsave_datos) {
    return AFIRMA_NO_NULO(vornsave_datos) ? vornsave_datos->parche_programa : nullptr;
}

void vornsave_set_tipo_status_lectura(vornsave *vornsave_datos, uint32_t tipo, const vnwchar *texto) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    vnwchar *copia = widestr_copia_opcional(texto);
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
    vornsave_datos->ANSI = version > version_ascii ? CIERTO : FALSO;
}

vnbool vornsave_fichero_valido(vornsave *vornsave_datos, uint16_t version, uint16_t version_ascii, const char *firma,
                               char **titulo) {
    if (titulo != nullptr) *titulo = nullptr;
    if (!AFIRMA_NO_NULO(vornsave_datos)) return FALSO;
    if (!AFIRMA_NO_NULO(firma)) return FALSO;
    if (!AFIRMA_NO_NULO(titulo)) return FALSO;
    if (!AFIRMA_NO_NULO(vornsave_datos->fncptr_fichero_valido)) return FALSO;
    return vornsave_datos->fncptr_fichero_valido(vornsave_datos->datos_destino, version, firma, titulo, version_ascii);
}
