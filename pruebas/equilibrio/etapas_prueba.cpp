// The slice pipeline on small sections whose numbers can be followed by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "equilibrio/dovelas.h"
#include "equilibrio/dovelas_apoyo.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

using namespace pruebas;

constexpr double kPi = 3.14159265358979323846;

std::vector<double> Bordes(const Proyecto& p) {
  std::vector<double> v;
  for (long e = 1; e <= p.NúmeroBordes; ++e) v.push_back(p.TablaDovelas.BordeX[e]);
  return v;
}

void EsperarCerca(const std::vector<double>& real, const std::vector<double>& esperado, double tol = 1e-9) {
  ASSERT_EQ(real.size(), esperado.size());
  for (std::size_t k = 0; k < real.size(); ++k) EXPECT_NEAR(real[k], esperado[k], tol) << "posición " << k;
}

// ---------------------------------------------------------------- circular surface

TEST(CentroDelArco, UnArcoDe5Y5MetrosDaSeisCuerdasSobreElCírculo) {
  Proyecto p = ProyectoDeSuelo(4);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{20, 10}, {14.5, 0}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 10}, {14.5, 0}});
  PonerTramos(p, {{1, 2, "C"}});
  p.ParámetrosIniciales.Radio = 12;
  InterfazGuionada ui;
  InterseccionesFallaEstratos(p, ui);
  // 5.5 / 5 = 1.1 is not below 1, 5.5 / 6 = 0.9167 is: six chords, seven points.
  ASSERT_EQ(p.Trabajo.NúmeroPuntosTrabajo, 7);
  const auto& pi = p.ParámetrosIniciales;
  for (long k = 1; k <= 7; ++k) {
    EXPECT_NEAR(p.Trabajo.PuntosFalla.X[k], 20 - (k - 1) * 5.5 / 6, 1e-9);
    EXPECT_NEAR(std::hypot(p.Trabajo.PuntosFalla.X[k] - pi.CentroX, p.Trabajo.PuntosFalla.Y[k] - pi.CentroY), 12, 1e-9);
    if (k < 7) {
      EXPECT_EQ(p.Trabajo.TipoEnPunto[k], "C");
    }
  }
  EXPECT_NEAR(pi.Cuerda, std::hypot(5.5, 10), 1e-12);
  EXPECT_EQ(p.Trabajo.NúmeroIntersecciones, 0);
  EXPECT_TRUE(p.EtapaIntersecciones);
}

TEST(CentroDelArco, ElRadioCreceDeMedioEnMedioHastaQueElCentroNoQuedaBajoElPrimerPunto) {
  // Points (10, 10) and (0, 0): chord 10·√2, the centre lies on the bisector y = 10 - x at
  // 5 + √(R² - 50)/√2 in height. It is not below 10 once R ≥ 10: from 7.6 by halves the
  // first such radius is 10.1, centre (5 - 5.0995, 5 + 5.0995).
  Proyecto p = ProyectoDeSuelo(4);
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{10, 10}, {0, 0}});
  PonerTramos(p, {{1, 2, "C"}});
  p.ParámetrosIniciales.Radio = 7.6;
  p.Trabajo.RadioActual = 7.6;
  InterfazGuionada ui;
  CentroDelArco(p, ui);
  const double h = std::sqrt(10.1 * 10.1 - 50) / std::sqrt(2.0);
  EXPECT_NEAR(p.ParámetrosIniciales.Radio, 10.1, 1e-12);
  EXPECT_NEAR(p.Trabajo.RadioActual, 10.1, 1e-12);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroX, 5 - h, 1e-9);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroY, 5 + h, 1e-9);
  // From 8 by halves the radius reaches 10, whose centre (0, 10) is level with the first point:
  // not below it, so the growth stops there.
  p.ParámetrosIniciales.Radio = p.Trabajo.RadioActual = 8;
  CentroDelArco(p, ui);
  EXPECT_EQ(p.ParámetrosIniciales.Radio, 10);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroY, 10, 1e-12);
}

