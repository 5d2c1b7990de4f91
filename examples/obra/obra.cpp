// obra: a small host of the library, the way a real one is written.
//   obra importa PLANO.dxf OBRA [CAMPO=VALOR...]   a drawing into a project file
//   obra informa OBRA [--sistema ...] [--energia ...] [--idioma N]
//                                                  what a project file holds, in a system of units and a language
//   obra dibuja OBRA DIBUJO.svg|pdf|png|dxf [--ancho-px N | --escala N] [--fondo N]
//                                                  its drawing as a picture
//   obra malla OBRA MALLA.obj [--alto METROS] ...  its closed outlines as prisms
// A failure is one line on the error stream and exit status 1, or 2 when the arguments are wrong; nothing is lost or
// left half written.
#include "dibuja.h"
#include "dxf.h"
#include "informe.h"
#include "malla.h"
#include "mensajes.h"
#include "opciones.h"
#include "plataforma/argumentos.h"
#include "posesion.h"
#include <cstdio>
#include <new>
#include <nucleos/foundation/ficheros/vdir.h>
#include <nucleos/foundation/ficheros/vornfile.h>
#include <nucleos/foundation/sistema/avisos.h>
#include <nucleos/foundation/sistema/nucleos_version.h>
#include <nucleos/foundation/sistema/version.h>
#include <nucleos/foundation/suelo/error_interno.h>
#include <nucleos/foundation/suelo/vornspy.h>
#include <nucleos/foundation/texto/unicode.h>
#include <utility>

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

int falla_al_grabar(const std::string &destino) {
    // The one failure after which the new file stands; its reason says so.
    if (const auto e = lc_ultimo_error(nullptr); e == VN_FICH_SIN_ASEGURAR)
        return falla(destino, utf8(lc_texto_error_u(e)));
    return falla(destino, con_motivo(mensaje::no_se_graba));
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
    if (!graba_obra(ancho(destino), p, titulo, campos)) return falla_al_grabar(destino);
    std::printf("%s: %s %s\n", dxf.c_str(), di(mensaje::importado).c_str(), destino.c_str());
    return 0;
}

// 0, or the exit status when there is no such project.
int abre_obra(const std::string &nombre, obra_leida &o) {
    if (const int e = comprueba_que_se_lee(nombre); e != 0) return e;
    std::string motivo;
    switch (lee_obra(ancho(nombre), o, motivo)) {
    case lectura_obra::bien: return 0;
    case lectura_obra::version_superior: return falla(nombre, di(mensaje::superior));
    case lectura_obra::no_es_obra: break;
    }
    return falla(nombre, di(mensaje::no_es_obra));
}

int informa(const std::vector<std::string> &args) {
    opciones dichas;
    std::string falta;
    if (!lee_opciones({args.begin() + 2, args.end()}, dichas, falta)) return uso(falta);
    aplica(dichas);
    obra_leida o;
    if (const int e = abre_obra(dichas.obra, o); e != 0) return e;
    std::fputs(informe_de(dichas.obra, o).c_str(), stdout);
    return 0;
}

// ---------------------------------------------------------------- pictures

// A file that takes its name's place at the end, or is given up.
class resultado {
  public:
    explicit resultado(const std::string &nombre)
        : nombre_(ancho(nombre)),
          f_(vornfile_abrir_fichero_escritura_con_temporal_u(nombre_.c_str(), VNU("_TM$"), FALSO)) {}
    ~resultado() {
        if (f_ != nullptr) vornfile_abandonar_fichero_escritura(f_);
    }
    resultado(const resultado &) = delete;
    resultado &operator=(const resultado &) = delete;

    vnfichero *fichero() const { return f_; }
    bool cierra() {
        return vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(std::exchange(f_, nullptr),
                                                                                nombre_.c_str()) == CIERTO;
    }

  private:
    const texto nombre_;
    vnfichero *f_;
};

// Says how far it is, of what takes long: by tenths.
class marcha {
  public:
    marcha(std::string que, size_t total) : que_(std::move(que)), total_(total) {}
    void operator()(size_t hechas) {
        if (total_ < MUCHAS || hechas * 10 / total_ <= decimas_) return;
        decimas_ = hechas * 10 / total_;
        std::fprintf(stderr, "obra: %s: %d %%\n", que_.c_str(), static_cast<int>(decimas_ * 10));
    }

  private:
    static constexpr size_t MUCHAS = 200'000;
    std::string que_;
    size_t total_, decimas_ = 0;
};

