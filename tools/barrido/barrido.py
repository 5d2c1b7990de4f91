#!/usr/bin/python3
"""Runs the sweep of arguments to its end: starts the swept program, names the call when it dies or hangs, goes on with the
next operation, and tells what was held.
usage: barrido.py PAIRS SECONDS PART/PARTS PROGRAM...: at most PAIRS calls with two values changed per operation, SECONDS a
call; PROGRAM may stand behind an emulator."""
import os
import subprocess
import sys
import tempfile

MAXIMO_CAIDAS = 60
SEGUNDOS = 1500


def lanza(orden, carpeta, *argumentos):
    # Everything that a program may write lies in the working directory.
    entorno = dict(os.environ, HOME=carpeta, TMPDIR=carpeta, XDG_CONFIG_HOME=carpeta, XDG_DATA_HOME=carpeta,
                   XDG_STATE_HOME=carpeta)
    for variable in ("ENPRUEBA", "VNCACHINFO_LOG", "DISPLAY"):
        entorno.pop(variable, None)
    try:
        p = subprocess.run([*orden, *map(str, argumentos)], cwd=carpeta, env=entorno, stdin=subprocess.DEVNULL,
                           capture_output=True, timeout=SEGUNDOS)
        return p.returncode, (p.stdout + p.stderr).decode("utf-8", "replace")
    except subprocess.TimeoutExpired:
        return -1, "the whole sweep takes too long"


def lineas(ruta):
    with open(ruta, encoding="utf-8", errors="replace") as f:
        return [l.rstrip("\n").split("\t") for l in f]


def main():
    pares, segundos, parte, *orden = sys.argv[1:]
    parte = parte.split("/")
    orden[0] = os.path.abspath(orden[0])
    orden[1:] = [os.path.abspath(o) if os.path.exists(o) else o for o in orden[1:]]
    faltas = []
    hechas = {}
    k = caidas = 0
    with tempfile.TemporaryDirectory(prefix="barrido_") as raiz:
        while True:
            carpeta = os.path.join(raiz, f"c{k}")
            os.makedirs(carpeta, exist_ok=True)
            ruta = os.path.join(raiz, f"salida_{k}_{caidas}")
            estado, texto = lanza(orden, carpeta, ruta, pares, segundos, k, *parte)
            visto = lineas(ruta) if os.path.exists(ruta) else []
            faltas += [f"{x[1]}: {x[2]}\n      {x[3]}" for x in visto if x[0] == "X"]
            hechas.update({x[2]: x[3:] for x in visto if x[0] == "R"})
            if any(x[0] == "T" for x in visto):
                if estado != 0:
                    faltas.append(f"the end of the process: status {estado}\n{texto[-3000:]}")
                break
            empezadas = [x for x in visto if x[0] == "F"]
            if not empezadas:
                faltas.append(f"the program does not start: status {estado}\n{texto[-3000:]}")
                break
            k, nombre = int(empezadas[-1][1]), empezadas[-1][2]
            # Again, telling each call: the last one is the culprit.
            ruta = os.path.join(raiz, f"sola_{k}")
            carpeta = os.path.join(raiz, f"s{k}")
            os.makedirs(carpeta, exist_ok=True)
            estado_sola, texto_sola = lanza(orden, carpeta, ruta, pares, segundos, 0, *parte, nombre)
            llamadas = [x[1] for x in lineas(ruta) if x[0] == "C"] if os.path.exists(ruta) else []
            if estado_sola == 0:
                llamadas = ["not when it is alone"]
                texto_sola = texto
            que = "does not come back" if "has not come back" in texto else f"ends the process (status {estado})"
            faltas.append(f"{nombre}: {que}\n      {llamadas[-1] if llamadas else 'before the first call'}\n" +
                          "\n".join("      | " + l for l in texto_sola.strip().splitlines()[:14]))
            hechas[nombre] = ["0", "0", "0"]
            k += 1
            caidas += 1
            if caidas > MAXIMO_CAIDAS:
                faltas.append("too many deaths: the rest was not swept")
                break
    llamadas = sum(int(h[0]) for h in hechas.values())
    anotaciones = sum(int(h[1]) for h in hechas.values())
    agotadas = sum(int(h[2]) for h in hechas.values())
    for f in faltas:
        print(f)
    print(f"{len(hechas)} operations, {llamadas} calls, {anotaciones} broken values reported as promised, {agotadas} times out of memory; "
          f"{len(faltas)} faults")
    return 1 if faltas or not hechas else 0


if __name__ == "__main__":
    sys.exit(main())
