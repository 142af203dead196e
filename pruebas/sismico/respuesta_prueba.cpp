// One modal degree by the Duhamel integral: the integrals against the closed forms of an undamped
// oscillator, and the run's own accumulation (integrals at the step's time) worked by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "sismico/duhamel.h"
#include "sismico/inversa_explicita.h"
#include "sismico/paso_a_paso.h"
#include "sismico/paso_desacoplado.h"

namespace lomaterra {
namespace {

TEST(Duhamel, LasIntegralesSobreElIntervaloDanLasFormasCerradas) {
  // m q'' + m w² q = F (constant): q = F/(m w²)(1 - cos wt), q' = F/(m w) sin wt.
  // F = r τ: q = r/(m w²)(t - sin(wt)/w), q' = r/(m w²)(1 - cos wt); with m = 1, q'' = r sin(wt)/w.
  const double w = 2, F = 3, r = 4;
  for (double m : {1.0, 2.5})
    for (double t : {0.1, 0.3, 0.5}) {
      const IntegralesDuhamel i0 = CalcularIntegralesDuhamel(w, 0, 0, 0.1);
      const IntegralesDuhamel i = CalcularIntegralesDuhamel(w, 0, t, 0.1);
      const RespuestaModal c = RespuestaDuhamel({F * (i.I1 - i0.I1), F * (i.I2 - i0.I2)}, w, 0, m, t, 0.1, F);
      EXPECT_NEAR(c.q, F / (m * w * w) * (1 - std::cos(w * t)), 1e-12);
      EXPECT_NEAR(c.qd, F / (m * w) * std::sin(w * t), 1e-12);
      const RespuestaModal l = RespuestaDuhamel({r * (i.I4 - i0.I4), r * (i.I3 - i0.I3)}, w, 0, m, t, 0.1, r * t);
      EXPECT_NEAR(l.q, r / (m * w * w) * (t - std::sin(w * t) / w), 1e-12);
      EXPECT_NEAR(l.qd, r / (m * w * w) * (1 - std::cos(w * t)), 1e-12);
      if (m == 1) {
        EXPECT_NEAR(l.qa, r * std::sin(w * t) / w, 1e-12);
      }
    }
}

TEST(Duhamel, LaAcumulaciónDelCálculoAMano) {
  // Constant F, undamped, integrals at each step's own time b_k = w t_k: by hand
  // q_n = F/(M w²) Σ_k cos(b_n - b_k), q'_n = F/(M w) Σ_k sin(b_k - b_n). At t = 0.6, w t = 1.2 > 1
  // and the angle is held at -3.14159/2.
  const double w = 2, M = 2.5, F = 3, t[] = {0.0001, 0.2, 0.4, 0.6};
  const double b[] = {0.0002, 0.4, 0.8, -3.14159 / 2};
  EstadoDuhamel e;
  for (int n = 0; n < 4; ++n) {
    const RespuestaModal s = PasoDuhamel(e, n == 0, w, 0, M, t[n], n ? t[n - 1] : 0, 0.2, F, F);
    double q = 0, qd = 0;
    for (int k = 0; k <= n; ++k) q += std::cos(b[n] - b[k]), qd += std::sin(b[k] - b[n]);
    EXPECT_NEAR(s.q, F / (M * w * w) * q, 1e-12) << n;
    EXPECT_NEAR(s.qd, F / (M * w) * qd, 1e-12) << n;
  }
  // Damped, first step: A sin b - B cos b = F e^{s Dt} wd / h and h = w², so the step is static
  // with no velocity: q = F/(M w²), q' = 0, q'' = F (1 - 1/M).
  EstadoDuhamel d;
  const RespuestaModal s = PasoDuhamel(d, true, 5, 0.2, M, 0.0001, 0, 0.02, F, 0);
  EXPECT_NEAR(s.q, F / (M * 25), 1e-12);
  EXPECT_NEAR(s.qd, 0, 1e-12);
  EXPECT_NEAR(s.qa, F * (1 - 1 / M), 1e-12);
}

}  // namespace
}  // namespace lomaterra

