// Mode shape vectors: mode by mode a correction iteration of (K - w² M) x around its explicit
// inverse, a new w² from the mean of the ratios of the shape's stiffness and mass, a second pass
// from the shape found, and the mass normalisation; the time questions, the caps of 100 and 2
// modes, and the ascending sort of frequencies with their vectors.
#pragma once

#include <vector>

namespace lomaterra {

struct Proyecto;
class Interfaz;

struct FormasModales {
  std::vector<double> frecuencias;  // rad/s, ascending
  std::vector<double> formas;       // n by n, row-major: formas[i * n + m] is degree i of mode m
  int modosCalculados = 0;          // n, 100 or 2
};

// K and M are n by n, row-major; `iniciales` the initial frequency of each degree. Questions and
// messages go through `ui`. Returns false when a message ended the run (a zero on the diagonal of
// K - w² M, a zero pivot, a shape with no mass, the iterate store exhausted) or the user pressed
// Cancelar: then nothing of `r` is meaningful.
bool CalcularFormasModales(const std::vector<double>& K, const std::vector<double>& M, long n,
                           const std::vector<double>& iniciales, FormasModales& r, Interfaz& ui);

// Menu command CálculoDeLoVectoresDeFormaModales, on the condensed matrices of the project.
void CálculoDeLoVectoresDeFormaModales(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
