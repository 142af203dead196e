// The drawing of the cross-section: surface, strata, phreatic line, failure surface and its points,
// slices, loads, crack, centre and radius of an arc.
#pragma once

#include "salida/figura.h"

namespace lomaterra {

struct Proyecto;

Figura FiguraSección(const Proyecto& p);

}  // namespace lomaterra
