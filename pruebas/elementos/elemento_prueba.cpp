// The triangle against closed forms, the patch test, the column's weight and the two stores.
#include <gtest/gtest.h>

#include <random>

#include "elementos/elemento.h"
#include "elementos/rigidez.h"
#include "elementos/solucion.h"
#include "elementos/malla_apoyo.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

using pruebas::MallaRejilla;
using pruebas::ProyectoUnEstrato;

GeometríaElemento Triángulo(std::array<double, 3> x, std::array<double, 3> y) {
  GeometríaElemento g;
  g.nodos = 3;
  for (int k = 1; k <= 3; ++k) {
    g.x[static_cast<std::size_t>(k)] = x[static_cast<std::size_t>(k - 1)];
    g.y[static_cast<std::size_t>(k)] = y[static_cast<std::size_t>(k - 1)];
  }
  g.lado = {0, 2, 2, 2};
  return g;
}

// Corners (1,0), (0,1), (0,0): x = L1, y = L2, so J = I, det J = 1 (twice the area 1/2) and
// dN/dx = (1, 0, -1), dN/dy = (0, 1, -1), the CST's (y23, y31, y12) / 2A and (x32, x13, x21) / 2A.
TEST(Triángulo, RectánguloUnitarioDaBAreaYRigidez) {
  const GeometríaElemento g = Triángulo({1, 0, 0}, {0, 1, 0});
  const PuntosIntegración pi = PuntosDelTriángulo(3);
  PuntoB b;
  InterfazGuionada ui;
  ASSERT_TRUE(MatrizBTriangular(g, pi, 1, b, &ui));
  EXPECT_DOUBLE_EQ(b.detJ, 1.0);
  const double dx[4] = {0, 1, 0, -1}, dy[4] = {0, 0, 1, -1};
  for (int k = 1; k <= 3; ++k) {
    EXPECT_DOUBLE_EQ(b.B[1][2 * k - 1], dx[k]);
    EXPECT_DOUBLE_EQ(b.B[2][2 * k], dy[k]);
    EXPECT_DOUBLE_EQ(b.B[3][2 * k - 1], dy[k]);
    EXPECT_DOUBLE_EQ(b.B[3][2 * k], dx[k]);
    EXPECT_EQ(b.B[1][2 * k], 0.0);
    EXPECT_EQ(b.B[2][2 * k - 1], 0.0);
  }
  // E = 1000, nu = 0.25: G = 400, K = 2000/3, D11 = K + 4G/3 = 1200, D12 = 400.
  const MatrizD d = MatrizConstitutiva(1000, 0.25);
  EXPECT_NEAR(d.D[1][1], 1200, 1e-9);
  EXPECT_NEAR(d.D[1][2], 400, 1e-9);
  EXPECT_NEAR(d.D[3][3], 400, 1e-9);
  // nu of 0.5 or more: G keeps the entered value (100), K takes 0.45 (300 / 0.3 = 1000).
  const MatrizD medio = MatrizConstitutiva(300, 0.5);
  EXPECT_NEAR(medio.D[3][3], 100, 1e-9);
  EXPECT_NEAR(medio.D[1][2], 1000 - 200.0 / 3, 1e-9);
  // k = B^T D B · area · t: k11 = 1 · D11 · 1/2, k12 = (B11 D13 B32 + B31 D33 B32) / 2 = 0,
  // k(1,4) = B11 D12 B24 / 2 = 400 / 2, thickness 2 doubles all.
  MatrizElemento k;
  SumarRigidezPunto(b, d, pi.Peso[1], 2.0, 3, k);
  EXPECT_NEAR(k.k[1][1], 1200.0, 1e-9);
  EXPECT_NEAR(k.k[1][4], 400.0, 1e-9);
  EXPECT_NEAR(k.k[1][2], 0.0, 1e-9);
  EXPECT_TRUE(ui.Transcripción().empty());
}

