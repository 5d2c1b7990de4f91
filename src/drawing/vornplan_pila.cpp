#define VN_MODULO "vornplan (NUCLEOS.DLL)"
// The stack of an output and the composition of a chain.
#include "drawing/salida_priv.h"
#include "drawing/vornplan_salida.h"
#include "drawing/vornplan_sistemas.h"

// The stack of an output and the composition of a chain.
namespace vn {

namespace {

// One record: the systems from `s` to `fin`, or to what cuts the chain; `es_identidad(kind)` says what takes no part.
template <class F>
void compone_en(sistema_coordenadas &r, const salida_t *s, const salida_t *salida_fin, F es_identidad) {
    r = {};
    r.profundidad = s->sistema_coordenadas_actual->profundidad;
    for (const salida_t *salida_actual = s;;) {
        if (!AFIRMA_NO_NULO(salida_actual->sistema_coordenadas_actual)) return;
        const sistema_coordenadas &etapa = *salida_actual->sistema_coordenadas_actual;
        if (!es_identidad(etapa.tipo)) compone(&etapa, &r, &r);
        if (rasgos(etapa.tipo).corta || salida_actual == salida_fin) return;
        if (salida_actual->salida_destino == nullptr) {
            AFIRMA(salida_fin == NULL);
            return;
        }
        salida_actual = salida_actual->salida_destino;
    }
}

bool identidad(tipo_transformacion t) { return rasgos(t).identidad; }
// Whether a stage only multiplies: it switches nothing off, nor stands after one that did.
bool es_llano(const salida_t &s) {
    const sistema_coordenadas &a = *s.sistema_coordenadas_actual;
    return a.tipo < i_MATRIZ_DESACTIVA_TRANSFORMACIONES && a.profundidad == 0 &&
           a.se_ha_aplicado_previamente_desactiva_todas_transformaciones_glsl == FALSO;
}
bool identidad_para_texto(tipo_transformacion t) { return rasgos(t).identidad_para_texto; }

} // namespace

namespace {

// Into the record of `s`, from its product of the stages beyond where that is enough.
void compone_lo_cambiado(compuesta &c, const salida_t *s, const salida_t *fin, uint64_t cambios) {
    const salida_t *const otra = s->salida_destino;
    const bool sola = s == fin || otra == nullptr, llano = es_llano(*s);
    if (sola && llano && !i_es_sistema_coordenadas_identidad(s->sistema_coordenadas_actual)) {
        c.sistema = *s->sistema_coordenadas_actual;
        return;
    }
    if (sola || !llano) {
        compone_en(c.sistema, s, fin, identidad);
        return;
    }
    if (c.cambios_del_resto != cambios - s->cambios || c.fin_del_resto != fin) {
        compone_en(c.resto, otra, fin, identidad);
        c.fin_del_resto = fin;
        c.cambios_del_resto = cambios - s->cambios;
        c.resto_llano = true;
        for (const salida_t *i = otra; i != nullptr; i = i == fin ? nullptr : i->salida_destino)
            c.resto_llano = c.resto_llano && es_llano(*i);
    }
    if (c.resto_llano) compone(&c.resto, s->sistema_coordenadas_actual, &c.sistema);
    else compone_en(c.sistema, s, fin, identidad);
}

} // namespace

const sistema_coordenadas &compone_cadena(salida_t *s, const salida_t *fin, uint64_t cambios) {
    compuesta &c = *s->sistema_coordenadas_encadenado;
    compone_lo_cambiado(c, s, fin, cambios);
    c.planta = en_planta(c.sistema);
    c.fin = fin;
    c.cambios = cambios;
    return c.sistema;
}

sistema_coordenadas compone_aparte(const salida_t *s, const salida_t *fin) {
    sistema_coordenadas r;
    compone_en(r, s, fin, identidad);
    return r;
}

sistema_coordenadas compone_para_texto(const salida_t *s, const salida_t *fin) {
    sistema_coordenadas r;
    compone_en(r, s, fin, identidad_para_texto);
    return r;
}

// ---------------------------------------------------------------- the stack of one output

void apila(salida_t *salida, const sistema_coordenadas *sistema_a_apilar) {
    salida->pila_sistema_de_coordenadas.push_back(*salida->sistema_coordenadas_actual);
    compone(salida->sistema_coordenadas_actual, sistema_a_apilar, salida->sistema_coordenadas_actual);
    salida->sistema_coordenadas_actual->tipo = sistema_a_apilar->tipo;
    ++salida->cambios;
}

void apila_en_su_lugar(salida_t *salida, const sistema_coordenadas &nuevo) {
    salida->pila_sistema_de_coordenadas.push_back(*salida->sistema_coordenadas_actual);
    *salida->sistema_coordenadas_actual = nuevo;
    ++salida->cambios;
}

void desapila(salida_t *salida) {
    sistema_coordenadas *const sistema_coordenadas_actual = salida->sistema_coordenadas_actual;
    const size_t num_elementos = salida->pila_sistema_de_coordenadas.size();
    if (!AFIRMA_NO_NULO(sistema_coordenadas_actual) || !AFIRMA(num_elementos > 0)) return;
    *sistema_coordenadas_actual = salida->pila_sistema_de_coordenadas.back();
    salida->pila_sistema_de_coordenadas.pop_back();
    ++salida->cambios;
}

void desactiva_transformaciones(salida_t *salida, bool solo_matriz_identidad) {
    using D = dispositivo;
    const double factor = salida->sistema_coordenadas_actual->factor_escala_textos;
    salida_t *const salida_con_implementacion =
        solo_matriz_identidad ? nullptr : implementa<&D::func_vectores_sistema_coordenadas>(salida);
    sistema_coordenadas nuevo{i_MATRIZ_DESACTIVA_TRANSFORMACIONES};
    if (salida_con_implementacion != nullptr) {
        Punto3D o{}, U{}, V{}, W{};
        llama<&D::func_vectores_sistema_coordenadas>(salida_con_implementacion, &o.x, &o.y, &o.z, &U.x, &U.y, &U.z,
                                                     &V.x, &V.y, &V.z, &W.x, &W.y, &W.z);
        nuevo = inversa({i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL,
                         {{{U.x, U.y, U.z, o.x}, {V.x, V.y, V.z, o.y}, {W.x, W.y, W.z, o.z}, {0, 0, 0, 1}}}});
        if (AFIRMA_TEXTO(salida_con_implementacion->funciones.func_profundidad_salida_sin_transformacion != nullptr,
                         "(salida_con_implementacion->func_profundidad_salida_sin_transformacion) != NULL"))
            nuevo.profundidad = llama<&D::func_profundidad_salida_sin_transformacion>(salida_con_implementacion);
        nuevo.se_ha_aplicado_previamente_desactiva_todas_transformaciones_glsl = CIERTO;
    }
    nuevo.factor_escala_textos = factor;
    apila_en_su_lugar(salida, nuevo);
}

} // namespace vn

