#define VN_MODULO "vnmutex_test"
#include "foundation/sistema/vnmutex.h"
#include "plataforma/proceso.h"
#include "prueba.h"
#include <chrono>
#include <filesystem>
#include <fstream>
#include <functional>
#include <random>
#include <thread>

namespace fs = std::filesystem;

namespace {

using reloj = std::chrono::steady_clock;
using ms = std::chrono::milliseconds;

double segundos_desde(reloj::time_point t) { return std::chrono::duration<double>(reloj::now() - t).count(); }
// The wait of this process, for as long as it lives.
auto con_plazo(uint32_t plazo) {
    return vn::al_final([antes = vnmutex_establece_plazo(plazo)] { vnmutex_establece_plazo(antes); });
}

bool entra(vnmutex *m) { return vnmutex_entra(m) == CIERTO; }
bool entra_y_sale(vnmutex *m) {
    const bool dentro = entra(m);
    if (dentro) vnmutex_sal(m);
    return dentro;
}
// Whether another thread can enter now.
bool entra_otra_hebra(vnmutex *m) {
    bool dentro = false;
    vn::en_hebras(1, [&](int) { dentro = entra_y_sale(m); });
    return dentro;
}

// A name that programs of other runs of the tests do not use; what its lock leaves on disk goes with it.
struct nombre_propio : std::string {
    nombre_propio() : std::string("prueba-" + std::to_string(std::random_device{}())) {}
    ~nombre_propio() {
        if (const auto f = vn::fichero_de_cerrojo(*this); !f.empty()) fs::remove_all(f);
    }
};

uint64_t lee_cuenta(const std::string &fichero) {
    uint64_t n = 0;
    std::ifstream(fichero) >> n;
    return n;
}

} // namespace

PRUEBA(vnmutex, el_mismo_nombre_es_el_mismo_cerrojo) {
    const auto corto = con_plazo(30);
    vnmutex *a = vnmutex_crea("uno"), *b = vnmutex_crea_u(VNU("uno")), *otro = vnmutex_crea("Uno");
    const std::string largo(3000, 'x');
    vnmutex *l1 = vnmutex_crea((largo + "1").c_str()), *l2 = vnmutex_crea((largo + "2").c_str());
    const nombre_propio ajeno;
    vnmutex *maquina = vnmutex_crea_entre_aplicaciones(ajeno.c_str()), *del_programa = vnmutex_crea(ajeno.c_str());
    for (vnmutex *m : {del_programa, a, b, l1}) EXPECT_TRUE(entra(m)); // recursive, through a or b
    for (vnmutex *m : {a, b}) EXPECT_FALSE(entra_otra_hebra(m));
    for (vnmutex *libre : {otro, l2, maquina}) EXPECT_TRUE(entra_otra_hebra(libre));
    vnmutex_sal(a);
    EXPECT_FALSE(entra_otra_hebra(a));
    vnmutex_sal(b);
    EXPECT_TRUE(entra_otra_hebra(a));
    vnmutex_sal(l1);
    vnmutex_sal(del_programa);
    for (vnmutex **m : {&a, &b, &otro, &l1, &l2, &maquina, &del_programa}) vnmutex_destruye(m);
}

PRUEBA(vnmutex, salir_y_destruir_a_destiempo) {
    const auto corto = con_plazo(30);
    vnmutex *a = vnmutex_crea("dos"), *b = vnmutex_crea("dos");
    ESPERA_INFORME("dentro", vnmutex_sal(a));
    vnmutex_entra(a);
    ESPERA_INFORME("dentro", vnmutex_sal(b)); // entered through the other
    vn::en_hebras(1, [&](int) {
        ESPERA_INFORME("dentro", vnmutex_sal(a));
        ESPERA_INFORME("!de_otra_hebra", vnmutex_destruye(&a));
    });
    ASSERT_NE(a, nullptr);
    ESPERA_INFORME("!dentro", vnmutex_destruye(&a));
    EXPECT_EQ(a, nullptr);
    EXPECT_TRUE(entra_otra_hebra(b));
    // At the end of the program it goes in whatever state, and the lock is free.
    a = vnmutex_crea("dos");
    vnmutex_entra(a);
    vnmutex_entra(a);
    vn::en_hebras(1, [&](int) { vnmutex_destruye_saliendo(&a); });
    EXPECT_TRUE(entra_otra_hebra(b));
    vnmutex_destruye_saliendo(&b);
}

