// Rayleigh damping: the damping ratio of each element from its stratum, the two constants from the
// frequencies of the chosen mode and the next one, and the damping matrix a1 K + a0 M of the
// elements, summed over the mesh and condensed to the free degrees.
#pragma once

#include <vector>

namespace lomaterra {

struct ConstantesRayleigh {
  double a0 = 0, a1 = 0;  // damping = a1 K + a0 M
};
// From the frequencies w1 (chosen mode) and w2 (next mode), rad/s, and the damping ratio z.
// Equal frequencies are separated by 0.1 first.
ConstantesRayleigh CalcularConstantesRayleigh(double w1, double w2, double z);

// Soil: the ratio by the stratum's class (cu, Ip, OCR, cohesion, friction in degrees); zero for a
// stratum of no class.
double RelaciónAmortiguamientoSuelo(double cu, double ip, double ocr, double c, double fricción);
// Rock: the mass's damping d, its shear modulus G and the frequency w of the chosen mode.
double RelaciónAmortiguamientoRoca(double d, double G, double w);

// The stiffness and lumped mass of one element over its degrees (global numbers, 1-based: 2n-1 and
// 2n of each node), g by g row-major, and its damping ratio.
struct MatricesElemento {
  std::vector<long> grados;
  std::vector<double> K, M;
  double relación = 0;
};

// Sums a1 K_e + a0 M_e of every element, with its own constants, into a global matrix of
// `gradosTotales` square (row-major, 0-based), and copies the rows and columns of the free degrees
// (global numbers, 1-based, in the condensed order) into `condensada`.
void MatrizAmortiguamientoRayleigh(const std::vector<MatricesElemento>& elementos, double w1,
                                   double w2, long gradosTotales, const std::vector<long>& libres,
                                   std::vector<double>& global, std::vector<double>& condensada);

}  // namespace lomaterra
