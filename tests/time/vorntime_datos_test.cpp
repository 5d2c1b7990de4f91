// Dates of outside tables, by programs that know nothing of this one.
#include "prueba.h"
#include "time/timecalc.h"
#include "time/vorntime.h"
#include <cstdio>
#include <sstream>

PRUEBA(vorntime_datos, las_fechas_de_la_tabla) {
    std::istringstream lineas(vn::lee_fichero(VN_DIRECTORIO_DATOS "/D_tables/dates_unix.tsv"));
    std::string linea;
    int filas = 0;
    for (std::getline(lineas, linea); std::getline(lineas, linea); ++filas) {
        int y = 0, mes = 0, dia = 0, h = 0, m = 0, s = 0, semana = 0, del_anyo = 0, anyo_iso = 0, semana_iso = 0, bisiesto = 0;
        long long unix_ = 0;
        ASSERT_EQ(std::sscanf(linea.c_str(), "%d-%d-%d %d:%d:%d\t%lld\t%d\t%d\t%d\t%d\t%d", &y, &mes, &dia, &h, &m, &s, &unix_, &semana,
                              &del_anyo, &anyo_iso, &semana_iso, &bisiesto), 12) << linea;
        SCOPED_TRACE(linea);
        tmtime *f = vtm_crea(h, m, s, dia, mes, y), g;
        EXPECT_EQ(f->tm_wday, semana % 7); // ISO counts Sunday as 7
        EXPECT_EQ(f->tm_yday, del_anyo - 1);
        EXPECT_EQ(vtm_convierte_fecha_a_time_t(f), unix_); // the table begins in 1973
        vtm_convierte_time64t_a_fecha(unix_, &g);
        EXPECT_EQ(vtm_fechas_iguales(f, &g), CIERTO);
        EXPECT_EQ(vtm_segundos_en_un_anyo(y), bisiesto ? 31622400u : 31536000u);
        vtm_destruye(&f);
        EXPECT_EQ(timecalc_convierte_fecha_y_hora_a_time_t(dia, mes, y, h, m, s), unix_);
    }
    EXPECT_GT(filas, 300);
}
