#include "drawing/vornplan.h"
#include "drawing/vornplan_apuntador.h"
#include "foundation/numeros/afin.hpp"
#include "foundation/numeros/vector_int.h"
#include "foundation/suelo/dueno.hpp"
#include "propiedades.h"
#include <cstdlib>

namespace {

using vn::matriz4;
using salida_propia = vn::dueno<vplan_cierra>;
salida_propia nada(salida_t *destino = nullptr) { return salida_propia(vplan_abre_nada(3, destino, CIERTO)); }
// An output that draws nothing itself, before another.
salida_propia etapa(salida_t *destino) {
    static const vplan_funciones NADIE{};
    void *item = const_cast<vplan_funciones *>(&NADIE);
    return salida_propia(vplan_nousar_abre_dispositivo_con_tabla(3, destino, &item, "etapa", nullptr, &NADIE));
}

testing::AssertionResult cerca(Punto3D a, Punto3D b, double escala) {
    for (const auto &[x, y] : {std::pair{a.x, b.x}, {a.y, b.y}, {a.z, b.z}})
        if (const auto r = vn::cerca(x, y, escala); !r) return r;
    return testing::AssertionSuccess();
}

// One of the transformations, appended, and what it is as a matrix.
matriz4 una(vn::azar &a, const vn::lugar &l, salida_t *s) {
    const double x = l.x + a.entre(-50, 50), y = l.y + a.entre(-50, 50), z = l.z + a.entre(-5, 5),
                 giro = a.entre(-4, 4), c = std::cos(giro), n = std::sin(giro), f = a.entre(.5, 2),
                 g = a.moneda() ? f : -f;
    const auto respecto = [&](const matriz4 &m) {
        return matriz4::traslacion({x, y, 0}) * m * matriz4::traslacion({-x, -y, 0});
    };
    const matriz4 vuelta = matriz4::giro({0, 0, 1}, giro);
    switch (a.entero(9)) {
    case 0: return vplan_append_desplaza_origen_coordenadas_3d(s, x, y, z), matriz4::traslacion({x, y, z});
    case 1: return vplan_append_desplaza_origen_coordenadas(s, x, y), matriz4::traslacion({x, y, 0});
    case 2: return vplan_append_escala_3d(s, f, g, f), matriz4::escala(f, g, f);
    case 3: return vplan_append_escala_con_origen(s, x, y, f, g), respecto(matriz4::escala(f, g, 1));
    case 4: return vplan_append_giro_xy(s, x, y, c, n), respecto(vuelta);
    case 5: return vplan_append_giro_xy_y_posiciona(s, x, y, c, n), matriz4::traslacion({x, y, 0}) * vuelta;
    case 6: return vplan_append_divisor_escala(s, 10), matriz4::escala(.1, .1, .1);
    case 7:
        vplan_append_ejes2D(s, x, y, z, c, n, 0, -n, c, 0);
        return matriz4::de_ejes({x, y, z}, {c, n, 0}, {-n, c, 0}, {0, 0, 1});
    default: {
        const matriz4 m = matriz4::giro({.6, 0, .8}, giro) * matriz4::escala(f, f, 1);
        return vplan_append_matriz_transformacion(s, m.a_vmatr().get()), m;
    }
    }
}

} // namespace

// A chain against the product of what was appended, the last first; what is kept of it never outlives a change.
PRUEBA(sistemas, una_cadena_es_el_producto_de_sus_etapas) {
    vn::azar a(71);
    for (int caso = 0; caso < 400; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        std::vector<salida_propia> cadena;
        for (uint32_t n = 1 + a.entero(3); n-- > 0;)
            cadena.push_back(cadena.empty() ? nada() : etapa(cadena.back().get()));
        std::vector<std::vector<matriz4>> pilas(cadena.size(), {matriz4{}});
        for (int paso = 0; paso < 30; ++paso) {
            const size_t i = a.entero(static_cast<uint32_t>(cadena.size()));
            if (a.entero(3) == 0 && pilas[i].size() > 1) {
                vplan_desapila_transformacion(cadena[i].get());
                pilas[i].pop_back();
            } else if (pilas[i].size() < 4) pilas[i].push_back(pilas[i].back() * una(a, l, cadena[i].get()));
            // The first output of the chain is the last made.
            matriz4 m;
            for (const auto &p : pilas) m = m * p.back();
            const Punto3D p{l.x + a.entre(-9, 9), l.y + a.entre(-9, 9), l.z};
            Punto3D q, v;
            vornplan_transforma_punto(cadena.back().get(), p.x, p.y, p.z, &q.x, &q.y, &q.z);
            vornplan_transforma_vector(cadena.back().get(), 1, 2, 3, &v.x, &v.y, &v.z);
            double mayor = 1;
            for (const auto &f : m.m)
                for (const double x : f) mayor = std::max(mayor, std::fabs(x));
            ASSERT_TRUE(cerca(q, m.punto(p), 50 * mayor * l.escala(100)) && cerca(v, m.vector({1, 2, 3}), 1e4 * mayor));
            ASSERT_TRUE(vn::cerca(vornplan_transforma_magnitud(cadena.back().get(), .00025),
                                  vn::numeros::modulo(m.vector({.00025, 0, 0})), 10 * mayor));
        }
        for (size_t i = 0; i < cadena.size(); ++i)
            for (size_t n = pilas[i].size(); n > 1; --n) vplan_desapila_transformacion(cadena[i].get());
        while (!cadena.empty()) cadena.pop_back();
    }
}

