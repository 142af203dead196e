// The menu commands of the finite-element results: the two result screens and the mesh figures
// of the menu "Gráficas" of the finite elements.
#pragma once

#include <string>

namespace lomaterra {

struct Proyecto;
class Interfaz;

void ResultadosDeEsfuerzosDesplazamientosElásticosViscoplásticos(Proyecto& p, Interfaz& ui);
void ResultadosDeEsfuerzosDesplazamientosElásticosPásticos(Proyecto& p, Interfaz& ui);
void ImprimirResultadosAnálisisElementosFinitosViscoplásticoPLástico(Proyecto& p, Interfaz& ui);
// Shows the mesh figure of that control name after the gate of its data.
void MostrarFiguraDeMalla(Proyecto& p, Interfaz& ui, const std::string& nombre);

}  // namespace lomaterra