TEST(CentroDelArco, ConReferenciaDeMomentosPositivaElCentroEsLaReferencia) {
  Proyecto p = ProyectoDeSuelo(4);
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{10, 10}, {0, 0}});
  p.ParámetrosIniciales.Radio = 20;
  p.Trabajo.RadioActual = 20;
  p.ParámetrosIniciales.ReferenciaMomentoX = 3;
  p.ParámetrosIniciales.ReferenciaMomentoY = 25;
  InterfazGuionada ui;
  CentroDelArco(p, ui);
  EXPECT_EQ(p.ParámetrosIniciales.CentroX, 3);
  EXPECT_EQ(p.ParámetrosIniciales.CentroY, 25);
  EXPECT_EQ(p.ParámetrosIniciales.Radio, 20);
}

// ---------------------------------------------------------------- breaks and slices

class SuperficieRecta : public ::testing::Test {
 protected:
  // Straight failure surface from (20, 10) to (0, 0) under a level surface at 12.
  void SetUp() override {
    p = ProyectoDeSuelo(4);
    PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{30, 12}, {-10, 12}});
    PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 10}, {0, 0}});
    PonerTramos(p, {{1, 2, "L"}});
  }
  void Etapas() {
    InterseccionesFallaEstratos(p, ui);
    ListaDeQuiebres(p);
    GeneraciónDeDovelas(p, ui);
    GeometríaDeDovelas(p);
    EstratosEnDovelas(p);
  }
  Proyecto p;
  InterfazGuionada ui;
};

TEST_F(SuperficieRecta, SinCrucesHayDosQuiebresYDovelasIguales) {
  AñadirEstrato(p, {{30, -5}, {-10, -5}}, {.cohesión = 2, .fricción = 30});
  Etapas();
  EXPECT_EQ(p.Trabajo.NúmeroIntersecciones, 0);
  ASSERT_EQ(p.Trabajo.NúmeroQuiebres, 2);
  EXPECT_EQ(p.Trabajo.Quiebres[1], 20);
  EXPECT_EQ(p.Trabajo.Quiebres[2], 0);
  // W = 20 / 4 = 5.
  EsperarCerca(Bordes(p), {20, 15, 10, 5, 0});
  for (long i = 1; i <= 4; ++i) {
    EXPECT_NEAR(p.TablaDovelas.Ancho[i], 5, 1e-12);
    EXPECT_NEAR(p.TablaDovelas.XMedio[i], 22.5 - 5 * i, 1e-12);
    EXPECT_NEAR(p.TablaDovelas.YBase[i], p.TablaDovelas.XMedio[i] / 2, 1e-12);
    EXPECT_NEAR(p.TablaDovelas.YTalud[i], 12, 1e-12);
    // Without a phreatic line its ordinate is the base.
    EXPECT_EQ(p.TablaDovelas.YFreático[i], p.TablaDovelas.YBase[i]);
    EXPECT_EQ(p.TablaDovelas.CohesiónBase[i], 2);
    EXPECT_NEAR(p.TablaDovelas.TanFricciónBase[i], 1 / std::sqrt(3.0), 1e-12);
  }
  EXPECT_EQ(p.TablaDovelas.BordeYFalla[1], 10);
  EXPECT_EQ(p.TablaDovelas.BordeYFalla[5], 0);
  EXPECT_NEAR(p.TablaDovelas.BordeYFalla[3], 5, 1e-12);
  EXPECT_TRUE(p.EtapaQuiebres && p.EtapaDovelas && p.EtapaGeometría && p.EtapaEstratos);
}

TEST_F(SuperficieRecta, FueraDeSuLíneaUnEstratoTomaLaDelEstratoDeArriba) {
  // Stratum 1 at 11 over the whole section, stratum 2 at -5 only for x from 10 to 30: the slices
  // at 7.5 and 2.5 see stratum 2 at 11 (no thickness), not at the surface 12.
  AñadirEstrato(p, {{30, 11}, {-10, 11}}, {.cohesión = 2, .fricción = 30});
  AñadirEstrato(p, {{30, -5}, {10, -5}}, {.cohesión = 3, .fricción = 25});
  Etapas();
  const auto& d = p.TablaDovelas;
  EXPECT_EQ(d.YEstrato(2, 1), -5);
  EXPECT_EQ(d.YEstrato(2, 2), -5);
  EXPECT_EQ(d.YEstrato(2, 3), 11);
  EXPECT_EQ(d.YEstrato(2, 4), 11);
}

