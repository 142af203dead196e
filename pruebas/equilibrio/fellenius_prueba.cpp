// The Fellenius command: a three-slice case worked by hand, the circular
// formula against its reduced form, and a fault that ends the command with nothing stored.
#include <gtest/gtest.h>

#include <cmath>

#include "equilibrio/dovelas.h"
#include "equilibrio/dovelas_apoyo.h"
#include "equilibrio/fellenius.h"
#include "proyecto/comandos.h"
#include "equilibrio/textos_apoyo.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

using namespace pruebas;

const std::string kFinal = Final("Fellenius");

// ---------------------------------------------------------------- three slices by hand

// Three slices 3 m wide between edges 9, 6, 3, 0 on a surface of two straight stretches whose
// first point is at height 6 and last at 0: XR = (9 + 0)/2 = 4.5, YR = 1.5·6 = 9. All stage
// flags are set and the stage question is answered No, so the method works on these rows.
class TresDovelas : public ::testing::Test {
 protected:
  void SetUp() override {
    p = ProyectoDeSuelo(3);
    PonerTramos(p, {{1, 2, "L"}, {2, 3, "L"}});
    p.NúmeroBordes = 4;
    auto& d = p.TablaDovelas;
    d.BordeX.Redimensionar(4);
    for (long e = 1; e <= 4; ++e) d.BordeX[e] = 12 - 3 * e;
    struct Fila {
      double xm, yt, yb, pb, pum, u, c, t, pt, agua;
    };
    const Fila filas[] = {
        {7.5, 9, 4.5, 1, 2, 1, 1, 0.5, 0.2, 0},
        {4.5, 7, 1.5, 0, 2, 2, 1, 0.5, 0.2, 0},
        {1.5, 4, 1.5, -1, 1.8, 0, 0.5, 0.6, 0.5, 0.5},
    };
    for (Tabla<double>* c : {&d.XMedio, &d.YTalud, &d.YBase, &d.PendienteBase, &d.PesoUnitarioMedio,
                             &d.PresiónPoros, &d.CohesiónBase, &d.TanFricciónBase, &d.PendienteTalud,
                             &d.AlturaAguaSobreTalud, &d.Ancho})
      c->Redimensionar(3);
    for (long i = 1; i <= 3; ++i) {
      const Fila& f = filas[i - 1];
      d.XMedio[i] = f.xm, d.YTalud[i] = f.yt, d.YBase[i] = f.yb, d.PendienteBase[i] = f.pb;
      d.PesoUnitarioMedio[i] = f.pum, d.PresiónPoros[i] = f.u, d.CohesiónBase[i] = f.c;
      d.TanFricciónBase[i] = f.t, d.PendienteTalud[i] = f.pt, d.AlturaAguaSobreTalud[i] = f.agua;
      d.Ancho[i] = 3;
    }
    p.Trabajo.XMáximaFalla = 9, p.Trabajo.XMínimaFalla = 0;
    p.Trabajo.YPrimerPuntoFalla = 6, p.Trabajo.YÚltimoPuntoFalla = 0;
    pruebas::EtapasHechas(p);
  }
  void Cargas() {
    // A uniform load over 6..9 (slice 1) and a point load at x = 4 (slice 2), the crack with its
    // water 1 m deep (push 0.5·1² = 0.5), kh = 0.1.
    pruebas::CargasUniformes(p, {{6, 9, 0.5, 2}});
    pruebas::CargasPuntuales(p, {{4, 7, 1, 3}});
    auto& g = p.GrietaTracción;
    g.AbscisaPrimerPunto = 9, g.OrdenadaPrimerPunto = 9, g.AbscisaSegundoPunto = 9, g.OrdenadaSegundoPunto = 6;
    g.OrdenadaNF = 7, g.EmpujeGrieta = 0.5;
    p.ParámetrosIniciales.CoeficienteSísmicoHorizontal = 0.1;
  }
  Proyecto p;
};

