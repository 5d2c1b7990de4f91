#!/usr/bin/python3
"""A host in Python: traps, call-backs under them and refused arguments through ctypes, many times over, and a plug-in that
is unloaded.
usage: anfitrion.py LIBNUCLEOS LIBNUCLEOS_FOUNDATION PLUGIN [unload]"""
import _ctypes
import ctypes
import subprocess
import sys

FUNCION = ctypes.CFUNCTYPE(None, ctypes.c_void_p)
VISITA = ctypes.CFUNCTYPE(None, ctypes.c_void_p, ctypes.c_void_p)
VUELTAS = 50


def descarga():
    foundation = ctypes.CDLL(sys.argv[2])
    for operacion in ("deja_un_bloque", "registra"):
        complemento = ctypes.CDLL(sys.argv[3])
        complemento[operacion]()
        _ctypes.dlclose(complemento._handle)
        with open("/proc/self/maps", encoding="utf-8") as f:
            assert (sys.argv[3] in f.read()) == (operacion == "registra"), operacion
    foundation.vornspy_informa_de_fugas()


def main():
    if len(sys.argv) > 4:
        return descarga()
    p = subprocess.run([sys.executable, *sys.argv, "unload"], capture_output=True, text=True)
    assert p.returncode == 0 and "complemento (COMPLEMENTO.DLL), " in p.stderr and "complemento: final" in p.stderr, p
    foundation = ctypes.CDLL(sys.argv[2])
    nucleos = ctypes.CDLL(sys.argv[1])
    foundation.trapable_texto_del_ultimo_fallo.restype = ctypes.c_char_p
    foundation.arr_CreaPunteroConTipo.restype = ctypes.c_void_p
    foundation.vnmutex_crea.restype = ctypes.c_void_p
    nucleos.vornsave_graba_double.argtypes = [ctypes.c_double, ctypes.c_void_p]
    vistos, mutex = [], ctypes.c_void_p(foundation.vnmutex_crea(b"anfitrion"))

    def rechazada(*_):
        nucleos.vornsave_graba_double(1.0, None)
        vistos.append(True)

    def en_el_mutex(_):
        foundation.vnmutex_entra(mutex)
        rechazada()
        foundation.vnmutex_sal(mutex)

    def pasea(_):
        visita = VISITA(rechazada)
        a = ctypes.c_void_p(foundation.arr_CreaPunteroConTipo(3))
        foundation.arr_RecorreEstructuraSimpleConTipo(a, visita, None)
        foundation.arr_DestruyePunteroConTipo(ctypes.byref(a))

    for _ in range(VUELTAS):
        for f in (rechazada, en_el_mutex, pasea):
            en_trampa = FUNCION(f)
            assert foundation.trapable_nousar_recursivo_ejecuta_funcion_segura(en_trampa, None, None) & 0xFFFF == 0, f
            assert b"(vornsave_datos) != NULL" in foundation.trapable_texto_del_ultimo_fallo()
        bien = FUNCION(lambda _: vistos.pop())
        assert foundation.trapable_nousar_recursivo_ejecuta_funcion_segura(bien, None, None) & 0xFFFF == 1
    assert len(vistos) == 4 * VUELTAS, len(vistos)
    antes = foundation.error_interno_numero_de_informes()
    foundation.vnmutex_destruye(ctypes.byref(mutex))
    assert foundation.error_interno_numero_de_informes() == antes, "the mutex was left"
    print(f"{len(vistos)} calls came back")


if __name__ == "__main__":
    main()
