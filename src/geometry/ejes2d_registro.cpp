#define VN_MODULO "ejes2d (NUCLEOS.DLL)"
#include "geometry/ejes2d_registro.h"
#include "foundation/numeros/mt.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/vornspy.h"
#include "geometry/ejes2d_construye.h"
#include "geometry/ejes2d_priv.h"
#include <cmath>

using namespace vn;

namespace {

template <class T> T *nuevo(const T &valor) {
    T *p = static_cast<T *>(vornspy_malloc(sizeof(T)));
    *p = valor;
    return p;
}

marco marco_de(const ejes2d &e) { return {{e.Xo, e.Yo, e.Zo}, {e.Ux, e.Uy, e.Uz}, {e.Vx, e.Vy, e.Vz}}; }
ejes2d *nuevo_de(const marco &m) {
    return nuevo(ejes2d{m.o.x, m.o.y, m.o.z, m.u.x, m.u.y, m.u.z, m.v.x, m.v.y, m.v.z});
}

// By axis, not by distance, and at the precision itself too.
bool iguales(Punto3D a, Punto3D b, double precision) {
    return std::fabs(a.x - b.x) <= precision && std::fabs(a.y - b.y) <= precision && std::fabs(a.z - b.z) <= precision;
}
bool iguales(const marco &a, const marco &b, double precision) {
    return iguales(a.o, b.o, precision) && iguales(a.u, b.u, precision) && iguales(a.v, b.v, precision);
}

// Planes may look the same way or opposite ones: the cosine of their normals is 1 or -1.
bool paralelos(const marco &a, const marco &b, double precision) {
    return std::fabs(std::fabs(numeros::escalar(normal_de(a), normal_de(b))) - 1.) < precision;
}

// The vectors of a frame have no place: they go by the base without its origin.
marco a_global(const marco &base, const marco &local) {
    const Punto3D w = normal_de(base);
    const marco direcciones{{}, base.u, base.v};
    return {base.a_global(local.o, w), direcciones.a_global(local.u, w), direcciones.a_global(local.v, w)};
}
marco a_local(const marco &base, const marco &global) {
    const Punto3D w = normal_de(base);
    // Two normals, which differ where the base is not orthonormal.
    // The origin goes by the cross product as it comes, the vectors by the unit normal.
    return {base.vector_a_local(global.o - base.o, numeros::vectorial(base.u, base.v)),
            base.vector_a_local(global.u, w), base.vector_a_local(global.v, w)};
}

// Cosine and sine of an angle in degrees, and a vector turned by it toward another.
struct giro {
    double coseno, seno;
    explicit giro(double grados)
        : coseno(std::cos(grados * numeros::PI / 180.0)), seno(std::sin(grados * numeros::PI / 180.0)) {}
    Punto3D operator()(Punto3D a, Punto3D hacia) const { return coseno * a + seno * hacia; }
};

} // namespace

// The expression that is reported compares the square of the length, so the limit is twice that of the length.
bool vn::comprueba_unitario(Punto3D u) {
    return AFIRMA_TEXTO(std::fabs(std::fabs(u.x * u.x + u.y * u.y + u.z * u.z) - 1.) < .00001,
                        "ABS(ABS(Ux * Ux + Uy * Uy + Uz * Uz) - 1.) < .00001");
}

Punto3D vn::normal_de(Punto3D u, Punto3D v) {
    // Axes that span no plane keep the zero of their product, which the check reports.
    Punto3D w = numeros::vectorial(u, v);
    mt_pasar_a_unitario_3D(&w.x, &w.y, &w.z);
    comprueba_unitario(w);
    return w;
}

// ---------------------------------------------------------------- records

ejes2d *ejes2d_crea(VN_EJES) { return nuevo_de(MARCO); }
ejes2d *ejes2d_copia(const ejes2d *e) { return AFIRMA_TEXTO(e != nullptr, "(ejes2d) != NULL") ? nuevo(*e) : nullptr; }
void ejes2d_destruye(ejes2d **e) {
    if (AFIRMA_TEXTO(e != nullptr, "(ejes2d) != NULL") && AFIRMA_TEXTO(*e != nullptr, "(*ejes2d) != NULL"))
        vornspy_free_pp(e, sizeof **e);
}

planoABCD *ejes2d_crea_planoABCD(double A, double B, double C, double D) { return nuevo(planoABCD{A, B, C, D}); }
planoABCD *ejes2d_copia_planoABCD(const planoABCD *p) {
    return AFIRMA_TEXTO(p != nullptr, "(planoABCD) != NULL") ? nuevo(*p) : nullptr;
}
void ejes2d_destruye_planoABCD(planoABCD **p) {
    if (AFIRMA_TEXTO(p != nullptr, "(planoABCD) != NULL") && AFIRMA_TEXTO(*p != nullptr, "(*planoABCD) != NULL"))
        vornspy_free_pp(p, sizeof **p);
}

ejes2d *ejes2d_local_a_global(VN_EJES, const ejes2d *ejes_resp_sr_base) {
    return AFIRMA_NO_NULO(ejes_resp_sr_base) ? nuevo_de(a_global(MARCO, marco_de(*ejes_resp_sr_base))) : nullptr;
}

