// Strength of a jointed rock mass by the generalised Hoek-Brown criterion: the constants m, s and a
// of the mass from the intact rock and the geological strength index, the strength and modulus of
// the mass, and the cohesion and friction of the straight line that stands for the curve over the
// range of confinement of a slope or a tunnel. Pure functions of their arguments; a value that
// would be an infinity or a NaN raises FalloAritmético instead.
#pragma once

#include <string>
#include <vector>

namespace lomaterra {

// π as the rock screens write it in their degree conversions.
constexpr double kPiRocas = 3.1415926;
// Last index of the arcsine series.
constexpr int kTérminosArcoSeno = 85;

struct ConstantesMacizo {
  double m = 0, s = 0;
};

// m and s of the mass for a disturbance D (0 undisturbed, 1 fully disturbed).
ConstantesMacizo ConstantesHoekBrown(double mi, double GSI, double D);
// The first estimate of a row, without disturbance.
ConstantesMacizo EstimaciónInicial(double mi, double GSI);
// The exponent a of the generalised criterion.
double ExponenteHoekBrown(double GSI);
// Global strength of the mass, in the units of σc.
double ResistenciaGlobalMacizo(double m, double s, double a, double σc);
// Deformation modulus of the mass from σc (kg/cm2), GSI and D.
double MóduloDeformaciónMacizo(double σc, double GSI, double D);
// The highest confining stress over a slope (tunnel false) or a tunnel of height or depth H,
// in the units of the strength.
double EsfuerzoConfinamientoMáximo(double resistencia, double H, double pesoUnitario, bool túnel);

struct CohesiónFricción {
  double cohesión = 0, fricción = 0;  // fricción in degrees
};
// The estimate that ignores the strength of the mass (H = 0): from mi, σc and GSI alone.
CohesiónFricción EquivalenteEmpírico(double mi, double σc, double GSI);
// Cohesion and friction of the line fitted to the curve up to σ3max = r·σc.
CohesiónFricción EquivalenteMacizo(double m, double s, double a, double σc, double r);
// The sine of the friction angle of the equivalent line, before the arcsine.
double SenoFricciónEquivalente(double m, double a, double A);

// arcsin z by its Taylor series summed for i = 0 .. kTérminosArcoSeno. Every term is formed from
// the one before by the ratio of its factorials, so that no intermediate value overflows.
double ArcoSenoSerie(double z);

// Shear strength of the mass for a friction angle in degrees.
double ResistenciaCorteMacizo(double m, double s, double σc, double fricciónGrados);

// The Hoek-Brown relations at the base of a slice, as the variational method in rock uses them,
// for the total minor principal stress σ3 and the pore pressure u.
struct EstadoHoekBrown {
  double w = 0, L = 0;      // w = (σ3 − u)·m/σc + s; L = w^(1 − a)
  double N = 0, R = 0;      // N = L^(1/(1−a))·(σc/a) / ((2/a)·L + m); R = √(m/(L/a) + 1)
  double tf = 0, sn = 0;    // shear strength R·N and effective normal stress N + σ3 − u
  double dtf = 0, dsn = 0;  // their derivatives with respect to σ3
};
EstadoHoekBrown RelacionesHoekBrown(double σ3, double u, double m, double s, double a, double σc);

// Fit of m and s to laboratory pairs of principal stresses by least squares on
// y = (σ1 − σ3)² = m·σc·σ3 + s·σc².
struct AjusteEnsayo {
  double m = 0, s = 0;
};
AjusteEnsayo AjustarEnsayos(const std::vector<double>& σ1, const std::vector<double>& σ3, double σc,
                            bool rocaIntacta);

}  // namespace lomaterra
