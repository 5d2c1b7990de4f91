#define VN_MODULO "unidades (NUCLEOS.DLL)"
#include "foundation/texto/msglocal_int.h"
#include "units/unidades_msg_priv.h"

// Every column that differs. Four have ANSI texts of their own, in the code page of the column's language, 1252 where
// nothing is said: Bulgarian and Russian 1251, Romanian and Polish 1250, Turkish 1254, Chinese 936, Japanese 932. The
// pages that have no superscript digits take plain ones there, and a full stop for the raised one where that is missing
// too.

namespace {

// unit of things that are counted
constexpr auto MENSAJE_165177 = vn::texto::mensaje_u("unidades.msg", 1,
                                                     {
                                                         {vn::texto::ES, VNU("<165177>Ud")},
                                                         {vn::texto::FR, VNU("<165177>U")},
                                                         {vn::texto::PT_BR, VNU("<165177>un")},
                                                         {vn::texto::PT, VNU("<165177>un")},
                                                         {vn::texto::CA, VNU("<165177>U")},
                                                         {vn::texto::IT, VNU("<165177>cad.")},
                                                         {vn::texto::EN, VNU("<165177>ea")},
                                                         {vn::texto::GL, VNU("<165177>Ud")},
                                                         {vn::texto::BG, VNU("<165177>бр.")},
                                                         {vn::texto::RO, VNU("<165177>buc.")},
                                                         {vn::texto::ZH, VNU("<165177>个")},
                                                         {vn::texto::DE, VNU("<165177>St")},
                                                         {vn::texto::RU, VNU("<165177>шт.")},
                                                         {vn::texto::PL, VNU("<165177>szt.")},
                                                         {vn::texto::TR, VNU("<165177>ad.")},
                                                         {vn::texto::JA, VNU("<165177>個")},
                                                     });

// hour
constexpr auto MENSAJE_165181 = vn::texto::mensaje_u("unidades.msg", 2,
                                                     {
                                                         {vn::texto::ES, VNU("<165181>h")},
                                                         {vn::texto::EN, VNU("<165181>h")},
                                                         {vn::texto::BG, VNU("<165181>ч")},
                                                         {vn::texto::RU, VNU("<165181>ч")},
                                                         {vn::texto::TR, VNU("<165181>sa")},
                                                     });

// kilogram
constexpr auto MENSAJE_157616 = vn::texto::mensaje_u("unidades.msg", 3,
                                                     {
                                                         {vn::texto::ES, VNU("<157616>kg")},
                                                         {vn::texto::EN, VNU("<157616>kg")},
                                                         {vn::texto::BG, VNU("<157616>кг")},
                                                         {vn::texto::RU, VNU("<157616>кг")},
                                                     });

// kilometre
constexpr auto MENSAJE_165187 = vn::texto::mensaje_u("unidades.msg", 4,
                                                     {
                                                         {vn::texto::ES, VNU("<165187>km")},
                                                         {vn::texto::EN, VNU("<165187>km")},
                                                         {vn::texto::BG, VNU("<165187>км")},
                                                         {vn::texto::RU, VNU("<165187>км")},
                                                     });

// litre
constexpr auto MENSAJE_165186 = vn::texto::mensaje_u("unidades.msg", 5,
                                                     {
                                                         {vn::texto::ES, VNU("<165186>l")},
                                                         {vn::texto::EN, VNU("<165186>l")},
                                                         {vn::texto::BG, VNU("<165186>л")},
                                                         {vn::texto::RU, VNU("<165186>л")},
                                                     });

// metre
constexpr auto MENSAJE_40344 = vn::texto::mensaje_u("unidades.msg", 6,
                                                    {
                                                        {vn::texto::ES, VNU("<40344>m")},
                                                        {vn::texto::EN, VNU("<40344>m")},
                                                        {vn::texto::BG, VNU("<40344>м")},
                                                        {vn::texto::RU, VNU("<40344>м")},
                                                    });

// square metre
constexpr auto MENSAJE_165179 = vn::texto::mensaje_u("unidades.msg", 7,
                                                     {
                                                         {vn::texto::ES, VNU("<165179>m²")},
                                                         {vn::texto::EN, VNU("<165179>m²")},
                                                         {vn::texto::BG, VNU("<165179>м²")},
                                                         {vn::texto::RU, VNU("<165179>м²")},
                                                     });
constexpr auto MENSAJE_165179_ANSI = vn::texto::mensaje_a("unidades.msg", 7,
                                                          {
                                                              {vn::texto::ES, "<165179>m\xB2"},
                                                              {vn::texto::EN, "<165179>m\xB2"},
                                                              {vn::texto::BG, "<165179>\xEC"
                                                                              "2"},
                                                              {vn::texto::RO, "<165179>m2"},
                                                              {vn::texto::ZH, "<165179>m2"},
                                                              {vn::texto::RU, "<165179>\xEC"
                                                                              "2"},
                                                              {vn::texto::PL, "<165179>m2"},
                                                              {vn::texto::JA, "<165179>m2"},
                                                          });

// cubic metre
constexpr auto MENSAJE_165180 = vn::texto::mensaje_u("unidades.msg", 8,
                                                     {
                                                         {vn::texto::ES, VNU("<165180>m³")},
                                                         {vn::texto::EN, VNU("<165180>m³")},
                                                         {vn::texto::BG, VNU("<165180>м³")},
                                                         {vn::texto::RU, VNU("<165180>м³")},
                                                     });
constexpr auto MENSAJE_165180_ANSI = vn::texto::mensaje_a("unidades.msg", 8,
                                                          {
                                                              {vn::texto::ES, "<165180>m\xB3"},
                                                              {vn::texto::EN, "<165180>m\xB3"},
                                                              {vn::texto::BG, "<165180>\xEC"
                                                                              "3"},
                                                              {vn::texto::RO, "<165180>m3"},
                                                              {vn::texto::ZH, "<165180>m3"},
                                                              {vn::texto::RU, "<165180>\xEC"
                                                                              "3"},
                                                              {vn::texto::PL, "<165180>m3"},
                                                              {vn::texto::JA, "<165180>m3"},
                                                          });

// cubic metre over a kilometre
constexpr auto MENSAJE_165185 = vn::texto::mensaje_u("unidades.msg", 9,
                                                     {
                                                         {vn::texto::ES, VNU("<165185>m³·km")},
                                                         {vn::texto::EN, VNU("<165185>m³·km")},
                                                         {vn::texto::BG, VNU("<165185>м³·км")},
                                                         {vn::texto::RU, VNU("<165185>м³·км")},
                                                     });
constexpr auto MENSAJE_165185_ANSI = vn::texto::mensaje_a("unidades.msg", 9,
                                                          {
                                                              {vn::texto::ES, "<165185>m\xB3\xB7km"},
                                                              {vn::texto::EN, "<165185>m\xB3\xB7km"},
                                                              {vn::texto::BG, "<165185>\xEC"
                                                                              "3\xB7\xEA\xEC"},
                                                              {vn::texto::RO, "<165185>m3\xB7km"},
                                                              {vn::texto::ZH, "<165185>m3\xA1\xA4km"},
                                                              {vn::texto::RU, "<165185>\xEC"
                                                                              "3\xB7\xEA\xEC"},
                                                              {vn::texto::PL, "<165185>m3\xB7km"},
                                                              {vn::texto::JA, "<165185>m3.km"},
                                                          });

// tonne
constexpr auto MENSAJE_165183 = vn::texto::mensaje_u("unidades.msg", 10,
                                                     {
                                                         {vn::texto::ES, VNU("<165183>t")},
                                                         {vn::texto::EN, VNU("<165183>t")},
                                                         {vn::texto::BG, VNU("<165183>т")},
                                                         {vn::texto::RU, VNU("<165183>т")},
                                                     });

// tonne over a kilometre
constexpr auto MENSAJE_165184 = vn::texto::mensaje_u("unidades.msg", 11,
                                                     {
                                                         {vn::texto::ES, VNU("<165184>t·km")},
                                                         {vn::texto::EN, VNU("<165184>t·km")},
                                                         {vn::texto::BG, VNU("<165184>т·км")},
                                                         {vn::texto::RU, VNU("<165184>т·км")},
                                                     });
constexpr auto MENSAJE_165184_ANSI = vn::texto::mensaje_a("unidades.msg", 11,
                                                          {
                                                              {vn::texto::ES, "<165184>t\xB7km"},
                                                              {vn::texto::EN, "<165184>t\xB7km"},
                                                              {vn::texto::BG, "<165184>\xF2\xB7\xEA\xEC"},
                                                              {vn::texto::ZH, "<165184>t\xA1\xA4km"},
                                                              {vn::texto::RU, "<165184>\xF2\xB7\xEA\xEC"},
                                                              {vn::texto::JA, "<165184>t.km"},
                                                          });

} // namespace

