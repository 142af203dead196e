// The sample dam through lomaterra-lote to its modes: every mode in the JSON with its frequency,
// its period 2π/ω and its vector over the free degrees.
#include <gtest/gtest.h>

#include <cmath>

#include "lote/lote_apoyo.h"

namespace lomaterra::pruebas {

TEST(LoteModos, FrecuenciasPeríodosYVectoresEnJson) {
  const ValorJson v = LoteJson("presa_sismica.cod", "IncrementeNúmeroDeElementos GradosDeLibertad DeterminaciónDeLasFrecuencias "
                                                    "CálculoDeLoVectoresDeFormaModales --respuestas NSNNSS");
  const ValorJson* modos = v.Campo("modos");
  ASSERT_TRUE(modos && modos->Campo("Modos") && modos->Campo("Modos")->lista.size() == 100u);
  EXPECT_EQ(modos->Campo("GradosLibres")->lista[0].número, 3);  // node 1 is at the fixed base
  for (const ValorJson& m : modos->Campo("Modos")->lista) {
    EXPECT_NEAR(m.Campo("Período")->número * m.Campo("Frecuencia")->número, 2 * M_PI, 1e-12);
    EXPECT_EQ(m.Campo("Vector")->lista.size(), 100u);
  }
}

}  // namespace lomaterra::pruebas
