// The variational limit-equilibrium method of Leshchinsky and Huang in soil. The normal stress
// along the failure surface is an unknown function; minimising the factor of safety under the
// three equilibrium constraints gives a first-order differential equation in which two Lagrange
// multipliers (a point µ1, µ2) appear. The equation is written at the slice middles by finite
// differences and solved together with the three equilibrium equations by Newton steps, the user
// watching every step.
#pragma once

#include <string>
#include <vector>

#include "equilibrio/matrices.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

// Menu command: method 1 in soil.
void ProcesoIterativoEnSuelos(Proyecto& p, Interfaz& ui);

// Weights of the one-sided derivative at X4 of the cubic through four points:
// σ'(X4) ≈ w1·σ(X1) + w2·σ(X2) + w3·σ(X3) + w4·σ(X4).
struct PesosCuatroPuntos {
  double w1 = 0, w2 = 0, w3 = 0, w4 = 0;
};
PesosCuatroPuntos PesosDerivadaCuatroPuntos(double X1, double X2, double X3, double X4);

// Three-point derivative on an uneven grid at the middle point, the neighbours at distances
// hAntes (towards greater x, where the slice before lies) and hDespués (towards smaller x):
// E / d with E = (hA² − hD²)·σm + hD²·σa − hA²·σd and d = (hA + hD)·hA·hD. It is the derivative
// with respect to x, exact for a quadratic.
double DerivadaTresPuntos(double hAntes, double hDespués, double σAntes, double σMedio,
                          double σDespués);

// A uniform load or a point load as it acts on one slice.
struct CargaEnDovela {
  double qx = 0, qy = 0;
};
struct PuntualEnDovela {
  double X = 0, Y = 0, Px = 0, Py = 0;
};

// Everything the method reads from the slices, in short names, one-based (element 0 unused),
// and the values derived once before the iteration.
struct DatosVariacionales {
  long n = 0;  // slices
  std::vector<double> x, y, yt, yw, b, gm, hw, s, st, c, t, u, p;
  std::vector<double> h, ge, d;  // h: 1..n, ge: 1..n, d: 1..n−1
  PesosCuatroPuntos w;
  double kh = 0, kv = 0;
  double EmpujeGrieta = 0, BrazoGrieta = 0;  // arm: (NF − second point) / 3 + second point
  std::vector<std::vector<CargaEnDovela>> uniformes;  // per slice
  std::vector<std::vector<PuntualEnDovela>> puntuales;

  double g(long i, double µ1, double µ2, double F) const;
  double f(long i, double µ1, double µ2, double F) const;
  double W(long i) const;
  double T(long i, double σ) const;  // σ: the stress at the base of slice i
};

// Reads the slices of the project into the short names and derives h, ge, d and the weights.
// Needs four slices or more. Without `pesoEquivalente` (the method in rock) ge is gm throughout.
DatosVariacionales LeerDatosVariacionales(const Proyecto& p, bool pesoEquivalente = true);

// One row of the iteration: µ1, µ2, F and the stresses σ[1..n+1] (σ[1] at the crest).
struct FilaVariacional {
  double µ1 = 0, µ2 = 0, F = 0;
  std::vector<double> σ;
};

// The first stress field: A·σ = r for σ[2..n+1] with the crest stress known.
void SistemaPrimerCampo(const DatosVariacionales& dv, const FilaVariacional& fila, MatrizDensa& A,
                        std::vector<double>& r);

struct SumasEquilibrio {
  double horizontal = 0, vertical = 0, momento = 0;
};
SumasEquilibrio SumasDeEquilibrio(const DatosVariacionales& dv, const FilaVariacional& fila);

// The Newton system: J (n + 3) and the residuals R, with the unknowns µ1, µ2, F, σ[2..n+1].
void SistemaNewton(const DatosVariacionales& dv, const FilaVariacional& fila, MatrizDensa& J,
                   std::vector<double>& R);

// Texts of the method, shared with the tests.
extern const char* const kTextoDeterminanteCero;
extern const char* const kTítuloDeterminanteCero;
extern const char* const kTextoLímiteHistoria;
extern const char* const kTítuloLímiteHistoria;
extern const char* const kTextoFinLeshchinsky;
extern const char* const kTextoPocasDovelas;
extern const char* const kTítuloPocasDovelas;
constexpr long kFilasHistoria = 100;

}  // namespace lomaterra
