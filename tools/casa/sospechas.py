#!/usr/bin/python3
"""What clang-tidy suspects in the library's sources, by the checks of .clang-tidy; status 1 and one line per finding. It reads
the compile commands of the preset release.
usage: sospechas.py [--todo | SOURCE...]: without one, the sources that differ from the branch main; --todo: all, some minutes"""
import json
import os
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from lee_cabeceras import RAIZ, dice

CONSTRUIDO = os.path.join(RAIZ, "build", "release")


def cambiadas():
    """The sources that differ from where this branch left main, committed or not."""
    git = ["git", "-C", RAIZ]
    base = subprocess.run([*git, "merge-base", "HEAD", "main"], capture_output=True, text=True).stdout.strip() or "HEAD"
    return subprocess.run([*git, "diff", "--name-only", base], capture_output=True, text=True, check=True).stdout.split()


def mira(fuente):
    p = subprocess.run(["clang-tidy", "--quiet", "-p", CONSTRUIDO, fuente], cwd=RAIZ, capture_output=True, text=True)
    # What the compiler itself says of clang's own warnings is none of the checks'.
    hallazgos = [l.replace(RAIZ + "/", "") for l in p.stdout.split("\n")
                 if re.search(r": (?:warning|error): ", l) and "[clang-diagnostic-" not in l]
    return hallazgos or ([f"{fuente}: clang-tidy failed: {p.stderr.strip()}"] if p.returncode != 0 and not p.stdout else [])


def main():
    with open(os.path.join(CONSTRUIDO, "compile_commands.json"), encoding="utf-8") as f:
        conocidas = {os.path.relpath(os.path.join(o["directory"], o["file"]), RAIZ) for o in json.load(f)}
    pedidas = conocidas if sys.argv[1:] == ["--todo"] else set(sys.argv[1:] or cambiadas())
    fuentes = sorted(f for f in pedidas & conocidas if f.startswith("src/"))
    with ThreadPoolExecutor(os.cpu_count()) as hebras:
        hallazgos = sorted({l for lineas in hebras.map(mira, fuentes) for l in lineas})
    return dice(hallazgos, f"{len(fuentes)} sources without a suspicion")


if __name__ == "__main__":
    sys.exit(main())
