#define VN_MODULO "polin3d (NUCLEOS.DLL)"
// Polylines with fillets, and the sections along them.
#include "foundation/listas/arr_int.h"
#include "foundation/numeros/mt.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include "geometry/ejes2d.h"
#include "geometry/polin3d.h"
#include "geometry/polin3d_priv.h"
#include <cmath>
#include <span>

using namespace vn;

namespace {

void destruye_contornos(arrPuntero **a) { arr_DestruyeEstructurasArrayST(a, arrPunto3D, arr_DestruyePunto3D); }
void destruye_ejes(arrPuntero **a) { arr_DestruyeEstructurasST(a, ejes2d, ejes2d_destruye); }

bool caben(uint64_t num_puntos) { return AFIRMA(num_puntos <= MAXIMO_PUNTOS); }

// The points between segments longer than half the diameter; the two ends if there are none.
std::vector<Punto3D> limpia(std::span<const Punto3D> p, double diametro) {
    std::vector<Punto3D> r;
    for (size_t i = 2; i < p.size(); ++i) {
        if (!(distancia(p[i - 2], p[i - 1]) > diametro / 2.0) || !(distancia(p[i - 1], p[i]) > diametro / 2.0))
            continue;
        if (r.empty()) r = {p[i - 2], p[i - 1]};
        r.push_back(p[i]);
    }
    if (r.size() < 2) r = {p.front(), p.back()};
    return r;
}

struct opciones {
    barra medidas;
    bool con_radios, V_vertical;
    uint16_t num_puntos_circulo;
};

// The chain of sections. Each keeps as much of the U of the one before as its plane allows, so that a bar is not
// twisted.
class cadena {
  public:
    cadena(const opciones &o, const salidas_seccion &salidas) : o_(o), salidas_(salidas) {}

    // False once there are too many points.
    bool recorre(std::span<const Punto3D> p) {
        Punto3D x;
        mt_calcular_ejes_3D_dados_2_puntos(p[0].x, p[0].y, p[0].z, p[1].x, p[1].y, p[1].z, &x.x, &x.y, &x.z, &u_.x,
                                           &u_.y, &u_.z, &v_.x, &v_.y, &v_.z);
        if (!emite(p[0])) return false;
        for (size_t i = 1; i + 1 < p.size(); ++i) {
            acuerdo a;
            const bool hay = o_.con_radios && hay_acuerdo(p[i - 1], p[i], p[i + 1], o_.medidas, false, a);
            if (!(hay ? dobla(a) : quiebra(p[i - 1], p[i], p[i + 1], i + 2 == p.size()))) return false;
        }
        return cerca(p.back(), origen_, PRECISION_SECCION) || emite(p.back());
    }

  private:
    // A section at `origen` with the last axes.
    bool emite(Punto3D origen) {
        num_puntos_ += salidas_.contornos != nullptr ? o_.num_puntos_circulo : 1;
        if (!caben(num_puntos_)) return false;
        emite_seccion(origen, u_, v_, o_.V_vertical, o_.medidas.diametro, o_.num_puntos_circulo, salidas_, &origen_);
        return true;
    }

    // The axes square to the path, which runs against Y1, with U as near as can be to the last one; with V, where the
    // path runs along U. Three points on a line tell no path: the last axes stay.
    void orienta(Punto3D o, Punto3D a, Punto3D b) {
        Punto3D x1, y1, z1, x2, y2, z2;
        if (!ejes_de_tres(o, a, b, x1, y1, z1)) return;
        if (ejes_de_tres({}, -y1, u_, x2, y2, z2)) {
            u_ = y2;
            v_ = z2;
        } else if (ejes_de_tres({}, -y1, v_, x2, y2, z2)) {
            u_ = -z2;
            v_ = y2;
        }
    }

    // The sections of a fillet.
    bool dobla(const acuerdo &a) {
        const auto num_puntos_acuerdo = a.puntos.size();
        if (!AFIRMA(num_puntos_acuerdo > 0)) return true;
        Punto3D anterior = origen_;
        for (size_t i = cerca(a.puntos[0], origen_, PRECISION_SECCION) ? 1 : 0; i < num_puntos_acuerdo; ++i) {
            const Punto3D f = a.puntos[i];
            orienta(f, a.centro, anterior);
            if (!emite(f)) return false;
            anterior = f;
        }
        return true;
    }

    // The section of a corner with no fillet.
    bool quiebra(Punto3D a, Punto3D b, Punto3D c, bool es_el_ultimo) {
        const Punto3D entra = direccion(a, b), sale = direccion(b, c);
        if (std::fabs(std::fabs(numeros::escalar(entra, sale)) - 1.) < MARGEN_RECTO) return emite(b);
        // The way that the path turns: from the corner toward its inside.
        const Punto3D pm = b + (sale - entra);
        // From c, not from b, on purpose.
        orienta(c, pm, a);
        if (!emite(b)) return false;
        // What follows is the end of the bar, whose section is square to the last segment.
        if (es_el_ultimo) orienta(b + sale, pm, b);
        return true;
    }

