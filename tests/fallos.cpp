#include "fallos.h"
#include "foundation/ficheros/vornfile.h"
#include "plataforma/proceso.h"
#include "prueba.h"
#include <algorithm>
#include <filesystem>
#include <initializer_list>
#include <map>
#include <optional>
#include <set>
#include <thread>
#include <utility>

namespace fs = std::filesystem;

namespace vn {
namespace {

plan_de_fallos el_plan;
std::vector<operacion> las_hechas;
std::vector<std::string> los_riesgos;
bool nombres_sin_volcar;
std::map<vnid_fichero, std::string> abiertos;
std::set<vnid_fichero> escritos;
bool colado;                        // what is done now is somebody else's
bool cierre_perdido;                // the close of what was written failed
std::map<std::string, bool> sucios; // by name: written and not flushed

const vnoperaciones_fichero &sistema() { return *operaciones_fichero_del_sistema(); }

bool toma_sitio(operacion o) {
    return o == operacion::abre || o == operacion::escribe || o == operacion::vuelca || o == operacion::enlaza ||
           o == operacion::trunca;
}

// The operation under the plan; `a_medias` does half of it.
template <typename F, typename G> vnerror_fichero intenta(operacion o, F de_verdad, G a_medias) {
    if (colado) return de_verdad();
    const size_t k = las_hechas.size();
    las_hechas.push_back(o);
    const auto hace = [&] { return el_plan.sin_enlaces && o == operacion::enlaza ? VN_FICH_NO_ADMITIDO : de_verdad(); };
    if (el_plan.que == fallo::sin_espacio_siempre && k >= el_plan.donde && toma_sitio(o)) return VN_FICH_SIN_ESPACIO;
    if (k != el_plan.donde) return hace();
    switch (el_plan.que) {
    case fallo::muere_antes: muere();
    case fallo::muere_a_medias: a_medias(); muere();
    case fallo::muere_despues: hace(); muere();
    case fallo::sin_espacio_una_vez: a_medias(); return VN_FICH_SIN_ESPACIO;
    case fallo::error_una_vez:
        if (o == operacion::cierra) hace();
        return VN_FICH_ES;
    case fallo::escribe_poco: return a_medias();
    case fallo::interrumpe: return VN_FICH_INTERRUMPIDA;
    case fallo::compartido: return VN_FICH_COMPARTIDO;
    case fallo::sin_permiso: return VN_FICH_SIN_PERMISO;
    case fallo::se_cuela:
        colado = true;
        std::thread(el_plan.otro).join(); // in none of this one's traps
        colado = false;
        break;
    case fallo::sin_espacio_siempre:
    case fallo::ninguno: break;
    }
    return hace();
}

// One entry of the table: counts, fails, or calls the system's.
template <operacion O, auto Miembro> struct envuelta;
template <operacion O, typename... A, vnerror_fichero (*vnoperaciones_fichero::*Miembro)(A...)>
struct envuelta<O, Miembro> {
    static vnerror_fichero f(A... a) {
        const auto hace = [&] { return (sistema().*Miembro)(a...); };
        return intenta(O, hace, [] { return VN_FICH_BIEN; });
    }
};
#define ENVUELTA(nombre) (envuelta<operacion::nombre, &vnoperaciones_fichero::nombre>::f)

// The entries that do more than count.
namespace entrada {

vnerror_fichero abre(const vnwchar *nombre, uint32_t como, vnid_fichero *id) {
    const vnerror_fichero e = ENVUELTA(abre)(nombre, como, id);
    if (e != VN_FICH_BIEN) return e;
    abiertos[*id] = utf8_de(nombre);
    escritos.erase(*id);
    if ((como & VN_ABRE_TRUNCA) != 0) sucios[utf8_de(nombre)] = true;
    return e;
}

template <operacion O, auto MIEMBRO, class D>
vnerror_fichero transfiere(vnid_fichero id, int64_t p, D *d, size_t n, size_t *k) {
    return intenta(
        O, [&] { return (sistema().*MIEMBRO)(id, p, d, n, k); },
        [&] { return (sistema().*MIEMBRO)(id, p, d, n / 2 + n % 2, k); });
}
vnerror_fichero escribe(vnid_fichero id, int64_t p, const void *d, size_t n, size_t *k) {
    sucios[abiertos[id]] = true;
    escritos.insert(id);
    return transfiere<operacion::escribe, &vnoperaciones_fichero::escribe>(id, p, d, n, k);
}

vnerror_fichero cierra(vnid_fichero id) {
    const vnerror_fichero e = ENVUELTA(cierra)(id);
    if (e != VN_FICH_BIEN && escritos.count(id) != 0) cierre_perdido = true;
    return e;
}

// No test can see whether the disk was reached, so the real flush, which is slow, is left out.
vnerror_fichero no_hace_nada() { return VN_FICH_BIEN; }

vnerror_fichero vuelca(vnid_fichero id) {
    const vnerror_fichero e = intenta(operacion::vuelca, no_hace_nada, no_hace_nada);
    if (e == VN_FICH_BIEN) sucios[abiertos[id]] = false;
    return e;
}

vnerror_fichero enlaza(const vnwchar *de, const vnwchar *a) {
    const vnerror_fichero e = ENVUELTA(enlaza)(de, a);
    if (e == VN_FICH_BIEN) sucios[utf8_de(a)] = sucios[utf8_de(de)];
    return e;
}

vnerror_fichero renombrado(vnerror_fichero e, const vnwchar *de, const vnwchar *a) {
    if (e != VN_FICH_BIEN) return e;
    if (sucios[utf8_de(de)]) los_riesgos.push_back(utf8_de(de) + " was renamed before it was flushed");
    sucios[utf8_de(a)] = sucios[utf8_de(de)];
    nombres_sin_volcar = true;
    return e;
}

vnerror_fichero renombra(const vnwchar *de, const vnwchar *a) { return renombrado(ENVUELTA(renombra)(de, a), de, a); }
vnerror_fichero renombra_abierto(vnid_fichero id, const vnwchar *de, const vnwchar *a) {
    return renombrado(ENVUELTA(renombra_abierto)(id, de, a), de, a);
}

vnerror_fichero vuelca_directorio(const vnwchar *) {
    const vnerror_fichero e = intenta(operacion::vuelca_directorio, no_hace_nada, no_hace_nada);
    if (e == VN_FICH_BIEN) nombres_sin_volcar = false;
    return e;
}

} // namespace entrada

// clang-format off
const vnoperaciones_fichero TABLA = {
    .abre = entrada::abre, .lee = entrada::transfiere<operacion::lee, &vnoperaciones_fichero::lee>,
    .escribe = entrada::escribe, .vuelca = entrada::vuelca, .trunca = ENVUELTA(trunca),
    .estado_abierto = ENVUELTA(estado_abierto), .bloquea = ENVUELTA(bloquea), .desbloquea = ENVUELTA(desbloquea),
    .cierra = entrada::cierra, .estado = ENVUELTA(estado), .resuelve = ENVUELTA(resuelve), .enlaza = entrada::enlaza,
    .renombra = entrada::renombra, .renombra_abierto = entrada::renombra_abierto, .es_su_nombre = ENVUELTA(es_su_nombre),
    .borra = ENVUELTA(borra), .retira = ENVUELTA(retira), .copia_permisos = ENVUELTA(copia_permisos),
    .vuelca_directorio = entrada::vuelca_directorio, .espera = [](uint32_t) {},
};
// clang-format on

std::map<std::string, funcion_guarda> &guardados() {
    static std::map<std::string, funcion_guarda> m;
    return m;
}

// A failure, the operations that it can befall, and whether the save must succeed all the same.
using enum operacion;
const struct fila_de_fallos {
    fallo que;
    std::vector<operacion> cuales;
    bool no_importa;
} FALLOS[] = {
    {fallo::sin_espacio_una_vez, {escribe, enlaza}, false},
    {fallo::sin_espacio_siempre, {abre, escribe, vuelca, enlaza}, false},
    {fallo::error_una_vez,
     {abre, lee, escribe, vuelca, trunca, estado_abierto, cierra, estado, resuelve, enlaza, renombra, renombra_abierto,
      es_su_nombre, borra, retira, copia_permisos, vuelca_directorio},
     false},
    {fallo::sin_permiso, {abre, renombra, renombra_abierto}, false},
    {fallo::sin_permiso, {enlaza}, true},
    {fallo::escribe_poco, {escribe, lee}, true},
    {fallo::interrumpe, {abre, lee, escribe, renombra, renombra_abierto, vuelca_directorio}, true},
    {fallo::compartido, {abre, renombra, renombra_abierto, retira}, true},
};
const std::vector<operacion> MORTALES = {abre,     escribe,          vuelca, trunca, cierra,         enlaza,
                                         renombra, renombra_abierto, borra,  retira, copia_permisos, vuelca_directorio};

bool esta(const std::vector<operacion> &v, operacion o) { return std::find(v.begin(), v.end(), o) != v.end(); }

class conductor {
  public:
    conductor(const char *guardado, const manera_de_guardar &manera)
        : nombre_(guardado), guarda_(guardados().at(guardado)), manera_(manera) {
        fs::create_directories(carpeta());
        for (int edicion = 0; edicion < 4; ++edicion) {
            limpia();
            EXPECT_TRUE(guarda_(fichero(), edicion));
            bytes_[edicion] = lee_fichero(fichero());
            for (int otra = 0; otra < edicion; ++otra) EXPECT_FALSE(bytes_[otra] == bytes_[edicion]);
        }
    }

