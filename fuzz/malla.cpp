// Stored meshes: whatever the bytes, a mesh whose arrays fit together and whose faces are of its own vertices, walked
// without a fault. One that was read without a report is written and reads as the same.
#include "mesh/vornmesh_genera.h"
#include "mesh/vornmesh_int.h"
#include "objetivo.h"
#include "persistence/vornsave.h"
#include <cmath>

namespace {

using malla = vn::mesh_propia;
const std::basic_string<vnwchar> COPIA = VNU("mem/entrada_copia");

struct abierto {
    vnfichero *f;
    vornsave *s;
    abierto(const std::basic_string<vnwchar> &nombre, const vnwchar *modo)
        : f(f_lc_fopen_u(nombre.c_str(), modo, VN_AQUI)), s(vornsave_registra_bin(f)) {
        vornsave_set_tipo_status_lectura(s, 1, nullptr);
    }
    ~abierto() {
        vornsave_libera(&s);
        lc_fclose_seguro(f);
    }
    abierto(const abierto &) = delete;
    abierto &operator=(const abierto &) = delete;
};

malla lee(const std::basic_string<vnwchar> &nombre) { return malla(vornmesh_lee(abierto(nombre, VNU("rb")).s)); }
void graba(const malla &m, const std::basic_string<vnwchar> &nombre) {
    vornmesh_graba(m.get(), abierto(nombre, VNU("wb")).s);
}

struct recorrido {
    uint32_t vertices;
    size_t caras = 0;
    void mira(std::initializer_list<uint32_t> indices) {
        ++caras;
        for (const uint32_t i : indices) fuzz::exige(i < vertices, "faces of the mesh's own vertices");
    }
};
void triangulo(recorrido *r, uint32_t a, uint32_t b, uint32_t c) { r->mira({a, b, c}); }
void quad(recorrido *r, uint32_t a, uint32_t b, uint32_t c, uint32_t d) { r->mira({a, b, c, d}); }

void destruye_lista(arrPuntero *a) { arr_DestruyeEstructurasArrayST(&a, arrPunto3D, arr_DestruyePunto3D); }
using lista = vn::dueno<destruye_lista>;

// What is not finite differs from itself.
bool es_finita(const malla &m) {
    const auto finitos = [](const arrPunto3D *a) {
        return a == nullptr || std::ranges::all_of(vn::listas::tramo(a), [](const Punto3D &p) {
                   return std::isfinite(p.x) && std::isfinite(p.y) && std::isfinite(p.z);
               });
    };
    const arrPunto2D *t = m->coord_texturas_opc.get();
    const bool texturas = t == nullptr || std::ranges::all_of(vn::listas::tramo(t), [](const Punto2D &p) {
                              return std::isfinite(p.x) && std::isfinite(p.y);
                          });
    return texturas && finitos(m->puntos.get()) && finitos(m->normales.get()) && finitos(m->tangentes_opc.get());
}

} // namespace

std::vector<std::string> fuzz::semillas() {
    std::vector<std::string> v;
    const auto semilla = [&v](mesh *propia) {
        const malla m(propia);
        v.push_back(lo_que_graba([&] { graba(m, NOMBRE); }));
    };
    semilla(vornmesh_crea_vacio_sin_coords_textura());
    semilla(vornmesh_crea_vacio_para_vnsmsolid());
    semilla(vornmesh_genera_prisma_esfera(1., 2., 3., 4., 3, 4));
    lista filas(arr_CreaPunteroConTipo(0));
    for (const double y : {0., 1.}) {
        arrPunto3D *fila = arr_CreaPunto3D(0);
        for (const double x : {0., 1., 2.}) arr_AppendPunto3D(fila, x, y, 0.);
        arr_AppendPunteroST(filas.get(), fila, arrPunto3D);
    }
    semilla(vornmesh_genera_grid3d(filas.get()));
    semilla(vornmesh_genera_contorno_ex(filas.get(), nullptr, nullptr));
    return v;
}

extern "C" int LLVMFuzzerTestOneInput(const uint8_t *datos, size_t n) {
    // What is read, and then its faces, its borders and its copies: each a few times what the file takes.
    fuzz::con_fichero(datos, n, 64 * fuzz::cota(n), [] {
        const malla m = lee(fuzz::NOMBRE);
        fuzz::exige(m != nullptr, "a mesh in any case");
        const bool sin_informes = fuzz::informes() == 0;
        const uint64_t antes = fuzz::informes();
        const malla copia(vornmesh_copia(m.get())); // looks at what it copies
        fuzz::exige(fuzz::informes() == antes, "arrays that fit together");
        recorrido r{vornmesh_num_puntos(m.get())};
        vornmesh_recorre_mesh_con_indices(m.get(), recorrido, &r, triangulo, quad);
        arrPuntero *segmentos = nullptr;
        const lista caras(vornmesh_obtener_caras_3d(m.get(), 1e-05, 1e-06, &segmentos)), los_segmentos(segmentos);
        fuzz::exige(arr_NumElemsPuntero(caras.get()) <= 2 * r.caras, "at most two faces of each");
        const vn::puntos2D_propios planta(vornmesh_obtener_segmentos_dibujo_basico(m.get()));
        if (!sin_informes) return;
        graba(m, COPIA);
        const malla otra = lee(COPIA);
        fuzz::exige(!es_finita(m) || vornmesh_son_iguales(m.get(), otra.get(), 0., 0.) == CIERTO,
                    "what is written reads as the same");
    });
    return 0;
}
