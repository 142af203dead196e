// Form13, the check of the stresses of the variational iteration: the former, the current and the
// lowest admissible value per slice. The user may correct the current values; accepted values go
// to the last row of EsfuerzoIteración for the next run of the method.
#pragma once

#include <string>
#include <vector>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class Form13 : public Pantalla {
 public:
  // The strength law that the screen checks; the material decides it on opening, and a rock
  // method in the law of sigma 3 says so by `leySigma3`.
  enum class Ley { Suelo, Roca, RocaSigma3 };

  explicit Form13(Proyecto& p);
  void Activar(Interfaz& ui) override;

  void Modificar(Interfaz& ui);
  void Aceptar(Interfaz& ui);
  void Salir(Interfaz& ui);

  bool leySigma3 = false;
  Ley ley() const { return ley_; }

 private:
  // The law, and with it the title, from the material of the project.
  void ElegirLey();
  // Text under the title: with the failed slice given, or for the whole table.
  std::string TextoDeApertura() const;
  // The current value of row i as it stands in the list (exact when not retyped).
  bool ValorDeFila(long i, double& valor) const;
  // True when the value passes the strength law of slice i.
  bool Cumple(long i, double valor) const;

  Proyecto& p_;
  Ley ley_ = Ley::Suelo;
  std::vector<double> valores_;  // one-based; exact current values
  std::vector<double> límites_;  // one-based; lowest admissible values shown
};

}  // namespace lomaterra
