#define VN_MODULO "lc_fichero (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/guardado_priv.h"
#include "foundation/ficheros/lc_fichero_int.h"
#include "foundation/platform/fichero.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/mensajes.hpp"
#include <algorithm>
#include <cstring>
#include <iterator>
#include <new>
#include <utility>

namespace vn::ficheros {
namespace {

// What lc_ultimo_error answers without a stream: the last failure of this thread.
thread_local vnerror_fichero ultimo_error = VN_FICH_BIEN;

struct modo_de_apertura {
    uint32_t como;
    bool texto;
};

// False if it is no mode.
bool analiza(const vnwchar *modo, modo_de_apertura &m) {
    m = {0, true};
    switch (modo[0]) {
    case 'r': m.como = VN_ABRE_LECTURA; break;
    case 'w': m.como = VN_ABRE_ESCRITURA | VN_ABRE_CREA | VN_ABRE_TRUNCA; break;
    case 'a': m.como = VN_ABRE_ESCRITURA | VN_ABRE_CREA | VN_ABRE_ANADE; break;
    default: return false;
    }
    for (const vnwchar *p = modo + 1; *p != 0; ++p) {
        if (*p == '+') m.como |= VN_ABRE_LECTURA | VN_ABRE_ESCRITURA;
        else if (*p == 'b') m.texto = false;
        else if (*p != 't') return false;
    }
    return true;
}

size_t longitud(const vnwchar *texto) { return std::char_traits<vnwchar>::length(texto); }

// A stream with no file yet. Text is translated only where lines of the platform have a CR.
flujo crea(const vnwchar *nombre, const modo_de_apertura &m, const char *modulo, uint32_t linea) {
    const size_t n = longitud(nombre) + 1;
    // The record, then the buffer, then the name, in one block.
    // Rounded up, so that the buffer is aligned as the block is.
    constexpr size_t REGISTRO = (sizeof(vnfichero) + 63) / 64 * 64;
    auto *bloque = static_cast<unsigned char *>(
        vornspy_nousar_malloc(REGISTRO + TAMANYO_BUFFER + n * sizeof(vnwchar), modulo, linea));
    flujo f(new (bloque) vnfichero{});
    f->buffer = bloque + REGISTRO;
    f->nombre = reinterpret_cast<vnwchar *>(bloque + REGISTRO + TAMANYO_BUFFER);
    std::copy_n(nombre, n, f->nombre);
    f->id = VN_FICHERO_NINGUNO;
    f->lee = (m.como & VN_ABRE_LECTURA) != 0;
    f->escribe = (m.como & VN_ABRE_ESCRITURA) != 0;
    f->anade = (m.como & VN_ABRE_ANADE) != 0;
    f->traduce = m.texto && plat::lineas_con_retorno;
    situa(*f, 0);
    f->lectura_siguiente = TAMANYO_BUFFER;
    return f;
}

vnfichero *abre(const vnwchar *nombre, const modo_de_apertura &m, const paciencia &p, bool informa, const char *modulo,
                uint32_t linea) {
    flujo f = crea(nombre, m, modulo, linea);
    vnerror_fichero e = con_paciencia(p, [&] { return operaciones().abre(nombre, m.como, &f->id); });
    if (e == VN_FICH_BIEN) {
        vnestado_fichero estado;
        // A pipe or a device has no size and no position to move to.
        e = operaciones().estado_abierto(f->id, &estado);
        f->con_posicion = estado.es_normal == CIERTO;
        f->tamanyo = static_cast<int64_t>(estado.tamanyo);
    }
    if (e == VN_FICH_BIEN) {
        if (f->anade) situa(*f, f->tamanyo);
        return f.release();
    }
    anota_error(e);
    if (informa) informa_con_motivo(VNU("f_lc_fopen"), modulo, linea, nombre, e);
    return nullptr;
}

// The checks and the way that every opening has in common.
vnfichero *abre_con(const vnwchar *nombre, const vnwchar *modo, const paciencia &p, bool informa, const char *modulo,
                    uint32_t linea, uint32_t ademas = 0) {
    modo_de_apertura m;
    if (!EXIGE(nombre, modo)) return nullptr;
    if (!AFIRMA_TEXTO(analiza(modo, m), "modo de apertura")) return nullptr;
    m.como |= ademas;
    if (ademas != 0 && !AFIRMA_TEXTO((m.como & VN_ABRE_ESCRITURA) != 0, "modo de escritura")) return nullptr;
    return abre(nombre, m, p, informa, modulo, linea);
}

// At the end of a stream: what it was told that made no sense is a failure now.
void vacia_del_todo(vnfichero &f) {
    vacia(f);
    if (f.sin_sentido) f.fallo_escritura = true;
}

// Closes the file; true if all that was written is where it should be.
bool cierra(vnfichero &f, bool a_disco) {
    vacia_del_todo(f);
    vnerror_fichero e = VN_FICH_BIEN;
    // A stream that has failed is not worth the wait for the disk.
    if (!f.fallo_escritura && a_disco) e = operaciones().vuelca(f.id);
    if (f.id != VN_FICHERO_NINGUNO) {
        const vnerror_fichero al_cerrar = operaciones().cierra(std::exchange(f.id, VN_FICHERO_NINGUNO));
        // Of a stream that only reads, a close that fails loses nothing.
        if (e == VN_FICH_BIEN && f.escribe) e = al_cerrar;
    }
    if (e != VN_FICH_BIEN) f.fallo_escritura = true;
    anota_error(f, e);
    if (f.fallo_escritura) anota_error(motivo_de_escritura(f));
    return !f.fallo_escritura;
}

// Hands bytes to the system at the position of the buffer, or at the end of a file that is appended to.
bool escribe_en(vnfichero &f, const unsigned char *p, size_t n) {
    if (const vnerror_fichero e = escribe_todo(f.id, f.anade ? -1 : f.base, p, n); e != VN_FICH_BIEN) {
        anota_error(f, e);
        f.fallo_escritura = true;
        return false;
    }
    f.tamanyo = std::max(f.tamanyo, f.base + static_cast<int64_t>(n));
    return true;
}

// Opens the window for writing; what was read ahead is dropped, and the position is the program's again.
bool prepara_escritura(vnfichero &f) {
    if (!f.escribe || f.fallo_escritura) return false;
    if (f.estado == vnfichero::ESCRIBIENDO) return true;
    situa(f, f.anade ? tamanyo_actual(f) : posicion(f));
    f.estado = vnfichero::ESCRIBIENDO;
    // Translated text must pass through here to be looked at, so its window stays shut.
    f.v.fin_escritura = f.traduce ? f.buffer : f.buffer + TAMANYO_BUFFER;
    return true;
}

// Bytes into the buffer, which is emptied when it is full.
bool escribe_tal_cual(vnfichero &f, const unsigned char *p, size_t n) {
    const auto cabe = [&] { return static_cast<size_t>(f.buffer + TAMANYO_BUFFER - f.v.pos); };
    if (n >= TAMANYO_BUFFER) {
        // A block goes to the system as it is.
        if (!vacia(f)) return false;
        if (!escribe_en(f, p, n)) return false;
        situa(f, f.base + static_cast<int64_t>(n));
        return prepara_escritura(f);
    }
    if (n > cabe()) {
        const size_t k = cabe();
        std::memcpy(f.v.pos, p, k);
        f.v.pos += k;
        p += k;
        n -= k;
        if (!vacia(f) || !prepara_escritura(f)) return false;
    }
    std::memcpy(f.v.pos, p, n);
    f.v.pos += n;
    return true;
}

// Text whose line feeds become CR LF.
bool escribe_lineas(vnfichero &f, const unsigned char *p, size_t n) {
    while (n > 0) {
        const auto *fin_linea = static_cast<const unsigned char *>(std::memchr(p, '\n', n));
        const size_t k = fin_linea == nullptr ? n : static_cast<size_t>(fin_linea - p);
        if (!escribe_tal_cual(f, p, k)) return false;
        p += k;
        n -= k;
        if (fin_linea == nullptr) continue;
        if (!escribe_tal_cual(f, reinterpret_cast<const unsigned char *>("\r\n"), 2)) return false;
        ++p;
        --n;
    }
    return true;
}

// Reads at the end of what the buffer holds up to `fin`; false at the end of the file or after an error.
bool anade_al_buffer(vnfichero &f, size_t n) {
    size_t k = 0;
    const int64_t desde = f.base + (f.fin - f.buffer);
    const vnerror_fichero e = con_paciencia(UNA_VEZ, [&] { return operaciones().lee(f.id, desde, f.fin, n, &k); });
    if (e != VN_FICH_BIEN || k > n) {
        anota_error(f, e != VN_FICH_BIEN ? e : VN_FICH_ES);
        f.fallo_lectura = true;
        return false;
    }
    if (k == 0) {
        f.al_final = true;
        return false;
    }
    f.fin += k;
    f.tamanyo = std::max(f.tamanyo, desde + static_cast<int64_t>(k));
    return true;
}

// The window is used up and the buffer too.
bool rellena(vnfichero &f) {
    situa(f, posicion(f));
    f.estado = vnfichero::LEYENDO;
    const bool hay = anade_al_buffer(f, f.lectura_siguiente);
    // Who reads on gets more at a time: little is read in vain after a jump, and few calls are made in a row.
    f.lectura_siguiente = std::min<uint32_t>(f.lectura_siguiente * 2, TAMANYO_BUFFER);
    abre_ventana_de_lectura(f);
    return hay;
}

// The window of text that is translated ends before a CR: drops it if a line feed follows, else lets it through.
void pasa_retorno(vnfichero &f) {
    // The CR is the last byte of the buffer: what follows it is fetched behind it.
    if (f.fin - f.v.pos == 1) {
        situa(f, posicion(f));
        f.estado = vnfichero::LEYENDO;
        f.buffer[0] = '\r';
        f.fin = f.buffer + 1;
        // At the end of the file the CR stands alone, and the end has not been read yet.
        if (!anade_al_buffer(f, TAMANYO_BUFFER - 1)) f.al_final = false;
    }
    // CR LF: the window begins at the LF, which is all that the program sees.
    const bool fin_de_linea = f.fin - f.v.pos > 1 && f.v.pos[1] == '\n';
    if (fin_de_linea) {
        ++f.v.pos;
        abre_ventana_de_lectura(f);
        return;
    }
    ++f.v.pos;
    abre_ventana_de_lectura(f);
    --f.v.pos;
}

// A block as large as the buffer goes straight into the caller's room.
size_t lee_directamente(vnfichero &f, unsigned char *p, size_t n) {
    situa(f, posicion(f));
    f.estado = vnfichero::LEYENDO;
    size_t k = 0;
    if (const vnerror_fichero e = lee_todo(f.id, f.base, p, n, &k); e != VN_FICH_BIEN) {
        anota_error(f, e);
        f.fallo_lectura = true;
    } else if (k < n) f.al_final = true;
    situa(f, f.base + static_cast<int64_t>(k));
    f.estado = vnfichero::LEYENDO;
    f.lectura_siguiente = TAMANYO_BUFFER;
    return k;
}

// Up to `n` bytes; fewer only at the end of the file or after an error.
size_t lee(vnfichero &f, void *destino, size_t n) {
    // What was written goes out first: the file is read as the program left it.
    if (f.estado == vnfichero::ESCRIBIENDO && !vacia(f)) f.fallo_lectura = true;
    if (!f.lee) f.fallo_lectura = true;
    if (!f.lee || f.estado == vnfichero::ESCRIBIENDO) return 0;
    auto *p = static_cast<unsigned char *>(destino);
    size_t falta = n;
    for (;;) {
        const ptrdiff_t ventana = f.v.fin_lectura - f.v.pos;
        const size_t k = std::min(falta, ventana > 0 ? static_cast<size_t>(ventana) : 0);
        if (k > 0) std::memcpy(p, f.v.pos, k);
        f.v.pos += k;
        p += k;
        falta -= k;
        if (falta == 0) break;
        // The window has ended before the buffer: a CR stands there.
        if (f.estado == vnfichero::LEYENDO && f.v.pos < f.fin) {
            pasa_retorno(f);
        } else if (falta >= TAMANYO_BUFFER && !f.traduce) {
            falta -= lee_directamente(f, p, falta);
            break;
        } else if (!rellena(f)) {
            break;
        }
    }
    return n - falta;
}

void informa_lectura(vnfichero &f, const char *modulo, uint32_t linea) {
    f.fallo_lectura = true;
    informa_con_motivo(VNU("lc_error_leyendo_fichero"), modulo, linea, f.nombre, f.error);
}

// The bytes of a transfer; false, reported, if no memory holds so many.
bool bytes_de(size_t tamanyo, size_t numero, size_t &bytes) {
    return AFIRMA_TEXTO(!__builtin_mul_overflow(tamanyo, numero, &bytes) && bytes <= PTRDIFF_MAX,
                        "tamanyo * numero <= PTRDIFF_MAX");
}

// Nothing to transfer needs no buffer.
#define AFIRMA_BUFFER(p) AFIRMA_TEXTO((p) != nullptr || bytes == 0, "(" #p ") != NULL")

} // namespace

void situa(vnfichero &f, int64_t nueva_posicion) {
    f.base = nueva_posicion;
    f.v = {f.buffer, f.buffer, f.buffer};
    f.fin = f.buffer;
    f.estado = vnfichero::NADA;
}

void abre_ventana_de_lectura(vnfichero &f) {
    f.v.fin_lectura = f.fin;
    if (!f.traduce || f.v.pos >= f.fin) return;
    // The window of translated text ends before the first CR, so that the fast road needs no look at bytes.
    const void *retorno = std::memchr(f.v.pos, '\r', static_cast<size_t>(f.fin - f.v.pos));
    if (retorno != nullptr) f.v.fin_lectura = static_cast<const unsigned char *>(retorno);
}

bool vacia(vnfichero &f) {
    if (f.estado != vnfichero::ESCRIBIENDO) return !f.fallo_escritura;
    // The position stays where it is, be the write a failure or not.
    const int64_t despues = posicion(f);
    const auto n = static_cast<size_t>(ocupado(f));
    if (n > 0 && !f.fallo_escritura) escribe_en(f, f.buffer, n);
    situa(f, despues);
    return !f.fallo_escritura;
}

void informa_escritura(vnfichero &f, const char *modulo, uint32_t linea) {
    f.fallo_escritura = true;
    // A stream tells its failure to write once, however often it is written to.
    if (std::exchange(f.informado, true)) return;
    informa_con_motivo(VNU("lc_error_escribiendo_fichero"), modulo, linea, f.nombre,
                       anota_error(motivo_de_escritura(f)));
}

bool vacia_informando(vnfichero &f) {
    if (vacia(f)) return true;
    informa_escritura(f, VN_AQUI);
    return false;
}

vnerror_fichero anota_error(vnerror_fichero e) { return ultimo_error = e; }

void anota_error(vnfichero &f, vnerror_fichero e) {
    if (e == VN_FICH_BIEN) return;
    if (f.error == VN_FICH_BIEN) f.error = e;
    anota_error(e);
}

vnerror_fichero motivo_de_escritura(const vnfichero &f) { return f.error != VN_FICH_BIEN ? f.error : VN_FICH_DATOS; }

void informa_con_motivo(const vnwchar *expresion, const char *modulo, uint32_t linea, const vnwchar *nombre,
                        vnerror_fichero e) {
    cadena_ancha detalle = nombre;
    if (e != VN_FICH_BIEN) (detalle += VNU(": ")) += lc_texto_error_u(e);
    error_interno_msg_u(expresion, modulo, linea, detalle.c_str(), 0);
}

void informa_que_no_se_escribe(const vnwchar *nombre, vnerror_fichero e) {
    informa_con_motivo(VNU("lc_error_escribiendo_fichero"), VN_AQUI, nombre, e);
}

vnfichero *flujo_de(std::unique_ptr<guardado> g, const char *modulo, uint32_t linea) {
    flujo f = crea(g->temporal().c_str(), {VN_ABRE_ESCRITURA, false}, modulo, linea);
    f->con_posicion = true;
    f->id = g->id();
    f->guardado = g.release();
    return f.release();
}

std::unique_ptr<guardado> toma_guardado(vnfichero &f) {
    vacia_del_todo(f);
    f.id = VN_FICHERO_NINGUNO;
    return std::unique_ptr<guardado>(std::exchange(f.guardado, nullptr));
}

void libera_flujo(vnfichero *f) {
    if (f->guardado != nullptr) std::unique_ptr<guardado>(f->guardado)->suelta();
    if (f->id != VN_FICHERO_NINGUNO) operaciones().cierra(f->id);
    vornspy_free_pp(&f, 1);
}

} // namespace vn::ficheros

