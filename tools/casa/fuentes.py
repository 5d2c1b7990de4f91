#!/usr/bin/python3
"""Rules that the text of the tree keeps: layers, platform, module names, sorted lists, sizes. No argument; status 1 and
one line per fault."""
import os
import re
import sys

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from lee_cabeceras import RAIZ, dice, ficheros_del_arbol, lista_de_exportaciones, sin_comentarios

# Each folder of src/, and each room of the Foundation, with what it may include beside itself, lowest layer first. A folder
# that is not here is a fault. `platform` calls the system and takes types from `suelo`, which stands on it: one floor.
SUELO = {"foundation/platform", "foundation/suelo"}
NUMEROS = SUELO | {"foundation/numeros"}
TEXTO = NUMEROS | {"foundation/texto"}
LISTAS = TEXTO | {"foundation/listas"}
FICHEROS = LISTAS | {"foundation/ficheros"}
BASE = FICHEROS | {"foundation/sistema"}
MEDIOS = BASE | {"frame"}
GUARDADO = MEDIOS | {"units", "text"}  # a text form needs number text and text tools
ALTOS = GUARDADO | {"geometry", "persistence", "time"}
CAPAS = {
    "foundation/platform": {"foundation/suelo"},
    "foundation/suelo": {"foundation/platform"},
    "foundation/numeros": SUELO, "foundation/texto": NUMEROS, "foundation/listas": TEXTO, "foundation/ficheros": LISTAS,
    "foundation/sistema": FICHEROS,
    "frame": BASE,
    "geometry": MEDIOS, "units": MEDIOS,
    "text": MEDIOS | {"units"},
    "persistence": GUARDADO,
    "time": GUARDADO | {"persistence"},  # a date saves itself
    "mesh": ALTOS, "colour": ALTOS,
    "drawing": ALTOS | {"mesh", "colour"},
    "environment": ALTOS | {"mesh", "colour", "drawing"},
}
# What may be included with angle brackets outside platform/: the standard libraries of the two languages.
ESTANDAR = set("""
assert.h complex.h ctype.h errno.h fenv.h float.h inttypes.h iso646.h limits.h locale.h math.h setjmp.h signal.h
stdalign.h stdarg.h stdatomic.h stdbool.h stddef.h stdint.h stdio.h stdlib.h stdnoreturn.h string.h tgmath.h threads.h
time.h uchar.h wchar.h wctype.h
algorithm any array atomic barrier bit bitset cassert cctype cerrno cfenv cfloat charconv chrono cinttypes climits
clocale cmath codecvt compare complex concepts condition_variable coroutine csetjmp csignal cstdarg cstddef cstdint
cstdio cstdlib cstring ctime cuchar cwchar cwctype deque exception execution filesystem format forward_list fstream
functional future initializer_list iomanip ios iosfwd iostream istream iterator latch limits list locale map memory
memory_resource mutex new numbers numeric optional ostream queue random ranges ratio regex scoped_allocator semaphore
set shared_mutex source_location span sstream stack stdexcept stop_token streambuf string string_view strstream
syncstream system_error thread tuple type_traits typeindex typeinfo unordered_map unordered_set utility valarray
variant vector version""".split())
# Libraries made for the job, by folder of the tree.
OTRAS = {"src": ("Eigen/", "GL/glu.h"), "tests": ("gtest/", "cairo"), "bench": ("benchmark/", "GL/glu.h", "Q", "double-conversion/", "udunits2.h", "date/", "CGAL/", "geos", "Eigen/", "cairo.h"), "fuzz": (), "examples": ("cairo",)}
# Hosts: they have nothing of ours on their include path but nucleos/.
ANFITRIONES = ("examples/", "tests/anfitriones/", "tests/obra/", "tests/paquete/")
PLATAFORMA = re.compile(r"^\s*#\s*(?:if|ifdef|ifndef|elif)\b.*\b(_WIN32|_WIN64|WIN32|__linux__|__unix__|__MINGW\w*|__APPLE__|"
                        r"__CYGWIN__|_POSIX_\w+)\b")
