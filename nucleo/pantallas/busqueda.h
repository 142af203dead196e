// The screen of the search of the critical circle (menu "Equilibrio límite"): the grid of centres,
// the radii, the slices, the method and the exit limits; the search with its progress; the ten
// lowest circles; the drawing; and "Usar este círculo", which makes the chosen circle the
// project's failure surface.
#pragma once

#include <string>

#include "equilibrio/busqueda.h"
#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

// Menu command "Búsqueda del círculo crítico".
void BúsquedaCírculoCrítico(Proyecto& p, Interfaz& ui);

// The gates of the search: a section of soil with its strata characterised. False after its
// message.
bool PuertaBúsqueda(Proyecto& p, Interfaz& ui);

// Writes the circle as the failure surface: its two points on the ground (descending X), one "C"
// stretch, the radius, the centre and the chord in the constants; the stages and the calculation
// are marked to be run again.
void UsarCírculo(Proyecto& p, const CírculoEvaluado& c);

class PantallaBúsqueda : public Pantalla {
 public:
  explicit PantallaBúsqueda(Proyecto& p);
  void Activar(Interfaz& ui) override;

  // The options from the fields; false after a message that names the field.
  bool LeerOpciones(Interfaz& ui, OpcionesBúsqueda& o);
  void Buscar(Interfaz& ui);
  void Usar(Interfaz& ui);
  void Dibujo(Interfaz& ui);
  const ResultadoBúsqueda& Resultado() const { return r_; }

 private:
  void MostrarResultado();
  Proyecto& p_;
  ResultadoBúsqueda r_;
  bool janbu_ = false;
};

}  // namespace lomaterra
