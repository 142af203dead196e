// "Caragas lineales": loads along lines normal to the section, applied at a point of the face of
// the slope.
#pragma once

#include "pantallas/form7.h"

namespace lomaterra {

class Form8 : public PantallaDeCargas {
 public:
  explicit Form8(Proyecto& p);
  void Signos(Interfaz& ui);  // FavorLeer

 protected:
  std::vector<std::vector<double>> Cargadas() const override;
  void Guardar(const std::vector<std::vector<double>>& filas) override;
};

// Menu command CargasPuntuales.
void CargasPuntuales(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
