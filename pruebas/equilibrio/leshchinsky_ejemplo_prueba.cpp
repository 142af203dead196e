// The sample project ejemplos/leshchinsky_homogeneo.cod: the referee problem EX1(a) of ACADS
// through the whole chain, file, six stages and the variational method.
//
// To write the file again after a change of the format or of the sample:
//   prueba_equilibrio --gtest_also_run_disabled_tests --gtest_filter='*GenerarEjemplo*'
#include <gtest/gtest.h>

#include <cmath>
#include <filesystem>
#include <fstream>
#include <string>

#include "apoyo/apoyo.h"
#include "equilibrio/acads_apoyo.h"
#include "equilibrio/leshchinsky.h"
#include "equilibrio/leshchinsky_apoyo.h"
#include "proyecto/archivo.h"
#include "proyecto/comandos.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

const char* const kArchivo = "leshchinsky_homogeneo.cod";

// ACADS EX1(a): crest at 35 from X = 70 to 50, slope 2H:1V down to the toe at (30, 25), level
// ground to X = 20; one soil with c' = 3 kPa, φ' = 19.6°, γ = 20 kN/m3, dry, in tons (÷ 9.81).
// The critical circle of the referee (centre (29.7, 53.2), radius 28.2 m) enters the crest at
// X = 29.7 + √(28.2² − 18.2²) = 51.2407 and touches the level ground at (29.7, 25). Starts as the
// tips of the parameters screen suggest: µ1 = 40 between the two crossings, µ2 = 55 above the
// crest, FS = 1 and a crest stress of −0.1 ton/m2, between −c/tanφ = −0.86 and 0.
Proyecto LeshchinskyHomogéneo() {
  Proyecto p = pruebas::EjemploACADS(30, 1);
  p.InformaciónDada = true;
  p.Ventana.TextoProyecto =
      "Problema de referencia EX1(a) de ACADS: talud homogéneo de 10 m de altura, pendiente 2H:1V, "
      "c' = 3 kPa, fi' = 19.6 grados, peso unitario 20 kN/m3, seco; círculo crítico de centro "
      "(29.7, 53.2) y "
      "radio 28.2 m. Método de Leshchinsky y Huang.";
  p.InformaciónProyecto = {"K0+000", "K0+000", "15/01/2026", "Ing. Responsable",
                           "Lomaterra, proyecto de ejemplo"};
  p.CoordenadasFalla.X[1] = 51.2407;
  p.NúmeroEstratosCaracterizados = 1;
  auto& pi = p.ParámetrosIniciales;
  pi.Multiplicador1 = 40;
  pi.Multiplicador2 = 55;
  pi.EsfuerzoInicialCresta = -0.1;
  CargarPanelCoordenadas(p, 1, 1);
  return p;
}

TEST(LeshchinskyEjemplo, DISABLED_GenerarEjemplo) {
  Proyecto p = LeshchinskyHomogéneo();
  InterfazGuionada ui;
  ASSERT_TRUE(GuardarProyecto(p, pruebas::RutaEjemplo(kArchivo), ui));
}

TEST(LeshchinskyEjemplo, ElArchivoEsElDeSuProyecto) {
  const std::string copia = pruebas::CarpetaTemporal() + "/" + kArchivo;
  Proyecto p = LeshchinskyHomogéneo();
  InterfazGuionada ui;
  ASSERT_TRUE(GuardarProyecto(p, copia, ui));
  ASSERT_TRUE(std::filesystem::exists(pruebas::RutaEjemplo(kArchivo)));
  EXPECT_EQ(pruebas::LeerArchivo(copia), pruebas::LeerArchivo(pruebas::RutaEjemplo(kArchivo)));
}

