#define VN_MODULO "ultiobra (NUCLEOS.DLL)"
#include "foundation/texto/msglocal_int.h"
#include "persistence/ultiobra_msg_priv.h"

namespace {

constexpr auto MENSAJE_160946 = vn::texto::mensaje_u(
    "ultiobra.msg", 1,
    {
        {vn::texto::ES, VNU("<160946>El fichero o ficheros relativos a '%s' de la lista de últimos ficheros abiertos, "
                            "ya no existen, o bien no se puede acceder a ellos.")},
        {vn::texto::FR, VNU("<160946>Le ou les fichiers relatifs à '%s' de la liste des derniers fichiers ouverts "
                            "n'existent plus ou ne sont pas accessibles.")},
        {vn::texto::PT_BR, VNU("<160946>O arquivo ou arquivos relativos a '%s' da lista de últimos arquivos abertos já "
                               "não existem ou não podem ser acessados.")},
        {vn::texto::PT, VNU("<160946>O ficheiro ou ficheiros relativos a '%s' da lista dos últimos ficheiros abertos "
                            "já não existem ou não é possível aceder a eles.")},
        {vn::texto::CA, VNU("<160946>El fitxer o fitxers relatius a '%s' de la llista d'últims fitxers oberts ja no "
                            "existeixen o bé no s'hi pot accedir.")},
        {vn::texto::IT, VNU("<160946>Il file o i file relativi a '%s' dell'elenco degli ultimi file aperti non "
                            "esistono più oppure non è possibile accedervi.")},
        {vn::texto::ES_AM, VNU("<160946>El archivo o archivos relativos a '%s' de la lista de últimos archivos "
                               "abiertos ya no existen, o bien no se puede acceder a ellos.")},
        {vn::texto::EN, VNU("<160946>The file or files of '%s' in the list of recently opened files no longer exist or "
                            "cannot be accessed.")},
        {vn::texto::GL, VNU("<160946>O ficheiro ou ficheiros relativos a '%s' da lista de últimos ficheiros abertos xa "
                            "non existen, ou ben non se pode acceder a eles.")},
        {vn::texto::BG, VNU("<160946>Файлът или файловете на '%s' от списъка с последно отворени файлове вече не "
                            "съществуват или нямате достъп до тях.")},
        {vn::texto::RO, VNU("<160946>Fișierul sau fișierele corespunzătoare '%s' din lista ultimelor fișiere deschise "
                            "nu mai există sau nu pot fi accesate.")},
        {vn::texto::ZH, VNU("<160946>最近打开的文件列表中与“%s”相关的文件已不存在或无法访问。")},
        {vn::texto::DE, VNU("<160946>Die Datei oder die Dateien zu '%s' in der Liste der zuletzt geöffneten Dateien "
                            "sind nicht mehr vorhanden oder nicht zugänglich.")},
        {vn::texto::RU, VNU("<160946>Файл или файлы, относящиеся к '%s' в списке последних открытых файлов, больше не "
                            "существуют или недоступны.")},
        {vn::texto::PL, VNU("<160946>Plik lub pliki dotyczące '%s' z listy ostatnio otwartych plików już nie istnieją "
                            "lub nie można uzyskać do nich dostępu.")},
        {vn::texto::TR, VNU("<160946>Son açılan dosyalar listesindeki '%s' ile ilgili dosya veya dosyalar artık mevcut "
                            "değil ya da bunlara erişilemiyor.")},
        {vn::texto::JA, VNU("<160946>最近開いたファイルの一覧にある「%"
                            "s」に関連するファイルは、もう存在しないか、アクセスできません。")},
    });

constexpr auto MENSAJE_160947 =
    vn::texto::mensaje_u("ultiobra.msg", 2,
                         {
                             {vn::texto::ES, VNU("<160947>¿Desea eliminar esta entrada de la lista?")},
                             {vn::texto::FR, VNU("<160947>Souhaitez-vous supprimer cette entrée de la liste ?")},
                             {vn::texto::PT_BR, VNU("<160947>Deseja excluir esta entrada da lista?")},
                             {vn::texto::PT, VNU("<160947>Deseja eliminar esta entrada da lista?")},
                             {vn::texto::CA, VNU("<160947>Voleu eliminar aquesta entrada de la llista?")},
                             {vn::texto::IT, VNU("<160947>Eliminare questa voce dall'elenco?")},
                             {vn::texto::EN, VNU("<160947>Do you want to delete this entry from the list?")},
                             {vn::texto::GL, VNU("<160947>Desexa eliminar esta entrada da lista?")},
                             {vn::texto::BG, VNU("<160947>Искате ли да изтриете този запис от списъка?")},
                             {vn::texto::RO, VNU("<160947>Doriți să ștergeți această intrare din listă?")},
                             {vn::texto::ZH, VNU("<160947>是否要从列表中删除此条目？")},
                             {vn::texto::DE, VNU("<160947>Möchten Sie diesen Eintrag aus der Liste löschen?")},
                             {vn::texto::RU, VNU("<160947>Удалить эту запись из списка?")},
                             {vn::texto::PL, VNU("<160947>Czy chcesz usunąć tę pozycję z listy?")},
                             {vn::texto::TR, VNU("<160947>Bu girdiyi listeden silmek istiyor musunuz?")},
                             {vn::texto::JA, VNU("<160947>この項目を一覧から削除しますか？")},
                         });

} // namespace

void ultiobra_msg_160946(vnmensaje *mensaje) { MENSAJE_160946.rellena(mensaje); }
void ultiobra_msg_160947(vnmensaje *mensaje) { MENSAJE_160947.rellena(mensaje); }
