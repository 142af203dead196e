#include "proyecto/valores_posibles.h"

#include "proyecto/interfaz.h"

namespace lomaterra {

const char* const kTítuloValoresImposibles = "Valor imposible";

bool CohesiónYFricciónPosibles(Interfaz& ui, double cohesión, double fricción) {
  if (cohesión < 0) {
    ui.Mensaje("La cohesión no puede ser negativa. Dé un valor de cero o mayor (ton/m2).",
               kTítuloValoresImposibles);
    return false;
  }
  if (fricción < 0 || fricción >= 90) {
    ui.Mensaje("El ángulo de fricción debe ser de 0 grados o más y menor que 90 grados.",
               kTítuloValoresImposibles);
    return false;
  }
  return true;
}

bool PesosUnitariosPosibles(Interfaz& ui, double húmedo, double saturado) {
  if (!(húmedo > 0)) {
    ui.Mensaje("El peso unitario húmedo debe ser mayor que cero (ton/m3).", kTítuloValoresImposibles);
    return false;
  }
  if (!(saturado > 0)) {
    ui.Mensaje("El peso unitario saturado debe ser mayor que cero (ton/m3).",
               kTítuloValoresImposibles);
    return false;
  }
  return true;
}

bool ValoresPosiblesDeSuelo(Interfaz& ui, double cohesión, double fricción, double húmedo,
                            double saturado) {
  return CohesiónYFricciónPosibles(ui, cohesión, fricción) &&
         PesosUnitariosPosibles(ui, húmedo, saturado);
}

}  // namespace lomaterra
