#include "foundation/numeros/punto.h"
#include "persistence/catalogo_protocolo.h"
#include "persistence/destinos_de_prueba.h"
#include "persistence/prueba_vornsave.h"
#include <numeric>

using namespace vn;

namespace {

// A destination that takes the calls of both tables: written down, counted or handed on, before a binary file or alone.
template <template <class> class ENVOLTURA> struct ante_bin {
    vnfichero *f;
    ENVOLTURA<fncs_grabar_t> graba{};
    ENVOLTURA<fncs_leer_t> lee{};
    explicit ante_bin(vnfichero *f_) : f(f_) {
        if (f == nullptr) return;
        const objeto d(vornsave_registra_bin(f));
        graba.tabla = &d->fila->grabar;
        lee.tabla = &d->fila->leer;
        graba.dato = lee.dato = f;
    }
    template <auto ENTRADA, class... V> auto entra(V... v) {
        if constexpr (std::is_same_v<tabla::tabla_de<ENTRADA>, fncs_grabar_t>)
            return graba.template entra<ENTRADA>(v...);
        else return lee.template entra<ENTRADA>(v...);
    }
    static vnfichero *de(void *d) { return static_cast<ante_bin *>(d)->f; }
    static constexpr destino FILA{
        .tipo = SOC,
        .grabar = tabla::TABLA_DE<fncs_grabar_t, ante_bin>,
        .leer = tabla::TABLA_DE<fncs_leer_t, ante_bin>,
        .fallos = {.ha_fallado = [](void *d) { return de(d) != nullptr && lc_ha_fallado(de(d)) == CIERTO; },
                   .error_leyendo = [](void *d) { lc_error_leyendo_fichero(de(d)); },
                   .marca = [](void *d) { ficheros::marca_fallo_lectura(de(d)); }},
    };
};

// What a member calls, as an `apuntador` writes it down.
std::string llamadas(const std::function<void(vornsave *)> &miembro) {
    ante_bin<tabla::apuntador> solo(nullptr);
    miembro(objeto(registra_prueba(ante_bin<tabla::apuntador>::FILA, &solo)).get());
    return solo.graba.texto + solo.lee.texto;
}

} // namespace

// Which entry each member calls, and with what.
PRUEBA(destino, lo_que_llama_cada_miembro) {
    static const Punto2D P{1, 2.5};
    using puntos = dueno<arr_DestruyePunto2D>;
    // clang-format off
    const std::pair<std::string, void (*)(vornsave *)> filas[] = {
        {"bool 1\n", HACE(vornsave_graba_bool(CIERTO, d))},
        {"bool_texto 1 \"si\" \"no\"\n", HACE(vornsave_graba_bool_con_texto(CIERTO, d, "si", "no"))},
        {"char 'c'\n", HACE(vornsave_graba_char('c', d))},
        {"uchar 255\n", HACE(vornsave_graba_uchar(255, d))},
        {"ushort 8364\n", HACE(vornsave_graba_wchar(u'\u20AC', d))},
        {"float 0.1\n", HACE(vornsave_graba_float(0.1f, d))},
        {"double 0.25\n", HACE(vornsave_graba_double_con_precision(0.26, 0.125, d))},
        {"double 1\ndouble 2.5\n", HACE(vornsave_graba_punto(&P, d))},
        {"long64 1\n", HACE(vornsave_graba_long64(1, d))},
        {"ulong 1\nulong 2\n", HACE(vornsave_graba_int64((int64_t{1} << 32) + 2, d))},
        {"ulong 4294967295\nulong 4294967295\n", HACE(vornsave_graba_fecha(-1, d))},
        {"long64 -5\n", HACE(vornsave_graba_time(-5, d))},
        {"long 5\n", HACE(vornsave_graba_time32(5, d))},
        {"cadena \"a\"\n", HACE(vornsave_graba_cadena("a", d))},
        {"cadena_campo \"a\" \"campo\"\n", HACE(vornsave_graba_cadena_campo("a", "campo", d))},
        {"cadena_unicode \"\u00f1\"\n", HACE(vornsave_graba_cadena_unicode(VNU("\u00f1"), d))},
        {"cadena \"\u00f1\"\n", HACE(vornsave_graba_cadena_UTF8(VNU("\u00f1"), d))},
        {"bool 0\n", HACE(vornsave_graba_cadena_opcional(nullptr, d))},
        {"ulong 3\nbuffer * 3\n", HACE(vornsave_graba_cadena_como_buffer("abc", d))},
        {"ulong_y_salta 1\ndouble_sin_salto 1\ndouble_y_salta 2.5\n",
         HACE(const puntos a(arr_CreaPunto2D(0)); arr_AppendPunto2D(a.get(), 1, 2.5); vornsave_graba_arr_puntos2D(a.get(), d))},
        {"bool = 0\n", HACE(vornsave_lee_bool(d))},
        {"cadena = null\n", HACE(vornsave_salta_cadena(d))},
        {"bool_texto \"si\" \"no\" = 0\n", HACE(vornsave_lee_bool_con_texto(d, "si", "no"))},
        {"ulong = 0\nulong = 0\n", HACE(vornsave_lee_size64(d))},
        {"long = 0\nlong = 0\n", HACE(vornsave_lee_fecha_de_64(d))},
        {bytes("char_ASCII = '\0'\n"), HACE(vornsave_lee_char_ansi_ascii(d, 1, 1))},
        {"ulong_y_salta = 0\n", HACE(vornsave_salta_arr_double(d))},
    };
    // clang-format on
    for (const auto &[espera, miembro] : filas) EXPECT_EQ(llamadas(miembro), espera);
}

