#define VN_MODULO "vornsave (NUCLEOS.DLL)"
#include "persistence/vornsave_bloques.h"

#include "persistence/vornsave_priv.h"

// Blocks and sections, the stack of open ones, marks of files and comments.
using namespace vn;

namespace {

// ---- The stack

using dueno_marca = dueno<destruye_marca>;

void empuja_marca(vornsave *d, const char *id, const i_marca_t &posiciones) {
    dueno_marca marca(new (vornspy_malloc(sizeof(i_marca_t))) i_marca_t(posiciones));
    marca->id_marca = nullptr;
    marca->id_marca = cad_copia_cadena(id);
    arr_AppendPunteroST(d->pila_marcas, marca.get(), i_marca_t);
    static_cast<void>(marca.release());
}
// A mark fills the two positions of its class and leaves those of the other at zero. The end of a block is open, the
// start of a section that is read likewise.
constexpr i_marca_t marca_inicial(clase_marca clase, int64_t posicion) {
    return clase == MARCA_32 ? i_marca_t{nullptr, clase, static_cast<int32_t>(posicion), LARGO_MAX, 0, 0}
                             : i_marca_t{nullptr, clase, 0, 0, posicion, LARGO64_MAX};
}
constexpr i_marca_t marca_final(int32_t posicion) { return {nullptr, MARCA_32, LARGO_MAX, posicion, 0, 0}; }

// The mark of what was opened last; null, and no report, if nothing is open.
const i_marca_t *marca_abierta(const vornsave *d) {
    const uint32_t num_marcas = arr_NumElemsPunteroST(d->pila_marcas, i_marca_t);
    return num_marcas > 0 ? arr_GetPunteroST(d->pila_marcas, num_marcas - 1, i_marca_t) : nullptr;
}
const i_marca_t *ultima_marca(const vornsave *d) {
    const uint32_t num_marcas = arr_NumElemsPunteroST(d->pila_marcas, i_marca_t);
    if (!AFIRMA(num_marcas > 0)) {
        d->falla();
        return nullptr;
    }
    const i_marca_t *marca = marca_abierta(d);
    return AFIRMA_NO_NULO(marca) ? marca : nullptr;
}
bool es_seccion_que_se_lee(const i_marca_t &m) { return m.clase == MARCA_32 && m.posicion_inicial == LARGO_MAX; }
// Where what is being read ends, as it was stored.
int64_t fin_de(const i_marca_t &m) {
    if (m.clase == MARCA_64) return m.posicion_inicial64;
    return es_seccion_que_se_lee(m) ? m.posicion_final : m.posicion_inicial;
}
void quita_ultima_marca(vornsave *d) {
    arr_BorrarEstructuraST(d->pila_marcas, arr_NumElemsPunteroST(d->pila_marcas, i_marca_t) - 1, i_marca_t,
                           destruye_marca);
}

#define ES_LARGO_MAX(campo) AFIRMA_TEXTO(marca->campo == LARGO_MAX, "marca->" #campo " == LONG_MAX")
#define NO_ES_LARGO_MAX(campo) AFIRMA_TEXTO(marca->campo != LARGO_MAX, "marca->" #campo " != LONG_MAX")
#define ES_I64_MAX(campo) AFIRMA_TEXTO(marca->campo == LARGO64_MAX, "marca->" #campo " == _I64_MAX")
#define NO_ES_I64_MAX(campo) AFIRMA_TEXTO(marca->campo != LARGO64_MAX, "marca->" #campo " != _I64_MAX")

// Closes a block, or a section being written: gives where its length goes through the pointer of its kind. False when
// there was none, or it is of the other kind. A wrong identifier is reported, and the mark goes all the same.
bool saca_marca(vornsave *d, const char *id_marca, int32_t *posicion_inicial_marca_opc,
                int64_t *posicion_inicial_marca64_opc) {
    const i_marca_t *marca = ultima_marca(d);
    if (marca == nullptr) return false;
    if (!AFIRMA(cad_cadenas_iguales(marca->id_marca, id_marca) == CIERTO)) d->falla();
    bool dada = false;
    switch (marca->clase) {
    case MARCA_32:
        NO_ES_LARGO_MAX(posicion_inicial);
        ES_LARGO_MAX(posicion_final);
        AFIRMA(marca->posicion_inicial64 == 0);
        AFIRMA(marca->posicion_final64 == 0);
        AFIRMA_TEXTO(posicion_inicial_marca64_opc == nullptr, "posicion_inicial_marca64_opc == NULL");
        dada = posicion_inicial_marca_opc != nullptr;
        if (dada) *posicion_inicial_marca_opc = marca->posicion_inicial;
        break;
    case MARCA_64:
        AFIRMA(marca->posicion_inicial == 0);
        AFIRMA(marca->posicion_final == 0);
        NO_ES_I64_MAX(posicion_inicial64);
        ES_I64_MAX(posicion_final64);
        AFIRMA_TEXTO(posicion_inicial_marca_opc == nullptr, "posicion_inicial_marca_opc == NULL");
        dada = posicion_inicial_marca64_opc != nullptr;
        if (dada) *posicion_inicial_marca64_opc = marca->posicion_inicial64;
        break;
    default: AFIRMA_DEFECTO();
    }
    quita_ultima_marca(d);
    return dada;
}

// Closes a section that has been read.
void saca_marca_de_seccion(vornsave *d, const char *id_marca) {
    const i_marca_t *marca = ultima_marca(d);
    if (marca == nullptr) return;
    if (!AFIRMA(cad_cadenas_iguales(marca->id_marca, id_marca) == CIERTO)) d->falla();
    switch (marca->clase) {
    case MARCA_32:
        ES_LARGO_MAX(posicion_inicial);
        NO_ES_LARGO_MAX(posicion_final);
        AFIRMA(marca->posicion_inicial64 == 0);
        AFIRMA(marca->posicion_final64 == 0);
        break;
    case MARCA_64:
        AFIRMA(marca->posicion_inicial == 0);
        AFIRMA(marca->posicion_final == 0);
        ES_I64_MAX(posicion_inicial64);
        NO_ES_I64_MAX(posicion_final64);
        break;
    default: AFIRMA_DEFECTO();
    }
    quita_ultima_marca(d);
}

// ---- Positions of either width

int64_t posicion(const vornsave *d, clase_marca clase) {
    const posiciones_t &p = d->fila->posiciones;
    return clase == MARCA_32 ? p.get(d->donde) : p.get64(d->donde);
}
void ve_a(const vornsave *d, clase_marca clase, int64_t donde) {
    const posiciones_t &p = d->fila->posiciones;
    if (clase == MARCA_32) p.set(d->donde, static_cast<int32_t>(donde));
    else p.set64(d->donde, donde);
}
void graba_posicion(vornsave *d, clase_marca clase, int64_t valor) {
    if (clase == MARCA_32) graba<GRABAR(long)>(d, static_cast<int32_t>(valor));
    else vornsave_graba_int64(valor, d);
}
bool hay_posiciones(const vornsave *d, clase_marca clase) {
    const posiciones_t &p = d->fila->posiciones;
    return clase == MARCA_32 ? AFIRMA_TEXTO(p.get != nullptr, "(vornsave_datos->fncptr_get_posicion) != NULL")
                             : AFIRMA_TEXTO(p.get64 != nullptr, "(vornsave_datos->fncptr_get_posicion64) != NULL");
}
// The position in the widest form that there is; -1 where there is none.
int64_t aqui(const vornsave *d) {
    const posiciones_t &p = d->fila->posiciones;
    return p.get64 != nullptr ? p.get64(d->donde) : p.get != nullptr ? p.get(d->donde) : -1;
}
// True if a stored end lies between here and the end of what is open, and of the source.
bool fin_valido(const vornsave *d, int64_t fin) {
    if (d->fila->posiciones.get == nullptr) return true;
    const int64_t desde = aqui(d);
    const i_marca_t *abierta = marca_abierta(d);
    // A block ends no later than the one that holds it; the outermost one is held by the source.
    const int64_t limite = abierta != nullptr ? fin_de(*abierta) : LARGO64_MAX;
    return desde >= 0 && fin >= desde && fin <= limite && d->quedan(static_cast<uint64_t>(fin - desde), 1);
}
// Goes to the end of what is open and has this name, if reading stopped before that end or beyond it; false where the
// end is not known or the source does not have it.
bool ve_al_final_de_lo_abierto(const vornsave *d, const char *id, clase_marca clase) {
    const i_marca_t *abierta = marca_abierta(d);
    const int64_t desde = aqui(d);
    if (abierta == nullptr || desde < 0 || abierta->clase != clase) return false;
    const int64_t fin = fin_de(*abierta);
    // Back only to the end of a section, which has been looked at: a walk over damaged blocks must end.
    if (fin == desde || (fin < desde && !es_seccion_que_se_lee(*abierta))) return false;
    if (cad_cadenas_iguales(abierta->id_marca, id) != CIERTO) return false;
    if (fin > desde && !d->quedan(static_cast<uint64_t>(fin - desde), 1)) return false;
    ve_a(d, clase, fin);
    return true;
}

// ---- Writing

enum forma { BLOQUE, SECCION };

using fncptr_marca = void (*)(const char *id, void *destino);

// Gives the function that writes a mark of that form; null, reported, where the destination takes no marks.
fncptr_marca puede_marcar(const char *id, const vornsave *d, forma f, clase_marca clase) {
    if (!EXIGE_AL_GRABAR(d, id)) return nullptr;
    if (clase == MARCA_32 ? !puede_grabar<GRABAR(long)>(d) : !puede_grabar<GRABAR(ulong)>(d)) return nullptr;
    if (!SE_GRABA(d, f == SECCION || AFIRMA(*id != '\0'))) return nullptr;
    const auto graba_cabecera = d->fila->marcas.graba;
    if (!SE_GRABA(d, AFIRMA_TEXTO(graba_cabecera != nullptr, "(vornsave_datos->fncptr_graba_cabecera_bloque) != NULL")))
        return nullptr;
    if (!SE_GRABA(d, hay_posiciones(d, clase))) return nullptr;
    const fncptr_marca fncptr_graba_marca = f == BLOQUE ? graba_cabecera : d->fila->grabar.fncptr_graba_cadena;
    return AFIRMA_NO_NULO(fncptr_graba_marca) ? fncptr_graba_marca : nullptr;
}

void graba_inicio(const char *id, vornsave *d, forma f, clase_marca clase) {
    const fncptr_marca graba_marca = puede_marcar(id, d, f, clase);
    if (graba_marca == nullptr) return;
    // The name, and behind it room for the end, which is not known yet.
    graba_marca(id, d->donde);
    const int64_t hueco = posicion(d, clase);
    if (hueco < 0) d->falla();
    empuja_marca(d, id, marca_inicial(clase, hueco));
    graba_posicion(d, clase, 0);
}

void graba_fin(const char *id, vornsave *d, forma f, clase_marca clase) {
    const fncptr_marca graba_marca = puede_marcar(id, d, f, clase);
    if (graba_marca == nullptr) return;
    // A section that is being read has no room for an end: closing it here is reported, and nothing is written.
    const i_marca_t *abierta = marca_abierta(d);
    const bool se_lee = abierta != nullptr && es_seccion_que_se_lee(*abierta);
    // The end is where the closing name begins; what follows begins behind that.
    const int64_t p_fin = posicion(d, clase);
    if (!se_lee) graba_marca(id, d->donde);
    const int64_t p_sig = posicion(d, clase);
    int32_t hueco = 0;
    int64_t hueco64 = 0;
    const bool dado = saca_marca(d, id, clase == MARCA_32 ? &hueco : nullptr, clase == MARCA_64 ? &hueco64 : nullptr);
    const int64_t donde = clase == MARCA_32 ? hueco : hueco64;
    // A position beyond what 32 bits hold has been reported: nothing is overwritten.
    if (!dado || se_lee || donde < 0 || p_fin < 0 || p_sig < 0) {
        d->falla();
        return;
    }
    // Back to the room that was left, and on again.
    ve_a(d, clase, donde);
    graba_posicion(d, clase, p_fin);
    ve_a(d, clase, p_sig);
}

// ---- Reading

bool puede_leer_bloques(const char *id, const vornsave *d, clase_marca clase) {
    if (!AFIRMA_NO_NULO(id) || !AFIRMA(*id != '\0')) return false;
    const marcas_t *const m = d != nullptr ? &d->fila->marcas : nullptr;
    return clase == MARCA_32
               ? puede_leer<LEER(long)>(d) &&
                     AFIRMA_TEXTO(m->se_lee != nullptr, "(vornsave_datos->fncptr_se_lee_inicio_bloque) != NULL")
               : puede_leer<LEER(ulong)>(d) &&
                     AFIRMA_TEXTO(m->se_lee64 != nullptr, "(vornsave_datos->fncptr_se_lee_inicio_bloque64) != NULL");
}
vnbool se_lee_marca(const char *id, const vornsave *d, clase_marca clase) {
    const marcas_t &m = d->fila->marcas;
    return (clase == MARCA_32 ? m.se_lee : m.se_lee64)(id, d->donde);
}
int64_t lee_posicion(vornsave *d, clase_marca clase) {
    return clase == MARCA_32 ? lee<LEER(long)>(d) : vornsave_lee_int64(d);
}

vnbool se_inicia_lectura(const char *id, vornsave *d, clase_marca clase) {
    if (!puede_leer_bloques(id, d, clase) || se_lee_marca(id, d, clase) != CIERTO) return FALSO;
    // The mark keeps the stored end in the field of the start, which only a writer needs.
    empuja_marca(d, id, marca_inicial(clase, lee_posicion(d, clase)));
    return CIERTO;
}

void lee_final(const char *id, vornsave *d, clase_marca clase) {
    if (!puede_leer_bloques(id, d, clase)) return;
    // Where the name is not there, the body was not read to its end: the stored end leads to it.
    const vnbool se_lee_final_bloque = se_lee_marca(id, d, clase);
    if (!AFIRMA(se_lee_final_bloque == CIERTO)) {
        d->falla();
        if (ve_al_final_de_lo_abierto(d, id, clase)) se_lee_marca(id, d, clase);
    }
    int32_t largo = 0;
    int64_t largo64 = 0;
    saca_marca(d, id, clase == MARCA_32 ? &largo : nullptr, clase == MARCA_64 ? &largo64 : nullptr);
}

vnbool se_salta(const char *id, vornsave *d, clase_marca clase) {
    if (!puede_leer_bloques(id, d, clase) || !hay_posiciones(d, clase)) return FALSO;
    if (se_lee_marca(id, d, clase) != CIERTO) return FALSO;
    const int64_t fin = lee_posicion(d, clase);
    vnbool se_lee_fin_bloque = FALSO;
    if (fin_valido(d, fin)) { // nor back: a walk over damaged blocks must end
        ve_a(d, clase, fin);
        se_lee_fin_bloque = se_lee_marca(id, d, clase);
    }
    if (!AFIRMA(se_lee_fin_bloque == CIERTO)) d->falla();
    return CIERTO;
}

} // namespace

