// obra: a small host of the library, the way a real one is written.
//   obra importa PLANO.dxf OBRA [CAMPO=VALOR...]   a drawing into a project file
//   obra informa OBRA [--sistema ...] [--energia ...] [--idioma N]
//                                                  what a project file holds, in a system of units and a language
// A failure is one line on the error stream and exit status 1, or 2 when the arguments are wrong; nothing is lost or
// left half written.
#include "dxf.h"
#include "informe.h"
#include "mensajes.h"
#include "opciones.h"
#include "plataforma/argumentos.h"
#include "posesion.h"
#include <cstdio>
#include <new>
#include <nucleos/foundation/ficheros/vdir.h>
#include <nucleos/foundation/sistema/avisos.h>
#include <nucleos/foundation/sistema/nucleos_version.h>
#include <nucleos/foundation/sistema/version.h>
#include <nucleos/foundation/suelo/error_interno.h>
#include <nucleos/foundation/suelo/vornspy.h>
#include <nucleos/foundation/texto/unicode.h>

namespace {

using namespace obra;

texto ancho(const std::string &utf8) {
    const dueno_ancho t(unicode_convierte_UTF8_a_UNICODE(utf8.c_str()));
    return t ? texto(t.get()) : texto();
}

int falla(const std::string &fichero, const std::string &que) {
    std::fprintf(stderr, "obra: %s: %s\n", fichero.c_str(), que.c_str());
    return 1;
}

// What is wrong with the arguments, and how they are written.
int uso(const std::string &que) {
    std::fprintf(stderr, "obra: %s\n%s\n", que.c_str(), di(mensaje::uso).c_str());
    return 2;
}

// The reports of the library are for its developers: this program says its own line.
void recibe_informe(const vninforme *, void *) {}

// With why, where the system said it of the last file that failed.
std::string con_motivo(vnfunc_mensaje que) {
    const std::string motivo = utf8(lc_texto_error_u(lc_ultimo_error(nullptr)));
    return motivo.empty() ? di(que) : di(que) + " (" + motivo + ")";
}

// 0, or the exit status when there is no such file to read.
int comprueba_que_se_lee(const std::string &nombre) {
    const texto u = ancho(nombre);
    if (vdir_existe_directorio_UNICODE(u.c_str()) == CIERTO) return falla(nombre, di(mensaje::es_directorio));
    const dueno_fichero f(f_lc_fopen_seguro_u(u.c_str(), VNU("rb"), VN_AQUI));
    return f != nullptr ? 0 : falla(nombre, con_motivo(mensaje::no_se_lee));
}

int lee_plano(const std::string &dxf, plano &p) {
    noticias_dxf n;
    switch (lee_dxf(ancho(dxf), p, n)) {
    case lectura_dxf::bien: break;
    case lectura_dxf::no_se_lee: return falla(dxf, con_motivo(mensaje::no_se_lee));
    case lectura_dxf::no_es_dxf: return falla(dxf, di(mensaje::no_es_dxf));
    case lectura_dxf::es_binario: return falla(dxf, di(mensaje::es_binario));
    case lectura_dxf::danado: return falla(dxf, di(mensaje::danado) + " " + std::to_string(n.linea));
    case lectura_dxf::demasiado_grande: return falla(dxf, di(mensaje::demasiado));
    }
    if (n.sin_final) falla(dxf, di(mensaje::sin_final));
    if (n.unidad_ignorada) falla(dxf, di(mensaje::unidad_ignorada) + " " + std::to_string(*n.unidad_ignorada));
    return 0;
}

int importa(const std::vector<std::string> &args) {
    if (args.size() < 4) return uso(di(args.size() < 3 ? mensaje::falta_plano : mensaje::falta_obra));
    const std::string &dxf = args[2], &destino = args[3];
    campos_t campos;
    for (size_t i = 4; i < args.size(); ++i) {
        const size_t igual = args[i].find('=');
        if (igual == std::string::npos || igual == 0) return uso(args[i] + ": " + di(mensaje::sobra));
        campos.emplace_back(ancho(args[i].substr(0, igual)), ancho(args[i].substr(igual + 1)));
    }
    if (const int e = comprueba_que_se_lee(dxf); e != 0) return e;
    if (vdir_existe_directorio_UNICODE(ancho(destino).c_str()) == CIERTO)
        return falla(destino, di(mensaje::es_directorio));
    plano p;
    if (const int e = lee_plano(dxf, p); e != 0) return e;
    const size_t barra = dxf.find_last_of("/\\");
    const texto titulo = ancho(barra == std::string::npos ? dxf : dxf.substr(barra + 1));
    if (!graba_obra(ancho(destino), p, titulo, campos)) {
        // The one failure after which the new file stands; its reason says so.
        if (const auto e = lc_ultimo_error(nullptr); e == VN_FICH_SIN_ASEGURAR)
            return falla(destino, utf8(lc_texto_error_u(e)));
        return falla(destino, con_motivo(mensaje::no_se_graba));
    }
    std::printf("%s: %s %s\n", dxf.c_str(), di(mensaje::importado).c_str(), destino.c_str());
    return 0;
}

int informa(const std::vector<std::string> &args) {
    opciones dichas;
    std::string falta;
    if (!lee_opciones({args.begin() + 2, args.end()}, dichas, falta)) return uso(falta);
    aplica(dichas);
    const std::string &nombre = dichas.obra;
    if (const int e = comprueba_que_se_lee(nombre); e != 0) return e;
    obra_leida o;
    std::string motivo;
    switch (lee_obra(ancho(nombre), o, motivo)) {
    case lectura_obra::bien: break;
    case lectura_obra::version_superior: return falla(nombre, di(mensaje::superior));
    case lectura_obra::no_es_obra: return falla(nombre, di(mensaje::no_es_obra));
    }
    std::fputs(informe_de(nombre, o).c_str(), stdout);
    return 0;
}

int ejecuta(const std::vector<std::string> &args) {
    for (const std::string &a : args) {
        if (a == "--help" || a == "-h") return std::puts(di(mensaje::uso).c_str()) < 0;
        if (a == "--version")
            return std::printf("obra %s\nnucleos %s\n", version_versionAplicacion(), nucleos_version()) < 0;
    }
    if (args.size() < 2) return uso(di(mensaje::falta_orden));
    if (args[1] == "importa") return importa(args);
    if (args[1] == "informa") return informa(args);
    return uso(args[1] + ": " + di(mensaje::sobra));
}

} // namespace

int main(int argc, char **argv) {
    prepara_consola();
    version_establece_u(VNU("0.1.a"), VNU("0.1"), 'a');
    error_interno_instala_receptor(recibe_informe, nullptr);
    mensaje::habla_un_solo_idioma();
    int salida = 1;
    try {
        salida = ejecuta(argumentos_utf8(argc, argv));
    } catch (const std::bad_alloc &) {
        std::fprintf(stderr, "obra: %s\n", di(mensaje::sin_memoria).c_str());
    }
    if (std::fflush(stdout) == 0 && std::ferror(stdout) == 0) return salida;
    std::fprintf(stderr, "obra: %s\n", di(mensaje::sin_salida).c_str());
    return 1;
}
