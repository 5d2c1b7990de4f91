// The good and the bad values of each kind of parameter.
#include "barrido.h"
#include "foundation/suelo/tipos.h"
#include <cmath>
#include <deque>
#include <map>

namespace barrido {
namespace {

// Names and texts live as long as the program.
const char *guarda(std::string s) {
    static std::deque<std::string> todos;
    return todos.emplace_back(std::move(s)).c_str();
}

const vnwchar *guarda_u(const std::u16string &s) {
    static std::deque<std::basic_string<vnwchar>> todos;
    return todos.emplace_back(s.begin(), s.end()).c_str();
}

void pon_puntero(parametro &p, const char *nombre, calidad c, const void *q) {
    p.valores.push_back({nombre, c, clase_valor::puntero, {.p = const_cast<void *>(q)}});
}

void pon_real(parametro &p, const char *nombre, calidad c, double d) {
    p.valores.push_back({nombre, c, clase_valor::real, {.d = d}});
}

void pon_nulo(parametro &p, unsigned opciones) {
    pon_puntero(p, "null", opciones & OPCIONAL ? calidad::buena : calidad::mala, nullptr);
}

void pon_texto(parametro &p, calidad c, const std::string &s) {
    pon_puntero(p, guarda('"' + s.substr(0, 12) + '"'), c, guarda(s));
}

void pon_texto(parametro &p, calidad c, const std::u16string &s) {
    std::string corto;
    for (const char16_t x : s.substr(0, 12)) corto += x < 128 ? static_cast<char>(x) : '?';
    pon_puntero(p, guarda("u\"" + corto + '"'), c, guarda_u(s));
}

constexpr size_t LARGO = 5000;

// Texts of one width: the first is good, the others and a long one are for the operation to judge.
template <class T> parametro de_textos(const char *nombre, unsigned opciones, std::initializer_list<T> valores) {
    parametro p{nombre};
    for (const T &s : valores) pon_texto(p, &s == valores.begin() ? calidad::buena : calidad::libre, s);
    pon_texto(p, calidad::libre, T(LARGO, 'x'));
    pon_nulo(p, opciones);
    return p;
}

} // namespace

void pon_entero(parametro &p, calidad c, int64_t i, bool enorme) {
    for (const valor &v : p.valores)
        if (v.d.i == i) return;
    static std::map<int64_t, const char *> nombres;
    const char *&nombre = nombres[i];
    if (nombre == nullptr) nombre = guarda(std::to_string(i));
    p.valores.push_back({nombre, c, clase_valor::entero, {.i = i}, nullptr, enorme});
}

parametro enteros(const char *nombre, std::vector<int64_t> valores) {
    parametro p{nombre};
    for (const int64_t i : valores) pon_entero(p, calidad::libre, i, false);
    return p;
}

parametro logico(const char *nombre) {
    parametro p{nombre};
    for (const int64_t i : {1, 0}) pon_entero(p, calidad::buena, i, false);
    for (const int64_t i : {2, 65535}) pon_entero(p, calidad::mala, i, false);
    return p;
}

parametro linea(const char *nombre) { return enteros(nombre, {1, 0}); }

parametro modulo(const char *nombre) {
    parametro p{nombre};
    pon_texto(p, calidad::buena, "barrido");
    pon_puntero(p, "null", calidad::buena, nullptr);
    return p;
}

parametro real_libre(const char *nombre) { return real(nombre, 1); }

parametro real(const char *nombre, double primero) {
    parametro p{nombre};
    using lim = std::numeric_limits<double>;
    if (primero != 0 && primero != 1) pon_real(p, "good", calidad::libre, primero);
    pon_real(p, "1", calidad::libre, 1);
    pon_real(p, "0", calidad::libre, 0);
    pon_real(p, "-1.5", calidad::libre, -1.5);
    pon_real(p, "NaN", calidad::libre, lim::quiet_NaN());
    pon_real(p, "inf", calidad::libre, lim::infinity());
    pon_real(p, "-inf", calidad::libre, -lim::infinity());
    pon_real(p, "max", calidad::libre, lim::max());
    pon_real(p, "denormal", calidad::libre, lim::denorm_min());
    if (primero == 0) std::swap(p.valores[0], p.valores[1]);
    return p;
}

parametro real_en(const char *nombre, double a, double b) {
    parametro p{nombre};
    const double infinito = std::numeric_limits<double>::infinity();
    pon_real(p, "in range", calidad::buena, a <= 1 && 1 <= b ? 1 : a);
    pon_real(p, "lower end", calidad::buena, a);
    pon_real(p, "upper end", calidad::buena, b);
    pon_real(p, "below", calidad::mala, a - std::fabs(a) * 1e-3 - 1);
    pon_real(p, "above", calidad::mala, b + std::fabs(b) * 1e-3 + 1);
    pon_real(p, "inf", calidad::mala, infinito);
    pon_real(p, "NaN", calidad::mala, std::numeric_limits<double>::quiet_NaN());
    return p;
}

parametro enumerado(const char *nombre, std::vector<int64_t> buenos) {
    parametro p{nombre};
    int64_t maximo = 0;
    for (const int64_t i : buenos) {
        pon_entero(p, calidad::buena, i, false);
        maximo = std::max(maximo, i);
    }
    // What the enumeration's bits can still hold: an outside value that C++ may load.
    if (((maximo + 1) & maximo) != 0) pon_entero(p, calidad::libre, maximo + 1, false);
    return p;
}

parametro texto(const char *nombre, unsigned opciones) {
    return de_textos<std::string>(nombre, opciones, {"a", "", "12.5 %s%n", "\xF1\x80\xE9 \\n\n"});
}

// A pair, and half of one, among them.
parametro texto_u(const char *nombre, unsigned opciones) {
    return de_textos<std::u16string>(nombre, opciones, {u"a", u"", u"12.5 %s%n", u"\u00F1\u20AC\U0001F3D7 \xD800 \n"});
}

parametro nombre_fichero(const char *nombre, unsigned opciones) {
    return de_textos<std::string>(nombre, opciones,
                                  {"entrada.bin", "", "no_esta.txt", "proyecto.bin", "carpeta", "no\\hay/a%s\xF1.txt"});
}

parametro nombre_fichero_u(const char *nombre, unsigned opciones) {
    return de_textos<std::u16string>(
        nombre, opciones,
        {u"entrada.bin", u"", u"no_esta.txt", u"proyecto.bin", u"carpeta", u"no\\hay/a%s\U0001F3D7\xDC00.txt"});
}

parametro textos(const char *nombre, std::vector<const char *> valores) {
    parametro p{nombre};
    for (const char *s : valores) pon_texto(p, calidad::libre, s);
    pon_nulo(p, EXIGE);
    return p;
}

parametro textos_u(const char *nombre, std::vector<std::u16string> valores) {
    parametro p{nombre};
    for (const auto &s : valores) pon_texto(p, calidad::libre, s);
    pon_nulo(p, EXIGE);
    return p;
}

// Only what asks for no argument: the sweep cannot give one of each type.
parametro formato(const char *nombre) {
    parametro p = textos(nombre, {"a", "", "100 %%", "%", "\xF1%%\n"});
    return p;
}

parametro formato_u(const char *nombre) { return textos_u(nombre, {u"a", u"", u"100 %%", u"%", u"\u00F1%%\n"}); }

parametro objeto(const char *nombre, const fabrica &f, unsigned opciones) {
    parametro p{nombre};
    p.valores.push_back({"fresh", calidad::buena, clase_valor::objeto, {}, &f});
    pon_nulo(p, opciones);
    p.consume = (opciones & CONSUME) != 0;
    return p;
}

parametro tambien(parametro p, const fabrica &f) {
    p.valores.insert(p.valores.begin() + 1, {"other", calidad::buena, clase_valor::objeto, {}, &f});
    return p;
}

parametro hueco(const char *nombre, const fabrica &f, unsigned opciones) {
    parametro p{nombre};
    const valor lleno{"owner", calidad::buena, clase_valor::hueco, {.i = 1}, &f};
    const valor vacio{"owner of null",
                      opciones & (HUECO_OPCIONAL | HUECO_VACIO) ? calidad::buena : calidad::mala,
                      clase_valor::hueco,
                      {.i = 0},
                      &f};
    if (opciones & HUECO_VACIO) {
        p.valores = {vacio};
    } else {
        p.valores = {lleno};
        p.valores.push_back(vacio);
    }
    pon_nulo(p, opciones);
    p.consume = true;
    return p;
}

parametro bufer(const char *nombre, size_t tamanyo, size_t elementos, int longitud_de, unsigned opciones) {
    parametro p{nombre};
    p.valores.push_back({"room", calidad::buena, clase_valor::bufer});
    pon_nulo(p, opciones);
    p.tamanyo = tamanyo;
    p.elementos = elementos;
    p.longitud_de = longitud_de;
    p.lleno = (opciones & LLENO) != 0;
    return p;
}

parametro registro(const char *nombre, const void *bueno, size_t tamanyo, unsigned opciones) {
    parametro p{nombre};
    p.valores.push_back({"record", calidad::buena, clase_valor::copia, {.p = const_cast<void *>(bueno)}});
    pon_nulo(p, opciones);
    p.tamanyo = tamanyo;
    return p;
}

parametro llamada(const char *nombre, void (*f)(), unsigned opciones) {
    parametro p{nombre};
    p.valores.push_back({"function", calidad::buena, clase_valor::funcion, {.f = f}});
    p.valores.push_back(
        {"null", opciones & OPCIONAL ? calidad::buena : calidad::mala, clase_valor::funcion, {.f = nullptr}});
    return p;
}

parametro dato_ajeno(const char *nombre) {
    static int64_t ajeno[64];
    parametro p{nombre};
    pon_puntero(p, "datum", calidad::buena, ajeno);
    pon_puntero(p, "null", calidad::buena, nullptr);
    return p;
}

} // namespace barrido
