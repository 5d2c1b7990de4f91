"""The pictures of `obra` as its user gets them: every one is well-formed, and a failure is a line, a status and no file.

imagenes.py OBRA [FOLDER OF DRAWINGS]"""
import pathlib
import subprocess
import sys
import tempfile
import xml.etree.ElementTree as arbol

OBRA = sys.argv[1]
NOMBRE = 'A & "B" <\u00f1>'
DXF = f"""0
SECTION
2
HEADER
9
$ACADVER
1
AC1021
0
ENDSEC
0
SECTION
2
ENTITIES
0
LINE
8
{NOMBRE}
10
0
20
0
11
8
21
4
0
CIRCLE
8
0
10
2
20
2
40
1
0
ENDSEC
0
EOF
"""
SVG = "{http://www.w3.org/2000/svg}"
fallos = []


def ejecuta(*palabras):
    return subprocess.run([OBRA, *map(str, palabras)], capture_output=True, text=True, check=False)


def espera(cierto, que):
    if not cierto:
        fallos.append(que)


def capas(svg):
    return [g.get("{http://www.inkscape.org/namespaces/inkscape}label") for g in arbol.parse(svg).getroot()
            if g.tag == SVG + "g"]


def imagenes(dxf, carpeta):
    obra = carpeta / (dxf.stem + ".obra")
    espera(ejecuta("importa", dxf, obra).returncode == 0, f"{dxf.name}: not imported")
    dichas = {}
    for nombre, opciones in {"a.svg": [], "b.svg": ["--ancho-px", 300, "--fondo", 2],
                             "c.SVG": ["--escala", 50, "--fondo", 1], "d.txt": []}.items():
        r = ejecuta("dibuja", obra, carpeta / nombre, *opciones)
        espera(r.returncode == 0 and not r.stderr, f"{dxf.name} {nombre}: {r.stderr}")
        if not nombre.endswith("txt"):
            dichas[nombre] = capas(carpeta / nombre)
    espera(dichas["a.svg"] == dichas["b.svg"] == dichas["c.SVG"] and dichas["a.svg"], f"{dxf.name}: {dichas}")
    r = ejecuta("malla", obra, carpeta / "m.svg", "--alto", "2.5")
    espera(r.returncode == 0 or r.stderr.count("\n") == 1, f"{dxf.name}: {r.stderr}")
    if r.returncode == 0:
        arbol.parse(carpeta / "m.svg")
    return dichas["a.svg"]


with tempfile.TemporaryDirectory() as d:
    carpeta = pathlib.Path(d)
    propio = carpeta / "p.dxf"
    propio.write_text(DXF, encoding="utf-8")
    espera(sorted(imagenes(propio, carpeta)) == ["0", NOMBRE], "the names of the layers")
    obra = carpeta / "p.obra"
    espera(ejecuta("malla", obra, carpeta / "m.obj").returncode == 0, "no OBJ")
    vieja = (carpeta / "a.svg").read_bytes()
    (carpeta / "dir.svg").mkdir()
    for palabras, estado in [(("dibuja", obra, carpeta / "no" / "x.svg"), 1), (("dibuja", obra, carpeta / "dir.svg"), 1),
                             (("dibuja", propio, carpeta / "a.svg"), 1), (("dibuja", carpeta / "no", carpeta / "a.svg"), 1),
                             (("dibuja", obra, carpeta / "x.gif"), 2), (("dibuja", obra), 2),
                             (("dibuja", obra, carpeta / "a.svg", "--fondo", "3"), 2),
                             (("dibuja", obra, carpeta / "a.svg", "--alto", "3"), 2),
                             (("dibuja", obra, carpeta / "a.svg", "--escala", "5", "--ancho-px", "500"), 2),
                             (("malla", obra, carpeta / "a.svg", "--alto", "nan"), 2)]:
        r = ejecuta(*palabras)
        espera(r.returncode == estado and not r.stdout, f"{palabras}: {r.returncode} {r.stdout}")
        espera(r.stderr.count("\n") == 1 if estado == 1 else len(r.stderr.splitlines()) > 4, f"{palabras}: {r.stderr}")
    espera((carpeta / "a.svg").read_bytes() == vieja, "the old picture is gone")
    espera(not list(carpeta.glob("*_TM$")) and not (carpeta / "x.gif").exists(), "something half written")
    for dxf in sorted(pathlib.Path(sys.argv[2]).glob("*.dxf")) if len(sys.argv) > 2 else []:
        imagenes(dxf, carpeta)
print("\n".join(fallos) or "well")
sys.exit(bool(fallos))
