// The record screen: time, horizontal and vertical acceleration of the earthquake, row by row; and
// the menu commands that open it (with the offer of the side file) and draw the record.
#pragma once

#include <vector>

#include "proyecto/pantalla.h"
#include "sismico/registro.h"

namespace lomaterra {

struct Proyecto;

class FormRegistroSísmico : public Pantalla {
 public:
  explicit FormRegistroSísmico(Proyecto& p);
  void Activar(Interfaz& ui) override;
  void Seleccionar(Interfaz& ui);  // a click on a row: its values into the boxes
  void Agregar(Interfaz& ui);      // BotónAgregar
  void Modificar(Interfaz& ui);    // BotónModificar: the boxes into the selected row
  void Borrar(Interfaz& ui);       // BotónBorrar
  void Aceptar(Interfaz& ui);      // BotónAceptar
  bool Aceptada() const { return aceptada_; }
  // The rows as they stand on the screen (the record a test or a file put there).
  std::vector<FilaRegistro>& Filas() { return filas_; }
  void Mostrar();

 private:
  bool LeerCajas(Interfaz& ui, FilaRegistro& f);
  Proyecto& p_;
  std::vector<FilaRegistro> filas_;
  bool aceptada_ = false;
};

// Menu command InputDeRegistrosSísmico: offers the side file registrosismico.cod, then the screen;
// an accepted record is drawn at once.
void InputDeRegistrosSísmico(Proyecto& p, Interfaz& ui);
// Menu command GráficaDeRegistroSísmico: the record drawn, both accelerations against time.
void GráficaDeRegistroSísmico(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
