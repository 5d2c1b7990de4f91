#!/usr/bin/python3
"""Writes the calls of the sweep of arguments: one thunk and one list of parameter kinds per exported operation, read from
the public headers.
usage: genera.py BUILD_TREE OUTPUT_FOLDER NUMBER_OF_SOURCES"""
import os
import re
import sys

AQUI = os.path.dirname(os.path.abspath(__file__))
sys.path[:0] = [os.path.join(AQUI, ".."), AQUI]
import tablas
from clang.cindex import CursorKind, TypeKind
from lee_cabeceras import cabeceras_publicas, lee, lista_de_exportaciones

ENTEROS = {TypeKind.UINT, TypeKind.INT, TypeKind.SHORT, TypeKind.USHORT, TypeKind.LONG, TypeKind.ULONG, TypeKind.LONGLONG,
           TypeKind.ULONGLONG, TypeKind.CHAR_S, TypeKind.CHAR_U, TypeKind.SCHAR, TypeKind.UCHAR}
TEXTOS = {"char": "texto", "vnwchar": "texto_u"}
INFORMAN = {nombre for _, nombres in tablas.INFORMAN for nombre in nombres.split()}


class SinFila(Exception):
    pass


def base(tipo):
    """Name of a type without const."""
    return re.sub(r"\b(const|struct) ", "", tipo.spelling).strip()


def es_funcion(tipo):
    c = tipo.get_canonical()
    return c.kind == TypeKind.POINTER and c.get_pointee().kind in (TypeKind.FUNCTIONPROTO, TypeKind.FUNCTIONNOPROTO)


def fila_de_manejo(tipo, funcion):
    for patron, operaciones, crea, destruye, n in tablas.MANEJOS:
        m = re.fullmatch(patron, tipo)
        if m and re.match(operaciones, funcion):
            return m.expand(crea), m.expand(destruye), n
    return None


def indice_de(f, nombre):
    return next(i for i, p in enumerate(f.parametros) if p.nombre == nombre)


