// The numerical pieces of the variational method: finite-difference weights, the inversion
// without pivoting, the first stress field and the Newton Jacobian, each checked against an
// independent computation written here.
#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <vector>

#include "apoyo/interfaz_espia.h"
#include "apoyo/proyectos.h"
#include "apoyo/talud_circular.h"
#include "equilibrio/leshchinsky.h"
#include "equilibrio/matrices.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

using Vec = std::vector<double>;

// Gaussian elimination with partial pivoting, zero-based: the test's own solver.
Vec Resolver(std::vector<Vec> a, Vec r) {
  const std::size_t n = r.size();
  for (std::size_t k = 0; k < n; ++k) {
    std::size_t m = k;
    for (std::size_t i = k + 1; i < n; ++i)
      if (std::fabs(a[i][k]) > std::fabs(a[m][k])) m = i;
    std::swap(a[k], a[m]);
    std::swap(r[k], r[m]);
    for (std::size_t i = k + 1; i < n; ++i) {
      const double f = a[i][k] / a[k][k];
      for (std::size_t j = k; j < n; ++j) a[i][j] -= f * a[k][j];
      r[i] -= f * r[k];
    }
  }
  Vec x(n);
  for (std::size_t i = n; i-- > 0;) {
    double s = r[i];
    for (std::size_t j = i + 1; j < n; ++j) s -= a[i][j] * x[j];
    x[i] = s / a[i][i];
  }
  return x;
}

// Weights of the derivative at `en` of the polynomial through the points: Σ w_k X_k^m = m·en^(m−1)
// for m = 0 .. points − 1 (a Vandermonde system).
Vec PesosDerivada(const Vec& X, double en) {
  const std::size_t n = X.size();
  std::vector<Vec> a(n, Vec(n));
  Vec r(n);
  for (std::size_t m = 0; m < n; ++m) {
    for (std::size_t k = 0; k < n; ++k) a[m][k] = std::pow(X[k], static_cast<double>(m));
    r[m] = m == 0 ? 0.0 : static_cast<double>(m) * std::pow(en, static_cast<double>(m - 1));
  }
  return Resolver(a, r);
}

// ------------------------------------------------------------------------------------------------
// Finite differences

TEST(DiferenciasFinitas, CuatroPuntosDerivanUnaCúbicaExactamente) {
  const double X[] = {12.0, 9.5, 8.7, 6.1};  // uneven, descending
  const auto w = PesosDerivadaCuatroPuntos(X[0], X[1], X[2], X[3]);
  auto P = [](double x) { return 2.0 - 0.7 * x + 0.3 * x * x - 0.05 * x * x * x; };
  auto dP = [](double x) { return -0.7 + 0.6 * x - 0.15 * x * x; };
  EXPECT_NEAR(w.w1 * P(X[0]) + w.w2 * P(X[1]) + w.w3 * P(X[2]) + w.w4 * P(X[3]), dP(X[3]), 1e-11);
  // And they are the weights of the Vandermonde system solved here.
  const Vec v = PesosDerivada({X[0], X[1], X[2], X[3]}, X[3]);
  EXPECT_NEAR(w.w1, v[0], 1e-10);
  EXPECT_NEAR(w.w2, v[1], 1e-10);
  EXPECT_NEAR(w.w3, v[2], 1e-10);
  EXPECT_NEAR(w.w4, v[3], 1e-10);
}

TEST(DiferenciasFinitas, TresPuntosExactaEnCuadráticasYNoEnCúbicas) {
  // Middle point at x = 5, neighbours at 5 + hA (slice before) and 5 − hD.
  const double hA = 1.5, hD = 0.6, x = 5.0;
  auto Q = [](double t) { return 3.0 - 2.0 * t + 0.4 * t * t; };  // Q'(5) = −2 + 4 = 2
  EXPECT_NEAR(DerivadaTresPuntos(hA, hD, Q(x + hA), Q(x), Q(x - hD)), 2.0, 1e-12);
  // Equal steps: the central difference.
  EXPECT_NEAR(DerivadaTresPuntos(1, 1, 7.0, 100.0, 3.0), 2.0, 1e-14);
  // On t³ about the middle point the estimate is hA·hD while the derivative is 0:
  // (hD²·hA³ + hA²·hD³) / (hA·hD·(hA + hD)) = hA·hD. Three points are exact for quadratics only;
  // it is the four-point rule that differentiates a cubic exactly.
  auto C = [&](double t) { return (t - x) * (t - x) * (t - x); };
  EXPECT_NEAR(DerivadaTresPuntos(hA, hD, C(x + hA), C(x), C(x - hD)), hA * hD, 1e-12);
}

