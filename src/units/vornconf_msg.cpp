#define VN_MODULO "vornconf (NUCLEOS.DLL)"
#include "foundation/texto/msglocal_int.h"
#include "units/vornconf_msg_priv.h"

// Romanian with the cedillas that its ANSI page has.

namespace {

constexpr auto TEXTO_32343 = vn::texto::mensaje_u("vornconf.msg", 1,
                                                  {
                                                      {vn::texto::ES, VNU("<32343>Sistema de unidades")},
                                                      {vn::texto::FR, VNU("<32343>Système d'unités")},
                                                      {vn::texto::PT_BR, VNU("<32343>Sistema de unidades")},
                                                      {vn::texto::PT, VNU("<32343>Sistema de unidades")},
                                                      {vn::texto::CA, VNU("<32343>Sistema d'unitats")},
                                                      {vn::texto::IT, VNU("<32343>Sistema di unità")},
                                                      {vn::texto::EN, VNU("<32343>System of units")},
                                                      {vn::texto::GL, VNU("<32343>Sistema de unidades")},
                                                      {vn::texto::BG, VNU("<32343>Система единици")},
                                                      {vn::texto::RO, VNU("<32343>Sistem de unităţi")},
                                                      {vn::texto::ZH, VNU("<32343>单位制")},
                                                      {vn::texto::DE, VNU("<32343>Einheitensystem")},
                                                      {vn::texto::RU, VNU("<32343>Система единиц")},
                                                      {vn::texto::PL, VNU("<32343>Układ jednostek")},
                                                      {vn::texto::TR, VNU("<32343>Birim sistemi")},
                                                      {vn::texto::JA, VNU("<32343>単位系")},
                                                  });

constexpr auto TEXTO_53941 = vn::texto::mensaje_u("vornconf.msg", 2,
                                                  {
                                                      {vn::texto::ES, VNU("<53941>M.K.S.")},
                                                      {vn::texto::PT_BR, VNU("<53941>M.K.S. (m.tf.s.)")},
                                                      {vn::texto::EN, VNU("<53941>M.K.S.")},
                                                  });

constexpr auto TEXTO_53942 = vn::texto::mensaje_u("vornconf.msg", 3,
                                                  {
                                                      {vn::texto::ES, VNU("<53942>Sistema Internacional")},
                                                      {vn::texto::FR, VNU("<53942>Système international")},
                                                      {vn::texto::PT_BR, VNU("<53942>Sistema Internacional")},
                                                      {vn::texto::PT, VNU("<53942>Sistema Internacional")},
                                                      {vn::texto::CA, VNU("<53942>Sistema Internacional")},
                                                      {vn::texto::IT, VNU("<53942>Sistema internazionale")},
                                                      {vn::texto::EN, VNU("<53942>International System")},
                                                      {vn::texto::GL, VNU("<53942>Sistema Internacional")},
                                                      {vn::texto::BG, VNU("<53942>Международна система")},
                                                      {vn::texto::RO, VNU("<53942>Sistemul internaţional")},
                                                      {vn::texto::ZH, VNU("<53942>国际单位制")},
                                                      {vn::texto::DE, VNU("<53942>Internationales Einheitensystem")},
                                                      {vn::texto::RU, VNU("<53942>Международная система")},
                                                      {vn::texto::PL, VNU("<53942>Układ międzynarodowy")},
                                                      {vn::texto::TR, VNU("<53942>Uluslararası Sistem")},
                                                      {vn::texto::JA, VNU("<53942>国際単位系")},
                                                  });

constexpr auto TEXTO_53943 = vn::texto::mensaje_u("vornconf.msg", 4,
                                                  {
                                                      {vn::texto::ES, VNU("<53943>Unidades Inglesas")},
                                                      {vn::texto::FR, VNU("<53943>Unités anglo-saxonnes")},
                                                      {vn::texto::PT_BR, VNU("<53943>Unidades Inglesas")},
                                                      {vn::texto::PT, VNU("<53943>Unidades Inglesas")},
                                                      {vn::texto::CA, VNU("<53943>Unitats angleses")},
                                                      {vn::texto::IT, VNU("<53943>Unità anglosassoni")},
                                                      {vn::texto::EN, VNU("<53943>Imperial units")},
                                                      {vn::texto::GL, VNU("<53943>Unidades inglesas")},
                                                      {vn::texto::BG, VNU("<53943>Английски единици")},
                                                      {vn::texto::RO, VNU("<53943>Unităţi anglo-saxone")},
                                                      {vn::texto::ZH, VNU("<53943>英制单位")},
                                                      {vn::texto::DE, VNU("<53943>Angloamerikanische Einheiten")},
                                                      {vn::texto::RU, VNU("<53943>Английские единицы")},
                                                      {vn::texto::PL, VNU("<53943>Jednostki anglosaskie")},
                                                      {vn::texto::TR, VNU("<53943>İngiliz birimleri")},
                                                      {vn::texto::JA, VNU("<53943>ヤード・ポンド法")},
                                                  });

constexpr auto TEXTO_53944 = vn::texto::mensaje_u("vornconf.msg", 5,
                                                  {
                                                      {vn::texto::ES, VNU("<53944>julio, J")},
                                                      {vn::texto::FR, VNU("<53944>joule, J")},
                                                      {vn::texto::PT_BR, VNU("<53944>joule, J")},
                                                      {vn::texto::PT, VNU("<53944>joule, J")},
                                                      {vn::texto::CA, VNU("<53944>joule, J")},
                                                      {vn::texto::IT, VNU("<53944>joule, J")},
                                                      {vn::texto::EN, VNU("<53944>joule, J")},
                                                      {vn::texto::GL, VNU("<53944>joule, J")},
                                                      {vn::texto::BG, VNU("<53944>джаул, J")},
                                                      {vn::texto::RO, VNU("<53944>joule, J")},
                                                      {vn::texto::ZH, VNU("<53944>焦耳, J")},
                                                      {vn::texto::DE, VNU("<53944>Joule, J")},
                                                      {vn::texto::RU, VNU("<53944>джоуль, Дж")},
                                                      {vn::texto::PL, VNU("<53944>dżul, J")},
                                                      {vn::texto::TR, VNU("<53944>jul, J")},
                                                      {vn::texto::JA, VNU("<53944>ジュール, J")},
                                                  });

constexpr auto TEXTO_53945 = vn::texto::mensaje_u("vornconf.msg", 6,
                                                  {
                                                      {vn::texto::ES, VNU("<53945>kilocaloría, kcal")},
                                                      {vn::texto::FR, VNU("<53945>kilocalorie, kcal")},
                                                      {vn::texto::PT_BR, VNU("<53945>quilocaloria, kcal")},
                                                      {vn::texto::PT, VNU("<53945>quilocaloria, kcal")},
                                                      {vn::texto::CA, VNU("<53945>quilocaloria, kcal")},
                                                      {vn::texto::IT, VNU("<53945>chilocaloria, kcal")},
                                                      {vn::texto::EN, VNU("<53945>kilocalorie, kcal")},
                                                      {vn::texto::GL, VNU("<53945>quilocaloría, kcal")},
                                                      {vn::texto::BG, VNU("<53945>килокалория, kcal")},
                                                      {vn::texto::RO, VNU("<53945>kilocalorie, kcal")},
                                                      {vn::texto::ZH, VNU("<53945>千卡, kcal")},
                                                      {vn::texto::DE, VNU("<53945>Kilokalorie, kcal")},
                                                      {vn::texto::RU, VNU("<53945>килокалория, ккал")},
                                                      {vn::texto::PL, VNU("<53945>kilokaloria, kcal")},
                                                      {vn::texto::TR, VNU("<53945>kilokalori, kcal")},
                                                      {vn::texto::JA, VNU("<53945>キロカロリー, kcal")},
                                                  });

constexpr auto TEXTO_53946 = vn::texto::mensaje_u("vornconf.msg", 7,
                                                  {
                                                      {vn::texto::ES, VNU("<53946>unidad térmica británica, Btu")},
                                                      {vn::texto::FR, VNU("<53946>unité thermique britannique, Btu")},
                                                      {vn::texto::PT_BR, VNU("<53946>unidade térmica britânica, Btu")},
                                                      {vn::texto::PT, VNU("<53946>unidade térmica britânica, Btu")},
                                                      {vn::texto::CA, VNU("<53946>unitat tèrmica britànica, Btu")},
                                                      {vn::texto::IT, VNU("<53946>unità termica britannica, Btu")},
                                                      {vn::texto::EN, VNU("<53946>British thermal unit, Btu")},
                                                      {vn::texto::GL, VNU("<53946>unidade térmica británica, Btu")},
                                                      {vn::texto::BG, VNU("<53946>британска топлинна единица, Btu")},
                                                      {vn::texto::RO, VNU("<53946>unitate termică britanică, Btu")},
                                                      {vn::texto::ZH, VNU("<53946>英热单位, Btu")},
                                                      {vn::texto::DE, VNU("<53946>britische Wärmeeinheit, Btu")},
                                                      {vn::texto::RU, VNU("<53946>британская тепловая единица, Btu")},
                                                      {vn::texto::PL, VNU("<53946>brytyjska jednostka cieplna, Btu")},
                                                      {vn::texto::TR, VNU("<53946>İngiliz ısı birimi, Btu")},
                                                      {vn::texto::JA, VNU("<53946>英国熱量単位, Btu")},
                                                  });

} // namespace

void vornconf_msg_32343(vnmensaje *mensaje) { vn::texto::mensaje_ansi<TEXTO_32343>().rellena(mensaje); }
void vornconf_msg_53941(vnmensaje *mensaje) { vn::texto::mensaje_ansi<TEXTO_53941>().rellena(mensaje); }
void vornconf_msg_53942(vnmensaje *mensaje) { vn::texto::mensaje_ansi<TEXTO_53942>().rellena(mensaje); }
void vornconf_msg_53943(vnmensaje *mensaje) { vn::texto::mensaje_ansi<TEXTO_53943>().rellena(mensaje); }
void vornconf_msg_53944(vnmensaje *mensaje) { vn::texto::mensaje_ansi<TEXTO_53944>().rellena(mensaje); }
void vornconf_msg_53945(vnmensaje *mensaje) { vn::texto::mensaje_ansi<TEXTO_53945>().rellena(mensaje); }
void vornconf_msg_53946(vnmensaje *mensaje) { vn::texto::mensaje_ansi<TEXTO_53946>().rellena(mensaje); }
