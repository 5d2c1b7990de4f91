// Objects, call-backs and files that the swept operations are given. Inline, so that what no swept operation
// needs asks nothing of the libraries.
#pragma once

#include "barrido.h"
#include "colour/idcolor.h"
#include "drawing/arraydxf_priv.h"
#include "drawing/salida_priv.h"
#include "drawing/tipolin.h"
#include "drawing/vornplan.h"
#include "drawing/vornplan_apuntador.h"
#include "environment/ultfichsel.h"
#include "foundation/ficheros/dirwin.h"
#include "foundation/ficheros/fichmem.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/ficheros/vdir.h"
#include "foundation/ficheros/vornfile.h"
#include "foundation/listas/acadorde.h"
#include "foundation/listas/apunorde.h"
#include "foundation/listas/arr.h"
#include "foundation/listas/gcarray.h"
#include "foundation/numeros/gcMat4x4.h"
#include "foundation/sistema/avisos.h"
#include "foundation/sistema/vnmutex.h"
#include "foundation/suelo/callback.h"
#include "foundation/suelo/error_interno.h"
#include "foundation/suelo/vnlongpath.h"
#include "foundation/suelo/vornspy.h"
#include "foundation/texto/msglocal.h"
#include "geometry/poligono.h"
#include "geometry/pto3dord.h"
#include "geometry/rectng.h"
#include "mesh/vornmesh_genera.h"
#include "persistence/vornbin.h"
#include "persistence/vornsave.h"
#include "time/vorntime.h"
#include <cstring>
#include <deque>
#include <utility>

