// Placeholder until the constants screen lands: nothing opens and nothing changes.
#include "pantallas/constantes.h"

namespace lomaterra {

void AbrirConstantesDeCálculo(Proyecto&, Interfaz&) {}

}  // namespace lomaterra
