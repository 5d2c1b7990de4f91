/* Why a file could not be opened, read or saved, in the order of vnerror_fichero: what follows the file's name in a line. */

M(BIEN, 0, ES(""), EN(""))
M(SIN_ESPACIO, 1, ES("no queda espacio"), FR("il n'y a plus de place"), PT_BR("não há mais espaço"),
  CA("no queda espai"), IT("spazio esaurito"), EN("no space left"), GL("non queda espazo"), BG("няма повече място"),
  RO("nu mai este spațiu"), ZH("空间不足"), DE("kein Speicherplatz mehr"), RU("не осталось места"), PL("brak miejsca"),
  TR("yer kalmadı"), JA("空き容量がありません"))
M(SIN_PERMISO, 2, ES("sin permiso"), FR("accès refusé"), PT_BR("sem permissão"), CA("sense permís"),
  IT("accesso negato"), EN("no permission"), GL("sen permiso"), BG("няма разрешение"), RO("fără permisiune"),
  ZH("没有权限"), DE("keine Berechtigung"), RU("нет прав доступа"), PL("brak uprawnień"), TR("izin yok"),
  JA("権限がありません"))
M(NO_EXISTE, 3, ES("no existe"), FR("n'existe pas"), PT_BR("não existe"), CA("no existeix"), IT("non esiste"),
  EN("does not exist"), GL("non existe"), BG("не съществува"), RO("nu există"), ZH("不存在"), DE("nicht vorhanden"),
  RU("не существует"), PL("nie istnieje"), TR("yok"), JA("存在しません"))
M(YA_EXISTE, 4, ES("el nombre ya es de otro"), FR("le nom est déjà pris"), PT_BR("o nome já está em uso"),
  CA("el nom ja és d'un altre"), IT("il nome è già in uso"), EN("the name is taken"), GL("o nome xa é doutro"),
  BG("името е заето"), RO("numele este deja folosit"), ZH("名称已被占用"), DE("der Name ist schon vergeben"),
  RU("имя уже занято"), PL("nazwa jest już zajęta"), TR("ad zaten kullanılıyor"), JA("名前は既に使われています"))
M(INTERRUMPIDA, 5, ES("operación interrumpida"), FR("opération interrompue"), PT_BR("operação interrompida"),
  CA("operació interrompuda"), IT("operazione interrotta"), EN("interrupted"), GL("operación interrompida"),
  BG("прекъсната операция"), RO("operație întreruptă"), ZH("操作被中断"), DE("unterbrochen"), RU("операция прервана"),
  PL("operacja przerwana"), TR("işlem kesildi"), JA("操作が中断されました"))
M(COMPARTIDO, 6, ES("lo tiene abierto otro programa"), FR("un autre programme l'a ouvert"),
  PT_BR("está aberto em outro programa"), PT("está aberto noutro programa"), CA("el té obert un altre programa"),
  IT("è aperto in un altro programma"), EN("another program has it open"), GL("teno aberto outro programa"),
  BG("отворен е от друга програма"), RO("este deschis în alt program"), ZH("已被另一个程序打开"),
  DE("in einem anderen Programm geöffnet"), RU("открыт другой программой"), PL("jest otwarty w innym programie"),
  TR("başka bir programda açık"), JA("別のプログラムで開かれています"))
M(ES_DIRECTORIO, 7, ES("es un directorio"), FR("c'est un répertoire"), PT_BR("é um diretório"), CA("és un directori"),
  IT("è una cartella"), EN("is a directory"), GL("é un directorio"), BG("това е директория"), RO("este un director"),
  ZH("是一个目录"), DE("ist ein Verzeichnis"), RU("это каталог"), PL("to katalog"), TR("bir dizin"),
  JA("ディレクトリです"))
M(NO_ADMITIDO, 8, ES("no se puede con esta clase de fichero"), FR("ce n'est pas un fichier qui le permette"),
  PT_BR("este tipo de arquivo não o permite"), PT("este tipo de ficheiro não o permite"),
  CA("no es pot amb aquesta mena de fitxer"), IT("questo tipo di file non lo permette"),
  EN("not possible with this kind of file"), GL("non se pode con esta clase de ficheiro"),
  BG("не е възможно с такъв файл"), RO("nu este posibil cu acest tip de fișier"), ZH("此类文件不支持"),
  DE("mit dieser Art von Datei nicht möglich"), RU("невозможно для файла этого вида"),
  PL("niemożliwe dla tego rodzaju pliku"), TR("bu tür dosyada yapılamaz"), JA("この種類のファイルではできません"))
M(ES, 9, ES("error del disco"), FR("erreur du disque"), PT_BR("erro do disco"), CA("error del disc"),
  IT("errore del disco"), EN("disk error"), GL("erro do disco"), BG("грешка на диска"), RO("eroare de disc"),
  ZH("磁盘错误"), DE("Fehler des Datenträgers"), RU("ошибка диска"), PL("błąd dysku"), TR("disk hatası"),
  JA("ディスクエラー"))
M(OTRO, 10, ES("error del sistema"), FR("erreur du système"), PT_BR("erro do sistema"), IT("errore di sistema"),
  EN("system error"), GL("erro do sistema"), BG("системна грешка"), RO("eroare de sistem"), ZH("系统错误"),
  DE("Systemfehler"), RU("системная ошибка"), PL("błąd systemu"), TR("sistem hatası"), JA("システムエラー"))
M(SIN_ASEGURAR, 11, ES("el fichero nuevo está en su sitio, pero un apagón podría perderlo"),
  FR("le nouveau fichier est en place, mais une coupure de courant pourrait le perdre"),
  PT_BR("o arquivo novo está no lugar, mas uma queda de energia poderia perdê-lo"),
  PT("o ficheiro novo está no lugar, mas um corte de corrente poderia perdê-lo"),
  CA("el fitxer nou és al seu lloc, però un tall de corrent el podria perdre"),
  IT("il nuovo file è al suo posto, ma un'interruzione di corrente potrebbe perderlo"),
  EN("the new file is in place, but a power failure might lose it"),
  GL("o ficheiro novo está no seu sitio, pero un apagón podería perdelo"),
  BG("новият файл е на мястото си, но спиране на тока може да го загуби"),
  RO("fișierul nou este la locul lui, dar o pană de curent l-ar putea pierde"), ZH("新文件已就位，但断电可能使其丢失"),
  DE("die neue Datei steht an ihrem Platz, ein Stromausfall könnte sie aber verlieren"),
  RU("новый файл на месте, но при отключении питания он может быть потерян"),
  PL("nowy plik jest na miejscu, ale zanik zasilania mógłby go utracić"),
  TR("yeni dosya yerinde, ancak bir elektrik kesintisi onu kaybettirebilir"),
  JA("新しいファイルは置き換わりましたが、停電で失われる可能性があります"))
M(DATOS, 12, ES("los datos no se pueden guardar"), FR("les données ne peuvent pas être enregistrées"),
  PT_BR("os dados não podem ser gravados"), CA("les dades no es poden desar"), IT("i dati non possono essere salvati"),
  EN("the data cannot be saved"), GL("os datos non se poden gravar"), BG("данните не могат да бъдат записани"),
  RO("datele nu pot fi salvate"), ZH("数据无法保存"), DE("die Daten lassen sich nicht speichern"),
  RU("данные не могут быть сохранены"), PL("danych nie można zapisać"), TR("veriler kaydedilemiyor"),
  JA("データを保存できません"))
