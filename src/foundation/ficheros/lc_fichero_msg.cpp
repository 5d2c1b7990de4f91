#define VN_MODULO "lc_fichero (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/suelo/afirma_int.h"
#include "foundation/ficheros/lc_fichero.h"
#include "foundation/texto/msglocal_int.h"
#include <iterator>

// Why a file could not be opened, read or saved, in the order of vnerror_fichero: what follows the file's name in a line.

namespace {

using namespace vn;

constexpr grupo_de_textos<vnwchar> MOTIVOS[] = {
    mensaje_u("lc_fichero.msg", 0, {{ES, VNU("")}, {EN, VNU("")}}),
    mensaje_u("lc_fichero.msg", 1, {
        {ES, VNU("no queda espacio")}, {FR, VNU("il n'y a plus de place")}, {PT_BR, VNU("não há mais espaço")},
        {PT, VNU("não há mais espaço")}, {CA, VNU("no queda espai")}, {IT, VNU("spazio esaurito")},
        {EN, VNU("no space left")}, {GL, VNU("non queda espazo")}, {BG, VNU("няма повече място")},
        {RO, VNU("nu mai este spațiu")}, {ZH, VNU("空间不足")}, {DE, VNU("kein Speicherplatz mehr")},
        {RU, VNU("не осталось места")}, {PL, VNU("brak miejsca")}, {TR, VNU("yer kalmadı")},
        {JA, VNU("空き容量がありません")}}),
    mensaje_u("lc_fichero.msg", 2, {
        {ES, VNU("sin permiso")}, {FR, VNU("accès refusé")}, {PT_BR, VNU("sem permissão")}, {PT, VNU("sem permissão")},
        {CA, VNU("sense permís")}, {IT, VNU("accesso negato")}, {EN, VNU("no permission")}, {GL, VNU("sen permiso")},
        {BG, VNU("няма разрешение")}, {RO, VNU("fără permisiune")}, {ZH, VNU("没有权限")},
        {DE, VNU("keine Berechtigung")}, {RU, VNU("нет прав доступа")}, {PL, VNU("brak uprawnień")},
        {TR, VNU("izin yok")}, {JA, VNU("権限がありません")}}),
    mensaje_u("lc_fichero.msg", 3, {
        {ES, VNU("no existe")}, {FR, VNU("n'existe pas")}, {PT_BR, VNU("não existe")}, {PT, VNU("não existe")},
        {CA, VNU("no existeix")}, {IT, VNU("non esiste")}, {EN, VNU("does not exist")}, {GL, VNU("non existe")},
        {BG, VNU("не съществува")}, {RO, VNU("nu există")}, {ZH, VNU("不存在")}, {DE, VNU("nicht vorhanden")},
        {RU, VNU("не существует")}, {PL, VNU("nie istnieje")}, {TR, VNU("yok")}, {JA, VNU("存在しません")}}),
    mensaje_u("lc_fichero.msg", 4, {
        {ES, VNU("el nombre ya es de otro")}, {FR, VNU("le nom est déjà pris")}, {PT_BR, VNU("o nome já está em uso")},
        {PT, VNU("o nome já está em uso")}, {CA, VNU("el nom ja és d'un altre")}, {IT, VNU("il nome è già in uso")},
        {EN, VNU("the name is taken")}, {GL, VNU("o nome xa é doutro")}, {BG, VNU("името е заето")},
        {RO, VNU("numele este deja folosit")}, {ZH, VNU("名称已被占用")}, {DE, VNU("der Name ist schon vergeben")},
        {RU, VNU("имя уже занято")}, {PL, VNU("nazwa jest już zajęta")}, {TR, VNU("ad zaten kullanılıyor")},
        {JA, VNU("名前は既に使われています")}}),
    mensaje_u("lc_fichero.msg", 5, {
        {ES, VNU("operación interrumpida")}, {FR, VNU("opération interrompue")}, {PT_BR, VNU("operação interrompida")},
        {PT, VNU("operação interrompida")}, {CA, VNU("operació interrompuda")}, {IT, VNU("operazione interrotta")},
        {EN, VNU("interrupted")}, {GL, VNU("operación interrompida")}, {BG, VNU("прекъсната операция")},
        {RO, VNU("operație întreruptă")}, {ZH, VNU("操作被中断")}, {DE, VNU("unterbrochen")},
        {RU, VNU("операция прервана")}, {PL, VNU("operacja przerwana")}, {TR, VNU("işlem kesildi")},
        {JA, VNU("操作が中断されました")}}),
    mensaje_u("lc_fichero.msg", 6, {
        {ES, VNU("lo tiene abierto otro programa")}, {FR, VNU("un autre programme l'a ouvert")},
        {PT_BR, VNU("está aberto em outro programa")}, {PT, VNU("está aberto noutro programa")},
        {CA, VNU("el té obert un altre programa")}, {IT, VNU("è aperto in un altro programma")},
        {EN, VNU("another program has it open")}, {GL, VNU("teno aberto outro programa")},
        {BG, VNU("отворен е от друга програма")}, {RO, VNU("este deschis în alt program")},
        {ZH, VNU("已被另一个程序打开")}, {DE, VNU("in einem anderen Programm geöffnet")},
        {RU, VNU("открыт другой программой")}, {PL, VNU("jest otwarty w innym programie")},
        {TR, VNU("başka bir programda açık")}, {JA, VNU("別のプログラムで開かれています")}}),
    mensaje_u("lc_fichero.msg", 7, {
        {ES, VNU("es un directorio")}, {FR, VNU("c'est un répertoire")}, {PT_BR, VNU("é um diretório")},
        {PT, VNU("é um diretório")}, {CA, VNU("és un directori")}, {IT, VNU("è una cartella")},
        {EN, VNU("is a directory")}, {GL, VNU("é un directorio")}, {BG, VNU("това е директория")},
        {RO, VNU("este un director")}, {ZH, VNU("是一个目录")}, {DE, VNU("ist ein Verzeichnis")},
        {RU, VNU("это каталог")}, {PL, VNU("to katalog")}, {TR, VNU("bir dizin")}, {JA, VNU("ディレクトリです")}}),
    mensaje_u("lc_fichero.msg", 8, {
        {ES, VNU("no se puede con esta clase de fichero")}, {FR, VNU("ce n'est pas un fichier qui le permette")},
        {PT_BR, VNU("este tipo de arquivo não o permite")}, {PT, VNU("este tipo de ficheiro não o permite")},
        {CA, VNU("no es pot amb aquesta mena de fitxer")}, {IT, VNU("questo tipo di file non lo permette")},
        {EN, VNU("not possible with this kind of file")}, {GL, VNU("non se pode con esta clase de ficheiro")},
        {BG, VNU("не е възможно с такъв файл")}, {RO, VNU("nu este posibil cu acest tip de fișier")},
        {ZH, VNU("此类文件不支持")}, {DE, VNU("mit dieser Art von Datei nicht möglich")},
        {RU, VNU("невозможно для файла этого вида")}, {PL, VNU("niemożliwe dla tego rodzaju pliku")},
        {TR, VNU("bu tür dosyada yapılamaz")}, {JA, VNU("この種類のファイルではできません")}}),
    mensaje_u("lc_fichero.msg", 9, {
        {ES, VNU("error del disco")}, {FR, VNU("erreur du disque")}, {PT_BR, VNU("erro do disco")},
        {PT, VNU("erro do disco")}, {CA, VNU("error del disc")}, {IT, VNU("errore del disco")},
        {EN, VNU("disk error")}, {GL, VNU("erro do disco")}, {BG, VNU("грешка на диска")},
        {RO, VNU("eroare de disc")}, {ZH, VNU("磁盘错误")}, {DE, VNU("Fehler des Datenträgers")},
        {RU, VNU("ошибка диска")}, {PL, VNU("błąd dysku")}, {TR, VNU("disk hatası")}, {JA, VNU("ディスクエラー")}}),
    mensaje_u("lc_fichero.msg", 10, {
        {ES, VNU("error del sistema")}, {FR, VNU("erreur du système")}, {PT_BR, VNU("erro do sistema")},
        {PT, VNU("erro do sistema")}, {CA, VNU("error del sistema")}, {IT, VNU("errore di sistema")},
        {EN, VNU("system error")}, {GL, VNU("erro do sistema")}, {BG, VNU("системна грешка")},
        {RO, VNU("eroare de sistem")}, {ZH, VNU("系统错误")}, {DE, VNU("Systemfehler")},
        {RU, VNU("системная ошибка")}, {PL, VNU("błąd systemu")}, {TR, VNU("sistem hatası")},
        {JA, VNU("システムエラー")}}),
    mensaje_u("lc_fichero.msg", 11, {
        {ES, VNU("el fichero nuevo está en su sitio, pero un apagón podría perderlo")},
        {FR, VNU("le nouveau fichier est en place, mais une coupure de courant pourrait le perdre")},
        {PT_BR, VNU("o arquivo novo está no lugar, mas uma queda de energia poderia perdê-lo")},
        {PT, VNU("o ficheiro novo está no lugar, mas um corte de corrente poderia perdê-lo")},
        {CA, VNU("el fitxer nou és al seu lloc, però un tall de corrent el podria perdre")},
        {IT, VNU("il nuovo file è al suo posto, ma un'interruzione di corrente potrebbe perderlo")},
        {EN, VNU("the new file is in place, but a power failure might lose it")},
        {GL, VNU("o ficheiro novo está no seu sitio, pero un apagón podería perdelo")},
        {BG, VNU("новият файл е на мястото си, но спиране на тока може да го загуби")},
        {RO, VNU("fișierul nou este la locul lui, dar o pană de curent l-ar putea pierde")},
        {ZH, VNU("新文件已就位，但断电可能使其丢失")},
        {DE, VNU("die neue Datei steht an ihrem Platz, ein Stromausfall könnte sie aber verlieren")},
        {RU, VNU("новый файл на месте, но при отключении питания он может быть потерян")},
        {PL, VNU("nowy plik jest na miejscu, ale zanik zasilania mógłby go utracić")},
        {TR, VNU("yeni dosya yerinde, ancak bir elektrik kesintisi onu kaybettirebilir")},
        {JA, VNU("新しいファイルは置き換わりましたが、停電で失われる可能性があります")}}),
    mensaje_u("lc_fichero.msg", 12, {
        {ES, VNU("los datos no se pueden guardar")}, {FR, VNU("les données ne peuvent pas être enregistrées")},
        {PT_BR, VNU("os dados não podem ser gravados")}, {PT, VNU("os dados não podem ser gravados")},
        {CA, VNU("les dades no es poden desar")}, {IT, VNU("i dati non possono essere salvati")},
        {EN, VNU("the data cannot be saved")}, {GL, VNU("os datos non se poden gravar")},
        {BG, VNU("данните не могат да бъдат записани")}, {RO, VNU("datele nu pot fi salvate")},
        {ZH, VNU("数据无法保存")}, {DE, VNU("die Daten lassen sich nicht speichern")},
        {RU, VNU("данные не могут быть сохранены")}, {PL, VNU("danych nie można zapisać")},
        {TR, VNU("veriler kaydedilemiyor")}, {JA, VNU("データを保存できません")}}),
};
static_assert(std::size(MOTIVOS) == VN_FICH_DATOS + 1);

template <uint32_t I> void motivo(vnmensaje *mensaje) { MOTIVOS[I].rellena(mensaje); }

template <uint32_t... I> const vnwchar *texto_de(uint32_t error, std::integer_sequence<uint32_t, I...>) {
    constexpr vnfunc_mensaje RELLENAN[] = {motivo<I>...};
    return nousar_msglocal_original_u(RELLENAN[error]);
}

} // namespace

const vnwchar *lc_texto_error_u(vnerror_fichero error) {
    const auto n = static_cast<uint32_t>(error);
    if (!AFIRMA_TEXTO(n < std::size(MOTIVOS), "error <= VN_FICH_DATOS")) return VNU("");
    return texto_de(n, std::make_integer_sequence<uint32_t, std::size(MOTIVOS)>());
}
