// The strain-dependent shear modulus and damping ratio of an element during a seismic run, and the
// two protections of the run: the cut of displacements at 10^4 and the 75% rule.
//
// Soil follows the hyperbolic law of Ishibashi and Zhang: at strain y, with n(Ip) and the mean
// stress s_m (t/m², so 10 s_m is in kPa), K = 0.5 (1 + tanh(ln(((n + 0.000102)/y)^0.492))),
// m = 0.272 (1 - tanh(ln((0.000556/y)^0.4))) exp(-0.0145 Ip^1.3) and G/Gmax = (10 s_m)^m K.
#pragma once

#include <vector>

namespace lomaterra {

// n(Ip): 0 for Ip = 0; 3.37e-6 Ip^1.404 up to 15; 7e-7 Ip^1.976 up to 70; 2.7e-5 Ip^1.115 above.
double ExponenteIp(double ip);
// K and m at strain y (no special cases), and the ratio (10 s_m)^m K at y.
double FactorK(double y, double ip);
double ExponenteM(double y, double ip);

// The soil's parameters of the run, fixed at the first step.
struct SueloDegradable {
  double Gmax = 0, tauMáx = 0, yr = 0;  // maximum modulus, strength, reference strain
  double sm = 0, ip = 0;                // mean stress s_m = (K0 + 1) sv / 2, plasticity index
  double R = 1, alfa = 0;               // hyperbolic fit
  bool conIp = true;                    // false for the case with friction and cohesion only
};
// Strength: c cos(phi) + s_m sin(phi) for phi > 0 (degrees), Cu for phi = 0 and Cu > 0, else 0.
double ResistenciaCorte(double c, double fricción, double cu, double sm);
// The fit of the first step at the element's shear stress txy: the five strains 10^-6 .. 10^-2.5,
// ratios capped to 0.99, the least-squares slope b1 of log10(1/ratio - 1) on log10(|y/yr ratio|),
// R = b1 + 1 (1 when |b1| <= 0.01), and alfa the mean at 10^-4 and 10^-3 of
// (1/ratio - 1) / |txy/tauMáx|^(R-1). Gmax, tauMáx, sm, ip are taken from `s`; yr is set.
void AjustarHipérbola(SueloDegradable& s, double txy);

// The strain measure of a step. At the first step the hyperbolic strain is formed, but every step
// ends with y = 10^-6 unless the comparison of the later steps left its y0 non-zero: after the
// first step E1 and E2 are only compared with the stored strain (still zero), not assigned to it.
double DeformaciónDelPaso(const SueloDegradable& s, double txy, bool primero);

struct MóduloYAmortiguamiento {
  double G = 0, razón = 0, z = 0;  // modulus, G/Gmax, damping ratio
};
// Soil at strain y: K = 1 for |y| <= 10^-6, m = 0.544 for |y| >= 10^-1, G between 0.1 Gmax and Gmax
// (ratio 1 at Gmax); damping 0.333 (0.586 r² - 1.547 r + 1), times (exp(-0.0145 Ip^1.3) + 1)/2
// for the cases with Ip, between 0.05 and 0.333.
MóduloYAmortiguamiento MóduloSuelo(const SueloDegradable& s, double y);
// Rock: G = |txy| / |gxy| when |gxy| > 10^-6, else Gmax, between 0.1 Gmax and Gmax; damping
// (Dt w)^1.005 (1/7) Gmax / (Dt w Gmax + G), between 0.05 and 0.333.
MóduloYAmortiguamiento MóduloRoca(double Gmax, double txy, double gxy, double dt, double w);

// Poisson ratio from the strains: smaller over larger magnitude, above 0.5 to 0.49, below 0.1 to
// 0.1; the stratum's nu when both are equal.
double PoissonDelPaso(double ex, double ey, double nu);

// The cut: |u| >= 10^4 becomes +10000 or -10000; true when it acted.
bool CortarDesplazamiento(double& u);

// The degrees that moved more than 0.5 m in an element of a stratum with Determinante 1, each
// listed once; the rule holds when the list is longer than Int(0.75 n).
struct GradosDesplazados {
  std::vector<char> listado;  // by free degree
  long cuenta = 0;
};
void AnotarDesplazados(const std::vector<double>& u, const std::vector<char>& determinanteUno,
                       GradosDesplazados& d);
bool ReglaDelSetentaYCinco(const GradosDesplazados& d, long n);

}  // namespace lomaterra
