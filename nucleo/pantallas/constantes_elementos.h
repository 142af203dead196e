// The short screen of parameters for the factor of safety from the finite-element stresses:
// method, initial factor of safety, radius of the arc and number of slices.
#pragma once

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class PantallaConstantesElementos : public Pantalla {
 public:
  explicit PantallaConstantesElementos(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Aceptar(Interfaz& ui);   // BotónAceptar
  void Cancelar(Interfaz& ui);  // BotónCancelar

 private:
  Proyecto& p_;
};

// Menu command ParámetrosInicialesDeCálculoElementosFinitos.
void ParámetrosInicialesDeCálculoElementosFinitos(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
