/* The host's main window. */
#ifndef VN_LASTWIN_H
#define VN_LASTWIN_H

#include "../suelo/tipos.h"

VN_C_INICIO

/** The main window that the host set (an HWND on Windows), or null. */
void *lastwin_win_GetWinMain(void);
/** Sets the main window, process-wide; null says that there is none. Not owned. */
void lastwin_win_SetWinMain(VN_DATO void *ventana);

VN_C_FIN

#endif