    void conduce() {
        for (const bool habia : {false, true})
            for (const bool sin_enlaces : {false, true}) {
                // Without an old file there is nothing to link.
                if (sin_enlaces && (!habia || !manera_.con_copia)) continue;
                habia_ = habia;
                plan_ = {fallo::ninguno, SIZE_MAX, sin_enlaces, {}};
                conduce_una();
            }
    }

  private:
    fs::path carpeta() const { return fs::path(u8(Prueba::directorio())) / manera_.carpeta; }
    static std::u8string u8(const std::string &s) { return {s.begin(), s.end()}; }
    std::string fichero() const { return Prueba::directorio() + "/" + manera_.carpeta + "/" + manera_.fichero; }
    std::string copia() const { return fichero() + ".bak"; }
    void limpia() const {
        for (const auto &e : fs::directory_iterator(carpeta())) fs::remove(e);
    }
    // The old file is edition 1, its safety copy edition 0.
    void prepara() const {
        limpia();
        if (!habia_) return;
        graba_fichero(fichero(), bytes_[1]);
        if (manera_.con_copia) graba_fichero(copia(), bytes_[0]);
    }

    void conduce_una() {
        const std::vector<operacion> ops = en_este_proceso();
        size_t ultima = 0;
        for (size_t k = 0; k < ops.size(); ++k) {
            for (const fila_de_fallos &fila : FALLOS)
                if (esta(fila.cuales, ops[k])) falla(fila.que, k, ops[k], fila.no_importa);
            for (const bool acaba : {false, true}) se_cuela_otro(k, ops[k], acaba);
            if (!manera_.muere || !esta(MORTALES, ops[k])) continue;
            mata(fallo::muere_antes, k, ops[k]);
            if (ops[k] == escribe) mata(fallo::muere_a_medias, k, ops[k]);
            ultima = k;
        }
        if (manera_.muere) mata(fallo::muere_despues, ultima, ops[ultima]);
    }

