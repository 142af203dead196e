// The command "Estimación de los grados de libertad": its gates and dam questions, then the seismic
// assembly and the condensation to the free degrees.
#pragma once

namespace lomaterra {

struct Proyecto;
class Interfaz;

void GradosDeLibertad(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
