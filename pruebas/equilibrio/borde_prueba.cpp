// A point load exactly on the edge between two slices: the ranges of both slices include their
// ends, so it acts in both. In each method the load on the edge works as the same load placed
// once a hair inside each slice, and not as a load in one slice alone.
#include <gtest/gtest.h>

#include <array>
#include <vector>

#include "apoyo/proyectos.h"
#include "equilibrio/bishop.h"
#include "equilibrio/fellenius.h"
#include "equilibrio/janbu.h"
#include "equilibrio/leshchinsky.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

using namespace pruebas;

// The three hand-made slices (edges 4, 2, 0.8, -0.8) on straight stretches, with point loads.
Proyecto TresDovelas(Entero método, std::vector<std::array<double, 4>> cargas) {
  Proyecto p;
  TresDovelasDeSuelo(p, método);
  UnTramo(p, "L");
  p.Trabajo.XMáximaFalla = 4, p.Trabajo.XMínimaFalla = -0.8;
  p.Trabajo.YPrimerPuntoFalla = 2, p.Trabajo.YÚltimoPuntoFalla = 0;
  p.ParámetrosIniciales.ReferenciaMomentoY = 5;
  auto& d = p.TablaDovelas;
  Fijar(d.BordeYFalla, {2, 0.4, 0, 0});
  Fijar(d.BordeYTalud, {6, 3.4, 1.5, 0});
  Fijar(d.PendienteTalud, {1.3, 1.9 / 1.2, 0.9375});
  CargasPuntuales(p, std::move(cargas));
  return p;
}

double Factor(Entero método, void (*correr)(Proyecto&, Interfaz&),
              std::vector<std::array<double, 4>> cargas) {
  Proyecto p = TresDovelas(método, std::move(cargas));
  InterfazGuionada ui("NN");
  correr(p, ui);
  EXPECT_TRUE(p.CálculoHecho || método == 3) << método;
  return p.HistoriaIteraciones.FactorDeSeguridad.Leer(p.NúmeroIteraciones);
}

TEST(CargaPuntualEnElBorde, ActúaEnLasDosDovelasEnCadaMétodo) {
  struct Caso {
    Entero método;
    void (*correr)(Proyecto&, Interfaz&);
  };
  const double x = 2, ε = 1e-9;  // the edge between slices 1 and 2
  for (const Caso& c : {Caso{3, MétodoFellenius}, Caso{2, MétodoBishop}, Caso{4, MétodoJanbu}}) {
    const double enBorde = Factor(c.método, c.correr, {{x, 3.4, 0.4, 1}});
    const double enAmbas = Factor(c.método, c.correr, {{x + ε, 3.4, 0.4, 1}, {x - ε, 3.4, 0.4, 1}});
    const double enUna = Factor(c.método, c.correr, {{x + ε, 3.4, 0.4, 1}});
    EXPECT_NEAR(enBorde, enAmbas, 1e-6) << c.método;
    EXPECT_GT(std::abs(enBorde - enUna), 1e-3) << c.método;
  }
  // Leshchinsky and Huang take the loads of each slice into their equilibrium sums.
  const DatosVariacionales dv =
      LeerDatosVariacionales(TresDovelas(1, {{x, 3.4, 0.4, 1}, {4, 5, 0, 1}, {-0.8, 1, 0, 1}}));
  EXPECT_EQ(dv.puntuales[1].size(), 2u);  // the edge load and the one on the outer edge at 4
  EXPECT_EQ(dv.puntuales[2].size(), 1u);
  EXPECT_EQ(dv.puntuales[3].size(), 1u);  // the one on the outer edge at -0.8
}

}  // namespace
}  // namespace lomaterra
