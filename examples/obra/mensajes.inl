/* The texts of this program for its user.

   M(name, texts...): the languages that every row has are those of mensajes.cpp; PT stands where Portugal says it
   otherwise than Brazil. French has a hard space before a colon or a semicolon. */

M(uso,
  ES("uso: obra importa PLANO.dxf OBRA [CAMPO=VALOR...]\n"
     "     obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
     "     obra dibuja OBRA DIBUJO.svg|pdf|png|dxf|txt [--ancho-px N] [--escala N] [--fondo 0|1|2]\n"
     "     obra malla OBRA MALLA.obj|svg|pdf|png|dxf|txt [--alto M] [...]\n"
     "     --idioma: 0 español, 1 francés, 2 portugués de Brasil, 3 catalán, 4 italiano, 5 portugués, 8 inglés,\n"
     "     9 gallego, 13 alemán"),
  FR("utilisation : obra importa PLAN.dxf PROJET [CHAMP=VALEUR...]\n"
     "              obra informa PROJET [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
     "              obra dibuja PROJET DESSIN.svg|pdf|png|dxf|txt [--ancho-px N] [--escala N] [--fondo 0|1|2]\n"
     "              obra malla PROJET MAILLAGE.obj|svg|pdf|png|dxf|txt [--alto M] [...]\n"
     "              --idioma : 0 espagnol, 1 français, 2 portugais du Brésil, 3 catalan, 4 italien, 5 portugais, 8 anglais,\n"
     "              9 galicien, 13 allemand"),
  PT_BR("uso: obra importa PLANTA.dxf OBRA [CAMPO=VALOR...]\n"
        "     obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
        "     obra dibuja OBRA DESENHO.svg|pdf|png|dxf|txt [--ancho-px N] [--escala N] [--fondo 0|1|2]\n"
        "     obra malla OBRA MALHA.obj|svg|pdf|png|dxf|txt [--alto M] [...]\n"
        "     --idioma: 0 espanhol, 1 francês, 2 português do Brasil, 3 catalão, 4 italiano, 5 português, 8 inglês,\n"
        "     9 galego, 13 alemão"),
  PT("utilização: obra importa PLANTA.dxf OBRA [CAMPO=VALOR...]\n"
     "            obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
     "            obra dibuja OBRA DESENHO.svg|pdf|png|dxf|txt [--ancho-px N] [--escala N] [--fondo 0|1|2]\n"
     "            obra malla OBRA MALHA.obj|svg|pdf|png|dxf|txt [--alto M] [...]\n"
     "            --idioma: 0 espanhol, 1 francês, 2 português do Brasil, 3 catalão, 4 italiano, 5 português, 8 inglês,\n"
     "            9 galego, 13 alemão"),
  CA("ús: obra importa PLÀNOL.dxf OBRA [CAMP=VALOR...]\n"
     "    obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
     "    obra dibuja OBRA DIBUIX.svg|pdf|png|dxf|txt [--ancho-px N] [--escala N] [--fondo 0|1|2]\n"
     "    obra malla OBRA MALLA.obj|svg|pdf|png|dxf|txt [--alto M] [...]\n"
     "    --idioma: 0 espanyol, 1 francès, 2 portuguès del Brasil, 3 català, 4 italià, 5 portuguès, 8 anglès, 9 gallec,\n"
     "    13 alemany"),
  IT("uso: obra importa DISEGNO.dxf PROGETTO [CAMPO=VALORE...]\n"
     "     obra informa PROGETTO [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
     "     obra dibuja PROGETTO DISEGNO.svg|pdf|png|dxf|txt [--ancho-px N] [--escala N] [--fondo 0|1|2]\n"
     "     obra malla PROGETTO MESH.obj|svg|pdf|png|dxf|txt [--alto M] [...]\n"
     "     --idioma: 0 spagnolo, 1 francese, 2 portoghese del Brasile, 3 catalano, 4 italiano, 5 portoghese, 8 inglese,\n"
     "     9 galiziano, 13 tedesco"),
  EN("usage: obra importa DRAWING.dxf PROJECT [FIELD=VALUE...]\n"
     "       obra informa PROJECT [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
     "       obra dibuja PROJECT PICTURE.svg|pdf|png|dxf|txt [--ancho-px N] [--escala N] [--fondo 0|1|2]\n"
     "       obra malla PROJECT MESH.obj|svg|pdf|png|dxf|txt [--alto M] [...]\n"
     "       --idioma: 0 Spanish, 1 French, 2 Portuguese of Brazil, 3 Catalan, 4 Italian, 5 Portuguese, 8 English,\n"
     "       9 Galician, 13 German"),
  GL("uso: obra importa PLANO.dxf OBRA [CAMPO=VALOR...]\n"
     "     obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
     "     obra dibuja OBRA DEBUXO.svg|pdf|png|dxf|txt [--ancho-px N] [--escala N] [--fondo 0|1|2]\n"
     "     obra malla OBRA MALLA.obj|svg|pdf|png|dxf|txt [--alto M] [...]\n"
     "     --idioma: 0 español, 1 francés, 2 portugués do Brasil, 3 catalán, 4 italiano, 5 portugués, 8 inglés,\n"
     "     9 galego, 13 alemán"),
  DE("Aufruf: obra importa PLAN.dxf PROJEKT [FELD=WERT...]\n"
     "        obra informa PROJEKT [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"
     "        obra dibuja PROJEKT BILD.svg|pdf|png|dxf|txt [--ancho-px N] [--escala N] [--fondo 0|1|2]\n"
     "        obra malla PROJEKT NETZ.obj|svg|pdf|png|dxf|txt [--alto M] [...]\n"
     "        --idioma: 0 Spanisch, 1 Französisch, 2 brasilianisches Portugiesisch, 3 Katalanisch, 4 Italienisch,\n"
     "        5 Portugiesisch, 8 Englisch, 9 Galicisch, 13 Deutsch"))

