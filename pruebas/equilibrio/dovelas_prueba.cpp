// The slice pipeline on small sections whose numbers can be followed by hand, and the pore
// pressure and mean unit weight of one slice laid out by hand.
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

void EsperarCerca(const std::vector<double>& real, const std::vector<double>& esperado,
                  double tol = 1e-9) {
  ASSERT_EQ(real.size(), esperado.size());
  for (std::size_t k = 0; k < real.size(); ++k)
    EXPECT_NEAR(real[k], esperado[k], tol) << "posición " << k;
}

// Level strata with their lower lines at the given heights; stratum k has c = k, phi = 10 k.
void Niveles(Proyecto& p, const std::vector<double>& alturas) {
  for (double y : alturas) {
    const double k = p.NúmeroEstratos + 1;
    AñadirEstrato(p, {{100, y}, {-100, y}}, {.cohesión = k, .fricción = 10 * k});
  }
}

// A soil section: surface, failure line and its stretches.
Proyecto Sección(double dovelas, const Puntos& talud, const Puntos& falla,
                 const std::vector<std::tuple<int, int, std::string>>& tramos) {
  Proyecto p = ProyectoDeSuelo(dovelas);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, talud);
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, falla);
  PonerTramos(p, tramos);
  return p;
}

// The stages that need the scripted port, each with a fresh one.
void Cruces(Proyecto& p) {
  InterfazGuionada ui;
  InterseccionesFallaEstratos(p, ui);
}
void Dovelas(Proyecto& p) {
  InterfazGuionada ui;
  ListaDeQuiebres(p);
  GeneraciónDeDovelas(p, ui);
}
void Poros(Proyecto& p) {
  InterfazGuionada ui;
  PresiónYPesoEnDovelas(p, ui);
}

// ---------------------------------------------------------------- circular surface

TEST(CentroDelArco, UnArcoDe5Y5MetrosDaSeisCuerdasSobreElCírculo) {
  Proyecto p = Sección(4, {{20, 10}, {14.5, 0}}, {{20, 10}, {14.5, 0}}, {{1, 2, "C"}});
  p.ParámetrosIniciales.Radio = 12;
  Cruces(p);
  // 5.5 / 5 = 1.1 is not below 1, 5.5 / 6 = 0.9167 is: six chords, seven points.
  ASSERT_EQ(p.Trabajo.NúmeroPuntosTrabajo, 7);
  const auto& pi = p.ParámetrosIniciales;
  const auto& t = p.Trabajo;
  for (long k = 1; k <= 7; ++k) {
    EXPECT_NEAR(t.PuntosFalla.X[k], 20 - (k - 1) * 5.5 / 6, 1e-9);
    EXPECT_NEAR(std::hypot(t.PuntosFalla.X[k] - pi.CentroX, t.PuntosFalla.Y[k] - pi.CentroY), 12,
                1e-9);
  }
  for (long k = 1; k < 7; ++k) EXPECT_EQ(t.TipoEnPunto[k], "C");
  EXPECT_NEAR(pi.Cuerda, std::hypot(5.5, 10), 1e-12);
  EXPECT_EQ(t.NúmeroIntersecciones, 0);
  EXPECT_TRUE(p.EtapaIntersecciones);
}

