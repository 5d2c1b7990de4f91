// The fixture of every test: reports and warnings are recorded; a test fails when it ends with one that it did not
// expect, or with a block of the tracked heap that it did not free. The shared settings of the process are put back for
// each: Spanish, its code page, the user's region and directory, the system's file operations.
#pragma once

#include "foundation/sistema/avisos.h"
#include "foundation/suelo/error_interno.h"
#include "foundation/suelo/trapable.h"
#include "foundation/suelo/vornspy.h"
#include <cstdint>
#include <functional>
#include <gtest/gtest.h>
#include <limits>
#include <mutex>
#include <string>
#include <string_view>
#include <thread>
#include <vector>

namespace vn {

// A report as the fixture keeps it; wide texts in UTF-8.
struct informe_anotado {
    std::string expresion, detalle, modulo;
    uint32_t linea;
    uint16_t clase;
};

class Prueba : public ::testing::Test {
  public:
    // The reports since the last call, oldest first. What is taken is no longer unexpected.
    static std::vector<informe_anotado> toma_informes();
    // The user's and developer's texts since the last call, UTF-8.
    static std::vector<std::string> toma_avisos();
    // What the next questions are answered (FALSO until set).
    static void responde(vnbool respuesta);
    // A new empty directory of this test's, UTF-8, no separator at the end; removed with all in it when the test ends.
    static const std::string &directorio();

  protected:
    void SetUp() override;
    void TearDown() override;

  private:
    uint64_t bloques_al_empezar_ = 0;
};

constexpr double NAN_ = std::numeric_limits<double>::quiet_NaN(), INF = std::numeric_limits<double>::infinity();

// Runs when it goes: what puts back what a test has changed.
template <class F> class [[nodiscard]] al_final {
  public:
    explicit al_final(F f) : f_(std::move(f)) {}
    ~al_final() { f_(); }
    al_final(const al_final &) = delete;
    al_final &operator=(const al_final &) = delete;

  private:
    F f_;
};

// Runs f(0) to f(n - 1), each in a thread of its own, to their ends.
template <class F> void en_hebras(int n, F f) {
    std::vector<std::thread> hebras;
    for (int i = 0; i < n; ++i) hebras.emplace_back(f, i);
    for (std::thread &h : hebras) h.join();
}

std::string utf8_de(const vnwchar *texto);
std::u16string u16_de(const vnwchar *texto);
// Wide text of a UTF-8 one; .c_str() is a vnwchar text.
std::basic_string<vnwchar> ancho(std::string_view utf8);
// A text that is taken and freed, UTF-8; "(null)" for null.
std::string toma(char *texto);
std::string toma(vnwchar *texto);
// The largest block of the tracked heap that is asked for while it lives.
class mayor_bloque {
  public:
    mayor_bloque();
    ~mayor_bloque();
    mayor_bloque(const mayor_bloque &) = delete;
    mayor_bloque &operator=(const mayor_bloque &) = delete;
    size_t operator()() const { return mayor_; }

  private:
    size_t mayor_ = 0;
};
// Runs it inside a trap with so many allocations allowed, all by default; whether it came to its end without a report.
bool atrapado(const std::function<void()> &f, int reservas = INT32_MAX);
// Gives the process a locale of the C library with a decimal comma, if it has one; whether it had.
bool pon_locale_con_coma();
// Whole content of a file, given by its UTF-8 name; fails the test if it cannot be read.
std::string lee_fichero(const std::string &nombre);
// Name of a file of the outside data. A test that uses one is registered only where its folder is.
std::string dato(const std::string &nombre);
// Name of a file of tests/datos/; filas.h reads its tables.
std::string dato_propio(const std::string &nombre);
void graba_fichero(const std::string &nombre, std::string_view contenido);
bool existe(const std::string &nombre);
// Waits half a minute at most for another program to make a file; whether it is there.
bool espera_fichero(const std::string &nombre);
// Checks that exactly the reports named have been made since the last check, in order.
void espera_informes(std::initializer_list<std::string_view> textos, const char *fichero, int linea);
// Runs, and checks that it made the one report named, or none for null.
template <class F> void con_informe(const char *informe, F &&funcion) {
    funcion();
    if (informe != nullptr) espera_informes({informe}, __FILE__, __LINE__);
    else espera_informes({}, __FILE__, __LINE__);
}

} // namespace vn

// PRUEBA(module, name): a test of the fixture above. The module is the test's suite and its ctest entry.
#define PRUEBA(modulo, nombre) GTEST_TEST_(modulo, nombre, ::vn::Prueba, ::testing::internal::GetTypeId<::vn::Prueba>())

// ESPERA_INFORME("text", expression): the expression makes exactly this one report; its value is the macro's.
#define ESPERA_INFORME(texto, ...)                                                                                     \
    [&]() -> decltype(auto) {                                                                                          \
        struct al_salir {                                                                                              \
            ~al_salir() { ::vn::espera_informes({texto}, __FILE__, __LINE__); }                                        \
        } comprueba_al_salir;                                                                                          \
        return __VA_ARGS__;                                                                                            \
    }()
