// The variational systems solved along their band against the dense inversion without pivoting
// that states them, on the homogeneous sample slope cut into 50, 200 and 1000 slices.
#include <gtest/gtest.h>

#include <cmath>
#include <vector>

#include "apoyo/apoyo.h"
#include "equilibrio/leshchinsky.h"
#include "equilibrio/matrices.h"
#include "equilibrio/puertas.h"
#include "equilibrio/sistema_bordeado.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"
#include "proyecto/proyecto.h"

namespace lomaterra {
namespace {

using Vec = std::vector<double>;

// x = a⁻¹·b by the dense inversion, with one step of refinement by the same inverse. Its pivots,
// taken in the order of the rows, lose digits on the wide systems (at 1000 slices the residual of
// the plain product is 2e-7 where the band leaves 1e-12); the step gives them back.
Vec DensaRefinada(const MatrizDensa& a, const Vec& b) {
  MatrizDensa inversa = a;
  if (!InvertirSinPivoteo(inversa)) return {};
  Vec x = Multiplicar(inversa, b);
  Vec r(b.size(), 0.0);
  const long m = a.Orden();
  for (long i = 1; i <= m; ++i) {
    long double s = b[static_cast<std::size_t>(i)];
    for (long j = 1; j <= m; ++j) s -= static_cast<long double>(a(i, j)) * x[static_cast<std::size_t>(j)];
    r[static_cast<std::size_t>(i)] = static_cast<double>(s);
  }
  const Vec d = Multiplicar(inversa, r);
  for (long i = 1; i <= m; ++i) x[static_cast<std::size_t>(i)] += d[static_cast<std::size_t>(i)];
  return x;
}

void Iguales(const Vec& banda, const Vec& densa, long m) {
  ASSERT_EQ(banda.size(), static_cast<std::size_t>(m + 1));
  double escala = 0;
  for (long i = 1; i <= m; ++i) escala = std::max(escala, std::fabs(densa[static_cast<std::size_t>(i)]));
  for (long i = 1; i <= m; ++i) {
    const double d = densa[static_cast<std::size_t>(i)];
    EXPECT_NEAR(banda[static_cast<std::size_t>(i)], d, 1e-9 * std::max(std::fabs(d), 1e-3 * escala)) << "i = " << i;
  }
}

TEST(SistemaBordeado, IgualALaInversiónDensaEn50_200Y1000Dovelas) {
  for (int dovelas : {50, 200, 1000}) {
    SCOPED_TRACE(dovelas);
    Proyecto p;
    InterfazGuionada ui;
    ASSERT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo("leshchinsky_homogeneo.cod"), ui));
    p.ParámetrosIniciales.NúmeroDovelas = dovelas;
    PrepararDovelas(p, ui, true);
    const long n = p.NúmeroBordes - 1;
    ASSERT_GE(n, dovelas);
    const DatosVariacionales dv = LeerDatosVariacionales(p);
    FilaVariacional fila;
    fila.µ1 = p.ParámetrosIniciales.Multiplicador1;
    fila.µ2 = p.ParámetrosIniciales.Multiplicador2;
    fila.F = p.ParámetrosIniciales.FSInicial;
    fila.σ.assign(static_cast<std::size_t>(n + 2), 0.0);
    fila.σ[1] = p.ParámetrosIniciales.EsfuerzoInicialCresta;

    // The first field.
    SistemaBordeado banda;
    MatrizDensa densa;
    Vec r, rDensa, σ;
    SistemaPrimerCampo(dv, fila, banda, r);
    SistemaPrimerCampo(dv, fila, densa, rDensa);
    ASSERT_TRUE(ResolverBordeado(banda, r, σ));
    Iguales(σ, DensaRefinada(densa, rDensa), n);

    // A Newton step from that field.
    for (long j = 2; j <= n + 1; ++j) fila.σ[static_cast<std::size_t>(j)] = σ[static_cast<std::size_t>(j - 1)];
    SistemaBordeado J;
    MatrizDensa JDensa;
    Vec R, RDensa, Δ;
    SistemaNewton(dv, fila, J, R);
    SistemaNewton(dv, fila, JDensa, RDensa);
    ASSERT_TRUE(ResolverBordeado(J, R, Δ));
    Iguales(Δ, DensaRefinada(JDensa, RDensa), n + 3);
  }
}

TEST(SistemaBordeado, PivoteCeroEsSingular) {
  // [[0, 1], [1, 0]] is regular, but its first pivot in order is 0: without row exchanges both
  // the band and the dense inversion give up.
  SistemaBordeado s(2, 0);
  s.diag[1] = 0;
  s.sup[1] = 1;
  s.inf[2] = 1;
  s.diag[2] = 0;
  Vec x;
  EXPECT_FALSE(ResolverBordeado(s, {0, 1, 1}, x));
  MatrizDensa d = s.ComoDensa();
  EXPECT_FALSE(InvertirSinPivoteo(d));
}

}  // namespace
}  // namespace lomaterra
