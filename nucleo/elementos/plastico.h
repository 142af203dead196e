// The perfect-plasticity solution: one elastic step, then at the points above the yield surface
// a plastic strain found by a fixed-point iteration and a nodal correction of the element solved
// by a Jacobi sweep. Two result columns: 1 elastic, 2 plastic.
#pragma once

#include "elementos/rigidez.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

// The Jacobi sweep of the nodal correction: M x = v over n columns (M row-major, 0-based), with
// a pivot chosen per row among the columns not yet taken, values cut to ±5000, at most 7 passes.
std::vector<double> BarridoJacobi(const std::vector<double>& M, const std::vector<double>& v, int n);

bool Cálculoplástico(Proyecto& p, Interfaz& ui, CálculoElementos& c);
void CálculoEsfuerzosComportamientoPlástico(Proyecto& p, Interfaz& ui);
void CálculoEsfuerzosComportamientoPlástico(Proyecto& p, Interfaz& ui, TipoAlmacén tipo);

}  // namespace lomaterra
