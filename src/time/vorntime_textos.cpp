#define VN_MODULO "vorntime (NUCLEOS.DLL)"
#include "time/vorntime_textos.h"
#include "foundation/sistema/vnstdc.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/widestr.h"
#include "time/vorntime_priv.h"
#include <algorithm>
#include <ctime>
#include <string_view>

using namespace vn;

namespace {

// ---------------------------------------------------------------- fixed forms

// A line of numbers, each with at least so many digits, and separators. Six numbers of 32 bits have room.
template <class C> class renglon {
  public:
    renglon &numero(int64_t n, int cifras) {
        // The sign takes the place of one digit.
        if (n < 0) {
            letra('-');
            n = -n;
            --cifras;
        }
        // The digits come from the last to the first.
        C escritas[20];
        int k = 0;
        do {
            escritas[k++] = static_cast<C>('0' + n % 10);
            n /= 10;
        } while (n > 0);
        for (; k < cifras; ++k) escritas[k] = '0';
        while (k > 0) letra(escritas[--k]);
        return *this;
    }
    renglon &letra(C c) {
        texto_[n_++] = c;
        return *this;
    }

    renglon &aaaa_mm_dd(const tmtime &f, C sep) {
        return numero(anyo(f), 4).letra(sep).numero(mes(f), 2).letra(sep).numero(f.tm_mday, 2);
    }
    renglon &dd_mm_aaaa(const tmtime &f, C sep) {
        return numero(f.tm_mday, 2).letra(sep).numero(mes(f), 2).letra(sep).numero(anyo(f), 4);
    }
    renglon &hh_mm_ss(const tmtime &f, C sep) {
        return letra(' ').numero(f.tm_hour, 2).letra(sep).numero(f.tm_min, 2).letra(sep).numero(f.tm_sec, 2);
    }

    // New text, after the heading and a blank if there is one.
    C *nuevo(const C *cabecera = nullptr) const {
        const size_t antes = cabecera != nullptr ? std::char_traits<C>::length(cabecera) + 1 : 0;
        const size_t copiados = antes + n_;
        if (!AFIRMA(copiados > 0)) return nullptr;
        auto *texto = static_cast<C *>(vornspy_malloc((copiados + 1) * sizeof(C)));
        // The heading and a blank, the numbers, the closing zero.
        if (antes > 0) *std::copy_n(cabecera, antes - 1, texto) = ' ';
        *std::copy_n(texto_, n_, texto + antes) = 0;
        return texto;
    }

  private:
    static int64_t anyo(const tmtime &f) { return int64_t{f.tm_year} + 1900; }
    static int64_t mes(const tmtime &f) { return int64_t{f.tm_mon} + 1; }

    C texto_[6 * 12 + 6];
    size_t n_ = 0;
};

// ---------------------------------------------------------------- the local time

const std::tm *hora_local_de(int64_t t) { return vnstdc__localtime64(&t); }

// What the two widths differ in.
template <class C> struct ancho;
template <> struct ancho<char> {
    static constexpr auto formatea = vnstdc__snprintf;
    static constexpr auto de_hora = vnstdc_strftime;
    static constexpr const char *FECHA = "%s %2d %s %I64d  %2d:%02d";
    static constexpr const char *DIA_MES = "%d/%m/%y", *MES_DIA = "%m/%d/%y", *HORA = "%I:%M %p";
    static const char *dia(int i) { return nousar_msglocal_original(DIAS[static_cast<size_t>(i)]); }
    static const char *mes(int i) { return vorntime_obtener_nombre_mes(static_cast<uint32_t>(i)); }
    static char *copia(const char *s) { return cad_copia_cadena(s); }
};
template <> struct ancho<vnwchar> {
    static constexpr auto formatea = vnstdc__snwprintf;
    static constexpr auto de_hora = vnstdc_wcsftime;
    static constexpr const vnwchar *FECHA = VNU("%s %2d %s %I64d  %2d:%02d");
    static constexpr const vnwchar *DIA_MES = VNU("%d/%m/%y"), *MES_DIA = VNU("%m/%d/%y"), *HORA = VNU("%I:%M %p");
    static const vnwchar *dia(int i) { return nousar_msglocal_original_u(DIAS_U[static_cast<size_t>(i)]); }
    static const vnwchar *mes(int i) { return vorntime_obtener_nombre_mes_u(static_cast<uint32_t>(i)); }
    static vnwchar *copia(const vnwchar *s) { return widestr_copia(s); }
};

constexpr size_t SITIO = 64;

// Writes over the room of one operation.
template <class C> const C *fecha_en(C (&sitio)[SITIO], int64_t t) {
    sitio[0] = 0;
    const std::tm *local = hora_local_de(t);
    if (local == nullptr) {
        error_interno_liberando_mensaje_u(VNU("fecha_tm != NULL"), VN_MODULO, __LINE__,
                                          widestr_copia(nousar_msglocal_original_u(FECHA_MAL)), 0);
        return sitio;
    }
    const auto *dia = ancho<C>::dia(local->tm_wday), *mes = ancho<C>::mes(local->tm_mon);
    const int copiados = ancho<C>::formatea(sitio, SITIO - 1, ancho<C>::FECHA, dia, local->tm_mday, mes,
                                            int64_t{local->tm_year} + 1900, local->tm_hour, local->tm_min);
    // A text that fills the room brings no zero of its own.
    sitio[SITIO - 1] = 0;
    if (!AFIRMA(copiados > 0)) sitio[0] = 0;
    return sitio;
}

template <class C> void para_listados(C **fecha_texto, C **hora_texto) {
    if (fecha_texto != nullptr) *fecha_texto = nullptr;
    if (hora_texto != nullptr) *hora_texto = nullptr;
    const std::tm *hoy = hora_local_de(vnstdc__time64(nullptr));
    if (!AFIRMA_TEXTO(hoy != nullptr, "hoy != NULL")) return;
    const auto escribe = [hoy](C **destino, const C *formato) {
        C texto[SITIO];
        if (destino == nullptr) return;
        const size_t copiados = ancho<C>::de_hora(texto, SITIO, formato, hoy);
        if (AFIRMA(copiados > 0)) *destino = ancho<C>::copia(texto);
    };
    // In English the month goes before the day.
    escribe(fecha_texto, msidioma_es_idioma_ingles() == CIERTO ? ancho<C>::MES_DIA : ancho<C>::DIA_MES);
    escribe(hora_texto, ancho<C>::HORA);
}

} // namespace

