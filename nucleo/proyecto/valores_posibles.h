// Values that no soil can have, refused by the screens once their own checks have passed: each
// function shows the message of the first impossible value and returns false.
#pragma once

namespace lomaterra {

class Interfaz;

extern const char* const kTítuloValoresImposibles;

// Cohesion of 0 or more; friction angle from 0° up to, not including, 90°.
bool CohesiónYFricciónPosibles(Interfaz& ui, double cohesión, double fricción);
// Both unit weights above 0.
bool PesosUnitariosPosibles(Interfaz& ui, double húmedo, double saturado);
// The two above, in that order.
bool ValoresPosiblesDeSuelo(Interfaz& ui, double cohesión, double fricción, double húmedo,
                            double saturado);

}  // namespace lomaterra
