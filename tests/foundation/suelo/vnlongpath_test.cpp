#define VN_MODULO "vnlongpath_test"
#include "foundation/suelo/vnlongpath.h"
#include "texto_ancho.h"

namespace {

bool abre(const std::string &nombre, uint32_t disposicion, uint32_t acceso,
          uint32_t atributos = VNLONGPATH_FILE_ATTRIBUTE_NORMAL) {
    return vnlongpath_CloseHandle(vnlongpath_CreateFileW(vn::ancho(nombre).c_str(), acceso, VNLONGPATH_FILE_SHARE_READ,
                                                         nullptr, disposicion, atributos, nullptr)) == CIERTO;
}

} // namespace

PRUEBA(vnlongpath, cada_disposicion_con_y_sin_fichero) {
    constexpr uint32_t LEE = VNLONGPATH_GENERIC_READ, ESCRIBE = VNLONGPATH_GENERIC_WRITE, NO_HAY = 99;
    const struct {
        uint32_t disposicion, acceso;
        bool si_hay, si_no_hay;
        size_t queda_si_habia, queda_si_no; // bytes, or NO_HAY
    } filas[] = {
        {VNLONGPATH_CREATE_NEW, ESCRIBE, false, true, 3, 0},
        {VNLONGPATH_CREATE_ALWAYS, ESCRIBE | LEE, true, true, 0, 0},
        {VNLONGPATH_OPEN_EXISTING, LEE, true, false, 3, NO_HAY},
        {VNLONGPATH_OPEN_ALWAYS, ESCRIBE, true, true, 3, 0},
        {VNLONGPATH_TRUNCATE_EXISTING, ESCRIBE, true, false, 0, NO_HAY},
        {VNLONGPATH_TRUNCATE_EXISTING, LEE, false, false, 3, NO_HAY},
    };
    const std::string largo = directorio() + "/" + std::string(200, 'd');
    std::filesystem::create_directory(largo);
    for (const auto &f : filas) {
        SCOPED_TRACE(f.disposicion);
        const std::string hay = largo + "/hay_ñ", no_hay = directorio() + "\\no_hay";
        vn::graba_fichero(vn::propia(largo + "/hay_ñ"), "123");
        EXPECT_EQ(abre(hay, f.disposicion, f.acceso), f.si_hay);
        EXPECT_EQ(abre(no_hay, f.disposicion, f.acceso), f.si_no_hay);
        EXPECT_EQ(vn::lee_fichero(hay).size(), f.queda_si_habia);
        const std::string propio = vn::propia(no_hay);
        EXPECT_EQ(vn::existe(propio) ? vn::lee_fichero(propio).size() : NO_HAY, f.queda_si_no);
        std::filesystem::remove(propio);
    }
}

PRUEBA(vnlongpath, atributos_y_directorios) {
    const auto atributos = [](const std::string &n) { return vnlongpath_GetFileAttributesW(vn::ancho(n).c_str()); };
    const std::string d = directorio(), f = d + "/f";
    EXPECT_EQ(atributos(f), VNLONGPATH_INVALID_FILE_ATTRIBUTES);
    vn::graba_fichero(f, "x");
    EXPECT_EQ(atributos(f) & VNLONGPATH_FILE_ATTRIBUTE_DIRECTORY, 0u);
    EXPECT_EQ(atributos(d) & VNLONGPATH_FILE_ATTRIBUTE_DIRECTORY, VNLONGPATH_FILE_ATTRIBUTE_DIRECTORY);
    EXPECT_FALSE(abre(d, VNLONGPATH_OPEN_EXISTING, VNLONGPATH_GENERIC_READ));
    EXPECT_TRUE(abre(d, VNLONGPATH_OPEN_EXISTING, VNLONGPATH_GENERIC_READ, VNLONGPATH_FILE_FLAG_BACKUP_SEMANTICS));
    EXPECT_TRUE(abre(f, VNLONGPATH_OPEN_EXISTING, VNLONGPATH_GENERIC_READ, VNLONGPATH_FILE_FLAG_DELETE_ON_CLOSE));
    EXPECT_FALSE(vn::existe(f));
    EXPECT_EQ(vnlongpath_CloseHandle(VNLONGPATH_INVALID_HANDLE), FALSO);
    EXPECT_EQ(vnlongpath_CloseHandle(nullptr), FALSO);
}
