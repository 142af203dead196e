#include "elementos/solucion.h"

#include <cmath>

#include "proyecto/interfaz.h"
#include "proyecto/proyecto.h"

namespace lomaterra {

const char* const kMensajeDiagonalCeroViscoplástico =
    "Estamos en el sub-programa CálculoViscoplástico. La matriz de rigideces (K_modificada_rigidez) tiene un valor "
    "cero en su la diagonal, lo cual generará erores en los cálculos.  REVISE LAS COORDENADAS DE LOS ELEMENTOS. "
    "CAMBIE UN POCO (EJEMPLO EN 0.10 m) LAS ABSCISAS U ORDENADAS, DE LOS NODOS QUE DEFINEN UN ELEMENTO DETERMINADO, "
    "Y  QUE PUEDAN TENER VALORES IGUALES.";
const char* const kMensajeDiagonalCeroPlástico =
    "Estamos en el sub-programa Cálculoplástico. La matriz de rigideces (K_modificada_rigidez) tiene un valor cero "
    "en su la diagonal, lo cual generará erores en los cálculos.  REVISE LAS COORDENADAS DE LOS ELEMENTOS. CAMBIE UN "
    "POCO (EJEMPLO EN 0.10 m) LAS ABSCISAS U ORDENADAS, DE LOS NODOS DE LOS ELEMENTOS QUE PUEDAN TENER VALORES "
    "IGUALES.";

bool ModificarYFactorizar(const Proyecto& p, AlmacénRigidez& K, Interfaz& ui, const char* mensajeCero) {
  const TablaNodoConRestricción& r = p.Malla.NodoConRestricción;
  const long nd = K.Tamaño();
  const long filas = p.Malla.NúmeroNodosConRestricción;
  for (long d = 1; d <= nd; ++d) {
    const long nodo = (d + 1) / 2;
    const bool x = d % 2 == 1;
    for (long i = 1; i <= filas; ++i) {
      if (std::lround(r.NodoRestringido.Leer(i)) != nodo) continue;
      const std::string letra = x ? r.RestricciónX.Leer(i) : r.RestricciónY.Leer(i);
      const double resorte = x ? r.ResorteX.Leer(i) : r.ResorteY.Leer(i);
      if (letra == "N") K.PonerDiagonal(d, 1e18);
      else if (letra == "S") K.PonerDiagonal(d, resorte * 0.1);
      break;
    }
  }
  for (long d = 1; d <= nd; ++d) {
    if (K.Diagonal(d) == 0.0) {
      ui.Mensaje(mensajeCero);
      return false;
    }
  }
  return K.Factorizar(&ui);
}

std::vector<double> DesplazamientosElásticos(const Proyecto& p, const AlmacénRigidez& K) {
  const long nd = K.Tamaño();
  std::vector<double> u(static_cast<std::size_t>(nd + 1), 0.0);
  for (long d = 1; d <= nd; ++d) u[static_cast<std::size_t>(d)] = p.Malla.VectorDeCargas.Leer(d);
  K.Resolver(u);
  for (double& v : u)
    if (std::abs(v) < 1e-10) v = 0;
  return u;
}

}  // namespace lomaterra
