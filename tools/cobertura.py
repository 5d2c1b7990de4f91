#!/usr/bin/python3
"""Builds the preset `cobertura`, runs its tests, and tells what they run of the libraries: lines and branches per folder, and
per file of what reads, saves and locks. What a killed process ran is not counted.
usage: cobertura.py [--sin-pruebas] [FILE...]: of each file below src/, the lines with a branch that was never taken;
--sin-pruebas: out of the last run"""
import glob
import json
import os
import re
import shutil
import subprocess
import sys

RAIZ = os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
ARBOL = os.path.join(RAIZ, "build", "cobertura")
PERFILES = os.path.join(ARBOL, "perfiles")
BIBLIOTECAS = [os.path.join(ARBOL, "lib", f"lib{b}.so") for b in ("nucleos_foundation", "nucleos")]
PROFDATA = os.path.join(PERFILES, "todos.profdata")
LEE_GUARDA_CIERRA = re.compile(
    r"persistence/.*|foundation/(?:suelo|ficheros|sistema)/(vornfile|guarda\w*|operaciones_fichero|lc_fichero\w*|fichmem|ini|vnmutex|vornreg)\.cpp|"
    r"foundation/(?:sistema/registro_de_fichero|platform/posix/(?:fichero|cerrojo))\.cpp|units/vornconf\.cpp|environment/.*")


def llvm_cov(orden, *opciones):
    p = subprocess.run(["llvm-cov", orden, f"-instr-profile={PROFDATA}", *opciones, BIBLIOTECAS[0], "-object", BIBLIOTECAS[1]],
                       capture_output=True, text=True, check=True)
    return p.stdout


def prueba():
    shutil.rmtree(PERFILES, ignore_errors=True)
    subprocess.run(["cmake", "--preset", "cobertura"], cwd=RAIZ, check=True, stdout=subprocess.DEVNULL)
    subprocess.run(["cmake", "--build", "--preset", "cobertura"], cwd=RAIZ, check=True, stdout=subprocess.DEVNULL)
    entorno = dict(os.environ, LLVM_PROFILE_FILE=os.path.join(PERFILES, "%m.profraw"))
    estado = subprocess.run(["ctest", "--preset", "cobertura"], cwd=RAIZ, env=entorno).returncode
    subprocess.run(["llvm-profdata", "merge", "-o", PROFDATA, *glob.glob(os.path.join(PERFILES, "*.profraw"))], check=True)
    return estado


def escribe(titulo, filas):
    print(f"\n{titulo:44} {'lines':>16} {'branches':>16}")
    for nombre, cuentas in sorted(filas.items()):
        print(f"{nombre:44}" + "".join(f" {100 * hechas / max(n, 1):6.1f}% of {n:5}" for n, hechas in cuentas))


def main():
    estado = 0 if "--sin-pruebas" in sys.argv else prueba()
    carpetas, ficheros = {}, {}
    for f in json.loads(llvm_cov("export", "-summary-only"))["data"][0]["files"]:
        nombre = f["filename"].rpartition("/src/")[2]
        cuentas = [(f["summary"][que]["count"], f["summary"][que]["covered"]) for que in ("lines", "branches")]
        if LEE_GUARDA_CIERRA.fullmatch(nombre) and cuentas[1][0]:
            ficheros[nombre] = cuentas
        carpeta = re.sub(r"/(posix|[\w.]+)$", "", os.path.dirname(nombre) + "/.")
        carpetas[carpeta] = [(n + a, h + b) for (n, h), (a, b) in zip(carpetas.get(carpeta, [(0, 0)] * 2), cuentas)]
    escribe("folder", carpetas)
    escribe("what reads, saves and locks", ficheros)
    for nombre in (a for a in sys.argv[1:] if not a.startswith("-")):
        print(f"\n{nombre}")
        linea = ""
        for l in llvm_cov("show", "-show-branches=count", f"-sources={RAIZ}/src/{nombre}").splitlines():
            if re.match(r" +\d+\|", l):
                linea = l
            elif re.search(r"Branch.*: 0[,\]]", l):
                print(linea.split("|")[0], linea.split("|", 2)[-1], l.strip(" |"))
    return estado


if __name__ == "__main__":
    sys.exit(main())
