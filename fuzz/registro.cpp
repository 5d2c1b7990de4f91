// The registry's file, where it has one: whatever it holds, keys and texts come or do not, and what is then set is read
// back.
#include "foundation/ficheros/vornfile.h"
#include "foundation/listas/arr.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/sistema/vornreg.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/propio_int.h"
#include "objetivo.h"
#include <cstring>

namespace {

using ancho = std::basic_string<vnwchar>;

ancho lee_valor(const vnwchar *clave, const vnwchar *valor) {
    vnwchar *t = nullptr;
    if (vornreg_lee_cadena_u(VORNREG_USUARIO, clave, valor, &t) != CIERTO) return VNU("(none)");
    return vn::propio<vnwchar>(t).get();
}

// A key and its texts, and the keys under it; at most so deep. Returns how many keys lie right under it.
uint32_t recorre(const ancho &clave, int hondo) {
    using textos = vn::dueno<arr_DestruyeCADENA_u>;
    arrCADENA_u *n = nullptr, *t = nullptr, *h = nullptr;
    const bool hay = vornreg_lee_valores_cadena_clave_ex_u(VORNREG_USUARIO, clave.c_str(), 0, &n, &t) == CIERTO;
    const textos nombres(n), valores(t);
    // Each looking-up reads the file: the first ones stand for the rest.
    for (uint32_t i = 0; hay && i < arr_NumElemsCADENA_u(n) && i < 2; ++i)
        fuzz::exige(lee_valor(clave.c_str(), arr_GetCADENA_u(n, i)) == arr_GetCADENA_u(t, i), "a value by its name");
    if (vornreg_dame_subclaves_u(VORNREG_USUARIO, clave.c_str(), &h) != CIERTO) return 0;
    const textos hijas(h);
    const uint32_t cuantas = arr_NumElemsCADENA_u(h);
    for (uint32_t i = 0; i < cuantas && i < 2 && hondo > 0; ++i) {
        const ancho hija = arr_GetCADENA_u(h, i);
        if (!hija.empty()) recorre(clave + (clave.empty() ? VNU("") : VNU("\\")) + hija, hondo - 1);
    }
    return cuantas;
}

void lee(bool escribe) {
    fichconf_establece_directorio_base(VNU("mem"));
    const vn::propio<vnwchar> ruta(fichconf_dame_ruta_fichero_en_directorio_configuracion(VNU("registro.txt")));
    vf_copyfile_seguro_u(fuzz::NOMBRE.c_str(), ruta.get());
    const uint32_t antes = recorre(VNU(""), 2);
    const vnwchar *texto = VNU("=[\\\n\u00F1;]");
    if (escribe) {
        fuzz::exige(vornreg_establece_cadena_u(VORNREG_USUARIO, VNU("Nueva clave"), VNU("a=b"), texto) == CIERTO,
                    "it can be set");
        fuzz::exige(lee_valor(VNU("nueva CLAVE"), VNU("A=B")) == texto, "and is read back");
        fuzz::exige(recorre(VNU(""), 0) >= antes, "and nothing is lost");
    }
    fuzz::exige(fuzz::informes() == 0, "no report");
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    return {"[2\\Software\\A b]\n=x\nn\\003D=\\\\y\\D800\n[2\\software\\a B\\c]\nv=1\n",
            "[2]\r\na=b\r\n;c=d\r\n[0\\x]\n", "\\\n=\n[\n[]\n[2\\\\]\na=\n"};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    // A change goes through the system's locks and directories: one input in four.
    fuzz::con_fichero(datos, n, UINT64_MAX, [n] { lee(n % 4 == 0); });
    return 0;
}