// Handed on, counted or written down, every value is what it is without; what is not there is reported as if it were
// asked for itself; `nada` takes it all.
PRUEBA(destino, una_envoltura_no_cambia_lo_que_pasa_por_ella) {
    const auto pasa = [](auto ante) {
        using ante_t = decltype(ante);
        for (const auto &f : catalogo::filas()) {
            SCOPED_TRACE(f.nombre);
            if (f.es(catalogo::SOLO_BIN)) continue;
            catalogo::azar a(7);
            std::string espera;
            {
                const abierto fichero(EN_BIN, "w");
                ante_t por(fichero.fichero());
                espera = f.graba(a, objeto(registra_prueba(ante_t::FILA, &por)).get());
                if constexpr (std::is_same_v<ante_t, ante_bin<tabla::contador>>) {
                    const auto &veces = por.graba.veces;
                    EXPECT_TRUE(std::any_of(veces.begin(), veces.end(), [](uint32_t n) { return n > 0; }));
                }
            }
            const abierto fichero(EN_BIN, "r");
            ante_t por(fichero.fichero());
            EXPECT_EQ(f.lee(objeto(registra_prueba(ante_t::FILA, &por)).get()), espera);
        }
    };
    pasa(ante_bin<tabla::eslabon>(nullptr));
    pasa(ante_bin<tabla::contador>(nullptr));
    pasa(ante_bin<tabla::apuntador>(nullptr));

    static constexpr fncs_leer_t SIN_NADA{};
    tabla::eslabon<fncs_leer_t> corto{};
    corto.tabla = &SIN_NADA;
    EXPECT_EQ(ESPERA_INFORME("(vornsave_datos->fncs_leer->fncptr_lee_long) != NULL", corto.entra<LEER(long)>()), 0);

    size_t numero = 0;
    fncs_leer_t::recorre([&]<auto ENTRADA>() {
        EXPECT_EQ(tabla::FILA<ENTRADA>.numero, numero++);
        EXPECT_NE((tabla::TABLA_DE<fncs_leer_t, tabla::nada>.*ENTRADA), nullptr);
    });
    EXPECT_EQ(numero, 40u);
    tabla::TABLA_DE<fncs_grabar_t, tabla::nada>.fncptr_graba_bool_texto(nullptr, CIERTO, "", "");
    EXPECT_EQ((tabla::TABLA_DE<fncs_leer_t, tabla::nada>.fncptr_lee_cadena(nullptr)), nullptr);
}

// ---- Natures of destinations

PRUEBA(destino, cualquier_valor_vuelve_de_cualquier_destino) {
    for (const destino *fila : {&SIN_TAMANYO, &CON_MARCOS, &SIN_POSICIONES})
        for (const auto &f : catalogo::filas())
            for (uint32_t semilla = 0; semilla < 20; ++semilla) {
                SCOPED_TRACE(f.nombre);
                catalogo::azar a(semilla);
                memoria_de_prueba m;
                m.con_marcos = fila == &CON_MARCOS;
                const objeto d(registra_prueba(*fila, &m));
                const std::string espera = f.graba(a, d.get());
                vornsave_graba_long(77, d.get());
                EXPECT_EQ(f.lee(d.get()), espera);
                EXPECT_EQ(vornsave_lee_long(d.get()), 77);
                if (HasFailure()) return;
            }
}

// Sizes that matter to the room and to the frames: none, one piece more than the first step, the pieces of a file.
PRUEBA(destino, los_bytes_se_leen_como_se_grabaron) {
    for (const destino *fila : {&SIN_TAMANYO, &CON_MARCOS})
        for (const uint32_t n : {0u, 1u, 65534u, 65535u, 65537u, 200000u}) {
            SCOPED_TRACE(n);
            const std::string texto(n, 'x');
            memoria_de_prueba m;
            m.con_marcos = fila == &CON_MARCOS;
            const objeto o(registra_prueba(*fila, &m));
            vornsave *d = o.get();
            for (int vez = 0; vez < 2; ++vez) vornsave_graba_buffer(texto.data(), n, d);
            vornsave_graba_cadena_como_buffer(texto.c_str(), d);
            vornsave_graba_fichmem(catalogo::memoria(fichmem_crea32(texto.data(), n)).get(), d);
            vornsave_graba_long(77, d);
            const propio<uint8_t> b(vornsave_lee_buffer(n, d));
            EXPECT_EQ(reinterpret_cast<const char *>(b.get()), texto);
            vornsave_salta_buffer(n, d);
            EXPECT_EQ(toma(vornsave_lee_cadena_como_buffer(d)), texto);
            EXPECT_EQ(catalogo::memoria(vornsave_lee_fichmem(d))->longitud, n);
            EXPECT_EQ(vornsave_lee_long(d), 77);
        }
}

