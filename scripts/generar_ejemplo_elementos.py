#!/usr/bin/env python3
"""Writes the sample finite-element project ejemplos/talud_elementos.cod (a draft that
lomaterra-lote then saves again in the program's own number format):

  python3 scripts/generar_ejemplo_elementos.py /tmp/borrador.cod
  build/normal/lote/lomaterra-lote /tmp/borrador.cod --guardar ejemplos/talud_elementos.cod

A slope 10 m high on a base 10 m deep, meshed with linear triangles on 16 vertical lines of
nodes, 8 rows each, stretched between the base and the surface. Every node is moved by 1 to 7 mm
in a fixed pattern so that no triangle has two equal abscissas or ordinates (the stiffness would
otherwise move a node by 0.1 m). Base fixed; the two sides on vertical rollers with springs of
100000 kg/cm (10000 ton/m), several times the stiffness of a node of this soil.
"""
import sys

ANCHO, COLUMNAS, FILAS = 40.0, 16, 8
TALUD = [(40.0, 20.0), (25.0, 20.0), (10.0, 10.0), (0.0, 10.0)]  # X descending


def ordenada_talud(x):
    for (xa, ya), (xb, yb) in zip(TALUD, TALUD[1:]):
        if xa >= x >= xb:
            return ya + (x - xa) * (yb - ya) / (xb - xa)
    raise ValueError(x)


def numero(i, j):
    return 1 + i * (FILAS + 1) + j


def main(ruta):
    nodos = {}
    for i in range(COLUMNAS + 1):
        x0 = ANCHO * i / COLUMNAS
        ys = ordenada_talud(x0)
        for j in range(FILAS + 1):
            dx = 0.001 * ((3 * i + 5 * j) % 7 + 1)
            dy = 0.001 * ((5 * i + 3 * j) % 7 + 1)
            # Surface nodes go down, base nodes up, so that the offsets keep them inside.
            y = ys * j / FILAS
            y = y - dy if j == FILAS else y + dy
            nodos[numero(i, j)] = (x0 + dx if i < COLUMNAS else x0 - dx, y)
    elementos = []
    for i in range(COLUMNAS):
        for j in range(FILAS):
            a, b, c, d = numero(i, j), numero(i + 1, j), numero(i + 1, j + 1), numero(i, j + 1)
            elementos += [(a, b, c), (a, c, d)]
    restricciones = []
    for i in range(COLUMNAS + 1):
        for j in range(FILAS + 1):
            if j == 0:
                restricciones.append((numero(i, j), "N", "N", 0.0, 0.0))
            elif i in (0, COLUMNAS):
                restricciones.append((numero(i, j), "N", "S", 0.0, 100000.0))
    restricciones.sort()

    L = []

    def linea(*items):
        out = []
        for v in items:
            if isinstance(v, str):
                out.append('"%s"' % v)
            elif isinstance(v, int):
                out.append(str(v))
            else:
                out.append("%.15g" % v)
        L.append(",".join(out))

    for s in ["Talud de 10 m en elementos finitos (ejemplo)", "K0+000", "K0+040", "2026-11-23",
              "Lomaterra", "Ejemplo", "F"]:
        linea(s)
    linea(2)  # CálculoSísmicoHecho
    linea("S")
    estrato = [(40.0, 0.0), (0.0, 0.0)]
    linea(1, len(estrato), 1)
    linea(len(estrato))
    for v in (2.0, 30.0, 1.8, 2.0):
        linea(v)
    linea(0)
    for v in (0.0, 0.0, 0.0):
        linea(v)
    for x, y in estrato:
        linea(x, y)
    linea(len(TALUD))
    for x, y in TALUD:
        linea(x, y)
    linea(0)  # phreatic line
    linea(1)
    linea(len(nodos))
    for n in sorted(nodos, reverse=True):
        x, y = nodos[n]
        linea(n, x, y, 0.0)
    linea(len(elementos))
    linea(3, len(elementos))
    for e in elementos:
        linea(3, 1.0, 2.0, 2.0, 2.0)
        for n in e:
            linea(float(n))
    linea(1)
    for v in (2000.0, 0.3, 0.01, 0.5):
        linea(v)
    linea(0.01)
    linea(2)
    linea(1.0)
    linea(1)
    for _ in elementos:
        linea(1.0)
    linea(1)
    linea(len(restricciones))
    for n, rx, ry, kx, ky in restricciones:
        linea(float(n), rx, ry, "N")
        linea(kx, ky, 0.0)
    linea(2)  # no loads on element sides
    linea("T")
    linea(0.0, 0.0)
    linea(2)
    linea(0)
    linea("N")
    linea("N")
    for e in elementos:
        xs = [nodos[n][0] for n in e]
        ys = [nodos[n][1] for n in e]
        linea(sum(xs) / 3, sum(ys) / 3)
    for e in elementos:
        for n in e:
            linea(float(n), nodos[n][0], nodos[n][1])
    linea(2)  # seismic parameters
    linea(2)  # record
    linea(2)
    linea(0.0, 0.0)
    linea(0)
    linea(0.0, 0)
    linea(2)
    linea(2)
    linea(2)
    linea(0)
    linea(0)
    linea(2)
    linea(0.0)
    linea(0.0)
    linea(0)
    with open(ruta, "wb") as f:
        f.write(("\r\n".join(L) + "\r\n").encode("cp1252"))


if __name__ == "__main__":
    main(sys.argv[1])
