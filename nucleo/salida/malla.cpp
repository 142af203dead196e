#include "salida/malla.h"

#include <algorithm>
#include <cmath>
#include <string>

#include "proyecto/compat.h"
#include "proyecto/proyecto.h"
#include "salida/seccion.h"

namespace lomaterra {

namespace {
constexpr Color kMalla{60, 60, 60};
constexpr Color kNodo{0, 90, 160};
constexpr Color kElemento{170, 40, 40};
constexpr Color kRestricción{0, 0, 0};
constexpr Color kCarga{0, 130, 60};
}  // namespace

void AñadirMallaAFigura(Figura& f, const Proyecto& p, OpcionesMalla o) {
  const MallaElementos& m = p.Malla;
  const TablaElemento& t = m.Elemento;
  if (m.NúmeroDeElementos < 1 && m.NúmeroDeNodos < 1) return;
  const bool pocos = m.NúmeroDeElementos <= 400;  // numbers are readable only on a small mesh
  for (long e = 1; e <= m.NúmeroDeElementos; ++e) {
    const int nodos = t.NodosPorElemento.Leer(e);
    if (nodos < 3) continue;
    Trazo tr;
    tr.color = kMalla;
    tr.grosor = 0.7;
    tr.cerrado = true;
    tr.nombre = "elemento " + std::to_string(e);
    if (e == 1) tr.leyenda = "Elementos";
    // Corners with their mid-side nodes between them (a straight side repeats its corner).
    const int orden6[6] = {1, 4, 2, 5, 3, 6};
    for (int i = 0; i < (nodos == 6 ? 6 : 3); ++i) {
      const int k = nodos == 6 ? orden6[i] : i + 1;
      tr.puntos.push_back({t.XElemento.Leer(e, k), t.YElemento.Leer(e, k)});
    }
    f.trazos.push_back(std::move(tr));
    if (pocos && (o.númerosDeElementos || o.materiales)) {
      std::string texto = o.númerosDeElementos ? std::to_string(e) : "";
      if (o.materiales && t.MaterialDeElemento.Leer(e) != 0)
        texto += (texto.empty() ? "" : " (") + Formato(t.MaterialDeElemento.Leer(e), "#") + (o.númerosDeElementos ? ")" : "");
      f.rótulos.push_back({{t.XCentroElemento.Leer(e), t.YCentroElemento.Leer(e)}, texto, kElemento, 7.0, "centro"});
    }
  }
  auto coordenadas = [&](long n, double& x, double& y) {
    for (long r = m.NúmeroDeNodos; r >= 1; --r)
      if (m.Nodo.NúmeroDeNodo.Leer(r) == n) {
        x = m.Nodo.XNodo.Leer(r);
        y = m.Nodo.YNodo.Leer(r);
        return true;
      }
    return false;
  };
  if (pocos && o.númerosDeNodos)
    for (long r = 1; r <= m.NúmeroDeNodos; ++r) {
      const PuntoFigura q{m.Nodo.XNodo.Leer(r), m.Nodo.YNodo.Leer(r)};
      f.marcas.push_back({q, kNodo, "círculo", 3.0, "nodo " + std::to_string(m.Nodo.NúmeroDeNodo.Leer(r))});
      f.rótulos.push_back({q, std::to_string(m.Nodo.NúmeroDeNodo.Leer(r)), kNodo, 6.5, "izquierda"});
    }
  // Restricted nodes: a square where both directions are fixed, a triangle on a roller.
  for (long i = 1; i <= m.NúmeroNodosConRestricción; ++i) {
    double x = 0, y = 0;
    if (!coordenadas(std::lround(m.NodoConRestricción.NodoRestringido.Leer(i)), x, y)) continue;
    const bool fijo = m.NodoConRestricción.RestricciónX.Leer(i) == "N" && m.NodoConRestricción.RestricciónY.Leer(i) == "N";
    f.marcas.push_back({{x, y}, kRestricción, fijo ? "cuadrado" : "cruz", 7.0, fijo ? "apoyo fijo" : "rodillo"});
  }
  // Loaded sides: the side drawn thick, an arrow of the pressure at its middle.
  const double largo = 0.05 * TamañoDeSección(p);
  for (long i = 1; i <= m.NúmeroCargasUniformes; ++i) {
    double x1 = 0, y1 = 0, x2 = 0, y2 = 0;
    if (!coordenadas(std::lround(m.CargaUniforme.NodoUnoCarga.Leer(i)), x1, y1) ||
        !coordenadas(std::lround(m.CargaUniforme.NodoDosCarga.Leer(i)), x2, y2))
      continue;
    Trazo tr;
    tr.color = kCarga;
    tr.grosor = 2.5;
    tr.nombre = "carga sobre elemento " + Formato(m.CargaUniforme.ElementoDeCarga.Leer(i), "#");
    if (i == 1) tr.leyenda = "Cargas sobre elementos";
    tr.puntos = {{x1, y1}, {x2, y2}};
    f.trazos.push_back(std::move(tr));
    const double qx = m.CargaUniforme.CargaQx.Leer(i), qy = m.CargaUniforme.CargaQy.Leer(i);
    const double q = std::hypot(qx, qy);
    if (q > 0) {
      const PuntoFigura medio{(x1 + x2) / 2, (y1 + y2) / 2};
      // A positive pressure compresses the slope: the arrow points against the positive axes.
      f.flechas.push_back({{medio.x + largo * qx / q, medio.y + largo * qy / q}, medio, kCarga, 1.5, "presión"});
    }
  }
}

Figura FiguraMalla(const Proyecto& p) {
  Figura f = FiguraSección(p);
  f.nombre = "ElementoConSuNúmeroCorrespondiente";
  f.título = "Malla de elementos finitos";
  f.notas.push_back(std::to_string(p.Malla.NúmeroDeElementos) + " elementos, " + std::to_string(p.Malla.NúmeroDeNodos) + " nodos");
  return f;
}

}  // namespace lomaterra
