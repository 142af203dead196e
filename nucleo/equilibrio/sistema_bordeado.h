// The systems of the variational method as they are shaped: rows tridiagonal in the stresses
// (the last one reaches four stresses back, by the four-point derivative), bordered by up to three
// columns (the multipliers and the factor) and as many dense rows (the equilibrium sums). Solved in
// the order of the band, without pivoting, in time and memory proportional to the slices.
#pragma once

#include <vector>

#include "equilibrio/matrices.h"

namespace lomaterra {

// The unknowns are numbered as in the dense form: the border first (1 .. k), then the stresses
// (k + 1 .. k + n); the rows likewise: the n rows of the band first, then the k border rows.
struct SistemaBordeado {
  long n = 0;  // stress unknowns and band rows
  int k = 0;   // border unknowns and border rows: 0 or 3
  // Row i of the band (1 .. n), on the stresses: inf at i − 1, diag at i, sup at i + 1. With
  // four stresses or more, row n also reaches n − 2 and n − 3 (atrás2, atrás3).
  std::vector<double> inf, diag, sup;
  double atrás2 = 0, atrás3 = 0;
  // Row i of the band on border unknown c (1 .. k): borde[(i − 1)·k + c − 1].
  std::vector<double> borde;
  // Border row r (1 .. k) on stress j: filas[(r − 1)·n + j − 1]; on border unknown c: esquina[r][c].
  std::vector<double> filas;
  double esquina[3][3] = {};

  SistemaBordeado() = default;
  SistemaBordeado(long estrés, int bordes);
  double& Borde(long i, int c) { return borde[static_cast<std::size_t>((i - 1) * k + c - 1)]; }
  double& Fila(int r, long j) { return filas[static_cast<std::size_t>((r - 1) * n + j - 1)]; }
  double Borde(long i, int c) const { return borde[static_cast<std::size_t>((i - 1) * k + c - 1)]; }
  double Fila(int r, long j) const { return filas[static_cast<std::size_t>((r - 1) * n + j - 1)]; }

  // The same system as a dense matrix of order k + n, for the reference inversion.
  MatrizDensa ComoDensa() const;
};

// Solves s · x = b (b and x one-based, k + n values, element 0 unused) by elimination along the
// band and then on the border, each pivot taken where it stands. False when a pivot is 0: the
// system is then singular for this order of elimination, as it would be for the dense inversion
// without row exchanges.
bool ResolverBordeado(const SistemaBordeado& s, const std::vector<double>& b, std::vector<double>& x);

}  // namespace lomaterra
