// Binds each menu entry to the command that the core runs for it. One line a command.
#include "proyecto/comandos.h"

#include "equilibrio/fellenius.h"

namespace lomaterra {

void EnlazarComandos(std::map<std::string, Acción>& a) {
  a["MétodoFellenius"] = MétodoFellenius;
}

}  // namespace lomaterra