void vn::destruye_marca(i_marca_t **marca) {
    if (!EXIGE(marca, *marca)) return;
    vornstr_destruye_opcional(&(*marca)->id_marca);
    vornspy_free_pp(marca, sizeof(i_marca_t));
}

vnbool vornsave_es_posible_marcar_bloques(const vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return FALSO;
    return logico(vornsave_datos->fila->marcas.graba != nullptr);
}

// A row: operation, what it does, form, class of the mark.
#define GRABA_MARCA(nombre, graba, forma, clase)                                                                       \
    void nombre(const char *id, vornsave *vornsave_datos) { graba(id, vornsave_datos, forma, clase); }
GRABA_MARCA(vornsave_graba_inicio_bloque, graba_inicio, BLOQUE, MARCA_32)
GRABA_MARCA(vornsave_graba_fin_bloque, graba_fin, BLOQUE, MARCA_32)
GRABA_MARCA(vornsave_graba_inicio_bloque64, graba_inicio, BLOQUE, MARCA_64)
GRABA_MARCA(vornsave_graba_fin_bloque64, graba_fin, BLOQUE, MARCA_64)
GRABA_MARCA(vornsave_graba_inicio_seccion, graba_inicio, SECCION, MARCA_32)
GRABA_MARCA(vornsave_graba_fin_seccion, graba_fin, SECCION, MARCA_32)

