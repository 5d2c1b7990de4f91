// The list of recent works: whatever the file holds, it is read or thrown away, and what was read can be saved.
#include "foundation/listas/arr.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/suelo/propio_int.h"
#include "objetivo.h"
#include "persistence/ultiobra.h"

namespace {

void guarda(std::initializer_list<const vnwchar *> obras, bool finaliza) {
    for (const vnwchar *o : obras) ultiobra_guarda_nombre_ultima_obra_u(o, fuzz::NOMBRE.c_str());
    if (finaliza) ultiobra_finaliza_ultima_obra_u(fuzz::NOMBRE.c_str());
}

uint32_t cuantas() {
    return arr_NumElemsCADENA_u(
        vn::dueno<arr_DestruyeCADENA_u>(ultiobra_lee_ultimas_obras_u(fuzz::NOMBRE.c_str(), nullptr)).get());
}

void lee() {
    fuzz::exige(cuantas() < 100000, "a list within reason");
    const vn::propio<vnwchar> ultima(ultiobra_lee_nombre_ultima_obra_finalizada_u(fuzz::NOMBRE.c_str(), nullptr));
    ultiobra_guarda_nombre_ultima_obra_u(VNU("mem/nueva.obr"), fuzz::NOMBRE.c_str());
    const uint32_t despues = cuantas();
    fuzz::exige(despues >= 1 && despues <= 32, "between one and 32 works after a save");
    const bool de_otro = fuzz::informes() == 1 && fuzz::ultimo_informe() == "version <= VERSION_NOMBRE_OBRA";
    fuzz::exige(fuzz::informes() == 0 || de_otro,
                "of what stands in the list only that it is a newer program's is told, once");
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    const auto tres = [] { guarda({VNU("mem/a.obr"), VNU("mem/\u00f1\u4e2d.obr"), VNU("[x]mem/b.obr")}, true); };
    const auto abierta = [] { guarda({VNU("mem/a.obr"), nullptr}, false); };
    return {lo_que_graba(tres),
            lo_que_graba(abierta),
            "5 ; version\n1\n2 ; n\nn\xC3\xB1\xC3\xB3.obr\n\020D800.obr\n",
            "1\nmem/vieja.obr\n",
            "2\n2\nmem/a.obr\nmem/b.obr\n",
            "4\n; version\n1\n1\n; n\nmem/a.obr\n"};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    fuzz::con_fichero(datos, n, 5 * fuzz::cota(n), lee);
    return 0;
}