TEST_F(TresDovelas, CargaGrietaYSismoCalculadosAMano) {
  Cargas();
  InterfazGuionada ui("NN");
  ASSERT_EQ(EjecutarComando(MétodoFellenius, p, ui), FinDeComando::Normal);
  // Slice 1: α = 45°, W = 4.5·2·3 = 27, ℓ = 3√2.
  //   N = 27·cos α - 27·0.1·sin α = 17.1827; + 3·0.5·0.2·sin α = 0.2121; + 3·2·cos α = 4.2426
  //   N = 21.6375; R = (21.6375 - 1·4.2426)·0.5 + 1·4.2426 = 12.9401
  //   resisting += R·sin α·(7.5 - 4.5) - R·cos α·(4.5 - 9) = 68.624
  //   D = 3·27 - (9 + 4.5 - 18)·(0.05·27) - (-4.5·sin α + 3·cos α)·N = 81 + 6.075 + 22.950
  //   loads: qx·(9 - 9) = 0, 3·2·(7.5 - 4.5) = 18; crack (9 - (6 + 1/3))·0.5 = 1.3333; D = 129.358
  // Slice 2: α = 0, W = 5.5·2·3 = 33, N = 33 + 3 (Py) = 36, ℓ = 3, R = (36 - 6)·0.5 + 3 = 18
  //   resisting += -18·(1.5 - 9) = 135; D = -(7 + 1.5 - 18)·1.65 = 15.675
  //   loads: (4 - 4.5)·3 + (7 - 9)·1 = -3.5; crack 1.3333; D = 13.5083
  // Slice 3: α = -45°, W = 2.5·1.8·3 + 0.5·3 = 15, N = 15·cos α + 1.5·sin 45° = 11.6673
  //   R = 11.6673·0.6 + 0.5·3√2 = 9.1217; resisting += 9.1217·(3·sin 45° + 7.5·cos 45°) = 67.726
  //   D = -3·15 - (5.5 - 18)·0.75 - (7.5·sin 45° - 3·cos 45°)·N + 1.3333 = -71.4167
  // Crack on the resisting side: -0.5·0.5·sin²45°·(9 - 4.5) + 0.5·0.5·sin 45°·cos 45°·(6.3333 - 9)
  //   = -0.5625 - 0.3333
  // FS = 270.4542 / 71.45 = 3.785223.
  EXPECT_NEAR(p.HistoriaIteraciones.FactorDeSeguridad[1], 270.4541666666667 / 71.45, 1e-9);
  EXPECT_EQ(p.NúmeroIteraciones, 1);
  const auto& d = p.TablaDovelas;
  EXPECT_NEAR(d.FuerzaNormal[1], 21.637467504308354, 1e-9);
  EXPECT_NEAR(d.FuerzaNormal[2], 36, 1e-12);
  EXPECT_NEAR(d.FuerzaNormal[3], 11.667261889578034, 1e-9);
  EXPECT_NEAR(d.ÁnguloBase[3], -std::atan(1.0), 1e-12);
  // Stresses: σ = cos α·N/b: 5.1, 12, 2.75; τ = ((σ - u)·t + c)/FS.
  const double fs = 270.4541666666667 / 71.45;
  EXPECT_NEAR(d.EsfuerzoNormalTotal[1], 5.1, 1e-9);
  EXPECT_NEAR(d.EsfuerzoNormalTotal[2], 12, 1e-9);
  EXPECT_NEAR(d.EsfuerzoNormalTotal[3], 2.75, 1e-9);
  EXPECT_NEAR(d.EsfuerzoTangencial[2], (10 * 0.5 + 1) / fs, 1e-9);
  EXPECT_NEAR(d.EsfuerzoNormalEfectivo[1], 4.1, 1e-9);
  EXPECT_NEAR(p.SumaNormalesTotales, 5.1 + 12 + 2.75, 1e-9);
  EXPECT_NEAR(p.SumaNormalesEfectivos, 4.1 + 10 + 2.75, 1e-9);
  EXPECT_NEAR(p.SumaTangenciales, ((4.1 * 0.5 + 1) + (10 * 0.5 + 1) + (2.75 * 0.6 + 0.5)) / fs, 1e-9);
  // The transcript: drawdown, the stage question (No keeps these slices), the closing words.
  const std::vector<Apunte> esperado = {
      {"pregunta", "", kDesembalse, "N"}, {"pregunta", "", kPrimeraVez, "N"}, {"mensaje", "", kFinal, ""}};
  EXPECT_EQ(ui.Transcripción(), esperado);
  EXPECT_FALSE(p.CálculoHecho);
}

TEST_F(TresDovelas, LasCargasSinSuBanderaNoActúan) {
  // After a New project the load counts survive but their flags are cleared.
  Cargas();
  p.CargasUniformesDadas = p.CargasPuntualesDadas = false;
  InterfazGuionada conBandera("NN"), sinBandera("NN");
  MétodoFellenius(p, sinBandera);
  const double sin = p.HistoriaIteraciones.FactorDeSeguridad[1];
  EXPECT_NEAR(p.TablaDovelas.FuerzaNormal[2], 33, 1e-12);
  p.CargasUniformesDadas = p.CargasPuntualesDadas = true;
  MétodoFellenius(p, conBandera);
  EXPECT_NE(p.HistoriaIteraciones.FactorDeSeguridad[1], sin);
}

