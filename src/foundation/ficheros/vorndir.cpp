#define VN_MODULO "vorndir (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/ficheros/vorndir.h"
#include "foundation/ficheros/vdir_int.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/logico_int.h"
#include "foundation/suelo/operaciones_fichero.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/vornspy.h"
#include <algorithm>
#include <atomic>
#include <random>

namespace vn::ficheros {
namespace {

// Letters and digits that no other call, in no other program, will hit upon.
cadena_ancha nombre_nuevo() {
    static std::atomic<uint32_t> serie{0};
    // The serial number tells two calls apart even where the source of chance is poor.
    std::random_device azar;
    uint64_t n = static_cast<uint64_t>(azar()) << 32 | (azar() + ++serie);
    cadena_ancha t = VNU("vn");
    for (int i = 0; i < 13; ++i, n >>= 5) t += VNU("0123456789abcdefghjkmnpqrstvwxyz")[n & 31];
    return t;
}

} // namespace

bool crea_fichero_unico(const cadena_ancha &directorio, vista_ancha extension, cadena_ancha &ruta) {
    const vnoperaciones_fichero &t = *operaciones_fichero_actuales();
    // A name that is taken is no failure: another one is tried, but not for ever.
    for (int intentos = 0; intentos < 100; ++intentos) {
        cadena_ancha nombre = nombre_nuevo();
        if (!extension.empty() && extension.front() != VNU('.')) nombre += VNU('.');
        ruta = une(directorio, nombre += extension);
        vnid_fichero id = VN_FICHERO_NINGUNO;
        // Created, not looked for first: between a look and the creation somebody else might take the name.
        switch (t.abre(ruta.c_str(), VN_ABRE_ESCRITURA | VN_ABRE_CREA | VN_ABRE_NUEVO, &id)) {
        case VN_FICH_BIEN: return t.cierra(id) == VN_FICH_BIEN;
        case VN_FICH_YA_EXISTE:
        case VN_FICH_INTERRUMPIDA: break;
        default: return false;
        }
    }
    return false;
}

} // namespace vn::ficheros

using namespace vn;
using namespace vn::ficheros;

namespace {

// A path of the system's as ANSI text, which must lead to the same place.
char *como_ansi(const cadena_ancha &t) {
    char *texto_ansi = nuevo_ansi_fiel(t);
    return AFIRMA_DE_FICHERO(texto_ansi != nullptr, t.c_str()) ? texto_ansi : nullptr;
}

bool es_extension(vista_ancha ext) {
    return std::none_of(ext.begin(), ext.end(), [](vnwchar c) { return es_separador(c) || c == VNU(':'); });
}

bool fichero_temporal(vista_ancha ext, cadena_ancha &ruta) {
    return AFIRMA(es_extension(ext)) && crea_fichero_unico(plat::directorio_temporal(), ext, ruta);
}

bool es_programa(const cadena_ancha &ruta) { return existe_fichero(ruta) && plat::es_ejecutable(ruta); }

bool busca_ejecutable(const cadena_ancha &nombre, cadena_ancha &hallado) {
    const partes p = descompone(nombre);
    if (p.nombre.empty()) return false;
    // A name with a directory is not looked for in the search path.
    const bool con_ruta = !p.hasta_directorio().empty();
    const auto terminaciones = plat::terminaciones_de_programas();
    for (const cadena_ancha &d :
         con_ruta ? std::vector<cadena_ancha>{cadena_ancha()} : plat::directorios_de_programas())
        for (const cadena_ancha &t : terminaciones) {
            // Where endings tell a program, a name without one is none.
            if (t.empty() && terminaciones.size() > 1 && p.extension.empty()) continue;
            hallado = une(d, nombre + t);
            if (es_programa(hallado)) return true;
        }
    return false;
}

// The files that match a pattern, with their path as the pattern has it.
bool ficheros_de(vista_ancha patron, std::vector<cadena_ancha> &rutas) {
    const partes p = descompone(patron);
    const cadena_ancha directorio(p.hasta_directorio());
    const bool leido = nombres_en(directorio, p.nombre_con_extension(), clase::ficheros, rutas);
    for (cadena_ancha &r : rutas) r = une(directorio, r);
    return leido;
}

} // namespace

vnwchar *vorndir_dameDirectorioTemporal_UNICODE(void) { return nuevo(plat::directorio_temporal()); }
char *vorndir_dameDirectorioTemporal(void) { return como_ansi(plat::directorio_temporal()); }

