#define VN_MODULO "lc_fichero (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/fichmem.h"
#include "foundation/ficheros/lc_fichero_int.h"
#include "foundation/ficheros/vornfile.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"

// The file operations that take ANSI names, of all modules: each is the wide one on a converted name.

namespace {

vn::propio<vnwchar> ancho(const char *ansi) { return vn::propio<vnwchar>(utunicode_ANSI_a_UNICODE(ansi)); }

} // namespace

vnfichero *f_lc_fopen(const char *nombre, const char *modo, const char *modulo, uint32_t linea) {
    if (!EXIGE(nombre, modo)) return nullptr;
    return f_lc_fopen_u(ancho(nombre).get(), ancho(modo).get(), modulo, linea);
}

vnfichero *f_lc_fopen_en_varios_intentos(const char *nombre, const char *modo, const char *modulo, uint32_t linea) {
    if (!EXIGE(nombre, modo)) return nullptr;
    return f_lc_fopen_en_varios_intentos_u(ancho(nombre).get(), ancho(modo).get(), modulo, linea);
}

vnfichero *f_lc_fopen_seguro(const char *nombre, const char *modo, const char *modulo, uint32_t linea) {
    if (!EXIGE(nombre, modo)) return nullptr;
    return f_lc_fopen_seguro_u(ancho(nombre).get(), ancho(modo).get(), modulo, linea);
}

size_t f_lc_fread_ansi_ascii(void *destino, size_t tamanyo, size_t numero, vnfichero *f, uint16_t version,
                             uint16_t version_ascii, const char *modulo, uint32_t linea) {
    const size_t k = f_lc_fread(destino, tamanyo, numero, f, modulo, linea);
    // Files after that version hold ANSI text as it is.
    if (version > version_ascii || k == 0) return k;
    // Byte by byte: what was read may hold zeros, and need not end in one.
    auto *p = static_cast<char *>(destino);
    for (char *const fin = p + k * tamanyo; p != fin; ++p) {
        if (static_cast<unsigned char>(*p) < 0x80) continue;
        char uno[2] = {*p, 0};
        cad_convertir_cadena_ascii_ansi(uno);
        *p = uno[0];
    }
    return k;
}

fichmem *fichmem_lee(const char *nombre) {
    return AFIRMA_NO_NULO(nombre) ? fichmem_lee_unicode(ancho(nombre).get()) : nullptr;
}

vnfichero *vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar(const char *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    return vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(ancho(nombre).get());
}

vnbool vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar(vnfichero *f, const char *nombre) {
    vn::ficheros::flujo_abierto mio(f); // closed, whatever comes
    if (!EXIGE(f, nombre)) return FALSO;
    const auto destino = ancho(nombre);
    return vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(mio.release(), destino.get());
}

vnbool vf_copyfile_seguro(const char *origen, const char *destino) {
    if (!EXIGE(origen, destino)) return FALSO;
    return vf_copyfile_seguro_u(ancho(origen).get(), ancho(destino).get());
}
