// Janbu's generalised procedure of slices on force equilibrium, iterated on the interslice forces,
// with the line of thrust that the user may change on the screen of heights between passes.
#pragma once

#include "equilibrio/bishop.h"

namespace lomaterra {

struct Proyecto;
class Interfaz;

// Menu command of the Janbu method in soil.
void MétodoJanbu(Proyecto& p, Interfaz& ui);
// The same with another limit on the passes of each of its two loops.
void MétodoJanbuConLímite(Proyecto& p, Interfaz& ui, int límitePasadas);

// The run after the gates: slices, the factor at zero interslice shear, the heights of the lateral
// force, the iteration and the stresses. In rock (MétodoJanbuEnRocas) the slices take the strata
// as they are with the tangent of friction always rebuilt, the weight has no free water, and the
// closing message names rock.
void IteraciónJanbu(Proyecto& p, Interfaz& ui, int límitePasadas, bool roca);

// Menu command of the Janbu method in rock, and its pieces.
void MétodoJanbuEnRocas(Proyecto& p, Interfaz& ui);
void MétodoJanbuEnRocasConLímite(Proyecto& p, Interfaz& ui, int límitePasadas);
// The stage question and the tangent of friction rebuilt from FricciónBase.
void DovelasEnRoca(Proyecto& p, Interfaz& ui);
// W of slice i without the term of free water; on a rapid drawdown with the phreatic line at the
// surface the column starts at the first stratum line.
double PesoDovelaEnRoca(const Proyecto& p, long i);
// Cohesion and friction of every stratum from GSI, mi and the unconfined strength.
void EstratosDeRocaParaJanbu(Proyecto& p);

}  // namespace lomaterra