ejes2d *ejes2d_local_a_ejes2d_global(const ejes2d *ejes_resp_sr_base, const ejes2d *ejes_sr_base_resp_sr_global) {
    if (!EXIGE(ejes_resp_sr_base, ejes_sr_base_resp_sr_global)) return nullptr;
    return nuevo_de(a_global(marco_de(*ejes_sr_base_resp_sr_global), marco_de(*ejes_resp_sr_base)));
}

ejes2d *ejes2d_global_a_ejes2d_local(const ejes2d *ejes_sr_base_resp_sr_global, const ejes2d *ejes_sr_resp_sr_global) {
    if (!EXIGE(ejes_sr_base_resp_sr_global, ejes_sr_resp_sr_global)) return nullptr;
    return nuevo_de(a_local(marco_de(*ejes_sr_base_resp_sr_global), marco_de(*ejes_sr_resp_sr_global)));
}

void ejes2d_ejes_locales_a_globales(VN_EJES, VN_EJES_DE(_local), VN_EJES_SALIDA_DE(_global)) {
    if (!EXIGE_EJES_DE(_global)) return;
    const marco m = a_global(MARCO, MARCO_DE(_local));
    A_SALIDAS_DE(_global, m);
}

void ejes2d_ejes_globales_a_locales(VN_EJES, VN_EJES_DE(_global), VN_EJES_SALIDA_DE(_local)) {
    if (!EXIGE_EJES_DE(_local)) return;
    const marco m = a_local(MARCO, MARCO_DE(_global));
    A_SALIDAS_DE(_local, m);
}

// ---------------------------------------------------------------- comparisons

vnbool ejes2d_es_identidad(VN_EJES, double precision) {
    return logico(iguales(MARCO, marco{{}, {1., 0., 0.}, {0., 1., 0.}}, precision));
}

vnbool ejes2d_iguales(VN_EJES_DE(1), VN_EJES_DE(2), double precision) {
    return logico(iguales(MARCO_DE(1), MARCO_DE(2), precision));
}

vnbool ejes2d_son_ejes_iguales(VN_EJES_UV_DE(1), VN_EJES_UV_DE(2)) {
    return logico(iguales(Punto3D{Ux1, Uy1, Uz1}, {Ux2, Uy2, Uz2}, PRECISION_EJES_IGUALES) &&
                  iguales(Punto3D{Vx1, Vy1, Vz1}, {Vx2, Vy2, Vz2}, PRECISION_EJES_IGUALES));
}

vnbool ejes2d_son_paralelos(VN_EJES_UV_DE(1), VN_EJES_UV_DE(2), double precision) {
    return logico(paralelos({{}, {Ux1, Uy1, Uz1}, {Vx1, Vy1, Vz1}}, {{}, {Ux2, Uy2, Uz2}, {Vx2, Vy2, Vz2}}, precision));
}

vnbool ejes2d_son_ejes_orientados_en_la_misma_direccion(VN_EJES_UV_DE(1), VN_EJES_UV_DE(2), double precision) {
    return logico(numeros::escalar(normal_de({Ux1, Uy1, Uz1}, {Vx1, Vy1, Vz1}),
                                   normal_de({Ux2, Uy2, Uz2}, {Vx2, Vy2, Vz2})) > precision);
}

vnbool ejes2d_son_ejes_coincidentes(VN_EJES_DE(1), VN_EJES_DE(2), double precision_paralelos,
                                    double precision_distancia) {
    return logico(paralelos(MARCO_DE(1), MARCO_DE(2), precision_paralelos) &&
                  std::fabs(ejes2d_distancia_con_signo_punto_a_plano(Xo1, Yo1, Zo1, Ux1, Uy1, Uz1, Vx1, Vy1, Vz1, Xo2,
                                                                     Yo2, Zo2)) < precision_distancia);
}

// ---------------------------------------------------------------- changes in place

void ejes2d_invierte_ejes_manteniendo_la_U(double *Vx, double *Vy, double *Vz) {
    if (EXIGE(Vx, Vy, Vz)) numeros::da(Vx, Vy, Vz, -Punto3D{*Vx, *Vy, *Vz});
}

void ejes2d_gira_ejes_sobre_U(double Ux, double Uy, double Uz, double *Vx, double *Vy, double *Vz, double grados) {
    if (!EXIGE(Vx, Vy, Vz)) return;
    const Punto3D v{*Vx, *Vy, *Vz};
    numeros::da(Vx, Vy, Vz, giro(grados)(v, normal_de({Ux, Uy, Uz}, v)));
}

void ejes2d_gira_ejes_sobre_V(double *Ux, double *Uy, double *Uz, double Vx, double Vy, double Vz, double grados) {
    if (!EXIGE(Ux, Uy, Uz)) return;
    const Punto3D u{*Ux, *Uy, *Uz};
    numeros::da(Ux, Uy, Uz, giro(grados)(u, normal_de(u, {Vx, Vy, Vz})));
}

void ejes2d_gira_ejes_sobre_W(double *Ux, double *Uy, double *Uz, double *Vx, double *Vy, double *Vz, double grados) {
    if (!EXIGE(Ux, Uy, Uz, Vx, Vy, Vz)) return;
    const Punto3D u{*Ux, *Uy, *Uz}, v{*Vx, *Vy, *Vz};
    const giro g(grados);
    numeros::da(Ux, Uy, Uz, g(u, v));
    // V turns toward -U as U turns toward V.
    numeros::da(Vx, Vy, Vz, g(v, -u));
}
