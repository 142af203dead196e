// The on-screen chart of an x-y figure with Qt Charts, offscreen: series per trace and per look of
// the marks, point counts, axis titles, legend entries, and the dialog that shows it.
#include <gtest/gtest.h>

#include <QChart>
#include <QDialog>
#include <QLabel>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QScatterSeries>
#include <QValueAxis>
#include <memory>

#include "salida/caso_salida.h"
#include "salida/graficos.h"
#include "salida_figura_qt.h"
#include "ventana_apoyo.h"
#include "vista_grafico_qt.h"

namespace lomaterra {
namespace {

class VistaDeGráfico : public ::testing::Test {
 protected:
  QApplication& aplicación = pruebas::Aplicación();  // before any widget
  QWidget padre;

  // The legend lays its entries out when the view is first shown.
  static QChart* Mostrado(QChartView* v) {
    v->resize(800, 550);
    v->show();
    QApplication::processEvents();
    return v->chart();
  }
  static QXYSeries* Serie(QChart* g, int i) { return qobject_cast<QXYSeries*>(g->series().at(i)); }
  static bool EnLaLeyenda(QChart* g, QAbstractSeries* s) {
    const auto marcadores = g->legend()->markers(s);
    return !marcadores.isEmpty() && marcadores.first()->isVisible();
  }
  static QString Título(QChart* g, Qt::Orientation o) {
    const auto ejes = g->axes(o);
    return ejes.isEmpty() ? QStringLiteral("(sin eje)") : ejes.first()->titleText();
  }
};

// A chart built by hand: a named line, an unnamed dashed line, a scatter of points, and three
// marks of which two share colour, shape and size.
TEST_F(VistaDeGráfico, UnaSeriePorTrazoYUnaPorAspectoDeLasMarcas) {
  Figura f;
  f.tipo = Figura::Tipo::Gráfico;
  f.título = "Prueba de gráfico";
  f.ejeX = "Abscisa (m)";
  f.ejeY = "Esfuerzo (ton/m2)";
  Trazo línea;
  línea.puntos = {{0, 1}, {1, 3}, {2, 2}, {3, 5}};
  línea.leyenda = "Serie A";
  línea.color = {200, 0, 0};
  línea.grosor = 2.5;
  Trazo sinNombre;
  sinNombre.puntos = {{0, 0}, {3, 0}};
  sinNombre.discontinuo = true;
  Trazo nube;
  nube.puntos = {{0.5, 4}, {1.5, 4.5}, {2.5, 1}};
  nube.sinLínea = true;
  nube.marcador = "cuadrado";
  nube.leyenda = "Puntos B";
  f.trazos = {línea, sinNombre, nube};
  f.marcas = {{{1, 1}, {0, 0, 255}, "círculo", 6, "centro"},
              {{2, 1}, {0, 0, 255}, "círculo", 6, "centro"},
              {{2, 6}, {0, 128, 0}, "cuadrado", 6, ""}};

  QChartView* v = CrearVistaGráfico(f, &padre);
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(v->parent(), &padre);
  EXPECT_TRUE(v->renderHints().testFlag(QPainter::Antialiasing));
  QChart* g = Mostrado(v);
  EXPECT_EQ(g->title(), QStringLiteral("Prueba de gráfico"));
  EXPECT_EQ(Título(g, Qt::Horizontal), QStringLiteral("Abscisa (m)"));
  EXPECT_EQ(Título(g, Qt::Vertical), QStringLiteral("Esfuerzo (ton/m2)"));
  ASSERT_EQ(g->series().size(), 5);  // three traces, two looks of marks

  struct Esperado {
    bool dispersión;
    int puntos;
    const char* nombre;
    bool enLeyenda;
  };
  const Esperado esperados[] = {{false, 4, "Serie A", true},
                                {false, 2, "", false},
                                {true, 3, "Puntos B", true},
                                {true, 2, "centro", true},
                                {true, 1, "", false}};
  for (int i = 0; i < 5; ++i) {
    SCOPED_TRACE(i);
    QXYSeries* s = Serie(g, i);
    ASSERT_NE(s, nullptr);
    EXPECT_EQ(qobject_cast<QScatterSeries*>(s) != nullptr, esperados[i].dispersión);
    EXPECT_EQ(s->count(), esperados[i].puntos);
    EXPECT_EQ(s->name(), QString::fromUtf8(esperados[i].nombre));
    EXPECT_EQ(EnLaLeyenda(g, s), esperados[i].enLeyenda);
    EXPECT_EQ(s->attachedAxes().size(), 2);
  }
  auto* a = qobject_cast<QLineSeries*>(Serie(g, 0));
  EXPECT_EQ(a->pen().color(), QColor(200, 0, 0));
  EXPECT_DOUBLE_EQ(a->pen().widthF(), 2.5);
  EXPECT_EQ(qobject_cast<QLineSeries*>(Serie(g, 1))->pen().style(), Qt::DashLine);
  EXPECT_EQ(qobject_cast<QScatterSeries*>(Serie(g, 2))->markerShape(),
            QScatterSeries::MarkerShapeRectangle);
  EXPECT_EQ(Serie(g, 3)->color(), QColor(0, 0, 255));

  // Every point inside the axes: x spans 0..3 and y 0..6.
  auto* x = qobject_cast<QValueAxis*>(g->axes(Qt::Horizontal).first());
  auto* y = qobject_cast<QValueAxis*>(g->axes(Qt::Vertical).first());
  EXPECT_LE(x->min(), 0.0);
  EXPECT_GE(x->max(), 3.0);
  EXPECT_LE(y->min(), 0.0);
  EXPECT_GE(y->max(), 6.0);
}

// The chart of shear strength against effective normal stress of the three-slice case: one
// material (c = 1.5, φ = 30°) gives one envelope line of two points, then the strengths and the
// mobilised shears, three points each, as scatters.
TEST_F(VistaDeGráfico, ResistenciaContraNormalDelCasoDeTresDovelas) {
  const Proyecto p = pruebas::CasoTresDovelas();
  const Figura f = FiguraGráfico(p, "GráficoResistenciaAlCorteVsEsfuerzoNormal");
  ASSERT_EQ(f.tipo, Figura::Tipo::Gráfico);
  QChart* g = Mostrado(CrearVistaGráfico(f, &padre));
  EXPECT_EQ(Título(g, Qt::Horizontal), QStringLiteral("Esfuerzo normal efectivo σ' (ton/m2)"));
  EXPECT_EQ(Título(g, Qt::Vertical), QStringLiteral("Esfuerzo cortante τ (ton/m2)"));
  ASSERT_EQ(g->series().size(), 3);
  const QStringList nombres{QStringLiteral("c = 1.50 ton/m2, φ = 30.0°"),
                            QStringLiteral("Resistencia al corte c + σ' tan φ"),
                            QStringLiteral("Esfuerzo tangencial movilizado τ")};
  const int puntos[] = {2, 3, 3};
  for (int i = 0; i < 3; ++i) {
    SCOPED_TRACE(i);
    EXPECT_EQ(Serie(g, i)->name(), nombres[i]);
    EXPECT_EQ(Serie(g, i)->count(), puntos[i]);
    EXPECT_TRUE(EnLaLeyenda(g, Serie(g, i)));
  }
  EXPECT_NE(qobject_cast<QLineSeries*>(Serie(g, 0)), nullptr);
  EXPECT_NE(qobject_cast<QScatterSeries*>(Serie(g, 1)), nullptr);
  EXPECT_NE(qobject_cast<QScatterSeries*>(Serie(g, 2)), nullptr);
  // The envelope runs from (0, c) to the largest σ' = 12 - 3 = 9: 1.5 + 9 tan 30° = 6.696.
  const QPointF fin = Serie(g, 0)->at(1);
  EXPECT_DOUBLE_EQ(fin.x(), 9.0);
  EXPECT_NEAR(fin.y(), 6.6962, 1e-4);
}

// The dialog of a chart shows the Qt Charts view and the notes; a drawing keeps the painted view.
TEST_F(VistaDeGráfico, ElDiálogoMuestraElGráficoConSusNotas) {
  const Proyecto p = pruebas::CasoTresDovelas();
  std::unique_ptr<QDialog> d(
      CrearDiálogoFigura(nullptr, FiguraGráfico(p, "GráficoEsfuerzoNormalesTotales")));
  auto* v = d->findChild<QChartView*>(QStringLiteral("VistaGráfico"));
  ASSERT_NE(v, nullptr);
  EXPECT_EQ(d->findChild<QWidget*>(QStringLiteral("VistaFigura")), nullptr);
  // σ = 5, 12, 8 at slice middles X = 22.5, 17.5, 11.5, drawn in ascending X.
  QXYSeries* s = Serie(v->chart(), 0);
  ASSERT_EQ(s->count(), 3);
  EXPECT_EQ(s->at(0), QPointF(11.5, 8));
  EXPECT_EQ(s->at(1), QPointF(17.5, 12));
  EXPECT_EQ(s->at(2), QPointF(22.5, 5));
  auto* notas = d->findChild<QLabel*>(QStringLiteral("EtiquetaNotasFigura"));
  ASSERT_NE(notas, nullptr);
  EXPECT_TRUE(notas->text().contains(QStringLiteral("Factor de seguridad: 1.500"))) << notas->text().toStdString();

  std::unique_ptr<QDialog> dibujo(CrearDiálogoFigura(nullptr, FiguraGráfico(p, "GráficoGeometría")));
  EXPECT_NE(dibujo->findChild<QWidget*>(QStringLiteral("VistaFigura")), nullptr);
  EXPECT_EQ(dibujo->findChild<QChartView*>(), nullptr);
}

}  // namespace
}  // namespace lomaterra