TEST_F(SuperficieRecta, EnRocaLaBaseTomaMSYLaCompresiónDelMacizoYElExponentePorElGSI) {
  // The term a is 0 from GSI 25 up and 0.65 - GSI/200 below: 0.55 at 20, 0.53 at 24.
  AñadirEstrato(p, {{30, -5}, {-10, -5}}, {.cohesión = 2, .fricción = 30, .tipo = 1});
  p.TipoDeMaterial = "R";
  auto& E = p.Estrato;
  E.m_intacta[1] = 12, E.m_macizo[1] = 1.7, E.s_macizo[1] = 0.004, E.C_Simple[1] = 500;
  Etapas();
  for (const auto& [gsi, a] : {std::pair{20.0, 0.55}, {24.0, 0.53}, {25.0, 0.0}, {60.0, 0.0}}) {
    E.Parámetro_GSI[1] = gsi;
    EstratosEnDovelas(p);
    const auto& d = p.TablaDovelas;
    for (long i = 1; i <= 4; ++i) {
      EXPECT_EQ(d.m_Base[i], 1.7) << gsi;
      EXPECT_EQ(d.s_Base[i], 0.004) << gsi;
      EXPECT_EQ(d.C_SimpleBase[i], 500) << gsi;
      EXPECT_NEAR(d.a_Base[i], a, 1e-12) << gsi;
      EXPECT_EQ(d.TipoEstratoBase[i], 0) << gsi;  // a soil column, left empty in rock
    }
  }
}

TEST_F(SuperficieRecta, TresEstratosCercaDeUnPuntoDanMásDovelasQueLasPedidas) {
  // Level lines at 5, 4.8 and 4.6 cut y = x/2 at 10, 9.6 and 9.2; a fourth stratum lies below.
  DatosEstrato e;
  for (int s = 1; s <= 3; ++s) {
    e.cohesión = s;
    e.fricción = 10 * s;
    AñadirEstrato(p, {{30, 5.2 - 0.2 * s}, {-10, 5.2 - 0.2 * s}}, e);
  }
  AñadirEstrato(p, {{30, -20}, {-10, -20}}, {.cohesión = 4, .fricción = 40});
  Etapas();
  ASSERT_EQ(p.Trabajo.NúmeroIntersecciones, 3);
  EXPECT_NEAR(p.Trabajo.XIntersección[1], 10, 1e-9);
  EXPECT_NEAR(p.Trabajo.XIntersección[2], 9.6, 1e-9);
  EXPECT_NEAR(p.Trabajo.XIntersección[3], 9.2, 1e-9);
  // Breaks: the top, each crossing (each stratum differs from its neighbours), the bottom.
  ASSERT_EQ(p.Trabajo.NúmeroQuiebres, 5);
  // Pairs with W = 5: 20→10 two widths; 10→9.6 and 9.6→9.2 one short slice each; 9.2→0 one
  // width and the rest 4.2.
  EsperarCerca(Bordes(p), {20, 15, 10, 9.6, 9.2, 4.2, 0});
  EXPECT_EQ(p.NúmeroBordes - 1, 6);
  // Base in stratum 1 above 5, 2 between 4.8 and 5, 3 between 4.6 and 4.8, 4 below.
  const int esperado[] = {1, 1, 2, 3, 4, 4};
  for (long i = 1; i <= 6; ++i) {
    const int s = esperado[i - 1];
    EXPECT_EQ(p.TablaDovelas.CohesiónBase[i], s) << i;
    EXPECT_NEAR(p.TablaDovelas.TanFricciónBase[i], std::tan(10 * s * kPi / 180), 1e-12) << i;
  }
  EXPECT_NEAR(p.TablaDovelas.YEstrato(2, 3), 4.8, 1e-12);
}

