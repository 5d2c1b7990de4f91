#define VN_MODULO "vnmutex_test"
#include "foundation/vnmutex.h"
#include "plataforma/proceso.h"
#include "prueba.h"
#include <chrono>
#include <filesystem>
#include <fstream>
#include <thread>

namespace {

using reloj = std::chrono::steady_clock;

double segundos_desde(reloj::time_point t) { return std::chrono::duration<double>(reloj::now() - t).count(); }

// The wait of this process, for as long as it lives.
struct con_plazo {
    explicit con_plazo(uint32_t ms) : antes(vnmutex_establece_plazo(ms)) {}
    ~con_plazo() { vnmutex_establece_plazo(antes); }
    uint32_t antes;
};

// Whether another thread can enter now.
bool entra_otra_hebra(vnmutex *m) {
    bool dentro = false;
    std::thread([&] {
        dentro = vnmutex_entra(m) == CIERTO;
        if (dentro) vnmutex_sal(m);
    }).join();
    return dentro;
}

// A name that programs of other runs of the tests do not use; what a lock leaves on disk stays in the test's directory.
std::string nombre_propio() {
    vn::pon_variable("XDG_RUNTIME_DIR", vn::Prueba::directorio());
    return "ñ\\/:" + vn::Prueba::directorio();
}

uint64_t lee_cuenta(const std::string &fichero) {
    uint64_t n = 0;
    std::ifstream(fichero) >> n;
    return n;
}

} // namespace

PRUEBA(vnmutex, el_mismo_nombre_es_el_mismo_cerrojo) {
    const con_plazo corto(30);
    vnmutex *a = vnmutex_crea("uno"), *b = vnmutex_crea_u(VNU("uno")), *otro = vnmutex_crea("Uno");
    const std::string largo(3000, 'x');
    vnmutex *l1 = vnmutex_crea((largo + "1").c_str()), *l2 = vnmutex_crea((largo + "2").c_str());
    nombre_propio();
    vnmutex *maquina = vnmutex_crea_entre_aplicaciones("uno");
    EXPECT_EQ(vnmutex_entra(a), CIERTO);
    EXPECT_EQ(vnmutex_entra(b), CIERTO); // recursive, through either
    EXPECT_EQ(vnmutex_entra(l1), CIERTO);
    EXPECT_FALSE(entra_otra_hebra(a));
    EXPECT_FALSE(entra_otra_hebra(b));
    for (vnmutex *libre : {otro, l2, maquina}) EXPECT_TRUE(entra_otra_hebra(libre));
    vnmutex_sal(a);
    EXPECT_FALSE(entra_otra_hebra(a));
    vnmutex_sal(b);
    EXPECT_TRUE(entra_otra_hebra(a));
    vnmutex_sal(l1);
    for (vnmutex **m : {&a, &b, &otro, &l1, &l2, &maquina}) vnmutex_destruye(m);
}

PRUEBA(vnmutex, salir_y_destruir_a_destiempo) {
    const con_plazo corto(30);
    vnmutex *a = vnmutex_crea("dos"), *b = vnmutex_crea("dos");
    ESPERA_INFORME("dentro", vnmutex_sal(a));
    vnmutex_entra(a);
    ESPERA_INFORME("dentro", vnmutex_sal(b)); // entered through the other
    std::thread([&] {
        ESPERA_INFORME("dentro", vnmutex_sal(a));
        ESPERA_INFORME("!de_otra_hebra", vnmutex_destruye(&a));
    }).join();
    ASSERT_NE(a, nullptr);
    ESPERA_INFORME("!dentro", vnmutex_destruye(&a));
    EXPECT_EQ(a, nullptr);
    EXPECT_TRUE(entra_otra_hebra(b));
    // At the end of the program it goes in whatever state, and the lock is free.
    a = vnmutex_crea("dos");
    vnmutex_entra(a);
    vnmutex_entra(a);
    std::thread([&] { vnmutex_destruye_saliendo(&a); }).join();
    EXPECT_TRUE(entra_otra_hebra(b));
    vnmutex_destruye_saliendo(&b);
}