#define LEE_MARCA(tipo, nombre, lee, clase)                                                                            \
    tipo nombre(const char *id, vornsave *vornsave_datos) { return lee(id, vornsave_datos, clase); }
LEE_MARCA(vnbool, vornsave_se_inicia_lectura_bloque, se_inicia_lectura, MARCA_32)
LEE_MARCA(vnbool, vornsave_se_inicia_lectura_bloque64, se_inicia_lectura, MARCA_64)
LEE_MARCA(void, vornsave_lee_final_bloque, lee_final, MARCA_32)
LEE_MARCA(void, vornsave_lee_final_bloque64, lee_final, MARCA_64)
LEE_MARCA(vnbool, vornsave_se_salta_bloque, se_salta, MARCA_32)
LEE_MARCA(vnbool, vornsave_se_salta_bloque64, se_salta, MARCA_64)

char *vornsave_lee_seccion(vornsave *vornsave_datos) {
    if (!puede_leer<LEER(cadena), LEER(long)>(vornsave_datos)) return nullptr;
    const vigia guarda(*vornsave_datos);
    dueno_cadena id(lee<LEER(cadena)>(vornsave_datos));
    // After a failure the name is empty: the caller has a text to free and nothing to look for.
    if (id == nullptr || !guarda.sigue()) return cad_copia_cadena("");
    const int32_t fin = lee<LEER(long)>(vornsave_datos);
    if (!guarda.sigue()) return cad_copia_cadena("");
    if (!fin_valido(vornsave_datos, fin)) {
        vornsave_datos->error_leyendo();
        return cad_copia_cadena("");
    }
    empuja_marca(vornsave_datos, id.get(), marca_final(fin));
    return id.release();
}

