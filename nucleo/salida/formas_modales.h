// The mode shapes drawn: the mesh displaced by the vector of one mode over the mesh at rest, the
// largest displacement drawn as a tenth of the mesh's width.
#pragma once

#include <string>
#include <vector>

#include "salida/figura.h"

namespace lomaterra {

struct Proyecto;

// The figure names of the mode shapes: "FormaModal" is the chosen mode of calculation (the first
// mode when none is chosen), "FormaModal3" mode 3. The mode named, or 0 for a name of another
// figure.
long ModoDeFiguraFormaModal(const Proyecto& p, const std::string& nombre);
bool EsFiguraFormaModal(const std::string& nombre);

// Why the mode cannot be drawn, in Spanish; empty when it can: the vectors exist, the mode is
// one of them, and the free degrees of the mesh are still those of the vectors.
std::string DefectoDeLaFormaModal(const Proyecto& p, long modo);

// The displacement of every node (x, y; [n] for node n) in the shape of the mode, unscaled: the
// entry of each free degree, zero on the restricted ones.
std::vector<PuntoFigura> DesplazamientosDelModo(const Proyecto& p, long modo);

// The figure of the mode (DefectoDeLaFormaModal empty); `aumento` 0 draws the largest displacement
// as 10% of the mesh's width.
Figura FiguraFormaModal(const Proyecto& p, long modo, double aumento = 0);

}  // namespace lomaterra
