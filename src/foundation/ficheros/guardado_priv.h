// A file while it is being saved: its content grows in a temporary beside it, which takes its place in one step.
#pragma once

#include "foundation/suelo/operaciones_fichero_int.h"
#include <memory>

namespace vn::ficheros {

inline constexpr const vnwchar *SUFIJO_TEMPORAL = VNU("_TM$");

// Holds the temporary from its opening to its end: another saver of the file waits a second and is refused. Owned by
// one thread at a time. What dies without having been committed or let go is given up.
class guardado {
  public:
    struct manera {
        const vnwchar *sufijo = SUFIJO_TEMPORAL; // what the temporary adds to the name
        bool con_copia = true;                   // what is replaced becomes the safety copy
        const vnwchar *derechos = nullptr;       // whose rights a file that is new has; null: those of any new file
    };
    // The file `nombre` leads to through links, regular or not there yet, begins to be saved; null with the reason.
    static std::unique_ptr<guardado> abre(const vnwchar *nombre, const manera &como, vnerror_fichero *e);
    // The same with a temporary that is finished, closed and somewhere in the directory of the file.
    static std::unique_ptr<guardado> adopta(const vnwchar *nombre, const vnwchar *temporal, vnerror_fichero *e);
    ~guardado() { abandona(); }
    guardado(const guardado &) = delete;
    guardado &operator=(const guardado &) = delete;

    // Where the content is written.
    vnid_fichero id() const { return id_; }
    const cadena_ancha &temporal() const { return temporal_; }
    // Whether it was opened by this name, or the name leads to the same file.
    bool es_de(const vnwchar *nombre) const;
    // Flushes and replaces. Anything but VN_FICH_BIEN leaves the old file as it was and removes the temporary, save
    // VN_FICH_SIN_ASEGURAR, after which the new one stands.
    vnerror_fichero confirma();
    // The temporary goes, unless somebody has put another in its place.
    void abandona();
    // The temporary stays, and its owner closes it.
    void suelta() { id_ = VN_FICHERO_NINGUNO; }

  private:
    guardado() = default;
    vnerror_fichero busca_destino(const vnwchar *nombre, bool *hay);
    vnerror_fichero prepara_sitio();
    vnerror_fichero guarda_copia_de_seguridad() const;

    cadena_ancha nombre_, destino_, temporal_;
    vnid_fichero id_ = VN_FICHERO_NINGUNO;
    bool con_copia_ = true;
};

} // namespace vn::ficheros
