// A small sample project built in code: a cut slope in soil with two strata, a phreatic line,
// a circular failure surface and a load on the crest, ready for every limit-equilibrium screen.
// The screenshot gallery and the window tests show it.
#pragma once

#include "proyecto/proyecto.h"

namespace lomaterra {

void ProyectoDeMuestra(Proyecto& p);

}  // namespace lomaterra