vnwchar *vorndir_creaFicheroTemporalConExt_UNICODE(const vnwchar *ext) {
    if (!AFIRMA_NO_NULO(ext)) return nullptr;
    cadena_ancha ruta;
    return fichero_temporal(ext, ruta) ? nuevo(ruta) : nullptr;
}

char *vorndir_creaFicheroTemporalConExt(const char *ext) {
    if (!AFIRMA_NO_NULO(ext)) return nullptr;
    cadena_ancha ruta;
    if (!fichero_temporal(de_ansi(ext), ruta)) return nullptr;
    char *s = nuevo_ansi_fiel(ruta);
    // A file whose name the caller cannot be told would stay for ever.
    if (s == nullptr) borra_fichero(ruta);
    AFIRMA_DE_FICHERO(s != nullptr, ruta.c_str());
    return s;
}

vnwchar *vorndir_dame_path_completo_del_programa_UNICODE(void) { return nuevo(plat::ruta_del_programa()); }

vnwchar *vorndir_busca_ejecutable_del_path_UNICODE(const vnwchar *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    cadena_ancha hallado;
    return busca_ejecutable(nombre, hallado) ? nuevo(hallado) : nullptr;
}

char *vorndir_busca_ejecutable_del_path(const char *nombre) {
    if (!AFIRMA_NO_NULO(nombre)) return nullptr;
    cadena_ancha hallado;
    return busca_ejecutable(de_ansi(nombre), hallado) ? como_ansi(hallado) : nullptr;
}

vnbool vorndir_lista_de_fichero_UNICODE(const vnwchar *patron, arrCADENA_u **lista) {
    if (!AFIRMA_NO_NULO(lista)) return FALSO;
    *lista = nullptr;
    if (!AFIRMA_NO_NULO(patron)) return FALSO;
    std::vector<cadena_ancha> rutas;
    const bool leido = ficheros_de(patron, rutas);
    *lista = nueva_lista(rutas);
    return logico(leido);
}

vnbool vorndir_lista_de_fichero(const char *patron, arrCADENA **lista) {
    if (!AFIRMA_NO_NULO(lista)) return FALSO;
    *lista = nullptr;
    if (!AFIRMA_NO_NULO(patron)) return FALSO;
    std::vector<cadena_ancha> rutas;
    const bool leido = ficheros_de(de_ansi(patron), rutas);
    *lista = arr_CreaCADENA(0);
    for (const cadena_ancha &r : rutas)
        // Names that the code page cannot hold are left out: they would lead to other files.
        if (const propio<char> s(nuevo_ansi_fiel(r)); s != nullptr) arr_AppendCADENA(*lista, s.get());
    return logico(leido);
}

vnbool vorndir_lista_de_ficheros_en_directorio_y_subdirectorios_UNICODE(const vnwchar *ruta, const vnwchar *mascara,
                                                                        arrCADENA_u **ficheros,
                                                                        arrCADENA_u **directorios) {
    if (ficheros != nullptr) *ficheros = nullptr;
    if (directorios != nullptr) *directorios = nullptr;
    if (!EXIGE(ruta, mascara, ficheros, directorios)) return FALSO;
    std::vector<cadena_ancha> todos_los_ficheros, todos_los_directorios, por_visitar{ruta};
    bool leido = true;
    // The list grows while it is gone through, level by level, so that no depth fills the stack.
    for (size_t i = 0; i < por_visitar.size(); ++i) {
        std::vector<cadena_ancha> nombres;
        const bool este = nombres_en(por_visitar[i], mascara, clase::ficheros, nombres);
        // Only the directory that was asked for must be readable.
        if (i == 0) leido = este;
        for (const cadena_ancha &n : nombres) todos_los_ficheros.push_back(une(por_visitar[i], n));
        nombres.clear();
        nombres_en(por_visitar[i], VNU("*"), clase::directorios, nombres);
        for (const cadena_ancha &n : nombres) {
            todos_los_directorios.push_back(une(por_visitar[i], n));
            // A link may lead back up: it is listed, not entered.
            if (!plat::es_enlace(todos_los_directorios.back())) por_visitar.push_back(todos_los_directorios.back());
        }
    }
    *ficheros = nueva_lista(todos_los_ficheros);
    *directorios = nueva_lista(todos_los_directorios);
    return logico(leido);
}

void vorndir_libera_lista_de_ficheros_en_directorio_y_subdirectorios_UNICODE(arrCADENA_u **ficheros,
                                                                             arrCADENA_u **directorios) {
    for (arrCADENA_u **lista : {ficheros, directorios})
        if (AFIRMA_NO_NULO(lista) && *lista != nullptr) arr_DestruyeCADENA_u(lista);
}
