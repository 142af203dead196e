// The response runs on one or two degrees: Duhamel's integrals against the closed forms of an
// undamped oscillator, and each run's own recurrence worked by hand for a few steps.
#include <gtest/gtest.h>

#include <cmath>

#include "sismico/duhamel.h"
#include "sismico/inversa_explicita.h"
#include "sismico/paso_a_paso.h"
#include "sismico/paso_desacoplado.h"

namespace lomaterra {
namespace {

TEST(Duhamel, IntegralesContraFormasCerradasYAcumulaciónAMano) {
  // m q'' + m w² q = F: q = F/(m w²)(1 - cos wt), q' = F/(m w) sin wt; for F = r τ,
  // q = r/(m w²)(t - sin(wt)/w), q' = r/(m w²)(1 - cos wt), and q'' = r sin(wt)/w when m = 1.
  const double w = 2, F = 3, r = 4, m = 1;
  for (double t : {0.1, 0.3, 0.5}) {
    const IntegralesDuhamel i0 = CalcularIntegralesDuhamel(w, 0, 0, 0.1), i = CalcularIntegralesDuhamel(w, 0, t, 0.1);
    const RespuestaModal c = RespuestaDuhamel({F * (i.I1 - i0.I1), F * (i.I2 - i0.I2)}, w, 0, m, t, 0.1, F);
    const RespuestaModal l = RespuestaDuhamel({r * (i.I4 - i0.I4), r * (i.I3 - i0.I3)}, w, 0, m, t, 0.1, r * t);
    EXPECT_NEAR(c.q, F / (m * w * w) * (1 - std::cos(w * t)), 1e-12);
    EXPECT_NEAR(c.qd, F / (m * w) * std::sin(w * t), 1e-12);
    EXPECT_NEAR(l.q, r / (m * w * w) * (t - std::sin(w * t) / w), 1e-12);
    EXPECT_NEAR(l.qd, r / (m * w * w) * (1 - std::cos(w * t)), 1e-12);
    EXPECT_NEAR(l.qa, r * std::sin(w * t) / w, 1e-12);
  }
  // The run adds the integrals at each step's own angle b_k = w t_k (held at -3.14159/2 beyond 1):
  // for constant F, M = 2.5, q_n = F/(M w²) Σ cos(b_n - b_k) and q'_n = F/(M w) Σ sin(b_k - b_n).
  const double M = 2.5, t[] = {0.0001, 0.2, 0.4, 0.6}, b[] = {0.0002, 0.4, 0.8, -3.14159 / 2};
  EstadoDuhamel e, d;
  for (int n = 0; n < 4; ++n) {
    const RespuestaModal s = PasoDuhamel(e, n == 0, w, 0, M, t[n], n ? t[n - 1] : 0, 0.2, F, F);
    double q = 0, qd = 0;
    for (int k = 0; k <= n; ++k) q += std::cos(b[n] - b[k]), qd += std::sin(b[k] - b[n]);
    EXPECT_NEAR(s.q, F / (M * w * w) * q, 1e-12) << n;
    EXPECT_NEAR(s.qd, F / (M * w) * qd, 1e-12) << n;
  }
  // Damped first step: A sin b - B cos b = F e^{s Dt} wd / h, h = w²: static, q' = 0.
  const RespuestaModal s = PasoDuhamel(d, true, 5, 0.2, M, 0.0001, 0, 0.02, F, 0);
  EXPECT_NEAR(s.q, F / (M * 25), 1e-12);
  EXPECT_NEAR(s.qd, 0, 1e-12);
  EXPECT_NEAR(s.qa, F * (1 - 1 / M), 1e-12);
  // A later damped step, where q' is not zero: q'' = F - 2 z w q' - w² q with a unit mass.
  const RespuestaModal s2 = PasoDuhamel(d, false, 5, 0.2, 1, 0.1, 0.0001, 0.02, 2 * F, F);
  EXPECT_GT(std::fabs(s2.qd), 0.01);
  EXPECT_NEAR(s2.qa, 2 * F - 2 * 0.2 * 5 * s2.qd - 25 * s2.q, 1e-12);
}

long Inversa(const std::vector<double>& a, long n, std::vector<double>& inv) {
  return InversaGaussJordanSimple(a, n, inv);
}

TEST(PasoAPaso, TresPasosAManoYSoloLaDiagonalDeLaInversa) {
  // K = 1000, M = 10, P = 10, Dt = 0.01. Step 1 static: u = 0.01, v = 2u/Dt = 2, a = 4u/Dt² = 400.
  // Step 2 (C = 0): K* = 1000 + 4 * 10 / 1e-4 = 401000, dP = -|(400 * 2 + 2 * 400) 10| = -16000;
  // v = 2 + 200 du - 4, a = 400 + 40000 du - 1600. Step 3: dP = -|(400 v2 + 2 a2) 10|: -0.269 m.
  // With C = 2: K* = 401000 + 200 * 2 and dP = -16000 - |(0.005 * 400 + 3 * 2) 2| = -16016.
  const std::vector<double> K{1000}, M{10}, P{10}, C0{0}, C2{2};
  for (const std::vector<double>* C : {&C0, &C2}) {
    EstadoPasoAPaso e;
    DatosPasoAPaso d{1, &M, &K, &K, C, &P, 0.01, true};
    ASSERT_EQ(PasoAPaso(d, e, Inversa), 0);
    EXPECT_DOUBLE_EQ(e.u[0] + e.v[0] + e.a[0], 402.01);
    d.primero = false;
    ASSERT_EQ(PasoAPaso(d, e, Inversa), 0);
    const double du = C == &C0 ? -16000.0 / 401000 : -16016.0 / 401400;
    const double v2 = 2 + 200 * du - 4, a2 = 400 + 40000 * du - 1600;
    EXPECT_NEAR(e.u[0], 0.01 + du, 1e-15);
    EXPECT_NEAR(e.v[0], v2, 1e-12);
    EXPECT_NEAR(e.a[0], a2, 1e-9);
    if (C == &C2) continue;
    ASSERT_EQ(PasoAPaso(d, e, Inversa), 0);
    EXPECT_NEAR(e.u[0], 0.01 + du - std::fabs((400 * v2 + 2 * a2) * 10) / 401000, 1e-14);
  }
  // K = [2 -1; -1 2], P = (1, 0): the inverse is [2 1; 1 2]/3, so du = (2/3, 0), not (2/3, 1/3).
  const std::vector<double> K2{2, -1, -1, 2}, M2{1, 0, 0, 1}, P2{1, 0};
  EstadoPasoAPaso e;
  ASSERT_EQ(PasoAPaso({2, &M2, &K2, &K2, nullptr, &P2, 0.1, true}, e, Inversa), 0);
  EXPECT_NEAR(e.u[0], 2.0 / 3, 1e-15);
  EXPECT_EQ(e.u[1], 0);
  // Each degree's row of the stiffness scales by (x + G) / (x + Gmax): by 1/2 with x = 0 and
  // G = Gmax / 2, by (1 + 1) / (1 + 3) with x = 1.
  std::vector<double> k;
  EscalarRigidez({4, -2, -2, 4}, 2, {{0, 50, 100}, {1, 1, 3}}, k);
  EXPECT_EQ(k, (std::vector<double>{2, -1, -1, 2}));
}

TEST(PasoDesacoplado, UnGradoDosPasosAMano) {
  // w = 10, z = 0, Dt = 0.1, F = 1, mode component 2; divisor 6/Dt² + w² = 700. Step 1: q = 1/700,
  // v = 30/700, a = 600/700. Step 2: dq = (60 v + 3 a)/700 = 3600/490000,
  // v += 30 dq - 0.05 a - 3 v. Node: u = 2 q; a1 = 600 u1, a2 = 400 (u2 - u1) - 40 v1 - a1.
  EstadoDesacoplado e;
  PasoDesacoplado({2}, 1, {1}, {0}, 10, 0.1, true, e);
  EXPECT_NEAR(e.a[0], 1200.0 / 700, 1e-12);
  PasoDesacoplado({2}, 1, {1}, {0}, 10, 0.1, false, e);
  const double dq = 3600.0 / 490000, v2 = 30.0 / 700 + 30 * dq - 0.05 * 600 / 700 - 90.0 / 700;
  EXPECT_NEAR(e.u[0], 2 * (1.0 / 700 + dq), 1e-15);
  EXPECT_NEAR(e.v[0], 2 * v2, 1e-13);
  EXPECT_NEAR(e.a[0], 400 * 2 * dq - 40 * 60.0 / 700 - 1200.0 / 700, 1e-10);
}

}  // namespace
}  // namespace lomaterra
