#define VN_MODULO "gestcapa (NUCLEOS.DLL)"
#include "drawing/gestcapa.h"
#include "drawing/arraydxf_priv.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/vornspy.h"

using namespace vn;

gestcapa *gestcapa_crea(void) {
    dueno<gestcapa_destruye> g(new (vornspy_malloc(sizeof(gestcapa))) gestcapa{});
    g->actual.reset(arraydxf_crea());
    return g.release();
}

void gestcapa_destruye(gestcapa **gestionCapas) {
    if (!EXIGE(gestionCapas, *gestionCapas)) return;
    AFIRMA_TEXTO_CLASE((*gestionCapas)->pilaDeCapas.empty(),
                       "arr_NumElemsPunteroST((*gestionCapas)->pilaDeCapas, ArrayDxf_t) == 0", 1);
    (*gestionCapas)->~gestcapa();
    vornspy_free_pp(gestionCapas, sizeof(gestcapa));
}

void gestcapa_guardar_capas(gestcapa *gestionCapas) {
    if (!AFIRMA_NO_NULO(gestionCapas)) return;
    dueno<arraydxf_destruye> del_grupo(arraydxf_crea_con_atributos(gestionCapas->actual.get()));
    gestionCapas->pilaDeCapas.push_back(std::move(gestionCapas->actual));
    gestionCapas->actual = std::move(del_grupo);
}

void gestcapa_fin_grupos_capas(gestcapa *gestionCapas) {
    if (!AFIRMA_NO_NULO(gestionCapas)) return;
    const size_t num_apilados = gestionCapas->pilaDeCapas.size();
    if (!AFIRMA(num_apilados > 0)) return;
    gestionCapas->actual = std::move(gestionCapas->pilaDeCapas.back());
    gestionCapas->pilaDeCapas.pop_back();
}
