// The factor of safety on the seismic stresses of one step, worked by hand.
//
// Failure line from (9.99, 5) to (0, 0): the reading rule's 0.01 makes its slope 5 / 10 = 0.5, so
// every slice has tan a = 0.5 and cos² a = 1 / 1.25 = 0.8. Cohesion 6, no friction, tau = 0, the
// same stresses in both elements. The force form then needs no iteration:
//   W = -sigma y b,  A = c b,  Dv = (W - b sigma x) tan a,  mA = cos² a
//   F = c / (0.8 (-sigma y - sigma x) 0.5)
// step 1: sigma y = -10  -> F = 6 / 4 = 1.5
// step 2: sigma y = -20  -> F = 6 / 8 = 0.75
// step 3: sigma y = -10, sigma x = -4 -> F = 6 / 5.6 = 1.0714...
#include <gtest/gtest.h>

#include "apoyo/sismo_apoyo.h"
#include "elementos/seguridad_esfuerzos.h"
#include "pantallas/interfaz_guionada.h"

using namespace lomaterra;

namespace {

Proyecto Caso() {
  Proyecto p = pruebas::SismoAMano();
  p.ParámetrosInicialesDados = true;
  p.GeometríaFallaDefinida = true;
  p.NúmeroTramosFalla = 1;
  p.TramoFalla.Redimensionar(1);
  p.TramoFalla.TipoUnión[1] = "L";
  p.NúmeroPuntosFalla = 2;
  p.CoordenadasFalla.Redimensionar(2);
  p.CoordenadasFalla.X[1] = 9.99, p.CoordenadasFalla.Y[1] = 5;
  p.ParámetrosIniciales.NúmeroDovelas = 4, p.ParámetrosIniciales.FSInicial = 1;
  p.ParámetrosIniciales.MétodoDeCálculo = 4;
  p.NúmeroEstratos = 1;
  p.Estrato.RedimensionarConservando(1);
  p.Estrato.Cohesión[1] = 6;
  p.Sísmico.EsfuerzoX(3, 1) = p.Sísmico.EsfuerzoX(3, 2) = -4;
  p.Sísmico.EsfuerzoXY(2, 2) = 0;
  return p;
}

TEST(FactorSísmico, ElPasoElegidoOElÚltimo) {
  struct {
    DatosSísmicos::Entero elegido;
    double F;
    long paso;
  } casos[] = {{1, 1.5, 1}, {2, 0.75, 2}, {0, 6 / 5.6, 3}, {7, 6 / 5.6, 3}, {-1, 0, 0}};
  for (const auto& c : casos) {
    Proyecto p = Caso();
    p.Sísmico.RegistroSeleccionado = c.elegido;
    p.Sísmico.ResultadosSísmicos = c.elegido >= 0;  // the last case: no seismic run
    InterfazGuionada ui;
    FactorDeSeguridadDeslizamientoAnálisisSísmico(p, ui);
    ASSERT_EQ(ui.Transcripción().size(), 1u);
    if (c.elegido < 0) {
      EXPECT_EQ(ui.Textos()[0], "No se ha hecho ningún cálculo de esfuerzos considerando análisis sísmico");
      EXPECT_EQ(ui.Transcripción()[0].título, "No hay cálculos:");
    }
    EXPECT_NEAR(p.Malla.FSSísmico, c.F, 1e-12) << c.elegido;
    EXPECT_EQ(p.Sísmico.PasoFactorSísmico, c.paso);
    EXPECT_EQ(ui.Textos()[0].find("registro " + std::to_string(c.paso)) != std::string::npos, c.paso > 0);
  }
}

TEST(FactorSísmico, GuardaElMenorYSeRepiteConPermiso) {
  Proyecto p = Caso();
  InterfazGuionada ui("SN");
  for (DatosSísmicos::Entero k : {1, 2, 3}) {
    p.Sísmico.RegistroSeleccionado = k;
    FactorDeSeguridadDeslizamientoAnálisisSísmico(p, ui);
  }
  EXPECT_NEAR(p.Malla.FSSísmico, 0.75, 1e-12);  // the third run was refused
  EXPECT_NEAR(p.Sísmico.FactorSísmicoMínimo, 0.75, 1e-12);
  EXPECT_EQ(p.Sísmico.PasoFactorSísmico, 2);
  EXPECT_EQ(ui.Transcripción()[1].texto,
            "El factor de seguridad ya se estimó de los resultados de análisis sísmico. ¿Desea volver a calcularlo?");
  const auto v = FactoresSísmicosPorPaso(p);
  ASSERT_EQ(v.size(), 3u);
  EXPECT_NEAR(v[0].second, 1.5, 1e-12);
  EXPECT_NEAR(v[2].second, 6 / 5.6, 1e-12);
}

}  // namespace
