#define VN_MODULO "vornmesh (NUCLEOS.DLL)"
#include "mesh/vornmesh_genera.h"
#include "mesh/vornmesh_monta_priv.h"

// Round and swept figures: tubes, cones, spheres, paths; boxes.
using namespace vn;

namespace {

using numeros::escalar, numeros::unitario;
using esquina = malla_suelta::esquina;

// Between these a figure has the points that were asked for in little time.
constexpr uint32_t MAXIMO_CIRCULO = 65536, MAXIMO_ESFERA = 8192;
// The mean of two unit normals, or of two directions, has no direction.
constexpr double SIN_MEDIA = 1e-05, SIN_CORTE = 1e-06;

// How many points a figure may have in all.
constexpr uint64_t MAXIMO_PUNTOS = uint64_t{1} << 28;

bool vale_circulo(uint32_t num) {
    return AFIRMA_TEXTO(num > 2, "num > 2") && AFIRMA_TEXTO(num <= MAXIMO_CIRCULO, "num <= 65536");
}

// A closed ring about a centre: where its points are from it.
using anillo = std::vector<Punto3D>;

anillo circulo(const ejes_de_circulo &ejes, std::span<const Punto2D> unidad, double radio) {
    anillo r;
    r.reserve(unidad.size());
    for (const Punto2D &p : unidad) r.push_back(radio * ejes.en(p));
    return r;
}

// The ring of a circle filled, with the normal of its plane.
void tapa(malla_suelta &malla, Punto3D centro, const anillo &circulo, bool al_reves) {
    std::vector<Punto3D> puntos;
    for (size_t i = 0; i < circulo.size(); ++i)
        puntos.push_back(centro + circulo[al_reves ? circulo.size() - 1 - i : i]);
    contornos_t c;
    c.anade(puntos, normal_de_contorno(puntos));
    malla.contornos(c);
}

// The points of an axis that have a direction from the one before, and those directions.
struct eje {
    std::vector<Punto3D> puntos, direcciones;
    explicit eje(std::span<const Punto3D> dados) {
        for (const Punto3D &p : dados) {
            if (puntos.empty()) {
                puntos.push_back(p);
                continue;
            }
            Punto3D d = p - puntos.back();
            if (!AFIRMA_TEXTO(unitario(d), "existe_interseccion == CIERTO")) continue;
            puntos.push_back(p);
            direcciones.push_back(d);
        }
    }
};

// The ring where the axis comes to a point: the one before, moved along the axis to the plane that cuts it there.
anillo corta(const anillo &antes, Punto3D de, Punto3D a, Punto3D d, Punto3D siguiente) {
    Punto3D n = d + siguiente;
    const bool existe_interseccion = unitario(n) && std::fabs(escalar(d, n)) > SIN_CORTE;
    AFIRMA(existe_interseccion == CIERTO);
    anillo puntos_disparados;
    puntos_disparados.reserve(antes.size());
    for (const Punto3D &q : antes) {
        // From the new centre, so that nothing is lost far from the origin.
        const Punto3D w = q - (a - de);
        puntos_disparados.push_back(existe_interseccion ? w - (escalar(w, n) / escalar(d, n)) * d : q);
    }
    return puntos_disparados;
}

// The path's two triangles, (a, b, c) and (c, d, a), in one quad: at the ends of the diagonal it has both normals.
void quad_plano(malla_suelta &malla, Punto3D a, Punto3D b, Punto3D c, Punto3D d) {
    const Punto3D n1 = normal_plana(a, b, c), n2 = normal_plana(c, d, a), media = 0.5 * (n1 + n2);
    const Punto3D n = numeros::modulo(media) <= SIN_MEDIA ? n1 : unitario_o(media, n1);
    malla.quad({a, n}, {b, n1}, {c, n}, {d, n2});
}

} // namespace

