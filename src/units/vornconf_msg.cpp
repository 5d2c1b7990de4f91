#define VN_MODULO "vornconf (NUCLEOS.DLL)"
#include "foundation/texto/msglocal_int.h"
#include "units/vornconf_msg_priv.h"

// Romanian with the cedillas that its ANSI page has.

namespace {

constexpr auto TEXTO_32343 = vn::mensaje_u("vornconf.msg", 1,
                                           {
                                               {vn::ES, VNU("<32343>Sistema de unidades")},
                                               {vn::FR, VNU("<32343>Système d'unités")},
                                               {vn::PT_BR, VNU("<32343>Sistema de unidades")},
                                               {vn::PT, VNU("<32343>Sistema de unidades")},
                                               {vn::CA, VNU("<32343>Sistema d'unitats")},
                                               {vn::IT, VNU("<32343>Sistema di unità")},
                                               {vn::EN, VNU("<32343>System of units")},
                                               {vn::GL, VNU("<32343>Sistema de unidades")},
                                               {vn::BG, VNU("<32343>Система единици")},
                                               {vn::RO, VNU("<32343>Sistem de unităţi")},
                                               {vn::ZH, VNU("<32343>单位制")},
                                               {vn::DE, VNU("<32343>Einheitensystem")},
                                               {vn::RU, VNU("<32343>Система единиц")},
                                               {vn::PL, VNU("<32343>Układ jednostek")},
                                               {vn::TR, VNU("<32343>Birim sistemi")},
                                               {vn::JA, VNU("<32343>単位系")},
                                           });

constexpr auto TEXTO_53941 = vn::mensaje_u("vornconf.msg", 2,
                                           {
                                               {vn::ES, VNU("<53941>M.K.S.")},
                                               {vn::PT_BR, VNU("<53941>M.K.S. (m.tf.s.)")},
                                               {vn::EN, VNU("<53941>M.K.S.")},
                                           });

constexpr auto TEXTO_53942 = vn::mensaje_u("vornconf.msg", 3,
                                           {
                                               {vn::ES, VNU("<53942>Sistema Internacional")},
                                               {vn::FR, VNU("<53942>Système international")},
                                               {vn::PT_BR, VNU("<53942>Sistema Internacional")},
                                               {vn::PT, VNU("<53942>Sistema Internacional")},
                                               {vn::CA, VNU("<53942>Sistema Internacional")},
                                               {vn::IT, VNU("<53942>Sistema internazionale")},
                                               {vn::EN, VNU("<53942>International System")},
                                               {vn::GL, VNU("<53942>Sistema Internacional")},
                                               {vn::BG, VNU("<53942>Международна система")},
                                               {vn::RO, VNU("<53942>Sistemul internaţional")},
                                               {vn::ZH, VNU("<53942>国际单位制")},
                                               {vn::DE, VNU("<53942>Internationales Einheitensystem")},
                                               {vn::RU, VNU("<53942>Международная система")},
                                               {vn::PL, VNU("<53942>Układ międzynarodowy")},
                                               {vn::TR, VNU("<53942>Uluslararası Sistem")},
                                               {vn::JA, VNU("<53942>国際単位系")},
                                           });

constexpr auto TEXTO_53943 = vn::mensaje_u("vornconf.msg", 4,
                                           {
                                               {vn::ES, VNU("<53943>Unidades Inglesas")},
                                               {vn::FR, VNU("<53943>Unités anglo-saxonnes")},
                                               {vn::PT_BR, VNU("<53943>Unidades Inglesas")},
                                               {vn::PT, VNU("<53943>Unidades Inglesas")},
                                               {vn::CA, VNU("<53943>Unitats angleses")},
                                               {vn::IT, VNU("<53943>Unità anglosassoni")},
                                               {vn::EN, VNU("<53943>Imperial units")},
                                               {vn::GL, VNU("<53943>Unidades inglesas")},
                                               {vn::BG, VNU("<53943>Английски единици")},
                                               {vn::RO, VNU("<53943>Unităţi anglo-saxone")},
                                               {vn::ZH, VNU("<53943>英制单位")},
                                               {vn::DE, VNU("<53943>Angloamerikanische Einheiten")},
                                               {vn::RU, VNU("<53943>Английские единицы")},
                                               {vn::PL, VNU("<53943>Jednostki anglosaskie")},
                                               {vn::TR, VNU("<53943>İngiliz birimleri")},
                                               {vn::JA, VNU("<53943>ヤード・ポンド法")},
                                           });

constexpr auto TEXTO_53944 = vn::mensaje_u("vornconf.msg", 5,
                                           {
                                               {vn::ES, VNU("<53944>julio, J")},
                                               {vn::FR, VNU("<53944>joule, J")},
                                               {vn::PT_BR, VNU("<53944>joule, J")},
                                               {vn::PT, VNU("<53944>joule, J")},
                                               {vn::CA, VNU("<53944>joule, J")},
                                               {vn::IT, VNU("<53944>joule, J")},
                                               {vn::EN, VNU("<53944>joule, J")},
                                               {vn::GL, VNU("<53944>joule, J")},
                                               {vn::BG, VNU("<53944>джаул, J")},
                                               {vn::RO, VNU("<53944>joule, J")},
                                               {vn::ZH, VNU("<53944>焦耳, J")},
                                               {vn::DE, VNU("<53944>Joule, J")},
                                               {vn::RU, VNU("<53944>джоуль, Дж")},
                                               {vn::PL, VNU("<53944>dżul, J")},
                                               {vn::TR, VNU("<53944>jul, J")},
                                               {vn::JA, VNU("<53944>ジュール, J")},
                                           });

constexpr auto TEXTO_53945 = vn::mensaje_u("vornconf.msg", 6,
                                           {
                                               {vn::ES, VNU("<53945>kilocaloría, kcal")},
                                               {vn::FR, VNU("<53945>kilocalorie, kcal")},
                                               {vn::PT_BR, VNU("<53945>quilocaloria, kcal")},
                                               {vn::PT, VNU("<53945>quilocaloria, kcal")},
                                               {vn::CA, VNU("<53945>quilocaloria, kcal")},
                                               {vn::IT, VNU("<53945>chilocaloria, kcal")},
                                               {vn::EN, VNU("<53945>kilocalorie, kcal")},
                                               {vn::GL, VNU("<53945>quilocaloría, kcal")},
                                               {vn::BG, VNU("<53945>килокалория, kcal")},
                                               {vn::RO, VNU("<53945>kilocalorie, kcal")},
                                               {vn::ZH, VNU("<53945>千卡, kcal")},
                                               {vn::DE, VNU("<53945>Kilokalorie, kcal")},
                                               {vn::RU, VNU("<53945>килокалория, ккал")},
                                               {vn::PL, VNU("<53945>kilokaloria, kcal")},
                                               {vn::TR, VNU("<53945>kilokalori, kcal")},
                                               {vn::JA, VNU("<53945>キロカロリー, kcal")},
                                           });

constexpr auto TEXTO_53946 = vn::mensaje_u("vornconf.msg", 7,
                                           {
                                               {vn::ES, VNU("<53946>unidad térmica británica, Btu")},
                                               {vn::FR, VNU("<53946>unité thermique britannique, Btu")},
                                               {vn::PT_BR, VNU("<53946>unidade térmica britânica, Btu")},
                                               {vn::PT, VNU("<53946>unidade térmica britânica, Btu")},
                                               {vn::CA, VNU("<53946>unitat tèrmica britànica, Btu")},
                                               {vn::IT, VNU("<53946>unità termica britannica, Btu")},
                                               {vn::EN, VNU("<53946>British thermal unit, Btu")},
                                               {vn::GL, VNU("<53946>unidade térmica británica, Btu")},
                                               {vn::BG, VNU("<53946>британска топлинна единица, Btu")},
                                               {vn::RO, VNU("<53946>unitate termică britanică, Btu")},
                                               {vn::ZH, VNU("<53946>英热单位, Btu")},
                                               {vn::DE, VNU("<53946>britische Wärmeeinheit, Btu")},
                                               {vn::RU, VNU("<53946>британская тепловая единица, Btu")},
                                               {vn::PL, VNU("<53946>brytyjska jednostka cieplna, Btu")},
                                               {vn::TR, VNU("<53946>İngiliz ısı birimi, Btu")},
                                               {vn::JA, VNU("<53946>英国熱量単位, Btu")},
                                           });

} // namespace

void vornconf_msg_32343(vnmensaje *mensaje) { vn::mensaje_ansi<TEXTO_32343>().rellena(mensaje); }
void vornconf_msg_53941(vnmensaje *mensaje) { vn::mensaje_ansi<TEXTO_53941>().rellena(mensaje); }
void vornconf_msg_53942(vnmensaje *mensaje) { vn::mensaje_ansi<TEXTO_53942>().rellena(mensaje); }
void vornconf_msg_53943(vnmensaje *mensaje) { vn::mensaje_ansi<TEXTO_53943>().rellena(mensaje); }
void vornconf_msg_53944(vnmensaje *mensaje) { vn::mensaje_ansi<TEXTO_53944>().rellena(mensaje); }
void vornconf_msg_53945(vnmensaje *mensaje) { vn::mensaje_ansi<TEXTO_53945>().rellena(mensaje); }
void vornconf_msg_53946(vnmensaje *mensaje) { vn::mensaje_ansi<TEXTO_53946>().rellena(mensaje); }
