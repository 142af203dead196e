// The command "Estimación de los grados de libertad": its gates and dam questions, then the seismic
// assembly and the condensation to the free degrees.
#pragma once

namespace lomaterra {

struct Proyecto;
class Interfaz;
struct MatricesSísmicas;

void GradosDeLibertad(Proyecto& p, Interfaz& ui);

// The matrices that this command assembled last, those of the project that ran it (empty before
// the first run). The response runs read the ones kept in their own project, never these.
MatricesSísmicas& MatricesSísmicasEnMemoria();

}  // namespace lomaterra