mesh *vornmesh_genera_prisma_tubos(const arrPunto3D *puntos, double radio, uint32_t num, vnbool tapas) {
    if (!AFIRMA_NO_NULO(puntos) || !vale_circulo(num) || !AFIRMA_LOGICO(tapas) ||
        !AFIRMA_TEXTO(arr_NumElemsPunto3D(puntos) > 1, "num > 1"))
        return nullptr;
    const eje e(puntos_de(puntos));
    const puntos2D_propios circunferencia = circulo_unidad(num);
    if (e.direcciones.empty() || circunferencia == nullptr ||
        !AFIRMA_TEXTO(uint64_t{num} * e.puntos.size() * 6 <= MAXIMO_PUNTOS, "num_puntos <= MAXIMO_PUNTOS"))
        return nullptr;
    const auto unidad = listas::tramo(static_cast<const arrPunto2D *>(circunferencia.get()));

    malla_suelta malla;
    anillo antes = circulo(ejes_de_circulo(e.direcciones[0]), unidad, radio);
    const auto en = [](Punto3D centro, Punto3D desde_el) {
        return esquina{centro + desde_el, unitario_o(desde_el, HACIA_ARRIBA)};
    };
    for (size_t i = 1; i < e.puntos.size(); ++i) {
        const Punto3D d = e.direcciones[i - 1], siguiente = i < e.direcciones.size() ? e.direcciones[i] : d;
        const Punto3D de = e.puntos[i - 1], a = e.puntos[i];
        const anillo despues = corta(antes, de, a, d, siguiente);
        const size_t num_puntos_contorno = antes.size();
        if (!AFIRMA_TEXTO(num_puntos_contorno == despues.size(),
                          "num_puntos_contorno == arr_NumElemsPunto3D(puntos_disparados)"))
            return nullptr;
        for (size_t j = 0; j < num_puntos_contorno; ++j) {
            const size_t k = j + 1 < num_puntos_contorno ? j + 1 : 0;
            malla.quad(en(de, antes[j]), en(de, antes[k]), en(a, despues[k]), en(a, despues[j]));
        }
        antes = despues;
    }
    if (tapas == CIERTO) {
        tapa(malla, e.puntos.front(), circulo(ejes_de_circulo(e.direcciones.front()), unidad, radio), true);
        tapa(malla, e.puntos.back(), circulo(ejes_de_circulo(e.direcciones.back()), unidad, radio), false);
    }
    return malla.termina().release();
}

mesh *vornmesh_genera_prisma_conico(double x_inferior, double y_inferior, double z_inferior, double radio_inferior,
                                    double x_superior, double y_superior, double z_superior, double radio_superior,
                                    double dx, double dy, double dz, uint32_t num, vnbool tapas) {
    Punto3D d{dx, dy, dz};
    if (!AFIRMA_TEXTO(unitario(d), "mt_pasar_a_unitario_3D(&dx, &dy, &dz) == CIERTO") || !vale_circulo(num) ||
        !AFIRMA_LOGICO(tapas))
        return nullptr;
    const puntos2D_propios circunferencia = circulo_unidad(num);
    if (circunferencia == nullptr) return nullptr;
    const auto unidad = listas::tramo(static_cast<const arrPunto2D *>(circunferencia.get()));
    const ejes_de_circulo ejes(d);
    const Punto3D inferior{x_inferior, y_inferior, z_inferior}, superior{x_superior, y_superior, z_superior};
    const anillo abajo = circulo(ejes, unidad, radio_inferior), arriba = circulo(ejes, unidad, radio_superior);

    malla_suelta malla;
    for (size_t i = 0; i < unidad.size(); ++i) {
        const size_t j = i + 1 < unidad.size() ? i + 1 : 0;
        // At a tip, the direction that its circle would have.
        const auto en = [&](Punto3D centro, const anillo &circulo, size_t k, bool borde) {
            return esquina{centro + circulo[k], unitario_o(circulo[k], ejes.en(unidad[k])), borde};
        };
        malla.quad(en(inferior, abajo, i, true), en(inferior, abajo, j, false), en(superior, arriba, j, true),
                   en(superior, arriba, i, false));
    }
    if (tapas == CIERTO) {
        tapa(malla, inferior, abajo, true);
        tapa(malla, superior, arriba, false);
    }
    return malla.termina().release();
}

