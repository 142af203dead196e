// The painter writes figures to PNG, SVG and PDF; a person can look at the PNGs it leaves.
#include <cmath>
#include <limits>

#include <gtest/gtest.h>

#include <QApplication>
#include <QFile>
#include <QImage>

#include "apoyo/apoyo.h"
#include "pintor.h"
#include "salida/caso_salida.h"
#include "ventana_apoyo.h"
#include "salida/graficos.h"

namespace lomaterra {
namespace {

class Pintor : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { pruebas::Aplicación(); }
  Proyecto p = pruebas::CasoTresDovelas();
  std::string carpeta = pruebas::CarpetaTemporal();
};

// Counts the pixels that are neither white nor transparent.
long PíxelesPintados(const QImage& imagen) {
  long n = 0;
  for (int y = 0; y < imagen.height(); ++y)
    for (int x = 0; x < imagen.width(); ++x)
      if ((imagen.pixel(x, y) & 0xFFFFFF) != 0xFFFFFF) ++n;
  return n;
}

TEST_F(Pintor, CadaGráficoDelMenúSeExportaEnPNGNoVacío) {
  for (const auto& nombre : NombresDeGráficos()) {
    const QString ruta = QString::fromStdString(carpeta + "/" + nombre + ".png");
    QString error;
    ASSERT_TRUE(ExportarPNG(FiguraGráfico(p, nombre), ruta, &error)) << error.toStdString();
    QImage imagen(ruta);
    ASSERT_FALSE(imagen.isNull()) << nombre;
    EXPECT_EQ(imagen.size(), QSize(1600, 1100));
    EXPECT_GT(PíxelesPintados(imagen), 20000) << nombre;
  }
}
TEST_F(Pintor, UnaFiguraVacíaOConPuntosNoFinitosSeDibujaSinFallar) {
  Figura vacía;
  vacía.título = "Sin datos";
  Figura rara;
  rara.tipo = Figura::Tipo::Gráfico;
  Trazo t;
  t.puntos = {{0, 1}, {std::nan(""), 2}, {2, std::numeric_limits<double>::infinity()}, {3, 3}};
  t.leyenda = "serie";
  rara.trazos.push_back(t);
  for (const Figura* f : {&vacía, &rara}) {
    const QString ruta = QString::fromStdString(carpeta + "/rara.png");
    QString error;
    EXPECT_TRUE(ExportarPNG(*f, ruta, &error, QSize(400, 300))) << error.toStdString();
    EXPECT_FALSE(QImage(ruta).isNull());
  }
}

}  // namespace
}  // namespace lomaterra
