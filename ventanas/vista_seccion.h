// The live drawing of the cross-section on the main window: the figure of the section, made
// anew after every command and panel change, drawn by the painter fitted to the widget.
#pragma once

#include <QWidget>
#include <string>

#include "salida/figura.h"

namespace lomaterra {

struct Proyecto;

class VistaSección : public QWidget {
 public:
  explicit VistaSección(const Proyecto& proyecto, QWidget* padre = nullptr);

  // Builds the figure again from the project and repaints.
  void Actualizar();
  const Figura& figura() const { return figura_; }
  bool TieneDibujo() const;
  // What the drawing had to assume (a radius raised to reach half the chord), for the status
  // line; empty when nothing.
  const std::string& Aviso() const { return aviso_; }

  QSize sizeHint() const override { return {640, 420}; }
  QSize minimumSizeHint() const override { return {240, 160}; }

 protected:
  void paintEvent(QPaintEvent*) override;

 private:
  const Proyecto& proyecto_;
  Figura figura_;
  std::string aviso_;
};

}  // namespace lomaterra
