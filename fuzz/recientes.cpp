// The list of recent works: whatever the file holds, it is read or thrown away, and what was read can be saved.
#include "foundation/listas/arr.h"
#include "foundation/texto/widestr.h"
#include "objetivo.h"
#include "persistence/ultiobra.h"

namespace {

void guarda(std::initializer_list<const vnwchar *> obras, bool finaliza) {
    for (const vnwchar *o : obras) ultiobra_guarda_nombre_ultima_obra_u(o, fuzz::NOMBRE.c_str());
    if (finaliza) ultiobra_finaliza_ultima_obra_u(fuzz::NOMBRE.c_str());
}

void lee() {
    arrCADENA_u *lista = ultiobra_lee_ultimas_obras_u(fuzz::NOMBRE.c_str(), nullptr);
    const uint32_t n = arr_NumElemsCADENA_u(lista);
    fuzz::exige(n < 100000, "a list within reason");
    arr_DestruyeCADENA_u(&lista);
    vnwchar *ultima = ultiobra_lee_nombre_ultima_obra_finalizada_u(fuzz::NOMBRE.c_str(), nullptr);
    widestr_destruye_opcional(&ultima);
    ultiobra_guarda_nombre_ultima_obra_u(VNU("mem/nueva.obr"), fuzz::NOMBRE.c_str());
    lista = ultiobra_lee_ultimas_obras_u(fuzz::NOMBRE.c_str(), nullptr);
    const uint32_t despues = arr_NumElemsCADENA_u(lista);
    fuzz::exige(despues >= 1 && despues <= 32, "between one and 32 works after a save");
    arr_DestruyeCADENA_u(&lista);
    const bool de_otro = fuzz::informes() == 1 && fuzz::ultimo_informe() == "version <= VERSION_NOMBRE_OBRA";
    fuzz::exige(fuzz::informes() == 0 || de_otro,
                "of what stands in the list only that it is a newer program's is told, once");
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    return {"5 ; version\n1\n2 ; n\nn\xC3\xB1\xC3\xB3.obr\n\020D800.obr\n",
            lo_que_graba([] {
                guarda({VNU("mem/a.obr"), VNU("mem/\u00f1\u4e2d.obr"), VNU("[x]mem/b.obr")}, true);
            }),
            lo_que_graba([] {
                guarda({VNU("mem/a.obr"), nullptr}, false);
            }),
            "1\nmem/vieja.obr\n",
            "2\n2\nmem/a.obr\nmem/b.obr\n",
            "4\n; version\n1\n1\n; n\nmem/a.obr\n"};
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    fuzz::con_fichero(datos, n, 5 * fuzz::cota(n), lee);
    return 0;
}
