// The seismic report written as lomaterra-lote --pdf writes it, read back with pdfinfo and
// pdftotext (poppler-utils).
#include <gtest/gtest.h>

#include <cstdio>
#include <filesystem>
#include <memory>

#include "apoyo/sismo_apoyo.h"
#include "salida_lote.h"
#include "ventana_apoyo.h"

namespace lomaterra {
namespace {

std::string Salida(const std::string& orden) {
  std::string r;
  char b[4096];
  std::unique_ptr<FILE, int (*)(FILE*)> tubo(popen(orden.c_str(), "r"), pclose);
  while (tubo && fgets(b, sizeof b, tubo.get())) r += b;
  return r;
}

TEST(InformeSísmico, ElPDFSeEscribeConSusPáginas) {
  pruebas::Aplicación();
  const Proyecto p = pruebas::SismoAMano();
  const auto ruta = (std::filesystem::temp_directory_path() / "lomaterra_informe_sismico.pdf").string();
  std::filesystem::remove(ruta);
  std::string error;
  ASSERT_TRUE(EscribirInformeDeResultados(p, ruta, error)) << error;
  ASSERT_GT(std::filesystem::file_size(ruta), 1000u);
  // The tables, then a page break before the five figures: two pages at the very least.
  const std::string info = Salida("pdfinfo '" + ruta + "' 2>/dev/null");
  const auto k = info.find("Pages:");
  ASSERT_NE(k, std::string::npos);
  EXPECT_GE(std::stoi(info.substr(k + 6)), 2);
  const std::string texto = Salida("pdftotext -f 1 -l 1 '" + ruta + "' - 2>/dev/null");
  EXPECT_NE(texto.find("Resultados del análisis sísmico"), std::string::npos);
  EXPECT_NE(texto.find("El cálculo se interrumpió"), std::string::npos);
  std::filesystem::remove(ruta);
}

}  // namespace
}  // namespace lomaterra