// Enters for so many milliseconds, 5 each time; how often.
static int entra_a_menudo(vnmutex **m, const std::string &nombre, int durante) {
    int veces = 0;
    for (const auto fin = reloj::now() + ms(durante); reloj::now() < fin; ++veces) {
        if (vnmutex_entra_creando_entre_aplicaciones_si_es_necesario(m, nombre.c_str()) != CIERTO) return 0;
        std::this_thread::sleep_for(ms(5));
        vnmutex_sal(*m);
    }
    return veces;
}

// Arguments: name of the mutex, file that starts it all, file of the result.
HIJO(entra_a_menudo) {
    vnmutex *m = nullptr;
    if (!vn::espera_fichero(args.at(1))) return 3;
    std::ofstream(args.at(2)) << entra_a_menudo(&m, args.at(0), 1500);
    vnmutex_destruye(&m);
    return 0;
}

// None enters less than half as often as another.
static void espera_equidad(const int (&veces)[4]) {
    const auto [menos, mas] = std::minmax_element(std::begin(veces), std::end(veces));
    EXPECT_GE(2 * *menos, *mas) << veces[0] << " " << veces[1] << " " << veces[2] << " " << veces[3];
    EXPECT_GE(*menos, 10);
}

PRUEBA(vnmutex, cuatro_hebras_y_cuatro_programas_entran_por_igual) {
    const nombre_propio nombre;
    int veces[4] = {};
    vnmutex *m = nullptr;
    vn::en_hebras(4, [&](int i) { veces[i] = entra_a_menudo(&m, nombre, 1000); });
    espera_equidad(veces);
    vnmutex_destruye(&m);

    const std::string ya = directorio() + "/ya";
    auto hijos = vn::procesos(4, "entra_a_menudo", [&](int i) {
        return std::vector<std::string>{nombre, ya, ya + std::to_string(i)};
    });
    vn::graba_fichero(ya, "");
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(hijos[i].espera(30000), 0);
        veces[i] = static_cast<int>(lee_cuenta(ya + std::to_string(i)));
    }
    espera_equidad(veces);
}

// Arguments: name of the mutex, file of the count, file of what was done, and the turn in which to die inside.
HIJO(cuenta_bajo_mutex) {
    vnmutex *m = vnmutex_crea_entre_aplicaciones(args.at(0).c_str());
    std::ofstream hecho(args.at(2), std::ios::app);
    for (int i = 0, muerte = std::stoi(args.at(3)); i < 60; ++i) {
        if (!entra(m)) return 3;
        const uint64_t n = lee_cuenta(args.at(1));
        if (i % 16 == 0) std::this_thread::yield();
        std::ofstream(args.at(1)) << n + 1;
        if (i == muerte) vn::muere();
        hecho << '.' << std::flush;
        vnmutex_sal(m);
    }
    vnmutex_destruye(&m);
    return 0;
}

PRUEBA(vnmutex, varios_programas_cuentan_y_algunos_mueren_dentro) {
    const nombre_propio nombre;
    const std::string cuenta = directorio() + "/cuenta", hecho = directorio() + "/hecho";
    auto hijos = vn::procesos(4, "cuenta_bajo_mutex", [&](int i) {
        return std::vector<std::string>{nombre, cuenta, hecho + std::to_string(i),
                                        std::to_string(i % 2 == 1 ? 7 * i : -1)};
    });
    uint64_t esperado = 0;
    for (size_t i = 0; i < 4; ++i) {
        EXPECT_EQ(hijos[i].espera(60000), i % 2 == 1 ? vn::proceso::MUERTO : 0);
        // One that dies has counted once more than it could say.
        esperado += vn::lee_fichero(hecho + std::to_string(i)).size() + i % 2;
    }
    EXPECT_EQ(lee_cuenta(cuenta), esperado);
}

