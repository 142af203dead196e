"""Pieces shared by the scripts that write the finite-element samples and their CalculiX deck: the
stretched grid of linear triangles, and the draft project file written line by line (the program
then saves it again in its own number format)."""


def rejilla(columnas, filas, posicion):
    """Nodes numbered column by column, 1 + i (filas + 1) + j, at posicion(i, j), each moved by 1 to
    7 mm in a fixed pattern so that no triangle has two equal abscissas or ordinates (the stiffness
    would otherwise move a node by 0.1 m): surface nodes go down, the others up, the last column
    left, so the offsets keep them inside. Two triangles a cell."""
    def numero(i, j):
        return 1 + i * (filas + 1) + j

    nodos = {}
    for i in range(columnas + 1):
        for j in range(filas + 1):
            x0, y0 = posicion(i, j)
            dx = 0.001 * ((3 * i + 5 * j) % 7 + 1)
            dy = 0.001 * ((5 * i + 3 * j) % 7 + 1)
            y = y0 - dy if j == filas else y0 + dy
            nodos[numero(i, j)] = (x0 + dx if i < columnas else x0 - dx, y)
    elementos = []
    for i in range(columnas):
        for j in range(filas):
            a, b, c, d = numero(i, j), numero(i + 1, j), numero(i + 1, j + 1), numero(i, j + 1)
            elementos += [(a, b, c), (a, c, d)]
    return nodos, elementos, numero


class Borrador:
    def __init__(self):
        self.renglones = []

    def linea(self, *items):
        out = []
        for v in items:
            if isinstance(v, str):
                out.append('"%s"' % v)
            elif isinstance(v, int):
                out.append(str(v))
            else:
                out.append("%.15g" % v)
        self.renglones.append(",".join(out))

    def malla(self, informacion, estrato, suelo, talud, freatico, nodos, elementos, elastico):
        """From the project information to the element moduli: one soil stratum on a flat base,
        the surface, the phreatic line, nodes (descending), triangles of one material, the
        elastic constants and a unit thickness factor per element."""
        linea = self.linea
        for s in informacion + ["F"]:
            linea(s)
        linea(2)  # CálculoSísmicoHecho
        linea("S")
        linea(1, len(estrato), 1)
        linea(len(estrato))
        for v in suelo:  # cohesion, friction, moist and saturated weight
            linea(v)
        linea(0)
        for v in (0.0, 0.0, 0.0):
            linea(v)
        for x, y in estrato:
            linea(x, y)
        for linea_xy in (talud, freatico):
            linea(len(linea_xy))
            for x, y in linea_xy:
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
        for v in elastico:  # E (t/m2), Poisson, viscosity, Ko
            linea(v)
        linea(0.01)
        linea(2)
        linea(1.0)
        linea(1)
        for _ in elementos:
            linea(1.0)

    def restricciones(self, filas, nodos, elementos):
        """The restricted nodes (number, x and y letters, springs kx, ky), no loads, then the
        centres and nodes of the elements."""
        linea = self.linea
        linea(1)
        linea(len(filas))
        for n, rx, ry, kx, ky in filas:
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

    def guardar(self, ruta):
        """The closing items (nothing calculated) and the file, in the program's own encoding."""
        for items in [(2,), (0.0, 0.0), (0,), (0.0, 0), (2,), (2,), (2,), (0,), (0,), (2,), (0.0,),
                      (0.0,), (0,)]:
            self.linea(*items)
        with open(ruta, "wb") as f:
            f.write(("\r\n".join(self.renglones) + "\r\n").encode("cp1252"))