    // Plans it, and puts the files there that it befalls; what the case is.
    std::string planea(fallo que, size_t k, operacion o) {
        plan_.que = que;
        plan_.donde = k;
        prepara();
        return "failure " + std::to_string(static_cast<int>(que)) + " at operation " + std::to_string(k) + " (kind " +
               std::to_string(static_cast<int>(o)) + "), " + (habia_ ? "an old file" : "no file") +
               (plan_.sin_enlaces ? ", no links" : "");
    }

    // The save without a failure: what it does, and that it does it in an order that a power failure cannot harm.
    std::vector<operacion> en_este_proceso() {
        prepara();
        std::vector<operacion> ops;
        {
            const con_fallos puestos(plan_);
            EXPECT_TRUE(guarda_(fichero(), 2));
            EXPECT_EQ(puestos.riesgos(), std::vector<std::string>{});
            EXPECT_FALSE(puestos.directorio_sin_volcar());
            ops = puestos.hechas();
        }
        juzga(true);
        return ops;
    }

    void falla(fallo que, size_t k, operacion o, bool no_importa) {
        SCOPED_TRACE(planea(que, k, o));
        bool dicho = false;
        f_lc_fopen_un_solo_intento_u(VNU(""), VNU("rb"), nullptr, 0); // its reason is not one of those below
        {
            const con_fallos puestos(plan_);
            dicho = guarda_(fichero(), 2);
            EXPECT_EQ(puestos.riesgos(), std::vector<std::string>{});
            EXPECT_FALSE(manera_.dice && dicho && (puestos.directorio_sin_volcar() || cierre_perdido));
        }
        const bool sin_asegurar = !dicho && lc_ultimo_error(nullptr) == VN_FICH_SIN_ASEGURAR;
        const size_t informes = Prueba::toma_informes().size();
        EXPECT_TRUE(dicho || !no_importa);
        EXPECT_EQ(informes, dicho || !manera_.informa ? 0u : 1u);
        // What could not be removed, or looked at to be removed, waits for the next save.
        if (!dicho && o != borra && o != retira && o != es_su_nombre) nada_de_mas();
        // Only where the new file stands but may not last is it there after a no.
        juzga(manera_.dice ? std::optional(dicho || sin_asegurar) : std::nullopt);
    }