// Tells that it is there, and outlives its parent.
static int hijo_que_queda(void *fichero) {
    vn::graba_fichero(*static_cast<const std::string *>(fichero), "");
    std::this_thread::sleep_for(std::chrono::seconds(5));
    vn::muere();
}
// Arguments: name of the mutex, file that tells that it is inside, and anything for a child of its own. To be killed.
HIJO(entra_y_espera) {
    vnmutex *m = vnmutex_crea_entre_aplicaciones(args.at(0).c_str());
    if (!entra(m)) return 3;
    std::string fichero = args.at(1);
    if (args.size() > 2) vn::bifurca(hijo_que_queda, &fichero);
    vn::graba_fichero(fichero, "");
    std::this_thread::sleep_for(std::chrono::seconds(60));
    return 4;
}

PRUEBA(vnmutex, el_plazo_pasa_y_la_muerte_del_que_esta_dentro_lo_libera) {
    const nombre_propio nombre;
    vnmutex *m = vnmutex_crea_entre_aplicaciones(nombre.c_str());
    // A cleaner of old files takes the lock's file from under the mutex: it finds the one that the others use now.
    EXPECT_TRUE(entra_y_sale(m));
    const std::string fichero = vn::fichero_de_cerrojo(nombre);
    EXPECT_EQ(fichero.empty(), !fs::remove(fichero));
    vn::proceso hijo("entra_y_espera", {nombre, directorio() + "/dentro"});
    ASSERT_TRUE(vn::espera_fichero(directorio() + "/dentro"));
    {
        const auto corto = con_plazo(200);
        const auto antes = reloj::now();
        EXPECT_FALSE(entra(m));
        EXPECT_GE(segundos_desde(antes), 0.19);
        EXPECT_LT(segundos_desde(antes), 5.0);
    }
    const uint64_t abandonados = vnmutex_numero_de_abandonados();
    std::thread mata([&] {
        std::this_thread::sleep_for(ms(100));
        hijo.mata();
    });
    const auto antes = reloj::now();
    EXPECT_TRUE(entra(m));
    EXPECT_LT(segundos_desde(antes), 1.1);
    mata.join();
    vnmutex_sal(m);
    EXPECT_EQ(vnmutex_numero_de_abandonados(), abandonados + 1);
    EXPECT_TRUE(entra_y_sale(m)); // told once
    EXPECT_EQ(vnmutex_numero_de_abandonados(), abandonados + 1);
    vnmutex_destruye(&m);
}

// Whether another program can enter now; 2: it cannot, or else its result.
HIJO(intenta_entrar) {
    const auto corto = con_plazo(100);
    vnmutex *m = vnmutex_crea_entre_aplicaciones(args.at(0).c_str());
    const int r = entra(m) ? 0 : 2;
    vnmutex_destruye_saliendo(&m);
    return r;
}
static int intenta_otro(const std::string &nombre) {
    return vn::proceso("intenta_entrar", {nombre}).espera(20000).value_or(-1);
}

