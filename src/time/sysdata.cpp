#define VN_MODULO "sysdata (NUCLEOS.DLL)"
#include "time/sysdata.h"
#include "foundation/sistema/entorno.h"
#include "foundation/sistema/vnregional.h"
#include "foundation/sistema/vornreg.h"
#include "foundation/suelo/afirma_int.h"
#include "foundation/suelo/propio_int.h"
#include "foundation/texto/cad.h"
#include "foundation/texto/unicode.h"
#include "foundation/texto/widestr.h"
#include "time/sysdata_priv.h"

namespace {

constexpr int32_t ULTIMO_ANYO_SIN_FECHA = 1900;
constexpr uint32_t MAXIMO_NUMERO = 50, MAXIMO_MAQUINA = 30, MAXIMO_USUARIO = 62;
// By day, 0 Sunday.
constexpr uint32_t DIAS[] = {48, 42, 43, 44, 45, 46, 47};
constexpr uint32_t DIAS_ABREVIADOS[] = {55, 49, 50, 51, 52, 53, 54};
constexpr const char *CLAVE_MI_PC = "\\CLSID\\{20D04FE0-3AEA-1069-A2D8-08002B30309D}";

// Takes the wide text over.
char *a_ansi(vnwchar *texto) { return texto != nullptr ? utunicode_UNICODE_a_ANSI_destruyendo_p(texto) : nullptr; }

vnwchar *dato_u(uint32_t numero) {
    vnwchar *texto = vnregional_dato_u(numero);
    return AFIRMA_TEXTO(texto != nullptr, "tamano != 0") ? texto : widestr_copia(VNU(""));
}

char *dato(uint32_t numero) { return a_ansi(dato_u(numero)); }

// The text, or an empty one after the report that the format failed.
vnwchar *o_vacio(vnwchar *texto) {
    return AFIRMA_TEXTO(texto != nullptr, "tamanyo_cadena != 0") ? texto : widestr_copia(VNU(""));
}

vnwchar *fecha_u(int32_t dia, int32_t mes, int32_t anyo, const vnwchar *modelo, vnbool larga) {
    if (anyo <= ULTIMO_ANYO_SIN_FECHA) return widestr_copia(VNU(""));
    return o_vacio(vnregional_fecha_u(dia, mes, anyo, modelo, larga));
}

vnwchar *en_mayusculas(vnwchar *texto, uint32_t maximo) {
    // Cut before it is turned into capitals, which keep its length.
    const vn::propio<vnwchar> entero(texto);
    vnwchar *corto = widestr_subcadena_inicial(entero.get(), maximo);
    widestr_convertir_a_mayusculas(corto);
    return corto;
}

} // namespace

namespace vn {

separadores_de_numero sysdata_separadores() {
    separadores_de_numero s{};
    vnregional_separadores(&s.decimal, &s.millares);
    return s;
}

} // namespace vn

char *sysdata_separador_campos(void) { return dato(VNREGIONAL_SEPARADOR_CAMPOS); }
char *sysdata_separador_decimal(void) { return dato(VNREGIONAL_SEPARADOR_DECIMAL); }
char *sysdata_separador_millares(void) { return dato(VNREGIONAL_SEPARADOR_MILLARES); }
char *sysdata_separador_fechas(void) { return dato(VNREGIONAL_SEPARADOR_FECHAS); }
char *sysdata_separador_horas(void) { return dato(VNREGIONAL_SEPARADOR_HORAS); }
vnwchar *sysdata_separador_campos_u(void) { return dato_u(VNREGIONAL_SEPARADOR_CAMPOS); }
vnwchar *sysdata_separador_decimal_u(void) { return dato_u(VNREGIONAL_SEPARADOR_DECIMAL); }
vnwchar *sysdata_separador_millares_u(void) { return dato_u(VNREGIONAL_SEPARADOR_MILLARES); }
vnwchar *sysdata_separador_fechas_u(void) { return dato_u(VNREGIONAL_SEPARADOR_FECHAS); }
vnwchar *sysdata_separador_horas_u(void) { return dato_u(VNREGIONAL_SEPARADOR_HORAS); }

