// The initial frequency estimate: the series against the zeros of J0, the Gmax cases worked by hand,
// the frequency of a shear wedge and the refusals of a zero height or unit weight.
#include <gtest/gtest.h>

#include <cmath>

#include "sismico/frecuencias.h"

namespace lomaterra {
namespace {

TEST(FrecuenciasIniciales, LaSerieDaLosCerosDeJ0) {
  // Zeros of J0 from the tables (Abramowitz and Stegun, table 9.5). The asymptotic series is poor
  // at n = 1 (its last term there is about 0.005) and good to 1e-4 from n = 2 on.
  const double ceros[] = {2.4048, 5.5201, 8.6537, 11.7915, 14.9309};
  for (int n = 1; n <= 5; ++n)
    EXPECT_NEAR(CeroBesselJ0(n), ceros[n - 1], n == 1 ? 0.01 : 1e-4) << n;
  // Far out the zeros are spaced by π; with m in 16 bits m² would have overflowed from n = 46.
  EXPECT_NEAR(CeroBesselJ0(1000) - CeroBesselJ0(999), 3.14159, 1e-5);
}

TEST(FrecuenciasIniciales, CasosDeGmax) {
  // s = (K0 + 1) sv / 2 = (0.5 + 1) * 20 / 2 = 15 t/m2 in every case.
  const double s = 15;
  struct Caso { SueloParaGmax suelo; char caso; double valor; };
  const Caso casos[] = {
      // A: 0.704 (2.97 - 0.7)^2 1230 / 1.7 sqrt(15 * 1.421)
      {{0.7, 0, 20, 1, 1, 25, 0.5, 20}, 'A', 0.704 * 5.1529 * 1230 / 1.7 * std::sqrt(s * 1.421)},
      {{0.7, 4, 20, 1, 0, 0, 0.5, 20}, 'B', 4 * 1126.4 * 1.421},
      // C with φ = 34: x = 60, K = 16 + 36 = 52; with φ = 20, K stays 16
      {{0.6, 0, 0, 0, 0, 34, 0.5, 20}, 'C', 52 * 4.882 * std::sqrt(s * 204.857)},
      {{0.6, 0, 0, 0, 0, 20, 0.5, 20}, 'C', 16 * 4.882 * std::sqrt(s * 204.857)},
      // D: Ip = 30 gives k = 0.18 + 0.12 * 10 / 20 = 0.24; OCR multiplies
      {{0.9, 0, 30, 2, 0, 10, 0.5, 20}, 'D', 2.07 * 2.07 / 1.9 * 72.05832 * 2 * 0.24 * std::sqrt(s * 204.857)},
      {{0.9, 3, 30, 2, 0, 0, 0.5, 20}, 'E', 2.07 * 2.07 / 1.9 * 72.05832 * 2 * 0.24 * std::sqrt(s * 204.857)},
      {{0.6, 0, 0, 1, 0, 30, 0.5, 20}, 0, 0},  // OCR 1 with Ip 0: no case
  };
  for (const Caso& c : casos) {
    const Gmax g = GmaxPorPropiedadesFísicas(c.suelo);
    EXPECT_EQ(g.caso, c.caso);
    EXPECT_NEAR(g.valor, c.valor, 1e-9 * std::max(1.0, c.valor));
  }
  EXPECT_DOUBLE_EQ(FactorkPorIp(70), 0.41 + 0.035);
  EXPECT_DOUBLE_EQ(FactorkPorIp(120), 0.5);
}

TEST(FrecuenciasIniciales, CuñaDeCorteYDatosQueNoSePuedenUsar) {
  // Method 1: G = Vs² γ / g, so sqrt(G g / γ) = Vs. H = 64 m gives H^(5/6) = 32.
  std::vector<PropiedadesGrado> grados(3, PropiedadesGrado{0, 0.3, 2.0, 240, 0});
  std::vector<double> w;
  ASSERT_EQ(FrecuenciasInicialesEstimadas(grados, 1, 64, w), "");
  ASSERT_EQ(w.size(), 3u);
  for (int n = 0; n < 3; ++n) EXPECT_NEAR(w[n], 240 * CeroBesselJ0(n + 1) / (1.2 * 32), 1e-9);
  w = {7};
  EXPECT_NE(FrecuenciasInicialesEstimadas(grados, 1, 0, w).find("altura"), std::string::npos);
  grados[1].peso = 0;
  EXPECT_NE(FrecuenciasInicialesEstimadas(grados, 3, 64, w).find("grado de libertad 2"), std::string::npos);
  EXPECT_EQ(w, std::vector<double>{7});
}

}  // namespace
}  // namespace lomaterra
