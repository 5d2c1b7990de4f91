/* The texts of this program for its user.

   X(name, T(LANGUAGE, text)...): the languages that have texts of their own are those of mensajes.cpp; PT stands where
   Portugal says it otherwise than Brazil. French has a hard space before a colon or a semicolon. */

X(uso,
  T(ES, "uso: obra importa PLANO.dxf OBRA [CAMPO=VALOR...]\n"
        "     obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
        "     N: 0 español, 1 francés, 2 portugués de Brasil, 3 catalán, 4 italiano, 5 portugués, 8 inglés, 9 gallego,\n"
        "     13 alemán"),
  T(FR, "utilisation : obra importa PLAN.dxf PROJET [CHAMP=VALEUR...]\n"
        "              obra informa PROJET [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
        "              N : 0 espagnol, 1 français, 2 portugais du Brésil, 3 catalan, 4 italien, 5 portugais, 8 anglais,\n"
        "              9 galicien, 13 allemand"),
  T(PT_BR, "uso: obra importa PLANTA.dxf OBRA [CAMPO=VALOR...]\n"
           "     obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
           "     N: 0 espanhol, 1 francês, 2 português do Brasil, 3 catalão, 4 italiano, 5 português, 8 inglês, 9 galego,\n"
           "     13 alemão"),
  T(PT, "utilização: obra importa PLANTA.dxf OBRA [CAMPO=VALOR...]\n"
        "            obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
        "            N: 0 espanhol, 1 francês, 2 português do Brasil, 3 catalão, 4 italiano, 5 português, 8 inglês,\n"
        "            9 galego, 13 alemão"),
  T(CA, "ús: obra importa PLÀNOL.dxf OBRA [CAMP=VALOR...]\n"
        "    obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
        "    N: 0 espanyol, 1 francès, 2 portuguès del Brasil, 3 català, 4 italià, 5 portuguès, 8 anglès, 9 gallec,\n"
        "    13 alemany"),
  T(IT, "uso: obra importa DISEGNO.dxf PROGETTO [CAMPO=VALORE...]\n"
        "     obra informa PROGETTO [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
        "     N: 0 spagnolo, 1 francese, 2 portoghese del Brasile, 3 catalano, 4 italiano, 5 portoghese, 8 inglese,\n"
        "     9 galiziano, 13 tedesco"),
  T(EN, "usage: obra importa DRAWING.dxf PROJECT [FIELD=VALUE...]\n"
        "       obra informa PROJECT [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
        "       N: 0 Spanish, 1 French, 2 Portuguese of Brazil, 3 Catalan, 4 Italian, 5 Portuguese, 8 English,\n"
        "       9 Galician, 13 German"),
  T(GL, "uso: obra importa PLANO.dxf OBRA [CAMPO=VALOR...]\n"
        "     obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
        "     N: 0 español, 1 francés, 2 portugués do Brasil, 3 catalán, 4 italiano, 5 portugués, 8 inglés, 9 galego,\n"
        "     13 alemán"),
  T(DE, "Aufruf: obra importa PLAN.dxf PROJEKT [FELD=WERT...]\n"
        "        obra informa PROJEKT [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
        "        N: 0 Spanisch, 1 Französisch, 2 brasilianisches Portugiesisch, 3 Katalanisch, 4 Italienisch,\n"
        "        5 Portugiesisch, 8 Englisch, 9 Galicisch, 13 Deutsch"))

/* What goes wrong, after the name of the file or the argument. */
X(falta_obra, T(ES, "falta el nombre de la obra"), T(FR, "il manque le nom du projet"), T(PT_BR, "falta o nome da obra"),
  T(CA, "falta el nom de l'obra"), T(IT, "manca il nome del progetto"), T(EN, "the name of the project is missing"),
  T(GL, "falta o nome da obra"), T(DE, "der Name des Projekts fehlt"))
X(falta_plano, T(ES, "falta el nombre del dibujo"), T(FR, "il manque le nom du dessin"),
  T(PT_BR, "falta o nome do desenho"), T(CA, "falta el nom del dibuix"), T(IT, "manca il nome del disegno"),
  T(EN, "the name of the drawing is missing"), T(GL, "falta o nome do debuxo"), T(DE, "der Name der Zeichnung fehlt"))