int32_t sysdata_orden_fecha(void) {
    const vn::propio<char> cadena(dato(VNREGIONAL_ORDEN_FECHA));
    if (cad_cadenas_iguales(cadena.get(), "0") == CIERTO) return 0;
    if (cad_cadenas_iguales(cadena.get(), "1") == CIERTO) return 1;
    // Any other text is reported and counts as this one.
    AFIRMA_TEXTO(cad_cadenas_iguales(cadena.get(), "2") == CIERTO, "cad_cadenas_iguales(cadena, \"2\") == CIERTO");
    return 2;
}

int32_t sysdata_modo_horario(void) {
    const vn::propio<char> cadena(dato(VNREGIONAL_MODO_HORARIO));
    if (cad_cadenas_iguales(cadena.get(), "0") == CIERTO) return 0;
    // Any other text is reported and counts as this one.
    AFIRMA_TEXTO(cad_cadenas_iguales(cadena.get(), "1") == CIERTO, "cad_cadenas_iguales(cadena, \"1\") == CIERTO");
    return 1;
}

char *sysdata_fecha(int32_t dia, int32_t mes, int32_t anyo, int32_t, const char *modelo, vnbool larga) {
    if (!AFIRMA_LOGICO(larga)) return nullptr;
    const vn::propio<vnwchar> modelo_u(modelo != nullptr ? utunicode_ANSI_a_UNICODE(modelo) : nullptr);
    return a_ansi(fecha_u(dia, mes, anyo, modelo_u.get(), larga));
}

vnwchar *sysdata_fecha_u(int32_t dia, int32_t mes, int32_t anyo, int32_t, const vnwchar *modelo, vnbool larga) {
    return AFIRMA_LOGICO(larga) ? fecha_u(dia, mes, anyo, modelo, larga) : nullptr;
}

vnwchar *sysdata_hora_u(int32_t segundo, int32_t minuto, int32_t hora, vnbool con_segundos) {
    if (!AFIRMA_LOGICO(con_segundos)) return nullptr;
    return o_vacio(vnregional_hora_u(hora, minuto, segundo, con_segundos));
}

char *sysdata_hora(int32_t segundo, int32_t minuto, int32_t hora, vnbool con_segundos) {
    return a_ansi(sysdata_hora_u(segundo, minuto, hora, con_segundos));
}

vnwchar *sysdata_formateaNumero_u(double valor, int32_t decimales) {
    vn::propio<vnwchar> texto(copiaforu_nousar_formatea(VNU("%.*f"), decimales, valor));
    vnwchar *regional = vnregional_numero_u(texto.get(), MAXIMO_NUMERO);
    // A number that the region cannot format comes as it is.
    return regional != nullptr ? regional : texto.release();
}

uint32_t sysdata_milisegundos_transcurridos(void) { return static_cast<uint32_t>(machine_milisegundos()); }

char *sysdata_nombre_MiPC(void) {
    char *nombre = nullptr;
    const vnbool obtenido_nombre_MiPC = vornreg_lee_cadena(VORNREG_CLASES, CLAVE_MI_PC, "", &nombre);
    return AFIRMA(obtenido_nombre_MiPC == CIERTO) ? nombre : nullptr;
}

char *sysdata_nombre_dia(uint32_t dia) { return AFIRMA(dia < 7) ? dato(DIAS[dia]) : nullptr; }
char *sysdata_nombre_dia_abreviado(uint32_t dia) { return AFIRMA(dia < 7) ? dato(DIAS_ABREVIADOS[dia]) : nullptr; }

vnwchar *sysdata_nombre_maquina_u(void) { return en_mayusculas(machine_nombre_u(), MAXIMO_MAQUINA); }
char *sysdata_nombre_maquina(void) { return a_ansi(sysdata_nombre_maquina_u()); }

vnwchar *sysdata_nombre_usuario_actual_u(void) {
    vn::propio<vnwchar> nombre(machine_nombre_usuario_u());
    // A user without a name, or with too long a one, has a common name.
    if (nombre == nullptr || widestr_longitud(nombre.get()) > MAXIMO_USUARIO) return widestr_copia(VNU("USUARIO"));
    return en_mayusculas(nombre.release(), MAXIMO_USUARIO);
}