using namespace vn;

namespace {

// Whether a transformation of one of the kinds that switch off is on top.
bool esta_desactivada(const salida_t *s) {
    return s->sistema_coordenadas_actual->tipo >= i_MATRIZ_DESACTIVA_TRANSFORMACIONES;
}

} // namespace

void vplan_append_desactiva_transformaciones_anteriores(salida_t *salida) {
    if (!es_valida(salida)) return;
    for (salida_t *s = salida; s != nullptr; s = s->salida_destino) {
        desactiva_transformaciones(s, false);
        // A database of objects has its own.
        if (s->salida_destino != nullptr && vornplan_es_salida_sobre_base_de_datos_3D(s->salida_destino) != FALSO)
            return;
    }
}

void vplan_desapila_transformacion(salida_t *salida) {
    using D = dispositivo;
    if (!es_valida(salida)) return;
    const tipo_transformacion tipo = salida->sistema_coordenadas_actual->tipo;
    switch (tipo) {
    case i_MATRIZ_SISTEMA_COORDENADAS:
    case i_MATRIZ_DESPLAZAMIENTO:
    case i_MATRIZ_ESCALA:
    case i_MATRIZ_ESCALA_EXCEPTO_TEXTO:
    case i_MATRIZ_DIVISOR_ESCALA:
    case i_MATRIZ_GIRO:
    case i_MATRIZ_PROYECCION:
    case i_MATRIZ_GENERAL: break;
    case i_MATRIZ_EXTRUSION: llama_si_hay<&D::func_borra_extrusion>(salida); break;
    case i_MATRIZ_DESACTIVA_TRANSFORMACIONES:
    case i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL:
        // The switching off went down the chain, and so does this.
        if (salida_t *const destino = salida->salida_destino;
            destino != nullptr && vornplan_es_salida_sobre_base_de_datos_3D(destino) == FALSO &&
            AFIRMA_TEXTO(esta_desactivada(destino),
                         "salida->salida_destino->sistema_coordenadas_actual->tipo_transformacion == "
                         "i_MATRIZ_DESACTIVA_TRANSFORMACIONES || "
                         "salida->salida_destino->sistema_coordenadas_actual->tipo_transformacion == "
                         "i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL || "
                         "salida->salida_destino->sistema_coordenadas_actual->tipo_transformacion == "
                         "i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_PLANO_PANTALLA || "
                         "salida->salida_destino->sistema_coordenadas_actual->tipo_transformacion == "
                         "i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_DIBUJO_EN_PIXELES"))
            vplan_desapila_transformacion(destino);
        break;
    case i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_PLANO_PANTALLA:
        llama_si_hay<&D::func_desapila_transf_plano_pantalla>(salida);
        break;
    case i_MATRIZ_DESACTIVA_TRANSFORMACIONES_GLSL_PARA_DIBUJO_EN_PIXELES:
        llama_si_hay<&D::func_desapila_transf_dibujo_en_pixeles>(salida);
        break;
    default: AFIRMA_DEFECTO();
    }
    desapila(salida);
}