    void mata(fallo que, size_t k, operacion o) {
        SCOPED_TRACE(planea(que, k, o));
        proceso hijo("guarda_con_fallos", {nombre_, fichero(), std::to_string(static_cast<int>(que)), std::to_string(k),
                                           plan_.sin_enlaces ? "1" : "0"});
        EXPECT_EQ(hijo.espera(60000), proceso::MUERTO);
        juzga(std::nullopt);
    }

    // What is on the disk, after a save that told that the new file is there, or not, or died.
    void juzga(std::optional<bool> dicho) {
        const auto contenido = lo_que_hay(fichero()), guardada = lo_que_hay(copia());
        const bool nuevo = contenido == bytes_[2];
        const bool viejo = habia_ ? contenido == bytes_[1] : !contenido;
        EXPECT_TRUE(nuevo || viejo) << "neither the old file nor the new one: " << contenido.value_or("").size()
                                    << " bytes";
        EXPECT_TRUE(!dicho || (*dicho ? nuevo : viejo)) << "it told " << dicho.value_or(false);
        EXPECT_EQ(guardada.has_value(), habia_ && manera_.con_copia);
        EXPECT_TRUE(!habia_ || !guardada || guardada == bytes_[1] || (!nuevo && guardada == bytes_[0]))
            << "the safety copy is neither";
        // The next save puts everything in order.
        const con_fallos ninguno({});
        EXPECT_TRUE(guarda_(fichero(), 3));
        EXPECT_TRUE(lee_fichero(fichero()) == bytes_[3]);
        EXPECT_TRUE(lo_que_hay(copia()) == (manera_.con_copia ? contenido : std::nullopt));
        nada_de_mas();
    }
    static std::optional<std::string> lo_que_hay(const std::string &nombre) {
        return existe(nombre) ? std::optional(lee_fichero(nombre)) : std::nullopt;
    }

