// A seismic run filled by hand on a small mesh: nodes stored 4, 3, 2, 1 at the corners of a 10 x 5
// rectangle, two triangles, node 1 fixed both ways and node 2 only along x; three steps computed of
// a record of four points (the run was stopped). Step 2 of node 3 and element 2 carry the values
// the tests read back; both elements have sigma y = -10 t/m² at steps 1 and 3, -20 at step 2.
#pragma once

#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

inline Proyecto SismoAMano() {
  Proyecto p;
  p.TipoDeAnálisis = "F";
  MallaElementos& m = p.Malla;
  m.NúmeroDeNodos = 4, m.NúmeroDeElementos = 2;
  m.Nodo.Redimensionar(4);
  m.Elemento.Redimensionar(2);
  const double xy[5][2] = {{0, 0}, {0, 0}, {10, 0}, {10, 5}, {0, 5}};
  for (long r = 1; r <= 4; ++r) {
    const auto n = static_cast<Entero>(5 - r);
    m.Nodo.NúmeroDeNodo[r] = n, m.Nodo.XNodo[r] = xy[n][0], m.Nodo.YNodo[r] = xy[n][1];
  }
  const long nodos[3][3] = {{0, 0, 0}, {1, 2, 3}, {1, 3, 4}};
  for (long e = 1; e <= 2; ++e) {
    m.Elemento.NodosPorElemento[e] = 3, m.Elemento.MaterialDeElemento[e] = 1;
    for (long k = 1; k <= 3; ++k) {
      const long n = nodos[e][k - 1];
      m.Elemento.NúmeroElemento(e, k) = static_cast<double>(n);
      m.Elemento.XElemento(e, k) = xy[n][0], m.Elemento.YElemento(e, k) = xy[n][1];
    }
  }
  m.Elemento.XCentroElemento[1] = 20.0 / 3, m.Elemento.YCentroElemento[1] = 5.0 / 3;
  m.Elemento.XCentroElemento[2] = 10.0 / 3, m.Elemento.YCentroElemento[2] = 10.0 / 3;
  m.NúmeroNodosConRestricción = 2;
  TablaNodoConRestricción& r = m.NodoConRestricción;
  r.Redimensionar(2);
  r.NodoRestringido[1] = 1, r.RestricciónX[1] = "N", r.RestricciónY[1] = "N";
  r.NodoRestringido[2] = 2, r.RestricciónX[2] = "N", r.RestricciónY[2] = "S";

  DatosSísmicos& s = p.Sísmico;
  s.NúmeroPuntosRegistro = 4;
  for (Tabla<double>* t : {&s.TiempoRegistro, &s.AceleraciónHorizontal, &s.AceleraciónVertical, &s.DesplazamientoMáximoPorPaso})
    t->Redimensionar(4);
  for (long t = 1; t <= 4; ++t) s.TiempoRegistro[t] = 0.02 * static_cast<double>(t - 1);
  for (Tabla2<double>* t : {&s.DesplazamientoSísmico, &s.VelocidadSísmica, &s.AceleraciónSísmica}) t->Redimensionar(4, 8);
  for (Tabla2<double>* t : {&s.EsfuerzoX, &s.EsfuerzoY, &s.EsfuerzoXY, &s.EsfuerzoMayor, &s.EsfuerzoMenor,
                            &s.MóduloCortanteActual, &s.PresiónPorosSísmica, &s.RelaciónAmortiguamientoActual})
    t->Redimensionar(4, 2);
  for (long t = 1; t <= 3; ++t) s.EsfuerzoY(t, 1) = s.EsfuerzoY(t, 2) = t == 2 ? -20 : -10;
  s.DesplazamientoSísmico(2, 5) = s.DesplazamientoMáximoPorPaso[2] = s.DesplazamientoMáximo = 1.2346;
  s.AceleraciónSísmica(2, 6) = -0.5, s.VelocidadSísmica(2, 5) = 0.25, s.EsfuerzoXY(2, 2) = 3.5;
  s.NodoMáximo = 3, s.PasoMáximo = 2, s.PasosCalculados = 3, s.MétodoRespuesta = 'D';
  s.ResultadosSísmicos = s.CálculoInterrumpido = true;
  return p;
}

}  // namespace lomaterra::pruebas