mesh *vornmesh_genera_prisma_esfera(double xc, double yc, double zc, double radio, uint32_t num_paralelos,
                                    uint32_t num_meridianos) {
    if (!AFIRMA(radio > 0.) || !AFIRMA(num_paralelos > 2) || !AFIRMA(num_meridianos > 2) ||
        !AFIRMA(num_meridianos > 3) || !AFIRMA_TEXTO(num_paralelos <= MAXIMO_ESFERA, "num_paralelos <= 8192") ||
        !AFIRMA_TEXTO(num_meridianos <= MAXIMO_ESFERA, "num_meridianos <= 8192"))
        return nullptr;
    const Punto3D centro{xc, yc, zc};
    const puntos2D_propios ecuador = circulo_unidad(num_meridianos), meridiano(arr_CreaPunto2D(0));
    arr_AnyadirArcoPunto2D(meridiano.get(), 0., 0., radio, -numeros::PI / 2., numeros::PI / 2., 2 * num_paralelos - 2);
    if (ecuador == nullptr ||
        !AFIRMA_TEXTO(arr_NumElemsPunto2D(ecuador.get()) == num_meridianos,
                      "arr_NumElemsPunto2D(puntos_ecuador_2d) == num_meridianos") ||
        !AFIRMA_TEXTO(arr_NumElemsPunto2D(meridiano.get()) == num_paralelos,
                      "arr_NumElemsPunto2D(meridiano_2d) == num_paralelos"))
        return nullptr;

    malla_suelta malla;
    const uint32_t num_total_puntos = num_meridianos * num_paralelos, num_puntos_meridiano_3d = num_paralelos;
    malla.reserva(num_total_puntos);
    for (const Punto2D &e : listas::tramo(ecuador.get()))
        for (const Punto2D &m : listas::tramo(meridiano.get())) {
            const Punto3D desde_el_centro{m.x * e.x, m.x * e.y, m.y};
            malla.vertice({centro + desde_el_centro, unitario_o(desde_el_centro, HACIA_ARRIBA)});
        }
    if (!AFIRMA(num_total_puntos >= 2 * num_puntos_meridiano_3d)) return nullptr;
    for (uint32_t i = 0; i < num_meridianos; ++i) {
        // From the second meridian on, each with the one before it; the last with the first.
        const uint32_t previo = i * num_paralelos, este = (i + 1) % num_meridianos * num_paralelos;
        for (uint32_t k = 0; k + 1 < num_paralelos; ++k) {
            malla.caras.abre(VPLAN_QUADS);
            for (const uint32_t v : {previo + k, este + k, este + k + 1, previo + k + 1}) malla.caras.indice(v);
        }
    }
    return malla.termina().release();
}

mesh *vornmesh_genera_prisma_con_camino(const arrPuntero *secciones, vnbool cerrado, vnbool tapas) {
    if (!AFIRMA_NO_NULO(secciones) || !AFIRMA_LOGICO(cerrado) || !AFIRMA_LOGICO(tapas)) return nullptr;
    const auto lista = listas::tramo(secciones);
    const size_t num_secciones = lista.size();
    if (!AFIRMA(num_secciones > 1)) return nullptr;
    std::vector<std::span<const Punto3D>> s;
    for (const void *seccion : lista) {
        if (!AFIRMA_NO_NULO(seccion)) return nullptr;
        s.push_back(puntos_de(static_cast<const arrPunto3D *>(seccion)));
        const size_t num_puntos_por_seccion = s[0].size();
        if (!AFIRMA(num_puntos_por_seccion > 1) ||
            !AFIRMA_TEXTO(s.back().size() == num_puntos_por_seccion, "num_puntos == num_puntos_por_seccion"))
            return nullptr;
    }
    malla_suelta malla;
    for (size_t i = 0; i < num_secciones; ++i) {
        if (i + 1 == num_secciones && cerrado != CIERTO) break;
        const auto esta = s[i], otra = s[(i + 1) % num_secciones];
        for (size_t j = 0; j + 1 < esta.size(); ++j) quad_plano(malla, esta[j], esta[j + 1], otra[j + 1], otra[j]);
    }
    if (tapas == CIERTO) {
        const auto rellena = [&malla](std::vector<Punto3D> puntos) {
            contornos_t c;
            c.anade(puntos, normal_de_contorno(puntos));
            malla.contornos(c);
        };
        rellena({s.front().rbegin(), s.front().rend()});
        rellena({s.back().begin(), s.back().end()});
    }
    return malla.termina().release();
}

mesh *vornmesh_genera_cubo(double ancho, double alto, double profundidad) {
    if (!AFIRMA(ancho > 0.) || !AFIRMA(alto > 0.) || !AFIRMA(profundidad > 0.)) return nullptr;
    const double w = ancho, h = alto, d = profundidad;
    const struct {
        Punto3D a, b, c, d, n;
    } caras[] = {
        {{0, 0, d}, {0, 0, 0}, {w, 0, 0}, {w, 0, d}, {0, -1, 0}},
        {{w, 0, d}, {w, 0, 0}, {w, h, 0}, {w, h, d}, {1, 0, 0}},
        {{w, h, d}, {w, h, 0}, {0, h, 0}, {0, h, d}, {0, 1, 0}},
        {{0, h, d}, {0, h, 0}, {0, 0, 0}, {0, 0, d}, {-1, 0, 0}},
        {{0, 0, d}, {w, 0, d}, {w, h, d}, {0, h, d}, {0, 0, 1}},
        {{0, 0, 0}, {0, h, 0}, {w, h, 0}, {w, 0, 0}, {0, 0, -1}},
    };
    malla_suelta malla;
    for (const auto &f : caras) malla.quad({f.a, f.n}, {f.b, f.n}, {f.c, f.n}, {f.d, f.n});
    return malla.termina().release();
}
