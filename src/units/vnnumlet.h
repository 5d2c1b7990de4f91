/* Amounts in words, as a budget certificate needs them: a text of digits becomes words in the active language, an
   amount with its currency. The languages that have words are Spanish (also that of America), Portuguese of Brazil and
   of Portugal, Catalan, Galician, English and French; the environment variable PRUEBA_NUMEROS_INGLES makes it English.

   `cadena` is up to 15 digits, then, if anything follows, any one character as separator and two digits of fraction, no
   thousands. More digits give the text "ERR desbordamiento", in the language. No digits before a full stop or a comma
   are 0, and a fraction of 00 is none. `negativo` puts "menos " before what is not zero.

   Portuguese of Portugal has the conjunction "e" only where its words have it ("cento e", "vinte e"); Catalan writes
   "de" before every currency ("dos milions de euros").

   The result is a new ANSI text of page 1252 in lower case, freed with vornstr_destruye. It is null after a report: a
   null text, a separator without its two digits or with more behind them ("1.234,56"), one that is neither full stop
   nor comma before digits alone (" 12"), a language that has no words (of which a developer's warning tells too). */
#ifndef VN_VNNUMLET_H
#define VN_VNNUMLET_H

#include "../foundation/suelo/tipos.h"

VN_C_INICIO

/** A number: "1021.50" is "mil veintiun con cincuenta". */
char *vnnumlet_numero_en_cifras_a_letra(const char *cadena, vnbool negativo);
/** An amount with the names of its currency and of its hundredth part (ANSI, of page 1252 like the words): "1021.50" is
    "mil veintiun euros con cincuenta céntimos". `..Femenina`: that name is feminine. The fraction's names are given
    both or none; a plural without its singular is reported, a singular alone counts as none. With them or without, an
    amount below one is its fraction alone ("cincuenta céntimos"), which without a name reads as whole units
    ("cincuenta"): who has such amounts gives the names. */
char *vnnumlet_moneda_en_cifras_a_letra(const char *cadena, vnbool negativo, const char *monedaPrincipalSingular,
                                        const char *monedaPrincipalPlural, vnbool monedaPrincipalFemenina,
                                        VN_OPC const char *monedaFraccionariaSingular,
                                        VN_OPC const char *monedaFraccionariaPlural, vnbool monedaFraccionariaFemenina);

VN_C_FIN

#endif