/* What goes wrong, after the name of the file or the argument. */
M(falta_obra, ES("falta el nombre de la obra"), FR("il manque le nom du projet"), PT_BR("falta o nome da obra"),
  CA("falta el nom de l'obra"), IT("manca il nome del progetto"), EN("the name of the project is missing"),
  GL("falta o nome da obra"), DE("der Name des Projekts fehlt"))
M(falta_plano, ES("falta el nombre del dibujo"), FR("il manque le nom du dessin"),
  PT_BR("falta o nome do desenho"), CA("falta el nom del dibuix"), IT("manca il nome del disegno"),
  EN("the name of the drawing is missing"), GL("falta o nome do debuxo"), DE("der Name der Zeichnung fehlt"))
M(falta_orden, ES("falta la orden"), FR("il manque la commande"), PT_BR("falta o comando"),
  CA("falta l'ordre"), IT("manca il comando"), EN("the command is missing"), GL("falta a orde"),
  DE("der Befehl fehlt"))
M(sobra, ES("argumento desconocido"), FR("argument non reconnu"), PT_BR("argumento não reconhecido"),
  CA("argument no reconegut"), IT("argomento non riconosciuto"), EN("unknown argument"),
  GL("argumento non recoñecido"), DE("unbekanntes Argument"))
M(no_vale, ES("valor no válido; ha de ser uno de:"), FR("valeur non valable ; valeurs possibles :"),
  PT_BR("valor inválido; deve ser um destes:"), PT("valor inválido; tem de ser um destes:"),
  CA("valor no vàlid; ha de ser un d'aquests:"), IT("valore non valido; valori ammessi:"),
  EN("invalid value; one of:"), GL("valor non válido; ten que ser un destes:"),
  DE("unzulässiger Wert; möglich sind:"))
M(es_directorio, ES("es un directorio"), FR("c'est un répertoire"), PT_BR("é um diretório"),
  CA("és un directori"), IT("è una cartella"), EN("is a directory"), GL("é un directorio"),
  DE("ist ein Verzeichnis"))
M(no_es_dxf, ES("no es un DXF"), FR("ce n'est pas un fichier DXF"), PT_BR("não é um arquivo DXF"),
  PT("não é um ficheiro DXF"), CA("no és un fitxer DXF"), IT("non è un file DXF"), EN("not a DXF file"),
  GL("non é un ficheiro DXF"), DE("ist keine DXF-Datei"))
