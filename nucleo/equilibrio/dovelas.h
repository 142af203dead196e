// The slice pipeline: failure surface, crossings with the strata, breaks, slices, their geometry,
// the strata at their bases and their pore pressure and weight. Six stages, always in this order;
// each sets its stage flag at its end.
#pragma once

#include <optional>

#include "proyecto/proyecto.h"

namespace lomaterra {

class Interfaz;

void InterseccionesFallaEstratos(Proyecto& p, Interfaz& ui);
void ListaDeQuiebres(Proyecto& p);
void GeneraciónDeDovelas(Proyecto& p, Interfaz& ui);
void GeometríaDeDovelas(Proyecto& p);
void EstratosEnDovelas(Proyecto& p);
void PresiónYPesoEnDovelas(Proyecto& p, Interfaz& ui);

// The six stages in order, with the floating-point net after each.
void EjecutarEtapas(Proyecto& p, Interfaz& ui);

// Centre of the single arc through points 1 and 2 of the failure surface (may open the
// constants screen when the radius is below half the chord).
void CentroDelArco(Proyecto& p, Interfaz& ui);
// Arc of a "C" stretch between points pt and qt in a surface of several stretches.
void AjusteArcoEntrePuntos(Proyecto& p, Interfaz& ui, int pt, int qt);
// Abscissa where chord i of PuntosFalla meets segment j of the line of stratum s, by the letter of
// point i ("L" straight, "C" arc, "P" polynomial); mf and ms are the slopes of chord and segment.
// Nothing when a straight chord runs parallel to the stratum (the user is told).
std::optional<double> IntersecciónEnTramo(Proyecto& p, Interfaz& ui, long i, int s, long j, double mf,
                                          double ms);
// Ordinate of the failure surface at x on stretch `tramo` whose chord slope is m.
double OrdenadaDeFalla(Proyecto& p, Interfaz& ui, double m, int tramo, double x);

// Moment of the loads and the crack water on slice i about (xr, yr); on the circular surface the
// centre of the arc is the reference. Returns what is to be added to the driving moment.
double MomentoDeCargas(const Proyecto& p, double xr, double yr, long i);

}  // namespace lomaterra
