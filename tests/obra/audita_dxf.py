"""Reads the DXF that a program writes with an independent reader: nothing in it may be wrong, and it has the entities that
the program says. audita_dxf.py PROGRAM DIRECTORY"""
import collections
import os
import subprocess
import sys

import ezdxf
import ezdxf.recover

programa, carpeta = sys.argv[1:]
nombre = os.path.join(carpeta, "muestra.dxf")
dicho = subprocess.run([programa, nombre], check=True, capture_output=True, text=True).stdout
esperadas = {clase: int(n) for clase, n in (linea.split() for linea in dicho.splitlines())}
ezdxf.readfile(nombre)  # as it stands, without any repair
dibujo, auditoria = ezdxf.recover.readfile(nombre)  # which reads names as AutoCAD does
faltas = [f"{e.code}: {e.message}" for e in auditoria.errors + auditoria.fixes]
halladas = dict(collections.Counter(e.dxftype() for e in dibujo.modelspace()))
if halladas != esperadas:
    faltas.append(f"entities {halladas}, drawn {esperadas}")
capas = sorted(c.dxf.name for c in dibujo.layers if c.dxf.name != "Defpoints")  # which it makes itself
if capas != ["0", "MUROS_EXT", "MUROS_EXT_2", "\u0391_45"]:
    faltas.append(f"layers {capas}")
for e in dibujo.query("HATCH"):
    if len(e.paths) == 0:
        faltas.append("a fill without contours")
if not esperadas:
    faltas.append("nothing was drawn")
print("\n".join(faltas) or f"{len(esperadas)} kinds of entities, nothing wrong")
sys.exit(bool(faltas))
