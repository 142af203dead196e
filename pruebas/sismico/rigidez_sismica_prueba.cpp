// Seismic assembly and condensation on meshes small enough to work by hand, the loads of one
// triangle, the gates of the degrees of freedom in their order, and the sample dam run to its
// modes, through its file and into its figure.
#include <gtest/gtest.h>

#include <array>
#include <cmath>

#include "apoyo/apoyo.h"
#include "elementos/malla_apoyo.h"
#include "pantallas/grados_libertad.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"
#include "proyecto/comandos.h"
#include "salida/formas_modales.h"
#include "sismico/rigidez_sismica.h"

namespace lomaterra {
namespace {

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

TEST(CondensaciónSísmica, MasaYRigidezAManoNumeraciónYCargasDeUnTriángulo) {
  const double E = 2000, nu = 0.3, gamma = 1.8;
  const std::vector<std::array<double, 2>> xy = {{0, 0}, {4, 0.3}, {4.2, 3}, {0.1, 2.8}};
  Proyecto p;
  pruebas::ProyectoUnEstrato(p, 10, 5, E, nu, gamma);
  pruebas::Malla(p, xy, {{{1, 2, 3, 1}}, {{1, 3, 4, 1}}});
  pruebas::Restringir(p.Malla, {{2, "S", "N", 200}, {1, "N", "N", 0}});
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
  pruebas::Restringir(p.Malla, {{2, "S", "N", 0}, {1, "N", "N", 0}});
  EXPECT_FALSE(DeterminarGradosDeLibertad(p, ui, s));
  EXPECT_FALSE(p.Sísmico.GradosDeLibertadEstimados);
  // Node numbers scattered over two cells, restrictions in any order: the free degrees run by node
  // number, x before y, each with the stratum of the first element that holds its node.
  const std::vector<std::array<double, 2>> xyQ = {{2.003, 1.004}, {0.001, 0.002}, {4.005, 0.001},
                                                  {0.002, 1.006}, {2.004, 0.003}, {4.001, 1.002}};
  Proyecto q;
  pruebas::ProyectoUnEstrato(q, 10, 5, 1000, 0.3, 2);
  q.Estrato.RedimensionarConservando(2), q.Malla.MóduloElasticidad.RedimensionarConservando(2);
  q.Estrato.PesoUnitarioHúmedo[2] = 2, q.Malla.MóduloElasticidad[2] = 3000;
  // Left cell material 1 (nodes 2, 5, 1, 4), right cell material 2 (nodes 5, 3, 6, 1).
  pruebas::Malla(q, xyQ, {{{2, 5, 1, 1}}, {{2, 1, 4, 1}}, {{5, 3, 6, 2}}, {{5, 6, 1, 2}}});
  pruebas::Restringir(q.Malla, {{5, "N", "N", 0}, {3, "S", "N", 50}, {2, "N", "N", 0}});
  MatricesSísmicas t;
  InterfazGuionada otra("NNNN");
  ASSERT_TRUE(DeterminarGradosDeLibertad(q, otra, t));
  const std::vector<long> libresQ = {1, 2, 5, 7, 8, 11, 12};
  EXPECT_EQ(t.Libres, libresQ);
  const double módulo[] = {1000, 1000, 3000, 1000, 1000, 3000, 3000};
  for (long i = 1; i <= 7; ++i) EXPECT_EQ(q.Sísmico.MóduloGrado.Leer(i), módulo[i - 1]) << i;
  // Face (10, 0)-(0, 10) read as y = (10 - x)·f, f = 10/10.01 by the 0.01 of the reading rule;
  // reservoir at 12; moist 1.8, saturated 2.0, Ko 0.5. Triangle B(6, 3.99), A(2, 7.99), C(5, 3).
  Proyecto cara;
  pruebas::ProyectoUnEstrato(cara, 10, 0, 3000, 0.3, 1.8);
  pruebas::PonerLínea(cara.CoordenadasTalud, cara.NúmeroPuntosTalud, {{10, 0}, {0, 10}});
  pruebas::PonerLínea(cara.CoordenadasFreático, cara.NúmeroPuntosFreático, {{10, 12}, {0, 12}});
  cara.Estrato.PesoUnitarioSaturado[1] = 2.0, cara.Estrato.CoeficienteKo[1] = 0.5;
  // Nodes 1 (B), 2 (A), 3 (C).
  pruebas::Malla(cara, {{6, 3.99}, {2, 7.99}, {5, 3}}, {{{1, 2, 3, 1}}});
  cara.Malla.AnálisisPresas = true;
  InterfazGuionada uc("S", true);  // the pore pressure from the phreatic line
  MatricesSísmicas sc;
  ASSERT_TRUE(ElementoTriangularSismico(cara, uc, sc));
  // Centre (13/3, yc) under the face at ys = (17/3)·f: u = 12 - yc; column (ys - yc)·2.0 plus the
  // water 12 - ys, so sv = ys - yc on every node as (Ko sv, sv). Pore water, spans dy = 4.99, dx = 4:
  // (4.99 u/3, 4 u/3). Reservoir on B-A (first two nodes under the face): heads (12 - h)²/(12 - y),
  // h = 4f at B, 8f at A, p their mean; spans 4, 4: B and A take -(1/2)·4·p along x and y.
  const double f = 10 / 10.01, yc = 14.98 / 3, ys = 17.0 / 3 * f, u = 12 - yc, sv = ys - yc;
  const double p_ = ((12 - 4 * f) * (12 - 4 * f) / (12 - 3.99) + (12 - 8 * f) * (12 - 8 * f) / (12 - 7.99)) / 2;
  for (std::size_t n = 1; n <= 3; ++n)
    for (std::size_t d = 0; d < 2; ++d) {
      EXPECT_NEAR(sc.EsfuerzoEfectivoNodal[2 * n - 1 + d], d ? sv : 0.5 * sv, 1e-9) << n;
      EXPECT_NEAR(sc.CargaAguaPoros[2 * n - 1 + d], (d ? 4 : 4.99) * u / 3, 1e-9) << n;
      EXPECT_NEAR(sc.CargaEmbalse[2 * n - 1 + d], n < 3 ? -2 * p_ : 0.0, 1e-9) << n;
    }
}

Proyecto Presa(Proyecto p = {}, InterfazGuionada ui = {}) {  // an empty project if it cannot be read
  return LeerProyecto(p, pruebas::RutaEjemplo("presa_sismica.cod"), ui) ? p : Proyecto{};
}

TEST(PresaSísmica, PuertasDeLosGradosYHastaLosModosIdaYVueltaYFigura) {
  Proyecto p = Presa();
  InterfazGuionada ui("NSNNSS", true);
  const auto árbol = ÁrbolDeMenús();
  for (const char* c : {"IncrementeNúmeroDeElementos", "GradosDeLibertad", "DeterminaciónDeLasFrecuencias", "CálculoDeLoVectoresDeFormaModales"})
    EjecutarComando(BuscarEntrada(árbol, c)->acción, p, ui);
  DatosSísmicos& s = p.Sísmico;  // ten columns of six nodes, the base row fixed: 50 free nodes
  ASSERT_TRUE(s.NúmeroGradosLibertad == 100 && s.FormasModalesDadas && s.FrecuenciasDefinitivas && s.ModosCalculados == 100);
  for (long m = 1; m <= 100; ++m) {  // sorted ascending, each of unit modal mass Σ φ² M(i,i)
    EXPECT_GE(s.Frecuencia[m], s.Frecuencia[m > 1 ? m - 1 : 1]);
    double masa = 0;
    for (long i = 1; i <= 100; ++i) masa += std::pow(s.MatrizFormasModales(i, m), 2) * s.MatrizMasaCondensada(i, i);
    EXPECT_NEAR(masa, 1.0, 1e-12) << m;
  }
  // Node 1 is at the fixed base, node 2 above it the first free node: degrees 1 and 2.
  const auto u = DesplazamientosDelModo(p, 1);
  EXPECT_TRUE(u[1] == (PuntoFigura{0, 0}) && u[2] == (PuntoFigura{s.MatrizFormasModales(1, 1), s.MatrizFormasModales(2, 1)}));

  const std::string a = pruebas::CarpetaTemporal() + "/a.cod", b = a + ".b";
  InterfazGuionada no;
  Proyecto q;
  ASSERT_TRUE(s.MatricesSísmicasDadas && GuardarProyecto(p, a, no) && LeerProyecto(q, a, no) && GuardarProyecto(q, b, no));
  EXPECT_EQ(pruebas::LeerArchivo(a), pruebas::LeerArchivo(b));
  EXPECT_TRUE(q.Sísmico.AlturaPresa == 10.0 && q.Sísmico.MétodoGmax == 1);
  // After a response run the condensation lists the x and y degrees: node 2 first, node 60 last.
  ASSERT_TRUE((s.ResultadosSísmicos = true) && CondensarMatrices(p, no, MatricesSísmicasEnMemoria(p)));
  EXPECT_TRUE(s.NúmeroGradosX == 50 && s.NúmeroGradosY == 50 && s.ListaGradosX[1] == 3 && s.ListaGradosY[50] == 120);
  // Case k breaks gate k and every later one: the message of gate k must come first.
  const std::pair<void (*)(Proyecto&), const char*> puertas[] = {
      {[](Proyecto& p) { p.TipoDeAnálisis = "T"; }, "Ud. no está trabajando con elementos finitos"},
      {[](Proyecto& p) { p.Malla.RestriccionesTrasRefinar = false; }, "Vaya a la opción Nodos con restricción"},
      {[](Proyecto& p) { p.Sísmico.RegistroDado = false; }, "Ud hizo click en la sesión 'Estimación de los grados de libertad', lo cual es requerido para un análisis sísmico. Sin embargo no ha dado al programa ninguna información de registro"},
      {[](Proyecto& p) { p.Sísmico.ParámetrosSísmicosDados = false; }, "Ud hizo click en la sesión 'Estimación de los grados de libertad', lo cual es requerido para un análisis sísmico. Sin embargo no ha dado al programa ninguna información de los parámteros"},
      {[](Proyecto& p) { p.Malla.ConfirmarElementos = false; }, "Confirme primero el número de elementos."},
      {[](Proyecto& p) { p.Sísmico.GradosDeLibertadEstimados = true; }, "Ya se determinó los grados de libertad. ¿Desea volver hacerlo?."}};
  for (std::size_t k = 0; k < std::size(puertas); ++k) {
    Proyecto p = Presa();
    p.Malla.ConfirmarElementos = true;
    for (std::size_t j = k; j < std::size(puertas); ++j) puertas[j].first(p);
    InterfazGuionada ui("N");
    GradosDeLibertad(p, ui);
    ASSERT_EQ(ui.Transcripción().size(), 1u) << k;
    EXPECT_EQ(ui.Transcripción()[0].texto.rfind(puertas[k].second, 0), 0u) << ui.Transcripción()[0].texto;
  }
}

}  // namespace
}  // namespace lomaterra
