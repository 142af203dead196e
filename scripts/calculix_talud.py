#!/usr/bin/env python3
"""Outside check of the stiffness solve: the mesh of ejemplos/talud_elementos.cod (made by
scripts/generar_ejemplo_elementos.py) as a CalculiX deck of CPE3 elements under self weight,
base and both sides fixed, E = 2000 ton/m2, nu = 0.3, unit weight 1.8 ton/m3, thickness 1 m.

  python3 scripts/calculix_talud.py pruebas/datos/calculix
  (cd pruebas/datos/calculix && ccx -i talud)
  python3 scripts/calculix_talud.py --tabla pruebas/datos/calculix

The second step writes talud.dat; --tabla turns it into talud_desplazamientos.txt (node, ux, uy in
metres), the values the test compares with.

The elastic step of the stress analysis is checked on the same mesh on rollers (sides slide
vertically, base horizontally; the corners are fixed), with the stress of each CPE3 element:

  python3 scripts/calculix_talud.py --rodillos pruebas/datos/calculix
  (cd pruebas/datos/calculix && ccx -i talud_rodillos)
  python3 scripts/calculix_talud.py --esfuerzos pruebas/datos/calculix

which leaves talud_esfuerzos.txt (element, sxx, syy, sxy in ton/m2).
"""
import os
import sys

sys.path.insert(0, os.path.dirname(__file__))
import generar_ejemplo_elementos as g  # noqa: E402


def malla():
    nodos, elementos, numero = g.malla()
    fijos = [numero(i, j) for i in range(g.COLUMNAS + 1) for j in range(g.FILAS + 1)
             if j == 0 or i in (0, g.COLUMNAS)]
    return nodos, elementos, sorted(fijos)


def deck(carpeta):
    nodos, elementos, fijos = malla()
    with open(os.path.join(carpeta, "talud.inp"), "w") as f:
        f.write("*HEADING\nTalud de ejemplo de Lomaterra, peso propio, base y lados fijos\n*NODE\n")
        for n in sorted(nodos):
            f.write("%d, %.15g, %.15g, 0\n" % (n, *nodos[n]))
        f.write("*ELEMENT, TYPE=CPE3, ELSET=Eall\n")
        for e, (a, b, c) in enumerate(elementos, 1):
            f.write("%d, %d, %d, %d\n" % (e, a, b, c))
        f.write("*NSET, NSET=Fijos\n")
        for n in fijos:
            f.write("%d,\n" % n)
        f.write("*NSET, NSET=Todos, GENERATE\n1, %d, 1\n" % len(nodos))
        f.write("*BOUNDARY\nFijos, 1, 2\n")
        f.write("*MATERIAL, NAME=Suelo\n*ELASTIC\n2000., 0.3\n*DENSITY\n1.8\n")
        f.write("*SOLID SECTION, ELSET=Eall, MATERIAL=Suelo\n1.\n")
        f.write("*STEP\n*STATIC\n*DLOAD\nEall, GRAV, 1., 0., -1., 0.\n")
        f.write("*NODE PRINT, NSET=Todos\nU\n*END STEP\n")


def deck_rodillos(carpeta):
    nodos, elementos, numero = g.malla()
    with open(os.path.join(carpeta, "talud_rodillos.inp"), "w") as f:
        f.write("*HEADING\nTalud de ejemplo de Lomaterra, peso propio, sobre rodillos\n*NODE\n")
        for n in sorted(nodos):
            f.write("%d, %.15g, %.15g, 0\n" % (n, *nodos[n]))
        f.write("*ELEMENT, TYPE=CPE3, ELSET=Eall\n")
        for e, (a, b, c) in enumerate(elementos, 1):
            f.write("%d, %d, %d, %d\n" % (e, a, b, c))
        f.write("*BOUNDARY\n")
        for i in range(g.COLUMNAS + 1):
            for j in range(g.FILAS + 1):
                if i in (0, g.COLUMNAS):
                    f.write("%d, 1, 1\n" % numero(i, j))
                if j == 0:
                    f.write("%d, 2, 2\n" % numero(i, j))
        f.write("*MATERIAL, NAME=Suelo\n*ELASTIC\n2000., 0.3\n*DENSITY\n1.8\n")
        f.write("*SOLID SECTION, ELSET=Eall, MATERIAL=Suelo\n1.\n")
        f.write("*STEP\n*STATIC\n*DLOAD\nEall, GRAV, 1., 0., -1., 0.\n")
        f.write("*EL PRINT, ELSET=Eall\nS\n*END STEP\n")


def esfuerzos(carpeta):
    filas = []
    dentro = False
    for línea in open(os.path.join(carpeta, "talud_rodillos.dat")):
        if "stresses" in línea:
            dentro = True
            continue
        partes = línea.split()
        if dentro and len(partes) == 8 and partes[1] == "1":
            filas.append("%s %s %s %s" % (partes[0], partes[2], partes[3], partes[5]))
    with open(os.path.join(carpeta, "talud_esfuerzos.txt"), "w") as f:
        f.write("\n".join(filas) + "\n")


def tabla(carpeta):
    filas = []
    dentro = False
    for línea in open(os.path.join(carpeta, "talud.dat")):
        if "displacements" in línea:
            dentro = True
            continue
        partes = línea.split()
        if dentro and len(partes) == 4:
            filas.append("%s %s %s" % (partes[0], partes[1], partes[2]))
    with open(os.path.join(carpeta, "talud_desplazamientos.txt"), "w") as f:
        f.write("\n".join(filas) + "\n")


if __name__ == "__main__":
    if sys.argv[1] == "--tabla":
        tabla(sys.argv[2])
    elif sys.argv[1] == "--rodillos":
        deck_rodillos(sys.argv[2])
    elif sys.argv[1] == "--esfuerzos":
        esfuerzos(sys.argv[2])
    else:
        deck(sys.argv[1])
