"""Reads the public headers with libclang: every operation with its parameters, their types and their annotations; and the
files of the tree. What the checks of the tree and the sweep of arguments stand on."""
import os
import re
import subprocess
from dataclasses import dataclass, field

from clang import cindex
from clang.cindex import CursorKind, TypeKind

# The tests of these checks hold up a tree of their own.
RAIZ = os.environ.get("VN_RAIZ") or os.path.normpath(os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
FUENTES = os.path.join(RAIZ, "src")

# Annotation: does it take an argument?
ANOTACIONES = {"opcional": 0, "opcional_doble": 0, "longitud": 1, "rango": 2, "indice": 1, "salida": 0,
               "salida_opcional": 0, "formato": 0, "dato": 0, "consume": 0}


@dataclass
class Parametro:
    nombre: str
    tipo: cindex.Type
    anotaciones: dict  # annotation -> list of its arguments

    def tiene(self, *nombres):
        return any(n in self.anotaciones for n in nombres)

    @property
    def escrito(self):
        return self.tipo.spelling


@dataclass
class Funcion:
    nombre: str
    cabecera: str  # relative to src/
    linea: int
    tipo: cindex.Type
    parametros: list = field(default_factory=list)
    variadica: bool = False
    comentario: str = ""

    @property
    def resultado(self):
        return self.tipo.get_result()

    @property
    def biblioteca(self):
        return "foundation" if self.cabecera.startswith("foundation/") else "nucleos"

    def __str__(self):
        return f"{self.cabecera}:{self.linea}: {self.nombre}"


def cabeceras_publicas(arbol, cuales=""):
    """The list that the build wrote: what is installed; "_cxx" for those of C++ alone."""
    with open(os.path.join(arbol, f"cabeceras_publicas{cuales}.txt"), encoding="utf-8") as f:
        return f.read().split()


def _anotaciones(cursor):
    salida = {}
    for hijo in cursor.get_children():
        if hijo.kind == CursorKind.ANNOTATE_ATTR:
            nombre, *argumentos = hijo.displayname.split(":")
            salida[nombre] = argumentos
    return salida


def comentario_de(lineas, linea):
    """The doc comment of a declaration: the nearest one above it, with no blank line between (outside comments)."""
    texto = []
    i = linea - 1
    if "/**" in lineas[i]:
        return lineas[i]
    dentro = False
    while i > 0:
        i -= 1
        cruda = lineas[i]
        if dentro or cruda.rstrip().endswith("*/"):
            texto.insert(0, cruda)
            if "/*" in cruda:
                dentro = False
                if "/**" in cruda and "/**<" not in cruda:
                    return "\n".join(texto)
                texto = []
            else:
                dentro = True
        elif not cruda.strip():
            return ""
    return ""


def lee(cabeceras, argumentos=()):
    """All the operations that the headers declare with C linkage, sorted by name; raises on a header that does not parse."""
    unidad = "".join(f'#include "{c}"\n' for c in cabeceras)
    tu = cindex.Index.create().parse(
        "todas.c", ["-xc", "-std=c11", "-I" + FUENTES, "-DVN_LEE_ANOTACIONES", *argumentos],
        unsaved_files=[("todas.c", unidad)])
    errores = [str(d) for d in tu.diagnostics if d.severity >= cindex.Diagnostic.Error]
    if errores:
        raise SystemExit("the headers do not parse:\n" + "\n".join(errores))
    publicas = {os.path.join(FUENTES, c): c for c in cabeceras}
    lineas = {}
    vistas = {}
    for cursor in tu.cursor.get_children():
        if cursor.kind != CursorKind.FUNCTION_DECL or cursor.location.file is None:
            continue
        ruta = os.path.normpath(cursor.location.file.name)
        if ruta.endswith(".inl"):  # a table expanded by a public header
            ruta = next((p for p in publicas if os.path.dirname(p) == os.path.dirname(ruta)), ruta)
        if ruta not in publicas or cursor.storage_class == cindex.StorageClass.STATIC or cursor.is_definition():
            continue
        if cursor.spelling in vistas:
            continue
        if ruta not in lineas:
            with open(ruta, encoding="utf-8") as f:
                lineas[ruta] = f.read().split("\n")
        f = Funcion(cursor.spelling, publicas[ruta], cursor.location.line, cursor.type)
        f.variadica = cursor.type.kind == TypeKind.FUNCTIONPROTO and cursor.type.is_function_variadic()
        f.comentario = comentario_de(lineas[ruta], f.linea)
        for p in cursor.get_arguments():
            f.parametros.append(Parametro(p.spelling, p.type, _anotaciones(p)))
        vistas[f.nombre] = f
    return sorted(vistas.values(), key=lambda f: f.nombre)


def ficheros_del_arbol(carpetas, terminaciones):
    """The paths under these folders with one of these endings: what git keeps, and what it would."""
    rutas = subprocess.run(["git", "-C", RAIZ, "ls-files", "-co", "--exclude-standard", *carpetas], capture_output=True,
                           text=True, check=True).stdout.split()
    return [r for r in rutas if r.endswith(terminaciones) and os.path.exists(os.path.join(RAIZ, r))]


def dice(faltas, bien):
    """Tells the faults, one a line, or that all is well; gives the status that a check ends with."""
    print("\n".join(faltas) or bien)
    return 1 if faltas else 0


def lista_de_exportaciones(nombre):
    with open(os.path.join(FUENTES, "exports", nombre + ".txt"), encoding="utf-8") as f:
        return f.read().split("\n")[:-1]


def sin_comentarios(texto):
    """The text with comments and literals blanked, lines kept."""
    patron = re.compile(r'//[^\n]*|/\*.*?\*/|"(?:\\.|[^"\\\n])*"|\'(?:\\.|[^\'\\\n])*\'', re.S)
    return patron.sub(lambda m: '""' if m.group()[0] in "\"'" else re.sub(r"[^\n]", " ", m.group()), texto)