// A zero on the Jacobian's diagonal is refused even with a non-zero determinant; no other
// stage but the two named ones speaks.
TEST(Triángulo, CeroEnLaDiagonalDelJacobiano) {
  const GeometríaElemento g = Triángulo({0, 1, 0}, {0, 0, 1});  // J11 = x1 - x3 = 0, det = -1
  PuntoB b;
  InterfazGuionada ui;
  EXPECT_FALSE(MatrizBTriangular(g, PuntosDelTriángulo(3), 1, b, &ui));
  ASSERT_EQ(ui.Textos().size(), 1u);
  EXPECT_EQ(ui.Textos()[0], kMensajeInversaJacobiano);
  std::vector<double> inv;
  EXPECT_FALSE(Inversa({1, 2, 3, 0}, 2, inv, EtapaInversa::Trabajo, &ui));
  EXPECT_EQ(ui.Textos().size(), 1u);
  // Three hundred pivots of 10^3: their product would overflow, the inverse does not.
  std::vector<double> a(300 * 300, 0.0);
  for (std::size_t i = 0; i < 300; ++i) a[i * 300 + i] = 1000.0;
  ASSERT_TRUE(Inversa(a, 300, inv, EtapaInversa::RigidezModificada, &ui));
  EXPECT_DOUBLE_EQ(inv[299 * 300 + 299], 0.001);
}

// Patch test: a linear displacement field gives the same constant strain at every integration
// point of an irregular mesh, for the linear triangle and for the six-node one with curved
// (that is, own mid-side node) sides.
TEST(Triángulo, PruebaDeParcheDeformaciónConstante) {
  auto u = [](double x, double y) { return 0.3 + 0.002 * x - 0.001 * y; };
  auto v = [](double x, double y) { return -0.1 + 0.004 * x + 0.003 * y; };
  const double ex = 0.002, ey = 0.003, gxy = -0.001 + 0.004;
  std::mt19937 azar(7);
  std::uniform_real_distribution<double> mover(-0.15, 0.15);
  for (int nodos : {3, 6}) {
    for (int caso = 0; caso < 20; ++caso) {
      GeometríaElemento g;
      g.nodos = nodos;
      const double cx[4] = {0, 0.1 + mover(azar), 2 + mover(azar), 0.7 + mover(azar)};
      const double cy[4] = {0, 0.2 + mover(azar), 0.4 + mover(azar), 1.9 + mover(azar)};
      for (int k = 1; k <= 3; ++k) {
        g.x[static_cast<std::size_t>(k)] = cx[k];
        g.y[static_cast<std::size_t>(k)] = cy[k];
      }
      if (nodos == 6) {
        const int a[4] = {0, 1, 2, 3}, b[4] = {0, 2, 3, 1};
        for (int s = 1; s <= 3; ++s) {  // mid-side nodes a little off the chord: curved sides
          g.x[static_cast<std::size_t>(s + 3)] = (cx[a[s]] + cx[b[s]]) / 2 + 0.3 * mover(azar);
          g.y[static_cast<std::size_t>(s + 3)] = (cy[a[s]] + cy[b[s]]) / 2 + 0.3 * mover(azar);
        }
        g.lado = {0, 1, 1, 1};
      } else {
        g.lado = {0, 2, 2, 2};
      }
      const PuntosIntegración pi = PuntosDelTriángulo(nodos);
      for (int p = 1; p <= pi.n; ++p) {
        PuntoB b;
        ASSERT_TRUE(MatrizBTriangular(g, pi, p, b, nullptr));
        double e[4] = {};
        for (int r = 1; r <= 3; ++r)
          for (int k = 1; k <= nodos; ++k)
            e[r] += b.B[r][2 * k - 1] * u(g.x[static_cast<std::size_t>(k)], g.y[static_cast<std::size_t>(k)]) +
                    b.B[r][2 * k] * v(g.x[static_cast<std::size_t>(k)], g.y[static_cast<std::size_t>(k)]);
        EXPECT_NEAR(e[1], ex, 1e-12) << nodos << " nodos, caso " << caso;
        EXPECT_NEAR(e[2], ey, 1e-12);
        EXPECT_NEAR(e[3], gxy, 1e-12);
      }
    }
  }
}

