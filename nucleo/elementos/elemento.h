// The plane triangle of 3 nodes (one integration point) or 6 nodes (three points): integration
// points, shape functions, Jacobian, strain-displacement matrix B, the constitutive matrix D, the
// element stiffness and self weight, and the inverter `Inversa`. Pure functions of one triangle.
#pragma once

#include <array>
#include <vector>

namespace lomaterra {

class Interfaz;

// One triangle as the element reads it: its listed nodes (1..6) and its side codes.
struct GeometríaElemento {
  int nodos = 3;                  // 3 or 6
  std::array<double, 7> x{}, y{};  // [k], k = 1..nodos
  std::array<double, 4> lado{};   // [1] Lado12, [2] Lado23, [3] Lado31: 1 mid-side node, 2 none
};

// Integration points in area coordinates and their weights, [g] with g = 1..n.
struct PuntosIntegración {
  int n = 1;
  std::array<double, 4> L1{}, L2{}, L3{}, Peso{};
};
PuntosIntegración PuntosDelTriángulo(int nodos);

// Shape functions and their derivatives in xi = L1, eta = L2 at one point, [k] with k = 1..6.
struct FuncionesForma {
  std::array<double, 7> N{}, dxi{}, deta{};
};
FuncionesForma FuncionesDeForma(const GeometríaElemento& el, double L1, double L2, double L3);

// Which matrix `Inversa` is inverting: it decides the message of a zero on the diagonal and
// whether the determinant is taken.
enum class EtapaInversa { Jacobiano, RigidezModificada, Trabajo, Sísmica };

extern const char* const kMensajeInversaJacobiano;
extern const char* const kMensajeInversaRigidez;

// Inverts the n×n matrix `a` (row-major, 0-based) by Gauss-Jordan on [A | I] without pivoting or
// row exchange. Only the input diagonal is tested for zero, entry by entry: the first zero gives
// the stage's message (none in the work and seismic stages) and the result false. For the
// Jacobian the determinant, the product of the pivots of an elimination on a copy, goes to
// *determinante. A pivot that turns zero during the elimination is not detected.
bool Inversa(const std::vector<double>& a, int n, std::vector<double>& inversa, EtapaInversa etapa,
             Interfaz* ui, double* determinante = nullptr);

// B of one integration point: rows 1..3 (epsilon x, epsilon y, gamma xy), columns 1..12 (x and
// y of each listed node), and det J.
struct PuntoB {
  double B[4][13] = {};
  double detJ = 0;
};
// `Matriz_B_Triangular`: false when the Jacobian has a zero on its diagonal (message given).
bool MatrizBTriangular(const GeometríaElemento& el, const PuntosIntegración& pi, int g, PuntoB& b, Interfaz* ui);

// `MatrizConstitutiva`, plane strain: G from the entered nu, K from nu clamped to 0.45 when it
// is 0.5 or more. D[r][s], r, s = 1..3.
struct MatrizD {
  double D[4][4] = {};
};
MatrizD MatrizConstitutiva(double E, double nu);

// Element matrix and vector over the element's columns 1..2·nodos.
struct MatrizElemento {
  double k[13][13] = {};
};
// Adds the stiffness of one point: B^T D B det J Peso t / 2 (the triangle's reference area,
// applied once here).
void SumarRigidezPunto(const PuntoB& b, const MatrizD& d, double peso, double espesor, int nodos, MatrizElemento& k);
// Adds the body load of one point: N^T b det J Peso t, times 1/2 for the three-node triangle
// only (the six-node element takes twice the weight its area would give, as it always has).
void SumarPesoPunto(const GeometríaElemento& el, const PuntosIntegración& pi, int g, double detJ, double b1, double b2,
                    double espesor, std::array<double, 13>& f);

}  // namespace lomaterra
