#include "foundation/ficheros/fichmem.h"
#include "prueba.h"
#include <fstream>
#include <iterator>

using namespace vn;

static std::string bytes(const fichmem *m) { return std::string(reinterpret_cast<char *>(m->datos), m->longitud); }

PRUEBA(fichmem, los_contenidos_van_y_vuelven) {
    const auto nombre = ancho(directorio() + "/memoria");
    for (const std::string &contenido : {std::string(), std::string("uno\0dos", 7), std::string(300000, 'm')}) {
        fichmem *m =
            fichmem_crea32(contenido.empty() ? nullptr : contenido.data(), static_cast<uint32_t>(contenido.size()));
        EXPECT_EQ(fichmem_graba_unicode(m, nombre.c_str()), CIERTO);
        EXPECT_TRUE(lee_fichero(directorio() + "/memoria") == contenido);
        fichmem *leido = fichmem_lee_unicode(nombre.c_str()), *copia = fichmem_copia(leido);
        fichmem_destruye(&leido);
        EXPECT_EQ(leido, nullptr);
        EXPECT_TRUE(bytes(copia) == contenido);
        char *cadena = fichmem_copia_contenido_como_cadena(copia);
        EXPECT_STREQ(cadena, contenido.c_str());
        fichmem *de_cadena = fichmem_crea_desde_cadena(cadena);
        EXPECT_TRUE(bytes(de_cadena) == toma(cadena));
        for (fichmem **p : {&m, &copia, &de_cadena}) fichmem_destruye(p);
    }
}

PRUEBA(fichmem, de_quien_es_y_fallos) {
    auto *bloque = static_cast<unsigned char *>(vornspy_calloc(4, 1)), *mio = bloque;
    fichmem *m = fichmem_crea_original32(&mio, 4);
    EXPECT_EQ(mio, nullptr);
    EXPECT_EQ(m->datos, bloque);
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", fichmem_graba_unicode(m, ancho(directorio()).c_str())), FALSO);
    EXPECT_EQ(ESPERA_INFORME("f_lc_fopen", fichmem_lee_unicode(ancho(directorio() + "/no").c_str())), nullptr);
    fichmem_destruye(&m);
    // Past the report it is an empty one.
    m = ESPERA_INFORME("datos != nullptr || longitud == 0", fichmem_crea32(nullptr, 4));
    EXPECT_EQ(m->longitud, 0u);
    fichmem_destruye(&m);
    const std::string f = directorio() + "/memoria";
    graba_fichero(f, std::string(1000, 'x'));
    vornspy_instala_permiso([](size_t n, void *) { return n < 1000 || n > 2000 ? CIERTO : FALSO; }, nullptr);
    EXPECT_EQ(ESPERA_INFORME("lc_error_leyendo_fichero", fichmem_lee_unicode(ancho(f).c_str())), nullptr);
    vornspy_instala_permiso(nullptr, nullptr);
}

// Files of the system's, small and large, that say that they have no bytes; and one that cannot be read.
PRUEBA(fichmem, lo_que_no_dice_su_tamanyo_se_lee_hasta_el_final) {
    for (const char *nombre : {"/proc/filesystems", "/proc/kallsyms"}) {
        std::ifstream f(nombre, std::ios::binary);
        const std::string todo{std::istreambuf_iterator<char>(f), {}};
        if (todo.empty()) continue; // this system has none
        fichmem *m = fichmem_lee(nombre);
        ASSERT_NE(m, nullptr);
        EXPECT_TRUE(bytes(m) == todo) << nombre << m->longitud;
        fichmem_destruye(&m);
    }
    if (std::ifstream("/proc/self/mem")) {
        EXPECT_EQ(ESPERA_INFORME("lc_error_leyendo_fichero", fichmem_lee("/proc/self/mem")), nullptr);
    }
}
