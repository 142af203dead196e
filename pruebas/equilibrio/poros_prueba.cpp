// Pore pressure and mean unit weight of one slice laid out by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "equilibrio/dovelas.h"
#include "equilibrio/dovelas_apoyo.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

using namespace pruebas;

const char* const kPregunta =
    "Ya existen presión de poros. ¿Desea estimarlas a partir de las coordenadas del nivel freático?";

// One slice 2 m wide between edges 2 and 0, base level at yb, surface at yt, phreatic line at yf;
// the strata are level lines at the given heights.
class UnaDovela : public ::testing::Test {
 protected:
  void Dovela(double yb, double yt, double yf, double freáticoBorde1, double freáticoBorde2) {
    p = ProyectoDeSuelo(4);
    PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{20, yt}, {-10, yt}});
    p.NúmeroBordes = 2;
    auto& d = p.TablaDovelas;
    for (Tabla<double>* c : {&d.BordeX, &d.BordeYFalla, &d.BordeYFreático}) c->Redimensionar(2);
    for (Tabla<double>* c : {&d.XMedio, &d.YBase, &d.YTalud, &d.YFreático, &d.Ancho, &d.PresiónPoros})
      c->Redimensionar(1);
    d.BordeX[1] = 2, d.BordeX[2] = 0;
    d.BordeYFalla[1] = d.BordeYFalla[2] = yb;
    d.BordeYFreático[1] = freáticoBorde1, d.BordeYFreático[2] = freáticoBorde2;
    d.XMedio[1] = 1, d.YBase[1] = yb, d.YTalud[1] = yt, d.YFreático[1] = yf, d.Ancho[1] = 2;
  }
  void Estrato(double y, const DatosEstrato& e) {
    AñadirEstrato(p, {{20, y}, {-10, y}}, e);
    p.TablaDovelas.YEstrato.RedimensionarConservando(p.NúmeroEstratos, 1);
    p.TablaDovelas.YEstrato(p.NúmeroEstratos, 1) = y;
  }
  Proyecto p;
};

// Fill over a natural stratum. Surface 10, fill down to 4, base at 2 in the natural stratum,
// phreatic line at 6 (heads 5 and 3 at the edges).
class RellenoSobreNatural : public UnaDovela {
 protected:
  void SetUp() override {
    Dovela(2, 10, 6, 7, 5);
    Estrato(4, {.húmedo = 2.0, .saturado = 2.2, .tipo = 1, .b = 0.5});
    Estrato(-5, {.húmedo = 1.8, .saturado = 2.0, .tipo = 0, .b = 0.3});
  }
};

TEST_F(RellenoSobreNatural, SinConsolidaciónElExcesoEsElArrastrePorB) {
  InterfazGuionada ui;
  PresiónYPesoEnDovelas(p, ui);
  const auto& d = p.TablaDovelas;
  // Arrastre: the fill 10 - 4 = 6 m at 2.0 = 12; the natural stratum adds nothing. All Cv are 0,
  // so U = 0 and the excess is 12 · B of the stratum of the base (0.3) = 3.6.
  EXPECT_NEAR(d.PresiónPoros[1], (6 - 2) + 3.6, 1e-12);
  // Heads at the edges 5 and 3: E = 2; (2 + 3.6) / 2.
  EXPECT_NEAR(d.PresiónPorosMedia[1], 2.8, 1e-12);
  EXPECT_EQ(d.PendienteBase[1], 0);
  // 4 m moist and 2 m saturated fill, 2 m saturated natural soil over 8 m.
  EXPECT_NEAR(d.PesoUnitarioMedio[1], (4 * 2.0 + 2 * 2.2 + 2 * 2.0) / 8, 1e-12);
  EXPECT_EQ(d.AlturaAguaSobreTalud[1], 0);
  EXPECT_TRUE(ui.Transcripción().empty());
  EXPECT_FALSE(p.PresionesExistentes);
  EXPECT_TRUE(p.EtapaPoros);
}

TEST_F(RellenoSobreNatural, LosEstratosNaturalesNoDanExceso) {
  p.Estrato.TipoEstrato[1] = 0;
  InterfazGuionada ui;
  PresiónYPesoEnDovelas(p, ui);
  EXPECT_NEAR(p.TablaDovelas.PresiónPoros[1], 4, 1e-12);
  EXPECT_NEAR(p.TablaDovelas.PresiónPorosMedia[1], 1, 1e-12);
}

TEST_F(RellenoSobreNatural, ConPresionesDelUsuarioLaPreguntaDecide) {
  struct Caso {
    std::string respuesta;
    double presión;
  };
  // No keeps the user's 3 and still adds the excess 3.6; Yes estimates 4 + 3.6 again.
  for (const Caso& c : {Caso{"N", 3 + 3.6}, Caso{"S", 4 + 3.6}}) {
    SetUp();
    p.TablaDovelas.PresiónPoros[1] = 3;
    InterfazGuionada ui(c.respuesta);
    PresiónYPesoEnDovelas(p, ui);
    EXPECT_NEAR(p.TablaDovelas.PresiónPoros[1], c.presión, 1e-12) << c.respuesta;
    EXPECT_TRUE(p.PresionesExistentes);
    ASSERT_EQ(ui.Transcripción().size(), 1u);
    EXPECT_EQ(ui.Transcripción()[0].tipo, "pregunta");
    EXPECT_EQ(ui.Transcripción()[0].texto, kPregunta);
  }
}

