// The screen of heights of the lateral forces between slices, opened by Janbu's iteration after
// every pass: "Opción para cambio de altura entre dovelas".
#pragma once

#include <optional>
#include <vector>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

class Form17 : public Pantalla {
 public:
  explicit Form17(Proyecto& p);

  // Fills the list from the project and asks at once whether this is the solution and, if not,
  // whether to leave the calculation; two No leave the screen open for new heights.
  void Activar(Interfaz& ui) override;
  // The close box is the exit button: the heights stay as they were.
  void CerrarSinCambios(Interfaz& ui) override { BotónSalir(ui); }

  // Puts the value of TextoNuevoValorDeht on the selected row.
  void Modificar(Interfaz& ui);
  // Passes the new heights to AlturaEmpuje when every row has one and no two consecutive are 0.
  void BotónAceptar(Interfaz& ui);
  void BotónSalir(Interfaz& ui);

 private:
  Proyecto& p_;
  std::vector<std::optional<double>> nuevos_;  // one-based as the rows of the list
  bool hayNuevos_ = false;
};

}  // namespace lomaterra