namespace barrido {

// ---------------------------------------------------------------- kinds that only generated code names

template <class F> void (*como_general(F *f))() { return reinterpret_cast<void (*)()>(f); }

// The number of elements of a buffer: what fits, none, one, and what its range forbids.
template <class T> parametro longitud(const char *nombre) {
    parametro p{nombre};
    for (const int64_t i : {16, 0, 1, 2}) pon_entero(p, calidad::libre, i, false);
    return p;
}
template <class T, class A, class B> parametro longitud(const char *nombre, A a, B b) {
    parametro p{nombre};
    for (const int64_t i : {int64_t{16}, static_cast<int64_t>(a), int64_t{1}, int64_t{2}})
        if (i >= static_cast<int64_t>(a)) pon_entero(p, calidad::buena, i, false);
    for (const valor &v : entero_en<T>(nombre, a, b).valores)
        if (v.cal == calidad::mala) pon_entero(p, calidad::mala, v.d.i, false);
    return p;
}

// A text that the operation changes where it stands.
template <class C> parametro texto_cambiable(const char *nombre, unsigned opciones) {
    static const C claro[32] = {'a', 'b', ' ', '1', '2', ' '};
    static const C vacio[32] = {};
    parametro p = registro(nombre, claro, sizeof claro, opciones);
    p.valores.insert(p.valores.begin() + 1,
                     {"\"\"", calidad::libre, clase_valor::copia, {.p = const_cast<C *>(vacio)}});
    return p;
}

// An address that is only kept, or led to nothing that the sweep could make; it holds null pointers.
inline parametro direccion_fija(const char *nombre, unsigned opciones) {
    static void *sitio[8];
    parametro p = dato_ajeno(nombre);
    p.valores[0].d.p = sitio;
    if (!(opciones & OPCIONAL)) p.valores[1].cal = calidad::mala;
    return p;
}

template <class T> parametro registro_de(const char *nombre, const T &bueno, unsigned opciones) {
    static std::deque<T> todos; // as long as the program
    return registro(nombre, &todos.emplace_back(bueno), sizeof(T), opciones);
}

template <class C> parametro fichero(const char *nombre, unsigned opciones) {
    if constexpr (sizeof(C) == 1) return nombre_fichero(nombre, opciones);
    else return nombre_fichero_u(nombre, opciones);
}
// By default a file that is not there.
template <class C> parametro fichero_nuevo(const char *nombre, unsigned opciones) {
    parametro p = fichero<C>(nombre, opciones);
    std::swap(p.valores[0], p.valores[2]);
    return p;
}
template <class C> parametro fichero_carpeta(const char *nombre, unsigned opciones) {
    parametro p = fichero<C>(nombre, opciones);
    std::swap(p.valores[0], p.valores[4]);
    return p;
}
template <class C> parametro modo_de_abrir(const char *nombre) {
    if constexpr (sizeof(C) == 1) return textos(nombre, {"rb", "w", "a+", "r+b", "", "%s", "rw"});
    else return textos_u(nombre, {u"rb", u"w", u"a+", u"r+b", u"", u"%s", u"rw"});
}
template <class C> parametro patron_de_ficheros(const char *nombre) {
    if constexpr (sizeof(C) == 1) return textos(nombre, {"./*.bin", "", "*", "no_esta/*", "[%s"});
    else return textos_u(nombre, {u"./*.bin", u"", u"*", u"no_esta/*", u"[%s"});
}

// ---------------------------------------------------------------- texts and blocks

inline char *nuevo_texto() { return static_cast<char *>(std::memcpy(vornspy_malloc(4), "abc", 4)); }
inline vnwchar *nuevo_texto_u() {
    return static_cast<vnwchar *>(std::memcpy(vornspy_malloc(4 * sizeof(vnwchar)), VNU("abc"), 4 * sizeof(vnwchar)));
}
inline void *nuevo_bloque() { return vornspy_calloc(8, 8); }

// Frees a list of texts with them, as many as its block holds.
inline void destruye_lista(void *lista) {
    struct busca {
        const void *p;
        size_t bytes;
    } b{lista, 0};
    vornspy_recorre_bloques_vivos(
        [](const void *p, size_t tamanyo, const char *, uint32_t, void *datos) {
            if (auto *de = static_cast<busca *>(datos); de->p == p) de->bytes = tamanyo;
        },
        &b);
    for (size_t i = 0; i < b.bytes / sizeof(void *); ++i)
        if (void *&texto = static_cast<void **>(lista)[i]; texto != nullptr) vornspy_free_pp(&texto, 1);
    vornspy_free_pp(&lista, sizeof(void *));
}

// ---------------------------------------------------------------- streams and what stands on them

inline vnfichero *flujo_binario() { return f_lc_fopen_seguro_u(VNU("flujo.bin"), VNU("r+b"), "barrido", 0); }
inline vnfichero *flujo_texto() { return f_lc_fopen_seguro_u(VNU("flujo.txt"), VNU("r+"), "barrido", 0); }
inline vnfichero *flujo_de_guardado() {
    return vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(VNU("entrada.bin"));
}
inline vnfichero *flujo_que_no_escribe() { return f_lc_fopen_seguro_u(VNU("flujo.bin"), VNU("rb"), "barrido", 0); }

// The stream of a protocol object outlives it, whoever frees the object.
struct flujo_prestado {
    vnfichero *f = nullptr;
    ~flujo_prestado() { cierra(); }
    void cierra() {
        if (f != nullptr && vornspy_es_memoria_reservada_valida(f) == CIERTO) lc_fclose_seguro(f);
        f = nullptr;
    }
};
inline flujo_prestado &el_flujo() {
    static flujo_prestado p;
    return p;
}
inline vnfichero *flujo_con(const char *texto) {
    vnfichero *f = f_lc_fopen_seguro_u(VNU("hecho.txt"), VNU("w+"), "barrido", 0);
    f_lc_fwrite(texto, 1, std::strlen(texto), f, "barrido", 0);
    vornio_fseek_i64(f, 0, VN_DESDE_EL_PRINCIPIO);
    return f;
}
inline vornsave *protocolo() {
    el_flujo().cierra();
    return vornsave_registra_bin(el_flujo().f = flujo_binario());
}
inline vornsave *protocolo_de_texto() {
    el_flujo().cierra();
    return vornsave_registra_txt(el_flujo().f = flujo_texto(), CIERTO);
}
// In the middle of writing, or of reading what was written.
inline vornsave *escribiendo(void (*escribe)(vornsave *)) {
    vornsave *v = protocolo();
    escribe(v);
    return v;
}
inline vornsave *leyendo(void (*escribe)(vornsave *), void (*lee)(vornsave *)) {
    vornsave *v = escribiendo(escribe);
    vornio_fseek_i64(el_flujo().f, 0, VN_DESDE_EL_PRINCIPIO);
    lee(v);
    return v;
}
inline void graba_seccion(vornsave *v) {
    vornsave_graba_inicio_seccion("a", v);
    vornsave_graba_fin_seccion("a", v);
}
inline void entra_en_seccion(vornsave *v) {
    char *id = vornsave_lee_seccion(v);
    vornspy_free_pp(&id, 1);
}
inline void graba_fecha(vornsave *v) {
    tmtime *fecha = vtm_crea(23, 59, 58, 31, 12, 2005);
    vtm_graba_hora_y_fecha(fecha, v);
    vtm_destruye(&fecha);
}
inline void pon_progreso(vornsave *v) {
    vornsave_nousar_inicia_progreso_lectura(
        v, nullptr, [](void *, uint32_t) {}, [](void *, uint32_t) {}, [](void *) {});
}
inline void destruye_protocolo(vornsave *v) {
    vornsave_set_tipo_status_lectura(v, 1, nullptr); // blocks may be open
    vornsave_libera(&v);
}

// Project files, whole, beside the files that are none: plain, and signed with a header and without.
inline void prepara_proyecto() {
    if (vdir_existe_fichero_UNICODE(VNU("proyecto.bin")) == CIERTO) return;
    const auto cierra = [](vnfichero *f, const vnwchar *nombre) {
        bin_graba_long(1, f);
        vornbin_cierra_fichero_abierto_para_escritura_u(f, nombre, nullptr);
    };
    const vnwchar *const NOMBRES[] = {VNU("proyecto.bin"), VNU("firmado.bin"), VNU("suelto.bin")};
    cierra(vornbin_abre_fichero_para_escritura_u(NOMBRES[0], nullptr), NOMBRES[0]);
    cierra(vornbin_abre_fichero_para_escritura_con_version_y_descripcion_u(NOMBRES[1], 1, "a", VNU("a"), nullptr),
           NOMBRES[1]);
    cierra(vornbin_abre_fichero_para_escritura_sin_cabecera_version_programa_u(NOMBRES[2], 1, "a", VNU("a"), nullptr),
           NOMBRES[2]);
}

// ---------------------------------------------------------------- containers of three elements

template <class T> T *con(T *a, void (*anade)(T *)) {
    if (a != nullptr) anade(a);
    return a;
}
inline arrBIT *bits() { return arr_CreaBIT(3); }
inline arrCADENA *cadenas() {
    arrCADENA *a = arr_CreaCADENA(0);
    for (const char *s : {"a", "b", "c"}) arr_AppendCADENA(a, s);
    return a;
}
inline arrCADENA_u *cadenas_u() {
    arrCADENA_u *a = arr_CreaCADENA_u(0);
    for (const vnwchar *s : {VNU("a"), VNU("b"), VNU("c")}) arr_AppendCADENA_u(a, s);
    return a;
}
// The elements of arrays of pointers: nobody frees them.
inline int64_t *elemento(int i) {
    static int64_t tres[3] = {1, 2, 3};
    return &tres[i];
}
inline arrPuntero *punteros() {
    arrPuntero *a = arr_CreaPunteroConTipo(3);
    for (uint32_t i = 0; i < 3; ++i) arr_SetPunteroConTipo(a, i, elemento(static_cast<int>(i)));
    return a;
}
inline arrPuntero *punteros_a_arrays() {
    arrPuntero *a = arr_CreaPunteroConTipo(0);
    for (int i = 0; i < 2; ++i) arr_AppendPunteroConTipo(a, punteros());
    return a;
}
inline void destruye_punteros_a_arrays(arrPuntero *a) {
    arr_DestruyeEstructurasArrayConTipo(&a, reinterpret_cast<vnfunc_destruye>(&arr_DestruyePunteroConTipo));
}
inline arrPuntero *fechas() {
    arrPuntero *a = arr_CreaPunteroST(0, tmtime);
    for (const int anyo : {1970, 2005}) arr_AppendPunteroST(a, vtm_crea(0, 0, 0, 1, 1, anyo), tmtime);
    return a;
}
inline arrPuntero *tiras() {
    arrPuntero *a = arr_CreaPunteroST(0, rectangulo_t);
    for (const double y : {0., 1., 9.}) {
        rectangulo_t *r = rec_CreaDefinido(y, y, y + 4, y + 1);
        arr_AppendPunteroST(a, r, rectangulo_t);
    }
    return a;
}
inline void destruye_tiras(arrPuntero *a) { arr_DestruyeEstructurasST(&a, rectangulo_t, rec_Destruye); }
inline arrPuntero *ultimos_ficheros() {
    arrPuntero *a = ultfichsel_lee_todos_los_ultimos_ficheros_seleccionados();
    ultfichsel_registra_nombre_fichero(a, "a", VNU("C:\\x"), VNU("C:\\x\\y"));
    return a;
}
inline arrPunto3D *triangulo() {
    arrPunto3D *a = arr_CreaPunto3D(0);
    for (const double x : {0., 1., 2.}) arr_AppendPunto3D(a, x, x * x, 0);
    return a;
}
inline arrPunto3D *normales() {
    arrPunto3D *a = arr_CreaPunto3D(0);
    for (const double z : {1., -1.}) arr_AppendPunto3D(a, 0, 0, z);
    return a;
}
inline vnmutex *mutex_por_dentro() {
    vnmutex *m = vnmutex_crea("barrido");
    vnmutex_entra(m);
    return m;
}
inline arulong *arulong_de_tres() {
    arulong *a = arulong_crea();
    for (uint32_t i = 0; i < 3; ++i) arulong_append(a, i);
    return a;
}
inline arulong64 *arulong64_de_tres() {
    arulong64 *a = arulong64_crea();
    for (uint64_t i = 0; i < 3; ++i) arulong64_append(a, i);
    return a;
}
inline acadorde *acadorde_de_tres() {
    acadorde *a = acadorde_crea(CIERTO);
    for (const char *s : {"a", "b", "c"}) acadorde_inserta(a, s);
    return a;
}
inline acadordeu *acadordeu_de_tres() {
    acadordeu *a = acadordeu_crea(CIERTO);
    for (const vnwchar *s : {VNU("a"), VNU("b"), VNU("c")}) acadordeu_inserta(a, s);
    return a;
}
inline int compara_direcciones(const void *a, const void *b, void *) { return (a > b) - (a < b); }
inline apunorde *apunorde_de_tres() {
    apunorde *a = apunorde_nousar_crea(compara_direcciones, nullptr, nullptr);
    for (int i = 0; i < 3; ++i) apunorde_nousar_inserta_original(a, elemento(i), nullptr);
    return a;
}
inline pto3dord *puntos_ordenados() {
    pto3dord *a = pto3dord_crea_vacio();
    for (int i = 0; i < 3; ++i) pto3dord_append_punto_si_no_esta_repetido(a, i, 0, 0);
    return a;
}
inline poligono_t *poligono_vacio() {
    auto *pol = static_cast<poligono_t *>(vornspy_malloc(sizeof(poligono_t)));
    poligono_crea_pol(pol);
    return pol;
}
inline poligono_t *poligono_de_tres() {
    poligono_t *pol = poligono_vacio();
    for (const int32_t i : {0, 1, 3}) poligono_anade_punto_a_poligono_convexo(pol, i, i * i);
    return pol;
}
// Layers 1 and 2, the second current; its attributes saved, or not.
inline arraydxf *capas() {
    arraydxf *a = arraydxf_crea();
    const idcolor rojo{0, 1, 0xFFFFFFFF};
    for (const vnwchar *nombre : {VNU("muros"), VNU("ejes")})
        arraydxf_define_capas_u(a, 255, nombre, 1, 0.25, &rojo, 0, nullptr, 0);
    return a;
}
inline arraydxf *capas_con_guardados() {
    arraydxf *a = capas();
    arraydxf_guardar_atributos_actuales(a);
    return a;
}
inline void destruye_capas(arraydxf *a) {
    a->pila_de_atributos_actuales.clear();
    arraydxf_destruye(&a);
}
inline gestcapa *grupo_de_capas() {
    gestcapa *g = gestcapa_crea();
    gestcapa_guardar_capas(g);
    return g;
}
inline void destruye_grupos(gestcapa *g) {
    g->pilaDeCapas.clear();
    gestcapa_destruye(&g);
}
inline tipolin *linea_de_trazos() {
    arrDouble *patron = tipolin_dame_patron_aproximado(2);
    tipolin *t = tipolin_crea(VNU("trazos"), VNU("- -"), patron);
    arr_DestruyeDouble(&patron);
    return t;
}
// Lists of arrays, which they own.
template <class T, auto DESTRUYE> void destruye_listas(arrPuntero *a) {
    arr_DestruyeEstructurasArrayConTipo(&a, reinterpret_cast<vnfunc_destruye>(DESTRUYE));
}
inline arrPuntero *contornos_3D() {
    arrPuntero *a = arr_CreaPunteroConTipo(0);
    for (int i = 0; i < 2; ++i) arr_AppendPunteroConTipo(a, triangulo());
    return a;
}
inline arrPuntero *contornos_2D() {
    arrPuntero *a = arr_CreaPunteroConTipo(0);
    for (const double x : {0., 4.}) {
        arrPunto2D *p = arr_CreaPunto2D(0);
        arr_AppendPunto2D(p, x, 0), arr_AppendPunto2D(p, x + 1, 0), arr_AppendPunto2D(p, x, 1);
        arr_AppendPunteroConTipo(a, p);
    }
    return a;
}
// The one triangle of a mesh of three vertices.
inline arrULong *tipos_de_caras() {
    arrULong *a = arr_CreaULong(0);
    arr_AppendULong(a, VPLAN_TRIANGULOS);
    return a;
}
inline arrPuntero *caras_de_tres() {
    arrULong *cara = arr_CreaULong(0);
    for (uint32_t i = 0; i < 3; ++i) arr_AppendULong(cara, i);
    arrPuntero *a = arr_CreaPunteroConTipo(0);
    arr_AppendPunteroConTipo(a, cara);
    return a;
}
// Outputs with tables of layers: over a device that takes all, and over one that does nothing.
inline salida_t *salida() {
    salida_t *s = vplan_abre_nada(0, nullptr, FALSO);
    if (s != nullptr) vplan_define_capa_u(s, 1, VNU("muros"), 1, 1, 0);
    return s;
}
inline salida_t *salida_sin_funciones(salida_t *destino) {
    static const vplan_funciones NINGUNA{};
    void *item = elemento(1);
    return vplan_nousar_abre_dispositivo_con_tabla(0, destino, &item, "barrido", nullptr, &NINGUNA);
}
inline void apila_una(salida_t *s) { vplan_append_giro_xy(s, 1, 1, 0.6, 0.8); }
inline salida_t *cadena() {
    salida_t *fin = vplan_abre_nada(0, nullptr, CIERTO);
    return salida_sin_funciones(con(salida_sin_funciones(con(fin, apila_una)), apila_una));
}
// Transformations and groups that calls have left are not told of.
inline void cierra_salida(salida_t *s) {
    s->pila_sistema_de_coordenadas.clear();
    if (s->capas_dxf != nullptr) s->capas_dxf->pilaDeCapas.clear();
    vplan_cierra(&s);
}
inline void cierra_cadena(salida_t *s) {
    while (s != nullptr) cierra_salida(std::exchange(s, s->salida_destino));
}
inline void destruye_poligono(poligono_t *&pol) {
    poligono_destruye_pol(pol);
    vornspy_free_pp(&pol, sizeof(poligono_t));
}

// ---------------------------------------------------------------- call-backs that do something

inline void *copia_igual(const void *p) { return const_cast<void *>(p); }
inline int compara_sitios(const void *a, const void *b) { return compara_direcciones(a, b, nullptr); }
inline void anula(void *pp) {
    void *nulo = nullptr;
    std::memcpy(pp, &nulo, sizeof nulo);
}
inline void libera(void *pp) { vornspy_nousar_free_pp(pp, 1); }
inline void con_parametros(vnparametros *, void *) {}
inline void mensaje_u(vnmensaje *m) {
    m->nombre = "barrido.msg";
    m->ancho_id = 3;
    for (const void *&t : m->textos) t = VNU("<1>a");
}
inline void mensaje_ansi(vnmensaje *m) {
    mensaje_u(m);
    for (const void *&t : m->textos) t = "<1>a";
}
inline char *lee_texto(vornsave *) { return nuevo_texto(); }

} // namespace barrido
