#define VN_MODULO "error_interno (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/error_interno.h"
#include "foundation/platform/consola.h"
#include "foundation/suelo/contexto.h"
#include "foundation/suelo/contexto_priv.h"
#include "foundation/suelo/error_interno_int.h"
#include "foundation/suelo/par_atomico_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/suelo/utf_int.h"
#include <atomic>
#include <charconv>
#include <cstring>
#include <string_view>

namespace {

constinit vn::par_atomico<vnreceptor_informes> el_receptor;
std::atomic<uint64_t> numero_de_informes{0};
thread_local vn::trampa *trampa_interior = nullptr;
// True while this thread runs the receiver.
thread_local bool informando = false;

// Appends to a fixed line; what does not fit is cut at a character's boundary.
class linea_fija {
  public:
    // Two bytes are set aside for the end of the line and the zero.
    linea_fija(char *texto, size_t maximo) : texto_(texto), maximo_(maximo - 2) {}

    void pon(const char *s) {
        // ANSI texts of reports are ASCII but for details; bytes above 127 go through as Latin-1.
        for (; s != nullptr && *s != '\0'; ++s) pon_punto_de_codigo(static_cast<unsigned char>(*s));
    }
    void pon_u(const vnwchar *s) {
        if (s == nullptr) return;
        const std::basic_string_view<vnwchar> v(s);
        for (size_t i = 0; i < v.size();) {
            // Half of a surrogate pair has no form in UTF-8.
            const uint32_t c = vn::lee_utf16(v, i);
            pon_punto_de_codigo(vn::es_alto(c) || vn::es_bajo(c) ? vn::REEMPLAZO : c);
        }
    }
    template <class T> void pon_numero(T n) {
        char cifras[32];
        *std::to_chars(cifras, cifras + sizeof cifras - 1, n).ptr = '\0';
        pon(cifras);
    }
    size_t termina() {
        texto_[n_++] = '\n';
        texto_[n_] = '\0';
        return n_;
    }

  private:
    void pon_punto_de_codigo(uint32_t c) {
        char u[4];
        // A report is one line, so control characters become blanks.
        const size_t k = vn::escribe_utf8(c < 0x20 ? ' ' : c, u);
        if (n_ + k > maximo_) return;
        std::memcpy(texto_ + n_, u, k);
        n_ += k;
    }

    char *texto_;
    size_t maximo_;
    size_t n_ = 0;
};

void entrega_al_receptor(const vninforme &informe) {
    // The mark is taken off by a destructor: a receiver that throws must not silence its thread.
    struct turno {
        turno() { informando = true; }
        ~turno() { informando = false; }
    };
    const turno este;
    if (const auto receptor = el_receptor.dame(); receptor.funcion != nullptr) {
        receptor.funcion(&informe, receptor.datos);
        return;
    }
    char linea[vn::MAXIMO_LINEA_INFORME];
    vn::plat::escribe_error(linea, vn::linea_de_informe(informe, linea, sizeof linea));
}

} // namespace

namespace vn::inline suelo {

trampa *&trampa_abierta() { return trampa_interior; }

size_t linea_de_informe(const vninforme &informe, char *linea, size_t maximo) {
    linea_fija l(linea, maximo);
    l.pon(informe.modulo != nullptr ? informe.modulo : "?");
    l.pon(", ");
    l.pon_numero(informe.linea);
    l.pon(": ");
    // The failed expression in the width that it has; a selection without such a case has none.
    if (informe.expresion_u != nullptr) l.pon_u(informe.expresion_u);
    else l.pon(informe.expresion != nullptr ? informe.expresion : "default");
    if (informe.detalle_u != nullptr) {
        l.pon(": ");
        l.pon_u(informe.detalle_u);
    } else if (informe.detalle != nullptr) {
        l.pon(": ");
        l.pon(informe.detalle);
    }
    if (informe.punto != nullptr) {
        l.pon(": (");
        l.pon_numero(informe.punto->x);
        l.pon(", ");
        l.pon_numero(informe.punto->y);
        l.pon(")");
    }
    // What the thread was about, if the host has said so.
    if (vn::nivel_de_contexto() > 0) {
        l.pon(" [");
        l.pon_u(contexto_actual_u());
        l.pon("]");
    }
    return l.termina();
}

void escribe_linea_de_error(const vnwchar *texto) {
    char linea[4096];
    linea_fija l(linea, sizeof linea);
    l.pon_u(texto);
    plat::escribe_error(linea, l.termina());
}

void entrega(const vninforme &informe) {
    // The error of the system survives a report: the caller may still ask for it.
    const plat::guarda_error guarda;
    numero_de_informes.fetch_add(1, std::memory_order_relaxed);
    if (trampa *t = trampa_interior; t != nullptr) {
        // A trap keeps the first report: the others are mostly its consequences.
        if (!t->marcada) linea_de_informe(informe, t->linea, sizeof t->linea);
        t->marcada = true;
        return;
    }
    // A receiver that fails a check of its own must not report for ever.
    if (!informando) entrega_al_receptor(informe);
}

} // namespace vn::suelo

void error_interno(const char *expresion, const char *modulo, uint32_t linea, uint16_t clase) {
    vn::entrega({.expresion = expresion, .modulo = modulo, .linea = linea, .clase = clase});
}

void error_interno_default_error(const char *expresion, const char *detalle, const char *modulo, uint32_t linea,
                                 uint16_t clase) {
    vn::entrega({.expresion = expresion, .detalle = detalle, .modulo = modulo, .linea = linea, .clase = clase});
}

void error_interno_msg(const char *expresion, const char *modulo, uint32_t linea, const char *detalle, uint16_t clase) {
    vn::entrega({.expresion = expresion, .detalle = detalle, .modulo = modulo, .linea = linea, .clase = clase});
}

void error_interno_msg_u(const vnwchar *expresion, const char *modulo, uint32_t linea, const vnwchar *detalle,
                         uint16_t clase) {
    vn::entrega({.expresion_u = expresion, .detalle_u = detalle, .modulo = modulo, .linea = linea, .clase = clase});
}

void error_interno_liberando_mensaje_u(const vnwchar *expresion, const char *modulo, uint32_t linea, vnwchar *detalle,
                                       uint16_t clase) {
    // The detail is owned here, so that it is freed also where the receiver throws.
    const vn::propio<vnwchar> suyo(detalle);
    error_interno_msg_u(expresion, modulo, linea, detalle, clase);
}

void error_interno_punto_2D(const char *expresion, const char *modulo, uint32_t linea, const Punto2D *punto) {
    vn::entrega({.expresion = expresion, .punto = punto, .modulo = modulo, .linea = linea});
}

void error_interno_instala_receptor(vnreceptor_informes receptor, void *datos) { el_receptor.pon(receptor, datos); }

uint64_t error_interno_numero_de_informes(void) { return numero_de_informes.load(std::memory_order_relaxed); }
