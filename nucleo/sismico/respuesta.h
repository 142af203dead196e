// The three response runs on the record: by the Duhamel integral mode by mode
// (`MétodoIntegralDuhamel`), by direct step-by-step integration of the equations of motion
// (`MétodoPasoAPasoEcMovimientoSinDesacoplar`) and by step-by-step integration of the decoupled
// modal equations (`PasoAPasoDesacoplado`, reachable by name only). Each runs its gates and
// questions, the element matrices of the mesh when they are not in memory, the damping of the
// chosen mode, the steps with their element stage and protections, and the end of the run.
#pragma once

#include <functional>

namespace lomaterra {

struct Proyecto;
class Interfaz;

enum class MétodoDeRespuesta { Duhamel, PasoAPaso, Desacoplado };

struct OpcionesRespuesta {
  // Opens the strata screen of the seismic analysis when the dam questions offer it; a run with no
  // screen to open skips it.
  std::function<void(Proyecto&, Interfaz&)> abrirEstratos;
  // Seconds from any fixed origin, for the time estimate; the steady clock when empty.
  std::function<double()> reloj;
};

void CorrerRespuesta(Proyecto& p, Interfaz& ui, MétodoDeRespuesta método, const OpcionesRespuesta& o = {});

void MétodoIntegralDuhamel(Proyecto& p, Interfaz& ui, const OpcionesRespuesta& o = {});
void MétodoPasoAPasoEcMovimientoSinDesacoplar(Proyecto& p, Interfaz& ui, const OpcionesRespuesta& o = {});
void PasoAPasoDesacoplado(Proyecto& p, Interfaz& ui, const OpcionesRespuesta& o = {});

}  // namespace lomaterra