X(falta_orden, T(ES, "falta la orden"), T(FR, "il manque la commande"), T(PT_BR, "falta o comando"),
  T(CA, "falta l'ordre"), T(IT, "manca il comando"), T(EN, "the command is missing"), T(GL, "falta a orde"),
  T(DE, "der Befehl fehlt"))
X(sobra, T(ES, "argumento desconocido"), T(FR, "argument non reconnu"), T(PT_BR, "argumento não reconhecido"),
  T(CA, "argument no reconegut"), T(IT, "argomento non riconosciuto"), T(EN, "unknown argument"),
  T(GL, "argumento non recoñecido"), T(DE, "unbekanntes Argument"))
X(no_vale, T(ES, "valor no válido; ha de ser uno de:"), T(FR, "valeur non valable ; valeurs possibles :"),
  T(PT_BR, "valor inválido; deve ser um destes:"), T(PT, "valor inválido; tem de ser um destes:"),
  T(CA, "valor no vàlid; ha de ser un d'aquests:"), T(IT, "valore non valido; valori ammessi:"),
  T(EN, "invalid value; one of:"), T(GL, "valor non válido; ten que ser un destes:"),
  T(DE, "unzulässiger Wert; möglich sind:"))
X(es_directorio, T(ES, "es un directorio"), T(FR, "c'est un répertoire"), T(PT_BR, "é um diretório"),
  T(CA, "és un directori"), T(IT, "è una cartella"), T(EN, "is a directory"), T(GL, "é un directorio"),
  T(DE, "ist ein Verzeichnis"))
X(no_es_dxf, T(ES, "no es un DXF"), T(FR, "ce n'est pas un fichier DXF"), T(PT_BR, "não é um arquivo DXF"),
  T(PT, "não é um ficheiro DXF"), T(CA, "no és un fitxer DXF"), T(IT, "non è un file DXF"), T(EN, "not a DXF file"),
  T(GL, "non é un ficheiro DXF"), T(DE, "ist keine DXF-Datei"))
X(es_binario, T(ES, "es un DXF binario; solo se leen los de texto"),
  T(FR, "c'est un fichier DXF binaire ; seuls ceux en texte peuvent être lus"),
  T(PT_BR, "é um DXF binário; só se leem os de texto"), T(CA, "és un DXF binari; només es llegeixen els de text"),
  T(IT, "è un file DXF binario; si leggono solo quelli di testo"),
  T(EN, "a binary DXF file; only text ones can be read"), T(GL, "é un DXF binario; só se len os de texto"),
  T(DE, "ist eine binäre DXF-Datei; nur solche in Textform können gelesen werden"))
X(danado, T(ES, "el DXF está dañado en la línea"), T(FR, "le fichier DXF est endommagé à la ligne"),
  T(PT_BR, "o DXF está danificado na linha"), T(CA, "el DXF està malmès a la línia"),
  T(IT, "il file DXF è danneggiato alla riga"), T(EN, "the DXF is damaged at line"),
  T(GL, "o DXF está danado na liña"), T(DE, "die DXF-Datei ist beschädigt in Zeile"))
X(sin_final, T(ES, "aviso: el DXF acaba antes de su final; se importa lo que hay"),
  T(FR, "avertissement : le fichier DXF s'arrête avant sa fin ; ce qu'il contient est importé"),
  T(PT_BR, "aviso: o DXF acaba antes do seu fim; importa-se o que há"),
  T(CA, "avís: el DXF s'acaba abans del final; s'importa el que hi ha"),
  T(IT, "avviso: il file DXF finisce prima della sua fine; si importa quanto contiene"),
  T(EN, "warning: the DXF stops before its end; what it holds is imported"),
  T(GL, "aviso: o DXF acaba antes do seu final; impórtase o que hai"),
  T(DE, "Warnung: die DXF-Datei bricht vor ihrem Ende ab; importiert wird, was sie enthält"))
