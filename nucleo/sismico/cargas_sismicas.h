// The loads of a response run, step by step: the pore pressure of each element under shaking, the
// load of each free degree by the comparison of the water thrust with the reservoir and effective
// stress terms, and the modal load per unit modal mass.
#pragma once

#include <vector>

namespace lomaterra {

// The component that drives the pore pressure at a step: the vertical when its magnitude is the
// larger, else the horizontal (equal magnitudes take the horizontal).
double AceleraciónDominante(double horizontal, double vertical);

// Pore pressure of an element at the first step from its static pore pressure u and the dominant
// acceleration a (fraction of g): u 9.81 a when |a| 9.81 > 1, else u.
double PresiónPorosPrimerPaso(double u, double a);
// At later steps: p(t-1) + (a(t) - a(t-1)) p(t-1) 9.81.
double PresiónPorosPaso(double anterior, double a, double aAnterior);

// The water thrust of a degree: at the first step |a| W0 9.81 when |a| 9.81 > 1, else W0 (W0 the
// degree's pore-water load); later W(t-1) + (a(t) - a(t-1)) W(t-1). a is the horizontal for an x
// degree and the vertical for a y degree.
double EmpujeAguaPrimerPaso(double cargaAgua, double a);
double EmpujeAguaPaso(double anterior, double a, double aAnterior);

// The load of a degree at a step. W the water thrust, Sp the reservoir load, Sd the effective
// stress term (0 in rapid drawdown), F0 the static load, E = -M(i,i) 9.81 a the inertia load.
//   0 < |W| < |Sp| + Sd:            E + F0 + Sp
//   0 < |W| and W > |Sp| + Sd:      with D = W - |Sp| - Sd, -(Sp + W) + F0 if |E| < D,
//                                    E + F0 + Sp if |E| > D, 0 if |E| = D
//   W = 0:                           E + F0
//   otherwise:                       0
double CargaDelGrado(double W, double Sp, double Sd, double F0, double E);

// Modal loads per unit modal mass. forma is n by n row-major (forma[i * n + j], degree i of mode
// j). The modal masses sum over i of M(i,i) phi(i,j)^2; F(j) = sum over i of phi(i,j) P(i) over
// the modal mass of j. A zero modal mass is a fault of the run.
std::vector<double> MasasModales(const std::vector<double>& forma, const std::vector<double>& masaDiagonal, long n);
void CargasModales(const std::vector<double>& forma, const std::vector<double>& masasModales,
                   const std::vector<double>& P, long n, std::vector<double>& F);

}  // namespace lomaterra
