// The explicit inverse of the mode-shape iteration: Gauss-Jordan on [A | I] with the pivots taken
// on the diagonal in order, no row exchange, a row whose entry is already zero skipped; forward
// elimination, backward elimination from the last row up, each row divided by its diagonal.
//
// Two forms of the same elimination: the plain one, row operation by row operation over the
// 2n columns, kept as the reference; and a cache-blocked one, that does on every entry that the
// result depends on the same operations in the same order, in tiles that stay in cache, with the
// rows of each tile shared among the machine's threads. The plain form also carries along the
// rounding residues it leaves where it eliminated (e - (e / p) p), so the two agree to rounding.
#pragma once

#include <vector>

namespace lomaterra {

// Matrices are n by n, row-major, 0-based. Each returns 0 when the inverse was made, or the
// 1-based row whose pivot was zero when it was met (each pivot is tested for zero as it comes).
long InversaGaussJordanSimple(const std::vector<double>& a, long n, std::vector<double>& inversa);
long InversaGaussJordanPorBloques(const std::vector<double>& a, long n, std::vector<double>& inversa,
                                  int hilos = 0);  // 0: as many as the machine has

// x rounded to 11 decimals as writing it with "#0.00000000000" and reading the text back does.
double Redondear11(double x);
// The same over a whole vector, on the machine's threads.
void Redondear11(std::vector<double>& v, int hilos = 0);

}  // namespace lomaterra
