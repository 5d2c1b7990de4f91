#define VN_MODULO "lastwin (NUCLEOS_FOUNDATION.DLL)"
#include "foundation/sistema/lastwin.h"
#include <atomic>

namespace {
// The main window of the host's program, borrowed; null until it has one.
constinit std::atomic<void *> la_ventana{nullptr};
} // namespace

void *lastwin_win_GetWinMain(void) { return la_ventana.load(std::memory_order_acquire); }
void lastwin_win_SetWinMain(void *ventana) { la_ventana.store(ventana, std::memory_order_release); }
