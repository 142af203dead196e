// Figures and the printed report of a seismic response run: the time histories of a node
// (displacement, velocity, acceleration beside the input record) and of an element (stresses,
// G/Gmax and damping ratio), the largest displacement of each step, the factor of safety against
// the step, and the finite-element figures (deformed mesh, stress contours) at one step.
#pragma once

#include <string>
#include <utility>
#include <vector>

#include "proyecto/proyecto.h"
#include "salida/figura.h"
#include "salida/informe.h"

namespace lomaterra {

// What a node chart shows.
enum class MagnitudNodo { Desplazamiento, Velocidad, Aceleración };

// Displacement (cm), velocity (m/s) or acceleration (m/s²) of node `nodo` in x and y against the
// time of the computed steps; the acceleration chart carries the input record in m/s² beside it.
// `nota` is added under the title (why this node).
Figura FiguraHistoriaNodo(const Proyecto& p, long nodo, MagnitudNodo qué, const std::string& nota = "");
// Sigma x, sigma y, tau xy, sigma 1 and sigma 3 of element `e` against time.
Figura FiguraEsfuerzosElemento(const Proyecto& p, long e, const std::string& nota = "");
// G/Gmax and the damping ratio of element `e` against time.
Figura FiguraDegradaciónElemento(const Proyecto& p, long e, const std::string& nota = "");
// The largest displacement of each computed step against time.
Figura FiguraDesplazamientoMáximoPorPaso(const Proyecto& p);
// The factor of safety against the step where it was computed (pairs step, factor).
Figura FiguraFactorSísmicoPorPaso(const Proyecto& p, const std::vector<std::pair<long, double>>& factores);
// A copy of the mesh that holds the seismic stresses and displacements of step `paso` as its only
// stress step, so that the finite-element figures draw that step.
Proyecto ProyectoDelPasoSísmico(const Proyecto& p, long paso);
// A finite-element figure by its control name ("MallaDeformada", "EsfuerzosSigmaYVsElementos", ...)
// at the step, titled with the step and its time.
Figura FiguraDeMallaSísmica(const Proyecto& p, const std::string& nombre, long paso);

// Gmax of element e: the maximum shear modulus of the first free degree that takes its ratio from
// e; without one, the largest modulus of the element over the run.
double GmaxDeElemento(const Proyecto& p, long e);
// The time of step t (the record's time; the first step's stored 0.0001 reads as such).
double TiempoDelPaso(const Proyecto& p, long t);
// How the run ended, in a sentence for the screen and the report: complete, cut, 75% rule,
// stopped by the user or by a fault.
std::string EstadoDelCálculoSísmico(const Proyecto& p);

// One node at step `paso` as the result screen and the report list it: the node number, then
// displacement (cm), acceleration and velocity, each x then y, with three decimals.
std::vector<std::string> FilaDeNodoSísmico(const DatosSísmicos& s, long paso, long nodo);

// The printed report of the seismic run: run data and how it ended, the largest displacement,
// the factor of safety, the node and element tables of the chosen step (or the last computed),
// the largest displacement per step and the main figures.
Informe InformeSísmico(const Proyecto& p);

}  // namespace lomaterra
