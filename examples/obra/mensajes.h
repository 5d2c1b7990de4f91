// The texts of this program for its user, in Spanish and in English by the language that is active.
#pragma once

#include "foundation/msglocal.h"

namespace obra {

// A row: name, Spanish, English.
#define OBRA_MENSAJES(X)                                                                                               \
    X(uso, "uso: obra importa PLANO.dxf OBRA [CAMPO=VALOR...]\n"                                                       \
      "     obra informa OBRA [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"                  \
      "     N: 0 español, 1 francés, 2 portugués de Brasil, 3 catalán, 4 italiano, 5 portugués, 8 inglés, 9 gallego,\n" \
      "     10 búlgaro, 11 rumano, 12 chino, 13 alemán, 18 ruso, 31 polaco, 33 turco, 39 japonés",                     \
      "usage: obra importa DRAWING.dxf PROJECT [FIELD=VALUE...]\n"                                                    \
      "       obra informa PROJECT [--sistema mks|si|imperial] [--energia julio|kcal|btu] [--idioma N]\n"             \
      "       N: 0 Spanish, 1 French, 2 Portuguese of Brazil, 3 Catalan, 4 Italian, 5 Portuguese, 8 English,\n"       \
      "       9 Galician, 10 Bulgarian, 11 Romanian, 12 Chinese, 13 German, 18 Russian, 31 Polish, 33 Turkish,\n"     \
      "       39 Japanese")                                                                                           \
    X(falta_obra, "falta el nombre de la obra", "the name of the project is missing")                                  \
    X(sobra, "no se entiende", "it is not understood")                                                                 \
    X(no_vale, "no vale; ha de ser uno de:", "it will not do; it must be one of:")                                     \
    X(no_existe, "el fichero no existe o no se puede leer", "the file does not exist or cannot be read")               \
    X(es_directorio, "es un directorio", "it is a directory")                                                          \
    X(no_es_dxf, "no es un DXF", "it is no DXF")                                                                       \
    X(sin_lector, "no se puede leer el DXF", "the DXF cannot be read")                                                 \
    X(demasiado, "el dibujo tiene demasiadas entidades", "the drawing has too many entities")                          \
    X(no_se_graba, "no se ha podido grabar; el fichero anterior queda como estaba",                                    \
      "it could not be saved; the previous file is as it was")                                                         \
    X(no_es_obra, "no es una obra o está dañada", "it is no project file or is damaged")                               \
    X(superior, "está grabada con una versión superior a la que puede leer este programa",                             \
      "it was saved by a later version than this program can read")                                                    \
    X(importado, "importado en", "imported into")                                                                      \
    X(titulo, "Título", "Title")                                                                                       \
    X(programa, "Programa", "Program")                                                                                 \
    X(version, "versión", "version")                                                                                   \
    X(revision, "revisión", "revision")                                                                                \
    X(ejemplo, "ejemplo", "sample")                                                                                    \
    X(formato, "Formato", "Format")                                                                                    \
    X(actual, "la actual es la", "the present one is")                                                                 \
    X(dibujo, "Dibujo", "Drawing")                                                                                     \
    X(unidad, "m por unidad", "m per unit")                                                                            \
    X(tipos_linea, "Tipos de línea", "Line types")                                                                     \
    X(campos, "Campos", "Fields")                                                                                      \
    X(ninguno, "ninguno", "none")                                                                                      \
    X(secciones, "Secciones", "Sections")                                                                              \
    X(bytes, "bytes", "bytes")                                                                                         \
    X(capa, "Capa", "Layer")                                                                                           \
    X(capas, "Capas", "Layers")                                                                                        \
    X(apagada, "apagada", "off")                                                                                       \
    X(color, "color", "colour")                                                                                        \
    X(lineas, "líneas", "lines")                                                                                       \
    X(circulos, "círculos", "circles")                                                                                 \
    X(arcos, "arcos", "arcs")                                                                                          \
    X(elipses, "elipses", "ellipses")                                                                                  \
    X(polilineas, "polilíneas", "polylines")                                                                           \
    X(textos, "textos", "texts")                                                                                       \
    X(total, "Total", "Total")                                                                                         \
    X(sin_importar, "Sin importar", "Not imported")                                                                    \
    X(extension, "Extensión", "Extents")                                                                               \
    X(medidas, "Longitudes y áreas", "Lengths and areas")                                                              \
    X(longitud, "longitud", "length")                                                                                  \
    X(cerradas, "polilíneas cerradas", "closed polylines")                                                             \
    X(area, "área", "area")                                                                                            \
    X(rectangulo, "Rectángulo envolvente", "Bounding rectangle")                                                       \
    X(casco, "Envolvente convexa", "Convex hull")                                                                      \
    X(vertices, "vértices", "vertices")                                                                                \
    X(geometria, "Contornos, cruces y arcos", "Outlines, crossings and arcs")                                          \
    X(contornos, "contornos cerrados", "closed outlines")                                                              \
    X(cruces, "cruces", "crossings")                                                                                    \
    X(energia, "Unidad de energía", "Unit of energy")

#define X(nombre, es, en) void nombre(vnmensaje *m);
namespace mensaje {
OBRA_MENSAJES(X)
}
#undef X

} // namespace obra
