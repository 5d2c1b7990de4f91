#define VN_MODULO "rectng (NUCLEOS.DLL)"
// Arrays of rectangles: moving them, what holds them all, and strips lengthened and condensed.
#include "geometry/rectng_tiras.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/dueno.hpp"
#include <cmath>
#include <span>

namespace {

// Room between two strips, in metres, up to which they touch.
constexpr double HOLGURA_NULA = 1e-07;

std::span<rectangulo_t *const> elementos(const arrPuntero *a) {
    return {reinterpret_cast<rectangulo_t *const *>(arr_GetBufferConstPuntero(a)), arr_NumElemsPuntero(a)};
}

void destruye_rectangulos(arrPuntero **a) { arr_DestruyeEstructurasST(a, rectangulo_t, rec_Destruye); }
using rectangulo_propio = vn::dueno<rec_Destruye>;

// The limits of a rectangle along an axis.
struct eje {
    double rectangulo_t::*min, rectangulo_t::*max;
};
constexpr eje X = {&rectangulo_t::xmin, &rectangulo_t::xmax}, Y = {&rectangulo_t::ymin, &rectangulo_t::ymax};

// A strip has its length along one axis and is crossed along the other.
struct direccion {
    bool vertical;
    eje largo, ancho;
};
direccion direccion_de(const rectangulo_t &r) {
    return rec_RectanguloVertical(&r) == CIERTO ? direccion{true, Y, X} : direccion{false, X, Y};
}

// ---------------------------------------------------------------- lengthening

// The room that is left at an end: none, some, or negative where there is nothing in the way.
double holgura(double hasta_su_principio, double hasta_su_final) {
    const double h = hasta_su_principio < 0. ? hasta_su_final : hasta_su_principio;
    return std::fabs(h) <= HOLGURA_NULA ? 0. : h;
}

void limita(double &incremento, double holgura) {
    if (holgura >= 0. && holgura < incremento) incremento = holgura;
}

// Not inline: its callers have just asked, and the check is to stay.
[[gnu::noinline]] void alarga(double &limite, double sentido, double incremento_longitud) {
    AFIRMA(incremento_longitud > 0.);
    limite += sentido * incremento_longitud;
}

void alarga_hasta_los_otros(std::span<rectangulo_t *const> tiras, size_t cual, double incremento_a_cada_lado) {
    rectangulo_t *const principal = tiras[cual];
    if (!AFIRMA_NO_NULO(principal)) return;
    AFIRMA(principal->calculados);
    const direccion d = direccion_de(*principal);
    double incremento_final = incremento_a_cada_lado, incremento_inicial = incremento_a_cada_lado;
    for (size_t i = 0; i < tiras.size(); ++i) {
        if (i == cual) continue;
        const rectangulo_t *const otro = tiras[i];
        if (!AFIRMA_NO_NULO(otro)) continue;
        AFIRMA(otro->calculados);
        // A later strip across this one may still grow so far; the earlier ones have grown.
        const double tolerancia =
            i > cual && (rec_RectanguloVertical(otro) == CIERTO) != d.vertical ? incremento_a_cada_lado : 0.;
        if (!(otro->*d.ancho.min - tolerancia <= principal->*d.ancho.max &&
              principal->*d.ancho.min <= otro->*d.ancho.max + tolerancia))
            continue;
        // Another strip stops the end at its near side, or at its far one where they overlap already.
        limita(incremento_final,
               holgura(otro->*d.largo.min - principal->*d.largo.max, otro->*d.largo.max - principal->*d.largo.max));
        limita(incremento_inicial,
               holgura(principal->*d.largo.min - otro->*d.largo.max, principal->*d.largo.min - otro->*d.largo.min));
    }
    AFIRMA(incremento_final <= incremento_a_cada_lado);
    AFIRMA(incremento_inicial <= incremento_a_cada_lado);
    if (incremento_final > 0.) alarga(principal->*d.largo.max, 1., incremento_final);
    if (incremento_inicial > 0.) alarga(principal->*d.largo.min, -1., incremento_inicial);
}

// ---------------------------------------------------------------- condensing

bool lo_contiene(const rectangulo_t &de, const rectangulo_t &r) {
    return de.xmin <= r.xmin && r.xmax <= de.xmax && de.ymin <= r.ymin && r.ymax <= de.ymax;
}

bool casi_iguales(double a, double b, double tolerancia) { return a == b || std::fabs(a - b) <= tolerancia; }

// Whether two strips of direction `d` stand side against side. The first may have grown over others until it is no
// longer a strip of that direction itself: its group still is.
bool son_contiguos(const rectangulo_t &principal, const rectangulo_t &otro, const direccion &d, double tolerancia) {
    if (d.vertical) AFIRMA_TEXTO(rec_RectanguloVertical(&otro) == CIERTO, "rec_RectanguloVertical(otro) == CIERTO");
    else AFIRMA_TEXTO(rec_RectanguloVertical(&otro) == FALSO, "rec_RectanguloVertical(otro) == FALSO");
    AFIRMA(tolerancia >= 0.);
    if (principal.*d.largo.max + tolerancia < otro.*d.largo.min ||
        otro.*d.largo.max < principal.*d.largo.min - tolerancia)
        return false;
    return casi_iguales(principal.*d.ancho.min, otro.*d.ancho.max, tolerancia) ||
           casi_iguales(principal.*d.ancho.max, otro.*d.ancho.min, tolerancia);
}

bool crece_si_es_contiguo(rectangulo_t &candidato, const rectangulo_t &otro, const direccion &d, double tolerancia) {
    const bool contiguo =
        (rec_RectanguloVertical(&otro) == CIERTO) == d.vertical && son_contiguos(candidato, otro, d, tolerancia);
    if (contiguo) rec_MaximizaRect(&candidato, &otro);
    return contiguo;
}

// The rectangle that stands for element `cual` and those that touch it, or null when one in the result holds it.
rectangulo_propio condensa(std::span<rectangulo_t *const> tiras, size_t cual, const arrPuntero *condensados,
                           double tolerancia) {
    const rectangulo_t *const principal = tiras[cual];
    if (!AFIRMA_NO_NULO(principal)) return nullptr;
    AFIRMA(principal->calculados);
    const direccion d = direccion_de(*principal);
    rectangulo_propio candidato(rec_Copia(principal));
    // What has come before, which may hold this one, or touch it; then what is still to come.
    for (const rectangulo_t *r : elementos(condensados)) {
        if (lo_contiene(*r, *candidato)) return nullptr;
        crece_si_es_contiguo(*candidato, *r, d, tolerancia);
    }
    for (const rectangulo_t *otro : tiras.subspan(cual + 1))
        if (AFIRMA_NO_NULO(otro)) crece_si_es_contiguo(*candidato, *otro, d, tolerancia);
    return candidato;
}

} // namespace

