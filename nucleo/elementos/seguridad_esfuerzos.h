// The factor of safety read from a finished stress calculation: the failure surface cut into
// slices, each slice base takes the stresses of the nearest element, and a moment form (in the
// manner of Bishop) or a force form (in the manner of Janbu) iterates on F.
#pragma once

#include <optional>
#include <utility>
#include <vector>

#include "proyecto/tabla.h"

namespace lomaterra {

struct Proyecto;
struct MallaElementos;
struct DatosSísmicos;
class Interfaz;

// Where the slice bases read their stresses: a column of the static tables (element, step) or a
// step of the seismic tables (step, element).
struct FuenteEsfuerzos {
  const Tabla2<double>*x, *y, *xy;
  long columna = 0;
  bool porPaso = false;  // true: the tables are indexed (step, element)
  double Leer(const Tabla2<double>& t, long e) const;
  static FuenteEsfuerzos Estática(const MallaElementos& m, long columna);
  static FuenteEsfuerzos Sísmica(const DatosSísmicos& s, long paso);
};

// The slices laid on the mesh, kept for the figures: per slice (1-based, [0] unused).
struct DovelasSobreMalla {
  long n = 0;
  double ancho = 0;
  std::vector<double> x, y, alfa;
  std::vector<long> elemento;
  bool arco = false;
  double cx = 0, cy = 0, radio = 0;
};

// Preparation common to both forms; false when an arithmetic fault would follow (a radius of 0
// or shorter than half the chord).
bool PrepararDovelasSobreMalla(Proyecto& p, DovelasSobreMalla& d);

// The menu command on the stresses of the static calculation.
void FactorDeSeguridadDeslizamientoCálculoViscoplástico(Proyecto& p, Interfaz& ui);

// The menu command on the seismic stresses of the step chosen on the result screen
// (`RegistroSeleccionado`), or of the last computed step when none was chosen there.
void FactorDeSeguridadDeslizamientoAnálisisSísmico(Proyecto& p, Interfaz& ui);
// The step that command uses.
long PasoDelFactorSísmico(const Proyecto& p);
// The factor on the seismic stresses of one step with the slices already laid; nothing when a
// slice fails its check or the force form gives a negative factor (told to `ui` when given).
std::optional<double> FactorSísmicoEnPaso(Proyecto& p, DovelasSobreMalla& d, long paso, Interfaz* ui);
// The factor at every computed step where one exists, for the chart against the step. Lays the
// slices itself; empty without seismic results or with a method other than 2 and 4.
std::vector<std::pair<long, double>> FactoresSísmicosPorPaso(Proyecto& p);

}  // namespace lomaterra
