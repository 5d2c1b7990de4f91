// Writes the sample drawing as a DXF, and says how many entities of each kind it has.
#include "dispositivos.h"
#include "muestra.h"
#include "posesion.h"
#include <cstdio>
#include <nucleos/foundation/texto/unicode.h>

int main(int argc, char **argv) {
    using namespace obra;
    if (argc != 2) return 2;
    const dueno_fichero f(f_lc_fopen(argv[1], "wb", VN_AQUI));
    if (f == nullptr) return 1;
    const dueno_lienzo l = abre_dxf({}, f.get());
    for (const cuenta &c : dibuja_muestra(l->salida())) std::printf("%s %d\n", c.clase, c.cuantas);
    return l->acaba() ? 0 : 1;
}
