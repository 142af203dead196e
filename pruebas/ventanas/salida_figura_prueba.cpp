// The figure dialog and the exports by extension, offscreen.
#include <gtest/gtest.h>

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QImage>
#include <QPushButton>
#include <filesystem>

#include "apoyo/apoyo.h"
#include "pintor.h"
#include "salida/caso_salida.h"
#include "ventana_apoyo.h"
#include "salida/graficos.h"
#include "salida_figura_qt.h"

namespace lomaterra {
namespace {

class DiálogoFigura : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { pruebas::Aplicación(); }
  Proyecto p = pruebas::CasoTresDovelas();
  std::string carpeta = pruebas::CarpetaTemporal();
  QString Ruta(const char* nombre) { return QString::fromStdString(carpeta + "/" + nombre); }
};

TEST_F(DiálogoFigura, TieneLaVistaYLosBotonesDeExportarYCerrar) {
  std::unique_ptr<QDialog> d(CrearDiálogoFigura(nullptr, FiguraGráfico(p, "GráficoGeometría")));
  EXPECT_EQ(d->windowTitle(), QStringLiteral("Geometría del talud"));
  const std::vector<std::pair<const char*, const char*>> botones{
      {"BotónExportarPNG", "Exportar PNG..."},
      {"BotónExportarPDF", "Exportar PDF..."},
      {"BotónCerrar", "Cerrar"}};
  for (const auto& [nombre, texto] : botones) {
    auto* b = d->findChild<QPushButton*>(QString::fromUtf8(nombre));
    ASSERT_NE(b, nullptr) << nombre;
    EXPECT_EQ(b->text(), QString::fromUtf8(texto));
  }
  auto* vista = d->findChild<VistaFigura*>(QStringLiteral("VistaFigura"));
  ASSERT_NE(vista, nullptr);
  vista->resize(800, 550);
  const QImage imagen = vista->grab().toImage();
  long pintados = 0;
  for (int y = 0; y < imagen.height(); y += 2)
    for (int x = 0; x < imagen.width(); x += 2)
      pintados += (imagen.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF;
  EXPECT_GT(pintados, 2000);
  d->findChild<QPushButton*>(QStringLiteral("BotónCerrar"))->click();
  EXPECT_EQ(d->result(), QDialog::Accepted);
}

TEST_F(DiálogoFigura, SeExportaPorLaExtensiónYUnaMalaRutaNoDejaNada) {
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
}

TEST_F(DiálogoFigura, ElPortapapelesRecibeElTextoTabulado) {
  CopiarAlPortapapelesQt("Dovela\tX medio (m)\n1\t22.50\n");
  EXPECT_EQ(QGuiApplication::clipboard()->text(),
            QStringLiteral("Dovela\tX medio (m)\n1\t22.50\n"));
}

TEST_F(DiálogoFigura, LasCoordenadasBajoElRatónSonLasDelDibujo) {
  // At equal scales the centre of the plotting area shows the centre of the data range.
  const Figura f = FiguraGráfico(p, "GráficoGeometría");
  QImage imagen(1000, 700, QImage::Format_ARGB32);
  imagen.setDotsPerMeterX(3780);
  imagen.setDotsPerMeterY(3780);
  double x0, y0, x1, y1;
  const QRectF marco(0, 0, 1000, 700);
  ASSERT_TRUE(CoordenadasEnFigura(f, marco, &imagen, QPointF(300, 300), x0, y0));
  ASSERT_TRUE(CoordenadasEnFigura(f, marco, &imagen, QPointF(400, 400), x1, y1));
  // Equal scales: 100 pixels right and 100 down are the same distance in metres.
  EXPECT_NEAR(x1 - x0, y0 - y1, 1e-9);
  EXPECT_GT(x1, x0);
  EXPECT_FALSE(CoordenadasEnFigura(f, marco, &imagen, QPointF(2, 2), x0, y0));
}

}  // namespace
}  // namespace lomaterra
