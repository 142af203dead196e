// The global stiffness store and its solver. Two implementations share one small interface:
// the stated dense inversion of the whole matrix, kept as the reference, and a skyline LDL^T
// without pivoting in the user's numbering, whose memory grows with the profile of the mesh.
// Degrees of freedom are 1-based.
#pragma once

#include <cstddef>
#include <memory>
#include <stdexcept>
#include <vector>

namespace lomaterra {

class Interfaz;

class AlmacénRigidez {
 public:
  virtual ~AlmacénRigidez() = default;
  // n degrees of freedom; primeraFila[j] (j = 1..n, [0] unused) is the smallest row that can
  // hold a value in column j. Every entry starts at zero.
  virtual void Preparar(long n, const std::vector<long>& primeraFila) = 0;
  long Tamaño() const { return n_; }
  // Adds v to entry (i, j). The matrix is symmetric: a store may keep one triangle only, so the
  // caller adds both (i, j) and (j, i) as an element matrix does.
  virtual void Sumar(long i, long j, double v) = 0;
  virtual double Diagonal(long i) const = 0;
  virtual void PonerDiagonal(long i, double v) = 0;
  // Entry (i, j) as assembled, before the factorisation.
  virtual double Valor(long i, long j) const = 0;
  // False when a pivot is zero; each pivot is tested on its own. The dense store inverts with
  // `Inversa`, which tests only the input diagonal (and gives its message through ui).
  virtual bool Factorizar(Interfaz* ui) = 0;
  // x = K^-1 b, in place; b[0] unused.
  virtual void Resolver(std::vector<double>& b) const = 0;
  // Bytes held by the matrix.
  virtual std::size_t Memoria() const = 0;

 protected:
  long n_ = 0;
};

// The full square matrix, inverted by `Inversa` as the stated calculation does.
class AlmacénDenso : public AlmacénRigidez {
 public:
  void Preparar(long n, const std::vector<long>& primeraFila) override;
  void Sumar(long i, long j, double v) override { a_[Pos(i, j)] += v; }
  double Diagonal(long i) const override { return a_[Pos(i, i)]; }
  void PonerDiagonal(long i, double v) override { a_[Pos(i, i)] = v; }
  double Valor(long i, long j) const override { return a_[Pos(i, j)]; }
  bool Factorizar(Interfaz* ui) override;
  void Resolver(std::vector<double>& b) const override;
  std::size_t Memoria() const override { return (a_.capacity() + inversa_.capacity()) * sizeof(double); }

 private:
  std::size_t Pos(long i, long j) const { return static_cast<std::size_t>((i - 1) * n_ + (j - 1)); }
  std::vector<double> a_, inversa_;
};

// Skyline (active column) storage of the upper triangle, LDL^T without pivoting.
class AlmacénPerfil : public AlmacénRigidez {
 public:
  void Preparar(long n, const std::vector<long>& primeraFila) override;
  void Sumar(long i, long j, double v) override;
  double Diagonal(long i) const override { return a_[diag_[static_cast<std::size_t>(i)]]; }
  void PonerDiagonal(long i, double v) override { a_[diag_[static_cast<std::size_t>(i)]] = v; }
  double Valor(long i, long j) const override;
  bool Factorizar(Interfaz* ui) override;
  void Resolver(std::vector<double>& b) const override;
  std::size_t Memoria() const override { return a_.capacity() * sizeof(double) + diag_.capacity() * sizeof(std::size_t); }
  // The first degree of freedom whose pivot was zero, 0 when none.
  long PivoteCero() const { return pivoteCero_; }

 private:
  // Column j holds rows primera_[j]..j at a_[diag_[j] - (j - i)].
  std::vector<long> primera_;
  std::vector<std::size_t> diag_;
  std::vector<double> a_;
  long pivoteCero_ = 0;
};

enum class TipoAlmacén { Denso, Perfil };
std::unique_ptr<AlmacénRigidez> CrearAlmacén(TipoAlmacén tipo);

}  // namespace lomaterra
