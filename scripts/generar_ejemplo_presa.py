#!/usr/bin/env python3
"""Writes the seismic sample ejemplos/presa_sismica.cod (a draft that lomaterra-lote then saves
again through the program's own writer) and its record side file:

  python3 scripts/generar_ejemplo_presa.py /tmp/borrador.cod
  build/normal/lote/lomaterra-lote /tmp/borrador.cod ElementoConSuNúmeroCorrespondiente \
      --guardar ejemplos/presa_sismica.cod

An earth dam 10 m high, crest 8 m wide, both faces at 2 horizontal to 1 vertical (base 48 m),
reservoir 8 m deep on the side of the larger abscissas. Linear triangles on 10 vertical lines of
nodes, 6 rows each, stretched between the two faces; every node moved by 1 to 7 mm in a fixed
pattern so that no triangle has two equal abscissas or ordinates. The base row is fixed in both
directions, so 50 nodes stay free: 100 free degrees. The record (300 points every 0.02 s, a
decaying 2 Hz pulse horizontally and two thirds of a 3 Hz one vertically, fractions of g) is
stored in the project and written in the side-file layout to
ejemplos_laterales/CarpetaRegistroSismico/registrosismico.cod.
"""
import math
import os
import sys

ALTO, CORONA, TALUD_H = 10.0, 8.0, 2.0
BASE = CORONA + 2 * TALUD_H * ALTO  # 48 m
COLUMNAS, FILAS = 9, 5
TALUD = [(BASE, 0.0), (BASE - TALUD_H * ALTO, ALTO), (TALUD_H * ALTO, ALTO), (0.0, 0.0)]
NIVEL = 8.0
FREATICO = [(BASE, NIVEL), (BASE - TALUD_H * NIVEL, NIVEL), (20.0, 5.0), (8.0, 1.5), (0.0, 0.0)]
PUNTOS, PASO = 300, 0.02


def registro():
    filas = []
    for k in range(PUNTOS):
        t = PASO * (k + 1)
        envolvente = (t / 1.0) * math.exp(1.0 - t / 1.0)
        h = 0.15 * envolvente * math.sin(2 * math.pi * 2.0 * t)
        v = 0.10 * envolvente * math.sin(2 * math.pi * 3.0 * t + 0.5)
        filas.append((round(t, 2), round(h, 5) + 0.0, round(v, 5) + 0.0))
    return filas


def numero(i, j):
    return 1 + i * (FILAS + 1) + j


def main(ruta):
    nodos = {}
    for i in range(COLUMNAS + 1):
        for j in range(FILAS + 1):
            y0 = ALTO * j / FILAS
            xi, xd = TALUD_H * y0, BASE - TALUD_H * y0
            x0 = xi + (xd - xi) * i / COLUMNAS
            dx = 0.001 * ((3 * i + 5 * j) % 7 + 1)
            dy = 0.001 * ((5 * i + 3 * j) % 7 + 1)
            y = y0 - dy if j == FILAS else y0 + dy
            nodos[numero(i, j)] = (x0 + dx if i < COLUMNAS else x0 - dx, y)
    elementos = []
    for i in range(COLUMNAS):
        for j in range(FILAS):
            a, b, c, d = numero(i, j), numero(i + 1, j), numero(i + 1, j + 1), numero(i, j + 1)
            elementos += [(a, b, c), (a, c, d)]
    restricciones = [(numero(i, 0), "N", "N") for i in range(COLUMNAS + 1)]
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

    for s in ["Presa de tierra de 10 m con registro sísmico (ejemplo)", "K0+000", "K0+048",
              "2026-11-23", "Lomaterra", "Ejemplo", "F"]:
        linea(s)
    linea(2)  # CálculoSísmicoHecho
    linea("S")
    estrato = [(BASE, 0.0), (0.0, 0.0)]
    linea(1, len(estrato), 1)
    linea(len(estrato))
    for v in (2.0, 32.0, 1.8, 2.0):  # cohesion, friction, moist and saturated weight
        linea(v)
    linea(0)
    for v in (0.0, 0.0, 0.0):
        linea(v)
    for x, y in estrato:
        linea(x, y)
    linea(len(TALUD))
    for x, y in TALUD:
        linea(x, y)
    linea(len(FREATICO))
    for x, y in FREATICO:
        linea(x, y)
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
    for v in (30000.0, 0.3, 0.01, 0.5):  # E (t/m2), Poisson, viscosity, Ko
        linea(v)
    linea(0.01)
    linea(2)
    linea(1.0)
    linea(1)
    for _ in elementos:
        linea(1.0)
    linea(1)
    linea(len(restricciones))
    for n, rx, ry in restricciones:
        linea(float(n), rx, ry, "N")
        linea(0.0, 0.0, 0.0)
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
    linea(1)  # seismic parameters of the stratum
    for v in (250.0, 1e-06, 0.6, 0.0, 0.0, 0.0):  # Vs, distortion, e, Cu, Ip, OCR
        linea(v)
    linea(1)  # decides the stability
    linea(1)  # Gmax from the wave velocity
    linea(ALTO)
    filas = registro()
    linea(1)
    linea(len(filas))
    for t, h, v in filas:
        linea(t, h, v)
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
    lateral = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "ejemplos_laterales",
                           "CarpetaRegistroSismico", "registrosismico.cod")
    os.makedirs(os.path.dirname(lateral), exist_ok=True)
    with open(lateral, "wb") as f:
        lineas = [str(len(filas))] + [("%.15g,%.15g,%.15g" % r).upper() for r in filas]
        f.write(("\r\n".join(lineas) + "\r\n").encode("ascii"))


if __name__ == "__main__":
    main(sys.argv[1])
