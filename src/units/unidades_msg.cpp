#define VN_MODULO "unidades (NUCLEOS.DLL)"
#include "units/unidades_msg_priv.h"
#include "foundation/msglocal_priv.h"

// Every column that differs. The ANSI texts are in the code page of the column's language, 1252 where nothing is said:
// Bulgarian and Russian 1251, Romanian and Polish 1250, Turkish 1254, Chinese 936, Japanese 932. The pages that have no
// superscript digits take plain ones, and a full stop for the raised one where that is missing too.

namespace {

// unit of things that are counted
constexpr auto MENSAJE_165177 = vn::mensaje_u("unidades.msg", 1, {
    {vn::ES, VNU("<165177>Ud")},
    {vn::FR, VNU("<165177>U")},
    {vn::PT_BR, VNU("<165177>un")},
    {vn::PT, VNU("<165177>un")},
    {vn::CA, VNU("<165177>U")},
    {vn::IT, VNU("<165177>cad.")},
    {vn::EN, VNU("<165177>ea")},
    {vn::GL, VNU("<165177>Ud")},
    {vn::BG, VNU("<165177>бр.")},
    {vn::RO, VNU("<165177>buc.")},
    {vn::ZH, VNU("<165177>个")},
    {vn::DE, VNU("<165177>St")},
    {vn::RU, VNU("<165177>шт.")},
    {vn::PL, VNU("<165177>szt.")},
    {vn::TR, VNU("<165177>ad.")},
    {vn::JA, VNU("<165177>個")},
});
constexpr auto MENSAJE_165177_ANSI = vn::mensaje_a("unidades.msg", 1, {
    {vn::ES, "<165177>Ud"},
    {vn::FR, "<165177>U"},
    {vn::PT_BR, "<165177>un"},
    {vn::PT, "<165177>un"},
    {vn::CA, "<165177>U"},
    {vn::IT, "<165177>cad."},
    {vn::EN, "<165177>ea"},
    {vn::GL, "<165177>Ud"},
    {vn::BG, "<165177>\xE1\xF0."},
    {vn::RO, "<165177>buc."},
    {vn::ZH, "<165177>\xB8\xF6"},
    {vn::DE, "<165177>St"},
    {vn::RU, "<165177>\xF8\xF2."},
    {vn::PL, "<165177>szt."},
    {vn::TR, "<165177>ad."},
    {vn::JA, "<165177>\x8C\xC2"},
});

// hour
constexpr auto MENSAJE_165181 = vn::mensaje_u("unidades.msg", 2, {
    {vn::ES, VNU("<165181>h")},
    {vn::EN, VNU("<165181>h")},
    {vn::BG, VNU("<165181>ч")},
    {vn::RU, VNU("<165181>ч")},
    {vn::TR, VNU("<165181>sa")},
});
constexpr auto MENSAJE_165181_ANSI = vn::mensaje_a("unidades.msg", 2, {
    {vn::ES, "<165181>h"},
    {vn::EN, "<165181>h"},
    {vn::BG, "<165181>\xF7"},
    {vn::RU, "<165181>\xF7"},
    {vn::TR, "<165181>sa"},
});

// kilogram
constexpr auto MENSAJE_157616 = vn::mensaje_u("unidades.msg", 3, {
    {vn::ES, VNU("<157616>kg")},
    {vn::EN, VNU("<157616>kg")},
    {vn::BG, VNU("<157616>кг")},
    {vn::RU, VNU("<157616>кг")},
});
constexpr auto MENSAJE_157616_ANSI = vn::mensaje_a("unidades.msg", 3, {
    {vn::ES, "<157616>kg"},
    {vn::EN, "<157616>kg"},
    {vn::BG, "<157616>\xEA\xE3"},
    {vn::RU, "<157616>\xEA\xE3"},
});

// kilometre
constexpr auto MENSAJE_165187 = vn::mensaje_u("unidades.msg", 4, {
    {vn::ES, VNU("<165187>km")},
    {vn::EN, VNU("<165187>km")},
    {vn::BG, VNU("<165187>км")},
    {vn::RU, VNU("<165187>км")},
});
constexpr auto MENSAJE_165187_ANSI = vn::mensaje_a("unidades.msg", 4, {
    {vn::ES, "<165187>km"},
    {vn::EN, "<165187>km"},
    {vn::BG, "<165187>\xEA\xEC"},
    {vn::RU, "<165187>\xEA\xEC"},
});

// litre
constexpr auto MENSAJE_165186 = vn::mensaje_u("unidades.msg", 5, {
    {vn::ES, VNU("<165186>l")},
    {vn::EN, VNU("<165186>l")},
    {vn::BG, VNU("<165186>л")},
    {vn::RU, VNU("<165186>л")},
});
constexpr auto MENSAJE_165186_ANSI = vn::mensaje_a("unidades.msg", 5, {
    {vn::ES, "<165186>l"},
    {vn::EN, "<165186>l"},
    {vn::BG, "<165186>\xEB"},
    {vn::RU, "<165186>\xEB"},
});

// metre
constexpr auto MENSAJE_40344 = vn::mensaje_u("unidades.msg", 6, {
    {vn::ES, VNU("<40344>m")},
    {vn::EN, VNU("<40344>m")},
    {vn::BG, VNU("<40344>м")},
    {vn::RU, VNU("<40344>м")},
});
constexpr auto MENSAJE_40344_ANSI = vn::mensaje_a("unidades.msg", 6, {
    {vn::ES, "<40344>m"},
    {vn::EN, "<40344>m"},
    {vn::BG, "<40344>\xEC"},
    {vn::RU, "<40344>\xEC"},
});

// square metre
constexpr auto MENSAJE_165179 = vn::mensaje_u("unidades.msg", 7, {
    {vn::ES, VNU("<165179>m²")},
    {vn::EN, VNU("<165179>m²")},
    {vn::BG, VNU("<165179>м²")},
    {vn::RU, VNU("<165179>м²")},
});
constexpr auto MENSAJE_165179_ANSI = vn::mensaje_a("unidades.msg", 7, {
    {vn::ES, "<165179>m\xB2"},
    {vn::EN, "<165179>m\xB2"},
    {vn::BG, "<165179>\xEC" "2"},
    {vn::RO, "<165179>m2"},
    {vn::ZH, "<165179>m2"},
    {vn::RU, "<165179>\xEC" "2"},
    {vn::PL, "<165179>m2"},
    {vn::JA, "<165179>m2"},
});

// cubic metre
constexpr auto MENSAJE_165180 = vn::mensaje_u("unidades.msg", 8, {
    {vn::ES, VNU("<165180>m³")},
    {vn::EN, VNU("<165180>m³")},
    {vn::BG, VNU("<165180>м³")},
    {vn::RU, VNU("<165180>м³")},
});
constexpr auto MENSAJE_165180_ANSI = vn::mensaje_a("unidades.msg", 8, {
    {vn::ES, "<165180>m\xB3"},
    {vn::EN, "<165180>m\xB3"},
    {vn::BG, "<165180>\xEC" "3"},
    {vn::RO, "<165180>m3"},
    {vn::ZH, "<165180>m3"},
    {vn::RU, "<165180>\xEC" "3"},
    {vn::PL, "<165180>m3"},
    {vn::JA, "<165180>m3"},
});

// cubic metre over a kilometre
constexpr auto MENSAJE_165185 = vn::mensaje_u("unidades.msg", 9, {
    {vn::ES, VNU("<165185>m³·km")},
    {vn::EN, VNU("<165185>m³·km")},
    {vn::BG, VNU("<165185>м³·км")},
    {vn::RU, VNU("<165185>м³·км")},
});
constexpr auto MENSAJE_165185_ANSI = vn::mensaje_a("unidades.msg", 9, {
    {vn::ES, "<165185>m\xB3\xB7km"},
    {vn::EN, "<165185>m\xB3\xB7km"},
    {vn::BG, "<165185>\xEC" "3\xB7\xEA\xEC"},
    {vn::RO, "<165185>m3\xB7km"},
    {vn::ZH, "<165185>m3\xA1\xA4km"},
    {vn::RU, "<165185>\xEC" "3\xB7\xEA\xEC"},
    {vn::PL, "<165185>m3\xB7km"},
    {vn::JA, "<165185>m3.km"},
});

// tonne
constexpr auto MENSAJE_165183 = vn::mensaje_u("unidades.msg", 10, {
    {vn::ES, VNU("<165183>t")},
    {vn::EN, VNU("<165183>t")},
    {vn::BG, VNU("<165183>т")},
    {vn::RU, VNU("<165183>т")},
});
constexpr auto MENSAJE_165183_ANSI = vn::mensaje_a("unidades.msg", 10, {
    {vn::ES, "<165183>t"},
    {vn::EN, "<165183>t"},
    {vn::BG, "<165183>\xF2"},
    {vn::RU, "<165183>\xF2"},
});

// tonne over a kilometre
constexpr auto MENSAJE_165184 = vn::mensaje_u("unidades.msg", 11, {
    {vn::ES, VNU("<165184>t·km")},
    {vn::EN, VNU("<165184>t·km")},
    {vn::BG, VNU("<165184>т·км")},
    {vn::RU, VNU("<165184>т·км")},
});
constexpr auto MENSAJE_165184_ANSI = vn::mensaje_a("unidades.msg", 11, {
    {vn::ES, "<165184>t\xB7km"},
    {vn::EN, "<165184>t\xB7km"},
    {vn::BG, "<165184>\xF2\xB7\xEA\xEC"},
    {vn::ZH, "<165184>t\xA1\xA4km"},
    {vn::RU, "<165184>\xF2\xB7\xEA\xEC"},
    {vn::JA, "<165184>t.km"},
});

} // namespace

