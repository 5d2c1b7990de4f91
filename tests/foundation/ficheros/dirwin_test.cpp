#define VN_MODULO "dirwin_test"
#include "foundation/ficheros/dirwin.h"
#include "foundation/ficheros/timefich.h"
#include "texto_ancho.h"
#include <map>

PRUEBA(dirwin, el_recorrido_da_cada_uno_una_vez) {
    const std::string d = directorio();
    std::filesystem::create_directories(d + "/sub.obr/dentro");
    vn::graba_fichero(d + "/a.obr", "12345");
    vn::graba_fichero(d + "/a.txt", "1");
    const std::string largo(120, 'x'); // with its letters of two and three bytes near the limit of a name
    vn::graba_fichero(d + "/" + largo + "ñ文.obr", "");
    dirwin *w = dirwin_crea_UNICODE(vn::ancho(d + "/*.obr").c_str());
    dirwin_dato dato;
    std::map<std::string, std::string> vistos;
    while (dirwin_findnextfile_UNICODE(w, &dato) == CIERTO) {
        const bool es_dir = dirwin_es_directorio_UNICODE(&dato) == CIERTO;
        EXPECT_TRUE(vistos.emplace(vn::utf8_de(dato.nombre), es_dir ? "dir" : std::to_string(dato.tamanyo)).second);
        if (es_dir) continue;
        int64_t fecha = 0;
        timefich_obtener_fecha_fichero_existente_UTC_UNICODE((vn::ancho(d + "/") + dato.nombre).c_str(), &fecha);
        EXPECT_EQ(dato.fecha_UTC, fecha);
    }
    const decltype(vistos) hay = {{"a.obr", "5"}, {"sub.obr", "dir"}, {largo + "ñ文.obr", "0"}};
    EXPECT_EQ(vistos, hay);
    EXPECT_EQ(dato.nombre[0], 0);
    EXPECT_EQ(dirwin_findnextfile_UNICODE(w, &dato), FALSO);
    dirwin_destruye_UNICODE(&w);
    EXPECT_EQ(w, nullptr);
    w = dirwin_crea_UNICODE(vn::ancho(d + "/no/*").c_str());
    EXPECT_EQ(dirwin_findnextfile_UNICODE(w, &dato), FALSO);
    dirwin_destruye_UNICODE(&w);
}