# Outside the library too, what differs between platforms stands in a folder of its own.
OTRAS_PLATAFORMAS = ("tests/plataforma/", "bench/plataforma/", "examples/obra/plataforma/")
MAXIMO_LINEAS = 800
# One way to say a thing in src/: what is written otherwise, and how it is said. Literals and comments are not looked at. The
# system's handles in platform/ have their own owners.
DUENO = "what a function destroys is owned by vn::dueno<function>"
NULO = r"AFIRMA_NO_NULO\([^()]*\)"
IDIOMAS = [
    (re.compile(r"\?\s*CIERTO\s*:\s*FALSO\b|\?\s*FALSO\s*:\s*CIERTO\b"), "a condition becomes a vnbool by logico()"),
    (re.compile(rf"!{NULO}[\s\\]*\|\|[\s\\]*!{NULO}|{NULO}[\s\\]*&&[\s\\]*{NULO}"), "several pointers are checked by EXIGE()"),
    (re.compile(r"\bvoid\s+operator\(\)\((?!void\b)\w+\s*\*\w+\)\s*const"), DUENO),
]
DE_LOS_IDIOMAS = ("src/foundation/suelo/logico_int.h", "src/foundation/suelo/afirma_int.h")

faltas = []


def falta(ruta, linea, que):
    faltas.append(f"{ruta}:{linea}: {que}")


def es_de_plataforma(ruta):
    return ruta.startswith("src/foundation/platform/") or ruta.startswith(OTRAS_PLATAFORMAS)


def es_tabla(lineas):
    """Rows of data: most lines of code are braces, rows or calls of an X-macro, not statements."""
    codigo = [l.strip() for l in lineas if l.strip() and not l.strip().startswith(("//", "/*", "*"))]
    filas = [l for l in codigo if re.match(r'(\{.*\},?|[A-Z][A-Z0-9_]*\(.*\)[,;\\]?\s*\\?|\{.*|".*|VNU\(.*|.*\},?|[-+.\dx]+[,f].*)$', l)]
    return len(filas) > 0.7 * len(codigo)


def carpeta_de(ruta):
    """The folder of a path below src/, which is its layer: a room of the Foundation, or one of the others."""
    partes = ruta.split("/")
    return "/".join(partes[:2]) if partes[0] == "foundation" and len(partes) > 2 else partes[0]


def es_publica(ruta):
    return ruta.startswith("src/") and ruta.endswith((".h", ".hpp")) and not ruta.endswith(("_priv.h", "_int.h")) and \
        (not es_de_plataforma(ruta) or ruta.endswith("/plataforma.h"))


def mira_inclusion(ruta, n, que):
    """An include of ours in src/: down only, a folder's own header from that folder only. A public header, which a host
    reads from anywhere, names others from where it stands; the library's own files name them from src/."""
    carpeta = carpeta_de(ruta[4:])
    if es_publica(ruta):
        entera = os.path.normpath(os.path.join(os.path.dirname(ruta[4:]), que))
        if que.endswith(("_priv.h", "_int.h")) or not os.path.exists(os.path.join(RAIZ, "src", entera)):
            falta(ruta, n, f'"{que}": a public header includes public headers, by their place beside it')
        que = entera
    elif "/" not in que:
        falta(ruta, n, f'"{que}": includes name their folder')
        return
    otra = carpeta_de(que)
    if otra == carpeta:
        return
    if otra not in CAPAS[carpeta]:
        falta(ruta, n, f"{carpeta} may not include {otra}: {que}")
    elif que.endswith("_priv.h"):
        falta(ruta, n, f"{que} is {otra}'s own: what others need stands in an _int.h")


def mira_espacio(ruta, lineas):
    """What a room of the Foundation declares lives in the room's namespace, so that two rooms may use one short word. The
    ground's is seen by all; `namespace vn` itself takes what hosts in C++ use (.hpp) and names that all may use bare."""
    partes = ruta.split("/")
    if not ruta.startswith("src/foundation/") or len(partes) < 4:
        return
    cuarto = partes[2]
    suyos = {"platform": ("vn::plat",), "suelo": ("vn::inline suelo",)}.get(cuarto, (f"vn::{cuarto}", "vn::plat"))
    for n, linea in enumerate(lineas, 1):
        m = re.match(r"namespace (vn[^{]*?) \{", linea)
        if m and m[1] not in suyos and not (m[1] == "vn" and (ruta.endswith(".hpp") or lineas[n].startswith("using "))):
            falta(ruta, n, f"namespace {m[1]} in the room {cuarto}")


