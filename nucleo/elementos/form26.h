// The result screens of the stress solutions: per element the stresses, principal stresses and
// yield values of each integration point, per node the displacements, the extremes of the yield
// function and the factors of safety read from stresses. `Form26` ("Resultados Cálculo
// viscoplástico") opens in the middle of the viscoplastic loop and at its end; `Form29` at the end
// of the perfect-plasticity solution. Both step through the stored steps and copy their tables
// as tab-separated text.
#pragma once

#include <string>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

class PantallaEsfuerzos : public Pantalla {
 public:
  PantallaEsfuerzos(Proyecto& p, long paso, std::string nombre, std::string título);
  void Activar(Interfaz& ui) override;
  long paso() const { return paso_; }
  // Both tables of the step shown, tab-separated, one row a line.
  std::string TextoParaCopiar() const;

 private:
  void Llenar();
  Proyecto& p_;
  long paso_;
};

class Form26 : public PantallaEsfuerzos {
 public:
  Form26(Proyecto& p, long paso) : PantallaEsfuerzos(p, paso, "Form26", "Resultados Cálculo viscoplástico") {}
};

class Form29 : public PantallaEsfuerzos {
 public:
  Form29(Proyecto& p, long paso)
      : PantallaEsfuerzos(p, paso, "Form29", "Resultados del cálculo de esfuerzos y desplazamientos") {}
};

}  // namespace lomaterra
