// Leshchinsky-Huang and Janbu in rock. Leshchinsky-Huang: the analytic Jacobian against finite
// differences and a rock slope from its strata to convergence.
#include <gtest/gtest.h>

#include <cmath>
#include <string>
#include <vector>

#include "apoyo/proyectos.h"
#include "equilibrio/acads_apoyo.h"
#include "equilibrio/estratos/hoek_brown.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky_rocas.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/comandos.h"
#include "proyecto/fallos.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

using pruebas::Fijar;

// Six slices on a curved base, water on three of them, a uniform and a point load, seismic kh.
Proyecto SeisDovelas() {
  Proyecto p;
  p.NúmeroBordes = 7;
  p.ParámetrosIniciales.CoeficienteSísmicoHorizontal = 0.1;
  p.ParámetrosIniciales.CoeficienteSísmicoVertical = 0.05;
  auto& d = p.TablaDovelas;
  Fijar(d.BordeX, {12, 10, 8, 6, 4, 2, 0});
  Fijar(d.XMedio, {11, 9, 7, 5, 3, 1});
  Fijar(d.Ancho, {2, 2, 2, 2, 2, 2});
  Fijar(d.YBase, {9, 6.5, 4.8, 3.6, 3.0, 2.8});
  Fijar(d.YTalud, {12, 11, 9.5, 7.5, 5.5, 3.5});
  Fijar(d.YFreático, {9, 7, 5.5, 4, 3, 2.8});
  Fijar(d.PendienteBase, {1.4, 1.0, 0.7, 0.45, 0.2, 0.05});
  Fijar(d.PendienteTalud, {0.5, 0.6, 0.9, 1.0, 1.0, 0.8});
  Fijar(d.PesoUnitarioMedio, {2.5, 2.5, 2.6, 2.6, 2.6, 2.6});
  Fijar(d.PresiónPoros, {0, 0.5, 0.7, 0.4, 0, 0});
  Fijar(d.AlturaAguaSobreTalud, {0, 0, 0, 0, 0, 0});
  Fijar(d.m_Base, {0.6, 0.6, 0.6, 0.9, 0.9, 0.9});
  Fijar(d.s_Base, {2e-4, 2e-4, 2e-4, 5e-4, 5e-4, 5e-4});
  Fijar(d.a_Base, {0.55, 0.55, 0.55, 0.53, 0.53, 0.53});
  Fijar(d.C_SimpleBase, {300, 300, 300, 500, 500, 500});
  Fijar(d.CohesiónBase, {0, 0, 0, 0, 0, 0});
  Fijar(d.TanFricciónBase, {0, 0, 0, 0, 0, 0});
  pruebas::CargasUniformes(p, {{8.5, 12, 0.3, 1.5}});
  pruebas::CargasPuntuales(p, {{5, 7.5, 0.5, 2}});
  return p;
}

TEST(LeshchinskyRocas, JacobianoContraDiferenciasFinitas) {
  Proyecto p = SeisDovelas();
  const DatosVariacionales dv = LeerDatosVariacionales(p);
  const BasesRoca r = LeerBasesRoca(p);
  FilaVariacional fila;
  fila.µ1 = 4;
  fila.µ2 = 18;
  fila.F = 1.3;
  fila.σ = {0, 3, 5, 6, 5.5, 4, 2};
  MatrizDensa J;
  std::vector<double> R;
  SistemaNewtonRocas(dv, r, fila, J, R);
  const long m = dv.n + 3;
  auto valor = [](FilaVariacional& f, long j) -> double& {
    return j == 1 ? f.µ1 : j == 2 ? f.µ2 : j == 3 ? f.F : f.σ[static_cast<std::size_t>(j - 3)];
  };
  for (long j = 1; j <= m; ++j) {
    FilaVariacional más = fila, menos = fila;
    const double h = 1e-6 * std::max(1.0, std::fabs(valor(más, j)));
    valor(más, j) += h;
    valor(menos, j) -= h;
    MatrizDensa Jx;
    std::vector<double> Rmás, Rmenos;
    SistemaNewtonRocas(dv, r, más, Jx, Rmás);
    SistemaNewtonRocas(dv, r, menos, Jx, Rmenos);
    for (long i = 1; i <= m; ++i) {
      // R holds the residuals with their sign changed.
      const double numérica =
          -(Rmás[static_cast<std::size_t>(i)] - Rmenos[static_cast<std::size_t>(i)]) / (2 * h);
      EXPECT_NEAR(J(i, j), numérica, 1e-5 * std::max(1.0, std::fabs(numérica))) << i << ", " << j;
    }
  }
}

