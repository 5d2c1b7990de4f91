/* The user texts of vornconf, for the ANSI reader: Romanian with the cedillas that its page has. */

/* The label of the choice of a system. */
M(32343, 1, ES("Sistema de unidades"), FR("Système d'unités"), PT_BR("Sistema de unidades"), CA("Sistema d'unitats"),
  IT("Sistema di unità"), EN("System of units"), BG("Система единици"), RO("Sistem de unităţi"), ZH("单位制"),
  DE("Einheitensystem"), RU("Система единиц"), PL("Układ jednostek"), TR("Birim sistemi"), JA("単位系"))
/* The systems of units. */
M(53941, 2, ES("M.K.S."), PT_BR("M.K.S. (m.tf.s.)"), PT("M.K.S."), EN("M.K.S."))
M(53942, 3, ES("Sistema Internacional"), FR("Système international"), PT_BR("Sistema Internacional"),
  IT("Sistema internazionale"), EN("International System"), BG("Международна система"), RO("Sistemul internaţional"),
  ZH("国际单位制"), DE("Internationales Einheitensystem"), RU("Международная система"), PL("Układ międzynarodowy"),
  TR("Uluslararası Sistem"), JA("国際単位系"))
M(53943, 4, ES("Unidades Inglesas"), FR("Unités anglo-saxonnes"), PT_BR("Unidades Inglesas"), CA("Unitats angleses"),
  IT("Unità anglosassoni"), EN("Imperial units"), GL("Unidades inglesas"), BG("Английски единици"),
  RO("Unităţi anglo-saxone"), ZH("英制单位"), DE("Angloamerikanische Einheiten"), RU("Английские единицы"),
  PL("Jednostki anglosaskie"), TR("İngiliz birimleri"), JA("ヤード・ポンド法"))
/* The units of energy, with their symbols. */
M(53944, 5, ES("julio, J"), CA("joule, J"), EN("joule, J"), GL("joule, J"), BG("джаул, J"), ZH("焦耳, J"),
  DE("Joule, J"), RU("джоуль, Дж"), PL("dżul, J"), TR("jul, J"), JA("ジュール, J"))
M(53945, 6, ES("kilocaloría, kcal"), PT_BR("quilocaloria, kcal"), CA("quilocaloria, kcal"), IT("chilocaloria, kcal"),
  EN("kilocalorie, kcal"), GL("quilocaloría, kcal"), BG("килокалория, kcal"), ZH("千卡, kcal"), DE("Kilokalorie, kcal"),
  RU("килокалория, ккал"), PL("kilokaloria, kcal"), TR("kilokalori, kcal"), JA("キロカロリー, kcal"))
M(53946, 7, ES("unidad térmica británica, Btu"), FR("unité thermique britannique, Btu"),
  PT_BR("unidade térmica britânica, Btu"), CA("unitat tèrmica britànica, Btu"), IT("unità termica britannica, Btu"),
  EN("British thermal unit, Btu"), GL("unidade térmica británica, Btu"), BG("британска топлинна единица, Btu"),
  RO("unitate termică britanică, Btu"), ZH("英热单位, Btu"), DE("britische Wärmeeinheit, Btu"),
  RU("британская тепловая единица, Btu"), PL("brytyjska jednostka cieplna, Btu"), TR("İngiliz ısı birimi, Btu"),
  JA("英国熱量単位, Btu"))