M(es_binario, ES("es un DXF binario; solo se leen los de texto"),
  FR("c'est un fichier DXF binaire ; seuls ceux en texte peuvent être lus"),
  PT_BR("é um DXF binário; só se leem os de texto"), CA("és un DXF binari; només es llegeixen els de text"),
  IT("è un file DXF binario; si leggono solo quelli di testo"),
  EN("a binary DXF file; only text ones can be read"), GL("é un DXF binario; só se len os de texto"),
  DE("ist eine binäre DXF-Datei; nur solche in Textform können gelesen werden"))
M(danado, ES("el DXF está dañado en la línea"), FR("le fichier DXF est endommagé à la ligne"),
  PT_BR("o DXF está danificado na linha"), CA("el DXF està malmès a la línia"),
  IT("il file DXF è danneggiato alla riga"), EN("the DXF is damaged at line"),
  GL("o DXF está danado na liña"), DE("die DXF-Datei ist beschädigt in Zeile"))
M(sin_final, ES("aviso: el DXF acaba antes de su final; se importa lo que hay"),
  FR("avertissement : le fichier DXF s'arrête avant sa fin ; ce qu'il contient est importé"),
  PT_BR("aviso: o DXF acaba antes do seu fim; importa-se o que há"),
  CA("avís: el DXF s'acaba abans del final; s'importa el que hi ha"),
  IT("avviso: il file DXF finisce prima della sua fine; si importa quanto contiene"),
  EN("warning: the DXF stops before its end; what it holds is imported"),
  GL("aviso: o DXF acaba antes do seu final; impórtase o que hai"),
  DE("Warnung: die DXF-Datei bricht vor ihrem Ende ab; importiert wird, was sie enthält"))
M(unidad_ignorada, ES("aviso: unidad de dibujo desconocida; se toman metros. Su código:"),
  FR("avertissement : unité de dessin inconnue ; le mètre est employé. Son code :"),
  PT_BR("aviso: unidade de desenho desconhecida; tomam-se metros. O seu código:"),
  CA("avís: unitat de dibuix desconeguda; es prenen metres. El seu codi:"),
  IT("avviso: unità di disegno sconosciuta; si usano i metri. Il suo codice:"),
  EN("warning: unknown drawing unit; metres are taken. Its code:"),
  GL("aviso: unidade de debuxo descoñecida; tómanse metros. O seu código:"),
  DE("Warnung: unbekannte Zeichnungseinheit; es gelten Meter. Ihr Code:"))
M(sin_memoria, ES("no hay memoria suficiente"), FR("mémoire insuffisante"), PT_BR("memória insuficiente"),
  CA("no hi ha prou memòria"), IT("memoria insufficiente"), EN("not enough memory"),
  GL("non hai memoria abonda"), DE("nicht genügend Speicher"))
M(sin_salida, ES("no se puede escribir el resultado"), FR("impossible d'écrire le résultat"),
  PT_BR("não é possível escrever o resultado"), CA("no es pot escriure el resultat"),
  IT("impossibile scrivere il risultato"), EN("the result cannot be written"),
  GL("non se pode escribir o resultado"), DE("das Ergebnis kann nicht geschrieben werden"))
M(no_se_lee, ES("no se puede leer"), FR("ne peut pas être lu"), PT_BR("não pode ser lido"),
  CA("no es pot llegir"), IT("non può essere letto"), EN("cannot be read"), GL("non se pode ler"),
  DE("kann nicht gelesen werden"))
M(demasiado, ES("el dibujo tiene demasiadas entidades"), FR("le dessin contient trop d'entités"),
  PT_BR("o desenho tem entidades demais"), PT("o desenho tem demasiadas entidades"),
  CA("el dibuix té massa entitats"), IT("il disegno contiene troppe entità"),
  EN("the drawing has too many entities"), GL("o debuxo ten demasiadas entidades"),
  DE("die Zeichnung enthält zu viele Objekte"))