// The slope of the ACADS referee problem as a rock mass of GSI 20 (a = 0.65 − 20/200 = 0.55 at
// the bases), run through the menu command from its strata to convergence.
Proyecto TaludDeRoca(double gsi) {
  Proyecto p = pruebas::EjemploACADS(30, 1);
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
  pi.Multiplicador2 = 70;
  pi.FSInicial = 1.5;
  return p;
}

// The rock slope from F and µ2 on the given number of slices, run to convergence.
Proyecto Convergido(double F, double µ2, double dovelas) {
  Proyecto p = TaludDeRoca(20);
  auto& pi = p.ParámetrosIniciales;
  pi.FSInicial = F;
  pi.Multiplicador2 = µ2;
  pi.NúmeroDovelas = dovelas;
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

TEST(LeshchinskyRocas, GSIDe25OMásTerminaDiciendoPorQué) {
  Proyecto p = TaludDeRoca(30);
  InterfazGuionada ui;
  EXPECT_EQ(EjecutarComando(ProcesoIterativoEnRocas, p, ui), FinDeComando::Fallo);
  const std::string texto = ui.Textos().back();
  EXPECT_NE(texto.find("(estrato 1)"), std::string::npos) << texto;
  EXPECT_NE(texto.find("GSI menor que 25"), std::string::npos) << texto;
  EXPECT_FALSE(p.CálculoHecho);
  // More slices than the whole-matrix inversion can hold are refused before any stage runs.
  p = TaludDeRoca(20);
  p.ParámetrosIniciales.NúmeroDovelas = 401;
  InterfazGuionada otra;
  EXPECT_EQ(EjecutarComando(ProcesoIterativoEnRocas, p, otra), FinDeComando::Normal);
  EXPECT_EQ(otra.Transcripción().back().título, "Demasiadas dovelas:");
  EXPECT_EQ(p.NúmeroBordes, 0);
}

TEST(JanbuRocas, PuertasYEstratosDesdeElGSI) {
  const char* kAviso = "Ud. va aplicar el método de Janbu para analizar el talud en  'ROCA'";
  Proyecto p = TaludDeRoca(20);
  p.ParámetrosIniciales.MétodoDeCálculo = 4;
  InterfazGuionada ui;
  ASSERT_EQ(EjecutarComando(MétodoJanbuEnRocas, p, ui), FinDeComando::Normal);
  EXPECT_EQ(ui.Textos().front(), kAviso);
  EXPECT_EQ(
      ui.Textos().back(),
      "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de Janbu para "
      "Rocas.");
  // mi = 10, GSI = 20, σc = 60: c = 0.0098·60·e^((0.0455 − 0.0073 ln 10)·20) = 1.04372,
  // φ = 0.424·20 − 0.0016·400 − 6 + 16 ln 10 = 38.6814.
  EXPECT_NEAR(p.Estrato.Cohesión[1], 1.04372, 1e-5);
  EXPECT_NEAR(p.Estrato.Fricción[1], 38.6814, 1e-4);
  EXPECT_NEAR(p.TablaDovelas.TanFricciónBase[1], std::tan(38.6814 * std::acos(-1.0) / 180), 1e-5);
  EXPECT_TRUE(p.CálculoHecho);
}

}  // namespace
}  // namespace lomaterra
