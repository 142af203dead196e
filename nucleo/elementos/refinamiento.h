// `IncrementeNúmeroDeElementos`: every linear triangle becomes four by joining the mid-points of
// its sides, shared mid-points numbered once; restrictions and side loads carried by
// coordinates. It also confirms the mesh for the stress calculations.
#pragma once

namespace lomaterra {

struct Proyecto;
class Interfaz;

void IncrementeNúmeroDeElementos(Proyecto& p, Interfaz& ui);

}  // namespace lomaterra