TEST_F(UnaDovela, ElGradoDeConsolidaciónPasaALaSegundaRamaSobre60) {
  // One fill 10 m over the base, its line (its foot) at -10; HMáxima 10, construction 12 months:
  // the fill stands 20 m over its foot, the column over the base is 10 m: T = 12·10/20 = 6;
  // H = 10 - (-10) = 20, halved since no stratum with Cv follows: 10.
  // Tv = 3153.6·Cv·(6/24)/100 = 7.884·Cv. Arrastre = 10·2.0 = 20, B = 0.6.
  struct Caso {
    double cv, u;
  };
  const double tv1 = 7.884 * 0.01, tv2 = 7.884 * 0.05;
  const Caso casos[] = {
      {0.01, std::sqrt(4 * tv1 / 3.1415) * 100},               // 31.7: first branch
      {0.05, 100 - std::pow(10.0, (1.781 - tv2) / 0.933)},   // √ form gives 70.9: second branch
  };
  for (const Caso& c : casos) {
    Dovela(0, 10, 5, 5, 5);
    Estrato(-10, {.húmedo = 2.0, .saturado = 2.2, .tipo = 1, .b = 0.6, .cv = c.cv, .tiempo = 12});
    InterfazGuionada ui;
    PresiónYPesoEnDovelas(p, ui);
    const double exceso = 20 * 0.6 - 20 * c.u / 100;
    EXPECT_NEAR(p.TablaDovelas.PresiónPoros[1], 5 + exceso, 1e-9) << c.cv;
    EXPECT_NEAR(p.TablaDovelas.PresiónPorosMedia[1], exceso / 2, 1e-9) << c.cv;
  }
  EXPECT_GT(casos[1].u, 60);
  EXPECT_LT(casos[0].u, 60);
}

TEST_F(UnaDovela, ElTiempoEfectivoDeUnEstratoInferiorSeMideDesdeSuTecho) {
  // Fill 1 (Cv 0) from the surface 10 down to 6, fill 2 (Cv 0.01, 24 months) down to -10, base
  // at 0 in fill 2. Arrastre = 4·2.0 + 6·1.9 = 19.4. Fill 1 moves the top of the compressible
  // layer to 6. For fill 2: the top of the stratum is line 1, whose crest is 6, its foot -10:
  // T = 24·(6 - 0)/(6 - (-10)) = 9; H = (6 - (-10))/2 = 8; Tv = 3153.6·0.01·(9/24)/64.
  Dovela(0, 10, 8, 8, 8);
  Estrato(6, {.húmedo = 2.0, .saturado = 2.0, .tipo = 1, .b = 0.4});
  Estrato(-10, {.húmedo = 1.9, .saturado = 1.9, .tipo = 1, .b = 0.7, .cv = 0.01, .tiempo = 24});
  InterfazGuionada ui;
  PresiónYPesoEnDovelas(p, ui);
  const double tv = 31.536 * 0.375 / 64;
  // √(4·Tv/3.1415)·100 = 48.5 is below 60: the first branch.
  const double u = std::sqrt(4 * tv / 3.1415) * 100;
  const double exceso = 19.4 * 0.7 - 19.4 * u / 100;
  EXPECT_NEAR(p.TablaDovelas.PresiónPoros[1], 8 + exceso, 1e-9);
}

TEST_F(UnaDovela, ElDesembalseQuitaElAguaSobreElTaludPeroNoSuCarga) {
  // Phreatic line 12 over a surface at 10, base 0, one fill (B 0.5, Cv 0) down to -10.
  struct Caso {
    bool desembalse;
    double altura, arrastre;
  };
  for (const Caso& c : {Caso{false, 2, 10 * 2.0 + 2}, Caso{true, 0, 10 * 2.0}}) {
    Dovela(0, 10, 12, 12, 12);
    Estrato(-10, {.húmedo = 2.0, .saturado = 2.2, .tipo = 1, .b = 0.5});
    p.DesembalseRápido = c.desembalse;
    InterfazGuionada ui;
    PresiónYPesoEnDovelas(p, ui);
    const auto& d = p.TablaDovelas;
    EXPECT_EQ(d.AlturaAguaSobreTalud[1], c.altura);
    EXPECT_NEAR(d.PresiónPoros[1], 12 + 0.5 * c.arrastre, 1e-12);
    EXPECT_NEAR(d.PesoUnitarioMedio[1], 2.2, 1e-12);  // the whole column is saturated
  }
}

TEST_F(UnaDovela, SinNivelSobreLaBaseNoHayPresión) {
  Dovela(5, 10, 5, 0, 0);
  Estrato(-10, {.húmedo = 1.7, .saturado = 2.0, .tipo = 1, .b = 0.5});
  InterfazGuionada ui;
  PresiónYPesoEnDovelas(p, ui);
  EXPECT_EQ(p.TablaDovelas.PresiónPoros[1], 0);
  EXPECT_EQ(p.TablaDovelas.PresiónPorosMedia[1], 0);
  EXPECT_NEAR(p.TablaDovelas.PesoUnitarioMedio[1], 1.7, 1e-12);
}

}  // namespace
}  // namespace lomaterra
