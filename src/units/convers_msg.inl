/* The unit texts that some language writes otherwise than Spanish does. Those without a row are the same in all.

   X(spanish, T(LANGUAGE, text)...): columns as in msglocal_priv.h. Russian and Bulgarian have symbols of their own for the
   metric units, as in the labels of budget units; what counts pounds, feet and Btu stays as it is there too. */

/* Those in Cyrillic alone. */
#define SR(es, ru) X(es, T(EN, es), T(BG, ru), T(RU, ru))
/* A tonne of force is "tf" where "t" is kept for mass. */
#define TN(es, tf, ru) X(es, T(PT_BR, tf), T(EN, es), T(BG, ru), T(ZH, tf), T(RU, ru), T(JA, tf))
/* The kilopond of Spanish, Catalan, Galician and German is the kilogram-force elsewhere; the megapond, the
   tonne-force as the language writes it in every other unit. */
#define KP(es, am, kgf, pl, ru)                                                                                        \
    X(es, T(FR, kgf), T(PT_BR, kgf), T(PT, kgf), T(IT, kgf), T(ES_AM, am), T(EN, kgf), T(BG, ru), T(RO, kgf),          \
      T(ZH, kgf), T(DE, es), T(RU, ru), T(PL, pl), T(TR, kgf), T(JA, kgf))
#define MP(es, t, tf, ru)                                                                                              \
    X(es, T(FR, t), T(PT_BR, tf), T(PT, t), T(IT, t), T(ES_AM, t), T(EN, t), T(BG, ru), T(RO, t), T(ZH, tf), T(DE, es), \
      T(RU, ru), T(PL, es), T(TR, t), T(JA, tf))

KP("<47976>kp/cm²", "<47976>kg/cm²", "<47976>kgf/cm²", "<47976>kG/cm²", "<47976>кгс/см²")
KP("<47979>kp", "<47979>kgf", "<47979>kgf", "<47979>kG", "<47979>кгс")
KP("<47973>kp·m", "<47973>kgf·m", "<47973>kgf·m", "<47973>kG·m", "<47973>кгс·м")
KP("<47995>kp/m²", "<47995>kgf/m²", "<47995>kgf/m²", "<47995>kG/m²", "<47995>кгс/м²")
KP("<47999>m·kp/m", "<47999>m·kgf/m", "<47999>m·kgf/m", "<47999>m·kG/m", "<47999>м·кгс/м")
KP("<48000>kp/m", "<48000>kgf/m", "<48000>kgf/m", "<48000>kG/m", "<48000>кгс/м")

MP("<47974>Mp·m²", "<47974>t·m²", "<47974>tf·m²", "<47974>тс·м²")
MP("<48001>m²·Mp/m", "<48001>m²·t/m", "<48001>m²·tf/m", "<48001>м²·тс/м")

TN("t", "tf", "тс")
TN("t/m", "tf/m", "тс/м")
TN("t·m", "tf·m", "тс·м")
TN("t/cm²", "tf/cm²", "тс/см²")
TN("t/m²", "tf/m²", "тс/м²")
TN("t·m/m", "tf·m/m", "тс·м/м")
TN("t/m³", "tf/m³", "тс/м³")
TN("t/m4", "tf/m4", "тс/м4")
TN("t·m/rad", "tf·m/rad", "тс·м/рад")

X("<32341>grados", T(FR, "<32341>degrés"), T(PT_BR, "<32341>graus"), T(PT, "<32341>graus"), T(CA, "<32341>graus"),
  T(IT, "<32341>gradi"), T(EN, "<32341>degrees"), T(GL, "<32341>graos"), T(BG, "<32341>градуса"),
  T(RO, "<32341>grade"), T(ZH, "<32341>度"), T(DE, "<32341>Grad"), T(RU, "<32341>град."), T(PL, "<32341>stopni"),
  T(TR, "<32341>derece"), T(JA, "<32341>度"))
X("<47987>mRad", T(CA, "<47987>mrad"), T(EN, "<47987>mrad"), T(GL, "<47987>mrad"), T(BG, "<47987>мрад"), T(RU, "<47987>мрад"))
X("<47990>m.c.a.", T(FR, "<47990>m.c.e."), T(PT_BR, "<47990>m.c.a."), T(PT, "<47990>m.c.a."),
  T(IT, "<47990>m.c.a."), T(EN, "<47990>mH2O"), T(BG, "<47990>м в. ст."), T(RO, "<47990>m c.a."),
  T(DE, "<47990>mWS"), T(RU, "<47990>м вод. ст."), T(TR, "<47990>mSS"), T(JA, "<47990>mAq"))
X("<48004>dB/oct", T(IT, "<48004>dB/ott"), T(EN, "<48004>dB/oct"), T(BG, "<48004>дБ/окт"), T(DE, "<48004>dB/Okt"),
  T(RU, "<48004>дБ/окт"), T(PL, "<48004>dB/okt"), T(TR, "<48004>dB/okt"))
X("<48006>mm.c.a.", T(FR, "<48006>mm.c.e."), T(PT_BR, "<48006>mm.c.a."), T(PT, "<48006>mm.c.a."),
  T(IT, "<48006>mm.c.a."), T(EN, "<48006>mmH2O"), T(BG, "<48006>мм в. ст."), T(RO, "<48006>mm c.a."),
  T(DE, "<48006>mmWS"), T(RU, "<48006>мм вод. ст."), T(TR, "<48006>mmSS"), T(JA, "<48006>mmAq"))
