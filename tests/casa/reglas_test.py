#!/usr/bin/python3
"""Each rule of the tree is seen to fail: a small tree with one fault per row goes through the checks, and every fault
is named, and nothing else is."""
import os
import subprocess
import sys
import tempfile

AQUI = os.path.dirname(os.path.abspath(__file__))
CASA = os.path.join(AQUI, "..", "..", "tools", "casa")
CABEZA = '#define VN_MODULO "{} (NUCLEOS{}.DLL)"\n'

# File, content, and what the check must say of it (nothing: the file is in order).
TEXTOS = [
    ("src/foundation/suelo/bien.h", "#include <stdint.h>\n// #ifdef _WIN32 in a comment, #include <windows.h> too\n", None),
    ("src/foundation/suelo/bien.cpp",
     CABEZA.format("bien", "_FOUNDATION") + '#include "foundation/suelo/bien.h"\n#include <vector>\n', None),
    ("src/foundation/suelo/de_todos_int.h", '#include "foundation/suelo/bien.h"\n', None),
    ("src/foundation/suelo/suya_priv.h", '#include "foundation/suelo/de_todos_int.h"\n', None),
    ("src/foundation/platform/posix/x.cpp", "#include <unistd.h>\n#ifdef __linux__\n#endif\n", None),
    ("src/foundation/texto/abajo.h", '#include "../suelo/bien.h"\n', None),
    ("src/foundation/texto/arriba_priv.h", '#include "foundation/listas/algo.h"\n', "may not include foundation/listas"),
    ("src/foundation/texto/desde_src.h", '#include "foundation/suelo/bien.h"\n', "by their place beside it"),
    ("src/foundation/texto/cuenta_lo_suyo.h", '#include "../suelo/de_todos_int.h"\n', "by their place beside it"),
    ("src/foundation/texto/ajena.cpp", CABEZA.format("ajena", "_FOUNDATION") + '#include "foundation/suelo/suya_priv.h"\n',
     "is foundation/suelo's own"),
    ("src/foundation/texto/fuera_priv.h", "namespace vn {\nint f();\n}\n", "namespace vn in the room texto"),
    ("src/foundation/texto/dentro_priv.h", "namespace vn::texto {\nint f();\n}\nnamespace vn {\nusing texto::f;\n}\n", None),
    ("src/persistence/arriba_priv.h", '#include "environment/algo.h"\n', "persistence may not include environment"),
    ("src/persistence/sin_carpeta_priv.h", '#include "algo.h"\n', "includes name their folder"),
    ("src/nueva/algo.h", "\n", "has no row in the table of layers"),
    ("src/frame/sistema.h", "#include <windows.h>\n", "only platform/ includes"),
    ("tests/frame/sistema_test.cpp", "#include <sys/mman.h>\n", "only platform/ includes"),
    ("examples/obra/bien.cpp", '#include "otra.h"\n#include <nucleos/foundation/suelo/bien.h>\n', None),
    ("examples/obra/desde_src.cpp", '#include "foundation/suelo/bien.h"\n', "a host includes <nucleos/foundation/suelo/bien.h>"),
    ("tests/paquete/sin_nucleos.c", "#include <foundation/suelo/bien.h>\n", "only platform/ includes"),
    ("tests/frame/como_anfitrion_test.cpp", "#include <nucleos/foundation/suelo/bien.h>\n", "only platform/ includes"),
    ("src/frame/condicion.h", "#  if defined(_WIN32) && 1\n#endif\n", "#if of a platform (_WIN32)"),
    ("src/frame/anonimo.cpp", '#include "frame/anonimo.h"\n', "the first line is not #define VN_MODULO"),
    ("src/frame/ajeno.cpp", CABEZA.format("ajeno", "_FOUNDATION"), "is not the library of this folder"),
    ("src/foundation/suelo/tarde.h", "\n", None),
    ("src/foundation/suelo/tarde.cpp", CABEZA.format("tarde", "_FOUNDATION") + '#include <vector>\n#include "foundation/suelo/tarde.h"\n',
     "is not its own header"),
    ("src/frame/largo.h", "int f(void);\n" * 801, "more than 800 lines"),
    ("src/frame/tabla.inl", 'X(1, "a")\n' * 900, None),
    ("src/frame/verdad_priv.h", "vnbool v = a == b\n    ? CIERTO\n    : FALSO; // x ? CIERTO : FALSO\n", "becomes a vnbool by logico()"),
    ("src/frame/verdad.hpp", "vnbool v = a ? CIERTO : FALSO;\n", None),
    ("src/frame/mentira_priv.h", "vnbool v = a ? FALSO : CIERTO;\n", "becomes a vnbool by logico()"),
    ("src/frame/nulos_priv.h", "if (!AFIRMA_NO_NULO(a) ||\n    !AFIRMA_NO_NULO(*b)) return;\n", "are checked by EXIGE()"),
    ("src/frame/ninguno_priv.h", "if (AFIRMA_NO_NULO(a) && AFIRMA_NO_NULO(b)) f();\n", "are checked by EXIGE()"),
    ("src/frame/uno_priv.h", "if (!AFIRMA_NO_NULO(a) || !AFIRMA(n > 0) || !AFIRMA_NO_NULO(b)) return;\n", None),
    ("src/frame/destruye_priv.h", "struct d {\n    void operator()(vnmutex *m) const { vnmutex_destruye(&m); }\n};\n", "is owned by vn::dueno"),
    ("src/frame/compara_priv.h", "struct c {\n    bool operator()(const char *a) const;\n    void operator()(int a) const;\n};\n", None),
    ("src/exports/foundation.txt", "b\na\n", "not sorted and unique"),
    ("src/exports/nucleos.txt", "a\na\n", "not sorted and unique"),
]