// The patch test on the assembled mesh: a linear field gives no force at the inner nodes.
TEST(Ensamblaje, CampoLinealSinFuerzaEnLosNodosInteriores) {
  Proyecto p;
  ProyectoUnEstrato(p, 4, 3, 5000, 0.3, 0);
  MallaRejilla(p, 4, 3, 1.0, 1.0);
  InterfazGuionada ui;
  CálculoElementos c;
  c.reloj = [] { return 0.0; };
  ASSERT_TRUE(Elementotriangular(p, ui, c));
  const AlmacénRigidez& K = *c.MatrizRigidez;
  const long nd = K.Tamaño();
  std::vector<double> d(static_cast<std::size_t>(nd + 1));
  for (long f = 1; f <= p.Malla.NúmeroDeNodos; ++f) {
    const long n = p.Malla.Nodo.NúmeroDeNodo[f];
    const double x = p.Malla.Nodo.XNodo[f], y = p.Malla.Nodo.YNodo[f];
    d[static_cast<std::size_t>(2 * n - 1)] = 0.01 * x + 0.02 * y;
    d[static_cast<std::size_t>(2 * n)] = -0.03 * x + 0.005 * y;
  }
  for (long i : {1L, 2L, 3L}) {
    for (long j : {1L, 2L}) {
      const long n = 1 + i * 4 + j;  // inner node of column i, row j
      for (long r : {2 * n - 1, 2 * n}) {
        double s = 0;
        for (long q = 1; q <= nd; ++q) s += K.Valor(r, q) * d[static_cast<std::size_t>(q)];
        EXPECT_NEAR(s, 0.0, 1e-9) << "nodo " << n;
      }
    }
  }
}

// A column 2 m wide and 6 m high of linear triangles, gamma 1.8: the loads add up to its weight,
// 1.8 · area (the offsets of the nodes make the area slightly other than 12).
TEST(Ensamblaje, PesoPropioDeUnaColumna) {
  Proyecto p;
  ProyectoUnEstrato(p, 2, 6.5, 1000, 0.3, 1.8);
  MallaRejilla(p, 2, 6, 1.0, 1.0);
  InterfazGuionada ui;
  CálculoElementos c;
  c.reloj = [] { return 0.0; };
  ASSERT_TRUE(Elementotriangular(p, ui, c));
  double área = 0;
  for (long e = 1; e <= p.Malla.NúmeroDeElementos; ++e) {
    const auto& t = p.Malla.Elemento;
    área += ((t.XElemento(e, 2) - t.XElemento(e, 1)) * (t.YElemento(e, 3) - t.YElemento(e, 1)) -
             (t.XElemento(e, 3) - t.XElemento(e, 1)) * (t.YElemento(e, 2) - t.YElemento(e, 1))) / 2;
  }
  EXPECT_NEAR(área, 12.0, 0.05);
  double fx = 0, fy = 0;
  for (long n = 1; n <= p.Malla.NúmeroDeNodos; ++n) {
    fx += p.Malla.VectorDeCargas[2 * n - 1];
    fy += p.Malla.VectorDeCargas[2 * n];
  }
  EXPECT_NEAR(fx, 0.0, 1e-12);
  EXPECT_NEAR(fy, -1.8 * área, 1e-10);
  // The time estimate is the one message; with the clock stopped it reads zero minutes.
  ASSERT_EQ(ui.Textos().size(), 1u);
  EXPECT_NE(ui.Textos()[0].find("estimar la matriz de rigideces: 0.00"), std::string::npos);
}

// The six-node triangle takes its self weight without the 1/2: twice the weight of its area.
TEST(Ensamblaje, PesoDelTriánguloDeSeisNodosEsElDoble) {
  GeometríaElemento g;
  g.nodos = 6;
  const double x[7] = {0, 3.01, 0.02, 0.03, 1.515, 0.025, 1.52}, y[7] = {0, 0.01, 2.02, 0.03, 1.015, 1.025, 0.02};
  for (int k = 1; k <= 6; ++k) {
    g.x[static_cast<std::size_t>(k)] = x[k];
    g.y[static_cast<std::size_t>(k)] = y[k];
  }
  g.lado = {0, 1, 1, 1};
  const PuntosIntegración pi = PuntosDelTriángulo(6);
  std::array<double, 13> f{};
  for (int q = 1; q <= 3; ++q) {
    PuntoB b;
    ASSERT_TRUE(MatrizBTriangular(g, pi, q, b, nullptr));
    SumarPesoPunto(g, pi, q, b.detJ, 0, -2.0, 1.0, f);
  }
  double total = 0;
  for (int k = 1; k <= 6; ++k) total += f[static_cast<std::size_t>(2 * k)];
  const double área = ((x[2] - x[1]) * (y[3] - y[1]) - (x[3] - x[1]) * (y[2] - y[1])) / 2;
  // Mid-side nodes on the chords: det J = 2A at every point and the weights add to
  // 3 · 0.333333333333333.
  EXPECT_NEAR(total / (-2.0 * área), 2 * 0.999999999999999, 1e-12);
}