using namespace vn;
using namespace vn::ficheros;

vnfichero *f_lc_fopen_u(const vnwchar *nombre, const vnwchar *modo, const char *modulo, uint32_t linea) {
    return abre_con(nombre, modo, UNA_DECIMA, true, modulo, linea);
}

vnfichero *f_lc_fopen_en_varios_intentos_u(const vnwchar *nombre, const vnwchar *modo, const char *modulo,
                                           uint32_t linea) {
    return abre_con(nombre, modo, DOS_SEGUNDOS, true, modulo, linea);
}

vnfichero *f_lc_fopen_seguro_u(const vnwchar *nombre, const vnwchar *modo, const char *modulo, uint32_t linea) {
    return abre_con(nombre, modo, UNA_DECIMA, false, modulo, linea);
}

vnfichero *f_lc_fopen_un_solo_intento_u(const vnwchar *nombre, const vnwchar *modo, const char *modulo,
                                        uint32_t linea) {
    return abre_con(nombre, modo, UNA_VEZ, false, modulo, linea);
}

vnfichero *f_lc_fopen_modo_escritura_u(const vnwchar *nombre, const vnwchar *modo, vnbool informa, const char *modulo,
                                       uint32_t linea) {
    // A truth value that is none is told, and counts as FALSO.
    const bool logico = AFIRMA_LOGICO(informa);
    return abre_con(nombre, modo, UNA_VEZ, logico && informa == CIERTO, modulo, linea, VN_ABRE_EXCLUSIVO);
}

