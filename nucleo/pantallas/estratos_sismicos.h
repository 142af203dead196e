// The strata screen of the seismic analysis: per stratum the shear wave velocity, the initial shear
// distortion, the void ratio, the undrained strength, the plasticity index, the overconsolidation
// ratio and whether the material decides the stability; for the section its height and the
// method of the maximum shear modulus.
#pragma once

#include <string>
#include <vector>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class FormEstratosSísmicos : public Pantalla {
 public:
  explicit FormEstratosSísmicos(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void CerrarSinCambios(Interfaz& ui) override;
  void Seleccionar(Interfaz& ui);  // a row chosen: its values into the boxes
  void Modificar(Interfaz& ui);    // Modificar: the boxes into the chosen row
  void Aceptar(Interfaz& ui);      // BotónAceptar

 private:
  struct Fila {
    bool completa = false;
    double vs = 0, distorsión = 0, vacíos = 0, cu = 0, ip = 0, ocr = 0;
    std::int16_t determinante = 0;
  };
  void Mostrar();
  Proyecto& p_;
  std::vector<Fila> filas_;
};

// Menu command CaracterísticasDeLosEstratosParaElCálculoSísmico.
void CaracterísticasDeLosEstratosParaElCálculoSísmico(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
