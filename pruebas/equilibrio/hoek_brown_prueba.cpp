// The Hoek-Brown relations of the rock mass against published values and closed forms.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>

#include "equilibrio/estratos/hoek_brown.h"
#include "proyecto/fallos.h"

namespace lomaterra {
namespace {

// Hammah, Yacoub, Corkum and Curran (2005): σci = 30 MPa, GSI = 5, mi = 2, D = 0 give
// mb = 0.0672, s = 2.6e-5, a = 0.619. The constants do not depend on the units of σc.
TEST(HoekBrown, EjemploPublicadoDeHammah) {
  const ConstantesMacizo c = ConstantesHoekBrown(2, 5, 0);
  EXPECT_NEAR(c.m, 0.0672, 0.00005);
  EXPECT_NEAR(c.s, 2.6e-5, 0.05e-5);
  EXPECT_NEAR(ExponenteHoekBrown(5), 0.619, 0.0005);
  // GSI 100 without disturbance is the intact rock; a tends to 1/2 for a good mass.
  const ConstantesMacizo intacta = ConstantesHoekBrown(12, 100, 0);
  EXPECT_DOUBLE_EQ(intacta.s, 1.0);
  EXPECT_DOUBLE_EQ(intacta.m, 12.0);
  EXPECT_NEAR(ExponenteHoekBrown(100), 0.5, 0.0001);
}

TEST(HoekBrown, SerieDelArcoSeno) {
  for (double z : {0.0, 0.1, -0.3, 0.5, 0.8, 0.9})
    EXPECT_NEAR(ArcoSenoSerie(z), std::asin(z), 1e-9) << z;
  // Near 1 the 86 terms fall short of π/2: the tail Σ_{i>85} c_i/(2i+1) with c_i ≈ 1/√(πi)
  // is about 1/√(85π) ≈ 0.061. And no term overflows on the way.
  std::feclearexcept(FE_ALL_EXCEPT);
  const double uno = ArcoSenoSerie(1.0);
  EXPECT_FALSE(std::fetestexcept(FE_OVERFLOW | FE_INVALID | FE_DIVBYZERO));
  EXPECT_GT(std::asin(1.0) - uno, 0.055);
  EXPECT_LT(std::asin(1.0) - uno, 0.065);
}

// Hoek, Carranza-Torres and Corkum (2002): the global strength of the mass is the strength of
// the Mohr-Coulomb line fitted over σt < σ3 < σci/4, 2c·cosφ / (1 − sinφ).
TEST(HoekBrown, ResistenciaGlobalEsLaDeLaRectaEquivalente) {
  for (double GSI : {20.0, 50.0, 80.0}) {
    const ConstantesMacizo c = ConstantesHoekBrown(10, GSI, 0);
    const double a = ExponenteHoekBrown(GSI), σc = 500;
    const CohesiónFricción cf = EquivalenteMacizo(c.m, c.s, a, σc, 0.25);
    const double φ = cf.fricción * std::acos(-1.0) / 180;
    EXPECT_NEAR(2 * cf.cohesión * std::cos(φ) / (1 - std::sin(φ)),
                ResistenciaGlobalMacizo(c.m, c.s, a, σc), 1e-5 * σc)
        << GSI;
  }
}

// Pairs on an exact curve of a = 1/2: (σ1 − σ3)² = m·σc·σ3 + s·σc² with σc = 100.
TEST(HoekBrown, AjusteDeEnsayos) {
  auto σ1 = [](double y, double σ3) { return σ3 + std::sqrt(y); };
  // m = 2, s = 0.5: y = 200σ3 + 5000.
  const std::vector<double> σ3{0, 10, 20};
  const std::vector<double> σ1s{σ1(5000, 0), σ1(7000, 10), σ1(9000, 20)};
  const AjusteEnsayo libre = AjustarEnsayos(σ1s, σ3, 100, false);
  EXPECT_NEAR(libre.m, 2, 1e-9);
  EXPECT_NEAR(libre.s, 0.5, 1e-9);
  const AjusteEnsayo intacta = AjustarEnsayos(σ1s, σ3, 100, true);
  EXPECT_NEAR(intacta.m, 2, 1e-9);
  EXPECT_EQ(intacta.s, 1);
  // y = 200σ3 − 1000 has a negative intercept: s = 0 and the line through the origin,
  // m = Σy / Σx / σc = (1000 + 3000) / 30 / 100.
  const AjusteEnsayo origen =
      AjustarEnsayos({10 + std::sqrt(1000.0), 20 + std::sqrt(3000.0)}, {10, 20}, 100, false);
  EXPECT_EQ(origen.s, 0);
  EXPECT_NEAR(origen.m, 4000.0 / 30 / 100, 1e-9);
  // Two pairs of one σ3 leave no slope.
  EXPECT_THROW(AjustarEnsayos({50, 60}, {10, 10}, 100, false), FalloAritmético);
}

}  // namespace
}  // namespace lomaterra
