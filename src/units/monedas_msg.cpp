#define VN_MODULO "monedas (NUCLEOS.DLL)"
#include "foundation/texto/msglocal_int.h"
#include "units/monedas_msg_priv.h"

namespace {

constexpr auto MENSAJE_124345 = vn::texto::mensaje_u("monedas.msg", 1,
                                                     {
                                                         {vn::texto::ES, VNU("<124345>Ptas")},
                                                         {vn::texto::FR, VNU("<124345>Ptas")},
                                                         {vn::texto::PT_BR, VNU("<124345>Ptas")},
                                                         {vn::texto::PT, VNU("<124345>Ptas")},
                                                         {vn::texto::CA, VNU("<124345>Ptes")},
                                                         {vn::texto::IT, VNU("<124345>Ptas")},
                                                         {vn::texto::EN, VNU("<124345>Ptas")},
                                                         {vn::texto::GL, VNU("<124345>Ptas")},
                                                         {vn::texto::BG, VNU("<124345>песети")},
                                                         {vn::texto::RO, VNU("<124345>pesete")},
                                                         {vn::texto::ZH, VNU("<124345>比塞塔")},
                                                         {vn::texto::DE, VNU("<124345>Peseten")},
                                                         {vn::texto::RU, VNU("<124345>песет")},
                                                         {vn::texto::PL, VNU("<124345>peset")},
                                                         {vn::texto::TR, VNU("<124345>peseta")},
                                                         {vn::texto::JA, VNU("<124345>ペセタ")},
                                                     });

constexpr auto MENSAJE_124346 = vn::texto::mensaje_u("monedas.msg", 2,
                                                     {
                                                         {vn::texto::ES, VNU("<124346>euros")},
                                                         {vn::texto::FR, VNU("<124346>euros")},
                                                         {vn::texto::PT_BR, VNU("<124346>euros")},
                                                         {vn::texto::PT, VNU("<124346>euros")},
                                                         {vn::texto::CA, VNU("<124346>euros")},
                                                         {vn::texto::IT, VNU("<124346>euro")},
                                                         {vn::texto::EN, VNU("<124346>euros")},
                                                         {vn::texto::GL, VNU("<124346>euros")},
                                                         {vn::texto::BG, VNU("<124346>евро")},
                                                         {vn::texto::RO, VNU("<124346>euro")},
                                                         {vn::texto::ZH, VNU("<124346>欧元")},
                                                         {vn::texto::DE, VNU("<124346>Euro")},
                                                         {vn::texto::RU, VNU("<124346>евро")},
                                                         {vn::texto::PL, VNU("<124346>euro")},
                                                         {vn::texto::TR, VNU("<124346>avro")},
                                                         {vn::texto::JA, VNU("<124346>ユーロ")},
                                                     });

} // namespace

void monedas_msg_124345(vnmensaje *mensaje) { MENSAJE_124345.rellena(mensaje); }
void monedas_msg_124346(vnmensaje *mensaje) { MENSAJE_124346.rellena(mensaje); }
