// The time histories of the last seismic response for the JSON of lomaterra-lote: per node the
// displacement (cm), velocity (m/s) and acceleration (m/s²) along x and y, per element the
// stresses, the principal stresses, the shear modulus and the damping ratio, over every step
// computed. --historias NODOS:ELEMENTOS limits them to the nodes and elements listed.
#pragma once

#include <optional>
#include <string>
#include <vector>

#include "proyecto/proyecto.h"

namespace lomaterra::lote {

struct SelecciónHistorias {
  std::vector<long> nodos, elementos;
};

// Reads "3,7:1,2" (either list may be empty). Returns an empty text, or why the value is wrong.
std::string LeerSelecciónHistorias(const std::string& valor, SelecciónHistorias& s);
// A node or element of the selection that the project does not have; empty when all exist.
std::string FueraDeLaMalla(const SelecciónHistorias& s, const Proyecto& p);

// Lines for the text summary: method, steps computed, largest displacement and what marked the run;
// empty when the project holds no seismic result.
std::string SísmicoComoTexto(const Proyecto& p);
// The object, or an empty text when the project holds no seismic result.
std::string SísmicoComoJson(const Proyecto& p, const std::optional<SelecciónHistorias>& selección);

}  // namespace lomaterra::lote