void vornsave_ir_final_seccion(const char *id_seccion, vornsave *vornsave_datos) {
    if (!EXIGE(id_seccion, vornsave_datos)) return;
    const i_marca_t *marca = ultima_marca(vornsave_datos);
    if (marca == nullptr) return;
    if (!AFIRMA(cad_cadenas_iguales(marca->id_marca, id_seccion) == CIERTO)) vornsave_datos->falla();
    const auto clase = static_cast<clase_marca>(marca->clase);
    if (clase != MARCA_32 && clase != MARCA_64) {
        AFIRMA_DEFECTO();
        return;
    }
    if (!hay_posiciones(vornsave_datos, clase)) return;
    // Only the mark of a section that is being read holds an end; another one leads beyond the source, and is reported.
    const int64_t fin = clase == MARCA_32 ? marca->posicion_final : marca->posicion_final64,
                  desde = aqui(vornsave_datos);
    if (fin <= desde || vornsave_datos->quedan(static_cast<uint64_t>(fin - desde), 1)) ve_a(vornsave_datos, clase, fin);
    else vornsave_datos->error_leyendo();
}

void vornsave_lee_final_seccion(const char *id_seccion, vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(id_seccion)) return;
    if (!puede_leer<LEER(cadena)>(vornsave_datos)) return;
    // A reader that stopped before the end of the section, or beyond it, is not at its name: reading goes on at the
    // end.
    const i_marca_t *abierta = marca_abierta(vornsave_datos);
    const bool se_sabe = abierta != nullptr && es_seccion_que_se_lee(*abierta);
    const bool movida = se_sabe && ve_al_final_de_lo_abierto(vornsave_datos, id_seccion, MARCA_32);
    const dueno_cadena final(lee<LEER(cadena)>(vornsave_datos));
    const char *id_seccion_final = movida || final == nullptr ? "" : final.get();
    if (!AFIRMA(cad_cadenas_iguales(id_seccion_final, id_seccion) == CIERTO)) vornsave_datos->falla();
    saca_marca_de_seccion(vornsave_datos, id_seccion);
}