TEST(CentroDelArco, ElRadioCreceDeMedioEnMedioHastaQueElCentroNoQuedaBajoElPrimerPunto) {
  // Points (10, 10) and (0, 0): chord 10·√2, the centre lies on the bisector y = 10 - x at
  // 5 + √(R² - 50)/√2 in height. It is not below 10 once R ≥ 10: from 7.6 by halves the
  // first such radius is 10.1, centre (5 - 5.0995, 5 + 5.0995).
  Proyecto p = Sección(4, {}, {{10, 10}, {0, 0}}, {{1, 2, "C"}});
  auto& pi = p.ParámetrosIniciales;
  pi.Radio = p.Trabajo.RadioActual = 7.6;
  InterfazGuionada ui;
  CentroDelArco(p, ui);
  const double h = std::sqrt(10.1 * 10.1 - 50) / std::sqrt(2.0);
  EXPECT_NEAR(pi.Radio, 10.1, 1e-12);
  EXPECT_NEAR(p.Trabajo.RadioActual, 10.1, 1e-12);
  EXPECT_NEAR(pi.CentroX, 5 - h, 1e-9);
  EXPECT_NEAR(pi.CentroY, 5 + h, 1e-9);
  // From 8 by halves the radius reaches 10, whose centre (0, 10) is level with the first point:
  // not below it, so the growth stops there.
  pi.Radio = p.Trabajo.RadioActual = 8;
  CentroDelArco(p, ui);
  EXPECT_EQ(pi.Radio, 10);
  EXPECT_NEAR(pi.CentroY, 10, 1e-12);
  // With a positive moment reference the centre is the reference and the radius stays.
  pi.Radio = p.Trabajo.RadioActual = 20;
  pi.ReferenciaMomentoX = 3;
  pi.ReferenciaMomentoY = 25;
  CentroDelArco(p, ui);
  EXPECT_EQ(pi.CentroX, 3);
  EXPECT_EQ(pi.CentroY, 25);
  EXPECT_EQ(pi.Radio, 20);
}

// ---------------------------------------------------------------- breaks and slices

class SuperficieRecta : public ::testing::Test {
 protected:
  // Straight failure surface from (20, 10) to (0, 0) under a level surface at 12.
  Proyecto p = Sección(4, {{30, 12}, {-10, 12}}, {{20, 10}, {0, 0}}, {{1, 2, "L"}});
  InterfazGuionada ui;
  void Etapas() {
    Cruces(p);
    Dovelas(p);
    GeometríaDeDovelas(p);
    EstratosEnDovelas(p);
  }
};

TEST_F(SuperficieRecta, SinCrucesHayDosQuiebresYDovelasIguales) {
  AñadirEstrato(p, {{30, -5}, {-10, -5}}, {.cohesión = 2, .fricción = 30});
  Etapas();
  EXPECT_EQ(p.Trabajo.NúmeroIntersecciones, 0);
  ASSERT_EQ(p.Trabajo.NúmeroQuiebres, 2);
  EXPECT_EQ(p.Trabajo.Quiebres[1], 20);
  EXPECT_EQ(p.Trabajo.Quiebres[2], 0);
  EsperarCerca(Bordes(p), {20, 15, 10, 5, 0});  // W = 20 / 4 = 5
  const auto& d = p.TablaDovelas;
  for (long i = 1; i <= 4; ++i) {
    EXPECT_NEAR(d.Ancho[i], 5, 1e-12);
    EXPECT_NEAR(d.XMedio[i], 22.5 - 5 * i, 1e-12);
    EXPECT_NEAR(d.YBase[i], d.XMedio[i] / 2, 1e-12);
    EXPECT_NEAR(d.YTalud[i], 12, 1e-12);
    EXPECT_EQ(d.YFreático[i], d.YBase[i]);  // without a phreatic line, the base
    EXPECT_EQ(d.CohesiónBase[i], 2);
    EXPECT_NEAR(d.TanFricciónBase[i], 1 / std::sqrt(3.0), 1e-12);
  }
  EsperarCerca({d.BordeYFalla[1], d.BordeYFalla[3], d.BordeYFalla[5]}, {10, 5, 0});
  EXPECT_TRUE(p.EtapaQuiebres && p.EtapaDovelas && p.EtapaGeometría && p.EtapaEstratos);
}

