// Form34, "Presiones de poros controladas por el usuario", for the slices: the pore pressure at the
// base of every slice, for the user to set before a recalculation.
#pragma once

#include <vector>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class Form34 : public Pantalla {
 public:
  // With `elementos` the screen shows the pore pressure of each finite element instead.
  explicit Form34(Proyecto& p, bool elementos = false);
  void Activar(Interfaz& ui) override;
  void Modificar(Interfaz& ui);
  void Aceptar(Interfaz& ui);
  void Cancelar(Interfaz& ui);

 private:
  Proyecto& p_;
  bool elementos_ = false;
  std::vector<double> presión_;  // one-based
};

// Menu command: opens Form34 over the slices of the last calculation.
void PresionesDePorosEquilibrioLímite(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
