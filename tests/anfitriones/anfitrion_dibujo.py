#!/usr/bin/python3
"""A device written in Python: the table is read from the library's own list, two outputs are chained, and every figure of
the plane and of space comes to the far one with its values.
usage: anfitrion_dibujo.py LIBNUCLEOS LIBNUCLEOS_FOUNDATION vornplan_tabla.inl"""
import ctypes
import re
import sys

ENTEROS = {"uint8_t": ctypes.c_uint8, "uint16_t": ctypes.c_uint16, "vnbool": ctypes.c_uint16, "int32_t": ctypes.c_int32,
           "uint32_t": ctypes.c_uint32, "uint64_t": ctypes.c_uint64, "double": ctypes.c_double, "void": None}
FILA = re.compile(r"^X\((\w+), ([\w ]+\**), PRIMERO,\s*\(([^)]*)\),\s*(\w+)\)", re.M)
# What texts reach, which tests/drawing drives.
SIN_OPERACION = {"func_DrawTexto", "func_LongitudTrozoTexto", "func_DrawTexto3D", "func_SetPlanoTexto"}
PASO = (10., 20., 5.)


def tipo(escrito):
    return ctypes.c_void_p if "*" in escrito else ENTEROS[escrito.strip()]


def lee_tabla(ruta):
    """Slot -> (type of its function, how its arguments are written, group), in the order of the table."""
    with open(ruta, encoding="utf-8") as f:
        texto = re.sub(r"/\*.*?\*/", "", f.read(), flags=re.S)
    filas = {}
    for slot, resultado, argumentos, grupo in FILA.findall(texto):
        escritos = [re.sub(r"\s*\w+$", "", re.sub(r"\s+", " ", a).strip()) for a in argumentos.split(",")]
        filas[slot] = (ctypes.CFUNCTYPE(tipo(resultado), *map(tipo, escritos)), escritos[1:], grupo)
    assert len(filas) == len(re.findall(r"^X\(", texto, re.M)), "a row that is not read"
    return filas


class Anfitrion:
    def __init__(self, nucleos, foundation, filas):
        self.nucleos, self.foundation, self.filas = ctypes.CDLL(nucleos), ctypes.CDLL(foundation), filas
        self.Tabla = type("vplan_funciones", (ctypes.Structure,), {"_fields_": [(s, f[0]) for s, f in filas.items()]})
        self.nucleos.vplan_nousar_abre_dispositivo_con_tabla.restype = ctypes.c_void_p
        for f in ("arr_CreaPunto2D", "arr_CreaPunto3D", "arr_CreaULong", "arr_CreaPunteroConTipo", "arr_CreaDouble"):
            self.foundation[f].restype = ctypes.c_void_p
        for f in ("Punto2D", "Punto3D", "ULong", "Puntero"):
            self.foundation[f"arr_GetBufferConst{f}"].restype = ctypes.c_void_p
        self.nucleos.vornmesh_genera_cubo.restype = ctypes.c_void_p
        self.vistos, self.vivos = [], []

    # ---- arrays

    def puntos(self, *de):
        n = len(de[0])
        a = self.foundation[f"arr_CreaPunto{n}D"](0)
        for p in de:
            self.foundation[f"arr_AppendPunto{n}D"](ctypes.c_void_p(a), *map(ctypes.c_double, p))
        return ctypes.c_void_p(a)

    def enteros(self, *de):
        a = self.foundation.arr_CreaULong(0)
        for n in de:
            self.foundation.arr_AppendULong(ctypes.c_void_p(a), n)
        return ctypes.c_void_p(a)

    def lista(self, *de):
        a = self.foundation.arr_CreaPunteroConTipo(0)
        for p in de:
            self.foundation.arr_AppendPunteroConTipo(ctypes.c_void_p(a), p)
        return ctypes.c_void_p(a)

    def lee(self, a, clase, elemento, por):
        a = ctypes.c_void_p(a)
        n = self.foundation[f"arr_NumElems{clase}"](a) * por
        return list((elemento * n).from_address(self.foundation[f"arr_GetBufferConst{clase}"](a))) if n else []

    def valor(self, slot, escrito, v):
        """An argument as it is compared: arrays by their elements, other addresses as they are."""
        if v is not None and "arrPunto2D" in escrito:
            return self.lee(v, "Punto2D", ctypes.c_double, 2)
        if v is not None and "arrPunto3D" in escrito:
            return self.lee(v, "Punto3D", ctypes.c_double, 3)
        if v is not None and "arrULong" in escrito:
            return self.lee(v, "ULong", ctypes.c_uint32, 1)
        if v is not None and "arrPuntero" in escrito:
            clase = "Punto3D" if "3D" in slot else "Punto2D"
            return [self.lee(p, clase, ctypes.c_double, int(clase[-2])) for p in self.lee(v, "Puntero", ctypes.c_void_p, 1)]
        return v if "mesh" not in escrito and "vmatr" not in escrito else "made anew"

    # ---- devices

    def funcion(self, slot):
        forma, escritos, _ = self.filas[slot]

        def recibe(item, *valores):
            assert item == self.item.value, slot
            self.vistos.append((slot, *(self.valor(slot, e, v) for e, v in zip(escritos, valores))))
            return 0
        return forma(recibe)

    def abre(self, destino, grupos):
        tabla = self.Tabla()
        for slot, (_, _, grupo) in self.filas.items():
            if grupo in grupos:
                setattr(tabla, slot, self.funcion(slot))
        self.vivos.append(tabla)  # its functions are called until the close
        self.item = ctypes.c_void_p(0x1234)
        item = ctypes.c_void_p(self.item.value)
        s = self.nucleos.vplan_nousar_abre_dispositivo_con_tabla(3, destino, ctypes.byref(item), b"python", None, ctypes.byref(tabla))
        assert s and item.value is None
        return ctypes.c_void_p(s)

    def llama(self, operacion, salida, *argumentos):
        self.vistos.clear()
        self.nucleos[operacion](salida, *(ctypes.c_double(a) if isinstance(a, float) else a for a in argumentos))
        return list(self.vistos)


