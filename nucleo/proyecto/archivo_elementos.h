// Body "F" of the project file: the mesh, its materials, restrictions and loads, the stress
// results and the seismic data, walked in the same order by the writer and the reader.
#pragma once

#include "proyecto/proyecto.h"
#include "proyecto/secuencial.h"

namespace lomaterra {

void EscribirCuerpoF(EscritorSecuencial& e, const Proyecto& p);
void LeerCuerpoF(LectorSecuencial& l, Proyecto& p);

}  // namespace lomaterra