// The referee problem from its file, through the six stages: published factors of rigorous
// methods lie in 0.986 - 0.993; the band accepted here is that range widened by 0.002 each way
// (the circle given to 0.1 m, the run stopping as soon as the three sums pass rather than when the
// differential equation is met, the stresses resolved at the slice middles).
TEST(LeshchinskyEjemplo, ConvergeAlFactorDeLosMétodosRigurosos) {
  Proyecto p;
  InterfazGuionada ui;  // N to every question: no drawdown, no to each step until the sums pass
  ASSERT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo(kArchivo), ui));
  ASSERT_EQ(EjecutarComando(ProcesoIterativoEnSuelos, p, ui), FinDeComando::Normal);
  ASSERT_FALSE(ui.Textos().empty());
  EXPECT_EQ(ui.Textos().back(),
            "Se finalizó el cálculo de esfuerzos y factor de seguridad, por el método de "
            "Leshchinsky and Ching-Chuan "
            "Huang para suelos.");
  EXPECT_TRUE(p.CálculoHecho);
  // The centre of the arc that the stages computed is the referee's.
  EXPECT_NEAR(p.ParámetrosIniciales.CentroX, 29.7, 0.01);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroY, 53.2, 0.01);
  const double fs = p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
  EXPECT_GT(fs, 0.984);
  EXPECT_LT(fs, 0.995);
  EXPECT_GE(p.NúmeroBordes - 1, 30);
}

}  // namespace
}  // namespace lomaterra

namespace lomaterra {
namespace {

// The stratified sample (fill over clay and sand, phreatic line, a crack with water, a strip load
// and a line load on the crest) by method 1: at the crack foot the crest stress is taken as the
// water pressure in the crack, 1.5 ton/m2 at 1.5 m of water, rounded to 2. The stored stresses
// must carry the mass: vertically the weight and the loads, horizontally the crack water and the
// lateral loads, as the three sums say once they pass.
TEST(LeshchinskyEjemplo, EstratificadoConGrietaCargasYAguaQuedaEnEquilibrio) {
  Proyecto p;
  pruebas::InterfazEspía ui;
  ASSERT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo("talud_estratificado.cod"), ui));
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 1;
  pi.Multiplicador1 = 20;
  pi.Multiplicador2 = 40;
  pi.FSInicial = 1.5;
  pi.EsfuerzoInicialCresta = 2;
  pruebas::SumasPorPaso sumas;
  sumas.Espiar(ui, p);
  ASSERT_EQ(EjecutarComando(ProcesoIterativoEnSuelos, p, ui), FinDeComando::Normal);
  sumas.ComprobarFin();
  ASSERT_TRUE(p.CálculoHecho) << ui.Textos().back();
  ASSERT_GT(p.GrietaTracción.EmpujeGrieta, 0);
  ASSERT_GT(p.NúmeroCargasUniformes + p.NúmeroCargasPuntuales, 0);

  const auto& d = p.TablaDovelas;
  double vertical = 0, horizontal = 0;
  for (int i = 1; i < p.NúmeroBordes; ++i) {
    const double b = d.Ancho[i], σ = d.EsfuerzoNormalTotal[i], τ = d.EsfuerzoTangencial[i],
                 s = d.PendienteBase[i];
    const double W =
        (d.YTalud[i] - d.YBase[i]) * d.PesoUnitarioMedio[i] + d.AlturaAguaSobreTalud.Leer(i);
    vertical += (σ + τ * s) * b - W * b;
    horizontal += (τ - σ * s) * b;
    for (int q = 1; q <= p.NúmeroCargasUniformes; ++q)
      if (p.CargaUniforme.xo[q] <= d.XMedio[i] && d.XMedio[i] <= p.CargaUniforme.xf[q]) {
        vertical -= p.CargaUniforme.qy[q] * b;
        horizontal += p.CargaUniforme.qx[q] * d.PendienteTalud[i] * b;
      }
    for (int q = 1; q <= p.NúmeroCargasPuntuales; ++q)
      if (d.BordeX[i + 1] <= p.CargaPuntual.Xpuntual[q] &&
          p.CargaPuntual.Xpuntual[q] <= d.BordeX[i]) {
        vertical -= p.CargaPuntual.Py[q];
        horizontal -= p.CargaPuntual.Px[q];
      }
  }
  horizontal -= p.GrietaTracción.EmpujeGrieta;
  EXPECT_NEAR(vertical, 0, 0.01);
  EXPECT_NEAR(horizontal, 0, 0.01);
  const double fs = p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
  EXPECT_GT(fs, 1.0);
  EXPECT_LT(fs, 3.0);
}

}  // namespace
}  // namespace lomaterra