PRUEBA(sistemas, lo_que_se_pide_mal_se_dice_y_no_se_apila) {
    const auto s = nada();
    ESPERA_INFORME("num_elementos > 0", vplan_desapila_transformacion(s.get()));
    ESPERA_INFORME("div_escala > 0", vplan_append_divisor_escala(s.get(), 0));
    const auto tres = vn::dueno<vmatr_destruir_matriz>(vmatr_crea_matriz_identidad(3));
    ESPERA_INFORME("vmatr_num_filas_matriz(matriz_transformacion) == 4",
                   vplan_append_matriz_transformacion(s.get(), tres.get()));
    ESPERA_INFORME("num_elementos > 0", vplan_desapila_transformacion(s.get()));
    ESPERA_INFORME("vnstdc_fabs(factor_y) > 0.", vplan_append_escala(s.get(), 2, 0));
    double x, y;
    vplan_append_desplaza_origen_coordenadas(s.get(), 3, 4);
    vplan_get_origen_coordenadas(s.get(), &x, &y);
    EXPECT_TRUE(x == 6 && y == 4);
    // A perspective that takes depth away has no way back.
    matriz4 plana;
    plana.m[2][2] = 0;
    vplan_append_matriz_transformacion(s.get(), plana.a_vmatr().get());
    ESPERA_INFORME("ABS(determinante) > 0.",
                   vplan_desproyecta_punto_2d(s.get(), 1, 1, &x, &y, nullptr, nullptr, nullptr, nullptr));
    for (int i = 0; i < 3; ++i) vplan_desapila_transformacion(s.get());
}

PRUEBA(sistemas, lo_que_desactiva_llega_al_fin_de_la_cadena_y_vuelve) {
    const auto fin = nada(), s = etapa(fin.get());
    vplan_append_escala(fin.get(), 10, 10);
    vplan_append_desplaza_origen_coordenadas(s.get(), 1, 0);
    vplan_append_divisor_escala(s.get(), 10);
    double x, y, z;
    const auto pasa = [&] { return vornplan_transforma_punto(s.get(), 10, 0, 0, &x, &y, &z), x; };
    EXPECT_EQ(pasa(), 20);
    vplan_append_desactiva_transformaciones_anteriores(s.get());
    EXPECT_EQ(pasa(), 10);
    EXPECT_EQ(vplan_obtener_factor_escala_para_dibujar_textos_en_plano(s.get()), .1);
    vplan_append_escala(s.get(), 3, 3);
    EXPECT_EQ(pasa(), 30) << "what is appended afterwards counts, and the stage beyond stays off";
    vplan_desapila_transformacion(s.get());
    // One that was switched on again behind its back is told.
    vplan_desapila_transformacion(fin.get());
    vn::Prueba::toma_informes();
    ESPERA_INFORME("salida->salida_destino->sistema_coordenadas_actual->tipo_transformacion == "
                   "i_MATRIZ_DESACTIVA_TRANSFORMACIONES || "
                   "salida->salida_destino->sistema_coordenadas_actual->tipo_transformacion == "
                   "i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL || "
                   "salida->salida_destino->sistema_coordenadas_actual->tipo_transformacion == "
                   "i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_PLANO_PANTALLA || "
                   "salida->salida_destino->sistema_coordenadas_actual->tipo_transformacion == "
                   "i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_DIBUJO_EN_PIXELES",
                   vplan_desapila_transformacion(s.get()));
    EXPECT_EQ(pasa(), 20);
    for (const auto *q : {&s, &s, &fin}) vplan_desapila_transformacion(q->get());
}

PRUEBA(sistemas, lo_que_va_a_la_pantalla_y_vuelve) {
    vn::azar a(72);
    const auto s = nada();
    for (int caso = 0; caso < 300; ++caso) {
        const vn::lugar l = vn::lugar_de(caso);
        una(a, l, s.get());
        const double px = l.x + a.entre(-9, 9), py = l.y + a.entre(-9, 9), pz = l.z + a.entre(-3, 3);
        double x, y, x0, y0, z0, Ux, Uy, Uz;
        vplan_proyecta_punto_2d(s.get(), px, py, pz, &x, &y);
        vplan_desproyecta_punto_2d(s.get(), x, y, &x0, &y0, &z0, &Ux, &Uy, &Uz);
        // The point lies on the line of sight that it is seen on.
        const Punto3D lejos = vn::numeros::vectorial(Punto3D{px - x0, py - y0, pz - z0}, Punto3D{Ux, Uy, Uz});
        ASSERT_LT(vn::numeros::modulo(lejos), 1e-9 * l.escala(1000)) << caso;
        vplan_desapila_transformacion(s.get());
    }
}