M(no_se_graba, ES("no se ha podido grabar; el fichero anterior, si lo hay, queda como estaba"),
  FR("l'enregistrement a échoué ; le fichier précédent, s'il existe, reste inchangé"),
  PT_BR("não foi possível gravar; o arquivo anterior, se houver, fica como estava"),
  PT("não foi possível gravar; o ficheiro anterior, se houver, fica como estava"),
  CA("no s'ha pogut desar; el fitxer anterior, si n'hi ha, queda com estava"),
  IT("impossibile salvare; il file precedente, se c'è, resta com'era"),
  EN("could not be saved; the previous file, if there is one, is as it was"),
  GL("non se puido gravar; o ficheiro anterior, se o hai, queda como estaba"),
  DE("konnte nicht gespeichert werden; eine vorherige Datei bleibt unverändert"))
M(no_es_obra, ES("no es una obra o está dañada"), FR("ce n'est pas un fichier de projet, ou il est endommagé"),
  PT_BR("não é um arquivo de obra ou está danificado"), PT("não é um ficheiro de obra ou está danificado"),
  CA("no és una obra o està malmesa"), IT("non è un file di progetto o è danneggiato"),
  EN("not a project file, or damaged"), GL("non é unha obra ou está danada"),
  DE("ist keine Projektdatei oder ist beschädigt"))
M(superior, ES("está grabada con una versión superior a la que puede leer este programa"),
  FR("enregistré avec une version plus récente que celles que ce programme peut lire"),
  PT_BR("foi gravado com uma versão posterior à que este programa pode ler"),
  CA("està desada amb una versió posterior a la que pot llegir aquest programa"),
  IT("salvato con una versione successiva a quella che questo programma può leggere"),
  EN("saved by a later version than this program can read"),
  GL("está gravada cunha versión posterior á que pode ler este programa"),
  DE("wurde mit einer neueren Version gespeichert, als dieses Programm lesen kann"))
M(importado, ES("importado en"), FR("importé dans"), PT_BR("importado para"), CA("importat a"),
  IT("importato in"), EN("imported into"), GL("importado en"), DE("importiert in"))
M(falta_destino, ES("falta el nombre del resultado"), FR("il manque le nom du résultat"),
  PT_BR("falta o nome do resultado"), CA("falta el nom del resultat"), IT("manca il nome del risultato"),
  EN("the name of the result is missing"), GL("falta o nome do resultado"), DE("der Name des Ergebnisses fehlt"))
M(clase_ausente, ES("este programa se ha hecho sin esa clase de dibujos"),
  FR("ce programme a été fait sans ce genre de dessins"), PT_BR("este programa foi feito sem essa classe de desenhos"),
  CA("aquest programa s'ha fet sense aquesta classe de dibuixos"),
  IT("questo programma è stato fatto senza questo genere di disegni"),
  EN("this program was built without that kind of pictures"),
  GL("este programa fíxose sen esa clase de debuxos"),
  DE("dieses Programm ist ohne diese Art von Bildern gebaut"))
M(nada_que_dibujar, ES("no hay nada que dibujar"), FR("il n'y a rien à dessiner"), PT_BR("não há nada para desenhar"),
  CA("no hi ha res per dibuixar"), IT("non c'è nulla da disegnare"), EN("there is nothing to draw"),
  GL("non hai nada que debuxar"), DE("es gibt nichts zu zeichnen"))
M(sin_contornos, ES("no hay contornos cerrados"), FR("il n'y a pas de contours fermés"),
  PT_BR("não há contornos fechados"), CA("no hi ha contorns tancats"), IT("non ci sono contorni chiusi"),
  EN("there are no closed outlines"), GL("non hai contornos pechados"), DE("es gibt keine geschlossenen Umrisse"))
M(dibujado, ES("dibujado en"), FR("dessiné dans"), PT_BR("desenhado em"), CA("dibuixat a"), IT("disegnato in"),
  EN("drawn into"), GL("debuxado en"), DE("gezeichnet in"))

/* The report: of the file. */
M(dos_puntos, ES(":"), FR(" :"), PT_BR(":"), CA(":"), IT(":"), EN(":"), GL(":"), DE(":"))
M(punto_y_coma, ES(";"), FR(" ;"), PT_BR(";"), CA(";"), IT(";"), EN(";"),
  GL(";"), DE(";"))
M(titulo, ES("Título"), FR("Titre"), PT_BR("Título"), CA("Títol"), IT("Titolo"), EN("Title"),
  GL("Título"), DE("Titel"))
M(programa, ES("Programa"), FR("Programme"), PT_BR("Programa"), CA("Programa"), IT("Programma"),
  EN("Program"), GL("Programa"), DE("Programm"))
