// The on-screen view of an x-y chart (a figure of type Gráfico) with Qt Charts: one series per
// trace, the marks as scatter series, value axes titled with the figure's captions and a legend
// with the named traces. Drawings stay with the painter; exports and printing use the painter too.
#pragma once

#include <QChartView>
#include <QString>
#include <functional>

#include "salida/figura.h"

namespace lomaterra {

// A chart view that reports the data coordinates under the mouse.
class VistaGráfico : public QChartView {
 public:
  using QChartView::QChartView;
  // Called with the text of the coordinates under the mouse ("" outside the plotting area).
  std::function<void(const QString&)> alMoverRatón;

 protected:
  void mouseMoveEvent(QMouseEvent* e) override;
  QSize sizeHint() const override { return QSize(960, 660); }
};

// Builds the chart of the figure in a new view owned by `padre` (a VistaGráfico, object name
// "VistaGráfico"). The figure's notes are not part of it: the dialog shows them below.
QChartView* CrearVistaGráfico(const Figura& figura, QWidget* padre);

}  // namespace lomaterra
