// A stream from inside.
#pragma once

#include "foundation/ficheros/lc_fichero.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/operaciones_fichero_int.h"
#include <memory>

namespace vn::ficheros {
class guardado;
}

// The buffer holds the bytes of the file from `base` on. Reading, those up to `fin` are valid, and the window is the
// whole of the rest or, in text, ends at the next CR. Writing, those up to `fin` or `pos`, whichever lies further, are
// not yet in the file, and the window is all the room there is (none in text that is translated). Neither: it is empty,
// and `base` is the position.
struct vnfichero {
    vnfichero_ventana v;
    unsigned char *buffer;
    unsigned char *fin;
    int64_t base;
    int64_t tamanyo; // as last seen
    vnid_fichero id;
    vnwchar *nombre;
    vn::ficheros::guardado *guardado; // of what is opened to take a file's place at its close
    uint32_t lectura_siguiente;       // how much the next filling of the buffer asks for
    enum estado_t : uint8_t { NADA, LEYENDO, ESCRIBIENDO } estado;
    bool lee, escribe, anade, traduce, con_posicion;
    bool al_final, fallo_lectura, fallo_escritura, informado;
    vnerror_fichero error;                         // the first one of the system's
    bool sin_sentido;                              // of what it was given to write
    bool etiquetas_al_leer, etiquetas_al_escribir; // each binary value has the letter of its kind before it
};

namespace vn::ficheros {

inline constexpr size_t TAMANYO_BUFFER = 64 * 1024;
// After a jump the buffer is filled by so much, and then by twice as much each time.
inline constexpr uint32_t PRIMERA_LECTURA = 8 * 1024;

inline int64_t posicion(const vnfichero &f) { return f.base + (f.v.pos - f.buffer); }
// How much of the buffer is valid, or waits to be written.
inline int64_t ocupado(const vnfichero &f) { return (f.v.pos > f.fin ? f.v.pos : f.fin) - f.buffer; }
// Leaves the buffer empty at a position; what it held is forgotten.
void situa(vnfichero &f, int64_t nueva_posicion);
// Opens the window over what is left of a buffer that has been read.
void abre_ventana_de_lectura(vnfichero &f);
// Hands what waits in the buffer to the system, and leaves it empty. False after any failure to write.
bool vacia(vnfichero &f);
// As vacia, reporting the stream's first failure.
bool vacia_informando(vnfichero &f);
// Size of the file, with what waits in the buffer.
int64_t tamanyo_actual(vnfichero &f);
void informa_escritura(vnfichero &f, const char *modulo, uint32_t linea);

// Closes the file and keeps the record, whose name a report may need.
void libera_flujo(vnfichero *f);
using flujo = dueno<libera_flujo>;

// An owner that closes on the way out of a failure; what it holds is closed by hand when all is well.
using flujo_abierto = dueno<lc_fclose_seguro>;

// Remembers the reason for lc_ultimo_error, and gives it back.
vnerror_fichero anota_error(vnerror_fichero e);
// Remembers it for the stream too, if it is the first.
void anota_error(vnfichero &f, vnerror_fichero e);
// Why a stream has failed to write: the system's reason, or what it was told.
vnerror_fichero motivo_de_escritura(const vnfichero &f);
// A report with a file's name as its detail, and the reason behind it if there is one.
void informa_con_motivo(const vnwchar *expresion, const char *modulo, uint32_t linea, const vnwchar *nombre,
                        vnerror_fichero e);
// What was told made no sense, and that has been reported: a stream that writes goes on, but its close fails, so that
// the old file stays; what is read is not to be trusted. Quiet; nothing for null.
inline void marca_fallo_escritura(vnfichero *f) {
    if (f != nullptr && f->escribe) f->sin_sentido = true;
}
inline void marca_fallo_lectura(vnfichero *f) {
    if (f != nullptr && f->lee) f->fallo_lectura = true;
}

// Reports that a file, by its name, could not be written.
void informa_que_no_se_escribe(const vnwchar *nombre, vnerror_fichero e);

// A stream that writes the temporary of a saved file.
vnfichero *flujo_de(std::unique_ptr<guardado> g, const char *modulo, uint32_t linea);
// The saved file of a stream, to commit or to give up, with what waited in the buffer written; the stream's close has
// nothing more to do with the file.
std::unique_ptr<guardado> toma_guardado(vnfichero &f);

} // namespace vn::ficheros