TEST_F(TresDovelas, UnaSumaMotoraNulaTerminaConElMensajeDeFalloYSinGuardarNada) {
  // Weightless slices and no loads: every driving moment is 0.
  for (long i = 1; i <= 3; ++i) p.TablaDovelas.PesoUnitarioMedio[i] = p.TablaDovelas.AlturaAguaSobreTalud[i] = 0;
  p.NúmeroIteraciones = 1;
  p.HistoriaIteraciones.Redimensionar(1);
  p.HistoriaIteraciones.FactorDeSeguridad[1] = 1.23;
  p.TablaDovelas.FuerzaNormal.Redimensionar(3);
  p.TablaDovelas.FuerzaNormal[2] = 9;
  p.SumaTangenciales = 4;
  InterfazGuionada ui("NN");
  EXPECT_EQ(EjecutarComando(MétodoFellenius, p, ui), FinDeComando::Fallo);
  ASSERT_EQ(ui.Transcripción().size(), 3u);
  EXPECT_EQ(ui.Transcripción()[2].título, TítuloDeFallo());
  EXPECT_EQ(ui.Transcripción()[2].texto, TextoDeFallo("división por cero en el factor de seguridad"));
  EXPECT_EQ(p.NúmeroIteraciones, 1);
  EXPECT_EQ(p.HistoriaIteraciones.FactorDeSeguridad[1], 1.23);
  EXPECT_EQ(p.TablaDovelas.FuerzaNormal[2], 9);
  EXPECT_EQ(p.SumaTangenciales, 4);
}

TEST_F(TresDovelas, UnAnchoNuloOUnaBaseFueraDelArcoTerminanSinGuardarNada) {
  struct Caso {
    const char* detalle;
    void (*preparar)(Proyecto&);
  };
  const Caso casos[] = {
      {"división por cero en el esfuerzo normal", [](Proyecto& q) { q.TablaDovelas.Ancho[2] = 0; }},
      {"raíz cuadrada de un número negativo en el ángulo de la base",
       [](Proyecto& q) {
         // An arc of radius 2 about (0, 10): the middle at 7.5 lies outside it.
         PonerTramos(q, {{1, 2, "C"}});
         q.ParámetrosIniciales.Radio = 2, q.ParámetrosIniciales.CentroY = 10;
       }},
  };
  for (const Caso& c : casos) {
    SetUp();
    c.preparar(p);
    p.TablaDovelas.FuerzaNormal.Redimensionar(3);
    InterfazGuionada ui("NN");
    EXPECT_EQ(EjecutarComando(MétodoFellenius, p, ui), FinDeComando::Fallo) << c.detalle;
    EXPECT_EQ(ui.Transcripción().back().texto, TextoDeFallo(c.detalle));
    EXPECT_EQ(p.NúmeroIteraciones, 0);
    for (long i = 1; i <= 3; ++i) EXPECT_EQ(p.TablaDovelas.FuerzaNormal[i], 0);
  }
}

TEST_F(TresDovelas, LaBaseSubeDeLaPrimeraALaÚltimaYLosÁngulosSeTomanAbsolutos) {
  p.Trabajo.YPrimerPuntoFalla = 0, p.Trabajo.YÚltimoPuntoFalla = 6;
  InterfazGuionada ui("NN");
  MétodoFellenius(p, ui);
  EXPECT_NEAR(p.TablaDovelas.ÁnguloBase[3], std::atan(1.0), 1e-12);
}