X("<48007>dBA", T(FR, "<48007>dB(A)"), T(PT_BR, "<48007>dB(A)"), T(PT, "<48007>dB(A)"), T(IT, "<48007>dB(A)"),
  T(EN, "<48007>dBA"), T(BG, "<48007>дБА"), T(RO, "<48007>dB(A)"), T(ZH, "<48007>dB(A)"), T(DE, "<48007>dB(A)"),
  T(RU, "<48007>дБА"), T(PL, "<48007>dB(A)"), T(TR, "<48007>dB(A)"), T(JA, "<48007>dB(A)"))
X("<48008>mm.c.a./m", T(FR, "<48008>mm.c.e./m"), T(PT_BR, "<48008>mm.c.a./m"), T(PT, "<48008>mm.c.a./m"),
  T(IT, "<48008>mm.c.a./m"), T(EN, "<48008>mmH2O/m"), T(BG, "<48008>мм в. ст./м"), T(RO, "<48008>mm c.a./m"),
  T(DE, "<48008>mmWS/m"), T(RU, "<48008>мм вод. ст./м"), T(TR, "<48008>mmSS/m"), T(JA, "<48008>mmAq/m"))

SR("GPa", "ГПа")
SR("kN", "кН")
SR("kN/m", "кН/м")
SR("kN·m", "кН·м")
SR("kg/dm³", "кг/дм³")
SR("kN/m³", "кН/м³")
SR("MPa", "МПа")
SR("cm²", "см²")
SR("cm4", "см4")
SR("cm", "см")
SR("kN/m²", "кН/м²")
SR("mm", "мм")
SR("m", "м")
SR("rad", "рад")
SR("m/m°C", "м/м°C")
SR("kN·m/m", "кН·м/м")
SR("m³", "м³")
SR("l", "л")
SR("m/s²", "м/с²")
SR("cm6", "см6")
SR("cm³", "см³")
SR("l/s", "л/с")
SR("m³/h", "м³/ч")
SR("m/s", "м/с")
SR("x10-6 m²/s", "x10-6 м²/с")
SR("kg/(m·s)", "кг/(м·с)")
SR("mm²", "мм²")
SR("A", "А")
SR("kA", "кА")
SR("Ohm/km", "Ом/км")
SR("mOhm", "мОм")
SR("Ohm", "Ом")
SR("Ohm·m", "Ом·м")
SR("V", "В")
SR("kW", "кВт")
SR("MVA", "МВ·А")
SR("bar", "бар")
SR("kcal/m³", "ккал/м³")
SR("m²", "м²")
SR("s", "с")
SR("cm²/m", "см²/м")
SR("cm²/m²", "см²/м²")
SR("kN·m²", "кН·м²")
SR("kg/m²", "кг/м²")
SR("m²·h·°C/kcal", "м²·ч·°C/ккал")
SR("<47984>m²·K/W", "<47984>м²·К/Вт")
SR("kcal/(h·m²°C)", "ккал/(ч·м²°C)")
SR("<47985>W/(m²·K)", "<47985>Вт/(м²·К)")
SR("kcal/(h °C)", "ккал/(ч °C)")
SR("<47988>W/K", "<47988>Вт/К")
SR("kcal/(h m°C)", "ккал/(ч м°C)")
SR("<47989>W/(m·K)", "<47989>Вт/(м·К)")
SR("kg/m³", "кг/м³")
SR("m-1", "м-1")
SR("kg/m", "кг/м")
SR("kg", "кг")
SR("kVA", "кВ·А")
SR("<48002>m²·kN/m", "<48002>м²·кН/м")
SR("m³/m²", "м³/м²")
SR("cm4/m", "см4/м")
SR("dB", "дБ")
SR("kN/m4", "кН/м4")
SR("min", "мин")
SR("l/(s·m²)", "л/(с·м²)")
SR("m³/(h·m²)", "м³/(ч·м²)")
SR("l/min", "л/мин")
SR("l/h", "л/ч")
SR("mm/h", "мм/ч")
SR("N/m²", "Н/м²")
SR("cm³/m", "см³/м")
SR("kcal/h", "ккал/ч")
SR("W", "Вт")
SR("kcal/(h·m)", "ккал/(ч·м)")
SR("W/m", "Вт/м")
SR("kcal/(h·m²)", "ккал/(ч·м²)")
SR("W/m²", "Вт/м²")
SR("kcal/(h·m²·K)", "ккал/(ч·м²·К)")
SR("Pa", "Па")
SR("mA", "мА")
SR("Pa/m", "Па/м")
SR("cal/kg·°C", "кал/кг·°C")
SR("<48009>J/(kg·K)", "<48009>Дж/(кг·К)")
SR("cal/m³·°C", "кал/м³·°C")
SR("J/m³·K", "Дж/м³·К")
SR("kPa", "кПа")
SR("J/m²", "Дж/м²")
SR("dBµV", "дБмкВ")
SR("dBµV/m", "дБмкВ/м")
SR("dBW", "дБВт")
SR("kN·m/rad", "кН·м/рад")
SR("mbar", "мбар")
SR("kg/h", "кг/ч")
SR("mbar/m", "мбар/м")
SR("mm/s", "мм/с")
SR("mm/min", "мм/мин")
SR("kcal", "ккал")
SR("kcal/m²", "ккал/м²")
SR("kW·h", "кВт·ч")
SR("MJ/m³·K", "МДж/м³·К")

#undef SR
#undef TN
#undef KP
#undef MP