TEST_F(SuperficieRecta, UnBordeAMenosDeUnCentímetroDeUnVérticeTomaElVérticeAnterior) {
  // Surface (30, 14), (15.005, 12), (-10, 12). The edge at 15 lies 0.005 from the second vertex:
  // its height is taken from the vertex before, 14, not 12. The edge at 20 is on the first
  // segment, 14 - 10·(2 / 14.995).
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{30, 14}, {15.005, 12}, {-10, 12}});
  AñadirEstrato(p, {{30, -5}, {-10, -5}}, {.cohesión = 1});
  Etapas();
  const auto& d = p.TablaDovelas;
  EXPECT_NEAR(d.BordeYTalud[1], 14 - 10 * 2 / 14.995, 1e-12);
  EXPECT_NEAR(d.BordeYTalud[2], 14, 1e-12);
  EXPECT_NEAR(d.BordeYTalud[3], 12, 1e-12);
  EXPECT_NEAR(d.PendienteTalud[2], (14 - 12) / 5.0, 1e-12);
  // The middle takes the first segment with X[j+1] < x <= X[j], plainly.
  EXPECT_NEAR(d.YTalud[1], 14 - 12.5 * 2 / 14.995, 1e-12);
  EXPECT_NEAR(d.YTalud[2], 12, 1e-12);
}

TEST_F(SuperficieRecta, ElNivelFreáticoSigueAlTaludBajoSuÚltimoPuntoYNoSeEscribeSobreElPrimero) {
  AñadirEstrato(p, {{30, -5}, {-10, -5}}, {.cohesión = 1});
  PonerLínea(p.CoordenadasFreático, p.NúmeroPuntosFreático, {{16, 9}, {4, 3}});
  Etapas();
  const auto& d = p.TablaDovelas;
  EXPECT_EQ(d.YFreático[1], 0);                    // 17.5 lies above the first point
  EXPECT_NEAR(d.YFreático[2], 9 - 3.5 * 0.5, 1e-12);  // 12.5 on the line of slope 0.5
  EXPECT_NEAR(d.YFreático[3], 9 - 8.5 * 0.5, 1e-12);  // 7.5
  EXPECT_NEAR(d.YFreático[4], 12, 1e-12);          // 2.5 below the last point: the surface
  EXPECT_EQ(d.BordeYFreático[1], 0);
  EXPECT_NEAR(d.BordeYFreático[2], 8.5, 1e-12);
  EXPECT_NEAR(d.BordeYFreático[5], 12, 1e-12);
}

TEST_F(SuperficieRecta, UnaSolaPasadaDeIntercambiosDejaFueraDeOrdenLoQueEstáLejos) {
  // Crossings found as 3, 5, 8 (three strata). One pass of neighbour exchanges gives 5, 8, 3:
  // the 8 moves one place only.
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{10, 5}, {0, 0}});
  p.ParámetrosIniciales.NúmeroDovelas = 5;
  auto& t = p.Trabajo;
  t.NúmeroIntersecciones = 3;
  t.XIntersección.Redimensionar(3);
  t.EstratoCruce.Redimensionar(3);
  t.PendienteFallaCruce.Redimensionar(3);
  t.PendienteEstratoCruce.Redimensionar(3);
  const double x[] = {3, 5, 8};
  for (long r = 1; r <= 3; ++r) {
    t.XIntersección[r] = x[r - 1];
    t.EstratoCruce[r] = static_cast<Entero>(r);
    t.PendienteFallaCruce[r] = 0.5;
  }
  ListaDeQuiebres(p);
  EXPECT_EQ(t.XIntersección[1], 5);
  EXPECT_EQ(t.XIntersección[2], 8);
  EXPECT_EQ(t.XIntersección[3], 3);
  EXPECT_EQ(t.EstratoCruce[2], 3);
  ASSERT_EQ(t.NúmeroQuiebres, 5);
  EsperarCerca({t.Quiebres[1], t.Quiebres[2], t.Quiebres[3], t.Quiebres[4], t.Quiebres[5]}, {10, 5, 8, 3, 0});
  // W = 10/5 = 2. 10→5: edges 8, 6 and 5 (the rest 0.5·W). 5→8 is passed over. 8→3: the first
  // edge 6 is not below 5, so the pair is abandoned. 3→0: 1 and 0.
  GeneraciónDeDovelas(p, ui);
  EsperarCerca(Bordes(p), {10, 8, 6, 5, 1, 0});
}

