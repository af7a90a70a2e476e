"""The pictures of Images/ against the program that draws them. Usage: imagenes_test.py PROGRAM IMAGES SOURCE...

Letters depend on the fonts of a machine, so the files are compared in size and form, not pixel by pixel.
"""
import pathlib
import re
import struct
import subprocess
import sys
import tempfile

ANCHO, ALTO, MARGEN = 840, 680, 2


def faltas(fichero):
    datos = fichero.read_bytes()
    marca, _, inicio, _, ancho, alto, _, bits, compresion = struct.unpack_from("<2sI4xIIiiHHI", datos)
    if (marca, ancho, alto, bits, compresion) != (b"BM", ANCHO, ALTO, 8, 0):
        return ["not an uncompressed 8 bit bitmap of the size agreed"]
    if len(datos) != inicio + ANCHO * ALTO:
        return ["cut short"]
    filas = [datos[i:i + ANCHO] for i in range(inicio, inicio + ANCHO * ALTO, ANCHO)]
    papel = filas[0][0]
    lista = []
    if datos[54 + 4 * papel:][:3] != b"\xff\xff\xff":
        lista.append("the paper isn't white")
    orilla = filas[:MARGEN] + filas[-MARGEN:] + [f[:MARGEN] + f[-MARGEN:] for f in filas]
    if any(set(trozo) != {papel} for trozo in orilla):
        lista.append("the drawing runs over the edge")
    # A sheet without its drawing, or a shaded view without its tones, has hardly any colours.
    if len(set(b"".join(filas))) < 40:
        lista.append("almost empty")
    return lista


programa, imagenes, *fuentes = map(pathlib.Path, sys.argv[1:])
quejas = []
with tempfile.TemporaryDirectory() as temporal:
    subprocess.run([programa, temporal], check=True)
    nuevas = {f.name: f for f in pathlib.Path(temporal).iterdir()}
    guardadas = {f.name: f for f in imagenes.iterdir()}
    if {n: f.stat().st_size for n, f in nuevas.items()} != {n: f.stat().st_size for n, f in guardadas.items()}:
        quejas.append(f"{sorted(guardadas)} of {imagenes} and {sorted(nuevas)} as drawn differ in names or sizes")
    for fichero in [*nuevas.values(), *guardadas.values()]:
        quejas += [f"{fichero}: {falta}" for falta in faltas(fichero)]
    pedidas = {nombre for fuente in fuentes for nombre in re.findall(r'"(\w+\.bmp)"', fuente.read_text())}
    if pedidas != set(guardadas):
        quejas.append(f"the catalogue asks for other pictures: {sorted(pedidas ^ set(guardadas))}")
sys.exit("\n".join(quejas) or None)
