// The search of the critical circle on the ACADS referee problem EX1(a) (see acads_apoyo.h): the
// published critical circle has its centre at (29.7, 53.2), radius 28.2 m and a factor of 0.99 by
// the simplified Bishop method; rigorous methods give 0.986 to 0.993.
#include <gtest/gtest.h>

#include <cmath>

#include "equilibrio/acads_apoyo.h"
#include "equilibrio/bishop.h"
#include "equilibrio/busqueda.h"
#include "equilibrio/referencia.h"
#include "pantallas/busqueda.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

OpcionesBúsqueda MallaACADS(MétodoBúsqueda método, int hilos) {
  OpcionesBúsqueda o;
  o.x1 = 22, o.x2 = 38, o.divisionesX = 16;
  o.y1 = 44, o.y2 = 62, o.divisionesY = 18;
  o.radioMínimo = 18, o.radioMáximo = 38, o.pasoRadio = 0.25;
  o.dovelas = 50;
  o.método = método;
  o.xSalidaMínima = 20, o.xSalidaMáxima = 70;
  o.hilos = hilos;
  return o;
}

TEST(BúsquedaCírculoCrítico, ACADSEx1aHallaElCírculoPublicado) {
  struct Caso {
    MétodoBúsqueda método;
    double factor, tolerancia;
  } casos[] = {{MétodoBúsqueda::Bishop, 0.99, 0.015}, {MétodoBúsqueda::Janbu, 0.99, 0.03}};
  const Proyecto p = pruebas::EjemploACADS(50, 2);
  for (const auto& c : casos) {
    InterfazGuionada ui;
    const ResultadoBúsqueda r = BuscarCírculoCrítico(p, MallaACADS(c.método, 2), &ui);
    ASSERT_TRUE(r.hay) << r.mensaje;
    ASSERT_EQ(r.menores.size(), 10u);
    const CírculoEvaluado& m = r.menores.front();
    EXPECT_NEAR(m.factor, c.factor, c.tolerancia * c.factor);
    if (c.método == MétodoBúsqueda::Bishop) {
      EXPECT_LT(std::hypot(m.xc - 29.7, m.yc - 53.2), 2.0) << m.xc << ", " << m.yc;
    }
    for (std::size_t k = 1; k < r.menores.size(); ++k)
      EXPECT_LE(r.menores[k - 1].factor, r.menores[k].factor);
    EXPECT_GT(ui.Progresos(), 0);
  }
}

TEST(BúsquedaCírculoCrítico, ElResultadoNoDependeDelNúmeroDeHilos) {
  const Proyecto p = pruebas::EjemploACADS(50, 2);
  const ResultadoBúsqueda uno = BuscarCírculoCrítico(p, MallaACADS(MétodoBúsqueda::Bishop, 1), nullptr);
  const ResultadoBúsqueda dos = BuscarCírculoCrítico(p, MallaACADS(MétodoBúsqueda::Bishop, 2), nullptr);
  ASSERT_TRUE(uno.hay && dos.hay);
  EXPECT_EQ(uno.menores.front().factor, dos.menores.front().factor);
  EXPECT_EQ(uno.admisibles, dos.admisibles);
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

// A section drawn with its crest towards smaller X is the mirror image of the same slope: every
// circle has the same factor with its centre mirrored.
TEST(BúsquedaCírculoCrítico, LaSecciónEnEspejoDaLosMismosFactores) {
  const Proyecto p = pruebas::EjemploACADS(50, 2);
  Proyecto q = p;
  for (long k = 1; k <= q.NúmeroPuntosTalud; ++k) q.CoordenadasTalud.X[k] = 100 - p.CoordenadasTalud.X[k];
  for (long j = 1; j <= 2; ++j) q.XEstrato(1, j) = 100 - p.XEstrato(1, j);
  std::string motivo;
  const SecciónPreparada s = PrepararSección(p, motivo), e = PrepararSección(q, motivo);
  EspacioPreparado espacio = NuevoEspacio(40);
  for (auto método : {MétodoBúsqueda::Bishop, MétodoBúsqueda::Janbu})
    for (double yc : {48.0, 53.2, 58.0}) {
      const double F = EvaluarCírculo(*s, 29.7, yc, yc - 25.5, 40, método, 20, 70, *espacio);
      const double G = EvaluarCírculo(*e, 70.3, yc, yc - 25.5, 40, método, 30, 80, *espacio);
      ASSERT_TRUE(std::isfinite(F));
      EXPECT_NEAR(F, G, 1e-9 * F);
    }
}

// "Usar este círculo" makes the critical circle the failure surface: the stated Bishop then runs on
// it, the centre rebuilt from the chord and the radius is the one found, and the reference figure on
// the stages' slices agrees with the search.
TEST(BúsquedaCírculoCrítico, UsarElCírculoYCalcularConBishop) {
  Proyecto p = pruebas::EjemploACADS(50, 2);
  const ResultadoBúsqueda r = BuscarCírculoCrítico(p, MallaACADS(MétodoBúsqueda::Bishop, 2), nullptr);
  ASSERT_TRUE(r.hay);
  const CírculoEvaluado c = r.menores.front();
  UsarCírculo(p, c);
  EXPECT_FALSE(p.EtapaIntersecciones);
  InterfazGuionada ui("N", true);
  MétodoBishop(p, ui);
  ASSERT_TRUE(p.CálculoHecho);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroX, c.xc, 1e-6);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroY, c.yc, 1e-6);
  const FactoresReferencia f = FactoresDeReferencia(p);
  ASSERT_TRUE(f.hayBishop) << f.motivo << f.motivoBishop;
  EXPECT_NEAR(f.bishop, c.factor, 0.01 * c.factor);
}

}  // namespace
}  // namespace lomaterra
