#!/usr/bin/python3
"""The form of the text: every source as clang-format leaves it, and no line of more than 120 columns. No argument; status 1
and one line per fault. Between `// clang-format off` and `on` stand tables, whose rows may be as long as they need."""
import os
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from lee_cabeceras import RAIZ, dice, ficheros_del_arbol

ANCHO = 120
CARPETAS = ["src", "tests", "fuzz", "bench", "examples", "tools"]


def largas(ruta):
    """The lines that are too long, outside tables."""
    en_tabla = False
    with open(os.path.join(RAIZ, ruta), encoding="utf-8") as f:
        for n, linea in enumerate(f.read().split("\n"), 1):
            en_tabla = en_tabla and "// clang-format on" not in linea or "// clang-format off" in linea
            if not en_tabla and len(linea) > ANCHO:
                yield n, len(linea)


def main():
    rutas = ficheros_del_arbol(CARPETAS, (".h", ".hpp", ".cpp", ".c"))
    faltas = [f"{r}:{n}: {ancho} columns" for r in rutas for n, ancho in largas(r)]
    formadas = subprocess.run(["clang-format", "--dry-run", "-Werror", *rutas], cwd=RAIZ, capture_output=True, text=True)
    faltas += [l.split(" error: ")[0] + " not as clang-format has it" for l in formadas.stderr.split("\n") if " error: " in l]
    if formadas.returncode != 0 and not faltas:
        faltas.append(f"clang-format failed: {formadas.stderr}")
    return dice(faltas, f"{len(rutas)} files in form")


if __name__ == "__main__":
    sys.exit(main())
