// The variational method in a batch run: every question of the iteration screen takes the default
// No, so the run goes on until the sums pass.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "lote/lote_apoyo.h"
#include "proyecto/compat.h"

namespace lomaterra::pruebas {
namespace {

TEST(LeshchinskyLote, ElEjemploIteraHastaQueLasSumasPasan) {
  const Corrida corrida = Lote({RutaEjemplo("leshchinsky_homogeneo.cod"), "ProcesoIterativoEnSuelos"});
  EXPECT_EQ(corrida.estado, 0);
  const auto& líneas = corrida.líneas;
  ASSERT_FALSE(líneas.empty());
  EXPECT_EQ(líneas.front(),
            "[pregunta]  | Está analizando desembalse rápido en presas de tierra? -> N");
  int pasos = 0, noEsSolución = 0, noSalir = 0;
  bool fin = false;
  for (const auto& l : líneas) {
    pasos += l == "[pantalla] Resultados de las iteraciones";
    noEsSolución +=
        l == "[pregunta] Resultados de las iteraciones | ¿Considera que es la solución? -> N";
    noSalir += l == "[pregunta] Resultados de las iteraciones | ¿Desea salir del cálculo? -> N";
    fin = fin || l == "[mensaje]  | Se finalizó el cálculo de esfuerzos y factor de seguridad, por "
                      "el método de Leshchinsky and Ching-Chuan Huang para suelos.";
  }
  EXPECT_GE(pasos, 1);
  EXPECT_EQ(noEsSolución, pasos);
  EXPECT_EQ(noSalir, pasos);
  EXPECT_TRUE(fin);
  // The summary gives the last row of the history with both multipliers, and the three
  // equilibrium sums within the tolerances that ended the iteration (0.001, 0.001 and 0.009).
  auto valor = [&](const std::string& clave) {
    for (const auto& l : líneas)
      if (l.rfind(clave + ": ", 0) == 0) return ANúmero(l.substr(clave.size() + 2));
    ADD_FAILURE() << clave;
    return 0.0;
  };
  // The multipliers are a point: an abscissa between the ends of the failure surface (29.7 to
  // 51.24) and an ordinate above the crest (35).
  EXPECT_GT(valor("Multiplicador1"), 29.7);
  EXPECT_LT(valor("Multiplicador1"), 51.24);
  EXPECT_GT(valor("Multiplicador2"), 35.0);
  EXPECT_LE(std::fabs(valor("SumaFuerzasHorizontales")), 0.001);
  EXPECT_LE(std::fabs(valor("SumaFuerzasVerticales")), 0.001);
  EXPECT_LE(std::fabs(valor("SumaMomentos")), 0.009);
}

}  // namespace
}  // namespace lomaterra::pruebas