// ------------------------------------------------------------------------------------------------
// Inversion

TEST(InversiónSinPivoteo, UnCeroEnLaDiagonalDetieneLaEliminación) {
  MatrizDensa permutación(2);  // regular, but its first pivot is 0: no row is exchanged
  permutación(1, 2) = permutación(2, 1) = 1;
  EXPECT_FALSE(InvertirSinPivoteo(permutación));
  MatrizDensa singular(2);  // second pivot 4 − 2·2 = 0
  singular(1, 1) = 1;
  singular(1, 2) = singular(2, 1) = 2;
  singular(2, 2) = 4;
  EXPECT_FALSE(InvertirSinPivoteo(singular));
}

// ------------------------------------------------------------------------------------------------
// The section used below: the ACADS slope in six or eight slices with pore pressure, seismic
// coefficients and a friction that changes from slice to slice.

struct SecciónPrueba : ::testing::Test {
  Proyecto p;
  void Preparar(int n, bool fricciónVariable, double desigualdad = 0) {
    pruebas::ProyectoVariacional(p, pruebas::AcadsEx1a(), n, 40, 55, 1.0, -0.1);
    if (desigualdad > 0) pruebas::AcadsEx1a().Llenar(p, n, desigualdad);
    auto& d = p.TablaDovelas;
    const double π = 4 * std::atan(1.0);
    for (int i = 1; i <= n; ++i) {
      d.PresiónPoros[i] = 0.05 * i;
      d.PresiónPorosMedia[i] = 0.002 * i;
      if (fricciónVariable) {
        d.FricciónBase[i] = 17.0 + 2.5 * (i % 3);
        d.TanFricciónBase[i] = std::tan(π * d.FricciónBase[i] / 180);
      }
    }
    p.ParámetrosIniciales.CoeficienteSísmicoHorizontal = 0.05;
    p.ParámetrosIniciales.CoeficienteSísmicoVertical = 0.02;
  }
  // Abscissa of stress point j: the crest edge, then the slice middles.
  double XEsfuerzo(int j) const {
    return j == 1 ? p.TablaDovelas.BordeX[1] : p.TablaDovelas.XMedio[j - 1];
  }
  // g and f of slice i written from the columns of the table.
  double g(int i, double µ1, double µ2, double F) const {
    const auto& d = p.TablaDovelas;
    return (d.XMedio[i] - µ1) * d.TanFricciónBase[i] + (d.YBase[i] - µ2) * F;
  }
  double f(int i, double µ1, double µ2, double F) const {
    const auto& d = p.TablaDovelas;
    const double kh = p.ParámetrosIniciales.CoeficienteSísmicoHorizontal;
    const double kv = p.ParámetrosIniciales.CoeficienteSísmicoVertical;
    const double t = d.TanFricciónBase[i], γ = d.PesoUnitarioMedio[i];
    return ((1 + kv) * γ * F + d.PresiónPorosMedia[i] * t) * (d.XMedio[i] - µ1) +
           2 * t * d.PresiónPoros[i] - 2 * d.CohesiónBase[i] - kh * F * γ * (d.YBase[i] - µ2);
  }
};

