// The second pass in instantaneous strength parameters: each slice gets its own cohesion and
// friction, made from the stresses of a first pass, and Bishop, Janbu or Leshchinsky-Huang runs
// again on them. The menu command prepares the pass and starts the method; the method calls the
// procedure that makes the values as its step before the iteration.
#pragma once

#include <vector>

namespace lomaterra {

struct Proyecto;
class Interfaz;

// Menu command CálculoParámetrosInstantáneos.
void CálculoParámetrosInstantáneos(Proyecto& p, Interfaz& ui);

// Called by a method at its start, while the history still holds the first pass: when the pass
// is on in case 1 or 2 and the values are not to be reused, fills ResistenciaMovilizadaPrevia
// (factor of safety × mobilised shear) and EsfuerzoEfectivoPrevio from the results in the slices.
void PasePrevioInstantáneo(Proyecto& p);

// The per-slice cohesion, friction and tangent of the pass (case 1 point by point in rock, case 2
// between points, case 3 on the screen Form18). The tangent is left for the method to rebuild from
// the friction.
void CalcularParámetrosInstantáneos(Proyecto& p, Interfaz& ui);

// Case 2: the line of each pair of neighbouring slices (one stratum), or of each run of slices of
// one material (several strata); y the mobilised strength, x the effective stress, one-based.
struct RectasInstantáneas {
  std::vector<double> pendiente, intercepto;  // 1..n (one stratum: 1..n − 1)
};
RectasInstantáneas RectasEntrePuntos(const Proyecto& p);

}  // namespace lomaterra
