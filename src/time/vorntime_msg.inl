/* The user texts of vorntime. */

/* Months. */
M(38089, 1, ES("Enero"), FR("Janvier"), PT_BR("Janeiro"), CA("Gener"), IT("Gennaio"), EN("January"), GL("Xaneiro"),
  BG("Януари"), RO("Ianuarie"), ZH("一月"), DE("Januar"), RU("Январь"), PL("Styczeń"), TR("Ocak"), JA("1月"))
M(38090, 2, ES("Febrero"), FR("Février"), PT_BR("Fevereiro"), CA("Febrer"), IT("Febbraio"), EN("February"),
  GL("Febreiro"), BG("Февруари"), RO("Februarie"), ZH("二月"), DE("Februar"), RU("Февраль"), PL("Luty"), TR("Şubat"),
  JA("2月"))
M(38091, 3, ES("Marzo"), FR("Mars"), PT_BR("Março"), CA("Març"), IT("Marzo"), EN("March"), BG("Март"), RO("Martie"),
  ZH("三月"), DE("März"), RU("Март"), PL("Marzec"), TR("Mart"), JA("3月"))
M(38092, 4, ES("Abril"), FR("Avril"), PT_BR("Abril"), IT("Aprile"), EN("April"), BG("Април"), RO("Aprilie"), ZH("四月"),
  RU("Апрель"), PL("Kwiecień"), TR("Nisan"), JA("4月"))
M(38093, 5, ES("Mayo"), FR("Mai"), PT_BR("Maio"), CA("Maig"), IT("Maggio"), EN("May"), GL("Maio"), BG("Май"), RO("Mai"),
  ZH("五月"), DE("Mai"), RU("Май"), PL("Maj"), TR("Mayıs"), JA("5月"))
M(38094, 6, ES("Junio"), FR("Juin"), PT_BR("Junho"), CA("Juny"), IT("Giugno"), EN("June"), GL("Xuño"), BG("Юни"),
  RO("Iunie"), ZH("六月"), DE("Juni"), RU("Июнь"), PL("Czerwiec"), TR("Haziran"), JA("6月"))
M(38095, 7, ES("Julio"), FR("Juillet"), PT_BR("Julho"), CA("Juliol"), IT("Luglio"), EN("July"), GL("Xullo"), BG("Юли"),
  RO("Iulie"), ZH("七月"), DE("Juli"), RU("Июль"), PL("Lipiec"), TR("Temmuz"), JA("7月"))
M(38096, 8, ES("Agosto"), FR("Août"), PT_BR("Agosto"), CA("Agost"), IT("Agosto"), EN("August"), BG("Август"),
  ZH("八月"), RU("Август"), PL("Sierpień"), TR("Ağustos"), JA("8月"))
M(38097, 9, ES("Septiembre"), FR("Septembre"), PT_BR("Setembro"), CA("Setembre"), IT("Settembre"), EN("September"),
  GL("Setembro"), BG("Септември"), RO("Septembrie"), ZH("九月"), RU("Сентябрь"), PL("Wrzesień"), TR("Eylül"), JA("9月"))
M(38098, 10, ES("Octubre"), FR("Octobre"), PT_BR("Outubro"), IT("Ottobre"), EN("October"), GL("Outubro"),
  BG("Октомври"), RO("Octombrie"), ZH("十月"), DE("Oktober"), RU("Октябрь"), PL("Październik"), TR("Ekim"), JA("10月"))
M(38099, 11, ES("Noviembre"), FR("Novembre"), PT_BR("Novembro"), CA("Novembre"), IT("Novembre"), EN("November"),
  GL("Novembro"), BG("Ноември"), RO("Noiembrie"), ZH("十一月"), RU("Ноябрь"), PL("Listopad"), TR("Kasım"), JA("11月"))
M(38100, 12, ES("Diciembre"), FR("Décembre"), PT_BR("Dezembro"), CA("Desembre"), IT("Dicembre"), EN("December"),
  GL("Decembro"), BG("Декември"), RO("Decembrie"), ZH("十二月"), DE("Dezember"), RU("Декабрь"), PL("Grudzień"),
  TR("Aralık"), JA("12月"))