// A run-coded array of a source that cannot tell its size is as long as it was.
PRUEBA(destino, dos_millones_de_valores_distintos_sin_saber_el_tamanyo) {
    const catalogo::array_Double a(arr_CreaDouble(2000000));
    std::iota(arr_GetBufferDouble(a.get()), arr_GetBufferDouble(a.get()) + 2000000, 0.);
    memoria_de_prueba m;
    const objeto d(registra_prueba(SIN_TAMANYO, &m));
    vornsave_graba_arr_double_con_valores_iguales(a.get(), 0, d.get());
    vornsave_graba_long(77, d.get());
    const catalogo::array_Double b(vornsave_lee_arr_double_con_valores_iguales(d.get()));
    EXPECT_EQ(arr_SonIgualesDouble(a.get(), b.get()), CIERTO);
    EXPECT_EQ(vornsave_lee_long(d.get()), 77);
}

// Fifty million elements are told of, and the source breaks, before that or after some: no loop goes on for long, and
// no room is taken for what does not come.
PRUEBA(destino, un_destino_que_se_rompe_acaba_la_lectura) {
    for (const auto &f : catalogo::filas()) {
        if (!f.es(catalogo::CON_CUENTA)) continue;
        for (const destino *fila : {&SIN_TAMANYO, &SIN_POSICIONES})
            for (const size_t rota_en : {0u, 4u, 9u, 30u}) {
                SCOPED_TRACE(std::string(f.nombre) + " " + std::to_string(rota_en));
                memoria_de_prueba m;
                m.pon(uint32_t{50000000});
                m.pon(std::string(300, '\1').data(), 300);
                m.rota_en = rota_en;
                const objeto d(registra_prueba(*fila, &m));
                const mayor_bloque mayor;
                for (int vez = 0; vez < 2; ++vez) { // and once more, when it had broken before
                    m.pos = m.fallada ? 0 : m.pos;
                    f.lee(d.get());
                    EXPECT_TRUE(m.fallada);
                    EXPECT_FALSE(toma_informes().empty() && vez == 0);
                }
                EXPECT_LT(m.llamadas, 1000u);
                EXPECT_LT(mayor(), size_t{4} << 20);
            }
    }
}

// A destination in memory belongs to its object, whichever way that ends; the close of the other direction is refused.
PRUEBA(destino, la_memoria_es_del_objeto) {
    using prueba_de_destino::crea;
    static constexpr char AL_REVES[] = "vornsave: el fichero en memoria se abrio para lo contrario";
    vornsave *d = registra_prueba(MEMORIA_ESCRITURA, crea());
    vornsave_graba_long(77, d);
    ESPERA_INFORME(AL_REVES, vornsave_cierra_fichmem_para_lectura(&d));
    ESPERA_INFORME("(vornsave_datos->fncs_leer->fncptr_lee_long) != NULL", vornsave_lee_long(d));
    const dueno<fichmem_destruye> f(vornsave_cierra_fichmem_para_escritura(&d));
    EXPECT_EQ(f->longitud, 4u);
    EXPECT_EQ(d, nullptr);

    d = registra_prueba(MEMORIA_LECTURA, crea());
    EXPECT_EQ(ESPERA_INFORME(AL_REVES, vornsave_cierra_fichmem_para_escritura(&d)), nullptr);
    vornsave_cierra_fichmem_para_lectura_al_final(&d);
    for (const destino *fila : {&MEMORIA_ESCRITURA, &MEMORIA_LECTURA}) {
        d = registra_prueba(*fila, crea());
        vornsave_libera(&d);
    }
    EXPECT_EQ(memoria_de_prueba::vivas, 0u);
}

// A row keeps its parts together.
PRUEBA(destino, las_filas_son_enteras) {
    void (*const quitan[])(destino &) = {
        [](auto &d) { d.fallos.ha_fallado = nullptr; }, [](auto &d) { d.fallos.marca = nullptr; },
        [](auto &d) { d.posiciones.set = nullptr; },    [](auto &d) { d.posiciones.get64 = nullptr; },
        [](auto &d) { d.marcas.se_lee64 = nullptr; },   [](auto &d) { d.nulos.lee = nullptr; },
    };
    for (size_t k = 0; k < std::size(quitan); ++k) {
        destino d = *abierto(EN_BIN, "w").operator vornsave *()->fila;
        EXPECT_TRUE(es_entera(d));
        quitan[k](d);
        EXPECT_FALSE(es_entera(d)) << k;
    }
}
