#!/usr/bin/python3
"""Compiles every public header alone, the way a host includes it, as C11 and as C++20 (.hpp: as C++20), with all warnings as errors.
usage: cabeceras_solas.py BUILD_TREE CC CXX [FLAG...]"""
import os
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from lee_cabeceras import cabeceras_publicas, dice

AVISOS = ["-fsyntax-only", "-Wall", "-Wextra", "-Wpedantic", "-Werror", "-Wshadow", "-Wconversion", "-Wno-sign-conversion"]


def compila(orden, cabecera):
    # Twice, so that a header without a guard is seen; a unit of macros only is empty, which C does not allow.
    p = subprocess.run([*orden, *AVISOS, "-"], input=f'#include <nucleos/{cabecera}>\n' * 2 + "typedef int no_vacia;\n",
                       capture_output=True, text=True)
    return "" if p.returncode == 0 else f"{cabecera} as {orden[2]}:\n{p.stderr}"


def main():
    arbol, cc, cxx, *opciones = sys.argv[1:]
    cabeceras = cabeceras_publicas(arbol)
    opciones.append(f"-I{arbol}/include")
    c, de_cxx = [cc, "-xc", "-std=c11", *opciones], [cxx, "-xc++", "-std=c++20", *opciones]
    pares = [(o, h) for h in cabeceras for o in (c, de_cxx)] + [(de_cxx, h) for h in cabeceras_publicas(arbol, "_cxx")]
    with ThreadPoolExecutor(2) as grupo:
        faltas = [f for f in grupo.map(lambda a: compila(*a), pares) if f]
    if not cabeceras:
        faltas.append("no public header was listed")
    return dice(faltas, f"{len(cabeceras)} headers compile alone, two ways")


if __name__ == "__main__":
    sys.exit(main())