// ---------------------------------------------------------------- several stretches

TEST(VariosTramos, UnTramoPolinómicoCruzaUnEstratoPorLaSecante) {
  // y = 0.03x² - 0.1x through (20, 10), (10, 2), (0, 0) meets y = 5 at
  // x = (0.1 + √(0.01 + 0.6)) / 0.06 = 14.68375. Only the first chord crosses the line.
  Proyecto p = ProyectoDeSuelo(4);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{30, 12}, {-10, 12}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 10}, {10, 2}, {0, 0}});
  PonerTramos(p, {{1, 3, "P"}});
  AñadirEstrato(p, {{30, 5}, {-10, 5}}, {.cohesión = 1});
  AñadirEstrato(p, {{30, -20}, {-10, -20}}, {.cohesión = 2});
  InterfazGuionada ui;
  InterseccionesFallaEstratos(p, ui);
  ASSERT_EQ(p.Trabajo.NúmeroIntersecciones, 1);
  const double raíz = (0.1 + std::sqrt(0.61)) / 0.06;
  EXPECT_NEAR(p.Trabajo.XIntersección[1], raíz, 1e-3);
  // The search runs on the abscissa of the centre, which keeps the last value tried.
  EXPECT_EQ(p.ParámetrosIniciales.CentroX, p.Trabajo.XIntersección[1]);
  ListaDeQuiebres(p);
  GeneraciónDeDovelas(p, ui);
  for (long i = 1; i < p.NúmeroBordes; ++i) {
    const double x = p.TablaDovelas.XMedio[i];
    EXPECT_NEAR(p.TablaDovelas.YBase[i], 0.03 * x * x - 0.1 * x, 1e-9);
  }
}

TEST(VariosTramos, UnTramoPolinómicoQueNoEmpiezaEnElPuntoUnoUsaLosPrimerosPuntos) {
  // Stretch 2 runs from point 2 to 4; its ordinates come from the parabola through points 1 to 3,
  // (30, 20), (20, 10), (10, 2): y = 0.01x² + 0.5x - 4.
  Proyecto p = ProyectoDeSuelo(6);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{40, 25}, {-10, 25}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{30, 20}, {20, 10}, {10, 2}, {0, 0}});
  PonerTramos(p, {{1, 2, "L"}, {2, 4, "P"}});
  AñadirEstrato(p, {{40, -30}, {-10, -30}}, {.cohesión = 1});
  InterfazGuionada ui;
  InterseccionesFallaEstratos(p, ui);
  ListaDeQuiebres(p);
  GeneraciónDeDovelas(p, ui);
  EsperarCerca(Bordes(p), {30, 25, 20, 15, 10, 5, 0});
  auto parábola = [](double x) { return 0.01 * x * x + 0.5 * x - 4; };
  const auto& d = p.TablaDovelas;
  EXPECT_NEAR(d.YBase[1], 20 - 2.5, 1e-12);  // 27.5 on the straight stretch of slope 1
  for (long i = 3; i <= 6; ++i) EXPECT_NEAR(d.YBase[i], parábola(d.XMedio[i]), 1e-9) << i;
  // The edges try every stretch and the last that accepts decides: the second stretch (chord
  // slope 0.5) accepts any edge above its first point, so the edge at 25 reads the parabola too.
  EXPECT_NEAR(d.BordeYFalla[2], parábola(25), 1e-9);
  EXPECT_NEAR(d.BordeYFalla[4], parábola(15), 1e-9);
  EXPECT_EQ(d.BordeYFalla[7], 0);
}

