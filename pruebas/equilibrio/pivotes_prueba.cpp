// The inversion without row exchanges on matrices whose pivots are far from 1: the test for a zero
// pivot neither overflows nor underflows, and the inverse solves as a pivoting elimination does.
// Then Leshchinsky-Huang on many slices, where the matrices grow to hundreds of rows.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <random>
#include <utility>
#include <vector>

#include "apoyo/talud_circular.h"
#include "equilibrio/leshchinsky.h"
#include "equilibrio/matrices.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/comandos.h"

namespace lomaterra {
namespace {

using Vec = std::vector<double>;

// Gaussian elimination with partial pivoting, written apart from the code under test.
Vec ResolverConPivoteo(std::vector<Vec> a, Vec b) {
  const std::size_t n = b.size();
  for (std::size_t k = 0; k < n; ++k) {
    std::size_t m = k;
    for (std::size_t i = k + 1; i < n; ++i)
      if (std::fabs(a[i][k]) > std::fabs(a[m][k])) m = i;
    std::swap(a[k], a[m]);
    std::swap(b[k], b[m]);
    for (std::size_t i = k + 1; i < n; ++i) {
      const double f = a[i][k] / a[k][k];
      for (std::size_t j = k; j < n; ++j) a[i][j] -= f * a[k][j];
      b[i] -= f * b[k];
    }
  }
  Vec x(n);
  for (std::size_t i = n; i-- > 0;) {
    double s = b[i];
    for (std::size_t j = i + 1; j < n; ++j) s -= a[i][j] * x[j];
    x[i] = s / a[i][i];
  }
  return x;
}

// Row i of a diagonally dominant matrix (diagonal 1, off-diagonal terms summing below 0.5) times
// `escala`: the pivots of the elimination stay within a factor 2 of `escala`, so 300 of them
// multiply to beyond 1e308 for a scale of 1e3 and below 1e-308 for 1e-3.
TEST(PivotesLejosDeUno, LaInversaResuelveComoLaEliminaciónConPivoteo) {
  const long n = 300;
  for (const double escala : {1e3, 1e-3}) {
    std::mt19937 azar(7);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    std::vector<Vec> a(n, Vec(n));
    MatrizDensa m(n);
    for (long i = 0; i < n; ++i)
      for (long j = 0; j < n; ++j) {
        a[i][j] = escala * (i == j ? 1.0 : u(azar) * 0.5 / n);
        m(i + 1, j + 1) = a[i][j];
      }
    Vec b(n), b1(n + 1);
    for (long i = 0; i < n; ++i) b1[i + 1] = b[i] = u(azar);

    std::feclearexcept(FE_ALL_EXCEPT);
    ASSERT_TRUE(InvertirSinPivoteo(m)) << escala;
    EXPECT_FALSE(std::fetestexcept(FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID)) << escala;
    const Vec x = Multiplicar(m, b1);
    const Vec y = ResolverConPivoteo(a, b);
    for (long i = 0; i < n; ++i) EXPECT_NEAR(x[i + 1], y[i], 1e-12 * std::fabs(1 / escala)) << i;
  }
}

// ACADS EX1(a) (c' = 3 kPa, φ' = 19.6°, γ = 20 kN/m3) on its critical circle: cutting the same
// circle into 200 slices instead of 50 moves the factor of safety by discretisation only.
TEST(LeshchinskyMuchasDovelas, DoscientasDovelasDanElFactorDeCincuenta) {
  auto factor = [](int n) {
    Proyecto p;
    pruebas::ProyectoVariacional(p, pruebas::AcadsEx1a(), n, 40, 55, 1.0, -0.1);
    InterfazGuionada ui("NN");
    EXPECT_EQ(EjecutarComando(ProcesoIterativoEnSuelos, p, ui), FinDeComando::Normal) << n;
    EXPECT_TRUE(p.CálculoHecho) << n;
    return p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
  };
  const double f50 = factor(50), f200 = factor(200);
  EXPECT_NEAR(f200, f50, 1e-3);
}

}  // namespace
}  // namespace lomaterra
