// The triangle against closed forms, the patch test, the two stores of the stiffness, refinement
// by four, and the sample slope of linear triangles (ejemplos/talud_elementos.cod): it opens and
// fills its section, its loads add up to its weight, it refines to four times its elements, and
// its stiffness solve agrees with CalculiX (CPE3 elements, *DLOAD GRAV), fixed and on rollers.
// The decks, the command and the values CalculiX gave stand in pruebas/datos/calculix
// (scripts/calculix_talud.py); when ccx is installed each deck is run again and its values must
// be the stored ones.
#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <cstdlib>
#include <filesystem>
#include <fstream>
#include <map>
#include <random>
#include <set>
#include <sstream>

#include "apoyo/apoyo.h"
#include "elementos/elemento.h"
#include "elementos/malla_apoyo.h"
#include "elementos/refinamiento.h"
#include "elementos/rigidez.h"
#include "elementos/solucion.h"
#include "elementos/viscoplastico.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"

namespace lomaterra {
namespace {

// One cell of 2 × 2 m cut along its diagonal (pruebas/datos/elementos/dos_triangulos.cod): nodes
// 1 (0,0), 2 (0,2), 3 (2,0), 4 (2,2) plus the millimetre offsets; elements (1,3,4) and (1,4,2)
// share the side 1-4; node 3 restrained; a load qy = 7.5 on side 3-4 of element 1.
Proyecto DosTriángulos() {
  Proyecto p;
  InterfazGuionada ui;
  EXPECT_TRUE(LeerProyecto(p, pruebas::RutaDatos("elementos/dos_triangulos.cod"), ui));
  p.Malla.ConfirmarElementos = true;  // the number of elements is confirmed in each session
  return p;
}

// An element of three or six nodes (straight or, with six, curved sides) at x, y.
GeometríaElemento Geometría(std::vector<double> x, std::vector<double> y) {
  GeometríaElemento g;
  g.nodos = static_cast<int>(x.size());
  for (std::size_t k = 1; k <= x.size(); ++k) g.x[k] = x[k - 1], g.y[k] = y[k - 1];
  g.lado = g.nodos == 6 ? std::array<double, 4>{0, 1, 1, 1} : std::array<double, 4>{0, 2, 2, 2};
  return g;
}

// Corners (1,0), (0,1), (0,0): x = L1, y = L2, so J = I, det J = 1 (twice the area 1/2) and
// dN/dx = (1, 0, -1), dN/dy = (0, 1, -1), the CST's (y23, y31, y12) / 2A and (x32, x13, x21) / 2A.
TEST(Triángulo, RectánguloUnitarioCeroEnElJacobianoYPruebaDeParche) {
  const GeometríaElemento g = Geometría({1, 0, 0}, {0, 1, 0});
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
  // E = 1000, nu = 0.25: G = 400, K = 2000/3, D11 = K + 4G/3 = 1200, D12 = 400. nu of 0.5 or
  // more: G keeps the entered value (100), K takes 0.45 (300 / 0.3 = 1000). k = B^T D B · area · t:
  // k11 = 1 · D11 · 1/2, k12 = (B11 D13 B32 + B31 D33 B32) / 2 = 0, k(1,4) = B11 D12 B24 / 2 =
  // 400 / 2, thickness 2 doubles all.
  const MatrizD d = MatrizConstitutiva(1000, 0.25), medio = MatrizConstitutiva(300, 0.5);
  MatrizElemento k;
  SumarRigidezPunto(b, d, pi.Peso[1], 2.0, 3, k);
  const std::pair<double, double> valores[] = {{d.D[1][1], 1200}, {d.D[1][2], 400},
      {d.D[3][3], 400}, {medio.D[3][3], 100}, {medio.D[1][2], 1000 - 200.0 / 3}, {k.k[1][1], 1200},
      {k.k[1][4], 400}, {k.k[1][2], 0}};
  for (const auto& [valor, esperado] : valores) EXPECT_NEAR(valor, esperado, 1e-9) << esperado;
  EXPECT_TRUE(ui.Transcripción().empty());
  // A zero on the Jacobian's diagonal is refused even with a non-zero determinant; no other
  // stage but the two named ones speaks.
  const GeometríaElemento cero = Geometría({0, 1, 0}, {0, 0, 1});  // J11 = x1 - x3 = 0, det = -1
  EXPECT_FALSE(MatrizBTriangular(cero, PuntosDelTriángulo(3), 1, b, &ui));
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
  // Patch test: a linear displacement field gives the same constant strain at every integration
  // point of an irregular mesh, for the linear triangle and for the six-node one with curved
  // (that is, own mid-side node) sides.
  auto u = [](double x, double y) { return 0.3 + 0.002 * x - 0.001 * y; };
  auto v = [](double x, double y) { return -0.1 + 0.004 * x + 0.003 * y; };
  const double esperado[4] = {0, 0.002, 0.003, -0.001 + 0.004};  // ex, ey, gxy
  std::mt19937 azar(7);
  std::uniform_real_distribution<double> mover(-0.15, 0.15);
  for (int nodos : {3, 6}) {
    for (int caso = 0; caso < 20; ++caso) {
      std::vector<double> x = {0.1 + mover(azar), 2 + mover(azar), 0.7 + mover(azar)};
      std::vector<double> y = {0.2 + mover(azar), 0.4 + mover(azar), 1.9 + mover(azar)};
      for (std::size_t s = 0; nodos == 6 && s < 3; ++s) {  // mid-side nodes a little off the chord
        x.push_back((x[s] + x[(s + 1) % 3]) / 2 + 0.3 * mover(azar));
        y.push_back((y[s] + y[(s + 1) % 3]) / 2 + 0.3 * mover(azar));
      }
      const GeometríaElemento g = Geometría(x, y);
      const PuntosIntegración pi = PuntosDelTriángulo(nodos);
      for (int p = 1; p <= pi.n; ++p) {
        PuntoB b;
        ASSERT_TRUE(MatrizBTriangular(g, pi, p, b, nullptr));
        double e[4] = {};
        for (int r = 1; r <= 3; ++r)
          for (int k = 1; k <= nodos; ++k)
            e[r] += b.B[r][2 * k - 1] * u(g.x[static_cast<std::size_t>(k)], g.y[static_cast<std::size_t>(k)]) +
                    b.B[r][2 * k] * v(g.x[static_cast<std::size_t>(k)], g.y[static_cast<std::size_t>(k)]);
        for (int r = 1; r <= 3; ++r) EXPECT_NEAR(e[r], esperado[r], 1e-12) << nodos << ", " << caso;
      }
    }
  }
}

// The six-node triangle takes its self weight without the 1/2: twice the weight of its area.
TEST(Ensamblaje, PesoDelTriánguloDeSeisNodosEsElDoble) {
  const GeometríaElemento g =
      Geometría({3.01, 0.02, 0.03, 1.515, 0.025, 1.52}, {0.01, 2.02, 0.03, 1.015, 1.025, 0.02});
  const PuntosIntegración pi = PuntosDelTriángulo(6);
  std::array<double, 13> f{};
  for (int q = 1; q <= 3; ++q) {
    PuntoB b;
    ASSERT_TRUE(MatrizBTriangular(g, pi, q, b, nullptr));
    SumarPesoPunto(g, pi, q, b.detJ, 0, -2.0, 1.0, f);
  }
  double total = 0;
  for (int k = 1; k <= 6; ++k) total += f[static_cast<std::size_t>(2 * k)];
  const double área =
      ((g.x[2] - g.x[1]) * (g.y[3] - g.y[1]) - (g.x[3] - g.x[1]) * (g.y[2] - g.y[1])) / 2;
  // Mid-side nodes on the chords: det J = 2A at every point and the weights add to
  // 3 · 0.333333333333333.
  EXPECT_NEAR(total / (-2.0 * área), 2 * 0.999999999999999, 1e-12);
}

// A node in no element, and a roller whose spring is zero, leave zeros on the diagonal.
TEST(Almacenes, CerosEnLaDiagonal) {
  for (TipoAlmacén tipo : {TipoAlmacén::Denso, TipoAlmacén::Perfil}) {
    Proyecto p = DosTriángulos();
    pruebas::Restringir(p.Malla, {{1, "S", "N"}});
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

// Refinement by four of two triangles that share a side.
TEST(Refinamiento, DosTriángulosDanOchoYNueveNodosOSeRechazan) {
  Proyecto p = DosTriángulos();
  const auto& antes = p.Malla.Elemento;  // element 1 is (1, 3, 4): the shared side joins its k = 1 and 3
  const double xm = (antes.XElemento(1, 1) + antes.XElemento(1, 3)) / 2;
  const double ym = (antes.YElemento(1, 1) + antes.YElemento(1, 3)) / 2;
  // The four children of a parent have equal areas: the mean of their centres is the parent's.
  double centro[3][2] = {};
  for (long e = 1; e <= 2; ++e)
    for (int k = 1; k <= 3; ++k) centro[e][0] += antes.XElemento(e, k) / 3, centro[e][1] += antes.YElemento(e, k) / 3;
  InterfazGuionada ui("S");
  IncrementeNúmeroDeElementos(p, ui);
  const MallaElementos& m = p.Malla;
  ASSERT_TRUE(m.NúmeroDeElementos == 8 && m.NúmeroDeNodos == 9);
  EXPECT_TRUE(m.ConfirmarElementos && m.MallaRefinada && !m.RestriccionesTrasRefinar);
  // Numbers 1..9, each node once with one position, in descending rows.
  std::set<std::pair<double, double>> puntos;
  for (long f = 1; f <= 9; ++f) {
    EXPECT_EQ(m.Nodo.NúmeroDeNodo[f], 10 - f);
    puntos.insert({m.Nodo.XNodo[f], m.Nodo.YNodo[f]});
  }
  EXPECT_EQ(puntos.size(), 9u);
  // The shared side's mid-point: one number, used by both parents' children.
  std::set<long> números;
  int usos = 0;
  for (long e = 1; e <= 8; ++e)
    for (int k = 1; k <= 3; ++k)
      if (m.Elemento.XElemento(e, k) == xm && m.Elemento.YElemento(e, k) == ym)
        números.insert(std::lround(m.Elemento.NúmeroElemento(e, k))), ++usos;
  // A mid-point is a node of three of its parent's four children.
  EXPECT_TRUE(números.size() == 1 && usos == 6) << usos;
  // Corners keep their numbers; every child is counter-clockwise with a quarter of its parent's area.
  for (long e = 1; e <= 8; ++e) {
    EXPECT_NEAR(pruebas::ÁreaElemento(m.Elemento, e), 0.5, 0.01) << e;
    EXPECT_EQ(m.Elemento.MaterialDeElemento[e], 1);
  }
  for (long e = 1; e <= 2; ++e) {
    double x = 0, y = 0;
    for (long h = 4 * e - 3; h <= 4 * e; ++h) x += m.Elemento.XCentroElemento[h] / 4, y += m.Elemento.YCentroElemento[h] / 4;
    EXPECT_NEAR(x, centro[e][0], 1e-12) << e;
    EXPECT_NEAR(y, centro[e][1], 1e-12) << e;
  }
  EXPECT_TRUE(m.Elemento.NúmeroElemento(1, 1) == 1 && m.NodoConRestricción.NodoRestringido[1] == 3);
  // The loaded side 3-4 of element 1 becomes two halves with the same pressure.
  ASSERT_EQ(m.NúmeroCargasUniformes, 2);
  for (long r = 1; r <= 2; ++r) {
    EXPECT_EQ(m.CargaUniforme.CargaQy[r], 7.5);
    EXPECT_LE(m.CargaUniforme.ElementoDeCarga[r], 4);
  }
  EXPECT_EQ(ui.Textos().size(), 2u);  // the question and the closing message
  Proyecto n = DosTriángulos();
  InterfazGuionada no("N");
  IncrementeNúmeroDeElementos(n, no);
  EXPECT_TRUE(n.Malla.ConfirmarElementos && n.Malla.NúmeroDeElementos == 2);

  Proyecto q = DosTriángulos();
  q.Malla.Elemento.NodosPorElemento[2] = 6;
  InterfazGuionada sí("S");
  IncrementeNúmeroDeElementos(q, sí);
  EXPECT_EQ(sí.Textos().back(),
            "Para que el programa ejecute esta orden, todos los elementos triangulares deben estar definidos por tres "
            "nodos. El elemento identificado con el número que está al final de este mensaje, no cumple con esta "
            "condición: 2");
  EXPECT_EQ(q.Malla.NúmeroDeElementos, 2);

  Proyecto r = DosTriángulos();
  r.Malla.NodosRestringidosDefinidos = false;
  InterfazGuionada callada;
  IncrementeNúmeroDeElementos(r, callada);
  EXPECT_EQ(callada.Textos(), std::vector<std::string>{"Defina los nodos con restricción"});
}

using Tabla3 = std::map<long, std::pair<double, double>>;

Tabla3 LeerTabla(std::istream& in, bool dat) {
  Tabla3 t;
  std::string línea;
  bool dentro = !dat;
  while (std::getline(in, línea)) {
    if (dat && línea.find("displacements") != std::string::npos) {
      dentro = true;
      continue;
    }
    std::istringstream s(línea);
    long n;
    std::string ux, uy;
    if (dentro && (s >> n >> ux >> uy)) t[n] = {std::strtod(ux.c_str(), nullptr), std::strtod(uy.c_str(), nullptr)};
  }
  return t;
}

// The sample slope read with Ko = 0 and its stiffness assembled, the clock stopped.
Proyecto Ejemplo(CálculoElementos& c, InterfazGuionada& ui) {
  Proyecto p;
  EXPECT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo("talud_elementos.cod"), ui));
  p.Estrato.CoeficienteKo[1] = 0;
  c.reloj = [] { return 0.0; };
  EXPECT_TRUE(Elementotriangular(p, ui, c));
  return p;
}

// Runs a deck of pruebas/datos/calculix in a fresh folder: the folder, or "" with no ccx.
std::string CorrerCcx(const std::string& deck) {
  if (std::system("command -v ccx > /dev/null 2>&1") != 0) return "";
  const std::string carpeta = pruebas::CarpetaTemporal();
  const std::string inp = deck + ".inp", orden = "cd '" + carpeta + "' && ccx -i " + deck;
  std::filesystem::copy_file(pruebas::RutaDatos("calculix/" + inp), carpeta + "/" + inp);
  EXPECT_EQ(std::system((orden + " > salida.txt 2>&1").c_str()), 0);
  return carpeta;
}

// Both stores of the stiffness give CalculiX's displacements; the skyline holds far less.
TEST(CalculiX, TaludConPesoPropioIgualQueCalculiXEnLosDosAlmacenes) {
  std::ifstream guardado(pruebas::RutaDatos("calculix/talud_desplazamientos.txt"));
  const Tabla3 ccx = LeerTabla(guardado, false);
  ASSERT_EQ(ccx.size(), 153u);
  double mayor = 0;
  for (const auto& [n, v] : ccx) mayor = std::max({mayor, std::abs(v.first), std::abs(v.second)});
  ASSERT_GT(mayor, 0.05);
  std::size_t memoria[2] = {};
  for (TipoAlmacén tipo : {TipoAlmacén::Denso, TipoAlmacén::Perfil}) {
    const bool perfil = tipo == TipoAlmacén::Perfil;
    SCOPED_TRACE(perfil ? "perfil" : "denso");
    CálculoElementos c;
    c.tipo = tipo;
    InterfazGuionada ui;
    Proyecto p = Ejemplo(c, ui);
    const MallaElementos& m = p.Malla;
    ASSERT_TRUE(m.NúmeroDeNodos == 153 && m.NúmeroDeElementos == 256);
    // The time estimate is the one message; with the clock stopped it reads zero minutes.
    ASSERT_EQ(ui.Textos().size(), 1u);
    EXPECT_NE(ui.Textos()[0].find("estimar la matriz de rigideces: 0.00"), std::string::npos);
    // The mesh fills the section: 40 × 10 below the toe level, plus the slope's trapezoid (crest
    // 15 m, face 15 m wide) 10 m high: 400 + 15·10 + 15·10/2 = 625 m2, less the millimetres.
    // No water: the loads are the weight, 1.8 · area, straight down.
    double área = 0, fx = 0, fy = 0;
    for (long e = 1; e <= m.NúmeroDeElementos; ++e) área += pruebas::ÁreaElemento(m.Elemento, e);
    EXPECT_NEAR(área, 625.0, 0.5);
    for (long n = 1; n <= m.NúmeroDeNodos; ++n)
      fx += m.VectorDeCargas[2 * n - 1], fy += m.VectorDeCargas[2 * n];
    EXPECT_NEAR(fx, 0.0, 1e-9 * área);
    EXPECT_NEAR(fy, -1.8 * área, 1e-9 * área);
    auto& r = p.Malla.NodoConRestricción;
    for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i)
      r.RestricciónX[i] = r.RestricciónY[i] = "N";
    ASSERT_TRUE(ModificarYFactorizar(p, *c.MatrizRigidez, ui, kMensajeDiagonalCeroViscoplástico));
    const std::vector<double> u = DesplazamientosElásticos(p, *c.MatrizRigidez);
    // CalculiX prints seven significant digits.
    for (const auto& [n, v] : ccx) {
      EXPECT_NEAR(u[static_cast<std::size_t>(2 * n - 1)], v.first, 2e-6 * mayor) << "nodo " << n;
      EXPECT_NEAR(u[static_cast<std::size_t>(2 * n)], v.second, 2e-6 * mayor) << "nodo " << n;
    }
    memoria[perfil] = c.MatrizRigidez->Memoria();
    if (!perfil) continue;
    InterfazGuionada sí("S");
    IncrementeNúmeroDeElementos(p, sí);
    EXPECT_TRUE(p.Malla.NúmeroDeElementos == 1024 && p.Malla.NúmeroDeNodos == 33 * 17);
  }
  EXPECT_LT(memoria[1] * 2, memoria[0]);

