// One modal degree by the Duhamel integral: the integrals against the closed forms of an undamped
// oscillator, and the run's own accumulation (integrals at the step's time) worked by hand.
#include <gtest/gtest.h>

#include <cmath>

#include "sismico/duhamel.h"

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