void unidades_msg_165177(vnmensaje *mensaje) { MENSAJE_165177.rellena(mensaje); }
void unidades_msg_165177_ansi(vnmensaje *mensaje) { MENSAJE_165177_ANSI.rellena(mensaje); }
void unidades_msg_165181(vnmensaje *mensaje) { MENSAJE_165181.rellena(mensaje); }
void unidades_msg_165181_ansi(vnmensaje *mensaje) { MENSAJE_165181_ANSI.rellena(mensaje); }
void unidades_msg_157616(vnmensaje *mensaje) { MENSAJE_157616.rellena(mensaje); }
void unidades_msg_157616_ansi(vnmensaje *mensaje) { MENSAJE_157616_ANSI.rellena(mensaje); }
void unidades_msg_165187(vnmensaje *mensaje) { MENSAJE_165187.rellena(mensaje); }
void unidades_msg_165187_ansi(vnmensaje *mensaje) { MENSAJE_165187_ANSI.rellena(mensaje); }
void unidades_msg_165186(vnmensaje *mensaje) { MENSAJE_165186.rellena(mensaje); }
void unidades_msg_165186_ansi(vnmensaje *mensaje) { MENSAJE_165186_ANSI.rellena(mensaje); }
void unidades_msg_40344(vnmensaje *mensaje) { MENSAJE_40344.rellena(mensaje); }
void unidades_msg_40344_ansi(vnmensaje *mensaje) { MENSAJE_40344_ANSI.rellena(mensaje); }
void unidades_msg_165179(vnmensaje *mensaje) { MENSAJE_165179.rellena(mensaje); }
void unidades_msg_165179_ansi(vnmensaje *mensaje) { MENSAJE_165179_ANSI.rellena(mensaje); }
void unidades_msg_165180(vnmensaje *mensaje) { MENSAJE_165180.rellena(mensaje); }
void unidades_msg_165180_ansi(vnmensaje *mensaje) { MENSAJE_165180_ANSI.rellena(mensaje); }
void unidades_msg_165185(vnmensaje *mensaje) { MENSAJE_165185.rellena(mensaje); }
void unidades_msg_165185_ansi(vnmensaje *mensaje) { MENSAJE_165185_ANSI.rellena(mensaje); }
void unidades_msg_165183(vnmensaje *mensaje) { MENSAJE_165183.rellena(mensaje); }
void unidades_msg_165183_ansi(vnmensaje *mensaje) { MENSAJE_165183_ANSI.rellena(mensaje); }
void unidades_msg_165184(vnmensaje *mensaje) { MENSAJE_165184.rellena(mensaje); }
void unidades_msg_165184_ansi(vnmensaje *mensaje) { MENSAJE_165184_ANSI.rellena(mensaje); }
