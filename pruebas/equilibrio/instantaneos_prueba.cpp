// The second pass in instantaneous parameters: the lines of case 2, the tangent of case 1 in rock,
// and the command that prepares the pass and runs Janbu again, also on a project read with the
// letter "S".
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "apoyo/proyectos.h"
#include "equilibrio/instantaneos.h"
#include "equilibrio/janbu.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/fallos.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

using pruebas::Fijar;
const double kGrados = 180 / std::acos(-1.0);

// Three slices whose first pass left strengths y = 3, 4, 3 at effective stresses x = 1, 2, 4.
Proyecto PasePrevio(Entero estratos) {
  Proyecto p;
  pruebas::TresDovelasDeSuelo(p, 4);
  p.NúmeroEstratos = estratos;
  p.ParámetrosIniciales.ParámetrosInstantáneos = 2;
  p.ParámetrosIniciales.UsaParámetrosInstantáneos = true;
  Fijar(p.ResistenciaMovilizadaPrevia, {3, 4, 3});
  Fijar(p.EsfuerzoEfectivoPrevio, {1, 2, 4});
  Fijar(p.TablaDovelas.FricciónBase, {30, 30, 20});
  return p;
}

TEST(Instantáneos, EntrePuntosConUnEstrato) {
  // Lines between neighbours: |4 − 3| / (2 − 1) = 1 through (2, 4): intercept 2;
  // |3 − 4| / (4 − 2) = 0.5 through (4, 3): intercept 1. The ends take their line, the middle
  // slice the means, its friction the mean of the two angles.
  Proyecto p = PasePrevio(1);
  InterfazGuionada ui;
  CalcularParámetrosInstantáneos(p, ui);
  const auto& d = p.TablaDovelas;
  const double c[] = {2, 1.5, 1}, t[] = {1, 0.75, 0.5};
  const double φ[] = {45, (45 + std::atan(0.5) * kGrados) / 2, std::atan(0.5) * kGrados};
  for (int i = 1; i <= 3; ++i) {
    EXPECT_NEAR(d.CohesiónBase[i], c[i - 1], 1e-12) << i;
    EXPECT_NEAR(d.TanFricciónBase[i], t[i - 1], 1e-12) << i;
    EXPECT_NEAR(d.FricciónBase[i], φ[i - 1], 1e-9) << i;
  }
  // Two slices of one effective stress leave no line: the fault ends the command.
  Fijar(p.EsfuerzoEfectivoPrevio, {1, 1, 4});
  EXPECT_THROW(CalcularParámetrosInstantáneos(p, ui), FalloAritmético);
}

TEST(Instantáneos, TramosDeUnMaterialConVariosEstratos) {
  // Slices 1 and 2 share c = 2, φ = 30: the least-squares line of two points is the line through
  // them, slope 1 and intercept 2. Slice 3 alone keeps its own tangent 0.5 and cohesion 2.
  Proyecto p = PasePrevio(2);
  InterfazGuionada ui;
  const RectasInstantáneas r = RectasEntrePuntos(p);
  EXPECT_NEAR(r.pendiente[1], 1, 1e-12);
  EXPECT_NEAR(r.intercepto[2], 2, 1e-12);
  EXPECT_EQ(r.pendiente[3], 0.5);
  EXPECT_EQ(r.intercepto[3], 2);
  // In rock the slice left alone takes s for the slope and m for the intercept.
  p.TipoDeMaterial = "R";
  Fijar(p.TablaDovelas.m_Base, {5, 5, 7});
  Fijar(p.TablaDovelas.s_Base, {0.01, 0.01, 0.02});
  const RectasInstantáneas roca = RectasEntrePuntos(p);
  EXPECT_EQ(roca.pendiente[3], 0.02);
  EXPECT_EQ(roca.intercepto[3], 7);
}

TEST(Instantáneos, PuntualEnRoca) {
  // m·σc / (2 (σ1 − σ3)) = 5·120 / (2·100) = 3: φ = atan √4 = atan 2; c = y − 2x, cut at 0.
  Proyecto p = PasePrevio(1);
  p.TipoDeMaterial = "R";
  p.ParámetrosIniciales.ParámetrosInstantáneos = 1;
  auto& d = p.TablaDovelas;
  Fijar(d.m_Base, {5, 5, 5});
  Fijar(d.C_SimpleBase, {120, 120, 120});
  Fijar(d.EsfuerzoPrincipalMayor, {110, 120, 100});
  Fijar(d.EsfuerzoPrincipalMenor, {10, 20, 0});
  InterfazGuionada ui;
  CalcularParámetrosInstantáneos(p, ui);
  for (int i = 1; i <= 3; ++i) EXPECT_NEAR(d.FricciónBase[i], std::atan(2.0) * kGrados, 1e-9);
  EXPECT_NEAR(d.CohesiónBase[1], 1, 1e-12);
  EXPECT_NEAR(d.CohesiónBase[2], 0, 1e-12);
  EXPECT_EQ(d.CohesiónBase[3], 0);  // 3 − 8 < 0
}

