// A save under every failure: the file operations of the library are wrapped so that one of them, by its number, fails
// or is the last before the process dies, and what is left on the disk is judged.
//
//   GUARDADO(mi_guardado) { return save(fichero, edicion); } // bool (const std::string &fichero, int edicion)
//   vn::comprueba_guardado("mi_guardado");                   // inside a PRUEBA
#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <string>
#include <vector>

namespace vn {

// clang-format off
enum class operacion : uint8_t {
    abre, lee, escribe, vuelca, trunca, estado_abierto, bloquea, desbloquea, cierra, estado, resuelve, enlaza, renombra,
    renombra_abierto, es_su_nombre, borra, retira, copia_permisos, vuelca_directorio
};
// clang-format on

// clang-format off
enum class fallo : uint8_t {
    ninguno, muere_antes, muere_a_medias, muere_despues, // the process dies instead of it, after half a write, after it
    sin_espacio_una_vez, sin_espacio_siempre,            // once; from there on, for all that takes room
    error_una_vez,                                       // of the device
    escribe_poco, interrumpe,                            // half of a transfer is done; nothing is done, once
    compartido, sin_permiso,                             // another holder is in the way, once
    se_cuela                                             // somebody comes first: plan_de_fallos::otro runs, uncounted
};
// clang-format on

struct plan_de_fallos {
    fallo que = fallo::ninguno;
    size_t donde = SIZE_MAX;  // number of the operation, from 0
    bool sin_enlaces = false; // the file system has no hard links
    std::function<void()> otro;
};

// From here to the end of its life the library's file operations are counted, and fail as planned. Waits are skipped.
class con_fallos {
  public:
    explicit con_fallos(const plan_de_fallos &plan);
    ~con_fallos();
    con_fallos(const con_fallos &) = delete;
    con_fallos &operator=(const con_fallos &) = delete;

    // What was called so far, in order.
    const std::vector<operacion> &hechas() const;
    // What a power failure could have turned into a loss: a rename of data that had not been flushed to the disk.
    const std::vector<std::string> &riesgos() const;
    // Whether a name was changed after the last flush of the directory.
    bool directorio_sin_volcar() const;
};

// A save of one of the editions of a file's content, 0 to 3; its result is what it tells of itself. The bytes of an
// edition are always the same, whatever they replace.
using funcion_guarda = bool (*)(const std::string &fichero, int edicion);
struct registra_guardado {
    registra_guardado(const char *nombre, funcion_guarda funcion);
};

// How a save differs from one that reports its failures and keeps a safety copy.
struct manera_de_guardar {
    const char *carpeta = "guardado"; // in the test's directory
    const char *fichero = "obra";     // its own name for the file, in that
    bool con_copia = true;
    bool informa = true;
    bool muere = true; // killed at each of its operations too: not needed where another of these does the same saving
    bool dice = true;  // its result is the truth that it tells; else it only says what is there
};
// Drives every boundary of the save over an old file with its safety copy and over none, with hard links and without,
// through every failure. In every case: the file is the old one or the new one, whole; what the save told is true;
// the safety copy is whole and never missing; nothing else is left by a save that ended, and the next one that is not
// hindered succeeds and leaves the file and its safety copy alone, whatever died before. Another saver of the file that
// comes at a boundary, and goes on to its end or stays until this one has ended, is refused or leaves the file and its
// copy whole, and each was told the truth.
void comprueba_guardado(const char *guardado, const manera_de_guardar &manera = {});

} // namespace vn

#define GUARDADO(nombre)                                                                                               \
    static bool guardado_##nombre(const std::string &fichero, int edicion);                                            \
    static const ::vn::registra_guardado registra_guardado_##nombre(#nombre, guardado_##nombre);                       \
    static bool guardado_##nombre(const std::string &fichero, int edicion)
