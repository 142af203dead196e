// Circles: the search of the critical circle on the ACADS referee problem EX1(a) (see
// acads_apoyo.h), whose published critical circle has its centre at (29.7, 53.2), radius 28.2 m and
// a factor of 0.99 by the simplified Bishop method; and the reference figures on the circle of
// Fredlund and Krahn (1977).
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "apoyo/proyectos.h"
#include "apoyo/talud_circular.h"
#include "equilibrio/acads_apoyo.h"
#include "equilibrio/bishop.h"
#include "equilibrio/busqueda.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/referencia.h"
#include "pantallas/busqueda.h"

namespace lomaterra {
namespace {

OpcionesBúsqueda MallaACADS(MétodoBúsqueda método, int hilos) {
  OpcionesBúsqueda o;
  o.x1 = 22, o.x2 = 38, o.divisionesX = 16;
  o.y1 = 44, o.y2 = 62, o.divisionesY = 18;
  o.radioMínimo = 18, o.radioMáximo = 38, o.pasoRadio = 0.25;
  o.método = método;
  o.xSalidaMínima = 20, o.xSalidaMáxima = 70;
  o.hilos = hilos;
  return o;
}

TEST(BúsquedaCírculoCrítico, ACADSEx1aHallaElCírculoPublicadoYSeUsaConBishop) {
  Proyecto p = pruebas::EjemploACADS(50, 2);
  for (const auto método : {MétodoBúsqueda::Janbu, MétodoBúsqueda::Bishop}) {
    InterfazGuionada ui;
    const ResultadoBúsqueda r = BuscarCírculoCrítico(p, MallaACADS(método, 2), &ui);
    ASSERT_TRUE(r.hay) << r.mensaje;
    ASSERT_EQ(r.menores.size(), 10u);
    const CírculoEvaluado& m = r.menores.front();
    EXPECT_GT(ui.Progresos(), 0);
    for (std::size_t k = 1; k < r.menores.size(); ++k)
      EXPECT_LE(r.menores[k - 1].factor, r.menores[k].factor);
    if (método == MétodoBúsqueda::Janbu) {
      EXPECT_NEAR(m.factor, 0.99, 0.03 * 0.99);
      continue;
    }
    EXPECT_NEAR(m.factor, 0.99, 0.015 * 0.99);
    EXPECT_LT(std::hypot(m.xc - 29.7, m.yc - 53.2), 2.0) << m.xc << ", " << m.yc;
    // The result does not depend on the number of threads.
    const ResultadoBúsqueda uno = BuscarCírculoCrítico(p, MallaACADS(método, 1), nullptr);
    EXPECT_EQ(uno.menores.front().factor, m.factor);
    EXPECT_EQ(uno.admisibles, r.admisibles);
    // "Usar este círculo" makes it the failure surface: the stated Bishop runs on it, the centre
    // rebuilt from the chord and the radius is the one found, and the reference figure on the
    // stages' slices agrees with the search.
    UsarCírculo(p, m);
    EXPECT_FALSE(p.EtapaIntersecciones);
    InterfazGuionada bishop("N", true);
    MétodoBishop(p, bishop);
    ASSERT_TRUE(p.CálculoHecho);
    EXPECT_NEAR(p.ParámetrosIniciales.CentroX, m.xc, 1e-6);
    EXPECT_NEAR(p.ParámetrosIniciales.CentroY, m.yc, 1e-6);
    const FactoresReferencia f = FactoresDeReferencia(p);
    ASSERT_TRUE(f.hayBishop) << f.motivo << f.motivoBishop;
    EXPECT_NEAR(f.bishop, m.factor, 0.01 * m.factor);
  }
}

TEST(BúsquedaCírculoCrítico, SinCírculoAdmisibleOCanceladaLoDiceSinFallo) {
  const Proyecto p = pruebas::EjemploACADS(50, 2);
  OpcionesBúsqueda o = MallaACADS(MétodoBúsqueda::Bishop, 2);
  o.radioMínimo = 1, o.radioMáximo = 5, o.pasoRadio = 1;  // no circle reaches the ground
  ResultadoBúsqueda r = BuscarCírculoCrítico(p, o, nullptr);
  EXPECT_FALSE(r.hay);
  EXPECT_NE(r.mensaje.find("Ningún círculo de la malla es admisible"), std::string::npos);
  InterfazGuionada ui;
  ui.CancelarProgresoTras(1);
  r = BuscarCírculoCrítico(p, MallaACADS(MétodoBúsqueda::Bishop, 2), &ui);
  EXPECT_TRUE(r.cancelada);
  EXPECT_FALSE(r.hay);
}

// The circle of Fredlund and Krahn (1977): a 2:1 slope 40 ft high on a 20 ft base, c' = 600 psf,
// phi' = 20 deg, gamma = 120 pcf, centre (120, 90) and radius 80 ft in the paper, here mirrored in
// abscissa (x' = 180 - x) so that X descends from the crest: centre (60, 90), crest at x' = 120
// (y 60), toe at x' = 40 (y 20). The factor is dimensionless, so the data go in feet with every
// weight and stress divided by the unit weight of water (62.4 pcf). With water, the phreatic line
// is 40 ft at the far side of the crest (x' = 180), straight down to the toe and level beyond.
// Published: ordinary method 1.928 dry and 1.693 with water, simplified Bishop 2.080 and 1.834.
Proyecto FredlundKrahn(bool conAgua) {
  pruebas::TaludCircular t;
  t.suelo = {{260, 60}, {120, 60}, {40, 20}, {-100, 20}};
  t.xc = 60, t.yc = 90, t.R = 80;
  t.c = 600 / 62.4, t.φ = 20, t.γ = 120 / 62.4;
  Proyecto p;
  p.TipoDeAnálisis = "T";
  p.TipoDeMaterial = "S";
  p.ParámetrosInicialesDados = true;
  auto& pi = p.ParámetrosIniciales;
  pi.MétodoDeCálculo = 3;
  pi.CentroX = t.xc, pi.CentroY = t.yc, pi.Radio = t.R;
  pruebas::UnTramo(p, "C");
  t.Llenar(p, 400);
  const auto [xa, xb] = t.Cruces();
  p.Trabajo.YPrimerPuntoFalla = t.YSuelo(xa);
  p.Trabajo.YÚltimoPuntoFalla = t.YSuelo(xb);
  auto& d = p.TablaDovelas;
  for (long i = 1; conAgua && i < p.NúmeroBordes; ++i) {
    d.YFreático[i] = 20 + std::clamp(d.XMedio[i] - 40, 0.0, 140.0) * 20 / 140;
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
    const FactoresReferencia f = FactoresDeReferencia(FredlundKrahn(c.agua));
    ASSERT_TRUE(f.hay) << f.motivo;
    ASSERT_TRUE(f.hayBishop) << f.motivoBishop;
    EXPECT_NEAR(f.fellenius, c.fellenius, 0.005 * c.fellenius) << "agua " << c.agua;
    EXPECT_NEAR(f.bishop, c.bishop, 0.005 * c.bishop) << "agua " << c.agua;
    EXPECT_TRUE(f.dovelasMαBajo.empty());
  }
  // The stated ordinary method divides a sum of forces by a sum of moments: its factor times the
  // radius is the reference figure, and running it changes nothing of the figure.
  Proyecto p = FredlundKrahn(true);
  pruebas::EtapasHechas(p);
  InterfazGuionada ui("NN");
  MétodoFellenius(p, ui);
  ASSERT_EQ(p.NúmeroIteraciones, 1);
  EXPECT_NEAR(FactoresDeReferencia(p).fellenius, p.HistoriaIteraciones.FactorDeSeguridad[1] * 80,
              1e-9);
  EXPECT_NEAR(p.HistoriaIteraciones.FactorDeSeguridad[1], 1.693 / 80, 0.005 * 1.693 / 80);
  // Off a single arc the figures say why in one line.
  pruebas::UnTramo(p, "L");
  const auto líneas = LíneasDeReferencia(FactoresDeReferencia(p));
  ASSERT_EQ(líneas.size(), 1u);
  EXPECT_NE(líneas[0].find("no es un único arco circular"), std::string::npos);
}

}  // namespace
}  // namespace lomaterra
