// A DXF as it was read, before its references are expanded. Names of layers and blocks have no case.
#pragma once

#include "dxf.h"
#include "grupos_dxf.h"
#include "textos_dxf.h"
#include <numbers>
#include <optional>
#include <variant>

namespace obra {

inline constexpr double GRADOS = std::numbers::pi / 180;

struct linea_dxf {
    Punto3D a, b;
};
struct arco_dxf {
    Punto3D centro;
    double radio, desde, hasta;
    bool completo;
};
struct elipse_dxf {
    Punto3D centro, eje, otro; // both half axes
    double desde, hasta;
};
struct poli_dxf {
    bool cerrada;
    std::vector<Punto3D> vertices;
    std::vector<double> curvaturas;
};
struct texto_dxf {
    Punto3D en;
    double altura, angulo;
    texto letras;
};
struct referencia_dxf {
    uint32_t bloque;
    Punto3D en;
    double sx, sy, sz, angulo, paso_columnas, paso_filas;
    int columnas, filas;
};
struct entidad_dxf {
    uint32_t capa, color;
    Punto3D normal; // of the plane that its coordinates are told in
    std::variant<linea_dxf, arco_dxf, elipse_dxf, poli_dxf, texto_dxf, referencia_dxf> que;
};
struct bloque_dxf {
    bool definido = false, abierto = false;
    Punto3D base = {0, 0, 0};
    std::vector<entidad_dxf> entidades;
    std::map<std::string, uint32_t> sin_tomar; // by kind
};

// Names as they were first written, each once.
class nombres_dxf {
  public:
    uint32_t lugar(const texto &nombre);
    const texto &operator[](uint32_t i) const { return nombres_[i]; }
    size_t cuantos() const { return nombres_.size(); }

  private:
    std::map<texto, uint32_t> indice_;
    std::vector<texto> nombres_;
};

struct capa_dxf {
    uint32_t nombre;
    texto tipo_linea;
    uint32_t color;
    bool apagada;
    double grosor_mm;
};
struct modelo_dxf {
    std::string version;
    int unidades = 0;
    double escala_de_linea = 1;
    nombres_dxf capas, tipos_de_linea, nombres_de_bloque;
    std::vector<std::vector<double>> trazos; // of each line type
    std::vector<capa_dxf> tabla_de_capas;
    std::vector<bloque_dxf> bloques; // by the place of their names
    bloque_dxf modelo;
};

// Reads to the end. Anything but `bien` leaves the model half made.
lectura_dxf lee_modelo(grupos_dxf &g, modelo_dxf &m, bool &con_final);
// Puts model space into layers, with the references expanded; false, as soon as it is known, when it is more than a
// drawing of so many bytes may ask for. `visitadas` counts what was gone through.
bool expande(modelo_dxf &m, uint64_t bytes, plano &p, uint64_t &visitadas);

} // namespace obra