vnbool vornsave_comprueba_marca_fichero(const char *marca, vornsave *vornsave_datos) {
    if (!EXIGE(marca, vornsave_datos)) return FALSO;
    const auto se_comprueba = vornsave_datos->fila->cabecera.se_comprueba_marca;
    if (!AFIRMA_TEXTO(se_comprueba != nullptr, "(vornsave_datos->fncptr_se_comprueba_marca_fichero) != NULL"))
        return FALSO;
    return se_comprueba(marca, vornsave_datos->donde);
}

vnbool vornsave_se_comprueba_cabecera_bin(const char *marca, vornsave *vornsave_datos) {
    if (!EXIGE(marca, vornsave_datos)) return FALSO;
    if (!AFIRMA_TEXTO(vornsave_datos->fila->tipo == BIN, "vornsave_datos->tipo == BIN")) return FALSO;
    return vornsave_comprueba_marca_fichero(marca, vornsave_datos);
}

void vornsave_graba_comentario(const char *comentario, vornsave *vornsave_datos) {
    if (!EXIGE_AL_GRABAR(vornsave_datos, comentario)) return;
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    if (vornsave_datos->con_comentarios == CIERTO)
        vornsave_datos->fila->lineas.graba_comentario(comentario, vornsave_datos->donde);
}

void vornsave_salta_comentario(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return;
    if (vornsave_datos->con_comentarios == CIERTO) vornsave_datos->fila->lineas.salta(vornsave_datos->donde);
}