X(unidad_ignorada, T(ES, "aviso: unidad de dibujo desconocida; se toman metros. Su código:"),
  T(FR, "avertissement : unité de dessin inconnue ; le mètre est employé. Son code :"),
  T(PT_BR, "aviso: unidade de desenho desconhecida; tomam-se metros. O seu código:"),
  T(CA, "avís: unitat de dibuix desconeguda; es prenen metres. El seu codi:"),
  T(IT, "avviso: unità di disegno sconosciuta; si usano i metri. Il suo codice:"),
  T(EN, "warning: unknown drawing unit; metres are taken. Its code:"),
  T(GL, "aviso: unidade de debuxo descoñecida; tómanse metros. O seu código:"),
  T(DE, "Warnung: unbekannte Zeichnungseinheit; es gelten Meter. Ihr Code:"))
X(sin_memoria, T(ES, "no hay memoria suficiente"), T(FR, "mémoire insuffisante"), T(PT_BR, "memória insuficiente"),
  T(CA, "no hi ha prou memòria"), T(IT, "memoria insufficiente"), T(EN, "not enough memory"),
  T(GL, "non hai memoria abonda"), T(DE, "nicht genügend Speicher"))
X(sin_salida, T(ES, "no se puede escribir el resultado"), T(FR, "impossible d'écrire le résultat"),
  T(PT_BR, "não é possível escrever o resultado"), T(CA, "no es pot escriure el resultat"),
  T(IT, "impossibile scrivere il risultato"), T(EN, "the result cannot be written"),
  T(GL, "non se pode escribir o resultado"), T(DE, "das Ergebnis kann nicht geschrieben werden"))
X(no_se_lee, T(ES, "no se puede leer"), T(FR, "ne peut pas être lu"), T(PT_BR, "não pode ser lido"),
  T(CA, "no es pot llegir"), T(IT, "non può essere letto"), T(EN, "cannot be read"), T(GL, "non se pode ler"),
  T(DE, "kann nicht gelesen werden"))
X(demasiado, T(ES, "el dibujo tiene demasiadas entidades"), T(FR, "le dessin contient trop d'entités"),
  T(PT_BR, "o desenho tem entidades demais"), T(PT, "o desenho tem demasiadas entidades"),
  T(CA, "el dibuix té massa entitats"), T(IT, "il disegno contiene troppe entità"),
  T(EN, "the drawing has too many entities"), T(GL, "o debuxo ten demasiadas entidades"),
  T(DE, "die Zeichnung enthält zu viele Objekte"))
X(no_se_graba, T(ES, "no se ha podido grabar; el fichero anterior, si lo hay, queda como estaba"),
  T(FR, "l'enregistrement a échoué ; le fichier précédent, s'il existe, reste inchangé"),
  T(PT_BR, "não foi possível gravar; o arquivo anterior, se houver, fica como estava"),
  T(PT, "não foi possível gravar; o ficheiro anterior, se houver, fica como estava"),
  T(CA, "no s'ha pogut desar; el fitxer anterior, si n'hi ha, queda com estava"),
  T(IT, "impossibile salvare; il file precedente, se c'è, resta com'era"),
  T(EN, "could not be saved; the previous file, if there is one, is as it was"),
  T(GL, "non se puido gravar; o ficheiro anterior, se o hai, queda como estaba"),
  T(DE, "konnte nicht gespeichert werden; eine vorherige Datei bleibt unverändert"))
X(no_es_obra, T(ES, "no es una obra o está dañada"), T(FR, "ce n'est pas un fichier de projet, ou il est endommagé"),
  T(PT_BR, "não é um arquivo de obra ou está danificado"), T(PT, "não é um ficheiro de obra ou está danificado"),
  T(CA, "no és una obra o està malmesa"), T(IT, "non è un file di progetto o è danneggiato"),
  T(EN, "not a project file, or damaged"), T(GL, "non é unha obra ou está danada"),
  T(DE, "ist keine Projektdatei oder ist beschädigt"))