TEST_F(SuperficieRecta, FueraDeSuLíneaUnEstratoTomaLaDelEstratoDeArriba) {
  // Stratum 1 at 11 over the whole section, stratum 2 at -5 only for x from 10 to 30: the slices
  // at 7.5 and 2.5 see stratum 2 at 11 (no thickness), not at the surface 12.
  AñadirEstrato(p, {{30, 11}, {-10, 11}}, {.cohesión = 2, .fricción = 30});
  AñadirEstrato(p, {{30, -5}, {10, -5}}, {.cohesión = 3, .fricción = 25});
  Etapas();
  const auto& d = p.TablaDovelas;
  EsperarCerca({d.YEstrato(2, 1), d.YEstrato(2, 2), d.YEstrato(2, 3), d.YEstrato(2, 4)},
               {-5, -5, 11, 11}, 0);
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
  Niveles(p, {5, 4.8, 4.6, -20});
  Etapas();
  ASSERT_EQ(p.Trabajo.NúmeroIntersecciones, 3);
  const auto& t = p.Trabajo;
  EsperarCerca({t.XIntersección[1], t.XIntersección[2], t.XIntersección[3]}, {10, 9.6, 9.2});
  // Breaks: the top, each crossing (each stratum differs from its neighbours), the bottom.
  ASSERT_EQ(t.NúmeroQuiebres, 5);
  // Pairs with W = 5: 20→10 two widths; 10→9.6 and 9.6→9.2 one short slice each; 9.2→0 one
  // width and the rest 4.2.
  EsperarCerca(Bordes(p), {20, 15, 10, 9.6, 9.2, 4.2, 0});
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
  // segment, 14 - 10·(2 / 14.995). The middle takes the first segment with X[j+1] < x <= X[j].
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{30, 14}, {15.005, 12}, {-10, 12}});
  Niveles(p, {-5});
  Etapas();
  const auto& d = p.TablaDovelas;
  EsperarCerca({d.BordeYTalud[1], d.BordeYTalud[2], d.BordeYTalud[3]},
               {14 - 10 * 2 / 14.995, 14, 12}, 1e-12);
  EXPECT_NEAR(d.PendienteTalud[2], (14 - 12) / 5.0, 1e-12);
  EXPECT_NEAR(d.YTalud[1], 14 - 12.5 * 2 / 14.995, 1e-12);
  EXPECT_NEAR(d.YTalud[2], 12, 1e-12);
}

TEST_F(SuperficieRecta, ElNivelFreáticoSigueAlTaludBajoSuÚltimoPuntoYNoSeEscribeSobreElPrimero) {
  // Middles: 17.5 lies above the first point (0); 12.5 and 7.5 on the line of slope 0.5; 2.5
  // below the last point takes the surface.
  Niveles(p, {-5});
  PonerLínea(p.CoordenadasFreático, p.NúmeroPuntosFreático, {{16, 9}, {4, 3}});
  Etapas();
  const auto& d = p.TablaDovelas;
  EsperarCerca({d.YFreático[1], d.YFreático[2], d.YFreático[3], d.YFreático[4]},
               {0, 9 - 3.5 * 0.5, 9 - 8.5 * 0.5, 12}, 1e-12);
  EsperarCerca({d.BordeYFreático[1], d.BordeYFreático[2], d.BordeYFreático[5]}, {0, 8.5, 12},
               1e-12);
}

TEST_F(SuperficieRecta, UnaSolaPasadaDeIntercambiosDejaFueraDeOrdenLoQueEstáLejos) {
  // Crossings found as 3, 5, 8 (three strata). One pass of neighbour exchanges gives 5, 8, 3:
  // the 8 moves one place only.
  PonerLínea(p.CoordenadasFalla, p.NúmeroPuntosFalla, {{10, 5}, {0, 0}});
  p.ParámetrosIniciales.NúmeroDovelas = 5;
  auto& t = p.Trabajo;
  t.NúmeroIntersecciones = 3;
  Fijar(t.XIntersección, {3, 5, 8});
  Fijar(t.PendienteFallaCruce, {0.5, 0.5, 0.5});
  t.PendienteEstratoCruce.Redimensionar(3);
  t.EstratoCruce.Redimensionar(3);
  for (long r = 1; r <= 3; ++r) t.EstratoCruce[r] = static_cast<Entero>(r);
  ListaDeQuiebres(p);
  EsperarCerca({t.XIntersección[1], t.XIntersección[2], t.XIntersección[3]}, {5, 8, 3}, 0);
  EXPECT_EQ(t.EstratoCruce[2], 3);
  ASSERT_EQ(t.NúmeroQuiebres, 5);
  EsperarCerca({t.Quiebres[1], t.Quiebres[2], t.Quiebres[3], t.Quiebres[4], t.Quiebres[5]},
               {10, 5, 8, 3, 0});
  // W = 10/5 = 2. 10→5: edges 8, 6 and 5 (the rest 0.5·W). 5→8 is passed over. 8→3: the first
  // edge 6 is not below 5, so the pair is abandoned. 3→0: 1 and 0.
  GeneraciónDeDovelas(p, ui);
  EsperarCerca(Bordes(p), {10, 8, 6, 5, 1, 0});
}

