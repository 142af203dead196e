// Seismic assembly and condensation on meshes small enough to work by hand.
#include <gtest/gtest.h>

#include <array>

#include "elementos/malla_apoyo.h"
#include "pantallas/interfaz_guionada.h"
#include "sismico/rigidez_sismica.h"

namespace lomaterra {
namespace {

// Restriction rows {node, x, y, spring along x in kg/cm}, in the order given.
void Restringir(MallaElementos& m, std::initializer_list<std::tuple<long, const char*, const char*, double>> filas) {
  auto& r = m.NodoConRestricción;
  r.Redimensionar(m.NúmeroNodosConRestricción = static_cast<std::int32_t>(filas.size()));
  long i = 0;
  for (const auto& [n, x, y, resorte] : filas)
    ++i, r.NodoRestringido[i] = static_cast<double>(n), r.RestricciónX[i] = x, r.RestricciónY[i] = y, r.ResorteX[i] = resorte;
}

// A mesh of linear triangles {n1, n2, n3, material} over nodes by number; the node table descending.
void Malla(Proyecto& p, const std::vector<std::array<double, 2>>& xy, const std::vector<std::array<long, 4>>& tri) {
  MallaElementos& m = p.Malla;
  const long nn = static_cast<long>(xy.size()), ne = static_cast<long>(tri.size());
  m.NúmeroDeNodos = static_cast<Entero>(nn), m.NúmeroDeElementos = static_cast<Entero>(ne);
  m.Nodo.Redimensionar(nn), m.Elemento.Redimensionar(ne);
  for (long n = 1; n <= nn; ++n) {
    m.Nodo.NúmeroDeNodo[nn - n + 1] = static_cast<Entero>(n);
    m.Nodo.XNodo[nn - n + 1] = xy[static_cast<std::size_t>(n - 1)][0], m.Nodo.YNodo[nn - n + 1] = xy[static_cast<std::size_t>(n - 1)][1];
  }
  for (long e = 1; e <= ne; ++e) {
    const auto& t = tri[static_cast<std::size_t>(e - 1)];
    m.Elemento.NodosPorElemento[e] = 3, m.Elemento.PuntosIntegración[e] = 1;
    m.Elemento.Lado12[e] = m.Elemento.Lado23[e] = m.Elemento.Lado31[e] = 2;
    m.Elemento.MaterialDeElemento[e] = static_cast<double>(t[3]);
    for (int k = 1; k <= 3; ++k) {
      const long n = t[static_cast<std::size_t>(k - 1)], fila = nn - n + 1;
      m.Elemento.NodoDeElemento(e, k) = m.Elemento.NúmeroElemento(e, k) = static_cast<double>(n);
      m.Elemento.XElemento(e, k) = m.Nodo.XNodo[fila], m.Elemento.YElemento(e, k) = m.Nodo.YNodo[fila];
      m.Elemento.XCentroElemento[e] += m.Nodo.XNodo[fila] / 3, m.Elemento.YCentroElemento[e] += m.Nodo.YNodo[fila] / 3;
    }
  }
}

// Plane-strain constant-strain triangle by the closed form t A Bᵀ D B, b_i = y_j - y_k, c_i = x_k - x_j.
void SumarTriánguloCerrado(const std::vector<std::array<double, 2>>& xy, std::array<long, 3> n, double E, double nu,
                           std::vector<double>& K, long nd) {
  double x[3], y[3];
  for (std::size_t i = 0; i < 3; ++i) x[i] = xy[static_cast<std::size_t>(n[i] - 1)][0], y[i] = xy[static_cast<std::size_t>(n[i] - 1)][1];
  const double A = ((x[1] - x[0]) * (y[2] - y[0]) - (x[2] - x[0]) * (y[1] - y[0])) / 2;
  double B[3][6] = {};
  for (int i = 0; i < 3; ++i) {
    const int j = (i + 1) % 3, k = (i + 2) % 3;
    B[0][2 * i] = B[2][2 * i + 1] = (y[j] - y[k]) / (2 * A);
    B[1][2 * i + 1] = B[2][2 * i] = (x[k] - x[j]) / (2 * A);
  }
  const double f = E / ((1 + nu) * (1 - 2 * nu));
  const double D[3][3] = {{f * (1 - nu), f * nu, 0}, {f * nu, f * (1 - nu), 0}, {0, 0, E / (2 * (1 + nu))}};
  auto grado = [&](int a) { return 2 * n[static_cast<std::size_t>(a / 2)] - 1 + a % 2; };
  for (int a = 0; a < 6; ++a)
    for (int b = 0; b < 6; ++b)
      for (int r = 0; r < 3; ++r)
        for (int q = 0; q < 3; ++q) K[static_cast<std::size_t>((grado(a) - 1) * nd + grado(b) - 1)] += B[r][a] * D[r][q] * B[q][b] * A;
}

TEST(CondensaciónSísmica, DosElementosMasaYRigidezCondensadaAMano) {
  const double E = 2000, nu = 0.3, gamma = 1.8;
  const std::vector<std::array<double, 2>> xy = {{0, 0}, {4, 0.3}, {4.2, 3}, {0.1, 2.8}};
  Proyecto p;
  pruebas::ProyectoUnEstrato(p, 10, 5, E, nu, gamma);
  Malla(p, xy, {{{1, 2, 3, 1}}, {{1, 3, 4, 1}}});
  Restringir(p.Malla, {{2, "S", "N", 200}, {1, "N", "N", 0}});
  InterfazGuionada ui("NNNN");
  MatricesSísmicas s;
  ASSERT_TRUE(DeterminarGradosDeLibertad(p, ui, s));
  // Lumped mass A/3 · gamma / 10 on each corner: the weight of the mesh over 10 along x.
  const double A1 = ((4 - 0) * (3 - 0) - (4.2 - 0) * (0.3 - 0)) / 2, A2 = ((4.2) * (2.8) - (0.1) * (3)) / 2;
  double sumaX = 0;
  for (long n = 1; n <= 4; ++n) sumaX += s.M(2 * n - 1, 2 * n - 1);
  EXPECT_NEAR(sumaX, (A1 + A2) * gamma / 10, 1e-12);
  EXPECT_NEAR(s.M(1, 1), (A1 + A2) / 3 * gamma / 10, 1e-12);  // node 1 is in both elements
  std::vector<double> K(64, 0.0);
  SumarTriánguloCerrado(xy, {1, 2, 3}, E, nu, K, 8);
  SumarTriánguloCerrado(xy, {1, 3, 4}, E, nu, K, 8);
  K[(3 - 1) * 8 + 3 - 1] = 200 * 0.1;  // the spring replaces the diagonal
  const std::vector<long> libres = {3, 5, 6, 7, 8};  // node 2 keeps x on its spring
  ASSERT_EQ(p.Sísmico.NúmeroGradosLibertad, 5);
  EXPECT_TRUE(s.Libres == libres && p.Sísmico.GradosDeLibertadEstimados);
  for (long i = 1; i <= 5; ++i)
    for (long j = 1; j <= 5; ++j) {
      const long gi = libres[static_cast<std::size_t>(i - 1)], gj = libres[static_cast<std::size_t>(j - 1)];
      EXPECT_NEAR(p.Sísmico.MatrizRigidezCondensada(i, j), K[static_cast<std::size_t>((gi - 1) * 8 + gj - 1)], 1e-9);
      EXPECT_EQ(p.Sísmico.MatrizMasaCondensada(i, j), s.M(gi, gj));
    }
  // A spring of zero leaves a zero on the condensed diagonal: the message and no degrees.
  Restringir(p.Malla, {{2, "S", "N", 0}, {1, "N", "N", 0}});
  EXPECT_FALSE(DeterminarGradosDeLibertad(p, ui, s));
  EXPECT_FALSE(p.Sísmico.GradosDeLibertadEstimados);
}

// Node numbers scattered over two cells, restrictions in any order: the free degrees run by node
// number, x before y, each with the stratum of the first element that holds its node.
TEST(CondensaciónSísmica, NumeraciónConNodosEnCualquierOrden) {
  const std::vector<std::array<double, 2>> xy = {{2.003, 1.004}, {0.001, 0.002}, {4.005, 0.001},
                                                 {0.002, 1.006}, {2.004, 0.003}, {4.001, 1.002}};
  Proyecto p;
  pruebas::ProyectoUnEstrato(p, 10, 5, 1000, 0.3, 2);
  p.Estrato.RedimensionarConservando(2), p.Malla.MóduloElasticidad.RedimensionarConservando(2);
  p.Estrato.PesoUnitarioHúmedo[2] = 2, p.Malla.MóduloElasticidad[2] = 3000;
  // Left cell material 1 (nodes 2, 5, 1, 4), right cell material 2 (nodes 5, 3, 6, 1).
  Malla(p, xy, {{{2, 5, 1, 1}}, {{2, 1, 4, 1}}, {{5, 3, 6, 2}}, {{5, 6, 1, 2}}});
  Restringir(p.Malla, {{5, "N", "N", 0}, {3, "S", "N", 50}, {2, "N", "N", 0}});
  InterfazGuionada ui("NNNN");
  MatricesSísmicas s;
  ASSERT_TRUE(DeterminarGradosDeLibertad(p, ui, s));
  const std::vector<long> libres = {1, 2, 5, 7, 8, 11, 12};
  EXPECT_EQ(s.Libres, libres);
  const double módulo[] = {1000, 1000, 3000, 1000, 1000, 3000, 3000};
  for (long i = 1; i <= 7; ++i) EXPECT_EQ(p.Sísmico.MóduloGrado.Leer(i), módulo[i - 1]) << i;
}

}  // namespace
}  // namespace lomaterra
