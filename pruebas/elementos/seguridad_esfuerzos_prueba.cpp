// The factor of safety from stresses on two elements and two slices, checked by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "elementos/seguridad_esfuerzos.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

using namespace lomaterra;

namespace {

// Failure line from (10, 5) to (0, 0), two slices 5 m wide at x = 7.5 and 2.5; element 1 near the
// first slice, element 2 near the second. Stresses of the last step (4) and of step 1.
Proyecto DosDovelas() {
  Proyecto p;
  p.TipoDeAnálisis = "F";
  p.TipoDeMaterial = "S";
  p.CálculoHecho = true;
  p.ParámetrosInicialesDados = true;
  p.GeometríaFallaDefinida = true;
  p.NúmeroTramosFalla = 1;
  p.TramoFalla.Redimensionar(1);
  p.TramoFalla.TipoUnión[1] = "L";
  p.NúmeroPuntosFalla = 2;
  p.CoordenadasFalla.Redimensionar(2);
  p.CoordenadasFalla.X[1] = 10;
  p.CoordenadasFalla.Y[1] = 5;
  p.CoordenadasFalla.X[2] = 0;
  p.CoordenadasFalla.Y[2] = 0;
  p.ParámetrosIniciales.NúmeroDovelas = 2;
  p.ParámetrosIniciales.FSInicial = 1.5;
  p.ParámetrosIniciales.MétodoDeCálculo = 4;
  p.NúmeroEstratos = 1;
  p.Estrato.RedimensionarConservando(1);
  p.Estrato.Cohesión[1] = 1;
  p.Estrato.Fricción[1] = 30;
  MallaElementos& m = p.Malla;
  m.NúmeroDeElementos = 2;
  m.Elemento.Redimensionar(2);
  m.Elemento.XCentroElemento[1] = 7.5;
  m.Elemento.YCentroElemento[1] = 3.5;
  m.Elemento.XCentroElemento[2] = 2.5;
  m.Elemento.YCentroElemento[2] = 1.0;
  m.Elemento.MaterialDeElemento[1] = m.Elemento.MaterialDeElemento[2] = 1;
  m.NúmeroDeIteración = 4;
  for (Tabla2<double>* t : {&m.EsfuerzoX, &m.EsfuerzoY, &m.EsfuerzoXY}) t->Redimensionar(2, 4);
  // Last step: element 1 compressed with some shear, element 2 in vertical tension.
  m.EsfuerzoX(1, 4) = -5, m.EsfuerzoY(1, 4) = -10, m.EsfuerzoXY(1, 4) = 1;
  m.EsfuerzoX(2, 4) = -2, m.EsfuerzoY(2, 4) = 2, m.EsfuerzoXY(2, 4) = 0;
  // Step 1: both compressed.
  m.EsfuerzoX(1, 1) = -6, m.EsfuerzoY(1, 1) = -12, m.EsfuerzoXY(1, 1) = 0;
  m.EsfuerzoX(2, 1) = -2, m.EsfuerzoY(2, 1) = -4, m.EsfuerzoXY(2, 1) = 0;
  return p;
}

// Force form by hand. Both slices share alpha = atan(5 / 10.01) (the 0.01 of the reading rule), so
// F = sum(A) / (cos² alpha (tan alpha t / F + 1) sum(Dv)), whose fixed point is
// F = sum(A) / (cos² alpha sum(Dv)) - tan alpha t, with W = -sigma y b + tau b tan alpha,
// A = c b + W t (W < 0: -0.2 tan(45° - phi/2) c b + W t), Dv = (W - b sigma x) tan alpha.
double FuerzasALaMano(const double sx[2], const double sy[2], const double tau[2]) {
  const double al = std::atan(5 / 10.01), b = 5, c = 1, fi = M_PI / 6, t = std::tan(fi);
  double A = 0, Dv = 0;
  for (int i = 0; i < 2; ++i) {
    const double W = -sy[i] * b + tau[i] * b * std::tan(al);
    A += (W >= 0 ? c * b : -0.2 * std::tan(M_PI / 4 - fi / 2) * c * b) + W * t;
    Dv += (W - b * sx[i]) * std::tan(al);
  }
  return A / (std::cos(al) * std::cos(al) * Dv) - std::tan(al) * t;
}

}  // namespace

TEST(FactorDesdeEsfuerzos, FormaDeFuerzasALaMano) {
  Proyecto p = DosDovelas();
  InterfazGuionada ui;
  FactorDeSeguridadDeslizamientoCálculoViscoplástico(p, ui);
  EXPECT_EQ(p.Malla.ElementoDeDovela[1], 1);
  EXPECT_EQ(p.Malla.ElementoDeDovela[2], 2);
  const double sx4[2] = {-5, -2}, sy4[2] = {-10, 2}, t4[2] = {1, 0};
  const double sx1[2] = {-6, -2}, sy1[2] = {-12, -4}, t1[2] = {0, 0};
  // The iteration stops within 0.02 of a step; the contraction of this map is small.
  EXPECT_NEAR(p.Malla.FSViscoplástico, FuerzasALaMano(sx4, sy4, t4), 0.02);
  EXPECT_NEAR(p.Malla.FSElástico, FuerzasALaMano(sx1, sy1, t1), 0.02);
  ASSERT_EQ(ui.Textos().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].título, "Factor de seguridad:");
}

