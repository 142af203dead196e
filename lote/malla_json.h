// The finite-element mesh of a project as JSON: its tables, and on request the diagonal of the
// assembled stiffness and the load vector.
#pragma once

#include <string>

namespace lomaterra {
struct Proyecto;
class Interfaz;
}  // namespace lomaterra

namespace lomaterra::lote {

// With `rigidez` the stiffness is assembled (Elementotriangular, skyline store) on a copy of the
// project; a run that ends on one of its messages gives "rigidez": null.
std::string MallaComoJson(const Proyecto& p, Interfaz& ui, bool rigidez);

}  // namespace lomaterra::lote