vnwchar *vtm_fecha_a_cadena(const vnwchar *cabecera, const tmtime *fecha, vnwchar separador) {
    if (!AFIRMA_NO_NULO(fecha)) return nullptr;
    return renglon<vnwchar>().dd_mm_aaaa(*fecha, separador).hh_mm_ss(*fecha, ':').nuevo(cabecera);
}

char *vtm_fecha_a_cadena_a(const char *cabecera, const tmtime *fecha, char separador) {
    if (!AFIRMA_NO_NULO(fecha)) return nullptr;
    return renglon<char>().dd_mm_aaaa(*fecha, separador).hh_mm_ss(*fecha, ':').nuevo(cabecera);
}

char *vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS(const tmtime *fecha) {
    return AFIRMA_NO_NULO(fecha) ? renglon<char>().aaaa_mm_dd(*fecha, '-').hh_mm_ss(*fecha, '.').nuevo() : nullptr;
}

vnwchar *vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(const tmtime *fecha) {
    return vtm_fecha_a_texto_AAAA_MM_DD_HH_MM_SS_u(fecha, '-', '.');
}

vnwchar *vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_u(const tmtime *fecha) {
    return vtm_fecha_a_texto_AAAA_MM_DD_u(fecha, '-');
}

vnwchar *vtm_fecha_a_texto_AAAA_MM_DD_u(const tmtime *fecha, vnwchar sep) {
    return AFIRMA_NO_NULO(fecha) ? renglon<vnwchar>().aaaa_mm_dd(*fecha, sep).nuevo() : nullptr;
}

vnwchar *vtm_fecha_a_texto_AAAA_MM_DD_HH_MM_SS_u(const tmtime *fecha, vnwchar sep_fecha, vnwchar sep_hora) {
    if (!AFIRMA_NO_NULO(fecha)) return nullptr;
    return renglon<vnwchar>().aaaa_mm_dd(*fecha, sep_fecha).hh_mm_ss(*fecha, sep_hora).nuevo();
}

vnwchar *vtm_time_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(int64_t t) {
    tmtime fecha;
    return pon_fecha_de(t, fecha) ? vtm_fecha_a_cadena_ordenable_AAAA_MM_DD_HH_MM_SS_u(&fecha) : nullptr;
}

vnwchar *vtm_time_a_cadena_ordenable_AAAA_MM_DD_u(int64_t t) { return vtm_time_a_texto_AAAA_MM_DD_u(t, '-'); }

vnwchar *vtm_time_a_texto_AAAA_MM_DD_u(int64_t t, vnwchar sep) {
    tmtime fecha;
    return pon_fecha_de(t, fecha) ? vtm_fecha_a_texto_AAAA_MM_DD_u(&fecha, sep) : nullptr;
}

void vtm_fecha_y_hora_para_listados(char **fecha_texto, char **hora_texto) { para_listados(fecha_texto, hora_texto); }

void vtm_fecha_y_hora_para_listados_u(vnwchar **fecha_texto, vnwchar **hora_texto) {
    para_listados(fecha_texto, hora_texto);
}

// Each operation has a room of its own for its text, which lasts until it is called again.
const char *vtm_fecha_str(int64_t t) {
    static char sitio[SITIO];
    return fecha_en(sitio, t);
}

const vnwchar *vtm_fecha_str_u(int64_t t) {
    static vnwchar sitio[SITIO];
    return fecha_en(sitio, t);
}

const vnwchar *vtm_fecha_str64_u(int64_t t) {
    static vnwchar sitio[SITIO];
    return fecha_en(sitio, t);
}