TEST(VariosTramos, UnArcoEntreDosRectasConSuCentroBajoLaCuerda) {
  // Stretches L 1-2, C 2-3, L 3-4 over (30, 20), (20, 10), (10, 4), (0, 4). The arc 2-3 has
  // R = chord / (2·sin|α1 - α2|) with α1 = atan 0.6 and α2 = 0 (the level chord after it):
  // R = √136 / (2·0.6/√1.36) = 34/3. Its centre is on the bisector of the chord at
  // √(R² - 34) = 9.7183 from (15, 7): (10, 46/3) or (20, -4/3). Newton starts at
  // ((20 + 10)/2, 1.5·|4|) = (15, 6), 8.9 from the lower one and 10.6 from the upper, and
  // settles on the lower.
  Proyecto p = ProyectoDeSuelo(6);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{40, 25}, {-10, 25}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{30, 20}, {20, 10}, {10, 4}, {0, 4}});
  PonerTramos(p, {{1, 2, "L"}, {2, 3, "C"}, {3, 4, "L"}});
  AñadirEstrato(p, {{40, 6}, {-10, 6}}, {.cohesión = 1});
  AñadirEstrato(p, {{40, -30}, {-10, -30}}, {.cohesión = 2});
  InterfazGuionada ui;
  AjusteArcoEntrePuntos(p, ui, 2, 3);
  const double r = 34.0 / 3.0, cx = 20, cy = -4.0 / 3.0;
  EXPECT_NEAR(p.Trabajo.RadioActual, r, 1e-9);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroX, cx, 1e-6);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroY, cy, 1e-6);

  // The level line at 6 crosses only the chord 2-3. The march follows the lower arc of that
  // circle, which stays below -6 between 10 and 20: it runs to its bound X[2] = 20 and the
  // crossing is put there.
  InterseccionesFallaEstratos(p, ui);
  ASSERT_EQ(p.Trabajo.NúmeroIntersecciones, 1);
  EXPECT_EQ(p.Trabajo.EstratoCruce[1], 1);
  EXPECT_NEAR(p.Trabajo.XIntersección[1], 20, 1e-9);

  // The ordinates of the stretch read the upper arc: chord slope 0.6 above 0, centre below the
  // stretch's first point.
  ListaDeQuiebres(p);
  GeneraciónDeDovelas(p, ui);
  const auto& d = p.TablaDovelas;
  bool alguna = false;
  for (long i = 1; i < p.NúmeroBordes; ++i) {
    const double x = d.XMedio[i];
    if (x <= 10 || x >= 20) continue;
    alguna = true;
    EXPECT_NEAR(d.YBase[i], cy + std::sqrt(r * r - (x - cx) * (x - cx)), 1e-6) << x;
  }
  EXPECT_TRUE(alguna);
  // Below point 3 the level stretch.
  EXPECT_NEAR(d.YBase[p.NúmeroBordes - 1], 4, 1e-12);
}

TEST(VariosTramos, ElArcoÚnicoCruzaUnEstratoDondeElCírculoLoCorta) {
  // Arc (20, 10)-(14.5, 0) of radius 12: centre on the bisector at √(144 - 32.5625) from the
  // middle of the chord, up and to the left. The level line at 5 meets the lower arc at
  // x = cx + √(144 - (5 - cy)²).
  Proyecto p = ProyectoDeSuelo(4);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{30, 10}, {-10, 0}});
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{20, 10}, {14.5, 0}});
  PonerTramos(p, {{1, 2, "C"}});
  p.ParámetrosIniciales.Radio = 12;
  AñadirEstrato(p, {{30, 5}, {-10, 5}}, {.cohesión = 1});
  AñadirEstrato(p, {{30, -30}, {-10, -30}}, {.cohesión = 2});
  const double cuerda = std::hypot(5.5, 10), d = std::sqrt(144 - cuerda * cuerda / 4);
  const double cx = 17.25 - d * 10 / cuerda, cy = 5 + d * 5.5 / cuerda;
  InterfazGuionada ui;
  InterseccionesFallaEstratos(p, ui);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroX, cx, 1e-9);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroY, cy, 1e-9);
  ASSERT_EQ(p.Trabajo.NúmeroIntersecciones, 1);
  // The march stops within 0.005 in height; the arc rises 2.1 per metre there.
  EXPECT_NEAR(p.Trabajo.XIntersección[1], cx + std::sqrt(144 - (5 - cy) * (5 - cy)), 0.005);
}

}  // namespace
}  // namespace lomaterra