// The three slices of soil with the edges that Janbu reads for its heights of thrust.
void DovelasDeJanbu(Proyecto& p) {
  pruebas::TresDovelasDeSuelo(p, 4);
  p.NúmeroEstratos = 1;
  pruebas::UnTramo(p, "L");
  Fijar(p.TablaDovelas.BordeYFalla, {2, 0.4, 0, 0});
  Fijar(p.TablaDovelas.BordeYTalud, {6, 3.4, 1.5, 0});
  Fijar(p.TablaDovelas.PendienteTalud, {1.3, 1.9 / 1.2, 0.9375});
}

// Janbu once, then the pass of case 2 with one stratum: the command asks, warns and runs Janbu,
// which fits the lines to the strengths F·τ of the first run.
TEST(Instantáneos, SegundoPaseDeJanbu) {
  Proyecto p;
  DovelasDeJanbu(p);
  InterfazGuionada ui("NN");
  MétodoJanbu(p, ui);
  ASSERT_TRUE(p.CálculoHecho);
  const double F = p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
  const auto& d = p.TablaDovelas;
  const double y1 = F * d.EsfuerzoTangencial[1], y2 = F * d.EsfuerzoTangencial[2];
  const double x1 = d.EsfuerzoNormalEfectivo[1], x2 = d.EsfuerzoNormalEfectivo[2];
  const double pendiente = std::fabs((y2 - y1) / (x2 - x1));

  p.ParámetrosIniciales.ParámetrosInstantáneos = 2;
  ui.Olvidar();
  ui.Responder("SNSSN");  // method, drawdown, recalculate, go on, stages
  CálculoParámetrosInstantáneos(p, ui);
  const auto textos = ui.Textos();
  ASSERT_GE(textos.size(), 3u);
  EXPECT_EQ(textos[0],
            "Ud va ha calcular usando los parámetros instantáneos por el Método de Janbu .¿Desea "
            "continuar?");
  EXPECT_EQ(textos[1],
            "Este nuevo cálculo estimará  los parámetros de resistencia en cada dovela para hacer "
            "el análisis de estabilidad en función de los esfuerzos previamente calculados.");
  EXPECT_EQ(textos.back(),
            "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Janbu para "
            "suelos.");
  EXPECT_EQ(p.ParámetrosIniciales.LetraUsaParámetrosInstantáneos, "S");
  EXPECT_NEAR(d.CohesiónBase[1], y2 - pendiente * x2, 1e-9);
  EXPECT_NEAR(d.TanFricciónBase[1], pendiente, 1e-9);
}

// A project read with the letter "S" is refused until the command has prepared the pass; then,
// keeping the values it has, it runs again.
TEST(Instantáneos, ArchivoConLaLetraS) {
  Proyecto p;
  DovelasDeJanbu(p);
  auto& pi = p.ParámetrosIniciales;
  pi.ParámetrosInstantáneos = 2;
  pi.LetraUsaParámetrosInstantáneos = "S";
  pi.UsaParámetrosInstantáneos = pi.ParámetrosInstantáneosDisponibles = true;
  p.CálculoHecho = true;
  Fijar(p.TablaDovelas.FricciónBase, {26.565051177077990, 26.565051177077990, 26.565051177077990});
  InterfazGuionada ui("NS");  // drawdown, recalculate
  MétodoJanbu(p, ui);
  EXPECT_EQ(ui.Transcripción().back().título, "No es el camino:");

  ui.Olvidar();
  ui.Responder("SSSNSSN");  // already solved, keep values, method, drawdown, recalc, go on, stages
  CálculoParámetrosInstantáneos(p, ui);
  const auto textos = ui.Textos();
  EXPECT_NE(std::find(textos.begin(), textos.end(),
                      "Se utilizan los parámetros de corte ya obtenidos anteriormente."),
            textos.end());
  EXPECT_EQ(textos.back(),
            "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Janbu para "
            "suelos.");
  EXPECT_FALSE(pi.ParámetrosInstantáneosDisponibles);
  EXPECT_EQ(p.TablaDovelas.CohesiónBase[2], 2);  // the kept values were used
}

}  // namespace
}  // namespace lomaterra
