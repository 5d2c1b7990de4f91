#define VN_MODULO "vornmesh (NUCLEOS.DLL)"
#include "mesh/vornmesh.h"
#include "foundation/suelo/logico_int.h"
#include "mesh/vornmesh_priv.h"
#include "mesh/vornmesh_textura.h"
#include "persistence/vornsave.h"
#include <cmath>
#include <memory>
#include <new>
#include <utility>

// The record: made, changed, compared, stored.
using namespace vn;

namespace {

constexpr uint8_t i_VERSION_FICHERO = 1;

template <auto COPIA, auto DESTRUYE, class A> dueno<DESTRUYE> copia_opcional(const A *a) {
    return dueno<DESTRUYE>(a != nullptr ? COPIA(a) : nullptr);
}
puntos3D_propios copia(const arrPunto3D *a) { return copia_opcional<arr_CopiaPunto3D, arr_DestruyePunto3D>(a); }
puntos2D_propios copia(const arrPunto2D *a) { return copia_opcional<arr_CopiaPunto2D, arr_DestruyePunto2D>(a); }
logicos_propios copia(const arrBOOL *a) { return copia_opcional<arr_CopiaBOOL, arr_DestruyeBOOL>(a); }
enteros_propios copia(const arrULong *a) { return copia_opcional<arr_CopiaULong, arr_DestruyeULong>(a); }
// Each copy is owned as soon as it is made.
indices_propios copia(const arrPuntero *a) {
    const auto de = listas::tramo(a);
    indices_propios r(arr_CreaPunteroConTipo(static_cast<uint32_t>(de.size())));
    if (r == nullptr) return nullptr;
    for (size_t i = 0; i < de.size(); ++i)
        if (de[i] != nullptr) listas::tramo(r.get())[i] = arr_CopiaULong(static_cast<const arrULong *>(de[i]));
    return r;
}

// Takes an array out of its owner's pointer.
template <class D> D toma(typename D::pointer *a) { return D(std::exchange(*a, nullptr)); }

mesh vacia() {
    mesh m;
    m.puntos.reset(arr_CreaPunto3D(0));
    m.normales.reset(arr_CreaPunto3D(0));
    m.es_borde.reset(arr_CreaBOOL(0));
    m.ids_parametricos_puntos_opc.reset(arr_CreaULong(0));
    m.tipos_primitivas.reset(arr_CreaULong(0));
    m.inds_caras.reset(arr_CreaPunteroConTipo(0));
    return m;
}

// What a transformation leaves as it is.
mesh copia_sin_geometria(const mesh &m) {
    mesh r;
    r.coord_texturas_opc = copia(m.coord_texturas_opc.get());
    r.es_borde = copia(m.es_borde.get());
    r.ids_parametricos_puntos_opc = copia(m.ids_parametricos_puntos_opc.get());
    r.tipos_primitivas = copia(m.tipos_primitivas.get());
    r.inds_caras = copia(m.inds_caras.get());
    return r;
}

uint32_t cuantos(const arrULong *a) { return arr_NumElemsULong(a); }

// The identifiers of a mesh that is going to have others beside its own, as many as it has vertices.
bool hay_ids(const mesh &m) {
    return m.ids_parametricos_puntos_opc != nullptr && cuantos(m.ids_parametricos_puntos_opc.get()) > 0;
}
void rellena_ids(mesh &m, uint32_t num_vertices) {
    while (cuantos(m.ids_parametricos_puntos_opc.get()) < num_vertices)
        arr_AppendULong(m.ids_parametricos_puntos_opc.get(), 0);
}

// An optional array is in both meshes or in none.
template <class P> bool igual_presencia(const P &a, const P &b) { return (a == nullptr) == (b == nullptr); }

bool comprueba_presencias(const mesh &origen, const mesh *mesh_destino) {
    bool bien = true;
#define VN_PRESENCIA(campo)                                                                                            \
    if (origen.campo != nullptr) bien = AFIRMA_NO_NULO(mesh_destino->campo) && bien;                                   \
    else bien = AFIRMA_TEXTO(mesh_destino->campo == nullptr, "mesh_destino->" #campo " == NULL") && bien
    VN_PRESENCIA(tangentes_opc);
    VN_PRESENCIA(coord_texturas_opc);
    VN_PRESENCIA(ids_parametricos_puntos_opc);
#undef VN_PRESENCIA
    return bien;
}

// Arrays of vertices that may both be absent, compared by an operation of theirs.
template <class P, class F> bool iguales_opcionales(const P &a, const P &b, F &&iguales) {
    return igual_presencia(a, b) && (a == nullptr || iguales(a.get(), b.get()) == CIERTO);
}

int compara_indices(const arrULong *a, const arrULong *b) { return arr_SonIgualesULong(a, b) == CIERTO ? 0 : 1; }

// Stored indices past the vertices: said once, and their primitive is left without any.
void vacia_primitivas_malas(mesh &m) {
    const uint32_t num_vertices = arr_NumElemsPunto3D(m.puntos.get());
    bool dicho = false;
    for (void *&primitiva : listas::tramo(m.inds_caras.get())) {
        auto *indices = static_cast<arrULong *>(primitiva);
        if (indices != nullptr &&
            std::ranges::all_of(listas::tramo(indices), [=](uint32_t k) { return k < num_vertices; }))
            continue;
        if (!std::exchange(dicho, true)) AFIRMA_TEXTO(false, "indice < num_vertices");
        const enteros_propios mala(static_cast<arrULong *>(std::exchange(primitiva, arr_CreaULong(0))));
    }
}

} // namespace

bool vn::comprueba_mesh(const mesh &m) {
    const uint32_t num_vertices = arr_NumElemsPunto3D(m.puntos.get());
    const auto *ids = m.ids_parametricos_puntos_opc.get();
    return AFIRMA_TEXTO(num_vertices == arr_NumElemsPunto3D(m.normales.get()),
                        "num_vertices == arr_NumElemsPunto3D(mesh->normales)") &&
           AFIRMA_TEXTO(m.tangentes_opc == nullptr || num_vertices == arr_NumElemsPunto3D(m.tangentes_opc.get()),
                        "num_vertices == arr_NumElemsPunto3D(mesh->tangentes_opc)") &&
           AFIRMA_TEXTO(m.coord_texturas_opc == nullptr ||
                            num_vertices == arr_NumElemsPunto2D(m.coord_texturas_opc.get()),
                        "num_vertices == arr_NumElemsPunto2D(mesh->coord_texturas_opc)") &&
           AFIRMA_TEXTO(num_vertices == arr_NumElemsBOOL(m.es_borde.get()),
                        "num_vertices == arr_NumElemsBOOL(mesh->es_borde)") &&
           AFIRMA_TEXTO(ids == nullptr || cuantos(ids) == 0 || num_vertices == cuantos(ids),
                        "num_vertices == arr_NumElemsULong(mesh->ids_parametricos_puntos_opc)") &&
           AFIRMA_TEXTO(cuantos(m.tipos_primitivas.get()) == arr_NumElemsPuntero(m.inds_caras.get()),
                        "arr_NumElemsEnum(mesh->tipos_primitivas, vplan_tipo_primitiva_t) == "
                        "arr_NumElemsPunteroTD(mesh->inds_caras, ArrULong)");
}

mesh_propia vn::nueva_mesh(mesh &&partes) {
    // No array is missing but for want of memory, which was reported.
    if (partes.puntos == nullptr || partes.normales == nullptr || partes.es_borde == nullptr ||
        partes.tipos_primitivas == nullptr || partes.inds_caras == nullptr)
        return nullptr;
    comprueba_mesh(partes);
    return mesh_propia(new (vornspy_malloc(sizeof(mesh))) mesh(std::move(partes)));
}

puntos3D_propios vn::array_de_puntos(std::span<const Punto3D> puntos) {
    puntos3D_propios a(arr_CreaPunto3D(static_cast<uint32_t>(puntos.size())));
    if (a != nullptr) std::ranges::copy(puntos, arr_GetBufferPunto3D(a.get()));
    return a;
}

// ---------------------------------------------------------------- made and destroyed

mesh *vornmesh_crea(arrPunto3D **puntos, arrPunto3D **normales, arrPunto3D **tangentes_opc,
                    arrPunto2D **coord_texturas_opc, arrBOOL **es_borde, arrULong **tipos_primitivas,
                    arrPuntero **inds_caras) {
    if (!EXIGE(puntos, *puntos, normales, *normales, tangentes_opc) ||
        !EXIGE(coord_texturas_opc, es_borde, *es_borde, tipos_primitivas, *tipos_primitivas, inds_caras, *inds_caras))
        return nullptr;
    return nueva_mesh({toma<puntos3D_propios>(puntos), toma<puntos3D_propios>(normales),
                       toma<puntos3D_propios>(tangentes_opc), toma<puntos2D_propios>(coord_texturas_opc),
                       toma<logicos_propios>(es_borde), nullptr, toma<enteros_propios>(tipos_primitivas),
                       toma<indices_propios>(inds_caras)})
        .release();
}

mesh *vornmesh_crea_duplicando_arrays(const arrPunto3D *puntos, const arrPunto3D *normales,
                                      const arrPunto3D *tangentes_opc, const arrPunto2D *coord_texturas_opc,
                                      const arrBOOL *es_borde, const arrULong *tipos_primitivas,
                                      const arrPuntero *inds_caras) {
    if (!EXIGE(puntos, normales, es_borde, tipos_primitivas, inds_caras)) return nullptr;
    return nueva_mesh({copia(puntos), copia(normales), copia(tangentes_opc), copia(coord_texturas_opc), copia(es_borde),
                       nullptr, copia(tipos_primitivas), copia(inds_caras)})
        .release();
}

mesh *vornmesh_crea_vacio_sin_coords_textura(void) { return nueva_mesh(vacia()).release(); }

mesh *vornmesh_crea_vacio_para_vnsmsolid(void) {
    mesh m = vacia();
    m.tangentes_opc.reset(arr_CreaPunto3D(0));
    m.coord_texturas_opc.reset(arr_CreaPunto2D(0));
    return nueva_mesh(std::move(m)).release();
}

mesh *vornmesh_copia(const mesh *m) {
    if (!AFIRMA_NO_NULO(m)) return nullptr;
    mesh copiada = copia_sin_geometria(*m);
    copiada.puntos = copia(m->puntos.get());
    copiada.normales = copia(m->normales.get());
    copiada.tangentes_opc = copia(m->tangentes_opc.get());
    return nueva_mesh(std::move(copiada)).release();
}

mesh *vornmesh_copia_para_transformacion_vornplan(const mesh *m, arrPunto3D **puntos, arrPunto3D **normales,
                                                  arrPunto3D **tangentes_opc) {
    if (!EXIGE(m, puntos, *puntos, normales, *normales, tangentes_opc)) return nullptr;
    mesh copiada = copia_sin_geometria(*m);
    copiada.puntos = toma<puntos3D_propios>(puntos);
    copiada.normales = toma<puntos3D_propios>(normales);
    copiada.tangentes_opc = toma<puntos3D_propios>(tangentes_opc);
    return nueva_mesh(std::move(copiada)).release();
}

void vornmesh_destruye(mesh **m) {
    if (!EXIGE(m, *m)) return;
    std::destroy_at(*m);
    vornspy_free_pp(m, sizeof **m);
}

// ---------------------------------------------------------------- asked and changed

uint32_t vornmesh_num_puntos(const mesh *m) {
    if (!AFIRMA_NO_NULO(m)) return 0;
    const uint32_t num_puntos = arr_NumElemsPunto3D(m->puntos.get());
    AFIRMA_TEXTO(num_puntos == arr_NumElemsPunto3D(m->normales.get()),
                 "num_puntos == arr_NumElemsPunto3D(mesh->normales)");
    AFIRMA_TEXTO(num_puntos == arr_NumElemsBOOL(m->es_borde.get()), "num_puntos == arr_NumElemsBOOL(mesh->es_borde)");
    AFIRMA_TEXTO(!hay_ids(*m) || num_puntos == cuantos(m->ids_parametricos_puntos_opc.get()),
                 "num_puntos == arr_NumElemsULong(mesh->ids_parametricos_puntos_opc)");
    return num_puntos;
}

void vornmesh_set_coordenadas_textura(mesh *m, arrPunto2D **coords_textura) {
    if (!EXIGE(m, coords_textura, *coords_textura) || !comprueba_mesh(*m) ||
        !AFIRMA_TEXTO(arr_NumElemsPunto3D(m->puntos.get()) == arr_NumElemsPunto2D(*coords_textura),
                      "arr_NumElemsPunto3D(mesh->puntos) == arr_NumElemsPunto2D(*coords_textura)"))
        return;
    if (m->tangentes_opc == nullptr) m->tangentes_opc.reset(vornmesh_genera_vectores_tangentes(m->normales.get()));
    m->coord_texturas_opc = toma<puntos2D_propios>(coords_textura);
}

void vornmesh_append_cara_triangular(mesh *m, double x1, double y1, double z1, double nx1, double ny1, double nz1,
                                     vnbool es_borde1, double x2, double y2, double z2, double nx2, double ny2,
                                     double nz2, vnbool es_borde2, double x3, double y3, double z3, double nx3,
                                     double ny3, double nz3, vnbool es_borde3) {
    if (!AFIRMA_NO_NULO(m) || !AFIRMA_LOGICO(es_borde1) || !AFIRMA_LOGICO(es_borde2) || !AFIRMA_LOGICO(es_borde3) ||
        !comprueba_mesh(*m) || !AFIRMA_TEXTO(m->tangentes_opc == nullptr, "mesh->tangentes_opc == NULL") ||
        !AFIRMA_TEXTO(m->coord_texturas_opc == nullptr, "mesh->coord_texturas_opc == NULL"))
        return;
    const uint32_t primero = arr_NumElemsPunto3D(m->puntos.get());
    // The indices first: they are the only new block that may be wanting once the arrays have begun to grow.
    enteros_propios indices(arr_CreaULong(3));
    if (indices == nullptr) return;
    for (uint32_t i = 0; i < 3; ++i) arr_SetULong(indices.get(), i, primero + i);
    const auto anade = [m](Punto3D p, Punto3D n, vnbool es_borde) {
        arr_AppendPunto3D(m->puntos.get(), p.x, p.y, p.z);
        arr_AppendPunto3D(m->normales.get(), n.x, n.y, n.z);
        arr_AppendBOOL(m->es_borde.get(), es_borde);
    };
    anade({x1, y1, z1}, {nx1, ny1, nz1}, es_borde1);
    anade({x2, y2, z2}, {nx2, ny2, nz2}, es_borde2);
    anade({x3, y3, z3}, {nx3, ny3, nz3}, es_borde3);
    if (hay_ids(*m)) rellena_ids(*m, primero + 3);
    arr_AppendULong(m->tipos_primitivas.get(), VPLAN_TRIANGULOS);
    arr_AppendPunteroST(m->inds_caras.get(), indices.get(), arrULong);
    indices.release();
}

vnbool vornmesh_se_pueden_concatenar(const mesh *mesh1, const mesh *mesh2) {
    return logico(EXIGE(mesh1, mesh2) && igual_presencia(mesh1->coord_texturas_opc, mesh2->coord_texturas_opc) &&
                  igual_presencia(mesh1->tangentes_opc, mesh2->tangentes_opc) &&
                  igual_presencia(mesh1->ids_parametricos_puntos_opc, mesh2->ids_parametricos_puntos_opc));
}

void vornmesh_concatena(const mesh *mesh_origen, mesh *mesh_destino) {
    if (!EXIGE(mesh_origen, mesh_destino) || !comprueba_mesh(*mesh_origen) || !comprueba_mesh(*mesh_destino) ||
        !comprueba_presencias(*mesh_origen, mesh_destino))
        return;
    const uint32_t antes = arr_NumElemsPunto3D(mesh_destino->puntos.get()),
                   nuevos = arr_NumElemsPunto3D(mesh_origen->puntos.get());
    if (!AFIRMA_TEXTO(nuevos <= UINT32_MAX - antes, "num_elementos < ULONG_MAX")) return;
    indices_propios indices = copia(mesh_origen->inds_caras.get());
    for (void *primitiva : listas::tramo(indices.get()))
        if (primitiva != nullptr)
            for (uint32_t &k : listas::tramo(static_cast<arrULong *>(primitiva))) k += antes;

    arr_ConcatenaPunto3D(mesh_destino->puntos.get(), mesh_origen->puntos.get());
    arr_ConcatenaPunto3D(mesh_destino->normales.get(), mesh_origen->normales.get());
    arr_ConcatenaBOOL(mesh_destino->es_borde.get(), mesh_origen->es_borde.get());
    if (mesh_origen->tangentes_opc != nullptr)
        arr_ConcatenaPunto3D(mesh_destino->tangentes_opc.get(), mesh_origen->tangentes_opc.get());
    if (mesh_origen->coord_texturas_opc != nullptr)
        arr_ConcatenaPunto2D(mesh_destino->coord_texturas_opc.get(), mesh_origen->coord_texturas_opc.get());
    const bool hay_en_origen = hay_ids(*mesh_origen), hay_en_destino = hay_ids(*mesh_destino);
    if (hay_en_origen || hay_en_destino) {
        AFIRMA_TEXTO((hay_en_origen || nuevos == 0) && (hay_en_destino || antes == 0),
                     "num_vertices == arr_NumElemsULong(mesh->ids_parametricos_puntos_opc)");
        rellena_ids(*mesh_destino, antes);
        arr_ConcatenaULong(mesh_destino->ids_parametricos_puntos_opc.get(),
                           mesh_origen->ids_parametricos_puntos_opc.get());
        rellena_ids(*mesh_destino, antes + nuevos);
    }
    arr_ConcatenaULong(mesh_destino->tipos_primitivas.get(), mesh_origen->tipos_primitivas.get());
    const uint32_t primitivas = arr_NumElemsPuntero(mesh_destino->inds_caras.get());
    arr_ConcatenaEstructurasConTipo(mesh_destino->inds_caras.get(), indices.get(), nullptr, VN_AQUI);
    // There was no memory for them, which was reported.
    if (arr_NumElemsPuntero(mesh_destino->inds_caras.get()) == primitivas) return;
    // Handed over, and so not destroyed with the list that brought them.
    arrPuntero *lista = indices.release();
    arr_DestruyePunteroConTipo(&lista);
}

vnbool vornmesh_son_iguales(const mesh *mesh1, const mesh *mesh2, double tolerancia_puntos,
                            double tolerancia_vectores) {
    if (!EXIGE(mesh1, mesh2) || !comprueba_mesh(*mesh1) || !comprueba_mesh(*mesh2)) return FALSO;
    const auto puntos = [](double tolerancia) {
        return [tolerancia](const arrPunto3D *a, const arrPunto3D *b) {
            return arr_SonIgualesPunto3DConTolerancia(a, b, tolerancia);
        };
    };
    const auto coordenadas = [=](const arrPunto2D *a, const arrPunto2D *b) {
        return arr_ArraysDePunto2DIguales(a, b, tolerancia_puntos);
    };
    return logico(
        iguales_opcionales(mesh1->puntos, mesh2->puntos, puntos(tolerancia_puntos)) &&
        iguales_opcionales(mesh1->normales, mesh2->normales, puntos(tolerancia_vectores)) &&
        iguales_opcionales(mesh1->tangentes_opc, mesh2->tangentes_opc, puntos(tolerancia_vectores)) &&
        iguales_opcionales(mesh1->coord_texturas_opc, mesh2->coord_texturas_opc, coordenadas) &&
        iguales_opcionales(mesh1->es_borde, mesh2->es_borde, arr_SonIgualesBOOL) &&
        iguales_opcionales(mesh1->tipos_primitivas, mesh2->tipos_primitivas, arr_SonIgualesULong) &&
        arr_SonIgualesPunteroST(mesh1->inds_caras.get(), mesh2->inds_caras.get(), arrULong, compara_indices) == CIERTO);
}

uint8_t vornmesh_version_DB(void) { return i_VERSION_FICHERO; }

// ---------------------------------------------------------------- stored

void vornmesh_graba(const mesh *m, vornsave *vornsave_datos) {
    if (!EXIGE(m, vornsave_datos)) return;
    // Arrays that do not fit together could not be read again. A null one in their place marks the stream.
    const bool bien = comprueba_mesh(*m);
    vornsave_graba_uchar(i_VERSION_FICHERO, vornsave_datos);
    vornsave_graba_arr_puntos3D(bien ? m->puntos.get() : nullptr, vornsave_datos);
    vornsave_graba_arr_puntos3D(m->normales.get(), vornsave_datos);
    vornsave_graba_arr_puntos3D_opcional(m->tangentes_opc.get(), vornsave_datos);
    vornsave_graba_arr_puntos2D_opcional(m->coord_texturas_opc.get(), vornsave_datos);
    vornsave_graba_arr_bool(m->es_borde.get(), vornsave_datos);
    vornsave_graba_arr_ulong_opcional(m->ids_parametricos_puntos_opc.get(), vornsave_datos);
    vornsave_graba_arr_ulong(m->tipos_primitivas.get(), vornsave_datos);
    vornsave_graba_arr_punterosST(m->inds_caras.get(), vornsave_datos, arrULong, vornsave_graba_arr_ulong);
}

mesh *vornmesh_lee(vornsave *vornsave_datos) {
    if (!AFIRMA_NO_NULO(vornsave_datos)) return nullptr;
    const uint8_t version_fichero = vornsave_lee_uchar(vornsave_datos);
    AFIRMA(version_fichero <= i_VERSION_FICHERO);
    mesh m;
    m.puntos.reset(vornsave_lee_arr_puntos3D(vornsave_datos));
    m.normales.reset(vornsave_lee_arr_puntos3D(vornsave_datos));
    m.tangentes_opc.reset(vornsave_lee_arr_puntos3D_opcional(vornsave_datos));
    m.coord_texturas_opc.reset(vornsave_lee_arr_puntos2D_opcional(vornsave_datos));
    m.es_borde.reset(vornsave_lee_arr_bool(vornsave_datos));
    if (version_fichero > 0) m.ids_parametricos_puntos_opc.reset(vornsave_lee_arr_ulong_opcional(vornsave_datos));
    m.tipos_primitivas.reset(vornsave_lee_arr_ulong(vornsave_datos));
    m.inds_caras.reset(vornsave_lee_arr_punterosST(vornsave_datos, arrULong, vornsave_lee_arr_ulong));
    const bool hay = m.puntos != nullptr && m.normales != nullptr && m.es_borde != nullptr &&
                     m.tipos_primitivas != nullptr && m.inds_caras != nullptr;
    if (!hay || !comprueba_mesh(m)) return vornmesh_crea_vacio_sin_coords_textura();
    vacia_primitivas_malas(m);
    return nueva_mesh(std::move(m)).release();
}