// ---------------------------------------------------------------- several stretches

TEST(VariosTramos, UnTramoPolinómicoCruzaUnEstratoPorLaSecante) {
  // y = 0.03x² - 0.1x through (20, 10), (10, 2), (0, 0) meets y = 5 at
  // x = (0.1 + √(0.01 + 0.6)) / 0.06 = 14.68375. Only the first chord crosses the line.
  Proyecto p = Sección(4, {{30, 12}, {-10, 12}}, {{20, 10}, {10, 2}, {0, 0}}, {{1, 3, "P"}});
  Niveles(p, {5, -20});
  Cruces(p);
  ASSERT_EQ(p.Trabajo.NúmeroIntersecciones, 1);
  EXPECT_NEAR(p.Trabajo.XIntersección[1], (0.1 + std::sqrt(0.61)) / 0.06, 1e-3);
  // The search runs on the abscissa of the centre, which keeps the last value tried.
  EXPECT_EQ(p.ParámetrosIniciales.CentroX, p.Trabajo.XIntersección[1]);
  Dovelas(p);
  for (long i = 1; i < p.NúmeroBordes; ++i) {
    const double x = p.TablaDovelas.XMedio[i];
    EXPECT_NEAR(p.TablaDovelas.YBase[i], 0.03 * x * x - 0.1 * x, 1e-9);
  }
}

TEST(VariosTramos, UnTramoPolinómicoQueNoEmpiezaEnElPuntoUnoUsaLosPrimerosPuntos) {
  // Stretch 2 runs from point 2 to 4; its ordinates come from the parabola through points 1 to 3,
  // (30, 20), (20, 10), (10, 2): y = 0.01x² + 0.5x - 4.
  Proyecto p = Sección(6, {{40, 25}, {-10, 25}}, {{30, 20}, {20, 10}, {10, 2}, {0, 0}},
                       {{1, 2, "L"}, {2, 4, "P"}});
  Niveles(p, {-30});
  Cruces(p);
  Dovelas(p);
  EsperarCerca(Bordes(p), {30, 25, 20, 15, 10, 5, 0});
  auto parábola = [](double x) { return 0.01 * x * x + 0.5 * x - 4; };
  const auto& d = p.TablaDovelas;
  EXPECT_NEAR(d.YBase[1], 20 - 2.5, 1e-12);  // 27.5 on the straight stretch of slope 1
  for (long i = 3; i <= 6; ++i) EXPECT_NEAR(d.YBase[i], parábola(d.XMedio[i]), 1e-9) << i;
  // The edges try every stretch and the last that accepts decides: the second stretch (chord
  // slope 0.5) accepts any edge above its first point, so the edge at 25 reads the parabola too.
  EsperarCerca({d.BordeYFalla[2], d.BordeYFalla[4], d.BordeYFalla[7]},
               {parábola(25), parábola(15), 0});
}