    opciones o_;
    salidas_seccion salidas_;
    Punto3D origen_{}, u_{}, v_{};
    uint64_t num_puntos_ = 0;
};

// Runs the chain over a polyline; false if it has no two points, or too many come out.
bool secciones(const arrPunto3D *puntos, const opciones &o, const salidas_seccion &salidas) {
    const std::span<const Punto3D> p = listas::tramo(puntos);
    if (!AFIRMA_TEXTO(p.size() >= 2, "num_puntos >= 2")) return false;
    return cadena(o, salidas).recorre(limpia(p, o.medidas.diametro));
}

arrPuntero *ejes_de_secciones(const arrPunto3D *puntos, const opciones &o) {
    dueno<destruye_ejes> ejes(arr_CreaPunteroST(0, ejes2d));
    return secciones(puntos, o, {nullptr, nullptr, ejes.get()}) ? ejes.release() : nullptr;
}

} // namespace

double polin3d_radio_acuerdo_eje(double a, double b) { return b + a / 2.0; }

arrPunto3D *polin3d_puntos_polilinea_con_radios_de_acuerdo(const arrPunto3D *puntos, double diametro, double radio,
                                                           double num_grados_dibujo_doblado) {
    if (!AFIRMA_NO_NULO(puntos)) return nullptr;
    const std::span<const Punto3D> p = listas::tramo(puntos);
    if (p.size() < 2) return arr_CopiaPunto3D(puntos);
    const barra b{diametro, polin3d_radio_acuerdo_eje(diametro, radio), num_grados_dibujo_doblado};
    std::vector<Punto3D> r{p.front()};
    acuerdo a;
    for (size_t i = 1; i + 1 < p.size(); ++i) {
        if (!hay_acuerdo(p[i - 1], p[i], p[i + 1], b, false, a)) {
            r.push_back(p[i]);
            continue;
        }
        const bool repite = !a.puntos.empty() && cerca(r.back(), a.puntos.front(), PRECISION_EXTREMO);
        r.insert(r.end(), a.puntos.begin() + (repite ? 1 : 0), a.puntos.end());
        if (!caben(r.size())) return nullptr;
    }
    r.push_back(p.back());
    return array_de(r);
}

arrPuntero *polin3d_contorno_circulos_en_puntos_polilinea_con_radios_de_acuerdo(const arrPunto3D *puntos,
                                                                                double diametro, double radio,
                                                                                double num_grados_dibujo_doblado,
                                                                                uint16_t num_puntos_circulo,
                                                                                arrPunto3D **centros) {
    if (centros != nullptr) *centros = nullptr;
    if (!AFIRMA_NO_NULO(puntos) || !AFIRMA(num_puntos_circulo > 3)) return nullptr;
    // The arguments stand the other way round than in a polyline's own fillets, on purpose.
    const barra b{diametro, polin3d_radio_acuerdo_eje(radio, diametro), num_grados_dibujo_doblado};
    dueno<destruye_contornos> contornos(arr_CreaPunteroST(0, arrPunto3D));
    dueno<arr_DestruyePunto3D> los_centros(arr_CreaPunto3D(0));
    if (!secciones(puntos, {b, true, false, num_puntos_circulo}, {contornos.get(), los_centros.get(), nullptr}))
        return nullptr;
    if (centros != nullptr) *centros = los_centros.release();
    return contornos.release();
}

arrPuntero *polin3d_ejes2d_polilinea_con_radios_de_acuerdo(const arrPunto3D *puntos, double diametro, double radio,
                                                           double num_grados_dibujo_doblado, vnbool V_vertical) {
    if (!AFIRMA_NO_NULO(puntos) || !AFIRMA_LOGICO(V_vertical)) return nullptr;
    // As in the contours, on purpose.
    const barra b{diametro, polin3d_radio_acuerdo_eje(radio, diametro), num_grados_dibujo_doblado};
    return ejes_de_secciones(puntos, {b, true, V_vertical == CIERTO, 0});
}

arrPuntero *polin3d_ejes2d_polilinea_sin_radios_de_acuerdo(const arrPunto3D *puntos, vnbool V_vertical) {
    if (!AFIRMA_NO_NULO(puntos) || !AFIRMA_LOGICO(V_vertical)) return nullptr;
    return ejes_de_secciones(puntos, {{}, false, V_vertical == CIERTO, 0});
}