X(superior, T(ES, "está grabada con una versión superior a la que puede leer este programa"),
  T(FR, "enregistré avec une version plus récente que celles que ce programme peut lire"),
  T(PT_BR, "foi gravado com uma versão posterior à que este programa pode ler"),
  T(CA, "està desada amb una versió posterior a la que pot llegir aquest programa"),
  T(IT, "salvato con una versione successiva a quella che questo programma può leggere"),
  T(EN, "saved by a later version than this program can read"),
  T(GL, "está gravada cunha versión posterior á que pode ler este programa"),
  T(DE, "wurde mit einer neueren Version gespeichert, als dieses Programm lesen kann"))
X(importado, T(ES, "importado en"), T(FR, "importé dans"), T(PT_BR, "importado para"), T(CA, "importat a"),
  T(IT, "importato in"), T(EN, "imported into"), T(GL, "importado en"), T(DE, "importiert in"))

/* The report: of the file. */
X(dos_puntos, T(ES, ":"), T(FR, " :"), T(PT_BR, ":"), T(CA, ":"), T(IT, ":"), T(EN, ":"), T(GL, ":"), T(DE, ":"))
X(punto_y_coma, T(ES, ";"), T(FR, " ;"), T(PT_BR, ";"), T(CA, ";"), T(IT, ";"), T(EN, ";"),
  T(GL, ";"), T(DE, ";"))
X(titulo, T(ES, "Título"), T(FR, "Titre"), T(PT_BR, "Título"), T(CA, "Títol"), T(IT, "Titolo"), T(EN, "Title"),
  T(GL, "Título"), T(DE, "Titel"))
X(programa, T(ES, "Programa"), T(FR, "Programme"), T(PT_BR, "Programa"), T(CA, "Programa"), T(IT, "Programma"),
  T(EN, "Program"), T(GL, "Programa"), T(DE, "Programm"))
X(version, T(ES, "versión"), T(FR, "version"), T(PT_BR, "versão"), T(CA, "versió"), T(IT, "versione"), T(EN, "version"),
  T(GL, "versión"), T(DE, "Version"))
X(revision, T(ES, "revisión"), T(FR, "révision"), T(PT_BR, "revisão"), T(CA, "revisió"), T(IT, "revisione"),
  T(EN, "revision"), T(GL, "revisión"), T(DE, "Revision"))
X(ejemplo, T(ES, "ejemplo"), T(FR, "exemple"), T(PT_BR, "exemplo"), T(CA, "exemple"), T(IT, "esempio"), T(EN, "sample"),
  T(GL, "exemplo"), T(DE, "Beispiel"))
X(formato, T(ES, "Formato"), T(FR, "Format"), T(PT_BR, "Formato"), T(CA, "Format"), T(IT, "Formato"), T(EN, "Format"),
  T(GL, "Formato"), T(DE, "Format"))
X(actual, T(ES, "la actual es la"), T(FR, "l'actuelle est la"), T(PT_BR, "a atual é a"), T(CA, "l'actual és la"),
  T(IT, "l'attuale è la"), T(EN, "current:"), T(GL, "a actual é a"), T(DE, "die aktuelle ist"))
X(dibujo, T(ES, "Dibujo"), T(FR, "Dessin"), T(PT_BR, "Desenho"), T(CA, "Dibuix"), T(IT, "Disegno"), T(EN, "Drawing"),
  T(GL, "Debuxo"), T(DE, "Zeichnung"))
X(unidad, T(ES, "m por unidad"), T(FR, "m par unité"), T(PT_BR, "m por unidade"), T(CA, "m per unitat"),
  T(IT, "m per unità"), T(EN, "m per unit"), T(GL, "m por unidade"), T(DE, "m je Einheit"))
X(tipos_linea, T(ES, "Tipos de línea"), T(FR, "Types de ligne"), T(PT_BR, "Tipos de linha"), T(CA, "Tipus de línia"),
  T(IT, "Tipi di linea"), T(EN, "Line types"), T(GL, "Tipos de liña"), T(DE, "Linientypen"))
X(campos, T(ES, "Campos"), T(FR, "Champs"), T(PT_BR, "Campos"), T(CA, "Camps"), T(IT, "Campi"), T(EN, "Fields"),
  T(GL, "Campos"), T(DE, "Felder"))