// Moment form about the point ((x last - x first)/2, (y last - y first)/2) of the slope line. With
// no friction (t = 0) and sigma x = tau = 0: R = c b / cos a, N = (W - tan a b c / F) / cos a, and
// with k = (dy sin a + dx cos a) the equation F = sum(R (sin a dx - cos a dy)) / sum(k N) has the
// root F = (num + S2) / S1, S1 = sum(k W / cos a), S2 = sum(k tan a b c / cos a).
TEST(FactorDesdeEsfuerzos, FormaDeMomentosSinFricción) {
  Proyecto p = DosDovelas();
  p.ParámetrosIniciales.MétodoDeCálculo = 2;
  p.Estrato.Fricción[1] = 0;
  p.Estrato.Cohesión[1] = 5;
  p.NúmeroPuntosTalud = 2;
  p.CoordenadasTalud.Redimensionar(2);
  p.CoordenadasTalud.X[1] = 0, p.CoordenadasTalud.Y[1] = 0, p.CoordenadasTalud.X[2] = 20, p.CoordenadasTalud.Y[2] = 30;
  MallaElementos& m = p.Malla;
  for (long e = 1; e <= 2; ++e)
    for (long i : {1L, 4L}) m.EsfuerzoX(e, i) = m.EsfuerzoXY(e, i) = 0, m.EsfuerzoY(e, i) = -10;
  InterfazGuionada ui;
  FactorDeSeguridadDeslizamientoCálculoViscoplástico(p, ui);
  const double cx = 10, cy = 15, a = std::atan(5 / 10.01), b = 5, W = 50, c = 5;
  double num = 0, S1 = 0, S2 = 0;
  for (double x : {7.5, 2.5}) {
    const double y = (x - 10) * 5 / 10.01 + 5;
    const double k = (y - cy) * std::sin(a) + (x - cx) * std::cos(a);
    num += c * b / std::cos(a) * (std::sin(a) * (x - cx) - std::cos(a) * (y - cy));
    S1 += k * W / std::cos(a);
    S2 += k * std::tan(a) * b * c / std::cos(a);
  }
  EXPECT_NEAR(p.Malla.FSViscoplástico, (num + S2) / S1, 0.02);
  EXPECT_NEAR(p.Malla.FSElástico, (num + S2) / S1, 0.02);
}

// The same form with friction (30 degrees, c = 5) about (-5, 15): N = (W - tan a b c / F) / m_a with
// m_a = cos a + sin a tan phi / F, R = c b / cos a + tan phi N. The root of F = sum(R (sin a dx -
// cos a dy)) / sum(k N), found here by halving [2, 10], is 5.2652.
TEST(FactorDesdeEsfuerzos, FormaDeMomentosConFricción) {
  Proyecto p = DosDovelas();
  p.ParámetrosIniciales.MétodoDeCálculo = 2;
  p.Estrato.Cohesión[1] = 5;
  p.NúmeroPuntosTalud = 2;
  p.CoordenadasTalud.Redimensionar(2);
  p.CoordenadasTalud.X[1] = 10, p.CoordenadasTalud.Y[1] = 0, p.CoordenadasTalud.X[2] = 0, p.CoordenadasTalud.Y[2] = 30;
  MallaElementos& m = p.Malla;
  for (long e = 1; e <= 2; ++e)
    for (long i : {1L, 4L}) m.EsfuerzoX(e, i) = m.EsfuerzoXY(e, i) = 0, m.EsfuerzoY(e, i) = -10;
  InterfazGuionada ui;
  FactorDeSeguridadDeslizamientoCálculoViscoplástico(p, ui);
  const double a = std::atan(5 / 10.01), t = std::tan(M_PI / 6), b = 5, W = 50, c = 5;
  auto resto = [&](double F) {
    double num = 0, den = 0;
    for (double x : {7.5, 2.5}) {
      const double dx = x + 5, dy = (x - 10) * 5 / 10.01 + 5 - 15;
      const double N = (W - std::tan(a) * b * c / F) / (std::cos(a) + std::sin(a) * t / F);
      num += (c * b / std::cos(a) + t * N) * (std::sin(a) * dx - std::cos(a) * dy);
      den += (dy * std::sin(a) + dx * std::cos(a)) * N;
    }
    return num / den - F;
  };
  double bajo = 2, alto = 10;
  for (int k = 0; k < 60; ++k) (resto((bajo + alto) / 2) > 0 ? bajo : alto) = (bajo + alto) / 2;
  EXPECT_NEAR(bajo, 5.2652, 1e-4);
  EXPECT_NEAR(p.Malla.FSViscoplástico, bajo, 0.02);
}

TEST(FactorDesdeEsfuerzos, Puertas) {
  Proyecto p = DosDovelas();
  p.CálculoHecho = false;
  InterfazGuionada ui;
  FactorDeSeguridadDeslizamientoCálculoViscoplástico(p, ui);
  ASSERT_EQ(ui.Transcripción().size(), 1u);
  EXPECT_EQ(ui.Transcripción()[0].texto,
            "No se ha hecho ningún cálculo de esfuerzos considerando un comportamiento viscoplástico del material.");
  EXPECT_EQ(ui.Transcripción()[0].título, "No hay cálculos:");
  Proyecto q = DosDovelas();
  q.Malla.FSViscoplástico = 1.2;
  InterfazGuionada no("N");
  FactorDeSeguridadDeslizamientoCálculoViscoplástico(q, no);
  EXPECT_EQ(no.Textos(), std::vector<std::string>{"El factor de seguridad ya se estimó considerando un comportamiento "
                                                  "viscoplástico. ¿Desea volver a calcularlo?"});
  EXPECT_EQ(q.Malla.FSViscoplástico, 1.2);
}