TEST(MomentoDeCargas, SobreElCentroDelArcoOSobreElPuntoDeReferencia) {
  // One slice between edges 6 and 3 (middle 4.5, width 3, surface at 8 with slope 0.2); a uniform
  // load over 3..6 (qx 0.5, qy 2); a point load (1, 3) at (5, 8.5) and another at x = 7, outside;
  // crack from height 10 with water 3 m deep: push 0.5·3² = 4.5 at 10 + 3/3 = 11.
  Proyecto p = ProyectoDeSuelo(3);
  p.NúmeroBordes = 2;
  auto& d = p.TablaDovelas;
  d.BordeX.Redimensionar(2);
  d.BordeX[1] = 6, d.BordeX[2] = 3;
  for (Tabla<double>* c : {&d.XMedio, &d.Ancho, &d.YTalud, &d.PendienteTalud}) c->Redimensionar(1);
  d.XMedio[1] = 4.5, d.Ancho[1] = 3, d.YTalud[1] = 8, d.PendienteTalud[1] = 0.2;
  pruebas::CargasUniformes(p, {{3, 6, 0.5, 2}});
  pruebas::CargasPuntuales(p, {{5, 8.5, 1, 3}, {7, 0, 50, 50}});
  p.GrietaTracción.OrdenadaSegundoPunto = 10, p.GrietaTracción.OrdenadaNF = 13, p.GrietaTracción.EmpujeGrieta = 4.5;

  // Circular, centre (2, 20); the point given is not used:
  //   -3·0.5·0.2·(20 - 8) + 3·2·(4.5 - 2) + (5 - 2)·3 - (20 - 8.5)·1 + (20 - 11)·4.5
  //   = -3.6 + 15 - 2.5 + 40.5 = 49.4
  PonerTramos(p, {{1, 2, "C"}});
  p.ParámetrosIniciales.CentroX = 2, p.ParámetrosIniciales.CentroY = 20;
  EXPECT_NEAR(MomentoDeCargas(p, 100, 100, 1), 49.4, 1e-12);
  // Other surface, about (4, 12):
  //   3·0.5·0.2·(8 - 12) + 3·2·(4.5 - 4) + (5 - 4)·3 + (8.5 - 12)·1 + (12 - 11)·4.5
  //   = -1.2 + 3 - 0.5 + 4.5 = 5.8
  PonerTramos(p, {{1, 2, "L"}, {2, 3, "L"}});
  EXPECT_NEAR(MomentoDeCargas(p, 4, 12, 1), 5.8, 1e-12);
}

// ---------------------------------------------------------------- circular surface, whole run

TEST(FelleniusCircular, SinSismoNiCargasEsLaSumaDeResistenciasSobreLaDeMomentos) {
  // Slope from the crest (20, 10) down to the toe (5, 0); arc of radius 15 through both; one
  // soil c = 1, φ = 30°; a phreatic line from (30, 7) to (-5, -2).
  Proyecto p = ProyectoDeSuelo(8);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{30, 10}, {20, 10}, {5, 0}, {-5, 0}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 10}, {5, 0}});
  PonerLínea(p.CoordenadasFreático, p.NúmeroPuntosFreático, {{30, 7}, {-5, -2}});
  PonerTramos(p, {{1, 2, "C"}});
  AñadirEstrato(p, {{40, -20}, {-20, -20}}, {.cohesión = 1, .fricción = 30, .húmedo = 1.8, .saturado = 2.0});
  p.ParámetrosIniciales.Radio = 15;
  InterfazGuionada ui("N");
  ASSERT_EQ(EjecutarComando(MétodoFellenius, p, ui), FinDeComando::Normal);

  // The centre on the bisector of the chord, up and to the left, √(225 - 325/4) from its middle.
  const double cuerda = std::sqrt(325.0), h = std::sqrt(225 - cuerda * cuerda / 4);
  const double cx = 12.5 - h * 10 / cuerda, cy = 5 + h * 15 / cuerda;
  ASSERT_NEAR(p.ParámetrosIniciales.CentroX, cx, 1e-9);
  ASSERT_NEAR(p.ParámetrosIniciales.CentroY, cy, 1e-9);
  const auto& d = p.TablaDovelas;
  ASSERT_EQ(p.NúmeroBordes, 9);
  double resistente = 0, motor = 0;
  for (long i = 1; i <= 8; ++i) {
    const double x = d.XMedio[i];
    EXPECT_NEAR(d.YBase[i], cy - std::sqrt(225 - (x - cx) * (x - cx)), 1e-9);
    const double a = std::asin((x - cx) / 15), b = d.Ancho[i];
    const double w = (d.YTalud[i] - d.YBase[i]) * d.PesoUnitarioMedio[i] * b + d.AlturaAguaSobreTalud[i] * b;
    const double l = b / std::cos(a);
    resistente += (w * std::cos(a) - d.PresiónPoros[i] * l) * std::tan(30 * M_PI / 180) + 1 * l;
    motor += w * 15 * std::sin(a);
  }
  EXPECT_NEAR(p.HistoriaIteraciones.FactorDeSeguridad[1], resistente / motor, 1e-9);
  EXPECT_GT(d.PresiónPoros[4], 0);
  const std::vector<Apunte> esperado = {{"pregunta", "", kDesembalse, "N"}, {"mensaje", "", kFinal, ""}};
  EXPECT_EQ(ui.Transcripción(), esperado);
  EXPECT_TRUE(p.TodasLasEtapas());

  // A second run asked to rebuild the slices finds the pressures of the first and asks about them.
  InterfazGuionada otra("NSS");
  ASSERT_EQ(EjecutarComando(MétodoFellenius, p, otra), FinDeComando::Normal);
  const std::vector<Apunte> segunda = {
      {"pregunta", "", kDesembalse, "N"},
      {"pregunta", "", kPrimeraVez, "S"},
      {"pregunta", "",
       "Ya existen presión de poros. ¿Desea estimarlas a partir de las coordenadas del nivel freático?", "S"},
      {"mensaje", "", kFinal, ""}};
  EXPECT_EQ(otra.Transcripción(), segunda);
  EXPECT_NEAR(p.HistoriaIteraciones.FactorDeSeguridad[1], resistente / motor, 1e-9);
  EXPECT_EQ(p.NúmeroIteraciones, 1);
}

