#define VN_MODULO "vorntime (NUCLEOS.DLL)"
#include "foundation/texto/msglocal_int.h"
#include "time/vorntime_msg_priv.h"
#include <array>
#include <cstdint>
#include <string_view>
#include <utility>

namespace {

// ---------------------------------------------------------------- the names, a language a row

struct lengua {
    vn::texto::columna en;
    std::basic_string_view<vnwchar> nombres; // in their order, with a blank between them
};
constexpr size_t LENGUAS = 16;

// Names of one kind: their ids, 0 for texts without one, and the ordinal of the first in the group.
template <size_t N> struct clase {
    uint32_t orden;
    std::array<uint32_t, N> ids;
    std::array<lengua, LENGUAS> lenguas;
};

constexpr clase<12> MESES{
    1,
    {38089, 38090, 38091, 38092, 38093, 38094, 38095, 38096, 38097, 38098, 38099, 38100},
    {{
        {vn::texto::ES,
         VNU("Enero Febrero Marzo Abril Mayo Junio Julio Agosto Septiembre Octubre Noviembre Diciembre")},
        {vn::texto::FR, VNU("Janvier Février Mars Avril Mai Juin Juillet Août Septembre Octobre Novembre Décembre")},
        {vn::texto::PT_BR,
         VNU("Janeiro Fevereiro Março Abril Maio Junho Julho Agosto Setembro Outubro Novembro Dezembro")},
        {vn::texto::PT,
         VNU("Janeiro Fevereiro Março Abril Maio Junho Julho Agosto Setembro Outubro Novembro Dezembro")},
        {vn::texto::CA, VNU("Gener Febrer Març Abril Maig Juny Juliol Agost Setembre Octubre Novembre Desembre")},
        {vn::texto::IT,
         VNU("Gennaio Febbraio Marzo Aprile Maggio Giugno Luglio Agosto Settembre Ottobre Novembre Dicembre")},
        {vn::texto::EN, VNU("January February March April May June July August September October November December")},
        {vn::texto::GL, VNU("Xaneiro Febreiro Marzo Abril Maio Xuño Xullo Agosto Setembro Outubro Novembro Decembro")},
        {vn::texto::BG, VNU("Януари Февруари Март Април Май Юни Юли Август Септември Октомври Ноември Декември")},
        {vn::texto::RO,
         VNU("Ianuarie Februarie Martie Aprilie Mai Iunie Iulie August Septembrie Octombrie Noiembrie Decembrie")},
        {vn::texto::ZH, VNU("一月 二月 三月 四月 五月 六月 七月 八月 九月 十月 十一月 十二月")},
        {vn::texto::DE, VNU("Januar Februar März April Mai Juni Juli August September Oktober November Dezember")},
        {vn::texto::RU, VNU("Январь Февраль Март Апрель Май Июнь Июль Август Сентябрь Октябрь Ноябрь Декабрь")},
        {vn::texto::PL,
         VNU("Styczeń Luty Marzec Kwiecień Maj Czerwiec Lipiec Sierpień Wrzesień Październik Listopad Grudzień")},
        {vn::texto::TR, VNU("Ocak Şubat Mart Nisan Mayıs Haziran Temmuz Ağustos Eylül Ekim Kasım Aralık")},
        {vn::texto::JA, VNU("1月 2月 3月 4月 5月 6月 7月 8月 9月 10月 11月 12月")},
    }}};

constexpr clase<12> MESES_ABREVIADOS{13,
                                     {},
                                     {{
                                         {vn::texto::ES, VNU("Ene Feb Mar Abr May Jun Jul Ago Sep Oct Nov Dic")},
                                         {vn::texto::FR, VNU("Janv Févr Mars Avr Mai Juin Juil Août Sept Oct Nov Déc")},
                                         {vn::texto::PT_BR, VNU("Jan Fev Mar Abr Mai Jun Jul Ago Set Out Nov Dez")},
                                         {vn::texto::PT, VNU("Jan Fev Mar Abr Mai Jun Jul Ago Set Out Nov Dez")},
                                         {vn::texto::CA, VNU("Gen Febr Març Abr Maig Juny Jul Ag Set Oct Nov Des")},
                                         {vn::texto::IT, VNU("Gen Feb Mar Apr Mag Giu Lug Ago Set Ott Nov Dic")},
                                         {vn::texto::EN, VNU("Jan Feb Mar Apr May Jun Jul Aug Sep Oct Nov Dec")},
                                         {vn::texto::GL, VNU("Xan Feb Mar Abr Maio Xuño Xul Ago Set Out Nov Dec")},
                                         {vn::texto::BG, VNU("Яну Фев Март Апр Май Юни Юли Авг Сеп Окт Ное Дек")},
                                         {vn::texto::RO, VNU("Ian Feb Mar Apr Mai Iun Iul Aug Sept Oct Nov Dec")},
                                         {vn::texto::ZH, VNU("1月 2月 3月 4月 5月 6月 7月 8月 9月 10月 11月 12月")},
                                         {vn::texto::DE, VNU("Jan Feb Mär Apr Mai Jun Jul Aug Sep Okt Nov Dez")},
                                         {vn::texto::RU, VNU("Янв Февр Март Апр Май Июнь Июль Авг Сент Окт Нояб Дек")},
                                         {vn::texto::PL, VNU("Sty Lut Mar Kwi Maj Cze Lip Sie Wrz Paź Lis Gru")},
                                         {vn::texto::TR, VNU("Oca Şub Mar Nis May Haz Tem Ağu Eyl Eki Kas Ara")},
                                         {vn::texto::JA, VNU("1月 2月 3月 4月 5月 6月 7月 8月 9月 10月 11月 12月")},
                                     }}};

constexpr clase<7> DIAS{25,
                        {38108, 38109, 38110, 38111, 38112, 38113, 38114},
                        {{
                            {vn::texto::ES, VNU("Dom Lun Mar Mie Jue Vie Sab")},
                            {vn::texto::FR, VNU("Dim Lun Mar Mer Jeu Ven Sam")},
                            {vn::texto::PT_BR, VNU("Dom Seg Ter Qua Qui Sex Sáb")},
                            {vn::texto::PT, VNU("Dom Seg Ter Qua Qui Sex Sáb")},
                            {vn::texto::CA, VNU("Dg Dl Dt Dc Dj Dv Ds")},
                            {vn::texto::IT, VNU("Dom Lun Mar Mer Gio Ven Sab")},
                            {vn::texto::EN, VNU("Sun Mon Tue Wed Thu Fri Sat")},
                            {vn::texto::GL, VNU("Dom Luns Mar Mér Xov Ven Sáb")},
                            {vn::texto::BG, VNU("Нд Пн Вт Ср Чт Пт Сб")},
                            {vn::texto::RO, VNU("Dum Lun Mar Mie Joi Vin Sâm")},
                            {vn::texto::ZH, VNU("周日 周一 周二 周三 周四 周五 周六")},
                            {vn::texto::DE, VNU("So Mo Di Mi Do Fr Sa")},
                            {vn::texto::RU, VNU("Вс Пн Вт Ср Чт Пт Сб")},
                            {vn::texto::PL, VNU("Niedz Pon Wt Śr Czw Pt Sob")},
                            {vn::texto::TR, VNU("Paz Pzt Sal Çar Per Cum Cmt")},
                            {vn::texto::JA, VNU("日 月 火 水 木 金 土")},
                        }}};

constexpr clase<7> INICIALES{32,
                             {38107, 38101, 38102, 38103, 292618, 291528, 286311},
                             {{
                                 {vn::texto::ES, VNU("D L M X J V S")},
                                 {vn::texto::FR, VNU("D L M M J V S")},
                                 {vn::texto::PT_BR, VNU("D S T Q Q S S")},
                                 {vn::texto::PT, VNU("D S T Q Q S S")},
                                 {vn::texto::CA, VNU("G L T C J V S")}, // all begin with D: the second letter
                                 {vn::texto::IT, VNU("D L M M G V S")},
                                 {vn::texto::EN, VNU("S M T W T F S")},
                                 {vn::texto::GL, VNU("D L M M X V S")},
                                 {vn::texto::BG, VNU("Н П В С Ч П С")},
                                 {vn::texto::RO, VNU("D L M M J V S")},
                                 {vn::texto::ZH, VNU("日 一 二 三 四 五 六")},
                                 {vn::texto::DE, VNU("S M D M D F S")},
                                 {vn::texto::RU, VNU("В П В С Ч П С")},
                                 {vn::texto::PL, VNU("N P W Ś C P S")},
                                 {vn::texto::TR, VNU("P P S Ç P C C")},
                                 {vn::texto::JA, VNU("日 月 火 水 木 金 土")},
                             }}};

constexpr auto MENSAJE_54061 = vn::texto::mensaje_u(
    "vorntime.msg", 39,
    {
        {vn::texto::ES, VNU("<54061>La fecha está mal. Revise en su sistema operativo si la fecha es correcta.")},
        {vn::texto::FR,
         VNU("<54061>La date est erronée. Vérifiez dans votre système d'exploitation que la date est correcte.")},
        {vn::texto::PT_BR,
         VNU("<54061>A data está errada. Verifique no seu sistema operacional se a data está correta.")},
        {vn::texto::PT, VNU("<54061>A data está errada. Verifique no seu sistema operativo se a data está correta.")},
        {vn::texto::CA,
         VNU("<54061>La data és incorrecta. Reviseu al vostre sistema operatiu si la data és correcta.")},
        {vn::texto::IT, VNU("<54061>La data è errata. Verificare nel sistema operativo che la data sia corretta.")},
        {vn::texto::EN, VNU("<54061>The date is wrong. Check in your operating system whether the date is correct.")},
        {vn::texto::GL, VNU("<54061>A data está mal. Revise no seu sistema operativo se a data é correcta.")},
        {vn::texto::BG, VNU("<54061>Датата е грешна. Проверете в операционната система дали датата е правилна.")},
        {vn::texto::RO, VNU("<54061>Data este greșită. Verificați în sistemul de operare dacă data este corectă.")},
        {vn::texto::ZH, VNU("<54061>日期有误。请在操作系统中检查日期是否正确。")},
        {vn::texto::DE, VNU("<54061>Das Datum ist falsch. Prüfen Sie in Ihrem Betriebssystem, ob das Datum stimmt.")},
        {vn::texto::RU, VNU("<54061>Неверная дата. Проверьте в операционной системе, правильно ли установлена дата.")},
        {vn::texto::PL, VNU("<54061>Data jest nieprawidłowa. Sprawdź w systemie operacyjnym, czy data jest poprawna.")},
        {vn::texto::TR, VNU("<54061>Tarih yanlış. İşletim sisteminizde tarihin doğru olup olmadığını kontrol edin.")},
        {vn::texto::JA,
         VNU("<54061>日付が正しくありません。オペレーティングシステムの日付が正しいか確認してください。")},
    });

// ---------------------------------------------------------------- from names to messages

// The row of each column of a message, by the common rule for those without a text of their own.
template <size_t N> constexpr std::array<unsigned char, MSGLOCAL_NUM_TEXTOS> filas_de(const clase<N> &c) {
    constexpr unsigned char NINGUNA = LENGUAS;
    std::array<unsigned char, MSGLOCAL_NUM_TEXTOS> filas{};
    filas.fill(NINGUNA);
    for (unsigned char i = 0; i < LENGUAS; ++i) {
        if (filas[c.lenguas[i].en] != NINGUNA) throw "a language has two rows";
        filas[c.lenguas[i].en] = i;
    }
    for (unsigned i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i)
        if (filas[i] == NINGUNA) filas[i] = filas[vn::texto::columna_de_reserva(i)];
    return filas;
}

template <size_t N> constexpr std::basic_string_view<vnwchar> nombre_de(const clase<N> &c, size_t lengua, size_t i) {
    std::basic_string_view<vnwchar> resto = c.lenguas[lengua].nombres;
    for (size_t k = 0;; ++k) {
        const size_t fin = resto.find(VNU(' '));
        const auto nombre = resto.substr(0, fin);
        if (nombre.empty() || nombre.find(VNU('%')) != nombre.npos) throw "a name is no name";
        if (fin == resto.npos && k + 1 != N) throw "a row has too few names";
        if (fin != resto.npos && k + 1 == N) throw "a row has too many names";
        if (k == i) return nombre;
        resto.remove_prefix(fin + 1);
    }
}

// Digits of an id with its brackets.
constexpr uint32_t ancho_de(uint32_t id) {
    if (id == 0) return 0;
    uint32_t n = 2;
    for (; id > 0; id /= 10) ++n;
    return n;
}

template <size_t N> constexpr size_t mas_largo(const clase<N> &c) {
    size_t n = 0;
    for (size_t l = 0; l < LENGUAS; ++l)
        for (size_t i = 0; i < N; ++i) n = std::max(n, ancho_de(c.ids[i]) + nombre_de(c, l, i).size());
    return n;
}

// All texts of a kind, for both readers. For the ANSI one those with a letter beyond ASCII are in the coded form, which
// every code page can hold.
template <size_t N, size_t LARGO> struct textos_de {
    vnwchar anchos[N][LENGUAS][LARGO + 1]{};
    char ansi[N][LENGUAS][4 + 4 * LARGO + 1]{};

    constexpr explicit textos_de(const clase<N> &c) {
        for (size_t i = 0; i < N; ++i) {
            for (size_t l = 0; l < LENGUAS; ++l) {
                vnwchar *ancho = anchos[i][l];
                const uint32_t id = ancho_de(c.ids[i]);
                if (id > 0) {
                    ancho[0] = VNU('<');
                    ancho[id - 1] = VNU('>');
                    uint32_t resto = c.ids[i];
                    for (uint32_t k = id - 2; k > 0; --k, resto /= 10)
                        ancho[k] = static_cast<vnwchar>('0' + resto % 10);
                }
                size_t n = id;
                for (const vnwchar letra : nombre_de(c, l, i)) ancho[n++] = letra;
                codifica(ansi[i][l], {ancho, n});
            }
        }
    }

    static constexpr void codifica(char *destino, std::basic_string_view<vnwchar> texto) {
        constexpr auto MAS_ALLA = [](vnwchar c) { return c >= 0x80; };
        bool ascii = true;
        for (const vnwchar c : texto) ascii = ascii && !MAS_ALLA(c);
        if (ascii) {
            for (const vnwchar c : texto) *destino++ = static_cast<char>(c);
            return;
        }
        for (int k = 0; k < 4; ++k) *destino++ = 'F';
        for (const vnwchar c : texto)
            for (const int bits : {4, 0, 12, 8}) *destino++ = "0123456789abcdef"[(c >> bits) & 15];
    }
};

template <const auto &CLASE> constexpr textos_de<CLASE.ids.size(), mas_largo(CLASE)> TEXTOS(CLASE);
template <const auto &CLASE> constexpr auto FILAS = filas_de(CLASE);

template <const auto &CLASE, bool ANSI, size_t I> void rellena(vnmensaje *m) {
    m->nombre = "vorntime.msg";
    m->orden = CLASE.orden + static_cast<uint32_t>(I);
    constexpr uint32_t ANCHO = ancho_de(CLASE.ids[I]);
    m->ancho_id = ANCHO;
    for (size_t i = 0; i < MSGLOCAL_NUM_TEXTOS; ++i) {
        if constexpr (ANSI) m->textos[i] = TEXTOS<CLASE>.ansi[I][FILAS<CLASE>[i]];
        else m->textos[i] = TEXTOS<CLASE>.anchos[I][FILAS<CLASE>[i]];
    }
    m->fin = nullptr;
}

} // namespace

