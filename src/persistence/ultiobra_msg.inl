/* The user texts of ultiobra. */

/* The files of the work %s (wide text) are not there any more or cannot be reached. */
M(160946, 1,
  ES("El fichero o ficheros relativos a '%s' de la lista de últimos ficheros abiertos, ya no existen, o bien no se "
     "puede acceder a ellos."),
  FR("Le ou les fichiers relatifs à '%s' de la liste des derniers fichiers ouverts n'existent plus ou ne sont pas "
     "accessibles."),
  PT_BR("O arquivo ou arquivos relativos a '%s' da lista de últimos arquivos abertos já não existem ou não podem ser "
        "acessados."),
  PT("O ficheiro ou ficheiros relativos a '%s' da lista dos últimos ficheiros abertos já não existem ou não é "
     "possível aceder a eles."),
  CA("El fitxer o fitxers relatius a '%s' de la llista d'últims fitxers oberts ja no existeixen o bé no s'hi pot "
     "accedir."),
  IT("Il file o i file relativi a '%s' dell'elenco degli ultimi file aperti non esistono più oppure non è possibile "
     "accedervi."),
  ES_AM("El archivo o archivos relativos a '%s' de la lista de últimos archivos abiertos ya no existen, o bien no se "
        "puede acceder a ellos."),
  EN("The file or files of '%s' in the list of recently opened files no longer exist or cannot be accessed."),
  GL("O ficheiro ou ficheiros relativos a '%s' da lista de últimos ficheiros abertos xa non existen, ou ben non se "
     "pode acceder a eles."),
  BG("Файлът или файловете на '%s' от списъка с последно отворени файлове вече не съществуват или нямате достъп до "
     "тях."),
  RO("Fișierul sau fișierele corespunzătoare '%s' din lista ultimelor fișiere deschise nu mai există sau nu pot fi "
     "accesate."),
  ZH("最近打开的文件列表中与“%s”相关的文件已不存在或无法访问。"),
  DE("Die Datei oder die Dateien zu '%s' in der Liste der zuletzt geöffneten Dateien sind nicht mehr vorhanden oder "
     "nicht zugänglich."),
  RU("Файл или файлы, относящиеся к '%s' в списке последних открытых файлов, больше не существуют или недоступны."),
  PL("Plik lub pliki dotyczące '%s' z listy ostatnio otwartych plików już nie istnieją lub nie można uzyskać do nich "
     "dostępu."),
  TR("Son açılan dosyalar listesindeki '%s' ile ilgili dosya veya dosyalar artık mevcut değil ya da bunlara "
     "erişilemiyor."),
  JA("最近開いたファイルの一覧にある「%s」に関連するファイルは、もう存在しないか、アクセスできません。"))
/* Is the entry to be deleted from the list? */
M(160947, 2, ES("¿Desea eliminar esta entrada de la lista?"), FR("Souhaitez-vous supprimer cette entrée de la liste ?"),
  PT_BR("Deseja excluir esta entrada da lista?"), PT("Deseja eliminar esta entrada da lista?"),
  CA("Voleu eliminar aquesta entrada de la llista?"), IT("Eliminare questa voce dall'elenco?"),
  EN("Do you want to delete this entry from the list?"), GL("Desexa eliminar esta entrada da lista?"),
  BG("Искате ли да изтриете този запис от списъка?"), RO("Doriți să ștergeți această intrare din listă?"),
  ZH("是否要从列表中删除此条目？"), DE("Möchten Sie diesen Eintrag aus der Liste löschen?"),
  RU("Удалить эту запись из списка?"), PL("Czy chcesz usunąć tę pozycję z listy?"),
  TR("Bu girdiyi listeden silmek istiyor musunuz?"), JA("この項目を一覧から削除しますか？"))
