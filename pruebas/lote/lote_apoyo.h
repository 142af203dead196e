// lomaterra-lote run as a program from the tests: its exit status, its output and its JSON
// summary, read by a strict JSON reader (no NaN, no trailing commas, no leading zeros).
#pragma once

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include <nlohmann/json.hpp>

#include "apoyo/apoyo.h"

namespace lomaterra::pruebas {

using Json = nlohmann::json;

struct Corrida {
  int estado = -1;
  std::string salida, errores;
  std::vector<std::string> líneas;  // of the output
};

inline std::string Citar(const std::string& s) {
  std::string r = "'";
  for (char c : s) r += c == '\'' ? std::string("'\\''") : std::string(1, c);
  return r + "'";
}

inline Corrida Lote(const std::vector<std::string>& argumentos) {
  const std::string carpeta = CarpetaTemporal();
  const std::string salida = carpeta + "/salida.txt", errores = carpeta + "/errores.txt";
  std::string orden = Citar(LOMATERRA_LOTE);
  for (const auto& a : argumentos) orden += " " + Citar(a);
  orden += " >" + Citar(salida) + " 2>" + Citar(errores);
  const int r = std::system(orden.c_str());
  Corrida c;
  c.estado = WIFEXITED(r) ? WEXITSTATUS(r) : -1;
  c.salida = LeerArchivo(salida);
  c.errores = LeerArchivo(errores);
  std::istringstream s(c.salida);
  for (std::string l; std::getline(s, l);) c.líneas.push_back(l);
  return c;
}

// Commands and options (split at the blanks) on a sample project with the JSON summary, which
// must read as JSON; the run itself into `corrida` when given.
inline Json LoteJson(const std::string& ejemplo, const std::string& órdenes,
                     Corrida* corrida = nullptr) {
  const std::string json = CarpetaTemporal() + "/salida.json";
  std::vector<std::string> argumentos = {RutaEjemplo(ejemplo)};
  std::istringstream palabras(órdenes);
  for (std::string w; palabras >> w;) argumentos.push_back(w);
  argumentos.insert(argumentos.end(), {"--json", json});
  const Corrida c = Lote(argumentos);
  EXPECT_EQ(c.estado, 0) << ejemplo << " " << órdenes << "\n" << c.errores;
  const Json v = Json::parse(LeerArchivo(json), nullptr, false);
  EXPECT_FALSE(v.is_discarded()) << "no es JSON: " << json;
  if (corrida) *corrida = c;
  return v;
}

}  // namespace lomaterra::pruebas
