// The sample dam through lomaterra-lote to its modes: each mode's frequency, period 2π/ω and vector.
#include <gtest/gtest.h>
#include <cmath>
#include "lote/lote_apoyo.h"

namespace lomaterra::pruebas {

TEST(LoteModos, FrecuenciasPeríodosYVectoresEnJson) {
  const ValorJson v = LoteJson("presa_sismica.cod", "IncrementeNúmeroDeElementos GradosDeLibertad DeterminaciónDeLasFrecuencias "
                                                    "CálculoDeLoVectoresDeFormaModales --respuestas NSNNSS");
  const ValorJson* modos = v.Campo("modos");
  ASSERT_TRUE(modos && modos->Campo("Modos") && modos->Campo("Modos")->lista.size() == 100u);
  for (const ValorJson& m : modos->Campo("Modos")->lista) {
    EXPECT_NEAR(m.Campo("Período")->número * m.Campo("Frecuencia")->número, 2 * M_PI, 1e-12);
    EXPECT_EQ(m.Campo("Vector")->lista.size(), 100u);
  }
}

}  // namespace lomaterra::pruebas
