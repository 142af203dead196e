// Bishop and Janbu run by lomaterra-lote on their sample projects.
#include <gtest/gtest.h>

#include <cmath>

#include "lote/lote_apoyo.h"

namespace lomaterra::pruebas {
namespace {

const char* const kFin = "[mensaje]  | Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de ";

TEST(MétodosEnEjemplos, JanbuEnElProblemaDeReferenciaACADS) {
  // The rigorous methods give 0.986 to 0.993 on the published critical circle. Janbu's generalised
  // procedure with the thrust at a third of each edge lands within 0.02 of that range (the slice
  // width and the crest point rounded to 51.24 m move it by a few thousandths).
  const ValorJson v = LoteJson("janbu_acads.cod", "MétodoJanbu");
  ASSERT_FALSE(Transcrito(v).empty());
  EXPECT_EQ(Transcrito(v).back(), std::string(kFin) + "Janbu para suelos.");
  const double fs = v.Campo("FactorDeSeguridad")->número;
  EXPECT_GE(fs, 0.986 - 0.02);
  EXPECT_LE(fs, 0.993 + 0.02);
}

TEST(MétodosEnEjemplos, BishopConBúsquedaDelRadioTerminaConSuMensaje) {
  // A dry sand (c = 0, phi = 34°) at 2H:1V: no slice gets a negative normal force and no guard
  // asks; the search runs and the command closes with its message.
  const ValorJson v = LoteJson("bishop_radio_variable.cod", "MétodoBishop");
  const auto t = Transcrito(v);
  ASSERT_EQ(t.size(), 2u);  // the drawdown question and the closing message
  EXPECT_EQ(t.back(), std::string(kFin) + "Bishop para suelos.");
  // On the arc the driving side is taken as moments about the centre, sum W R sin a, while the
  // resisting side sums forces, sum W tan phi / m_a with m_a = cos a + sin a tan phi / F. The
  // radius comes back from two bases of the circle: x1 - x2 = R (sin a1 - sin a2). The factor
  // shown must be a fixed point of that sum on the slices returned, to the 0.001 that stops the
  // iteration.
  const auto& d = v.Campo("Dovelas")->lista;
  ASSERT_GE(d.size(), 2u);
  auto c = [&](std::size_t i, const char* k) { return d[i].Campo(k)->número; };
  const std::size_t último = d.size() - 1;
  const double R = (c(0, "XMedio") - c(último, "XMedio")) /
                   (std::sin(c(0, "ÁnguloBase")) - std::sin(c(último, "ÁnguloBase")));
  const double F = v.Campo("FactorDeSeguridad")->número, tanφ = std::tan(34 * M_PI / 180);
  double resiste = 0, mueve = 0;
  for (std::size_t i = 0; i < d.size(); ++i) {
    const double W = c(i, "PesoUnitarioMedio") * (c(i, "YTalud") - c(i, "YBase")) * c(i, "Ancho");
    const double a = c(i, "ÁnguloBase");
    resiste += W * tanφ / (std::cos(a) + std::sin(a) * tanφ / F);
    mueve += W * R * std::sin(a);
  }
  EXPECT_NEAR(resiste / mueve, F, 0.001);
}

TEST(MétodosEnEjemplos, RocaPorLeshchinskyYSegundoPaseInstantáneo) {
  // The rock slope of GSI 20 converges by Leshchinsky and Huang in rock with N to every step.
  const ValorJson roca = LoteJson("talud_roca_leshchinsky.cod", "ProcesoIterativoEnRocas");
  ASSERT_FALSE(Transcrito(roca).empty());
  EXPECT_EQ(Transcrito(roca).back(), std::string(kFin) +
            "Leshchinsky and Ching-Chuan Huang y el criterio de rotura de Hoek and Brown (m,s) para rocas.");
  EXPECT_GT(roca.Campo("FactorDeSeguridad")->número, 0.0);
  // A file with the letter "S": recalculate with new values (S, N), the method (S), no drawdown,
  // recalculate and go on.
  const ValorJson ins =
      LoteJson("instantaneos_tras_janbu.cod", "CálculoParámetrosInstantáneos --respuestas SNSNSS");
  ASSERT_FALSE(Transcrito(ins).empty());
  EXPECT_EQ(Transcrito(ins).back(), std::string(kFin) + "Janbu para suelos.");
  // Before the command the method refuses the letter "S"; keeping the values the pass says so.
  const ValorJson rechazo = LoteJson("instantaneos_tras_janbu.cod", "MétodoJanbu --respuestas NS");
  ASSERT_FALSE(Transcrito(rechazo).empty());
  EXPECT_NE(Transcrito(rechazo).back().find("No es el camino:"), std::string::npos);
  const ValorJson mismos = LoteJson("instantaneos_tras_janbu.cod", "CálculoParámetrosInstantáneos --respuestas SSSNSS");
  ASSERT_GT(Transcrito(mismos).size(), 2u);
  bool reutilizó = false;
  for (const auto& a : Transcrito(mismos)) reutilizó |= a.find("Se utilizan los parámetros de corte ya obtenidos") != std::string::npos;
  EXPECT_TRUE(reutilizó);
}

}  // namespace
}  // namespace lomaterra::pruebas
