#!/usr/bin/python3
"""What the documents say is so: the programs that they show are those that tests build and run, and docs/third-party.md has
every package that the tree asks for."""
import os
import re
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from lee_cabeceras import RAIZ, dice


def lee(ruta):
    with open(os.path.join(RAIZ, ruta), encoding="utf-8") as f:
        return f.read()


MOSTRADOS = (("README.md", "tests/paquete/primer_host.c"), ("docs/drawing.md", "tests/anfitriones/dispositivo.c"))


def main():
    faltas = []
    for documento, programa in MOSTRADOS:
        mostrado = re.search(r"^```c\n(.*?)^```$", lee(documento), re.S | re.M)
        if mostrado is None or mostrado[1] != lee(programa):
            faltas.append(f"{documento} does not show {programa}")
    paquetes = re.findall(r"^[^#\s].*$", lee("tools/paquetes.txt"), re.M)
    ajenas = lee("docs/third-party.md")
    faltas += [f"docs/third-party.md says nothing of {p}" for p in paquetes if f"`{p}`" not in ajenas]
    if not paquetes:
        faltas.append("tools/paquetes.txt lists no package")
    return dice(faltas, f"{len(MOSTRADOS)} programs and {len(paquetes)} packages are told")


if __name__ == "__main__":
    sys.exit(main())
