// Rock: the Hoek-Brown relations against published values and closed forms, the second pass in
// instantaneous parameters, Leshchinsky-Huang on a rock slope from its strata to convergence and
// Janbu in rock.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <string>
#include <vector>

#include "apoyo/proyectos.h"
#include "equilibrio/acads_apoyo.h"
#include "equilibrio/estratos/hoek_brown.h"
#include "equilibrio/instantaneos.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky_rocas.h"
#include "proyecto/comandos.h"
#include "proyecto/fallos.h"

namespace lomaterra {
namespace {

using pruebas::Fijar;
const double kGrados = 180 / std::acos(-1.0);

TEST(HoekBrown, EjemplosPublicadosYFormasCerradas) {
  // Hammah, Yacoub, Corkum and Curran (2005): σci = 30 MPa, GSI = 5, mi = 2, D = 0 give
  // mb = 0.0672, s = 2.6e-5, a = 0.619. The constants do not depend on the units of σc.
  const ConstantesMacizo c = ConstantesHoekBrown(2, 5, 0);
  EXPECT_NEAR(c.m, 0.0672, 0.00005);
  EXPECT_NEAR(c.s, 2.6e-5, 0.05e-5);
  EXPECT_NEAR(ExponenteHoekBrown(5), 0.619, 0.0005);
  // GSI 100 without disturbance is the intact rock; a tends to 1/2 for a good mass.
  const ConstantesMacizo intacta = ConstantesHoekBrown(12, 100, 0);
  EXPECT_DOUBLE_EQ(intacta.s, 1.0);
  EXPECT_DOUBLE_EQ(intacta.m, 12.0);
  EXPECT_NEAR(ExponenteHoekBrown(100), 0.5, 0.0001);
  // Hoek, Carranza-Torres and Corkum (2002): the global strength of the mass is the strength of
  // the Mohr-Coulomb line fitted over σt < σ3 < σci/4, 2c·cosφ / (1 − sinφ).
  for (double GSI : {20.0, 50.0, 80.0}) {
    const ConstantesMacizo m = ConstantesHoekBrown(10, GSI, 0);
    const double a = ExponenteHoekBrown(GSI), σc = 500;
    const CohesiónFricción cf = EquivalenteMacizo(m.m, m.s, a, σc, 0.25);
    const double φ = cf.fricción / kGrados;
    EXPECT_NEAR(2 * cf.cohesión * std::cos(φ) / (1 - std::sin(φ)),
                ResistenciaGlobalMacizo(m.m, m.s, a, σc), 1e-5 * σc)
        << GSI;
  }
  for (double z : {0.0, 0.1, -0.3, 0.5, 0.8, 0.9})
    EXPECT_NEAR(ArcoSenoSerie(z), std::asin(z), 1e-9);
  // Near 1 the 86 terms of the series fall short of π/2: the tail Σ_{i>85} c_i/(2i+1) with
  // c_i ≈ 1/√(πi) is about 1/√(85π) ≈ 0.061. And no term overflows on the way.
  std::feclearexcept(FE_ALL_EXCEPT);
  const double uno = ArcoSenoSerie(1.0);
  EXPECT_FALSE(std::fetestexcept(FE_OVERFLOW | FE_INVALID | FE_DIVBYZERO));
  EXPECT_GT(std::asin(1.0) - uno, 0.055);
  EXPECT_LT(std::asin(1.0) - uno, 0.065);
}

// Pairs on an exact curve of a = 1/2: (σ1 − σ3)² = m·σc·σ3 + s·σc² with σc = 100.
TEST(HoekBrown, AjusteDeEnsayos) {
  auto σ1 = [](double y, double σ3) { return σ3 + std::sqrt(y); };
  // m = 2, s = 0.5: y = 200σ3 + 5000.
  const std::vector<double> σ3{0, 10, 20};
  const std::vector<double> σ1s{σ1(5000, 0), σ1(7000, 10), σ1(9000, 20)};
  const AjusteEnsayo libre = AjustarEnsayos(σ1s, σ3, 100, false);
  EXPECT_NEAR(libre.m, 2, 1e-9);
  EXPECT_NEAR(libre.s, 0.5, 1e-9);
  const AjusteEnsayo intacta = AjustarEnsayos(σ1s, σ3, 100, true);
  EXPECT_NEAR(intacta.m, 2, 1e-9);
  EXPECT_EQ(intacta.s, 1);
  // y = 200σ3 − 1000 has a negative intercept: s = 0 and the line through the origin,
  // m = Σy / Σx / σc = (1000 + 3000) / 30 / 100.
  const AjusteEnsayo origen =
      AjustarEnsayos({10 + std::sqrt(1000.0), 20 + std::sqrt(3000.0)}, {10, 20}, 100, false);
  EXPECT_EQ(origen.s, 0);
  EXPECT_NEAR(origen.m, 4000.0 / 30 / 100, 1e-9);
  // Two pairs of one σ3 leave no slope.
  EXPECT_THROW(AjustarEnsayos({50, 60}, {10, 10}, 100, false), FalloAritmético);
}

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

TEST(Instantáneos, EntrePuntosConUnEstratoYPorTramosConVarios) {
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
  // Two strata: slices 1 and 2 share c = 2, φ = 30: the least-squares line of two points is the
  // line through them, slope 1 and intercept 2. Slice 3 alone keeps its tangent 0.5 and c 2.
  const RectasInstantáneas r = RectasEntrePuntos(PasePrevio(2));
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
  const double c[] = {1, 0, 0};  // 3 − 8 < 0 in slice 3
  for (int i = 1; i <= 3; ++i) {
    EXPECT_NEAR(d.FricciónBase[i], std::atan(2.0) * kGrados, 1e-9);
    EXPECT_NEAR(d.CohesiónBase[i], c[i - 1], 1e-12);
  }
}

// The slope of the ACADS referee problem as a rock mass (GSI 20: a = 0.65 − 20/200 = 0.55 at the
// bases), from F and µ2 on the given number of slices.
Proyecto TaludDeRoca(double gsi, double F = 1.5, double µ2 = 70, double dovelas = 30) {
  Proyecto p = pruebas::EjemploACADS(dovelas, 1);
  p.TipoDeMaterial = "R";
  auto& e = p.Estrato;
  const ConstantesMacizo c = ConstantesHoekBrown(10, gsi, 0);
  e.m_intacta[1] = 10;
  e.Parámetro_GSI[1] = gsi;
  e.m_macizo[1] = c.m;
  e.s_macizo[1] = c.s;
  e.C_Simple[1] = 60;
  e.PesoUnitarioHúmedo[1] = e.PesoUnitarioSaturado[1] = 2;
  auto& pi = p.ParámetrosIniciales;
  pi.Multiplicador1 = 40;
  pi.Multiplicador2 = µ2;
  pi.FSInicial = F;
  return p;
}

// Run through the menu command from its strata to convergence.
Proyecto Convergido(double F, double µ2, double dovelas) {
  Proyecto p = TaludDeRoca(20, F, µ2, dovelas);
  InterfazGuionada ui;
  EXPECT_EQ(EjecutarComando(ProcesoIterativoEnRocas, p, ui), FinDeComando::Normal);
  EXPECT_EQ(ui.Textos().back(), kTextoFinLeshchinskyRocas);
  return p;
}

double FS(const Proyecto& p) {
  return p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
}

TEST(LeshchinskyRocas, TaludQueConverge) {
  const Proyecto p = Convergido(1.5, 70, 30);
  EXPECT_LT(std::fabs(p.SumaFuerzasHorizontales), 0.001);
  EXPECT_LT(std::fabs(p.SumaFuerzasVerticales), 0.001);
  EXPECT_LT(std::fabs(p.SumaMomentos), 0.009);
  const auto& d = p.TablaDovelas;
  for (long i = 1; i < p.NúmeroBordes; ++i) {
    EXPECT_GT(d.EsfuerzoPrincipalMayor[i], d.EsfuerzoPrincipalMenor[i]) << i;
    EXPECT_NEAR(d.EsfuerzoNormalTotal[i], d.EsfuerzoNormalEfectivo[i] + d.PresiónPoros[i], 1e-12);
  }
  // Another start ends at the same factor; 200 slices (203 unknowns: the pivots are checked one
  // by one, their product would overflow) reach it within the change of the slicing.
  EXPECT_NEAR(FS(Convergido(2.5, 55, 30)), FS(p), 1e-3);
  const Proyecto fino = Convergido(1.5, 50, 200);
  EXPECT_GT(fino.NúmeroBordes, 200);
  EXPECT_NEAR(FS(fino), FS(p), 0.01);
}

TEST(LeshchinskyRocas, GSIDe25OMásOMuchasDovelasTerminanDiciendoPorQué) {
  Proyecto p = TaludDeRoca(30);
  InterfazGuionada ui;
  EXPECT_EQ(EjecutarComando(ProcesoIterativoEnRocas, p, ui), FinDeComando::Fallo);
  const std::string texto = ui.Textos().back();
  EXPECT_NE(texto.find("(estrato 1)"), std::string::npos) << texto;
  EXPECT_NE(texto.find("GSI menor que 25"), std::string::npos) << texto;
  EXPECT_FALSE(p.CálculoHecho);
  // More slices than the whole-matrix inversion can hold are refused before any stage runs.
  p = TaludDeRoca(20, 1.5, 70, 401);
  InterfazGuionada otra;
  EXPECT_EQ(EjecutarComando(ProcesoIterativoEnRocas, p, otra), FinDeComando::Normal);
  EXPECT_EQ(otra.Transcripción().back().título, "Demasiadas dovelas:");
  EXPECT_EQ(p.NúmeroBordes, 0);
}

TEST(JanbuRocas, PuertasYEstratosDesdeElGSI) {
  Proyecto p = TaludDeRoca(20);
  p.ParámetrosIniciales.MétodoDeCálculo = 4;
  InterfazGuionada ui;
  ASSERT_EQ(EjecutarComando(MétodoJanbuEnRocas, p, ui), FinDeComando::Normal);
  EXPECT_EQ(ui.Textos().front(),
            "Ud. va aplicar el método de Janbu para analizar el talud en  'ROCA'");
  EXPECT_EQ(ui.Textos().back(),
            "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Janbu "
            "para Rocas.");
  // mi = 10, GSI = 20, σc = 60: c = 0.0098·60·e^((0.0455 − 0.0073 ln 10)·20) = 1.04372,
  // φ = 0.424·20 − 0.0016·400 − 6 + 16 ln 10 = 38.6814.
  EXPECT_NEAR(p.Estrato.Cohesión[1], 1.04372, 1e-5);
  EXPECT_NEAR(p.Estrato.Fricción[1], 38.6814, 1e-4);
  EXPECT_NEAR(p.TablaDovelas.TanFricciónBase[1], std::tan(38.6814 / kGrados), 1e-5);
  EXPECT_TRUE(p.CálculoHecho);
}

}  // namespace
}  // namespace lomaterra
