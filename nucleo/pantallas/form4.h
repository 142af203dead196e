// Form4: where a new stratum goes among the strata there are (stratum 1 is the uppermost).
#pragma once

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class Form4 : public Pantalla {
 public:
  explicit Form4(Proyecto& p);

  void Activar(Interfaz& ui) override;
  void CerrarSinCambios(Interfaz& ui) override;

  // Number that the new stratum will bear, 1..NúmeroEstratos + 1; 0 when the screen was left
  // without a choice.
  int Posición = 0;

  // The row of ListaEntre that places the new stratum at `posición`, and back.
  static int PosiciónDeFila(int fila, int estratos);

 private:
  void Aceptar(Interfaz& ui);
  Proyecto& p_;
};

}  // namespace lomaterra
