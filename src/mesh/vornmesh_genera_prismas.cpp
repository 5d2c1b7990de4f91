#define VN_MODULO "vornmesh (NUCLEOS.DLL)"
#include "foundation/numeros/mt.h"
#include "mesh/vornmesh_genera.h"
#include "mesh/vornmesh_monta_priv.h"
#include <utility>

// Prisms: solids between contours, sets of faces.
using namespace vn;

namespace {

// Fills the lower contours, which look down, and the upper ones. Their vertices are there without faces too.
void tapas(malla_compacta &malla, const contornos_t &inferior, bool hay_inferior, const contornos_t &superior,
           bool hay_superior) {
    malla.contornos(inferior, hay_inferior);
    malla.contornos(superior, hay_superior);
}

// Calls `cara(a, b, c, d, normal)` with each side that has an area: an edge below, a to b, and that above, c to d.
template <class F> void recorre_lados(std::span<const Punto3D> inferior, std::span<const Punto3D> superior, F &&cara) {
    for (size_t i = 0; i < inferior.size(); ++i) {
        const size_t j = i + 1 < inferior.size() ? i + 1 : 0;
        Punto3D n;
        if (normal_cara_lateral(inferior[i], inferior[j], superior[i], superior[j], n))
            cara(inferior[i], inferior[j], superior[i], superior[j], n);
    }
}

// Calls `lados(lower, upper)` with each pair of polygons of as many points.
template <class F> void recorre_poligonos(const arrPuntero *puntos_contorno_inferior,
                                          const arrPuntero *puntos_contorno_superior, F &&lados) {
    const uint32_t num_poligonos = arr_NumElemsPuntero(puntos_contorno_inferior),
                   superiores = arr_NumElemsPuntero(puntos_contorno_superior);
    AFIRMA_TEXTO(num_poligonos == superiores,
                 "num_poligonos == arr_NumElemsPunteroTD(puntos_contorno_superior, ArrPunto3D)");
    for (uint32_t i = 0; i < std::min(num_poligonos, superiores); ++i) {
        const auto *poligono_inferior = arr_GetPunteroST(puntos_contorno_inferior, i, const arrPunto3D);
        const auto *poligono_superior = arr_GetPunteroST(puntos_contorno_superior, i, const arrPunto3D);
        // Reported where they were filled.
        if (poligono_inferior == nullptr || poligono_superior == nullptr) continue;
        const uint32_t num_puntos = arr_NumElemsPunto3D(poligono_inferior);
        if (AFIRMA(num_puntos == arr_NumElemsPunto3D(poligono_superior)) && AFIRMA(num_puntos > 0))
            lados(puntos_de(poligono_inferior), puntos_de(poligono_superior));
    }
}

// The sides of a pair of polygons as one primitive of quads.
void lados_compactos(malla_compacta &malla, std::span<const Punto3D> inferior, std::span<const Punto3D> superior) {
    bool abierta = false;
    recorre_lados(inferior, superior, [&](Punto3D a, Punto3D b, Punto3D c, Punto3D d, Punto3D n) {
        if (!std::exchange(abierta, true)) malla.caras.abre(VPLAN_QUADS);
        for (const Punto3D &p : {a, b, d, c}) malla.caras.indice(malla.vertice({p, n, {}}, true));
    });
}

contornos_t contorno(const arrPunto3D *polilinea, Punto3D normal, bool al_reves) {
    contornos_t c;
    c.anade(puntos_de(polilinea), normal, al_reves);
    return c;
}

contornos_t contornos(const arrPuntero *lista, Punto3D normal, bool al_reves) {
    contornos_t c;
    c.anade(lista, normal, al_reves);
    return c;
}

// A point nearer than the tolerance to the next one of the ring goes.
void limpia(arrPunto3D *cara) {
    const auto p = listas::tramo(cara);
    const auto distintos = [](Punto3D a, Punto3D b) {
        return !(mt_distancia_3D(a.x, a.y, a.z, b.x, b.y, b.z) < MISMO_PUNTO);
    };
    size_t quedan = 0;
    for (size_t i = 0; i < p.size(); ++i)
        if (i + 1 == p.size() || distintos(p[i], p[i + 1])) p[quedan++] = p[i];
    while (quedan > 1 && !distintos(p[quedan - 1], p[0])) --quedan;
    for (auto i = static_cast<uint32_t>(p.size()); i > quedan; --i) arr_BorrarPunto3D(cara, i - 1);
}

} // namespace

