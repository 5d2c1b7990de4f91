// Every family from several threads at once, each with objects of its own, while another thread changes what is set for
// the whole process. What is wrong here is seen by ThreadSanitizer, or in an answer that is of no setting.
#include "colour/idcolor.h"
#include "drawing/arraydxf.h"
#include "drawing/tipolin.h"
#include "foundation/sistema/fichconf.h"
#include "foundation/sistema/vnregional.h"
#include "foundation/suelo/contexto.h"
#include "foundation/suelo/dueno.hpp"
#include "foundation/texto/msglocal.h"
#include "foundation/texto/unicode.h"
#include "mesh/vornmesh_genera.h"
#include "persistence/vornbin.h"
#include "persistence/vornsave.h"
#include "prueba.h"
#include "time/sysdata.h"
#include "time/vorntime.h"
#include "units/convers.h"
#include "units/magnitud.h"
#include "units/vnnumlet.h"
#include "units/vornconf.h"
#include <atomic>
#include <set>
#include <thread>

namespace {

using vn::toma;

using uno_de = std::set<std::string>;

// A project of its own, written and read.
bool guarda_y_lee(int hebra, int vuelta) {
    const auto nombre = vn::ancho(vn::Prueba::directorio() + "/obra" + std::to_string(hebra));
    vnfichero *f = vornbin_abre_fichero_para_escritura_u(nombre.c_str(), nullptr);
    vornsave *s = vornsave_registra_bin(f);
    vornsave_graba_inicio_seccion("vigas", s);
    vornsave_graba_long(hebra * 1000 + vuelta, s);
    vornsave_graba_cadena("dintel", s);
    vornsave_graba_fin_seccion("vigas", s);
    vornsave_libera(&s);
    bool bien = vornbin_cierra_fichero_abierto_para_escritura_u(f, nombre.c_str(), nullptr) == CIERTO;
    f = vornbin_abre_fichero_para_lectura_unicode(nombre.c_str(), nullptr);
    s = vornsave_registra_bin(f);
    char *seccion = vornsave_lee_seccion(s);
    bien = bien && vornsave_lee_long(s) == hebra * 1000 + vuelta;
    bien = bien && toma(vornsave_lee_cadena(s)) == "dintel";
    vornsave_lee_final_seccion(seccion, s);
    vornspy_free_pp(&seccion, 1);
    vornsave_libera(&s);
    vornbin_cierra_fichero_abierto_para_lectura_u(f, nombre.c_str(), nullptr);
    return bien;
}

// A report inside a trap stays with its thread.
void informa(const int *) { vnnumlet_numero_en_cifras_a_letra("abc", FALSO); }

bool valores() {
    const std::string fuerza = toma(convers_texto_con_unidades_dos_decimales(1, CNV_FUERZA));
    return uno_de{"1.00 t", "9.81 kN", "2204.62 lbs"}.contains(fuerza) &&
           uno_de{"1.0 t", "9.8 kN", "2204.6 lbs"}.contains(
               toma(convers_texto_ex(nullptr, 1, CNV_FUERZA, 1, FALSO, CIERTO))) &&
           convers_valor_redondeado_por_exceso(1, 0.1, CNV_FUERZA) > 0.99 &&
           uno_de{"veintiun", "vingt et un", "twenty-one"}.contains(
               toma(vnnumlet_numero_en_cifras_a_letra("21", FALSO))) &&
           vornconf_Internacional_sistema_unidades() - 1 < 3 && magnitud_m_a_ft(1) > 3;
}

bool textos(int vuelta) {
    contexto_dentroDeContexto_u(VNU("hebra"));
    const std::string fecha = toma(vtm_time_a_cadena_ordenable_AAAA_MM_DD_u(86400 * vuelta + 43200));
    vnwchar decimal = 0, millares = 0;
    vnregional_separadores(&decimal, &millares);
    contexto_fueraDeContexto_u(VNU("hebra"));
    return fecha.starts_with("1970-") && (decimal == ',' || decimal == '.') && decimal != millares &&
           !toma(sysdata_nombre_dia(static_cast<uint32_t>(vuelta % 7))).empty() &&
           !toma(sysdata_formateaNumero_u(1234.5, 1)).empty() &&
           !std::string(vornconf_texto_sistema_unidades()).empty() &&
           !toma(unicode_UNICODE_a_ANSI(VNU("ñandú Ł"))).empty();
}

void capa_que_no_hay(arraydxf *a) {
    vnbool pluma, color, tipo;
    arraydxf_cambiar_capa_u(a, 9, &pluma, &color, &tipo);
}

bool capas(int vuelta) {
    arraydxf *a = arraydxf_crea();
    idcolor *c = idcolor_crea_color_rgb(static_cast<uint32_t>(vuelta) * 0x010203);
    bool bien = arraydxf_define_capas_u(a, 0, VNU("muros"), 2, 0.25, c, 1, nullptr, 0) == 0 &&
                arraydxf_define_capas_u(a, 255, VNU("muros"), 2, 0.25, c, 1, nullptr, 0) == 0;
    trapable_ejecuta_funcion_segura(arraydxf, capa_que_no_hay, a, nullptr); // reported or tolerated, as it is just then
    bien = bien && idcolor_es_igual(arraydxf_dame_color_capa_activa(a), c) == CIERTO &&
           idcolor_color_paleta_autocad(c) != 0 && tipolin_es_tipo_linea_vorn(VNU("vorn_raya"), nullptr) == CIERTO;
    idcolor_destruye(&c);
    arraydxf_destruye(&a);
    return bien;
}

// An arrow of so many points: as many triangles less two.
bool mallas(int hebra, int vuelta) {
    arrPunto3D *flecha = arr_CreaPunto3D(0);
    const int n = 5 + (hebra + vuelta) % 7;
    for (int i = 0; i < n; ++i) arr_AppendPunto3D(flecha, i, i * i, 0.);
    arr_AppendPunto3D(flecha, n / 2., 0.75 * n * n, 0.);
    const vn::dueno<arr_DestruyePunto3D> suya(flecha);
    const vn::dueno<arr_DestruyePunteroConTipo> contornos(arr_CreaPunteroConTipo(0));
    arr_AppendPunteroST(contornos.get(), flecha, arrPunto3D);
    const vn::dueno<vornmesh_destruye> m(
        vornmesh_genera_contorno_con_normal_sin_compactar_vertices(contornos.get(), 0., 0., 1.));
    return vornmesh_num_puntos(m.get()) == static_cast<uint32_t>(3 * (n - 1));
}

} // namespace