/* Months, abbreviated. */
M(ene, 13, ES("Ene"), FR("Janv"), CA("Gen"), IT("Gen"), EN("Jan"), GL("Xan"), BG("Яну"), RO("Ian"), ZH("1月"),
  RU("Янв"), PL("Sty"), TR("Oca"), JA("1月"))
M(feb, 14, ES("Feb"), FR("Févr"), PT_BR("Fev"), CA("Febr"), EN("Feb"), BG("Фев"), ZH("2月"), RU("Февр"), PL("Lut"),
  TR("Şub"), JA("2月"))
M(mar, 15, ES("Mar"), FR("Mars"), CA("Març"), EN("Mar"), BG("Март"), ZH("3月"), DE("Mär"), RU("Март"), JA("3月"))
M(abr, 16, ES("Abr"), FR("Avr"), PT_BR("Abr"), EN("Apr"), BG("Апр"), ZH("4月"), RU("Апр"), PL("Kwi"), TR("Nis"),
  JA("4月"))
M(may, 17, ES("May"), FR("Mai"), PT_BR("Mai"), CA("Maig"), IT("Mag"), EN("May"), GL("Maio"), BG("Май"), RO("Mai"),
  ZH("5月"), DE("Mai"), RU("Май"), PL("Maj"), JA("5月"))
M(jun, 18, ES("Jun"), FR("Juin"), CA("Juny"), IT("Giu"), EN("Jun"), GL("Xuño"), BG("Юни"), RO("Iun"), ZH("6月"),
  RU("Июнь"), PL("Cze"), TR("Haz"), JA("6月"))
M(jul, 19, ES("Jul"), FR("Juil"), IT("Lug"), EN("Jul"), GL("Xul"), BG("Юли"), RO("Iul"), ZH("7月"), RU("Июль"),
  PL("Lip"), TR("Tem"), JA("7月"))
M(ago, 20, ES("Ago"), FR("Août"), PT_BR("Ago"), CA("Ag"), IT("Ago"), EN("Aug"), BG("Авг"), ZH("8月"), RU("Авг"),
  PL("Sie"), TR("Ağu"), JA("8月"))
M(sep, 21, ES("Sep"), FR("Sept"), PT_BR("Set"), CA("Set"), IT("Set"), EN("Sep"), GL("Set"), BG("Сеп"), RO("Sept"),
  ZH("9月"), RU("Сент"), PL("Wrz"), TR("Eyl"), JA("9月"))
M(oct, 22, ES("Oct"), PT_BR("Out"), IT("Ott"), EN("Oct"), GL("Out"), BG("Окт"), ZH("10月"), DE("Okt"), RU("Окт"),
  PL("Paź"), TR("Eki"), JA("10月"))
M(nov, 23, ES("Nov"), EN("Nov"), BG("Ное"), ZH("11月"), RU("Нояб"), PL("Lis"), TR("Kas"), JA("11月"))
M(dic, 24, ES("Dic"), FR("Déc"), PT_BR("Dez"), CA("Des"), IT("Dic"), EN("Dec"), GL("Dec"), BG("Дек"), ZH("12月"),
  DE("Dez"), RU("Дек"), PL("Gru"), TR("Ara"), JA("12月"))

/* Days of the week, from Sunday. */
M(38108, 25, ES("Dom"), FR("Dim"), PT_BR("Dom"), CA("Dg"), IT("Dom"), EN("Sun"), BG("Нд"), RO("Dum"), ZH("周日"),
  DE("So"), RU("Вс"), PL("Niedz"), TR("Paz"), JA("日"))
M(38109, 26, ES("Lun"), FR("Lun"), PT_BR("Seg"), CA("Dl"), IT("Lun"), EN("Mon"), GL("Luns"), BG("Пн"), RO("Lun"),
  ZH("周一"), DE("Mo"), RU("Пн"), PL("Pon"), TR("Pzt"), JA("月"))
M(38110, 27, ES("Mar"), FR("Mar"), PT_BR("Ter"), CA("Dt"), IT("Mar"), EN("Tue"), BG("Вт"), RO("Mar"), ZH("周二"),
  DE("Di"), RU("Вт"), PL("Wt"), TR("Sal"), JA("火"))
M(38111, 28, ES("Mie"), FR("Mer"), PT_BR("Qua"), CA("Dc"), IT("Mer"), EN("Wed"), GL("Mér"), BG("Ср"), RO("Mie"),
  ZH("周三"), DE("Mi"), RU("Ср"), PL("Śr"), TR("Çar"), JA("水"))
