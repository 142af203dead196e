// What the screen tests share: boxes filled by name, a button pressed, the messages it gave;
// the standard headers of their tables.
#pragma once

#include <string>
#include <tuple>
#include <utility>
#include <vector>

#include "apoyo/guion.h"
#include "pantallas/interfaz_guionada.h"
#include "proyecto/proyecto.h"

namespace lomaterra::pruebas {

using Textos = std::vector<std::string>;
using Cajas = std::vector<std::pair<const char*, const char*>>;

inline void Escribir(Pantalla& s, const Cajas& cajas) {
  for (const auto& [caja, valor] : cajas) s.texto(caja) = valor;
}

// Fills the boxes and presses the button, answering with `respuestas`; the texts it gave.
inline Textos Pulsar(Pantalla& s, const Cajas& cajas, const char* botón,
                     const std::string& respuestas = "") {
  InterfazGuionada ui(respuestas);
  Escribir(s, cajas);
  s.Pulsar(botón, ui);
  return ui.Textos();
}

// Opens the screen as the window does, with it marked open first.
inline void Activar(Pantalla& s, Interfaz& ui) {
  s.cerrada = false;
  s.Activar(ui);
}

}  // namespace lomaterra::pruebas
