#define VN_MODULO "vornbin (NUCLEOS.DLL)"
#include "foundation/texto/msglocal_int.h"
#include "persistence/vornbin_msg_priv.h"

namespace {

constexpr auto MENSAJE_32342 = vn::texto::mensaje_u(
    "vornbin.msg", 4,
    {
        {vn::texto::ES,
         VNU("<32342>El fichero %s está grabado con una versión superior a la que puede leer este programa.")},
        {vn::texto::FR,
         VNU("<32342>Le fichier %s a été enregistré avec une version supérieure à celle que ce programme peut lire.")},
        {vn::texto::PT_BR,
         VNU("<32342>O arquivo %s foi gravado com uma versão superior à que este programa pode ler.")},
        {vn::texto::PT,
         VNU("<32342>O ficheiro %s foi gravado com uma versão superior à que este programa consegue ler.")},
        {vn::texto::CA,
         VNU("<32342>El fitxer %s està desat amb una versió superior a la que pot llegir aquest programa.")},
        {vn::texto::IT, VNU("<32342>Il file %s è stato salvato con una versione superiore a quella che questo "
                            "programma può leggere.")},
        {vn::texto::ES_AM,
         VNU("<32342>El archivo %s está grabado con una versión superior a la que puede leer este programa.")},
        {vn::texto::EN, VNU("<32342>The file %s was saved with a later version than this program can read.")},
        {vn::texto::GL, VNU("<32342>O ficheiro %s está gravado cunha versión superior á que pode ler este programa.")},
        {vn::texto::BG,
         VNU("<32342>Файлът %s е записан с по-нова версия от тази, която може да прочете тази програма.")},
        {vn::texto::RO,
         VNU("<32342>Fișierul %s a fost salvat cu o versiune superioară celei pe care o poate citi acest program.")},
        {vn::texto::ZH, VNU("<32342>文件 %s 是用更高的版本保存的，本程序无法读取。")},
        {vn::texto::DE,
         VNU("<32342>Die Datei %s wurde mit einer neueren Version gespeichert, als dieses Programm lesen kann.")},
        {vn::texto::RU,
         VNU("<32342>Файл %s сохранён в более новой версии, чем та, которую может прочитать эта программа.")},
        {vn::texto::PL,
         VNU("<32342>Plik %s został zapisany w wersji nowszej niż ta, którą może odczytać ten program.")},
        {vn::texto::TR, VNU("<32342>%s dosyası, bu programın okuyabileceğinden daha yeni bir sürümle kaydedilmiş.")},
        {vn::texto::JA,
         VNU("<32342>ファイル %s は、このプログラムで読み取れるバージョンより新しいバージョンで保存されています。")},
    });

} // namespace

void vornbin_msg_32342(vnmensaje *mensaje) { MENSAJE_32342.rellena(mensaje); }
