#!/usr/bin/python3
"""The first host that the README shows is the one that the package's test builds and runs."""
import os
import re
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from lee_cabeceras import RAIZ


def main():
    with open(os.path.join(RAIZ, "README.md"), encoding="utf-8") as f:
        mostrado = re.search(r"^```c\n(.*?)^```$", f.read(), re.S | re.M)
    with open(os.path.join(RAIZ, "tests/paquete/primer_host.c"), encoding="utf-8") as f:
        probado = f.read()
    if mostrado is None or mostrado[1] != probado:
        print("README.md does not show tests/paquete/primer_host.c")
        return 1
    return 0


if __name__ == "__main__":
    sys.exit(main())
