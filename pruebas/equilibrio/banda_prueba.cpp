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

void Iguales(const Vec& banda, const Vec& densa) {
  ASSERT_EQ(banda.size(), densa.size());
  double escala = 0;
  for (double d : densa) escala = std::max(escala, std::fabs(d));
  for (std::size_t i = 1; i < densa.size(); ++i)
    EXPECT_NEAR(banda[i], densa[i], 1e-9 * std::max(std::fabs(densa[i]), 1e-3 * escala)) << "i = " << i;
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

    SistemaBordeado banda, J;  // the first field, then a Newton step from it
    MatrizDensa densa, JDensa;
    Vec r, rDensa, σ, R, RDensa, Δ;
    SistemaPrimerCampo(dv, fila, banda, r);
    SistemaPrimerCampo(dv, fila, densa, rDensa);
    ASSERT_TRUE(ResolverBordeado(banda, r, σ));
    Iguales(σ, DensaRefinada(densa, rDensa));

    for (long j = 2; j <= n + 1; ++j) fila.σ[static_cast<std::size_t>(j)] = σ[static_cast<std::size_t>(j - 1)];
    SistemaNewton(dv, fila, J, R);
    SistemaNewton(dv, fila, JDensa, RDensa);
    ASSERT_TRUE(ResolverBordeado(J, R, Δ));
    Iguales(Δ, DensaRefinada(JDensa, RDensa));
  }
}

}  // namespace
}  // namespace lomaterra