PRUEBA(hebras, cada_familia_a_la_vez_mientras_cambia_lo_comun) {
    fichconf_establece_directorio_base(vn::ancho(directorio()).c_str());
    EXPECT_EQ(toma(convers_texto_con_unidades_dos_decimales(1, CNV_FUERZA)),
              "1.00 t"); // their language is the first one's
    std::atomic<bool> basta{false};
    std::atomic<int> mal{0};
    std::thread cambia([&] {
        for (int i = 0; !basta; ++i) {
            constexpr int IDIOMAS[] = {0, 1, 8};
            constexpr const char *REGIONES[] = {"es-ES", "en-US", nullptr};
            msidioma_establece_idioma(IDIOMAS[i % 3]);
            vornconf_Internacional_set_sistema_unidades(1 + static_cast<uint32_t>(i % 3));
            unicode_establece_pagina_ANSI(i % 2 == 0 ? 1252 : 1250);
            vnregional_establece(REGIONES[i % 3]);
            arraydxf_defensivo_set_es_dibujo_capas_pilares_estructa(i % 2 == 0 ? CIERTO : FALSO);
        }
    });
    vn::en_hebras(6, [&](int h) {
        for (int vuelta = 0; vuelta < 60; ++vuelta) {
            const int nada = 0;
            mal += !guarda_y_lee(h, vuelta);
            mal += !valores();
            mal += !textos(vuelta);
            mal += !capas(vuelta);
            mal += !mallas(h, vuelta);
            mal += trapable_ejecuta_funcion_segura(const int, informa, &nada, nullptr) != FALSO;
        }
    });
    basta = true;
    cambia.join();
    EXPECT_EQ(mal, 0);
    vornconf_Internacional_set_sistema_unidades(VORNCONF_SU_MKS);
    arraydxf_defensivo_set_es_dibujo_capas_pilares_estructa(FALSO);
}