TEST_F(SecciónPrueba, PrimerCampoDeEsfuerzosComoUnSistemaResueltoAparte) {
  const int n = 6;
  Preparar(n, true);
  // The first field as the command leaves it in row 1, read while the first iteration screen
  // is open.
  Vec campo;
  pruebas::InterfazEspía ui("NN");
  ui.alAbrir = [&](Pantalla&) {
    if (campo.empty())
      for (int j = 1; j <= n + 1; ++j) campo.push_back(p.EsfuerzoIteración(j, 1));
  };
  ProcesoIterativoEnSuelos(p, ui);
  ASSERT_EQ(campo.size(), static_cast<std::size_t>(n + 1));

  // The same field from g·σ' + 2·t·σ = f at every slice middle, σ' from the parabola through
  // three stress points (the cubic through four at the last slice), the crest stress known.
  const double µ1 = 40, µ2 = 55, F = 1.0, σ1 = -0.1;
  std::vector<Vec> a(n, Vec(n, 0.0));
  Vec r(n, 0.0);
  for (int l = 1; l <= n; ++l) {
    const auto& d = p.TablaDovelas;
    std::vector<int> puntos;  // stress points of the stencil
    if (l < n)
      puntos = {l, l + 1, l + 2};
    else
      puntos = {n - 2, n - 1, n, n + 1};
    Vec X;
    for (int j : puntos) X.push_back(XEsfuerzo(j));
    const Vec w = PesosDerivada(X, d.XMedio[l]);
    const double gl = g(l, µ1, µ2, F);
    r[l - 1] = f(l, µ1, µ2, F);
    for (std::size_t k = 0; k < puntos.size(); ++k) {
      const int j = puntos[k];
      if (j == 1)
        r[l - 1] -= gl * w[k] * σ1;
      else
        a[l - 1][j - 2] += gl * w[k];
    }
    a[l - 1][l - 1] += 2 * d.TanFricciónBase[l];
  }
  const Vec σ = Resolver(a, r);
  EXPECT_DOUBLE_EQ(campo[0], σ1);
  for (int j = 2; j <= n + 1; ++j)
    EXPECT_NEAR(campo[j - 1], σ[j - 2], 1e-9 * (1 + std::fabs(σ[j - 2]))) << "j = " << j;
}

// ------------------------------------------------------------------------------------------------
// The Jacobian, column by column, against central differences of the residuals.

struct JacobianoPrueba : SecciónPrueba {
  DatosVariacionales dv;
  FilaVariacional fila;
  int n = 8;
  void SetUp() override {
    Preparar(n, true, 0.6);
    // Water over the surface on the last slice, a crack, a uniform and a point load.
    auto& d = p.TablaDovelas;
    d.YFreático[n] = d.YTalud[n] + 0.4;
    d.AlturaAguaSobreTalud[n] = 0.4;
    p.GrietaTracción.OrdenadaSegundoPunto = 34.0;
    p.GrietaTracción.OrdenadaNF = 34.6;
    p.GrietaTracción.EmpujeGrieta = 0.5 * 0.6 * 0.6;
    pruebas::CargasUniformes(p, {{40, 48, 0.8, 1.5}});
    pruebas::CargasPuntuales(p, {{d.XMedio[2], d.YTalud[2], 0.7, 2.0}});
    dv = LeerDatosVariacionales(p);
    fila.µ1 = 38;
    fila.µ2 = 57;
    fila.F = 1.1;
    fila.σ.assign(static_cast<std::size_t>(n + 2), 0.0);
    for (int j = 1; j <= n + 1; ++j)
      fila.σ[static_cast<std::size_t>(j)] = -0.2 + 0.9 * j - 0.04 * j * j;
  }
  // Unknown c of the Newton vector: µ1, µ2, F, then σ[c − 2].
  static double& Incógnita(FilaVariacional& f, int c) {
    if (c == 1) return f.µ1;
    if (c == 2) return f.µ2;
    if (c == 3) return f.F;
    return f.σ[static_cast<std::size_t>(c - 2)];
  }
  // Central difference of a function of the row along unknown c.
  double Derivada(const std::function<double(const FilaVariacional&)>& función, int c) const {
    FilaVariacional más = fila, menos = fila;
    const double e = 1e-5 * (1 + std::fabs(Incógnita(más, c)));
    Incógnita(más, c) += e;
    Incógnita(menos, c) -= e;
    return (función(más) - función(menos)) / (2 * e);
  }
  double Residuo(const FilaVariacional& f, int fila_) const {
    MatrizDensa J;
    Vec R;
    SistemaNewton(dv, f, J, R);
    return R[static_cast<std::size_t>(fila_)];
  }
};

