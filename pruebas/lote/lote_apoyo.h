// lomaterra-lote run as a program from the tests: its exit status, its output and its JSON summary.
#pragma once

#include <gtest/gtest.h>

#include <sys/wait.h>

#include <cstdlib>
#include <sstream>
#include <string>
#include <vector>

#include "apoyo/apoyo.h"
#include "lote/json_prueba.h"

namespace lomaterra::pruebas {

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
// must read as JSON.
inline ValorJson LoteJson(const std::string& ejemplo, const std::string& órdenes) {
  const std::string json = CarpetaTemporal() + "/salida.json";
  std::vector<std::string> argumentos = {RutaEjemplo(ejemplo)};
  std::istringstream palabras(órdenes);
  for (std::string w; palabras >> w;) argumentos.push_back(w);
  argumentos.insert(argumentos.end(), {"--json", json});
  const Corrida c = Lote(argumentos);
  EXPECT_EQ(c.estado, 0) << ejemplo << " " << órdenes;
  ValorJson v;
  std::string error;
  EXPECT_TRUE(LeerJson(LeerArchivo(json), v, error)) << error;
  return v;
}

// The transcript lines that a JSON summary carries; empty when it has none.
inline std::vector<std::string> Transcrito(const ValorJson& v) {
  std::vector<std::string> r;
  if (const ValorJson* t = v.Campo("transcripción")) for (const auto& l : t->lista) r.push_back(l.texto);
  return r;
}

}  // namespace lomaterra::pruebas
