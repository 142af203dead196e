// The seismic record as a chart: horizontal and vertical acceleration against time.
#pragma once

#include "salida/figura.h"

namespace lomaterra {

struct Proyecto;

Figura FiguraRegistroSísmico(const Proyecto& p);

}  // namespace lomaterra
