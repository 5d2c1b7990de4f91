#!/usr/bin/python3
"""The sweep of arguments finds each fault of malas.cpp, says which it is, and finds none where there is none.
usage: malas_test.py COMMAND...: the sweep over malas.cpp"""
import subprocess
import sys

# A sanitizer ends the process where a sentinel only tells.
ESPERADAS = {
    "muere_con_nulo": ("ends the process",),
    "calla_el_nulo": ("b=null is not reported",),
    "calla_el_logico": ("v=2 is not reported",),
    "calla_el_rango": ("n=0 is not reported",),
    "no_vuelve": ("does not come back",),
    "pierde_memoria": ("leaves 1 blocks behind",),
    "se_sale": ("writes beyond the room of s", "ends the process"),
    "destruye_lo_ajeno": ("destroys its argument b",),
    "no_es_neutra": ("b=null does not give the neutral value back",),
    "no_se_lo_queda": ("does not take b over",),
    "pierde_sin_memoria": ("leaves blocks behind when memory runs out",),
    "deja_colgando": ("leaves h leading to a freed block",),
    "ya_no_informa": ("is listed as reporting, and does not",),
    "exige_de_mas": ("the call with good values reports: (otra) != NULL",),
}


def main():
    p = subprocess.run(sys.argv[1:], capture_output=True, text=True)
    faltas = [l for l in p.stdout.splitlines() if l and not l.startswith(" ") and ": " in l]
    fallos = [f"{nombre}: expected {' or '.join(que)}, seen {[l for l in faltas if l.startswith(nombre + ':')]}"
              for nombre, que in ESPERADAS.items()
              if not any(l.startswith(nombre + ":") and any(q in l for q in que) for l in faltas)]
    # A sanitizer tells of what was lost once more at the end.
    al_final = ("the end of the process", "SUMMARY")
    fallos += [f"unexpected: {l}" for l in faltas if l.split(":")[0] not in ESPERADAS and not l.startswith(al_final)]
    if p.returncode != 1:
        fallos.append(f"status {p.returncode}")
    print("\n".join(fallos) + "\n" + p.stdout if fallos else f"{len(ESPERADAS)} faults found")
    return 1 if fallos else 0


if __name__ == "__main__":
    sys.exit(main())
