/* The user texts of vornbin. */

/* The file %s (wide text) was saved by a newer version than this program can read. */
M(32342, 4, ES("El fichero %s está grabado con una versión superior a la que puede leer este programa."),
  FR("Le fichier %s a été enregistré avec une version supérieure à celle que ce programme peut lire."),
  PT_BR("O arquivo %s foi gravado com uma versão superior à que este programa pode ler."),
  PT("O ficheiro %s foi gravado com uma versão superior à que este programa consegue ler."),
  CA("El fitxer %s està desat amb una versió superior a la que pot llegir aquest programa."),
  IT("Il file %s è stato salvato con una versione superiore a quella che questo programma può leggere."),
  ES_AM("El archivo %s está grabado con una versión superior a la que puede leer este programa."),
  EN("The file %s was saved with a later version than this program can read."),
  GL("O ficheiro %s está gravado cunha versión superior á que pode ler este programa."),
  BG("Файлът %s е записан с по-нова версия от тази, която може да прочете тази програма."),
  RO("Fișierul %s a fost salvat cu o versiune superioară celei pe care o poate citi acest program."),
  ZH("文件 %s 是用更高的版本保存的，本程序无法读取。"),
  DE("Die Datei %s wurde mit einer neueren Version gespeichert, als dieses Programm lesen kann."),
  RU("Файл %s сохранён в более новой версии, чем та, которую может прочитать эта программа."),
  PL("Plik %s został zapisany w wersji nowszej niż ta, którą może odczytać ten program."),
  TR("%s dosyası, bu programın okuyabileceğinden daha yeni bir sürümle kaydedilmiş."),
  JA("ファイル %s は、このプログラムで読み取れるバージョンより新しいバージョンで保存されています。"))