vnbool lc_fclose(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return FALSO;
    const flujo mio(f);
    if (cierra(*f, false)) return CIERTO;
    informa_escritura(*f, VN_AQUI);
    return FALSO;
}

vnbool lc_fclose_seguro(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return FALSO;
    const flujo mio(f);
    return logico(cierra(*f, false));
}

vnbool lc_fclose_volcando_a_disco(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return FALSO;
    const flujo mio(f);
    return logico(cierra(*f, true));
}

size_t f_lc_fread(void *destino, size_t tamanyo, size_t numero, vnfichero *f, const char *modulo, uint32_t linea) {
    size_t bytes = 0;
    if (!bytes_de(tamanyo, numero, bytes) || !AFIRMA_BUFFER(destino) || !AFIRMA_NO_NULO(f)) return 0;
    if (bytes == 0) return numero;
    const size_t k = lee(*f, destino, bytes);
    if (k == bytes) return numero;
    // A caller that ignores the result finds zeros, not what the room held.
    std::memset(static_cast<unsigned char *>(destino) + k, 0, bytes - k);
    informa_lectura(*f, modulo, linea);
    return k / tamanyo;
}

size_t f_lc_fread_sin_error(void *destino, size_t tamanyo, size_t numero, vnfichero *f) {
    size_t bytes = 0;
    if (!bytes_de(tamanyo, numero, bytes) || !AFIRMA_BUFFER(destino) || !AFIRMA_NO_NULO(f)) return 0;
    return bytes == 0 ? numero : lee(*f, destino, bytes) / tamanyo;
}

