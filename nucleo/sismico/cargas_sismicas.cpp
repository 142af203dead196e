#include "sismico/cargas_sismicas.h"

#include <cmath>
#include <cstddef>

#include "proyecto/fallos.h"

namespace lomaterra {

double AceleraciónDominante(double horizontal, double vertical) {
  return std::fabs(vertical) > std::fabs(horizontal) ? vertical : horizontal;
}

double PresiónPorosPrimerPaso(double u, double a) {
  return std::fabs(a) * 9.81 > 1 ? u * 9.81 * a : u;
}

double PresiónPorosPaso(double anterior, double a, double aAnterior) {
  return anterior + (a - aAnterior) * anterior * 9.81;
}

double EmpujeAguaPrimerPaso(double cargaAgua, double a) {
  return std::fabs(a) * 9.81 > 1 ? std::fabs(a) * cargaAgua * 9.81 : cargaAgua;
}

double EmpujeAguaPaso(double anterior, double a, double aAnterior) {
  return anterior + (a - aAnterior) * anterior;
}

double CargaDelGrado(double W, double Sp, double Sd, double F0, double E) {
  const double aW = std::fabs(W), límite = std::fabs(Sp) + Sd;
  if (aW > 0 && aW < límite) return E + F0 + Sp;
  if (aW > 0 && W > límite) {
    const double D = W - std::fabs(Sp) - Sd;
    if (std::fabs(E) < D) return -(Sp + W) + F0;
    if (std::fabs(E) > D) return E + F0 + Sp;
    return 0;
  }
  if (W == 0) return E + F0;
  return 0;
}

std::vector<double> MasasModales(const std::vector<double>& forma, const std::vector<double>& masaDiagonal, long n) {
  const auto N = static_cast<std::size_t>(n);
  std::vector<double> m(N, 0.0);
  for (std::size_t i = 0; i < N; ++i) {
    const double* fila = forma.data() + i * N;
    for (std::size_t j = 0; j < N; ++j) m[j] += masaDiagonal[i] * fila[j] * fila[j];
  }
  return m;
}

void CargasModales(const std::vector<double>& forma, const std::vector<double>& masasModales,
                   const std::vector<double>& P, long n, std::vector<double>& F) {
  const auto N = static_cast<std::size_t>(n);
  F.assign(N, 0.0);
  for (std::size_t i = 0; i < N; ++i) {
    const double* fila = forma.data() + i * N;
    const double pi = P[i];
    for (std::size_t j = 0; j < N; ++j) F[j] += fila[j] * pi;
  }
  for (std::size_t j = 0; j < N; ++j) F[j] = Div(F[j], masasModales[j], "la carga modal (masa modal nula)");
}

}  // namespace lomaterra
