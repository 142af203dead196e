#include "vista_grafico_qt.h"

#include <QChart>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QMouseEvent>
#include <QPen>
#include <QScatterSeries>
#include <QValueAxis>
#include <algorithm>
#include <cmath>
#include <limits>
#include <map>
#include <tuple>

namespace lomaterra {

namespace {

QColor AQColor(const Color& c) { return QColor(c.r, c.g, c.b); }

QScatterSeries::MarkerShape Forma(const std::string& forma) {
  if (forma == "cuadrado") return QScatterSeries::MarkerShapeRectangle;
  if (forma == "triángulo") return QScatterSeries::MarkerShapeTriangle;
  // Qt Charts has no cross: a small rotated square stands for it.
  if (forma == "cruz") return QScatterSeries::MarkerShapeRotatedRectangle;
  return QScatterSeries::MarkerShapeCircle;
}

// The extent of every point of the figure, widened a little so that no point sits on the frame.
struct Extensión {
  double x0 = std::numeric_limits<double>::infinity(), x1 = -x0, y0 = x0, y1 = -x0;
  void Incluir(const PuntoFigura& p) {
    if (!std::isfinite(p.x) || !std::isfinite(p.y)) return;
    x0 = std::min(x0, p.x);
    x1 = std::max(x1, p.x);
    y0 = std::min(y0, p.y);
    y1 = std::max(y1, p.y);
  }
  static void Ensanchar(double& a, double& b) {
    if (!(a <= b)) {  // nothing to show
      a = 0;
      b = 1;
      return;
    }
    const double margen = b > a ? 0.04 * (b - a) : std::max(1.0, 0.1 * std::abs(a));
    // Data that never go below zero keep zero as the edge of the axis.
    a = a >= 0 ? std::max(0.0, a - margen) : a - margen;
    b += margen;
  }
};

void AñadirPuntos(QXYSeries* serie, const std::vector<PuntoFigura>& puntos, bool cerrar) {
  QList<QPointF> lista;
  lista.reserve(static_cast<qsizetype>(puntos.size()) + 1);
  for (const auto& p : puntos) lista.append(QPointF(p.x, p.y));
  if (cerrar && puntos.size() > 2) lista.append(QPointF(puntos.front().x, puntos.front().y));
  serie->append(lista);
}

}  // namespace

void VistaGráfico::mouseMoveEvent(QMouseEvent* e) {
  QChartView::mouseMoveEvent(e);
  if (!alMoverRatón || !chart()) return;
  const QPointF enEscena = mapToScene(e->position().toPoint());
  const QPointF enGráfico = chart()->mapFromScene(enEscena);
  if (!chart()->plotArea().contains(enGráfico) || chart()->series().isEmpty()) {
    alMoverRatón(QString());
    return;
  }
  const QPointF valor = chart()->mapToValue(enGráfico, chart()->series().first());
  alMoverRatón(QStringLiteral("x = %1    y = %2").arg(valor.x(), 0, 'f', 2).arg(valor.y(), 0, 'f', 2));
}

QChartView* CrearVistaGráfico(const Figura& figura, QWidget* padre) {
  auto* gráfico = new QChart;
  gráfico->setTitle(QString::fromStdString(figura.título));
  QFont letraTítulo = gráfico->titleFont();
  letraTítulo.setPointSizeF(letraTítulo.pointSizeF() * 1.25);
  letraTítulo.setBold(true);
  gráfico->setTitleFont(letraTítulo);

  auto* ejeX = new QValueAxis;
  auto* ejeY = new QValueAxis;
  ejeX->setTitleText(QString::fromStdString(figura.ejeX));
  ejeY->setTitleText(QString::fromStdString(figura.ejeY));
  ejeX->setLabelFormat(QStringLiteral("%.2f"));
  ejeY->setLabelFormat(QStringLiteral("%.2f"));
  gráfico->addAxis(ejeX, Qt::AlignBottom);
  gráfico->addAxis(ejeY, Qt::AlignLeft);

  Extensión e;
  std::vector<std::pair<QAbstractSeries*, bool>> series;  // with "shown in the legend"
  for (const Trazo& t : figura.trazos) {
    for (const auto& p : t.puntos) e.Incluir(p);
    const QColor color = AQColor(t.color);
    QXYSeries* serie = nullptr;
    if (t.sinLínea) {
      auto* puntos = new QScatterSeries;
      puntos->setMarkerShape(Forma(t.marcador));
      puntos->setMarkerSize(std::max(7.0, 4.0 * t.grosor));
      puntos->setColor(color);
      puntos->setBorderColor(color.darker(130));
      serie = puntos;
    } else {
      auto* línea = new QLineSeries;
      QPen lápiz(color);
      lápiz.setWidthF(t.grosor);
      lápiz.setStyle(t.discontinuo ? Qt::DashLine : Qt::SolidLine);
      lápiz.setCapStyle(Qt::RoundCap);
      lápiz.setJoinStyle(Qt::RoundJoin);
      línea->setPen(lápiz);
      línea->setPointsVisible(!t.marcador.empty());
      serie = línea;
    }
    AñadirPuntos(serie, t.puntos, t.cerrado && !t.sinLínea);
    serie->setName(QString::fromStdString(t.leyenda));
    gráfico->addSeries(serie);
    series.push_back({serie, !t.leyenda.empty()});
  }

  // The marks, one scatter series per look (colour, shape and size), in the order first met.
  std::map<std::tuple<int, int, int, std::string, double>, QScatterSeries*> porAspecto;
  for (const Marca& m : figura.marcas) {
    e.Incluir(m.punto);
    const auto clave = std::make_tuple(int(m.color.r), int(m.color.g), int(m.color.b), m.forma,
                                       m.tamaño);
    QScatterSeries*& serie = porAspecto[clave];
    if (!serie) {
      serie = new QScatterSeries;
      serie->setMarkerShape(Forma(m.forma));
      serie->setMarkerSize(std::max(4.0, 1.5 * m.tamaño));
      serie->setColor(AQColor(m.color));
      serie->setBorderColor(AQColor(m.color).darker(130));
      serie->setName(QString::fromStdString(m.nombre));
      gráfico->addSeries(serie);
      series.push_back({serie, !m.nombre.empty()});
    }
    serie->append(m.punto.x, m.punto.y);
  }

  Extensión::Ensanchar(e.x0, e.x1);
  Extensión::Ensanchar(e.y0, e.y1);
  ejeX->setRange(e.x0, e.x1);
  ejeY->setRange(e.y0, e.y1);
  ejeX->applyNiceNumbers();
  ejeY->applyNiceNumbers();
  for (const auto& [serie, _] : series) {
    serie->attachAxis(ejeX);
    serie->attachAxis(ejeY);
  }

  int nombradas = 0;
  for (const auto& [serie, visible] : series) {
    for (QLegendMarker* marcador : gráfico->legend()->markers(serie)) marcador->setVisible(visible);
    nombradas += visible ? 1 : 0;
  }
  gráfico->legend()->setVisible(nombradas > 0);
  // A few entries fit in a row under the chart; more go to a column at its side, where their
  // names are not cut short.
  gráfico->legend()->setAlignment(nombradas > 3 ? Qt::AlignRight : Qt::AlignBottom);
  gráfico->legend()->setShowToolTips(true);

  auto* vista = new VistaGráfico(gráfico, padre);
  vista->setObjectName(QStringLiteral("VistaGráfico"));
  vista->setRenderHint(QPainter::Antialiasing);
  vista->setMouseTracking(true);
  vista->setMinimumSize(480, 330);
  return vista;
}

}  // namespace lomaterra