mesh *vornmesh_genera_prisma_por_extrusion(const arrPuntero *puntos_contorno_inferior, double Nx_inferior,
                                           double Ny_inferior, double Nz_inferior, vnbool tapa_inferior,
                                           const arrPuntero *puntos_contorno_superior, double Nx_superior,
                                           double Ny_superior, double Nz_superior, vnbool tapa_superior) {
    if (!AFIRMA_NO_NULO(puntos_contorno_inferior) || !AFIRMA_LOGICO(tapa_inferior) ||
        !AFIRMA_NO_NULO(puntos_contorno_superior) || !AFIRMA_LOGICO(tapa_superior))
        return nullptr;
    malla_compacta malla;
    tapas(malla, contornos(puntos_contorno_inferior, {Nx_inferior, Ny_inferior, Nz_inferior}, true),
          tapa_inferior == CIERTO, contornos(puntos_contorno_superior, {Nx_superior, Ny_superior, Nz_superior}, false),
          tapa_superior == CIERTO);
    recorre_poligonos(puntos_contorno_inferior, puntos_contorno_superior,
                      [&](auto inferior, auto superior) { lados_compactos(malla, inferior, superior); });
    return malla.termina(false).release();
}

mesh *vornmesh_genera_prisma_por_extrusion2(const arrPuntero *puntos_contorno_inferior, double Nx_inferior,
                                            double Ny_inferior, double Nz_inferior, vnbool tapa_inferior,
                                            const arrPuntero *puntos_contorno_superior, double Nx_superior,
                                            double Ny_superior, double Nz_superior, vnbool tapa_superior) {
    if (!AFIRMA_NO_NULO(puntos_contorno_inferior) || !AFIRMA_LOGICO(tapa_inferior) ||
        !AFIRMA_NO_NULO(puntos_contorno_superior) || !AFIRMA_LOGICO(tapa_superior))
        return nullptr;
    malla_suelta malla;
    if (tapa_inferior == CIERTO)
        malla.contornos(contornos(puntos_contorno_inferior, {Nx_inferior, Ny_inferior, Nz_inferior}, true));
    if (tapa_superior == CIERTO)
        malla.contornos(contornos(puntos_contorno_superior, {Nx_superior, Ny_superior, Nz_superior}, false));
    const auto lado = [&malla](Punto3D a, Punto3D b, Punto3D c, Punto3D d, Punto3D n) {
        const auto triangulo = [&](Punto3D p, Punto3D q, Punto3D r) { // its last edge is the diagonal
            const uint32_t i = malla.vertice({p, n});
            malla.vertice({q, n});
            malla.vertice({r, n, false});
            malla.caras.triangulo(i, i + 1, i + 2);
        };
        triangulo(a, b, d);
        triangulo(d, c, a);
    };
    recorre_poligonos(puntos_contorno_inferior, puntos_contorno_superior,
                      [&](auto inferior, auto superior) { recorre_lados(inferior, superior, lado); });
    return malla.termina().release();
}

