#include "proyecto/pantalla.h"

#include <stdexcept>

namespace lomaterra {

Campo& Pantalla::campo(const std::string& n) {
  for (auto& c : campos)
    if (c.nombre == n) return c;
  throw std::logic_error("la pantalla " + nombre + " no tiene el campo " + n);
}

const Campo& Pantalla::campo(const std::string& n) const {
  for (const auto& c : campos)
    if (c.nombre == n) return c;
  throw std::logic_error("la pantalla " + nombre + " no tiene el campo " + n);
}

ListaPantalla& Pantalla::lista(const std::string& n) {
  for (auto& l : listas)
    if (l.nombre == n) return l;
  throw std::logic_error("la pantalla " + nombre + " no tiene la lista " + n);
}

BotónPantalla& Pantalla::botón(const std::string& n) {
  for (auto& b : botones)
    if (b.nombre == n) return b;
  throw std::logic_error("la pantalla " + nombre + " no tiene el botón " + n);
}

bool Pantalla::Pulsar(const std::string& n, Interfaz& ui) {
  for (auto& b : botones)
    if (b.nombre == n) {
      if (b.acción) b.acción(ui);
      return true;
    }
  return false;
}

}  // namespace lomaterra
