#include "equilibrio/matrices.h"

#include "proyecto/fallos.h"

namespace lomaterra {

double& MatrizDensa::operator()(long i, long j) {
  if (i < 1 || i > n_ || j < 1 || j > n_) throw FalloAritmético("índice fuera de la matriz");
  return datos_[static_cast<std::size_t>((i - 1) * n_ + (j - 1))];
}

double MatrizDensa::operator()(long i, long j) const {
  if (i < 1 || i > n_ || j < 1 || j > n_) throw FalloAritmético("índice fuera de la matriz");
  return datos_[static_cast<std::size_t>((i - 1) * n_ + (j - 1))];
}

bool InvertirSinPivoteo(MatrizDensa& a) {
  const long n = a.Orden();
  MatrizDensa inv(n);
  for (long i = 1; i <= n; ++i) inv(i, i) = 1.0;
  for (long k = 1; k <= n; ++k) {
    // The elimination stops at the first zero pivot. Each pivot is tested on its own: a running
    // product of them overflows or underflows long before a sound matrix of a few hundred rows
    // runs out of pivots.
    const double pivote = a(k, k);
    if (pivote == 0.0) return false;
    for (long j = 1; j <= n; ++j) {
      a(k, j) /= pivote;
      inv(k, j) /= pivote;
    }
    for (long i = 1; i <= n; ++i) {
      if (i == k) continue;
      const double factor = a(i, k);
      if (factor == 0.0) continue;
      for (long j = 1; j <= n; ++j) {
        a(i, j) -= factor * a(k, j);
        inv(i, j) -= factor * inv(k, j);
      }
    }
  }
  a = inv;
  return true;
}

std::vector<double> Multiplicar(const MatrizDensa& a, const std::vector<double>& v) {
  const long n = a.Orden();
  std::vector<double> r(static_cast<std::size_t>(n + 1), 0.0);
  for (long i = 1; i <= n; ++i) {
    double s = 0.0;
    for (long j = 1; j <= n; ++j) s += a(i, j) * v.at(static_cast<std::size_t>(j));
    r[static_cast<std::size_t>(i)] = s;
  }
  return r;
}

}  // namespace lomaterra
