// The command "Estimación de los grados de libertad": its gates and dam questions, then the seismic
// assembly and the condensation to the free degrees.
#pragma once

namespace lomaterra {

struct Proyecto;
class Interfaz;
struct MatricesSísmicas;

void GradosDeLibertad(Proyecto& p, Interfaz& ui);

// The matrices of the whole mesh from the last run; they live while the program runs.
MatricesSísmicas& MatricesSísmicasEnMemoria();

}  // namespace lomaterra