M(version, ES("versión"), FR("version"), PT_BR("versão"), CA("versió"), IT("versione"), EN("version"),
  GL("versión"), DE("Version"))
M(revision, ES("revisión"), FR("révision"), PT_BR("revisão"), CA("revisió"), IT("revisione"),
  EN("revision"), GL("revisión"), DE("Revision"))
M(ejemplo, ES("ejemplo"), FR("exemple"), PT_BR("exemplo"), CA("exemple"), IT("esempio"), EN("sample"),
  GL("exemplo"), DE("Beispiel"))
M(formato, ES("Formato"), FR("Format"), PT_BR("Formato"), CA("Format"), IT("Formato"), EN("Format"),
  GL("Formato"), DE("Format"))
M(actual, ES("la actual es la"), FR("l'actuelle est la"), PT_BR("a atual é a"), CA("l'actual és la"),
  IT("l'attuale è la"), EN("current:"), GL("a actual é a"), DE("die aktuelle ist"))
M(dibujo, ES("Dibujo"), FR("Dessin"), PT_BR("Desenho"), CA("Dibuix"), IT("Disegno"), EN("Drawing"),
  GL("Debuxo"), DE("Zeichnung"))
M(unidad, ES("m por unidad"), FR("m par unité"), PT_BR("m por unidade"), CA("m per unitat"),
  IT("m per unità"), EN("m per unit"), GL("m por unidade"), DE("m je Einheit"))
M(tipos_linea, ES("Tipos de línea"), FR("Types de ligne"), PT_BR("Tipos de linha"), CA("Tipus de línia"),
  IT("Tipi di linea"), EN("Line types"), GL("Tipos de liña"), DE("Linientypen"))
M(campos, ES("Campos"), FR("Champs"), PT_BR("Campos"), CA("Camps"), IT("Campi"), EN("Fields"),
  GL("Campos"), DE("Felder"))
M(ningun_campo, ES("ninguno"), FR("aucun"), PT_BR("nenhum"), CA("cap"), IT("nessuno"), EN("none"),
  GL("ningún"), DE("keine"))
M(secciones, ES("Secciones"), FR("Sections"), PT_BR("Seções"), PT("Secções"), CA("Seccions"),
  IT("Sezioni"), EN("Sections"), GL("Seccións"), DE("Abschnitte"))
M(bytes, ES("bytes"), FR("octets"), PT_BR("bytes"), CA("bytes"), IT("byte"), EN("bytes"),
  GL("bytes"), DE("Byte"))

/* Of the layers. */
M(capas, ES("Capas"), FR("Calques"), PT_BR("Camadas"), CA("Capes"), IT("Layer"), EN("Layers"),
  GL("Capas"), DE("Layer"))
M(apagada, ES("apagada"), FR("désactivé"), PT_BR("desligada"), CA("apagada"), IT("disattivato"),
  EN("off"), GL("apagada"), DE("ausgeschaltet"))
M(color, ES("color"), FR("couleur"), PT_BR("cor"), CA("color"), IT("colore"), EN("colour"),
  GL("cor"), DE("Farbe"))
M(lineas, ES("líneas"), FR("lignes"), PT_BR("linhas"), CA("línies"), IT("linee"), EN("lines"),
  GL("liñas"), DE("Linien"))
M(circulos, ES("círculos"), FR("cercles"), PT_BR("círculos"), CA("cercles"), IT("cerchi"),
  EN("circles"), GL("círculos"), DE("Kreise"))
M(arcos, ES("arcos"), FR("arcs"), PT_BR("arcos"), CA("arcs"), IT("archi"), EN("arcs"),
  GL("arcos"), DE("Bögen"))
M(elipses, ES("elipses"), FR("ellipses"), PT_BR("elipses"), CA("el·lipses"), IT("ellissi"),
  EN("ellipses"), GL("elipses"), DE("Ellipsen"))
M(polilineas, ES("polilíneas"), FR("polylignes"), PT_BR("polilinhas"), CA("polilínies"),
  IT("polilinee"), EN("polylines"), GL("poliliñas"), DE("Polylinien"))
