// Pore pressure does not depend on where the datum of the section is: the same two strata placed
// with the top of the lower one at y = 0, and all of it 100 m higher, give the same pressures.
#include <gtest/gtest.h>

#include <cmath>

#include "equilibrio/dovelas.h"
#include "equilibrio/dovelas_apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/fallos.h"

namespace lomaterra {
namespace {

using namespace pruebas;

struct Capas {
  DatosEstrato relleno, inferior;
};

// Surface level at 10 + dy; fill down to a line that peaks at dy (the crest of the lower stratum's
// top) and falls to dy - 2; lower stratum down to dy - 20. One slice 2 m wide, base at yb + dy,
// phreatic line at 8 + dy.
double Presión(double dy, double yb, const Capas& c) {
  Proyecto p = ProyectoDeSuelo(4);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{20, 10 + dy}, {-10, 10 + dy}});
  AñadirEstrato(p, {{20, dy - 2}, {5, dy}, {-10, dy - 2}}, c.relleno);
  AñadirEstrato(p, {{20, dy - 20}, {-10, dy - 20}}, c.inferior);
  p.NúmeroBordes = 2;
  auto& d = p.TablaDovelas;
  for (Tabla<double>* col : {&d.BordeX, &d.BordeYFalla, &d.BordeYFreático}) col->Redimensionar(2);
  for (Tabla<double>* col : {&d.XMedio, &d.YBase, &d.YTalud, &d.YFreático, &d.Ancho, &d.PresiónPoros})
    col->Redimensionar(1);
  d.BordeX[1] = 6, d.BordeX[2] = 4;
  d.BordeYFalla[1] = d.BordeYFalla[2] = d.YBase[1] = yb + dy;
  d.BordeYFreático[1] = d.BordeYFreático[2] = d.YFreático[1] = 8 + dy;
  d.XMedio[1] = 5, d.YTalud[1] = 10 + dy, d.Ancho[1] = 2;
  d.YEstrato.RedimensionarConservando(2, 1);
  d.YEstrato(1, 1) = dy;
  d.YEstrato(2, 1) = dy - 20;
  InterfazGuionada ui;
  PresiónYPesoEnDovelas(p, ui);
  return d.PresiónPoros[1];
}

TEST(PorosSinDatum, LaMismaSecciónCienMetrosMásArribaDaLasMismasPresiones) {
  const DatosEstrato relleno{.húmedo = 2.0, .saturado = 2.1, .tipo = 1, .b = 0.5, .cv = 0.01, .tiempo = 6};
  const DatosEstrato natural{.húmedo = 1.8, .saturado = 2.0, .tipo = 0, .b = 0.3, .cv = 0.02, .tiempo = 12};
  const DatosEstrato relleno2{.húmedo = 1.9, .saturado = 2.0, .tipo = 1, .b = 0.4, .cv = 0.02, .tiempo = 12};
  // A dry natural stratum with no consolidation data at all computes nothing.
  const DatosEstrato seco{.húmedo = 1.8, .saturado = 2.0, .tipo = 0, .b = 0, .cv = 0.005, .tiempo = 0};
  struct Caso {
    const char* nombre;
    Capas capas;
    double yb;
  } casos[] = {
      {"base en el relleno", {relleno, natural}, 4},
      {"base en el estrato natural", {relleno, natural}, -8},
      {"base en un segundo relleno", {relleno, relleno2}, -8},
      {"estrato seco sin datos", {relleno, seco}, -8},
  };
  for (const Caso& c : casos) {
    double abajo = 0, arriba = 1;
    ASSERT_NO_THROW(abajo = Presión(0, c.yb, c.capas)) << c.nombre;
    ASSERT_NO_THROW(arriba = Presión(100, c.yb, c.capas)) << c.nombre;
    EXPECT_TRUE(std::isfinite(abajo)) << c.nombre;
    EXPECT_NEAR(arriba, abajo, 1e-9) << c.nombre;
  }
  // The last one by hand: phreatic head 8 - (-8) = 16, excess from the 10 m of fill above:
  // arrastre 20 · B 0 = 0, nothing dissipated (T = 0): 16.
  EXPECT_NEAR(Presión(0, -8, {relleno, seco}), 16, 1e-12);
}

}  // namespace
}  // namespace lomaterra
