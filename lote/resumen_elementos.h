// The finite-element results for the JSON of lomaterra-lote: per step, the stresses and yield
// values of every element and the displacements of every node; the extremes and the factors of
// safety read from stresses.
#pragma once

#include <string>

#include "proyecto/proyecto.h"

namespace lomaterra::lote {

// A JSON object; empty when no stress calculation stands.
std::string ElementosComoJson(const Proyecto& p);

}  // namespace lomaterra::lote
