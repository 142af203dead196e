// The charts of the menu "Gráfico": stresses at the slice bases against the abscissa, shear
// strength against effective normal stress, and the section with the stresses drawn to scale.
#pragma once

#include <string>
#include <vector>

#include "proyecto/tabla.h"
#include "salida/figura.h"

namespace lomaterra {

struct Proyecto;

// The control names of the ten entries of the menu, in menu order.
const std::vector<std::string>& NombresDeGráficos();

// The figure of a menu entry by its control name, built from the last calculation. Only
// "GráficoGeometría" needs no calculation. An unknown name gives an empty figure.
Figura FiguraGráfico(const Proyecto& p, const std::string& nombre);

// The section with the effective normal and the mobilised shear stresses of every slice drawn to
// scale, perpendicular to the base, outside the sliding mass.
Figura FiguraSecciónConEsfuerzos(const Proyecto& p);

// One stress column of the slice table against the abscissa of the slice middles, in ascending X.
Trazo SerieContraAbscisa(const Proyecto& p, const Tabla<double>& columna);

}  // namespace lomaterra
