// Dense square matrices of the variational method and their inversion by Gauss-Jordan elimination
// with the pivots taken on the diagonal in order, without any row exchange.
#pragma once

#include <vector>

namespace lomaterra {

// An n x n matrix, one-based in both indices.
class MatrizDensa {
 public:
  MatrizDensa() = default;
  explicit MatrizDensa(long n) : n_(n), datos_(static_cast<std::size_t>(n * n), 0.0) {}
  long Orden() const { return n_; }
  double& operator()(long i, long j);
  double operator()(long i, long j) const;

 private:
  long n_ = 0;
  std::vector<double> datos_;
};

// Inverts `a` in place by Gauss-Jordan on [a | I]. The moment a pivot is zero (the product of the
// pivots would be zero) the elimination stops and the function returns false, with `a` left
// unusable; the pivots are never multiplied together. No row is ever exchanged: a zero on the diagonal is the user's to order.
bool InvertirSinPivoteo(MatrizDensa& a);

// a · v for one-based vectors (element 0 unused).
std::vector<double> Multiplicar(const MatrizDensa& a, const std::vector<double>& v);

}  // namespace lomaterra
