// form9, "Resultados de las iteraciones": one step of the variational iteration, shown after each
// Newton step; it asks whether the row is the solution or the run is to stop.
#pragma once

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class Form9 : public Pantalla {
 public:
  explicit Form9(Proyecto& p);
  // Fills the boxes from the last row of the history and the equilibrium sums, then asks the two
  // questions, sets SoluciónAceptada and SalirDelCálculo, and closes.
  void Activar(Interfaz& ui) override;

 private:
  Proyecto& p_;
};

extern const char* const kPreguntaSolución;
extern const char* const kPreguntaSalir;

}  // namespace lomaterra
