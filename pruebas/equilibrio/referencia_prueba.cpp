// The reference figures on the circle of Fredlund and Krahn (1977): a 2:1 slope 40 ft high on a
// 20 ft base, c' = 600 psf, phi' = 20 deg, gamma = 120 pcf, centre (120, 90) and radius 80 ft in
// the paper, here mirrored in abscissa (x' = 180 - x) so that X descends from the crest: centre
// (60, 90), crest at x' = 120 (y 60), toe at x' = 40 (y 20). The factor is dimensionless, so the
// data go in feet with every weight and stress divided by the unit weight of water (62.4 pcf),
// which the program takes as 1. Published: ordinary method 1.928 dry and 1.693 with water,
// simplified Bishop 2.080 and 1.834.
#include <gtest/gtest.h>

#include <algorithm>

#include "apoyo/proyectos.h"
#include "apoyo/talud_circular.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/referencia.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

pruebas::TaludCircular FredlundKrahn() {
  pruebas::TaludCircular t;
  t.suelo = {{260, 60}, {120, 60}, {40, 20}, {-100, 20}};
  t.xc = 60;
  t.yc = 90;
  t.R = 80;
  t.c = 600 / 62.4;
  t.φ = 20;
  t.γ = 120 / 62.4;
  return t;
}

// The phreatic line: 40 ft at the far side of the crest (x' = 180), straight down to the toe and
// level with the toe ground beyond it.
double Freático(double x) {
  if (x >= 180) return 40;
  if (x <= 40) return 20;
  return 20 + (x - 40) * 20 / 140;
}

Proyecto Circulo(bool conAgua) {
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.ParámetrosInicialesDados = true;
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 3;
  const auto t = FredlundKrahn();
  pi.CentroX = t.xc;
  pi.CentroY = t.yc;
  pi.Radio = t.R;
  pruebas::UnTramo(p, "C");
  t.Llenar(p, 400);
  const auto [xa, xb] = t.Cruces();
  p.Trabajo.YPrimerPuntoFalla = t.YSuelo(xa);
  p.Trabajo.YÚltimoPuntoFalla = t.YSuelo(xb);
  auto& d = p.TablaDovelas;
  for (long i = 1; conAgua && i < p.NúmeroBordes; ++i) {
    d.YFreático[i] = Freático(d.XMedio[i]);
    d.PresiónPoros[i] = std::max(0.0, d.YFreático[i] - d.YBase[i]);
  }
  return p;
}

TEST(FactoresDeReferencia, CirculoDeFredlundYKrahn) {
  struct Caso {
    bool agua;
    double fellenius, bishop;
  } casos[] = {{false, 1.928, 2.080}, {true, 1.693, 1.834}};
  for (const auto& c : casos) {
    const Proyecto p = Circulo(c.agua);
    const FactoresReferencia f = FactoresDeReferencia(p);
    ASSERT_TRUE(f.hay) << f.motivo;
    ASSERT_TRUE(f.hayBishop) << f.motivoBishop;
    EXPECT_NEAR(f.fellenius, c.fellenius, 0.005 * c.fellenius) << "agua " << c.agua;
    EXPECT_NEAR(f.bishop, c.bishop, 0.005 * c.bishop) << "agua " << c.agua;
    EXPECT_TRUE(f.dovelasMαBajo.empty());
  }
}

// The stated ordinary method divides a sum of forces by a sum of moments: its factor times the
// radius is the reference figure, and running it changes nothing of the figure.
TEST(FactoresDeReferencia, FelleniusEsElFactorDelMetodoPorElRadio) {
  Proyecto p = Circulo(true);
  pruebas::EtapasHechas(p);
  InterfazGuionada ui("NN");
  MétodoFellenius(p, ui);
  ASSERT_EQ(p.NúmeroIteraciones, 1);
  const FactoresReferencia f = FactoresDeReferencia(p);
  EXPECT_NEAR(f.fellenius, p.HistoriaIteraciones.FactorDeSeguridad[1] * 80, 1e-9);
  EXPECT_NEAR(p.HistoriaIteraciones.FactorDeSeguridad[1], 1.693 / 80, 0.005 * 1.693 / 80);
}

TEST(FactoresDeReferencia, SinArcoUnicoDiceElPorQueEnUnaLinea) {
  Proyecto p = Circulo(false);
  pruebas::UnTramo(p, "L");
  const auto líneas = LíneasDeReferencia(FactoresDeReferencia(p));
  ASSERT_EQ(líneas.size(), 1u);
  EXPECT_NE(líneas[0].find("no es un único arco circular"), std::string::npos);
}

}  // namespace
}  // namespace lomaterra
