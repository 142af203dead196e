// Meshes built in code for the element tests: a column or a block of linear triangles with its
// nodes offset by a few millimetres in a fixed pattern, so that no triangle has two equal
// abscissas or ordinates and the nudge of the stiffness never moves a node.
#pragma once

#include <cmath>

#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

// A project of kind "F", soil, one stratum (E, nu, moist and saturated weight) whose lower line
// lies far below, and a flat slope line at y = alto.
inline void ProyectoUnEstrato(Proyecto& p, double ancho, double alto, double E, double nu, double gamma) {
  p.TipoDeAnálisis = "F";
  p.TipoDeMaterial = "S";
  p.NúmeroPuntosTalud = 2;
  p.CoordenadasTalud.Redimensionar(2);
  p.CoordenadasTalud.X[1] = ancho + 100, p.CoordenadasTalud.Y[1] = alto;
  p.CoordenadasTalud.X[2] = -100, p.CoordenadasTalud.Y[2] = alto;
  p.NúmeroEstratos = 1;
  p.PuntosEstrato.Redimensionar(1);
  p.PuntosEstrato[1] = 2;
  p.XEstrato.Redimensionar(1, 2);
  p.YEstrato.Redimensionar(1, 2);
  p.XEstrato(1, 1) = ancho + 100, p.YEstrato(1, 1) = -1000, p.XEstrato(1, 2) = -100, p.YEstrato(1, 2) = -1000;
  p.Estrato.RedimensionarConservando(1);
  p.Estrato.PesoUnitarioHúmedo[1] = p.Estrato.PesoUnitarioSaturado[1] = gamma;
  p.Estrato.CoeficienteKo[1] = 0;
  p.Malla.MóduloElasticidad.Redimensionar(1);
  p.Malla.CoeficientePoisson.Redimensionar(1);
  p.Malla.MóduloElasticidad[1] = E, p.Malla.CoeficientePoisson[1] = nu;
}

// Node coordinates of a grid of (columnas+1)×(filas+1) points, node number
// 1 + i·(filas+1) + j (column i, row j), each moved by a fixed few millimetres.
inline double DesvíoX(long i, long j) { return 0.001 * static_cast<double>((3 * i + 5 * j) % 7 + 1); }
inline double DesvíoY(long i, long j) { return 0.001 * static_cast<double>((5 * i + 3 * j) % 7 + 1); }

// Linear triangles over a grid of cells dx × dy, counter-clockwise, two a cell; every element of
// material 1. Nodes stand in descending order as the node screen keeps them.
inline void MallaRejilla(Proyecto& p, long columnas, long filas, double dx, double dy) {
  MallaElementos& m = p.Malla;
  const long nn = (columnas + 1) * (filas + 1);
  m.NúmeroDeNodos = static_cast<Entero>(nn);
  m.Nodo.Redimensionar(nn);
  auto número = [&](long i, long j) { return 1 + i * (filas + 1) + j; };
  for (long i = 0; i <= columnas; ++i)
    for (long j = 0; j <= filas; ++j) {
      const long n = número(i, j);
      const long fila = nn - n + 1;
      m.Nodo.NúmeroDeNodo[fila] = static_cast<Entero>(n);
      m.Nodo.XNodo[fila] = static_cast<double>(i) * dx + DesvíoX(i, j);
      m.Nodo.YNodo[fila] = static_cast<double>(j) * dy + DesvíoY(i, j);
    }
  const long ne = 2 * columnas * filas;
  m.NúmeroDeElementos = static_cast<Entero>(ne);
  m.Elemento.Redimensionar(ne);
  long e = 0;
  auto poner = [&](long a, long b, long c) {
    ++e;
    m.Elemento.NodosPorElemento[e] = 3;
    m.Elemento.PuntosIntegración[e] = 1;
    m.Elemento.Lado12[e] = m.Elemento.Lado23[e] = m.Elemento.Lado31[e] = 2;
    m.Elemento.MaterialDeElemento[e] = 1;
    const long nodos[3] = {a, b, c};
    double sx = 0, sy = 0;
    for (int k = 1; k <= 3; ++k) {
      const long n = nodos[k - 1];
      const long fila = nn - n + 1;
      m.Elemento.NodoDeElemento(e, k) = static_cast<double>(n);
      m.Elemento.NúmeroElemento(e, k) = static_cast<double>(n);
      m.Elemento.XElemento(e, k) = m.Nodo.XNodo[fila];
      m.Elemento.YElemento(e, k) = m.Nodo.YNodo[fila];
      sx += m.Nodo.XNodo[fila];
      sy += m.Nodo.YNodo[fila];
    }
    m.Elemento.XCentroElemento[e] = sx / 3;
    m.Elemento.YCentroElemento[e] = sy / 3;
  };
  for (long i = 0; i < columnas; ++i)
    for (long j = 0; j < filas; ++j) {
      poner(número(i, j), número(i + 1, j), número(i + 1, j + 1));
      poner(número(i, j), número(i + 1, j + 1), número(i, j + 1));
    }
  m.NodosDefinidos = m.ElementosDefinidos = m.MaterialesAsignados = true;
  m.CaracterísticasElásticasDadas = true;
  m.ConfirmarElementos = true;
}

}  // namespace lomaterra::pruebas