TEST(FelleniusCircular, ElSismoTomaSuBrazoDelDobleDeLaOrdenadaDelCentroMenosLaAltura) {
  // One slice 2 m wide, middle at 6 under an arc of radius 10 centred at (0, 10): sin α = 0.6,
  // cos α = 0.8, base at 10 - 8 = 2, surface at 6 (h = 4), γ = 2, u = 1, c = 1, tan φ = 0.5;
  // kh = 0.2, kv = 0.1; crack water 2 m deep over its lower point at 6: push 2, at 6 + 2/3.
  //   W = 4·2·2 = 16, ℓ = 2/0.8 = 2.5, N = 1.1·16·0.8 - 16·0.2·0.6 = 12.16
  //   resisting: (12.16 - 2.5)·0.5 + 2.5 = 7.33, less the crack 2·0.6·0.5 = 0.6: 6.73
  //   driving: (2·10 - 4)·(0.2·0.5·16) + 1.1·16·10·0.6 = 25.6 + 105.6, crack (10 - 6.6667)·2
  Proyecto p = ProyectoDeSuelo(1);
  PonerTramos(p, {{1, 2, "C"}});
  auto& pi = p.ParámetrosIniciales;
  pi.Radio = 10, pi.CentroX = 0, pi.CentroY = 10;
  pi.CoeficienteSísmicoHorizontal = 0.2, pi.CoeficienteSísmicoVertical = 0.1;
  p.GrietaTracción.OrdenadaSegundoPunto = 6, p.GrietaTracción.OrdenadaNF = 8, p.GrietaTracción.EmpujeGrieta = 2;
  p.NúmeroBordes = 2;
  auto& d = p.TablaDovelas;
  d.BordeX.Redimensionar(2);
  d.BordeX[1] = 7, d.BordeX[2] = 5;
  for (Tabla<double>* c : {&d.XMedio, &d.YTalud, &d.YBase, &d.PesoUnitarioMedio, &d.PresiónPoros, &d.CohesiónBase,
                           &d.TanFricciónBase, &d.PendienteTalud, &d.PendienteBase, &d.AlturaAguaSobreTalud, &d.Ancho})
    c->Redimensionar(1);
  d.XMedio[1] = 6, d.YTalud[1] = 6, d.YBase[1] = 2, d.PesoUnitarioMedio[1] = 2, d.PresiónPoros[1] = 1;
  d.CohesiónBase[1] = 1, d.TanFricciónBase[1] = 0.5, d.Ancho[1] = 2;
  p.Trabajo.YPrimerPuntoFalla = 10, p.Trabajo.YÚltimoPuntoFalla = 0;
  pruebas::EtapasHechas(p);
  InterfazGuionada ui("NN");
  ASSERT_EQ(EjecutarComando(MétodoFellenius, p, ui), FinDeComando::Normal);
  EXPECT_NEAR(p.HistoriaIteraciones.FactorDeSeguridad[1], 6.73 / (25.6 + 105.6 + 20.0 / 3), 1e-12);
  EXPECT_NEAR(d.FuerzaNormal[1], 12.16, 1e-12);
  EXPECT_NEAR(d.ÁnguloBase[1], std::asin(0.6), 1e-12);
}

TEST(FelleniusCircular, UnRadioMenorQueMediaCuerdaTerminaLimpioSinColgarse) {
  Proyecto p = ProyectoDeSuelo(8);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{30, 10}, {20, 10}, {5, 0}, {-5, 0}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 10}, {5, 0}});
  PonerTramos(p, {{1, 2, "C"}});
  AñadirEstrato(p, {{40, -20}, {-20, -20}}, {.cohesión = 1, .fricción = 30});
  p.ParámetrosIniciales.Radio = 5;
  InterfazGuionada ui("N");
  EXPECT_EQ(EjecutarComando(MétodoFellenius, p, ui), FinDeComando::Fallo);
  EXPECT_EQ(ui.Transcripción().back().título, TítuloDeFallo());
  EXPECT_EQ(p.NúmeroIteraciones, 0);
}

}  // namespace
}  // namespace lomaterra
