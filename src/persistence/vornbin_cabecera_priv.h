// The header of a binary file: who wrote it, named fields, the reserved list.
#pragma once

#include "foundation/ficheros/temporal_int.h"
#include "foundation/listas/arr.h"
#include "persistence/vornbin_priv.h"
#include <string>
#include <string_view>
#include <vector>

namespace vn {

using texto_u = std::basic_string<vnwchar>;
using vista_u = std::basic_string_view<vnwchar>;

// The named fields and the reserved list, kept as the bytes of the file: no more memory than the file has.
class listas_cabecera {
  public:
    listas_cabecera() { vacia(); }
    void vacia();
    // Reads both, quietly; false, and empty, when the file does not hold them whole.
    bool lee(vnfichero *f);
    void graba(vnfichero *f) const;
    uint32_t num_campos() const { return numero_en(0); }
    // Calls funcion(name, value) for each field.
    template <class F> void recorre_campos(F &&funcion) const {
        size_t pos = TAM_NUMERO;
        for (uint32_t i = num_campos(); i != 0; --i) {
            const texto_u nombre = texto_en(pos);
            funcion(nombre, texto_en(pos));
        }
    }
    // Gives fields their values, in their places or at the end; as many names as values, a null text an empty one.
    void pon_campos(const arrCADENA_u *nombres, const arrCADENA_u *valores);
    // Every text becomes as many spaces, every number of the reserved list 0.
    void blanquea();

  private:
    static constexpr size_t TAM_NUMERO = 4;
    bool anexa(vnfichero *f, size_t n);
    bool anexa_numero(vnfichero *f, size_t tamanyo_elemento, uint32_t *n);
    bool anexa_texto(vnfichero *f);
    uint32_t numero_en(size_t pos) const;
    texto_u texto_en(size_t &pos) const;

    std::vector<unsigned char> bytes_;
    size_t fin_campos_ = 0;
};

struct cabecera {
    bool hay = false;      // there is one; without it the stream stands where it stood
    bool valida = true;    // none, or of a known form and whole
    bool truncada = false; // not valid because the file ends inside it or counts more than it holds
    bool es_ejemplo = false;
    bool con_listas = false;
    uint8_t forma = 0;
    std::string version, revision;
    listas_cabecera listas;
};

inline constexpr size_t LONGITUD_MASCARA = 4;
extern const char i_MASCARA_VORN[LONGITUD_MASCARA + 1];
extern const char i_MASCARA_EJEMPLO_VORN[LONGITUD_MASCARA + 1];

// New texts of the version and the revision, to those that are asked for: all or none, if memory runs out between.
void da_textos(const cabecera &c, char **version_texto, char **revision_texto);

// Reads the header at the position of the stream; reports nothing.
cabecera lee_cabecera(vnfichero *f);
// Writes the header of this program, or that of another file with its form and its mask. One that could not be read
// back is reported, and the save fails.
void graba_cabecera(vnfichero *f, const listas_cabecera &listas);
void graba_cabecera_copiada(vnfichero *f, const cabecera &c);
// Overwrites the mask of a file that has a header, leaving the position anywhere.
void graba_mascara_de_ejemplo(vnfichero *f);

// Opens for reading, reported.
fichero abre_para_leer(const vnwchar *nomfich);
bool esta_en_directorio_ejemplos(const vnwchar *ruta);

// Wide copy of an ANSI name, null for null.
propio<vnwchar> ancho_opcional(const char *texto);

} // namespace vn