namespace lomaterra {
namespace {

long InversaDePrueba(const std::vector<double>& a, long n, std::vector<double>& inv) {
  return InversaGaussJordanSimple(a, n, inv);
}

TEST(PasoAPaso, UnGradoTresPasosCalculadosAMano) {
  // K = 1000, M = 10, P = 10 at every step, Dt = 0.01. Step 1 static: u = 0.01, v = 2u/Dt = 2,
  // a = 4u/Dt² = 400. Step 2, C = 0: K* = 1000 + 4 * 10 / 1e-4 = 401000,
  // dP = 0 - |(400 * 2 + 2 * 400) 10| = -16000, du = -16000/401000; v = 2 + 200 du - 4,
  // a = 400 + 40000 du - 800 - 800. Step 3: dP = -|(400 v2 + 2 a2) 10|.
  // With C = 2 at step 2: K* = 401000 + 200 * 2, dP = -16000 - |(0.005 * 400 + 3 * 2) 2| = -16016.
  const std::vector<double> K{1000}, M{10}, P{10}, C0{0}, C2{2};
  for (const std::vector<double>* C : {&C0, &C2}) {
    EstadoPasoAPaso e;
    DatosPasoAPaso d{1, &M, &K, &K, C, &P, 0.01, true};
    ASSERT_EQ(PasoAPaso(d, e, InversaDePrueba), 0);
    EXPECT_DOUBLE_EQ(e.u[0], 0.01);
    EXPECT_DOUBLE_EQ(e.v[0], 2);
    EXPECT_DOUBLE_EQ(e.a[0], 400);
    d.primero = false;
    ASSERT_EQ(PasoAPaso(d, e, InversaDePrueba), 0);
    const double du2 = C == &C0 ? -16000.0 / 401000 : -16016.0 / 401400;
    EXPECT_NEAR(e.u[0], 0.01 + du2, 1e-15);
    EXPECT_NEAR(e.v[0], 2 + 200 * du2 - 4, 1e-12);
    EXPECT_NEAR(e.a[0], 400 + 40000 * du2 - 1600, 1e-9);
    if (C == &C2) continue;
    ASSERT_EQ(PasoAPaso(d, e, InversaDePrueba), 0);
    const double v2 = 2 + 200 * du2 - 4, a2 = 400 + 40000 * du2 - 1600;
    EXPECT_NEAR(e.u[0], 0.01 + du2 - std::fabs((400 * v2 + 2 * a2) * 10) / 401000, 1e-14);
    EXPECT_NEAR(e.u[0], -0.2689, 1e-4);  // the figures 0.0100, -0.0299, -0.269 m
  }
}

TEST(PasoAPaso, SoloLaDiagonalDeLaInversaYElCorte) {
  // K = [2 -1; -1 2], P = (1, 0): the inverse is [2 1; 1 2]/3, so du = (2/3, 0), not (2/3, 1/3).
  // A load of 3e7 on K = 1000 gives 3e4 m: cut to 10^4.
  const std::vector<double> K{2, -1, -1, 2}, M{1, 0, 0, 1}, P{1, 0}, Kg{1000}, Mg{1}, Pg{-3e7};
  EstadoPasoAPaso e, g;
  ASSERT_EQ(PasoAPaso({2, &M, &K, &K, nullptr, &P, 0.1, true}, e, InversaDePrueba), 0);
  EXPECT_NEAR(e.u[0], 2.0 / 3, 1e-15);
  EXPECT_EQ(e.u[1], 0);
  EXPECT_FALSE(e.corte);
  ASSERT_EQ(PasoAPaso({1, &Mg, &Kg, &Kg, nullptr, &Pg, 0.1, true}, g, InversaDePrueba), 0);
  EXPECT_EQ(g.u[0], -10000);
  EXPECT_TRUE(g.corte);
}

TEST(PasoDesacoplado, UnGradoDosPasosCalculadosAMano) {
  // w = 10, z = 0, Dt = 0.1, F = 1, mode component 2. Divisor 6/Dt² + w² = 700.
  // Step 1: q = 1/700, v = 30/700, a = 600/700. Step 2: L = 60 v + 3 a = 3600/700, dq = L/700,
  // v += 30 dq - 0.05 a - 3 v. Node: u = 2 q; a1 = 600 u1, a2 = 400 (u2 - u1) - 40 v1 - a1.
  EstadoDesacoplado e;
  PasoDesacoplado({2}, 1, {1}, {0}, 10, 0.1, true, e);
  EXPECT_NEAR(e.u[0], 2.0 / 700, 1e-15);
  EXPECT_NEAR(e.a[0], 1200.0 / 700, 1e-12);
  PasoDesacoplado({2}, 1, {1}, {0}, 10, 0.1, false, e);
  const double dq = 3600.0 / 490000, v2 = 30.0 / 700 + 30 * dq - 0.05 * 600 / 700 - 90.0 / 700;
  EXPECT_NEAR(e.modos[0].q, 1.0 / 700 + dq, 1e-15);
  EXPECT_NEAR(e.v[0], 2 * v2, 1e-13);
  EXPECT_NEAR(e.a[0], 400 * 2 * dq - 40 * 60.0 / 700 - 1200.0 / 700, 1e-10);
  EXPECT_FALSE(e.límite);
}

}  // namespace
}  // namespace lomaterra
