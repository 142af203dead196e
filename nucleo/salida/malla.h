// The finite-element mesh in a drawing: element edges, node numbers, element numbers and
// materials, restricted nodes and loaded sides.
#pragma once

#include "salida/figura.h"

namespace lomaterra {

struct Proyecto;

struct OpcionesMalla {
  bool númerosDeNodos = true, númerosDeElementos = true, materiales = true;
};

// Adds the mesh of the project to a figure (nothing when there are no elements).
void AñadirMallaAFigura(Figura& f, const Proyecto& p, OpcionesMalla o = {});

// The section with its mesh (menu GráficoGeometríaTaludEstratos and ElementoConSuNúmeroCorrespondiente).
Figura FiguraMalla(const Proyecto& p);

}  // namespace lomaterra