size_t f_lc_fwrite(const void *origen, size_t tamanyo, size_t numero, vnfichero *f, const char *modulo,
                   uint32_t linea) {
    size_t bytes = 0;
    if (!bytes_de(tamanyo, numero, bytes) || !AFIRMA_BUFFER(origen) || !AFIRMA_NO_NULO(f)) return 0;
    if (bytes == 0) return numero;
    const auto *p = static_cast<const unsigned char *>(origen);
    if (prepara_escritura(*f) && (f->traduce ? escribe_lineas(*f, p, bytes) : escribe_tal_cual(*f, p, bytes)))
        return numero;
    // Nothing more is taken: the window stays shut.
    situa(*f, posicion(*f));
    informa_escritura(*f, modulo, linea);
    return 0;
}

int f_getc_sin_error(vnfichero *f) {
    unsigned char c = 0;
    if (!AFIRMA_NO_NULO(f)) return -1;
    return lee(*f, &c, 1) == 1 ? c : -1;
}

vnwchar *lc_fgetws(vnwchar *buffer, int32_t maximo, vnfichero *f) {
    if (!AFIRMA_NO_NULO(buffer) || !AFIRMA(maximo > 0) || !AFIRMA_NO_NULO(f)) return nullptr;
    // The bytes 0D 0A may be halves of units: they are no line end here, whatever the mode.
    const bool traduce = std::exchange(f->traduce, false);
    if (traduce && f->estado == vnfichero::LEYENDO) abre_ventana_de_lectura(*f);
    int32_t n = 0;
    while (n < maximo - 1) {
        const int bajo = vnfichero_toma_byte(f);
        const int alto = bajo < 0 ? -1 : vnfichero_toma_byte(f);
        if (alto < 0) break;
        buffer[n++] = static_cast<vnwchar>(bajo | alto << 8);
        if (buffer[n - 1] == '\n') break;
    }
    f->traduce = traduce;
    if (traduce && f->estado == vnfichero::LEYENDO) abre_ventana_de_lectura(*f);
    buffer[n] = 0;
    return n > 0 || maximo == 1 ? buffer : nullptr;
}

