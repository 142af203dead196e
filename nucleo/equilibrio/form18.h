// Form18, "Cambio de la presión de poros y parámetros de resistencia": cohesion, friction and pore
// pressure of every slice, for the user to change before a calculation.
#pragma once

#include <vector>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class Form18 : public Pantalla {
 public:
  explicit Form18(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Modificar(Interfaz& ui);
  void Aceptar(Interfaz& ui);
  void Cancelar(Interfaz& ui);

  bool cambiosAceptados = false;

 private:
  void Llenar();
  Proyecto& p_;
  std::vector<double> cohesión_, fricción_, presión_;  // one-based
};

// Menu command: opens Form18 when instantaneous parameters have been chosen.
void CambioParámetrosResistenciaPresiónPoros(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
