// Binds each menu entry to the command that the core runs for it. One line a command.
#include "equilibrio/bishop.h"
#include "equilibrio/janbu.h"
#include "proyecto/comandos.h"

namespace lomaterra {

void EnlazarComandos(std::map<std::string, Acción>& a) {
  (void)a;
  // a["MétodoFellenius"] = MétodoFellenius;
  a["MétodoBishop"] = MétodoBishop;
  a["MétodoJanbu"] = MétodoJanbu;
}

}  // namespace lomaterra
