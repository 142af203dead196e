// A small strict JSON reader for the tests of the batch runner's output.
#pragma once

#include <string>
#include <utility>
#include <vector>

namespace lomaterra::pruebas {

struct ValorJson {
  enum Tipo { Nulo, Lógico, Número, Texto, Lista, Objeto } tipo = Nulo;
  bool lógico = false;
  double número = 0;
  std::string texto;
  std::vector<ValorJson> lista;
  std::vector<std::pair<std::string, ValorJson>> objeto;
  // The member of an object by its key; null when there is none.
  const ValorJson* Campo(const std::string& clave) const;
};

// Reads a whole JSON text (RFC 8259: no NaN, no trailing commas, no leading zeros). False with a
// description of the fault otherwise.
bool LeerJson(const std::string& texto, ValorJson& valor, std::string& error);

}  // namespace lomaterra::pruebas