def casos(a):
    """Operation, arguments, what the device of the plane is told, what that of space is. Lines through PASO."""
    dos, tres = a.puntos((0., 0.), (1., 0.), (0., 1.)), a.puntos((0., 0., 1.), (1., 0., 1.), (0., 1., 1.))
    en_dos, en_tres = [10., 20., 11., 20., 10., 21.], [10., 20., 5., 11., 20., 5., 10., 21., 5.]
    de_tres = [10., 20., 6., 11., 20., 6., 10., 21., 6.]
    region, filas, nada, colores = a.lista(dos), a.lista(tres, tres), a.lista(), a.enteros(7, 8, 9)
    cubo = ctypes.c_void_p(a.nucleos.vornmesh_genera_cubo(*map(ctypes.c_double, (1., 1., 1.))))
    dato = ctypes.c_void_p(0x77)
    ejes = (0., 0., 0., 1., 0., 0., 0., 1., 0.)
    return [
        ("vplan_escr_linea", (1., 2., 3., 4.), ("func_DrawLinea", 11., 22., 13., 24.),
         ("func_Linea3D", 11., 22., 5., 13., 24., 5.)),
        ("vplan_escr_linea_con_gradiente", (1., 2., 7, 3., 4., 8), ("func_LineaGradiente", 11., 22., 7, 13., 24., 8),
         ("func_LineaGradiente3D", 11., 22., 5., 7, 13., 24., 5., 8)),
        ("vplan_escr_rayo", (1., 2., 3., 4.), ("func_Rayo", 11., 22., 13., 24.), ("func_Rayo3D", 11., 22., 5., 13., 24., 5.)),
        ("vplan_escr_linea_referencia", (1., 2., 3., 4.), ("func_LineaReferencia", 11., 22., 13., 24.),
         ("func_LineaReferencia3D", 11., 22., 5., 13., 24., 5.)),
        ("vplan_escr_punto", (1., 2.), ("func_Punto", 11., 22.), ("func_Punto3D", 11., 22., 5.)),
        ("vplan_escr_punto_clave", (1., 2., 4., 7, 8), ("func_DibujaPuntoClave", 11., 22., 0, 1, 4., 0., 7, 8),
         ("func_DibujaPuntoClave3D", 11., 22., 5., 0, 1, 4., 0., 7, 8)),
        ("vplan_escr_polilinea", (dos, 0), ("func_DrawPolilinea", en_dos), ("func_DrawPolilinea3D", en_tres, 0)),
        ("vplan_escr_poligono_relleno", (dos,), ("func_DrawPoligono", en_dos, 1), ("func_DrawPoligono3D", en_tres, 1)),
        ("vplan_escr_circulo", (1., 2., 3.), ("func_DrawCirculo", 11., 22., 3., 0), ("func_DrawCirculo3D", 11., 22., 5., 3., 0)),
        ("vplan_escr_arco", (1., 2., 4., 2., 1., 5.), ("func_DrawArco", 11., 22., 14., 22., 11., 25., 0),
         ("func_DrawArco3D", 11., 22., 5., 14., 22., 5., 11., 25., 5., 0)),
        ("vplan_escr_arco_elipse", (1., 2., 3., 2., 0., 1., 0., 0), ("func_ArcoElipse", 11., 22., 3., 2., 0., 1., 0., 0),
         ("func_ArcoElipse3D", 11., 22., 5., 3., 2., 0., 1., 0., 0)),
        ("vplan_escr_arco_elipse", (1., 2., 3., 2., 0., 0., 0., 1), ("func_Elipse", 11., 22., 3., 2., 0., 1),
         ("func_Elipse3D", 11., 22., 5., 3., 2., 0., 1)),
        ("vplan_escr_relleno_regiones", (region, nada), ("func_DibujaRellenoRegiones", [en_dos], [], 1),
         ("func_DibujaRellenoRegiones3D", [en_tres], [], 1)),
        ("vplan_escr_imagen", (dato, 1., 2., 1, 4., 2.), ("func_DrawImagen", 0x77, 11., 22., 4., 2., 0),
         ("func_DrawImagen3D", 0x77, 11., 22., 5., 1., 0., 0., 0., 1., 0., 4., 2., 0)),
        # Of the plane alone.
        ("vplan_escr_relleno_regiones_con_gradiente_lineal", (region, nada, 7, 8, 1., 2., 3., 4.),
         ("func_DibujaRellenoRegionesConGradiente", [en_dos], [], 4, 11., 22., 13., 24., 7, 8), None),
        ("vplan_escr_hatch_relleno", (region,), ("func_DrawHatch", [en_dos], None, None, None, None), None),
        ("vplan_escr_arandela", (1., 2., 1., 1.000001), ("func_DrawArandela", 11., 22., 1., 1.000001), None),
        ("vplan_escr_grid", (2.,), ("func_DibujaGrid", 2.), None),
        # Of space alone.
        ("vplan_escr_cara3D", (0., 0., 1., 1, 1., 0., 1., 0, 1., 1., 1., 1, 0., 1., 1., 0, 1), None,
         ("func_DibujaCara3D", 10., 20., 6., 1, 11., 20., 6., 0, 11., 21., 6., 1, 10., 21., 6., 0)),
        ("vplan_escr_solid3D", (0., 0., 1., 1., 0., 1., 0., 1., 1., 1., 1., 1., 1), None,
         ("func_DibujaSolid3D", 10., 20., 6., 11., 20., 6., 10., 21., 6., 11., 21., 6.)),
        ("vplan_escr_polilinea3D_con_cambio_de_color", (tres, colores), None,
         ("func_Polilinea3DConCambioDeColor", de_tres, [7, 8, 9])),
        ("vplan_escr_triangulo_gradiente_3d", (0., 0., 1., 7, 1., 0., 1., 8, 0., 1., 1., 9), None,
         ("func_TrianguloGradiente3D", 10., 20., 6., 7, 11., 20., 6., 8, 10., 21., 6., 9)),
        ("vplan_escr_triangulo_3D_con_normal_por_vertice",
         (0., 0., 1., 0., 0., 1., 1., 0., 1., 0., 0., 1., 0., 1., 1., 0., 0., 1.), None,
         ("func_Triangulo3DConNormalPorVertice", 10., 20., 6., 0., 0., 1., 11., 20., 6., 0., 0., 1., 10., 21., 6., 0., 0., 1.)),
        ("vplan_escr_mesh", (cubo, 3), None, ("func_DibujaMesh", "made anew", 3)),
        ("vplan_escr_grid3d", (filas,), None, ("func_DibujaGrid3D", [de_tres, de_tres])),
        ("vplan_escr_tubo3D", (tres, 2.), None, ("func_DibujaTubo3D", de_tres, 2.)),
        ("vplan_escr_prisma_conico", (0., 0., 0., 2., 0., 0., 3., 1., 0., 0., 1.), None,
         ("func_DibujaPrimaConico", 10., 20., 5., 2., 10., 20., 8., 1., 0., 0., 1.)),
        ("vplan_escr_xref", (dato,), None, ("func_DibujaXRef", "made anew", 0x77)),
        ("vplan_escr_imagen3D", (dato, *ejes, 1., 2., 5, 4., 2., 1), None,
         ("func_DrawImagen3D", 0x77, 9., 21., 5., 1., 0., 0., 0., 1., 0., 4., 2., 1)),
    ]


