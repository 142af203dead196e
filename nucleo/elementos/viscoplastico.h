// The stress solutions on the stiffness of `Elementotriangular`: the elastic-viscoplastic loop of
// at most four steps, and the pieces it shares with the perfect-plasticity solution (the gates
// of the two commands, the plane-strain Mohr-Coulomb yield function, the plastic matrix and the
// principal stresses).
#pragma once

#include "elementos/rigidez.h"

namespace lomaterra {

struct Proyecto;
struct MallaElementos;
class Interfaz;

// The yield function of one stress state, with the values the plastic matrix and the flow vector
// reuse. phi in radians; c the stratum's cohesion.
struct EstadoFluencia {
  double a = 0, J = 0, sm = 0, sx = 0, sy = 0, F = 0;
};
EstadoFluencia FunciónDeFluencia(double sigmaX, double sigmaY, double tau, double phi, double c);

// Dp = h hᵀ / (9 K a² + G) over rows and columns 1, 2 and the single term (3, 3); nu is clamped
// to 0.45 when it is 0.5 or more, in G and K alike.
MatrizD MatrizPlástica(double E, double nu, const EstadoFluencia& f, double tau);

// Principal stresses of element e at step i from EsfuerzoX, EsfuerzoY, EsfuerzoXY.
void EsfuerzosPrincipales(MallaElementos& m, long e, long i);

// E, nu, phi (degrees), c and the viscosity of the element's stratum.
struct MaterialElemento {
  double E = 0, nu = 0, fi = 0, c = 0, viscosidad = 0;
};
MaterialElemento MaterialDe(const Proyecto& p, long e);

// Gates 1 to 7 of a stress command, the seismic question given; false ends the command.
bool PuertasCálculoEsfuerzos(Proyecto& p, Interfaz& ui, const char* preguntaSísmica);

// Sizes the result tables for steps 1..pasos keeping what they hold.
void DimensionarResultados(MallaElementos& m, long pasos);
// Elements whose five results of step i are all exactly zero take those of step 1.
void CompletarConPasoUno(MallaElementos& m, long i);

// The loop on the stiffness that `Elementotriangular` left in c. False when it ended on the
// zero-diagonal message (nothing of this run is kept).
bool CálculoViscoplástico(Proyecto& p, Interfaz& ui, CálculoElementos& c);

// The menu command: gates, `Elementotriangular`, then the loop. The store is the profile solver
// unless a test asks for the dense one.
void CálculoEsfuerzosComportamientoViscoplástico(Proyecto& p, Interfaz& ui);
void CálculoEsfuerzosComportamientoViscoplástico(Proyecto& p, Interfaz& ui, TipoAlmacén tipo);

}  // namespace lomaterra