void unidades_msg_165177(vnmensaje *mensaje) { MENSAJE_165177.rellena(mensaje); }
void unidades_msg_165177_ansi(vnmensaje *mensaje) { vn::texto::mensaje_ansi<MENSAJE_165177>().rellena(mensaje); }
void unidades_msg_165181(vnmensaje *mensaje) { MENSAJE_165181.rellena(mensaje); }
void unidades_msg_165181_ansi(vnmensaje *mensaje) { vn::texto::mensaje_ansi<MENSAJE_165181>().rellena(mensaje); }
void unidades_msg_157616(vnmensaje *mensaje) { MENSAJE_157616.rellena(mensaje); }
void unidades_msg_157616_ansi(vnmensaje *mensaje) { vn::texto::mensaje_ansi<MENSAJE_157616>().rellena(mensaje); }
void unidades_msg_165187(vnmensaje *mensaje) { MENSAJE_165187.rellena(mensaje); }
void unidades_msg_165187_ansi(vnmensaje *mensaje) { vn::texto::mensaje_ansi<MENSAJE_165187>().rellena(mensaje); }
void unidades_msg_165186(vnmensaje *mensaje) { MENSAJE_165186.rellena(mensaje); }
void unidades_msg_165186_ansi(vnmensaje *mensaje) { vn::texto::mensaje_ansi<MENSAJE_165186>().rellena(mensaje); }
void unidades_msg_40344(vnmensaje *mensaje) { MENSAJE_40344.rellena(mensaje); }
void unidades_msg_40344_ansi(vnmensaje *mensaje) { vn::texto::mensaje_ansi<MENSAJE_40344>().rellena(mensaje); }
void unidades_msg_165179(vnmensaje *mensaje) { MENSAJE_165179.rellena(mensaje); }
void unidades_msg_165179_ansi(vnmensaje *mensaje) { MENSAJE_165179_ANSI.rellena(mensaje); }
void unidades_msg_165180(vnmensaje *mensaje) { MENSAJE_165180.rellena(mensaje); }
void unidades_msg_165180_ansi(vnmensaje *mensaje) { MENSAJE_165180_ANSI.rellena(mensaje); }
void unidades_msg_165185(vnmensaje *mensaje) { MENSAJE_165185.rellena(mensaje); }
void unidades_msg_165185_ansi(vnmensaje *mensaje) { MENSAJE_165185_ANSI.rellena(mensaje); }
void unidades_msg_165183(vnmensaje *mensaje) { MENSAJE_165183.rellena(mensaje); }
void unidades_msg_165183_ansi(vnmensaje *mensaje) { vn::texto::mensaje_ansi<MENSAJE_165183>().rellena(mensaje); }
void unidades_msg_165184(vnmensaje *mensaje) { MENSAJE_165184.rellena(mensaje); }
void unidades_msg_165184_ansi(vnmensaje *mensaje) { MENSAJE_165184_ANSI.rellena(mensaje); }
