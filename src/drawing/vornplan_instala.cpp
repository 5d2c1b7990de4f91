#define VN_MODULO "vornplan (NUCLEOS.DLL)"
#include "drawing/vornplan_instala.h"
#include "drawing/salida_priv.h"
#include "foundation/texto/cad.h"

using namespace vn;

namespace {

// What every installer asks first.
bool es_su_dispositivo(const salida_t *salida, const char *tipo) {
    return EXIGE(salida, tipo) && AFIRMA(cad_cadenas_iguales(salida->tipo_datos_dispositivo, tipo) == CIERTO);
}

} // namespace

// Steps over the slots of a group: stores the function given; asks that one is given; that none is there yet. The
// parameters bear the slots' names.
#define VN_PON(f) salida->funciones.f = f;
#define VN_HAY(f) &&AFIRMA_NO_NULO(f)
#define VN_VACIO(f) &&AFIRMA_TEXTO(salida->funciones.f == nullptr, "salida->" #f " == NULL")
// An installer: its name, its group, what it asks of the group.
#define VN_INSTALADOR(nombre, GRUPO, ...)                                                                              \
    void nombre(salida_t *salida, const char *tipo GRUPO(VPLAN_PARAMETRO)) {                                           \
        if (!es_su_dispositivo(salida, tipo)) return;                                                                  \
        if (!(true __VA_ARGS__)) return;                                                                               \
        GRUPO(VN_PON)                                                                                                  \
    }

VN_INSTALADOR(vplan_nousar_set_funciones2D, VPLAN_GRUPO_2D)
VN_INSTALADOR(vplan_nousar_set_funciones3D, VPLAN_GRUPO_3D)
VN_INSTALADOR(vplan_nousar_set_funciones_transformacion_coords_a_pantalla, VPLAN_GRUPO_COORDENADAS,
              VPLAN_GRUPO_COORDENADAS(VN_VACIO) VPLAN_GRUPO_COORDENADAS(VN_HAY))
VN_INSTALADOR(vplan_nousar_set_funciones_cotas_dwg, VPLAN_GRUPO_COTAS)
VN_INSTALADOR(vplan_nousar_set_funciones_animacion_morphing, VPLAN_GRUPO_MORPHING)
VN_INSTALADOR(vplan_nousar_set_dibuja_bloque_con_plano_definido, VPLAN_GRUPO_BLOQUE_CON_PLANO)
VN_INSTALADOR(vplan_nousar_set_func_visibilidad_bloques, VPLAN_GRUPO_VISIBILIDAD)
VN_INSTALADOR(vornplan_nousar_set_funciones_base_de_datos_3D_1, VPLAN_GRUPO_BD3D_1)
VN_INSTALADOR(vornplan_nousar_set_funciones_base_de_datos_3D_2, VPLAN_GRUPO_BD3D_2)
VN_INSTALADOR(vornplan_nousar_set_funciones_base_de_datos_3D_3, VPLAN_GRUPO_BD3D_3)
VN_INSTALADOR(vornplan_nousar_set_funciones_dibujo_buffers_geometria, VPLAN_GRUPO_BUFFERS)
VN_INSTALADOR(vornplan_nousar_set_funciones_dibujo_vnsmsolid, VPLAN_GRUPO_SOLIDO, VPLAN_GRUPO_SOLIDO(VN_VACIO))
VN_INSTALADOR(vornplan_nousar_set_funciones_gestion_atributos_bloqueados, VPLAN_GRUPO_BLOQUEOS)
VN_INSTALADOR(vornplan_nousar_set_gestor_bloques_moviles, VPLAN_GRUPO_MOVILES, VPLAN_GRUPO_MOVILES(VN_VACIO))
VN_INSTALADOR(vornplan_nousar_set_gestor_doble_buffer, VPLAN_GRUPO_DOBLE_BUFFER, VPLAN_GRUPO_DOBLE_BUFFER(VN_VACIO))

void vornplan_nousar_set_gestor_bloques_dibujo(salida_t *salida, const char *tipo,
                                               vnbool pasar_a_globales_entidades_del_bloque
                                                   VPLAN_GRUPO_BLOQUES(VPLAN_PARAMETRO)) {
    if (!es_su_dispositivo(salida, tipo) || !AFIRMA_LOGICO(pasar_a_globales_entidades_del_bloque)) return;
    if (!(true VPLAN_GRUPO_BLOQUES(VN_VACIO))) return;
    salida->pasar_a_globales_entidades_del_bloque = pasar_a_globales_entidades_del_bloque;
    VPLAN_GRUPO_BLOQUES(VN_PON)
}

void vornplan_set_pasar_a_globales_entidades_del_bloque_aunque_se_defina_en_locales(salida_t *salida) {
    if (!EXIGE(salida) || !AFIRMA(salida->pasar_a_globales_entidades_del_bloque == FALSO)) return;
    salida->pasar_a_globales_aunque_se_defina_en_locales = CIERTO;
}

// ---------------------------------------------------------------- the groups against the table

namespace {

// The group that the table tells of each slot, and the one in whose list it stands: they are the same, each slot once.
enum grupo : uint8_t {
    grupo_NINGUNO,
    grupo_ABRE,
    grupo_2D,
    grupo_3D,
    grupo_COORDENADAS,
    grupo_COTAS,
    grupo_MORPHING,
    grupo_BLOQUE_CON_PLANO,
    grupo_VISIBILIDAD,
    grupo_BD3D_1,
    grupo_BD3D_2,
    grupo_BD3D_3,
    grupo_BUFFERS,
    grupo_SOLIDO,
    grupo_BLOQUEOS,
    grupo_BLOQUES,
    grupo_MOVILES,
    grupo_DOBLE_BUFFER
};
constexpr grupo DE_LA_TABLA[] = {
#define X(slot, resultado, sitio, argumentos, grupo) grupo_##grupo,
#include "drawing/vornplan_tabla.inl"
#undef X
};
constexpr bool las_listas_son_las_de_la_tabla() {
    uint8_t veces[dispositivo::NUM_ENTRADAS] = {};
    bool bien = true;
    grupo cual = grupo_NINGUNO;
    const auto mira = [&](size_t numero) { bien = bien && DE_LA_TABLA[numero] == cual && ++veces[numero] == 1; };
#define VN_MIRA(f) mira(dispositivo::numero_de_##f);
#define VN_GRUPO(nombre) cual = grupo_##nombre, VPLAN_GRUPO_##nombre(VN_MIRA)
    // clang-format off
    VN_GRUPO(ABRE) VN_GRUPO(2D) VN_GRUPO(3D) VN_GRUPO(COORDENADAS) VN_GRUPO(COTAS) VN_GRUPO(MORPHING)
    VN_GRUPO(BLOQUE_CON_PLANO) VN_GRUPO(VISIBILIDAD) VN_GRUPO(BD3D_1) VN_GRUPO(BD3D_2) VN_GRUPO(BD3D_3)
    VN_GRUPO(BUFFERS) VN_GRUPO(SOLIDO) VN_GRUPO(BLOQUEOS) VN_GRUPO(BLOQUES) VN_GRUPO(MOVILES) VN_GRUPO(DOBLE_BUFFER)
        // clang-format on
        for (size_t i = 0; i < dispositivo::NUM_ENTRADAS; ++i) bien =
            bien && (veces[i] == 1) == (DE_LA_TABLA[i] != grupo_NINGUNO);
    return bien;
}
static_assert(las_listas_son_las_de_la_tabla());

} // namespace