X(ningun_campo, T(ES, "ninguno"), T(FR, "aucun"), T(PT_BR, "nenhum"), T(CA, "cap"), T(IT, "nessuno"), T(EN, "none"),
  T(GL, "ningún"), T(DE, "keine"))
X(secciones, T(ES, "Secciones"), T(FR, "Sections"), T(PT_BR, "Seções"), T(PT, "Secções"), T(CA, "Seccions"),
  T(IT, "Sezioni"), T(EN, "Sections"), T(GL, "Seccións"), T(DE, "Abschnitte"))
X(bytes, T(ES, "bytes"), T(FR, "octets"), T(PT_BR, "bytes"), T(CA, "bytes"), T(IT, "byte"), T(EN, "bytes"),
  T(GL, "bytes"), T(DE, "Byte"))

/* Of the layers. */
X(capas, T(ES, "Capas"), T(FR, "Calques"), T(PT_BR, "Camadas"), T(CA, "Capes"), T(IT, "Layer"), T(EN, "Layers"),
  T(GL, "Capas"), T(DE, "Layer"))
X(apagada, T(ES, "apagada"), T(FR, "désactivé"), T(PT_BR, "desligada"), T(CA, "apagada"), T(IT, "disattivato"),
  T(EN, "off"), T(GL, "apagada"), T(DE, "ausgeschaltet"))
X(color, T(ES, "color"), T(FR, "couleur"), T(PT_BR, "cor"), T(CA, "color"), T(IT, "colore"), T(EN, "colour"),
  T(GL, "cor"), T(DE, "Farbe"))
X(lineas, T(ES, "líneas"), T(FR, "lignes"), T(PT_BR, "linhas"), T(CA, "línies"), T(IT, "linee"), T(EN, "lines"),
  T(GL, "liñas"), T(DE, "Linien"))
X(circulos, T(ES, "círculos"), T(FR, "cercles"), T(PT_BR, "círculos"), T(CA, "cercles"), T(IT, "cerchi"),
  T(EN, "circles"), T(GL, "círculos"), T(DE, "Kreise"))
X(arcos, T(ES, "arcos"), T(FR, "arcs"), T(PT_BR, "arcos"), T(CA, "arcs"), T(IT, "archi"), T(EN, "arcs"),
  T(GL, "arcos"), T(DE, "Bögen"))
X(elipses, T(ES, "elipses"), T(FR, "ellipses"), T(PT_BR, "elipses"), T(CA, "el·lipses"), T(IT, "ellissi"),
  T(EN, "ellipses"), T(GL, "elipses"), T(DE, "Ellipsen"))
X(polilineas, T(ES, "polilíneas"), T(FR, "polylignes"), T(PT_BR, "polilinhas"), T(CA, "polilínies"),
  T(IT, "polilinee"), T(EN, "polylines"), T(GL, "poliliñas"), T(DE, "Polylinien"))
X(textos, T(ES, "textos"), T(FR, "textes"), T(PT_BR, "textos"), T(CA, "textos"), T(IT, "testi"), T(EN, "texts"),
  T(GL, "textos"), T(DE, "Texte"))
X(total, T(ES, "Total"), T(FR, "Total"), T(PT_BR, "Total"), T(CA, "Total"), T(IT, "Totale"), T(EN, "Total"),
  T(GL, "Total"), T(DE, "Gesamt"))
X(sin_importar, T(ES, "Sin importar"), T(FR, "Non importé"), T(PT_BR, "Não importado"), T(CA, "Sense importar"),
  T(IT, "Non importato"), T(EN, "Not imported"), T(GL, "Sen importar"), T(DE, "Nicht importiert"))

/* Of what is measured. */
X(energia, T(ES, "Unidad de energía"), T(FR, "Unité d'énergie"), T(PT_BR, "Unidade de energia"),
  T(CA, "Unitat d'energia"), T(IT, "Unità di energia"), T(EN, "Unit of energy"), T(GL, "Unidade de enerxía"),
  T(DE, "Energieeinheit"))
