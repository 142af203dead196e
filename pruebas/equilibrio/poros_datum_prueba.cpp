// The same two strata with the top of the lower one peaking at y = 0, and 100 m higher: the same
// pore pressures, whatever stratum the base lies in.
#include <gtest/gtest.h>

#include "equilibrio/dovelas.h"
#include "equilibrio/dovelas_apoyo.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

using namespace pruebas;

// Surface at 10 + dy; fill down to a line peaking at dy; lower stratum down to dy - 20. One slice
// 2 m wide with its base at yb + dy and the phreatic line at 8 + dy.
double Presión(double dy, double yb, const DatosEstrato& inferior) {
  Proyecto p = ProyectoDeSuelo(4);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{20, 10 + dy}, {-10, 10 + dy}});
  AñadirEstrato(p, {{20, dy - 2}, {5, dy}, {-10, dy - 2}},
                {.húmedo = 2.0, .saturado = 2.1, .tipo = 1, .b = 0.5, .cv = 0.01, .tiempo = 6});
  AñadirEstrato(p, {{20, dy - 20}, {-10, dy - 20}}, inferior);
  p.NúmeroBordes = 2;
  auto& d = p.TablaDovelas;
  for (auto* c : {&d.BordeX, &d.BordeYFalla, &d.BordeYFreático}) c->Redimensionar(2);
  for (auto* c : {&d.XMedio, &d.YBase, &d.YTalud, &d.YFreático, &d.Ancho, &d.PresiónPoros}) c->Redimensionar(1);
  d.BordeX[1] = 6, d.BordeX[2] = 4, d.XMedio[1] = 5, d.Ancho[1] = 2, d.YTalud[1] = 10 + dy;
  d.BordeYFalla[1] = d.BordeYFalla[2] = d.YBase[1] = yb + dy;
  d.BordeYFreático[1] = d.BordeYFreático[2] = d.YFreático[1] = 8 + dy;
  d.YEstrato.RedimensionarConservando(2, 1);
  d.YEstrato(1, 1) = dy, d.YEstrato(2, 1) = dy - 20;
  InterfazGuionada ui;
  PresiónYPesoEnDovelas(p, ui);
  return d.PresiónPoros[1];
}

TEST(PorosSinDatum, LaMismaSecciónCienMetrosMásArribaDaLasMismasPresiones) {
  const DatosEstrato natural{.tipo = 0, .b = 0.3, .cv = 0.02, .tiempo = 12};
  const DatosEstrato relleno{.tipo = 1, .b = 0.4, .cv = 0.02, .tiempo = 12};
  const DatosEstrato seco{.tipo = 0, .cv = 0.005};  // no B, no time: it computes nothing
  for (const auto& [yb, inferior] : {std::pair{4.0, natural}, std::pair{-8.0, natural},
                                     std::pair{-8.0, relleno}, std::pair{-8.0, seco}})
    EXPECT_NEAR(Presión(100, yb, inferior), Presión(0, yb, inferior), 1e-9) << yb;
  // By hand: head 8 - (-8) = 16; B = 0 and T = 0 leave no excess.
  EXPECT_NEAR(Presión(0, -8, seco), 16, 1e-12);
}

}  // namespace
}  // namespace lomaterra
