// Stiffness and loads of the whole mesh: `Elementotriangular` walks the elements, builds each
// triangle's matrix and loads, and adds them into a global store; with its two companions for
// the vertical effective stress and the pore pressure of an element, and `LeerOrdenada`.
#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <vector>

#include "elementos/almacen.h"
#include "elementos/elemento.h"
#include "proyecto/tabla.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

extern const char* const kMensajeDiagonalCeroRigidez;

// What a run of `Elementotriangular` leaves for the solvers: the global stiffness in the store
// chosen, and B, det J and D of every element and integration point.
struct CálculoElementos {
  TipoAlmacén tipo = TipoAlmacén::Perfil;
  std::unique_ptr<AlmacénRigidez> MatrizRigidez;
  std::vector<PuntoB> MatrizB;       // [(e - 1) * 3 + (g - 1)]
  std::vector<MatrizD> MatricesD;    // [e - 1]
  // Seconds from any fixed origin; the time estimate reads it. A test may put a clock of its own.
  std::function<double()> reloj;
  // The seismic run: the same assembly, with the texts that speak of stiffness and masses.
  bool sísmico = false;
  PuntoB& B(long e, int g) { return MatrizB[static_cast<std::size_t>((e - 1) * 3 + (g - 1))]; }
};

// Ordinate of a line of descending X at abscissa x: the stretch j with X[j] >= x > X[j+1], and
// y = (x - X[j]) m + Y[j] with m = (Y[j] - Y[j+1]) / (X[j] - (X[j+1] - 0.01)). Nothing when x
// lies on no stretch.
std::optional<double> LeerOrdenada(const TablaXY& línea, long n, double x);
std::optional<double> LeerOrdenadaEstrato(const Proyecto& p, long estrato, double x);

// Vertical effective stress at the element's mean point; false after the message of an element
// whose strata all meet the slope there.
bool EsfuerzoVerticalEfectivoElemento(Proyecto& p, long e, Interfaz& ui);
void PresiónPorosDeElemento(Proyecto& p, long e);

// Builds the stiffness and the load vector (Proyecto::Malla.VectorDeCargas). False, with
// Malla.FalloInversa set, when the run ended on one of its messages.
bool Elementotriangular(Proyecto& p, Interfaz& ui, CálculoElementos& c);

// The profile of the stiffness in the user's numbering: for each degree of freedom, the smallest
// one that shares an element with it.
std::vector<long> PerfilDeLaMalla(const Proyecto& p);

}  // namespace lomaterra