// What a child of a process that is inside may not do: enter, leave for its parent, or take the lock away when it ends.
static int hijo_del_que_esta_dentro(void *datos) {
    const auto corto = con_plazo(100);
    auto **m = static_cast<vnmutex **>(datos);
    if (entra(*m)) return 3;
    const uint64_t informes = error_interno_numero_de_informes();
    vnmutex_sal(*m);
    if (error_interno_numero_de_informes() != informes + 1) return 4;
    vnmutex_destruye_saliendo(m);
    return 0;
}
static int hijo_del_que_ha_salido(void *datos) { return entra_y_sale(*static_cast<vnmutex **>(datos)) ? 0 : 3; }
PRUEBA(vnmutex, un_proceso_bifurcado_no_tiene_lo_de_su_padre) {
    const nombre_propio nombre;
    vnmutex *m = vnmutex_crea_entre_aplicaciones(nombre.c_str()), *mia = vnmutex_crea("de hebras");
    for (vnmutex **uno : {&m, &mia}) {
        EXPECT_TRUE(entra(*uno));
        // Inside a process the child, which is another, is alone.
        const int esperado = uno == &m ? 0 : 3;
        EXPECT_EQ(vn::bifurca(hijo_del_que_esta_dentro, uno).value_or(esperado), esperado);
    }
    EXPECT_EQ(intenta_otro(nombre), 2);
    vnmutex_sal(m);
    vnmutex_sal(mia);
    for (vnmutex **uno : {&m, &mia}) EXPECT_EQ(vn::bifurca(hijo_del_que_ha_salido, uno).value_or(0), 0);
    EXPECT_EQ(intenta_otro(nombre), 0);

    vn::proceso padre("entra_y_espera", {nombre, directorio() + "/dentro", "con un hijo"});
    EXPECT_TRUE(vn::espera_fichero(directorio() + "/dentro"));
    padre.mata();
    const auto corto = con_plazo(2000);
    EXPECT_TRUE(entra_y_sale(m));
    for (vnmutex **uno : {&m, &mia}) vnmutex_destruye(uno);
}

// Who makes something else where the shared lock should be gets nothing written, and the user's programs share one of
// their own, which is told.
PRUEBA(vnmutex, lo_que_ocupa_el_sitio_del_cerrojo_no_se_toca) {
    const std::string d = directorio() + "/", victima = d + "victima", vacia = d + "vacia", casa = d + "casa";
    vn::pon_variable("XDG_CONFIG_HOME", casa);
    vn::pon_variable("ENPRUEBA", "1");
    const std::pair<const char *, std::function<void(const std::string &)>> ocupantes[] = {
        {"directory", [](const auto &f) { fs::create_directory(f); }},
        {"link", [&](const auto &f) { fs::create_symlink(victima, f); }},
        {"link to an empty file", [&](const auto &f) { fs::create_symlink(vacia, f); }},
        {"second name", [](const auto &f) { vn::graba_fichero(f, ""), fs::create_hard_link(f, f + "2"); }},
        {"file of something else", [&](const auto &f) { fs::copy_file(victima, f); }},
    };
    vn::graba_fichero(victima, "suyo");
    vn::graba_fichero(vacia, "");
    for (const auto &[que, ocupa] : ocupantes) {
        SCOPED_TRACE(que);
        const nombre_propio nombre;
        const std::string fichero = vn::fichero_de_cerrojo(nombre);
        if (fichero.empty()) return; // there the lock is no file
        const auto corto = con_plazo(100);
        ocupa(fichero);
        vnmutex *m = vnmutex_crea_entre_aplicaciones(nombre.c_str());
        EXPECT_TRUE(entra(m));
        EXPECT_EQ(intenta_otro(nombre), 2);
        vnmutex_sal(m);
        EXPECT_EQ(intenta_otro(nombre), 0);
        EXPECT_TRUE(entra(m));
        vnmutex_destruye_saliendo(&m);
        EXPECT_EQ(toma_avisos().size(), 1u);
        EXPECT_EQ(vn::lee_fichero(victima) + vn::lee_fichero(vacia), "suyo");
        EXPECT_TRUE(!fs::is_regular_file(fichero) || vn::lee_fichero(fichero).size() != 1);

        // Not that of others, either.
        for (const bool ajeno : {false, true}) {
            const std::string suyo = casa + "/nucleos-lock";
            if (ajeno && !vn::hazlo_de_otro(suyo)) continue;
            fs::permissions(suyo, fs::perms::others_write, ajeno ? fs::perm_options::remove : fs::perm_options::add);
            m = vnmutex_crea_entre_aplicaciones(nombre.c_str());
            EXPECT_FALSE(entra(m)) << ajeno;
            vnmutex_destruye(&m);
        }
        fs::remove_all(casa);
        fs::remove(fichero + "2");
    }
    vn::pon_variable("XDG_CONFIG_HOME", "");
    vn::pon_variable("ENPRUEBA", "");
}
