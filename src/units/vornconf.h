/* Unit configuration: the system of units, the energy unit and the design standards in force on this machine.

   They stand in the file "internac.ini" of the directory that the programs of the family share (fichconf.h), and in one
   record of the process, which is loaded from it at the first query or change. Threads: every operation may be called
   from any thread, the first one too; what one changes the others see from their next operation on. Each reading and
   writing of the file is made inside a mutex between programs, and a program that is killed at any moment leaves the
   file whole. A value that the file lacks, or has as 0, is the default of the active language. */
#ifndef VN_VORNCONF_H
#define VN_VORNCONF_H

#include "../foundation/suelo/tipos.h"

/** Systems of units. The first counts force in tonnes-force. */
#define VORNCONF_SU_MKS 1u
#define VORNCONF_SU_INTERNACIONAL 2u
#define VORNCONF_SU_IMPERIAL 3u

/** Units of energy. */
#define VORNNORM_UNIDAD_ENERGIA_JULIO 0u
#define VORNNORM_UNIDAD_ENERGIA_KCAL 1u
#define VORNNORM_UNIDAD_ENERGIA_BTU 2u

/** No standard: of concrete, cold-formed steel, rolled steel, electrical and timber works. Other codes are
    the hosts'. */
#define NORMA_H_ERROR 0u
#define NORMA_C_ERROR 0u
#define NORMA_L_ERROR 0u
#define NORMAELE_ERROR 0u
#define NORMA_M_ERROR 0u

/** What the file holds. */
typedef struct vornconf_internacional {
    uint32_t hormigon;                 /**< standard for concrete */
    uint32_t conformados;              /**< for cold-formed steel */
    uint32_t laminados;                /**< for rolled steel */
    uint32_t electrica;                /**< for electrical works */
    uint32_t madera;                   /**< for timber */
    uint32_t sistema_unidades;         /**< VORNCONF_SU_* */
    uint32_t sistema_unidades_energia; /**< VORNNORM_UNIDAD_ENERGIA_* */
} vornconf_internacional;

VN_C_INICIO

/** The system of units, and the unit of energy, of the process: a load of one word, once it has been read. */
uint32_t vornconf_Internacional_sistema_unidades(void);
uint32_t vornconf_Internacional_sistema_unidades_energia(void);
/** Changes one for the process; the file stays as it is. A value that is none of the three is reported. */
void vornconf_Internacional_set_sistema_unidades(VN_RANGO(1, 3) uint32_t sistema_unidades);
void vornconf_Internacional_set_sistema_unidades_energia(VN_RANGO(0, 2) uint32_t sistema_unidades_energia);
/** The standards of the process. */
uint32_t vornconf_Internacional_normaHorm(void);
uint32_t vornconf_Internacional_normaAceroConf(void);
uint32_t vornconf_Internacional_normaAceroLam(void);
uint32_t vornconf_Internacional_normaMadera(void);
/** The number of the active language, its index plus 1. One above NUM_IDIOMAS is reported and gives 0. */
uint32_t vornconf_Internacional_idioma(void);
/** Whether the process's system is VORNCONF_SU_IMPERIAL. A system that is none of the three is reported. */
vnbool vornconf_es_sistema_unidades_inglesas(void);

/** A standard, read from the file now. */
uint32_t vornconf_lee_norma_hormigon(void);
uint32_t vornconf_lee_norma_acero_conformado(void);
uint32_t vornconf_lee_norma_acero_laminado(void);
uint32_t vornconf_lee_norma_madera(void);
/** Replaces one standard in the file; the record of the process stays. Two programs that do this at the same moment may
    lose one of the two changes. */
void vornconf_graba_norma_hormigon(uint32_t norma);
void vornconf_graba_norma_acero_conformado(uint32_t norma);
void vornconf_graba_norma_acero_laminado(uint32_t norma);

/** Loads the record of the process from the file, and copies it to `*internac`. */
void vornconf_par_lee_internacional(VN_SALIDA_OPC vornconf_internacional *internac);
/** Writes the seven values to the file, all of which is replaced, and makes them the record of the process (which, if
    it has not been loaded yet, is still loaded from the file at the next query). A file that cannot be written is
    reported by the file library, with its name. */
void vornconf_par_graba_internacional(const vornconf_internacional *internac);
/** If there is no file, writes the defaults of a language and loads them. The file names the active language. */
void vornconf_crea_internac_por_defecto_si_no_existe(VN_RANGO(0, 40) uint32_t idioma);

/** Texts in the active language: "label: system", new; the label alone, and the name of a unit of energy, borrowed. A
    value that is none of the three is reported: null. */
char *vornconf_texto_sistema_de_unidades(VN_RANGO(1, 3) uint32_t sistema_unidades);
const char *vornconf_texto_sistema_unidades(void);
const char *vornconf_texto_sistema_unidad_energia(VN_RANGO(0, 2) uint32_t sistema_unidades_energia);

VN_C_FIN

#endif