std::string extension_de(const std::string &nombre) {
    const size_t punto = nombre.find_last_of("./\\");
    if (punto == std::string::npos || nombre[punto] != '.') return {};
    std::string s = nombre.substr(punto + 1);
    for (char &c : s)
        if (c >= 'A' && c <= 'Z') c += 'a' - 'A';
    return s;
}

// What is common to both: the arguments, the project, the file.
struct pedido {
    opciones_dibujo o;
    const clase_de_lienzo *clase = nullptr; // null: `otra`
    obra_leida leida;
    tamano t;
};
// 0, or the exit status. `otra`: an extension that is taken beside those of pictures, or null.
int prepara(const std::vector<std::string> &args, const char *otra, pedido &p) {
    std::string falta;
    if (!lee_opciones_dibujo({args.begin() + 2, args.end()}, otra != nullptr, p.o, falta)) return uso(falta);
    const std::string extension = extension_de(p.o.destino);
    std::string validas = otra != nullptr ? otra : "";
    for (const clase_de_lienzo &c : clases_de_lienzo()) {
        if (extension == c.extension) p.clase = &c;
        validas += (validas.empty() ? "" : ", ") + std::string(c.extension);
    }
    if (p.clase == nullptr && (otra == nullptr || extension != otra))
        return uso(p.o.destino + ": " + di(mensaje::no_vale) + " " + validas);
    if (p.clase != nullptr && p.clase->abre == nullptr) return falla(p.o.destino, di(mensaje::clase_ausente));
    if (p.o.ancho_px) p.t.ancho_px = static_cast<uint32_t>(*p.o.ancho_px);
    if (p.o.escala) p.t.divisor = static_cast<uint16_t>(*p.o.escala);
    if (vdir_existe_directorio_UNICODE(ancho(p.o.destino).c_str()) == CIERTO)
        return falla(p.o.destino, di(mensaje::es_directorio));
    return abre_obra(p.o.obra, p.leida);
}
int graba(const pedido &p, const std::function<bool(vnfichero *)> &escribe) {
    resultado r(p.o.destino);
    if (r.fichero() == nullptr) return falla_al_grabar(p.o.destino);
    if (!escribe(r.fichero())) throw std::bad_alloc();
    if (!r.cierra()) return falla_al_grabar(p.o.destino);
    std::printf("%s: %s %s\n", p.o.obra.c_str(), di(mensaje::dibujado).c_str(), p.o.destino.c_str());
    return 0;
}
// A picture of what `dibuja` draws, framed by its limits.
int graba_imagen(const pedido &p, const extension &caja, const std::function<void(lienzo &)> &dibuja) {
    const hoja h = hoja_para(caja, p.t, static_cast<uint32_t>(p.o.fondo.value_or(0)));
    return graba(p, [&](vnfichero *f) {
        const dueno_lienzo l = p.clase->abre(h, f);
        {
            std::optional<encuadre> e;
            if (!p.clase->en_metros) e.emplace(l->salida(), h, caja, p.t);
            dibuja(*l);
        }
        return l->acaba();
    });
}

int dibuja_obra(const std::vector<std::string> &args) {
    pedido p;
    if (const int e = prepara(args, nullptr, p); e != 0) return e;
    const size_t cuantas = cuantas_se_dibujan(p.leida.p);
    marcha avisa(p.o.destino, 2 * cuantas);
    const extension caja = limites_de(p.leida.p, std::ref(avisa));
    if (!caja.hay) return falla(p.o.obra, di(mensaje::nada_que_dibujar));
    return graba_imagen(p, caja, [&](lienzo &l) {
        dibuja(p.leida.p, l.salida(), [&](size_t hechas) {
            avisa(cuantas + hechas);
            l.vuelca();
        });
    });
}

int malla_de_obra(const std::vector<std::string> &args) {
    constexpr double ALTO = 3;
    pedido p;
    if (const int e = prepara(args, "obj", p); e != 0) return e;
    const prismas m(p.leida.p, p.o.alto.value_or(ALTO));
    if (m.vacio()) return falla(p.o.obra, di(mensaje::sin_contornos));
    if (p.clase == nullptr)
        return graba(p, [&](vnfichero *f) {
            m.escribe_obj(f);
            return true;
        });
    return graba_imagen(p, m.limites_en_axonometria(), [&](lienzo &l) { m.dibuja_en_axonometria(l); });
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
    if (args[1] == "dibuja") return dibuja_obra(args);
    if (args[1] == "malla") return malla_de_obra(args);
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
