// The second pass in instantaneous parameters: the lines of case 2 and the tangent of case 1 in
// rock. The command itself runs on its sample project through lomaterra-lote.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "apoyo/proyectos.h"
#include "equilibrio/instantaneos.h"
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
  const RectasInstantáneas r = RectasEntrePuntos(p);
  EXPECT_NEAR(r.pendiente[1], 1, 1e-12);
  EXPECT_NEAR(r.intercepto[2], 2, 1e-12);
  EXPECT_EQ(r.pendiente[3], 0.5);
  EXPECT_EQ(r.intercepto[3], 2);
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

}  // namespace
}  // namespace lomaterra
