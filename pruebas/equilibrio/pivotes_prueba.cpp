// Inversion without row exchanges on pivots far from 1, against partial pivoting written here;
// Leshchinsky-Huang on 200 slices, where the matrices pass a few hundred rows.
#include <gtest/gtest.h>

#include <cfenv>
#include <cmath>
#include <random>

#include "apoyo/talud_circular.h"
#include "equilibrio/leshchinsky.h"
#include "equilibrio/matrices.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/comandos.h"

namespace lomaterra {
namespace {

// Diagonal 1 and off-diagonal terms summing below 0.5, times `escala`: the 300 pivots stay within a
// factor 2 of `escala`, their product beyond 1e308 (1e3) or below 1e-308 (1e-3).
TEST(PivotesLejosDeUno, LaInversaResuelveComoLaEliminaciónConPivoteo) {
  const int n = 300;
  for (const double escala : {1e3, 1e-3}) {
    std::mt19937 azar(7);
    std::uniform_real_distribution<double> u(-1.0, 1.0);
    std::vector<std::vector<double>> a(n, std::vector<double>(n + 1));
    MatrizDensa m(n);
    std::vector<double> b(n + 1);
    for (int i = 0; i < n; ++i) {
      for (int j = 0; j < n; ++j) m(i + 1, j + 1) = a[i][j] = escala * (i == j ? 1 : u(azar) * 0.5 / n);
      a[i][n] = b[i + 1] = u(azar);
    }
    std::feclearexcept(FE_ALL_EXCEPT);
    ASSERT_TRUE(InvertirSinPivoteo(m)) << escala;
    EXPECT_FALSE(std::fetestexcept(FE_OVERFLOW | FE_DIVBYZERO | FE_INVALID)) << escala;
    const std::vector<double> x = Multiplicar(m, b);
    for (int k = 0; k < n; ++k) {  // partial pivoting on [a | b], then back substitution
      int p = k;
      for (int i = k + 1; i < n; ++i) if (std::fabs(a[i][k]) > std::fabs(a[p][k])) p = i;
      std::swap(a[k], a[p]);
      for (int i = k + 1; i < n; ++i)
        for (int j = n; j >= k; --j) a[i][j] -= a[i][k] / a[k][k] * a[k][j];
    }
    for (int i = n - 1; i >= 0; --i) {
      for (int j = i + 1; j < n; ++j) a[i][n] -= a[i][j] * a[j][n];
      a[i][n] /= a[i][i];
      EXPECT_NEAR(x[i + 1], a[i][n], 1e-12 / escala) << i;
    }
  }
}

// ACADS EX1(a) on its critical circle: 200 slices instead of 50 move the factor by little.
TEST(LeshchinskyMuchasDovelas, DoscientasDovelasDanElFactorDeCincuenta) {
  auto factor = [](int n) {
    Proyecto p;
    pruebas::ProyectoVariacional(p, pruebas::AcadsEx1a(), n, 40, 55, 1.0, -0.1);
    InterfazGuionada ui("NN");
    EXPECT_EQ(EjecutarComando(ProcesoIterativoEnSuelos, p, ui), FinDeComando::Normal) << n;
    EXPECT_TRUE(p.CálculoHecho) << n;
    return p.HistoriaIteraciones.FactorDeSeguridad[p.NúmeroIteraciones];
  };
  EXPECT_NEAR(factor(200), factor(50), 1e-3);
}

}  // namespace
}  // namespace lomaterra
