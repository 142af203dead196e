// The initial estimate of the natural frequencies: a shear wedge of the height of the section, one
// frequency per free degree from that degree's shear modulus and unit weight; the maximum shear
// modulus by physical properties in its five cases.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace lomaterra {

// The n-th zero of the Bessel function J0 by McMahon's asymptotic series with π taken as
// 3.1415927. The index m = 4n - 1 and its powers are doubles.
double CeroBesselJ0(long n);

// What the physical-properties relations read for one element: void ratio, undrained strength
// (t/m2), plasticity index, overconsolidation ratio, cohesion (t/m2), friction (degrees), K0 and
// the element's effective vertical stress (t/m2).
struct SueloParaGmax {
  double e = 0, cu = 0, ip = 0, ocr = 0, c = 0, fricción = 0, k0 = 0, sv = 0;
};

struct Gmax {
  char caso = 0;     // 'A' to 'E'; 0 when the soil matches none of them
  double valor = 0;  // t/m2, when a case matched
};
// Gmax by physical properties. A soil that matches no case gives caso 0: the caller keeps the value
// of the previous element. A negative effective stress confines nothing: it counts as zero.
Gmax GmaxPorPropiedadesFísicas(const SueloParaGmax& s);
// K of case C: 16 for friction up to 25 degrees, else 16 + 0.6 (φ - 25) / 0.15 rounded.
double FactorKCasoC(double fricciónGrados);
// k of cases D and E, piecewise on the plasticity index.
double FactorkPorIp(double ip);

// The properties a free degree takes from the stratum of the element that numbers it.
struct PropiedadesGrado {
  double E = 0, poisson = 0, peso = 0, vs = 0, gmax = 0;
};
// The shear modulus of a degree by the method chosen on the strata screen: 1 wave velocity,
// 2 physical properties (the Gmax above), 3 elastic properties.
double MóduloCortante(int método, const PropiedadesGrado& g);

// One frequency per degree, rad/s: sqrt(G 9.81 / γ) j(n) / (1.2 H^(5/6)). Returns an empty text,
// or the Spanish reason why no list can be made (a zero height or unit weight, a negative modulus):
// then `frecuencias` is left untouched.
std::string FrecuenciasInicialesEstimadas(const std::vector<PropiedadesGrado>& grados, int método,
                                          double altura, std::vector<double>& frecuencias);

}  // namespace lomaterra
