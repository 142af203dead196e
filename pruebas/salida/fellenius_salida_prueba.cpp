// The output over a real calculation: Fellenius on a circular surface, then the result screen,
// the charts, the section and the anchors read what the method left.
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

#include "equilibrio/dovelas_apoyo.h"
#include "equilibrio/fellenius.h"
#include "pantallas/resultados.h"
#include "proyecto/comandos.h"
#include "pantallas/interfaz_guionada.h"
#include "salida/diseno_anclajes.h"
#include "salida/graficos.h"
#include "salida/resumen.h"
#include "salida/seccion.h"

namespace lomaterra {
namespace {

using namespace pruebas;

class TrasFellenius : public ::testing::Test {
 protected:
  void SetUp() override {
    p = ProyectoDeSuelo(8);
    PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{30, 10}, {20, 10}, {5, 0}, {-5, 0}});
    PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 10}, {5, 0}});
    PonerLínea(p.CoordenadasFreático, p.NúmeroPuntosFreático, {{30, 7}, {-5, -2}});
    PonerTramos(p, {{1, 2, "C"}});
    AñadirEstrato(p, {{40, -20}, {-20, -20}},
                  {.cohesión = 1, .fricción = 30, .húmedo = 1.8, .saturado = 2.0});
    p.ParámetrosIniciales.Radio = 15;
    InterfazGuionada ui("N");
    ASSERT_EQ(EjecutarComando(MétodoFellenius, p, ui), FinDeComando::Normal);
  }
  Proyecto p;
};

TEST_F(TrasFellenius, LaResistenciaDeLosAnclajesEsLaDeMohrCoulombEnLasBases) {
  // The anchors take R = F·D with D = Σ τ l: the strength c + σ' tan φ along the bases, whatever
  // the method, since every method mobilises the strength divided by F.
  ASSERT_TRUE(HayResultados(p));
  const auto& d = p.TablaDovelas;
  double resistencia = 0;
  for (long i = 1; i <= 8; ++i) {
    const double l =
        std::hypot(d.BordeX[i] - d.BordeX[i + 1], d.BordeYFalla[i] - d.BordeYFalla[i + 1]);
    resistencia += (1 + d.EsfuerzoNormalEfectivo[i] * std::tan(30 * std::atan(1.0) / 45)) * l;
  }
  DatosAnclajes a;
  a.FSConAnclaje = std::max(FactorDeSeguridadFinal(p) + 0.3, 1.2);
  a.InclinaciónAnclajes = 15;
  a.DiámetroAnclajes = 15.2;
  a.EsfuerzoRoturaAnclaje = 19000;
  a.NúmeroGuayas = 3;
  const CálculoAnclajes r = CalcularAnclajes(p, a);
  ASSERT_TRUE(r.válido) << r.error;
  EXPECT_NEAR(r.ResistenciaDisponible, resistencia, 1e-9 * resistencia);
  // Above a target of 1 a passive anchor needs more force than an active one: closer spacing.
  EXPECT_GT(r.SeparaciónActivo, r.SeparaciónPasivo);
}

TEST_F(TrasFellenius, LaPantallaYLosGráficosLeenLoQueDejóElMétodo) {
  // Fellenius leaves CálculoHecho as it was; its results are shown all the same.
  EXPECT_FALSE(p.CálculoHecho);
  InterfazGuionada ui;
  long filas = 0;
  ui.GuionPantalla("ResultadosEquilibrioLímite", [&](Pantalla& s, Interfaz&) {
    EXPECT_EQ(s.texto("TextoMétodo"), "Fellenius W.");
    filas = static_cast<long>(s.lista("ListaDovelas").filas.size());
    // Fellenius fills the normal force: its column is shown.
    bool normal = false;
    for (const auto& c : s.lista("ListaDovelas").columnas) normal |= c == "Fuerza normal N (ton/m)";
    EXPECT_TRUE(normal);
  });
  ResultadosCálculoSuelos(p, ui);
  EXPECT_EQ(filas, 8);
  const Figura f = FiguraGráfico(p, "GráficoEsfuerzoNormalesEfectivos");
  ASSERT_EQ(f.trazos.size(), 1u);
  EXPECT_EQ(f.trazos[0].puntos.size(), 8u);
  // The section follows the slice edges, all of them on the arc.
  const Figura s = FiguraSección(p);
  for (const auto& t : s.trazos)
    if (t.nombre == "falla") {
      ASSERT_EQ(t.puntos.size(), 9u);
      for (const auto& q : t.puntos)
        EXPECT_NEAR(
            std::hypot(q.x - p.ParámetrosIniciales.CentroX, q.y - p.ParámetrosIniciales.CentroY),
            15, 1e-6);
    }
}

}  // namespace
}  // namespace lomaterra
