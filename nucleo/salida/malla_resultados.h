// Figures of the mesh and of the stress results: the mesh with its element, node or material
// numbers; element colours of sigma x, sigma y, tau xy, sigma 1, sigma 3 and the yield function
// with a colour scale and its legend in ton/m²; the deformed mesh over the undeformed one; the
// displacement vectors; the yielded elements marked; the slices of the factor of safety over the
// stress field; and the stresses and displacements against the abscissa.
#pragma once

#include <string>
#include <vector>

#include "salida/figura.h"
#include "salida/informe.h"

namespace lomaterra {

struct Proyecto;

// The control names of the mesh figures, menu entries first.
const std::vector<std::string>& NombresDeFigurasDeMalla();
bool EsFiguraDeMalla(const std::string& nombre);
// Only the plain mesh figures need no stress calculation.
bool FiguraDeMallaNecesitaResultados(const std::string& nombre);

// The colour of v on the scale from mínimo (blue) through green and yellow to máximo (red), in
// `kTramosEscala` equal steps; a scale of no width gives its middle colour.
inline constexpr int kTramosEscala = 10;
int TramoDeEscala(double v, double mínimo, double máximo);
Color ColorDeTramo(int tramo);

// The magnification that draws the largest displacement as a twentieth of the mesh's larger
// extent; 1 when nothing moved.
double AumentoAutomático(const Proyecto& p, long paso);
// The node coordinates displaced by `aumento` times the displacement of step `paso` (stored in
// cm, drawn in m): [n] for node n.
std::vector<PuntoFigura> NodosDeformados(const Proyecto& p, long paso, double aumento);

// The figure by name, from the last step (paso 0) or the step given; aumento 0 means automatic.
Figura FiguraDeMalla(const Proyecto& p, const std::string& nombre, long paso = 0, double aumento = 0);

// The printed report of the stress analysis: data of the run, extremes, factors of safety, the
// tables of the first and the last step and the main figures.
Informe InformeElementosFinitos(const Proyecto& p);

}  // namespace lomaterra
