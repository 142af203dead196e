// The sample slope of linear triangles: it opens, its loads add up to its weight, its crest
// settles, and it refines to four times its elements.
#include <gtest/gtest.h>

#include "apoyo/apoyo.h"
#include "elementos/refinamiento.h"
#include "elementos/rigidez.h"
#include "elementos/solucion.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/archivo.h"

namespace lomaterra {
namespace {

TEST(EjemploElementos, PesoAsientoYRefinamiento) {
  Proyecto p;
  InterfazGuionada ui;
  ASSERT_TRUE(LeerProyecto(p, pruebas::RutaEjemplo("talud_elementos.cod"), ui));
  const MallaElementos& m = p.Malla;
  ASSERT_EQ(m.NúmeroDeNodos, 153);
  ASSERT_EQ(m.NúmeroDeElementos, 256);
  // The mesh fills the section: 40 × 10 below the toe level, plus the slope's trapezoid
  // (crest 15 m, face 15 m wide) 10 m high: 400 + 15·10 + 15·10/2 = 625 m2, less the millimetres.
  double área = 0;
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    const auto& t = m.Elemento;
    área += ((t.XElemento(e, 2) - t.XElemento(e, 1)) * (t.YElemento(e, 3) - t.YElemento(e, 1)) -
             (t.XElemento(e, 3) - t.XElemento(e, 1)) * (t.YElemento(e, 2) - t.YElemento(e, 1))) / 2;
  }
  EXPECT_NEAR(área, 625.0, 0.5);
  // No water and Ko = 0.5: the y loads are the weight, 1.8 · area. (The two stores agree on random
  // meshes; the skyline one is used here.)
  Proyecto q = p;
  CálculoElementos c;
  c.reloj = [] { return 0.0; };
  ASSERT_TRUE(Elementotriangular(q, ui, c));
  double fy = 0;
  for (long n = 1; n <= q.Malla.NúmeroDeNodos; ++n) fy += q.Malla.VectorDeCargas[2 * n];
  EXPECT_NEAR(fy, -1.8 * área, 1e-9 * área);
  ASSERT_TRUE(ModificarYFactorizar(q, *c.MatrizRigidez, ui, kMensajeDiagonalCeroViscoplástico));
  // The crest settles: node 99 stands at the top of the face, x = 25, y = 20.
  EXPECT_LT(DesplazamientosElásticos(q, *c.MatrizRigidez)[2 * 99], 0.0);

  InterfazGuionada sí("S");
  IncrementeNúmeroDeElementos(p, sí);
  EXPECT_EQ(p.Malla.NúmeroDeElementos, 1024);
  EXPECT_EQ(p.Malla.NúmeroDeNodos, 33 * 17);
}

}  // namespace
}  // namespace lomaterra
