// Meshes built in code for the element and seismic tests: one stratum under a flat slope line,
// linear triangles over nodes given by number, restrictions, the area of a triangle.
#pragma once

#include <array>
#include <vector>

#include "apoyo/proyectos.h"
#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

// A project of kind "F", soil, one stratum (E, nu, moist and saturated weight) whose lower line
// lies far below, and a flat slope line at y = alto.
inline void ProyectoUnEstrato(Proyecto& p, double ancho, double alto, double E, double nu,
                              double gamma) {
  p.TipoDeAnálisis = "F", p.TipoDeMaterial = "S";
  PonerLínea(p.CoordenadasTalud, p.NúmeroPuntosTalud, {{ancho + 100, alto}, {-100, alto}});
  p.PuntosEstrato.Redimensionar(p.NúmeroEstratos = 1);
  p.PuntosEstrato[1] = 2;
  p.XEstrato.Redimensionar(1, 2), p.YEstrato.Redimensionar(1, 2);
  p.XEstrato(1, 1) = ancho + 100, p.YEstrato(1, 1) = -1000, p.XEstrato(1, 2) = -100, p.YEstrato(1, 2) = -1000;
  p.Estrato.RedimensionarConservando(1), p.Estrato.CoeficienteKo[1] = 0;
  p.Estrato.PesoUnitarioHúmedo[1] = p.Estrato.PesoUnitarioSaturado[1] = gamma;
  p.Malla.MóduloElasticidad.Redimensionar(1), p.Malla.CoeficientePoisson.Redimensionar(1);
  p.Malla.MóduloElasticidad[1] = E, p.Malla.CoeficientePoisson[1] = nu;
}

// Linear triangles {n1, n2, n3, material} over nodes 1..n at xy; the node table descending, as
// the node screen keeps it; the mesh marked defined, characterised and confirmed.
inline void Malla(Proyecto& p, const std::vector<std::array<double, 2>>& xy,
                  const std::vector<std::array<long, 4>>& tri) {
  MallaElementos& m = p.Malla;
  const long nn = static_cast<long>(xy.size()), ne = static_cast<long>(tri.size());
  m.NúmeroDeNodos = static_cast<Entero>(nn), m.NúmeroDeElementos = static_cast<Entero>(ne);
  m.Nodo.Redimensionar(nn), m.Elemento.Redimensionar(ne);
  for (long n = 1; n <= nn; ++n) {
    const auto& [x, y] = xy[static_cast<std::size_t>(n - 1)];
    m.Nodo.NúmeroDeNodo[nn - n + 1] = static_cast<Entero>(n);
    m.Nodo.XNodo[nn - n + 1] = x, m.Nodo.YNodo[nn - n + 1] = y;
  }
  for (long e = 1; e <= ne; ++e) {
    const auto& t = tri[static_cast<std::size_t>(e - 1)];
    m.Elemento.NodosPorElemento[e] = 3, m.Elemento.PuntosIntegración[e] = 1;
    m.Elemento.Lado12[e] = m.Elemento.Lado23[e] = m.Elemento.Lado31[e] = 2;
    m.Elemento.MaterialDeElemento[e] = static_cast<double>(t[3]);
    double sx = 0, sy = 0;
    for (int k = 1; k <= 3; ++k) {
      const long n = t[static_cast<std::size_t>(k - 1)], fila = nn - n + 1;
      m.Elemento.NodoDeElemento(e, k) = m.Elemento.NúmeroElemento(e, k) = static_cast<double>(n);
      const double x = m.Nodo.XNodo[fila], y = m.Nodo.YNodo[fila];
      m.Elemento.XElemento(e, k) = x, m.Elemento.YElemento(e, k) = y, sx += x, sy += y;
    }
    m.Elemento.XCentroElemento[e] = sx / 3, m.Elemento.YCentroElemento[e] = sy / 3;
  }
  m.NodosDefinidos = m.ElementosDefinidos = m.MaterialesAsignados = true;
  m.CaracterísticasElásticasDadas = m.ConfirmarElementos = true;
}

// Restriction rows in the order given: "N" holds a direction, "S" leaves it on its spring
// (kg/cm).
struct Restricción {
  long nodo;
  const char *x, *y;
  double resorteX = 0, resorteY = 0;
};
inline void Restringir(MallaElementos& m, const std::vector<Restricción>& filas) {
  auto& r = m.NodoConRestricción;
  r.Redimensionar(m.NúmeroNodosConRestricción = static_cast<std::int32_t>(filas.size()));
  for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i) {
    const Restricción& f = filas[static_cast<std::size_t>(i - 1)];
    r.NodoRestringido[i] = static_cast<double>(f.nodo), r.RestricciónX[i] = f.x;
    r.RestricciónY[i] = f.y, r.ResorteX[i] = f.resorteX, r.ResorteY[i] = f.resorteY;
  }
  m.NodosRestringidosDefinidos = true;
}

// Area of triangle e by its first three corners, positive when counter-clockwise.
inline double ÁreaElemento(const TablaElemento& t, long e) {
  return ((t.XElemento(e, 2) - t.XElemento(e, 1)) * (t.YElemento(e, 3) - t.YElemento(e, 1)) -
          (t.XElemento(e, 3) - t.XElemento(e, 1)) * (t.YElemento(e, 2) - t.YElemento(e, 1))) / 2;
}

}  // namespace lomaterra::pruebas