X(extension, T(ES, "Extensión"), T(FR, "Étendue"), T(PT_BR, "Extensão"), T(CA, "Extensió"), T(IT, "Estensione"),
  T(EN, "Extents"), T(GL, "Extensión"), T(DE, "Ausdehnung"))
X(ninguna_extension, T(ES, "ninguna"), T(FR, "aucune"), T(PT_BR, "nenhuma"), T(CA, "cap"), T(IT, "nessuna"),
  T(EN, "none"), T(GL, "ningunha"), T(DE, "keine"))
X(medidas, T(ES, "Longitudes y áreas"), T(FR, "Longueurs et surfaces"), T(PT_BR, "Comprimentos e áreas"),
  T(CA, "Longituds i àrees"), T(IT, "Lunghezze e aree"), T(EN, "Lengths and areas"), T(GL, "Lonxitudes e áreas"),
  T(DE, "Längen und Flächen"))
X(longitud, T(ES, "longitud"), T(FR, "longueur"), T(PT_BR, "comprimento"), T(CA, "longitud"), T(IT, "lunghezza"),
  T(EN, "length"), T(GL, "lonxitude"), T(DE, "Länge"))
X(cerradas, T(ES, "polilíneas cerradas"), T(FR, "polylignes fermées"), T(PT_BR, "polilinhas fechadas"),
  T(CA, "polilínies tancades"), T(IT, "polilinee chiuse"), T(EN, "closed polylines"), T(GL, "poliliñas pechadas"),
  T(DE, "geschlossene Polylinien"))
X(area, T(ES, "área"), T(FR, "surface"), T(PT_BR, "área"), T(CA, "àrea"), T(IT, "area"), T(EN, "area"), T(GL, "área"),
  T(DE, "Fläche"))

/* Of its geometry. */
X(rectangulo, T(ES, "Rectángulo envolvente"), T(FR, "Rectangle englobant"), T(PT_BR, "Retângulo envolvente"),
  T(CA, "Rectangle envolupant"), T(IT, "Rettangolo d'ingombro"), T(EN, "Bounding rectangle"),
  T(GL, "Rectángulo envolvente"), T(DE, "Umschließendes Rechteck"))
X(casco, T(ES, "Envolvente convexa"), T(FR, "Enveloppe convexe"), T(PT_BR, "Envoltória convexa"),
  T(PT, "Invólucro convexo"), T(CA, "Envolupant convexa"), T(IT, "Inviluppo convesso"), T(EN, "Convex hull"),
  T(GL, "Envolvente convexa"), T(DE, "Konvexe Hülle"))
X(vertices, T(ES, "vértices"), T(FR, "sommets"), T(PT_BR, "vértices"), T(CA, "vèrtexs"), T(IT, "vertici"),
  T(EN, "vertices"), T(GL, "vértices"), T(DE, "Eckpunkte"))
X(geometria, T(ES, "Contornos, cruces y arcos"), T(FR, "Contours, intersections et arcs"),
  T(PT_BR, "Contornos, cruzamentos e arcos"), T(CA, "Contorns, encreuaments i arcs"),
  T(IT, "Contorni, intersezioni e archi"), T(EN, "Outlines, crossings and arcs"),
  T(GL, "Contornos, cruzamentos e arcos"), T(DE, "Umrisse, Kreuzungen und Bögen"))
X(contornos, T(ES, "contornos cerrados"), T(FR, "contours fermés"), T(PT_BR, "contornos fechados"),
  T(CA, "contorns tancats"), T(IT, "contorni chiusi"), T(EN, "closed outlines"), T(GL, "contornos pechados"),
  T(DE, "geschlossene Umrisse"))
X(cruces, T(ES, "cruces"), T(FR, "intersections"), T(PT_BR, "cruzamentos"), T(CA, "encreuaments"),
  T(IT, "intersezioni"), T(EN, "crossings"), T(GL, "cruzamentos"), T(DE, "Kreuzungen"))
X(al_menos, T(ES, "al menos"), T(FR, "au moins"), T(PT_BR, "pelo menos"), T(CA, "com a mínim"), T(IT, "almeno"),
  T(EN, "at least"), T(GL, "polo menos"), T(DE, "mindestens"))
