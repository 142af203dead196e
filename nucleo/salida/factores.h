// The one line of the main window's status that sums up the last limit-equilibrium calculation:
// the method's factor and, beside it, the reference figures on a single arc.
#pragma once

#include <string>

namespace lomaterra {

struct Proyecto;

// Empty when no calculation has left its results.
std::string LíneaDeFactores(const Proyecto& p);

}  // namespace lomaterra