# Declarations of one header, and what must be said of the operation; the list has `listada` and `fantasma`.
DECLARACIONES = [
    ("/** Said. */\nvoid listada(int a);", None),
    ("void muda(int a);", "muda: no doc comment"),
    ("/** Said. */\n\nvoid lejos(int a);", "lejos: no doc comment"),
    ("/** Said\n\nat length. */\nvoid varias(int a);\nvoid seguida(int a);", None),
    ("/* Plain. */\nvoid llana(int a);", "llana: no doc comment"),
    ("/** x */ void raro(VN_ANOTA(\"otra\") int a);", "unknown annotation otra"),
    ("/** x */ void sin_puntero(VN_OPC int a);", "opcional on what is no pointer"),
    ("/** x */ void sin_numero(VN_RANGO(0, 1) int *a);", "rango on what is no number"),
    ("/** x */ void sin_medida(VN_LON(m) const int *a, int n);", "longitud:m is neither"),
    ("/** x */ void sin_continente(VN_INDICE(n) int i, int n);", "indice:n names no container"),
    ("/** x */ void fijo(VN_SALIDA const int *a);", "salida on what is const"),
    ("/** x */ void dos(VN_OPC VN_SALIDA_OPC int *a);", "says twice"),
    ("/** x */ void sin_resto(VN_FORMATO const char *a);", "formato on an operation with no further arguments"),
]


def ejecuta(guion, arbol, *argumentos):
    p = subprocess.run([sys.executable, os.path.join(CASA, guion), *argumentos], capture_output=True, text=True,
                       env={**os.environ, "VN_RAIZ": arbol})
    return p.returncode, p.stdout + p.stderr


def escribe(arbol, ruta, contenido):
    ruta = os.path.join(arbol, ruta)
    os.makedirs(os.path.dirname(ruta), exist_ok=True)
    with open(ruta, "w", encoding="utf-8") as f:
        f.write(contenido)


def compara(salida, estado, esperados, fallos):
    lineas = [l for l in salida.split("\n") if l]
    for clave, que in esperados:
        suyas = [l for l in lineas if clave in l and (que is None or que in l)]
        if (que is None) == bool(suyas):
            fallos.append(f"{clave}: expected {que!r}, seen {suyas}")
    esperadas = sum(que is not None for _, que in esperados)
    if len(lineas) != esperadas or estado == 0:
        fallos.append(f"{len(lineas)} lines for {esperadas} faults, status {estado}:\n{salida}")


def main():
    construido = sys.argv[1]
    fallos = []
    with tempfile.TemporaryDirectory() as arbol:
        subprocess.run(["git", "init", "-q", arbol], check=True)
        for ruta, contenido, _ in TEXTOS:
            escribe(arbol, ruta, contenido)
        estado, salida = ejecuta("fuentes.py", arbol)
        compara(salida, estado, [(ruta + ":", que) for ruta, _, que in TEXTOS], fallos)
    with tempfile.TemporaryDirectory() as arbol:
        escribe(arbol, "cabeceras_publicas.txt", "foundation/algo.h\nfoundation/ancha.h\nfoundation/justa.h\n")
        escribe(arbol, "cabeceras_publicas_cxx.txt", "")
        with open(os.path.join(construido, "cabeceras_publicas.txt"), encoding="utf-8") as f:
            assert "foundation/suelo/anotaciones.h" in f.read().split()
        with open(os.path.join(AQUI, "../../src/foundation/suelo/anotaciones.h"), encoding="utf-8") as f:
            escribe(arbol, "src/foundation/suelo/anotaciones.h", f.read())
        escribe(arbol, "src/foundation/algo.h", '#include "suelo/anotaciones.h"\n' +
                "\n\n".join(d for d, _ in DECLARACIONES) + "\n")
        for nombre, cuantas in (("ancha", 41), ("justa", 40)):
            escribe(arbol, f"src/foundation/{nombre}.h", "/** x */\n" + "".join(f"void {nombre}{i}(int a);\n" for i in range(cuantas)))
        escribe(arbol, "src/exports/foundation.txt", "fantasma\nlistada\n")
        escribe(arbol, "src/exports/nucleos.txt", "")
        esperados = [(d.split("(")[0].split()[-1] if que is None else "algo.h", que) for d, que in DECLARACIONES]
        estado, salida = ejecuta("contratos.py", arbol, arbol, "--adelantadas")
        compara(salida, estado, esperados + [("fantasma", "is declared in no public header"), ("ancha.h", "41 operations"), ("justa.h", None)], fallos)
        estado, salida = ejecuta("contratos.py", arbol, arbol)
        if "seguida: declared, not in src/exports/foundation.txt" not in salida:
            fallos.append("an operation that is declared and not listed goes unseen")
        # A header that leans on another's includes does not compile alone.
        escribe(arbol, "include/nucleos/foundation/algo.h", "uint32_t f(void);\n")
        estado, salida = ejecuta("cabeceras_solas.py", arbol, arbol, "cc", "c++")
        if estado == 0 or salida.count("algo.h as -std") != 2:
            fallos.append("a header that does not compile alone goes unseen")
    print("\n".join(fallos) or f"{len(TEXTOS) + len(DECLARACIONES)} rows as expected")
    return 1 if fallos else 0


if __name__ == "__main__":
    sys.exit(main())