M(38112, 29, ES("Jue"), FR("Jeu"), PT_BR("Qui"), CA("Dj"), IT("Gio"), EN("Thu"), GL("Xov"), BG("Чт"), RO("Joi"),
  ZH("周四"), DE("Do"), RU("Чт"), PL("Czw"), TR("Per"), JA("木"))
M(38113, 30, ES("Vie"), FR("Ven"), PT_BR("Sex"), CA("Dv"), IT("Ven"), EN("Fri"), GL("Ven"), BG("Пт"), RO("Vin"),
  ZH("周五"), DE("Fr"), RU("Пт"), PL("Pt"), TR("Cum"), JA("金"))
M(38114, 31, ES("Sab"), FR("Sam"), PT_BR("Sáb"), CA("Ds"), IT("Sab"), EN("Sat"), GL("Sáb"), BG("Сб"), RO("Sâm"),
  ZH("周六"), DE("Sa"), RU("Сб"), PL("Sob"), TR("Cmt"), JA("土"))

/* Their initials, for the ANSI reader. In Catalan all begin with D: the second letter. */
M(38107, 32, ES("D"), FR("D"), PT_BR("D"), CA("G"), IT("D"), EN("S"), BG("Н"), RO("D"), ZH("日"), RU("В"), PL("N"),
  TR("P"), JA("日"))
M(38101, 33, ES("L"), FR("L"), PT_BR("S"), IT("L"), EN("M"), BG("П"), RO("L"), ZH("一"), RU("П"), PL("P"), TR("P"),
  JA("月"))
M(38102, 34, ES("M"), FR("M"), CA("T"), IT("M"), EN("T"), BG("В"), RO("M"), ZH("二"), DE("D"), RU("В"), PL("W"),
  TR("S"), JA("火"))
M(38103, 35, ES("X"), FR("M"), PT_BR("Q"), CA("C"), IT("M"), EN("W"), GL("M"), BG("С"), RO("M"), ZH("三"), DE("M"),
  RU("С"), PL("Ś"), TR("Ç"), JA("水"))
M(292618, 36, ES("J"), FR("J"), PT_BR("Q"), IT("G"), EN("T"), GL("X"), BG("Ч"), RO("J"), ZH("四"), DE("D"), RU("Ч"),
  PL("C"), TR("P"), JA("木"))
M(291528, 37, ES("V"), FR("V"), PT_BR("S"), IT("V"), EN("F"), BG("П"), RO("V"), ZH("五"), RU("П"), PL("P"), TR("C"),
  JA("金"))
M(286311, 38, ES("S"), EN("S"), BG("С"), ZH("六"), RU("С"), TR("C"), JA("土"))

/* The system's date is wrong. */
M(54061, 39, ES("La fecha está mal. Revise en su sistema operativo si la fecha es correcta."),
  FR("La date est erronée. Vérifiez dans votre système d'exploitation que la date est correcte."),
  PT_BR("A data está errada. Verifique no seu sistema operacional se a data está correta."),
  PT("A data está errada. Verifique no seu sistema operativo se a data está correta."),
  CA("La data és incorrecta. Reviseu al vostre sistema operatiu si la data és correcta."),
  IT("La data è errata. Verificare nel sistema operativo che la data sia corretta."),
  EN("The date is wrong. Check in your operating system whether the date is correct."),
  GL("A data está mal. Revise no seu sistema operativo se a data é correcta."),
  BG("Датата е грешна. Проверете в операционната система дали датата е правилна."),
  RO("Data este greșită. Verificați în sistemul de operare dacă data este corectă."),
  ZH("日期有误。请在操作系统中检查日期是否正确。"),
  DE("Das Datum ist falsch. Prüfen Sie in Ihrem Betriebssystem, ob das Datum stimmt."),
  RU("Неверная дата. Проверьте в операционной системе, правильно ли установлена дата."),
  PL("Data jest nieprawidłowa. Sprawdź w systemie operacyjnym, czy data jest poprawna."),
  TR("Tarih yanlış. İşletim sisteminizde tarihin doğru olup olmadığını kontrol edin."),
  JA("日付が正しくありません。オペレーティングシステムの日付が正しいか確認してください。"))
