// The natural frequencies and the mode vectors for the JSON of lomaterra-lote.
#pragma once

#include <string>

#include "proyecto/proyecto.h"

namespace lomaterra::lote {

// A JSON object with the free degrees, the frequencies (rad/s) and periods (s) and, once the mode
// vectors exist, one vector per mode in the order of the free degrees; empty when no frequency
// list stands.
std::string ModosComoJson(const Proyecto& p);

}  // namespace lomaterra::lote
