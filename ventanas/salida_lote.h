// Output of lomaterra-lote without a window: the results report as PDF and figures of the menu
// "Gráfico" as PNG or SVG. Lives in the library lomaterra_dibujo (Qt Gui and Svg, no widgets).
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lomaterra {

struct Proyecto;

// Makes sure a QGuiApplication exists for the fonts, on the "offscreen" platform unless
// QT_QPA_PLATFORM says otherwise. Call it before any drawing; harmless when one exists.
void PrepararDibujoSinVentana();

// Writes the results report of the last calculation to `ruta` (PDF): the seismic run, the
// finite-element stresses or the limit-equilibrium method, whichever left results. False with
// a Spanish message in `error` when there are no results or the file cannot be written.
bool EscribirInformeDeResultados(const Proyecto& p, const std::string& ruta, std::string& error);

// One figure by its menu control name ("GráficoGeometría", "GráficoEsfuerzoNormalesTotales", ...)
// to a .png, .svg or .pdf file.
bool EscribirFiguraDelMenú(const Proyecto& p, const std::string& nombre, const std::string& ruta,
                           std::string& error);

// Splits the argument of --figura "NOMBRE=ARCHIVO"; false when it has no "=" or an empty side.
bool LeerArgumentoFigura(const std::string& argumento, std::string& nombre, std::string& ruta);

}  // namespace lomaterra