TEST(VariosTramos, UnArcoEntreDosRectasConSuCentroBajoLaCuerda) {
  // Stretches L 1-2, C 2-3, L 3-4 over (30, 20), (20, 10), (10, 4), (0, 4). The arc 2-3 has
  // R = chord / (2·sin|α1 - α2|) with α1 = atan 0.6 and α2 = 0 (the level chord after it):
  // R = √136 / (2·0.6/√1.36) = 34/3. Its centre is on the bisector of the chord at
  // √(R² - 34) = 9.7183 from (15, 7): (10, 46/3) or (20, -4/3). Newton starts at
  // ((20 + 10)/2, 1.5·|4|) = (15, 6), 8.9 from the lower one and 10.6 from the upper, and
  // settles on the lower.
  Proyecto p = Sección(6, {{40, 25}, {-10, 25}}, {{30, 20}, {20, 10}, {10, 4}, {0, 4}},
                       {{1, 2, "L"}, {2, 3, "C"}, {3, 4, "L"}});
  Niveles(p, {6, -30});
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
  // stretch's first point. Below point 3 the level stretch.
  Dovelas(p);
  const auto& d = p.TablaDovelas;
  int dentro = 0;
  for (long i = 1; i < p.NúmeroBordes; ++i) {
    const double x = d.XMedio[i];
    if (x <= 10 || x >= 20) continue;
    ++dentro;
    EXPECT_NEAR(d.YBase[i], cy + std::sqrt(r * r - (x - cx) * (x - cx)), 1e-6) << x;
  }
  EXPECT_GT(dentro, 0);
  EXPECT_NEAR(d.YBase[p.NúmeroBordes - 1], 4, 1e-12);
}

TEST(VariosTramos, ElArcoÚnicoCruzaUnEstratoDondeElCírculoLoCorta) {
  // Arc (20, 10)-(14.5, 0) of radius 12: centre on the bisector at √(144 - 32.5625) from the
  // middle of the chord, up and to the left. The level line at 5 meets the lower arc at
  // x = cx + √(144 - (5 - cy)²); the march stops within 0.005 in height, rising 2.1 per metre.
  Proyecto p = Sección(4, {{30, 10}, {-10, 0}}, {{20, 10}, {14.5, 0}}, {{1, 2, "C"}});
  p.ParámetrosIniciales.Radio = 12;
  Niveles(p, {5, -30});
  const double cuerda = std::hypot(5.5, 10), d = std::sqrt(144 - cuerda * cuerda / 4);
  const double cx = 17.25 - d * 10 / cuerda, cy = 5 + d * 5.5 / cuerda;
  Cruces(p);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroX, cx, 1e-9);
  EXPECT_NEAR(p.ParámetrosIniciales.CentroY, cy, 1e-9);
  ASSERT_EQ(p.Trabajo.NúmeroIntersecciones, 1);
  EXPECT_NEAR(p.Trabajo.XIntersección[1], cx + std::sqrt(144 - (5 - cy) * (5 - cy)), 0.005);
}

using namespace pruebas;

// One slice 2 m wide between edges 2 and 0, base level at yb, surface at yt, phreatic line at yf
// over the middle and at f1, f2 over the edges.
Proyecto Dovela(double yb, double yt, double yf, double f1, double f2) {
  Proyecto p = ProyectoDeSuelo(4);
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{20, yt}, {-10, yt}});
  p.NúmeroBordes = 2;
  auto& d = p.TablaDovelas;
  Fijar(d.BordeX, {2, 0});
  Fijar(d.BordeYFalla, {yb, yb});
  Fijar(d.BordeYFreático, {f1, f2});
  Fijar(d.XMedio, {1});
  Fijar(d.YBase, {yb});
  Fijar(d.YTalud, {yt});
  Fijar(d.YFreático, {yf});
  Fijar(d.Ancho, {2});
  Fijar(d.PresiónPoros, {0});
  return p;
}

// The next stratum down to `línea`, which passes at height y over the middle of the slice.
void Estrato(Proyecto& p, double y, const DatosEstrato& e, const Puntos& línea = {}) {
  AñadirEstrato(p, línea.empty() ? Puntos{{20, y}, {-10, y}} : línea, e);
  p.TablaDovelas.YEstrato.RedimensionarConservando(p.NúmeroEstratos, 1);
  p.TablaDovelas.YEstrato(p.NúmeroEstratos, 1) = y;
}

