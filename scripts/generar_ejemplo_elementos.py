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
import os
import sys

sys.path.insert(0, os.path.dirname(os.path.abspath(__file__)))
from borrador_cod import Borrador, rejilla  # noqa: E402

ANCHO, COLUMNAS, FILAS = 40.0, 16, 8
TALUD = [(40.0, 20.0), (25.0, 20.0), (10.0, 10.0), (0.0, 10.0)]  # X descending


def ordenada_talud(x):
    for (xa, ya), (xb, yb) in zip(TALUD, TALUD[1:]):
        if xa >= x >= xb:
            return ya + (x - xa) * (yb - ya) / (xb - xa)
    raise ValueError(x)


def malla():
    def posicion(i, j):
        x0 = ANCHO * i / COLUMNAS
        return x0, ordenada_talud(x0) * j / FILAS

    return rejilla(COLUMNAS, FILAS, posicion)


def main(ruta):
    nodos, elementos, numero = malla()
    restricciones = []
    for i in range(COLUMNAS + 1):
        for j in range(FILAS + 1):
            if j == 0:
                restricciones.append((numero(i, j), "N", "N", 0.0, 0.0))
            elif i in (0, COLUMNAS):
                restricciones.append((numero(i, j), "N", "S", 0.0, 100000.0))
    restricciones.sort()
    b = Borrador()
    b.malla(["Talud de 10 m en elementos finitos (ejemplo)", "K0+000", "K0+040", "2026-11-23",
             "Lomaterra", "Ejemplo"], [(40.0, 0.0), (0.0, 0.0)], (2.0, 30.0, 1.8, 2.0), TALUD, [],
            nodos, elementos, (2000.0, 0.3, 0.01, 0.5))
    b.restricciones(restricciones, nodos, elementos)
    b.linea(2)  # seismic parameters
    b.linea(2)  # record
    b.guardar(ruta)


if __name__ == "__main__":
    main(sys.argv[1])
