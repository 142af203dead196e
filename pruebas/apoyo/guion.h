// The transcript of the scripted interface as text, one line per event.
#pragma once

#include <string>
#include <vector>

#include "pantallas/interfaz_guionada.h"

namespace lomaterra::pruebas {

inline std::vector<std::string> Renglones(const InterfazGuionada& ui) {
  std::vector<std::string> r;
  for (const auto& a : ui.Transcripción()) r.push_back(InterfazGuionada::Línea(a));
  return r;
}

}  // namespace lomaterra::pruebas
