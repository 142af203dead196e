// The screen "Constantes de cálculo y grieta de tracción" and the short finite-element screen.
#pragma once

namespace lomaterra {

struct Proyecto;
class Interfaz;

// Opens the constants screen modally (menu command MenúArchivoConstantes without its gate; also
// called by the centre of the arc when the radius is below half the chord).
void AbrirConstantesDeCálculo(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
