// Bishop's simplified method of slices on moment equilibrium, with the search of the radius of
// least factor of safety on a circular surface; and the pieces that Janbu's method shares with it
// (the gates on instantaneous parameters, the slices, the loads over a slice, the pass limit).
#pragma once

#include <functional>
#include <string>

namespace lomaterra {

struct Proyecto;
class Interfaz;

// Menu command of the Bishop method in soil.
void MétodoBishop(Proyecto& p, Interfaz& ui);

// What reruns the slices for a new radius during the search: the six stages by default.
using EjecutorEtapas = std::function<void(Proyecto&, Interfaz&)>;

// The most passes any iteration of these methods makes before it gives up.
constexpr int kLímitePasadas = 500;

struct OpcionesBishop {
  EjecutorEtapas etapas;               // empty: EjecutarEtapas
  int límitePasadas = kLímitePasadas;  // passes of IteraciónBishop
};
void MétodoBishopConOpciones(Proyecto& p, Interfaz& ui, const OpcionesBishop& opciones);

// How one run of the moment iteration ended.
enum class FinIteración { Convergió, Salió, NoConvergió };
struct ResultadoIteración {
  FinIteración fin = FinIteración::Convergió;
  double FS = 0;  // the factor; -1 when the user left at a guard; the last pass when no convergence
};

// The two guards ask until the user has once answered Yes in this run of the command.
struct GuardasBishop {
  bool esfuerzoEfectivoAceptado = false;
  bool ángulosAceptados = false;
};

// One run of the moment iteration from FSInicial on the slices of TablaDovelas. On convergence it
// leaves ÁnguloBase and FuerzaNormal of the last pass in the table and adds the factor to
// HistoriaIteraciones; otherwise it writes nothing into the project.
ResultadoIteración IteraciónBishop(Proyecto& p, Interfaz& ui, GuardasBishop& guardas,
                                   int límitePasadas = kLímitePasadas);

// --- Shared with Janbu ------------------------------------------------------------------------

// The letter "S" of instantaneous parameters: refuses when their pass has not been prepared, else
// asks whether to go on. False ends the command.
bool PuertaParámetrosInstantáneos(Proyecto& p, Interfaz& ui);
// The slices for a method: the stage question (none in the graphic instantaneous case), keeping the
// per-slice strength and pressures of the instantaneous pass around the stages, the messages of the
// graphic case, and the tangent of friction rebuilt under the letter "S".
void DovelasDelMétodo(Proyecto& p, Interfaz& ui);
// Whether uniform load k acts over slice i (its middle between xo and xf), and whether point
// load k lies in slice i (between its two edges).
bool CargaUniformeSobreDovela(const Proyecto& p, long k, long i);
bool CargaPuntualEnDovela(const Proyecto& p, long k, long i);
// The message that ends a method whose iteration did not settle within the pass limit.
void AvisoSinConvergencia(Interfaz& ui, const std::string& método, double últimoFS, int pasadas);
// The message when the pipeline left no slice.
void AvisoSinDovelas(Interfaz& ui);

extern const char* const kTítuloSinConvergencia;

}  // namespace lomaterra
