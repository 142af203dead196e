// Refinement by four of two triangles that share a side.
#include <gtest/gtest.h>

#include <set>

#include "elementos/malla_apoyo.h"
#include "elementos/refinamiento.h"
#include "pantallas/interfaz_guionada.h"

namespace lomaterra {
namespace {

// One cell of 2 × 2 m cut along its diagonal: nodes 1 (0,0), 2 (0,2), 3 (2,0), 4 (2,2) plus the
// millimetre offsets; elements (1,3,4) and (1,4,2) share the side 1-4.
Proyecto DosTriángulos() {
  Proyecto p;
  pruebas::ProyectoUnEstrato(p, 2, 10, 1000, 0.3, 1.8);
  pruebas::MallaRejilla(p, 1, 1, 2.0, 2.0);
  MallaElementos& m = p.Malla;
  m.NodosRestringidosDefinidos = true;
  m.NúmeroNodosConRestricción = 1;
  m.NodoConRestricción.Redimensionar(1);
  m.NodoConRestricción.NodoRestringido[1] = 3;
  m.CargasUniformesDefinidas = true;
  m.NúmeroCargasUniformes = 1;
  m.CargaUniforme.Redimensionar(1);
  m.CargaUniforme.ElementoDeCarga[1] = 1;
  m.CargaUniforme.NodoUnoCarga[1] = 3;
  m.CargaUniforme.NodoDosCarga[1] = 4;
  m.CargaUniforme.CargaQy[1] = 7.5;
  return p;
}

TEST(Refinamiento, DosTriángulosDanOchoYNueveNodos) {
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
  ASSERT_EQ(m.NúmeroDeElementos, 8);
  ASSERT_EQ(m.NúmeroDeNodos, 9);
  EXPECT_TRUE(m.ConfirmarElementos && m.MallaRefinada);
  EXPECT_FALSE(m.RestriccionesTrasRefinar);
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
  EXPECT_EQ(números.size(), 1u);
  EXPECT_EQ(usos, 6);  // a mid-point is a node of three of its parent's four children
  // Corners keep their numbers; every child is counter-clockwise with a quarter of its parent's area.
  for (long e = 1; e <= 8; ++e) {
    const auto& t = m.Elemento;
    const double a = ((t.XElemento(e, 2) - t.XElemento(e, 1)) * (t.YElemento(e, 3) - t.YElemento(e, 1)) -
                      (t.XElemento(e, 3) - t.XElemento(e, 1)) * (t.YElemento(e, 2) - t.YElemento(e, 1))) / 2;
    EXPECT_NEAR(a, 0.5, 0.01) << e;
    EXPECT_EQ(t.MaterialDeElemento[e], 1);
  }
  for (long e = 1; e <= 2; ++e) {
    double x = 0, y = 0;
    for (long h = 4 * e - 3; h <= 4 * e; ++h) x += m.Elemento.XCentroElemento[h] / 4, y += m.Elemento.YCentroElemento[h] / 4;
    EXPECT_NEAR(x, centro[e][0], 1e-12) << e;
    EXPECT_NEAR(y, centro[e][1], 1e-12) << e;
  }
  EXPECT_EQ(m.Elemento.NúmeroElemento(1, 1), 1);
  EXPECT_EQ(m.NodoConRestricción.NodoRestringido[1], 3);
  // The loaded side 3-4 of element 1 becomes two halves with the same pressure.
  ASSERT_EQ(m.NúmeroCargasUniformes, 2);
  for (long r = 1; r <= 2; ++r) {
    EXPECT_EQ(m.CargaUniforme.CargaQy[r], 7.5);
    EXPECT_LE(m.CargaUniforme.ElementoDeCarga[r], 4);
  }
  EXPECT_EQ(ui.Textos().size(), 2u);  // the question and the closing message
}

TEST(Refinamiento, NoConfirmaYSeisNodosSeRechazan) {
  Proyecto p = DosTriángulos();
  InterfazGuionada no("N");
  IncrementeNúmeroDeElementos(p, no);
  EXPECT_TRUE(p.Malla.ConfirmarElementos);
  EXPECT_EQ(p.Malla.NúmeroDeElementos, 2);

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
  InterfazGuionada ui;
  IncrementeNúmeroDeElementos(r, ui);
  EXPECT_EQ(ui.Textos(), std::vector<std::string>{"Defina los nodos con restricción"});
}

}  // namespace
}  // namespace lomaterra
