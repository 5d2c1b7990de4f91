#!/usr/bin/python3
"""What the documents say is so: the first host that the README shows is the one that the package's test builds and runs,
and docs/third-party.md has every package that the tree asks for."""
import os
import re
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from lee_cabeceras import RAIZ, dice


def lee(ruta):
    with open(os.path.join(RAIZ, ruta), encoding="utf-8") as f:
        return f.read()


def main():
    faltas = []
    mostrado = re.search(r"^```c\n(.*?)^```$", lee("README.md"), re.S | re.M)
    if mostrado is None or mostrado[1] != lee("tests/paquete/primer_host.c"):
        faltas.append("README.md does not show tests/paquete/primer_host.c")
    paquetes = re.findall(r"^[^#\s].*$", lee("tools/paquetes.txt"), re.M)
    ajenas = lee("docs/third-party.md")
    faltas += [f"docs/third-party.md says nothing of {p}" for p in paquetes if f"`{p}`" not in ajenas]
    if not paquetes:
        faltas.append("tools/paquetes.txt lists no package")
    return dice(faltas, f"the first host and {len(paquetes)} packages are told")


if __name__ == "__main__":
    sys.exit(main())
