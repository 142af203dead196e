// Small pieces shared by the stages of the slice pipeline and the methods that read its tables.
#pragma once

#include <string>

#include "proyecto/proyecto.h"

namespace lomaterra::interno {

// Bound on the marches and searches that the geometry itself does not bound: past it the
// calculation ends with an arithmetic fault instead of running on.
constexpr long kMáximoPasos = 1000000;

// Slope of the line through (x1, y1) and (x2, y2). Two equal abscissas side by side are read as
// x1 - (x2 - 0.01), the same 0.01 with which stored tables keep them apart.
double Pendiente(double x1, double y1, double x2, double y2);

// Lagrange polynomial through points `desde`..`hasta` of a coordinate table, at x.
double Lagrange(const TablaXY& puntos, long desde, long hasta, double x);

// The stretch of the failure surface that starts at or before point i and ends after it
// (PuntoInicial <= i < PuntoFinal); 0 when none.
int TramoDePunto(const Proyecto& p, long i);

// The point of CoordenadasFalla that stretch t names as its first (`final` false) or its last
// point. The table keeps it as a double: a value that is not the number of an existing point ends
// the calculation with a fault before it is used, and no conversion out of range is ever made.
long PuntoDeTramo(const Proyecto& p, long t, bool final);

// Slope of the chord of stretch t, from its first to its last point of CoordenadasFalla.
double PendienteTramo(const Proyecto& p, int t);

// Slice count as the tables see it: NúmeroBordes - 1, never below 0.
long NúmeroDeDovelas(const Proyecto& p);

}  // namespace lomaterra::interno

namespace lomaterra::interno {

// The stratum in which the base of slice i lies: 1 when the base is above the line of stratum 1,
// else the first s with YEstrato[s] < YBase <= YEstrato[s-1]; 0 when the base is below all lines.
int EstratoDeBase(const Proyecto& p, long i);

}  // namespace lomaterra::interno
