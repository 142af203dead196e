// Figures and reports, offscreen: the painter's PNG, SVG and PDF, the figure dialog, the PDF
// reports (read back with pdfinfo and pdftotext of poppler-utils), the same writers as
// lomaterra-lote calls them, and the on-screen chart of an x-y figure with Qt Charts (series per
// trace and per look of the marks, point counts, axis titles, legend entries).
#include <gtest/gtest.h>

// The figures below are written with designated initializers, which leave out the other members
// on purpose.
#pragma GCC diagnostic ignored "-Wmissing-field-initializers"

#include <QApplication>
#include <QChart>
#include <QClipboard>
#include <QDialog>
#include <QFile>
#include <QImage>
#include <QLabel>
#include <QLegend>
#include <QLegendMarker>
#include <QLineSeries>
#include <QPushButton>
#include <QScatterSeries>
#include <QValueAxis>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <limits>
#include <memory>

#include "apoyo/sismo_apoyo.h"
#include "informe_qt.h"
#include "lote/lote_apoyo.h"
#include "pintor.h"
#include "salida/caso_salida.h"
#include "salida/graficos.h"
#include "salida/informe.h"
#include "salida_figura_qt.h"
#include "salida_lote.h"
#include "ventana_apoyo.h"
#include "vista_grafico_qt.h"