PRUEBA(vnmutex, varias_hebras_entre_aplicaciones) {
    vnmutex *m = nullptr;
    const std::string nombre = nombre_propio();
    unsigned cuenta = 0;
    auto trabaja = [&] {
        for (int i = 0; i < 2000; ++i) {
            ASSERT_EQ(vnmutex_entra_creando_entre_aplicaciones_si_es_necesario(&m, nombre.c_str()), CIERTO);
            ++cuenta;
            vnmutex_sal(m);
        }
    };
    std::thread a(trabaja), b(trabaja), c(trabaja);
    a.join();
    b.join();
    c.join();
    EXPECT_EQ(cuenta, 6000u);
    vnmutex_destruye(&m);
}

// Arguments: name of the mutex, file of the count, file of what was done, how often, and the turn in which to
// die inside.
HIJO(cuenta_bajo_mutex) {
    vnmutex *m = vnmutex_crea_entre_aplicaciones(args.at(0).c_str());
    std::ofstream hecho(args.at(2), std::ios::app);
    const int veces = std::stoi(args.at(3)), muerte = std::stoi(args.at(4));
    for (int i = 0; i < veces; ++i) {
        if (vnmutex_entra(m) != CIERTO) return 3;
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
    const std::string nombre = nombre_propio(), cuenta = directorio() + "/cuenta";
    constexpr int PROGRAMAS = 4, VECES = 60;
    int muertos = 0;
    uint64_t esperado = 0;
    std::vector<vn::proceso> hijos;
    for (int i = 0; i < PROGRAMAS; ++i) {
        const bool muere = i % 2 == 1;
        hijos.emplace_back(
            "cuenta_bajo_mutex",
            std::vector<std::string>{nombre, cuenta, directorio() + "/hecho" + std::to_string(i),
                                     std::to_string(VECES), muere ? std::to_string(7 * i) : "-1"});
    }
    for (int i = 0; i < PROGRAMAS; ++i) {
        const auto r = hijos[static_cast<size_t>(i)].espera(60000);
        EXPECT_EQ(r, i % 2 == 1 ? vn::proceso::MUERTO : 0);
        esperado += vn::lee_fichero(directorio() + "/hecho" + std::to_string(i)).size();
        muertos += i % 2;
    }
    // One that dies has counted once more than it could say.
    EXPECT_EQ(lee_cuenta(cuenta), esperado + static_cast<uint64_t>(muertos));
}

HIJO(entra_y_espera) {
    vnmutex *m = vnmutex_crea_entre_aplicaciones(args.at(0).c_str());
    if (vnmutex_entra(m) != CIERTO) return 3;
    std::ofstream(args.at(1)) << "dentro";
    std::this_thread::sleep_for(std::chrono::seconds(60));
    return 4;
}

PRUEBA(vnmutex, el_plazo_pasa_y_la_muerte_del_que_esta_dentro_lo_libera) {
    const std::string nombre = nombre_propio();
    vnmutex *m = vnmutex_crea_entre_aplicaciones(nombre.c_str());
    // A cleaner of old files takes the lock's file from under the mutex: it finds the one that the others use now.
    EXPECT_EQ(vnmutex_entra(m), CIERTO);
    vnmutex_sal(m);
    std::filesystem::remove_all(directorio() + "/nucleos");
    vn::proceso hijo("entra_y_espera", {nombre, directorio() + "/dentro"});
    ASSERT_TRUE(vn::espera_fichero(directorio() + "/dentro"));
    {
        const con_plazo corto(200);
        const auto antes = reloj::now();
        EXPECT_EQ(vnmutex_entra(m), FALSO);
        EXPECT_GE(segundos_desde(antes), 0.19);
        EXPECT_LT(segundos_desde(antes), 5.0);
    }
    const uint64_t abandonados = vnmutex_numero_de_abandonados();
    std::thread mata([&] {
        std::this_thread::sleep_for(std::chrono::milliseconds(100));
        hijo.mata();
    });
    const auto antes = reloj::now();
    EXPECT_EQ(vnmutex_entra(m), CIERTO);
    EXPECT_LT(segundos_desde(antes), 1.1);
    mata.join();
    vnmutex_sal(m);
    EXPECT_EQ(vnmutex_numero_de_abandonados(), abandonados + 1);
    EXPECT_EQ(vnmutex_entra(m), CIERTO); // told once
    vnmutex_sal(m);
    EXPECT_EQ(vnmutex_numero_de_abandonados(), abandonados + 1);
    vnmutex_destruye(&m);
}
