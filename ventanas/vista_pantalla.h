// The generic view of a screen: any Pantalla shown from its own description, as a modal dialog
// with the note on top, a form of its fields, its lists as tables and its buttons in a row.
// The view decides nothing: a button copies the boxes into the screen, runs the screen's action,
// shows the screen again and closes when the screen says it is closed.
#pragma once

#include <QDialog>
#include <exception>
#include <string>
#include <vector>

#include "proyecto/pantalla.h"

class QLabel;
class QLineEdit;
class QPushButton;
class QSpacerItem;
class QTableWidget;
class QVBoxLayout;

namespace lomaterra {

class Interfaz;

class VistaPantalla : public QDialog {
 public:
  VistaPantalla(Pantalla& pantalla, Interfaz& ui, QWidget* padre = nullptr);

  Pantalla& pantalla() { return pantalla_; }

  // Copies every box into the screen's fields and each table's selected row into its list.
  void Recoger();
  // Shows the screen anew: values, captions, rows, selection; rebuilds the controls when the
  // screen has changed its set of fields, lists or buttons.
  void Refrescar();
  // What a click on the named button does (also for tests and the gallery).
  void Pulsar(const std::string& nombre);

  // A fault raised by the screen's code while the view was open: the caller rethrows it once the
  // modal loop has ended, so that the command that opened the screen ends as any fault ends it.
  std::exception_ptr Fallo() const { return fallo_; }

 protected:
  // Escape and the window's close box: the screen's exit with no change.
  void reject() override;

 private:
  void Construir();
  std::string Firma() const;
  void Seleccionar(std::size_t lista, int fila);
  template <class F>
  void Ejecutar(F&& f);
  void CerrarSiCorresponde();

  Pantalla& pantalla_;
  Interfaz& ui_;
  std::exception_ptr fallo_;
  bool refrescando_ = false;
  std::string firma_;

  QLabel* nota_ = nullptr;
  std::vector<QLineEdit*> cajas_;  // one a field, in the order of the fields
  std::vector<QLabel*> etiquetas_;
  std::vector<QTableWidget*> tablas_;
  std::vector<std::vector<std::vector<std::string>>> filasMostradas_;
  std::vector<QPushButton*> botones_;  // one a button
  QWidget* cuerpo_ = nullptr;
  QVBoxLayout* diseño_ = nullptr;
  QSpacerItem* anchoTítulo_ = nullptr;  // keeps the window as wide as its title
};

}  // namespace lomaterra
