// The menu commands of the seismic analysis, bound to their entries in one place.
#pragma once

#include <map>
#include <string>

#include "proyecto/comandos.h"

namespace lomaterra {

void EnlazarComandosSísmicos(std::map<std::string, Acción>& a);

}  // namespace lomaterra
