// The ordinary method of slices (Fellenius), soil only and not iterative.
#pragma once

namespace lomaterra {

struct Proyecto;
class Interfaz;

// Menu command: gates, the slices, the factor of safety in closed form, the stresses at the bases.
void MétodoFellenius(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
