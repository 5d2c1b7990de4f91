// What the sample host's devices share: a table that is filled with methods of a class, and the state that a figure is
// drawn with, which those of the library's operations set that change nothing else.
//
//   struct punteador : dispositivo {                                   // counts the lines
//       static constexpr const char *NOMBRE = "punteador";
//       int lineas = 0;
//       void linea(double, double, double, double) { ++lineas; }
//       static void pon_funciones(vplan_funciones &f) {
//           dispositivo::pon_funciones(f);
//           f.func_DrawLinea = puente<&punteador::linea>::llama;
//       }
//   };
//   auto [salida, suyo] = abre_dispositivo(4, std::make_unique<punteador>(0));
#pragma once

#include "plano.h"
#include <cmath>
#include <memory>
#include <new>
#include <nucleos/colour/idcolor.h>
#include <nucleos/drawing/vornplan.h>
#include <nucleos/foundation/listas/arr.h>
#include <nucleos/foundation/suelo/dueno.hpp>
#include <optional>
#include <span>

namespace obra {

using dueno_salida = vn::dueno<vplan_cierra>;

// What a figure is drawn with, nothing left to its layer.
struct aspecto {
    uint32_t rgba = 0xFF000000; // red in the lowest byte
    double grosor_mm = 0;
    std::vector<double> trazos; // drawn and free by turns, in the device's units; empty: without gaps
    bool operator==(const aspecto &) const = default;
};

class dispositivo {
  public:
    // `unidades_por_mm`: of the device's space on paper.
    explicit dispositivo(uint32_t tipo_fondo, double unidades_por_mm = 1)
        : tipo_fondo_(tipo_fondo), unidades_por_mm_(unidades_por_mm) {}
    virtual ~dispositivo() = default;
    dispositivo(const dispositivo &) = delete;
    dispositivo &operator=(const dispositivo &) = delete;

    // False when something could not be drawn for want of memory.
    bool completo() const { return completo_; }
    void pierde() { completo_ = false; }

    static void pon_funciones(vplan_funciones &f);

  protected:
    struct linea_pedida {
        uint8_t numero = VPLAN_PORCAPA;
        texto nombre; // of a defined one, instead
    };
    struct atributos {
        idcolor color{};
        uint32_t pluma = 0;
        double grosor_mm = 0;
        linea_pedida linea;
    };
    struct capa_definida {
        std::string nombre; // UTF-8
        atributos suyos;
    };

    // The layer that is drawn on, null before the first, and its number.
    const capa_definida *capa_actual() const;
    uint8_t numero_de_capa() const { return grupos_.back().capa; }
    // What a figure is drawn with now.
    const aspecto &actual();
    // Another layer is drawn on from now on; the appearance has become that of the layer.
    virtual void cambia_capa() {}
    // For a device that keeps layers and line types itself, beside its own.
    uint8_t define_capa(uint8_t capa, const vnwchar *nombre, uint32_t pluma, double grosor_mm, const idcolor *color,
                        uint8_t tipo_linea, const vnwchar *tipo_linea_definida, uint8_t atributo_extra);
    void define_tipo_linea(const vnwchar *nombre, const vnwchar *descripcion, const arrDouble *trazos);

    const uint32_t tipo_fondo_;
    const double unidades_por_mm_;
    atributos pedidos_{{2, VPLAN_PORCAPA, 0xFFFFFFFF}, 0, 0, {}}; // as they were told

  private:
    using tabla_de_capas = std::vector<std::optional<capa_definida>>;

    void pon_capa(uint8_t capa);
    void pon_pluma(uint32_t pluma, double grosor_mm);
    void pon_color(const idcolor *color);
    void pon_tipo_linea_definida(const vnwchar *nombre);
    void pon_tipo_linea(uint8_t tipo);
    void guarda_capas();
    void acaba_capas();

    uint32_t rgba_de(const idcolor &c) const;
    std::vector<double> trazos_de(const linea_pedida &l) const;

    struct grupo_de_capas {
        tabla_de_capas tabla;
        uint8_t capa = VPLAN_NOCAMBIAR; // the one that is drawn on
    };
    std::vector<grupo_de_capas> grupos_{1}; // those that are open
    std::map<texto, std::vector<double>> tipos_de_linea_;
    std::optional<aspecto> aspecto_; // none: it has changed
    bool completo_ = true;
};

// A method as the function of a slot. Nothing is thrown through the library.
template <auto METODO> struct puente;
template <class D, class R, class... A, R (D::*METODO)(A...)> struct puente<METODO> {
    static R llama(void *item, A... valores) {
        auto *const d = static_cast<D *>(static_cast<dispositivo *>(item));
        try {
            return (d->*METODO)(valores...);
        } catch (const std::bad_alloc &) {
            d->pierde();
            return R();
        }
    }
};

// An output over a device, which is lent beside it and lives as long. `destino`: the next output of the chain.
template <class D> struct abierto {
    dueno_salida salida;
    D *suyo;
};
template <class D> abierto<D> abre_dispositivo(uint32_t tipo, std::unique_ptr<D> d) {
    vplan_funciones f{};
    D::pon_funciones(f);
    D *const suyo = d.get();
    dispositivo *item = d.release();
    const auto destruye = [](dispositivo **p) { delete *p, *p = nullptr; };
    return {dueno_salida(vplan_abre_dispositivo(dispositivo, tipo, nullptr, &item, D::NOMBRE, +destruye, &f)), suyo};
}

// The thickness of a device's pen, mm: of 1 to 4, and of the one that is told with it. None: the layer's, or nobody's.
std::optional<double> grosor_de_pluma(uint32_t pluma, double grosor_mm);

// What a device is handed.
inline std::span<const Punto2D> puntos_de(const arrPunto2D *a) {
    return {arr_GetBufferConstPunto2D(a), arr_NumElemsPunto2D(a)};
}
inline std::span<const double> numeros_de(const arrDouble *a) {
    return {arr_GetBufferConstDouble(a), arr_NumElemsDouble(a)};
}
template <class F> void cada_contorno(const arrPuntero *a, F f) {
    for (uint32_t i = 0; i < arr_NumElemsPuntero(a); ++i) f(puntos_de(arr_GetPunteroST(a, i, arrPunto2D)));
}
// From an angle counter-clockwise to another: above 0, up to a whole turn.
double barrido_de(double desde, double hasta);
template <class... N> bool son_finitos(N... n) { return (std::isfinite(n) && ...); }

// The lengths of a pattern by turns, from a drawn one on: even in number, none below 0; empty where nothing is free.
std::vector<double> por_turnos(std::span<const double> trazos);

} // namespace obra
