// Destinations in memory of the natures that a file does not have: of unknown size, that break, whose bytes come in
// frames, without positions, owned by the protocol. Each is a row over one small object.
#pragma once

#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "persistence/vornsave_priv.h"
#include <cstring>
#include <string>
#include <utility>

namespace vn {

struct memoria_de_prueba {
    std::string bytes;
    size_t pos = 0, rota_en = SIZE_MAX; // from so many bytes on nothing goes through
    bool con_marcos = false, fallada = false;
    uint32_t llamadas = 0;
    static inline uint32_t vivas = 0; // of those that the protocol owns

    static memoria_de_prueba &de(void *p) { return *static_cast<memoria_de_prueba *>(p); }
    void informa_de_lectura() {
        fallada = true;
        AFIRMA_TEXTO(false, "memoria_de_prueba");
    }
    void pon(const void *p, size_t n) { bytes.append(static_cast<const char *>(p), n); }
    void toma(void *p, size_t n) {
        if (pos + n <= std::min(bytes.size(), rota_en)) {
            std::memcpy(p, bytes.data() + pos, n);
            pos += n;
            return;
        }
        std::memset(p, 0, n);
        if (!fallada) informa_de_lectura();
    }
    template <class T> void pon(T v) { pon(&v, sizeof v); }
    template <class T> T toma() {
        T v{};
        toma(&v, sizeof v);
        return v;
    }
    template <class C> void pon(const C *texto) {
        const std::basic_string_view<C> t(texto);
        pon(static_cast<uint32_t>(t.size()));
        pon(t.data(), t.size() * sizeof(C));
    }
    template <class C> C *toma_texto() {
        const uint32_t n = toma<uint32_t>();
        std::basic_string<C> t(std::min<size_t>(n, (bytes.size() - pos) / sizeof(C)), C(0));
        toma(t.data(), t.size() * sizeof(C));
        if constexpr (sizeof(C) == 1) return cad_copia_cadena(t.c_str());
        else return widestr_copia(t.c_str());
    }

    // Every entry of both tables: what is not text or bytes goes as it stands in memory.
    template <auto ENTRADA, class... V> tabla::resultado_de<ENTRADA> entra(V... v) {
        using R = tabla::resultado_de<ENTRADA>;
        ++llamadas;
        if constexpr (std::is_pointer_v<R>) return toma_texto<std::remove_pointer_t<R>>();
        else if constexpr (!std::is_void_v<R>) return toma<R>();
        else transfiere(v...);
    }

  private:
    template <class T> void transfiere(T v) { pon(v); }
    void transfiere(const char *v, const char *) { pon(v); }
    void transfiere(vnbool v, const char *, const char *) { pon(v); }
    // A frame is read as it was written, one of no bytes too.
    void transfiere(const void *p, uint32_t n) {
        if (con_marcos) pon(n);
        pon(p, n);
    }
    void transfiere(void *p, uint32_t n) {
        if (con_marcos && toma<uint32_t>() != n && !fallada) informa_de_lectura();
        toma(p, n);
    }
};

namespace prueba_de_destino {

using mem = memoria_de_prueba;
inline constexpr fallos_t FALLOS{
    .ha_fallado = [](void *m) { return mem::de(m).fallada; },
    .error_leyendo = [](void *m) { mem::de(m).informa_de_lectura(); },
    .marca = [](void *m) { mem::de(m).fallada = true; },
};
template <class C> void graba_o_null(const C *s, mem *m) {
    m->pon(static_cast<char>(s != nullptr));
    if (s != nullptr) m->pon(s);
}
template <class C> C *lee_o_null(mem *m) { return m->toma<char>() != 0 ? m->toma_texto<C>() : nullptr; }

// The values alone: no size, no positions, no marks.
inline constexpr destino VALORES{
    .tipo = SOC,
    .trozos_libres = true,
    .grabar = tabla::TABLA_DE<fncs_grabar_t, mem>,
    .leer = tabla::TABLA_DE<fncs_leer_t, mem>,
    .fallos = FALLOS,
    .nulos = {tabla::usa<graba_o_null<char>>, tabla::usa<graba_o_null<vnwchar>>, tabla::usa<lee_o_null<char>>,
              tabla::usa<lee_o_null<vnwchar>>},
};
inline constexpr destino en_trozos(destino d) {
    d.trozos_libres = false;
    return d;
}
inline constexpr destino con_tamanyo(destino d) {
    d.quedan = [](void *m, uint64_t numero, uint64_t tamanyo) {
        return numero <= (mem::de(m).bytes.size() - mem::de(m).pos) / tamanyo;
    };
    return d;
}
// One that the protocol makes and ends: `va` is the direction of the row.
inline mem *crea() {
    ++mem::vivas;
    return new mem;
}
inline void destruye(void **m) {
    mem::vivas -= *m != nullptr;
    delete static_cast<mem *>(std::exchange(*m, nullptr));
}
inline constexpr destino de_memoria(sentido va) {
    destino d = con_tamanyo(VALORES);
    d.tipo = FICHMEM;
    d.va = va;
    if (va == ESCRITURA) d.leer = {};
    else d.grabar = {};
    d.memoria = {
        .crea_para_escritura = [](uint32_t) { return static_cast<void *>(crea()); },
        .crea_para_lectura = [](const fichmem *) { return static_cast<void *>(crea()); },
        .cierra_escritura =
            [](void **m) {
                const std::string b = mem::de(*m).bytes;
                destruye(m);
                return fichmem_crea32(b.data(), uint32_t(b.size()));
            },
        .cierra_lectura = destruye,
        .cierra_lectura_al_final = destruye,
        .destruye = destruye,
    };
    return d;
}

} // namespace prueba_de_destino

inline constexpr destino SIN_TAMANYO = prueba_de_destino::VALORES,
                         CON_MARCOS = prueba_de_destino::en_trozos(SIN_TAMANYO),
                         SIN_POSICIONES = prueba_de_destino::con_tamanyo(SIN_TAMANYO),
                         MEMORIA_ESCRITURA = prueba_de_destino::de_memoria(ESCRITURA),
                         MEMORIA_LECTURA = prueba_de_destino::de_memoria(LECTURA);
static_assert(es_entera(SIN_TAMANYO) && es_entera(SIN_POSICIONES) && es_entera(MEMORIA_ESCRITURA));

// An object over a row of the tests', as the library makes one over its own.
inline vornsave *registra_prueba(const destino &fila, void *donde) {
    vornsave *d = vornsave_registra_bin(static_cast<vnfichero *>(donde));
    d->fila = &fila;
    return d;
}
using objeto = dueno<vornsave_libera>;

} // namespace vn
