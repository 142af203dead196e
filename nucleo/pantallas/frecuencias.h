// "Resultados del cálculo de frecuencias": the initial frequency of each free degree, later the
// final frequencies with their mode vectors, and the choice of the mode of calculation.
#pragma once

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class ResultadosDeLasFrecuenciasNaturales : public Pantalla {
 public:
  explicit ResultadosDeLasFrecuenciasNaturales(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void ElegirModo(Interfaz& ui);  // a click on the left list
  void Modificar(Interfaz& ui);   // Modificar: the frequency of the chosen row, on the screen only
  void Aceptar(Interfaz& ui);     // BotónAceptar
  void Copiar(Interfaz& ui);      // the list of modes, frequencies and periods as tab-separated text
  void VerFormaModal(Interfaz& ui);  // the figure of the mode of the box, or of the chosen row

 private:
  void MostrarModos(bool estimadas);
  void MostrarVector(long modo);
  Proyecto& p_;
  std::vector<double> frecuencias_;  // as the left list shows them
};

// Menu command DeterminaciónDeLasFrecuencias.
void DeterminaciónDeLasFrecuencias(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
