#!/usr/bin/python3
"""Holds the public headers to their contract: each operation has a doc comment, annotations are well formed, none is
too wide to read, and the lists of exported names and the headers say the same, both ways.
usage: contratos.py BUILD_TREE [--adelantadas]: headers may declare what is not exported yet"""
import os
import re
import sys
from collections import Counter

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), ".."))
from clang.cindex import TypeKind
from lee_cabeceras import ANOTACIONES, cabeceras_publicas, dice, lee, lista_de_exportaciones

NUMEROS = (TypeKind.UINT, TypeKind.INT, TypeKind.SHORT, TypeKind.USHORT, TypeKind.LONG, TypeKind.ULONG, TypeKind.LONGLONG,
           TypeKind.ULONGLONG, TypeKind.CHAR_S, TypeKind.CHAR_U, TypeKind.SCHAR, TypeKind.UCHAR, TypeKind.FLOAT,
           TypeKind.DOUBLE, TypeKind.ENUM)

MAXIMO = 40  # operations that a header declares itself


def mira_anotaciones(f, p):
    """What is wrong with the annotations of a parameter, one text each."""
    tipo = p.tipo.get_canonical()
    puntero = tipo.kind in (TypeKind.POINTER, TypeKind.CONSTANTARRAY, TypeKind.INCOMPLETEARRAY)
    doble = puntero and tipo.kind == TypeKind.POINTER and tipo.get_pointee().kind == TypeKind.POINTER
    otros = {q.nombre: q for q in f.parametros if q.nombre != p.nombre}
    for a, argumentos in p.anotaciones.items():
        if a not in ANOTACIONES:
            yield f"unknown annotation {a}"
            continue
        if len(argumentos) != ANOTACIONES[a] or not all(x.strip() for x in argumentos):
            yield f"{a} takes {ANOTACIONES[a]} arguments"
        elif a in ("rango", "indice"):
            if tipo.kind not in NUMEROS:
                yield f"{a} on what is no number"
        elif not puntero:
            yield f"{a} on what is no pointer"
        if a == "indice" and argumentos and (argumentos[0] not in otros or
                otros[argumentos[0]].tipo.get_canonical().kind != TypeKind.POINTER):
            yield f"indice:{argumentos[0]} names no container among the parameters"
        if a == "longitud" and argumentos and argumentos[0] not in otros and not re.fullmatch(r"\d+|[A-Z]\w*", argumentos[0]):
            yield f"longitud:{argumentos[0]} is neither a parameter nor a whole number"
        if a == "opcional_doble" and not doble and tipo.get_pointee().kind != TypeKind.VOID:
            yield "opcional_doble on what is no address of a pointer"
        if a in ("salida", "salida_opcional") and tipo.get_pointee().is_const_qualified():
            yield f"{a} on what is const"
        if a == "formato" and not f.variadica and p is f.parametros[-1]:
            yield "formato on an operation with no further arguments"
    if p.tiene("opcional") and p.tiene("opcional_doble", "salida_opcional", "dato"):
        yield "says twice that it may be null"
    if p.tiene("salida") and p.tiene("salida_opcional"):
        yield "salida and salida_opcional"


def main():
    funciones = lee(cabeceras_publicas(sys.argv[1]))
    faltas = [] if funciones else ["no operation was read"]
    for f in funciones:
        if not f.comentario:
            faltas.append(f"{f}: no doc comment")
        for p in f.parametros:
            faltas += [f"{f}({p.nombre}): {que}" for que in mira_anotaciones(f, p)]
            if not p.nombre:
                faltas.append(f"{f}: a parameter without a name")
    for cabecera, n in Counter(f.cabecera for f in funciones).items():
        if n > MAXIMO:
            faltas.append(f"{cabecera}: {n} operations, more than {MAXIMO}: a header to each family, and an umbrella over them")
    for biblioteca in ("foundation", "nucleos"):
        lista = set(lista_de_exportaciones(biblioteca))
        declaradas = {f.nombre: f for f in funciones if f.biblioteca == biblioteca}
        faltas += [f"src/exports/{biblioteca}.txt: {n} is declared in no public header" for n in sorted(lista - declaradas.keys())]
        if "--adelantadas" not in sys.argv:
            faltas += [f"{declaradas[n]}: declared, not in src/exports/{biblioteca}.txt"
                       for n in sorted(declaradas.keys() - lista)]
    return dice(faltas, f"{len(funciones)} operations hold to their contract")


if __name__ == "__main__":
    sys.exit(main())