mesh *vornmesh_genera_mesh_entre_polilineas(const arrPunto3D *polilinea_inferior, double Nx_inferior,
                                            double Ny_inferior, double Nz_inferior, vnbool tapa_inferior,
                                            const arrPunto3D *polilinea_superior, double Nx_superior,
                                            double Ny_superior, double Nz_superior, vnbool tapa_superior,
                                            const arrPuntero *caras_laterales) {
    if (!AFIRMA_NO_NULO(polilinea_inferior) || !AFIRMA_LOGICO(tapa_inferior) || !AFIRMA_NO_NULO(polilinea_superior) ||
        !AFIRMA_LOGICO(tapa_superior) || !AFIRMA_NO_NULO(caras_laterales))
        return nullptr;
    malla_compacta malla;
    tapas(malla, contorno(polilinea_inferior, {Nx_inferior, Ny_inferior, Nz_inferior}, true), tapa_inferior == CIERTO,
          contorno(polilinea_superior, {Nx_superior, Ny_superior, Nz_superior}, false), tapa_superior == CIERTO);
    for (const void *cara : listas::tramo(caras_laterales)) {
        if (!AFIRMA_NO_NULO(cara)) continue;
        const auto p = puntos_de(static_cast<const arrPunto3D *>(cara));
        const size_t num_vertices_cara = p.size();
        if (!AFIRMA(num_vertices_cara == 3)) continue;
        const Punto3D n = unitario_o(numeros::vectorial(p[1] - p[0], p[2] - p[0]), HACIA_ARRIBA);
        malla.caras.abre(VPLAN_TRIANGULOS);
        for (const Punto3D &q : p) malla.caras.indice(malla.vertice({q, n, {}}, true));
    }
    return malla.termina(false).release();
}

mesh *vornmesh_genera_mesh_entre_polilineas_compatibles(const arrPunto3D *polilinea_inferior, double Nx_inferior,
                                                        double Ny_inferior, double Nz_inferior, vnbool tapa_inferior,
                                                        const arrPunto3D *polilinea_inferior_remuestrada,
                                                        const arrPunto3D *polilinea_superior, double Nx_superior,
                                                        double Ny_superior, double Nz_superior, vnbool tapa_superior,
                                                        const arrPunto3D *polilinea_superior_remuestrada) {
    if (!AFIRMA_NO_NULO(polilinea_inferior) || !AFIRMA_LOGICO(tapa_inferior) ||
        !EXIGE(polilinea_inferior_remuestrada, polilinea_superior) || !AFIRMA_LOGICO(tapa_superior) ||
        !AFIRMA_NO_NULO(polilinea_superior_remuestrada))
        return nullptr;
    malla_compacta malla;
    tapas(malla, contorno(polilinea_inferior, {Nx_inferior, Ny_inferior, Nz_inferior}, true), tapa_inferior == CIERTO,
          contorno(polilinea_superior, {Nx_superior, Ny_superior, Nz_superior}, false), tapa_superior == CIERTO);
    if (AFIRMA(arr_NumElemsPunto3D(polilinea_superior_remuestrada) ==
               arr_NumElemsPunto3D(polilinea_inferior_remuestrada)))
        lados_compactos(malla, puntos_de(polilinea_inferior_remuestrada), puntos_de(polilinea_superior_remuestrada));
    return malla.termina(false).release();
}

mesh *vornmesh_genera_prisma_por_conjunto_caras(arrPuntero *caras) {
    if (!AFIRMA_NO_NULO(caras)) return nullptr;
    malla_compacta malla;
    // Faces of three points, of four, and the rest, in that order.
    std::vector<arrPunto3D *> trozos[3];
    for (void *elemento : listas::tramo(caras)) {
        auto *cara = static_cast<arrPunto3D *>(elemento);
        if (!AFIRMA_NO_NULO(cara)) continue;
        limpia(cara);
        const uint32_t n = arr_NumElemsPunto3D(cara);
        if (n >= 3) trozos[std::min(n - 3, 2u)].push_back(cara);
    }
    const auto junta = [&malla](uint32_t tipo, const std::vector<arrPunto3D *> &iguales) {
        if (iguales.empty()) return;
        malla.caras.abre(tipo);
        for (const arrPunto3D *cara : iguales) {
            const Punto3D n = normal_de_contorno(cara);
            for (const Punto3D &p : puntos_de(cara)) malla.caras.indice(malla.vertice({p, n, {}}, true));
        }
    };
    junta(VPLAN_TRIANGULOS, trozos[0]);
    junta(VPLAN_QUADS, trozos[1]);
    for (const arrPunto3D *cara : trozos[2]) malla.contornos(contorno(cara, normal_de_contorno(cara), false), true);
    mesh_propia m = malla.termina(false);
    if (m != nullptr) AFIRMA_TEXTO(arr_NumElemsPunto3D(m->puntos.get()) > 0, "arr_NumElemsPunto3D(puntos) > 0");
    return m.release();
}
