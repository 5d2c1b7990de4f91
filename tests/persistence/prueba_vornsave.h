// The destinations over which the suites of the save protocol run, and a file to write and to read through each.
#pragma once

#ifndef VN_MODULO
#define VN_MODULO "prueba"
#endif
#include "foundation/ficheros/lc_fichero_int.h"
#include "persistence/vornsave_priv.h"
#include "prueba.h"
#include <functional>

namespace vn {

struct destino_de_prueba {
    const char *nombre;
    bool texto = false, comentarios = false;
    bool etiquetas = false;   // the debug form
    bool sin_tamanyo = false; // as a source that cannot tell how much is left of it
};
inline constexpr destino_de_prueba EN_BIN{"BIN"}, EN_TXT{"TXT", true}, EN_TXT_CON{"TXT with comments", true, true},
    EN_BIN_CON{"BIN with tags", false, false, true}, EN_BIN_SIN{"BIN of unknown size", false, false, false, true};
inline constexpr destino_de_prueba DESTINOS[] = {EN_BIN, EN_TXT, EN_TXT_CON, EN_BIN_CON, EN_BIN_SIN};

// A file of the test's directory, open as a destination until it goes out of scope; so it does in a trapped call.
class abierto {
  public:
    abierto(const destino_de_prueba &d, const char *modo)
        : f_(lc_fopen_u(ancho(ruta()).c_str(), ancho(std::string(modo) + (d.texto ? "t" : "b")).c_str())),
          datos_(d.texto ? vornsave_registra_txt(f_, d.comentarios ? CIERTO : FALSO) : vornsave_registra_bin(f_)) {
        f_->etiquetas_al_leer = f_->etiquetas_al_escribir = d.etiquetas;
        if (!d.sin_tamanyo) return;
        sin_tamanyo_ = *datos_->fila;
        sin_tamanyo_.quedan = nullptr;
        datos_->fila = &sin_tamanyo_;
    }
    ~abierto() {
        // What a damaged file leaves open is not this fixture's affair.
        if (std::uncaught_exceptions() > 0) vornsave_set_tipo_status_lectura(datos_, 1, nullptr);
        if (datos_ != nullptr) vornsave_libera(&datos_);
        lc_fclose_seguro(f_);
    }
    abierto(const abierto &) = delete;
    abierto &operator=(const abierto &) = delete;
    operator vornsave *() const { return datos_; }
    vornsave **direccion() { return &datos_; }
    vnfichero *fichero() const { return f_; }
    static std::string ruta() { return Prueba::directorio() + "/datos"; }

  private:
    vnfichero *f_;
    vornsave *datos_;
    destino sin_tamanyo_{};
};

// What `escribe` writes there, as bytes.
inline std::string grabado(const destino_de_prueba &d, const std::function<void(vornsave *)> &escribe) {
    {
        const abierto a(d, "w");
        escribe(a);
    }
    return lee_fichero(abierto::ruta());
}
// Reads those bytes.
inline void leido(const destino_de_prueba &d, std::string_view bytes, const std::function<void(vornsave *)> &lee) {
    graba_fichero(abierto::ruta(), bytes);
    const abierto a(d, "r");
    lee(a);
}
// Bytes of a text with zeros in it: bytes("ab\0c").
template <size_t N> std::string bytes(const char (&s)[N]) { return {s, N - 1}; }
inline std::string hex(const std::string &b) {
    std::string t;
    for (const unsigned char c : b) (t += "0123456789abcdef"[c >> 4]) += "0123456789abcdef"[c & 15];
    return t;
}
// A member, or several, of the object `d`.
#define HACE(...) [](vornsave *d) { __VA_ARGS__; }

// A frame of the protocol: what opens and closes it when it is written, and when it is read.
struct marco {
    void (*abre)(const char *, vornsave *), (*cierra)(const char *, vornsave *);
    vnbool (*se_abre)(const char *, vornsave *), (*se_salta)(const char *, vornsave *);
    void (*lee_final)(const char *, vornsave *);
    template <class F> void graba(const char *id, vornsave *d, F dentro) const {
        abre(id, d);
        dentro();
        cierra(id, d);
    }
};
inline vnbool se_abre_seccion(const char *id, vornsave *d) { return toma(vornsave_lee_seccion(d)) == id; }
inline vnbool se_salta_seccion(const char *id, vornsave *d) {
    const vnbool es = se_abre_seccion(id, d);
    vornsave_ir_final_seccion(id, d);
    vornsave_lee_final_seccion(id, d);
    return es;
}
inline constexpr marco SECCION{vornsave_graba_inicio_seccion, vornsave_graba_fin_seccion, se_abre_seccion,
                               se_salta_seccion, vornsave_lee_final_seccion},
    BLOQUE{vornsave_graba_inicio_bloque, vornsave_graba_fin_bloque, vornsave_se_inicia_lectura_bloque,
           vornsave_se_salta_bloque, vornsave_lee_final_bloque},
    BLOQUE64{vornsave_graba_inicio_bloque64, vornsave_graba_fin_bloque64, vornsave_se_inicia_lectura_bloque64,
             vornsave_se_salta_bloque64, vornsave_lee_final_bloque64};

} // namespace vn