TEST(Poros, RellenoSobreNatural) {
  // Surface 10, fill (B 0.5) down to 4, base at 2 in the natural stratum (B 0.3), phreatic line at
  // 6 (heads 5 and 3 at the edges). Drag: the fill 10 - 4 = 6 m at 2.0 = 12; the natural stratum
  // adds nothing. All Cv are 0, so U = 0 and the excess is 12 · B of the stratum of the base
  // (0.3) = 3.6. Mean over the edges: E = 2; (2 + 3.6) / 2.
  auto relleno = [](Entero tipo) {
    Proyecto p = Dovela(2, 10, 6, 7, 5);
    Estrato(p, 4, {.húmedo = 2.0, .saturado = 2.2, .tipo = tipo, .b = 0.5});
    Estrato(p, -5, {.húmedo = 1.8, .saturado = 2.0, .tipo = 0, .b = 0.3});
    return p;
  };
  Proyecto p = relleno(1);
  InterfazGuionada ui;
  PresiónYPesoEnDovelas(p, ui);
  const auto& d = p.TablaDovelas;
  EXPECT_NEAR(d.PresiónPoros[1], (6 - 2) + 3.6, 1e-12);
  EXPECT_NEAR(d.PresiónPorosMedia[1], 2.8, 1e-12);
  EXPECT_EQ(d.PendienteBase[1], 0);
  // 4 m moist and 2 m saturated fill, 2 m saturated natural soil over 8 m.
  EXPECT_NEAR(d.PesoUnitarioMedio[1], (4 * 2.0 + 2 * 2.2 + 2 * 2.0) / 8, 1e-12);
  EXPECT_EQ(d.AlturaAguaSobreTalud[1], 0);
  EXPECT_TRUE(ui.Transcripción().empty());
  EXPECT_FALSE(p.PresionesExistentes);
  EXPECT_TRUE(p.EtapaPoros);
  // Natural strata give no excess.
  Proyecto natural = relleno(0);
  Poros(natural);
  EXPECT_NEAR(natural.TablaDovelas.PresiónPoros[1], 4, 1e-12);
  EXPECT_NEAR(natural.TablaDovelas.PresiónPorosMedia[1], 1, 1e-12);
  // Pressures of the user: No keeps the 3 and still adds the excess 3.6; Yes estimates 4 + 3.6.
  for (const auto& [respuesta, presión] : {std::pair{"N", 3 + 3.6}, std::pair{"S", 4 + 3.6}}) {
    Proyecto q = relleno(1);
    q.TablaDovelas.PresiónPoros[1] = 3;
    InterfazGuionada pregunta(respuesta);
    PresiónYPesoEnDovelas(q, pregunta);
    EXPECT_NEAR(q.TablaDovelas.PresiónPoros[1], presión, 1e-12) << respuesta;
    EXPECT_TRUE(q.PresionesExistentes);
    EXPECT_EQ(pregunta.Textos(),
              std::vector<std::string>{"Ya existen presión de poros. ¿Desea estimarlas a partir "
                                       "de las coordenadas del nivel freático?"});
  }
}

TEST(Poros, ElGradoDeConsolidaciónPasaALaSegundaRamaSobre60) {
  // One fill 10 m over the base, its line (its foot) at -10; HMáxima 10, construction 12 months:
  // the fill stands 20 m over its foot, the column over the base is 10 m: T = 12·10/20 = 6;
  // H = 10 - (-10) = 20, halved since no stratum with Cv follows: 10.
  // Tv = 3153.6·Cv·(6/24)/100 = 7.884·Cv. Drag = 10·2.0 = 20, B = 0.6.
  const double tv1 = 7.884 * 0.01, tv2 = 7.884 * 0.05, tv3 = 7.884 * 0.042;
  const std::pair<double, double> casos[] = {
      {0.01, std::sqrt(4 * tv1 / 3.1415) * 100},             // 31.7: first branch
      {0.05, 100 - std::pow(10.0, (1.781 - tv2) / 0.933)},   // √ form gives 70.9: second branch
      {0.042, 100 - std::pow(10.0, (1.781 - tv3) / 0.933)},  // √ form 64.9, just over 60: 64.2
  };
  for (const auto& [cv, u] : casos) {
    Proyecto p = Dovela(0, 10, 5, 5, 5);
    Estrato(p, -10, {.húmedo = 2.0, .saturado = 2.2, .tipo = 1, .b = 0.6, .cv = cv, .tiempo = 12});
    Poros(p);
    const double exceso = 20 * 0.6 - 20 * u / 100;
    EXPECT_NEAR(p.TablaDovelas.PresiónPoros[1], 5 + exceso, 1e-9) << cv;
    EXPECT_NEAR(p.TablaDovelas.PresiónPorosMedia[1], exceso / 2, 1e-9) << cv;
  }
}

