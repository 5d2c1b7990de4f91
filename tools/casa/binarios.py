#!/usr/bin/python3
"""Holds a built library to its list of exported names, both ways, and to what it may need at run time.
usage: binarios.py LIBRARY LIST_NAME VERSION"""
import os
import re
import subprocess
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from lee_cabeceras import dice, lista_de_exportaciones

# What every Windows has.
SISTEMA = {"kernel32", "msvcrt", "user32", "advapi32", "shell32", "gdi32", "glu32", "opengl32", "ole32", "oleaut32",
           "ws2_32", "bcrypt", "ntdll", "version", "shlwapi", "winmm"}
PREFIJO_MINGW = "x86_64-w64-mingw32-"


# What would throw for want of memory, or at all, goes to the wall of the library.
LANZAN = re.compile(r"__cxa_throw(_bad_array\w*)?|_Zn[wa][my](St11align_val_t)?|_ZSt\d+__throw_(bad_|length_error)\w*|"
                    r"_ZNK?St7__cxx1112basic_string\w*")


def salida(*orden):
    return subprocess.run(orden, capture_output=True, text=True, check=True).stdout


def mira_elf(ruta, lista, version):
    nombres = set()
    for linea in salida("nm", "-D", "--defined-only", ruta).splitlines():
        campos = linea.split()
        nombre, _, nodo = campos[-1].partition("@@")
        if campos[-2] == "A":  # the node itself
            continue
        nombres.add(nombre)
        if nodo != f"{nodo_de(lista)}_{version.split('.')[0]}":
            yield f"{nombre} has the version {nodo or 'none'}"
    dinamica = salida("readelf", "-dW", ruta)
    soname = re.search(r"soname: \[(.*)\]", dinamica)
    esperado = f"lib{os.path.basename(ruta)[3:].split('.')[0]}.so.{version.split('.')[0]}"
    if soname is None or soname[1] != esperado:
        yield f"SONAME {soname and soname[1]}, not {esperado}"
    if "NODELETE" not in dinamica:
        yield "may be unmapped while its exit cleaners are registered"
    for linea in salida("nm", "-D", "--undefined-only", ruta).splitlines():
        if LANZAN.fullmatch(nombre := linea.split()[-1].partition("@")[0]):
            yield f"calls {nombre}, which throws past the library"
    yield from compara(nombres, lista)


def nodo_de(lista):
    return "NUCLEOS" if lista == "nucleos" else "NUCLEOS_FOUNDATION"


def mira_pe(ruta, lista, version):
    texto = salida(PREFIJO_MINGW + "objdump", "-p", ruta)
    tabla = texto.split("[Ordinal/Name Pointer] Table", 1)[-1]
    nombres = set(re.findall(r"^\s*\[\s*\d+\]\s+(?:\+base\[\s*\d+\]\s+)?(?:[0-9a-fA-F]+\s+)?([A-Za-z_]\w*)\s*$", tabla, re.M))
    for dll in re.findall(r"DLL Name: (\S+)", texto):
        nombre = dll.lower().removesuffix(".dll")
        if nombre not in SISTEMA and not nombre.startswith("api-ms-win-") and \
                not (lista == "nucleos" and nombre == "nucleos_foundation"):
            yield f"needs {dll}, which not every Windows has"
    with open(ruta, "rb") as f:
        contenido = f.read()
    # Key, terminator, padding to four bytes, value.
    visto = re.search("FileVersion".encode("utf-16-le") + rb"(?:\0\0)+((?:[^\0]\0)+)", contenido)
    if visto is None or visto[1].decode("utf-16-le") != version:
        yield f"the version resource says {visto and visto[1].decode('utf-16-le')}, not {version}"
    if re.search(r"^\s*\d+ \.debug_", salida(PREFIJO_MINGW + "objdump", "-h", ruta), re.M):
        yield "ships its debug data"
    importacion = os.path.join(os.path.dirname(ruta), "..", "lib", f"lib{os.path.basename(ruta)}.a")
    if not os.path.exists(importacion):
        yield f"no import library {importacion}"
    yield from compara(nombres, lista)


def compara(nombres, lista):
    esperados = set(lista_de_exportaciones(lista))
    yield from (f"{n} is in the list and not exported" for n in sorted(esperados - nombres))
    yield from (f"{n} is exported and not in the list" for n in sorted(nombres - esperados))


def main():
    ruta, lista, version = sys.argv[1:]
    nombre = os.path.basename(ruta)
    faltas = (mira_pe if ruta.lower().endswith(".dll") else mira_elf)(ruta, lista, version)
    return dice([f"{nombre}: {f}" for f in faltas], f"{nombre} is what its list says")


if __name__ == "__main__":
    sys.exit(main())
