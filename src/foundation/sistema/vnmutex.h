/* Named mutexes: between the threads of a process, and between the programs of a machine.

   A mutex is recursive: the thread that holds it may enter again, and frees it with as many exits. Two
   mutexes of the same name and kind are the same lock, so each user may make its own and destroy it when
   done; what was entered through one is left through the same. Who waits enters in the order in which it came, be it a
   thread or a program. No wait is for ever: past the time allowed, entering answers FALSO. A program that dies inside
   frees what it held, and the next one enters; a thread that ends inside keeps it as long as its program runs. A
   process that splits (fork) keeps what it holds, and its child has entered nothing.

   Threads: every operation may be called from any thread; nobody uses a mutex that another thread destroys. */
#ifndef VN_VNMUTEX_H
#define VN_VNMUTEX_H

#include "../suelo/tipos.h"

typedef struct vnmutex vnmutex;

VN_C_INICIO

/** New mutex between the threads of this process. The name is any text that is not empty; case counts. The two forms
    of a name are the same name when it is plain ASCII. */
vnmutex *vnmutex_crea(const char *nombre);
vnmutex *vnmutex_crea_u(const vnwchar *nombre);
/** New mutex between all programs of this machine, of all its users, and between their threads. The name is any text
    that is not empty; case counts. Where the machine refuses the shared lock (somebody made what stands in its place),
    a developer's warning is given and the programs of this user share one of their own. */
vnmutex *vnmutex_crea_entre_aplicaciones(const char *nombre);

/** Enters: CIERTO when this thread holds the mutex. FALSO when the time allowed passed, or when the machine refuses
    the lock: nothing is held then and vnmutex_sal must not be called. Neither is reported. */
vnbool vnmutex_entra(vnmutex *m);
/** Leaves once. A mutex that this thread has not entered is reported, and nothing changes. */
void vnmutex_sal(vnmutex *m);
/** Enters `*m`, which is made first with vnmutex_crea_entre_aplicaciones if it is null; threads may meet here. The
    result is that of vnmutex_entra. */
vnbool vnmutex_entra_creando_entre_aplicaciones_si_es_necesario(VN_OPC vnmutex **m, const char *nombre);

/** Destroys a mutex; a null one is nothing. One that this thread has not left is left and reported; one that another
    thread has not left is reported and stays. */
void vnmutex_destruye(VN_OPC vnmutex **m);
/** For the end of the process: leaves it first if it is held, by whatever thread, and destroys it. */
void vnmutex_destruye_saliendo(VN_OPC vnmutex **m);

/** Sets how long vnmutex_entra waits, in milliseconds, for the whole process; returns what it was. 30,000 at first. */
uint32_t vnmutex_establece_plazo(uint32_t milisegundos);
/** How often this process has entered a mutex whose holder had died inside: what it guards may be half done. */
uint64_t vnmutex_numero_de_abandonados(void);

VN_C_FIN

#endif
