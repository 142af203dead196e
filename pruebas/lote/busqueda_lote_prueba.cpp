// The search of the critical circle in lomaterra-lote: options from a JSON file, the grid and the
// circles in the JSON output, a clear refusal of an option it does not know.
#include <gtest/gtest.h>

#include <sys/wait.h>

#include <algorithm>
#include <cstdlib>
#include <fstream>
#include <sstream>
#include <string>

#include "apoyo/apoyo.h"

namespace lomaterra::pruebas {
namespace {

int Lote(const std::string& opciones, std::string& json, std::string& salida) {
  const std::string carpeta = CarpetaTemporal();
  std::ofstream(carpeta + "/opciones.json") << opciones;
  const std::string orden = std::string("'") + LOMATERRA_LOTE + "' '" + RutaEjemplo("talud_homogeneo.cod") +
                            "' BúsquedaCírculoCrítico --busqueda '" + carpeta + "/opciones.json' --json '" +
                            carpeta + "/s.json' >'" + carpeta + "/salida.txt' 2>&1";
  const int r = std::system(orden.c_str());
  std::stringstream a, b;
  a << std::ifstream(carpeta + "/s.json").rdbuf();
  b << std::ifstream(carpeta + "/salida.txt").rdbuf();
  json = a.str();
  salida = b.str();
  return WIFEXITED(r) ? WEXITSTATUS(r) : -1;
}

TEST(BúsquedaLote, OpcionesEnJsonYMallaEnLaSalida) {
  std::string json, salida;
  EXPECT_EQ(Lote(R"({"divisionesX": 4, "divisionesY": 3, "método": "Janbu", "dovelas": 30})", json, salida), 0)
      << salida;
  EXPECT_NE(json.find("\"Búsqueda\": {\"hay\": true"), std::string::npos) << json;
  EXPECT_NE(json.find("\"método\": \"Janbu\""), std::string::npos);
  // Four rows of five centres.
  const auto malla = json.find("\"mínimoPorCentro\": [[");
  ASSERT_NE(malla, std::string::npos);
  const std::string resto = json.substr(malla, json.find("]]", malla) - malla);
  EXPECT_EQ(std::count(resto.begin(), resto.end(), '['), 5);
  EXPECT_NE(salida.find("[estado] Búsqueda del círculo crítico: "), std::string::npos);

  EXPECT_EQ(Lote(R"({"radios": 3})", json, salida), 2);
  EXPECT_NE(salida.find("clave desconocida \"radios\""), std::string::npos) << salida;
}

}  // namespace
}  // namespace lomaterra::pruebas
