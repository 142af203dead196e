// The drawing of a search of the critical circle: the section, the grid of centres coloured by the
// least factor of each centre (a colour scale with its legend), the critical circle and the next
// lowest ones drawn lighter.
#pragma once

#include <string>

#include "salida/figura.h"

namespace lomaterra {

struct Proyecto;
struct ResultadoBúsqueda;

// The name of the search's method for titles and notes.
std::string NombreMétodoBúsqueda(bool janbu);

Figura FiguraBúsqueda(const Proyecto& p, const ResultadoBúsqueda& r, bool janbu);

// The colour of a factor on the scale from `mínimo` (red) to `máximo` (blue).
Color ColorDeFactor(double f, double mínimo, double máximo);

}  // namespace lomaterra