void lc_error_leyendo_fichero(vnfichero *f) {
    if (AFIRMA_NO_NULO(f)) informa_lectura(*f, VN_AQUI);
}

void lc_error_escribiendo_fichero(vnfichero *f) {
    if (!AFIRMA_NO_NULO(f)) return;
    vacia(*f);
    f->fallo_escritura = f->informado = true;
    informa_que_no_se_escribe(f->nombre, anota_error(motivo_de_escritura(*f)));
}

vnerror_fichero lc_ultimo_error(const vnfichero *f) { return f != nullptr ? f->error : ultimo_error; }

// ---------------------------------------------------------------- what the user is told

namespace {

#define M(id, ...)                                                                                                     \
    VN_MENSAJE(msg_##id, "lc_fichero.msg", id, __VA_ARGS__)                                                            \
    static_assert(msg_##id.orden() == VN_FICH_##id);
#include "foundation/ficheros/lc_fichero_msg.inl"
#undef M

constexpr vnfunc_mensaje MOTIVOS[] = {
#define M(id, ...) msg_##id.u,
#include "foundation/ficheros/lc_fichero_msg.inl"
#undef M
};
static_assert(std::size(MOTIVOS) == VN_FICH_DATOS + 1);

} // namespace

const vnwchar *lc_texto_error_u(vnerror_fichero error) {
    const auto n = static_cast<uint32_t>(error);
    if (!AFIRMA_TEXTO(n < std::size(MOTIVOS), "error <= VN_FICH_DATOS")) return VNU("");
    return nousar_msglocal_original_u(MOTIVOS[n]);
}
