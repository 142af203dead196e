#include "equilibrio/sistema_bordeado.h"

#include <array>
#include <cstddef>

namespace lomaterra {

namespace {

std::size_t Z(long i) {
  return static_cast<std::size_t>(i);
}

}  // namespace

SistemaBordeado::SistemaBordeado(long estrés, int bordes)
    : n(estrés),
      k(bordes),
      inf(Z(estrés + 1), 0.0),
      diag(Z(estrés + 1), 0.0),
      sup(Z(estrés + 1), 0.0),
      borde(Z(estrés * bordes), 0.0),
      filas(Z(estrés * bordes), 0.0) {}

MatrizDensa SistemaBordeado::ComoDensa() const {
  MatrizDensa a(n + k);
  for (long i = 1; i <= n; ++i) {
    if (i > 1) a(i, k + i - 1) = inf[Z(i)];
    a(i, k + i) = diag[Z(i)];
    if (i < n) a(i, k + i + 1) = sup[Z(i)];
    for (int c = 1; c <= k; ++c) a(i, c) = Borde(i, c);
  }
  if (n >= 4) {
    a(n, k + n - 2) += atrás2;
    a(n, k + n - 3) += atrás3;
  }
  for (int r = 1; r <= k; ++r) {
    for (int c = 1; c <= k; ++c) a(n + r, c) = esquina[r - 1][c - 1];
    for (long j = 1; j <= n; ++j) a(n + r, k + j) = Fila(r, j);
  }
  return a;
}

bool ResolverBordeado(const SistemaBordeado& s, const std::vector<double>& b, std::vector<double>& x) {
  const long n = s.n;
  const int k = s.k;
  if (n < 1) return false;
  // Columns of right-hand sides for the band: 0 is b, 1..k the border columns.
  const int m = k + 1;
  std::vector<double> y(Z(n + 1) * Z(m), 0.0);
  auto Y = [&](long i, int c) -> double& { return y[Z(i) * Z(m) + Z(c)]; };
  for (long i = 1; i <= n; ++i) {
    Y(i, 0) = b[Z(i)];
    for (int c = 1; c <= k; ++c) Y(i, c) = s.Borde(i, c);
  }
  std::vector<double> d(s.diag), u(s.sup);
  // Takes a multiple of row `de` (already reduced to diagonal and one above it) from row `a`.
  auto restar = [&](long a, long de, double factor) {
    for (int c = 0; c < m; ++c) Y(a, c) -= factor * Y(de, c);
  };

  // Down the band. The last row reaches back three places and is reduced column by column.
  if (d[1] == 0) return false;
  const long últimaTridiagonal = n >= 4 ? n - 1 : n;
  for (long i = 2; i <= últimaTridiagonal; ++i) {
    const double f = s.inf[Z(i)] / d[Z(i - 1)];
    d[Z(i)] -= f * u[Z(i - 1)];
    restar(i, i - 1, f);
    if (d[Z(i)] == 0) return false;
  }
  if (n >= 4) {
    double a3 = s.atrás3, a2 = s.atrás2, a1 = s.inf[Z(n)];
    double f = a3 / d[Z(n - 3)];
    a2 -= f * u[Z(n - 3)];
    restar(n, n - 3, f);
    f = a2 / d[Z(n - 2)];
    a1 -= f * u[Z(n - 2)];
    restar(n, n - 2, f);
    f = a1 / d[Z(n - 1)];
    d[Z(n)] -= f * u[Z(n - 1)];
    restar(n, n - 1, f);
    if (d[Z(n)] == 0) return false;
  }
  // Up the band.
  for (long i = n; i >= 1; --i) {
    for (int c = 0; c < m; ++c) {
      double v = Y(i, c);
      if (i < n) v -= u[Z(i)] * Y(i + 1, c);
      Y(i, c) = v / d[Z(i)];
    }
  }

  // The border: what is left of its rows once the stresses are taken out (the Schur complement),
  // solved by elimination in order.
  std::array<std::array<double, 4>, 3> e{};  // k x (k + 1): matrix and right-hand side
  for (int r = 1; r <= k; ++r) {
    double g = b[Z(n + r)];
    std::array<double, 3> fila{};
    for (int c = 1; c <= k; ++c) fila[Z(c - 1)] = s.esquina[r - 1][c - 1];
    for (long j = 1; j <= n; ++j) {
      const double v = s.Fila(r, j);
      if (v == 0) continue;
      g -= v * Y(j, 0);
      for (int c = 1; c <= k; ++c) fila[Z(c - 1)] -= v * Y(j, c);
    }
    for (int c = 0; c < k; ++c) e[Z(r - 1)][Z(c)] = fila[Z(c)];
    e[Z(r - 1)][Z(k)] = g;
  }
  for (int piv = 0; piv < k; ++piv) {
    if (e[Z(piv)][Z(piv)] == 0) return false;
    for (int r = piv + 1; r < k; ++r) {
      const double f = e[Z(r)][Z(piv)] / e[Z(piv)][Z(piv)];
      for (int c = piv; c <= k; ++c) e[Z(r)][Z(c)] -= f * e[Z(piv)][Z(c)];
    }
  }
  std::array<double, 3> p{};
  for (int r = k - 1; r >= 0; --r) {
    double v = e[Z(r)][Z(k)];
    for (int c = r + 1; c < k; ++c) v -= e[Z(r)][Z(c)] * p[Z(c)];
    p[Z(r)] = v / e[Z(r)][Z(r)];
  }

  x.assign(Z(n + k + 1), 0.0);
  for (int c = 1; c <= k; ++c) x[Z(c)] = p[Z(c - 1)];
  for (long j = 1; j <= n; ++j) {
    double v = Y(j, 0);
    for (int c = 1; c <= k; ++c) v -= Y(j, c) * p[Z(c - 1)];
    x[Z(k + j)] = v;
  }
  return true;
}

}  // namespace lomaterra
