// The drawing of the cross-section: surface, strata, phreatic line, failure surface and its points,
// slices, loads, crack with its water, centre and radius of an arc.
#pragma once

#include <string>

#include "salida/figura.h"

namespace lomaterra {

struct Proyecto;

// Colours shared by the drawings, so that a legend reads the same everywhere.
namespace colores {
inline constexpr Color Talud{101, 67, 33};
inline constexpr Color Estrato{150, 120, 80};
inline constexpr Color Freático{20, 90, 220};
inline constexpr Color Falla{200, 20, 20};
inline constexpr Color Dovela{130, 130, 130};
inline constexpr Color CargaUniforme{0, 130, 60};
inline constexpr Color CargaPuntual{140, 0, 170};
inline constexpr Color Grieta{0, 0, 0};
inline constexpr Color Agua{0, 120, 255};
inline constexpr Color Centro{90, 90, 90};
}  // namespace colores

Figura FiguraSección(const Proyecto& p);

// The extent of the section (largest of its width and height), 1 when there is nothing to draw.
double TamañoDeSección(const Proyecto& p);

// The arc of the circular surface as the slice stages take it: the centre of the moments when one
// is given, else the centre the stages build from the lower point for the stored radius, so that
// the arc passes through both points. A radius below half the chord is raised first (`elevado`).
struct ArcoDeFalla {
  bool hay = false, elevado = false;
  double centroX = 0, centroY = 0, radio = 0, radioDado = 0, cuerda = 0;
};
ArcoDeFalla ArcoDeLaSuperficie(const Proyecto& p);
// The line for the status bar when the drawing had to raise the radius; empty otherwise.
std::string AvisoDelArco(const Proyecto& p);
// The centre and radius of ArcoDeLaSuperficie; false when there is no arc.
bool CentroDeArcoDeFalla(const Proyecto& p, double& xc, double& yc, double& radio);

}  // namespace lomaterra
