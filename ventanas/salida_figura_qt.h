// The desktop side of the output port: a figure in a dialog of its own with export buttons, the
// clipboard, and the printing of a report through the printer dialog. InterfazQt forwards its
// MostrarFigura, CopiarAlPortapapeles and Imprimir here.
#pragma once

#include <QDialog>
#include <QWidget>
#include <functional>
#include <string>

#include "salida/figura.h"
#include "salida/informe.h"

namespace lomaterra {

// A widget that paints a drawing fitted to its size and reports the coordinates under the mouse.
class VistaFigura : public QWidget {
 public:
  explicit VistaFigura(const Figura& figura, QWidget* padre = nullptr);
  const Figura& figura() const { return figura_; }
  // Called with the text of the coordinates under the mouse ("" outside the plotting area).
  std::function<void(const QString&)> alMoverRatón;

 protected:
  void paintEvent(QPaintEvent*) override;
  void mouseMoveEvent(QMouseEvent* e) override;
  QSize sizeHint() const override { return QSize(960, 660); }

 private:
  Figura figura_;
};

// The dialog with the drawing (a VistaFigura) or the chart (a Qt Charts VistaGráfico with the
// notes in a label below it) and the buttons "Exportar PNG...", "Exportar SVG...",
// "Exportar PDF...", "Imprimir..." and "Cerrar", which draw with the painter. Not shown: the caller
// shows or executes it.
QDialog* CrearDiálogoFigura(QWidget* padre, const Figura& figura);
// Shows the figure modally.
void MostrarFiguraQt(QWidget* padre, const Figura& figura);

// Puts the text on the system clipboard.
void CopiarAlPortapapelesQt(const std::string& texto);

// The printer dialog, then the pages of the report; a message box when the printer fails.
void ImprimirInformeQt(QWidget* padre, const Informe& informe);

}  // namespace lomaterra
