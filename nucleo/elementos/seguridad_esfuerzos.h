// The factor of safety read from a finished stress calculation: the failure surface cut into
// slices, each slice base takes the stresses of the nearest element, and a moment form (in the
// manner of Bishop) or a force form (in the manner of Janbu) iterates on F.
#pragma once

#include <vector>

namespace lomaterra {

struct Proyecto;
class Interfaz;

// The slices laid on the mesh, kept for the figures: per slice (1-based, [0] unused).
struct DovelasSobreMalla {
  long n = 0;
  double ancho = 0;
  std::vector<double> x, y, alfa;
  std::vector<long> elemento;
  bool arco = false;
  double cx = 0, cy = 0, radio = 0;
};

// Preparation common to both forms; false when an arithmetic fault would follow (a radius of 0
// or shorter than half the chord).
bool PrepararDovelasSobreMalla(Proyecto& p, DovelasSobreMalla& d);

// The menu command on the stresses of the static calculation.
void FactorDeSeguridadDeslizamientoCálculoViscoplástico(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
