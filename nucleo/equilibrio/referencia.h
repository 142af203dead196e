// The factors of safety an engineer finds in the textbooks for the circle of the last
// calculation, shown beside the factor of the method: the ordinary method of slices and the
// simplified Bishop method with both the resisting and the driving sums taken as moments about the
// centre of the arc. They read the slices and never change the project.
#pragma once

#include <string>
#include <vector>

namespace lomaterra {

struct Proyecto;

extern const char* const kRótuloFelleniusReferencia;  // "Fellenius (momentos respecto del centro)"
extern const char* const kRótuloBishopReferencia;     // "Bishop simplificado (momentos ...)"

struct FactoresReferencia {
  bool hay = false;        // the surface is one arc and its slices are in memory
  std::string motivo;      // when there is none: why, in one line
  double fellenius = 0;
  bool hayBishop = false;  // the iteration settled on a positive factor
  double bishop = 0;
  int pasadasBishop = 0;
  std::string motivoBishop;           // why the Bishop figure is missing
  std::vector<long> dovelasMαBajo;    // slices with mα ≤ 0.2 at the last factor
  std::string notaBishop;             // the note on those slices, empty when there are none
};

// Both figures for the slices of TablaDovelas on the arc of centre (CentroX, CentroY) and radius
// Radio, with the weights, pore pressures, loads, seismic coefficients and crack of the stated
// methods. The Bishop iteration starts at 1.0 and stops when a pass changes the factor by less
// than 1e-6.
FactoresReferencia FactoresDeReferencia(const Proyecto& p);

// The lines shown to the user: one a figure ("Fellenius (momentos respecto del centro): 2.365"),
// with the note of the Bishop figure after it, or the one line that says why there are none.
std::vector<std::string> LíneasDeReferencia(const FactoresReferencia& f);

}  // namespace lomaterra
