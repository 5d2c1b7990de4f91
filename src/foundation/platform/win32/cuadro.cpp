#include "foundation/platform/cuadro.h"
#include <windows.h>

namespace vn::plat {

respuesta muestra_cuadro(void *ventana, const vnwchar *texto, bool pregunta) {
    const auto padre = static_cast<HWND>(ventana);
    // Without its window there is no box, and the caller falls back on the error stream.
    if (!IsWindow(padre)) return respuesta::nadie;
    wchar_t titulo[256] = L"";
    GetWindowTextW(padre, titulo, 256);
    const UINT estilo = pregunta ? MB_YESNO | MB_ICONQUESTION : MB_OK | MB_ICONERROR;
    const int boton = MessageBoxW(padre, texto, titulo, estilo);
    // The box could not be made.
    if (boton == 0) return respuesta::nadie;
    return boton == IDYES || boton == IDOK ? respuesta::si : respuesta::no;
}

} // namespace vn::plat
