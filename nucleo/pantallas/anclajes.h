// The anchor screens opened from the result screens: Form12 for soils and Form14 for rock. The
// engineer gives the target factor of safety and the anchor; the screen works out the force per
// metre and the spacing of active and passive anchors and keeps them in Proyecto::Anclajes.
#pragma once

#include "proyecto/pantalla.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

class Interfaz;

class PantallaAnclajes : public Pantalla {
 public:
  PantallaAnclajes(Proyecto& p, bool roca);
  void Activar(Interfaz& ui) override;
  // Reads and checks the fields, works out the anchors and shows them. True when it got a result.
  bool Calcular(Interfaz& ui);
  // Calcular, then stores the data and the spacings and closes.
  void Aceptar(Interfaz& ui);

 private:
  Proyecto& p_;
  bool roca_;
  DatosAnclajes resultado_;  // what Aceptar stores
};

// Opens Form12 (soil) or Form14 (rock).
void AbrirAnclajes(Proyecto& p, Interfaz& ui, bool roca);

}  // namespace lomaterra
