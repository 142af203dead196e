#include "elementos/almacen.h"

#include <algorithm>

#include "elementos/elemento.h"

namespace lomaterra {

void AlmacénDenso::Preparar(long n, const std::vector<long>&) {
  n_ = n;
  a_.assign(static_cast<std::size_t>(n * n), 0.0);
  inversa_.clear();
}

bool AlmacénDenso::Factorizar(Interfaz* ui) {
  return Inversa(a_, static_cast<int>(n_), inversa_, EtapaInversa::RigidezModificada, ui);
}

void AlmacénDenso::Resolver(std::vector<double>& b) const {
  std::vector<double> x(static_cast<std::size_t>(n_ + 1), 0.0);
  for (long i = 1; i <= n_; ++i) {
    const double* fila = &inversa_[static_cast<std::size_t>((i - 1) * n_)];
    double s = 0;
    for (long j = 1; j <= n_; ++j) s += fila[j - 1] * b[static_cast<std::size_t>(j)];
    x[static_cast<std::size_t>(i)] = s;
  }
  b = std::move(x);
}

void AlmacénPerfil::Preparar(long n, const std::vector<long>& primeraFila) {
  n_ = n;
  primera_.assign(static_cast<std::size_t>(n + 1), 1);
  diag_.assign(static_cast<std::size_t>(n + 1), 0);
  std::size_t total = 0;
  for (long j = 1; j <= n; ++j) {
    long p = j < static_cast<long>(primeraFila.size()) ? primeraFila[static_cast<std::size_t>(j)] : j;
    p = std::clamp(p, 1L, j);
    primera_[static_cast<std::size_t>(j)] = p;
    total += static_cast<std::size_t>(j - p + 1);
    diag_[static_cast<std::size_t>(j)] = total - 1;
  }
  a_.assign(total, 0.0);
  pivoteCero_ = 0;
}

void AlmacénPerfil::Sumar(long i, long j, double v) {
  if (i > j) return;  // the lower triangle is the mirror of the upper one
  if (i < primera_[static_cast<std::size_t>(j)]) {
    if (v == 0.0) return;
    throw std::logic_error("valor fuera del perfil de la matriz de rigidez");
  }
  a_[diag_[static_cast<std::size_t>(j)] - static_cast<std::size_t>(j - i)] += v;
}

double AlmacénPerfil::Valor(long i, long j) const {
  if (i > j) std::swap(i, j);
  if (i < primera_[static_cast<std::size_t>(j)]) return 0.0;
  return a_[diag_[static_cast<std::size_t>(j)] - static_cast<std::size_t>(j - i)];
}

bool AlmacénPerfil::Factorizar(Interfaz*) {
  // Column by column: the upper entries become L^T, the diagonal D.
  for (long j = 1; j <= n_; ++j) {
    const std::size_t J = static_cast<std::size_t>(j);
    const long mj = primera_[J];
    double* col = &a_[diag_[J] - static_cast<std::size_t>(j - mj)];  // col[i - mj] is row i
    for (long i = mj + 1; i < j; ++i) {
      const std::size_t I = static_cast<std::size_t>(i);
      const long mi = primera_[I];
      const long r0 = std::max(mi, mj);
      if (r0 >= i) continue;
      const double* coli = &a_[diag_[I] - static_cast<std::size_t>(i - mi)];
      double s = 0;
      const long len = i - r0;
      const double* x = coli + (r0 - mi);
      const double* y = col + (r0 - mj);
      for (long r = 0; r < len; ++r) s += x[r] * y[r];
      col[i - mj] -= s;
    }
    double d = col[j - mj];
    for (long i = mj; i < j; ++i) {
      const double g = col[i - mj];
      const double l = g / a_[diag_[static_cast<std::size_t>(i)]];
      d -= l * g;
      col[i - mj] = l;
    }
    col[j - mj] = d;
    if (d == 0.0) {
      pivoteCero_ = j;
      return false;
    }
  }
  return true;
}

void AlmacénPerfil::Resolver(std::vector<double>& b) const {
  for (long j = 1; j <= n_; ++j) {
    const std::size_t J = static_cast<std::size_t>(j);
    const long mj = primera_[J];
    const double* col = &a_[diag_[J] - static_cast<std::size_t>(j - mj)];
    double s = 0;
    for (long i = mj; i < j; ++i) s += col[i - mj] * b[static_cast<std::size_t>(i)];
    b[J] -= s;
  }
  for (long j = 1; j <= n_; ++j) b[static_cast<std::size_t>(j)] /= a_[diag_[static_cast<std::size_t>(j)]];
  for (long j = n_; j >= 1; --j) {
    const std::size_t J = static_cast<std::size_t>(j);
    const long mj = primera_[J];
    const double* col = &a_[diag_[J] - static_cast<std::size_t>(j - mj)];
    const double bj = b[J];
    for (long i = mj; i < j; ++i) b[static_cast<std::size_t>(i)] -= col[i - mj] * bj;
  }
}

std::unique_ptr<AlmacénRigidez> CrearAlmacén(TipoAlmacén tipo) {
  if (tipo == TipoAlmacén::Denso) return std::make_unique<AlmacénDenso>();
  return std::make_unique<AlmacénPerfil>();
}

}  // namespace lomaterra