  const std::string carpeta = CorrerCcx("talud");
  if (carpeta.empty()) GTEST_SKIP() << "ccx no está instalado";
  std::ifstream dat(carpeta + "/talud.dat");
  EXPECT_EQ(LeerTabla(dat, true), ccx);
}

// The elastic step of the stress analysis on the same slope on rollers: the sides slide vertically
// and the base horizontally, each held by a stiff spring (10^12 kg/cm), and the free direction of a
// roller keeps its own diagonal. A linear triangle has one stress, which CPE3 prints at each of
// its points; talud_esfuerzos.txt holds element, sxx, syy, sxy (ton/m2) of talud_rodillos.inp.
TEST(CalculiX, PasoElásticoDelTaludSobreRodillosIgualQueCalculiX) {
  const std::string datos = pruebas::RutaDatos("calculix");
  std::map<long, std::array<double, 3>> ccx;
  {
    std::ifstream in(datos + "/talud_esfuerzos.txt");
    long e;
    std::string a, b, c;
    while (in >> e >> a >> b >> c)
      ccx[e] = {std::strtod(a.c_str(), nullptr), std::strtod(b.c_str(), nullptr), std::strtod(c.c_str(), nullptr)};
  }
  ASSERT_EQ(ccx.size(), 256u);
  CálculoElementos c;
  InterfazGuionada ui;
  Proyecto p = Ejemplo(c, ui);
  auto& r = p.Malla.NodoConRestricción;
  for (long i = 1; i <= p.Malla.NúmeroNodosConRestricción; ++i) {
    const long n = std::lround(r.NodoRestringido[i]), columna = (n - 1) / 9, fila = (n - 1) % 9;
    r.RestricciónX[i] = r.RestricciónY[i] = "S";
    r.ResorteX[i] = columna == 0 || columna == 16 ? 1e12 : 10 * c.MatrizRigidez->Diagonal(2 * n - 1);
    r.ResorteY[i] = fila == 0 ? 1e12 : 10 * c.MatrizRigidez->Diagonal(2 * n);
  }
  ASSERT_TRUE(CálculoViscoplástico(p, ui, c));

  // Stresses reach some tens of ton/m2. CalculiX prints seven significant digits (a half unit of
  // the last one is at most 5e-7 of the largest value) and a 10^12 kg/cm spring (10^11 ton/m)
  // against diagonals of some 10^4 ton/m gives way by about a part in 10^7: 2e-6 of the largest
  // stress holds both and nothing more.
  double mayor = 0;
  for (const auto& [e, s] : ccx) mayor = std::max({mayor, std::abs(s[0]), std::abs(s[1]), std::abs(s[2])});
  ASSERT_GT(mayor, 10.0);
  const MallaElementos& m = p.Malla;
  for (const auto& [e, s] : ccx) {
    EXPECT_NEAR(m.EsfuerzoX(e, 1), s[0], 2e-6 * mayor) << "elemento " << e;
    EXPECT_NEAR(m.EsfuerzoY(e, 1), s[1], 2e-6 * mayor) << "elemento " << e;
    EXPECT_NEAR(m.EsfuerzoXY(e, 1), s[2], 2e-6 * mayor) << "elemento " << e;
  }

  const std::string carpeta = CorrerCcx("talud_rodillos");
  if (carpeta.empty()) GTEST_SKIP() << "ccx no está instalado";
  std::ifstream dat(carpeta + "/talud_rodillos.dat"), guardado(datos + "/talud_rodillos.dat");
  std::string línea, otra;
  bool enEsfuerzos = false;
  while (std::getline(guardado, línea)) {
    ASSERT_TRUE(std::getline(dat, otra));
    enEsfuerzos = enEsfuerzos || línea.find("stresses") != std::string::npos;
    if (enEsfuerzos) {
      EXPECT_EQ(otra, línea);
    }
  }
}

}  // namespace
}  // namespace lomaterra
