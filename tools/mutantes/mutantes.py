#!/usr/bin/python3
"""Puts one fault after another into a copy of the tree and says which test finds it; see lista.txt.
usage: mutantes.py [--solo-lista] [NAME...]: all of them, or those whose name has one of the words in it.
The copy is build/mutantes/, built like the preset `release`. Status 1 when a fault survives that is not told to change
nothing, when one of those is found after all, or when the list does not fit the sources; 2 when the tests fail without one."""
import os
import re
import shutil
import subprocess
import sys
from dataclasses import dataclass, field

AQUI = os.path.dirname(os.path.abspath(__file__))
RAIZ = os.path.normpath(os.path.join(AQUI, "..", ".."))
COPIA = os.path.join(RAIZ, "build", "mutantes", "nucleos")
ARBOL = os.path.join(COPIA, "build", "release")
SEGUNDOS = 180


@dataclass
class Mutante:
    nombre: str
    fichero: str
    jueces: list
    equivalente: str
    antes: list = field(default_factory=list)
    despues: list = field(default_factory=list)

    @property
    def cambio(self):
        return "\n".join(self.antes), "\n".join(self.despues)


def lee(*ruta):
    with open(os.path.join(*ruta), encoding="utf-8") as f:
        return f.read()


def escribe(texto, *ruta):
    with open(os.path.join(*ruta), "w", encoding="utf-8") as f:
        f.write(texto)


def lista():
    mutantes, grupos = [], {}
    for linea in lee(AQUI, "lista.txt").splitlines():
        if linea.startswith(("- ", "+ ")):
            (mutantes[-1].antes if linea[0] == "-" else mutantes[-1].despues).append(linea[2:])
        elif linea.startswith("$"):
            nombre, *grupos[nombre] = linea.split()
        elif linea and not linea.startswith("#"):
            dicho, _, razon = linea.partition(" = ")
            nombre, fichero, *jueces = dicho.split()
            mutantes.append(Mutante(nombre, fichero, [k for j in jueces for k in grupos.get(j, [j])], razon))
    return mutantes


def copia():
    """What git knows of the tree, as it stands; what has not changed keeps its time, so that little is built."""
    salida = subprocess.run(["git", "ls-files", "-z"], cwd=RAIZ, capture_output=True, check=True).stdout.decode()
    for nombre in filter(None, salida.split("\0")):
        de, a = os.path.join(RAIZ, nombre), os.path.join(COPIA, nombre)
        if not os.path.exists(de):
            continue
        if os.path.exists(a) and open(de, "rb").read() == open(a, "rb").read():
            continue
        os.makedirs(os.path.dirname(a), exist_ok=True)
        shutil.copy(de, a)


def construye(programas, con=""):
    orden = ["cmake", "--build", ARBOL, "--target", "nucleos", "nucleos_foundation", *programas]
    p = subprocess.run(orden, capture_output=True, text=True, env=dict(os.environ, VN_COMPILA_CON=con))
    return p.returncode == 0, p.stdout


def quien_lo_mata(jueces):
    """The first test that fails; None if none does."""
    for juez in jueces:
        programa, _, filtro = juez.partition(":")
        argumentos = [f"--gtest_filter={filtro}", "--gtest_fail_fast"] if filtro else [f"semillas_{programa}"]
        try:
            p = subprocess.run([os.path.join(ARBOL, "bin", programa), *argumentos], cwd=ARBOL, capture_output=True,
                               timeout=SEGUNDOS)
        except subprocess.TimeoutExpired:
            return f"{juez}: does not end"
        if p.returncode != 0:
            texto = p.stdout.decode("utf-8", "replace")
            return (re.findall(r"\[  FAILED  \] ([\w.]+)", texto) or re.findall(r"\[ RUN      \] (.*)", texto) or [juez])[-1]
        if b"[  PASSED  ] 0 tests" in p.stdout:
            return f"{juez}: there is no such test"
    return None


def main():
    palabras = [a for a in sys.argv[1:] if not a.startswith("--")]
    mutantes, faltas = lista(), []
    for m in mutantes:
        veces = lee(RAIZ, "src", m.fichero).count(m.cambio[0]) if os.path.exists(os.path.join(RAIZ, "src", m.fichero)) else 0
        if veces != 1 or m.cambio[0] == m.cambio[1]:
            faltas.append(f"{m.nombre}: its text stands {veces} times in src/{m.fichero}")
    if faltas or "--solo-lista" in sys.argv:
        print("\n".join(faltas) or f"{len(mutantes)} mutants fit the sources")
        return 1 if faltas else 0
    elegidos = [m for m in mutantes if not palabras or any(p in m.nombre for p in palabras)]
    jueces = sorted({j for m in elegidos for j in m.jueces})
    programas = sorted({j.partition(":")[0] for j in jueces})
    copia()
    # The programs find the changed libraries as they are.
    subprocess.run(["cmake", "--preset", "release", "-DCMAKE_LINK_DEPENDS_NO_SHARED=ON", "-DNUCLEOS_BENCH=OFF"], cwd=COPIA,
                   check=True, stdout=subprocess.DEVNULL)
    bien, texto = construye(programas)
    mal = quien_lo_mata(jueces) if bien else texto[-3000:]
    if mal:
        print(f"without any fault: {mal}")
        return 2
    muertos = 0
    for m in elegidos:
        sano = lee(COPIA, "src", m.fichero)
        escribe(sano.replace(*m.cambio), COPIA, "src", m.fichero)
        bien, texto = construye(programas, "-O1 -w")  # a fault may leave something unused
        asesino = quien_lo_mata(m.jueces) if bien else None
        escribe(sano, COPIA, "src", m.fichero)
        muertos += asesino is not None
        dicho = f"killed by {asesino}" if asesino else m.equivalente or "SURVIVES" if bien else "DOES NOT BUILD"
        if not bien or bool(asesino) == bool(m.equivalente):
            faltas.append(f"{m.nombre}: {dicho}\n{'' if bien else texto[-2000:]}")
        print(f"{m.nombre:34} {dicho}", flush=True)
    construye(programas)
    print("\n".join(faltas))
    print(f"{len(elegidos)} mutants, {muertos} killed, {len(faltas)} faults")
    return 1 if faltas else 0


if __name__ == "__main__":
    sys.exit(main())
