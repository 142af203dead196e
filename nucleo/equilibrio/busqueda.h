// The search of the critical circle: a rectangular grid of centres, a set of radii for each, and
// for every circle the factor of safety by the reference Bishop iteration (both sums as moments
// about the centre) or by Janbu's force iteration with the line of thrust at a third of each edge.
// Each circle is sliced by a lean evaluator of its own (equal widths between the two crossings
// with the ground), never by the stages of the methods, and the circles are shared among threads.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

namespace lomaterra {

struct Proyecto;
class Interfaz;

enum class MétodoBúsqueda { Bishop, Janbu };

struct OpcionesBúsqueda {
  // Two opposite corners of the grid of centres and its divisions: (divisionesX + 1) ×
  // (divisionesY + 1) centres.
  double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
  int divisionesX = 10, divisionesY = 10;
  // Radii from radioMínimo to radioMáximo in steps of pasoRadio; or, when cotasTangencia is not
  // empty, one radius a level: the circle tangent to the horizontal y = cota (R = yc − cota).
  double radioMínimo = 0, radioMáximo = 0, pasoRadio = 1;
  std::vector<double> cotasTangencia;
  int dovelas = 50;
  MétodoBúsqueda método = MétodoBúsqueda::Bishop;
  // Both crossings of a circle with the ground must lie between these abscissas.
  double xSalidaMínima = -1e300, xSalidaMáxima = 1e300;
  int hilos = 0;  // 0: as many as the machine has
};

struct CírculoEvaluado {
  double xc = 0, yc = 0, radio = 0, factor = 0;
  double xCresta = 0, yCresta = 0, xPie = 0, yPie = 0;  // crossings with the ground
};

struct ResultadoBúsqueda {
  bool hay = false;        // at least one admissible circle
  bool cancelada = false;  // the user pressed Cancelar
  std::string mensaje;     // when there is no result: why
  long círculos = 0, admisibles = 0;
  int columnas = 0, filas = 0;  // the grid: columnas = divisionesX + 1, filas = divisionesY + 1
  std::vector<double> xCentro, yCentro;  // abscissas of the columns, ordinates of the rows
  // The least factor of each centre, row after row (filas × columnas); NaN where none.
  std::vector<double> mínimoPorCentro;
  std::vector<CírculoEvaluado> menores;  // the ten lowest, the critical first
};

// Why the options cannot be searched, or empty when they can.
std::string ComprobarOpcionesBúsqueda(const OpcionesBúsqueda& o);

// The grid, radii and exit limits a first search takes for the project's section.
OpcionesBúsqueda OpcionesPorDefecto(const Proyecto& p);

// The search. `ui` gets the progress (its Cancelar stops the run). Nothing of the project changes.
ResultadoBúsqueda BuscarCírculoCrítico(const Proyecto& p, const OpcionesBúsqueda& o, Interfaz* ui);

// --- The lean evaluator, for the search and its benchmark ---------------------------------------

// The section read once from the project: ground, strata and phreatic line with ascending
// abscissas, the strength and weights of each stratum, the seismic coefficients and the loads.
struct SecciónBúsqueda;
struct SecciónBúsquedaBorrar {
  void operator()(SecciónBúsqueda* s) const;
};
using SecciónPreparada = std::unique_ptr<SecciónBúsqueda, SecciónBúsquedaBorrar>;
// Empty pointer, and `motivo` filled, when the project has no section to search in.
SecciónPreparada PrepararSección(const Proyecto& p, std::string& motivo);

// Working room of one thread: allocated once, reused circle after circle.
struct EspacioEvaluación;
struct EspacioEvaluaciónBorrar {
  void operator()(EspacioEvaluación* e) const;
};
using EspacioPreparado = std::unique_ptr<EspacioEvaluación, EspacioEvaluaciónBorrar>;
EspacioPreparado NuevoEspacio(int dovelas);

// The factor of one circle, or NaN when it is not admissible (it does not cut the ground twice
// within the exit limits, leaves the section, or its iteration does not settle). The crossings go
// to `c` when it is given.
double EvaluarCírculo(const SecciónBúsqueda& s, double xc, double yc, double radio, int dovelas,
                      MétodoBúsqueda método, double xSalidaMínima, double xSalidaMáxima,
                      EspacioEvaluación& e, CírculoEvaluado* c = nullptr);

}  // namespace lomaterra
