// The output functions that lomaterra-lote calls: report and figures by name, with clear refusals.
#include <gtest/gtest.h>
#include <sys/wait.h>

#include <cstdlib>
#include <filesystem>

#include "apoyo/apoyo.h"
#include "salida/caso_salida.h"
#include "salida_lote.h"

namespace lomaterra {
namespace {

TEST(SalidaDeLote, EscribeElInformeYLasFigurasPorSuNombre) {
  PrepararDibujoSinVentana();
  Proyecto p = pruebas::CasoTresDovelas();
  const std::string carpeta = pruebas::CarpetaTemporal();
  std::string error;
  ASSERT_TRUE(EscribirInformeDeResultados(p, carpeta + "/r.pdf", error)) << error;
  EXPECT_GT(std::filesystem::file_size(carpeta + "/r.pdf"), 1000u);
  ASSERT_TRUE(EscribirFiguraDelMenú(p, "GráficoGeometría", carpeta + "/g.png", error)) << error;
  ASSERT_TRUE(EscribirFiguraDelMenú(p, "GráficoEsfuerzoNormalesTotales", carpeta + "/n.svg", error))
      << error;
  EXPECT_GT(std::filesystem::file_size(carpeta + "/g.png"), 1000u);

  EXPECT_FALSE(EscribirFiguraDelMenú(p, "Geometría", carpeta + "/x.png", error));
  EXPECT_EQ(
      error.rfind(
          "No hay una figura llamada Geometría. Las figuras son: GráficoEsfuerzoPrincipalMenor", 0),
      0u);
  p.NúmeroIteraciones = 0;
  EXPECT_FALSE(EscribirInformeDeResultados(p, carpeta + "/s.pdf", error));
  EXPECT_EQ(error, "No hay resultados de un cálculo por equilibrio límite para el informe " +
                       carpeta + "/s.pdf.");
  EXPECT_FALSE(std::filesystem::exists(carpeta + "/s.pdf"));
  // The section needs no calculation.
  EXPECT_TRUE(EscribirFiguraDelMenú(p, "GráficoGeometría", carpeta + "/g2.png", error)) << error;
}

TEST(SalidaDeLote, ElArgumentoDeFiguraEsNombreIgualArchivo) {
  std::string n, r;
  ASSERT_TRUE(LeerArgumentoFigura("GráficoGeometría=sección.png", n, r));
  EXPECT_EQ(n, "GráficoGeometría");
  EXPECT_EQ(r, "sección.png");
  for (const char* malo : {"GráficoGeometría", "=a.png", "GráficoGeometría="})
    EXPECT_FALSE(LeerArgumentoFigura(malo, n, r)) << malo;
}

// lomaterra-lote itself with --pdf and --figura on a sample project.
TEST(SalidaDeLote, ElEjecutorEscribeElInformeYLasFiguras) {
  const std::string lote = LOMATERRA_LOTE;
  const std::string ejemplo = pruebas::RutaEjemplo("talud_homogeneo.cod");
  if (!std::filesystem::exists(lote) || !std::filesystem::exists(ejemplo))
    GTEST_SKIP() << "falta " << lote;
  const std::string carpeta = pruebas::CarpetaTemporal();
  const std::string orden = "'" + lote + "' '" + ejemplo + "' MétodoFellenius --pdf '" + carpeta +
                            "/r.pdf' --figura 'GráficoGeometría=" + carpeta +
                            "/s.png' --figura 'GráficoEsfuerzoNormalesTotales=" + carpeta +
                            "/n.svg' >'" + carpeta + "/salida.txt' 2>&1";
  ASSERT_EQ(std::system(orden.c_str()), 0);
  for (const char* a : {"/r.pdf", "/s.png", "/n.svg"})
    EXPECT_GT(std::filesystem::file_size(carpeta + a), 1000u) << a;
  // An unknown figure is a usage error and nothing runs.
  const std::string mala = "'" + lote + "' '" + ejemplo +
                           "' MétodoFellenius --figura 'Sección=" + carpeta +
                           "/x.png' >/dev/null 2>&1";
  const int r = std::system(mala.c_str());
  EXPECT_EQ(WEXITSTATUS(r), 2);
  EXPECT_FALSE(std::filesystem::exists(carpeta + "/x.png"));
}

}  // namespace
}  // namespace lomaterra
