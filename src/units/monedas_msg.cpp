#define VN_MODULO "monedas (NUCLEOS.DLL)"
#include "foundation/texto/msglocal_int.h"
#include "units/monedas_msg_priv.h"

namespace {

constexpr auto MENSAJE_124345 = vn::mensaje_u("monedas.msg", 1,
                                              {
                                                  {vn::ES, VNU("<124345>Ptas")},
                                                  {vn::FR, VNU("<124345>Ptas")},
                                                  {vn::PT_BR, VNU("<124345>Ptas")},
                                                  {vn::PT, VNU("<124345>Ptas")},
                                                  {vn::CA, VNU("<124345>Ptes")},
                                                  {vn::IT, VNU("<124345>Ptas")},
                                                  {vn::EN, VNU("<124345>Ptas")},
                                                  {vn::GL, VNU("<124345>Ptas")},
                                                  {vn::BG, VNU("<124345>песети")},
                                                  {vn::RO, VNU("<124345>pesete")},
                                                  {vn::ZH, VNU("<124345>比塞塔")},
                                                  {vn::DE, VNU("<124345>Peseten")},
                                                  {vn::RU, VNU("<124345>песет")},
                                                  {vn::PL, VNU("<124345>peset")},
                                                  {vn::TR, VNU("<124345>peseta")},
                                                  {vn::JA, VNU("<124345>ペセタ")},
                                              });

constexpr auto MENSAJE_124346 = vn::mensaje_u("monedas.msg", 2,
                                              {
                                                  {vn::ES, VNU("<124346>euros")},
                                                  {vn::FR, VNU("<124346>euros")},
                                                  {vn::PT_BR, VNU("<124346>euros")},
                                                  {vn::PT, VNU("<124346>euros")},
                                                  {vn::CA, VNU("<124346>euros")},
                                                  {vn::IT, VNU("<124346>euro")},
                                                  {vn::EN, VNU("<124346>euros")},
                                                  {vn::GL, VNU("<124346>euros")},
                                                  {vn::BG, VNU("<124346>евро")},
                                                  {vn::RO, VNU("<124346>euro")},
                                                  {vn::ZH, VNU("<124346>欧元")},
                                                  {vn::DE, VNU("<124346>Euro")},
                                                  {vn::RU, VNU("<124346>евро")},
                                                  {vn::PL, VNU("<124346>euro")},
                                                  {vn::TR, VNU("<124346>avro")},
                                                  {vn::JA, VNU("<124346>ユーロ")},
                                              });

} // namespace

void monedas_msg_124345(vnmensaje *mensaje) { MENSAJE_124345.rellena(mensaje); }
void monedas_msg_124346(vnmensaje *mensaje) { MENSAJE_124346.rellena(mensaje); }
