// Janbu's generalised procedure of slices on force equilibrium, iterated on the interslice forces,
// with the line of thrust that the user may change on the screen of heights between passes.
#pragma once

#include "equilibrio/bishop.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

// Menu command of the Janbu method in soil.
void MétodoJanbu(Proyecto& p, Interfaz& ui);
// The same with another limit on the passes of each of its two loops.
void MétodoJanbuConLímite(Proyecto& p, Interfaz& ui, int límitePasadas);

}  // namespace lomaterra
