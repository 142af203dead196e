// The command "Estimación de los grados de libertad": its gates and dam questions, then the seismic
// assembly and the condensation to the free degrees.
#pragma once

namespace lomaterra {

struct Proyecto;
class Interfaz;

// The element matrices it assembles stay in the project's memory (MatricesSísmicasEnMemoria).
void GradosDeLibertad(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
