// The first, elastic step shared by the stress solutions: the stiffness with its restrictions
// (`K_modificada_rigidez`) factorised once, and u = K^-1 F.
#pragma once

#include <vector>

#include "elementos/rigidez.h"

namespace lomaterra {

extern const char* const kMensajeDiagonalCeroViscoplástico;
extern const char* const kMensajeDiagonalCeroPlástico;

// Restrictions onto the diagonal of the assembled stiffness: a restricted direction ("N") takes
// 10^18, a free one ("S") of a listed node its spring constant times 0.1 (kg/cm to ton/m). The
// term is replaced, not added; the first row of a node decides. A zero left on the diagonal
// gives `mensajeCero` and false. Then the store is factorised.
bool ModificarYFactorizar(const Proyecto& p, AlmacénRigidez& K, Interfaz& ui, const char* mensajeCero);

// u = K^-1 F over the degrees of freedom 1..2N (u[0] unused), any |u| below 10^-10 set to 0.
std::vector<double> DesplazamientosElásticos(const Proyecto& p, const AlmacénRigidez& K);

}  // namespace lomaterra
