/* The labels of the units of a budget. Four have ANSI texts of their own, in the code page of the column's language,
   1252 where nothing is said: Bulgarian and Russian 1251, Romanian and Polish 1250, Turkish 1254, Chinese 936, Japanese
   932. The pages that have no superscript digits take plain ones there, and a full stop for the raised one where that is
   missing too. */

/* Unit of things that are counted. */
M(165177, 1, ES("Ud"), FR("U"), PT_BR("un"), CA("U"), IT("cad."), EN("ea"), BG("бр."), RO("buc."), ZH("个"), DE("St"),
  RU("шт."), PL("szt."), TR("ad."), JA("個"))
/* Hour. */
M(165181, 2, ES("h"), EN("h"), BG("ч"), RU("ч"), TR("sa"))
/* Kilogram. */
M(157616, 3, ES("kg"), EN("kg"), BG("кг"), RU("кг"))
/* Kilometre. */
M(165187, 4, ES("km"), EN("km"), BG("км"), RU("км"))
/* Litre. */
M(165186, 5, ES("l"), EN("l"), BG("л"), RU("л"))
/* Metre. */
M(40344, 6, ES("m"), EN("m"), BG("м"), RU("м"))
/* Square metre. */
M(165179, 7, ES("m²"), EN("m²"), BG("м²"), RU("м²"),
  ANSI(ES("m\xB2"), EN("m\xB2"), BG("\xEC" "2"), RO("m2"), ZH("m2"), RU("\xEC" "2"), PL("m2"), JA("m2")))
/* Cubic metre. */
M(165180, 8, ES("m³"), EN("m³"), BG("м³"), RU("м³"),
  ANSI(ES("m\xB3"), EN("m\xB3"), BG("\xEC" "3"), RO("m3"), ZH("m3"), RU("\xEC" "3"), PL("m3"), JA("m3")))
/* Cubic metre over a kilometre. */
M(165185, 9, ES("m³·km"), EN("m³·km"), BG("м³·км"), RU("м³·км"),
  ANSI(ES("m\xB3\xB7km"), EN("m\xB3\xB7km"), BG("\xEC" "3\xB7\xEA\xEC"), RO("m3\xB7km"), ZH("m3\xA1\xA4km"),
       RU("\xEC" "3\xB7\xEA\xEC"), PL("m3\xB7km"), JA("m3.km")))
/* Tonne. */
M(165183, 10, ES("t"), EN("t"), BG("т"), RU("т"))
/* Tonne over a kilometre. */
M(165184, 11, ES("t·km"), EN("t·km"), BG("т·км"), RU("т·км"),
  ANSI(ES("t\xB7km"), EN("t\xB7km"), BG("\xF2\xB7\xEA\xEC"), ZH("t\xA1\xA4km"), RU("\xF2\xB7\xEA\xEC"), JA("t.km")))
