// The reports as PDF: pages as the layout rules say, the header on every page, the texts in place.
// pdftotext and pdfinfo (poppler-utils) read the files back.
#include <gtest/gtest.h>

#include <QApplication>
#include <array>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <string>

#include "apoyo/apoyo.h"
#include "informe_qt.h"
#include "salida/caso_salida.h"
#include "ventana_apoyo.h"
#include "salida/informe.h"

namespace lomaterra {
namespace {

std::string Salida(const std::string& orden) {
  std::string r;
  std::array<char, 4096> b{};
  std::unique_ptr<FILE, int (*)(FILE*)> tubo(popen(orden.c_str(), "r"), pclose);
  if (!tubo) return r;
  while (fgets(b.data(), static_cast<int>(b.size()), tubo.get())) r += b.data();
  return r;
}

int Páginas(const std::string& pdf) {
  const std::string info = Salida("pdfinfo '" + pdf + "' 2>/dev/null");
  const auto k = info.find("Pages:");
  return k == std::string::npos ? -1 : std::stoi(info.substr(k + 6));
}

std::string Texto(const std::string& pdf, int página) {
  return Salida("pdftotext -layout -f " + std::to_string(página) + " -l " + std::to_string(página) +
                " '" + pdf + "' - 2>/dev/null");
}

class InformePDF : public ::testing::Test {
 protected:
  static void SetUpTestSuite() { pruebas::Aplicación(); }
  void SetUp() override {
    if (Salida("command -v pdftotext pdfinfo").empty())
      GTEST_SKIP() << "faltan pdftotext y pdfinfo (poppler-utils)";
  }
  Proyecto p = pruebas::CasoTresDovelas();
  std::string carpeta = pruebas::CarpetaTemporal();
};

TEST_F(InformePDF, ElInformeDeResultadosTieneTresPáginasConSuCabecera) {
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
    EXPECT_NE(t.find("Lomaterra - Resultados del análisis por equilibrio límite"),
              std::string::npos)
        << k;
    EXPECT_NE(t.find("Página " + std::to_string(k) + " de 3"), std::string::npos) << k;
    EXPECT_NE(t.find("Ing. Ana Pérez"), std::string::npos) << k;
    EXPECT_NE(t.find("Talud de prueba de la vía norte"), std::string::npos) << k;
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
}

TEST_F(InformePDF, UnaTablaLargaSigueEnLaPáginaSiguienteConSusTítulos) {
  // 150 points on the surface: their table does not fit one page.
  p.NúmeroPuntosTalud = 150;
  p.CoordenadasTalud.Redimensionar(150);
  for (long i = 1; i <= 150; ++i) {
    p.CoordenadasTalud.X[i] = 300 - 2 * i;
    p.CoordenadasTalud.Y[i] = 10;
  }
  const std::string ruta = carpeta + "/datos.pdf";
  int n = 0;
  ASSERT_TRUE(EscribirInformePDF(InformeDeDatos(p), QString::fromStdString(ruta), nullptr, &n));
  EXPECT_EQ(Páginas(ruta), n);
  EXPECT_GE(n, 4);
  const std::string uno = Texto(ruta, 1), dos = Texto(ruta, 2);
  EXPECT_NE(uno.find("Información del proyecto"), std::string::npos);
  EXPECT_NE(uno.find("Geotecnia Andina"), std::string::npos);
  EXPECT_NE(uno.find("Coordenadas del talud, presa o túnel"), std::string::npos);
  EXPECT_NE(dos.find("Coordenadas del talud, presa o túnel (continuación)"), std::string::npos);
  EXPECT_NE(dos.find("X (m)"), std::string::npos);  // the captions again
  // Every point is in the file once: the row of point 150 (X = 0.00) appears.
  std::string todo;
  for (int k = 1; k <= n; ++k) todo += Texto(ruta, k);
  EXPECT_NE(todo.find("150"), std::string::npos);
  EXPECT_NE(todo.find("Cargas puntuales"), std::string::npos);
  EXPECT_NE(todo.find("Parámetros de cálculo"), std::string::npos);
}

TEST_F(InformePDF, UnaRutaImposibleNoDejaArchivo) {
  const std::string ruta = carpeta + "/no/existe/informe.pdf";
  QString error;
  EXPECT_FALSE(EscribirInformePDF(InformeDeResultados(p), QString::fromStdString(ruta), &error));
  EXPECT_TRUE(error.startsWith(QStringLiteral("No se pudo escribir el archivo")));
  EXPECT_FALSE(std::filesystem::exists(ruta));
}

}  // namespace
}  // namespace lomaterra