void rec_TraladaRectangulos(arrPuntero *rectangulos, double dx, double dy) {
    if (!AFIRMA_NO_NULO(rectangulos)) return;
    for (rectangulo_t *rec : elementos(rectangulos)) rec_Mover(rec, dx, dy);
}

rectangulo_t *rec_Envolvente(const arrPuntero *rectangulos) {
    if (!AFIRMA_NO_NULO(rectangulos) || !AFIRMA(arr_NumElemsPunteroST(rectangulos, rectangulo_t) > 0)) return nullptr;
    const auto todos = elementos(rectangulos);
    rectangulo_propio envolvente(rec_Copia(todos[0]));
    if (envolvente == nullptr) return nullptr;
    for (const rectangulo_t *rec : todos) rec_MaximizaRect(envolvente.get(), rec);
    return envolvente.release();
}

void rec_Incrementa_longitudes_sin_solapes(arrPuntero *rectangulos, double incremento_a_cada_lado) {
    if (!AFIRMA_NO_NULO(rectangulos)) return;
    const auto tiras = elementos(rectangulos);
    const size_t num_rectangulos = tiras.size();
    if (!AFIRMA(num_rectangulos > 0)) return;
    for (size_t i = 0; i < num_rectangulos; ++i) alarga_hasta_los_otros(tiras, i, incremento_a_cada_lado);
}

arrPuntero *rec_Rectangulos_contiguos_condensados(const arrPuntero *rectangulos, double tolerancia) {
    if (!AFIRMA_NO_NULO(rectangulos)) return nullptr;
    const auto tiras = elementos(rectangulos);
    const size_t num_rectangulos = tiras.size();
    if (!AFIRMA(num_rectangulos > 0)) return nullptr;
    vn::dueno<destruye_rectangulos> propios(arr_CreaPunteroST(0, rectangulo_t));
    arrPuntero *const condensados = propios.get();
    for (size_t i = 0; i < num_rectangulos; ++i) {
        rectangulo_propio uno = condensa(tiras, i, condensados, tolerancia);
        if (uno == nullptr) continue;
        // Owned by both for a moment: the array that cannot grow must not lose it.
        arr_AppendPunteroST(condensados, uno.get(), rectangulo_t);
        uno.release();
    }
    AFIRMA(arr_NumElemsPunteroST(condensados, rectangulo_t) <= num_rectangulos);
    AFIRMA(arr_NumElemsPunteroST(condensados, rectangulo_t) > 0);
    return propios.release();
}