class Generador:
    def __init__(self, funciones):
        self.funciones = funciones
        self.fabricas = {}  # (type, creator, destroyer) -> (name, creator, destroyer)
        self.faltan = []

    def fabrica(self, tipo, f):
        fila = fila_de_manejo(tipo, f.nombre)
        if fila is None:
            raise SinFila(f"no factory for {tipo}")
        crea, destruye, _ = fila
        clave = (tipo, crea, destruye)
        if clave not in self.fabricas:
            nombre = "fab_" + re.sub(r"\W+", "_", tipo)
            if any(v[0] == nombre for v in self.fabricas.values()):
                nombre += f"_{len(self.fabricas)}"
            self.fabricas[clave] = (nombre, crea, destruye)
        return self.fabricas[clave][0]

    def con_otro(self, tipo, f, expresion):
        """The kind, with the handle's second object if it has one."""
        for patron, operaciones, crea, destruye in tablas.OTROS:
            m = re.fullmatch(patron, tipo)
            if m and re.match(operaciones, f.nombre):
                clave = (tipo, "otro", operaciones)
                if clave not in self.fabricas:
                    nombre = f"otro_{len(self.fabricas)}_" + re.sub(r"\W+", "_", tipo)
                    self.fabricas[clave] = (nombre, m.expand(crea), m.expand(destruye))
                return f"tambien({expresion}, {self.fabricas[clave][0]})"
        return expresion

    def opciones(self, p):
        o = []
        if p.tiene("opcional", "salida_opcional", "opcional_doble", "dato"):
            o.append("OPCIONAL")
        if p.tiene("consume"):
            o.append("CONSUME")
        return " | ".join(o) or "EXIGE"

    def entero(self, f, p, n):
        t = base(p.tipo)
        medidos = [q for q in f.parametros if q.anotaciones.get("longitud") == [p.nombre]]
        if p.tiene("indice"):
            contenedor = f.parametros[indice_de(f, p.anotaciones["indice"][0])]
            fila = fila_de_manejo(base(contenedor.tipo.get_pointee()), f.nombre)
            if fila is None or fila[2] == 0:
                raise SinFila(f"no number of elements for {contenedor.escrito}")
            return f"indice<{t}>({n}, {fila[2]})"
        if medidos:  # rooms are made that big
            malos = ""
            if p.tiene("rango"):
                malos = ", {}, {}".format(*p.anotaciones["rango"])
            return f"longitud<{t}>({n}{malos})"
        if p.tiene("rango"):
            a, b = p.anotaciones["rango"]
            return f"entero_en<{t}>({n}, {a}, {b})"
        return f"entero<{t}>({n})"

    def puntero(self, f, p, n):
        """A parameter that is a pointer, no call-back."""
        o = self.opciones(p)
        a = p.tipo.get_canonical().get_pointee()
        apuntado = p.tipo.get_pointee() if p.tipo.kind == TypeKind.POINTER else a
        t = base(apuntado)
        fijo = apuntado.is_const_qualified()
        if p.tiene("dato"):
            return f"dato_ajeno({n})"
        if t in tablas.SIN_OBJETOS:
            return f"direccion_fija({n}, {o})"
        if p.tiene("longitud"):
            cuanto = p.anotaciones["longitud"][0]
            es_parametro = any(q.nombre == cuanto for q in f.parametros)
            medida = "1" if a.kind == TypeKind.VOID else f"sizeof({t})"
            if fijo and t in TEXTOS:
                o += " | LLENO"
            return f"bufer({n}, {medida}, {'1' if es_parametro else cuanto}, {indice_de(f, cuanto) if es_parametro else -1}, {o})"
        if p.tiene("formato"):
            return f"formato{'_u' if t == 'vnwchar' else ''}({n})"
        if a.kind == TypeKind.POINTER and not es_funcion(apuntado):  # address of an owner's pointer
            dentro = apuntado.get_pointee()
            de = base(dentro)
            if p.tiene("salida", "salida_opcional"):
                o = "HUECO_VACIO" + (" | OPCIONAL" if p.tiene("salida_opcional") else "")
            elif p.tiene("opcional_doble"):
                o = "OPCIONAL | HUECO_OPCIONAL"
            elif p.tiene("opcional"):
                o = "HUECO_OPCIONAL"
            else:
                o = "EXIGE"
            if dentro.is_const_qualified():  # what comes out is borrowed
                return f"bufer({n}, sizeof(void *), 1, -1, {self.opciones(p)})"
            if de == "void":
                return f"bufer({n}, sizeof(void *), 1, -1, {self.opciones(p)})" if p.tiene("salida", "salida_opcional") \
                    else f"hueco({n}, {self.fabrica(de, f)}, {o})"
            return f"hueco({n}, {self.fabrica(de, f)}, {o})"
        if t in TEXTOS:
            if fijo:
                return f"{TEXTOS[t]}({n}, {o})"
            if p.tiene("consume"):
                return f"objeto({n}, {self.fabrica(t, f)}, {o})"
            if p.tiene("salida", "salida_opcional"):
                return f"bufer({n}, sizeof({t}), 65536 / sizeof({t}), -1, {o})"
            return f"texto_cambiable<{t}>({n}, {o})"
        if a.kind in ENTEROS or a.kind in (TypeKind.DOUBLE, TypeKind.FLOAT, TypeKind.ENUM):
            return f"bufer({n}, sizeof({t}), 1, -1, {o})"
        if a.kind == TypeKind.VOID:
            if p.tiene("consume"):
                return f"objeto({n}, {self.fabrica(t, f)}, {o})"
            if p.tiene("salida", "salida_opcional"):
                return f"bufer({n}, 1, 4096, -1, {o})"
            return f"direccion_fija({n}, {o})"
        if a.kind == TypeKind.RECORD:
            declaracion = a.get_declaration()
            if t in tablas.REGISTROS and tablas.REGISTROS[t]:
                return f"registro_de({n}, {tablas.REGISTROS[t].format(i=indice_de(f, p.nombre))}, {o})"
            if fila_de_manejo(t, f.nombre) and t not in ("Punto2D",):
                return self.con_otro(t, f, f"objeto({n}, {self.fabrica(t, f)}, {o})")
            if declaracion.is_definition() or declaracion.get_definition():
                campos = list(a.get_fields())
                if p.tiene("salida", "salida_opcional") or not any(
                        c.type.get_canonical().kind == TypeKind.POINTER for c in campos):
                    escrito = apuntado.spelling.replace("const ", "")
                    return f"registro_de({n}, {escrito}{{}}, {o})"
                raise SinFila(f"no good value of the record {t}")
            raise SinFila(f"no factory for {t}")
        raise SinFila(f"no kind for {p.escrito}")

    def parametro(self, f, p):
        n = f'"{p.nombre}"'
        for operaciones, nombres, expresion in tablas.PARAMETROS:
            if re.fullmatch(operaciones, f.nombre) and re.fullmatch(nombres, p.nombre):
                t = base(p.tipo.get_pointee()) if p.tipo.get_canonical().kind == TypeKind.POINTER else base(p.tipo)
                if "<{t}>" in expresion and (t not in TEXTOS or not p.tipo.get_pointee().is_const_qualified()):
                    continue
                if expresion == "modulo({n})" and t != "char" or expresion.startswith(("linea(", "real(")) and \
                        p.tipo.get_canonical().kind == TypeKind.POINTER:
                    continue
                if expresion.startswith("fichero"):
                    return f"{expresion.format(t=t)}({n}, {self.opciones(p)})"
                expresion = expresion.format(n=n, t=t)
                if "fab_void" in expresion:
                    self.fabrica("void", f)
                return expresion
        c = p.tipo.get_canonical()
        if base(p.tipo) == "vnbool":
            return f"logico({n})"
        if c.kind == TypeKind.ENUM:
            valores = [h.enum_value for h in c.get_declaration().get_children() if h.kind == CursorKind.ENUM_CONSTANT_DECL]
            return f"enumerado({n}, {{{', '.join(map(str, valores))}}})"
        if c.kind in ENTEROS:
            return self.entero(f, p, n)
        if c.kind in (TypeKind.DOUBLE, TypeKind.FLOAT):
            if p.tiene("rango"):
                return "real_en({}, {}, {})".format(n, *p.anotaciones["rango"])
            return f"real_libre({n})"
        if es_funcion(p.tipo):
            if p.tipo.kind != TypeKind.TYPEDEF:
                raise SinFila(f"the call-back {p.nombre} has no typedef")
            for tipo, operaciones, cual in tablas.LLAMADAS_DE_VUELTA:
                if tipo == base(p.tipo) and re.match(operaciones, f.nombre):
                    return f"llamada({n}, como_general(&{cual}), {self.opciones(p)})"
            return f"llamada({n}, sin_efecto<{base(p.tipo)}>(), {self.opciones(p)})"
        if c.kind == TypeKind.POINTER:
            return self.puntero(f, p, n)
        raise SinFila(f"no kind for {p.escrito}")

    def argumento(self, i, p):
        c = p.tipo.get_canonical()
        if es_funcion(p.tipo):
            return f"reinterpret_cast<{base(p.tipo)}>(a[{i}].f)"
        if c.kind == TypeKind.POINTER:
            return f"static_cast<{p.escrito}>(a[{i}].p)"
        if c.kind in (TypeKind.DOUBLE, TypeKind.FLOAT):
            return f"static_cast<{base(p.tipo)}>(a[{i}].d)"
        return f"static_cast<{base(p.tipo)}>(a[{i}].i)"

    def operacion(self, f):
        params = ", ".join(self.parametro(f, p) for p in f.parametros)
        argumentos = ", ".join(self.argumento(i, p) for i, p in enumerate(f.parametros))
        r = f.resultado
        c = r.get_canonical()
        suelta = "nullptr"
        if f.nombre in tablas.LLAMADAS:
            llama = tablas.LLAMADAS[f.nombre].format(argumentos=argumentos)
        elif c.kind == TypeKind.POINTER and not es_funcion(r):
            llama = f"r.p = const_cast<void *>(static_cast<const void *>({f.nombre}({argumentos})))"
        elif c.kind in ENTEROS or c.kind == TypeKind.ENUM:
            llama = f"r.i = static_cast<int64_t>({f.nombre}({argumentos}))"
        elif c.kind in (TypeKind.DOUBLE, TypeKind.FLOAT):
            llama = f"r.d = {f.nombre}({argumentos})"
        else:
            llama = f"{f.nombre}({argumentos})"
        if "r.p = " in llama and c.kind == TypeKind.POINTER and not es_funcion(r) and not r.get_pointee().is_const_qualified() and \
                not any(re.fullmatch(x, f.nombre) for x in tablas.PRESTADOS) and base(r.get_pointee()) not in ("tm",):
            suelta = self.fabrica(base(r.get_pointee()), f) + ".destruye"
        retiene = next((f'"{por}"' for patron, por in tablas.RETIENE if re.fullmatch(patron, f.nombre)), "nullptr")
        pasan = ";".join(f"{p}={v}" for patron, p, v in tablas.DEJA_PASAR if re.fullmatch(patron, f.nombre))
        anterior = "true" if any(re.fullmatch(x, f.nombre) for x in tablas.DEJAN_EL_ANTERIOR) else "false"
        neutro = next((f'"{v}"' for patron, v, _ in tablas.NEUTROS if re.fullmatch(patron, f.nombre)), '"0"')
        pasan = f'"{pasan}"' if pasan else "nullptr"
        informa = "true" if f.nombre in INFORMAN else "false"
        return (f'    {{"{f.nombre}", [](const dato *a, dato &r) {{ (void)a, (void)r; {llama}; }},\n'
                f"     [] {{ return parametros{{{params}}}; }}, {suelta}, {retiene}, {pasan}, {anterior}, {neutro}, {informa}}},\n")

    def todas(self):
        for f in self.funciones:
            if any(re.fullmatch(patron, f.nombre) for patron, _ in tablas.EXCLUIDAS):
                continue
            try:
                yield self.operacion(f)
            except SinFila as e:
                self.faltan.append(f"{f}: {e}")