    void nada_de_mas() const {
        for (const auto &e : fs::directory_iterator(carpeta())) {
            const auto u = e.path().filename().u8string();
            const std::string resto(u.begin(), u.end());
            EXPECT_TRUE(resto == manera_.fichero || resto == manera_.fichero + std::string(".bak"))
                << resto << " was left";
        }
    }

    // The other saver: a second stream on the file.
    struct otro_saver {
        vnfichero *f = nullptr;
        std::basic_string<vnwchar> nombre;
        void abre() { f = vornfile_abrir_fichero_escritura_se_hace_definitivo_al_cerrar_u(nombre.c_str()); }
        bool acaba(const std::string &s) {
            if (f == nullptr) return false;
            f_lc_fwrite(s.data(), 1, s.size(), f, nullptr, 0);
            return vornfile_cerrar_fichero_escritura_se_hace_definitivo_al_cerrar_u(std::exchange(f, nullptr),
                                                                                    nombre.c_str()) == CIERTO;
        }
    };

    void se_cuela_otro(size_t donde, operacion o, bool acaba) {
        SCOPED_TRACE(planea(fallo::se_cuela, donde, o) +
                     (acaba ? ", another saver to its end" : ", another that stays"));
        otro_saver otro{nullptr, ancho(fichero())};
        bool suyo = false, mio = false;
        plan_.otro = [&] {
            otro.abre();
            if (acaba) suyo = otro.acaba(bytes_[3]);
        };
        {
            const con_fallos puestos(plan_);
            mio = guarda_(fichero(), 2);
            EXPECT_TRUE(!mio || suyo || lee_fichero(fichero()) == bytes_[2]);
            if (!acaba) suyo = otro.acaba(bytes_[3]);
        }
        const auto informes = Prueba::toma_informes();
        EXPECT_EQ(informes.empty(), (mio || !manera_.informa) && suyo);
        const auto contenido = lo_que_hay(fichero()), guardada = lo_que_hay(copia());
        EXPECT_TRUE((mio && contenido == bytes_[2]) || (suyo && contenido == bytes_[3]) ||
                    (!mio && !suyo && (habia_ ? contenido == bytes_[1] : contenido.value_or("").empty())))
            << "told " << mio << " and " << suyo << ", and there are " << contenido.value_or("").size() << " bytes";
        EXPECT_TRUE(!guardada || std::count(bytes_, bytes_ + 4, *guardada) == 1) << "the safety copy is no edition";
        nada_de_mas();
    }

    std::string nombre_;
    funcion_guarda guarda_;
    manera_de_guardar manera_;
    std::string bytes_[4];
    bool habia_ = false;
    plan_de_fallos plan_;
};

} // namespace

con_fallos::con_fallos(const plan_de_fallos &plan) {
    el_plan = plan;
    las_hechas.clear();
    los_riesgos.clear();
    abiertos.clear();
    sucios.clear();
    escritos.clear();
    nombres_sin_volcar = cierre_perdido = false;
    operaciones_fichero_instala(&TABLA);
}

con_fallos::~con_fallos() { operaciones_fichero_instala(nullptr); }
const std::vector<operacion> &con_fallos::hechas() const { return las_hechas; }
const std::vector<std::string> &con_fallos::riesgos() const { return los_riesgos; }
bool con_fallos::directorio_sin_volcar() const { return nombres_sin_volcar; }

registra_guardado::registra_guardado(const char *nombre, funcion_guarda funcion) { guardados()[nombre] = funcion; }

HIJO(guarda_con_fallos) {
    const con_fallos puestos(
        {static_cast<fallo>(std::stoi(args.at(2))), std::stoul(args.at(3)), args.at(4) == "1", {}});
    return guardados().at(args.at(0))(args.at(1), 2) ? 0 : 1;
}

void comprueba_guardado(const char *guardado, const manera_de_guardar &manera) {
    conductor(guardado, manera).conduce();
}

} // namespace vn
