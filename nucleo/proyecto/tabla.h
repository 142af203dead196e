// One-based tables with a row 0 that exists and reads 0.
#pragma once

#include <algorithm>
#include <cstddef>
#include <string>
#include <utility>
#include <vector>

#include "proyecto/fallos.h"

namespace lomaterra {

[[noreturn]] void FilaFueraDeRango(long fila, long tamaño);

// A column of a table. Rows 0..Tamaño() exist; a table's size is not its count: the count lives
// beside it in the project, and the table is dimensioned by whoever fills it.
template <typename T>
class Tabla {
 public:
  Tabla() : datos_(1) {}
  // Erase: every row back to its empty value, n rows above row 0.
  void Redimensionar(long n) { datos_.assign(static_cast<std::size_t>(n < 0 ? 0 : n) + 1, T{}); }
  // Keep what rows there are, grow or shrink to n.
  void RedimensionarConservando(long n) {
    datos_.resize(static_cast<std::size_t>(n < 0 ? 0 : n) + 1, T{});
  }
  void Borrar() { datos_.assign(1, T{}); }
  long Tamaño() const { return static_cast<long>(datos_.size()) - 1; }
  bool Existe(long i) const { return i >= 0 && i <= Tamaño(); }

  T& operator[](long i) {
    if (!Existe(i)) FilaFueraDeRango(i, Tamaño());
    return datos_[static_cast<std::size_t>(i)];
  }
  const T& operator[](long i) const {
    if (!Existe(i)) FilaFueraDeRango(i, Tamaño());
    return datos_[static_cast<std::size_t>(i)];
  }
  // Reads a row that may not exist yet as the empty value.
  T Leer(long i) const { return Existe(i) ? datos_[static_cast<std::size_t>(i)] : T{}; }

  bool operator==(const Tabla&) const = default;

 private:
  std::vector<T> datos_;
};

// A two-index table, both indices from 0.
template <typename T>
class Tabla2 {
 public:
  Tabla2() : filas_(0), columnas_(0), datos_(1) {}
  void Redimensionar(long filas, long columnas) {
    filas_ = filas < 0 ? 0 : filas;
    columnas_ = columnas < 0 ? 0 : columnas;
    datos_.assign(static_cast<std::size_t>((filas_ + 1) * (columnas_ + 1)), T{});
  }
  void RedimensionarConservando(long filas, long columnas) {
    Tabla2 nueva;
    nueva.Redimensionar(filas, columnas);
    for (long i = 0; i <= std::min(filas_, nueva.filas_); ++i)
      for (long j = 0; j <= std::min(columnas_, nueva.columnas_); ++j) nueva(i, j) = (*this)(i, j);
    *this = std::move(nueva);
  }
  void Borrar() { Redimensionar(0, 0); }
  long Filas() const { return filas_; }
  long Columnas() const { return columnas_; }
  bool Existe(long i, long j) const { return i >= 0 && i <= filas_ && j >= 0 && j <= columnas_; }

  T& operator()(long i, long j) {
    if (!Existe(i, j)) FilaFueraDeRango(i * 100000 + j, filas_ * 100000 + columnas_);
    return datos_[static_cast<std::size_t>(i * (columnas_ + 1) + j)];
  }
  const T& operator()(long i, long j) const {
    if (!Existe(i, j)) FilaFueraDeRango(i * 100000 + j, filas_ * 100000 + columnas_);
    return datos_[static_cast<std::size_t>(i * (columnas_ + 1) + j)];
  }
  T Leer(long i, long j) const { return Existe(i, j) ? (*this)(i, j) : T{}; }

  bool operator==(const Tabla2&) const = default;

 private:
  long filas_, columnas_;
  std::vector<T> datos_;
};

// A pair of coordinate columns.
struct TablaXY {
  Tabla<double> X, Y;
  void Redimensionar(long n) { X.Redimensionar(n); Y.Redimensionar(n); }
  void RedimensionarConservando(long n) { X.RedimensionarConservando(n); Y.RedimensionarConservando(n); }
  void Borrar() { X.Borrar(); Y.Borrar(); }
  bool operator==(const TablaXY&) const = default;
};

}  // namespace lomaterra
