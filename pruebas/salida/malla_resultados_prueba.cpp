// The colour scale of the stress figures and the magnified deformed mesh, on two triangles.
#include <gtest/gtest.h>

#include "proyecto/proyecto.h"
#include "salida/malla_resultados.h"

using namespace lomaterra;

TEST(FigurasDeMalla, EscalaDeColores) {
  struct Caso {
    double v;
    int tramo;
  } casos[] = {{-10, 0}, {-20, 0}, {10, 9}, {30, 9}, {-3, 3}, {-2.1, 3}, {0, 5}, {9.99, 9}};
  for (const Caso& c : casos) EXPECT_EQ(TramoDeEscala(c.v, -10, 10), c.tramo) << c.v;
  EXPECT_EQ(TramoDeEscala(4, 4, 4), kTramosEscala / 2);
  const Color frío = ColorDeTramo(0), caliente = ColorDeTramo(kTramosEscala - 1);
  EXPECT_GT(frío.b, frío.r);
  EXPECT_GT(caliente.r, caliente.b);
}

namespace {
// The unit square cut by its diagonal: nodes 1 (0,0), 2 (1,0), 3 (1,1), 4 (0,1); node 3 moved by
// 2 cm to the right and 1 cm down.
Proyecto DosTriángulos() {
  Proyecto p;
  p.TipoDeAnálisis = "F";
  MallaElementos& m = p.Malla;
  const double x[5] = {0, 0, 1, 1, 0}, y[5] = {0, 0, 0, 1, 1};
  m.NúmeroDeNodos = 4;
  m.Nodo.Redimensionar(4);
  for (long n = 1; n <= 4; ++n) {
    m.Nodo.NúmeroDeNodo[5 - n] = static_cast<Entero>(n);
    m.Nodo.XNodo[5 - n] = x[n];
    m.Nodo.YNodo[5 - n] = y[n];
  }
  m.NúmeroDeElementos = 2;
  m.Elemento.Redimensionar(2);
  const long nodos[3][4] = {{0}, {0, 1, 2, 3}, {0, 1, 3, 4}};
  for (long e = 1; e <= 2; ++e) {
    m.Elemento.NodosPorElemento[e] = 3;
    for (int k = 1; k <= 3; ++k) {
      m.Elemento.NúmeroElemento(e, k) = static_cast<double>(nodos[e][k]);
      m.Elemento.XElemento(e, k) = x[nodos[e][k]];
      m.Elemento.YElemento(e, k) = y[nodos[e][k]];
    }
  }
  m.NúmeroDeIteración = 1;
  m.Desplazamientos.Redimensionar(8, 1);
  m.Desplazamientos(5, 1) = 2;
  m.Desplazamientos(6, 1) = -1;
  p.CálculoHecho = true;
  return p;
}
}  // namespace

// The largest displacement (2 cm) is drawn as a twentieth of the mesh (1 m): 0.05 m, so the
// magnification is 0.05 / 0.02 = 2.5 and node 3 stands at (1 + 2.5·0.02, 1 - 2.5·0.01).
TEST(FigurasDeMalla, MallaDeformadaAumentada) {
  const Proyecto p = DosTriángulos();
  EXPECT_DOUBLE_EQ(AumentoAutomático(p, 1), 2.5);
  const auto nodos = NodosDeformados(p, 1, 10);
  EXPECT_DOUBLE_EQ(nodos[3].x, 1.2);
  EXPECT_DOUBLE_EQ(nodos[3].y, 0.9);
  EXPECT_DOUBLE_EQ(nodos[1].x, 0.0);
  const Figura f = FiguraDeMalla(p, "MallaDeformada");
  int conNodo3 = 0;
  for (const Trazo& t : f.trazos)
    for (const PuntoFigura& q : t.puntos) conNodo3 += std::abs(q.x - 1.05) < 1e-12 && std::abs(q.y - 0.975) < 1e-12;
  EXPECT_EQ(conNodo3, 2);  // both deformed triangles share the moved corner
}