TEST_F(JacobianoPrueba, ColumnaPorColumnaContraDiferenciasDeLosResiduos) {
  MatrizDensa J;
  Vec R;
  SistemaNewton(dv, fila, J, R);
  const int m = n + 3;
  const double kh = dv.kh, F = fila.F;
  auto hx = [&](int j) {
    return XEsfuerzo(j) - XEsfuerzo(j + 1);
  };  // distance of stress points j, j+1
  for (int l = 1; l <= m; ++l) {
    if (l == n) continue;  // the last slice has its own test below
    for (int c = 1; c <= m; ++c) {
      // R = −Φ and J = ∂Φ: the residual falls by J along each unknown.
      const double fd = -Derivada([&](const FilaVariacional& f) { return Residuo(f, l); }, c);
      double diseño = 0;  // what J differs from the difference by, as the method states J
      if (l < n && c == 2) {
        // The seismic term of the µ2 column: f holds −kh·F·ge·(y − µ2), whose derivative is
        // +kh·F·ge; the stated entry subtracts it.
        diseño = -2 * kh * F * dv.ge[static_cast<std::size_t>(l)];
      }
      if (l >= 2 && l < n && c == l + 3) {
        // The diagonal stress entry takes the tangent of the slice before inside g.
        const double hA = hx(l), hD = hx(l + 1);
        const double d = (hA + hD) * hA * hD;
        const double dt = p.TablaDovelas.TanFricciónBase[l - 1] - p.TablaDovelas.TanFricciónBase[l];
        diseño = -(hA * hA - hD * hD) * (p.TablaDovelas.XMedio[l] - fila.µ1) * dt / d;
        EXPECT_GT(std::fabs(diseño), 1e-4) << "the test section must make this entry differ";
      }
      EXPECT_NEAR(J(l, c) - fd, diseño, 1e-6 * (1 + std::fabs(J(l, c))))
          << "J(" << l << ", " << c << ")";
    }
  }
}

TEST_F(JacobianoPrueba, ÚltimaDovelaMultiplicaEnLaMatrizYSumaEnElResiduo) {
  MatrizDensa J;
  Vec R;
  SistemaNewton(dv, fila, J, R);
  const auto k = static_cast<std::size_t>(n);
  const double kh = dv.kh, kv = dv.kv;
  const Vec w = PesosDerivada({p.TablaDovelas.XMedio[n - 3], p.TablaDovelas.XMedio[n - 2],
                               p.TablaDovelas.XMedio[n - 1], p.TablaDovelas.XMedio[n]},
                              p.TablaDovelas.XMedio[n]);
  auto Dn = [&](const FilaVariacional& f) {
    return w[0] * f.σ[k - 2] + w[1] * f.σ[k - 1] + w[2] * f.σ[k] + w[3] * f.σ[k + 1];
  };
  auto resto = [&](const FilaVariacional& f) {
    return (f.σ[k + 1] - dv.u[k]) * 2 * dv.t[k] + 2 * dv.c[k] -
           ((1 + kv) * dv.ge[k] * f.F + dv.p[k] * dv.t[k]) * (dv.x[k] - f.µ1) +
           kh * f.F * dv.ge[k] * (dv.y[k] - f.µ2);
  };
  auto gn = [&](const FilaVariacional& f) {
    return (dv.x[k] - f.µ1) * dv.t[k] + (dv.y[k] - f.µ2) * f.F;
  };
  // The residual is the stated one: Dn and g added.
  EXPECT_NEAR(R[k], -(Dn(fila) + gn(fila) + resto(fila)), 1e-10);
  // The matrix row is the derivative of the equation with g·Dn, the product, except the seismic
  // term of the µ2 column, which carries the same sign as in the other rows.
  auto producto = [&](const FilaVariacional& f) { return gn(f) * Dn(f) + resto(f); };
  for (int c = 1; c <= n + 3; ++c) {
    const double diseño = c == 2 ? 2 * kh * fila.F * dv.ge[k] : 0.0;
    EXPECT_NEAR(J(n, c) - Derivada(producto, c), diseño, 1e-6 * (1 + std::fabs(J(n, c))))
        << "J(n, " << c << ")";
  }
  // Against the residual itself the row disagrees wherever Dn or g enter: the σ columns of the
  // stencil carry g·w in the matrix and w in the residual.
  const double fdResiduo = -Derivada([&](const FilaVariacional& f) { return Residuo(f, n); }, n);
  EXPECT_NEAR(fdResiduo, w[0], 1e-6);
  EXPECT_NEAR(J(n, n), gn(fila) * w[0], 1e-9);
}