def mira_inclusiones(ruta, lineas, limpias):
    de_la_biblioteca = ruta.startswith("src/")
    if de_la_biblioteca and carpeta_de(ruta[4:]) not in CAPAS:
        falta(ruta, 1, f"the folder {carpeta_de(ruta[4:])} has no row in the table of layers of {os.path.basename(__file__)}")
        return
    for n, (linea, limpia) in enumerate(zip(lineas, limpias), 1):
        m = re.match(r'\s*#\s*include\s*([<"])([^>"]+)[>"]', linea)
        if m is None or not limpia.strip():
            continue
        que = m[2]
        if m[1] == '"' and de_la_biblioteca:
            mira_inclusion(ruta, n, que)
        if ruta.startswith(ANFITRIONES):
            if m[1] == '"' and os.path.exists(os.path.join(RAIZ, "src", que)):
                falta(ruta, n, f'"{que}": a host includes <nucleos/{que}>')
            if que.startswith("nucleos/"):
                continue
        if m[1] == "<" and not es_de_plataforma(ruta) and que not in ESTANDAR and \
                not que.startswith(OTRAS.get(ruta.split("/")[0], ())):
            falta(ruta, n, f"<{que}>: only platform/ includes what is not a standard header")
    if not es_de_plataforma(ruta):
        for n, limpia in enumerate(limpias, 1):
            m = PLATAFORMA.match(limpia)
            if m:
                falta(ruta, n, f"#if of a platform ({m[1]}) outside platform/")


def mira_idiomas(ruta, limpio):
    """The idioms of the library's own sources, over the text without comments: a condition may take several lines. What C++
    hosts read (.hpp) has the public headers alone to say it with."""
    if ruta.startswith(DE_LOS_IDIOMAS) or ruta.endswith(".hpp"):
        return
    for patron, que in IDIOMAS:
        for m in patron.finditer(limpio):
            if not (que == DUENO and es_de_plataforma(ruta)):
                falta(ruta, limpio.count("\n", 0, m.start()) + 1, que)


def mira_modulo(ruta, lineas):
    """A source names itself before its first include and includes its own public header first."""
    m = re.match(r'#define VN_MODULO "(\w+) \((NUCLEOS(?:_FOUNDATION)?)\.DLL\)"$', lineas[0])
    if m is None:
        falta(ruta, 1, 'the first line is not #define VN_MODULO "<module> (NUCLEOS.DLL)"')
        return
    if (m[2] == "NUCLEOS_FOUNDATION") != ruta.startswith("src/foundation/"):
        falta(ruta, 1, f"{m[2]}.DLL is not the library of this folder")
    primera = next((l for l in lineas if l.startswith("#include")), "")
    nombre = os.path.basename(ruta)[:-4]
    cabecera = ruta[4:-4] + ".h"
    if os.path.exists(os.path.join(RAIZ, "src", cabecera)) and primera != f'#include "{cabecera}"':
        falta(ruta, lineas.index(primera) + 1 if primera else 1, f"the first include of {nombre}.cpp is not its own header {cabecera}")


def main():
    rutas = ficheros_del_arbol(["src", "tests", "fuzz", "bench", "examples"], (".h", ".hpp", ".cpp", ".c", ".inl"))
    for ruta in rutas:
        with open(os.path.join(RAIZ, ruta), encoding="utf-8") as f:
            texto = f.read()
        lineas = texto.split("\n")
        limpio = sin_comentarios(texto)
        limpias = limpio.split("\n")
        mira_inclusiones(ruta, lineas, limpias)
        mira_espacio(ruta, lineas)
        if ruta.startswith("src/"):
            mira_idiomas(ruta, limpio)
        if ruta.startswith("src/") and ruta.endswith(".cpp") and "/platform/" not in ruta:
            mira_modulo(ruta, lineas)
        if len(lineas) - 1 > MAXIMO_LINEAS and not es_tabla(lineas):
            falta(ruta, len(lineas) - 1, f"more than {MAXIMO_LINEAS} lines: it is two things")
        for n, linea in enumerate(lineas, 1):
            if re.search(r"\b(TODO|FIXME|XXX)\b", linea):
                falta(ruta, n, "unfinished")
    for lista in ("foundation", "nucleos"):
        nombres = lista_de_exportaciones(lista)
        if nombres != sorted(set(nombres)):
            falta(f"src/exports/{lista}.txt", 1, "not sorted and unique (LC_ALL=C sort -u)")
    return dice(faltas, f"{len(rutas)} files in order")


if __name__ == "__main__":
    sys.exit(main())
