// The two screens of loads on the face of the slope: "Cargas uniformes distribuidas sobre  la cara
// del talud" (Form7) and "Caragas lineales" (Form8). Both keep a table of numbers with the
// buttons Agregar, Modificar and Borrar, a button that tells the sign of the loads, Aceptar and
// Cancelar.
#pragma once

#include <string>
#include <vector>

#include "proyecto/pantalla.h"

namespace lomaterra {

struct Proyecto;

// One column of a load table: its box, label, the message when the box holds no number, and the
// heading of the column in the list.
struct ColumnaDeCarga {
  const char* control;
  const char* etiqueta;
  const char* mensaje;
  const char* encabezado;
};

class PantallaDeCargas : public Pantalla {
 public:
  void Activar(Interfaz& ui) override;
  void Seleccionar(Interfaz& ui);  // a row chosen in the list: its values into the boxes
  void Agregar(Interfaz& ui);      // BotónAgregar
  void Modificar(Interfaz& ui);    // BotónModificar
  void Borrar(Interfaz& ui);       // BotónBorrar
  void Aceptar(Interfaz& ui);      // BotónAceptar
  void Cancelar(Interfaz& ui);     // BotónCancelar

  const std::vector<std::vector<double>>& Filas() const { return filas_; }

 protected:
  PantallaDeCargas(Proyecto& p, std::vector<ColumnaDeCarga> columnas, const char* lista);
  // The stored rows, and the rows written back on Aceptar.
  virtual std::vector<std::vector<double>> Cargadas() const = 0;
  virtual void Guardar(const std::vector<std::vector<double>>& filas) = 0;
  // A check of a whole row after each box holds a number.
  virtual bool FilaVálida(const std::vector<double>&, Interfaz&) { return true; }

  Proyecto& p_;

 private:
  bool LeerCajas(Interfaz& ui, std::vector<double>& fila);
  void Mostrar();
  std::vector<ColumnaDeCarga> columnas_;
  std::string lista_;
  std::vector<std::vector<double>> filas_;
};

class Form7 : public PantallaDeCargas {
 public:
  explicit Form7(Proyecto& p);
  void Signos(Interfaz& ui);  // Command1

 protected:
  std::vector<std::vector<double>> Cargadas() const override;
  void Guardar(const std::vector<std::vector<double>>& filas) override;
  bool FilaVálida(const std::vector<double>& fila, Interfaz& ui) override;
};

extern const char* const kCancelarCargas;

// Menu command CargasUniformes.
void CargasUniformes(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
