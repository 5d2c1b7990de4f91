// Axes of real outlines: the faces of buildings, and borders laid on planes of space.
#include "espacio.h"
#include "geometry/ejes2d.h"
#include "geometry/polin3d.h"
#include "prueba.h"
#include <algorithm>
#include <charconv>
#include <cstring>
#include <string>

using namespace espacio;

namespace {

// The numbers of a nest of brackets, a list for each of the innermost; `p` stands before the first bracket.
std::vector<std::vector<double>> listas(const char *p) {
    std::vector<std::vector<double>> r;
    int hondo = 0;
    do {
        if (*p == '[') {
            ++hondo;
            r.emplace_back();
        } else if (*p == ']') {
            --hondo;
        } else if (*p != ',') {
            double x = 0.;
            p = std::from_chars(p, p + 40, x).ptr - 1;
            r.back().push_back(x);
        }
        ++p;
    } while (hondo > 0);
    std::erase_if(r, [](const auto &l) { return l.empty(); });
    return r;
}

std::vector<std::vector<vec>> caras() {
    const std::string texto = vn::lee_fichero(vn::dato("B_mesh/buildings_rotterdam.city.json"));
    const auto tras = [&](const char *clave, size_t desde = 0) {
        const size_t i = texto.find(clave, desde);
        return i == std::string::npos ? nullptr : texto.c_str() + i + std::strlen(clave);
    };
    const std::vector<double> escala = listas(tras("\"scale\":"))[0];
    const auto vertices = listas(tras("\"vertices\":"));
    std::vector<std::vector<vec>> r;
    for (const char *p = texto.c_str();
         (p = tras("\"boundaries\":", static_cast<size_t>(p - texto.c_str()))) != nullptr;)
        for (const auto &cara : listas(p)) {
            r.emplace_back();
            for (const double i : cara) {
                const auto &v = vertices[static_cast<size_t>(i)];
                r.back().push_back({v[0] * escala[0], v[1] * escala[1], v[2] * escala[2]});
            }
        }
    return r;
}

vec area(const std::vector<vec> &p) {
    vec s{};
    for (size_t i = 0; i < p.size(); ++i) s = s + .5 * cruz(p[i] - p[0], p[(i + 1) % p.size()] - p[0]);
    return s;
}

} // namespace

PRUEBA(ejes2d_caras, las_caras_de_los_edificios_tienen_ejes) {
    size_t planas = 0, sin_area = 0, todas = 0;
    for (const auto &cara : caras()) {
        const vec s = area(cara), n = unitario(s);
        ++todas;
        double fuera = 0.;
        for (const vec &p : cara) fuera = std::max(fuera, std::fabs(por(p - cara[0], n)));
        const puntos lista(cara);
        marco m;
        // The tolerance is judged by planes of three corners, so between a third of it and three times it either may
        // be.
        const vnbool forman = ejes2d_punto3D_forman_ejes(lista, A_EJ(m));
        if (largo(s) == 0.) { // a wall of no width
            ++sin_area;
            EXPECT_EQ(forman, FALSO);
            continue;
        }
        if (fuera < .0005 / 3. || fuera > .0005 * 3.) {
            EXPECT_EQ(forman, fuera < .0005) << fuera;
        }
        if (forman != CIERTO) continue;
        ++planas;
        // The winding stays, and so does the area in the plane; the way back leads to each corner.
        EXPECT_GT(por(m.w(), n), .999);
        arrPunto2D *en_plano = ejes2d_polilinea3D_a_2D(EJ(m), lista, .001);
        const puntos vuelta(ejes2d_polilinea2D_a_3D(EJ(m), en_plano));
        std::vector<vec> plana;
        for (uint32_t i = 0; i < lista.size(); ++i) {
            const Punto2D q = arr_GetBufferConstPunto2D(en_plano)[i];
            plana.push_back({q.x, q.y, 0});
            EXPECT_LT(largo(vuelta[i] - cara[i]), .0006);
        }
        EXPECT_LT(std::fabs(area(plana).z - largo(s)), 1e-3 * largo(s));
        arr_DestruyePunto2D(&en_plano);
    }
    EXPECT_TRUE(todas == 248 && sin_area == 12 && planas >= 234) << todas << " " << sin_area << " " << planas;
}

PRUEBA(ejes2d_caras, las_fronteras_giran_como_la_mayoria_de_sus_esquinas) {
    vn::azar a(61);
    int vueltas = 0;
    for (const auto &fila : vn::tabla("C_polygons/borders.tsv")) {
        const char *p = fila[13].c_str() + std::strlen("POLYGON ((");
        std::vector<vec> anillo;
        for (; *p != ')'; p += *p == ',' ? 2 : 0) {
            vec v{};
            p = std::from_chars(p, p + 40, v.x).ptr + 1;
            p = std::from_chars(p, p + 40, v.y).ptr;
            anillo.push_back(v);
        }
        ASSERT_GT(anillo.size(), 3u);
        for (const bool del_reves : {false, true}) {
            if (del_reves) std::reverse(anillo.begin(), anillo.end());
            const marco m = marco_al_azar(a, 1000.);
            std::vector<vec> lista;
            for (const vec &v : anillo) lista.push_back(m.punto(v.x, v.y));
            int izquierda = 0;
            for (size_t i = 0, n = anillo.size(); i < n; ++i) {
                const double c = cruz(anillo[i] - anillo[(i + n - 1) % n], anillo[(i + 1) % n] - anillo[i]).z;
                izquierda += (c > 1e-8) - (c < -1e-8);
            }
            if (std::abs(izquierda) < 3) continue; // a corner by the limit could turn it
            marco r;
            ASSERT_EQ(ejes2d_punto3D_forman_ejes(puntos(lista), A_EJ(r)), CIERTO) << fila[1];
            EXPECT_EQ(por(r.w(), m.w()) > 0., izquierda > 0) << fila[1];
            double perimetro = 0.;
            std::from_chars(fila[10].data(), fila[10].data() + fila[10].size(), perimetro);
            if (fila[3] == "1") { // no holes
                EXPECT_LT(std::fabs(Pln3D_Longitud(puntos(lista)) - perimetro), 1e-6 * perimetro) << fila[1];
            }
            ++vueltas;
        }
    }
    EXPECT_GT(vueltas, 40);
}