M(textos, ES("textos"), FR("textes"), PT_BR("textos"), CA("textos"), IT("testi"), EN("texts"),
  GL("textos"), DE("Texte"))
M(total, ES("Total"), FR("Total"), PT_BR("Total"), CA("Total"), IT("Totale"), EN("Total"),
  GL("Total"), DE("Gesamt"))
M(sin_importar, ES("Sin importar"), FR("Non importé"), PT_BR("Não importado"), CA("Sense importar"),
  IT("Non importato"), EN("Not imported"), GL("Sen importar"), DE("Nicht importiert"))

/* Of what is measured. */
M(energia, ES("Unidad de energía"), FR("Unité d'énergie"), PT_BR("Unidade de energia"),
  CA("Unitat d'energia"), IT("Unità di energia"), EN("Unit of energy"), GL("Unidade de enerxía"),
  DE("Energieeinheit"))
M(extension, ES("Extensión"), FR("Étendue"), PT_BR("Extensão"), CA("Extensió"), IT("Estensione"),
  EN("Extents"), GL("Extensión"), DE("Ausdehnung"))
M(ninguna_extension, ES("ninguna"), FR("aucune"), PT_BR("nenhuma"), CA("cap"), IT("nessuna"),
  EN("none"), GL("ningunha"), DE("keine"))
M(medidas, ES("Longitudes y áreas"), FR("Longueurs et surfaces"), PT_BR("Comprimentos e áreas"),
  CA("Longituds i àrees"), IT("Lunghezze e aree"), EN("Lengths and areas"), GL("Lonxitudes e áreas"),
  DE("Längen und Flächen"))
M(longitud, ES("longitud"), FR("longueur"), PT_BR("comprimento"), CA("longitud"), IT("lunghezza"),
  EN("length"), GL("lonxitude"), DE("Länge"))
M(cerradas, ES("polilíneas cerradas"), FR("polylignes fermées"), PT_BR("polilinhas fechadas"),
  CA("polilínies tancades"), IT("polilinee chiuse"), EN("closed polylines"), GL("poliliñas pechadas"),
  DE("geschlossene Polylinien"))
M(area, ES("área"), FR("surface"), PT_BR("área"), CA("àrea"), IT("area"), EN("area"), GL("área"),
  DE("Fläche"))

/* Of its geometry. */
M(rectangulo, ES("Rectángulo envolvente"), FR("Rectangle englobant"), PT_BR("Retângulo envolvente"),
  CA("Rectangle envolupant"), IT("Rettangolo d'ingombro"), EN("Bounding rectangle"),
  GL("Rectángulo envolvente"), DE("Umschließendes Rechteck"))
M(casco, ES("Envolvente convexa"), FR("Enveloppe convexe"), PT_BR("Envoltória convexa"),
  PT("Invólucro convexo"), CA("Envolupant convexa"), IT("Inviluppo convesso"), EN("Convex hull"),
  GL("Envolvente convexa"), DE("Konvexe Hülle"))
M(vertices, ES("vértices"), FR("sommets"), PT_BR("vértices"), CA("vèrtexs"), IT("vertici"),
  EN("vertices"), GL("vértices"), DE("Eckpunkte"))
M(geometria, ES("Contornos, cruces y arcos"), FR("Contours, intersections et arcs"),
  PT_BR("Contornos, cruzamentos e arcos"), CA("Contorns, encreuaments i arcs"),
  IT("Contorni, intersezioni e archi"), EN("Outlines, crossings and arcs"),
  GL("Contornos, cruzamentos e arcos"), DE("Umrisse, Kreuzungen und Bögen"))
M(contornos, ES("contornos cerrados"), FR("contours fermés"), PT_BR("contornos fechados"),
  CA("contorns tancats"), IT("contorni chiusi"), EN("closed outlines"), GL("contornos pechados"),
  DE("geschlossene Umrisse"))
M(cruces, ES("cruces"), FR("intersections"), PT_BR("cruzamentos"), CA("encreuaments"),
  IT("intersezioni"), EN("crossings"), GL("cruzamentos"), DE("Kreuzungen"))
M(al_menos, ES("al menos"), FR("au moins"), PT_BR("pelo menos"), CA("com a mínim"), IT("almeno"),
  EN("at least"), GL("polo menos"), DE("mindestens"))
