// Binds each menu entry to the command that the core runs for it. One line a command.
#include "proyecto/comandos.h"

#include "equilibrio/leshchinsky.h"
#include "pantallas/form18.h"
#include "pantallas/form34.h"

namespace lomaterra {

void EnlazarComandos(std::map<std::string, Acción>& a) {
  (void)a;
  a["ProcesoIterativoEnSuelos"] = ProcesoIterativoEnSuelos;
  a["CambioParámetrosResistenciaPresiónPoros"] = CambioParámetrosResistenciaPresiónPoros;
  a["PresionesDePorosEquilibrioLímite"] = PresionesDePorosEquilibrioLímite;
  // a["MétodoFellenius"] = MétodoFellenius;
}

}  // namespace lomaterra