// One filler for each name.
#define RELLENAN_7(clase, ansi)                                                                                        \
    rellena<clase, ansi, 0>, rellena<clase, ansi, 1>, rellena<clase, ansi, 2>, rellena<clase, ansi, 3>,                \
        rellena<clase, ansi, 4>, rellena<clase, ansi, 5>, rellena<clase, ansi, 6>
#define RELLENAN_12(clase, ansi)                                                                                       \
    RELLENAN_7(clase, ansi), rellena<clase, ansi, 7>, rellena<clase, ansi, 8>, rellena<clase, ansi, 9>,                \
        rellena<clase, ansi, 10>, rellena<clase, ansi, 11>

const vnfunc_mensaje vorntime_msg_mes_u[12]{RELLENAN_12(MESES, false)};
const vnfunc_mensaje vorntime_msg_mes[12]{RELLENAN_12(MESES, true)};
const vnfunc_mensaje vorntime_msg_mes_abreviado_u[12]{RELLENAN_12(MESES_ABREVIADOS, false)};
const vnfunc_mensaje vorntime_msg_mes_abreviado[12]{RELLENAN_12(MESES_ABREVIADOS, true)};
const vnfunc_mensaje vorntime_msg_dia_u[7]{RELLENAN_7(DIAS, false)};
const vnfunc_mensaje vorntime_msg_dia[7]{RELLENAN_7(DIAS, true)};
const vnfunc_mensaje vorntime_msg_inicial_dia[7]{RELLENAN_7(INICIALES, true)};

void vorntime_msg_54061(vnmensaje *mensaje) { MENSAJE_54061.rellena(mensaje); }
