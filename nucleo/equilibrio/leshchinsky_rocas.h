// The variational method of Leshchinsky and Huang on a Hoek-Brown rock mass. The unknown field is
// the total minor principal stress σ3 at the slice bases; the Hoek-Brown relations give the shear
// strength and the effective normal stress from it. The differential equation is written at every
// slice middle with a four-point derivative and solved with the three equilibrium equations by
// Newton steps, on the same slices, sums, inversion and screens as the method in soil.
#pragma once

#include <optional>
#include <vector>

#include "equilibrio/leshchinsky.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

// Menu command: method 1 in rock.
void ProcesoIterativoEnRocas(Proyecto& p, Interfaz& ui);

// The rock columns of the slice bases, one-based.
struct BasesRoca {
  std::vector<double> m, s, a, σc;
};
BasesRoca LeerBasesRoca(const Proyecto& p);

// Weights c1..c4 of the derivative at xe of the cubic through X[0..3].
std::vector<double> PesosDerivadaLagrange(double xe, const double X[4]);

// The row of the iteration in rock: µ1, µ2, F and σ3[1..n] in fila.σ (element 0 unused).
SumasEquilibrio SumasEquilibrioRocas(const DatosVariacionales& dv, const BasesRoca& r,
                                     const FilaVariacional& fila);
// J (n + 3) and R = −(residuals), unknowns µ1, µ2, F, σ3[1..n]; J is analytic.
void SistemaNewtonRocas(const DatosVariacionales& dv, const BasesRoca& r,
                        const FilaVariacional& fila, MatrizDensa& J, std::vector<double>& R);

// The starting σ3 − u of one slice from its effective overburden q by the march and the secant;
// nothing when the function never falls below zero.
std::optional<double> RaízInicialSigma3(double q, double m, double s, double σc);

extern const char* const kTextoFinLeshchinskyRocas;

}  // namespace lomaterra
