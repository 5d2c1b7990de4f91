// The registry's file, where it has one: whatever it holds, keys and texts come or do not, and what is then set is read
// back.
#include "foundation/ficheros/vornfile.h"
#include "foundation/listas/arr.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/sistema/vornreg.h"
#include "foundation/texto/widestr.h"
#include "objetivo.h"
#include <cstring>

namespace {

using ancho = std::basic_string<vnwchar>;

ancho lee_valor(const vnwchar *clave, const vnwchar *valor) {
    vnwchar *t = nullptr;
    if (vornreg_lee_cadena_u(VORNREG_USUARIO, clave, valor, &t) != CIERTO) return VNU("(none)");
    const ancho texto = t;
    widestr_destruye(&t);
    return texto;
}

// A key and its texts, and the keys under it; at most so deep. Returns how many keys lie right under it.
uint32_t recorre(const ancho &clave, int hondo) {
    uint32_t cuantas = 0;
    arrCADENA_u *nombres = nullptr, *textos = nullptr, *hijas = nullptr;
    if (vornreg_lee_valores_cadena_clave_ex_u(VORNREG_USUARIO, clave.c_str(), 0, &nombres, &textos) == CIERTO) {
        // Each looking-up reads the file: the first ones stand for the rest.
        for (uint32_t i = 0; i < arr_NumElemsCADENA_u(nombres) && i < 2; ++i)
            fuzz::exige(lee_valor(clave.c_str(), arr_GetCADENA_u(nombres, i)) == arr_GetCADENA_u(textos, i),
                        "a value by its name");
        arr_DestruyeCADENA_u(&nombres);
        arr_DestruyeCADENA_u(&textos);
    }
    if (vornreg_dame_subclaves_u(VORNREG_USUARIO, clave.c_str(), &hijas) == CIERTO) {
        cuantas = arr_NumElemsCADENA_u(hijas);
        for (uint32_t i = 0; i < cuantas && i < 2 && hondo > 0; ++i) {
            const ancho hija = arr_GetCADENA_u(hijas, i);
            if (!hija.empty()) recorre(clave + (clave.empty() ? VNU("") : VNU("\\")) + hija, hondo - 1);
        }
        arr_DestruyeCADENA_u(&hijas);
    }
    return cuantas;
}

void lee(bool escribe) {
    fichconf_establece_directorio_base(VNU("mem"));
    vnwchar *ruta = fichconf_dame_ruta_fichero_en_directorio_configuracion(VNU("registro.txt"));
    vf_copyfile_seguro_u(fuzz::NOMBRE.c_str(), ruta);
    const uint32_t antes = recorre(VNU(""), 2);
    const vnwchar *texto = VNU("=[\\\n\u00F1;]");
    if (escribe) {
        fuzz::exige(vornreg_establece_cadena_u(VORNREG_USUARIO, VNU("Nueva clave"), VNU("a=b"), texto) == CIERTO,
                    "it can be set");
        fuzz::exige(lee_valor(VNU("nueva CLAVE"), VNU("A=B")) == texto, "and is read back");
        fuzz::exige(recorre(VNU(""), 0) >= antes, "and nothing is lost");
    }
    fuzz::exige(fuzz::informes() == 0, "no report");
    widestr_destruye(&ruta);
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
