// The seismic loads of one triangle worked by hand, the gates of the degrees of freedom in their
// order, and the sample dam run to its modes, through its file and into its figure.
#include <gtest/gtest.h>
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

TEST(CargasSísmicas, UnTriánguloEnLaCaraDeAguasArriba) {
  // Face (10, 0)-(0, 10) read as y = (10 - x)·f, f = 10/10.01 by the 0.01 of the reading rule;
  // reservoir at 12; moist 1.8, saturated 2.0, Ko 0.5. Triangle B(6, 3.99), A(2, 7.99), C(5, 3).
  Proyecto p;
  pruebas::ProyectoUnEstrato(p, 10, 0, 3000, 0.3, 1.8);
  p.CoordenadasTalud.X[1] = 10, p.CoordenadasTalud.X[2] = 0, p.CoordenadasTalud.Y[2] = 10;
  p.NúmeroPuntosFreático = 2, p.CoordenadasFreático.Redimensionar(2);
  p.CoordenadasFreático.X[1] = 10, p.CoordenadasFreático.Y[1] = p.CoordenadasFreático.Y[2] = 12;
  p.Estrato.PesoUnitarioSaturado[1] = 2.0, p.Estrato.CoeficienteKo[1] = 0.5;
  MallaElementos& m = p.Malla;
  m.Nodo.Redimensionar(3), m.Elemento.Redimensionar(1), m.AnálisisPresas = true, m.NúmeroDeNodos = 3, m.NúmeroDeElementos = 1;
  const double xy[4][2] = {{}, {6, 3.99}, {2, 7.99}, {5, 3}};  // nodes 1 (B), 2 (A), 3 (C)
  for (long n = 1; n <= 3; ++n) {
    m.Nodo.NúmeroDeNodo[4 - n] = static_cast<Entero>(n), m.Nodo.XNodo[4 - n] = xy[n][0], m.Nodo.YNodo[4 - n] = xy[n][1];
    m.Elemento.NodoDeElemento(1, n) = m.Elemento.NúmeroElemento(1, n) = static_cast<double>(n);
    m.Elemento.XElemento(1, n) = xy[n][0], m.Elemento.YElemento(1, n) = xy[n][1];
  }
  m.Elemento.NodosPorElemento[1] = 3, m.Elemento.PuntosIntegración[1] = 1, m.Elemento.MaterialDeElemento[1] = 1;
  m.Elemento.Lado12[1] = m.Elemento.Lado23[1] = m.Elemento.Lado31[1] = 2;
  m.Elemento.XCentroElemento[1] = 13.0 / 3, m.Elemento.YCentroElemento[1] = 14.98 / 3;
  InterfazGuionada ui("S", true);  // the pore pressure from the phreatic line
  MatricesSísmicas s;
  ASSERT_TRUE(ElementoTriangularSismico(p, ui, s));
  // Centre (13/3, yc) under the face at ys = (17/3)·f: u = 12 - yc; column (ys - yc)·2.0 plus the
  // water 12 - ys, so sv = ys - yc on every node as (Ko sv, sv). Pore water, spans dy = 4.99, dx = 4:
  // (4.99 u/3, 4 u/3). Reservoir on B-A (first two nodes under the face): heads (12 - h)²/(12 - y),
  // h = 4f at B, 8f at A, p their mean; spans 4, 4: B and A take -(1/2)·4·p along x and y.
  const double f = 10 / 10.01, yc = 14.98 / 3, ys = 17.0 / 3 * f, u = 12 - yc, sv = ys - yc;
  const double p_ = ((12 - 4 * f) * (12 - 4 * f) / (12 - 3.99) + (12 - 8 * f) * (12 - 8 * f) / (12 - 7.99)) / 2;
  for (std::size_t n = 1; n <= 3; ++n)
    for (std::size_t d = 0; d < 2; ++d) {
      EXPECT_NEAR(s.EsfuerzoEfectivoNodal[2 * n - 1 + d], d ? sv : 0.5 * sv, 1e-9) << n;
      EXPECT_NEAR(s.CargaAguaPoros[2 * n - 1 + d], (d ? 4 : 4.99) * u / 3, 1e-9) << n;
      EXPECT_NEAR(s.CargaEmbalse[2 * n - 1 + d], n < 3 ? -2 * p_ : 0.0, 1e-9) << n;
    }
}

Proyecto Presa(Proyecto p = {}, InterfazGuionada ui = {}) {  // an empty project if it cannot be read
  return LeerProyecto(p, pruebas::RutaEjemplo("presa_sismica.cod"), ui) ? p : Proyecto{};
}

TEST(GradosDeLibertadPuertas, CadaPuertaAntesQueLasSiguientes) {
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

TEST(PresaSísmica, HastaLosModosIdaYVueltaYFigura) {
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
}

}  // namespace
}  // namespace lomaterra