TEST(Poros, ElTiempoEfectivoDeUnEstratoInferiorSeMideDesdeSuTecho) {
  // Fill 1 (Cv 0) from the surface 10 down to 6, fill 2 (Cv 0.01, 24 months) down to -10, base
  // at 0 in fill 2. Drag = 4·2.0 + 6·1.9 = 19.4. Fill 1 moves the top of the compressible
  // layer to 6. For fill 2: the top of the stratum is line 1, whose crest is 6, its foot -10:
  // T = 24·(6 - 0)/(6 - (-10)) = 9; H = (6 - (-10))/2 = 8; Tv = 3153.6·0.01·(9/24)/64.
  // √(4·Tv/3.1415)·100 = 48.5 is below 60: the first branch.
  Proyecto p = Dovela(0, 10, 8, 8, 8);
  Estrato(p, 6, {.húmedo = 2.0, .saturado = 2.0, .tipo = 1, .b = 0.4});
  Estrato(p, -10, {.húmedo = 1.9, .saturado = 1.9, .tipo = 1, .b = 0.7, .cv = 0.01, .tiempo = 24});
  Poros(p);
  const double u = std::sqrt(4 * (31.536 * 0.375 / 64) / 3.1415) * 100;
  EXPECT_NEAR(p.TablaDovelas.PresiónPoros[1], 8 + 19.4 * 0.7 - 19.4 * u / 100, 1e-9);
}

TEST(Poros, AguaSobreElTaludYNivelBajoLaBase) {
  // Phreatic line 12 over a surface at 10, base 0, one fill (B 0.5, Cv 0) down to -10: the rapid
  // drawdown takes the water over the surface away but not its load; the whole column is
  // saturated.
  for (const bool desembalse : {false, true}) {
    Proyecto p = Dovela(0, 10, 12, 12, 12);
    Estrato(p, -10, {.húmedo = 2.0, .saturado = 2.2, .tipo = 1, .b = 0.5});
    p.DesembalseRápido = desembalse;
    Poros(p);
    const auto& d = p.TablaDovelas;
    EXPECT_EQ(d.AlturaAguaSobreTalud[1], desembalse ? 0 : 2);
    EXPECT_NEAR(d.PresiónPoros[1], 12 + 0.5 * (desembalse ? 20 : 22), 1e-12);
    EXPECT_NEAR(d.PesoUnitarioMedio[1], 2.2, 1e-12);
  }
  // Phreatic line at 3, two metres under the base at 5: no pressure (not -2), no excess.
  Proyecto p = Dovela(5, 10, 3, 3, 3);
  Estrato(p, -10, {.húmedo = 1.7, .saturado = 2.0, .tipo = 1, .b = 0.5});
  Poros(p);
  EXPECT_EQ(p.TablaDovelas.PresiónPoros[1], 0);
  EXPECT_EQ(p.TablaDovelas.PresiónPorosMedia[1], 0);
  EXPECT_NEAR(p.TablaDovelas.PesoUnitarioMedio[1], 1.7, 1e-12);
}

// The same two strata with the top of the lower one peaking at y = dy over the slice, for dy = 0
// and 100: the same pore pressures, whatever stratum the base lies in. Surface at 10 + dy, fill
// down to the peaked line, lower stratum down to dy - 20, phreatic line at 8 + dy.
double Presión(double dy, double yb, const DatosEstrato& inferior) {
  Proyecto p = Dovela(yb + dy, 10 + dy, 8 + dy, 8 + dy, 8 + dy);
  Estrato(p, dy, {.húmedo = 2.0, .saturado = 2.1, .tipo = 1, .b = 0.5, .cv = 0.01, .tiempo = 6},
          {{20, dy - 2}, {1, dy}, {-10, dy - 2}});
  Estrato(p, dy - 20, inferior);
  Poros(p);
  return p.TablaDovelas.PresiónPoros[1];
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
