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

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from borrador_cod import Borrador, rejilla  # noqa: E402

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


def main(ruta):
    def posicion(i, j):
        y0 = ALTO * j / FILAS
        xi, xd = TALUD_H * y0, BASE - TALUD_H * y0
        return xi + (xd - xi) * i / COLUMNAS, y0

    nodos, elementos, numero = rejilla(COLUMNAS, FILAS, posicion)
    restricciones = sorted((numero(i, 0), "N", "N", 0.0, 0.0) for i in range(COLUMNAS + 1))
    b = Borrador()
    b.malla(["Presa de tierra de 10 m con registro sísmico (ejemplo)", "K0+000", "K0+048",
             "2026-11-23", "Lomaterra", "Ejemplo"], [(BASE, 0.0), (0.0, 0.0)],
            (2.0, 32.0, 1.8, 2.0), TALUD, FREATICO, nodos, elementos, (30000.0, 0.3, 0.01, 0.5))
    b.restricciones(restricciones, nodos, elementos)
    b.linea(1)  # seismic parameters of the stratum
    for v in (250.0, 1e-06, 0.6, 0.0, 0.0, 0.0):  # Vs, distortion, e, Cu, Ip, OCR
        b.linea(v)
    b.linea(1)  # decides the stability
    b.linea(1)  # Gmax from the wave velocity
    b.linea(ALTO)
    filas = registro()
    b.linea(1)
    b.linea(len(filas))
    for t, h, v in filas:
        b.linea(t, h, v)
    b.guardar(ruta)
    lateral = os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "ejemplos_laterales",
                           "CarpetaRegistroSismico", "registrosismico.cod")
    os.makedirs(os.path.dirname(lateral), exist_ok=True)
    with open(lateral, "wb") as f:
        lineas = [str(len(filas))] + [("%.15g,%.15g,%.15g" % r).upper() for r in filas]
        f.write(("\r\n".join(lineas) + "\r\n").encode("ascii"))


if __name__ == "__main__":
    main(sys.argv[1])