def escribe(ruta, texto):
    if not os.path.exists(ruta) or open(ruta, encoding="utf-8").read() != texto:
        with open(ruta, "w", encoding="utf-8") as f:
            f.write(texto)


def main():
    arbol, salida, trozos = sys.argv[1], sys.argv[2], int(sys.argv[3])
    cabeceras = cabeceras_publicas(arbol)
    exportadas = set(lista_de_exportaciones("foundation") + lista_de_exportaciones("nucleos"))
    funciones = lee(cabeceras)
    perdidas = (exportadas | INFORMAN) - {f.nombre for f in funciones}
    generador = Generador([f for f in funciones if f.nombre in exportadas])
    operaciones = list(generador.todas())
    if generador.faltan or perdidas:
        print("\n".join(generador.faltan + [f"{n}: exported or in a table, and declared nowhere" for n in sorted(perdidas)]), file=sys.stderr)
        print(f"The sweep of arguments leaves out {len(generador.faltan) + len(perdidas)} operations: "
              "tools/barrido/tablas.py needs rows for them.", file=sys.stderr)
        return 1
    cabeza = "// Made by tools/barrido/genera.py.\n" + "".join(f'#include "{c}"\n' for c in cabeceras) + '#include "fabricas.h"\n'
    fabricas = "".join(f"extern const fabrica {n};\n" for n, _, _ in generador.fabricas.values())
    escribe(os.path.join(salida, "barrido_fabricas.h"), cabeza + "namespace barrido {\n" + fabricas + "}\n")
    definiciones = "".join(
        f"const fabrica {n}{{[]() -> void * {{ return {crea}; }}, [](void *q) {{ auto *p = static_cast<{t} *>(q); {destruye}; }}"
        f"{', [] { ' + tablas.DESPUES[t] + '; }' if t in tablas.DESPUES else ''}}};\n"
        for (t, *_), (n, crea, destruye) in generador.fabricas.items())
    for i in range(trozos):
        escribe(os.path.join(salida, f"barrido_{i}.cpp"),
                '#include "barrido_fabricas.h"\nnamespace barrido {\nextern const std::vector<operacion> operaciones_'
                f"{i};\nconst std::vector<operacion> operaciones_{i}{{\n" + "".join(operaciones[i::trozos]) + "};\n" +
                (definiciones if i == 0 else "") + "}\n")
    restaura = "".join(f"    {que};\n" for de, que in tablas.RESTAURA if de in exportadas)
    escribe(os.path.join(salida, "barrido_todas.cpp"), '#include "barrido_fabricas.h"\nnamespace barrido {\n' +
            f"void restaura_lo_establecido() {{\n{restaura}}}\n" +
            "".join(f"extern const std::vector<operacion> operaciones_{i};\n" for i in range(trozos)) +
            "const std::vector<const std::vector<operacion> *> &todas() {\n    static const std::vector<const "
            "std::vector<operacion> *> t{" + ", ".join(f"&operaciones_{i}" for i in range(trozos)) + "};\n    return t;\n}\n}\n")
    print(f"{len(operaciones)} operations")
    return 0


if __name__ == "__main__":
    sys.exit(main())
