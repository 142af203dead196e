// The scripted interface with a look at every screen just before it opens: a test reads the state
// that a calculation hands to its screens, even to those that answer at once and close.
#pragma once

#include <functional>
#include <string>

#include "pantallas/interfaz_guionada.h"

namespace lomaterra::pruebas {

class InterfazEspía : public InterfazGuionada {
 public:
  using InterfazGuionada::InterfazGuionada;
  std::function<void(Pantalla&)> alAbrir;
  void HacerAbrir(Pantalla& pantalla) override {
    if (alAbrir) alAbrir(pantalla);
    InterfazGuionada::HacerAbrir(pantalla);
  }
};

}  // namespace lomaterra::pruebas
