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


class Puntero:
    """A parameter that is a pointer, no call-back, as the rows of PUNTEROS look at it."""
    def __init__(self, generador, f, p, n):
        self.generador, self.f, self.p, self.n = generador, f, p, n
        self.a = p.tipo.get_canonical().get_pointee()
        self.apuntado = p.tipo.get_pointee() if p.tipo.kind == TypeKind.POINTER else self.a
        self.t = base(self.apuntado)
        self.fijo = self.apuntado.is_const_qualified()
        self.o = generador.opciones(p)
        self.sale = p.tiene("salida", "salida_opcional")
        self.es_texto = self.t in TEXTOS
        self.es_vacio = self.a.kind == TypeKind.VOID
        self.es_registro = self.a.kind == TypeKind.RECORD
        self.es_doble = self.a.kind == TypeKind.POINTER and not es_funcion(self.apuntado)
        self.dentro = self.apuntado.get_pointee() if self.es_doble else None

    def bufer(self, tamanyo, cuantos):
        return f"bufer({self.n}, {tamanyo}, {cuantos}, -1, {self.o})"

    def medido(self):
        cuanto = self.p.anotaciones["longitud"][0]
        medida = "1" if self.es_vacio else f"sizeof({self.t})"
        o = self.o + (" | LLENO" if self.fijo and self.es_texto else "")
        if any(q.nombre == cuanto for q in self.f.parametros):
            return f"bufer({self.n}, {medida}, 1, {indice_de(self.f, cuanto)}, {o})"
        return f"bufer({self.n}, {medida}, {cuanto}, -1, {o})"

    def hueco(self):
        if self.sale:
            o = "HUECO_VACIO" + (" | OPCIONAL" if self.p.tiene("salida_opcional") else "")
        elif self.p.tiene("opcional_doble"):
            o = "OPCIONAL | HUECO_OPCIONAL"
        else:
            o = "HUECO_OPCIONAL" if self.p.tiene("opcional") else "EXIGE"
        return f"hueco({self.n}, {self.generador.fabrica(base(self.dentro), self.f)}, {o})"

    def objeto(self):
        return f"objeto({self.n}, {self.generador.fabrica(self.t, self.f)}, {self.o})"

    def registro(self, valor):
        return f"registro_de({self.n}, {valor}, {self.o})"

    def es_de_valores(self):
        """A record whose definition is seen, and zeros of which are a good value."""
        if not self.a.get_declaration().get_definition():
            return False
        return self.sale or not any(c.type.get_canonical().kind == TypeKind.POINTER for c in self.a.get_fields())

    def sin_fila(self):
        if not self.es_registro:
            raise SinFila(f"no kind for {self.p.escrito}")
        que = "good value of the record" if self.a.get_declaration().get_definition() else "factory for"
        raise SinFila(f"no {que} {self.t}")


# What a pointer is, and the kind that it is given: the first row that holds.
PUNTEROS = [
    (lambda x: x.p.tiene("dato"), lambda x: f"dato_ajeno({x.n})"),
    (lambda x: x.t in tablas.SIN_OBJETOS, lambda x: f"direccion_fija({x.n}, {x.o})"),
    (lambda x: x.p.tiene("longitud"), Puntero.medido),
    (lambda x: x.p.tiene("formato"), lambda x: f"formato{'_u' if x.t == 'vnwchar' else ''}({x.n})"),
    # The address of an owner's pointer, or of room for a pointer that is borrowed.
    (lambda x: x.es_doble and (x.dentro.is_const_qualified() or base(x.dentro) == "void" and x.sale),
     lambda x: x.bufer("sizeof(void *)", 1)),
    (lambda x: x.es_doble, Puntero.hueco),
    (lambda x: x.es_texto and x.fijo, lambda x: f"{TEXTOS[x.t]}({x.n}, {x.o})"),
    (lambda x: (x.es_texto or x.es_vacio) and x.p.tiene("consume"), Puntero.objeto),
    (lambda x: x.es_texto and x.sale, lambda x: x.bufer(f"sizeof({x.t})", f"65536 / sizeof({x.t})")),
    (lambda x: x.es_texto, lambda x: f"texto_cambiable<{x.t}>({x.n}, {x.o})"),
    (lambda x: x.a.kind in ENTEROS or x.a.kind in (TypeKind.DOUBLE, TypeKind.FLOAT, TypeKind.ENUM),
     lambda x: x.bufer(f"sizeof({x.t})", 1)),
    (lambda x: x.es_vacio and x.sale, lambda x: x.bufer(1, 4096)),
    (lambda x: x.es_vacio, lambda x: f"direccion_fija({x.n}, {x.o})"),
    (lambda x: x.es_registro and tablas.REGISTROS.get(x.t),
     lambda x: x.registro(tablas.REGISTROS[x.t].format(i=indice_de(x.f, x.p.nombre)))),
    (lambda x: x.es_registro and x.t != "Punto2D" and fila_de_manejo(x.t, x.f.nombre),
     lambda x: x.generador.con_otro(x.t, x.f, x.objeto())),
    (lambda x: x.es_registro and x.es_de_valores(), lambda x: x.registro(x.apuntado.spelling.replace("const ", "") + "{}")),
    (lambda x: True, Puntero.sin_fila),
]


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
        x = Puntero(self, f, p, n)
        return next(tipo for es, tipo in PUNTEROS if es(x))(x)

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