// The two stores give the same displacements on random meshes; the skyline holds far less.
TEST(Almacenes, PerfilIgualAlDensoEnMallasAleatorias) {
  std::mt19937 azar(11);
  std::uniform_int_distribution<int> tamaño(2, 6);
  std::uniform_real_distribution<double> real(0, 1);
  for (int caso = 0; caso < 6; ++caso) {
    const long cols = tamaño(azar), filas = tamaño(azar);
    std::vector<double> u[2];
    std::size_t memoria[2] = {};
    for (int t = 0; t < 2; ++t) {
      std::mt19937 igual(static_cast<unsigned>(caso));
      Proyecto p;
      ProyectoUnEstrato(p, static_cast<double>(cols) * 1.5, static_cast<double>(filas) * 1.2 + 1,
                        1000 + 9000 * real(igual), 0.2 + 0.2 * real(igual), 1.5 + real(igual));
      MallaRejilla(p, cols, filas, 1.5, 1.2);
      // Base fixed, sides on rollers with springs stiffer than the soil.
      auto& r = p.Malla.NodoConRestricción;
      const long nr = 2 * (filas + 1) + (cols - 1);
      r.Redimensionar(nr);
      long fila = 0;
      for (long i = 0; i <= cols; ++i)
        for (long j = 0; j <= filas; ++j) {
          if (j != 0 && i != 0 && i != cols) continue;
          ++fila;
          r.NodoRestringido[fila] = static_cast<double>(1 + i * (filas + 1) + j);
          r.RestricciónX[fila] = j == 0 ? "N" : "S";
          r.RestricciónY[fila] = j == 0 ? "N" : "S";
          r.ResorteX[fila] = j == 0 ? 0 : 1e6;
          r.ResorteY[fila] = j == 0 ? 0 : 10;
          r.RestricciónZ[fila] = "N";
        }
      p.Malla.NúmeroNodosConRestricción = static_cast<std::int32_t>(fila);
      CálculoElementos c;
      c.tipo = t == 0 ? TipoAlmacén::Denso : TipoAlmacén::Perfil;
      c.reloj = [] { return 0.0; };
      InterfazGuionada ui;
      ASSERT_TRUE(Elementotriangular(p, ui, c));
      ASSERT_TRUE(ModificarYFactorizar(p, *c.MatrizRigidez, ui, kMensajeDiagonalCeroViscoplástico));
      u[t] = DesplazamientosElásticos(p, *c.MatrizRigidez);
      memoria[t] = c.MatrizRigidez->Memoria();
    }
    ASSERT_EQ(u[0].size(), u[1].size());
    double mayor = 0;
    for (double x : u[0]) mayor = std::max(mayor, std::abs(x));
    ASSERT_GT(mayor, 1e-6);
    for (std::size_t d = 1; d < u[0].size(); ++d) EXPECT_NEAR(u[1][d], u[0][d], 1e-9 * mayor) << "caso " << caso;
    EXPECT_LT(memoria[1] * 2, memoria[0]);
  }
}

// A node in no element, and a roller whose spring is zero, leave zeros on the diagonal.
TEST(Almacenes, CerosEnLaDiagonal) {
  for (TipoAlmacén tipo : {TipoAlmacén::Denso, TipoAlmacén::Perfil}) {
    Proyecto p;
    ProyectoUnEstrato(p, 2, 2, 1000, 0.3, 1.8);
    MallaRejilla(p, 1, 1, 1.0, 1.0);
    auto& r = p.Malla.NodoConRestricción;
    r.Redimensionar(1);
    r.NodoRestringido[1] = 1;
    r.RestricciónX[1] = "S";
    r.RestricciónY[1] = "N";
    p.Malla.NúmeroNodosConRestricción = 1;
    CálculoElementos c;
    c.tipo = tipo;
    c.reloj = [] { return 0.0; };
    InterfazGuionada ui;
    ASSERT_TRUE(Elementotriangular(p, ui, c));
    EXPECT_FALSE(ModificarYFactorizar(p, *c.MatrizRigidez, ui, kMensajeDiagonalCeroViscoplástico));
    EXPECT_EQ(ui.Textos().back(), kMensajeDiagonalCeroViscoplástico);

    // One more node that no element uses.
    p.Malla.NúmeroDeNodos = 5;
    p.Malla.Nodo.RedimensionarConservando(5);
    InterfazGuionada ui2;
    EXPECT_FALSE(Elementotriangular(p, ui2, c));
    EXPECT_EQ(ui2.Textos().back(), kMensajeDiagonalCeroRigidez);
    EXPECT_TRUE(p.Malla.FalloInversa);
  }
}

}  // namespace
}  // namespace lomaterra