namespace lomaterra {
namespace {

// What a tool of poppler-utils prints.
std::string Poppler(const std::string& orden) {
  const std::string salida = pruebas::CarpetaTemporal() + "/poppler.txt";
  const bool bien = std::system((orden + " >'" + salida + "' 2>/dev/null").c_str()) == 0;
  return bien ? pruebas::LeerArchivo(salida) : "";
}

int Páginas(const std::string& pdf) {
  const std::string info = Poppler("pdfinfo '" + pdf + "'");
  const auto k = info.find("Pages:");
  return k == std::string::npos ? -1 : std::stoi(info.substr(k + 6));
}

std::string Texto(const std::string& pdf, int página) {
  const std::string k = std::to_string(página);
  return Poppler("pdftotext -layout -f " + k + " -l " + k + " '" + pdf + "' -");
}

// The pixels that are neither white nor transparent, one in `paso` each way.
long Pintados(const QImage& imagen, int paso = 1) {
  long n = 0;
  for (int y = 0; y < imagen.height(); y += paso)
    for (int x = 0; x < imagen.width(); x += paso)
      n += (imagen.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF;
  return n;
}

class Archivos : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { pruebas::Aplicación(); }
  Proyecto p = pruebas::CasoTresDovelas();
  std::string carpeta = pruebas::CarpetaTemporal();
  QString Ruta(const char* nombre) { return QString::fromStdString(carpeta + "/" + nombre); }
};

TEST_F(Archivos, CadaGráficoDelMenúSeExportaEnPNGNoVacíoYLoRaroSinFallar) {
  for (const auto& nombre : NombresDeGráficos()) {
    const QString ruta = QString::fromStdString(carpeta + "/" + nombre + ".png");
    QString error;
    ASSERT_TRUE(ExportarPNG(FiguraGráfico(p, nombre), ruta, &error)) << error.toStdString();
    QImage imagen(ruta);
    EXPECT_EQ(imagen.size(), QSize(1600, 1100)) << nombre;
    EXPECT_GT(Pintados(imagen), 20000) << nombre;
  }
  // An empty figure, and a chart with points that are not finite.
  Figura vacía;
  vacía.título = "Sin datos";
  Figura rara;
  rara.tipo = Figura::Tipo::Gráfico;
  const double inf = std::numeric_limits<double>::infinity();
  rara.trazos = {{.puntos = {{0, 1}, {std::nan(""), 2}, {2, inf}, {3, 3}}, .leyenda = "serie"}};
  for (const Figura* f : {&vacía, &rara}) {
    QString error;
    EXPECT_TRUE(ExportarPNG(*f, Ruta("rara.png"), &error, QSize(400, 300))) << error.toStdString();
    EXPECT_FALSE(QImage(Ruta("rara.png")).isNull());
  }
}

TEST_F(Archivos, LosDiálogosLasExportacionesYLasCoordenadasBajoElRatón) {
  std::unique_ptr<QDialog> d(CrearDiálogoFigura(nullptr, FiguraGráfico(p, "GráficoGeometría")));
  EXPECT_EQ(d->windowTitle(), QStringLiteral("Geometría del talud"));
  for (const auto& [nombre, texto] : {std::pair{"BotónExportarPNG", "Exportar PNG..."},
                                      std::pair{"BotónExportarPDF", "Exportar PDF..."},
                                      std::pair{"BotónCerrar", "Cerrar"}}) {
    auto* b = pruebas::Hijo<QPushButton>(*d, nombre);
    ASSERT_NE(b, nullptr) << nombre;
    EXPECT_EQ(b->text(), QString::fromUtf8(texto));
  }
  auto* vista = d->findChild<VistaFigura*>(QStringLiteral("VistaFigura"));
  ASSERT_NE(vista, nullptr);
  vista->resize(800, 550);
  EXPECT_GT(Pintados(vista->grab().toImage(), 2), 2000);
  EXPECT_EQ(d->findChild<QChartView*>(), nullptr);  // a drawing is painted, not charted
  // A chart is shown in a chart view, with the notes of its figure below it.
  std::unique_ptr<QDialog> c(
      CrearDiálogoFigura(nullptr, FiguraGráfico(p, "GráficoResistenciaAlCorteVsEsfuerzoNormal")));
  auto* gráfico = c->findChild<QChartView*>(QStringLiteral("VistaGráfico"));
  ASSERT_NE(gráfico, nullptr);
  EXPECT_EQ(c->findChild<QWidget*>(QStringLiteral("VistaFigura")), nullptr);
  EXPECT_EQ(gráfico->chart()->series().size(), 3);  // the envelope, the strengths, the shears
  auto* notas = c->findChild<QLabel*>(QStringLiteral("EtiquetaNotasFigura"));
  ASSERT_NE(notas, nullptr);
  EXPECT_TRUE(notas->text().contains(QStringLiteral("Factor de seguridad: 1.500")));
  pruebas::Hijo<QPushButton>(*d, "BotónCerrar")->click();
  EXPECT_EQ(d->result(), QDialog::Accepted);
  CopiarAlPortapapelesQt("Dovela\tX medio (m)\n1\t22.50\n");
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            QStringLiteral("Dovela\tX medio (m)\n1\t22.50\n"));
  // Exported by the extension; a bad path leaves nothing.
  const Figura f = FiguraGráfico(p, "GráficoEsfuerzoNormalesTotales");
  QString error;
  ASSERT_TRUE(ExportarFigura(f, Ruta("a.svg"), &error)) << error.toStdString();
  QFile svg(Ruta("a.svg"));
  ASSERT_TRUE(svg.open(QIODevice::ReadOnly));
  const QByteArray contenido = svg.readAll();
  EXPECT_TRUE(contenido.contains("<svg"));
  EXPECT_TRUE(contenido.contains("Esfuerzos normales totales en la base de las dovelas"));
  ASSERT_TRUE(ExportarFigura(f, Ruta("a.pdf"), &error)) << error.toStdString();
  QFile pdf(Ruta("a.pdf"));
  ASSERT_TRUE(pdf.open(QIODevice::ReadOnly));
  EXPECT_TRUE(pdf.read(5) == "%PDF-");
  EXPECT_FALSE(ExportarFigura(f, Ruta("a.bmp"), &error));
  EXPECT_EQ(error,
            QStringLiteral("El archivo %1 debe terminar en .png, .svg o .pdf.").arg(Ruta("a.bmp")));
  EXPECT_FALSE(ExportarPNG(f, Ruta("falta/a.png"), &error));
  EXPECT_TRUE(error.startsWith(QStringLiteral("No se pudo escribir el archivo")));
  EXPECT_FALSE(std::filesystem::exists(carpeta + "/falta/a.png"));
  // At equal scales 100 pixels right and 100 down are the same distance in metres.
  const Figura g = FiguraGráfico(p, "GráficoGeometría");
  QImage imagen(1000, 700, QImage::Format_ARGB32);
  imagen.setDotsPerMeterX(3780);
  imagen.setDotsPerMeterY(3780);
  double x0, y0, x1, y1;
  const QRectF marco(0, 0, 1000, 700);
  ASSERT_TRUE(CoordenadasEnFigura(g, marco, &imagen, QPointF(300, 300), x0, y0));
  ASSERT_TRUE(CoordenadasEnFigura(g, marco, &imagen, QPointF(400, 400), x1, y1));
  EXPECT_NEAR(x1 - x0, y0 - y1, 1e-9);
  EXPECT_GT(x1, x0);
  EXPECT_FALSE(CoordenadasEnFigura(g, marco, &imagen, QPointF(2, 2), x0, y0));
}

TEST_F(Archivos, LosInformesDeResultadosConSusPáginasYSuCabecera) {
  // Page 1: title, summary, history, the slice table in two parts, the sums (well under a page).
  // The charts start a page of their own; each figure takes half a page less two lines, so the
  // heading "Gráficos" and two figures fill page 2 and the last two figures page 3.
  const std::string ruta = carpeta + "/resultados.pdf";
  QString error;
  int n = 0;
  ASSERT_TRUE(EscribirInformePDF(InformeDeResultados(p), QString::fromStdString(ruta), &error, &n))
      << error.toStdString();
  EXPECT_EQ(n, 3);
  EXPECT_EQ(Páginas(ruta), 3);
  for (int k = 1; k <= 3; ++k) {
    const std::string t = Texto(ruta, k);
    for (const std::string& s : std::vector<std::string>{
             "Lomaterra - Resultados del análisis por equilibrio límite",
             "Página " + std::to_string(k) + " de 3", "Ing. Ana Pérez",
             "Talud de prueba de la vía norte"})
      EXPECT_NE(t.find(s), std::string::npos) << k << " " << s;
  }
  const std::string uno = Texto(ruta, 1);
  for (const char* s :
       {"Método: Bishop A. W.", "Factor de seguridad: 1.500", "Historia de las iteraciones",
        "Resultados en las dovelas (1 de 2)", "Resultados en las dovelas (2 de 2)",
        "Suma de esfuerzos normales totales", "25.00", "12.00"})
    EXPECT_NE(uno.find(s), std::string::npos) << s;
  const std::string dos = Texto(ruta, 2);
  EXPECT_NE(dos.find("Gráficos"), std::string::npos);
  EXPECT_NE(dos.find("Geometría del talud con los esfuerzos en la superficie de falla"),
            std::string::npos);
  EXPECT_NE(Texto(ruta, 3).find("Resistencia al corte y esfuerzo tangencial movilizado"),
            std::string::npos);
  // An impossible path leaves no file.
  const std::string mala = carpeta + "/no/existe/informe.pdf";
  EXPECT_FALSE(EscribirInformePDF(InformeDeResultados(p), QString::fromStdString(mala), &error));
  EXPECT_TRUE(error.startsWith(QStringLiteral("No se pudo escribir el archivo")));
  EXPECT_FALSE(std::filesystem::exists(mala));
  // The seismic report as lomaterra-lote --pdf writes it: the tables, then a page break before
  // the five figures, so two pages at the very least.
  std::string falla;
  ASSERT_TRUE(EscribirInformeDeResultados(pruebas::SismoAMano(), carpeta + "/s.pdf", falla))
      << falla;
  EXPECT_GE(Páginas(carpeta + "/s.pdf"), 2);
  const std::string sísmico = Texto(carpeta + "/s.pdf", 1);
  EXPECT_NE(sísmico.find("Resultados del análisis sísmico"), std::string::npos);
  EXPECT_NE(sísmico.find("El cálculo se interrumpió"), std::string::npos);
}

// lomaterra-lote itself with --pdf and --figura on a sample project, and the refusals of its
// writers in their own words (an unknown name on the command line is a usage error, see Lotes).
TEST_F(Archivos, ElEjecutorEscribeElInformeYLasFigurasYRechazaLoQueNoHay) {
  const auto r = pruebas::Lote({pruebas::RutaEjemplo("talud_homogeneo.cod"), "MétodoFellenius",
                                "--pdf", carpeta + "/r.pdf", "--figura",
                                "GráficoGeometría=" + carpeta + "/s.png", "--figura",
                                "GráficoEsfuerzoNormalesTotales=" + carpeta + "/n.svg"});
  ASSERT_EQ(r.estado, 0) << r.errores;
  for (const char* a : {"/r.pdf", "/s.png", "/n.svg"})
    EXPECT_GT(std::filesystem::file_size(carpeta + a), 1000u) << a;
  std::string error;
  EXPECT_FALSE(EscribirFiguraDelMenú(p, "Geometría", carpeta + "/x.png", error));
  EXPECT_EQ(error.rfind("No hay una figura llamada Geometría. Las figuras son: "
                        "GráficoEsfuerzoPrincipalMenor", 0),
            0u);
  p.NúmeroIteraciones = 0;
  EXPECT_FALSE(EscribirInformeDeResultados(p, carpeta + "/s.pdf", error));
  EXPECT_EQ(error, "No hay resultados de un cálculo por equilibrio límite para el informe " +
                       carpeta + "/s.pdf.");
  EXPECT_FALSE(std::filesystem::exists(carpeta + "/s.pdf"));
  // The section needs no calculation.
  EXPECT_TRUE(EscribirFiguraDelMenú(p, "GráficoGeometría", carpeta + "/g.png", error)) << error;
  EXPECT_GT(std::filesystem::file_size(carpeta + "/g.png"), 1000u);
}

// A chart built by hand: a named line, an unnamed dashed line, a scatter of points, and three
// marks of which two share colour, shape and size.
TEST(VistaDeGráfico, UnaSeriePorTrazoYUnaPorAspectoDeLasMarcas) {
  pruebas::Aplicación();
  QWidget padre;
  Figura f;
  f.tipo = Figura::Tipo::Gráfico;
  f.título = "Prueba de gráfico";
  f.ejeX = "Abscisa (m)";
  f.ejeY = "Esfuerzo (ton/m2)";
  f.trazos = {
      {.puntos = {{0, 1}, {1, 3}, {2, 2}, {3, 5}}, .color = {200, 0, 0}, .grosor = 2.5,
       .leyenda = "Serie A"},
      {.puntos = {{0, 0}, {3, 0}}, .discontinuo = true},
      {.puntos = {{0.5, 4}, {1.5, 4.5}, {2.5, 1}}, .leyenda = "Puntos B", .marcador = "cuadrado",
       .sinLínea = true}};
  f.marcas = {{{1, 1}, {0, 0, 255}, "círculo", 6, "centro"},
              {{2, 1}, {0, 0, 255}, "círculo", 6, "centro"},
              {{2, 6}, {0, 128, 0}, "cuadrado", 6, ""}};

  QChartView* v = CrearVistaGráfico(f, &padre);
  ASSERT_NE(v, nullptr);
  v->resize(800, 550);
  v->show();  // the legend lays its entries out when the view is first shown
  QApplication::processEvents();
  QChart* g = v->chart();
  EXPECT_EQ(g->title(), QStringLiteral("Prueba de gráfico"));
  auto* x = qobject_cast<QValueAxis*>(g->axes(Qt::Horizontal).value(0));
  auto* y = qobject_cast<QValueAxis*>(g->axes(Qt::Vertical).value(0));
  ASSERT_TRUE(x && y);
  EXPECT_EQ(x->titleText(), QStringLiteral("Abscisa (m)"));
  EXPECT_EQ(y->titleText(), QStringLiteral("Esfuerzo (ton/m2)"));
  ASSERT_EQ(g->series().size(), 5);  // three traces, two looks of marks
  auto Serie = [g](int i) { return qobject_cast<QXYSeries*>(g->series().at(i)); };

  const struct { bool dispersión; int puntos; const char* nombre; bool enLeyenda; } esperados[] = {
      {false, 4, "Serie A", true}, {false, 2, "", false}, {true, 3, "Puntos B", true},
      {true, 2, "centro", true},   {true, 1, "", false}};
  for (int i = 0; i < 5; ++i) {
    SCOPED_TRACE(i);
    QXYSeries* s = Serie(i);
    ASSERT_NE(s, nullptr);
    EXPECT_EQ(qobject_cast<QScatterSeries*>(s) != nullptr, esperados[i].dispersión);
    EXPECT_EQ(s->count(), esperados[i].puntos);
    EXPECT_EQ(s->name(), QString::fromUtf8(esperados[i].nombre));
    const auto marcadores = g->legend()->markers(s);
    EXPECT_EQ(!marcadores.isEmpty() && marcadores.first()->isVisible(), esperados[i].enLeyenda);
    EXPECT_EQ(s->attachedAxes().size(), 2);
  }
  auto* a = qobject_cast<QLineSeries*>(Serie(0));
  EXPECT_EQ(a->pen().color(), QColor(200, 0, 0));
  EXPECT_DOUBLE_EQ(a->pen().widthF(), 2.5);
  EXPECT_EQ(qobject_cast<QLineSeries*>(Serie(1))->pen().style(), Qt::DashLine);
  EXPECT_EQ(qobject_cast<QScatterSeries*>(Serie(2))->markerShape(),
            QScatterSeries::MarkerShapeRectangle);
  EXPECT_EQ(Serie(3)->color(), QColor(0, 0, 255));
  // Every point inside the axes: x spans 0..3 and y 0..6.
  EXPECT_LE(x->min(), 0.0);
  EXPECT_GE(x->max(), 3.0);
  EXPECT_LE(y->min(), 0.0);
  EXPECT_GE(y->max(), 6.0);
}

}  // namespace
}  // namespace lomaterra