// ------------------------------------------------------------------------------------------------
// Reading the slices: the column of the equation, the loads on their slices.

TEST_F(SecciónPrueba, PesoDeLaColumnaConAguaSobreElTaludYCargasEnSusDovelas) {
  Preparar(6, false);
  auto& d = p.TablaDovelas;
  // Slice 6 under 0.5 m of water: mean of the column and of water of weight 1.
  d.YFreático[6] = d.YTalud[6] + 0.5;
  const double alto = d.YTalud[6] - d.YBase[6];
  // A point load exactly on the edge between slices 2 and 3, one inside slice 5; a uniform load
  // over slices 1 and 2 only, one with xo above xf that falls on no slice.
  pruebas::CargasPuntuales(p, {{d.BordeX[3], 0, 1.0, 0}, {d.XMedio[5], 0, 1.0, 0}});
  pruebas::CargasUniformes(p, {{d.XMedio[2] - 0.01, 100, 0, 0}, {100, 0, 0, 0}});

  auto dv = LeerDatosVariacionales(p);
  EXPECT_NEAR(dv.ge[6], (alto * dv.gm[6] + 0.5) / (alto + 0.5), 1e-12);
  EXPECT_DOUBLE_EQ(dv.ge[5], dv.gm[5]);
  const std::size_t esperadasPuntuales[] = {0, 0, 1, 1, 0, 1, 0};
  const std::size_t esperadasUniformes[] = {0, 1, 1, 0, 0, 0, 0};
  for (int i = 1; i <= 6; ++i) {
    EXPECT_EQ(dv.puntuales[static_cast<std::size_t>(i)].size(), esperadasPuntuales[i]) << i;
    EXPECT_EQ(dv.uniformes[static_cast<std::size_t>(i)].size(), esperadasUniformes[i]) << i;
  }
  // In a rapid drawdown the water has gone from the column.
  p.DesembalseRápido = true;
  EXPECT_DOUBLE_EQ(LeerDatosVariacionales(p).ge[6], dv.gm[6]);

  // The horizontal sum: each point load takes Px·F off its slices (the edge load twice), the
  // crack water takes EmpujeGrieta·F, and the moment the same times the arm of the water.
  FilaVariacional fila{40, 55, 1.3, Vec(8, 1.0)};
  p.NúmeroCargasUniformes = 0;
  p.GrietaTracción = {};
  const auto base = SumasDeEquilibrio(LeerDatosVariacionales(p), fila);
  p.NúmeroCargasPuntuales = 0;
  const auto sinCargas = SumasDeEquilibrio(LeerDatosVariacionales(p), fila);
  EXPECT_NEAR(base.horizontal - sinCargas.horizontal, -3 * 1.0 * 1.3, 1e-12);
  p.GrietaTracción.OrdenadaSegundoPunto = 30;
  p.GrietaTracción.OrdenadaNF = 33;
  p.GrietaTracción.EmpujeGrieta = 4.5;
  const auto grieta = SumasDeEquilibrio(LeerDatosVariacionales(p), fila);
  EXPECT_NEAR(grieta.horizontal - sinCargas.horizontal, -4.5 * 1.3, 1e-12);
  EXPECT_NEAR(grieta.momento - sinCargas.momento, -(1.0 + 30) * 4.5 * 1.3, 1e-9);
  EXPECT_NEAR(grieta.vertical, sinCargas.vertical, 1e-12);
}

}  // namespace
}  // namespace lomaterra