def main():
    filas = lee_tabla(sys.argv[3])
    a = Anfitrion(sys.argv[1], sys.argv[2], filas)
    faltas = []
    informes = a.foundation.error_interno_numero_de_informes
    for columna, grupo in ((2, "2D"), (3, "3D")):
        fin = a.abre(None, {grupo})
        delante = a.abre(fin, set())
        a.nucleos.vplan_append_desplaza_origen_coordenadas_3d(delante, *map(ctypes.c_double, PASO))
        llegados = set()
        for caso in casos(a):
            if caso[columna] is None:
                continue
            visto = a.llama(caso[0], delante, *caso[1])
            llegados |= {v[0] for v in visto}
            if visto != [caso[columna]]:
                faltas.append(f"{caso[0]}: {visto}, expected {caso[columna]}")
        # Clouds go to the space that they are in.
        if grupo == "3D":
            visto = a.llama("vplan_escr_nubes_puntos_3Dcons", fin, ctypes.c_void_p(0x55))
            llegados |= {v[0] for v in visto if v == ("func_NubesPuntos3D", 0x55)}
        quedan = {s for s, f in filas.items() if f[2] == grupo} - llegados - SIN_OPERACION
        if quedan:
            faltas.append(f"never told: {sorted(quedan)}")
        a.nucleos.vplan_desapila_transformacion(delante)
        for s in (delante, fin):
            a.nucleos.vplan_cierra(ctypes.byref(s))
            assert s.value is None
    if informes() != 0:
        faltas.append(f"{informes()} reports")
    print("\n".join(faltas) or f"{len(filas)} slots read, every figure as it is drawn")
    return 1 if faltas else 0


if __name__ == "__main__":
    sys.exit(main())
