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

namespace lomaterra::pruebas {

// With the mode typed on the frequencies screen by --modo, each of the three response runs goes
// through the 300 steps of the sample's record (the 75% question answered "continue").
TEST(LoteModos, ConElModoElegidoCadaRespuestaRecorreElRegistro) {
  for (const std::string orden : {"MétodoIntegralDuhamel", "MétodoPasoAPasoEcMovimientoSinDesacoplar", "PasoAPasoDesacoplado"}) {
    const ValorJson v = LoteJson("presa_sismica.cod", "IncrementeNúmeroDeElementos GradosDeLibertad DeterminaciónDeLasFrecuencias "
                                                      "CálculoDeLoVectoresDeFormaModales DeterminaciónDeLasFrecuencias " +
                                                          orden + " --modo 1 --respuestas NSNNSS --por-defecto S");
    const ValorJson* s = v.Campo("sismico");
    ASSERT_TRUE(s && s->Campo("PasosCalculados")) << orden;
    EXPECT_EQ(s->Campo("Método")->texto, orden);
    EXPECT_EQ(s->Campo("PasosCalculados")->número, 300);
    EXPECT_EQ(s->Campo("Tiempo")->lista.size(), 300u);
  }
  const Corrida c = Lote({RutaEjemplo("presa_sismica.cod"), "IncrementeNúmeroDeElementos", "GradosDeLibertad",
                          "DeterminaciónDeLasFrecuencias", "CálculoDeLoVectoresDeFormaModales",
                          "DeterminaciónDeLasFrecuencias", "PasoAPasoDesacoplado", "--modo", "1", "--respuestas",
                          "NSNNSS", "--por-defecto", "S"});
  EXPECT_NE(c.salida.find("\nRespuestaSísmica: PasoAPasoDesacoplado, 300 de 300 registros\n"), std::string::npos);
}

}  // namespace lomaterra::pruebas
