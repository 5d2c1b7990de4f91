/* The user texts of monedas. */

/* Pesetas, abbreviated. */
M(124345, 1, ES("Ptas"), CA("Ptes"), EN("Ptas"), BG("песети"), RO("pesete"), ZH("比塞塔"), DE("Peseten"), RU("песет"),
  PL("peset"), TR("peseta"), JA("ペセタ"))
/* Euros. */
M(124346, 2, ES("euros"), IT("euro"), EN("euros"), BG("евро"), RO("euro"), ZH("欧元"), DE("Euro"), RU("евро"),
  PL("euro"), TR("avro"), JA("ユーロ"))
